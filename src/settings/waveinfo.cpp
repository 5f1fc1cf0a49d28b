#include "settings/waveinfo.h"

#include "model/nominalfrequency.h"
#include "storage/fileinfo.h"
#include "storage/massstorage.h"

#include <algorithm>

namespace {

constexpr int kShortest = 10, kLongest = 600; // s
constexpr int kRoomKept = 5; // MB that a capture leaves free
constexpr qint64 kFrameBytes = 16;
constexpr int kChunksPerSecond = 5;
constexpr int kChunkHead = 4; // bytes

} // namespace

int WaveInfo::m_in_waving = 0;
QString *WaveInfo::m_wave_file = new QString;
quint32 WaveInfo::m_begain_time = 0;
int WaveInfo::m_sample_index = 0;
const int WaveInfo::m_sample_times[kRates] = { 20480, 10240, 5120 };
int WaveInfo::m_step = 1;
int WaveInfo::m_duration = 10;
int WaveInfo::m_min_duration = kShortest;
int WaveInfo::m_max_duration = kLongest;
int WaveInfo::m_points_numb = 0;
int WaveInfo::m_storage_room = 0;

void WaveInfo::initPointsNumbs(double nominal)
{
    const int rate = sampleRate();
    m_step = m_sample_times[0] / rate;
    if (isNominal(nominal, 50.0) || isNominal(nominal, 60.0) || isNominal(nominal, 400.0))
        m_points_numb = m_duration * rate;
}

int WaveInfo::maxDuration(int room, int sampleRate)
{
    const qint64 bytes = std::max(room - kRoomKept, 0) * qint64(1024 * 1024);
    const qint64 seconds = bytes / (sampleRate * kFrameBytes + kChunksPerSecond * kChunkHead);
    return seconds < kShortest ? 0 : int(std::min(seconds, qint64(kLongest)));
}

void WaveInfo::checkMaxDuration()
{
    m_storage_room = int(MassStorage::storageFreeSize(FileInfo::storagePath()));
    m_max_duration = maxDuration(m_storage_room, sampleRate());
    m_duration = std::max(std::min(m_duration, m_max_duration), m_min_duration);
}
