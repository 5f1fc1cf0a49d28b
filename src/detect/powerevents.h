#pragma once

#include "model/eventlist.h"
#include "detect/eventsettings.h"
#include "detect/eventtable.h"
#include "detect/rvcfifo.h"
#include "detect/slowchecks.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QVector>

#include <deque>

class Pqa2FF;

/// Event detector of the instrument: takes the half-cycle values of all inputs and the slower aggregated values, writes
/// the one list of events, and completes each event with the r.m.s. curves around its start and its end
/// (docs/events.md). What a change costs does not depend on how many events there are. Main thread only; all signals
/// are direct.
class PowerEvents : public QObject, public SlowChecks
{
    Q_OBJECT

public:
    /// Latches the active limit set and the present settings; the wiring is read anew at every sample. \a list, which
    /// outlives the detector, is written by no one else but may be emptied by its owner: what runs then ends without an
    /// entry.
    explicit PowerEvents(EventList &list, QObject *parent = nullptr);
    /// The same with given thresholds and a given wiring, without any global.
    PowerEvents(EventList &list, const EventSettings &settings, int joinMode, QObject *parent = nullptr);
    /// The same with a list of its own.
    PowerEvents(const EventSettings &settings, int joinMode, QObject *parent = nullptr);
    ~PowerEvents() override;

    /// One half cycle: at most eight values in the order of the inputs, voltages in V, currents in A. Fewer are taken
    /// as far as they go; none does nothing. Any float and any time is welcome.
    void checkPowerEvents(const QList<_value_with_time> &values);

    void checkEventFreq(const _value_with_time &frequency) override;
    void checkEventVolt(int phase, const _value_with_time &voltage) override;
    void checkEventUnbal(const _value_with_time &ratio) override;
    void checkEventHarm(int phase, int index, const _value_with_time &ratio) override;
    void checkEventFlicker(int phase, const _value_with_time &plt) override;

    const EventList &getAllEvents() const { return m_events; }
    /// Copies of the events whose curves are complete, in the order of their completion.
    QList<PQAEventItem> getFullEvents() const;
    /// Forgets all events. Counter and running states stay: what runs ends without an entry.
    void clear() { m_events.clear(); }
    /// Kept for the caller's sake; a null pointer is not taken, and nothing reads the file.
    void setUserFile(Pqa2FF *file);
    /// Brings the Modbus table up to date and hands it on.
    void refreshMbEvents();

    const EventSettings &settings() const { return m_settings; }
    /// Events counted so far against the limit on events.
    int eventCounter() const { return m_counter; }

    /// Head, then two sections of 12-byte samples with a byte count before each: the curves around the start, and those
    /// around the end as far as they do not overlap. Empty when no voltage has a curve.
    static QByteArray toRawData(const PQAEventItem &event);
    /// The first 32 bytes of it, for any event.
    static QByteArray rawHead(const __event_item &event);

signals:
    // The list itself says which event is new or changed.
    void eventFinished(const PQAEventItem &event);
    /// Its curves are complete.
    void eventFinishedWithRMS(const PQAEventItem &event);
    void buzzerRing(unsigned int);
    void changeEventsWave(long long time); // ms since 1970
    /// The block of the newest events: a ModbusEventTable, head and all (208 bytes).
    void mbEventsChanged(const QByteArray &table);

private:
    /// Running states that concern all phases.
    enum GlobalBit : quint32 {
        DipRunning = 1,
        SwellRunning = 2,
        InterruptionRunning = 4,
        FrequencyRunning = 16,
        UnbalanceRunning = 64
    };
    /// Running states of one phase.
    enum PhaseBit : quint32 { VoltageRunning = 32, FlickerRunning = 128, InrushRunning = 0x100 };

    /// The worst value of an event and the input that had it.
    struct Extreme
    {
        float value = 0;
        int channel = 0;
    };

    /// One check against a limit: which bit it holds, which event it makes, and what it keeps.
    struct SlowCheck
    {
        quint32 *bits;
        quint32 bit;
        qint32 type;
        qint32 channel;
        float *extreme;
    };

    using Samples = QList<_value_with_time>;

    void initLimitsData();
    int joinMode() const;

    // powerevents.cpp: history, list of events
    void appendHistory(const Samples &values);
    void walkPending(quint8 phases);
    void copyHistory(quint8 phases, RmsCurve *curves) const;
    bool historyReaches(const PQAEventItem &event, qint64 time, quint64 wait) const;
    void forgetPlaces();
    int addEventItem(qint32 type, qint32 channel, int &counter, float value, qint64 time);
    void finishEvent(qint32 type, qint32 channel, float value, qint64 time);
    void changeEventType(qint32 oldType, qint32 channel, float value, qint32 newType, qint64 time);
    int firstUnfinished(qint32 type) const;

    // powereventschecks.cpp: the detectors
    int checkSwell(int n, const Samples &values);
    int checkDipsOrInte(int n, const Samples &values);
    int startDipOrInterruption(int n, const Samples &values);
    int continueDip(int n, const Samples &values);
    int continueInterruption(int n, const Samples &values);
    void checkInrush(int i, const _value_with_time &sample);
    void checkRVC(int channel);
    void slowCheck(const SlowCheck &check, const _value_with_time &sample, bool outside, bool farther);

    EventSettings m_settings;
    int m_fixedJoinMode = -1; // below 0: that of the settings
    Pqa2FF *m_userFile = nullptr;

    EventList m_ownEvents; // unused where a list is given
    EventList &m_events;
    // Places in the list.
    QVector<int> m_pending; // events whose curves are not complete
    QVector<int> m_unfinished; // in the order of the list
    QVector<int> m_complete; // events whose curves are complete
    std::deque<_value_with_time> m_history[kEventInputs];
    ModbusEventTable m_table;

    int m_counter = 0;
    quint32 m_globalBits = 0;
    quint32 m_phaseBits[kEventPhases] = {};
    quint32 m_harmonicBits[kEventPhases] = {}; // bit i: event of type i runs
    bool m_rearmed = true; // dips and interruptions may start

    Extreme m_swell;
    Extreme m_dip;
    Extreme m_interruption;
    float m_inrushMax[kEventPhases] = {}; // A
    float m_voltageExtreme[kEventPhases] = {}; // V
    float m_flickerMax[kEventPhases] = {};
    float m_harmonicMax[kEventPhases][kHarmonicLimits] = {}; // percent
    float m_unbalanceMax = 0; // percent
    float m_frequencyExtreme = 0; // Hz

    RvcFifo m_rvc[4]; // one per channel; three are used
};
