#include "setupcase.h"

#include "pages/editorpage.h"
#include "unit/storage/ordinaryuser.h"

using namespace PageTest;
using SetupCase::Keys;

/// The set-up pages with fields: bounds, steps that grow, Ok, Cancel and Default.
class TstSetupEditors : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SetupCase::makeDevice(); }
    void init() { SetupCase::restoreSettings(); }
    void aStepAtABoundStaysAtTheBound_data();
    void aStepAtABoundStaysAtTheBound();
    void heldKeyTakesLargerStepsTheLongerItIsHeld_data();
    void heldKeyTakesLargerStepsTheLongerItIsHeld();
    void cancelLeavesTheFileAsItWas_data();
    void cancelLeavesTheFileAsItWas();
    void leavingByAnotherKeyDropsTheCopy_data() { cancelLeavesTheFileAsItWas_data(); }
    void leavingByAnotherKeyDropsTheCopy();
    void okStoresEachValue_data();
    void okStoresEachValue();
    void okWithoutAChangeWritesNothing_data() { cancelLeavesTheFileAsItWas_data(); }
    void okWithoutAChangeWritesNothing();
    void defaultRestoresTheValuesOfMissingKeys();
    void defaultAloneStoresNothing();
    void defaultEndsAHeldKey();
    void kFactorParametersCanBeChangedWithTheEuropeanMethodOnly();
    void durationOfTheInrushIsInForceAfterOk();
    void durationOfTheInrushMovesByOneHoweverLongAKeyIsHeld();
    void valuesOutsideTheirBoundsStayUntilTheyAreChanged();
    void fileThatCannotBeWrittenKeepsItsTextAndTheValueHolds();
    void fileRemovedBehindThePageIsMadeAnew();
};

namespace {

/// Opens an editor and goes to one of its fields.
void open(SetupPage &setup, int function, int field)
{
    setup.enter();
    SetupCase::press(setup, SetupCase::toFunction(function));
    SetupCase::press(setup, { Up, Up, Up });
    SetupCase::press(setup, Keys(std::size_t(field), Down));
}

} // namespace

void TstSetupEditors::aStepAtABoundStaysAtTheBound_data()
{
    QTest::addColumn<int>("function");
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("least");
    QTest::addColumn<QString>("most");
    const auto add
        = [](const char *name, int function, int field, const char *label, const char *least, const char *most) {
              QTest::newRow(name) << function << field << QString::fromLatin1(label) << QString::fromLatin1(least)
                                  << QString::fromLatin1(most);
          };
    using namespace SetupCase;
    add("K-factor method", KFactor, 0, "method", "EU", "US");
    add("K-factor e", KFactor, 1, "e", "0.00", "0.20");
    add("K-factor q", KFactor, 2, "q", "1.00", "2.00");
    add("flicker lamp", Flicker, 0, "curve", "60Hz 120V", "50Hz 230V");
    add("transient threshold", Transients, 0, "threshold", "1 %", "6000 %");
    add("inrush duration", Inrush, 0, "duration", "6 s", "32 m"); // 1920 s
    add("inrush amps", Inrush, 1, "nom_amps", "0.001 A", "5.000 A"); // one step, and the range of the clamp
    add("inrush threshold", Inrush, 2, "threshold", "1 %", "1000 %");
    add("inrush hysteresis", Inrush, 3, "hysteresis", "1 %", "100 %");
    add("signal frequency 1", MainsSig, 0, "freq1", "50", "3000");
    add("signal threshold 1", MainsSig, 1, "threshold1", "1.0", "5.0");
    add("signal frequency 2", MainsSig, 2, "freq2", "50", "3000");
    add("signal threshold 2", MainsSig, 3, "threshold2", "1.0", "5.0");
}

void TstSetupEditors::aStepAtABoundStaysAtTheBound()
{
    QFETCH(int, function);
    QFETCH(int, field);
    QFETCH(QString, label);
    QFETCH(QString, least);
    QFETCH(QString, most);
    constexpr int kLong = 400; // ticks: more than any range has steps
    SetupPage setup(liveData());
    open(setup, function, field);
    const auto shown = [&] { return PageTest::text(setup.currentPage(), label); };
    SetupCase::hold(setup, Left, kLong);
    QCOMPARE(shown(), least);
    SetupCase::press(setup, { Left });
    QCOMPARE(shown(), least);
    SetupCase::press(setup, { Right });
    QVERIFY(shown() != least);
    SetupCase::hold(setup, Right, kLong);
    QCOMPARE(shown(), most);
    SetupCase::press(setup, { Right });
    QCOMPARE(shown(), most);
    SetupCase::press(setup, { Left });
    QVERIFY(shown() != most);
}

