#pragma once

#include <QByteArray>
#include <QVector>

// The tables that a recording is read as, whoever asks for them.

/// What a column's values are of their interval.
enum class Statistic : quint8 { None, Mean, Maximum, Minimum };

/// What a cell of a column holds.
enum class CellType : quint8 {
    Single, // a stored float, handed on as a double that gives the same float back
    Double,
    Integer,
    Text
};

/// A column behind the time.
struct RecordColumn
{
    QByteArray quantity; // "U_rms", "P", "Uh05"; never with the statistic
    Statistic statistic = Statistic::None;
    QByteArray channel; // "L1", "L12", "N", "total"; empty where there is only one
    QByteArray unit; // ASCII and without prefix: "V", "Wh", "deg", "percent"; empty for a plain number
    CellType type = CellType::Single;
    qint16 order = -1; // of a harmonic or interharmonic, -1 for all others

    /// QUANTITY[_STATISTIC][_CHANNEL][_UNIT], as in "U_rms_mean_L1_V".
    QByteArray name() const;
};

/// A table; its rows come in the order of their times, as far as the files give them.
struct RecordTable
{
    QByteArray name; // "rms", "monitor_voltage"
    QVector<RecordColumn> columns;
};

/// A row: the cells of its table's columns, numbers and texts apart, each in the order of the columns of their kind.
struct RecordRow
{
    int table = 0; // as RecordSink::table() was told
    qint64 time = 0; // ms since 1970, end of the interval
    const double *numbers = nullptr; // not-a-number: no value; Integer cells are whole
    const QByteArray *texts = nullptr; // UTF-8
};
