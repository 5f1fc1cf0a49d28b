#include "limitcase.h"

#include "unit/storage/filelimit.h"
#include "unit/storage/ordinaryuser.h"

#include <QSignalSpy>

using namespace LimitCase;

/// The pages of a limit set's values, and what they write.
class TstLimitEditing : public Pages
{
    Q_OBJECT

private slots:
    void init() { openPage(); }
    void theItemsOfASetAreListed();
    void valuesOfABuiltInSetAreOnlyLookedAt();
    void editedValuesAreStoredInTheirForm();
    void whatWasNotEditedKeepsItsDigits();
    void cancelOnAPageOfValuesDropsThatPage();
    void cancelOnTheItemsDropsEverything();
    void leavingByAFunctionKeyDropsTheDraft();
    void aHeldKeyGrowsAndStopsAtNotApplied();
    void harmonicsAreEditedByColumns();
    void listsBeginAtTheirTopEachTimeTheyAreOpened();
    void aSetWithoutHarmonicRowsHasNone();
    void theLampIsThatOfTheCurve();
    void theSetInUseFollowsItsEditedValues();

    void filesThatCannotBeWrittenKeepTheStateShown_data();
    void filesThatCannotBeWrittenKeepTheStateShown();
    void aFileThatWasTakenAwayIsWrittenAgain();
};

void TstLimitEditing::theItemsOfASetAreListed()
{
    press(menu(), Enter);
    QCOMPARE(shown("title"), QStringLiteral("EN50160"));
    QCOMPARE(lines(),
             QStringList({ "Voltage", "Harmonics", "Flicker", "Dips", "Swells", "Interruptions", "RVC", "Unbalance",
                           "Frequency", "Mains Signaling" }));
    QCOMPARE(lines(1), QStringList({ "+10.0 %", "", "1.00", "", "", "", "", "2.0 %", "+1.0 %", "1375 Hz" }));
    QCOMPARE(lines(2),
             QStringList({ "-10.0 %", "8.00 %", "20.00", "90.0 %", "110.0 %", "1.0 %", "5.0 %", "100.0 %", "-1.0 %",
                           "285 Hz" }));
}

void TstLimitEditing::valuesOfABuiltInSetAreOnlyLookedAt()
{
    const QByteArray before = files();
    press(menu(), Enter);
    for (const Item item : { Voltage, Harmonics, Dips }) {
        openItem(item);
        QCOMPARE(shown("btn_f4"), QString());
        QCOMPARE(shown("btn_f5"), QStringLiteral("Back"));
        const QStringList before = allTexts();
        press(top(), Right, 3);
        press(top(), Left, 1);
        QCOMPARE(allTexts(), before);
        press(top(), F4);
        QCOMPARE(m_page->currentIndex(), SetupLimits::FirstItem + item);
        press(top(), F5);
    }
    QCOMPARE(shown("btn_f4"), QString());
    press(top(), F4);
    QVERIFY(qobject_cast<LimitItemsPage *>(top()));
    press(top(), F5);
    QCOMPARE(top(), menu());
    QCOMPARE(files(), before);
    QCOMPARE(limitOf("EN50160").voltage.nep, 95.0f);
    QCOMPARE(limitOf("EN50160").dips.threshold, 90.0f);
}

void TstLimitEditing::editedValuesAreStoredInTheirForm()
{
    addSet("Mine");
    press(menu(), Enter);
    openItem(Dips);
    QCOMPARE(shown("threshold_note"), QStringLiteral("207.0 V"));
    press(top(), Left, 5);
    QCOMPARE(shown("threshold"), QStringLiteral("89.5 %"));
    press(top(), Down, 2);
    press(top(), Right);
    QCOMPARE(shown("max_allowed"), QStringLiteral("21"));
    press(top(), F4);
    QCOMPARE(lines(2).at(Dips), QStringLiteral("89.5 %"));
    openItem(Flicker);
    press(top(), Down, 4);
    press(top(), Left);
    QCOMPARE(shown("pst_partial"), QStringLiteral("19.99"));
    press(top(), F4);
    QCOMPARE(limitOf("Mine").dips.threshold, 90.0f); // a draft so far
    press(top(), F4);
    QCOMPARE(top(), menu());
    QCOMPARE(limitOf("Mine").dips.threshold, 89.5f);
    const QByteArray file = RootFiles::read(kFolder + "Mine.xml");
    // Lines written by hand, as the format's page has them.
    QVERIFY(file.startsWith("<?xml version = \"1.0\" encoding=\"utf-8\"?>\n<limits verison=\"1.0\" name=\"Mine\">\n"));
    QVERIFY(file.contains("    <Dips>\n        <tolerance threshold=\"89.5\" hysteresis=\"2\" maxAllowed=\"21\"/>\n"
                          "    </Dips>\n"));
    QVERIFY(file.contains("        <plt nep=\"95\" partial=\"1\" whole=\"100.1\" max=\"20\"/>\n"));
    MonitorLimits2 loaded;
    QVERIFY(loaded.loadFile(kFolder + "Mine.xml"));
    QCOMPARE(loaded.limit().pst.partial, 19.99f);
    QCOMPARE(loaded.limit().dips.maxAllowed, 21);
}

