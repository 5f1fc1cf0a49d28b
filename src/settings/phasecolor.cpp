#include "settings/phasecolor.h"

namespace {

struct Palette
{
    QRgb plain, volt, ampere;
};
constexpr Palette kPalette[] = {
    { 0xffffff00, 0xfffafa00, 0xffe6e650 }, // yellow
    { 0xff00ff00, 0xff00fa00, 0xff50e650 }, // green
    { 0xffff0000, 0xfffa0000, 0xffe65050 }, // red
    { 0xff0000ff, 0xff0000fa, 0xff5050e6 }, // blue
    { 0xffa0a0a4, 0xffa0a0a4, 0xffa0a0a4 }, // gray
    { 0xff800000, 0xff800000, 0xff800000 }, // dark red
};
constexpr int kColors = 6;

// Index beyond the palette: A yellow, B green, C and N (and earth) red.
constexpr int kFallBack[] = { 0, 1, 2, 2, 2 };
constexpr char kDefaultDigits[] = "01231";

int indexOf(int channel)
{
    const int indices[]
        = { PhaseColor::color_a, PhaseColor::color_b, PhaseColor::color_c, PhaseColor::color_n, PhaseColor::color_gnd };
    const int place = channel >= 0 && channel <= 4 ? channel : 3;
    const int index = indices[place];
    return index >= 0 && index < kColors ? index : kFallBack[place];
}

} // namespace

int PhaseColor::color_a = 0;
int PhaseColor::color_b = 1;
int PhaseColor::color_c = 2;
int PhaseColor::color_n = 3;
int PhaseColor::color_gnd = 1;

void PhaseColor::setPhaseColors(const QString &digits)
{
    const QString used = digits.size() == 5 ? digits : QString::fromLatin1(kDefaultDigits);
    int *const indices[] = { &color_a, &color_b, &color_c, &color_n, &color_gnd };
    for (int i = 0; i < 5; ++i)
        *indices[i] = used.at(i).unicode() - '0';
}

QString PhaseColor::digits()
{
    QString text;
    for (const int index : { color_a, color_b, color_c, color_n, color_gnd })
        text += QChar(ushort('0' + index));
    return text;
}

QColor PhaseColor::color(int channel)
{
    return QColor(kPalette[indexOf(channel)].plain);
}

QColor PhaseColor::colorU(int channel)
{
    return QColor(kPalette[indexOf(channel)].volt);
}

QColor PhaseColor::colorI(int channel)
{
    return QColor(kPalette[indexOf(channel)].ampere);
}

QColor PhaseColor::colorA()
{
    return color(0);
}

QColor PhaseColor::colorB()
{
    return color(1);
}

QColor PhaseColor::colorC()
{
    return color(2);
}

QColor PhaseColor::colorN()
{
    return color(3);
}

QColor PhaseColor::colorGND()
{
    return color(4);
}

QColor PhaseColor::colorUA()
{
    return colorU(0);
}

QColor PhaseColor::colorUB()
{
    return colorU(1);
}

QColor PhaseColor::colorUC()
{
    return colorU(2);
}

QColor PhaseColor::colorUN()
{
    return colorU(3);
}

QColor PhaseColor::colorIA()
{
    return colorI(0);
}

QColor PhaseColor::colorIB()
{
    return colorI(1);
}

QColor PhaseColor::colorIC()
{
    return colorI(2);
}

QColor PhaseColor::colorIN()
{
    return colorI(3);
}

QColor PhaseColor::colorLine(LINE_COLOR line)
{
    if (line == LineBlue)
        return QColor(0x0a, 0x0a, 0xfa); // unlike black on a dark screen
    if (line < LineYellow || line > LineDarkRed)
        return QColor(kPalette[LineRed].plain);
    return QColor(kPalette[line].plain);
}
