#pragma once

#include "pages/functionpage.h"

#include <QList>

class QStackedWidget;

/// A measuring function with sub pages: one on top, all alive, all refreshed.
class ViewContainer : public FunctionPage
{
    Q_OBJECT

public:
    ViewContainer(_quvera_ui_type type, SaveIdentity identity, QWidget *parent = nullptr);

    LivePage *currentPage() const;
    const QList<LivePage *> &pages() const { return m_pages; }
    /// Makes the first sub page current.
    void enterFirstPage();
    void enter() override { enterFirstPage(); }

public slots:
    void init_parameter() override;
    void retranslateUi() override;
    void updateDisplay(void *data) override;
    void stopWatchChanged(const QString &text) override;

protected:
    /// Takes over \a page, forwards its navigation, run and pause, and sends it the task's answers.
    void addPage(LivePage *page);
    void showPage(LivePage *page);
    /// Allocates the function's record at the first call, empties it at each further one. Runs before the sub pages.
    virtual void initDisplayParam() { }

    /// Only Save; everything else belongs to the sub pages or to the main window.
    bool pressKey(int key) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    QStackedWidget *m_stack;
    QList<LivePage *> m_pages;
};
