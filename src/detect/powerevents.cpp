#include "detect/powerevents.h"

#include "model/channelset.h"
#include "detect/eventcurves.h"

namespace {

constexpr quint64 kHistorySpan = 3000; // ms kept before and after an event
// Three seconds hold 2400 half cycles at 400 Hz. The bound only matters when time stands still.
constexpr size_t kHistoryLimit = 8192;

/// How long after a moment its curve is taken: the history then holds about as much before as after it.
struct CurveWait
{
    quint64 start; // ms
    quint64 end; // ms
};
constexpr CurveWait kCurveWait = { 1500, 1500 };
constexpr CurveWait kInterruptionWait = { 1800, 1600 };

/// Only these events get curves; the others would wait for ever.
bool hasCurves(qint32 type)
{
    return type == EventDip || type == EventSwell || type == EventInterruption || type == EventInrush;
}

} // namespace

PowerEvents::PowerEvents(EventList &list, QObject *parent) : PowerEvents(list, currentEventSettings(), -1, parent) { }

PowerEvents::PowerEvents(EventList &list, const EventSettings &settings, int joinMode, QObject *parent)
    : QObject(parent), m_settings(settings), m_fixedJoinMode(joinMode), m_events(list)
{
    initLimitsData();
}

PowerEvents::PowerEvents(const EventSettings &settings, int joinMode, QObject *parent)
    : PowerEvents(m_ownEvents, settings, joinMode, parent)
{ }

PowerEvents::~PowerEvents() = default;

void PowerEvents::initLimitsData()
{
    connect(&m_events, &EventList::cleared, this, &PowerEvents::forgetPlaces);
    m_counter = 0;
    m_globalBits = 0;
    for (int i = 0; i < kEventPhases; ++i)
        m_phaseBits[i] = m_harmonicBits[i] = 0;
    m_rearmed = true;
    const RvcSettings &rvc = m_settings.rvc;
    for (RvcFifo &ring : m_rvc)
        ring.init_rvc_fifo(rvc.frequency, rvc.seconds, rvc.band, rvc.settleFactor, rvc.minStep, rvc.minRate);
}

int PowerEvents::joinMode() const
{
    return m_fixedJoinMode < 0 ? currentJoinMode() : m_fixedJoinMode;
}

void PowerEvents::setUserFile(Pqa2FF *file)
{
    if (file)
        m_userFile = file;
}

void PowerEvents::forgetPlaces()
{
    m_pending.clear();
    m_unfinished.clear();
    m_complete.clear();
}

QList<PQAEventItem> PowerEvents::getFullEvents() const
{
    QList<PQAEventItem> events;
    for (const int place : m_complete)
        events.append(m_events.at(place));
    return events;
}

void PowerEvents::checkPowerEvents(const QList<_value_with_time> &values)
{
    if (values.isEmpty())
        return;
    appendHistory(values);
    for (int i = 0; i < kEventPhases && i < values.size(); ++i)
        m_rvc[i].rvc_fifo_push(values.at(i));

    // Kept: a join mode that is none counts no phases, and with them every phase as interrupted.
    constexpr ChannelSet kNoWiring = {};
    const ChannelSet *known = channelSet(joinMode());
    const ChannelSet &wiring = known ? *known : kNoWiring;
    const int n = qMin(int(wiring.eventPhases), values.size());
    walkPending(wiring.curveMask);
    checkSwell(n, values);
    checkDipsOrInte(n, values);
    for (int i = 0; i < n; ++i)
        checkRVC(i);
    for (int i = 0; i < kEventPhases && 4 + i < values.size(); ++i) {
        if (wiring.inrushMask & (1u << i))
            checkInrush(i, values.at(4 + i));
    }
}

