#include "task/unitask.h"

#include "model/channelset.h"
#include "settings/config_data.h"
#include "device/datatypes.h"
#include "model/livedata.h"
#include "record/pqa2ff.h"
#include "task/transientcutter.h"

#include <cmath>
#include <utility>

// The waveform stream: recording clock, transients, waveforms of events and, once a second, the trends.

void UniTask::datagramWave(const QByteArray &bytes)
{
    const Call call(this);
    if (!DataTypes::fits(DatagramWave, bytes))
        return;
    DataTypes::datagramWave(m_wave.get(), bytes.constData());
    recordTimer(quint64(m_wave->time));
    if (!isLive())
        return;
    // Used up by this datagram, however many in it ask for a new aggregation.
    const bool fresh = std::exchange(m_aggregationFresh, false);
    if (fresh)
        appendSecondTrends();
    captureTransient();
    fillEventWaves();
    emit waveTaken(m_wave.get());
}

void UniTask::captureTransient()
{
    const int code = TransientCutter::channelCode(m_wave->transient);
    if (!transientCodeCounts(m_settingConfig_g.getJoinMode(), code))
        return;

    __trans_data &record = m_data.live().transient; // until the next refresh puts the running waveform there
    record.number = ++m_transientNumber;
    record.frequency = std::fabs(m_aggregation->frequency);
    for (int c = 0; c < kChannels; ++c)
        record.rms[c] = m_aggregation->channel[c].voltage;
    TransientCutter::cut(*m_wave, record);

    Pqa2FF *file
        = m_function == UniMonitor ? m_monitorFile : (m_function == UniBasic && isRecording() ? m_commonFile : nullptr);
    if (file && file->isOpen())
        file->addDataBlock(Pqa2Transient, transientBlock(record));

    m_data.transients().append(record);
    emit hasTransEvents();
    emit transientTaken(&record);
}

void UniTask::changeEventsWave(long long time)
{
    m_eventWaves.append({ time, {} });
}

void UniTask::fillEventWaves()
{
    if (m_eventWaves.isEmpty())
        return;
    const auto datagram = std::make_shared<const __datagram_wave>(*m_wave);
    const ChannelSet *wiring = m_settingConfig_g.channels();
    const bool stored = wiring && m_function == UniBasic && isRecording() && m_commonFile && m_commonFile->isOpen();
    QList<EventWave> waiting;
    for (EventWave &wave : m_eventWaves) {
        wave.samples.append(datagram);
        if (wave.samples.size() < EventWaveCutter::kDatagrams)
            waiting.append(wave);
        else if (stored)
            m_commonFile->addDataBlock(Pqa2EventWave, EventWaveCutter::block(wave, wiring->mask));
    }
    m_eventWaves = waiting;
}

QByteArray UniTask::transientBlock(const __trans_data &record)
{
    const int channel = TransientCutter::channelCode(record.position) - 1;
    QByteArray block;
    if (channel < 0 || channel >= kChannels)
        return block;
    block.append(reinterpret_cast<const char *>(&record.time), sizeof(record.time));
    block.append(reinterpret_cast<const char *>(&record.frequency), sizeof(record.frequency));
    block.append(reinterpret_cast<const char *>(&record.position), sizeof(record.position));
    block.append(reinterpret_cast<const char *>(record.samples[channel]), sizeof(record.samples[channel]));
    return block;
}
