#include <QTest>

#include "settings/config.h"
#include "settings/settingconfig.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/rootfiles.h"
#include "unit/storage/wornfile.h"

#include <functional>

namespace {

/// What the instrument's manual says of a key, written down again here by hand.
struct Documented
{
    const char *key;
    const char *missing; // after a start without the key
    const char *word; // after a start with a word that is no number
    int lowest, highest;
};
const Documented kDocumented[] = {
    { "NOM_VOLT_SELECT", "5", "1", 1, 9 },
    { "NOM_VOLT_LINE_SELECT", "5", "1", 1, 9 },
    { "NOM_VOLT_CUSTOM", "500", "0", 0, 0 },
    { "NOM_VOLT_LINE_CUSTOM", "866", "0", 0, 0 },
    { "NOM_FREQ", "1", "1", 1, 3 },
    { "JOINMODE", "1", "1", 1, 10 },
    { "CLAMP_TYPE", "1", "1", 1, 10 },
    { "CLAMP_RATIO", "1000", "0", 0, 0 },
    { "RANGE_I", "3000", "0", 0, 0 },
    { "FLICKER_WEIGHTING_CURVE", "230", "0", 0, 0 },
    { "INRUSH_INDEX", "1", "0", 0, 0 },
    // The three levels follow the clamp at every start: 5 A x 0.25, 200 and 2 percent.
    { "INRUSH_NOMAMPS", "1.25", "1.25", 0, 0 },
    { "INRUSH_THRESHOLD", "200", "200", 0, 0 },
    { "INRUSH_HYSTERESIS", "2", "2", 0, 0 },
    { "TRANS_THRESHOLD", "50", "0", 0, 0 },
    { "LOGGER_FLAG", "65535", "0", 0, 0 },
    { "RATIO_IFENMU", "1", "0", 0, 0 },
    { "RATIO_IFENZI", "1", "0", 0, 0 },
    { "RATIO_VFENMU", "1", "0", 0, 0 },
    { "RATIO_VFENZI", "1", "0", 0, 0 },
    { "RATIO_ICUSTOM", "1", "0", 0, 0 },
    { "RATIO_VCUSTOM", "1", "0", 0, 0 },
    { "RATIO_INFENMU", "1", "0", 0, 0 },
    { "RATIO_INFENZI", "1", "0", 0, 0 },
    { "RATIO_VNFENMU", "1", "0", 0, 0 },
    { "RATIO_VNFENZI", "1", "0", 0, 0 },
    { "RATIO_INCUSTOM", "1", "0", 0, 0 },
    { "RATIO_VNCUSTOM", "1", "0", 0, 0 },
    { "KFACTOR_METHOD", "1", "0", 0, 0 },
    { "KFACTOR_E", "0.1", "0", 0, 0 },
    { "KFACTOR_Q", "1.7", "0", 0, 0 },
    { "MAINSSIG_FREQ1", "1350", "0", 0, 0 },
    { "MAINSSIG_THRESHOLD1", "5", "0", 0, 0 },
    { "MAINSSIG_FREQ2", "2850", "0", 0, 0 },
    { "MAINSSIG_THRESHOLD2", "5", "0", 0, 0 },
};

/// Reads and stores one key by its name.
struct Access
{
    std::function<double(const SettingConfig &)> get;
    std::function<void(SettingConfig &, double)> set;
};

QMap<QString, Access> accesses()
{
    using C = SettingConfig;
#define ACCESS(getter, setter)                                                                                         \
    Access                                                                                                             \
    {                                                                                                                  \
        [](const C &c) { return double(c.getter()); },                                                                 \
            [](C &c, double v) { c.setter(static_cast<decltype(c.getter())>(v)); }                                     \
    }
    return {
        { "NOM_VOLT_SELECT", ACCESS(getNomVoltStarSelect, setNomVoltStarSelect) },
        { "NOM_VOLT_LINE_SELECT", ACCESS(getNomVoltDeltaSelect, setNomVoltDeltaSelect) },
        { "NOM_VOLT_CUSTOM", ACCESS(getNomVoltStarCustom, setNomVoltStarCustom) },
        { "NOM_VOLT_LINE_CUSTOM", ACCESS(getNomVoltDeltaCustom, setNomVoltDeltaCustom) },
        { "NOM_FREQ", ACCESS(getNomFreqSelect, setNomFreq) },
        { "JOINMODE", ACCESS(getJoinMode, setJoinMode) },
        { "CLAMP_TYPE", ACCESS(getClampType, setClampType) },
        { "CLAMP_RATIO", ACCESS(getClampRatio, setClampRatio) },
        { "RANGE_I", ACCESS(getRangeI, setRangeI) },
        { "FLICKER_WEIGHTING_CURVE", ACCESS(getFlickerWeightingCurve, setFlickerWeightingCurve) },
        { "INRUSH_INDEX", ACCESS(getInrushIndex, setInrushIndex) },
        { "INRUSH_NOMAMPS", ACCESS(getInrushNomAmps, setInrushNomAmps) },
        { "INRUSH_THRESHOLD", ACCESS(getInrushThreshold, setInrushThreshold) },
        { "INRUSH_HYSTERESIS", ACCESS(getInrushHysteresis, setInrushHysteresis) },
        { "TRANS_THRESHOLD", ACCESS(getTransThreshold, setTransThreshold) },
        { "LOGGER_FLAG", ACCESS(getLoggerFlag, setLoggerFlag) },
        { "RATIO_IFENMU", ACCESS(getRatioIFenmu, setRatioIFenmu) },
        { "RATIO_IFENZI", ACCESS(getRatioIFenzi, setRatioIFenzi) },
        { "RATIO_VFENMU", ACCESS(getRatioVFenmu, setRatioVFenmu) },
        { "RATIO_VFENZI", ACCESS(getRatioVFenzi, setRatioVFenzi) },
        { "RATIO_ICUSTOM", ACCESS(getRatioICustom, setRatioICustom) },
        { "RATIO_VCUSTOM", ACCESS(getRatioVCustom, setRatioVCustom) },
        { "RATIO_INFENMU", ACCESS(getRatioINFenmu, setRatioINFenmu) },
        { "RATIO_INFENZI", ACCESS(getRatioINFenzi, setRatioINFenzi) },
        { "RATIO_VNFENMU", ACCESS(getRatioVNFenmu, setRatioVNFenmu) },
        { "RATIO_VNFENZI", ACCESS(getRatioVNFenzi, setRatioVNFenzi) },
        { "RATIO_INCUSTOM", ACCESS(getRatioINCustom, setRatioINCustom) },
        { "RATIO_VNCUSTOM", ACCESS(getRatioVNCustom, setRatioVNCustom) },
        { "KFACTOR_METHOD", ACCESS(getkFactorMethod, setkFactorMethod) },
        { "KFACTOR_E", ACCESS(getkFactorE, setkFactorE) },
        { "KFACTOR_Q", ACCESS(getkFactorQ, setkFactorQ) },
        { "MAINSSIG_FREQ1", ACCESS(getMainsSigFreq1, setMainsSigFreq1) },
        { "MAINSSIG_THRESHOLD1", ACCESS(getMainsSigThreshold1, setMainsSigThreshold1) },
        { "MAINSSIG_FREQ2", ACCESS(getMainsSigFreq2, setMainsSigFreq2) },
        { "MAINSSIG_THRESHOLD2", ACCESS(getMainsSigThreshold2, setMainsSigThreshold2) },
    };
#undef ACCESS
}

double started(const QString &key, const QByteArray &file)
{
    RootFiles::write(SettingConfig::filePath(), file);
    const SettingConfig config;
    return accesses().value(key).get(config);
}

bool followsTheClamp(const QString &key)
{
    return key == "INRUSH_NOMAMPS" || key == "INRUSH_THRESHOLD" || key == "INRUSH_HYSTERESIS";
}

} // namespace

