#pragma once

#include "exportfeed.h"

#include <cmath>
#include <cstring>
#include <random>

struct WildRow
{
    qint64 time = 0;
    std::vector<double> numbers;
    std::vector<QByteArray> texts;
};

/// A recording of any content: names and texts of signs that mean something somewhere, numbers and times of any bits.
class WildRecording
{
public:
    explicit WildRecording(quint32 seed) : m_random(seed)
    {
        table.name = "log";
        const int columns = below(9);
        for (int i = 0; i < columns; ++i) {
            RecordColumn column { text(5), Statistic(below(4)), text(3), text(2), CellType(below(4)), -1 };
            if (i > 0 && below(3) == 0) { // a name that is there already, as far as the case of letters goes
                column = table.columns.constLast();
                column.quantity.replace('a', 'A');
            }
            table.columns.append(column);
        }
        if (below(2))
            table.columns.append(ExportFeed::column("channel", Statistic::None, "", "", CellType::Text));
        facts.serialNumber = QString::fromUtf8(text(8));
        facts.model = QString::fromUtf8(text(8));
        for (int i = below(12); i >= 0; --i)
            rows.push_back(row());
    }

    bool feed(RecordSink *sink) const
    {
        bool isGood = sink->begin(facts) && sink->table(0, table);
        for (const WildRow &row : rows)
            isGood = isGood && ExportFeed::row(sink, 0, row.time, row.numbers, row.texts);
        return isGood && sink->end(facts);
    }

    RecordTable table;
    RecordFacts facts;
    std::vector<WildRow> rows;

private:
    int below(int most) { return int(m_random() % quint32(most)); }
    QByteArray text(int most)
    {
        static const QByteArray kSigns[]
            = { "a", "B", "\"", ",",    "\n",       "\r",           "\\", "=", " ", "\t", QByteArray(1, '\0'),
                "#", "'", ";",  "\x7f", "\xC3\xA4", "\xE2\x82\xAC", "_",  "1" };
        QByteArray text;
        for (int i = below(most + 1); i > 0; --i)
            text += kSigns[below(int(std::size(kSigns)))];
        return text;
    }
    double number(CellType type)
    {
        const quint64 bits = quint64(m_random()) << 32 | m_random();
        double value;
        std::memcpy(&value, &bits, sizeof value);
        if (type == CellType::Integer)
            return below(4) ? double(int(m_random())) : std::trunc(value);
        float single;
        std::memcpy(&single, &bits, sizeof single);
        return type == CellType::Single ? double(single) : value;
    }
    WildRow row()
    {
        WildRow row;
        row.time = below(3) ? 1600000000000 + below(3) : qint64(quint64(m_random()) << 32 | m_random());
        for (const RecordColumn &column : table.columns) {
            if (column.type == CellType::Text)
                row.texts.push_back(text(12));
            else
                row.numbers.push_back(number(column.type));
        }
        return row;
    }

    std::mt19937 m_random;
};
