#include "usercase.h"

#include "board/backlight.h"
#include "board/wifi.h"
#include "settings/langtranslation.h"
#include "settings/phasecolor.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/ordinaryuser.h"
#include "user/phasecolorpalette.h"
#include "user/userzipage.h"

#include <QSignalSpy>

#include <memory>

using namespace UserCase;

/// The main list of the user pages: what its lines show, and what a key on each of them does.
class TstUserZiPage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_page.reset(); }
    void linesShowWhatIsSet();
    void languageIsStoredAndEverythingIsToldAtOnce();
    void languageStopsAtBothEnds();
    void languageGoesThroughAllFourteenNames();
    void sleepTimeIsStoredAndTheLightGoesDownAfterIt();
    void sleepTimeStopsAtBothEnds();
    void lightFollowsTheArrowsAndEnterGoesRound();
    void userNameIsTypedAndStored();
    void userNameCannotBeEmpty();
    void userNameHas32SignsAtMost();
    void cancelledNameLeavesTheFileUntouched();
    void longNameIsCutOnTheScreenOnly();
    void phaseColorsAreChosenInTheirDialog();
    void wiredStateFollowsTheCable();
    void wirelessStateIsTheDaemonsWordOrDisconnected();
    void softKeysAndEnterOpenTheSubPages();
    void readOnlyFileKeepsWhatItHolds();
    void removedFileIsWrittenAnew();
    void fullCardKeepsTheOldFile();

private:
    void select(int row) { PageTest::press(m_page.get(), Down, row); }
    QString shown(const char *name) const { return PageTest::text(m_page.get(), QString::fromLatin1(name)); }
    /// What a program that starts now would read.
    static UserConfig stored() { return UserConfig(); }

    std::unique_ptr<UserZiPage> m_page;
};

namespace {

enum Line { Language, Sleep, Light, Colors, Name, Date, Lan, WLan, Version };

} // namespace

void TstUserZiPage::init()
{
    removeFile(kUserFile);
    m_userConfig_g = UserConfig();
    BackLight::setBackLightDeley(0);
    BackLight::setBackLight(3);
    m_page = std::make_unique<UserZiPage>();
    m_page->init_parameter();
    m_page->show();
}

void TstUserZiPage::linesShowWhatIsSet()
{
    QCOMPARE(shown("language"), QStringLiteral("English"));
    QCOMPARE(shown("sleep"), QStringLiteral("OFF"));
    QCOMPARE(shown("user_name"), QStringLiteral("root"));
    QCOMPARE(shown("version"), QStringLiteral("2.2.6"));
    const auto *palette = m_page->findChild<PhaseColorPalette *>();
    QCOMPARE(palette->colors().size(), 5);
    QCOMPARE(palette->colors().at(2), QColor(Qt::red)); // L3 of the digits "01231"
    QCOMPARE(palette->colors().at(4), QColor(Qt::green));
}

void TstUserZiPage::languageIsStoredAndEverythingIsToldAtOnce()
{
    QSignalSpy told(&languageTranslator, &LangTranslation::languageChanged);
    PageTest::press(m_page.get(), Right);
    QCOMPARE(told.count(), 1);
    QCOMPARE(m_userConfig_g.getLang(), int(UserConfig::ZH));
    QCOMPARE(stored().getLang(), int(UserConfig::ZH));
    QCOMPARE(shown("language"), QStringLiteral("Chinese"));
    PageTest::press(m_page.get(), Left);
    QCOMPARE(told.count(), 2);
    QCOMPARE(stored().getLang(), int(UserConfig::EN));
}

void TstUserZiPage::languageStopsAtBothEnds()
{
    QSignalSpy told(&languageTranslator, &LangTranslation::languageChanged);
    PageTest::press(m_page.get(), Left);
    QCOMPARE(told.count(), 0);
    QCOMPARE(content(kUserFile), QByteArray("no such file"));
    PageTest::press(m_page.get(), Right, 20);
    QCOMPARE(told.count(), 13);
    QCOMPARE(stored().getLang(), int(UserConfig::IT));
}

void TstUserZiPage::languageGoesThroughAllFourteenNames()
{
    const QStringList names { "English", "Chinese",    "Polski", "Portuguese", "Korean",  "Turkish",  "French",
                              "Spanish", "Portuguese", "German", "Spanish",    "Russian", "Japanese", "Italian" };
    for (const QString &name : names) {
        QCOMPARE(shown("language"), name);
        PageTest::press(m_page.get(), Right);
    }
}

