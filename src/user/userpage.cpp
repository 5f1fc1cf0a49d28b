#include "user/userpage.h"

#include "user/userdatepage.h"
#include "user/userlanpage.h"
#include "user/userupdate.h"
#include "user/userwifipage.h"
#include "user/userzipage.h"

UserPage::UserPage(const LiveData &data, QWidget *parent)
    : PageStack(UI_USER, {}, data,
                {
                    { make<UserZiPage>,
                      {
                          way(&UserZiPage::goUserDate, Date),
                          way(&UserZiPage::goUserLan, Lan),
                          way(&UserZiPage::goUserWLan, WLan),
                          way(&UserZiPage::goUpdate, Update),
                      } },
                    { make<UserDatePage>,
                      {
                          pass(&UserDatePage::timeSet, &UserPage::refreshDTime),
                          back(&UserDatePage::goUserMain),
                      } },
                    { make<UserLanPage>, { back(&UserLanPage::goUserMain) } },
                    { make<UserWifiPage>, { back(&UserWifiPage::goUserMain) } },
                    { make<UserUpdate>, { back(&UserUpdate::goUserMain) } },
                },
                parent)
{ }
