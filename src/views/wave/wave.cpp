#include "views/wave/wave.h"

#include "settings/waveinfo.h"
#include "views/wave/wavemain.h"
#include "views/wave/wavesetup.h"

Wave::Wave(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_WAVE, { 10, "Wave" }, data,
                    {
                        { make<WaveSetup>, { way(&WaveSetup::goWaveMain, Main, &Wave::start) } },
                        { make<WaveMain>,
                          { pass(&WaveMain::stopTaskWithSave, &Wave::stopTaskWithSave),
                            pass(&WaveMain::exitTask, &Wave::exitTask), way(&WaveMain::goWaveSetup, Setup) } },
                    },
                    parent)
{ }

void Wave::enter()
{
    showPage(WaveInfo::m_in_waving ? Main : Setup);
}

void Wave::aboutToShow(int row)
{
    if (row == Setup)
        static_cast<WaveSetup *>(page(Setup))->beginSetup();
}

void Wave::start()
{
    WaveInfo::m_in_waving = 1;
    emit startWaveTask();
    static_cast<WaveMain *>(page(Main))->beginCapture();
}

void Wave::taskStoped()
{
    if (!WaveInfo::m_in_waving)
        return;
    WaveInfo::m_in_waving = 0;
    if (auto *main = made<WaveMain>(Main))
        main->taskStoped();
}
