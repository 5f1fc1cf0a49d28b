#include "views/powerinverter/powerinverter.h"

#include "device/deviceinit.h"
#include "model/displayrecords.h"
#include "platform/clock.h"
#include "pages/channellabels.h"
#include "views/powerinverter/inverterfeed.h"
#include "views/powerinverter/powerinvertermain.h"
#include "views/powerinverter/powerinvertersetup.h"
#include "views/powerinverter/powerinvertertrend.h"

PowerInverter::PowerInverter(QWidget *parent)
    : ViewContainer(UI_POWER_INVERTER, { 13, "PowerInverter" }, parent), m_setup(new PowerInverterSetup),
      m_main(new PowerInverterMain), m_trend(new PowerInverterTrend)
{
    addPage(m_setup);
    addPage(m_main);
    addPage(m_trend);
    connect(m_setup, &PowerInverterSetup::startPowerInverterTask, this, &PowerInverter::startPowerInverterTask);
    connect(m_setup, &PowerInverterSetup::goPowerInverterMain, this, &PowerInverter::showPowerInverterMain);
    connect(m_main, &PowerInverterMain::goPowerInverterTrend, this, &PowerInverter::showPowerInverterTrend);
    connect(m_trend, &PowerInverterTrend::goPowerInverterMain, this, &PowerInverter::showPowerInverterMain);

    // The task does not hold this function: the page holds itself, and answers as a task would.
    connect(this, &LivePage::pause, this, [this] { setHeld(true); });
    connect(this, &LivePage::run, this, [this] { setHeld(false); });

    // Whoever leaves takes the processor's usual set-up along, queued before what the next function sends.
    connect(this, &Page::leave, this, [] { DeviceInit::initAnalogDevice2(); });
}

void PowerInverter::setHeld(bool held)
{
    m_held = held;
    if (held)
        emit taskPaused();
    else
        emit taskContinued();
}

void PowerInverter::updateDisplay(void *data)
{
    if (m_held)
        return;
    if (g_pi_data && g_vif_data && g_power_data) {
        const bool single = singleOrThree != 0;
        const int outputs = InverterFeed::outputMask(ChannelLabels::channels().trendFlags(), single);
        InverterFeed::feed(*g_vif_data, *g_power_data, single, outputs, *g_pi_data);
        // Twice a second or more often, also for the same values: the trends take one point in each second.
        if (Clock::seconds() != m_trendSecond) {
            m_trendSecond = Clock::seconds();
            InverterFeed::appendTrends(outputs, *g_pi_data);
        }
    }
    ViewContainer::updateDisplay(data);
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

void PowerInverter::initDisplayParam()
{
    // The address must stay: the pages hold it for the life of the process.
    if (!g_pi_data)
        g_pi_data = new __pi_data;
    *g_pi_data = {};
    m_held = false;
    m_trendSecond = 0;
}
