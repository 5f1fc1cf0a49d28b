#include "clampcase.h"

using namespace ClampCase;

/// The page of clamps and ratios and the editor of a user's clamp.
class TstSetupClamps : public Pages
{
    Q_OBJECT

private slots:
    void init() { openPage(); }

    // choosing
    void thePageShowsTheClampInUse();
    void clampsAreWalkedToTheEnds();
    void clampsOfOneNameAreBothPassed();
    void ratiosAreWalked();
    void aCustomRatioIsTyped();
    void aCustomRatioThatIsCancelledStays();
    void phasesAndNeutralChannelAreSetApart();
    void aLongNameIsCutToItsRoom();

    // a user's clamps
    void anAddedClampIsChosenAndStoredInItsForm();
    void aNameThatExistsIsRefusedAndNothingIsLost();
    void aBuiltInClampIsChosenButNotEditedOrDeleted();
    void aChangedClampKeepsItsPlace();
    void aClampMayNotTakeTheNameOfAnother();
    void deletingAsksFirst();
    void namesAreChecked_data();
    void namesAreChecked();
    void theRangeFollowsTheRatio();
    void aRatioOfZeroLeavesTheBound();
    void aRatioOfZeroBeginsWithTheWidestBound();
    void aRatioOfZeroMeasuresNothing();
    void theRangeIsAtLeastOneAmpere();
};

void TstSetupClamps::thePageShowsTheClampInUse()
{
    QCOMPARE(shown("clamp_t"), QStringLiteral("Clamp :"));
    QCOMPARE(shown("range_t"), QStringLiteral("I range :"));
    QCOMPARE(shown("flexible_t"), QStringLiteral("Flexible :"));
    QCOMPARE(shown("i_ratio_t"), QStringLiteral("I Ratio :"));
    QCOMPARE(shown("v_ratio_t"), QStringLiteral("V Ratio :"));
    QCOMPARE(shown("clamp"), QStringLiteral("TARN-41A"));
    QCOMPARE(shown("ratio"), QStringLiteral("10 mV/A"));
    QCOMPARE(shown("range"), QStringLiteral("5 A"));
    QCOMPARE(shown("flexible"), QStringLiteral("No"));
    QCOMPARE(shown("i_ratio"), QStringLiteral("1:1"));
    QCOMPARE(shown("v_ratio"), QStringLiteral("1:1"));
    QStringList keys;
    for (const char *key : { "btn_f1", "btn_f2", "btn_f3", "btn_f4", "btn_f5" })
        keys << shown(key);
    QCOMPARE(keys, QStringList({ "Add", "Edit", "Delete", "Ok", "Cancel" }));
}

void TstSetupClamps::clampsAreWalkedToTheEnds()
{
    selectField(ClampName);
    press(choice(), Left);
    QCOMPARE(shown("clamp"), QStringLiteral("TARN-41A"));
    QStringList passed { shown("clamp") };
    for (int i = 0; i < 10; ++i) {
        press(choice(), Right);
        passed << shown("clamp");
    }
    QCOMPARE(passed,
             QStringList({ "TARN-41A", "TARN-42B", "TARN-43", "TARN-44", "TARN-45", "TARN-46", "TARN-F1", "TARN-F2",
                           "TARN-F3", "TARN-F3", "TARN-F3" }));
    QCOMPARE(shown("flexible"), QStringLiteral("Yes"));
    QCOMPARE(shown("ratio"), QStringLiteral("0.065 mV/A"));
}

void TstSetupClamps::clampsOfOneNameAreBothPassed()
{
    RootFiles::write(kPath,
                     "<PQA version='1.0' inUsed='TARN-F3'><clamp name='X' range='1' ratio='2000' editable='true'/>"
                     "<clamp name='X' range='7' ratio='2000' editable='true'/></PQA>");
    m_settingConfig_g.loadSettingConfig();
    m_page->init_parameter();
    selectField(ClampName);
    press(choice(), Right, 2);
    QCOMPARE(shown("range"), QStringLiteral("7 A"));
    press(choice(), Left);
    QCOMPARE(shown("range"), QStringLiteral("1 A"));
}

