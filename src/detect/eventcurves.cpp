#include "detect/eventcurves.h"

void joinCurves(RmsCurve &start, RmsCurve &end)
{
    if (start.isEmpty() || end.isEmpty()) {
        if (start.isEmpty())
            end = RmsCurve();
        return;
    }
    const qint64 last = start.constLast().time;
    if (end.constFirst().time > last)
        return;
    for (const _value_with_time &sample : qAsConst(end)) {
        if (sample.time > last)
            start.append(sample);
    }
    end = RmsCurve();
}

void joinCurves(PQAEventItem &event)
{
    for (int i = 0; i < 8; ++i) {
        joinCurves(event.startRms[i], event.endRms[i]);
        event.startRms[i].squeeze();
        event.endRms[i].squeeze();
    }
}
