#include "model/channelset.h"
#include "record/loggercolumns.h"
#include "unit/documentpage.h"

#include <QTest>

#include <cstring>
#include <limits>
#include <memory>

namespace {

std::unique_ptr<loggerdata_origin> zeros()
{
    auto origin = std::make_unique<loggerdata_origin>();
    std::memset(static_cast<void *>(origin.get()), 0, sizeof *origin);
    return origin;
}

DisplayUnits kiloUnits()
{
    DisplayUnits units;
    units.factorVolt = units.factorAmpere = units.factorWatt = units.factorWattHour = 0.001;
    units.volt = "kV";
    units.ampere = "kA";
    units.watt = "kW";
    units.voltAmpere = "kVA";
    units.var = "kvar";
    units.wattHour = "kWh";
    units.voltAmpereHour = "kVAh";
    units.varHour = "kvarh";
    return units;
}

LoggerColumns columns(quint32 selected, int joinMode = 1, int orders = 100, const DisplayUnits &units = {})
{
    return LoggerColumns(selected, *channelSet(joinMode), orders, units);
}

/// The line of a single moment.
QStringList values(const LoggerColumns &columns, const loggerdata_origin &origin)
{
    std::vector<logger_value> kept(std::size_t(columns.count()));
    columns.calculateLoggerData(origin, 0, &kept);
    QStringList cells = QString::fromLatin1(columns.line(kept, 1)).split(',');
    cells.removeLast(); // behind the last comma
    return cells;
}

/// "name L1 AVG,name L1 MAX,name L1 MIN," for each label.
QString triples(const QString &name, const QStringList &labels)
{
    QString text;
    for (const QString &label : labels) {
        for (const char *statistic : { "AVG", "MAX", "MIN" })
            text += QStringLiteral("%1 %2 %3,").arg(name, label, QLatin1String(statistic));
    }
    return text;
}

} // namespace

/// Columns of the logger's files: their names, and what stands below.
class TstLoggerColumns : public QObject
{
    Q_OBJECT

private slots:
    void headerOfAFourWireStar();
    void labelsFollowTheWiring_data();
    void labelsFollowTheWiring();
    void namesOfEveryGroup_data();
    void namesOfEveryGroup();
    void spectraHaveThreeColumnsForEachOrder();
    void ordersAt400HzEndWithTheThirteenth();
    void unitsAreThoseInUse();
    void groupsFollowInTheOrderOfTheirBits();
    void headerAndLineHaveTheSameColumns_data();
    void headerAndLineHaveTheSameColumns();

    void valueOfEveryGroup_data();
    void valueOfEveryGroup();
    void everyChannelHasItsPlace();
    void meanAndExtremesOfAnInterval();
    void countersAndSeveritiesAreTheLastOfTheInterval();
    void intervalWithoutAMomentIsZeros();
    void smallAndWildNumbersAreZero_data();
    void smallAndWildNumbersAreZero();
    void aTenthOfAThousandthIsNotBelowIt();
    void distortionWithoutAFundamentalIsZero();
    void formatPageTellsTheGroups();
};

void TstLoggerColumns::headerOfAFourWireStar()
{
    QCOMPARE(columns(0x1 | 0x200000).header(),
             QStringLiteral("TIME,VRMS(V) L1 AVG,VRMS(V) L1 MAX,VRMS(V) L1 MIN,VRMS(V) L2 AVG,VRMS(V) L2 MAX,"
                            "VRMS(V) L2 MIN,VRMS(V) L3 AVG,VRMS(V) L3 MAX,VRMS(V) L3 MIN,VRMS(V) N AVG,VRMS(V) N MAX,"
                            "VRMS(V) N MIN,FREQ AVG,FREQ MAX,FREQ MIN,"));
    QCOMPARE(columns(0).header(), QStringLiteral("TIME,"));
}

void TstLoggerColumns::labelsFollowTheWiring_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<QStringList>("channels");
    QTest::addColumn<QStringList>("rows");
    const QStringList three { "L1", "L2", "L3" }, threeAndAll { "L1", "L2", "L3", "ALL" };
    for (int mode : { 1, 7, 9 })
        QTest::addRow("star %d", mode) << mode << QStringList { "L1", "L2", "L3", "N" } << threeAndAll;
    for (int mode : { 2, 4, 8, 10 })
        QTest::addRow("delta %d", mode) << mode << three << threeAndAll;
    QTest::newRow("one phase and neutral") << 3 << QStringList { "L1", "N" } << QStringList { "L1", "ALL" };
    QTest::newRow("split phase") << 5 << QStringList { "L1", "L2", "N" } << QStringList { "L1", "L2", "ALL" };
    QTest::newRow("one phase") << 6 << QStringList { "L1" } << QStringList { "L1", "ALL" };
}

