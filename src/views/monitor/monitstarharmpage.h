#pragma once

#include "views/monitor/monitorbarspage.h"

class MonitorHarmBtn1;
class MonitorHarmHisto;

/// Compliance of the distortion and of the harmonics of one phase, F1 chooses which.
class MonitStarHarmPage : public MonitorBarsPage
{
    Q_OBJECT

public:
    explicit MonitStarHarmPage(const LiveData &data, QWidget *parent = nullptr);

    int phase() const { return m_phase; }

public slots:
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goMonitorHarmEven();
    void goMonitorStart();

protected:
    int barCount() const override { return kMonitorHarmonics; }
    void showBars(const MonitorView &view) override;
    MonitorReadout readout(const MonitorView &view) const override;

private:
    static int phases();
    void changeHarmPhase();
    void setPhase(int phase);

    MonitorHarmHisto *m_histogram;
    MonitorHarmBtn1 *m_phaseKey;
    int m_phase = 0;
};
