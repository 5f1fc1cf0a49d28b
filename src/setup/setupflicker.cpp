#include "setup/setupflicker.h"

namespace {
constexpr char kCurve[] = "FLICKER_WEIGHTING_CURVE";
}

SetupFlicker::SetupFlicker(QWidget *parent)
    : SetupEditor(OkCancel, { QT_TRANSLATE_NOOP("SetupFlicker", "Flicker"), 100, 60, 270 }, { kCurve }, paceOf(kCurve),
                  parent)
{
    setRows({ draft().row("curve", QT_TRANSLATE_NOOP("SetupFlicker", "Plt Weighting Curve"), kCurve, [](double volts) {
        return SettingValues::lampOf(qRound(volts)) == SettingValues::kEuropeanLamp ? QStringLiteral("50Hz 230V")
                                                                                    : QStringLiteral("60Hz 120V");
    }) });
    setNoKeys();
}
