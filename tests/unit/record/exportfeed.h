#pragma once

#include "record/tables/recordsink.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <limits>
#include <memory>

/// What the tests of the exports hand to them: what they say of it, they must find again.
namespace ExportFeed {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

inline RecordColumn column(const char *quantity, Statistic statistic, const char *channel, const char *unit,
                           CellType type = CellType::Single)
{
    return { quantity, statistic, channel, unit, type, -1 };
}

/// Facts of an instrument whose owner is fond of signs.
inline RecordFacts facts()
{
    RecordFacts facts;
    facts.model = QStringLiteral("PQ \"9\", mark=2");
    facts.serialNumber = QStringLiteral("1AA 0,0=7");
    facts.softwareVersion = QStringLiteral("2.2.6");
    facts.firmware = QStringLiteral("line\nfeed");
    facts.joinMode = 1;
    facts.nominalVolt = 230;
    facts.nominalFrequency = 50;
    facts.clamp = QString::fromUtf8("Zange \xC3\x84;10mV/A 5A");
    facts.start = 1600000000000; // 2020-09-13T12:26:40Z
    facts.end = 1600000600000;
    return facts;
}

/// A text with everything that means something in some file.
inline QByteArray wildText()
{
    return "a,b\"c\"\nd\\e'f\r\n;=\t\xC3\xA4\\";
}

inline bool row(RecordSink *sink, int table, qint64 time, const std::vector<double> &numbers,
                const std::vector<QByteArray> &texts = {})
{
    RecordRow row;
    row.table = table;
    row.time = time;
    row.numbers = numbers.data();
    row.texts = texts.data();
    return sink->row(row);
}

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

inline QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

/// One second of r.m.s. values: two whole rows, one with a value missing, none.
inline RecordTable rms()
{
    return { "rms",
             { column("U_rms", Statistic::Mean, "L1", "V"), column("U_rms", Statistic::Maximum, "L1", "V"),
               column("U_rms", Statistic::Mean, "L2", "V"), column("I_crest", Statistic::Minimum, "L2", "") } };
}

inline bool feedRms(RecordSink *sink, int number)
{
    return sink->table(number, rms()) && row(sink, number, 1600000000200, { double(230.1f), 231, double(0.1f), -0.0 })
        && row(sink, number, 1600000000400, { kNone, double(1e-7f), 12345678, kNone })
        && row(sink, number, 1600000000600,
               { kNone, kNone, std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity() });
}

/// Happenings, with texts.
inline RecordTable happenings()
{
    return { "events",
             { column("number", Statistic::None, "", "", CellType::Integer),
               column("name", Statistic::None, "", "", CellType::Text),
               column("channel", Statistic::None, "", "", CellType::Text),
               column("value", Statistic::None, "", "", CellType::Single),
               column("duration", Statistic::None, "", "ms", CellType::Integer) } };
}

inline bool feedHappenings(RecordSink *sink, int number)
{
    return sink->table(number, happenings()) && row(sink, number, 1600000000123, { 1, 115.25, 250 }, { "dip", "L1" })
        && row(sink, number, 1600000000123, { 2, 99.5, 1e300 }, { "dip", "L2" })
        && row(sink, number, 1600000000124, { 3, kNone, 40 }, { wildText(), "" });
}

/// Three samples of two inputs, 2000 a second, from half a ms on.
inline RecordedWaveform waveform(int number)
{
    RecordedWaveform wave;
    wave.origin = RecordedWaveform::Transient;
    wave.number = number;
    wave.event = 2;
    wave.start = 1600000000000.5;
    wave.sampleRate = 2000;
    wave.samples = 3;
    wave.trigger = 1;
    wave.channels = { { "U_L1", "L1", "V", 0.5f }, { "I_N", "N", "A", 0.25f } };
    return wave;
}

inline bool feedWaveform(RecordSink *sink, int number)
{
    const qint16 samples[] = { 10, 1000, -32768, 32767, 3, -7 };
    return sink->waveformBegin(waveform(number)) && sink->waveformSamples(samples, 2)
        && sink->waveformSamples(samples + 4, 1) && sink->waveformEnd();
}

} // namespace ExportFeed
