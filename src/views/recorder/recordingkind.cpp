#include "views/recorder/recordingkind.h"

#include "pages/channellabels.h"
#include "platform/target.h"
#include "settings/config_data.h"
#include "settings/localtime.h"
#include "settings/loggerinfo.h"
#include "settings/recordinfo.h"
#include "storage/fileinfo.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <iterator>

namespace {

constexpr char kPrefix[] = "Logger_";

QString recorderName()
{
    return FileInfo().getDefaultRecordName(QLatin1String(kPrefix));
}

/// The first whose first file is neither in the index nor on the card: a file enters the index a moment after it began.
QString loggerName()
{
    const QStringList entered = FileInfo().getInfoFiles();
    for (int n = 1; n <= 999; ++n) {
        const QString name = QLatin1String(kPrefix) + QString::number(n);
        const QString file = name + QLatin1String("_00.csv");
        if (!entered.contains(file) && !QFile::exists(Target::path(FileInfo::storagePath() + file)))
            return name;
    }
    return {};
}

int recorderHours(float room, bool begun)
{
    const auto hours = begun ? RecordInfo::hoursLeft : RecordInfo::hoursInRoom;
    return hours(double(room), RecordInfo::m_recordItems, RecordingKind::recorder().interval(),
                 ChannelLabels::channels());
}

int loggerHours(float room, bool /*begun*/)
{
    return LoggerInfo::maxDuration(room, LoggerInfo::m_param_numb, RecordingKind::logger().interval());
}

QString translated(const char *text)
{
    return QCoreApplication::translate("RecordingText", text);
}

} // namespace

const RecordingKind &RecordingKind::recorder()
{
    static const RecordingKind kind {
        &RecordInfo::m_in_recording,
        RecordInfo::m_record_file,
        &RecordInfo::m_begain_time,
        &RecordInfo::m_duration,
        &RecordInfo::m_max_duration,
        &RecordInfo::m_interval_index,
        RecordInfo::m_record_interval,
        int(std::size(RecordInfo::m_record_interval)),
        [] { RecordInfo::checkMaxDuration(ChannelLabels::channels()); },
        recorderHours,
        float(RecordInfo::kRoomToBegin),
        recorderName,
        RecordInfo::readSelectedParam,
        &RecordInfo::m_recordItems,
        RecordInfo::writeSelectedParam,
    };
    return kind;
}

const RecordingKind &RecordingKind::logger()
{
    static const RecordingKind kind {
        &LoggerInfo::m_in_logging,
        LoggerInfo::m_logger_file,
        &LoggerInfo::m_begain_time,
        &LoggerInfo::m_duration,
        &LoggerInfo::m_max_duration,
        &LoggerInfo::m_interval_index,
        LoggerInfo::m_logger_interval,
        int(std::size(LoggerInfo::m_logger_interval)),
        [] {
            LoggerInfo::countParamNumb(m_settingConfig_g.getNomFreq());
            LoggerInfo::checkMaxDuration();
        },
        loggerHours,
        0,
        loggerName,
        LoggerInfo::readSelectedParam,
        &LoggerInfo::m_paramselected,
        LoggerInfo::writeSelectedParam,
    };
    return kind;
}

int RecordingKind::interval() const
{
    return intervals[std::clamp(*intervalIndex, 0, intervalCount - 1)];
}

QString RecordingText::hours(int hours)
{
    return translated(QT_TRANSLATE_NOOP("RecordingText", " %1 d, %2 hr")).arg(hours / 24).arg(hours % 24);
}

QString RecordingText::interval(int seconds)
{
    if (seconds % 3600 == 0)
        return translated(QT_TRANSLATE_NOOP("RecordingText", "%1 hr")).arg(seconds / 3600);
    if (seconds % 60 == 0)
        return translated(QT_TRANSLATE_NOOP("RecordingText", "%1 min")).arg(seconds / 60);
    return translated(QT_TRANSLATE_NOOP("RecordingText", "%1 s")).arg(seconds);
}

QString RecordingText::room(float megabytes)
{
    constexpr float kGigabyte = 1024;
    return megabytes < kGigabyte ? QStringLiteral("%1 MB").arg(double(megabytes), 0, 'f', 0)
                                 : QStringLiteral("%1 GB").arg(double(megabytes / kGigabyte), 0, 'f', 1);
}

QString RecordingText::moment(qint64 msecs)
{
    return LocalTime::toLocalDateTime(QDateTime::fromMSecsSinceEpoch(msecs, Qt::UTC))
        .toString(QStringLiteral("yyyy-MM-dd  hh:mm:ss"));
}
