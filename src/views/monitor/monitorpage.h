#pragma once

#include "pages/eventfollower.h"
#include "pages/viewcontainer.h"

#include <memory>

/// The monitor: its set-up, the overview of how the supply complies with the limit set, and for each group of
/// quantities its events and its trend.
class MonitorPage : public ViewContainer
{
    Q_OBJECT

public:
    enum Row {
        Main,
        Start,
        Vrm,
        VrmTrend,
        Harm,
        HarmEvents,
        HarmTrend,
        Flicker,
        FlickerTrend,
        Dirs,
        DirsTrend,
        Unbalance,
        UnbalanceTrend,
    };

    explicit MonitorPage(const LiveData &data, QWidget *parent = nullptr);

    /// Opens the set-up page for another run.
    void enter() override;
    QByteArray pqaData() const override;

public slots:
    /// The task has ended; without a run it means nothing.
    void runEnded();

signals:
    void startMonitorTask();
    /// Another limit set is in use, of which the processor and the plant's master are to know.
    void limitsChanged();

protected:
    void pageMade(int) override;

private:
    void start();

    std::unique_ptr<EventFollower> m_follower;
};
