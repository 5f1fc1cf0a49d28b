#include "setupcase.h"
#include "typing.h"

#include "setup/limitharmpage.h"
#include "setup/limititemspage.h"
#include "setup/limitvaluepage.h"
#include "setup/setuplimitmenu.h"
#include "setup/setuplimits.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/ordinaryuser.h"

#include <QSignalSpy>

#include <memory>

using namespace PageTest;
using namespace Typing;

namespace {

const QString kFolder = QStringLiteral("/mnt/userfs/sys/limits/");
const QString kConf = QStringLiteral("/mnt/userfs/sys/limits.xml");

enum Item { Voltage, Harmonics, Flicker, Dips, Swells, Interruptions, Rvc, Unbalance, Frequency, MainsSignal };

/// A set that mentions little: the rest is as in EN50160.
QByteArray set(const QByteArray &name)
{
    return "<limits verison='1.0' name='" + name
        + "'><Dips><tolerance threshold='85.125'/></Dips><Swells><tolerance threshold='112.125'/></Swells></limits>";
}

QByteArray files()
{
    QByteArray all = RootFiles::read(kConf);
    QDir dir(Target::path(kFolder));
    for (const QString &file : dir.entryList(QDir::Files | QDir::Hidden, QDir::Name))
        all += file.toUtf8() + RootFiles::read(kFolder + file);
    return all;
}

monitor_limit limitOf(const QString &name)
{
    monitor_limit limit {};
    m_limits_g.getLimits(&limit, name);
    return limit;
}

} // namespace

/// The list of limit sets and the pages of their values.
class TstSetupLimits : public QObject
{
    Q_OBJECT

private slots:
    void init();

    // sets
    void setsAreListedWithTheOneInUse();
    void okUsesTheSelectedSetAndCancelDoesNot();
    void anAddedSetIsACopyUnderItsName();
    void namesAreChecked_data();
    void namesAreChecked();
    void anExistingNameIsOverwrittenOnlyOnRequest();
    void aSetIsNamedAnew();
    void builtInSetsKeepTheirNamesAndStay();
    void deletingAsksFirst();
    void deletingTheSetInUseLeavesEn50160();
    void namesOutOfFilesAreShownAndChosen_data();
    void namesOutOfFilesAreShownAndChosen();
    void aLongListScrolls();

    // values
    void theItemsOfASetAreListed();
    void valuesOfABuiltInSetAreOnlyLookedAt();
    void editedValuesAreStoredInTheirForm();
    void whatWasNotEditedKeepsItsDigits();
    void cancelOnAPageOfValuesDropsThatPage();
    void cancelOnTheItemsDropsEverything();
    void leavingByAFunctionKeyDropsTheDraft();
    void aHeldKeyGrowsAndStopsAtNotApplied();
    void harmonicsAreEditedByColumns();
    void aSetWithoutHarmonicRowsHasNone();
    void theLampIsThatOfTheCurve();
    void theSetInUseFollowsItsEditedValues();

    // files
    void filesThatCannotBeWrittenKeepTheStateShown_data();
    void filesThatCannotBeWrittenKeepTheStateShown();
    void aFileThatWasTakenAwayIsWrittenAgain();

private:
    void renew();
    QWidget *top() { return m_page->currentPage(); }
    QString shown(const QString &label) { return text(top(), label); }
    SetupLimitMenu *menu() { return m_page->findChild<SetupLimitMenu *>(); }
    QStringList lines(int column = 0);
    void choose(const QString &name);
    void openItem(Item item);
    void addSet(const QString &name);

    std::unique_ptr<SetupLimits> m_page;
};

/// The sets as after a start with these files.
void TstSetupLimits::renew()
{
    for (const QString &name : m_limits_g.allLimitsList().mid(2))
        m_limits_g.remove(name);
    m_limits_g.initActiveLimits(LimitsManager::builtin_en50160);
}

void TstSetupLimits::init()
{
    renew();
    RootFiles::clean();
    m_settingConfig_g.loadSettingConfig();
    m_page = std::make_unique<SetupLimits>(liveData());
    m_page->enter();
}

/// Texts of the lines: their names, or a column from 1 on.
QStringList TstSetupLimits::lines(int column)
{
    QStringList texts;
    for (int i = 1; i <= LineList::kLines; ++i) {
        const QString line = QStringLiteral("line%1").arg(i);
        texts << shown(column == 0 ? line + QLatin1String("_t") : QStringLiteral("%1_%2").arg(line).arg(column));
    }
    while (!texts.isEmpty() && texts.last().isEmpty())
        texts.removeLast();
    return texts;
}

