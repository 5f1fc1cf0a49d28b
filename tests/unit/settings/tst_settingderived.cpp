#include <QTest>

#include "settings/config_data.h"
#include "unit/storage/rootfiles.h"

#include <cmath>
#include <limits>

namespace {

/// A settings object over a file, and a phase and a neutral clamp of given range (A) and ratio (uV/A).
struct Setup
{
    SettingConfig config;
    explicit Setup(int range = 5, int ratio = 10000, int rangeN = 5, int ratioN = 10000)
    {
        config.clamps()->addClamp(new Clamp("test", range, ratio, false, true, "test"));
        config.clamps()->setCurClamp("test");
        config.clampsN()->addClamp(new Clamp("testN", rangeN, ratioN, false, true, "test"));
        config.clampsN()->setCurClamp("testN");
        refresh();
    }
    void refresh() { config.followSettings(); }
};

} // namespace

/// Nominal voltage, calibration rows, scale factors, units and decimals.
class TstSettingDerived : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        RootFiles::clean();
        m_calib_data_g.initCalibData();
    }

    void theNominalVoltageComesFromTheTableOfTheWiring_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("phase");
        QTest::addColumn<int>("line");
        const int phase[] = { 58, 100, 120, 139, 230, 277, 347, 400 };
        const int line[] = { 100, 173, 208, 240, 398, 480, 600, 693 };
        for (int i = 0; i < 8; ++i)
            QTest::addRow("row %d", i + 1) << i + 1 << phase[i] << line[i];
        QTest::newRow("custom") << 9 << 11000 << 19053;
        QTest::newRow("below the table") << 0 << 0 << 0;
        QTest::newRow("beyond the table") << 10 << 0 << 0;
    }
    void theNominalVoltageComesFromTheTableOfTheWiring()
    {
        QFETCH(int, row);
        QFETCH(int, phase);
        QFETCH(int, line);
        RootFiles::write(SettingConfig::filePath(), "NOM_VOLT_CUSTOM=11000\nNOM_VOLT_LINE_CUSTOM=19053\n");
        SettingConfig config;
        config.setNomVoltStarSelect(row);
        config.setNomVoltDeltaSelect(row);
        QCOMPARE(config.getNomVoltStar(), phase);
        QCOMPARE(config.getNomVoltDelta(), line);
        for (int mode : { 1, 3, 5, 7, 9 })
            QCOMPARE(config.getNomVolt(mode), phase);
        for (int mode : { 2, 4, 6, 8, 10 })
            QCOMPARE(config.getNomVolt(mode), line);
        for (int mode : { 0, 11, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min() })
            QCOMPARE(config.getNomVolt(mode), 0);
    }

    void theRealNominalVoltageTakesTheTransformersRatio()
    {
        SettingConfig config;
        config.setRatioVFenzi(110);
        config.setRatioVFenmu(3);
        QCOMPARE(config.getRealNominalVolt(), 230.0f * (110.0f / 3.0f));
    }

    void aZeroDenominatorCountsAsOne()
    {
        SettingConfig config;
        config.setRatioVFenmu(0);
        QCOMPARE(config.getRealNominalVolt(), 230.0f);
        config.setRatioIFenmu(0);
        config.setRatioIFenzi(40);
        QCOMPARE(config.ratioI(), 40.0f);
    }

    void oddModesAreStarAndHaveANeutral()
    {
        SettingConfig config;
        for (int mode = 1; mode <= 10; ++mode) {
            config.setJoinMode(mode);
            QCOMPARE(config.isStarJoinMode(), mode % 2 == 1);
            QCOMPARE(config.starFlag(), mode % 2 == 1);
            QCOMPARE(config.neutralFlag(), mode % 2 == 1);
        }
        for (int mode : { 0, 11, 13, -1 })
            QVERIFY(!SettingConfig::isStarJoinMode(mode));
    }

    void anUnknownWiringHasNoChannelsNoStarAndNoVoltage_data()
    {
        QTest::addColumn<int>("joinMode");
        for (const int joinMode : { -1, 0, 11 })
            QTest::addRow("%d", joinMode) << joinMode;
    }
    void anUnknownWiringHasNoChannelsNoStarAndNoVoltage()
    {
        QFETCH(int, joinMode);
        SettingValues values = SettingConfig().values();
        values.joinMode = joinMode;
        const Derived derived = derive(values, nullptr, nullptr, m_calib_data_g.data());
        QVERIFY(!derived.channels);
        QVERIFY(!derived.star && !derived.neutral);
        QCOMPARE(derived.nominalVolt, 0);
    }

    void theNamesOfTheWirings_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("full");
        const char *const names[][2] = { { "3P WYE", "3P WYE" },           { "3P IT", "3P IT" },
                                         { "1P", "1P +NEUTRAL" },          { "3P DELTA", "3P DELTA" },
                                         { "1P SPLIT", "1P SPLIT PHASE" }, { "1P IT", "1P IT NO NEUTRAL" },
                                         { "H-LEG", "3P HIGH LEG" },       { "O-LEG", "3P OPEN LEG" },
                                         { "2.5-ELMT", "2.5-ELEMENT" },    { "2-ELMT", "2-ELEMENT" } };
        for (int i = 0; i < 10; ++i)
            QTest::addRow("%d", i + 1) << names[i][0] << names[i][1];
    }
    void theNamesOfTheWirings()
    {
        QFETCH(QString, name);
        QFETCH(QString, full);
        const int mode = QByteArray(QTest::currentDataTag()).toInt();
        QCOMPARE(SettingConfig::getJoinModeName(mode), name);
        QCOMPARE(SettingConfig::getJoinModeFullName(mode), full);
        QCOMPARE(SettingConfig::getJoinModeName(0), QString());
        QCOMPARE(SettingConfig::getJoinModeFullName(11), QString());
    }

    void theVoltageRowFollowsTheNominalVoltage_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("volts");
        QTest::addColumn<int>("index");
        const int star[][2] = { { 0, 0 },   { 129, 0 }, { 130, 1 },   { 239, 1 }, { 240, 2 },
                                { 409, 2 }, { 410, 3 }, { 99999, 3 }, { -5, 0 } };
        const int delta[][2]
            = { { 0, 0 }, { 182, 0 }, { 183, 1 }, { 339, 1 }, { 340, 2 }, { 579, 2 }, { 580, 3 }, { 99999, 3 } };
        for (const auto &row : star)
            QTest::addRow("star %d V", row[0]) << 1 << row[0] << row[1];
        for (const auto &row : delta)
            QTest::addRow("delta %d V", row[0]) << 4 << row[0] << row[1];
    }
    void theVoltageRowFollowsTheNominalVoltage()
    {
        QFETCH(int, mode);
        QFETCH(int, volts);
        SettingConfig config;
        config.setNomVoltStarSelect(9);
        config.setNomVoltDeltaSelect(9);
        config.setNomVoltStarCustom(volts);
        config.setNomVoltDeltaCustom(volts);
        config.setJoinMode(mode);
        QTEST(config.getVoltIndex(), "index");
    }

    void theCurrentRowFollowsTheClamp_data()
    {
        QTest::addColumn<int>("range");
        QTest::addColumn<int>("ratio");
        QTest::addColumn<int>("index"); // of 2 x range x ratio
        QTest::newRow("range 1000, ratio 1000: 2000000") << 1000 << 1000 << 2;
        QTest::newRow("504998") << 1 << 252499 << 3;
        QTest::newRow("505000") << 1 << 252500 << 1;
        QTest::newRow("1514998") << 1 << 757499 << 1;
        QTest::newRow("1515000") << 1 << 757500 << 2;
        QTest::newRow("TARN-41A: 100000") << 5 << 10000 << 3;
        QTest::newRow("TARN-43: 1000000") << 50 << 10000 << 1;
        QTest::newRow("TARN-F2: 780000") << 6000 << 65 << 1;
        QTest::newRow("beyond 32 bits") << std::numeric_limits<int>::max() << std::numeric_limits<int>::max() << 2;
        QTest::newRow("nothing") << 0 << 0 << 3;
    }
    void theCurrentRowFollowsTheClamp()
    {
        QFETCH(int, range);
        QFETCH(int, ratio);
        QFETCH(int, index);
        Setup phase(range, ratio, 5, 10000);
        QCOMPARE(phase.config.getCurrentIndex(), index);
        QCOMPARE(phase.config.getCurrentNIndex(), 3);
        Setup neutral(5, 10000, range, ratio);
        QCOMPARE(neutral.config.getCurrentIndex(), 3);
        QCOMPARE(neutral.config.getCurrentNIndex(), index);
    }

    void theScaleTableOfTheFactorySettings()
    {
        // 230 V star: row 1, 79.25; TARN-41A: row 3, 71.45, at 10 mV/A.
        SettingConfig config;
        const float *wvi = config.wvi();
        for (int k = 0; k < 4; ++k) {
            QCOMPARE(wvi[4 + k], 79.25f);
            QCOMPARE(wvi[8 + k], 71.45f / 10.0f);
            QCOMPARE(wvi[k], float(79.25 * 71.45 / 10.0));
        }
    }

    void theScaleTableTakesRatiosAndTheGainsOfEachChannel()
    {
        for (int k = 0; k < 4; ++k) {
            m_calib_data_g.data().volt[2][k] = 100.0f + k; // 400 V: row 2
            m_calib_data_g.data().current[1][k] = 10.0f + k; // 50 A x 10 mV/A: row 1
            m_calib_data_g.data().current[2][k] = 30.0f + k; // 1000 A x 1 mV/A: row 2
        }
        Setup setup(50, 10000, 1000, 1000);
        setup.config.setNomVoltStarSelect(8);
        setup.config.setRatioVFenzi(20);
        setup.config.setRatioVFenmu(2); // 10
        setup.config.setRatioIFenzi(6);
        setup.config.setRatioIFenmu(2); // 3
        setup.config.setRatioVNFenzi(7); // 7
        setup.config.setRatioINFenzi(5); // 5
        const float *wvi = setup.config.wvi();
        for (int k = 0; k < 3; ++k) {
            QCOMPARE(wvi[4 + k], 10.0f * (100.0f + k));
            QCOMPARE(wvi[8 + k], (10.0f + k) * 3.0f / 10.0f);
            QCOMPARE(wvi[k], (100.0f + k) * (10.0f + k) * 10.0f * 3.0f / 10.0f);
        }
        QCOMPARE(wvi[7], 7.0f * 103.0f);
        QCOMPARE(wvi[11], 33.0f * 3.0f / 1.0f); // the ratio of the phases, not of the neutral
        QCOMPARE(wvi[3], 103.0f * 33.0f * 7.0f * 5.0f / 1.0f);
    }

    void aNewCalibrationReachesTheScaleTable()
    {
        SettingConfig config;
        m_calib_data_g.data().volt[1][0] = 50.0f;
        config.followSettings();
        QCOMPARE(config.wvi()[4], 50.0f);
    }

    void anotherCalibrationAndOtherClampsTouchNothing()
    {
        SettingConfig config;
        __calib_data other {};
        for (int k = 0; k < 4; ++k) {
            other.volt[1][k] = 50.0f + k; // 230 V: row 1
            other.current[1][k] = 10.0f; // 50 A x 10 mV/A: row 1
            other.current[2][k] = 30.0f; // 1000 A x 1 mV/A: row 2
            other.zeroVolt[1][k] = 0.5f;
            other.zeroCurrent[1][k] = 0.25f;
        }
        const Clamp clamp("own", 50, 10000, true, true, ""), clampN("ownN", 1000, 1000, false, true, "");
        const Derived derived = derive(config.values(), &clamp, &clampN, other);
        QCOMPARE(derived.scales.voltage[2], 52.0f);
        QCOMPARE(derived.scales.current[0], 1.0f);
        QCOMPARE(derived.scales.current[3], 30.0f);
        QCOMPARE(derived.scales.power[0], 50.0f);
        QCOMPARE(derived.zeroVolt[3], 0.5f);
        QCOMPARE(derived.zeroCurrent[0], 0.25f);
        QCOMPARE(derived.clamp.name, QString("own"));
        QVERIFY(derived.clamp.flexible && !derived.clampN.flexible);
        QCOMPARE(derived.inrush.nomAmps, 12.5);
        QCOMPARE(config.derived().scales.voltage[2], 79.25f);
        QCOMPARE(config.derived().clamp.name, QString("TARN-41A"));
        QCOMPARE(derive(config.values(), nullptr, nullptr, other).scales.current[0], 0.0f);
    }

    void inrushStepFollowsTheRangeOfTheClamp()
    {
        const struct
        {
            int range; // A
            double step; // A
        } rows[] = { { 5, 0.001 }, { 6, 0.01 },  { 20, 0.01 }, { 21, 0.1 },
                     { 99, 0.1 },  { 100, 1.0 }, { 999, 1.0 }, { 1000, 10.0 } };
        const SettingConfig config;
        for (const auto &row : rows) {
            const Clamp clamp("own", row.range, 1000, true, true, "");
            QCOMPARE(derive(config.values(), &clamp, nullptr, __calib_data()).inrush.stepAtClamp, row.step);
        }
    }

    void aClampWithoutOutputMeasuresNothing()
    {
        Setup setup(100, 0, 100, 0);
        for (int i = 0; i < 12; ++i)
            QVERIFY(std::isfinite(setup.config.wvi()[i]));
        QCOMPARE(setup.config.wvi()[8], 0.0f);
        QCOMPARE(setup.config.wvi()[0], 0.0f);
    }

    void theVoltageUnit_data()
    {
        QTest::addColumn<float>("volts");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<double>("factor");
        QTest::newRow("0") << 0.0f << "mV" << 1000.0;
        QTest::newRow("just below 1") << 0.999f << "mV" << 1000.0;
        QTest::newRow("1") << 1.0f << "V" << 1.0;
        QTest::newRow("9999") << 9999.0f << "V" << 1.0;
        QTest::newRow("10000") << 10000.0f << "kV" << 0.001;
        QTest::newRow("9999000") << 9999000.0f << "kV" << 0.001;
        QTest::newRow("10 million") << 1e7f << "MV" << 1e-6;
        QTest::newRow("9.99e9") << 9.99e9f << "MV" << 1e-6;
        QTest::newRow("1e10") << 1.0001e10f << "GV" << 1e-9;
        QTest::newRow("1e30") << 1e30f << "GV" << 1e-9;
        QTest::newRow("infinity ends too") << std::numeric_limits<float>::infinity() << "GV" << 1e-9;
        QTest::newRow("no number ends too") << std::numeric_limits<float>::quiet_NaN() << "GV" << 1e-9;
        QTest::newRow("negative") << -5.0f << "mV" << 1000.0;
    }
    void theVoltageUnit()
    {
        QFETCH(float, volts);
        DisplayUnits units;
        DisplayScale::chooseVolt(units, volts);
        QTEST(units.volt, "unit");
        QTEST(units.factorVolt, "factor");
    }

    void theCurrentUnitRunsTheOtherWay_data()
    {
        QTest::addColumn<float>("size");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<double>("factor");
        QTest::newRow("below 1") << 0.99f << "MA" << 1e-6;
        QTest::newRow("1") << 1.0f << "kA" << 0.001;
        QTest::newRow("999") << 999.0f << "kA" << 0.001;
        QTest::newRow("1000") << 1000.0f << "A" << 1.0;
        QTest::newRow("999999") << 999999.0f << "A" << 1.0;
        QTest::newRow("1e6") << 1e6f << "mA" << 1000.0;
        QTest::newRow("infinity") << std::numeric_limits<float>::infinity() << "mA" << 1000.0;
    }
    void theCurrentUnitRunsTheOtherWay()
    {
        QFETCH(float, size);
        DisplayUnits units;
        DisplayScale::chooseAmpere(units, size);
        QTEST(units.ampere, "unit");
        QTEST(units.factorAmpere, "factor");
    }

    void thePowerUnit_data()
    {
        QTest::addColumn<float>("size");
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<double>("factor");
        QTest::newRow("below 1") << 0.5f << "m" << 1000.0;
        QTest::newRow("1") << 1.0f << "" << 1.0;
        QTest::newRow("9999") << 9999.0f << "" << 1.0;
        QTest::newRow("10000") << 10000.0f << "k" << 0.001;
        QTest::newRow("10 million") << 1e7f << "M" << 1e-6;
        QTest::newRow("above 1e10") << 1.0001e10f << "G" << 1e-9;
        QTest::newRow("above 1e13") << 1.0001e13f << "T" << 1e-12;
        QTest::newRow("1e38") << 1e38f << "T" << 1e-12;
        QTest::newRow("infinity ends too") << std::numeric_limits<float>::infinity() << "T" << 1e-12;
    }
    void thePowerUnit()
    {
        QFETCH(float, size);
        QFETCH(QString, prefix);
        DisplayUnits units;
        DisplayScale::choosePower(units, size);
        QCOMPARE(units.watt, prefix + "W");
        QCOMPARE(units.voltAmpere, prefix + "VA");
        QCOMPARE(units.var, prefix + "var");
        QCOMPARE(units.wattHour, prefix + "Wh");
        QCOMPARE(units.voltAmpereHour, prefix + "VAh");
        QCOMPARE(units.varHour, prefix + "varh");
        QTEST(units.factorWatt, "factor");
        QTEST(units.factorWattHour, "factor");
    }

    void phasesAndNeutralHaveTheirOwnUnits()
    {
        Setup setup(5, 10000, 5, 10000);
        setup.config.setRatioVFenzi(100); // 230 V x 100 = 23 kV
        setup.config.setRatioIFenzi(100); // 10000 / 100 = 100: kA; 2.3 MW by the product 2300000
        QCOMPARE(setup.config.units().volt, QString("kV"));
        QCOMPARE(setup.config.units().ampere, QString("kA"));
        QCOMPARE(setup.config.units().watt, QString("kW"));
        QCOMPARE(setup.config.unitsN().volt, QString("V"));
        QCOMPARE(setup.config.unitsN().ampere, QString("A"));
        QCOMPARE(setup.config.unitsN().watt, QString("kW")); // 230 x 10000
        setup.config.setRatioVNFenzi(1000);
        setup.config.setRatioINFenmu(1000); // 10000 x 1000: mA
        QCOMPARE(setup.config.unitsN().volt, QString("kV"));
        QCOMPARE(setup.config.unitsN().ampere, QString("mA"));
    }

    void theDecimalsOfACurrent_data()
    {
        QTest::addColumn<float>("size");
        QTest::addColumn<double>("factor");
        QTest::addColumn<int>("digits");
        const float sizes[] = { 100.0f, 101.0f, 1001.0f, 10001.0f, 100001.0f, 1000001.0f, 10000001.0f };
        const int plain[] = { 0, 0, 1, 2, 3, 3, 3 }; // base -1 to 5, held to 0..3
        const int kilo[] = { 2, 3, 3, 3, 3, 3, 3 };
        const int milli[] = { 0, 0, 0, 0, 0, 1, 2 };
        for (int i = 0; i < 7; ++i) {
            QTest::addRow("%.0f, A", double(sizes[i])) << sizes[i] << 1.0 << plain[i];
            QTest::addRow("%.0f, MA", double(sizes[i])) << sizes[i] << 1e-6 << 3;
            QTest::addRow("%.0f, kA", double(sizes[i])) << sizes[i] << 0.001 << kilo[i];
            QTest::addRow("%.0f, mA", double(sizes[i])) << sizes[i] << 1000.0 << milli[i];
        }
        QTest::newRow("infinity ends too") << std::numeric_limits<float>::infinity() << 1.0 << 3;
        QTest::newRow("no number ends too") << std::numeric_limits<float>::quiet_NaN() << 1.0 << 0;
    }
    void theDecimalsOfACurrent()
    {
        QFETCH(float, size);
        QFETCH(double, factor);
        QTEST(DisplayScale::currentDigits(size, factor), "digits");
    }

    void theDecimalsFollowClampAndRatio()
    {
        Setup setup(5, 10000, 1000, 1000);
        QCOMPARE(setup.config.currentDigits(), 1); // 10000 is above 1e3
        QCOMPARE(setup.config.currentNDigits(), 0); // 1000 is above 100
        setup.config.setRatioIFenmu(2); // 20000
        QCOMPARE(setup.config.currentDigits(), 2);
        setup.config.setRatioINFenzi(100); // 10: base -1, in kA plus 3
        QCOMPARE(setup.config.currentNDigits(), 2);
    }

    void anyRatioGivesFiniteUnitsAndEnds()
    {
        const int extremes[] = { 0, 1, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min() };
        for (int numerator : extremes) {
            for (int denominator : extremes) {
                RootFiles::write(
                    SettingConfig::filePath(),
                    QStringLiteral("RATIO_IFENZI=%1\nRATIO_IFENMU=%2\nRATIO_VFENZI=%1\nRATIO_VFENMU=%2\n"
                                   "RATIO_INFENZI=%1\nRATIO_INFENMU=%2\nRATIO_VNFENZI=%1\nRATIO_VNFENMU=%2\n")
                        .arg(numerator)
                        .arg(denominator)
                        .toLatin1());
                SettingConfig config;
                QVERIFY(config.currentDigits() >= 0 && config.currentDigits() <= 3);
                QVERIFY(config.currentNDigits() >= 0 && config.currentNDigits() <= 3);
                QVERIFY(config.units().volt.endsWith('V') && config.units().watt.endsWith('W'));
                QVERIFY(std::isfinite(config.wvi()[0]));
            }
        }
    }
};

QTEST_GUILESS_MAIN(TstSettingDerived)
#include "tst_settingderived.moc"
