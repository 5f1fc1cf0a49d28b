#include "settings/config_data.h"
#include "widgets/text/f_to_str.h"
#include "widgets/text/numberformat.h"

#include <QTest>

#include <cmath>

class TstFToStr : public QObject
{
    Q_OBJECT

private slots:
    void tinyValuesAndNonNumbersPrintAsZero();
    void fixedDecimals_data();
    void fixedDecimals();
    void voltageDecimalsFollowTheRange_data();
    void voltageDecimalsFollowTheRange();
    void voltageAndCurrentKeepTheSignOfNegativeValues();
    void aRecordOfOnesOwnDecidesUnitsAndDecimals();
    void voltagePrintsInTheUnitInForce();
    void currentDecimalsAreTheClampsPlusOne();
    void powerAndEnergyAreScaled();
    void significantFigures_data();
    void significantFigures();
    void percentDivision_data();
    void percentDivision();
    void divisionWithoutBound();
    void percentText();
    void escapesBecomeBytes_data();
    void escapesBecomeBytes();
    void escapedTextEndsAt128Bytes();
    void escapedTextIsZeroedOnlyForItsFirst30Bytes();
};

void TstFToStr::tinyValuesAndNonNumbersPrintAsZero()
{
    QCOMPARE(F_to_Str::number_2(0.00005f), QStringLiteral("0.00"));
    QCOMPARE(F_to_Str::number_2(-0.00005f), QStringLiteral("0.00"));
    QCOMPARE(F_to_Str::number_2(NAN), QStringLiteral("0.00"));
    QCOMPARE(F_to_Str::number_2(INFINITY), QStringLiteral("0.00"));
    QCOMPARE(F_to_Str::number_2(-INFINITY), QStringLiteral("0.00"));
    QCOMPARE(F_to_Str::number_n(0.0002f, 4), QStringLiteral("0.0002"));
    QCOMPARE(F_to_Str::number_n(0.00009f, 5), QStringLiteral("0.00000"));
    for (const auto print : { F_to_Str::number_V, F_to_Str::number_A, F_to_Str::number_AN, F_to_Str::number_P,
                              F_to_Str::number_E, F_to_Str::number_F, F_to_Str::number_Ang })
        QCOMPARE(print(NAN).toDouble(), 0.0);
}

void TstFToStr::fixedDecimals_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const float value = 49.98765f;
    QTest::newRow("frequency, 2") << F_to_Str::number_F(value) << "49.99";
    QTest::newRow("angle, 1") << F_to_Str::number_Ang(-119.96f) << "-120.0";
    QTest::newRow("1") << F_to_Str::number_1(value) << "50.0";
    QTest::newRow("2") << F_to_Str::number_2(value) << "49.99";
    QTest::newRow("3") << F_to_Str::number_3(value) << "49.988";
    QTest::newRow("n = 0") << F_to_Str::number_n(value, 0) << "50";
    QTest::newRow("n = 4") << F_to_Str::number_n(1.5f, 4) << "1.5000";
    QTest::newRow("the other spelling") << F_to_Str::number1(1.5f, 2) << "1.50";
    QTest::newRow("large, no exponent") << F_to_Str::number_1(1e9f) << "1000000000.0";
}

void TstFToStr::fixedDecimals()
{
    QFETCH(QString, text);
    QTEST(text, "expected");
}