void TstUserZiPage::sleepTimeIsStoredAndTheLightGoesDownAfterIt()
{
    select(Sleep);
    PageTest::press(m_page.get(), Right);
    QCOMPARE(shown("sleep"), QStringLiteral("5 s"));
    QCOMPARE(stored().sleepDelay(), 5);
    QTRY_VERIFY_WITH_TIMEOUT(BackLight::isShut(), 9000);
    PageTest::press(m_page.get(), Left); // only wakes
    QCOMPARE(stored().sleepDelay(), 5);
    PageTest::press(m_page.get(), Left);
    QCOMPARE(stored().sleepDelay(), 0);
    QCOMPARE(shown("sleep"), QStringLiteral("OFF"));
}

void TstUserZiPage::sleepTimeStopsAtBothEnds()
{
    select(Sleep);
    for (const char *text : { "5 s", "15 s", "30 s", "60 s", "60 s" }) {
        PageTest::press(m_page.get(), Right);
        QCOMPARE(shown("sleep"), QString::fromLatin1(text));
    }
    PageTest::press(m_page.get(), Left, 6);
    QCOMPARE(shown("sleep"), QStringLiteral("OFF"));
}

void TstUserZiPage::lightFollowsTheArrowsAndEnterGoesRound()
{
    const QString brightness = QStringLiteral("/sys/class/backlight/backlight/brightness");
    select(Light);
    QCOMPARE(shown("light"), QStringLiteral("4 / 4"));
    PageTest::press(m_page.get(), Right); // the end
    QCOMPARE(content(brightness).left(1), QByteArray("7"));
    PageTest::press(m_page.get(), Left);
    QCOMPARE(content(brightness).left(1), QByteArray("5"));
    QCOMPARE(shown("light"), QStringLiteral("3 / 4"));
    PageTest::press(m_page.get(), Left, 5);
    QCOMPARE(content(brightness).left(1), QByteArray("1"));
    PageTest::press(m_page.get(), Enter); // the light key: from the lowest to the highest
    QCOMPARE(content(brightness).left(1), QByteArray("7"));
}

void TstUserZiPage::userNameIsTypedAndStored()
{
    select(Name);
    DialogDriver typing({ DialogDriver::press("KDKF") }); // q, w, Ok
    PageTest::press(m_page.get(), Enter);
    QVERIFY(typing.isDone());
    QCOMPARE(shown("user_name"), QStringLiteral("rootqw"));
    QCOMPARE(stored().getUserName(), QStringLiteral("rootqw"));
}

void TstUserZiPage::userNameCannotBeEmpty()
{
    select(Name);
    DialogDriver typing({ DialogDriver::press("YPFKF") }); // Clear, a blank, Ok is refused, q, Ok
    PageTest::press(m_page.get(), Enter);
    QVERIFY(typing.isDone());
    QCOMPARE(stored().getUserName(), QStringLiteral("q"));
}

void TstUserZiPage::cancelledNameLeavesTheFileUntouched()
{
    const QByteArray before = "\nUSER_NAME=Ann\nTZ=UTC";
    writeFile(kUserFile, before);
    m_userConfig_g = UserConfig();
    select(Name);
    DialogDriver typing({ DialogDriver::press("KKL") });
    PageTest::press(m_page.get(), Enter);
    QVERIFY(typing.isDone());
    QCOMPARE(content(kUserFile), before);
    QCOMPARE(shown("user_name"), QStringLiteral("Ann"));
}

void TstUserZiPage::longNameIsCutOnTheScreenOnly()
{
    const QString name(32, QLatin1Char('W'));
    m_userConfig_g.setUserName(name);
    m_page->init_parameter();
    const auto *label = m_page->findChild<QLabel *>(QStringLiteral("user_name"));
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
    QVERIFY(label->text().startsWith(QStringLiteral("WWWW")));
    QCOMPARE(stored().getUserName(), name);
}

void TstUserZiPage::phaseColorsAreChosenInTheirDialog()
{
    select(Colors);
    DialogDriver choosing({ DialogDriver::press("DDF") }); // L1: two to the right, Ok
    PageTest::press(m_page.get(), Enter);
    QVERIFY(choosing.isDone());
    QCOMPARE(stored().getPhaseColors(), QStringLiteral("21231"));
    QCOMPARE(m_page->findChild<PhaseColorPalette *>()->colors().first(), QColor(Qt::red));
}

