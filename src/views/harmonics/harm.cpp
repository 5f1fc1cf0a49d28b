#include "views/harmonics/harm.h"

#include "views/harmonics/harmmain.h"
#include "views/harmonics/harmmeterpage.h"

harm::harm(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_HARMONICS, { 4, "Harmonic" }, data, parent), m_main(new HarmMain(data)),
      m_meter(new HarmMeterPage(data))
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

QByteArray harm::pqaData() const
{
    return QByteArray(reinterpret_cast<const char *>(&shown().harmonics), int(sizeof(harm_data)));
}
