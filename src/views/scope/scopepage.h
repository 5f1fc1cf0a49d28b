#pragma once

#include "model/livedata.h"
#include "pages/functionpage.h"
#include "pages/scopereadout.h"

#include <memory>

namespace Ui {
class ScopePage;
}
class ScopeControls;

/// Cycles, of the ten, that fill the width of the scope: 1, 2, 4, 6 or 8.
extern int wave_step;

/// The scope: waveforms of all voltages and currents with a cursor and thirteen zoom steps. One page, without sub
/// pages.
class ScopePage : public FunctionPage
{
    Q_OBJECT

public:
    explicit ScopePage(const LiveData &data, QWidget *parent = nullptr);
    ~ScopePage() override;

    int displayMode() const { return m_mode; } // 0 to 5: U, I, N, L1, L2, L3
    /// What the chart draws: the held or live samples, shortened to its width.
    const __scope_data_ui &drawn() const { return *m_drawn; }
    QByteArray pqaData() const override;

public slots:
    /// Also called on hold, where it draws the held samples anew.
    void updateDisplay(void *) override;
    void init_parameter() override;
    void retranslateUi() override;

protected:
    void releaseKey(int key) override;

private:
    void nextMode();
    void defaultZoom();
    void toggleCursor();
    void toggleZoom();
    void pressLeft();
    void pressRight();
    void pressUp();
    void pressDown();
    void stayHere() { }

    void initScopeWidget();
    void showCurVal();

    const LiveData &m_data;
    const std::unique_ptr<__scope_data_ui> m_drawn; // the chart keeps its address
    std::unique_ptr<Ui::ScopePage> m_ui;
    ScopeReadout m_readout;
    ScopeControls *m_controls;
    int m_mode = 0;
};