void TstSetupClamps::ratiosAreWalked()
{
    selectField(RatioI);
    press(choice(), Right, 4);
    QCOMPARE(shown("i_ratio"), QStringLiteral("10000:1"));
    QCOMPARE(shown("i_ratio_note"), QString());
    press(choice(), Right, 3);
    QCOMPARE(shown("i_ratio"), QStringLiteral("CUSTOM"));
    QCOMPARE(shown("i_ratio_note"), QStringLiteral("1000:1"));
    press(choice(), Left, 9);
    QCOMPARE(shown("i_ratio"), QStringLiteral("1:1"));
    QCOMPARE(shown("v_ratio"), QStringLiteral("1:1"));
}

void TstSetupClamps::aCustomRatioIsTyped()
{
    selectField(RatioV);
    press(choice(), Enter); // a preset is not typed: no dialog opens
    press(choice(), Right, 5);
    DialogDriver driver({ typed("20000"), typed("110") });
    press(choice(), Enter);
    QVERIFY(driver.isDone());
    QCOMPARE(shown("v_ratio_note"), QStringLiteral("20000:110"));
    press(choice(), F4);
    QCOMPARE(m_settingConfig_g.getRatioVFenzi(), 20000);
    QCOMPARE(m_settingConfig_g.getRatioVFenmu(), 110);
    m_settingConfig_g.loadSettingConfig();
    m_page->init_parameter();
    QCOMPARE(shown("v_ratio"), QStringLiteral("CUSTOM"));
    QCOMPARE(shown("v_ratio_note"), QStringLiteral("20000:110"));
}

void TstSetupClamps::aCustomRatioThatIsCancelledStays()
{
    selectField(RatioV);
    press(choice(), Right, 5);
    {
        DialogDriver driver({ droppedAfter("7") });
        press(choice(), Enter);
        QVERIFY(driver.isDone());
    }
    DialogDriver driver({ typed("7"), droppedAfter("8") });
    press(choice(), Enter);
    QVERIFY(driver.isDone());
    QCOMPARE(shown("v_ratio_note"), QStringLiteral("1000:1"));
}

void TstSetupClamps::phasesAndNeutralChannelAreSetApart()
{
    chooseClamp("TARN-45");
    selectField(RatioI);
    press(choice(), Right);
    selectField(Channel);
    press(choice(), Right);
    QCOMPARE(shown("channel"), QStringLiteral("Neutral"));
    QCOMPARE(shown("clamp"), QStringLiteral("TARN-41A"));
    QCOMPARE(shown("i_ratio"), QStringLiteral("1:1"));
    addClamp("Coil", "0.085", "1200");
    selectField(RatioV);
    press(choice(), Right, 2);
    selectField(Channel);
    press(choice(), Left);
    QCOMPARE(shown("clamp"), QStringLiteral("TARN-45"));
    press(choice(), F4);
    QCOMPARE(m_settingConfig_g.curClamp()->name(), QStringLiteral("TARN-45"));
    QCOMPARE(m_settingConfig_g.curClampN()->name(), QStringLiteral("Coil"));
    QVERIFY(!m_settingConfig_g.clamps()->findClamp("Coil"));
    QCOMPARE(m_settingConfig_g.getRatioIFenzi(), 10);
    QCOMPARE(m_settingConfig_g.getRatioINFenzi(), 1);
    QCOMPARE(m_settingConfig_g.getRatioVNFenzi(), 100);
    QCOMPARE(m_settingConfig_g.getRatioVFenzi(), 1);
}

void TstSetupClamps::aLongNameIsCutToItsRoom()
{
    m_settingConfig_g.clamps()->addClamp(new Clamp(QString(200, 'W'), 20, 500, false, true, "W"));
    m_settingConfig_g.clamps()->setCurClamp(QString(200, 'W'));
    m_page->init_parameter();
    QVERIFY(shown("clamp").startsWith("WW"));
    auto *label = choice()->findChild<QLabel *>("clamp");
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
    press(choice(), F2);
    label = editor()->findChild<QLabel *>("name");
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
    press(editor(), F4); // the name is whole nevertheless
    press(choice(), F4);
    QCOMPARE(ClampIF(kPath).inUsed(), QString(200, 'W'));
}

