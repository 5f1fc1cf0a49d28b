#pragma once

#include "record/exports/pqdifbody.h"
#include "record/exports/pqdiftags.h"

#include <QHash>
#include <QVector>

/// How the values of a series are stored.
enum class PqdifStorage : quint8 {
    Values = 1,
    Scaled = 3, // integers, times a scale
    Increment = 4 // a count and a distance
};

/// A quantity's numbers in the files.
enum class PqdifMeasured : quint8 { None = 0, Voltage = 1, Current = 2, Power = 3, Energy = 4 };

constexpr quint32 kPqdifSeconds = 2; // unit of time series

struct PqdifSeries
{
    PqdifId value; // what it is of the quantity: time, mean, ...
    quint32 unit = 0;
    PqdifId characteristic = PqdifValue::kQcNone;
    PqdifStorage storage = PqdifStorage::Values;
    double nominal = 0; // 0: none

    bool operator==(const PqdifSeries &other) const;
};

/// What a channel of the files is, without its values.
struct PqdifChannel
{
    QByteArray name;
    quint32 phase = 0;
    PqdifId type = PqdifValue::kValueLog;
    PqdifMeasured measured = PqdifMeasured::None;
    QVector<PqdifSeries> series;

    bool operator==(const PqdifChannel &other) const;
};

/// Number of a channel's phase in the files: "L1", "L12", "N", "total"; 0 for none.
quint32 pqdifPhase(const QByteArray &channel);
/// Number of a unit, 0 for a plain number or an unknown one.
quint32 pqdifUnit(const QByteArray &unit);
/// The time series that every channel begins with.
PqdifSeries pqdifTimeSeries(PqdifStorage storage = PqdifStorage::Values);

/// The channels that the observations of a file refer to by number. There are more with time, none goes.
class PqdifChannels
{
public:
    /// The number of this channel. Another one that had its name before gets a name of its own.
    int numberOf(const PqdifChannel &channel);
    int count() const { return m_channels.size(); }
    void writeTo(PqdifCollection *dataSource) const;

private:
    QVector<PqdifChannel> m_channels;
    QHash<QByteArray, int> m_numbers; // by the names that stand in the file
};
