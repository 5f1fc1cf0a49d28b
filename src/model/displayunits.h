#pragma once

#include <QString>

/// Factors and labels with which the values of one kind of channel are shown. Shown number = SI value x factor.
struct DisplayUnits
{
    double factorVolt = 1.0;
    double factorAmpere = 1.0;
    double factorWatt = 1.0; // W, VA, var
    double factorWattHour = 1.0; // Wh, VAh, varh
    QString volt = QStringLiteral("V");
    QString ampere = QStringLiteral("A");
    QString watt = QStringLiteral("W");
    QString voltAmpere = QStringLiteral("VA");
    QString var = QStringLiteral("var");
    QString wattHour = QStringLiteral("Wh");
    QString voltAmpereHour = QStringLiteral("VAh");
    QString varHour = QStringLiteral("varh");
};

/// The choice of units and decimals from the size of a full-scale value.
namespace DisplayScale {
/// Takes the voltage unit for `fullScale` volts.
void chooseVolt(DisplayUnits &units, float fullScale);
/// Takes the current unit. Kept: the larger prefix belongs to the smaller number, since `fullScale` is the
/// clamp's ratio (uV/A) over the current ratio.
void chooseAmpere(DisplayUnits &units, float fullScale);
/// Takes the six power and energy units for `fullScale` (product of the two numbers above).
void choosePower(DisplayUnits &units, float fullScale);
/// Decimals of a current for `fullScale` as in chooseAmpere and the factor chosen there.
int currentDigits(float fullScale, double factorAmpere);
}