void TstSetupClamps::anAddedClampIsChosenAndStoredInItsForm()
{
    press(choice(), F1);
    QCOMPARE(shown("name"), QString());
    QCOMPARE(shown("ratio"), QStringLiteral("1 mV/A"));
    QCOMPARE(shown("range"), QStringLiteral("10 A"));
    QCOMPARE(shown("flexible"), QStringLiteral("No"));
    fillEditor("Coil 12", "0.085", "1200");
    selectField(IsFlexible);
    press(editor(), Right);
    QCOMPARE(shown("flexible"), QStringLiteral("Yes"));
    press(editor(), F4);
    QCOMPARE(shown("clamp"), QStringLiteral("Coil 12"));
    QCOMPARE(shown("ratio"), QStringLiteral("0.085 mV/A"));
    QCOMPARE(shown("range"), QStringLiteral("1200 A"));
    QVERIFY(!RootFiles::exists(kPath)); // not before Ok
    press(choice(), F4);
    // Written by hand, as the format's page has it.
    QCOMPARE(RootFiles::read(kPath),
             QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
                        "<PQA version=\"1.0\" inUsed=\"Coil 12\">\n"
                        "    <clamp name=\"Coil 12\" range=\"1200\" ratio=\"85\" editable=\"true\" flexible=\"true\">"
                        "Coil 12, flexible, Editable</clamp>\n"
                        "</PQA>\n"));
    const ClampIF loaded(kPath);
    QCOMPARE(loaded.getCurClamp()->name(), QStringLiteral("Coil 12"));
    QCOMPARE(loaded.getCurClamp()->range(), 1200);
}

void TstSetupClamps::aNameThatExistsIsRefusedAndNothingIsLost()
{
    addClamp("Mine");
    press(choice(), F1);
    for (const char *name : { "Mine", "TARN-F2" }) {
        fillEditor(name, "2", "30");
        DialogDriver driver({ answered("Clamp Exist!") });
        press(editor(), F4);
        QVERIFY(driver.isDone());
        QVERIFY(inEditor());
        QCOMPARE(shown("name"), QString::fromLatin1(name));
        QCOMPARE(shown("ratio"), QStringLiteral("2 mV/A"));
    }
    fillEditor("Other");
    press(editor(), F4);
    QCOMPARE(shown("clamp"), QStringLiteral("Other"));
    press(choice(), F4);
    QCOMPARE(m_settingConfig_g.clamps()->names().mid(9), QStringList({ "Mine", "Other" }));
}

void TstSetupClamps::aBuiltInClampIsChosenButNotEditedOrDeleted()
{
    chooseClamp("TARN-44");
    for (const FrontKey key : { F2, F3 }) {
        DialogDriver driver({ answered("Uneditable Clamp!") });
        press(choice(), key);
        QVERIFY(driver.isDone());
        QVERIFY(!inEditor());
    }
    QCOMPARE(shown("clamp"), QStringLiteral("TARN-44"));
    press(choice(), F4);
    QCOMPARE(m_settingConfig_g.curClamp()->name(), QStringLiteral("TARN-44"));
    QCOMPARE(m_settingConfig_g.clamps()->count(), 9);
}

void TstSetupClamps::aChangedClampKeepsItsPlace()
{
    addClamp("A");
    addClamp("B");
    addClamp("C");
    chooseClamp("B");
    press(choice(), F2);
    QCOMPARE(shown("name"), QStringLiteral("B"));
    fillEditor("B2", "5", "100");
    press(editor(), F4);
    press(choice(), F4);
    QCOMPARE(m_settingConfig_g.clamps()->names().mid(9), QStringList({ "A", "B2", "C" }));
    QCOMPARE(m_settingConfig_g.curClamp()->description(), QStringLiteral("B2, Not flexible, Editable"));
    QCOMPARE(m_settingConfig_g.curClamp()->ratio(), 5000);
    QCOMPARE(ClampIF(kPath).inUsed(), QStringLiteral("B2"));
}

void TstSetupClamps::aClampMayNotTakeTheNameOfAnother()
{
    addClamp("A");
    addClamp("B");
    press(choice(), F2);
    fillEditor("A");
    DialogDriver driver({ answered("Clamp Exist!") });
    press(editor(), F4);
    QVERIFY(driver.isDone());
    QVERIFY(inEditor());
    press(editor(), F5);
    QCOMPARE(shown("clamp"), QStringLiteral("B"));
    press(choice(), F2); // its own name it may keep
    press(editor(), F4);
    QVERIFY(!inEditor());
}