void TstLoggerColumns::labelsFollowTheWiring()
{
    QFETCH(int, joinMode);
    QFETCH(QStringList, channels);
    QFETCH(QStringList, rows);
    QCOMPARE(columns(0x40, joinMode).header(), "TIME," + triples("IRMS(A)", channels));
    QCOMPARE(columns(0x8000, joinMode).header(), "TIME," + triples("PF", rows));
    QString counters = "TIME,";
    for (const QString &row : rows)
        counters += "EnergyP(Wh) " + row + ",";
    QCOMPARE(columns(0x40000, joinMode).header(), counters);
}

void TstLoggerColumns::namesOfEveryGroup_data()
{
    QTest::addColumn<quint32>("bit");
    QTest::addColumn<QString>("header");
    const auto row = [](quint32 bit, const QString &header) { QTest::addRow("bit %x", bit) << bit << header; };
    const QStringList all { "L1", "L2", "L3", "N" }, rows { "L1", "L2", "L3", "ALL" };
    row(0x1, triples("VRMS(V)", all));
    row(0x2, triples("VCF", all));
    row(0x4, triples("VTHD", all));
    row(0x8, "VNEG AVG,VNEG MAX,VNEG MIN,");
    row(0x10, "VZERO AVG,VZERO MAX,VZERO MIN,");
    row(0x20, triples("VDC(V)", all));
    row(0x40, triples("IRMS(A)", all));
    row(0x80, triples("ICF", all));
    row(0x100, triples("ITHD", all));
    row(0x200, "INEG AVG,INEG MAX,INEG MIN,");
    row(0x400, "IZERO AVG,IZERO MAX,IZERO MIN,");
    row(0x800, triples("IDC(A)", all));
    row(0x1000, triples("P(W)", rows));
    row(0x2000, triples("S(VA)", rows));
    row(0x4000, triples("Q(var)", rows));
    row(0x8000, triples("PF", rows));
    row(0x10000, triples("cosΦ", { "L1", "L2", "L3" }));
    row(0x20000, triples("tanΦ", rows));
    row(0x40000, "EnergyP(Wh) L1,EnergyP(Wh) L2,EnergyP(Wh) L3,EnergyP(Wh) ALL,");
    row(0x80000, "EnergyS(VAh) L1,EnergyS(VAh) L2,EnergyS(VAh) L3,EnergyS(VAh) ALL,");
    row(0x100000, "EnergyQ(varh) L1,EnergyQ(varh) L2,EnergyQ(varh) L3,EnergyQ(varh) ALL,");
    row(0x200000, "FREQ AVG,FREQ MAX,FREQ MIN,");
    row(0x10000000, "PST L1,PST L2,PST L3,");
}

void TstLoggerColumns::namesOfEveryGroup()
{
    QFETCH(quint32, bit);
    QFETCH(QString, header);
    QCOMPARE(columns(bit).header(), "TIME," + header);
}

void TstLoggerColumns::spectraHaveThreeColumnsForEachOrder()
{
    const struct
    {
        quint32 bit;
        const char *name;
        int first, last;
    } spectra[] = { { 0x400000, "VHarmonic", 1, 100 },      { 0x800000, "IHarmonic", 1, 100 },
                    { 0x1000000, "VInterHarmonic", 0, 99 }, { 0x2000000, "IInterHarmonic", 0, 99 },
                    { 0x4000000, "VHarmΦ", 1, 100 },        { 0x8000000, "IHarmΦ", 1, 100 } };
    for (const auto &spectrum : spectra) {
        QString expected = "TIME,";
        for (const char *channel : { "L1", "N" }) {
            for (int order = spectrum.first; order <= spectrum.last; ++order) {
                const QString name = QStringLiteral("%1 %2 %3'th").arg(spectrum.name, channel).arg(order);
                expected += name + " AVG," + name + " MAX," + name + " MIN,";
            }
        }
        QCOMPARE(columns(spectrum.bit, 3).header(), expected);
    }
}

