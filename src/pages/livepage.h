#pragma once

#include "pages/page.h"

/// A page that shows live records: hold and run on F5, the stop watch, a refresh with every update of the task. It
/// computes no measurement; it reads the records that are shown.
class LivePage : public Page
{
    Q_OBJECT

public:
    explicit LivePage(_quvera_ui_type type, QWidget *parent = nullptr);

    bool isRunning() const { return m_running; }

public slots:
    virtual void setPause();
    virtual void setContinue();
    /// Redraws from the records that are shown; must be harmless when called twice. The argument is always 0.
    virtual void updateDisplay(void *) { }
    virtual void stopWatchChanged(const QString &text);
    /// A run begins: forget what was shown.
    virtual void init_parameter();
    void retranslateUi() override;

signals:
    void run();
    void pause();

protected:
    /// F5 is Hold and Run unless the page's table has another use for it.
    bool pressKey(int key) override;
    virtual void showHold();

private:
    bool m_running = true;
};
