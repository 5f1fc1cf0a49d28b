#include "comtradereading.h"

#include <QDateTime>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <cmath>

namespace ComtradeReading {

namespace {

/// The lines of a .cfg, one after the other, field by field.
class Lines
{
public:
    Lines(const QByteArray &text, QString *fault) : m_fault(fault)
    {
        for (char letter : text) {
            if (quint8(letter) > 126 || (quint8(letter) < 32 && letter != '\r' && letter != '\n'))
                fail("a letter that is not ASCII");
        }
        if (!text.endsWith("\r\n") || text.count('\r') != text.count("\r\n") || text.count('\n') != text.count("\r\n"))
            fail("a line without CR LF");
        m_lines = text.split('\n');
        m_lines.removeLast();
    }

    QList<QByteArray> next(int fields)
    {
        QByteArray line = m_at < m_lines.size() ? m_lines[m_at++] : QByteArray();
        if (line.endsWith('\r'))
            line.chop(1);
        if (line.isEmpty())
            fail("a line is missing or blank");
        QList<QByteArray> found = line.split(',');
        if (found.size() != fields) {
            fail("another number of fields");
            while (found.size() < fields)
                found << QByteArray();
        }
        return found;
    }

    double number(const QByteArray &field, bool whole = false)
    {
        static const QRegularExpression plain(QStringLiteral("^[+-]?\\d+(\\.\\d+)?([eE][+-]?\\d+)?$"));
        static const QRegularExpression integer(QStringLiteral("^-?\\d+$"));
        if (!(whole ? integer : plain).match(QString::fromLatin1(field)).hasMatch())
            fail("a field that is no number");
        return field.toDouble();
    }

    qint64 time()
    {
        const QByteArray text = next(2).join(',');
        static const QRegularExpression form(
            QStringLiteral("^(\\d\\d)/(\\d\\d)/(\\d{4}),(\\d\\d):(\\d\\d):(\\d\\d)\\.(\\d{6})$"));
        const QRegularExpressionMatch match = form.match(QString::fromLatin1(text));
        const auto part = [&](int n) { return match.captured(n).toInt(); };
        const QDateTime second(QDate(part(3), part(2), part(1)), QTime(part(4), part(5), part(6)), Qt::UTC);
        if (!match.hasMatch() || !second.isValid())
            fail("a time of another form");
        return second.toSecsSinceEpoch() * 1000000 + part(7);
    }

    void end()
    {
        if (m_at != m_lines.size())
            fail("lines behind the last one");
    }