void TstLoggerColumns::ordersAt400HzEndWithTheThirteenth()
{
    const QString harmonics = columns(0x400000, 6, 13).header();
    QVERIFY(harmonics.endsWith("VHarmonic L1 13'th AVG,VHarmonic L1 13'th MAX,VHarmonic L1 13'th MIN,"));
    QVERIFY(harmonics.startsWith("TIME,VHarmonic L1 1'th AVG,"));
    const QString between = columns(0x1000000, 6, 13).header();
    QVERIFY(between.startsWith("TIME,VInterHarmonic L1 0'th AVG,"));
    QVERIFY(between.endsWith("VInterHarmonic L1 12'th MIN,"));
    QCOMPARE(columns(0x400000, 6, 1000).count(), 100); // a record has no more
    QCOMPARE(columns(0x400000, 6, -5).count(), 0);
}

void TstLoggerColumns::unitsAreThoseInUse()
{
    const LoggerColumns kilo
        = columns(0x1 | 0x20 | 0x40 | 0x800 | 0x1000 | 0x2000 | 0x4000 | 0x40000, 6, 100, kiloUnits());
    for (const char *name : { "VRMS(kV) L1 AVG,", "VDC(kV) L1 AVG,", "IRMS(kA) L1 AVG,", "IDC(kA) L1 AVG,",
                              "P(kW) L1 AVG,", "S(kVA) L1 AVG,", "Q(kvar) L1 AVG,", "EnergyP(kWh) L1," })
        QVERIFY2(kilo.header().contains(name), name);
    auto origin = zeros();
    origin->aggregation.channel[0].voltage = 12345;
    origin->aggregation.power[0].active = 2500;
    QCOMPARE(values(columns(0x1, 6, 100, kiloUnits()), *origin).value(0), QString("12.345"));
    QCOMPARE(values(columns(0x1000, 6, 100, kiloUnits()), *origin).value(0), QString("2.500"));
}

void TstLoggerColumns::groupsFollowInTheOrderOfTheirBits()
{
    const auto &groups = LoggerColumns::groups();
    QCOMPARE(int(groups.size()), 29);
    for (std::size_t i = 0; i < groups.size(); ++i)
        QCOMPARE(groups[i].bit, 1u << i);
    const QString header = columns(0xFFFFFFFF, 6, 2).header();
    int place = 0;
    for (const auto &group : groups) {
        const int found = header.indexOf(',' + QString::fromUtf8(group.name), place);
        QVERIFY2(found >= place, group.name);
        place = found + 1;
    }
}

void TstLoggerColumns::headerAndLineHaveTheSameColumns_data()
{
    QTest::addColumn<int>("joinMode");
    for (int mode = 1; mode <= 10; ++mode)
        QTest::addRow("wiring %d", mode) << mode;
}

void TstLoggerColumns::headerAndLineHaveTheSameColumns()
{
    QFETCH(int, joinMode);
    for (int bit = 0; bit < 29; ++bit) {
        const LoggerColumns group = columns(1u << bit, joinMode);
        QCOMPARE(group.header().count(','), 1 + values(group, *zeros()).size());
    }
    const LoggerColumns all = columns(0x1FFFFFFF, joinMode);
    const QStringList names = all.header().split(',');
    QCOMPARE(names.size() - 2, values(all, *zeros()).size());
    QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), names.size()); // no name twice
}

void TstLoggerColumns::valueOfEveryGroup_data()
{
    QTest::addColumn<quint32>("bit");
    QTest::addColumn<QString>("first"); // column of L1
    const auto row = [](quint32 bit, const char *first) { QTest::addRow("bit %x", bit) << bit << QString(first); };
    row(0x1, "230.125");
    row(0x2, "1.41");
    row(0x4, "5.00"); // 11.5 V of 230 V
    row(0x8, "1.25");
    row(0x10, "0.75");
    row(0x20, "-0.50");
    row(0x40, "12.375");
    row(0x80, "1.60");
    row(0x100, "25.00"); // 3 A of 12 A
    row(0x200, "2.50");
    row(0x400, "3.50");
    row(0x800, "0.25");
    row(0x1000, "2000.500");
    row(0x2000, "2500.250");
    row(0x4000, "-1500.125");
    row(0x8000, "0.80");
    row(0x10000, "0.85");
    row(0x20000, "-0.75");
    row(0x40000, "1234.500");
    row(0x80000, "1500.250");
    row(0x100000, "-600.125");
    row(0x200000, "49.987");
    row(0x400000, "230.00");
    row(0x800000, "12.00");
    row(0x1000000, "0.40");
    row(0x2000000, "0.30");
    row(0x4000000, "-90.00"); // half a right angle is pi / 4 radians
    row(0x8000000, "45.00");
    row(0x10000000, "0.62");
}

