#include <QTest>

#include "settings/config.h"
#include "settings/inrushinfo.h"
#include "settings/settingconfig.h"
#include "unit/storage/rootfiles.h"

#include <limits>

namespace {

/// How a setting is edited, written down again by hand.
struct Expected
{
    const char *key;
    double lowest, highest, step;
    const char *unit;
    int ticks, largest;
    unsigned follows;
};
constexpr unsigned kSupply = 0x2f, kFrequency = 0x3d, kRatio = 0x29, kNeutral = 0x9;
const Expected kExpected[] = {
    { "NOM_VOLT_SELECT", 1, 9, 1, "", 0, 1, kSupply },
    { "NOM_VOLT_LINE_SELECT", 1, 9, 1, "", 0, 1, kSupply },
    { "NOM_VOLT_CUSTOM", 1, 999999, 1, "V", 3, 20, kSupply },
    { "NOM_VOLT_LINE_CUSTOM", 1, 999999, 1, "V", 3, 20, kSupply },
    { "NOM_FREQ", 1, 3, 1, "", 0, 1, kFrequency },
    { "JOINMODE", 1, 10, 1, "", 0, 1, kSupply },
    { "CLAMP_TYPE", 1, 10, 1, "", 0, 1, 0 },
    { "CLAMP_RATIO", 1, 1e6, 1, "uV/A", 0, 1, 0 },
    { "RANGE_I", 1, 2000, 1, "A", 0, 1, 0 }, // 2 V of the custom clamp's 1000 uV/A
    { "FLICKER_WEIGHTING_CURVE", 120, 230, 110, "V", 0, 1, 0x4 },
    { "INRUSH_INDEX", 0, 6, 1, "", 0, 1, 0x20 },
    { "INRUSH_NOMAMPS", 0.001, 5, 0.001, "A", 3, 20, 0x20 }, // of a clamp of 5 A
    { "INRUSH_THRESHOLD", 1, 1000, 1, "%", 3, 20, 0x20 },
    { "INRUSH_HYSTERESIS", 1, 100, 1, "%", 3, 20, 0x20 },
    { "TRANS_THRESHOLD", 1, 6000, 1, "%", 5, 100, 0x4 },
    { "LOGGER_FLAG", 0, 0, 0, "", 0, 1, 0 },
    { "RATIO_IFENMU", 1, 99999, 1, "", 0, 1, kRatio },
    { "RATIO_IFENZI", 1, 99999, 1, "", 0, 1, kRatio },
    { "RATIO_VFENMU", 1, 99999, 1, "", 0, 1, kRatio },
    { "RATIO_VFENZI", 1, 99999, 1, "", 0, 1, kRatio },
    { "RATIO_ICUSTOM", 0, 1, 1, "", 0, 1, 0 },
    { "RATIO_VCUSTOM", 0, 1, 1, "", 0, 1, 0 },
    { "RATIO_INFENMU", 1, 99999, 1, "", 0, 1, kNeutral },
    { "RATIO_INFENZI", 1, 99999, 1, "", 0, 1, kNeutral },
    { "RATIO_VNFENMU", 1, 99999, 1, "", 0, 1, kNeutral },
    { "RATIO_VNFENZI", 1, 99999, 1, "", 0, 1, kNeutral },
    { "RATIO_INCUSTOM", 0, 1, 1, "", 0, 1, 0 },
    { "RATIO_VNCUSTOM", 0, 1, 1, "", 0, 1, 0 },
    { "KFACTOR_METHOD", 1, 2, 1, "", 0, 1, 0 },
    { "KFACTOR_E", 0, 0.2, 0.01, "", 0, 1, 0 },
    { "KFACTOR_Q", 1, 2, 0.05, "", 0, 1, 0 },
    { "MAINSSIG_FREQ1", 50, 3000, 1, "Hz", 3, 20, 0 },
    { "MAINSSIG_THRESHOLD1", 1, 5, 1, "%", 0, 1, 0 },
    { "MAINSSIG_FREQ2", 50, 3000, 1, "Hz", 3, 20, 0 },
    { "MAINSSIG_THRESHOLD2", 1, 5, 1, "%", 0, 1, 0 },
};

using Row = SettingRow<SettingValues>;

double stored(const Row &row)
{
    return Config::readConfigFile(SettingConfig::filePath(), row.key).toDouble();
}

} // namespace

