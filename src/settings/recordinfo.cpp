#include "settings/recordinfo.h"

#include "settings/config.h"
#include "settings/recordgroups.h"
#include "settings/settingrow.h"
#include "storage/massstorage.h"
#include "model/datagramrecords.h"
#include "model/nominalfrequency.h"

#include <algorithm>

namespace {

constexpr double kMegabyte = 1024 * 1024;
constexpr double kLongest = 24000; // h: the longest life of a measurement
const char kFile[] = "/mnt/userfs/config/record.conf";
const char kKey[] = "PARAMS";

quint32 withWhatIsNeeded(quint32 items)
{
    return items | RecordInfo::Frequency10s | (items & RecordInfo::AllHarmonics ? RecordInfo::CommonRms : 0u);
}

} // namespace

int RecordInfo::m_in_recording = 0;
QString *RecordInfo::m_record_file = new QString;
quint32 RecordInfo::m_recordItems = RecordInfo::Frequency10s;
quint32 RecordInfo::m_begain_time = 0;
int RecordInfo::m_duration = 2;
int RecordInfo::m_max_duration = 2;
int RecordInfo::m_interval_index = 3;
const int RecordInfo::m_record_interval[8] = { 1, 3, 5, 10, 30, 60, 120, 300 };
int RecordInfo::m_harm_max_numb = 100;
int RecordInfo::m_storage_room = 0;

void RecordInfo::readSelectedParam()
{
    const QString stored = Config::readConfigFile(QLatin1String(kFile), QLatin1String(kKey));
    m_recordItems = withWhatIsNeeded(stored.isEmpty() ? quint32(NewInstrument) : SettingText::toUnsigned(stored));
}

void RecordInfo::writeSelectedParam()
{
    m_recordItems = withWhatIsNeeded(m_recordItems);
    Config::writeConfigFile(QLatin1String(kFile), QLatin1String(kKey), QString::number(m_recordItems));
}

void RecordInfo::initHarmMaxNumb(double nominalFrequency)
{
    m_harm_max_numb = highestOrder(nominalFrequency, kHarmonicOrders400, m_harm_max_numb);
}

int RecordInfo::hoursInRoom(double room, quint32 items, int intervalSeconds, const ChannelSet &wiring)
{
    return room < kRoomToBegin ? 0 : hoursLeft(room, items, intervalSeconds, wiring);
}

int RecordInfo::hoursLeft(double room, quint32 items, int intervalSeconds, const ChannelSet &wiring)
{
    const double perHour = recordBytesPerHour(items, intervalSeconds, wiring);
    return int(std::clamp((room - kRoomKept) * kMegabyte / perHour, 0.0, kLongest));
}

void RecordInfo::checkMaxDuration(const ChannelSet &wiring)
{
    const double room = double(MassStorage::storageFreeSize(QStringLiteral("/mnt/storage/")));
    m_storage_room = int(room);
    m_max_duration = hoursInRoom(room, m_recordItems, m_record_interval[m_interval_index], wiring);
    m_duration = std::clamp(m_duration, 1, std::max(m_max_duration, 1));
}
