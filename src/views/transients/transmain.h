#pragma once

#include "pages/livepage.h"

#include <memory>

namespace Ui {
class TransMain;
}
class KeyRepeat;

/// Set-up of the transient capture: the threshold, 1 to 6000 percent, changed by left and right in steps that grow
/// while the key is held. Every change is stored at once; the processor learns it at the start.
class TransMain : public LivePage
{
    Q_OBJECT

public:
    explicit TransMain(QWidget *parent = nullptr);
    ~TransMain() override;

    /// Whether the threshold changed since the last call.
    bool takeChanged();

public slots:
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goTranStart();

protected:
    void releaseKey(int key) override;

private:
    void changeToNext();
    void pressLeft();
    void pressRight();
    void restoreDefaults();
    void changeThreshold(int step);
    void setThreshold(int percent);
    void showTransThreshold();

    std::unique_ptr<Ui::TransMain> m_ui;
    KeyRepeat *m_repeat;
    bool m_changed = false;
};
