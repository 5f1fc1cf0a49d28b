#pragma once

#include "settings/recordgroups.h"

#include <QByteArray>

#include <functional>

class RecordStatistics;
struct ChannelSet;
struct __datagram_aggregation;

/// The blocks of the recorder as bytes (docs/formats/recorder.md). Pure functions of records; times in ms since 1970.
namespace RecordBlocks {

using Store = std::function<void(RecordFile file, quint32 type, const QByteArray &payload)>;

/// A payload: the time, then values that stand one behind the other.
QByteArray payload(qint64 time, const void *values, int bytes);
/// A payload of a group: the values of \a record for the channels that the wiring records.
QByteArray groupPayload(qint64 time, const RecordGroup &group, const __datagram_aggregation &record,
                        const ChannelSet &wiring);
/// All blocks of an interval of the chosen items (RecordInfo::Item), in their order. \a orders is the number of
/// harmonics that are measured: 0 stands for lines that are not, whatever the records hold there.
void storeInterval(qint64 time, quint32 items, const RecordStatistics &statistics, const ChannelSet &wiring, int orders,
                   const Store &store);

} // namespace RecordBlocks
