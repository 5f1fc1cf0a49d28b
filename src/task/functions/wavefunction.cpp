#include "task/functions/wavefunction.h"

#include "model/displayrecords.h"
#include "platform/clock.h"
#include "settings/localtime.h"
#include "settings/waveinfo.h"

#include <algorithm>
#include <cstring>

namespace {

/// Of so many frames of \a record the first, one frame behind the other: the voltages of L1, L2, L3 and N, then their
/// currents.
void interleave(const __datagram_wave &record, int step, QByteArray *chunk)
{
    const int frames = kWaveSamples / step;
    chunk->resize(frames * kWaveFrameBytes);
    char *to = chunk->data();
    for (int frame = 0; frame < frames; ++frame) {
        qint16 samples[kWaveInputs];
        for (int c = 0; c < kChannels; ++c) {
            samples[c] = record.voltage[c][frame * step];
            samples[kChannels + c] = record.current[c][frame * step];
        }
        std::memcpy(to, samples, sizeof samples);
        to += sizeof samples;
    }
}

} // namespace

void WaveFunction::initWaveData()
{
    m_rate = WaveInfo::sampleRate();
    m_step = std::clamp(WaveInfo::m_step, 1, kWaveSamples);
    m_limit = WaveInfo::m_points_numb;
    m_frames = 0;
    m_file.reset();
    // A start that is past is none: the run then begins at once.
    const quint32 planned = WaveInfo::m_begain_time >= Clock::seconds() ? WaveInfo::m_begain_time : 0;
    if (!WaveInfo::m_wave_file->isEmpty())
        m_file = std::make_unique<WaveFile>(*WaveInfo::m_wave_file, planned, quint32(m_rate), m_setUp());
}

void WaveFunction::measure()
{
    showProgress();
    if (!m_file)
        return;
    m_progress.refused = !m_file->open(LocalTime::currentDateTime());
    m_progress.begin = m_file->header().begin;
}

void WaveFunction::wave(const __datagram_wave &record)
{
    if (m_progress.refused)
        return m_done();
    if (!m_file || !m_file->isOpen())
        return;
    interleave(record, m_step, &m_chunk);
    // Frames carry no time: behind one that is missing nothing may follow.
    m_progress.refused = m_file->write(m_chunk, Clock::seconds()) < 0;
    if (m_progress.refused)
        return m_done();
    m_frames += m_chunk.size() / kWaveFrameBytes;
    showProgress();
    if (m_frames >= m_limit)
        m_done();
}

void WaveFunction::showProgress()
{
    const qint64 left = std::max(m_limit - m_frames, qint64(0));
    m_progress.percent = m_limit > 0 ? int(100 * (m_limit - left) / m_limit) : 100;
    m_progress.seconds = int((left + m_rate - 1) / m_rate);
}

void WaveFunction::stop(Keep keep)
{
    if (!m_file)
        return;
    m_file->save(keep == Keep::Data);
    m_file.reset();
}
