#include "record/tables/recordevents.h"

#include "model/channelset.h"
#include "record/tables/blockcheck.h"
#include "record/tables/blockcolumns.h"
#include "record/tables/isotime.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <tuple>

namespace {

constexpr int kInputs = 4;
constexpr std::ptrdiff_t kMostCandidates = 100; // events within a tenth of a second
constexpr double kLeadOfWave = 810 * 200.0 / 4096; // ms from the first sample to the event, where nothing bounds it

std::tuple<qint64, qint32, qint32> identity(const RecordEvents::Place &place)
{
    return { place.head.startTime, place.head.type, place.head.channel };
}

/// Takes a curve from \a at on: it ends where the time goes back.
RmsCurve takeCurve(const char *&at, const char *end)
{
    RmsCurve curve;
    while (end - at >= int(sizeof(_value_with_time))) {
        _value_with_time sample;
        std::memcpy(&sample, at, sizeof sample);
        if (!curve.isEmpty() && sample.time < curve.constLast().time)
            break;
        curve.append(sample);
        at += sizeof sample;
    }
    return curve;
}

/// A section: its bytes, then for each voltage with a curve this and the current's.
void takeSection(const char *&at, const char *end, quint8 voltages, RmsCurve *curves)
{
    qint32 bytes = 0;
    if (end - at < int(sizeof bytes))
        return;
    std::memcpy(&bytes, at, sizeof bytes);
    at += sizeof bytes;
    const char *sectionEnd = at + qBound<qint64>(0, bytes, end - at);
    for (int i = 0; i < kInputs; ++i) {
        if (!(voltages >> i & 1))
            continue;
        curves[i] = takeCurve(at, sectionEnd);
        curves[i + kInputs] = takeCurve(at, sectionEnd);
    }
    at = sectionEnd;
}

/// The kinds from here on, harmonics being counted apart.
struct KindName
{
    const char *name;
    const char *unit;
};
constexpr KindName kKindNames[] = {
    { "rms voltage", "V" },
    { "flicker", "" },
    { "dip", "V" },
    { "swell", "V" },
    { "interruption", "V" },
    { "rapid voltage change", "V" },
    { "unbalance", "percent" },
    { "frequency", "Hz" },
    { "inrush", "A" },
    { "mains signalling", "V" },
};

const KindName *kindName(int kind)
{
    if (kind < EventRms || kind >= EventRms + int(std::size(kKindNames)))
        return nullptr;
    return &kKindNames[kind - EventRms];
}

} // namespace

bool RecordEvents::add(const Place &place)
{
    if (m_places.size() >= kMost)
        return false;
    m_places.push_back(place);
    return true;
}

void RecordEvents::sort()
{
    std::stable_sort(m_places.begin(), m_places.end(), [](const Place &a, const Place &b) {
        return identity(a) != identity(b) ? identity(a) < identity(b) : a.block.size > b.block.size;
    });
    const auto isSame = [](const Place &a, const Place &b) { return identity(a) == identity(b); };
    m_places.erase(std::unique(m_places.begin(), m_places.end(), isSame), m_places.end());
}

int RecordEvents::ofWave(double start, double length)
{
    const auto first = std::lower_bound(m_places.begin(), m_places.end(), start, [](const Place &place, double time) {
        return double(place.head.startTime) < time - 1;
    });
    auto best = m_places.end();
    const auto rate = [start](const Place &place) {
        const double distance = std::abs(double(place.head.startTime) - start - kLeadOfWave);
        return std::make_pair(place.hasWave, distance);
    };
    const auto last = first + std::min<std::ptrdiff_t>(m_places.end() - first, kMostCandidates);
    for (auto place = first; place != last && double(place->head.startTime) <= start + length; ++place) {
        if (best == m_places.end() || rate(*place) < rate(*best))
            best = place;
    }
    if (best == m_places.end())
        return 0;
    best->hasWave = true;
    return int(best - m_places.begin()) + 1;
}

PQAEventItem eventOf(const QByteArray &payload, quint8 voltages)
{
    PQAEventItem event;
    EventHead head;
    if (payload.size() < int(sizeof head))
        return event;
    std::memcpy(&head, payload.constData(), sizeof head);
    event.channel = head.channel;
    event.type = head.type;
    event.finished = head.finished == 1;
    event.value = head.value;
    event.startTime = head.startTime;
    event.startSeconds = quint32(head.startTime / 1000);
    const bool hasEnd = event.finished && head.endTime >= head.startTime && BlockCheck::isTime(head.endTime);
    event.endTime = hasEnd ? head.endTime : head.startTime;
    event.duration = qint32(quint32(event.endTime - event.startTime));
    const char *at = payload.constData() + sizeof head;
    const char *end = payload.constData() + payload.size();
    takeSection(at, end, voltages, event.startRms);
    takeSection(at, end, voltages, event.endRms);
    return event;
}

QByteArray eventKindName(int kind)
{
    if (kind == EventThd)
        return "THD";
    if (kind >= EventHarmonicFirst && kind <= EventHarmonicLast)
        return "harmonic of order " + QByteArray::number(kind + 1);
    const KindName *row = kindName(kind);
    return row ? QByteArray(row->name) : "kind " + QByteArray::number(kind);
}

QByteArray eventUnit(int kind)
{
    const KindName *row = kindName(kind);
    return row ? row->unit : kind >= EventThd && kind <= EventHarmonicLast ? "percent" : "";
}

QByteArray eventChannel(const __event_item &item, int joinMode)
{
    const bool isOfAll = item.type == EventUnbalance || item.type == EventFrequency;
    if (isOfAll || item.channel < 0 || item.channel >= kInputs)
        return {};
    return inputName(joinMode, item.channel, item.type != EventInrush);
}

RecordTable eventTable()
{
    const auto column = [](const char *name, const char *unit, CellType type) {
        return RecordColumn { name, Statistic::None, {}, unit, type, -1 };
    };
    return { "events",
             { column("number", "", CellType::Integer), column("kind", "", CellType::Integer),
               column("name", "", CellType::Text), column("channel", "", CellType::Text),
               column("value", "", CellType::Single), column("unit", "", CellType::Text),
               column("ended", "", CellType::Integer), column("duration", "ms", CellType::Integer),
               column("end_utc", "", CellType::Text) } };
}

EventCells eventCells(const RecordedEvent &event, int joinMode)
{
    const PQAEventItem &item = event.item;
    const double none = std::numeric_limits<double>::quiet_NaN();
    EventCells cells;
    cells.numbers = { double(event.number), double(item.type), double(item.value), double(item.finished),
                      item.finished ? double(item.endTime - item.startTime) : none };
    cells.texts = { eventKindName(item.type), eventChannel(item, joinMode), eventUnit(item.type),
                    item.finished ? IsoTime::text(item.endTime) : QByteArray() };
    return cells;
}