void TstSetupClamps::deletingAsksFirst()
{
    addClamp("A");
    {
        DialogDriver driver({ answered("Delete the Clamp?", 'L') });
        press(choice(), F3);
        QVERIFY(driver.isDone());
    }
    QCOMPARE(shown("clamp"), QStringLiteral("A"));
    DialogDriver driver({ answered("Delete the Clamp?", 'F') });
    press(choice(), F3);
    QVERIFY(driver.isDone());
    QCOMPARE(shown("clamp"), QStringLiteral("TARN-F3")); // the tail of the list takes over
    press(choice(), F4);
    QCOMPARE(m_settingConfig_g.clamps()->count(), 9);
    QCOMPARE(ClampIF(kPath).inUsed(), QStringLiteral("TARN-F3"));
}

void TstSetupClamps::namesAreChecked_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message"); // empty: taken, and found again at the next start
    QTest::newRow("empty") << ""
                           << "Empty name!";
    QTest::newRow("line feed") << "a\nb"
                               << "Invalid name!";
    QTest::newRow("half a pair") << QString(QChar(0xdc00)) << "Invalid name!";
    QTest::newRow("quotes") << "a\"b'c"
                            << "";
    QTest::newRow("slashes") << "../a/b\\c"
                             << "";
    QTest::newRow("star") << "*"
                          << "";
    QTest::newRow("leading dot") << ".hidden"
                                 << "";
    QTest::newRow("200 characters") << QString(200, 'x') << "";
    QTest::newRow("letters of the world") << QString::fromUtf8("Zange Größe 钳 Ж") << "";
    QTest::newRow("signs of the file's form") << "<clamp/>&amp;]]>"
                                              << "";
}

void TstSetupClamps::namesAreChecked()
{
    QFETCH(QString, name);
    QFETCH(QString, message);
    // Such a name comes out of a file; the keyboard does not have most of these signs.
    Clamp clamp;
    clamp.setName(name);
    press(choice(), F1);
    static_cast<ClampEditor *>(editor())->begin(clamp);
    if (!message.isEmpty()) {
        DialogDriver driver({ answered(message) });
        press(editor(), F4);
        QVERIFY(driver.isDone());
        QVERIFY(inEditor());
        return;
    }
    press(editor(), F4);
    QVERIFY(!inEditor());
    press(choice(), F4);
    const ClampIF loaded(kPath);
    QCOMPARE(loaded.names().mid(9), QStringList { name });
    QCOMPARE(loaded.getCurClamp()->description(), name + ", Not flexible, Editable");
}

void TstSetupClamps::theRangeFollowsTheRatio()
{
    press(choice(), F1);
    fillEditor("A", "1", "2500");
    QCOMPARE(shown("range"), QStringLiteral("2000 A")); // 2 V over 1 mV/A
    fillEditor({}, "1000");
    QCOMPARE(shown("range"), QStringLiteral("2 A"));
    fillEditor({}, "0.001", "9999");
    QCOMPARE(shown("range"), QStringLiteral("9999 A"));
    fillEditor({}, "0.5");
    QCOMPARE(shown("range"), QStringLiteral("4000 A"));
}

void TstSetupClamps::aRatioOfZeroLeavesTheBound()
{
    press(choice(), F1);
    fillEditor("A", "1", "2000");
    fillEditor({}, "0", "2500");
    QCOMPARE(shown("ratio"), QStringLiteral("0 mV/A"));
    QCOMPARE(shown("range"), QStringLiteral("2000 A"));
}

void TstSetupClamps::aRatioOfZeroBeginsWithTheWidestBound()
{
    addClamp("Zero", "0", "100"); // its bound was that of the ratio before
    press(choice(), F2);
    fillEditor({}, {}, "5000");
    QCOMPARE(shown("range"), QStringLiteral("5000 A"));
}

void TstSetupClamps::aRatioOfZeroMeasuresNothing()
{
    addClamp("Zero", "0", "100");
    press(choice(), F4);
    QCOMPARE(m_settingConfig_g.curClamp()->ratio(), 0);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(m_settingConfig_g.derived().scales.current[i], 0.0f);
        QCOMPARE(m_settingConfig_g.derived().scales.power[i], 0.0f);
    }
    m_page->init_parameter();
    QCOMPARE(shown("ratio"), QStringLiteral("0 mV/A"));
}

void TstSetupClamps::theRangeIsAtLeastOneAmpere()
{
    press(choice(), F1);
    fillEditor("A", "10", "0");
    QCOMPARE(shown("range"), QStringLiteral("1 A"));
}

PAGE_TEST_MAIN(TstSetupClamps)
#include "tst_setupclamps.moc"
