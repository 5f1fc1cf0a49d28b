#include "record/tables/pqa2recording.h"

#include "model/channelset.h"
#include "record/pqa2ff.h"
#include "record/tables/blockcolumns.h"
#include "record/tables/partname.h"
#include "record/tables/pqa2merge.h"
#include "record/tables/pqa2walk.h"

#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <map>

namespace {

constexpr qint64 kProgressStep = 4 << 20; // bytes
constexpr qint64 kLongestOpening = 64 << 10; // bytes; the instrument's are some hundred
constexpr int kMostKinds = 64; // foreign kinds of blocks that are counted

/// Value of a line "KEY: value".
QString lineOf(const QByteArray &text, const char *key)
{
    for (const QByteArray &line : text.split('\n')) {
        if (line.startsWith(QByteArray(key) + ": "))
            return QString::fromLatin1(line.mid(int(std::strlen(key)) + 2));
    }
    return {};
}

/// The number that a text begins with, as in "230V"; 0 without one.
double numberOf(const QString &text)
{
    int length = 0;
    while (length < text.size() && (text.at(length).isDigit() || QStringLiteral("+-.e").contains(text.at(length))))
        ++length;
    const double number = text.left(length).toDouble();
    return std::isfinite(number) ? number : 0;
}

bool hasSpectra(const RecordFileReport &report)
{
    return std::any_of(report.blocks.cbegin(), report.blocks.cend(), [](const RecordBlockCount &count) {
        const auto kinds = blockKindsOf(count.type);
        return !kinds.isEmpty() && QByteArray(kinds.first->table).contains("harmonics_");
    });
}

void setOnce(QString *text, const QString &value)
{
    if (text->isEmpty())
        *text = value;
}

/// A part that was only begun when the supply went holds nothing, and continues nothing.
bool holdsBlocks(const RecordFileReport &report)
{
    return report.state != RecordState::Unreadable && !report.blocks.isEmpty();
}

} // namespace

/// What is counted of one file.
class Pqa2Recording::Counts
{
public:
    void add(const Pqa2Block &block)
    {
        const int place = BlockCheck::placeOf(block.type);
        RecordBlockCount *count = place == BlockCheck::kOtherPlace ? other(block.type) : &m_counts[std::size_t(place)];
        if (!count)
            return;
        count->type = block.type;
        ++count->count;
        count->bytes += block.size;
    }
    /// By type.
    QVector<RecordBlockCount> list() const
    {
        QVector<RecordBlockCount> list;
        for (const auto &entry : m_others)
            list.append(entry.second);
        for (const RecordBlockCount &count : m_counts) {
            if (count.count > 0)
                list.append(count);
        }
        std::sort(list.begin(), list.end(), [](const auto &a, const auto &b) { return a.type < b.type; });
        return list;
    }

private:
    RecordBlockCount *other(quint32 type)
    {
        const bool isFull = m_others.size() >= std::size_t(kMostKinds) && m_others.find(type) == m_others.end();
        return isFull ? nullptr : &m_others[type];
    }

    std::array<RecordBlockCount, BlockCheck::kPlaces> m_counts {};
    std::map<quint32, RecordBlockCount> m_others; // of no kind of the format
};

Pqa2Recording::Pqa2Recording(const QVector<Parts> &files, bool isComplete) : m_isComplete(isComplete)
{
    for (int file = 0; file < files.size(); ++file) {
        for (const QString &path : files.at(file)) {
            m_parts.append({ file, path, {}, false, false });
            RecordFileReport report;
            report.path = path;
            report.size = QFileInfo(path).size();
            m_files.append(report);
            m_total += report.size;
        }
    }
}

bool Pqa2Recording::scan(const RecordProgress &progress)
{
    for (int part = 0; part < m_parts.size(); ++part) {
        if (!scanPart(part, progress))
            return false;
    }
    m_events.sort();
    for (const RecordEvents::Place &place : m_events.places())
        ++m_files[place.part].events;
    findKind();
    findEnds();
    return true;
}

bool Pqa2Recording::scanPart(int index, const RecordProgress &progress)
{
    Pqa2Walk walk(m_parts.at(index).path);
    Counts counts;
    RecordFileReport &report = m_files[index];
    qint64 told = 0;
    for (Pqa2Block block; walk.next(&block);) {
        counts.add(block);
        takeBlock(index, block, walk, report);
        if (progress && block.offset >= told) {
            told = block.offset + kProgressStep;
            if (!progress(m_done + block.offset, m_total))
                return false;
        }
    }
    report.blocks = counts.list();
    report.size = walk.size();
    report.isOpen = walk.isOpen();
    m_done += walk.size();
    if (walk.state() != RecordState::Whole) {
        report.state = qMax(report.state, walk.state());
        report.faults.prepend({ report.path, qMax<qint64>(walk.faultOffset(), 0), walk.reason() });
    }
    return true;
}