void TstLoggerColumns::valueOfEveryGroup()
{
    QFETCH(quint32, bit);
    QFETCH(QString, first);
    const auto origin = zeros();
    __datagram_aggregation &record = origin->aggregation;
    record.frequency = -49.987f; // the sign tells the lock
    record.channel[0] = { 230.125f, 325, -0.5f, 1.41f, 12.375f, 20, 0.25f, 1.6f, 0, 0, 0, 0, 0 };
    record.power[0] = { 2000.5f, 2500.25f, -1500.125f, 0.8f, 0.85f, -0.75f };
    record.energy[0] = { 1234.5, 1500.25, -600.125 };
    record.voltageSequence = { 230, 3, 1.25f, 2, 0.75f };
    record.currentSequence = { 12, 1, 2.5f, 1, 3.5f };
    ChannelSpectrum &spectrum = record.spectrum[0];
    spectrum.voltageDistortion = 11.5f;
    spectrum.currentDistortion = 3;
    spectrum.voltage[0] = { 230, 50, -1.5707963f };
    spectrum.current[0] = { 12, 50, 0.78539816f };
    spectrum.voltageInter[0].magnitude = 0.4f;
    spectrum.currentInter[0].magnitude = 0.3f;
    origin->pst[0] = 0.62f;
    QCOMPARE(values(columns(bit), *origin).value(0), first);
}

void TstLoggerColumns::everyChannelHasItsPlace()
{
    const auto origin = zeros();
    for (int c = 0; c < 4; ++c) {
        origin->aggregation.channel[c].voltage = float(c + 1);
        origin->aggregation.power[c].active = float(10 * (c + 1));
        for (int h = 0; h < 100; ++h) {
            origin->aggregation.spectrum[c].voltage[h].magnitude = float(1000 * (c + 1) + h + 1); // order h + 1
            origin->aggregation.spectrum[c].currentInter[h].magnitude = float(1000 * (c + 1) + h);
        }
    }
    const auto averages = [&origin](quint32 bit, int joinMode) {
        QStringList found;
        const QStringList cells = values(columns(bit, joinMode), *origin);
        for (int i = 0; i < cells.size(); i += 3)
            found << cells[i];
        return found;
    };
    QCOMPARE(averages(0x1, 1), QStringList({ "1.000", "2.000", "3.000", "4.000" }));
    QCOMPARE(averages(0x1, 3), QStringList({ "1.000", "4.000" }));
    QCOMPARE(averages(0x1, 5), QStringList({ "1.000", "2.000", "4.000" }));
    QCOMPARE(averages(0x1000, 5), QStringList({ "10.000", "20.000", "40.000" })); // the last is the total
    const QStringList harmonics = averages(0x400000, 3), between = averages(0x2000000, 3);
    QCOMPARE(harmonics.size(), 200);
    for (int i = 0; i < 200; ++i) {
        const int channel = i < 100 ? 1 : 4; // L1, N
        QCOMPARE(harmonics[i], QStringLiteral("%1.00").arg(1000 * channel + i % 100 + 1));
        QCOMPARE(between[i], QStringLiteral("%1.00").arg(1000 * channel + i % 100));
    }
}

void TstLoggerColumns::meanAndExtremesOfAnInterval()
{
    const LoggerColumns rms = columns(0x1 | 0x20, 6);
    std::vector<logger_value> kept(std::size_t(rms.count()));
    const auto origin = zeros();
    int samples = 0;
    for (float volts : { 230.0f, 228.5f, 233.5f, 232.0f }) {
        origin->aggregation.channel[0].voltage = volts;
        origin->aggregation.channel[0].voltageOffset = -volts; // extremes below zero
        rms.calculateLoggerData(*origin, samples++, &kept);
    }
    QCOMPARE(rms.line(kept, samples), QByteArray("231.000,233.500,228.500,-231.00,-228.50,-233.50,"));
}

