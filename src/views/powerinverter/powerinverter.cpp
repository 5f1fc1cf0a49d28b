#include "views/powerinverter/powerinverter.h"

#include "device/deviceinit.h"
#include "views/powerinverter/powerinvertermain.h"
#include "views/powerinverter/powerinvertersetup.h"
#include "views/powerinverter/powerinvertertrend.h"

PowerInverter::PowerInverter(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_POWER_INVERTER, { 13, "PowerInverter" }, data, parent), m_setup(new PowerInverterSetup),
      m_main(new PowerInverterMain(data)), m_trend(new PowerInverterTrend(data))
{
    addPage(m_setup);
    addPage(m_main);
    addPage(m_trend);
    connect(m_setup, &PowerInverterSetup::startPowerInverterTask, this, &PowerInverter::startPowerInverterTask);
    connect(m_setup, &PowerInverterSetup::goPowerInverterMain, this, &PowerInverter::showPowerInverterMain);
    connect(m_main, &PowerInverterMain::goPowerInverterTrend, this, &PowerInverter::showPowerInverterTrend);
    connect(m_trend, &PowerInverterTrend::goPowerInverterMain, this, &PowerInverter::showPowerInverterMain);

    // Whoever leaves takes the processor's usual set-up along, queued before what the next function sends.
    connect(this, &Page::leave, this, [] { DeviceInit::initAnalogDevice2(); });
}

void PowerInverter::showPowerInverterSetup()
{
    showPage(m_setup);
}

void PowerInverter::showPowerInverterMain()
{
    m_main->showTitle(); // the setup page may have chosen another output
    showPage(m_main);
}

void PowerInverter::showPowerInverterTrend()
{
    m_trend->retranslateUi(); // likewise
    m_trend->updateDisplay(nullptr);
    showPage(m_trend);
}
