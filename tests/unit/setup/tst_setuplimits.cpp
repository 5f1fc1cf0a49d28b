#include "limitcase.h"

#include <QScrollBar>

#include <QSignalSpy>

using namespace LimitCase;

/// The list of limit sets: choosing, naming and deleting.
class TstSetupLimits : public Pages
{
    Q_OBJECT

private slots:
    void init() { openPage(); }
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
    void ofTwoFilesOfOneNameTheFirstIsInUse();
};

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
    QSignalSpy closed(m_page.get(), &SetupLimits::closed);
    choose("GOST32144");
    press(menu(), F5);
    QCOMPARE(closed.count(), 1);
    QCOMPARE(m_limits_g.activeLimitsName(), QStringLiteral("EN50160"));
    QVERIFY(!RootFiles::exists(kConf));
    m_page->init_parameter();
    QCOMPARE(menu()->selectedName(), QStringLiteral("EN50160"));
    choose("GOST32144");
    press(menu(), F4);
    QCOMPARE(closed.count(), 2);
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

void TstSetupLimits::ofTwoFilesOfOneNameTheFirstIsInUse()
{
    RootFiles::write(kFolder + "a.xml", set("Twice"));
    RootFiles::write(kFolder + "b.xml", set("Twice"));
    m_limits_g.loadAllLimitsFile();
    m_limits_g.changeActiveLimits("Twice");
    m_page->init_parameter();
    QCOMPARE(lines(), QStringList({ "EN50160", "GOST32144", "Twice", "Twice" }));
    QCOMPARE(lines(2), QStringList({ "", "", "in use" }));
}

void TstSetupLimits::aLongListScrolls()
{
    for (int i = 1; i <= 12; ++i)
        m_limits_g.add(QString("Set %1").arg(i), limitOf("EN50160"));
    const auto *scrollBar = top()->findChild<QScrollBar *>();
    QVERIFY(scrollBar->isHidden()); // two sets so far
    m_page->init_parameter();
    QVERIFY(!scrollBar->isHidden());
    QCOMPARE(lines().size(), 10);
    choose("Set 12");
    QCOMPARE(lines().last(), QStringLiteral("Set 12"));
    QCOMPARE(lines().first(), QStringLiteral("Set 3"));
    const QWidget *bar = top()->findChild<QWidget *>("line_bar");
    QCOMPARE(bar->y(), top()->findChild<QLabel *>("line10_t")->y());
}

PAGE_TEST_MAIN(TstSetupLimits)
#include "tst_setuplimits.moc"
