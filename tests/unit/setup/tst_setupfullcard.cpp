#include "setupcase.h"

#include "setup/instrumentinfo.h"
#include "typing.h"
#include "unit/storage/filelimit.h"

using namespace PageTest;
using SetupCase::Keys;

namespace {
constexpr int kRoom = 10; // bytes that a file may have
}

/// A card that is full: what is chosen on the set-up pages counts and is shown, and the files stay whole.
class TstSetupFullCard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SetupCase::makeDevice(); }
    void init() { SetupCase::restoreSettings(); }
    void choiceHoldsAndTheFileStaysWhole_data();
    void choiceHoldsAndTheFileStaysWhole();
    void labelsOfTheInstrumentHoldAndTheirFilesStayWhole();
};

void TstSetupFullCard::choiceHoldsAndTheFileStaysWhole_data()
{
    QTest::addColumn<Keys>("keys"); // from the first page of Setup
    QTest::addColumn<Keys>("again"); // from where these end to the page that shows the choice
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QByteArray>("line"); // of the file, where it can be written
    const auto add = [](const char *name, const Keys &keys, const Keys &again, const char *label, const char *shown,
                        const char *line) {
        QTest::newRow(name) << keys << again << QByteArray(label) << QString::fromLatin1(shown) << QByteArray(line);
    };
    add("frequency", { F3 }, {}, "freq", "60 Hz", "NOM_FREQ=2");
    add("wiring", { F1, Right, Enter, F4 }, {}, "config", "3P IT", "JOINMODE=2");
    Keys custom { F2 };
    custom.insert(custom.end(), 8, Right);
    custom.insert(custom.end(), { Up, F4 });
    add("nominal voltage", custom, {}, "vnom", "501 V", "NOM_VOLT_CUSTOM=501");
    const auto addFunction
        = [&add](int function, const Keys &keys, const char *label, const char *shown, const char *line) {
              Keys all = SetupCase::toFunction(function);
              all.insert(all.end(), keys.begin(), keys.end());
              add(label, all, { Enter }, label, shown, line);
          };
    addFunction(SetupCase::KFactor, { Right, F5 }, "method", "US", "KFACTOR_METHOD=2");
    addFunction(SetupCase::Flicker, { Left, F4 }, "curve", "60Hz 120V", "FLICKER_WEIGHTING_CURVE=120");
    addFunction(SetupCase::Transients, { Right, F4 }, "threshold", "51 %", "TRANS_THRESHOLD=51");
    addFunction(SetupCase::Inrush, { Right, Right, F4 }, "duration", "2 m", "INRUSH_INDEX=2");
    addFunction(SetupCase::MainsSig, { Right, F4 }, "freq1", "1351", "MAINSSIG_FREQ1=1351");
}

void TstSetupFullCard::choiceHoldsAndTheFileStaysWhole()
{
    QFETCH(Keys, keys);
    QFETCH(Keys, again);
    QFETCH(QByteArray, label);
    QFETCH(QString, shown);
    QFETCH(QByteArray, line);
    m_settingConfig_g.setLoggerFlag(4711); // any line, so that there is a file, longer than the limit
    const QByteArray before = SetupCase::settingFile();
    QVERIFY(before.size() > kRoom);
    SetupPage setup(liveData());
    setup.enter();
    const auto choose = [&] {
        SetupCase::press(setup, keys);
        SetupCase::press(setup, again);
        return SetupCase::text(setup, label.constData());
    };
    {
        const FileLimit full(kRoom);
        QCOMPARE(choose(), shown);
        QCOMPARE(SetupCase::settingFile(), before);
    }
    SettingConfig next; // what the next start finds
    QCOMPARE(next.getLoggerFlag(), 4711u);
    m_settingConfig_g.setTransThreshold(49);
    QVERIFY(SetupCase::settingFile().contains("TRANS_THRESHOLD=49"));
    QVERIFY(SetupCase::settingFile().contains("LOGGER_FLAG=4711"));
    // The same keys from the state before, now with room.
    SetupCase::restoreSettings();
    setup.enter();
    QCOMPARE(choose(), shown);
    QVERIFY2(SetupCase::settingFile().contains(line), SetupCase::settingFile());
}

void TstSetupFullCard::labelsOfTheInstrumentHoldAndTheirFilesStayWhole()
{
    const QString number = QStringLiteral("/mnt/userfs/sys/sn"),
                  model = QStringLiteral("/mnt/userfs/config/quvera_type.conf");
    m_userConfig_g.setInstrumentSN(QStringLiteral("1AA00000000004711"));
    m_userConfig_g.setInstrumentModel(UserConfig::QuveraE);
    const QByteArray before = RootFiles::read(number) + RootFiles::read(model);
    {
        const FileLimit full(kRoom);
        DialogDriver driver({ DialogDriver::press("K"), Typing::typed(QStringLiteral("2BB00000000004712")),
                              DialogDriver::press("TDF") });
        InstrumentInfo::editInstrumentInfo();
        QVERIFY(driver.isDone());
    }
    QCOMPARE(RootFiles::read(number) + RootFiles::read(model), before);
    QCOMPARE(m_userConfig_g.getInstrumentSN(), QStringLiteral("2BB00000000004712"));
    DialogDriver driver({ [](QDialog *dialog) {
        QCOMPARE(labelText(dialog, "sn"), QStringLiteral("2BB00000000004712"));
        QTest::keyClick(dialog, Qt::Key(F5));
    } });
    InstrumentInfo::editInstrumentInfo();
    QVERIFY(driver.isDone());
    QCOMPARE(UserConfig().getInstrumentSN(), QStringLiteral("1AA00000000004711"));
}

PAGE_TEST_MAIN(TstSetupFullCard)
#include "tst_setupfullcard.moc"
