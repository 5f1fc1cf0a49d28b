#pragma once

#include "model/channelset.h"
#include "model/datagramrecords.h"

#include <QString>

#include <array>

class QLabel;
class QWidget;

/// Labels that stand once per channel, written by the channel set of the wiring. What the wiring does not have is not
/// written; clearUnused empties it.
namespace ChannelLabels {

using LabelRow = std::array<QLabel *, kChannels>;
using Format = QString (*)(float);

/// The channels of the wiring in force.
const ChannelSet &channels();

/// Labels of a form by number: "%1" of \a pattern is 1 to 4; a missing one stays null.
LabelRow numberedRow(const QWidget *form, const char *pattern);

/// Column headers: "L1" and so on, or "L12" and so on in a delta wiring, in the colours of the phases.
/// \a suffix follows each text, such as ":".
void showHeaders(const LabelRow &row, const QString &suffix = QString());
/// The same for quantities that belong to a voltage and to a current: "L12/L1" and so on in a delta wiring.
void showPairHeaders(const LabelRow &row);
/// Gives the labels the colours of the phases.
void showColors(const LabelRow &row);
void showValues(const LabelRow &row, const float *values, Format format);
void clearUnused(const LabelRow &row);
void clear(const LabelRow &row);

/// Frequency in white; without lock (negative) its magnitude in grey.
void showFrequency(QLabel *label, float frequency, const QString &unit = QStringLiteral("Hz"));

} // namespace ChannelLabels
