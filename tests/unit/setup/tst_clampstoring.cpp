#include "clampcase.h"

#include "settings/limitbuiltins.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/ordinaryuser.h"
#include "unit/views/framespy.h"

#include <QSignalSpy>

using namespace ClampCase;

namespace {

QByteArray stored()
{
    return RootFiles::read(SettingConfig::filePath()) + RootFiles::read(kPath) + RootFiles::read(kPathN);
}

} // namespace

/// What Ok and Cancel of the clamp page do to files, settings and scales.
class TstClampStoring : public Pages
{
    Q_OBJECT

private slots:
    void init() { openPage(); }
    void scalesFollowClampAndRatios();
    void leavingSetupSendsClampAndLimitsToTheProcessor();
    void okWithoutAChangeKeepsInrushLevels();
    void cancelLeavesTheFilesByteForByte();
    void leavingByAFunctionKeyDropsTheDraft();
    void whatIsOutOfBoundsInTheFileStaysUnlessEdited();
    void filesThatCannotBeWrittenKeepTheStateShown_data();
    void filesThatCannotBeWrittenKeepTheStateShown();
    void filesThatWereTakenAwayAreWrittenAgain();
};

void TstClampStoring::scalesFollowClampAndRatios()
{
    const ScaleTable before = m_settingConfig_g.derived().scales; // 10 mV/A, 1:1
    addClamp("Tenth", "0.5", "100");
    selectField(RatioI);
    press(choice(), Right, 2);
    selectField(RatioV);
    press(choice(), Right);
    QCOMPARE(m_settingConfig_g.derived().scales.current[0], before.current[0]); // only a draft
    press(choice(), F4);
    const ScaleTable &after = m_settingConfig_g.derived().scales;
    // 2 x 100 A x 500 uV/A stays in the calibration row of 2 x 5 A x 10000 uV/A, so the gain is the same.
    for (int k = 0; k < 3; ++k) {
        QCOMPARE(after.voltage[k], before.voltage[k] * 10);
        QCOMPARE(after.current[k], before.current[k] * 20 * 100);
        QCOMPARE(after.power[k], before.power[k] * 20 * 100 * 10);
    }
    QCOMPARE(after.voltage[3], before.voltage[3]);
}

void TstClampStoring::leavingSetupSendsClampAndLimitsToTheProcessor()
{
    constexpr quint32 kFlexible = 1 << 15;
    constexpr int kConfiguration = 2, kSignal1 = 21; // words of the set-up frame
    SetupCase::makeDevice();
    monitor_limit limit = LimitBuiltins::en50160();
    limit.frequency1.value = 1450;
    m_limits_g.add("Signals", limit);
    SetupPage setup(liveData());
    setup.enter();
    FrameSpy frames;
    SetupCase::press(setup, { F4, Down, Right, Right, Right, Right, Right, Right, F4 }); // a flexible clamp
    SetupCase::press(setup, { F5, F1, Down, Down, F4 }); // the third set
    QCOMPARE(SetupCase::onTop(setup), QStringLiteral("SetupMainPage2"));
    QCOMPARE(frames.count(), 0);
    SetupCase::press(setup, { F6 });
    QCOMPARE(frames.count(), 3);
    QCOMPARE(frames.word(0, kConfiguration) & kFlexible, kFlexible);
    const quint32 word = frames.word(0, kSignal1);
    float hertz = 0;
    memcpy(&hertz, &word, sizeof hertz);
    QCOMPARE(hertz, 1450.0f);
    m_limits_g.remove("Signals");
}

void TstClampStoring::okWithoutAChangeKeepsInrushLevels()
{
    m_settingConfig_g.setInrushThreshold(150);
    press(choice(), F4);
    QCOMPARE(m_settingConfig_g.getInrushThreshold(), 150);
    chooseClamp("TARN-45");
    press(choice(), F4);
    QCOMPARE(m_settingConfig_g.getInrushThreshold(), 200); // another clamp begins with its own
    QCOMPARE(m_settingConfig_g.getInrushNomAmps(), 250.0);
}

