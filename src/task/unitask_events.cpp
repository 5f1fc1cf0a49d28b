#include "task/unitask.h"

#include "settings/config_data.h"
#include "device/datatypes.h"
#include "model/livedata.h"
#include "detect/powerevents.h"
#include "record/pqa2ff.h"
#include "task/displayfeed.h"

#include <algorithm>

// The half-cycle stream: means for the mains-signalling page, event detection entry by entry, r.m.s. trends, and the
// storing of events.

void UniTask::datagramRMS_1_2(const QByteArray &bytes)
{
    const Call call(this);
    if (!DataTypes::fits(DatagramRMS_1_2, bytes))
        return;
    DataTypes::datagramRMS_1_2(m_rms.get(), bytes.constData(), m_settingConfig_g.derived().scales);
    if (!isLive())
        return;
    pushHalfCycles();
    checkHalfCycles();
    drainRings();
}

void UniTask::pushHalfCycles()
{
    for (int c = 0; c < m_channels; ++c) {
        const RmsSeries &voltage = m_rms->voltage[c];
        const RmsSeries &current = m_rms->current[c];
        const int count = int(std::min<quint32>(voltage.count, kRmsEntries));
        float voltageSum = 0;
        float currentSum = 0;
        for (int i = 0; i < count; ++i) {
            m_rings[c].rmsfifoPush(voltage.entry[i].value);
            m_rings[c + kChannels].rmsfifoPush(current.entry[i].value);
            voltageSum += voltage.entry[i].value;
            currentSum += current.entry[i].value;
        }
        if (count > 0) {
            m_data.live().mainsSignal.rms1[c] = voltageSum / float(count);
            m_data.live().mainsSignal.rms2[c] = currentSum / float(count);
        }
    }
}

void UniTask::checkHalfCycles()
{
    int entries = kRmsEntries;
    for (int c = 0; c < m_channels; ++c)
        entries = std::min({ entries, int(m_rms->voltage[c].count), int(m_rms->current[c].count) });

    QList<_value_with_time> values;
    values.reserve(2 * kChannels);
    // An event may end the measurement: what came behind it is not looked at.
    for (int i = 0; i < entries && isLive(); ++i) {
        values.clear();
        for (const RmsSeries &series : m_rms->voltage)
            values.append(series.entry[i]);
        for (const RmsSeries &series : m_rms->current)
            values.append(series.entry[i]);
        m_events->checkPowerEvents(values);
    }
}

void UniTask::drainRings()
{
    initLimitsData(); // another duration may have been chosen since
    for (int c = 0; c < m_channels; ++c) {
        for (int input : { c, c + kChannels }) {
            const bool isVoltage = input < kChannels;
            while (m_rings[input].rmsfifoCount() >= 1) {
                const float value = m_rings[input].rms_data_extract();
                __rms_trend_data &dips = m_data.live().dips;
                __rms_trend_data &inrush = m_data.live().inrush;
                DisplayFeed::appendLimited(isVoltage ? dips.voltage[c] : dips.current[c], value, m_dipTrendLimit);
                DisplayFeed::appendLimited(isVoltage ? inrush.voltage[c] : inrush.current[c], value,
                                           m_inrushTrendLimit);
            }
        }
    }
}

void UniTask::eventFinishedWithRMS(const PQAEventItem &event)
{
    if (m_function == UniBasic && isRecording() && m_commonFile && m_commonFile->isOpen())
        m_commonFile->addDataBlock(Pqa2EventCurves, PowerEvents::toRawData(event));
}

namespace {

constexpr int kEventHeadBytes = 32;

/// The first 32 bytes of the stored form: the event without its curves.
QByteArray eventHead(const PQAEventItem &event)
{
    return PowerEvents::rawHead(event).left(kEventHeadBytes);
}

} // namespace

void UniTask::saveAllEvents()
{
    for (const PQAEventItem &event : m_events->getAllEvents()) {
        for (Pqa2FF *file : { m_commonFile, m_monitorFile }) {
            if (file && file->isOpen())
                file->addDataBlock(Pqa2EventHead, eventHead(event));
        }
    }
}

void UniTask::saveEvents(bool finished)
{
    for (const PQAEventItem &event : m_events->getAllEvents()) {
        if ((event.finished != 0) != finished)
            continue;
        if (m_commonFile && m_commonFile->isOpen())
            m_commonFile->addDataBlock(Pqa2EventCurves, PowerEvents::toRawData(event));
        if (m_monitorFile && m_monitorFile->isOpen())
            m_monitorFile->addDataBlock(Pqa2EventHead, eventHead(event));
    }
}

void UniTask::saveFinishedEvents()
{
    saveEvents(true);
    if (!m_commonFile || !m_commonFile->isOpen())
        return;
    for (const __trans_data &record : m_data.transients())
        m_commonFile->addDataBlock(Pqa2Transient, transientBlock(record));
}

void UniTask::saveUnFinishedEvents()
{
    saveEvents(false);
}
