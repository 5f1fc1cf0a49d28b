#pragma once

#include "model/displayrecords.h"
#include "widgets/charts/harmonicgraph.h"

/// What the harmonics pages show of a record: percent values, graph bars, lines of the table. Pure functions.
namespace HarmValues {

enum Quantity { Voltage = 1, Current = 2 };
enum Kind { Distortion, Offset, Harmonic, Interharmonic };

/// One bar of the graph or one line of the table.
struct Item
{
    Kind kind = Distortion;
    int order = 1; // 1 to 100; of harmonics and interharmonics
};

/// A line of the table.
struct Line
{
    Quantity quantity = Voltage;
    Item item;
};

/// Block of \a channel 0 to 3 (L1, L2, L3, N).
const HarmChannel &block(const harm_data &data, int quantity, int channel);
/// Volts or amperes r.m.s.; an offset with its sign.
float magnitude(const HarmChannel &block, Item item);
/// Percent of the reference in force, r.m.s. or fundamental, held to 0 .. 100; 0 without a reference.
float percent(const harm_data &data, int quantity, int channel, Item item);

/// THD, DC, then the orders \a first to \a last, with \a inter each followed by its interharmonic.
QList<__graphdata> bars(const harm_data &data, int quantity, int first, int last, bool inter);

/// Lines of the whole table: DC and THD of voltage and current, then the orders up to \a orders of the voltage's
/// harmonics, the current's, and with \a inter of the voltage's interharmonics and the current's.
int lineCount(int orders, bool inter);
/// The line at \a index, 0 to lineCount - 1.
Line line(int index, int orders);

} // namespace HarmValues