void TstClampStoring::cancelLeavesTheFilesByteForByte()
{
    addClamp("Kept", "2", "50");
    press(choice(), F4);
    const QByteArray before = stored();
    QFile::remove(Target::path("/var/log/commands"));
    m_page->init_parameter();

    addClamp("Dropped");
    chooseClamp("Kept");
    {
        DialogDriver driver({ answered("Delete the Clamp?", 'F') });
        press(choice(), F3);
        QVERIFY(driver.isDone());
    }
    selectField(RatioI);
    press(choice(), Right, 7);
    selectField(Channel);
    press(choice(), Right);
    chooseClamp("TARN-F1");
    QSignalSpy closed(m_page.get(), &SetupClamps::closed);
    press(choice(), F5);
    QCOMPARE(closed.count(), 1);
    QCOMPARE(stored(), before);
    QCOMPARE(RootFiles::commands(), QByteArray()); // nothing was written in between
    QCOMPARE(m_settingConfig_g.clamps()->names().mid(9), QStringList { "Kept" });
    QCOMPARE(m_settingConfig_g.curClamp()->name(), QStringLiteral("Kept"));
    QCOMPARE(m_settingConfig_g.getRatioIFenzi(), 1);
    QCOMPARE(shown("clamp"), QStringLiteral("Kept"));
    QCOMPARE(shown("i_ratio"), QStringLiteral("1:1"));
}

void TstClampStoring::leavingByAFunctionKeyDropsTheDraft()
{
    const QByteArray before = stored();
    chooseClamp("TARN-45");
    press(choice(), F1);
    QSignalSpy leave(m_page.get(), &Page::leave);
    press(editor(), F6);
    QCOMPARE(leave.count(), 1);
    m_page->init_parameter(); // the page comes on top again
    QVERIFY(!inEditor());
    QCOMPARE(shown("clamp"), QStringLiteral("TARN-41A"));
    QCOMPARE(stored(), before);
}

void TstClampStoring::whatIsOutOfBoundsInTheFileStaysUnlessEdited()
{
    m_settingConfig_g.setRatioIFenzi(250000);
    m_settingConfig_g.setRatioVFenmu(0);
    m_page->init_parameter();
    QCOMPARE(shown("i_ratio_note"), QStringLiteral("250000:1"));
    press(choice(), F4);
    QCOMPARE(m_settingConfig_g.getRatioIFenzi(), 250000);
    QCOMPARE(m_settingConfig_g.getRatioVFenmu(), 0);
    selectField(RatioI);
    press(choice(), Left);
    press(choice(), F4);
    QCOMPARE(m_settingConfig_g.getRatioIFenzi(), 10000);
}

void TstClampStoring::filesThatCannotBeWrittenKeepTheStateShown_data()
{
    QTest::addColumn<bool>("readOnly");
    QTest::newRow("read-only folder") << true;
    QTest::newRow("full card") << false;
}

void TstClampStoring::filesThatCannotBeWrittenKeepTheStateShown()
{
    QFETCH(bool, readOnly);
    addClamp("Old");
    press(choice(), F4);
    const QByteArray before = stored();
    {
        OrdinaryUser user;
        const FileLimit limit(readOnly ? RLIM_INFINITY : 10);
        if (readOnly)
            user.setFolderMode(QFile::encodeName(Target::path("/mnt/userfs/sys")), 0555);
        m_page->init_parameter();
        addClamp("New", "2", "50");
        selectField(RatioI);
        press(choice(), Right);
        press(choice(), F4);
    }
    QCOMPARE(stored(), before);
    // In use until the next start, and still on the page.
    QCOMPARE(m_settingConfig_g.curClamp()->name(), QStringLiteral("New"));
    QCOMPARE(m_settingConfig_g.getRatioIFenzi(), 10);
    m_page->init_parameter();
    QCOMPARE(shown("clamp"), QStringLiteral("New"));
    QCOMPARE(shown("i_ratio"), QStringLiteral("10:1"));
    press(choice(), F4); // with room again it is stored
    QCOMPARE(ClampIF(kPath).inUsed(), QStringLiteral("New"));
}

void TstClampStoring::filesThatWereTakenAwayAreWrittenAgain()
{
    addClamp("Mine");
    press(choice(), F4);
    const QByteArray before = RootFiles::read(kPath);
    m_page->init_parameter();
    QFile::remove(Target::path(kPath));
    QFile::remove(Target::path(kPathN));
    press(choice(), F5); // Cancel writes nothing, and forgets nothing
    QCOMPARE(m_settingConfig_g.curClamp()->name(), QStringLiteral("Mine"));
    QVERIFY(!RootFiles::exists(kPath));
    m_page->init_parameter();
    QCOMPARE(shown("clamp"), QStringLiteral("Mine"));
    press(choice(), F4);
    QCOMPARE(RootFiles::read(kPath), before);
}

PAGE_TEST_MAIN(TstClampStoring)
#include "tst_clampstoring.moc"
