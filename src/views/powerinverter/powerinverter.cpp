#include "views/powerinverter/powerinverter.h"

#include "device/deviceinit.h"
#include "views/powerinverter/powerinvertermain.h"
#include "views/powerinverter/powerinvertersetup.h"
#include "views/powerinverter/powerinvertertrend.h"

PowerInverter::PowerInverter(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_POWER_INVERTER, { 13, "PowerInverter" }, data,
                    {
                        { make<PowerInverterSetup>,
                          { pass(&PowerInverterSetup::startPowerInverterTask, &PowerInverter::startPowerInverterTask),
                            way(&PowerInverterSetup::goPowerInverterMain, Main) } },
                        { make<PowerInverterMain>, { way(&PowerInverterMain::goPowerInverterTrend, Trend) } },
                        { make<PowerInverterTrend>, { way(&PowerInverterTrend::goPowerInverterMain, Main) } },
                    },
                    parent)
{ }

void PowerInverter::left()
{
    // Queued before what the next function sends.
    DeviceInit::initAnalogDevice2();
}

void PowerInverter::aboutToShow(int row)
{
    if (row == Setup)
        return;
    // The set-up page may have chosen another output.
    page(row)->retranslateUi();
    page(row)->updateDisplay(nullptr);
}
