#pragma once

#include "settings/recordinfo.h"

#include <QtGlobal>

#include <array>

struct ChannelSet;

// What the recorder stores at the end of an interval (docs/formats/recorder.md): one row for each group of blocks, read
// by its writer and by what foretells the size of a recording.

/// Files of a recording.
enum RecordFile {
    CommonFile,
    HarmonicVoltLowFile,
    HarmonicAmpLowFile,
    InterharmonicVoltLowFile,
    InterharmonicAmpLowFile,
    HarmonicVoltHighFile,
    HarmonicAmpHighFile,
    InterharmonicVoltHighFile,
    InterharmonicAmpHighFile,
    kRecordFiles
};

/// A file that stands beside the common one when its item is chosen.
struct RecordFileRow
{
    quint32 item; // RecordInfo::Item; 0: always there
    const char *name;
};

/// A group of quantities and the blocks of its mean, maximum and minimum. A block's payload is the time, then, for each
/// channel that the wiring records, the head values and the values, as they stand in the aggregation record.
struct RecordGroup
{
    quint32 item; // RecordInfo::Item
    RecordFile file;
    quint32 mean, maximum, minimum; // types of the blocks; 0: there is none
    int channelStride; // bytes from a channel's values to the next one's in the record; 0: they belong to no channel
    int distortion, fundamental; // place of the head values of the first channel; 0: there are none
    int first; // place of the first value
    int bytes; // of a value: a float, or a row of them
    int count; // of the values
    int stride; // bytes from a value to the next
};

/// In the order of RecordFile.
const std::array<RecordFileRow, kRecordFiles> &recordFiles();
/// In the order in which they are stored.
const std::array<RecordGroup, 14> &recordGroups();

constexpr int kRecordAngleGroups = 6;
constexpr quint32 kRecordFirstAngleType = 0xA1001003; // of the six that follow the common group
constexpr int kRecordTimeBytes = 8; // in front of every payload

/// Bytes of a group's payload in a wiring, behind the time.
int recordGroupBytes(const RecordGroup &group, const ChannelSet &wiring);
/// Bytes of a block whose payload has so many.
constexpr qint64 recordBlockBytes(qint64 payload)
{
    return 12 + (payload + 3) / 4 * 4;
}
/// Bytes that a recording of these items takes in an hour, all files together and without what happens: events,
/// transients, the log.
double recordBytesPerHour(quint32 items, int intervalSeconds, const ChannelSet &wiring);