void TstFToStr::voltageDecimalsFollowTheRange_data()
{
    QTest::addColumn<float>("coefficient");
    QTest::addColumn<int>("decimals");
    // Resolution v = r * 10 / 65536 volts.
    QTest::newRow("39.8: 6.07 mV") << 39.8f << 3;
    QTest::newRow("79.25: 12.1 mV") << 79.25f << 2;
    QTest::newRow("153.6: 23.4 mV") << 153.6f << 2;
    QTest::newRow("667: 102 mV") << 667.0f << 1;
    QTest::newRow("600: 91.6 mV, 9.16 is above 8.5") << 600.0f << 1;
    QTest::newRow("555: 84.7 mV, 8.47 is not") << 555.0f << 2;
    QTest::newRow("6553.6: 1 V") << 6554.0f << 0;
    QTest::newRow("50000: 7.6 V") << 50000.0f << 0;
    QTest::newRow("60000: 9.2 V") << 60000.0f << -1;
    QTest::newRow("zero ends at once") << 0.0f << 0;
    QTest::newRow("negative ends at once") << -5.0f << 0;
    QTest::newRow("no number ends at once") << float(NAN) << 0;
    QTest::newRow("infinite") << float(INFINITY) << -1;
}

void TstFToStr::voltageDecimalsFollowTheRange()
{
    QFETCH(float, coefficient);
    QTEST(F_to_Str::precision_num(coefficient), "decimals");
}

void TstFToStr::voltageAndCurrentKeepTheSignOfNegativeValues()
{
    QVERIFY(F_to_Str::number_V(-12.5f).startsWith(QLatin1Char('-')));
    QVERIFY(F_to_Str::number_A(-12.5f).startsWith(QLatin1Char('-')));
    QVERIFY(F_to_Str::number_AN(-12.5f).startsWith(QLatin1Char('-')));
}

void TstFToStr::aRecordOfOnesOwnDecidesUnitsAndDecimals()
{
    Derived by;
    by.voltGain[0] = 667.0f; // 0.1 V a count
    by.units.factorVolt = 0.001;
    by.units.factorAmpere = 1000.0;
    by.units.factorWatt = 1e-6;
    by.units.factorWattHour = 0.001;
    by.unitsN.factorAmpere = 1.0;
    by.currentDigits = 0;
    by.currentNDigits = 2;
    QCOMPARE(NumberFormat::volt(12340.0f, by), QStringLiteral("12.3"));
    QCOMPARE(NumberFormat::ampere(0.25f, by), QStringLiteral("250.0"));
    QCOMPARE(NumberFormat::ampereN(0.25f, by), QStringLiteral("0.250"));
    QCOMPARE(NumberFormat::watt(2500000.0f, by), QStringLiteral("2.50"));
    QCOMPARE(NumberFormat::wattHour(1500.0f, by), QStringLiteral("1.500"));
    QCOMPARE(NumberFormat::watt(NAN, by), QStringLiteral("0.00"));
}

void TstFToStr::voltagePrintsInTheUnitInForce()
{
    // A fresh instrument: 230 V (scale "V"), 79.25 V per converter volt in its range, so two decimals.
    m_calib_data_g.initCalibData();
    m_settingConfig_g.loadSettingConfig();
    QCOMPARE(m_settingConfig_g.units().volt, QStringLiteral("V"));
    QCOMPARE(F_to_Str::number_V(230.456f), QStringLiteral("230.46"));
    m_calib_data_g.data().volt[m_settingConfig_g.getVoltIndex()][0] = 667.0f;
    m_settingConfig_g.followSettings();
    QCOMPARE(F_to_Str::number_V(-230.456f), QStringLiteral("-230.5"));
    m_calib_data_g.initCalibData();

    m_settingConfig_g.setRatioVFenzi(100); // a transformer of 100 to 1: 23,000 V at full scale
    m_settingConfig_g.loadSettingConfig();
    QCOMPARE(m_settingConfig_g.units().volt, QStringLiteral("kV"));
    QCOMPARE(F_to_Str::number_V(23000.0f).toDouble(), 23.0);
    m_settingConfig_g.setRatioVFenzi(1);
    m_settingConfig_g.loadSettingConfig();
}

