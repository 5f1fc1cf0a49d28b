#include "settings/limits.h"

#include <QDomDocument>

#include "settings/limitbuiltins.h"
#include "storage/safefile.h"
#include "settings/xmlguard.h"
#include "settings/xmltext.h"
#include "platform/debuglog.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace {

constexpr int kWords = sizeof(monitor_limit) / sizeof(qint32);

/// One attribute of a limit set's file: where it stands in the XML and which word of the record it is.
struct Attribute
{
    const char *group;
    const char *child;
    const char *name;
    int word; // of the record
    bool integer;
};

constexpr int wordOf(size_t offset)
{
    return static_cast<int>(offset / sizeof(qint32));
}

#define WORD(field) wordOf(offsetof(monitor_limit, field))
#define BAND(group, field)                                                                                             \
    { group, "nep", "value", WORD(field.nep), false }, { group, "partial", "lower", WORD(field.partialLower), false }, \
        { group, "partial", "upper", WORD(field.partialUpper), false },                                                \
        { group, "whole", "lower", WORD(field.wholeLower), false },                                                    \
    {                                                                                                                  \
        group, "whole", "upper", WORD(field.wholeUpper), false                                                         \
    }
#define TOLERANCE(group, child, field)                                                                                 \
    { group, child, "nep", WORD(field.nep), false }, { group, child, "partial", WORD(field.partial), false },          \
    {                                                                                                                  \
        group, child, "whole", WORD(field.whole), false                                                                \
    }
#define EVENT(group, field)                                                                                            \
    { group, "tolerance", "threshold", WORD(field.threshold), false },                                                 \
        { group, "tolerance", "hysteresis", WORD(field.hysteresis), false },                                           \
    {                                                                                                                  \
        group, "tolerance", "maxAllowed", WORD(field.maxAllowed), true                                                 \
    }
#define SIGNAL_ROW(child, field)                                                                                       \
    { "MainsSignal", child, "value", WORD(field.value), false }, TOLERANCE("MainsSignal", child, field)

/// All attributes but the harmonic rows, in the order in which they are written.
const Attribute kAttributes[] = {
    BAND("Voltage", voltage),
    { "Harmonic", nullptr, nullptr, 0, false }, // the rows stand here
    TOLERANCE("Flicker", "plt", plt),
    { "Flicker", "plt", "max", WORD(plt.max), false },
    TOLERANCE("Flicker", "pst", pst),
    { "Flicker", "pst", "max", WORD(pst.max), false },
    EVENT("Dips", dips),
    EVENT("Swells", swells),
    EVENT("Interruptions", interruptions),
    { "RVC", "tolerance", "threshold", WORD(rvc.threshold), false },
    { "RVC", "tolerance", "steadytime", WORD(rvc.steadytime), false },
    { "RVC", "tolerance", "minstep", WORD(rvc.minstep), false },
    { "RVC", "tolerance", "minrate", WORD(rvc.minrate), false },
    { "RVC", "tolerance", "maxAllowed", WORD(rvc.maxAllowed), true },
    TOLERANCE("Unbalance", "neg", neg),
    TOLERANCE("Unbalance", "zero", zero),
    BAND("Frequency", frequency),
    SIGNAL_ROW("frequency1", frequency1),
    SIGNAL_ROW("frequency2", frequency2),
};

#undef SIGNAL_ROW
#undef EVENT
#undef TOLERANCE
#undef BAND

/// The record as its words, float and integer alike.
struct Words
{
    qint32 word[kWords];
    float real(int i) const
    {
        float value;
        memcpy(&value, &word[i], sizeof(value));
        return value;
    }
    void setReal(int i, float value) { memcpy(&word[i], &value, sizeof(value)); }
};

template <typename T> Words wordsOf(const LimitRecord<T> &record)
{
    Words words;
    memcpy(words.word, &record, sizeof(words.word));
    return words;
}

template <typename T> void takeWords(const Words &words, LimitRecord<T> *record)
{
    memcpy(static_cast<void *>(record), words.word, sizeof(words.word));
    record->reserved = 0;
}

