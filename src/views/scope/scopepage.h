#pragma once

#include "model/livedata.h"
#include "pages/scopeformpage.h"

class Btn1;

/// Cycles, of the ten, that fill the width of the scope: 1, 2, 4, 6 or 8.
extern int wave_step;

/// The scope: waveforms of all voltages and currents with a cursor and thirteen zoom steps. One page, without sub
/// pages.
class ScopePage : public ScopeFormPage
{
    Q_OBJECT

public:
    explicit ScopePage(const LiveData &data, QWidget *parent = nullptr);

    int displayMode() const { return m_mode; } // 0 to 5: U, I, N, L1, L2, L3
    /// What the chart draws: the held or live samples, shortened to its width.
    const __scope_data_ui &drawn() const { return drawnData(); }
    QByteArray pqaData() const override;

public slots:
    /// Also called on hold, where it draws the held samples anew.
    void updateDisplay(void *) override;
    void init_parameter() override;
    void retranslateUi() override;

protected:
    void setPageKeys() override;
    int mode() const override { return m_mode; }
    void zoomTime(int direction) override;
    void showMode() override;
    void showCurVal() override;

private:
    void nextMode();
    void stayHere() { }

    const LiveData &m_data;
    Btn1 *const m_modeKey;
    int m_mode = 0;
};
