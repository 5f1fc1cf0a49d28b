#pragma once

#include "platform/target.h"
#include "record/pqa2ff.h"

#include <QByteArray>
#include <QFile>

#include <cmath>

/// A monitor's file as the instrument would have written it at a supply that follows closed formulas.
class WrittenWeek
{
public:
    enum Supply {
        Clean, // keeps to every limit
        Bad, // L2 is 29 V low for two hours of each day, order 5 is too high, with events
        Dead // without a voltage
    };
    static constexpr qint64 kStart = 1700000400; // s since 1970
    static constexpr int kWeek = 7 * 24 * 3600; // s

    /// Writes \a seconds of \a supply into \a path, a board's path.
    static bool write(const QString &path, Supply supply, int seconds)
    {
        Pqa2FF::setOpening([] {
            return Pqa2Opening { "MODEL: QUVERA\nSN: 1AA000000\nDT: 2023-11-14 22:20:00\nSV: 2.2.6\nFV: 1.4\n",
                                 "Fnom: 50Hz\nUnom: 230V\nJoin: 3P WYE_1\nClamp: TARN-41A;10mV/A 5A\nRatio: 1/1;1/1\n"
                                 "ClampN: TARN-41A;10mV/A 5A\nRatioN: 1/1;1/1\n",
                                 QByteArray(48, '\0') };
        });
        WrittenWeek week(supply);
        if (week.m_file.open(path) == 0)
            return false;
        week.block(0xA1000018, kStart, {});
        for (int second = 10; second <= seconds; second += 10)
            week.tenSeconds(second);
        week.events(seconds);
        week.block(0xA1000019, kStart + seconds, {});
        week.m_file.close();
        Pqa2FF::setOpening([] { return Pqa2Opening(); });
        return week.m_good;
    }
    /// The same, ended in the middle of a block.
    static bool writeCut(const QString &path, int seconds)
    {
        const QString real = Target::path(path);
        return write(path, Clean, seconds) && QFile::resize(real, QFile(real).size() * 2 / 3 + 5);
    }

    // The formulas.
    static double frequency(int second) { return 50 + 0.02 * std::sin(turn(second, 3600)); }
    static double voltage(Supply supply, int phase, int second)
    {
        if (supply == Dead)
            return 0.1 * phase;
        const bool evening = second % kDay > 18 * 3600 && second % kDay <= 20 * 3600;
        const double low = supply == Bad && phase == 1 && evening ? 29 : 0;
        return 230 + phase + 3 * std::sin(turn(second, kDay) + phase) - low;
    }
    static double harmonic(Supply supply, int order, int second)
    {
        const double fifth = supply == Bad ? 6.5 : 3;
        return order == 5 ? fifth + 0.5 * std::sin(turn(second, kDay)) : order % 2 ? 3.0 / order : 0.2;
    }

private:
    static constexpr int kDay = 24 * 3600; // s

    explicit WrittenWeek(Supply supply) : m_supply(supply) { }
    static double turn(int second, int period) { return 6.283185307179586 * second / period; }

    void block(quint32 type, qint64 time, const std::vector<float> &values)
    {
        const quint32 stored = quint32(time);
        QByteArray payload(reinterpret_cast<const char *>(&stored), 4);
        payload.append(reinterpret_cast<const char *>(values.data()), int(values.size() * 4));
        m_good = m_file.addDataBlock(Pqa2DBType(type), payload) == 0 && m_good;
    }

    void tenSeconds(int second)
    {
        const qint64 time = kStart + second;
        block(0xA1010000, time, { float(m_supply == Dead ? 0 : frequency(second)) });
        if (second % 600 != 0)
            return;
        std::vector<float> volts, lines, currents;
        for (int phase = 0; phase < 3; ++phase) {
            volts.push_back(float(voltage(m_supply, phase, second)));
            lines.push_back(m_supply == Dead ? 0 : m_supply == Bad ? 7.0f : 4.0f); // distortion
            currents.push_back(2);
            for (int order = 2; order <= 50; ++order) {
                lines.push_back(m_supply == Dead ? 0 : float(harmonic(m_supply, order, second)));
                currents.push_back(10.0f / float(order));
            }
        }
        block(0xA1010001, time, volts);
        block(0xA1010004, time, { 0.5f, 0.2f });
        block(0xA1010005, time, lines);
        block(0xA1010006, time, currents);
        block(0xA1010002, time, { 0.3f, 0.3f, 0.3f });
        if (second % 7200 == 0)
            block(0xA1010003, time, { 0.4f, 0.5f, 0.6f });
    }

    void events(int seconds)
    {
        if (m_supply != Bad)
            return;
        const auto event = [this, seconds](int type, int phase, qint64 start, qint64 end, float value) {
            if (end > qint64(seconds) * 1000)
                return;
            QByteArray head(32, '\0');
            const qint32 words[] = { phase, type, 1 };
            const qint64 times[] = { kStart * 1000 + start, kStart * 1000 + end };
            std::memcpy(head.data(), words, 12);
            std::memcpy(head.data() + 12, &value, 4);
            std::memcpy(head.data() + 16, times, 16);
            m_good = m_file.addDataBlock(Pqa2DBType(0xA1010080), head) == 0 && m_good;
        };
        for (int i = 0; i < 24; ++i) {
            const qint64 start = qint64(i) * seconds * 1000 / 25 + 123456;
            event(27, i % 3, start, start + 80 * (i + 1), float(60 + 5 * i));
        }
        event(28, 1, 200000000, 200000350, 262);
        event(29, 0, 300000000, 300900000, 0.4f); // a quarter of an hour
    }

    const Supply m_supply;
    Pqa2FF m_file;
    bool m_good = true;
};