/// Words that are integers in both forms of the record.
bool isInteger(int word)
{
    return word == WORD(harmonicCount) || word == WORD(reserved) || word == WORD(dips.maxAllowed)
        || word == WORD(swells.maxAllowed) || word == WORD(interruptions.maxAllowed) || word == WORD(rvc.maxAllowed);
}

/// A number that does not parse, or is none, reads as 0.
float toReal(const QString &text)
{
    bool ok = false;
    const float value = text.toFloat(&ok);
    return ok && std::isfinite(value) ? value : 0.0f;
}

/// The toolkit's own form of a float attribute.
QString realText(float value)
{
    if (!std::isfinite(value))
        value = 0.0f;
    // A value beyond 64 bits would not survive the toolkit's look for whole numbers.
    value = qBound(-9e18f, value, 9e18f);
    static const QString name = QStringLiteral("v");
    QDomDocument document;
    QDomElement element = document.createElement(name);
    element.setAttribute(name, value);
    return element.attribute(name);
}

void readHarmonics(const QDomElement &group, monitor_limit *limit)
{
    if (group.hasAttribute(QStringLiteral("count")))
        limit->harmonicCount = qBound(0, group.attribute(QStringLiteral("count")).toInt(), monitor_limit::kRows);
    const QString tag = QStringLiteral("tolerance");
    struct Column
    {
        const char *name;
        float *values;
    };
    const Column columns[]
        = { { "nep", limit->harmonicNep }, { "partial", limit->harmonicPartial }, { "whole", limit->harmonicWhole } };
    for (QDomElement row = group.firstChildElement(tag); !row.isNull(); row = row.nextSiblingElement(tag)) {
        if (!row.hasAttribute(QStringLiteral("index")))
            continue;
        const int index = row.attribute(QStringLiteral("index")).toInt();
        if (index < 1 || index > monitor_limit::kRows)
            continue;
        for (const Column &column : columns) {
            if (row.hasAttribute(QLatin1String(column.name)))
                column.values[index - 1] = toReal(row.attribute(QLatin1String(column.name)));
        }
    }
}