void TstSetupEditors::heldKeyTakesLargerStepsTheLongerItIsHeld_data()
{
    QTest::addColumn<int>("function");
    QTest::addColumn<int>("field");
    QTest::addColumn<int>("key");
    QTest::addColumn<QList<int>>("steps");
    const QList<int> toTwenty { 1, 5, 10, 20 };
    const QList<int> toHundred { 1, 5, 10, 20, 50, 100 };
    QTest::newRow("inrush threshold up") << int(SetupCase::Inrush) << 2 << int(Right) << toTwenty;
    QTest::newRow("inrush threshold down") << int(SetupCase::Inrush) << 2 << int(Left) << toTwenty;
    QTest::newRow("transient threshold up") << int(SetupCase::Transients) << 0 << int(Right) << toHundred;
    QTest::newRow("transient threshold down") << int(SetupCase::Transients) << 0 << int(Left) << toHundred;
}

void TstSetupEditors::heldKeyTakesLargerStepsTheLongerItIsHeld()
{
    QFETCH(int, function);
    QFETCH(int, field);
    QFETCH(int, key);
    QFETCH(QList<int>, steps);
    m_settingConfig_g.setInrushThreshold(500);
    m_settingConfig_g.setTransThreshold(3000);
    SetupPage setup(liveData());
    open(setup, function, field);
    const auto value = [&] { return SetupCase::text(setup, "threshold").section(QLatin1Char(' '), 0, 0).toInt(); };
    const int sign = key == Right ? 1 : -1;
    QList<int> taken;
    int before = value();
    PageTest::hold(setup.currentPage(), FrontKey(key), 0);
    auto *repeat = setup.currentPage()->findChild<KeyRepeat *>();
    for (int tick = 0; tick < 40; ++tick) {
        const int step = sign * (value() - before);
        if (taken.isEmpty() || taken.last() != step)
            taken << step;
        if (taken.size() == steps.size())
            break;
        before = value();
        repeat->tick();
    }
    PageTest::release(setup.currentPage(), FrontKey(key));
    QCOMPARE(taken, steps);
    // Let go: by single steps again.
    before = value();
    SetupCase::press(setup, { FrontKey(key) });
    QCOMPARE(sign * (value() - before), 1);
}

void TstSetupEditors::cancelLeavesTheFileAsItWas_data()
{
    QTest::addColumn<int>("function");
    QTest::newRow("flicker") << int(SetupCase::Flicker);
    QTest::newRow("transients") << int(SetupCase::Transients);
    QTest::newRow("inrush") << int(SetupCase::Inrush);
    QTest::newRow("mains signaling") << int(SetupCase::MainsSig);
}

void TstSetupEditors::cancelLeavesTheFileAsItWas()
{
    QFETCH(int, function);
    SetupPage setup(liveData());
    open(setup, function, 0);
    const QByteArray file = SetupCase::settingFile();
    const QMap<QString, QString> before = SetupCase::texts(setup);
    for (int field = 0; field < 4; ++field)
        SetupCase::press(setup, { Left, Left, Down });
    QVERIFY(SetupCase::texts(setup) != before);
    SetupCase::press(setup, { F5 });
    QCOMPARE(SetupCase::settingFile(), file);
    SetupCase::press(setup, { Enter }); // the page again
    QCOMPARE(SetupCase::texts(setup), before);
    QCOMPARE(InrushInfo::m_duration_index, 0);
}

void TstSetupEditors::leavingByAnotherKeyDropsTheCopy()
{
    QFETCH(int, function);
    SetupPage setup(liveData());
    open(setup, function, 0);
    const QByteArray file = SetupCase::settingFile();
    const QMap<QString, QString> before = SetupCase::texts(setup);
    SetupCase::press(setup, { Left, Right, Right, Left, Left, Down, Left });
    QTest::keyClick(setup.currentPage(), Qt::Key_A); // Menu
    QCOMPARE(SetupCase::settingFile(), file);
    open(setup, function, 0);
    QCOMPARE(SetupCase::texts(setup), before);
}