void TstSetupLimits::choose(const QString &name)
{
    press(menu(), Up, 30);
    for (int i = 0; i < 30 && menu()->selectedName() != name; ++i)
        press(menu(), Down);
    QCOMPARE(menu()->selectedName(), name);
}

/// From the list of items.
void TstSetupLimits::openItem(Item item)
{
    QVERIFY(qobject_cast<LimitItemsPage *>(top()));
    press(top(), Up, 10);
    press(top(), Down, item);
    press(top(), Enter);
    QCOMPARE(m_page->currentIndex(), SetupLimits::FirstItem + item);
}

void TstSetupLimits::addSet(const QString &name)
{
    DialogDriver driver({ typed(name) });
    press(menu(), F1);
    QVERIFY(driver.isDone());
    QCOMPARE(menu()->selectedName(), name);
}

void TstSetupLimits::setsAreListedWithTheOneInUse()
{
    m_limits_g.add("Plant 7", limitOf("EN50160"));
    m_limits_g.changeActiveLimits("GOST32144");
    m_page->init_parameter();
    QCOMPARE(lines(), QStringList({ "EN50160", "GOST32144", "Plant 7" }));
    QCOMPARE(lines(1), QStringList({ "built-in", "built-in" }));
    QCOMPARE(lines(2), QStringList({ "", "in use" }));
    QCOMPARE(menu()->selectedName(), QStringLiteral("GOST32144"));
    QCOMPARE(shown("btn_f1"), QStringLiteral("Add"));
    QCOMPARE(shown("btn_f4"), QStringLiteral("Ok"));
    press(menu(), Down);
    QCOMPARE(shown("btn_f2"), QStringLiteral("Delete"));
    QCOMPARE(shown("btn_f3"), QStringLiteral("Name"));
    press(menu(), Down, 3); // no wrap at the end
    QCOMPARE(menu()->selectedName(), QStringLiteral("Plant 7"));
}

void TstSetupLimits::okUsesTheSelectedSetAndCancelDoesNot()
{
    QSignalSpy done(m_page.get(), &SetupLimits::done);
    choose("GOST32144");
    press(menu(), F5);
    QCOMPARE(done.count(), 1);
    QCOMPARE(m_limits_g.activeLimitsName(), QStringLiteral("EN50160"));
    QVERIFY(!RootFiles::exists(kConf));
    m_page->init_parameter();
    QCOMPARE(menu()->selectedName(), QStringLiteral("EN50160"));
    choose("GOST32144");
    press(menu(), F4);
    QCOMPARE(done.count(), 2);
    QCOMPARE(m_limits_g.activeLimitsName(), QStringLiteral("GOST32144"));
    QCOMPARE(m_limits_g.getLimitsInUsed()->interruptions.threshold, 5.0f);
    // Written by hand, as the format's page has it.
    QCOMPARE(RootFiles::read(kConf),
             QByteArray("<?xml version = \"1.0\" encoding=\"utf-8\"?>\n<LimitsConfig verison=\"1.0\">\n"
                        "    <Active>GOST32144</Active>\n</LimitsConfig>\n"));
}

void TstSetupLimits::anAddedSetIsACopyUnderItsName()
{
    choose("GOST32144");
    {
        DialogDriver driver({ droppedAfter("no") });
        press(menu(), F1);
        QVERIFY(driver.isDone());
    }
    QCOMPARE(lines(), QStringList({ "EN50160", "GOST32144" }));
    addSet("Plant 7");
    QCOMPARE(lines(), QStringList({ "EN50160", "GOST32144", "Plant 7" }));
    QCOMPARE(limitOf("Plant 7").pst.partial, 1.38f);
    QCOMPARE(m_limits_g.activeLimitsName(), QStringLiteral("EN50160")); // not before Ok
    LimitsManager next;
    QVERIFY(next.allLimitsList().contains("Plant 7"));
}