/// What editors take from the rows of the settings: bounds, steps, and what follows.
class TstSettingEdit : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }

    void everyRowHasItsBoundsStepAndFollowers()
    {
        const SettingConfig config;
        QCOMPARE(SettingConfig::rows().size(), int(std::size(kExpected)));
        for (int i = 0; i < SettingConfig::rows().size(); ++i) {
            const Row &row = SettingConfig::rows().at(i);
            const Expected &expected = kExpected[i];
            QCOMPARE(row.key, expected.key);
            const EditRange range = config.editRange(row);
            QVERIFY2(range.lowest == expected.lowest && range.highest == expected.highest
                         && range.step == expected.step,
                     row.key);
            QCOMPARE(row.edit.unit, expected.unit);
            QCOMPARE(row.edit.ticksPerStep, expected.ticks);
            QCOMPARE(row.edit.largestStep, expected.largest);
            QCOMPARE(row.follows, expected.follows);
        }
    }

    void aValueSetThroughAnyRowIsHeldToItsBoundsAndStored()
    {
        SettingConfig config;
        for (const Row &row : SettingConfig::rows()) {
            const EditRange range = config.editRange(row);
            if (!range.any())
                continue;
            config.setValue(row, range.lowest); // away from a default at the upper bound
            for (const bool up : { true, false }) {
                const double bound = up ? range.highest : range.lowest;
                config.setValue(row, up ? 1e12 : -1e12);
                QCOMPARE(config.value(row), bound);
                QCOMPARE(stored(row), bound);
                QVERIFY(!config.moveValue(row, up ? 1 : -1)); // stays at the bound, does not wrap
                QCOMPARE(config.value(row), bound);
            }
            QVERIFY(!config.setValue(row, std::numeric_limits<double>::quiet_NaN()));
            QVERIFY(config.moveValue(row, 1));
            QCOMPARE(config.value(row), range.lowest + range.step);
            config.setDefault(row);
        }
    }

    void aValueThatStaysIsNotWrittenAgain()
    {
        SettingConfig config;
        const Row &row = *SettingConfig::row("TRANS_THRESHOLD");
        QVERIFY(config.setValue(row, 6000));
        QFile::remove(Target::path("/var/log/commands"));
        QVERIFY(!config.setValue(row, 6001));
        QVERIFY(!config.moveValue(row, 5));
        QCOMPARE(RootFiles::commands(), QByteArray());
    }

    void aMaskHasNoStepsAndIsHeldByItsTypeOnly()
    {
        SettingConfig config;
        const Row &row = *SettingConfig::row("LOGGER_FLAG");
        QCOMPARE(config.value(row), 65535.0);
        QVERIFY(!config.moveValue(row, 1));
        QCOMPARE(config.getLoggerFlag(), 65535u);
        QVERIFY(config.setValue(row, 4294967295.0));
        QVERIFY(!config.setValue(row, 1e10));
        QCOMPARE(config.getLoggerFlag(), 4294967295u);
        QVERIFY(config.setValue(row, -1));
        QCOMPARE(config.getLoggerFlag(), 0u);
        QVERIFY(config.setValue(row, 12));
        QCOMPARE(SettingConfig().getLoggerFlag(), 12u);
    }

    void theFileMayHoldWhatNoEditorWouldSet()
    {
        RootFiles::write(SettingConfig::filePath(), "TRANS_THRESHOLD=9000\nRATIO_IFENZI=0\n");
        SettingConfig config;
        QCOMPARE(config.getTransThreshold(), 9000);
        QCOMPARE(config.getRatioIFenzi(), 0);
        QVERIFY(config.moveValue(*SettingConfig::row("TRANS_THRESHOLD"), 1));
        QCOMPARE(config.getTransThreshold(), 6000);
    }

    void stepsAreTakenOnTheGridOfTheLowestValue()
    {
        const EditRange range = { 1, 10, 1 };
        QCOMPARE(range.moved(4.5, 1), 5.0);
        QCOMPARE(range.moved(4.5, -1), 4.0);
        QCOMPARE(range.moved(4.0, 3), 7.0);
        QCOMPARE(range.moved(4.0, -9), 1.0);
        QCOMPARE(range.moved(4.0, 99), 10.0);
        QCOMPARE((EditRange { 0, 0.2, 0.01 }.moved(0.07, 1)), 0.08); // 0.07 / 0.01 is not quite 7
        QCOMPARE(EditRange().moved(5.0, 1), 5.0); // nothing to step through
        QCOMPARE((EditRange { 1, 10, 0 }.moved(4.0, 1)), 4.0); // bounds, but no step
        SettingConfig config;
        QVERIFY(config.moveValue(*SettingConfig::row("FLICKER_WEIGHTING_CURVE"), -1));
        QCOMPARE(config.getFlickerWeightingCurve(), 120);
        QVERIFY(config.moveValue(*SettingConfig::row("FLICKER_WEIGHTING_CURVE"), 1));
        QCOMPARE(config.getFlickerWeightingCurve(), 230);
    }

    void theClampsDecideTheBoundsOfTheirOwn()
    {
        SettingConfig config;
        config.clamps()->setCurClamp("TARN-45"); // 1000 A
        config.saveClampConfig();
        const EditRange amps = config.editRange(*SettingConfig::row("INRUSH_NOMAMPS"));
        QCOMPARE(amps.lowest, 10.0);
        QCOMPARE(amps.highest, 1000.0);
        QCOMPARE(amps.step, 10.0);
        const Row &range = *SettingConfig::row("RANGE_I");
        config.setClampRatio(10000);
        QCOMPARE(config.editRange(range).highest, 200.0);
        config.setClampRatio(65);
        QCOMPARE(config.editRange(range).highest, 9999.0); // four digits
        config.setClampRatio(0); // says nothing
        QCOMPARE(config.editRange(range).highest, 9999.0);
    }

    void whatFollowsADerivedSettingHasFollowed()
    {
        SettingConfig config;
        QVERIFY(config.setValue(*SettingConfig::row("NOM_FREQ"), 2));
        QCOMPARE(config.derived().nominalFrequency, 60.0);
        QCOMPARE(InrushInfo::m_rms_numb_per_sec, 120);
        QVERIFY(config.setValue(*SettingConfig::row("JOINMODE"), 4));
        QVERIFY(!config.derived().star);
        QCOMPARE(config.derived().nominalVolt, 398);
        QVERIFY(config.setValue(*SettingConfig::row("RATIO_VFENZI"), 10));
        QCOMPARE(config.derived().realNominalVolt, 3980.0f);
    }

    void defaultsAreThoseOfAMissingKey()
    {
        SettingConfig config;
        config.setkFactorQ(1.2);
        config.setMainsSigFreq2(60);
        QVERIFY(config.setDefault(*SettingConfig::row("KFACTOR_Q")));
        QVERIFY(config.setDefault(*SettingConfig::row("MAINSSIG_FREQ2")));
        QCOMPARE(config.getkFactorQ(), 1.7);
        QCOMPARE(config.getMainsSigFreq2(), 2850.0);
        QVERIFY(SettingConfig::row("NO_SUCH_KEY") == nullptr);
    }
};

QTEST_GUILESS_MAIN(TstSettingEdit)
#include "tst_settingedit.moc"