/// The keys of setting.conf, each walked through its table row.
class TstSettingConfig : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }

    void theTableHoldsEveryKeyOnceAndNoOther()
    {
        QStringList keys;
        for (const auto &row : SettingConfig::rows())
            keys << row.key;
        QStringList documented;
        for (const Documented &row : kDocumented)
            documented << row.key;
        QCOMPARE(keys, documented);
    }

    void noKeyStandsInsideAnother()
    {
        for (const Documented &a : kDocumented) {
            for (const Documented &b : kDocumented)
                QVERIFY2(&a == &b || !QByteArray(b.key).contains(a.key), b.key);
        }
    }

    void everyKey_data()
    {
        QTest::addColumn<int>("row");
        for (int i = 0; i < int(std::size(kDocumented)); ++i)
            QTest::newRow(kDocumented[i].key) << i;
    }
    void everyKey()
    {
        QFETCH(int, row);
        const Documented &documented = kDocumented[row];
        const QString key = documented.key;
        const QByteArray line = QByteArray(documented.key) + "=";

        QCOMPARE(started(key, ""), QByteArray(documented.missing).toDouble());
        QCOMPARE(started(key, line + "\n"), QByteArray(documented.missing).toDouble()); // empty value
        QCOMPARE(started(key, line + "xyz\n"), QByteArray(documented.word).toDouble());
        QCOMPARE(started(key, line + "1e999\n"), QByteArray(documented.word).toDouble());
        QCOMPARE(started(key, line + "nan\n"), QByteArray(documented.word).toDouble());
        if (documented.lowest != documented.highest) {
            QCOMPARE(started(key, line + QByteArray::number(documented.lowest - 1)), double(documented.lowest));
            QCOMPARE(started(key, line + QByteArray::number(documented.lowest)), double(documented.lowest));
            QCOMPARE(started(key, line + QByteArray::number(documented.highest)), double(documented.highest));
            QCOMPARE(started(key, line + QByteArray::number(documented.highest + 1)), double(documented.highest));
            QCOMPARE(started(key, line + "-2147483648"), double(documented.lowest));
            QCOMPARE(started(key, line + "2147483647"), double(documented.highest));
            QCOMPARE(started(key, line + "2147483648"), double(documented.lowest)); // does not fit: 0
        }
    }

    void wiringsAndFrequenciesOutsideTheirBoundsReadAsTheNearest()
    {
        QCOMPARE(started("JOINMODE", "JOINMODE=0\n"), 1.0);
        QCOMPARE(started("JOINMODE", "JOINMODE=11\n"), 10.0);
        QCOMPARE(started("NOM_FREQ", "NOM_FREQ=7\n"), 3.0);
    }

    void everyKeyIsStoredAtOnceAndReadBackAtTheNextStart_data() { everyKey_data(); }
    void everyKeyIsStoredAtOnceAndReadBackAtTheNextStart()
    {
        QFETCH(int, row);
        const Documented &documented = kDocumented[row];
        const Access access = accesses().value(documented.key);
        QVector<double> values = { 1, 3 };
        if (documented.lowest == documented.highest)
            values << 0 << 100000;
        for (double value : values) {
            SettingConfig config;
            access.set(config, value);
            QCOMPARE(access.get(config), value);
            QCOMPARE(Config::readConfigFile(SettingConfig::filePath(), documented.key).toDouble(), value);
            QVERIFY(RootFiles::commands().endsWith("sync\n"));
            if (!followsTheClamp(documented.key))
                QCOMPARE(access.get(SettingConfig()), value);
        }
    }

    void aSetterTouchesNoOtherKey()
    {
        SettingConfig config;
        for (const Access &access : accesses())
            access.set(config, 2);
        config.setJoinMode(7);
        for (const Documented &documented : kDocumented) {
            const double expected = QByteArray(documented.key) == "JOINMODE" ? 7 : 2;
            QCOMPARE(Config::readConfigFile(SettingConfig::filePath(), documented.key).toDouble(), expected);
        }
    }

    void doublesAreWrittenWithSixSignificantDigits()
    {
        SettingConfig config;
        config.setkFactorE(0.123456789);
        QCOMPARE(Config::readConfigFile(SettingConfig::filePath(), "KFACTOR_E"), QString("0.123457"));
        config.setMainsSigFreq1(1234567.0);
        QCOMPARE(Config::readConfigFile(SettingConfig::filePath(), "MAINSSIG_FREQ1"), QString("1.23457e+06"));
        config.setInrushNomAmps(250);
        QCOMPARE(Config::readConfigFile(SettingConfig::filePath(), "INRUSH_NOMAMPS"), QString("250"));
    }

    void theClampRatioIsReadAsAFloatAndCut()
    {
        QCOMPARE(started("CLAMP_RATIO", "CLAMP_RATIO=65.9\n"), 65.0);
        QCOMPARE(started("CLAMP_RATIO", "CLAMP_RATIO=1e3\n"), 1000.0);
        QCOMPARE(started("CLAMP_RATIO", "CLAMP_RATIO=1e20\n"), 0.0); // no int holds it
        QCOMPARE(started("CLAMP_RATIO", "CLAMP_RATIO=-2147483904\n"), 0.0); // the next float below all of them
        QCOMPARE(started("CLAMP_RATIO", "CLAMP_RATIO=-2147483648\n"), -2147483648.0);
        QCOMPARE(started("RANGE_I", "RANGE_I=65.9\n"), 0.0); // the others are whole numbers
    }

    void unreadableFilesGiveTheDefaults_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("zero bytes in front") << QByteArray("\0\0\0JOINMODE=4\n", 14);
        QTest::newRow("binary") << QByteArray::fromHex("ff00fe0180c0dead=0a0a3d3d3d").repeated(1000);
        QTest::newRow("huge") << QByteArray("JOINMODE=4\n").repeated(300000);
    }
    void unreadableFilesGiveTheDefaults()
    {
        QFETCH(QByteArray, file);
        QCOMPARE(started("JOINMODE", file), 1.0);
        QCOMPARE(started("NOM_VOLT_SELECT", file), 5.0);
    }

    void aFolderInPlaceOfTheFileGivesTheDefaultsAndKeepsTheCachedValue()
    {
        QVERIFY(QDir().mkpath(Target::path(SettingConfig::filePath())));
        SettingConfig config;
        QCOMPARE(config.getJoinMode(), 1);
        config.setJoinMode(4);
        QCOMPARE(config.getJoinMode(), 4);
        QCOMPARE(SettingConfig().getJoinMode(), 1);
    }

    void aFullDiskLosesTheChangeSilentlyUntilTheNextStart()
    {
        SettingConfig config;
        config.setJoinMode(4);
        {
            FileLimit full(0);
            config.setJoinMode(7);
        }
        QCOMPARE(config.getJoinMode(), 7);
        QCOMPARE(SettingConfig().getJoinMode(), 4);
    }

    void theFolderIsMadeWhenItIsMissing()
    {
        QDir(Target::path("/mnt/userfs/sys")).removeRecursively();
        SettingConfig config;
        QVERIFY(RootFiles::exists("/mnt/userfs/sys"));
    }

    void steppingTheFrequencyStopsAtTheEnds()
    {
        SettingConfig config;
        config.changeFreqPrev();
        QCOMPARE(config.getNomFreq(), 50.0);
        config.changeFreqNext();
        QCOMPARE(config.getNomFreq(), 60.0);
        config.changeFreqNext();
        config.changeFreqNext();
        QCOMPARE(config.getNomFreq(), 400.0);
        QCOMPARE(SettingConfig().getNomFreq(), 400.0); // stored
        config.changeFreqPrev();
        QCOMPARE(config.getNomFreqSelect(), 2);
    }

    void aStartThatCannotReadTheFileKeepsIt()
    {
        QVERIFY(makeWornFile(SettingConfig::filePath()));
        SettingConfig config; // a start stores the inrush levels of the clamp
        QCOMPARE(config.getNomFreqSelect(), 1);
        config.setNomFreq(2); // in memory only
        QCOMPARE(config.getNomFreqSelect(), 2);
        QVERIFY(isWornFile(SettingConfig::filePath()));
        QVERIFY(!RootFiles::exists(SettingConfig::filePath() + ".bak"));
    }

    void steppingTheLegacyClampStopsAtTheEnds()
    {
        SettingConfig config;
        config.changeClampPrev();
        QCOMPARE(config.getClampType(), 1);
        for (int i = 0; i < 20; ++i)
            config.changeClampNext();
        QCOMPARE(config.getClampType(), 10);
        QCOMPARE(SettingConfig().getClampType(), 10);
        config.changeClampPrev();
        QCOMPARE(config.getClampType(), 9);
    }

    void theStepOfTheEditorsIsHeldTo1To10()
    {
        SettingConfig config;
        QCOMPARE(config.getStepSize(), 2);
        config.changeStepSize(0);
        QCOMPARE(config.getStepSize(), 1);
        config.changeStepSize(11);
        QCOMPARE(config.getStepSize(), 10);
        config.changeStepSize(7);
        QCOMPARE(config.getStepSize(), 7);
        config.loadSettingConfig();
        QCOMPARE(config.getStepSize(), 2);
    }

    void theLegacyTableEndsWithTheCustomClamp()
    {
        RootFiles::write(SettingConfig::filePath(), "CLAMP_RATIO=250\nRANGE_I=70\n");
        SettingConfig config;
        QCOMPARE(config.legacyClamps().size(), 10);
        QCOMPARE(config.legacyClamps().first().name, QString("TARN-41A"));
        QCOMPARE(config.legacyClamps().at(8).name, QString("TARN-F3"));
        QCOMPARE(config.legacyClamps().last().name, QString("CUSTOM"));
        QCOMPARE(config.legacyClamps().last().number, 10);
        QCOMPARE(config.legacyClamps().last().range, 70);
        QCOMPARE(config.getClampRatioF(1), 10.0f); // 10000 uV/A
        QCOMPARE(config.getClampRatioF(8), 0.065f);
        QCOMPARE(config.getClampRatioF(10), 0.25f);
        QCOMPARE(config.getClampRatioF(0), 0.0f);
        QCOMPARE(config.getClampRatioF(11), 0.0f);
        config.setClampRatio(500);
        config.setClampType(10);
        QCOMPARE(config.getClampRatioF(), 0.5f);
    }

    void theLegacyTableHoldsNoClampOfTheUsers()
    {
        RootFiles::write("/mnt/userfs/sys/clamps.xcl",
                         "<PQA version='1.0'><clamp name='own' range='1' ratio='2' editable='true'/></PQA>");
        SettingConfig config;
        QCOMPARE(config.clamps()->count(), 10);
        QCOMPARE(config.legacyClamps().size(), 10);
        QCOMPARE(config.legacyClamps().at(8).name, QString("TARN-F3"));
        QCOMPARE(config.legacyClamps().last().name, QString("CUSTOM"));
    }

    void theSummaryWithoutClampsLeavesTheirPlacesEmpty()
    {
        SettingConfig config;
        for (ClampIF *clamps : { config.clamps(), config.clampsN() }) {
            while (clamps->first())
                clamps->removeClamp(clamps->first());
        }
        QCOMPARE(config.systemInfo(), QString("230V;50Hz\\;\\3P WYE"));
    }

    void theInrushLevelsBeginAnewOnlyWithAnotherClamp_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("range");
        QTest::addColumn<int>("ratio");
        QTest::addColumn<bool>("coil");
        QTest::addColumn<int>("threshold");
        QTest::newRow("the same") << "own" << 100 << 1000 << false << 150;
        QTest::newRow("another name") << "mine" << 100 << 1000 << false << 200;
        QTest::newRow("another range") << "own" << 101 << 1000 << false << 200;
        QTest::newRow("another ratio") << "own" << 100 << 999 << false << 200;
        QTest::newRow("a coil") << "own" << 100 << 1000 << true << 200;
    }
    void theInrushLevelsBeginAnewOnlyWithAnotherClamp()
    {
        QFETCH(QString, name);
        QFETCH(int, range);
        QFETCH(int, ratio);
        QFETCH(bool, coil);
        SettingConfig config;
        config.clamps()->addClamp(new Clamp("own", 100, 1000, false, true, "test"));
        config.clamps()->setCurClamp("own");
        config.saveClampConfig();
        config.setInrushThreshold(150);
        config.clamps()->removeClamp(config.clamps()->last());
        config.clamps()->addClamp(new Clamp(name, range, ratio, coil, true, "test"));
        config.clamps()->setCurClamp(name);
        config.saveClampConfig();
        QTEST(config.getInrushThreshold(), "threshold");
    }

    void theSummaryNamesVoltageFrequencyClampsAndWiring()
    {
        SettingConfig config;
        QCOMPARE(config.systemInfo(), QString("230V;50Hz\\TARN-41A;TARN-41A\\3P WYE"));
        config.setJoinMode(10);
        config.setNomFreq(3);
        config.clampsN()->setCurClamp("TARN-F2");
        QCOMPARE(config.systemInfo(), QString("398V;400Hz\\TARN-41A;TARN-F2\\2-ELMT"));
    }

    void theClampsInUseSurviveARestart()
    {
        {
            SettingConfig config;
            config.clamps()->setCurClamp("TARN-F1");
            config.clampsN()->setCurClamp("TARN-44");
            config.saveClampConfig();
        }
        const SettingConfig config;
        QCOMPARE(config.curClamp()->name(), QString("TARN-F1"));
        QCOMPARE(config.curClampN()->name(), QString("TARN-44"));
    }
};

QTEST_GUILESS_MAIN(TstSettingConfig)
#include "tst_settingconfig.moc"
