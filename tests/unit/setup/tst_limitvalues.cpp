#include "setup/limitfields.h"

#include "settings/derived.h"
#include "settings/limitsmanager.h"
#include "unit/documentpage.h"

#include <QTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <set>

using namespace LimitValue;

namespace {

constexpr Span kTenths { 0, 10000, 10 };
constexpr Span kWhole { 0, 10000, 10, true };
constexpr Span kHundredths { 0, 2000, 1, true };
constexpr Span kOnes { 0, 999900, 100 };

const char *const kUnitNames[] = { "%", "+ %", "- %", "%/s", "s", "Hz", "none" };

monitor_limit builtIn()
{
    return MonitorLimits2().limit();
}

QString decimal(int hundredths)
{
    return QString::number(hundredths / 100.0);
}

} // namespace

/// How the values of a limit set are converted, stepped and written.
class TstLimitValues : public QObject
{
    Q_OBJECT

private slots:
    void storedValuesBecomeHundredths_data();
    void storedValuesBecomeHundredths();
    void hundredthsOfEveryStepSurviveTheRecord();
    void stepsStopAtTheBounds_data();
    void stepsStopAtTheBounds();
    void aValueIsWrittenWithItsUnit_data();
    void aValueIsWrittenWithItsUnit();
    void percentsAreShownInVoltsAndHertz_data();
    void percentsAreShownInVoltsAndHertz();

    void everyItemShowsTheBuiltInValues_data();
    void everyItemShowsTheBuiltInValues();
    void noTwoFieldsShareAValue();
    void aFieldChangesItsOwnValueOnly();
    void harmonicRowsStayInsideTheRecord();
    void thePageOfFieldsTellsWhatTheCodeDoes();
};

void TstLimitValues::storedValuesBecomeHundredths_data()
{
    QTest::addColumn<float>("stored");
    QTest::addColumn<int>("hundredths");
    QTest::newRow("ten") << 10.0f << 1000;
    QTest::newRow("1.38") << 1.38f << 138;
    QTest::newRow("0.0051 is rounded up") << 0.0051f << 1;
    QTest::newRow("0.125") << 0.125f << 13;
    QTest::newRow("not applied") << 100.1f << 10010;
    QTest::newRow("negative") << -0.75f << -75;
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << 0;
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << std::numeric_limits<int>::max();
    QTest::newRow("below 32 bits") << -1e30f << std::numeric_limits<int>::min();
}

void TstLimitValues::storedValuesBecomeHundredths()
{
    QFETCH(float, stored);
    QTEST(floatToint(stored), "hundredths");
}

void TstLimitValues::hundredthsOfEveryStepSurviveTheRecord()
{
    for (int value = 0; value <= 300000; ++value) {
        if (floatToint(intTofloat(value)) != value)
            QFAIL(qPrintable(QStringLiteral("%1 hundredths").arg(value)));
    }
    QCOMPARE(intTofloat(138), 1.38f);
    QCOMPARE(intTofloat(kNone), 100.1f);
}

void TstLimitValues::stepsStopAtTheBounds_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("steps");
    QTest::addColumn<bool>("mayBeNone");
    QTest::addColumn<int>("to");
    QTest::newRow("up") << 1000 << 1 << false << 1010;
    QTest::newRow("down by five") << 1000 << -5 << false << 950;
    QTest::newRow("no step") << 1003 << 0 << false << 1003;
    QTest::newRow("off the grid, up") << 1003 << 1 << false << 1010;
    QTest::newRow("off the grid, down") << 1003 << -1 << false << 1000;
    QTest::newRow("at the lower bound") << 0 << -1 << false << 0;
    QTest::newRow("past the lower bound") << 30 << -100 << false << 0;
    QTest::newRow("at the upper bound") << 10000 << 1 << false << 10000;
    QTest::newRow("past the upper bound") << 9990 << 100 << true << 10000;
    QTest::newRow("from the upper bound") << 10000 << 1 << true << 10010;
    QTest::newRow("none stays none") << 10010 << 100 << true << 10010;
    QTest::newRow("back from none") << 10010 << -1 << true << 10000;
    QTest::newRow("back from none, held") << 10010 << -100 << true << 10000;
    QTest::newRow("none where there is none") << 10010 << 1 << false << 10000;
    QTest::newRow("negative out of a file") << -500 << 1 << false << 0;
    QTest::newRow("largest out of a file") << std::numeric_limits<int>::max() << 1 << false << 10000;
    QTest::newRow("largest as none") << std::numeric_limits<int>::max() << -1 << true << 10000;
    QTest::newRow("smallest out of a file") << std::numeric_limits<int>::min() << -100 << true << 0;
}

