#pragma once

#include "pages/uitype.h"
#include "task/abstracttask.h"

#include <QObject>

#include <vector>

class FunctionPage;
class MenuPage;
class QStackedWidget;
class QWidget;
class TaskManage;
struct PageRow;

/// Has all pages, made when they are first entered, and decides whenever another one is asked for whether the running
/// measurement goes on, must end, or must be asked about. What it knows of a page stands in the page table.
class Navigator : public QObject
{
    Q_OBJECT

public:
    /// Puts \a menu into \a stack, and behind it each page of the table when it is first entered, in the table's order.
    /// All arguments outlive it.
    Navigator(TaskManage *tasks, MenuPage *menu, QStackedWidget *stack, QObject *parent = nullptr);

    /// The page that answers to a type, made now if it was not; null for the menu.
    FunctionPage *page(_quvera_ui_type type);
    /// The last function page shown, menu included; one that stands over others does not change it.
    QWidget *currentPage() const { return m_currentPage; }
    _quvera_ui_type currentType() const;

    /// The page \a current is to make room for \a target, in the way in which that is entered. Without effect where the
    /// user stays, or for a type that is no page.
    void go(_quvera_ui_type current, _quvera_ui_type target);
    /// The current page again, in front of what stood over it.
    void showLast();
    void showMenuPage();
    /// Ends what runs and starts the basic function anew; the page in front stays.
    void restartTask();
    /// Starts a function whose page is \a display.
    void startFunction(AbstractTask::UniFunction function, _quvera_ui_type display);
    /// Begins a recording, in the run that there is or in a new one.
    void startRecordTask();
    /// Captions of menu and pages anew, in the table's turn.
    void retranslatePages();
    /// Prepares a run before its task exists: empties the event list and the measured data, and lets the pages begin
    /// anew, in the table's turn.
    void beginPages();

signals:
    void titleChanged(const QString &title);

private:
    /// What the user made of a running measurement.
    enum Answer { StayOnPage = -1, NoTask = 0, KeepTask = 1 };

    static std::size_t place(const PageRow &row);
    FunctionPage *makePage(const PageRow &row);
    Answer changeTaskOrNot(AbstractTask::UniFunction function, _quvera_ui_type current);
    void takeFront(_quvera_ui_type current, FunctionPage *page);
    bool exitCurTaskIfOrNot(_quvera_ui_type current);
    bool endTaskAsAsked(_quvera_ui_type current);
    bool endRecordingAsAsked(_quvera_ui_type current);
    bool quitTaskAsAsked(_quvera_ui_type current);
    void leaveCurrent();
    void bringToFront(QWidget *page, const QString &title);
    void showMenu(_quvera_ui_type current);
    void showLive(_quvera_ui_type current, _quvera_ui_type target);
    void showCommanded(_quvera_ui_type current, _quvera_ui_type target);
    void showSettings(_quvera_ui_type current, _quvera_ui_type target);
    void showOverlay(_quvera_ui_type target);

    TaskManage *const m_tasks;
    MenuPage *const m_menu;
    QStackedWidget *const m_stack;
    std::vector<FunctionPage *> m_pages; // by the rows of the page table; null: not entered yet
    QWidget *m_currentPage = nullptr;
};