void TstLimitEditing::whatWasNotEditedKeepsItsDigits()
{
    RootFiles::write(kFolder + "file.xml", set("Fine"));
    MonitorLimits2 fine;
    QVERIFY(fine.loadFile(kFolder + "file.xml"));
    m_limits_g.add("Fine", fine.limit());
    m_page->init_parameter();
    choose("Fine");
    press(menu(), Enter);
    openItem(Dips);
    QCOMPARE(shown("threshold"), QStringLiteral("85.13 %"));
    press(top(), Right);
    QCOMPARE(shown("threshold"), QStringLiteral("85.2 %")); // onto the grid
    press(top(), F4);
    press(top(), F4);
    QCOMPARE(limitOf("Fine").dips.threshold, 85.2f);
    QCOMPARE(limitOf("Fine").swells.threshold, 112.125f);
}

void TstLimitEditing::cancelOnAPageOfValuesDropsThatPage()
{
    addSet("Mine");
    press(menu(), Enter);
    openItem(Voltage);
    press(top(), Left);
    press(top(), F4);
    openItem(Dips);
    press(top(), Left, 5);
    press(top(), F5);
    openItem(Harmonics);
    press(top(), Right, 5);
    press(top(), F5);
    QCOMPARE(lines(2).at(Dips), QStringLiteral("90.0 %"));
    QCOMPARE(lines(2).at(Harmonics), QStringLiteral("8.00 %"));
    openItem(Dips);
    QCOMPARE(shown("threshold"), QStringLiteral("90.0 %"));
    press(top(), F5);
    press(top(), F4);
    QCOMPARE(limitOf("Mine").voltage.nep, 94.9f);
    QCOMPARE(limitOf("Mine").dips.threshold, 90.0f);
    QCOMPARE(limitOf("Mine").harmonicPartial[0], 8.0f);
}

void TstLimitEditing::cancelOnTheItemsDropsEverything()
{
    addSet("Mine");
    const QByteArray before = files();
    QFile::remove(Target::path("/var/log/commands"));
    press(menu(), Enter);
    openItem(Voltage);
    press(top(), Left);
    press(top(), F4);
    press(top(), F5);
    QCOMPARE(top(), menu());
    QCOMPARE(files(), before);
    QCOMPARE(RootFiles::commands(), QByteArray());
    QCOMPARE(limitOf("Mine").voltage.nep, 95.0f);
    press(menu(), Enter);
    openItem(Voltage);
    QCOMPARE(shown("nep"), QStringLiteral("95.0 %"));
}

void TstLimitEditing::leavingByAFunctionKeyDropsTheDraft()
{
    addSet("Mine");
    const QByteArray before = files();
    press(menu(), Enter);
    openItem(Voltage);
    press(top(), Left);
    QSignalSpy leave(m_page.get(), &Page::leave);
    press(top(), F6);
    QCOMPARE(leave.count(), 1);
    m_page->init_parameter(); // the page comes on top again
    QCOMPARE(top(), menu());
    QCOMPARE(files(), before);
    QCOMPARE(limitOf("Mine").voltage.nep, 95.0f);
}

void TstLimitEditing::aHeldKeyGrowsAndStopsAtNotApplied()
{
    addSet("Mine");
    press(menu(), Enter);
    openItem(Voltage);
    press(top(), Down, 2);
    hold(top(), Right, 5); // the press, three ticks of one step, two of five
    QCOMPARE(shown("whole_upper"), QStringLiteral("+11.4 %"));
    release(top(), Right);
    hold(top(), Right, 60);
    release(top(), Right);
    QCOMPARE(shown("whole_upper"), QStringLiteral("N/A"));
    QCOMPARE(shown("whole_upper_note"), QString());
    press(top(), Right);
    QCOMPARE(shown("whole_upper"), QStringLiteral("N/A"));
    press(top(), F4);
    press(top(), F4);
    QCOMPARE(limitOf("Mine").voltage.wholeUpper, 100.1f);
    press(menu(), Enter);
    openItem(Voltage);
    press(top(), Down, 2);
    press(top(), Left);
    QCOMPARE(shown("whole_upper"), QStringLiteral("+100.0 %"));
    QCOMPARE(shown("whole_upper_note"), QStringLiteral("230.0 V"));
}

void TstLimitEditing::harmonicsAreEditedByColumns()
{
    addSet("Mine");
    press(menu(), Enter);
    openItem(Harmonics);
    QCOMPARE(lines().mid(0, 3), QStringList({ "THD", "H2", "H3" }));
    QCOMPARE(lines(2).mid(0, 3), QStringList({ "8.00 %", "2.00 %", "5.00 %" }));
    QCOMPARE(lines(3).mid(0, 3), QStringList({ "8.00 %", "N/A", "N/A" }));
    press(top(), Down);
    press(top(), Right, 3); // limit for the time
    press(top(), F1);
    press(top(), Left, 2); // for all the time: out of "not applied"
    press(top(), F1);
    press(top(), Left); // share of time
    press(top(), Down, 40);
    QCOMPARE(lines().last(), QStringLiteral("H25"));
    press(top(), Left);
    press(top(), F4);
    press(top(), F4);
    const monitor_limit limit = limitOf("Mine");
    QCOMPARE(limit.harmonicPartial[1], 2.15f);
    QCOMPARE(limit.harmonicWhole[1], 99.95f);
    QCOMPARE(limit.harmonicNep[1], 94.9f);
    QCOMPARE(limit.harmonicNep[24], 94.9f);
    QCOMPARE(limit.harmonicPartial[2], 5.0f);
    QCOMPARE(limit.harmonicNep[25], 0.0f); // a row that is not in use
}