void TstLimitValues::stepsStopAtTheBounds()
{
    QFETCH(int, from);
    QFETCH(int, steps);
    QFETCH(bool, mayBeNone);
    QTEST(stepped(from, steps, mayBeNone ? kWhole : kTenths), "to");
}

void TstLimitValues::aValueIsWrittenWithItsUnit_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("span"); // 0 tenths, 1 whole limit, 2 hundredths, 3 ones
    QTest::addColumn<QString>("text");
    QTest::newRow("percent") << 9500 << int(Percent) << 0 << "95.0 %";
    QTest::newRow("above") << 1000 << int(PercentAbove) << 1 << "+10.0 %";
    QTest::newRow("below") << 1500 << int(PercentBelow) << 1 << "-15.0 %";
    QTest::newRow("not applied") << 10010 << int(PercentBelow) << 1 << "N/A";
    QTest::newRow("100 is applied") << 10000 << int(Percent) << 1 << "100.0 %";
    QTest::newRow("100.01 is applied") << 10001 << int(Percent) << 1 << "100.01 %";
    QTest::newRow("no whole limit") << 10010 << int(Percent) << 0 << "100.1 %";
    QTest::newRow("a rate") << 100 << int(PercentPerSecond) << 0 << "1.0 %/s";
    QTest::newRow("off the grid of tenths") << 38 << int(Percent) << 0 << "0.38 %";
    QTest::newRow("severity") << 138 << int(Plain) << 2 << "1.38";
    QTest::newRow("whole severity") << 2000 << int(Plain) << 2 << "20.00";
    QTest::newRow("seconds") << 100 << int(Seconds) << 3 << "1 s";
    QTest::newRow("hertz") << 137500 << int(Hertz) << 3 << "1375 Hz";
    QTest::newRow("a number") << 2000 << int(Plain) << 3 << "20";
}

void TstLimitValues::aValueIsWrittenWithItsUnit()
{
    QFETCH(int, value);
    QFETCH(int, unit);
    QFETCH(int, span);
    const Span spans[] = { kTenths, kWhole, kHundredths, kOnes };
    QTEST(getVoltageVal(value, Unit(unit), spans[span]), "text");
}

void TstLimitValues::percentsAreShownInVoltsAndHertz_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("base");
    QTest::addColumn<float>("volts"); // nominal
    QTest::addColumn<QString>("text");
    QTest::newRow("90 % of 230 V") << 9000 << int(Percent) << int(OfVoltage) << 230.0f << "207.0 V";
    QTest::newRow("1 %/s of 230 V") << 100 << int(PercentPerSecond) << int(OfVoltage) << 230.0f << "2.3 V/s";
    QTest::newRow("10 % of 20 kV") << 1000 << int(PercentAbove) << int(OfVoltage) << 20000.0f << "2.000 kV";
    QTest::newRow("not applied") << 10010 << int(PercentAbove) << int(OfVoltage) << 230.0f << "";
    QTest::newRow("4 % of 50 Hz") << 400 << int(PercentAbove) << int(OfFrequency) << 230.0f << "2.00 Hz";
    QTest::newRow("of nothing") << 400 << int(Percent) << int(NoBase) << 230.0f << "";
}

void TstLimitValues::percentsAreShownInVoltsAndHertz()
{
    QFETCH(int, value);
    QFETCH(int, unit);
    QFETCH(int, base);
    QFETCH(float, volts);
    Derived derived;
    derived.realNominalVolt = volts;
    DisplayScale::chooseVolt(derived.units, volts);
    QTEST(nominalText(value, Unit(unit), Base(base), kWhole, derived), "text");
}

void TstLimitValues::everyItemShowsTheBuiltInValues_data()
{
    // Of EN50160, in the order of the pages.
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("voltage") << QStringList { "95.0 %", "+10.0 %", "+10.0 %", "-10.0 %", "-15.0 %" };
    QTest::newRow("harmonics") << QStringList();
    QTest::newRow("flicker") << QStringList { "95.0 %", "1.00", "N/A", "95.0 %", "20.00", "N/A" };
    QTest::newRow("dips") << QStringList { "90.0 %", "2.0 %", "20" };
    QTest::newRow("swells") << QStringList { "110.0 %", "2.0 %", "20" };
    QTest::newRow("interruptions") << QStringList { "1.0 %", "2.0 %", "2" };
    QTest::newRow("rvc") << QStringList { "0.2 %", "1 s", "5.0 %", "1.0 %/s", "70" };
    QTest::newRow("unbalance") << QStringList { "95.0 %", "2.0 %", "N/A", "95.0 %", "100.0 %", "N/A" };
    QTest::newRow("frequency") << QStringList { "95.0 %", "+1.0 %", "+4.0 %", "-1.0 %", "-6.0 %" };
    QTest::newRow("mains_signal") << QStringList { "1375 Hz", "99.0 %", "5.0 %", "N/A",
                                                   "285 Hz",  "99.0 %", "9.0 %", "N/A" };
}

