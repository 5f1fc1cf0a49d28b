#pragma once

#include "task/abstracttask.h"
#include "pages/uitype.h"

#include <QDialog>

#include <memory>

class FunctionPage;
class QTimer;

namespace Ui {
class BaseDialog;
}

/// The main window: title bar and the one stack of pages. It decides, whenever another function is asked for, whether
/// the running measurement goes on, must end, or must be asked about.
class BaseDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BaseDialog(QWidget *parent = nullptr);
    ~BaseDialog() override;

    /// The last function page shown, menu included; Memory does not change it.
    QWidget *currentPage() const { return m_currentPage; }

public slots:
    /// The page \a current is to make room for \a target: by the way in which that is entered. Without effect where the
    /// user stays, or where this software has no such page.
    void go(_quvera_ui_type current, _quvera_ui_type target);
    void showLast();
    void restartTask();
    void startTransTask() { }
    void startInrushTask() { }
    void startLoggerTask();
    void startMonitorTask();
    void startWaveTask();
    void startRecordTask();
    void startPowerInverterTask();
    void startDateTimer() { }
    void refleshtime();
    void powerBtnPushed();
    void retranslateUi();
    void showSysInfo(const QString &text);
    /// Names of two pictures; an empty one clears its place.
    void showSysIcon(const QString &first, const QString &second);
    /// The processor's time, s since 1970, becomes that of the system; 0 is ignored.
    void showDSPTimeStamp(quint32 seconds);
    void displayTaskName(const QString &text);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    /// What the user made of a running measurement.
    enum Answer { StayOnPage = -1, NoTask = 0, KeepTask = 1 };

    Answer changeTaskOrNot(AbstractTask::UniFunction function, _quvera_ui_type current);
    bool exitCurTaskIfOrNot(_quvera_ui_type current);
    bool endTaskAsAsked(_quvera_ui_type current);
    bool endRecordingAsAsked(_quvera_ui_type current);
    bool quitTaskAsAsked(_quvera_ui_type current);

    void highLightMenu();

    FunctionPage *builtPage(_quvera_ui_type target);
    void bringToFront(QWidget *page, const QString &title);
    void showMenu(_quvera_ui_type current);
    void showLive(_quvera_ui_type current, _quvera_ui_type target);
    void showCommanded(_quvera_ui_type current, _quvera_ui_type target);
    void showSettings(_quvera_ui_type current, _quvera_ui_type target);
    void showMemory();
    void startFunction(AbstractTask::UniFunction function, _quvera_ui_type display);
    void armPowerTimer();

    std::unique_ptr<Ui::BaseDialog> m_ui;
    QTimer *m_clockTimer;
    QWidget *m_currentPage = nullptr;
    QTimer *m_powerTimer;
    bool m_powerArmed = false;
    int m_powerTicks = 0;
};