void TstSetupLimits::namesAreChecked_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << ""
                           << "Empty name!";
    QTest::newRow("blanks") << "   "
                            << "Empty name!";
    QTest::newRow("question mark") << "a?"
                                   << "Invalid name!";
    QTest::newRow("leading dot") << ".a"
                                 << "Invalid name!";
    QTest::newRow("trailing dot") << "a."
                                  << "Invalid name!";
    QTest::newRow("dots") << ".."
                          << "Invalid name!";
    QTest::newRow("built in") << "EN50160"
                              << "Invalid name!";
    QTest::newRow("the other built in") << "GOST32144"
                                        << "Invalid name!";
}

void TstSetupLimits::namesAreChecked()
{
    QFETCH(QString, name);
    QFETCH(QString, message);
    const QByteArray before = files();
    addSet("Mine");
    const QByteArray with = files();
    for (const FrontKey key : { F1, F3 }) {
        DialogDriver driver({ typed(name), answered(message) });
        press(menu(), key);
        QVERIFY(driver.isDone());
        QCOMPARE(lines(), QStringList({ "EN50160", "GOST32144", "Mine" }));
    }
    QCOMPARE(files(), with);
    QVERIFY(with != before);
}

void TstSetupLimits::anExistingNameIsOverwrittenOnlyOnRequest()
{
    choose("GOST32144");
    addSet("Mine");
    choose("EN50160");
    {
        DialogDriver driver({ typed("Mine"), answered("It exists, Overwrite it?", 'L') });
        press(menu(), F1);
        QVERIFY(driver.isDone());
    }
    QCOMPARE(limitOf("Mine").pst.partial, 1.38f);
    DialogDriver driver({ typed("Mine"), [](QDialog *dialog) {
                             QCOMPARE(keyTexts(dialog).at(3), QStringLiteral("Overwrite"));
                             QTest::keyClick(dialog, 'F');
                         } });
    press(menu(), F1);
    QVERIFY(driver.isDone());
    QCOMPARE(limitOf("Mine").pst.partial, 20.0f);
    QCOMPARE(lines(), QStringList({ "EN50160", "GOST32144", "Mine" }));
}

void TstSetupLimits::aSetIsNamedAnew()
{
    addSet("Old");
    press(menu(), F4); // in use
    m_page->init_parameter();
    {
        DialogDriver driver({ typed("Old") }); // its own name: nothing happens
        press(menu(), F3);
        QVERIFY(driver.isDone());
    }
    DialogDriver driver({ typed("New") });
    press(menu(), F3);
    QVERIFY(driver.isDone());
    QCOMPARE(lines(), QStringList({ "EN50160", "GOST32144", "New" }));
    QCOMPARE(menu()->selectedName(), QStringLiteral("New"));
    QCOMPARE(m_limits_g.activeLimitsName(), QStringLiteral("New"));
    QVERIFY(RootFiles::exists(kFolder + "New.xml"));
    QVERIFY(!RootFiles::exists(kFolder + "Old.xml"));
}

void TstSetupLimits::builtInSetsKeepTheirNamesAndStay()
{
    for (const char *name : { "EN50160", "GOST32144" }) {
        choose(name);
        QCOMPARE(shown("btn_f2"), QString());
        QCOMPARE(shown("btn_f3"), QString());
        press(menu(), F2); // a dialog would wait for ever
        press(menu(), F3);
    }
    QCOMPARE(lines(), QStringList({ "EN50160", "GOST32144" }));
}

void TstSetupLimits::deletingAsksFirst()
{
    addSet("Mine");
    addSet("Yours");
    choose("Mine");
    {
        DialogDriver driver({ answered("Delete the Limits?", 'L') });
        press(menu(), F2);
        QVERIFY(driver.isDone());
    }
    QVERIFY(RootFiles::exists(kFolder + "Mine.xml"));
    DialogDriver driver({ answered("Delete the Limits?", 'F') });
    press(menu(), F2);
    QVERIFY(driver.isDone());
    QVERIFY(!RootFiles::exists(kFolder + "Mine.xml"));
    QCOMPARE(lines(), QStringList({ "EN50160", "GOST32144", "Yours" }));
    QCOMPARE(menu()->selectedName(), QStringLiteral("Yours"));
}

void TstSetupLimits::deletingTheSetInUseLeavesEn50160()
{
    addSet("Mine");
    press(menu(), F4);
    m_page->init_parameter();
    QFile::remove(Target::path(kFolder + "Mine.xml")); // behind the page's back
    DialogDriver driver({ answered("Delete the Limits?", 'F') });
    press(menu(), F2);
    QVERIFY(driver.isDone());
    QCOMPARE(m_limits_g.activeLimitsName(), QStringLiteral("EN50160"));
    QCOMPARE(lines(2), QStringList({ "in use" }));
    QVERIFY(RootFiles::read(kConf).contains("<Active>EN50160</Active>"));
}

