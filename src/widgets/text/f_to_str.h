#pragma once

#include <QString>

/// Every number that a page prints. A value that is no number, is infinite, or is smaller than 0.0001 in magnitude
/// counts as 0; all print in the fixed format. number_V to number_E are those of numberformat.h by the settings in use,
/// so that a page writes the value and the unit text beside it. GUI thread.
class F_to_Str
{
public:
    static QString number_V(float value); // V, scaled; decimals by the voltage range
    static QString number_A(float value); // A, scaled; decimals by clamp and ratio
    static QString number_AN(float value); // the same for the neutral channel
    static QString number_F(float value); // Hz, 2 decimals
    static QString number_Ang(float value); // degrees, 1 decimal
    static QString number_P(float value); // W, var or VA, scaled, 2 decimals
    static QString number_E(float value); // Wh, varh or VAh, scaled, 3 decimals
    static QString number_1(float value);
    static QString number_2(float value);
    static QString number_3(float value);
    static QString number_n(float value, int n); // n decimals
    static QString number1(float value, int n); // n decimals
    /// n significant figures; empty for n = 0. A value of 10^(n-1) and above prints as a whole number below n = 5, and
    /// as that power of ten from n = 5 on.
    static QString number(float value, int n);
    /// a / b in percent, held to 0 .. 100, with n decimals.
    static QString number_percent(float a, float b, int n);

    /// a / b held to 0 .. 1; 0 if b is below 1e-5.
    static float div_s_percent(float a, float b);
    /// a / b; 0 if b is below 1e-5.
    static float div_sn(float a, float b);

    /// Decimals that the resolution of a voltage range with the coefficient `r` (V per converter volt) is worth: 10 V
    /// in 65536 counts. -1 for a resolution above 8.5 V.
    static int precision_num(float r);

    /// Decodes a text with the escapes `\xhh` (lower-case digits), the form in which wireless names arrive, into a
    /// static buffer of 128 bytes and a closing zero.
    static const char *utf8(const QString &text);

    // The same without the settings.
    static float clean(float value);
    static QString scaled(float value, double factor, int decimals);
};
