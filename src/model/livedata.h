#pragma once

#include "model/displayrecords.h"
#include "model/eventlist.h"
#include "model/monitorrecords.h"
#include "model/transientlist.h"

#include <optional>

/// Everything that is measured and shown, one record for each function. A copy shares its lists with the original until
/// one of them is written.
struct DisplayRecords
{
    __vif_data vif;
    __power_data power;
    harm_data harmonics = {};
    __unbalance_data unbalance = {};
    __scope_data scope = {};
    __flicker_data flicker;
    __trans_data transient; // the running waveform, or the transient captured since the last refresh
    __rms_trend_data dips;
    __rms_trend_data inrush;
    __mains_sig_data mainsSignal;
    __pi_data inverter;
    waveProgress wave;
    __monitor_data monitor;
    __monitor_trend monitorTrend;
};

/// The one owner of the measured data. The task writes the live records; pages read the shown ones. These are the live
/// records as long as the measurement runs. While it is held they are what stood there at the moment of the hold,
/// whatever the task writes meanwhile. Made once and handed on by reference; main thread only.
class LiveData
{
public:
    LiveData() = default;
    LiveData(const LiveData &) = delete;
    LiveData &operator=(const LiveData &) = delete;

    DisplayRecords &live() { return m_live; }
    const DisplayRecords &live() const { return m_live; }
    /// Valid until the next empty(), hold() or run(): ask again at each use.
    const DisplayRecords &shown() const { return m_held ? *m_held : m_live; }
    bool isHeld() const { return m_held.has_value(); }

    /// What happened since the measurement began. The lists go on while held; pages read what they show.
    EventList &events() { return m_events; }
    const EventList &events() const { return m_events; }
    TransientList &transients() { return m_transients; }
    const TransientList &transients() const { return m_transients; }

    /// Whether something is being recorded that the storage refuses; of this moment also while held.
    bool storageRefuses() const { return m_storageRefuses; }
    void setStorageRefuses(bool refuses) { m_storageRefuses = refuses; }

    /// A measurement begins: all records and lists become empty, nothing is held. \a nominalFrequency in Hz stands for
    /// the frequency until the first one is measured.
    void empty(float nominalFrequency);
    /// Keeps what is live and listed now as what is shown. While already held it changes nothing.
    void hold();
    /// The live records are shown again; harmless when nothing is held.
    void run();

    /// The measurement has ended: the status counts no events any more, and no transients are left. The events stay for
    /// the page that shows them and for the files, and what is held for the page that is held.
    void finish();

    /// Reference of the harmonics' percentages: 1 the r.m.s. value, 2 the fundamental. It is a choice of the user and
    /// no measured value, so that it takes effect on hold as well.
    void setHarmonicReference(int reference);

private:
    DisplayRecords m_live;
    std::optional<DisplayRecords> m_held;
    EventList m_events;
    TransientList m_transients;
    bool m_storageRefuses = false;
};
