#include "usercase.h"

#include <QSignalSpy>

using namespace UserCase;

/// The container of the user pages: which page opens which, and how all of them are left.
class TstUserPage : public QObject
{
    Q_OBJECT

private slots:
    void opensWithItsListWhicheverPageWasLeftLast();
    void subPagesLeadBackToTheList_data();
    void subPagesLeadBackToTheList();
    void everyPageLeavesForTheOtherFunctions();
    void settingTheTimeRefreshesTheClockLine();
};

void TstUserPage::opensWithItsListWhicheverPageWasLeftLast()
{
    UserPage user(liveData());
    user.enter();
    user.show();
    QCOMPARE(onTop(user), QStringLiteral("UserZiPage"));
    UserCase::press(user, { F1 });
    QCOMPARE(onTop(user), QStringLiteral("UserDatePage"));
    user.enter();
    QCOMPARE(onTop(user), QStringLiteral("UserZiPage"));
}

void TstUserPage::subPagesLeadBackToTheList_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("page");
    QTest::newRow("date") << int(F1) << "UserDatePage";
    QTest::newRow("wired network") << int(F2) << "UserLanPage";
    QTest::newRow("wireless network") << int(F3) << "UserWifiPage";
    QTest::newRow("update") << int(F4) << "UserUpdate";
}

void TstUserPage::subPagesLeadBackToTheList()
{
    QFETCH(int, key);
    UserPage user(liveData());
    user.enter();
    user.show();
    UserCase::press(user, { FrontKey(key) });
    QTEST(onTop(user), "page");
    UserCase::press(user, { F5 });
    QCOMPARE(onTop(user), QStringLiteral("UserZiPage"));
}

void TstUserPage::everyPageLeavesForTheOtherFunctions()
{
    UserPage user(liveData());
    user.enter();
    user.show();
    const struct
    {
        int letter;
        _quvera_ui_type target;
    } exits[] = { { 'E', UI_SCOPE }, { 'A', UI_MENU }, { 'U', UI_MONITOR }, { 'S', UI_SETUP }, { 'R', UI_MEMORY } };
    for (int row = 0; row < user.pageCount(); ++row) {
        user.showPage(row);
        for (const auto &exit : exits) {
            _quvera_ui_type asked = UI_USER;
            const auto tie = connect(&user, &Page::leave, this, [&asked](_quvera_ui_type type) { asked = type; });
            QTest::keyClick(user.currentPage(), Qt::Key(exit.letter));
            disconnect(tie);
            QCOMPARE(asked, exit.target);
        }
    }
}

void TstUserPage::settingTheTimeRefreshesTheClockLine()
{
    UserPage user(liveData());
    user.enter();
    user.show();
    QSignalSpy refreshed(&user, &UserPage::refreshDTime);
    UserCase::press(user, { F1, F5 });
    QCOMPARE(refreshed.count(), 0);
    UserCase::press(user, { F1, F4 });
    QCOMPARE(refreshed.count(), 1);
}

PAGE_TEST_MAIN(TstUserPage)
#include "tst_userpage.moc"
