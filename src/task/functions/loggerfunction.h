#pragma once

#include "record/loggercolumns.h"
#include "record/loggerfile.h"
#include "task/functions/taskfunction.h"

#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

struct Derived;
struct DisplayRecords;

/// The logger of text files: means and extremes of the chosen quantities, a line for each interval
/// (docs/formats/csv-logger.md).
class LoggerFunction : public TaskFunction
{
public:
    /// \a live outlives it. \a setUp is asked at the start of each run.
    LoggerFunction(const DisplayRecords &live, std::function<const Derived &()> setUp);

    /// Lines of a file whose chosen columns weigh \a paramNumb.
    static int maxLines(int paramNumb);
    /// Another number of lines, from the next start on; 0: maxLines().
    void setMaxLines(int lines) { m_fixedLines = lines; }

    /// Takes the user's choices (LoggerInfo) and begins the file with its header.
    void start() override { initLoggerFile(); }
    void measure() override;
    void aggregation(const __datagram_aggregation &record) override;
    bool refused() const override { return m_file && m_refused; }
    /// What was measured is kept; the file of a run that never measured is not.
    void stop(Keep keep) override { saveLoggerData(keep == Keep::Data && m_measures); }

    /// The interval is over: its timer calls it.
    void writeLoggerData();

private:
    void initLoggerFile();
    bool writeLoggerHeader();
    void handleLoggerOriginData(const __datagram_aggregation &record);
    void saveLoggerData(bool keep);

    const DisplayRecords &m_live;
    const std::function<const Derived &()> m_setUp;
    LoggerColumns m_columns;
    std::unique_ptr<loggerdata_origin> m_origin; // made for the first run
    std::vector<logger_value> m_values; // of the interval, one for each quantity
    int m_samples = 0; // aggregations in it
    std::unique_ptr<LoggerFile> m_file;
    QTimer m_timer;
    int m_fixedLines = 0;
    int m_maxLines = 0; // of a file, without its header
    int m_lines = 0; // in the file
    bool m_measures = false;
    bool m_refused = false; // the last line, or the file
};
