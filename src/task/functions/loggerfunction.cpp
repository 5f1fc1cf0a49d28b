#include "task/functions/loggerfunction.h"

#include "model/channelset.h"
#include "model/displayrecords.h"
#include "model/livedata.h"
#include "settings/derived.h"
#include "settings/localtime.h"
#include "settings/loggerinfo.h"

#include <algorithm>
#include <cstring>

LoggerFunction::LoggerFunction(const DisplayRecords &live, std::function<const Derived &()> setUp)
    : m_live(live), m_setUp(std::move(setUp))
{
    // Each interval as long as the others: the usual timer may be late by a twentieth.
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { writeLoggerData(); });
}

int LoggerFunction::maxLines(int paramNumb)
{
    static constexpr struct
    {
        int most, lines;
    } kRows[] = { { 2, 0xFD200 }, { 4, 835200 }, { 8, 417600 }, { 16, 208800 } };
    for (const auto &row : kRows) {
        if (paramNumb <= row.most)
            return row.lines;
    }
    return (135000 / ((paramNumb + 13) / 25) + 40) / 100 * 100;
}

void LoggerFunction::initLoggerFile()
{
    const Derived &setUp = m_setUp();
    LoggerInfo::m_in_logging = 1;
    LoggerInfo::initHarmMaxNumb(setUp.nominalFrequency);
    LoggerInfo::countParamNumb(setUp.nominalFrequency);
    const ChannelSet *wiring = setUp.channels ? setUp.channels : channelSet(1);
    m_columns = LoggerColumns(LoggerInfo::m_paramselected, *wiring, LoggerInfo::m_harm_max_numb, setUp.units);
    m_values.assign(std::size_t(m_columns.count()), {});
    if (!m_origin)
        m_origin = std::make_unique<loggerdata_origin>();
    m_samples = m_lines = 0;
    m_measures = false;
    m_maxLines = m_fixedLines > 0 ? m_fixedLines : maxLines(LoggerInfo::m_param_numb);
    m_file = std::make_unique<LoggerFile>(LoggerInfo::m_logger_file);
    m_refused = !writeLoggerHeader();
}

/// Begins a file.
bool LoggerFunction::writeLoggerHeader()
{
    return m_file->open(LocalTime::currentDateTime())
        && m_file->write((m_columns.header() + QLatin1Char('\n')).toLocal8Bit());
}

void LoggerFunction::measure()
{
    m_measures = true;
    const int index = std::clamp(LoggerInfo::m_interval_index, 0, int(std::size(LoggerInfo::m_logger_interval)) - 1);
    m_timer.start(1000 * LoggerInfo::m_logger_interval[index]);
}

void LoggerFunction::handleLoggerOriginData(const __datagram_aggregation &record)
{
    m_origin->aggregation = record;
    std::copy_n(m_live.flicker.pst, std::size(m_origin->pst), m_origin->pst);
}

void LoggerFunction::aggregation(const __datagram_aggregation &record)
{
    handleLoggerOriginData(record);
    m_columns.calculateLoggerData(*m_origin, m_samples++, &m_values);
}

void LoggerFunction::writeLoggerData()
{
    if (!m_file)
        return;
    const QByteArray values = m_columns.line(m_values, m_samples);
    m_values.assign(m_values.size(), {});
    m_samples = 0;
    if (m_lines >= m_maxLines) {
        m_lines = 0;
        m_file->incFileIndex();
        writeLoggerHeader();
    }
    const QString time = LocalTime::currentDateTime().toString(QStringLiteral("yyyy/MM/dd  hh:mm:ss,"));
    m_refused = !m_file->write(time.toLatin1() + values + '\n');
    if (!m_refused)
        ++m_lines;
    m_file->flush();
}

void LoggerFunction::saveLoggerData(bool keep)
{
    m_timer.stop();
    LoggerInfo::m_in_logging = 0;
    if (m_file)
        m_file->save(keep);
    m_file.reset();
}
