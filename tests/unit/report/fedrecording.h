#pragma once

#include "report/recordjudge.h"

#include <functional>
#include <vector>

/// An event that has ended.
inline RecordedEvent madeEvent(int number, qint32 type, int channel, qint64 start, qint64 end, float value)
{
    RecordedEvent event;
    event.number = number;
    event.item.type = type;
    event.item.channel = channel;
    event.item.finished = 1;
    event.item.startTime = start;
    event.item.endTime = end;
    event.item.value = value;
    return event;
}

/// A recording that a test makes up: its tables and rows are handed to a taker as a file's would be.
class FedRecording
{
public:
    static constexpr qint64 kStart = 1700000000000 / 600000 * 600000; // ms since 1970, a whole ten minutes
    static constexpr qint64 kSecond = 1000, kTenMinutes = 600000, kDay = 144 * kTenMinutes, kWeek = 7 * kDay;

    RecordFacts facts;
    QVector<RecordedEvent> events;

    FedRecording()
    {
        facts.kind = RecordKind::Monitor;
        facts.joinMode = 1;
        facts.nominalVolt = 230;
        facts.nominalFrequency = 50;
        facts.start = kStart;
        facts.end = kStart + kWeek;
    }

    /// Adds a table; answers its number.
    int table(const QByteArray &name, const QVector<RecordColumn> &columns)
    {
        m_tables.append({ name, columns });
        return m_tables.size() - 1;
    }
    void row(int table, qint64 time, const std::vector<double> &numbers) { m_rows.push_back({ table, time, numbers }); }

    /// Rows at the end of each \a step over the recording.
    void fill(int table, qint64 step, const std::function<std::vector<double>(int number)> &numbers)
    {
        int number = 0;
        for (qint64 time = facts.start + step; time <= facts.end; time += step)
            row(table, time, numbers(number++));
    }

    void event(qint32 type, qint64 start, qint64 end, float value, int channel = 0)
    {
        events.append(madeEvent(events.size() + 1, type, channel, start, end, value));
    }

    void wave(const RecordedWaveform &wave, const QVector<qint16> &samples) { m_waves.push_back({ wave, samples }); }

    bool feed(RecordSink &sink) const
    {
        bool good = sink.begin(facts);
        for (int i = 0; i < m_tables.size(); ++i)
            good = good && sink.table(i, m_tables.at(i));
        for (const Row &row : m_rows) {
            RecordRow handed;
            handed.table = row.table;
            handed.time = row.time;
            handed.numbers = row.numbers.data();
            good = good && sink.row(handed);
        }
        for (const RecordedEvent &event : events)
            good = good && sink.event(event);
        for (const auto &wave : m_waves)
            good = good && sink.waveformBegin(wave.first)
                && sink.waveformSamples(wave.second.constData(), wave.second.size() / wave.first.channels.size())
                && sink.waveformEnd();
        return good && sink.end(facts);
    }

    static QVector<RecordColumn> voltages(int phases = 3)
    {
        QVector<RecordColumn> columns;
        for (int phase = 0; phase < phases; ++phase)
            columns.append({ "U_rms", Statistic::Mean, "L" + QByteArray::number(phase + 1), "V" });
        return columns;
    }

private:
    struct Row
    {
        int table;
        qint64 time;
        std::vector<double> numbers;
    };
    QVector<RecordTable> m_tables;
    std::vector<Row> m_rows;
    std::vector<std::pair<RecordedWaveform, QVector<qint16>>> m_waves;
};

/// What two passes over a recording find, by the limits of EN 50160.
inline Judgement judged(const FedRecording &recording)
{
    MonitorLimits2 limits;
    limits.initEN50160();
    OverviewSink overview(double(limits.limit().interruptions.threshold));
    recording.feed(overview);
    RecordJudge judge(overview.overview(), limits);
    recording.feed(judge);
    return judge.judgement();
}
