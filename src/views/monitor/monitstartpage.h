#pragma once

#include "views/monitor/monitorbarspage.h"

class MonitorHistogram;

/// The overview of a monitor's run: thirteen quantities beside what the limit set allows. From here the soft keys lead
/// to each of them.
class MonitStartPage : public MonitorBarsPage
{
    Q_OBJECT

public:
    explicit MonitStartPage(const LiveData &data, QWidget *parent = nullptr);

    /// The run's events, which the bar of dips, interruptions, rapid changes and swells counts.
    void refreshEventList(const EventSelection &events);
    /// The run has ended; its results stay.
    void runEnded();

public slots:
    void init_parameter() override;
    void retranslateUi() override;
    void stopWatchChanged(const QString &text) override;

signals:
    void goMonitorVrm();
    void goMonitorHarm();
    void goMonitorFlicker();
    void goMonitorDirs();
    void goMonitorUnbal();

protected:
    int barCount() const override;
    bool isShown(int bar) const override;
    void showBars(const MonitorView &view) override;
    MonitorReadout readout(const MonitorView &view) const override;
    MonitorEventCounts events() const override { return m_events; }

private:
    enum State { Waiting, Running, Finished };

    void showCaptions();
    void setState(State state);

    MonitorHistogram *m_histogram;
    QLabel *m_stateLabel;
    State m_state = Waiting;
    MonitorEventCounts m_events;
};
