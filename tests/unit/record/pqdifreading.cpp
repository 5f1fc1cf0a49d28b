#include "pqdifreading.h"
#include "pqdifnames.h"

#include <cmath>
#include <cstring>
#include <zlib.h>

namespace PqdifReading {

namespace {

template <typename T> T at(const QByteArray &bytes, qint64 offset)
{
    T value {};
    if (offset >= 0 && offset + qint64(sizeof value) <= bytes.size())
        std::memcpy(&value, bytes.constData() + offset, sizeof value);
    return value;
}

QByteArray guidText(const QByteArray &bytes, qint64 offset)
{
    // The first three groups are stored the other way round.
    static constexpr int kOrder[] = { 3, 2, 1, 0, 5, 4, 7, 6, 8, 9, 10, 11, 12, 13, 14, 15 };
    const QByteArray raw = bytes.mid(int(offset), 16);
    QByteArray ordered;
    for (int place : kOrder)
        ordered += place < raw.size() ? raw[place] : '\0';
    QByteArray text = ordered.toHex();
    for (int dash : { 8, 13, 18, 23 })
        text.insert(dash, '-');
    return text;
}

const Name *named(const QByteArray &guid)
{
    for (const Name &name : kNames) {
        if (guid == name.guid)
            return &name;
    }
    return nullptr;
}

QByteArray nameOf(const QByteArray &guid)
{
    const Name *name = named(guid);
    return name ? QByteArray(name->name) : guid;
}

int sizeOf(int type)
{
    switch (type) {
    case 1:
    case 10:
    case 20:
    case 30:
        return 1;
    case 2:
    case 11:
    case 21:
    case 31:
        return 2;
    case 3:
    case 22:
    case 32:
    case 40:
        return 4;
    case 41:
    case 42:
        return 8;
    case 50:
        return 12;
    case 43:
    case 60:
        return 16;
    default:
        return 0;
    }
}

double numberAt(const QByteArray &body, qint64 offset, int type)
{
    switch (type) {
    case 20:
        return at<qint8>(body, offset);
    case 1:
    case 30:
        return at<quint8>(body, offset);
    case 21:
        return at<qint16>(body, offset);
    case 2:
    case 31:
        return at<quint16>(body, offset);
    case 22:
        return at<qint32>(body, offset);
    case 3:
    case 32:
        return at<quint32>(body, offset);
    case 40:
        return double(at<float>(body, offset));
    case 41:
        return at<double>(body, offset);
    default:
        return NAN;
    }
}

/// The tree of one body. Every byte belongs to one block, and to one alone.
class BodyReader
{
public:
    explicit BodyReader(const QByteArray &body) : m_body(body), m_taken(body.size(), '\0') { }

    QString read(Element *root)
    {
        collection(0, root, 0);
        if (m_fault.isEmpty() && m_taken.contains('\0'))
            fail(m_taken.indexOf('\0'), "bytes that nothing leads to");
        return m_fault;
    }

private:
    void fail(qint64 offset, const char *what)
    {
        if (m_fault.isEmpty())
            m_fault = QStringLiteral("body + %1: %2").arg(offset).arg(QLatin1String(what));
    }

    bool take(qint64 offset, qint64 size)
    {
        if (offset < 0 || size < 1 || offset % 4 != 0 || offset + size > m_body.size()) {
            fail(offset, "a link that leads nowhere");
            return false;
        }
        for (qint64 place = offset; place < offset + size; ++place) {
            if (m_taken[int(place)]) {
                fail(place, "two blocks share bytes");
                return false;
            }
            m_taken[int(place)] = 1;
        }
        return true;
    }

    void collection(qint64 offset, Element *element, qint64 told)
    {
        const qint32 count = at<qint32>(m_body, offset);
        if (count < 1 || count > m_body.size() / 28)
            return fail(offset, "invalid collection size");
        const qint64 size = 4 + 28 * qint64(count);
        if (told != 0 && told != size)
            return fail(offset, "a collection of another size than its link says");
        if (!take(offset, size))
            return;
        for (int i = 0; i < count && m_fault.isEmpty(); ++i) {
            element->children.emplace_back();
            entry(offset + 4 + 28 * i, &element->children.back());
        }
    }

