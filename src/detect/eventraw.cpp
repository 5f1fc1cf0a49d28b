#include "detect/eventraw.h"

#include "detect/eventcurves.h"
#include "detect/powerevents.h"

namespace {

void appendCurve(QByteArray *out, const RmsCurve &curve)
{
    out->append(reinterpret_cast<const char *>(curve.constData()), curve.size() * int(sizeof(_value_with_time)));
}

/// One section: its byte count, then for each voltage with a curve this curve and that of the same current.
void appendSection(QByteArray *out, const RmsCurve *first, const RmsCurve *curves)
{
    QByteArray samples;
    for (int i = 0; i < 4; ++i) {
        if (first[i].isEmpty())
            continue;
        appendCurve(&samples, curves[i]);
        appendCurve(&samples, curves[i + 4]);
    }
    const qint32 bytes = samples.size();
    out->append(reinterpret_cast<const char *>(&bytes), int(sizeof bytes));
    out->append(samples);
}

} // namespace

QByteArray PowerEvents::rawHead(const __event_item &event)
{
    const EventHead head = { event.channel, event.type, event.finished, event.value, event.startTime, event.endTime };
    return QByteArray(reinterpret_cast<const char *>(&head), int(sizeof head));
}

QByteArray PowerEvents::toRawData(const PQAEventItem &event)
{
    RmsCurve first[8];
    RmsCurve second[8];
    for (int i = 0; i < 8; ++i) {
        first[i] = event.startRms[i];
        second[i] = event.endRms[i];
        joinCurves(first[i], second[i]);
    }
    if (first[0].isEmpty() && first[1].isEmpty() && first[2].isEmpty() && first[3].isEmpty())
        return QByteArray();
    QByteArray out = rawHead(event);
    appendSection(&out, first, first);
    appendSection(&out, first, second);
    return out;
}
