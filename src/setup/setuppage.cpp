#include "setup/setuppage.h"

#include "device/deviceinit.h"
#include "setup/setupmain.h"
#include "setup/setupmainpage2.h"

SetupPage::SetupPage(const LiveData &data, QWidget *parent)
    : PageStack(UI_SETUP, { 30, "Setup" }, data,
                {
                    { make<SetupMain>,
                      {
                          way(&SetupMain::goSetupNext, Main2),
                      } },
                    { make<SetupMainPage2>,
                      {
                          way(&SetupMainPage2::goSetupPrev, Main),
                      } },
                },
                parent)
{
    // Connected first, so that it comes before whatever the shell does of it: what the next page starts is queued
    // behind the new set-up. Memory, which only stands over this page, counts as well.
    connect(this, &Page::leave, this, &SetupPage::exitSetup);
}

void SetupPage::exitSetup()
{
    DeviceInit::initAnalogDevice2();
    emit settingsLeft();
}