    void entry(qint64 offset, Element *element)
    {
        const QByteArray guid = guidText(m_body, offset);
        element->tag = nameOf(guid);
        element->kind = at<quint8>(m_body, offset + 16);
        element->type = at<quint8>(m_body, offset + 17);
        const bool embedded = at<quint8>(m_body, offset + 18) != 0;
        if (at<quint8>(m_body, offset + 18) > 1 || at<quint8>(m_body, offset + 19) != 0)
            return fail(offset, "flags");
        const Name *name = named(guid);
        if (!name || name->kind != element->kind || (name->type != 0 && name->type != element->type))
            return fail(offset, name ? "a tag of another type" : "a tag that has no name");
        const int each = sizeOf(element->type);
        if (element->kind != 1 && each == 0)
            return fail(offset, "physical type");
        if (element->kind == 1 && (element->type != 0 || embedded))
            return fail(offset, "a collection with a type");
        if (embedded) {
            if (element->kind != 2 || each > 8)
                return fail(offset, "embedded, but too large");
            element->numbers << numberAt(m_body, offset + 20, element->type);
            if (m_body.mid(int(offset) + 20 + each, 8 - each).count('\0') != 8 - each)
                fail(offset, "rest of an embedded value");
            return;
        }
        const qint64 link = at<qint32>(m_body, offset + 20);
        const qint64 size = at<qint32>(m_body, offset + 24);
        if (link <= 0)
            return fail(offset, "no link");
        if (element->kind == 1)
            collection(link, element, size);
        else if (element->kind == 2)
            values(link, size, link, 1, element);
        else if (at<qint32>(m_body, link) < 1)
            fail(link, "an empty vector");
        else
            values(link, size, link + 4, at<qint32>(m_body, link), element);
    }

    void values(qint64 link, qint64 size, qint64 from, qint64 count, Element *element)
    {
        const int each = sizeOf(element->type);
        const qint64 used = from - link + each * count;
        if (count >= 16777216 || (used + 3) / 4 * 4 != size)
            return fail(link, "count and size differ");
        if (!take(link, size))
            return;
        if (m_body.mid(int(link + used), int(size - used)).count('\0') != size - used)
            return fail(link, "padding");
        if (element->type == 10) {
            element->text = m_body.mid(int(from), int(count));
            if (!element->text.endsWith('\0') || element->text.count('\0') != 1)
                return fail(link, "text without its one NUL at the end");
            element->text.chop(1);
        } else if (element->type == 50) {
            element->day = at<quint32>(m_body, from);
            element->second = at<double>(m_body, from + 4);
            if (!(element->second >= 0 && element->second < 86400))
                fail(link, "second of the day");
        } else if (element->type == 60) {
            element->id = nameOf(guidText(m_body, from));
        } else {
            element->numbers.reserve(int(count));
            for (qint64 i = 0; i < count; ++i)
                element->numbers << numberAt(m_body, from + i * each, element->type);
        }
    }