void TstSetupEditors::okStoresEachValue_data()
{
    QTest::addColumn<int>("function");
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<QList<QByteArray>>("lines");
    using Lines = QList<QByteArray>;
    QTest::newRow("flicker") << int(SetupCase::Flicker) << Keys { Left, F4 } << Lines { "FLICKER_WEIGHTING_CURVE=120" };
    QTest::newRow("transients") << int(SetupCase::Transients) << Keys { Right, Right, F4 }
                                << Lines { "TRANS_THRESHOLD=52" };
    QTest::newRow("inrush") << int(SetupCase::Inrush) << Keys { Right, Right, Down, Left, Down, Right, Down, Right, F4 }
                            << Lines { "INRUSH_INDEX=2", "INRUSH_NOMAMPS=1.249", "INRUSH_THRESHOLD=201",
                                       "INRUSH_HYSTERESIS=3" };
    QTest::newRow("mains signaling") << int(SetupCase::MainsSig)
                                     << Keys { Right, Down, Left, Down, Left, Down, Left, Left, F4 }
                                     << Lines { "MAINSSIG_FREQ1=1351", "MAINSSIG_THRESHOLD1=4", "MAINSSIG_FREQ2=2849",
                                                "MAINSSIG_THRESHOLD2=3" };
    QTest::newRow("K-factor") << int(SetupCase::KFactor) << Keys { Down, Right, Down, Left, F5 }
                              << Lines { "KFACTOR_E=0.11", "KFACTOR_Q=1.65" };
    QTest::newRow("K-factor method") << int(SetupCase::KFactor) << Keys { Right, F5 } << Lines { "KFACTOR_METHOD=2" };
}

void TstSetupEditors::okStoresEachValue()
{
    QFETCH(int, function);
    QFETCH(Keys, keys);
    QFETCH(QList<QByteArray>, lines);
    SetupPage setup(liveData());
    open(setup, function, 0);
    SetupCase::press(setup, keys);
    const QList<QByteArray> file = SetupCase::settingFile().split('\n');
    for (const QByteArray &line : lines)
        QVERIFY2(file.contains(line), line + " is not in " + file.join(' '));
    const SettingConfig reader; // what the next start finds, which begins with the inrush levels of the clamp
    for (const auto &row : SettingConfig::rows()) {
        if (!QByteArray(row.key).startsWith("INRUSH_"))
            QCOMPARE(reader.value(row), m_settingConfig_g.value(row));
    }
}

void TstSetupEditors::okWithoutAChangeWritesNothing()
{
    QFETCH(int, function);
    m_settingConfig_g.setInrushIndex(0); // as the trend's length in force
    SetupPage setup(liveData());
    open(setup, function, 0);
    const QByteArray file = SetupCase::settingFile();
    const int writes = RootFiles::commands().count("sync");
    SetupCase::press(setup, { F4 });
    QCOMPARE(SetupCase::settingFile(), file);
    QCOMPARE(RootFiles::commands().count("sync"), writes);
}

void TstSetupEditors::defaultRestoresTheValuesOfMissingKeys()
{
    SetupPage setup(liveData());
    open(setup, SetupCase::MainsSig, 0);
    SetupCase::press(setup, { Left, Left, Down, Left, Down, Left, Down, Left, F3 });
    QCOMPARE(SetupCase::text(setup, "freq1"), QStringLiteral("1350"));
    QCOMPARE(SetupCase::text(setup, "threshold1"), QStringLiteral("5.0"));
    QCOMPARE(SetupCase::text(setup, "freq2"), QStringLiteral("2850"));
    QCOMPARE(SetupCase::text(setup, "threshold2"), QStringLiteral("5.0"));
    open(setup, SetupCase::Inrush, 0);
    SetupCase::press(setup, { Down, Left, Down, Left, Down, Right, F3 });
    QCOMPARE(SetupCase::text(setup, "duration"), QStringLiteral("1 m")); // row 1
    QCOMPARE(SetupCase::text(setup, "nom_amps"), QStringLiteral("1.250 A"));
    QCOMPARE(SetupCase::text(setup, "threshold"), QStringLiteral("200 %"));
    QCOMPARE(SetupCase::text(setup, "hysteresis"), QStringLiteral("20 %"));
    open(setup, SetupCase::KFactor, 0);
    SetupCase::press(setup, { Down, Left, Down, Left, Up, Up, Right, F3 });
    QCOMPARE(SetupCase::text(setup, "method"), QStringLiteral("EU"));
    QCOMPARE(SetupCase::text(setup, "e"), QStringLiteral("0.10"));
    QCOMPARE(SetupCase::text(setup, "q"), QStringLiteral("1.70"));
}

void TstSetupEditors::defaultAloneStoresNothing()
{
    m_settingConfig_g.setMainsSigFreq1(1000);
    SetupPage setup(liveData());
    open(setup, SetupCase::MainsSig, 0);
    const QByteArray file = SetupCase::settingFile();
    SetupCase::press(setup, { F3, F5 });
    QCOMPARE(SetupCase::settingFile(), file);
    QCOMPARE(m_settingConfig_g.getMainsSigFreq1(), 1000.0);
}

void TstSetupEditors::defaultEndsAHeldKey()
{
    SetupPage setup(liveData());
    open(setup, SetupCase::MainsSig, 0);
    PageTest::hold(setup.currentPage(), Right, 5);
    SetupCase::press(setup, { F3 });
    setup.currentPage()->findChild<KeyRepeat *>()->tick();
    QCOMPARE(SetupCase::text(setup, "freq1"), QStringLiteral("1350"));
    PageTest::release(setup.currentPage(), Right);
}

