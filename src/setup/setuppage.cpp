#include "setup/setuppage.h"

#include "device/deviceinit.h"
#include "settings/config_data.h"
#include "setup/setupclamps.h"
#include "setup/setupconfigenterpage.h"
#include "setup/setupconfigpage.h"
#include "setup/setupflicker.h"
#include "setup/setupfunctions.h"
#include "setup/setupinrush.h"
#include "setup/setupkfactor.h"
#include "setup/setuplimits.h"
#include "setup/setupmain.h"
#include "setup/setupmainpage2.h"
#include "setup/setupmainssig.h"
#include "setup/setuptransient.h"
#include "setup/setupvnompage.h"

SetupPage::SetupPage(const LiveData &data, QWidget *parent)
    : PageStack(UI_SETUP, { 30, "Setup" }, data, table(), parent)
{
    // Connected first, so that it comes before whatever the shell does of it: what the next page starts is queued
    // behind the new set-up. Memory, which only stands over this page, counts as well.
    connect(this, &Page::leave, this, &SetupPage::exitSetup);
}

std::vector<SetupPage::SubPage> SetupPage::table()
{
    return {
        { make<SetupMain>,
          { way(&SetupMain::goSetupConfig, Config), pass(&SetupMain::goSetupConfigEnter, &SetupPage::showJoinInUse),
            way(&SetupMain::goSetupVnom, Vnom), way(&SetupMain::goSetupClamp, Clamps),
            way(&SetupMain::goSetupNext, Main2) } },
        { make<SetupMainPage2>,
          { way(&SetupMainPage2::goSetupLimits, Limits), way(&SetupMainPage2::goSetupFunctions, Functions),
            way(&SetupMainPage2::goSetupPrev, Main) } },
        { make<SetupConfigPage>,
          { pass(&SetupConfigPage::goConfigDetail, &SetupPage::showSetupConfigEnter),
            way(&SetupConfigPage::goSetupMain, Main) } },
        { make<SetupConfigEnterPage>,
          { way(&SetupConfigEnterPage::stored, Main),
            pass(&SetupConfigEnterPage::goBack, &SetupPage::backSetupConfig) } },
        { make<SetupVnomPage>, { way(&SetupVnomPage::stored, Main), way(&SetupVnomPage::goBack, Main) } },
        { make<SetupFunctions>,
          { way(&SetupFunctions::goSetupKFactor, KFactor), way(&SetupFunctions::goSetupFlicker, Flicker),
            way(&SetupFunctions::goSetupTransients, Transients), way(&SetupFunctions::goSetupInrush, Inrush),
            way(&SetupFunctions::goSetupMainsSig, MainsSig), way(&SetupFunctions::goBack, Main2) } },
        { make<SetupKFactor>, { back(&SetupKFactor::stored) } },
        { make<SetupFlicker>, { back(&SetupFlicker::stored), back(&SetupFlicker::cancelled) } },
        { make<SetupTransient>, { back(&SetupTransient::stored), back(&SetupTransient::cancelled) } },
        { make<SetupInrush>, { back(&SetupInrush::stored), back(&SetupInrush::cancelled) } },
        { make<SetupMainsSig>, { back(&SetupMainsSig::stored), back(&SetupMainsSig::cancelled) } },
        { make<SetupClamps>, { back(&SetupClamps::closed) } },
        { make<SetupLimits>, { back(&SetupLimits::closed) } },
    };
}

void SetupPage::exitSetup(_quvera_ui_type target)
{
    if (target == uiType())
        return; // its own key leads nowhere
    DeviceInit::initAnalogDevice2();
    emit settingsLeft();
}

void SetupPage::showSetupConfigEnter(int joinMode)
{
    static_cast<SetupConfigEnterPage *>(page(ConfigEnter))->setJoinMode(joinMode);
    showPage(ConfigEnter);
}

void SetupPage::showJoinInUse()
{
    showSetupConfigEnter(m_settingConfig_g.getJoinMode());
}

void SetupPage::backSetupConfig()
{
    const int joinMode = made<SetupConfigEnterPage>(ConfigEnter)->joinMode();
    showPrevious();
    if (currentIndex() == Config)
        made<SetupConfigPage>(Config)->select(joinMode); // the one that was looked at, not the one in use
}
