#pragma once

#include <QtGlobal>

#include <cstddef>

// What a PQA2 file is made of, for its writers and its readers (docs/formats/pqa2.md). All numbers are little-endian.

/// Kinds of blocks that have a writer of their own; all kinds of the format: pqa2KindName().
enum Pqa2DBType : quint32 {
    Pqa2Blank = 0,
    Pqa2InstrumentInfo = 0xA1000001,
    Pqa2SystemLog = 0xA1000009,
    Pqa2SystemSetting = 0xA1000010,
    Pqa2ChannelFactor = 0xA1000011,
    Pqa2StartTime = 0xA1000018,
    Pqa2EndTime = 0xA1000019,
    Pqa2Transient = 0xA1000025,
    Pqa2FlickerShort = 0xA1000026,
    Pqa2FlickerLong = 0xA1000027,
    Pqa2Frequency10s = 0xA1000028,
    Pqa2EventWave = 0xA100002A,
    Pqa2Frequency10sMaximum = 0xA1000063,
    Pqa2Frequency10sMinimum = 0xA10000A3,
    Pqa2MonitorFrequency = 0xA1010000,
    Pqa2MonitorVoltage = 0xA1010001,
    Pqa2MonitorFlickerShort = 0xA1010002,
    Pqa2MonitorFlickerLong = 0xA1010003,
    Pqa2MonitorUnbalance = 0xA1010004,
    Pqa2MonitorHarmonics = 0xA1010005,
    Pqa2MonitorSecondSpectrum = 0xA1010006,
    Pqa2EventHead = 0xA1010080,
    Pqa2EventCurves = 0xA1010083,
};

constexpr quint32 kPqa2LastBlock = 0xFFFFFFFF; // link of a block that none follows

#pragma pack(push, 1)
/// Head of the file, 24 bytes.
struct Pqa2FileHeader
{
    char magic[4]; // "PQA2"
    quint32 version; // format and version code
    quint8 signature[8]; // the same in all files
    quint32 mark1;
    quint32 mark2;
};
/// Head of a block; the payload follows, then bytes without meaning up to a multiple of 4.
struct Pqa2BlockHead
{
    quint32 oonb; // file offset of the next block, or kPqa2LastBlock
    quint32 type; // Pqa2DBType
    quint32 size; // bytes of the payload
};
#pragma pack(pop)
static_assert(sizeof(Pqa2FileHeader) == 24 && offsetof(Pqa2FileHeader, signature) == 8
                  && offsetof(Pqa2FileHeader, mark1) == 16,
              "as stored");
static_assert(sizeof(Pqa2BlockHead) == 12 && offsetof(Pqa2BlockHead, type) == 4, "as stored");

/// The head that every file begins with.
constexpr Pqa2FileHeader kPqa2FileHeader = {
    { 'P', 'Q', 'A', '2' },
    0x10002009,
    { 0x9B, 0x51, 0x56, 0x52, 0x0D, 0x0A, 0x1A, 0x0A }, // a byte that text lacks, line ends that a text copy would turn
    0xA5A5A5A5,
    0xC3C3C3C3,
};

/// Payload of Pqa2EventHead, and the beginning of that of Pqa2EventCurves.
struct EventHead
{
    qint32 channel;
    qint32 type; // PQAEventType
    qint32 finished;
    float value; // unit of the quantity
    qint64 startTime; // ms since 1970
    qint64 endTime; // ms since 1970
};
static_assert(sizeof(EventHead) == 32, "stored head of an event");
static_assert(offsetof(EventHead, startTime) == 16 && offsetof(EventHead, endTime) == 24, "stored head of an event");

/// What the block kind is called in lists; null for a kind that the format does not have.
const char *pqa2KindName(quint32 type);
