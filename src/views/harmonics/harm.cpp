#include "views/harmonics/harm.h"

#include "views/harmonics/harmmain.h"
#include "views/harmonics/harmmeterpage.h"

harm::harm(const LiveData &data, QWidget *parent)
    : ViewContainer(
        UI_HARMONICS, { 4, "Harmonic" }, data,
        {
            { make<HarmMain>, { way(&HarmMain::goHarmMeter, Meter) } },
            { make<HarmMeterPage>,
              { way(&HarmMeterPage::goHarmMain, Main), pass(&HarmMeterPage::changeFlag, &harm::changeFlag) } },
        },
        parent)
{ }

QByteArray harm::pqaData() const
{
    return QByteArray(reinterpret_cast<const char *>(&shown().harmonics), int(sizeof(harm_data)));
}
