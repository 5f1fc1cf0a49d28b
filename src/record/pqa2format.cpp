#include "record/pqa2format.h"

#include <algorithm>
#include <iterator>

namespace {

/// A kind of block and its name.
struct Kind
{
    quint32 type;
    const char *name;
};

/// All kinds of the format, in the order of their values.
constexpr Kind kKinds[] = {
    { 0x00000000, "blank" },
    { 0xA1000001, "instrument info" },
    { 0xA1000009, "system log" },
    { 0xA1000010, "system setting" },
    { 0xA1000011, "channel factors" },
    { 0xA1000018, "start" },
    { 0xA1000019, "end" },
    { 0xA1000020, "rms mean" },
    { 0xA1000021, "power mean" },
    { 0xA1000022, "energy" },
    { 0xA1000023, "unbalance mean" },
    { 0xA1000025, "transient" },
    { 0xA1000026, "flicker pst" },
    { 0xA1000027, "flicker plt" },
    { 0xA1000028, "frequency of 10 s mean" },
    { 0xA1000029, "frequency mean" },
    { 0xA100002A, "event waveform" },
    { 0xA1000030, "voltage harmonics 1 to 50 mean" },
    { 0xA1000031, "current harmonics 1 to 50 mean" },
    { 0xA1000032, "voltage harmonics 51 to 100 mean" },
    { 0xA1000033, "current harmonics 51 to 100 mean" },
    { 0xA1000034, "voltage interharmonics 0 to 49 mean" },
    { 0xA1000035, "current interharmonics 0 to 49 mean" },
    { 0xA1000036, "voltage interharmonics 50 to 99 mean" },
    { 0xA1000037, "current interharmonics 50 to 99 mean" },
    { 0xA1000038, "mains signalling mean" },
    { 0xA1000060, "rms maximum" },
    { 0xA1000061, "power maximum" },
    { 0xA1000062, "unbalance maximum" },
    { 0xA1000063, "frequency of 10 s maximum" },
    { 0xA1000064, "frequency maximum" },
    { 0xA1000065, "voltage harmonics 1 to 50 maximum" },
    { 0xA1000066, "current harmonics 1 to 50 maximum" },
    { 0xA1000067, "voltage harmonics 51 to 100 maximum" },
    { 0xA1000068, "current harmonics 51 to 100 maximum" },
    { 0xA1000069, "voltage interharmonics 0 to 49 maximum" },
    { 0xA100006A, "current interharmonics 0 to 49 maximum" },
    { 0xA100006B, "voltage interharmonics 50 to 99 maximum" },
    { 0xA100006C, "current interharmonics 50 to 99 maximum" },
    { 0xA100006D, "mains signalling maximum" },
    { 0xA10000A0, "rms minimum" },
    { 0xA10000A1, "power minimum" },
    { 0xA10000A2, "unbalance minimum" },
    { 0xA10000A3, "frequency of 10 s minimum" },
    { 0xA10000A4, "frequency minimum" },
    { 0xA10000A5, "voltage harmonics 1 to 50 minimum" },
    { 0xA10000A6, "current harmonics 1 to 50 minimum" },
    { 0xA10000A7, "voltage harmonics 51 to 100 minimum" },
    { 0xA10000A8, "current harmonics 51 to 100 minimum" },
    { 0xA10000A9, "voltage interharmonics 0 to 49 minimum" },
    { 0xA10000AA, "current interharmonics 0 to 49 minimum" },
    { 0xA10000AB, "voltage interharmonics 50 to 99 minimum" },
    { 0xA10000AC, "current interharmonics 50 to 99 minimum" },
    { 0xA10000AD, "mains signalling minimum" },
    { 0xA1001000, "angles" },
    { 0xA1001003, "voltage angles" },
    { 0xA1001004, "current angles" },
    { 0xA1001005, "angles between voltage and current" },
    { 0xA1001006, "angles of the third harmonic" },
    { 0xA1001007, "angles of the fifth harmonic" },
    { 0xA1001008, "angles of the seventh harmonic" },
    { 0xA1010000, "monitor frequency" },
    { 0xA1010001, "monitor voltage" },
    { 0xA1010002, "monitor flicker pst" },
    { 0xA1010003, "monitor flicker plt" },
    { 0xA1010004, "monitor unbalance" },
    { 0xA1010005, "monitor harmonics" },
    { 0xA1010006, "monitor second spectrum" },
    { 0xA1010080, "event head" },
    { 0xA1010083, "event with curves" },
};

} // namespace

const char *pqa2KindName(quint32 type)
{
    const auto *kind = std::lower_bound(std::begin(kKinds), std::end(kKinds), type,
                                        [](const Kind &row, quint32 wanted) { return row.type < wanted; });
    return kind != std::end(kKinds) && kind->type == type ? kind->name : nullptr;
}