void TstFToStr::currentDecimalsAreTheClampsPlusOne()
{
    // A fresh instrument: TARN-41A with 10000 uV/A: above 1000, so p is 1, and below a million, so the unit is A.
    m_settingConfig_g.loadSettingConfig();
    QCOMPARE(F_to_Str::number_A(123.456f), QStringLiteral("123.46"));
    QCOMPARE(F_to_Str::number_AN(-123.456f), QStringLiteral("-123.46"));

    m_settingConfig_g.setRatioIFenzi(10); // 1000 uV/A: no longer above 1000, so p is 0; the neutral keeps its own
    m_settingConfig_g.loadSettingConfig();
    QCOMPARE(F_to_Str::number_A(123.456f), QStringLiteral("123.5"));
    QCOMPARE(F_to_Str::number_AN(123.456f), QStringLiteral("123.46"));

    m_settingConfig_g.setRatioIFenzi(100); // 100 uV/A: p is -1, in kA + 3, so three decimals
    m_settingConfig_g.loadSettingConfig();
    QCOMPARE(m_settingConfig_g.units().ampere, QStringLiteral("kA"));
    QCOMPARE(F_to_Str::number_A(123.456f), QStringLiteral("0.123"));
    m_settingConfig_g.setRatioIFenzi(1);
    m_settingConfig_g.loadSettingConfig();
}

void TstFToStr::powerAndEnergyAreScaled()
{
    QCOMPARE(F_to_Str::scaled(1500000.0f, 0.001, 2), QStringLiteral("1500.00"));
    QCOMPARE(F_to_Str::scaled(1500000.0f, 0.001, 3), QStringLiteral("1500.000"));
    QCOMPARE(F_to_Str::scaled(0.00005f, 1e9, 2), QStringLiteral("0.00")); // cleaned before it is scaled
    const double factor = m_settingConfig_g.units().factorWatt;
    QCOMPARE(F_to_Str::number_P(1e6f), QString::number(1e6 * factor, 'f', 2));
    QCOMPARE(F_to_Str::number_E(1e6f), QString::number(1e6 * m_settingConfig_g.units().factorWattHour, 'f', 3));
}

void TstFToStr::significantFigures_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<int>("n");
    QTest::addColumn<QString>("expected");
    QTest::newRow("n = 0") << 12.0f << 0 << "";
    QTest::newRow("n = 4, below 10") << 1.23456f << 4 << "1.235";
    QTest::newRow("n = 4, below 100") << 12.3456f << 4 << "12.35";
    QTest::newRow("n = 4, below 1000") << 123.456f << 4 << "123.5";
    QTest::newRow("n = 4, 1000 itself") << 1000.0f << 4 << "1000";
    QTest::newRow("n = 4, truncated") << 1234.9f << 4 << "1234";
    QTest::newRow("n = 4, negative truncated") << -1234.9f << 4 << "-1234";
    QTest::newRow("n = 4, huge") << 1e30f << 4 << "1000000015047466219876688855040";
    QTest::newRow("n = 5, below 10000") << 9999.4f << 5 << "9999.4";
    QTest::newRow("n = 5, everything from 10,000 up") << 123456.0f << 5 << "10000";
    QTest::newRow("n = 5, negative") << -10000.0f << 5 << "-10000";
    QTest::newRow("n = 1, below 1") << 0.5f << 1 << "";
    QTest::newRow("n = 1, from 1 up") << 7.9f << 1 << "7";
    QTest::newRow("n = 2, below 10") << 9.96f << 2 << "10.0";
    QTest::newRow("no number") << float(NAN) << 4 << "0.000";
    QTest::newRow("tiny") << 0.00001f << 3 << "0.00";
}

void TstFToStr::significantFigures()
{
    QFETCH(float, value);
    QFETCH(int, n);
    QTEST(F_to_Str::number(value, n), "expected");
}

