#include "views/powerinverter/powerinvertersetup.h"

#include "task/inverterfeed.h"

namespace {
enum { SinglePhase, ThreePhase };
}

PowerInverterSetup::PowerInverterSetup(QWidget *parent)
    : ChoicePage(UI_POWER_INVERTER, OneOf,
                 { QT_TRANSLATE_NOOP("PowerInverterSetup", "Power Inverter"), 240, 160, 60, 220 }, parent)
{
    static const Choice choices[] = {
        { "phase1", QT_TRANSLATE_NOOP("PowerInverterSetup", "1-Phase") },
        { "phase3", QT_TRANSLATE_NOOP("PowerInverterSetup", "3-Phase") },
    };
    static const KeyRow<PowerInverterSetup> keys[] = {
        { Qt::Key_F5, QT_TRANSLATE_NOOP("PowerInverterSetup", "Start"), &PowerInverterSetup::start },
    };
    setChoices(choices);
    setChosen(ThreePhase);
    setKeys(keys);
}

void PowerInverterSetup::load()
{
    setChosen(singleOrThree ? SinglePhase : ThreePhase);
}

void PowerInverterSetup::start()
{
    initInverter();
    startPowerInverter();
    emit goPowerInverterMain();
}

void PowerInverterSetup::initInverter()
{
    singleOrThree = chosen() == SinglePhase ? 1 : 0;
}

void PowerInverterSetup::startPowerInverter()
{
    emit startPowerInverterTask();
}
