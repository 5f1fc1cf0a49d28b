#pragma once

#include <QColor>
#include <QString>

/// Colours of the phases, the neutral conductor and earth, from the five digits of PHASECOLOR. GUI thread.
class PhaseColor
{
public:
    /// Colours of a line in the palette's order.
    enum LINE_COLOR { LineYellow, LineGreen, LineRed, LineBlue, LineGray, LineDarkRed };

    /// Colour indices in use (0 to 5; others fall back phase by phase).
    static int color_a, color_b, color_c, color_n, color_gnd;

    /// Takes the indices from the digits; a text that is not five characters long gives those of "01231".
    static void setPhaseColors(const QString &digits);
    /// The five characters that the indices stand for.
    static QString digits();

    static QColor colorA();
    static QColor colorB();
    static QColor colorC();
    static QColor colorN();
    static QColor colorGND();
    // Curves of voltages
    static QColor colorUA();
    static QColor colorUB();
    static QColor colorUC();
    static QColor colorUN();
    // Curves of currents
    static QColor colorIA();
    static QColor colorIB();
    static QColor colorIC();
    static QColor colorIN();
    /// By channel 0 to 3 (L1, L2, L3, N), 4 earth; another number gives N's.
    static QColor color(int channel);
    static QColor colorU(int channel);
    static QColor colorI(int channel);

    static QColor colorLine(LINE_COLOR line);
};