void writeHarmonics(QXmlStreamWriter &xml, const monitor_limit &limit)
{
    const int count = qBound(0, limit.harmonicCount, monitor_limit::kRows);
    xml.writeStartElement(QStringLiteral("Harmonic"));
    xml.writeAttribute(QStringLiteral("count"), QString::number(count));
    for (int i = 0; i < count; ++i) {
        xml.writeStartElement(QStringLiteral("tolerance"));
        xml.writeAttribute(QStringLiteral("index"), QString::number(i + 1));
        xml.writeAttribute(QStringLiteral("nep"), realText(limit.harmonicNep[i]));
        xml.writeAttribute(QStringLiteral("partial"), realText(limit.harmonicPartial[i]));
        xml.writeAttribute(QStringLiteral("whole"), realText(limit.harmonicWhole[i]));
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

bool same(const char *a, const char *b)
{
    return QLatin1String(a) == QLatin1String(b);
}

/// Groups and their children open and close where the table changes them.
void writeGroups(QXmlStreamWriter &xml, const monitor_limit &limit)
{
    const Words words = wordsOf(limit);
    const char *group = nullptr;
    const char *child = nullptr;
    for (const Attribute &attribute : kAttributes) {
        const bool newGroup = !same(group, attribute.group);
        if (child && (newGroup || !same(child, attribute.child)))
            xml.writeEndElement();
        if (newGroup && group)
            xml.writeEndElement();
        if (!attribute.child) {
            writeHarmonics(xml, limit);
            group = child = nullptr;
            continue;
        }
        if (newGroup)
            xml.writeStartElement(QLatin1String(attribute.group));
        if (newGroup || !same(child, attribute.child))
            xml.writeStartElement(QLatin1String(attribute.child));
        group = attribute.group;
        child = attribute.child;
        QString text;
        if (same(attribute.name, "max"))
            text = QStringLiteral("20"); // Kept: whatever the record holds
        else
            text = attribute.integer ? QString::number(words.word[attribute.word])
                                     : realText(words.real(attribute.word));
        xml.writeAttribute(QLatin1String(attribute.name), text);
    }
    // The table ends with a group and its child: both are still open.
    xml.writeEndElement();
    xml.writeEndElement();
}

void readGroups(const QDomElement &root, monitor_limit *limit)
{
    Words words = wordsOf(*limit);
    for (const Attribute &attribute : kAttributes) {
        const QDomElement group = root.firstChildElement(QLatin1String(attribute.group));
        if (!attribute.child || group.isNull())
            continue;
        const QString tag = QLatin1String(attribute.child);
        const QString name = QLatin1String(attribute.name);
        for (QDomElement child = group.firstChildElement(tag); !child.isNull(); child = child.nextSiblingElement(tag)) {
            if (!child.hasAttribute(name))
                continue;
            const QString text = child.attribute(name);
            if (attribute.integer)
                words.word[attribute.word] = text.toInt();
            else
                words.setReal(attribute.word, toReal(text));
        }
    }
    takeWords(words, limit);
    const QDomElement harmonics = root.firstChildElement(QStringLiteral("Harmonic"));
    if (!harmonics.isNull())
        readHarmonics(harmonics, limit);
}

} // namespace

void limit_float2int(const monitor_limit &from, monitor_limit_int *to)
{
    Words words = wordsOf(from);
    for (int i = 0; i < kWords; ++i) {
        if (isInteger(i))
            continue;
        const double hundredths = std::round(double(words.real(i)) * 100.0);
        if (std::isnan(hundredths))
            words.word[i] = 0;
        else
            words.word[i] = static_cast<qint32>(qBound(double(std::numeric_limits<qint32>::min()), hundredths,
                                                       double(std::numeric_limits<qint32>::max())));
    }
    takeWords(words, to);
}

void limit_int2float(const monitor_limit_int &from, monitor_limit *to)
{
    Words words = wordsOf(from);
    for (int i = 0; i < kWords; ++i) {
        if (!isInteger(i))
            words.setReal(i, static_cast<float>(words.word[i] / 100.0));
    }
    takeWords(words, to);
}

MonitorLimits2::MonitorLimits2(const QString &name, const monitor_limit &limit) : m_name(name), m_limit(limit)
{
    m_limit.reserved = 0;
}

void MonitorLimits2::init()
{
    m_limit = LimitBuiltins::en50160();
    m_name = QStringLiteral("EN50160_000");
}

void MonitorLimits2::initEN50160()
{
    m_limit = LimitBuiltins::en50160();
    m_name = QLatin1String(LimitBuiltins::kEn50160Name);
}

void MonitorLimits2::initGOST32144()
{
    m_limit = LimitBuiltins::gost32144();
    m_name = QLatin1String(LimitBuiltins::kGost32144Name);
}

bool MonitorLimits2::loadFile(const QString &path)
{
    QDomDocument document;
    if (XmlGuard::load(path, &document) != XmlGuard::Ok)
        return false;
    const QDomElement root = document.documentElement();
    if (root.tagName() != QLatin1String("limits") || !root.hasAttribute(QStringLiteral("name"))) {
        QUVERA_DEBUG("Unkown xml file");
        return false;
    }
    m_name = root.attribute(QStringLiteral("name"));
    m_file = path;
    readGroups(root, &m_limit);
    return true;
}

bool MonitorLimits2::saveFile(const QString &path)
{
    XmlText text(QStringLiteral("version = \"1.0\" encoding=\"utf-8\""));
    QXmlStreamWriter &xml = text.writer();
    xml.writeStartElement(QStringLiteral("limits"));
    xml.writeAttribute(QStringLiteral("verison"), QStringLiteral("1.0")); // Kept: spelled so
    xml.writeAttribute(QStringLiteral("name"), XmlText::plain(m_name));
    writeGroups(xml, m_limit);
    xml.writeEndElement();
    if (!SafeFile::replace(path, text.take()))
        return false;
    m_file = path;
    return true;
}
