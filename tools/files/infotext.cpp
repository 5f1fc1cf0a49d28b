#include "files/infotext.h"

#include "files/terminal.h"
#include "model/channelset.h"
#include "record/pqa2format.h"
#include "record/tables/isotime.h"
#include "record/tables/recordnames.h"
#include "record/tables/recordsource.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <map>

namespace {

QString blockName(quint32 type)
{
    const char *name = pqa2KindName(type);
    return QString::fromLatin1(name ? name : "unknown");
}

QString typeText(quint32 type)
{
    return QStringLiteral("0x%1").arg(QString::number(type, 16).toUpper(), 8, QLatin1Char('0'));
}

QString wiringName(int joinMode)
{
    const ChannelSet *wiring = channelSet(joinMode);
    return wiring ? QString::fromLatin1(wiring->fullName) : QString();
}

QVector<RecordBlockCount> blocksOf(const RecordSource &source)
{
    std::map<quint32, RecordBlockCount> sums;
    for (const RecordFileReport &file : source.files()) {
        for (const RecordBlockCount &count : file.blocks) {
            RecordBlockCount &sum = sums[count.type];
            sum.type = count.type;
            sum.count += count.count;
            sum.bytes += count.bytes;
        }
    }
    QVector<RecordBlockCount> blocks;
    for (const auto &entry : sums)
        blocks.append(entry.second);
    return blocks;
}

// For scripts: what is not known is null.

QJsonValue jsonText(const QString &text)
{
    return text.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

QJsonValue jsonTime(qint64 time)
{
    return time == 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(QString::fromLatin1(IsoTime::text(time)));
}

QJsonValue jsonNumber(double number)
{
    return number == 0 ? QJsonValue(QJsonValue::Null) : QJsonValue(number);
}

QJsonArray jsonBlocks(const QVector<RecordBlockCount> &blocks)
{
    QJsonArray array;
    for (const RecordBlockCount &block : blocks)
        array.append(QJsonObject { { "type", typeText(block.type) },
                                   { "name", blockName(block.type) },
                                   { "count", block.count },
                                   { "bytes", block.bytes } });
    return array;
}

QJsonObject jsonFile(const RecordFileReport &file)
{
    return { { "path", file.path },         { "state", recordStateName(file.state) }, { "start", jsonTime(file.start) },
             { "end", jsonTime(file.end) }, { "blocks", jsonBlocks(file.blocks) },    { "events", file.events } };
}

// For people

void addLine(QByteArray *text, const char *name, const QString &value)
{
    if (!value.isEmpty())
        *text += QByteArray(name).leftJustified(12) + Terminal::printable(value).toUtf8() + '\n';
}

/// "10 min 10 s"
QString lengthText(qint64 ms)
{
    if (ms < 1000)
        return QStringLiteral("%1 ms").arg(ms);
    const qint64 seconds = ms / 1000;
    const std::pair<qint64, const char *> pieces[] = {
        { seconds / 86400, "d" }, { seconds / 3600 % 24, "h" }, { seconds / 60 % 60, "min" }, { seconds % 60, "s" }
    };
    QStringList words;
    for (const auto &piece : pieces) {
        if (piece.first > 0)
            words << QString::number(piece.first) + QLatin1Char(' ') + QLatin1String(piece.second);
    }
    return words.join(QLatin1Char(' '));
}

QString span(qint64 start, qint64 end)
{
    if (start == 0 && end == 0)
        return {};
    const auto time = [](qint64 ms) { return ms ? QString::fromLatin1(IsoTime::text(ms)) : QStringLiteral("unknown"); };
    if (start == end)
        return time(start);
    const QString length = start == 0 || end < start ? QString() : QStringLiteral(", ") + lengthText(end - start);
    return QStringLiteral("%1 to %2%3").arg(time(start), time(end), length);
}

} // namespace

namespace InfoText {

QByteArray text(const RecordSource &source)
{
    const RecordFacts &facts = source.facts();
    QByteArray text = Terminal::printable(source.path()).toUtf8() + '\n';
    addLine(&text, "kind", QString::fromLatin1(recordKindName(facts.kind)));
    addLine(&text, "state", QString::fromLatin1(recordStateName(source.state())));
    addLine(&text, "time", span(facts.start, facts.end));
    const QStringList names { facts.model, facts.serialNumber, facts.softwareVersion };
    addLine(&text, "instrument", names.join(QLatin1Char(' ')).trimmed());
    addLine(&text, "wiring", wiringName(facts.joinMode));
    if (facts.nominalVolt > 0)
        addLine(&text, "nominal", QStringLiteral("%1 V, %2 Hz").arg(facts.nominalVolt).arg(facts.nominalFrequency));
    addLine(&text, "clamp", facts.clamp);
    addLine(&text, "ratio", facts.ratio);
    for (const auto &detail : source.details())
        addLine(&text, detail.first.toLatin1().constData(), detail.second);
    addLine(&text, "events", QString::number(source.events()));
    if (source.isFolder()) {
        for (const RecordFileReport &file : source.files())
            addLine(&text, "file",
                    QStringLiteral("%1 bytes, %2: %3").arg(file.size, 12).arg(recordStateName(file.state), file.path));
    }
    for (const RecordBlockCount &block : blocksOf(source))
        addLine(&text, "blocks", QStringLiteral("%1 x %2").arg(block.count, 9).arg(blockName(block.type)));
    return text;
}

QByteArray json(const RecordSource &source)
{
    const RecordFacts &facts = source.facts();
    QJsonObject object {
        { "path", source.path() },
        { "kind", recordKindName(facts.kind) },
        { "state", recordStateName(source.state()) },
        { "start", jsonTime(facts.start) },
        { "end", jsonTime(facts.end) },
        { "instrument",
          QJsonObject { { "model", jsonText(facts.model) },
                        { "serial", jsonText(facts.serialNumber) },
                        { "version", jsonText(facts.softwareVersion) } } },
        { "wiring", jsonText(wiringName(facts.joinMode)) },
        { "nominal_voltage_V", jsonNumber(facts.nominalVolt) },
        { "nominal_frequency_Hz", jsonNumber(facts.nominalFrequency) },
        { "blocks", jsonBlocks(blocksOf(source)) },
        { "events", source.events() },
    };
    if (source.isFolder()) {
        QJsonArray files;
        for (const RecordFileReport &file : source.files())
            files.append(jsonFile(file));
        object.insert("files", files);
    }
    return QJsonDocument(object).toJson();
}

} // namespace InfoText
