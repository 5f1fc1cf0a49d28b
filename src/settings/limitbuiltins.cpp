#include "settings/limitbuiltins.h"

namespace {

constexpr int kHarmonicRows = 25;
constexpr float kNone = 100.1f; // a whole limit that is not applied

/// Percent of the fundamental. Row 1 is the distortion, row k order k.
struct HarmonicRow
{
    float partial, whole;
};

const HarmonicRow kEn50160Rows[kHarmonicRows] = {
    { 8, 8 },        { 2, kNone },    { 5, kNone },    { 1, kNone },    { 6, kNone }, // 1 to 5
    { 0.5f, kNone }, { 5, kNone },    { 0.5f, kNone }, { 1.5f, kNone }, { 0.5f, kNone }, // 6 to 10
    { 3.5f, kNone }, { 0.5f, kNone }, { 3, kNone },    { 0.5f, kNone }, { 0.5f, kNone }, // 11 to 15
    { 0.5f, kNone }, { 2, kNone },    { 0.5f, kNone }, { 1.5f, kNone }, { 0.5f, kNone }, // 16 to 20
    { 0.5f, kNone }, { 0.5f, kNone }, { 1.5f, kNone }, { 0.5f, kNone }, { 1.5f, kNone }, // 21 to 25
};

const HarmonicRow kGost32144Rows[kHarmonicRows] = {
    { 8, 12 },       { 2, 3 },       { 5, 7.5f },     { 1, 1.5f },     { 6, 9 }, // 1 to 5
    { 0.5f, 0.75f }, { 5, 7.5f },    { 0.5f, 0.75f }, { 1.5f, 2.25f }, { 0.5f, 0.75f }, // 6 to 10
    { 3.5f, 5.25f }, { 0.2f, 0.3f }, { 3, 4.5f },     { 0.2f, 0.3f },  { 0.3f, 0.45f }, // 11 to 15
    { 0.2f, 0.3f },  { 2, 3 },       { 0.2f, 0.3f },  { 1.5f, 2.25f }, { 0.2f, 0.3f }, // 16 to 20
    { 0.2f, 0.3f },  { 0.2f, 0.3f }, { 1.5f, 2.25f }, { 0.2f, 0.3f },  { 1.5f, 2.25f }, // 21 to 25
};

void takeRows(monitor_limit &limit, const HarmonicRow (&rows)[kHarmonicRows])
{
    limit.harmonicCount = kHarmonicRows;
    for (int i = 0; i < kHarmonicRows; ++i) {
        limit.harmonicNep[i] = 95;
        limit.harmonicPartial[i] = rows[i].partial;
        limit.harmonicWhole[i] = rows[i].whole;
    }
}

/// What both sets share.
monitor_limit common()
{
    monitor_limit limit {};
    limit.dips = { 90, 2, 20 };
    limit.swells = { 110, 2, 20 };
    limit.rvc = { 0.2f, 1, 5, 1, 70 };
    limit.frequency1 = { 1375, 99, 5, kNone };
    limit.frequency2 = { 285, 99, 9, kNone };
    return limit;
}

} // namespace

monitor_limit LimitBuiltins::en50160()
{
    monitor_limit limit = common();
    limit.voltage = { 95, 10, 10, 10, 15 };
    takeRows(limit, kEn50160Rows);
    limit.plt = { 95, 1, kNone, 20 };
    limit.pst = { 95, 20, kNone, 20 };
    limit.interruptions = { 1, 2, 2 };
    limit.neg = { 95, 2, kNone };
    limit.zero = { 95, 100, kNone };
    limit.frequency = { 95, 1, 4, 1, 6 };
    return limit;
}

monitor_limit LimitBuiltins::gost32144()
{
    monitor_limit limit = common();
    limit.voltage = { 100, 10, kNone, 10, kNone };
    takeRows(limit, kGost32144Rows);
    limit.plt = { 100, 1, kNone, 20 };
    limit.pst = { 100, 1.38f, kNone, 20 };
    limit.interruptions = { 5, 2, 2 };
    limit.neg = { 95, 2, 4 };
    limit.zero = { 95, 2, 4 };
    limit.frequency = { 95, 0.4f, 0.4f, 0.8f, 0.8f };
    return limit;
}