void TstSetupEditors::kFactorParametersCanBeChangedWithTheEuropeanMethodOnly()
{
    SetupPage setup(liveData());
    open(setup, SetupCase::KFactor, 0);
    auto *page = qobject_cast<EditorPage *>(setup.currentPage());
    SetupCase::press(setup, { Right, Down, Right });
    QCOMPARE(page->field(), 0); // the grey fields cannot be reached
    QCOMPARE(SetupCase::text(setup, "e"), QStringLiteral("0.10"));
    QCOMPARE(SetupCase::text(setup, "method"), QStringLiteral("US"));
    SetupCase::press(setup, { Left, Down, Right });
    QCOMPARE(page->field(), 1);
    QCOMPARE(SetupCase::text(setup, "e"), QStringLiteral("0.11"));
}

void TstSetupEditors::durationOfTheInrushIsInForceAfterOk()
{
    SetupPage setup(liveData());
    open(setup, SetupCase::Inrush, 0);
    SetupCase::press(setup, { Right, Right, Right });
    QCOMPARE(SetupCase::text(setup, "duration"), QStringLiteral("4 m"));
    QCOMPARE(InrushInfo::m_duration_index, 0); // not yet
    SetupCase::press(setup, { F4 });
    QCOMPARE(InrushInfo::m_duration_index, 3);
    QCOMPARE(m_settingConfig_g.getInrushIndex(), 3);
}

void TstSetupEditors::durationOfTheInrushMovesByOneHoweverLongAKeyIsHeld()
{
    SetupPage setup(liveData());
    open(setup, SetupCase::Inrush, 0);
    SetupCase::hold(setup, Right, 4); // where other fields begin to move by five
    QCOMPARE(SetupCase::text(setup, "duration"), QStringLiteral("16 m")); // row 5
}

void TstSetupEditors::valuesOutsideTheirBoundsStayUntilTheyAreChanged()
{
    RootFiles::write(SettingConfig::filePath(), "TRANS_THRESHOLD=9000\nMAINSSIG_FREQ1=20\nFLICKER_WEIGHTING_CURVE=0\n");
    m_settingConfig_g.loadSettingConfig();
    SetupPage setup(liveData());
    open(setup, SetupCase::Transients, 0);
    QCOMPARE(SetupCase::text(setup, "threshold"), QStringLiteral("9000 %"));
    SetupCase::press(setup, { F4 });
    QVERIFY(SetupCase::settingFile().contains("TRANS_THRESHOLD=9000\n"));
    open(setup, SetupCase::Transients, 0);
    SetupCase::press(setup, { Right });
    QCOMPARE(SetupCase::text(setup, "threshold"), QStringLiteral("6000 %"));
    open(setup, SetupCase::MainsSig, 0);
    SetupCase::press(setup, { Left });
    QCOMPARE(SetupCase::text(setup, "freq1"), QStringLiteral("50"));
    open(setup, SetupCase::Flicker, 0);
    QCOMPARE(SetupCase::text(setup, "curve"), QStringLiteral("60Hz 120V")); // as the processor is set up with
}

void TstSetupEditors::fileThatCannotBeWrittenKeepsItsTextAndTheValueHolds()
{
    const QByteArray file = SetupCase::settingFile();
    {
        OrdinaryUser user;
        user.setFolderMode(QFile::encodeName(Target::path(QStringLiteral("/mnt/userfs/sys"))), 0555);
        SetupPage setup(liveData());
        open(setup, SetupCase::Transients, 0);
        SetupCase::press(setup, { Right, F4 });
        QCOMPARE(SetupCase::onTop(setup), QStringLiteral("SetupFunctions"));
        QCOMPARE(m_settingConfig_g.getTransThreshold(), 51);
        SetupCase::press(setup, { Enter });
        QCOMPARE(SetupCase::text(setup, "threshold"), QStringLiteral("51 %"));
    }
    QCOMPARE(SetupCase::settingFile(), file);
}

void TstSetupEditors::fileRemovedBehindThePageIsMadeAnew()
{
    SetupPage setup(liveData());
    open(setup, SetupCase::Transients, 0);
    SetupCase::press(setup, { Right });
    QVERIFY(QFile::remove(Target::path(SettingConfig::filePath())));
    SetupCase::press(setup, { F4 });
    QCOMPARE(SetupCase::settingFile(), QByteArray("\nTRANS_THRESHOLD=51"));
    const SettingConfig reader;
    QCOMPARE(reader.getTransThreshold(), 51);
    QCOMPARE(reader.getMainsSigFreq1(), 1350.0);
}

PAGE_TEST_MAIN(TstSetupEditors)
#include "tst_setupeditors.moc"
