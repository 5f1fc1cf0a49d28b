#include "setup/clampvalues.h"
#include "setup/nametext.h"
#include "setup/ratiochoice.h"

#include <QTest>

using namespace ClampValues;

/// Numbers, ratios and names as the clamp editors take and show them.
class TstClampValues : public QObject
{
    Q_OBJECT

private slots:
    void aTypedSensitivityBecomesMicrovolts_data();
    void aTypedSensitivityBecomesMicrovolts();
    void aSensitivityThatCannotBeTypedIsNone_data();
    void aSensitivityThatCannotBeTypedIsNone();
    void aSensitivityIsShownAsItIsTyped_data();
    void aSensitivityIsShownAsItIsTyped();
    void theOutputOfAClampStaysWithinTwoVolts_data();
    void theOutputOfAClampStaysWithinTwoVolts();
    void descriptionsAreThoseOfTheFile();

    void presetsGrowTenfoldAndThenTurnCustom();
    void presetsStepBackAndEndAtOneToOne();
    void whatIsNoPresetIsCustom_data();
    void whatIsNoPresetIsCustom();
    void typedRatiosAreHeldToTheirBounds();

    void namesThatCanBeFiles_data();
    void namesThatCanBeFiles();
};

void TstClampValues::aTypedSensitivityBecomesMicrovolts_data()
{
    QTest::addColumn<int>("ratio");
    QTest::newRow("0.5") << 500;
    QTest::newRow("1000") << 1000000;
    QTest::newRow("1") << 1000;
    QTest::newRow("999") << 999000;
    QTest::newRow("10") << 10000;
    QTest::newRow("0.065") << 65;
    QTest::newRow("0.05") << 50;
    QTest::newRow("0.001") << 1;
    QTest::newRow("0.999") << 999;
    QTest::newRow("0") << 0;
    QTest::newRow("000") << 0;
    QTest::newRow("0.000") << 0;
    QTest::newRow("007") << 7000;
}

void TstClampValues::aTypedSensitivityBecomesMicrovolts()
{
    const auto ratio = ratioOf(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(ratio.has_value());
    QTEST(*ratio, "ratio");
}

void TstClampValues::aSensitivityThatCannotBeTypedIsNone_data()
{
    QTest::addColumn<QString>("typed");
    for (const char *typed : { "", ".", "1001", "1.5", "0.", "0.1234", "-1", " 1", "1 ", "1e3", "0x10", "1,5" })
        QTest::addRow("<%s>", typed) << QString::fromLatin1(typed);
    QTest::newRow("arabic digits") << QString::fromUtf8("٥");
    QTest::newRow("5000 digits") << QString(5000, '1');
    QTest::newRow("line feed behind") << "1\n";
}

void TstClampValues::aSensitivityThatCannotBeTypedIsNone()
{
    QFETCH(QString, typed);
    QVERIFY(!ratioOf(typed).has_value());
}

void TstClampValues::aSensitivityIsShownAsItIsTyped_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("65") << "0.065 mV/A";
    QTest::newRow("100") << "0.1 mV/A";
    QTest::newRow("1") << "0.001 mV/A";
    QTest::newRow("999") << "0.999 mV/A";
    QTest::newRow("1000") << "1 mV/A";
    QTest::newRow("1500") << "1.5 mV/A";
    QTest::newRow("10000") << "10 mV/A";
    QTest::newRow("1000000") << "1000 mV/A";
    QTest::newRow("0") << "0 mV/A";
    QTest::newRow("2147483647") << "2147483.647 mV/A";
}

void TstClampValues::aSensitivityIsShownAsItIsTyped()
{
    QTEST(sensitivityText(QByteArray(QTest::currentDataTag()).toInt()), "text");
}

void TstClampValues::theOutputOfAClampStaysWithinTwoVolts_data()
{
    QTest::addColumn<int>("ratio");
    QTest::addColumn<int>("most");
    QTest::newRow("1 mV/A") << 1000 << 2000;
    QTest::newRow("10 mV/A") << 10000 << 200;
    QTest::newRow("1 V/A") << 1000000 << 2;
    QTest::newRow("1 uV/A") << 1 << 2000000;
    QTest::newRow("65 uV/A") << 65 << 30769;
    QTest::newRow("none: the bound stays") << 0 << 777;
    QTest::newRow("beyond what is typed") << 2147483647 << 1;
}

void TstClampValues::theOutputOfAClampStaysWithinTwoVolts()
{
    QFETCH(int, ratio);
    QTEST(changeRangeMax(ratio, 777), "most");
}

void TstClampValues::descriptionsAreThoseOfTheFile()
{
    QCOMPARE(description("Coil", true), QStringLiteral("Coil, flexible, Editable"));
    QCOMPARE(description("Bar", false), QStringLiteral("Bar, Not flexible, Editable"));
}