void TstLoggerColumns::countersAndSeveritiesAreTheLastOfTheInterval()
{
    const LoggerColumns counters = columns(0x40000 | 0x10000000, 6);
    std::vector<logger_value> kept(std::size_t(counters.count()));
    const auto origin = zeros();
    for (int i = 0; i < 3; ++i) {
        origin->aggregation.energy[0].active = origin->aggregation.energy[3].active = 100.5 * (i + 1);
        origin->pst[0] = 0.5f * float(i);
        origin->pst[2] = 0.25f;
        counters.calculateLoggerData(*origin, i, &kept);
    }
    QCOMPARE(counters.line(kept, 3), QByteArray("301.500,301.500,1.00,0.00,0.25,"));
}

void TstLoggerColumns::intervalWithoutAMomentIsZeros()
{
    const LoggerColumns all = columns(0x1FFFFFFF, 3, 2);
    const std::vector<logger_value> none(std::size_t(all.count()));
    for (const QByteArray &cell : all.line(none, 0).split(',')) {
        if (!cell.isEmpty())
            QVERIFY2(cell == "0.000" || cell == "0.00", cell.constData());
    }
    QCOMPARE(columns(0x1, 6).line(std::vector<logger_value>(1), 0), QByteArray("0.000,0.000,0.000,"));
}

void TstLoggerColumns::smallAndWildNumbersAreZero_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("below 0.0001") << 0.00009f << QByteArray("0.000,0.000,0.000,");
    QTest::newRow("below 0.0001, negative") << -0.00009f << QByteArray("0.000,0.000,0.000,");
    QTest::newRow("above it") << 0.0006f << QByteArray("0.001,0.001,0.001,");
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << QByteArray("0.000,0.000,0.000,");
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << QByteArray("0.000,0.000,0.000,");
    QTest::newRow("the largest number") << std::numeric_limits<float>::max() << QByteArray();
}

void TstLoggerColumns::aTenthOfAThousandthIsNotBelowIt()
{
    QCOMPARE(LoggerColumns::cleaned(0.0001), 0.0001);
    QCOMPARE(LoggerColumns::cleaned(-0.0001), -0.0001);
    QCOMPARE(LoggerColumns::cleaned(0.00009999), 0.0);
}

void TstLoggerColumns::smallAndWildNumbersAreZero()
{
    QFETCH(float, value);
    QFETCH(QByteArray, text);
    const auto origin = zeros();
    origin->aggregation.channel[0].voltage = value;
    const LoggerColumns rms = columns(0x1, 6);
    std::vector<logger_value> kept(std::size_t(rms.count()));
    rms.calculateLoggerData(*origin, 0, &kept);
    const QByteArray line = rms.line(kept, 1);
    if (text.isEmpty())
        QCOMPARE(line.count(','), 3); // whatever its length
    else
        QCOMPARE(line, text);
}

void TstLoggerColumns::distortionWithoutAFundamentalIsZero()
{
    const auto origin = zeros();
    origin->aggregation.spectrum[0].voltageDistortion = 3;
    QCOMPARE(values(columns(0x4, 6), *origin).value(0), QString("0.00"));
}

void TstLoggerColumns::formatPageTellsTheGroups()
{
    const DocumentPage page(QStringLiteral("formats/csv-logger.md"));
    const QVector<QStringList> rows = page.table(QStringLiteral("## Columns"));
    const auto &groups = LoggerColumns::groups();
    QCOMPARE(rows.size(), int(groups.size()));
    static const char *const layouts[] = {
        "channels", "phases, ALL", "phases", "one", "phases, ALL; last", "channels x orders", "three phases; last"
    };
    for (int i = 0; i < rows.size(); ++i) {
        const LoggerColumns::Group &group = groups[std::size_t(i)];
        QStringList expected { "0x" + QString::number(group.bit, 16).toUpper(), QString::fromUtf8(group.name),
                               layouts[group.layout], QString::number(group.decimals) };
        if (group.layout == LoggerColumns::Orders)
            expected[2] += group.firstOrder ? " from 1" : " from 0";
        QCOMPARE(rows[i].mid(0, 4), expected);
        QCOMPARE(rows[i].value(4).startsWith("unit"), group.unit != nullptr);
    }
}

QTEST_APPLESS_MAIN(TstLoggerColumns)
#include "tst_loggercolumns.moc"