void TstSetupLimits::namesOutOfFilesAreShownAndChosen_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("200 characters") << QString(200, 'W');
    QTest::newRow("letters of the world") << QString::fromUtf8("Größe 工厂 Ж");
    QTest::newRow("signs of the file's form") << "<limits>&amp;'\"";
    QTest::newRow("slashes") << "../a/b";
    QTest::newRow("star") << "*";
    QTest::newRow("leading dot") << ".hidden";
    QTest::newRow("empty") << "";
}

void TstSetupLimits::namesOutOfFilesAreShownAndChosen()
{
    QFETCH(QString, name);
    m_limits_g.add(name, limitOf("GOST32144"));
    m_page->init_parameter();
    choose(name);
    const auto *label = top()->findChild<QLabel *>("line3_t");
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
    press(menu(), Enter);
    const auto *title = top()->findChild<QLabel *>("title");
    QVERIFY(title->fontMetrics().horizontalAdvance(title->text()) <= 392 - title->x());
    press(top(), F4); // stored where it can be
    press(menu(), F4);
    QCOMPARE(m_limits_g.activeLimitsName(), name);
    QCOMPARE(m_limits_g.getLimitsInUsed()->pst.partial, 1.38f);
    QVERIFY(!RootFiles::exists("/mnt/userfs/a/b.xml") && !RootFiles::exists("/mnt/userfs/sys/a/b.xml"));
}

void TstSetupLimits::aLongListScrolls()
{
    for (int i = 1; i <= 12; ++i)
        m_limits_g.add(QString("Set %1").arg(i), limitOf("EN50160"));
    m_page->init_parameter();
    QCOMPARE(lines().size(), 10);
    choose("Set 12");
    QCOMPARE(lines().last(), QStringLiteral("Set 12"));
    QCOMPARE(lines().first(), QStringLiteral("Set 3"));
    const QWidget *bar = top()->findChild<QWidget *>("line_bar");
    QCOMPARE(bar->y(), top()->findChild<QLabel *>("line10_t")->y());
}

void TstSetupLimits::theItemsOfASetAreListed()
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

void TstSetupLimits::valuesOfABuiltInSetAreOnlyLookedAt()
{
    const QByteArray before = files();
    press(menu(), Enter);
    for (const Item item : { Voltage, Harmonics, Dips }) {
        openItem(item);
        QCOMPARE(shown("btn_f4"), QString());
        QCOMPARE(shown("btn_f5"), QStringLiteral("Back"));
        press(top(), Right, 3);
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

void TstSetupLimits::editedValuesAreStoredInTheirForm()
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

void TstSetupLimits::whatWasNotEditedKeepsItsDigits()
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

void TstSetupLimits::cancelOnAPageOfValuesDropsThatPage()
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

void TstSetupLimits::cancelOnTheItemsDropsEverything()
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

void TstSetupLimits::leavingByAFunctionKeyDropsTheDraft()
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

void TstSetupLimits::aHeldKeyGrowsAndStopsAtNotApplied()
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

void TstSetupLimits::harmonicsAreEditedByColumns()
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

void TstSetupLimits::aSetWithoutHarmonicRowsHasNone()
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

void TstSetupLimits::theLampIsThatOfTheCurve()
{
    press(menu(), Enter);
    openItem(Flicker);
    QCOMPARE(shown("lamp"), QStringLiteral("230V lamp"));
    m_settingConfig_g.setFlickerWeightingCurve(120);
    press(top(), F5);
    openItem(Flicker);
    QCOMPARE(shown("lamp"), QStringLiteral("120V lamp"));
}

void TstSetupLimits::theSetInUseFollowsItsEditedValues()
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

void TstSetupLimits::filesThatCannotBeWrittenKeepTheStateShown_data()
{
    QTest::addColumn<bool>("readOnly");
    QTest::newRow("read-only folder") << true;
    QTest::newRow("full card") << false;
}

void TstSetupLimits::filesThatCannotBeWrittenKeepTheStateShown()
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

void TstSetupLimits::aFileThatWasTakenAwayIsWrittenAgain()
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

PAGE_TEST_MAIN(TstSetupLimits)
#include "tst_setuplimits.moc"