void PowerEvents::appendHistory(const Samples &values)
{
    // Kept: one sample goes at a call, and only the first input is measured.
    const std::deque<_value_with_time> &first = m_history[0];
    if ((first.size() >= 2 && quint64(first.back().time) - quint64(first.front().time) > kHistorySpan)
        || first.size() >= kHistoryLimit) {
        for (auto &list : m_history) {
            if (!list.empty())
                list.pop_front();
        }
    }
    for (int i = 0; i < kEventInputs && i < values.size(); ++i)
        m_history[i].push_back(values.at(i));
}

bool PowerEvents::historyReaches(const PQAEventItem &event, qint64 time, quint64 wait) const
{
    const std::deque<_value_with_time> &list = m_history[event.channel & 3];
    return !list.empty() && quint64(list.back().time) - quint64(time) > wait;
}

void PowerEvents::copyHistory(quint8 phases, RmsCurve *curves) const
{
    for (int i = 0; i < kEventInputs; ++i) {
        if (!(phases & (1u << (i & 3))))
            continue;
        curves[i].reserve(curves[i].size() + int(m_history[i].size()));
        for (const _value_with_time &sample : m_history[i])
            curves[i].append(sample);
    }
}

void PowerEvents::walkPending(quint8 phases)
{
    for (int i = 0; i < m_pending.size();) {
        const int place = m_pending.at(i);
        PQAEventItem &event = m_events.quietly(place); // curves show on no page and in no table
        const CurveWait &wait = event.type == EventInterruption ? kInterruptionWait : kCurveWait;
        if (event.startRms[0].isEmpty() && historyReaches(event, event.startTime, wait.start))
            copyHistory(phases, event.startRms);
        if (event.finished && event.endRms[0].isEmpty() && historyReaches(event, event.endTime, wait.end))
            copyHistory(phases, event.endRms);
        if (event.startRms[0].isEmpty() || event.endRms[0].isEmpty()) {
            ++i;
            continue;
        }
        joinCurves(event);
        m_pending.remove(i);
        m_complete.append(place);
        emit eventFinishedWithRMS(event);
    }
}

int PowerEvents::addEventItem(qint32 type, qint32 channel, int &counter, float value, qint64 time)
{
    ++counter;
    PQAEventItem event;
    event.channel = channel;
    event.type = type;
    event.value = value;
    event.startSeconds = quint32(time / 1000);
    event.startTime = event.endTime = time;
    m_unfinished.append(m_events.size());
    if (hasCurves(type))
        m_pending.append(m_events.size());
    m_events.append(event);
    emit changeEventsWave(time);
    refreshMbEvents();
    emit buzzerRing(0);
    return 1;
}

int PowerEvents::firstUnfinished(qint32 type) const
{
    for (const int place : m_unfinished) {
        if (m_events.at(place).type == type)
            return place;
    }
    return -1;
}

void PowerEvents::finishEvent(qint32 type, qint32 channel, float value, qint64 time)
{
    const int place = firstUnfinished(type);
    if (place < 0)
        return;
    m_unfinished.removeOne(place);
    m_events.change(place, [&](PQAEventItem &event) {
        event.channel = channel;
        event.value = value;
        event.endTime = time;
        event.duration = qint32(quint32(quint64(event.endTime) - quint64(event.startTime)));
        event.finished = 1;
        emit eventFinished(event);
    });
    refreshMbEvents();
}

void PowerEvents::changeEventType(qint32 oldType, qint32 channel, float value, qint32 newType, qint64 time)
{
    const int place = firstUnfinished(oldType);
    if (place < 0)
        return;
    m_globalBits = (m_globalBits & ~quint32(DipRunning)) | InterruptionRunning;
    m_events.change(place, [&](PQAEventItem &event) {
        event.channel = channel;
        event.type = newType;
        event.value = value;
        event.startTime = event.endTime = time;
        event.startSeconds = quint32(time / 1000);
        event.duration = 0;
    });
    refreshMbEvents();
}

void PowerEvents::refreshMbEvents()
{
    m_table.fill(m_events);
    emit mbEventsChanged(QByteArray(reinterpret_cast<const char *>(&m_table), int(sizeof m_table)));
}