void TstClampValues::presetsGrowTenfoldAndThenTurnCustom()
{
    RatioChoice ratio;
    QStringList shown { ratio.text() };
    for (int i = 0; i < 6; ++i) {
        ratio.next();
        shown << ratio.text();
    }
    QCOMPARE(shown, QStringList({ "1:1", "10:1", "100:1", "1000:1", "10000:1", "CUSTOM", "CUSTOM" }));
    QCOMPARE(ratio.numbers(), QStringLiteral("1000:1"));
    QCOMPARE(ratio.selector(), int(RatioChoice::Custom));
}

void TstClampValues::presetsStepBackAndEndAtOneToOne()
{
    RatioChoice ratio(250, 5, RatioChoice::Custom);
    QStringList shown { ratio.text() };
    for (int i = 0; i < 6; ++i) {
        ratio.prev();
        shown << ratio.text();
    }
    QCOMPARE(shown, QStringList({ "CUSTOM", "10000:1", "1000:1", "100:1", "10:1", "1:1", "1:1" }));
    QCOMPARE(ratio.selector(), int(RatioChoice::Preset));
}

void TstClampValues::whatIsNoPresetIsCustom_data()
{
    QTest::addColumn<int>("numerator");
    QTest::addColumn<int>("denominator");
    QTest::addColumn<int>("selector");
    QTest::addColumn<bool>("custom");
    QTest::newRow("1:1") << 1 << 1 << 1 << false;
    QTest::newRow("10000:1") << 10000 << 1 << 1 << false;
    QTest::newRow("a preset that was typed") << 1000 << 1 << 0 << true;
    QTest::newRow("20:1") << 20 << 1 << 1 << true;
    QTest::newRow("100:5") << 100 << 5 << 1 << true;
    QTest::newRow("100000:1") << 100000 << 1 << 1 << true;
    QTest::newRow("0:1") << 0 << 1 << 1 << true;
    QTest::newRow("1:0") << 1 << 0 << 1 << true;
    QTest::newRow("negative") << -10 << 1 << 1 << true;
    QTest::newRow("largest") << 2147483647 << 2147483647 << 1 << true;
}

void TstClampValues::whatIsNoPresetIsCustom()
{
    QFETCH(int, numerator);
    QFETCH(int, denominator);
    QFETCH(int, selector);
    RatioChoice ratio(numerator, denominator, selector);
    QTEST(ratio.isCustom(), "custom");
    QCOMPARE(ratio.numbers(), QStringLiteral("%1:%2").arg(numerator).arg(denominator)); // shown as it is stored
}

void TstClampValues::typedRatiosAreHeldToTheirBounds()
{
    RatioChoice ratio;
    ratio.setCustom(0, 0);
    QCOMPARE(ratio.numbers(), QStringLiteral("1:1"));
    QVERIFY(ratio.isCustom());
    ratio.setCustom(99999, 99999);
    QCOMPARE(ratio.numbers(), QStringLiteral("99999:99999"));
    ratio.setCustom(-5, 2147483647);
    QCOMPARE(ratio.numbers(), QStringLiteral("1:99999"));
}

void TstClampValues::namesThatCanBeFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("plain"); // for a clamp, which makes no file
    QTest::addColumn<bool>("file");
    QTest::newRow("letters") << "Plant 7" << true << true;
    QTest::newRow("signs of the keyboard") << "a-b_c,d.e" << true << true;
    QTest::newRow("ampersand and apostrophe") << "R&D's" << true << true;
    QTest::newRow("letters of the world") << QString::fromUtf8("Zakład 工厂 Ж") << true << true;
    QTest::newRow("200 characters") << QString(200, 'x') << true << true;
    QTest::newRow("240 bytes") << QString(240, 'x') << true << true;
    QTest::newRow("241 bytes") << QString(241, 'x') << true << false;
    QTest::newRow("241 bytes of two each") << QString(121, QChar(0x416)) << true << false;
    for (const char *sign : { "*", "?", "/", "\\", ":", "\"", "<", ">", "|" })
        QTest::addRow("a sign of the system's: %s", sign) << QString("a%1b").arg(sign) << true << false;
    QTest::newRow("leading dot") << ".a" << true << false;
    QTest::newRow("trailing dot") << "a." << true << false;
    QTest::newRow("the folder above") << ".." << true << false;
    QTest::newRow("line feed") << "a\nb" << false << false;
    QTest::newRow("zero") << QString("a") + QChar(0) << false << false;
    QTest::newRow("delete") << QString("a") + QChar(0x7f) << false << false;
    QTest::newRow("half a pair") << QString(QChar(0xd800)) << false << false;
    QTest::newRow("no character") << QString(QChar(0xffff)) << false << false;
}

void TstClampValues::namesThatCanBeFiles()
{
    QFETCH(QString, name);
    QTEST(NameText::isPlain(name), "plain");
    QTEST(NameText::isFileName(name), "file");
}

QTEST_GUILESS_MAIN(TstClampValues)
#include "tst_clampvalues.moc"