void TstLimitValues::everyItemShowsTheBuiltInValues()
{
    QStringList texts;
    bool found = false;
    for (const LimitItem &item : limitItems()) {
        if (qstrcmp(item.name, QTest::currentDataTag()) != 0)
            continue;
        found = true;
        for (const LimitField &field : item.fields)
            texts << field.text(builtIn());
    }
    QVERIFY(found);
    QTEST(texts, "texts");
    QCOMPARE(limitItems().size(), std::size_t(10));
}

void TstLimitValues::noTwoFieldsShareAValue()
{
    monitor_limit limit = builtIn();
    std::set<const void *> places;
    int fields = 0;
    for (const LimitItem &item : limitItems()) {
        for (const LimitField &field : item.fields) {
            places.insert(field.real ? static_cast<const void *>(&field.real(limit)) : &field.count(limit));
            ++fields;
        }
    }
    QCOMPARE(int(places.size()), fields);
    // Every word but the harmonic rows and their count, the two tops of a scale and the reserved one.
    QCOMPARE(fields, 198 - 151 - 2 - 1);
}

void TstLimitValues::aFieldChangesItsOwnValueOnly()
{
    for (const LimitItem &item : limitItems()) {
        for (const LimitField &field : item.fields) {
            monitor_limit limit = builtIn();
            limit.voltage.nep = 12.3456f; // finer than hundredths
            const int before = field.value(limit);
            const int to = stepped(before, before >= field.span.highest ? -1 : 1, field.span);
            field.setValue(limit, to);
            QCOMPARE(field.value(limit), to);
            QVERIFY(to != before);
            const bool own = field.real && &field.real(limit) == &limit.voltage.nep;
            QCOMPARE(limit.voltage.nep, own ? intTofloat(to) : 12.3456f);
            monitor_limit changed = builtIn();
            changed.voltage.nep = limit.voltage.nep;
            int words = 0;
            for (int i = 0; i < 198; ++i)
                words += memcmp(reinterpret_cast<const char *>(&limit) + 4 * i,
                                reinterpret_cast<const char *>(&changed) + 4 * i, 4)
                    != 0;
            QCOMPARE(words, own ? 0 : 1);
        }
    }
}

void TstLimitValues::harmonicRowsStayInsideTheRecord()
{
    using namespace HarmonicLimits;
    monitor_limit limit = builtIn();
    QCOMPARE(rows(limit), 25);
    for (const int count : { -1, 0, 51, 1000000, std::numeric_limits<int>::max() }) {
        limit.harmonicCount = count;
        QVERIFY(rows(limit) >= 0 && rows(limit) <= 50);
    }
    QVERIFY(&at(limit, Upper1, 50) == &limit.harmonicPartial[49]);
    QVERIFY(&at(limit, Time, -1) == &limit.harmonicNep[0]);
    QVERIFY(&at(limit, Upper2, 3) == &limit.harmonicWhole[3]);
    QCOMPARE(name(0), QStringLiteral("THD"));
    QCOMPARE(name(1), QStringLiteral("H2"));
    QCOMPARE(name(24), QStringLiteral("H25"));
}

void TstLimitValues::thePageOfFieldsTellsWhatTheCodeDoes()
{
    QStringList code;
    for (const LimitItem &item : limitItems()) {
        for (const LimitField &field : item.fields)
            code << QStringLiteral("%1|%2|%3|%4|%5|%6|%7")
                        .arg(QLatin1String(item.title), QLatin1String(field.caption),
                             QLatin1String(kUnitNames[field.unit]), decimal(field.span.lowest),
                             decimal(field.span.highest), decimal(field.span.step),
                             QLatin1String(field.span.mayBeNone ? "yes" : "no"));
    }
    using namespace HarmonicLimits;
    const char *const names[] = { "Time in limits", "Limit for this time", "Limit for all the time" };
    for (const Column column : { Time, Upper1, Upper2 })
        code << QStringLiteral("Harmonics|%1|%|%2|%3|%4|%5")
                    .arg(QLatin1String(names[column]), decimal(span(column).lowest), decimal(span(column).highest),
                         decimal(span(column).step), QLatin1String(span(column).mayBeNone ? "yes" : "no"));
    QStringList page;
    for (const QStringList &row : DocumentPage(QStringLiteral("setup-editors.md")).table(QStringLiteral("## Values")))
        page << row.join(QLatin1Char('|'));
    code.sort();
    page.sort();
    QCOMPARE(page.join(QLatin1Char('\n')), code.join(QLatin1Char('\n')));
}

QTEST_GUILESS_MAIN(TstLimitValues)
#include "tst_limitvalues.moc"
