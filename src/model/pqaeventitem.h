#pragma once

#include <QList>
#include <QVector>
#include <QtGlobal>

#include <cstddef>
#include <type_traits>

#pragma pack(push, 1)
/// One sample of a quantity. Its stored form is these 12 bytes, little-endian.
struct _value_with_time
{
    qint64 time; // ms since 1970
    float value; // unit of the quantity
};
#pragma pack(pop)
static_assert(sizeof(_value_with_time) == 12 && offsetof(_value_with_time, value) == 8
                  && std::is_trivially_copyable_v<_value_with_time>,
              "stored form of a sample");

/// Kinds of power-quality events; the values are stored in files and served on Modbus.
enum PQAEventType : qint32 {
    EventThd = 0,
    EventHarmonicFirst = 1, // order 2
    EventHarmonicLast = 24, // order 25
    EventRms = 25,
    EventFlicker = 26,
    EventDip = 27,
    EventSwell = 28,
    EventInterruption = 29,
    EventRvc = 30,
    EventUnbalance = 31,
    EventFrequency = 32,
    EventInrush = 33,
    EventMainsSignaling = 34,
};

/// One power-quality event without its curves, as the pages read it.
struct __event_item
{
    qint32 channel = 0; // phase 0 to 3; current events 0 to 2; 0 for frequency and unbalance
    qint32 type = 0; // PQAEventType
    qint32 finished = 0; // 0 running, 1 ended
    float value = 0; // extreme value, in the unit of its quantity
    quint32 startSeconds = 0; // s since 1970
    qint64 startTime = 0; // ms since 1970
    qint64 endTime = 0; // ms since 1970; equals startTime until finished
    qint32 duration = 0; // ms, low 32 bits; 0 until finished
};

static_assert(sizeof(__event_item) == 48 && offsetof(__event_item, value) == 12
                  && offsetof(__event_item, startTime) == 24 && offsetof(__event_item, endTime) == 32
                  && offsetof(__event_item, duration) == 40,
              "the twelve words of a saved event");
static_assert(std::is_trivially_copyable_v<__event_item>, "saved word by word");

/// R.m.s. curve of one input. Thousands of events keep theirs: a vector takes 12 bytes a sample, a list 40.
using RmsCurve = QVector<_value_with_time>;

/// One power-quality event with the r.m.s. curves around its start and its end. Where the two overlap, those of a
/// complete event stand in the first alone and the second is empty.
/// Curves by input: 0 to 3 the voltages L1, L2, L3, N; 4 to 7 the currents I1, I2, I3, IN.
struct PQAEventItem : __event_item
{
    RmsCurve startRms[8];
    RmsCurve endRms[8];
};
