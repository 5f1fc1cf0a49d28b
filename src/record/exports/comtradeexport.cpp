#include "record/exports/comtradeexport.h"

#include "record/exports/asciitext.h"
#include "record/exports/waveformcheck.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QSet>
#include <QtEndian>

#include <cmath>

namespace {

constexpr int kMostText = 64; // characters of a name
constexpr qint16 kLeast = -32767, kMost = 32767; // -32768 stands for a missing sample
constexpr double kMicroseconds = 1e6; // of a second
// Readers that take the stamps with a sign come to their end at 2^31 us.
constexpr double kMostStamp = 2147483647.0;
constexpr int kMostChannels = (OutputFile::kMostRoom - 8) / 2;

constexpr const char *kOrigins[] = { "event", "transient", "capture" };

/// A name without what separates fields.
QByteArray field(const QString &text)
{
    return AsciiText::of(text, kMostText).replace(',', ' ');
}

/// `time` in us since 1970.
QByteArray timeLine(qint64 time)
{
    const qint64 perSecond = qint64(kMicroseconds);
    const QDateTime second = QDateTime::fromSecsSinceEpoch(time / perSecond, Qt::UTC);
    return QLocale::c().toString(second, QStringLiteral("dd/MM/yyyy,HH:mm:ss")).toLatin1() + '.'
        + QByteArray::number(time % perSecond).rightJustified(6, '0');
}

/// Digits that give the same number back; a whole one as old readers want it: "10240".
QByteArray number(double value)
{
    if (value == std::floor(value))
        return QByteArray::number(qint64(value));
    return QByteArray::number(value, 'g', QLocale::FloatingPointShortest).toUpper();
}

/// A float with nine digits at least, as the standard wants factors.
QByteArray factor(float value)
{
    return QByteArray::number(double(value), 'g', 9).toUpper();
}

QByteArray phaseOf(const QByteArray &channel)
{
    static constexpr const char *kPhases[][2] = { { "L1", "A" },   { "L2", "B" },   { "L3", "C" },  { "N", "N" },
                                                  { "L12", "AB" }, { "L23", "BC" }, { "L31", "CA" } };
    for (const auto &phase : kPhases) {
        if (channel == phase[0])
            return phase[1];
    }
    return {};
}

QByteArray unitOf(const QByteArray &unit)
{
    QByteArray letters;
    for (const char letter : unit.left(kMostText)) {
        if ((letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z'))
            letters += letter;
    }
    return letters.isEmpty() ? QByteArray("NONE") : letters;
}

/// "primary,secondary" of a channel out of the stored ratio: voltage, ';', current, both as numerator '/' denominator.
QByteArray ratioOf(const QString &stored, bool isVoltage)
{
    static const QRegularExpression form(QStringLiteral("^ *(\\d{1,7})/(\\d{1,7});(\\d{1,7})/(\\d{1,7}) *$"));
    const QRegularExpressionMatch match = form.match(stored.left(kMostText));
    const int primary = match.captured(isVoltage ? 1 : 3).toInt(),
              secondary = match.captured(isVoltage ? 2 : 4).toInt();
    if (primary == 0 || secondary == 0)
        return "1,1";
    return QByteArray::number(primary) + ',' + QByteArray::number(secondary);
}

} // namespace

ComtradeExport::ComtradeExport(const OutputPlace &place)
    : m_output(Output::Folder, place, writes), m_input(place.inputName())
{ }

bool ComtradeExport::writes(const QString &name)
{
    static const QRegularExpression form(
        QStringLiteral("^\\d{4,}_(event|transient|capture)(_\\d+)?(_part\\d+)?\\.(cfg|dat)$"));
    return form.match(name).hasMatch();
}

bool ComtradeExport::begin(const RecordFacts &facts)
{
    m_facts = facts;
    return m_output.begin();
}

bool ComtradeExport::waveformBegin(const RecordedWaveform &waveform)
{
    m_waveform = waveform;
    m_part = 0;
    m_taken = 0;
    m_now = {};
    const double rate = waveform.sampleRate;
    const int channels = waveform.channels.size();
    m_isUsable = channels > 0 && channels <= kMostChannels && hasUsableRate(waveform);
    if (m_isUsable)
        m_mostSamples = qint64(kMostStamp / kMicroseconds * rate) + 1;
    for (RecordedWaveform::Channel &channel : m_waveform.channels) {
        if (!hasFactor(channel)) {
            channel.factor = 1;
            channel.unit.clear();
        }
    }
    return true;
}

bool ComtradeExport::waveformSamples(const qint16 *samples, int count)
{
    for (int i = 0; i < count && m_isUsable; ++i) {
        if ((m_part == 0 || m_now.samples == m_mostSamples) && !(endPart() && beginPart()))
            return false;
        writeSample(samples + qint64(i) * m_waveform.channels.size());
    }
    return true;
}

/// The number of the sample, its time in us, the values.
void ComtradeExport::writeSample(const qint16 *sample)
{
    const int channels = m_waveform.channels.size();
    char *at = m_data.room();
    qToLittleEndian(quint32(m_now.samples + 1), at);
    const double stamp = double(m_now.samples) * kMicroseconds / m_waveform.sampleRate;
    qToLittleEndian(quint32(std::llround(stamp)), at + 4);
    at += 8;
    for (int i = 0; i < channels; ++i, at += 2)
        qToLittleEndian(qMax(sample[i], kLeast), at);
    m_data.wrote(at);
    ++m_now.samples;
    ++m_taken;
}

bool ComtradeExport::waveformEnd()
{
    return endPart();
}

bool ComtradeExport::end(const RecordFacts &)
{
    return m_output.finish();
}

/// "0012_event_3", further parts "0012_event_3_part2".
QString ComtradeExport::partName() const
{
    QString name = QString::number(m_waveform.number).rightJustified(4, QLatin1Char('0')) + QLatin1Char('_')
        + QLatin1String(kOrigins[qBound(0, int(m_waveform.origin), 2)]);
    if (m_waveform.event > 0)
        name += QLatin1Char('_') + QString::number(m_waveform.event);
    if (m_part > 1)
        name += QStringLiteral("_part") + QString::number(m_part);
    return name;
}

bool ComtradeExport::beginPart()
{
    ++m_part;
    m_now = { m_taken, 0 };
    const QString name = partName() + QStringLiteral(".dat");
    return m_data.open(m_output.path() + QLatin1Char('/') + name) || m_output.fail(name, m_data.reason());
}

/// The samples are counted now, so the configuration can be written.
bool ComtradeExport::endPart()
{
    if (m_part == 0 || !m_data.isOpen())
        return true;
    if (!m_data.close())
        return m_output.fail(partName() + QStringLiteral(".dat"), m_data.reason());
    const QString name = partName() + QStringLiteral(".cfg");
    OutputFile file;
    const bool isOpen = file.open(m_output.path() + QLatin1Char('/') + name);
    if (isOpen)
        file.write(configuration());
    return (isOpen && file.close()) || m_output.fail(name, file.reason());
}

QList<QByteArray> ComtradeExport::channelNames() const
{
    // Every name has to be there, and once.
    const int channels = m_waveform.channels.size();
    QSet<QByteArray> taken;
    QList<QByteArray> names;
    for (int i = 0; i < channels; ++i) {
        const QByteArray given = field(QString::fromUtf8(m_waveform.channels[i].name)).replace('_', ' ');
        QByteArray name = given;
        for (int number = i + 1; name.isEmpty() || taken.contains(name); number += channels)
            name = given.left(kMostText - 12) + '#' + QByteArray::number(number);
        taken << name;
        names << name;
    }
    return names;
}

QByteArray ComtradeExport::channelLine(int number, const QByteArray &name) const
{
    const RecordedWaveform::Channel &channel = m_waveform.channels[number - 1];
    const bool isVoltage = channel.name.startsWith('U');
    const QString &ratio = isVoltage && channel.channel == "N" ? m_facts.ratioN : m_facts.ratio;
    const QByteArray line = QByteArray::number(number) + ',' + name + ',' + phaseOf(channel.channel) + ",,"
        + unitOf(channel.unit) + ',' + factor(channel.factor) + ",0,0," + QByteArray::number(kLeast) + ','
        + QByteArray::number(kMost) + ',' + ratioOf(ratio, isVoltage) + ",P";
    return line;
}

QByteArray ComtradeExport::configuration() const
{
    const int channels = m_waveform.channels.size();
    const double period = kMicroseconds / m_waveform.sampleRate; // us
    const double begin = m_waveform.start + double(m_now.first) * period / 1e3; // ms
    const bool hasTime = isCalendarTime(begin) && isCalendarTime(begin + kMostStamp / 1e3);
    const qint64 start = hasTime ? std::llround(begin * 1e3) : 0;
    const qint64 trigger = qBound(qint64(0), m_waveform.trigger - m_now.first, m_now.samples - 1);
    // A capture does not say what took it.
    const QString station = m_facts.model.isEmpty() ? m_input : m_facts.model;
    QList<QByteArray> lines { field(station) + ',' + field(m_facts.serialNumber) + ",2013",
                              QByteArray::number(channels) + ',' + QByteArray::number(channels) + "A,0D" };
    const QList<QByteArray> names = channelNames();
    for (int i = 0; i < channels; ++i)
        lines << channelLine(i + 1, names[i]);
    const double frequency = m_facts.nominalFrequency;
    lines << number(frequency > 0 && frequency < 1e6 ? frequency : 50) << "1"
          << number(m_waveform.sampleRate) + ',' + QByteArray::number(m_now.samples)
          << timeLine(start)
          // In whole microseconds: far from 1970 a sum in milliseconds would have lost some.
          << timeLine(start + std::llround(double(trigger) * period)) << "BINARY"
          << "1"
          // The times are UTC; which zone the instrument stood in is not recorded.
          << "0,0"
          // The clock is set by hand or by a network: what it is good for is not known.
          << (hasTime ? "B,3" : "F,3");
    return lines.join("\r\n") + "\r\n";
}
