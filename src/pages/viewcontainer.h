#pragma once

#include "model/livedata.h"
#include "pages/functionpage.h"

#include <QList>

class QStackedWidget;

/// A measuring function with sub pages: one on top, all alive, all refreshed.
class ViewContainer : public FunctionPage
{
    Q_OBJECT

public:
    /// \a data outlives the page.
    ViewContainer(_quvera_ui_type type, SaveIdentity identity, const LiveData &data, QWidget *parent = nullptr);

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
    /// Empties what the container itself keeps of a run. Runs before the sub pages begin theirs.
    virtual void initDisplayParam() { }
    const DisplayRecords &shown() const { return m_data.shown(); }

    /// Only Save; everything else belongs to the sub pages or to the main window.
    bool pressKey(int key) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    const LiveData &m_data;
    QStackedWidget *m_stack;
    QList<LivePage *> m_pages;
};
