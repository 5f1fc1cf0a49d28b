#pragma once

#include "model/datagramrecords.h"
#include "model/displayunits.h"

#include <QByteArray>
#include <QString>

#include <vector>

struct ChannelSet;

/// What one line of the logger is made of, at one moment.
struct loggerdata_origin
{
    __datagram_aggregation aggregation;
    float pst[3]; // short-term flicker severity of L1 to L3
};

/// Values of one column over an interval.
struct logger_value
{
    double sum = 0;
    double maximum = 0;
    double minimum = 0;
    double last = 0;
};

/// The columns of a logger file: what its header says and what its lines hold comes from one table, group by group in
/// the order of the bits. Format: docs/formats/csv-logger.md.
class LoggerColumns
{
public:
    /// How the columns of a group follow each other.
    enum Layout {
        Channels, // one quantity of each channel of the wiring
        Rows, // of each phase of the wiring, and of all together
        Phases, // of each phase of the wiring
        Single, // one quantity of the whole supply
        Counters, // as Rows, by their last value only
        Orders, // of each channel, order by order
        Severities // of three phases, by their last value only
    };

    /// Group of one bit of the choice.
    struct Group
    {
        quint32 bit;
        const char *name;
        Layout layout;
        int decimals;
        QString DisplayUnits::*unit; // null: none
        double DisplayUnits::*factor; // with which a value is written; null: 1
        double (*value)(const loggerdata_origin &origin, int channel, int order);
        int firstOrder = 0;
    };
    static const std::vector<Group> &groups();

    LoggerColumns() = default;
    /// The groups of \a selected for a wiring, whose spectra have the orders up to \a highestOrder.
    LoggerColumns(quint32 selected, const ChannelSet &wiring, int highestOrder, const DisplayUnits &units);

    /// Quantities; most have three columns.
    int count() const { return int(m_columns.size()); }
    /// "TIME," and the names of all columns, without the line feed.
    QString header() const;
    /// Adds a moment to \a values, which are count() and hold \a samples moments so far.
    void calculateLoggerData(const loggerdata_origin &origin, int samples, std::vector<logger_value> *values) const;
    /// Columns of a line behind its time, without the line feed: means over \a samples moments, extremes, last values.
    QByteArray line(const std::vector<logger_value> &values, int samples) const;
    /// What is written of a number: 0 for what is none or below 0.0001 in magnitude.
    static double cleaned(double value);

private:
    struct Column
    {
        const Group *group;
        int channel;
        int order;
        double factor;
    };

    QString caption(const Column &column) const;

    std::vector<Column> m_columns;
    DisplayUnits m_units;
};