    const QByteArray &m_body;
    QByteArray m_taken;
    QString m_fault;
};

quint32 sumOf(const QByteArray &bytes)
{
    quint32 low = 1, high = 0;
    for (char byte : bytes) {
        low = (low + quint8(byte)) % 65521;
        high = (high + low) % 65521;
    }
    return high << 16 | low;
}

bool inflated(const QByteArray &stored, QByteArray *body)
{
    z_stream stream {};
    if (inflateInit(&stream) != Z_OK)
        return false;
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(stored.constData()));
    stream.avail_in = uInt(stored.size());
    int result = Z_OK;
    while (result == Z_OK) {
        char piece[16384];
        stream.next_out = reinterpret_cast<Bytef *>(piece);
        stream.avail_out = sizeof piece;
        result = inflate(&stream, Z_NO_FLUSH);
        body->append(piece, int(sizeof piece - stream.avail_out));
    }
    const bool whole = result == Z_STREAM_END && stream.avail_in == 0;
    inflateEnd(&stream);
    return whole;
}

/// What a record of this kind must have, below a collection of this tag.
struct Required
{
    const char *inside;
    const char *tags[7];
};
constexpr Required kRequired[] = {
    { "tagContainer", { "tagVersionInfo", "tagFileName", "tagCreation" } },
    { "tagRecDataSource", { "tagDataSourceTypeID", "tagNameDS", "tagEffective", "tagChannelDefns" } },
    { "tagChannelDefns", { "tagOneChannelDefn" } },
    { "tagOneChannelDefn", { "tagPhaseID", "tagQuantityTypeID", "tagQuantityMeasuredID", "tagSeriesDefns" } },
    { "tagSeriesDefns", { "tagOneSeriesDefn" } },
    { "tagOneSeriesDefn",
      { "tagValueTypeID", "tagQuantityUnitsID", "tagQuantityCharacteristicID", "tagStorageMethodID" } },
    { "tagRecMonitorSettings",
      { "tagEffective", "tagTimeInstalled", "tagUseCalibration", "tagUseTransducer", "tagChannelSettingsArray" } },
    { "tagChannelSettingsArray", { "tagOneChannelSetting" } },
    { "tagOneChannelSetting", { "tagChannelDefnIdx" } },
    { "tagRecObservation",
      { "tagObservationName", "tagTimeCreate", "tagTimeStart", "tagTriggerMethodID", "tagChannelInstances" } },
    { "tagChannelInstances", { "tagOneChannelInst" } },
    { "tagOneChannelInst", { "tagChannelDefnIdx", "tagSeriesInstances" } },
    { "tagSeriesInstances", { "tagOneSeriesInstance" } },
};

QString missing(const QByteArray &inside, const Element &element)
{
    for (const Required &row : kRequired) {
        if (inside != row.inside)
            continue;
        for (const char *tag : row.tags) {
            if (tag && !element.has(tag))
                return QStringLiteral("%1 lacks %2").arg(QLatin1String(inside), QLatin1String(tag));
        }
        // Lists hold nothing else: every other entry would shift the indexes behind it.
        if (!row.tags[1] && inside != "tagOneChannelSetting") {
            for (const Element &child : element.children) {
                if (child.tag != row.tags[0])
                    return QStringLiteral("%1 holds %2").arg(QLatin1String(inside), QLatin1String(child.tag));
            }
        }
    }
    for (const Element &child : element.children) {
        const QString fault = child.kind == 1 ? missing(child.tag, child) : QString();
        if (!fault.isEmpty())
            return fault;
    }
    return {};
}

QString readRecord(const QByteArray &bytes, qint64 offset, bool compressed, Record *record, qint64 *next)
{
    if (offset + 64 > bytes.size())
        return QStringLiteral("no head of a record");
    if (guidText(bytes, offset) != "4a111440-e49f-11cf-9900-505144494600")
        return QStringLiteral("signature");
    record->type = nameOf(guidText(bytes, offset + 16));
    record->offset = offset;
    record->stored = at<qint32>(bytes, offset + 36);
    *next = at<qint32>(bytes, offset + 40);
    const qint64 end = offset + 64 + record->stored;
    if (at<qint32>(bytes, offset + 32) != 64 || record->stored < 1 || end > bytes.size())
        return QStringLiteral("size of head or body");
    if (*next != (end == bytes.size() ? 0 : end))
        return QStringLiteral("link to the next record");
    if (bytes.mid(int(offset) + 48, 16).count('\0') != 16)
        return QStringLiteral("reserved bytes");
    const QByteArray stored = bytes.mid(int(offset) + 64, int(record->stored));
    if (at<quint32>(bytes, offset + 44) != sumOf(stored))
        return QStringLiteral("check sum");
    QByteArray body = stored;
    if (compressed) {
        body.clear();
        if (!inflated(stored, &body))
            return QStringLiteral("zlib stream");
    }
    const QString fault = BodyReader(body).read(&record->root);
    return fault.isEmpty() ? missing(record->type, record->root) : fault;
}

/// What every record of this place must be.
QString misplaced(const File &file)
{
    const QByteArray type = file.records.back().type;
    const size_t place = file.records.size() - 1;
    if ((type == "tagContainer") != (place == 0))
        return QStringLiteral("the first record, and no other, is the container");
    if (place == 1 && type != "tagRecDataSource")
        return QStringLiteral("no data source before the observations");
    if (type != "tagContainer" && type != "tagRecDataSource" && type != "tagRecMonitorSettings"
        && type != "tagRecObservation")
        return QStringLiteral("record of an unknown type");
    return {};
}

const Element kNone;

} // namespace

const Element &Element::operator[](const char *name) const
{
    for (const Element &child : children) {
        if (child.tag == name)
            return child;
    }
    return kNone;
}

qint64 Element::time() const
{
    // Readers cut to what they show: so does this one.
    return (qint64(day) - 25569) * 86400000000LL + qint64(std::floor(second * 1e6));
}

std::vector<const Element *> File::observations() const
{
    std::vector<const Element *> found;
    for (const Record &record : records) {
        if (record.type == "tagRecObservation")
            found.push_back(&record.root);
    }
    return found;
}

const Element &File::dataSource() const
{
    return records.size() > 1 ? records[1].root : kNone;
}

const Element &File::definition(const QByteArray &channel) const
{
    const int index = definitionIndex(channel);
    return index < 0 ? kNone : dataSource()["tagChannelDefns"].children[size_t(index)];
}

