#pragma once

#include "record/tables/recordsink.h"

#include <QHash>
#include <QStringList>

#include <cmath>

/// Keeps all that a recording tells, and checks that it is told in the promised order.
class KeptRecord : public RecordSink
{
public:
    struct Row
    {
        qint64 time;
        QVector<double> numbers;
        QVector<QByteArray> texts;
    };
    struct Waveform
    {
        RecordedWaveform facts;
        QVector<qint16> samples;
    };

    bool begin(const RecordFacts &facts) override
    {
        note(m_begins == 0, "begins once");
        ++m_begins;
        this->facts = facts;
        return true;
    }
    bool table(int number, const RecordTable &table) override
    {
        note(m_begins == 1 && number == m_tables.size(), "tables count from 0");
        note(!rows.contains(table.name), "a table is told once");
        m_tables.append(table);
        rows[table.name];
        return true;
    }
    bool row(const RecordRow &row) override
    {
        note(row.table >= 0 && row.table < m_tables.size(), "a table is told before its rows");
        const RecordTable &table = m_tables.at(row.table);
        Row kept { row.time, {}, {} };
        for (const RecordColumn &column : table.columns) {
            if (column.type == CellType::Text)
                kept.texts.append(row.texts[kept.texts.size()]);
            else
                kept.numbers.append(row.numbers[kept.numbers.size()]);
        }
        rows[table.name].append(kept);
        return rowsLeft-- > 0;
    }
    bool event(const RecordedEvent &event) override
    {
        note(event.number == events.size() + 1, "events count from 1");
        events.append(event);
        return true;
    }
    bool waveformBegin(const RecordedWaveform &waveform) override
    {
        note(waveform.number == waveforms.size() + 1 && !m_inWaveform, "waveforms count from 1");
        m_inWaveform = true;
        waveforms.append({ waveform, {} });
        return true;
    }
    bool waveformSamples(const qint16 *samples, int count) override
    {
        note(m_inWaveform, "samples belong to a waveform");
        for (int i = 0; i < count * waveforms.last().facts.channels.size(); ++i)
            waveforms.last().samples.append(samples[i]);
        return true;
    }
    bool waveformEnd() override
    {
        note(m_inWaveform, "a waveform ends once");
        m_inWaveform = false;
        return true;
    }
    bool end(const RecordFacts &facts) override
    {
        note(m_begins == 1 && !hasEnded, "ends once");
        hasEnded = true;
        this->facts = facts;
        return true;
    }
    QString error() const override { return QStringLiteral("no more rows are wanted"); }

    const QVector<RecordTable> &tables() const { return m_tables; }
    QStringList columns(const QByteArray &table) const
    {
        QStringList names;
        for (const RecordTable &row : m_tables) {
            for (const RecordColumn &column : row.columns) {
                if (row.name == table)
                    names << QString::fromLatin1(column.name());
            }
        }
        return names;
    }
    /// A number of a row; not-a-number where there is no such column or row.
    double number(const QByteArray &table, int row, const QString &column) const
    {
        int at = 0;
        for (const RecordTable &told : m_tables) {
            for (const RecordColumn &each : told.columns) {
                if (told.name != table || each.type == CellType::Text)
                    continue;
                if (QString::fromLatin1(each.name()) == column)
                    return rows.value(table).value(row).numbers.value(at, std::nan(""));
                ++at;
            }
        }
        return std::nan("");
    }
    QVector<qint64> times(const QByteArray &table) const
    {
        QVector<qint64> times;
        for (const Row &row : rows.value(table))
            times << row.time;
        return times;
    }

    RecordFacts facts;
    QHash<QByteArray, QVector<Row>> rows;
    QVector<RecordedEvent> events;
    QVector<Waveform> waveforms;
    QStringList complaints; // what came out of order
    bool hasEnded = false;
    qint64 rowsLeft = 1LL << 40; // false is answered to what comes behind

private:
    void note(bool holds, const char *what)
    {
        if (!holds)
            complaints << QString::fromLatin1(what);
    }

    QVector<RecordTable> m_tables;
    int m_begins = 0;
    bool m_inWaveform = false;
};
