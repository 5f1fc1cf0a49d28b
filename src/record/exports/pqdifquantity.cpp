#include "record/exports/pqdifquantity.h"

namespace {

using namespace PqdifValue;

constexpr quint32 kVoltsByVolts = 37, kAllPhases = 13;

struct Row
{
    const char *stem;
    PqdifMeasured measured;
    PqdifId characteristic;
    quint32 phase = 0; // where the table has no channel
    quint32 unit = 0; // where the table's has no number
    int group = -1;
};

constexpr PqdifMeasured kU = PqdifMeasured::Voltage, kI = PqdifMeasured::Current, kP = PqdifMeasured::Power,
                        kE = PqdifMeasured::Energy;

// The offset is the line at 0 Hz, the fundamental the harmonic of order 1: there are no characteristics for them.
constexpr Row kRows[] = {
    { "f", kU, kQcFrequency },
    { "U_rms", kU, kQcRms },
    { "I_rms", kI, kQcRms },
    { "U_peak", kU, kQcPeak },
    { "I_peak", kI, kQcPeak },
    { "U_crest", kU, kQcCrestFactor },
    { "I_crest", kI, kQcCrestFactor },
    { "U_offset", kU, kQcSpectraHgroup, 0, 0, 0 },
    { "I_offset", kI, kQcSpectraHgroup, 0, 0, 0 },
    { "U_fundamental", kU, kQcSpectraHgroup, 0, 0, 1 },
    { "I_fundamental", kI, kQcSpectraHgroup, 0, 0, 1 },
    { "U_angle", kU, kQcAngleFund },
    { "I_angle", kI, kQcAngleFund },
    { "UI_angle", kP, kQcAngleFund },
    { "UI_angle_h", kP, kQcNone },
    { "P", kP, kQcP },
    { "Q", kP, kQcQ },
    { "S", kP, kQcS },
    { "PF", kP, kQcPf },
    { "cos_phi", kP, kQcDf },
    { "tan_phi", kP, kQcNone },
    { "EP", kE, kQcPIntg },
    { "EQ", kE, kQcQIntg },
    { "ES", kE, kQcSIntg },
    { "Pst", kU, kQcFlkrPst },
    { "Plt", kU, kQcFlkrPlt },
    { "U_positive", kU, kQcSpos, kAllPhases },
    { "U_negative", kU, kQcSneg, kAllPhases },
    { "U_zero", kU, kQcSzero, kAllPhases },
    { "U_negative_ratio", kU, kQcS2s1, kAllPhases },
    { "U_zero_ratio", kU, kQcS0s1, kAllPhases },
    { "I_positive", kI, kQcSpos, kAllPhases },
    { "I_negative", kI, kQcSneg, kAllPhases },
    { "I_zero", kI, kQcSzero, kAllPhases },
    { "I_negative_ratio", kI, kQcS2s1, kAllPhases },
    { "I_zero_ratio", kI, kQcS0s1, kAllPhases },
    { "U_signal1", kU, kQcSpectra },
    { "U_signal2", kU, kQcSpectra },
    // By the nominal voltage of the secondary side: behind a transformer not "per unit".
    { "U_signal1_ratio", kU, kQcSpectra, 0, kVoltsByVolts },
    { "U_signal2_ratio", kU, kQcSpectra, 0, kVoltsByVolts },
    { "U_distortion", kU, kQcHrms },
    { "I_distortion", kI, kQcHrms },
    { "U_THD", kU, kQcTotalThd },
    { "I_THD", kI, kQcTotalThd },
    { "Uh_angle", kU, kQcSpectraHgroup },
    { "Ih_angle", kI, kQcSpectraHgroup },
    { "Uh", kU, kQcSpectraHgroup },
    { "Ih", kI, kQcSpectraHgroup },
    { "Uih", kU, kQcSpectraIgroup },
    { "Iih", kI, kQcSpectraIgroup },
};

/// Without the order, wherever it stands: "Uh_angle" of "Uh05_angle".
QByteArray stemOf(const RecordColumn &column)
{
    if (column.order < 0)
        return column.quantity;
    QByteArray stem;
    for (const char letter : column.quantity) {
        if (letter < '0' || letter > '9')
            stem += letter;
    }
    return stem;
}

} // namespace

PqdifQuantity pqdifQuantity(const RecordColumn &column)
{
    PqdifQuantity quantity;
    quantity.stem = stemOf(column);
    quantity.unit = pqdifUnit(column.unit);
    quantity.phase = pqdifPhase(column.channel);
    quantity.group = column.order;
    for (const Row &row : kRows) {
        if (quantity.stem != row.stem)
            continue;
        quantity.measured = row.measured;
        quantity.characteristic = row.characteristic;
        if (column.channel.isEmpty())
            quantity.phase = row.phase;
        if (quantity.unit == 0)
            quantity.unit = row.unit;
        if (row.group >= 0)
            quantity.group = row.group;
        // In percent of the fundamental the sum of all harmonics has a name of its own.
        if (column.unit == "percent" && quantity.stem == "U_distortion")
            quantity.characteristic = kQcTotalThd;
    }
    return quantity;
}