void TstUserZiPage::wiredStateFollowsTheCable()
{
    QDir().mkpath(Target::path(QStringLiteral("/sys/class/net/eth0")));
    const QString carrier = QStringLiteral("/sys/class/net/eth0/carrier");
    writeFile(carrier, "1\n");
    QTRY_COMPARE_WITH_TIMEOUT(shown("lan"), QStringLiteral("Connected"), 3000);
    writeFile(carrier, "0\n");
    QTRY_COMPARE_WITH_TIMEOUT(shown("lan"), QStringLiteral("Disconnected"), 3000);
}

void TstUserZiPage::wirelessStateIsTheDaemonsWordOrDisconnected()
{
    Wifi service;
    QCOMPARE(shown("wlan"), QStringLiteral("Disconnected"));
    Wifi::status.wpa_state = QStringLiteral("COMPLETED");
    m_page->init_parameter();
    QCOMPARE(shown("wlan"), QStringLiteral("COMPLETED"));
    Wifi::status.wpa_state = QStringLiteral("SCANNING");
    m_page->init_parameter();
    QCOMPARE(shown("wlan"), QStringLiteral("Disconnected"));
}

void TstUserZiPage::softKeysAndEnterOpenTheSubPages()
{
    QSignalSpy date(m_page.get(), &UserZiPage::goUserDate), lan(m_page.get(), &UserZiPage::goUserLan),
        wlan(m_page.get(), &UserZiPage::goUserWLan), update(m_page.get(), &UserZiPage::goUpdate);
    for (const FrontKey key : { F1, F2, F3, F4 })
        PageTest::press(m_page.get(), key);
    for (QSignalSpy *spy : { &date, &lan, &wlan, &update })
        QCOMPARE(spy->count(), 1);
    select(Date);
    for (int i = 0; i < 4; ++i) {
        PageTest::press(m_page.get(), Enter);
        PageTest::press(m_page.get(), Down);
    }
    for (QSignalSpy *spy : { &date, &lan, &wlan, &update })
        QCOMPARE(spy->count(), 2);
}

void TstUserZiPage::readOnlyFileKeepsWhatItHolds()
{
    const QByteArray before = "LANG=EN\nUSER_NAME=Ann\n";
    writeFile(kUserFile, before);
    m_userConfig_g = UserConfig();
    OrdinaryUser rights;
    rights.setFolderMode(QFile::encodeName(Target::path(QStringLiteral("/mnt/userfs/config"))), 0555);
    PageTest::press(m_page.get(), Right);
    select(Sleep);
    PageTest::press(m_page.get(), Right);
    QCOMPARE(content(kUserFile), before);
    // What was chosen lasts until the next start.
    QCOMPARE(shown("language"), QStringLiteral("Chinese"));
    QCOMPARE(shown("sleep"), QStringLiteral("5 s"));
}

void TstUserZiPage::removedFileIsWrittenAnew()
{
    m_userConfig_g.setUserName(QStringLiteral("Ann"));
    removeFile(kUserFile);
    select(Sleep);
    PageTest::press(m_page.get(), Right);
    QCOMPARE(content(kUserFile), QByteArray("\nSLEEP=5"));
    QCOMPARE(shown("user_name"), QStringLiteral("Ann"));
}

void TstUserZiPage::fullCardKeepsTheOldFile()
{
    const QByteArray before = "LANG=EN\nUSER_NAME=Ann\n";
    writeFile(kUserFile, before);
    m_userConfig_g = UserConfig();
    {
        FileLimit full(10);
        PageTest::press(m_page.get(), Right);
    }
    QCOMPARE(content(kUserFile), before);
    PageTest::press(m_page.get(), Left);
    QCOMPARE(stored().getLang(), int(UserConfig::EN));
    QCOMPARE(stored().getUserName(), QStringLiteral("Ann"));
}

void TstUserZiPage::userNameHas32SignsAtMost()
{
    select(Name);
    DialogDriver typing({ type(QStringLiteral("q").repeated(33)) });
    PageTest::press(m_page.get(), Enter);
    QCOMPARE(stored().getUserName(), QStringLiteral("q").repeated(32));
}

PAGE_TEST_MAIN(TstUserZiPage)
#include "tst_userzipage.moc"
