#include "settings/loggerinfo.h"

#include "settings/config.h"
#include "settings/settingrow.h"
#include "storage/fileinfo.h"
#include "storage/massstorage.h"
#include "model/nominalfrequency.h"

#include <limits>

namespace {

const char kFile[] = "/mnt/userfs/config/logger.conf";
const char kKey[] = "PARAMS";

constexpr quint32 kSingleBits = 0x3ff9e7; // bits 0, 1, 2, 5, 6, 7, 8, 11 and 12 to 21: one each
constexpr quint32 kSequenceBits = 0x618; // bits 3, 4, 9, 10: one for all of them
constexpr quint32 kHarmonicBits = 0xfc00000; // bits 22 to 27: one per order
constexpr quint32 kFlickerBit = 0x10000000; // bit 28: three

constexpr int kOrders400 = 13; // Kept: one more than the other functions have

int bitCount(quint32 bits)
{
    int n = 0;
    for (; bits; bits &= bits - 1)
        ++n;
    return n;
}

} // namespace

int LoggerInfo::m_in_logging = 0;
QString *LoggerInfo::m_logger_file = new QString;
quint32 LoggerInfo::m_paramselected = 0;
int LoggerInfo::m_param_numb = 0;
quint32 LoggerInfo::m_begain_time = 0;
int LoggerInfo::m_duration = 2;
int LoggerInfo::m_max_duration = 2;
int LoggerInfo::m_interval_index = 0;
const int LoggerInfo::m_logger_interval[12] = { 1, 2, 5, 10, 30, 60, 120, 300, 600, 900, 1800, 3600 };
int LoggerInfo::m_harm_max_numb = 100;
float LoggerInfo::m_storage_room = 0;

void LoggerInfo::readSelectedParam()
{
    m_paramselected = SettingText::toUnsigned(Config::readConfigFile(QLatin1String(kFile), QLatin1String(kKey)));
}

void LoggerInfo::writeSelectedParam()
{
    Config::writeConfigFile(QLatin1String(kFile), QLatin1String(kKey), QString::number(m_paramselected));
}

void LoggerInfo::initHarmMaxNumb(double nominalFrequency)
{
    m_harm_max_numb = highestOrder(nominalFrequency, kOrders400, m_harm_max_numb);
}

int LoggerInfo::countParamNumb(quint32 selected, double nominalFrequency)
{
    const int orders = highestOrder(nominalFrequency, kOrders400, 100);
    return bitCount(selected & kSingleBits) + ((selected & kSequenceBits) ? 1 : 0)
        + bitCount(selected & kHarmonicBits) * orders + ((selected & kFlickerBit) ? 3 : 0);
}

void LoggerInfo::countParamNumb(double nominalFrequency)
{
    m_param_numb = countParamNumb(m_paramselected, nominalFrequency);
}

int LoggerInfo::maxDuration(float room, int paramNumb, int intervalSeconds)
{
    const double hours = (double(room) + double(room)) / qMax(paramNumb, 1) * intervalSeconds * 2.0;
    if (!(hours > 0.0))
        return 0;
    return hours < std::numeric_limits<int>::max() ? static_cast<int>(hours) : std::numeric_limits<int>::max();
}

void LoggerInfo::checkMaxDuration()
{
    m_storage_room = MassStorage::storageFreeSize(FileInfo::storagePath());
    const int index = qBound(0, m_interval_index, 11);
    m_max_duration = maxDuration(m_storage_room, m_param_numb, m_logger_interval[index]);
    m_duration = qMin(m_duration, m_max_duration);
}
