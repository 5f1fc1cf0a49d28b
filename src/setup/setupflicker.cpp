#include "setup/setupflicker.h"

namespace {
constexpr char kCurve[] = "FLICKER_WEIGHTING_CURVE";
constexpr double kEuropeanLamp = 230; // V; every other number counts as the American one
}

SetupFlicker::SetupFlicker(QWidget *parent)
    : SetupEditor(OkCancel, { QT_TRANSLATE_NOOP("SetupFlicker", "Flicker"), 100, 60, 270 }, { kCurve }, paceOf(kCurve),
                  parent)
{
    setRows({ draft().row("curve", QT_TRANSLATE_NOOP("SetupFlicker", "Plt Weighting Curve"), kCurve, [](double volts) {
        return volts == kEuropeanLamp ? QStringLiteral("50Hz 230V") : QStringLiteral("60Hz 120V");
    }) });
    setNoKeys();
}
