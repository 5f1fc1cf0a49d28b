#include "record/tables/recordtable.h"

QByteArray RecordColumn::name() const
{
    static constexpr const char *kStatistics[] = { "", "_mean", "_max", "_min" };
    QByteArray text = quantity + kStatistics[int(statistic)];
    for (const QByteArray &part : { channel, unit }) {
        if (!part.isEmpty())
            text += '_' + part;
    }
    return text;
}