void TstLimitEditing::listsBeginAtTheirTopEachTimeTheyAreOpened()
{
    press(menu(), Enter);
    openItem(Harmonics);
    press(top(), F1);
    press(top(), Down, 3);
    press(top(), F5);
    openItem(Harmonics);
    QCOMPARE(shown("title"), QStringLiteral("Harmonics: limit for this time"));
    QCOMPARE(qobject_cast<LimitHarmPage *>(top())->selected(), 0);
    press(top(), F5);
    QCOMPARE(qobject_cast<LimitItemsPage *>(top())->selected(), int(Harmonics)); // the one that was open
    press(top(), F5);
    press(menu(), Down);
    press(menu(), Enter);
    QCOMPARE(qobject_cast<LimitItemsPage *>(top())->selected(), 0); // another set
}

void TstLimitEditing::aSetWithoutHarmonicRowsHasNone()
{
    monitor_limit limit = limitOf("EN50160");
    limit.harmonicCount = 0;
    m_limits_g.add("Bare", limit);
    m_page->init_parameter();
    choose("Bare");
    press(menu(), Enter);
    openItem(Harmonics);
    QCOMPARE(lines(), QStringList());
    press(top(), Right);
    press(top(), Down);
    press(top(), F4);
    press(top(), F4);
    QCOMPARE(memcmp(limitOf("Bare").harmonicPartial, limit.harmonicPartial, sizeof limit.harmonicPartial), 0);
}

void TstLimitEditing::theLampIsThatOfTheCurve()
{
    press(menu(), Enter);
    openItem(Flicker);
    QCOMPARE(shown("lamp"), QStringLiteral("230V lamp"));
    for (const int curve : { 120, 0, 231 }) { // as the processor is set up with
        m_settingConfig_g.setFlickerWeightingCurve(curve);
        press(top(), F5);
        openItem(Flicker);
        QCOMPARE(shown("lamp"), QStringLiteral("120V lamp"));
    }
}

void TstLimitEditing::theSetInUseFollowsItsEditedValues()
{
    addSet("Mine");
    press(menu(), F4);
    m_page->init_parameter();
    press(menu(), Enter);
    openItem(Swells);
    press(top(), Right, 10);
    press(top(), F4);
    press(top(), F4);
    QCOMPARE(m_limits_g.getLimitsInUsed()->swells.threshold, 111.0f);
}

void TstLimitEditing::filesThatCannotBeWrittenKeepTheStateShown_data()
{
    QTest::addColumn<bool>("readOnly");
    QTest::newRow("read-only folder") << true;
    QTest::newRow("full card") << false;
}

void TstLimitEditing::filesThatCannotBeWrittenKeepTheStateShown()
{
    QFETCH(bool, readOnly);
    addSet("Mine");
    const QByteArray before = files();
    {
        OrdinaryUser user;
        const FileLimit limit(readOnly ? RLIM_INFINITY : 10);
        if (readOnly)
            user.setFolderMode(QFile::encodeName(Target::path(kFolder)), 0555);
        press(menu(), Enter);
        openItem(Dips);
        press(top(), Left, 10);
        press(top(), F4);
        press(top(), F4);
        // A name whose file cannot be written is not taken.
        DialogDriver driver({ typed("Other") });
        press(menu(), F3);
        QVERIFY(driver.isDone());
    }
    QCOMPARE(files(), before);
    QCOMPARE(lines(), QStringList({ "EN50160", "GOST32144", "Mine" }));
    QCOMPARE(limitOf("Mine").dips.threshold, 89.0f); // until the program ends
    press(menu(), Enter);
    QCOMPARE(lines(2).at(Dips), QStringLiteral("89.0 %"));
    press(top(), F4); // with room again it is stored
    QVERIFY(RootFiles::read(kFolder + "Mine.xml").contains("threshold=\"89\""));
}

void TstLimitEditing::aFileThatWasTakenAwayIsWrittenAgain()
{
    addSet("Mine");
    const QByteArray before = files();
    QDir(Target::path(kFolder)).removeRecursively();
    press(menu(), Enter);
    press(top(), F5);
    QCOMPARE(lines(), QStringList({ "EN50160", "GOST32144", "Mine" }));
    QDir().mkpath(Target::path(kFolder));
    press(menu(), Enter);
    press(top(), F4);
    QCOMPARE(files(), before);
}

PAGE_TEST_MAIN(TstLimitEditing)
#include "tst_limitediting.moc"