void Pqa2Recording::takeBlock(int index, const Pqa2Block &block, Pqa2Walk &walk, RecordFileReport &report)
{
    const BlockCheck::Finding finding = m_check.inspect(block, walk.payload(block, BlockCheck::kLook));
    if (finding.role == BlockRole::Passed)
        return;
    if (finding.problem) {
        report.fault(RecordState::Broken, block.offset, QString::fromLatin1(finding.problem));
        return;
    }
    const qint64 time = finding.time;
    const bool isEvent = finding.role == BlockRole::EventHead || finding.role == BlockRole::EventCurves;
    if (time >= 0 && !isEvent) {
        report.start = report.start ? qMin(report.start, time) : time;
        report.end = qMax(report.end, time);
    }
    if (finding.role == BlockRole::Values)
        return;
    switch (finding.role) {
    case BlockRole::Opening:
        takeOpening(index, block, walk.copy(block, 0, kLongestOpening));
        break;
    case BlockRole::Start:
        m_parts[index].hasStart = true;
        if (m_facts.start == 0)
            m_facts.start = time;
        break;
    case BlockRole::End:
        m_parts[index].hasEnd = true;
        m_facts.end = time;
        break;
    case BlockRole::EventHead:
    case BlockRole::EventCurves:
        takeEvent(index, block, walk.payload(block, BlockCheck::kLook));
        break;
    default:
        break;
    }
}

void Pqa2Recording::takeEvent(int index, const Pqa2Block &block, const char *look)
{
    if (block.size < sizeof(EventHead))
        return; // an event without curves has an empty block
    RecordEvents::Place place;
    place.part = index;
    place.block = block;
    std::memcpy(&place.head, look, sizeof place.head);
    if (!m_events.add(place))
        m_files[index].fault(RecordState::Broken, block.offset,
                             QStringLiteral("there are more events than a recording has"));
}

void Pqa2Recording::takeOpening(int index, const Pqa2Block &block, const QByteArray &payload)
{
    if (block.type == Pqa2ChannelFactor && payload.size() >= int(sizeof(Pqa2Part::Factors))) {
        std::memcpy(&m_parts[index].factors, payload.constData(), sizeof(Pqa2Part::Factors));
    } else if (block.type == Pqa2InstrumentInfo) {
        setOnce(&m_facts.model, lineOf(payload, "MODEL"));
        setOnce(&m_facts.serialNumber, lineOf(payload, "SN"));
        setOnce(&m_facts.softwareVersion, lineOf(payload, "SV"));
        setOnce(&m_facts.firmware, lineOf(payload, "FV"));
    } else if (block.type == Pqa2SystemSetting) {
        setOnce(&m_facts.clamp, lineOf(payload, "Clamp"));
        setOnce(&m_facts.clampN, lineOf(payload, "ClampN"));
        setOnce(&m_facts.ratio, lineOf(payload, "Ratio"));
        setOnce(&m_facts.ratioN, lineOf(payload, "RatioN"));
        if (m_facts.joinMode != 0)
            return;
        m_facts.nominalVolt = numberOf(lineOf(payload, "Unom"));
        m_facts.nominalFrequency = numberOf(lineOf(payload, "Fnom"));
        const int joinMode = lineOf(payload, "Join").section(QLatin1Char('_'), -1).toInt();
        m_facts.joinMode = channelSet(joinMode) ? joinMode : 0;
        m_check.setWiring(m_facts.joinMode);
    }
}

/// A file of the monitor has blocks of its own; one that has nothing yet has its name.
void Pqa2Recording::findKind()
{
    bool isMonitor = false;
    bool isOther = false;
    for (const RecordFileReport &report : qAsConst(m_files)) {
        isMonitor = isMonitor || QFileInfo(report.path).fileName().startsWith(QLatin1String("Monitor"));
        for (const RecordBlockCount &count : report.blocks) {
            const bool hasValues = m_check.role(count.type) == BlockRole::Values;
            isMonitor = isMonitor || (hasValues && count.type >= Pqa2MonitorFrequency);
            isOther = isOther || (hasValues && count.type < Pqa2MonitorFrequency);
        }
    }
    m_facts.kind = isMonitor && !isOther ? RecordKind::Monitor : RecordKind::Recording;
}

/// Whether what this part tells is told on by a further one that can be read, or stands beside it without being read.
bool Pqa2Recording::goesOn(int index) const
{
    for (int next = index + 1; next < m_parts.size() && m_parts.at(next).file == m_parts.at(index).file; ++next) {
        if (holdsBlocks(m_files.at(next)))
            return true;
    }
    const QString &path = m_parts.at(index).path;
    const PartName name = PartName::of(QFileInfo(path).completeBaseName());
    const QString next = name.base + QLatin1Char('_') + QString::number(name.number + 1);
    return !m_isComplete
        && QFileInfo::exists(QFileInfo(path).path() + QLatin1Char('/') + next + Pqa2FF::defaultPqa2Suffix());
}

/// What began and has no end was cut, or is being written. The files of spectra tell neither.
void Pqa2Recording::findEnds()
{
    qint64 first = 0, last = 0;
    bool hasStart = false;
    for (int i = 0; i < m_parts.size(); ++i) {
        RecordFileReport &report = m_files[i];
        last = qMax(last, report.end);
        if (report.start > 0)
            first = first > 0 ? qMin(first, report.start) : report.start;
        const bool isFirst = i == 0 || m_parts.at(i - 1).file != m_parts.at(i).file;
        hasStart = (!isFirst && hasStart) || m_parts.at(i).hasStart;
        report.isUnended = holdsBlocks(report) && hasStart && !m_parts.at(i).hasEnd && !hasSpectra(report);
        report.lacksEnd = report.isUnended && !goesOn(i);
        if (report.lacksEnd)
            report.fault(RecordState::Cut, report.size, QStringLiteral("the recording has no end"));
    }
    if (m_facts.start == 0)
        m_facts.start = first; // the files of spectra tell no start
    m_facts.end = qMax(m_facts.end, last);
}

bool Pqa2Recording::read(RecordSink &sink, const RecordProgress &progress)
{
    return Pqa2Merge(m_facts, m_parts, m_files, m_check, m_events).read(sink, progress, m_total);
}
