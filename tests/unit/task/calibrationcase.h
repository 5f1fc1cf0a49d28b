#pragma once

#include "device/idevice.h"
#include "settings/config_data.h"
#include "task/calibration.h"
#include "unit/storage/rootfiles.h"
#include "unit/views/framespy.h"

#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>

// What the tests of a calibration share: a facade without a node, whose frames and switches are watched, and datagrams
// as they leave it.

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
const QString kCalibrationFile = QStringLiteral("/mnt/calibration/calibration.dat");

using Row = QVector<float>;

/// What one aggregation datagram measures on the four channels, converter units.
struct Measured
{
    Row volts { 1, 1, 1, 1 };
    Row amps { 1, 1, 1, 1 };
    Row voltOffsets { 0, 0, 0, 0 };
    Row ampOffsets { 0, 0, 0, 0 };

    /// The payload of 3250 words; nine of them a channel, from word 5.
    QByteArray bytes() const
    {
        QByteArray payload(4 * 3250, '\0');
        const auto put = [&payload](int word, float value) { memcpy(payload.data() + 4 * word, &value, 4); };
        for (int k = 0; k < 4; ++k) {
            put(8 + 9 * k, volts.at(k));
            put(9 + 9 * k, amps.at(k));
            put(11 + 9 * k, voltOffsets.at(k));
            put(13 + 9 * k, ampOffsets.at(k));
        }
        return payload;
    }
    void send(int times = 1) const
    {
        const QByteArray payload = bytes();
        for (int i = 0; i < times; ++i)
            emit m_idevice->datagramAggregation(payload);
    }
};

inline Row rowOf(const float (&values)[4])
{
    return { values[0], values[1], values[2], values[3] };
}

/// A set-up frame of the calibration, word by word: 50 Hz, code 2, offsets, gains and threshold 1, lamp 230.
inline QVector<quint32> calibrationFrame(const Row &voltOffsets = { 0, 0, 0, 0 },
                                         const Row &ampOffsets = { 0, 0, 0, 0 })
{
    QVector<quint32> words { 122, 198, 0x00320002 };
    for (const float value : voltOffsets + ampOffsets + Row(9, 1.0f)) {
        quint32 word;
        memcpy(&word, &value, 4);
        words << word;
    }
    return words << 230 << 0 << 0 << 123;
}

inline const QVector<quint32> kStreamOn { 122, 193, 1, 123 };
inline const QVector<quint32> kStreamOff { 122, 193, 0, 123 };

/// The frames that a spy saw since the last call.
inline QVector<QVector<quint32>> takeFrames(FrameSpy &spy)
{
    QVector<QVector<quint32>> frames;
    for (int i = 0; i < spy.count(); ++i) {
        QVector<quint32> words;
        for (int at = 0; at < spy.frames.at(i).bytes.size() / 4; ++at)
            words << spy.word(i, at);
        frames << words;
    }
    spy.frames.clear();
    return frames;
}

/// Values of the four range switches, as the board's lines stand.
struct Switches
{
    int phaseVolt, neutralVolt, phaseCurrent, neutralCurrent;

    bool operator==(const Switches &other) const
    {
        return phaseVolt == other.phaseVolt && neutralVolt == other.neutralVolt && phaseCurrent == other.phaseCurrent
            && neutralCurrent == other.neutralCurrent;
    }
};

inline Switches switches()
{
    const auto line = [](int number) {
        return RootFiles::read(QStringLiteral("/sys/class/gpio/gpio%1/value").arg(number)).trimmed().toInt();
    };
    const auto selector = [line](int bit1, int bit0) { return 2 * line(bit1) + line(bit0); };
    return { selector(52, 48), selector(53, 51), selector(54, 58), selector(55, 59) };
}

/// A facade, switches and a factory calibration for each case.
class CalibrationCase : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        RootFiles::clean();
        for (const int number : { 56, 54, 58, 50, 52, 48, 57, 55, 59, 49, 53, 51 })
            QDir().mkpath(Target::path(QStringLiteral("/sys/class/gpio/gpio%1").arg(number)));
        m_settingConfig_g.setJoinMode(1);
        m_calib_data_g.initCalibData();
        m_calib_data_g.load(); // a missing file is written
        m_settingConfig_g.followSettings();
        m_idevice = new IDevice;
    }
    void cleanup()
    {
        delete m_idevice;
        QVERIFY(!m_idevice);
    }
};
