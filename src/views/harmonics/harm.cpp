#include "views/harmonics/harm.h"

#include "model/displayrecords.h"
#include "views/harmonics/harmmain.h"
#include "views/harmonics/harmmeterpage.h"

harm::harm(QWidget *parent)
    : ViewContainer(UI_HARMONICS, { 4, "Harmonic" }, parent), m_main(new HarmMain), m_meter(new HarmMeterPage)
{
    addPage(m_main);
    addPage(m_meter);
    connect(m_main, &HarmMain::goHarmMeter, this, &harm::showHarmMeter);
    connect(m_meter, &HarmMeterPage::goHarmMain, this, &harm::showHarmMain);
    connect(m_meter, &HarmMeterPage::changeFlag, this, &harm::changeFlag);
}

void harm::showHarmMain()
{
    showPage(m_main);
}

void harm::showHarmMeter()
{
    showPage(m_meter);
}

void harm::initDisplayParam()
{
    // The address must stay: the task and the pages hold it for the life of the process.
    if (!g_harm_data)
        g_harm_data = new harm_data;
    *g_harm_data = {};
    g_harm_data->reference = 2;
}

QByteArray harm::pqaData() const
{
    return g_harm_data ? QByteArray(reinterpret_cast<const char *>(g_harm_data), int(sizeof(harm_data))) : QByteArray();
}