    void fail(const char *what)
    {
        if (m_fault->isEmpty())
            *m_fault = QStringLiteral("line %1: %2").arg(m_at).arg(QLatin1String(what));
    }

private:
    QList<QByteArray> m_lines;
    int m_at = 0;
    QString *m_fault;
};

void readChannel(Lines *lines, Pair *pair, int number)
{
    const QList<QByteArray> fields = lines->next(13);
    Channel channel { fields[1], fields[2], fields[3], fields[4] };
    if (lines->number(fields[0], true) != number)
        lines->fail("number of a channel");
    channel.a = lines->number(fields[5]);
    channel.b = lines->number(fields[6]);
    channel.skew = lines->number(fields[7]);
    channel.minimum = lines->number(fields[8], true);
    channel.maximum = lines->number(fields[9], true);
    channel.primary = lines->number(fields[10]);
    channel.secondary = lines->number(fields[11]);
    channel.side = fields[12].size() == 1 ? fields[12][0] : '\0';
    if (channel.id.isEmpty() || channel.id.size() > 64 || channel.phase.size() > 2 || channel.circuit.size() > 64)
        lines->fail("length of a name");
    for (const Channel &other : qAsConst(pair->channels)) {
        if (other.id == channel.id)
            lines->fail("a name that another channel has");
    }
    static const QRegularExpression letters(QStringLiteral("^[A-Za-z]+$"));
    if (!letters.match(QString::fromLatin1(channel.unit)).hasMatch())
        lines->fail("unit");
    if (channel.a == 0 || channel.secondary == 0 || (channel.side != 'P' && channel.side != 'S'))
        lines->fail("factor, ratio or side");
    if (channel.minimum != -32767 || channel.maximum != 32767)
        lines->fail("range of raw values");
    pair->channels << channel;
}

void readCodes(Lines *lines, Pair *pair)
{
    const QList<QByteArray> codes = lines->next(2);
    static const QRegularExpression form(QStringLiteral("^(0|[+-]\\d{1,2}(h\\d\\d)?)$"));
    for (const QByteArray &code : codes) {
        if (!form.match(QString::fromLatin1(code)).hasMatch())
            lines->fail("time code");
    }
    pair->timeCode = codes[0];
    pair->localCode = codes[1];
    const QList<QByteArray> quality = lines->next(2);
    pair->quality = quality[0];
    pair->leapSecond = quality[1];
    if (quality[0].size() != 1 || !QByteArray("0123456789ABF").contains(quality[0]))
        lines->fail("time quality");
    if (quality[1].size() != 1 || !QByteArray("0123").contains(quality[1]))
        lines->fail("leap second");
}

void readConfiguration(const QByteArray &cfg, Pair *pair)
{
    Lines lines(cfg, &pair->fault);
    const QList<QByteArray> head = lines.next(3);
    pair->station = head[0];
    pair->device = head[1];
    if (head[0].size() > 64 || head[1].size() > 64 || head[2] != "2013")
        lines.fail("head");
    const QList<QByteArray> counts = lines.next(3);
    const int analog = int(lines.number(counts[0], true));
    if (counts[1] != QByteArray::number(analog) + 'A' || counts[2] != "0D" || analog < 1 || analog > 999999)
        lines.fail("counts of channels");
    for (int number = 1; number <= analog && pair->fault.isEmpty(); ++number)
        readChannel(&lines, pair, number);
    pair->frequency = lines.number(lines.next(1)[0]);
    if (lines.next(1)[0] != "1")
        lines.fail("number of rates");
    const QList<QByteArray> rate = lines.next(2);
    pair->rate = lines.number(rate[0]);
    pair->last = qint64(lines.number(rate[1], true));
    pair->start = lines.time();
    pair->trigger = lines.time();
    if (lines.next(1)[0] != "BINARY")
        lines.fail("type of the data");
    pair->timeFactor = lines.number(lines.next(1)[0]);
    readCodes(&lines, pair);
    lines.end();
    if (pair->rate <= 0 || pair->last < 1)
        lines.fail("rate");
    const double seconds = double(pair->last - 1) / pair->rate;
    if (pair->trigger < pair->start || double(pair->trigger - pair->start) > seconds * 1e6 + 1)
        lines.fail("a trigger outside the record");
}

quint32 word(const QByteArray &bytes, int offset, int size)
{
    quint32 value = 0;
    for (int i = size - 1; i >= 0; --i)
        value = value << 8 | quint8(bytes[offset + i]);
    return value;
}

void readData(const QByteArray &dat, Pair *pair)
{
    const int each = 8 + 2 * pair->channels.size();
    if (dat.size() % each != 0 || dat.size() / each != pair->last) {
        pair->fault = QStringLiteral("another number of samples than the configuration says");
        return;
    }
    pair->raw.resize(pair->channels.size());
    for (int n = 0; n < pair->last && pair->fault.isEmpty(); ++n) {
        const int offset = n * each;
        const quint32 stamp = word(dat, offset + 4, 4);
        const double elapsed = double(stamp) * pair->timeFactor;
        if (word(dat, offset, 4) != quint32(n) + 1)
            pair->fault = QStringLiteral("number of sample %1").arg(n + 1);
        else if (stamp > 0x7FFFFFFF || std::abs(elapsed - n / pair->rate * 1e6) > 0.5001 * pair->timeFactor)
            pair->fault = QStringLiteral("time of sample %1").arg(n + 1);
        pair->stamps << stamp;
        for (int channel = 0; channel < pair->raw.size(); ++channel)
            pair->raw[channel] << qint16(word(dat, offset + 8 + 2 * channel, 2));
    }
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

Pair read(const QByteArray &cfg, const QByteArray &dat)
{
    Pair pair;
    readConfiguration(cfg, &pair);
    if (pair.fault.isEmpty())
        readData(dat, &pair);
    return pair;
}

Pair readFiles(const QString &name)
{
    return read(contentOf(name + ".cfg"), contentOf(name + ".dat"));
}

} // namespace ComtradeReading
