#include "shellcase.h"

#include "board/qwpactrl.h"
#include "board/wifi.h"
#include "platform/clock.h"
#include "settings/config_data.h"
#include "settings/phasecolor.h"
#include "task/unitask.h"
#include "unit/markedlanguage.h"
#include "unit/widgets/dialogdriver.h"
#include "user/userpage.h"
#include "views/vif/vifmain.h"
#include "visibletexts.h"

/// The user pages in the whole instrument: how they are entered and left, and what their choices change elsewhere.
class TstUserKeys : public ShellCase
{
    Q_OBJECT

private slots:
    void tileLeadsToTheUserPages();
    void enteringAsksForARunningMeasurement();
    void languageChangesEveryTextAtOnce();
    void phaseColorsChangeThePagesShownNext();
    void timeZoneIsSeenOnTheClockLineAtOnce();
    void otherFunctionsAreReachedFromASubPage();

private:
    static UserPage *userPage() { return pageOf<UserPage>(UI_USER); }
    void enterUser()
    {
        moveToTile("user");
        QTest::keyClick(m_basedialog->menu(), kEnter);
        QCOMPARE(top(), static_cast<QWidget *>(userPage()));
    }
    static void press(QList<Qt::Key> letters)
    {
        for (const Qt::Key letter : letters)
            QTest::keyClick(userPage()->currentPage(), letter);
    }
    static QString label(const QWidget *page, const char *name)
    {
        return page->findChild<QLabel *>(QString::fromLatin1(name))->text();
    }
};

void TstUserKeys::tileLeadsToTheUserPages()
{
    enterUser();
    QCOMPARE(title(), QStringLiteral("User"));
    QCOMPARE(label(userPage()->currentPage(), "version"), QStringLiteral("2.2.6"));
    press({ kF7 });
    QCOMPARE(title(), QStringLiteral("Menu"));
}

void TstUserKeys::enteringAsksForARunningMeasurement()
{
    enterVif();
    g_unitask->startTask();
    QTest::keyClick(vifPage()->currentPage(), kF7);
    moveToTile("user");
    {
        DialogAnswer stay(kF5);
        QTest::keyClick(m_basedialog->menu(), kEnter);
        QVERIFY(stay.text.contains("do you want to quit?"));
        QCOMPARE(title(), QStringLiteral("Menu"));
        QVERIFY(m_taskmanage->currentTask());
    }
    DialogAnswer quit(kF4);
    QTest::keyClick(m_basedialog->menu(), kEnter);
    QVERIFY(quit.asked);
    QCOMPARE(title(), QStringLiteral("User"));
    QVERIFY(!m_taskmanage->currentTask());
}

void TstUserKeys::languageChangesEveryTextAtOnce()
{
    vifPage(); // made before, so that it must follow
    for (int row = 0; row < userPage()->pageCount(); ++row)
        userPage()->page(row);
    enterUser();
    MarkedLanguage language(false);
    QCoreApplication::installTranslator(&language);
    language.spoken = true;
    press({ kRight });
    QCOMPARE(m_userConfig_g.getLang(), int(UserConfig::ZH));
    // The page on top, at once.
    QCOMPARE(title(), QStringLiteral("~User"));
    const auto texts = visibleTexts(userPage());
    int captions = 0;
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        if (!it.key().endsWith(QLatin1String("_t")) && !it.key().startsWith(QLatin1String("btn_")))
            continue;
        ++captions;
        QVERIFY2(it.value().startsWith(QLatin1Char('~')), qPrintable(it.key()));
    }
    QVERIFY(captions >= 12);
    // Those behind it.
    for (int row = 0; row < userPage()->pageCount(); ++row) {
        const QString name = label(userPage()->page(row), "title");
        QVERIFY2(name.startsWith(QLatin1Char('~')), qPrintable(name));
    }
    QCOMPARE(label(vifPage()->page(0), "btn_f4"), QStringLiteral("~Trend"));
    QCOMPARE(label(m_basedialog->menu(), "vif_t"), QStringLiteral("~Volts/Amps/Hertz\n"));
    language.spoken = false;
    press({ kLeft });
    QCOMPARE(title(), QStringLiteral("User"));
    QCOMPARE(label(vifPage()->page(0), "btn_f4"), QStringLiteral("Trend"));
}

void TstUserKeys::phaseColorsChangeThePagesShownNext()
{
    enterVif();
    const auto *header = vifPage()->page(0)->findChild<QLabel *>(QStringLiteral("header_1"));
    QVERIFY(header);
    QVERIFY(header->styleSheet().contains(PhaseColor::colorA().name()));
    QTest::keyClick(vifPage()->currentPage(), kF7);
    m_taskmanage->exitTask();
    enterUser();
    DialogDriver blue({ DialogDriver::press("DDDF") }); // L1: three to the right, Ok
    press({ kDown, kDown, kDown, kEnter });
    QVERIFY(blue.isDone());
    QCOMPARE(PhaseColor::colorA(), QColor(Qt::blue));
    press({ kF7 });
    enterVif();
    QVERIFY2(header->styleSheet().contains(QStringLiteral("#0000ff")), qPrintable(header->styleSheet()));
    m_userConfig_g.setPhaseColors(QStringLiteral("01231"));
}

void TstUserKeys::timeZoneIsSeenOnTheClockLineAtOnce()
{
    Clock::setForTest(QDateTime(QDate(2024, 1, 18), QTime(12, 0), Qt::UTC).toMSecsSinceEpoch());
    m_basedialog->refleshtime();
    enterUser();
    press({ kF1, kDown, kDown, kDown, kDown, kDown });
    const QString utc = label(m_basedialog, "datetime");
    QCOMPARE(utc, QStringLiteral("2024-01-18 12:00:00"));
    m_userConfig_g.setTimeZone(QStringLiteral("Asia/Kolkata")); // what a long walk through the list would choose
    QCOMPARE(label(m_basedialog, "datetime"), utc);
    userPage()->currentPage()->init_parameter();
    press({ kF4 });
    QCOMPARE(label(m_basedialog, "datetime"), QStringLiteral("2024-01-18 17:30:00"));
    m_userConfig_g.setTimeZone(QStringLiteral("UTC"));
    Clock::useSystem();
}

void TstUserKeys::otherFunctionsAreReachedFromASubPage()
{
    enterUser();
    press({ kF3 });
    QCOMPARE(Wifi::wpaCtrl->scanInterval(), 1000);
    press({ kF6 });
    QCOMPARE(title(), QStringLiteral("Scope"));
    QCOMPARE(Wifi::wpaCtrl->scanInterval(), 5000); // however the page is left
    m_taskmanage->exitTask();
    m_basedialog->navigator().go(UI_SCOPE, UI_USER);
    QCOMPARE(QString::fromLatin1(userPage()->currentPage()->metaObject()->className()), QStringLiteral("UserZiPage"));
    QCOMPARE(Wifi::wpaCtrl->scanInterval(), 5000);
}

QTEST_MAIN(TstUserKeys)
#include "tst_userkeys.moc"