int File::definitionIndex(const QByteArray &channel) const
{
    const std::vector<Element> &all = dataSource()["tagChannelDefns"].children;
    for (size_t i = 0; i < all.size(); ++i) {
        if (all[i]["tagChannelName"].text == channel)
            return int(i);
    }
    return -1;
}

File read(const QByteArray &bytes)
{
    File file;
    qint64 offset = 0;
    bool compressed = false;
    do {
        qint64 next = 0;
        file.records.emplace_back();
        file.fault = readRecord(bytes, offset, compressed, &file.records.back(), &next);
        if (file.fault.isEmpty())
            file.fault = misplaced(file);
        if (!file.fault.isEmpty()) {
            file.fault.prepend(QStringLiteral("record at %1: ").arg(offset));
            return file;
        }
        const Element &container = file.records.front().root;
        if (container.has("tagCompressionStyleID")) {
            const double style = container["tagCompressionStyleID"].number();
            if (container["tagCompressionAlgorithmID"].number() != style / 2 || (style != 0 && style != 2))
                file.fault = QStringLiteral("compression");
            compressed = style == 2;
        }
        offset = next;
    } while (offset != 0 && file.fault.isEmpty());
    return file;
}

namespace {

/// One series in full: 1 values, 3 scaled values, 4 an increment, 6 a scaled increment.
QVector<double> resolved(const Element &series, int method)
{
    QVector<double> values = series["tagSeriesValues"].numbers;
    if (method == 4 || method == 6) {
        QVector<double> all;
        double value = 0;
        for (int i = 1; i + 1 < values.size(); i += 2) {
            for (int n = 0; n < int(values[i]); ++n, value += values[i + 1])
                all << (values[0] == 1 ? n * values[i + 1] : value);
        }
        values = all;
    }
    if (method == 3 || method == 6) {
        const double scale = series.has("tagSeriesScale") ? series["tagSeriesScale"].number() : 1;
        const double offset = series.has("tagSeriesOffset") ? series["tagSeriesOffset"].number() : 0;
        for (double &value : values)
            value = value * scale + offset;
    }
    return values;
}

} // namespace

QVector<Channel> channels(const File &file, const Element &observation, QString *fault)
{
    QVector<Channel> all;
    const std::vector<Element> &definitions = file.dataSource()["tagChannelDefns"].children;
    for (const Element &instance : observation["tagChannelInstances"].children) {
        Channel channel;
        channel.definition = int(instance["tagChannelDefnIdx"].number());
        if (channel.definition < 0 || size_t(channel.definition) >= definitions.size()) {
            *fault = QStringLiteral("an instance of no channel");
            return all;
        }
        if (instance.has("tagChannelGroupID"))
            channel.group = int(instance["tagChannelGroupID"].number());
        const std::vector<Element> &series = definitions[size_t(channel.definition)]["tagSeriesDefns"].children;
        const std::vector<Element> &instances = instance["tagSeriesInstances"].children;
        if (series.size() != instances.size())
            *fault = QStringLiteral("another number of series than the definition has");
        for (size_t i = 0; i < qMin(series.size(), instances.size()); ++i) {
            const int method = int(series[i]["tagStorageMethodID"].number());
            if (method != 1 && method != 3 && method != 4 && method != 6)
                *fault = QStringLiteral("storage method");
            if (instances[i].has("tagSeriesValues")) {
                channel.series << resolved(instances[i], method);
                continue;
            }
            const int owner = int(instances[i]["tagSeriesShareChannelIdx"].number());
            const int shared = int(instances[i]["tagSeriesShareSeriesIdx"].number());
            if (owner < 0 || owner >= all.size() || shared < 0 || shared >= all[owner].series.size()) {
                *fault = QStringLiteral("a share of what does not come earlier");
                return all;
            }
            const Element &from = definitions[size_t(all[owner].definition)]["tagSeriesDefns"].children[size_t(shared)];
            const Element &direct = observation["tagChannelInstances"].children[size_t(owner)]["tagSeriesInstances"];
            if (from["tagStorageMethodID"].number() != method
                || from["tagQuantityUnitsID"].number() != series[i]["tagQuantityUnitsID"].number()
                || !direct.children[size_t(shared)].has("tagSeriesValues"))
                *fault = QStringLiteral("a share of another method or unit, or of a share");
            channel.series << all[owner].series[shared];
        }
        for (const QVector<double> &one : qAsConst(channel.series)) {
            if (one.size() != channel.series[0].size())
                *fault = QStringLiteral("series of different lengths");
        }
        all << channel;
    }
    return all;
}

} // namespace PqdifReading