void TstFToStr::percentDivision_data()
{
    QTest::addColumn<float>("a");
    QTest::addColumn<float>("b");
    QTest::addColumn<float>("expected");
    QTest::newRow("5 by 0") << 5.0f << 0.0f << 0.0f;
    QTest::newRow("5 by 1 is held to 1") << 5.0f << 1.0f << 1.0f;
    QTest::newRow("a quarter") << 1.0f << 4.0f << 0.25f;
    QTest::newRow("negative is held to 0") << -1.0f << 4.0f << 0.0f;
    QTest::newRow("just below the smallest divisor") << 1e-6f << 0.9e-5f << 0.0f;
    QTest::newRow("negative divisor") << 1.0f << -4.0f << 0.0f;
    QTest::newRow("no number above") << float(NAN) << 4.0f << 0.0f;
    QTest::newRow("no number below") << 1.0f << float(NAN) << 0.0f;
}

void TstFToStr::percentDivision()
{
    QFETCH(float, a);
    QFETCH(float, b);
    QTEST(F_to_Str::div_s_percent(a, b), "expected");
}

void TstFToStr::divisionWithoutBound()
{
    QCOMPARE(F_to_Str::div_sn(5.0f, 0.0f), 0.0f);
    QCOMPARE(F_to_Str::div_sn(5.0f, 0.5f), 10.0f);
    QCOMPARE(F_to_Str::div_sn(-5.0f, 0.5f), -10.0f);
    QCOMPARE(F_to_Str::div_sn(5.0f, -0.5f), 0.0f);
}

void TstFToStr::percentText()
{
    QCOMPARE(F_to_Str::number_percent(1.0f, 3.0f, 2), QStringLiteral("33.33"));
    QCOMPARE(F_to_Str::number_percent(7.0f, 3.0f, 1), QStringLiteral("100.0"));
    QCOMPARE(F_to_Str::number_percent(NAN, 3.0f, 3), QStringLiteral("0.000"));
    QCOMPARE(F_to_Str::number_percent(1.0f, INFINITY, 0), QStringLiteral("0"));
}

void TstFToStr::escapesBecomeBytes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("plain") << "Office 5" << QByteArray("Office 5");
    QTest::newRow("two bytes") << "\\xe4\\xbd" << QByteArray("\xe4\xbd");
    QTest::newRow("between letters") << "a\\xc3\\xa9b"
                                     << QByteArray("a\xc3\xa9"
                                                   "b");
    QTest::newRow("Latin-1 as it stands") << QString(QChar(0xe9)) << QByteArray("\xe9");
    QTest::newRow("above Latin-1") << QString(QChar(0x4e2d)) << QByteArray("\xd0"); // 208
    QTest::newRow("cut escape: what is missing counts as nothing")
        << "ab\\x" << QByteArray("ab\xd0"); // (-48 * 16 - 48) mod 256
    QTest::newRow("zero ends it") << QString::fromLatin1("ab\0cd", 5) << QByteArray("ab");
    QTest::newRow("empty") << QString() << QByteArray();
}

void TstFToStr::escapesBecomeBytes()
{
    QFETCH(QString, text);
    QTEST(QByteArray(F_to_Str::utf8(text)), "bytes");
}

void TstFToStr::escapedTextEndsAt128Bytes()
{
    QCOMPARE(QByteArray(F_to_Str::utf8(QString(1000, QLatin1Char('a')))), QByteArray(128, 'a'));
    // 512 characters of input are 128 escapes; the last byte written is the 128th.
    QCOMPARE(QByteArray(F_to_Str::utf8(QStringLiteral("\\x62").repeated(400))), QByteArray(128, 'b'));
    F_to_Str::utf8(QString(128, QChar(1)));
}

void TstFToStr::escapedTextIsZeroedOnlyForItsFirst30Bytes()
{
    F_to_Str::utf8(QString(128, QLatin1Char('z')));
    QCOMPARE(QByteArray(F_to_Str::utf8(QStringLiteral("short"))), QByteArray("short"));
    const QByteArray forty(F_to_Str::utf8(QString(40, QLatin1Char('q'))));
    QCOMPARE(forty, QByteArray(40, 'q') + QByteArray(88, 'z')); // the rest of the text before
}

QTEST_GUILESS_MAIN(TstFToStr)
#include "tst_f_to_str.moc"
