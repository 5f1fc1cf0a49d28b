#include "model/channelset.h"
#include "record/tables/blockcheck.h"
#include "record/tables/blockcolumns.h"
#include "record/tables/logcolumns.h"
#include "record/tables/recordevents.h"
#include "record/tables/recordoutput.h"
#include "unit/documentpage.h"

#include <QSet>
#include <QTest>

namespace {

QStringList names(const RecordTable &table)
{
    QStringList names;
    for (const RecordColumn &column : table.columns)
        names << QString::fromLatin1(column.name());
    return names;
}

QVector<RecordTable> allTables(int joinMode)
{
    return BlockColumns(joinMode, [](quint32) { return true; }).tables();
}

QStringList namesOf(int joinMode, const QByteArray &table)
{
    const auto tables = allTables(joinMode);
    for (const RecordTable &each : tables) {
        if (each.name == table)
            return names(each);
    }
    return {};
}

/// "Uh01 to Uh100" as a hundred names.
QStringList spelledOut(const QString &cell)
{
    static const QRegularExpression range(QStringLiteral("^([A-Za-z]+)(\\d+)(\\w*) to [A-Za-z]+(\\d+)\\w*$"));
    QStringList quantities;
    const QStringList parts = cell.split(QStringLiteral(", "));
    for (const QString &part : parts) {
        const auto match = range.match(part);
        if (!match.hasMatch()) {
            quantities << part;
            continue;
        }
        for (int order = match.captured(2).toInt(); order <= match.captured(4).toInt(); ++order)
            quantities << match.captured(1) + QStringLiteral("%1").arg(order, 2, 10, QLatin1Char('0'))
                    + match.captured(3);
    }
    return quantities;
}

QStringList channelsOf(const QString &word)
{
    if (word == QLatin1String("one"))
        return { QString() };
    const QStringList phases { "_L1", "_L2", "_L3" };
    if (word == QLatin1String("phases"))
        return phases;
    return phases + QStringList(word == QLatin1String("powers") ? "_total" : "_N");
}

} // namespace

/// Names and order of the columns.
class TstBlockColumns : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pageListsEveryColumnOfAFourWireRecording();
    void pageListsTheColumnsOfHappenings();
    void pageListsTheColumnsOfLoggers();
    void tablesComeInTheOrderOfTheList();
    void columnsOfAQuantityStandTogetherByStatisticThenChannel();
    void wiringWithoutStarPointNamesItsVoltagesBetweenLines();
    void wiringWithoutStarPointNamesEverythingElseByItsPhase_data();
    void wiringWithoutStarPointNamesEverythingElseByItsPhase();
    void channelThatTheWiringLacksHasNoColumn_data();
    void channelThatTheWiringLacksHasNoColumn();
    void onlyStatisticsThatWereStoredHaveColumns();
    void lengthsOfBlocksAreThoseOfTheFormatPage();
    void namesOfColumnsAreUniqueInEveryWiring();
    void everyTypeOfTheFormatHasAPlaceOfItsOwn();
};

/// Columns are made by the place of their table's name: none is tried while one is missing.
void TstBlockColumns::initTestCase()
{
    for (const BlockKind &kind : blockKinds())
        QVERIFY2(recordTableNames().contains(kind.table), kind.table);
}

void TstBlockColumns::pageListsEveryColumnOfAFourWireRecording()
{
    const DocumentPage page(QStringLiteral("formats/tables.md"));
    QHash<QString, QSet<QString>> listed;
    const auto rows = page.table(QStringLiteral("## Columns"));
    for (const QStringList &row : rows) {
        const QStringList quantities = spelledOut(row.at(1));
        const QStringList statistics = row.at(3).split(QStringLiteral(", "));
        const QStringList channels = channelsOf(row.at(4));
        for (const QString &quantity : quantities) {
            for (const QString &statistic : statistics) {
                for (const QString &channel : channels)
                    listed[row.at(0)] << quantity
                            + (statistic == QLatin1String("none") ? QString() : QLatin1Char('_') + statistic) + channel
                            + (row.at(2).isEmpty() ? QString() : QLatin1Char('_') + row.at(2));
            }
        }
    }
    QHash<QString, QSet<QString>> made;
    const auto tables = allTables(1);
    for (const RecordTable &table : tables) {
        const QStringList columns = names(table);
        made[QString::fromLatin1(table.name)] = QSet<QString>(columns.begin(), columns.end());
    }
    QStringList tableNames = listed.keys();
    QCOMPARE(tableNames.size(), made.size());
    for (const QString &table : qAsConst(tableNames)) {
        QCOMPARE((made.value(table) - listed.value(table)).values(), QStringList());
        QCOMPARE((listed.value(table) - made.value(table)).values(), QStringList());
    }
}

void TstBlockColumns::pageListsTheColumnsOfHappenings()
{
    const DocumentPage page(QStringLiteral("formats/tables.md"));
    const auto rows = page.table(QStringLiteral("## Happenings"));
    QCOMPARE(rows.size(), 3);
    const RecordTable tables[] = { eventTable(), transientTable(), logTable() };
    for (int i = 0; i < 3; ++i)
        QCOMPARE(rows.at(i), QStringList({ QString::fromLatin1(tables[i].name), names(tables[i]).join(", ") }));
}

void TstBlockColumns::pageListsTheColumnsOfLoggers()
{
    // Names of the file, from the page of the logger's columns, in a row of the table each.
    const DocumentPage logger(QStringLiteral("formats/csv-logger.md"));
    std::vector<QByteArray> cells;
    const auto groups = logger.table(QStringLiteral("## Columns"));
    for (const QStringList &group : groups) {
        const bool isSpectrum = group.at(2).contains(QStringLiteral("orders"));
        const int first = group.at(2).contains(QStringLiteral("from 0")) ? 0 : 1;
        for (int order = first; order < (isSpectrum ? first + 100 : first + 1); ++order) {
            const QString name
                = group.at(1) + QStringLiteral(" L1") + (isSpectrum ? QStringLiteral(" %1'th").arg(order) : QString());
            const bool isLast = group.at(2).contains(QStringLiteral("last"));
            const QStringList statistics = isLast ? QStringList("") : QStringList { " AVG", " MAX", " MIN" };
            for (const QString &statistic : statistics)
                cells.push_back((name + statistic).toUtf8());
        }
    }
    const LogColumns columns(cells);
    QCOMPARE(columns.unknown(), 0);
    QSet<QString> made;
    for (const RecordTable &table : columns.tables()) {
        for (const QString &name : names(table))
            made << QString::fromLatin1(table.name) + QLatin1Char(' ') + name;
    }
    QSet<QString> listed;
    const auto rows = DocumentPage(QStringLiteral("formats/tables.md")).table(QStringLiteral("## Files of the logger"));
    for (const QStringList &row : rows) {
        for (const QString &quantity : spelledOut(row.at(1))) {
            for (const QString &statistic : row.at(3).split(QStringLiteral(", ")))
                listed << row.at(0) + QLatin1Char(' ') + quantity
                        + (statistic == QLatin1String("none") ? QString() : QLatin1Char('_') + statistic)
                        + QStringLiteral("_L1") + (row.at(2).isEmpty() ? QString() : QLatin1Char('_') + row.at(2));
        }
    }
    QCOMPARE((made - listed).values(), QStringList());
    QCOMPARE((listed - made).values(), QStringList());
}

void TstBlockColumns::tablesComeInTheOrderOfTheList()
{
    QVector<QByteArray> made;
    const auto tables = allTables(1);
    for (const RecordTable &table : tables)
        made << table.name;
    QCOMPARE(made + QVector<QByteArray>({ "events", "transients", "system_log" }), recordTableNames());
}

void TstBlockColumns::columnsOfAQuantityStandTogetherByStatisticThenChannel()
{
    QCOMPARE(namesOf(1, "frequency"), QStringList({ "f_mean_Hz", "f_max_Hz", "f_min_Hz" }));
    QCOMPARE(namesOf(1, "rms").mid(0, 9),
             QStringList({ "U_rms_mean_L1_V", "U_rms_mean_L2_V", "U_rms_mean_L3_V", "U_rms_mean_N_V", "U_rms_max_L1_V",
                           "U_rms_max_L2_V", "U_rms_max_L3_V", "U_rms_max_N_V", "U_rms_min_L1_V" }));
    QCOMPARE(namesOf(1, "power").mid(0, 4),
             QStringList({ "P_mean_L1_W", "P_mean_L2_W", "P_mean_L3_W", "P_mean_total_W" }));
}

void TstBlockColumns::wiringWithoutStarPointNamesItsVoltagesBetweenLines()
{
    QCOMPARE(namesOf(4, "rms").mid(0, 3), QStringList({ "U_rms_mean_L12_V", "U_rms_mean_L23_V", "U_rms_mean_L31_V" }));
    QVERIFY(namesOf(4, "rms").contains(QStringLiteral("I_rms_mean_L1_A")));
    QCOMPARE(namesOf(4, "flicker_pst"), QStringList({ "Pst_L12", "Pst_L23", "Pst_L31" }));
    QVERIFY(namesOf(4, "power").contains(QStringLiteral("P_mean_L1_W")));
}

void TstBlockColumns::wiringWithoutStarPointNamesEverythingElseByItsPhase_data()
{
    QTest::addColumn<int>("joinMode");
    for (const int joinMode : { 2, 4, 6, 8, 10 })
        QTest::newRow(channelSet(joinMode)->fullName) << joinMode;
}

/// In every table of the recorder and of the monitor.
void TstBlockColumns::wiringWithoutStarPointNamesEverythingElseByItsPhase()
{
    QFETCH(int, joinMode);
    const bool isSingle = joinMode == 6;
    const QStringList lines = isSingle ? QStringList("L12") : QStringList { "L12", "L23", "L31" };
    const QStringList phases = isSingle ? QStringList("L1") : QStringList { "L1", "L2", "L3" };
    static const QRegularExpression ofLines(QStringLiteral("^(U_|Uh|Uih|Pst|Plt)"));
    QMap<QString, QStringList> found; // by table, quantity and statistic
    for (const RecordTable &table : allTables(joinMode)) {
        for (const RecordColumn &column : table.columns) {
            if (!column.channel.isEmpty())
                found[QString::fromLatin1(table.name + ' ' + column.quantity + ' ')
                      + QString::number(int(column.statistic))]
                    << QString::fromLatin1(column.channel);
        }
    }
    for (auto each = found.cbegin(); each != found.cend(); ++each) {
        const QString table = each.key().section(QLatin1Char(' '), 0, 0);
        const bool hasTotal = (table == QLatin1String("power") || table == QLatin1String("energy")) && !isSingle;
        const QStringList expected = ofLines.match(each.key().section(QLatin1Char(' '), 1)).hasMatch()
            ? lines
            : phases + (hasTotal ? QStringList("total") : QStringList());
        QVERIFY2(each.value() == expected, qPrintable(each.key() + QLatin1Char(' ') + each.value().join(' ')));
    }
    for (const char *kind : { "rms I_rms 1", "harmonics_i Ih05 2", "interharmonics_i Iih05 3", "angles UI_angle_h05 1",
                              "monitor_harmonics I_distortion 0", "monitor_harmonics Ih50 0", "power P 1" })
        QVERIFY2(found.contains(QLatin1String(kind)), kind);
    for (const char *kind : { "rms U_rms 1", "harmonics_u Uh05 2", "interharmonics_u Uih05 3", "angles U_angle 1",
                              "monitor_harmonics U_distortion 0", "monitor_harmonics Uh50 0", "monitor_voltage U_rms 1",
                              "monitor_flicker_pst Pst 0", "flicker_plt Plt 0", "signalling U_signal1 1" })
        QVERIFY2(found.contains(QLatin1String(kind)), kind);
}

void TstBlockColumns::channelThatTheWiringLacksHasNoColumn_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<QStringList>("voltages");
    QTest::addColumn<QStringList>("powers");
    QTest::newRow("1P +NEUTRAL") << 3 << QStringList { "L1", "N" } << QStringList { "L1", "total" };
    QTest::newRow("1P SPLIT PHASE") << 5 << QStringList { "L1", "L2", "N" } << QStringList { "L1", "L2", "total" };
    QTest::newRow("1P IT NO NEUTRAL") << 6 << QStringList { "L12" } << QStringList { "L1" };
    QTest::newRow("3P DELTA") << 4 << QStringList { "L12", "L23", "L31" } << QStringList { "L1", "L2", "L3", "total" };
    QTest::newRow("2.5-ELEMENT") << 9 << QStringList { "L1", "L2", "L3", "N" }
                                 << QStringList { "L1", "L2", "L3", "total" };
}

void TstBlockColumns::channelThatTheWiringLacksHasNoColumn()
{
    QFETCH(int, joinMode);
    QFETCH(QStringList, voltages);
    QFETCH(QStringList, powers);
    const auto channels = [joinMode](const QByteArray &table, const QString &stem) {
        QStringList found;
        for (const QString &name : namesOf(joinMode, table)) {
            if (name.startsWith(stem))
                found << name.mid(stem.size()).section(QLatin1Char('_'), 0, 0);
        }
        return found;
    };
    QCOMPARE(channels("rms", QStringLiteral("U_rms_mean_")), voltages);
    QCOMPARE(channels("harmonics_u", QStringLiteral("Uh05_max_")), voltages);
    QCOMPARE(channels("power", QStringLiteral("P_mean_")), powers);
    QCOMPARE(channels("energy", QStringLiteral("EP_")), powers);
    QStringList phases = powers; // three values are stored of flicker in any wiring
    phases.removeAll(QStringLiteral("total"));
    QCOMPARE(channels("flicker_plt", QStringLiteral("Plt_")).size(), phases.size());
    QCOMPARE(channels("monitor_voltage", QStringLiteral("U_rms_mean_")).size(), phases.size());
}

void TstBlockColumns::onlyStatisticsThatWereStoredHaveColumns()
{
    const BlockColumns columns(1, [](quint32 type) { return type == 0xA1000029 || type == 0xA10000A4; });
    QCOMPARE(columns.tables().size(), 1);
    QCOMPARE(names(columns.tables().at(0)), QStringList({ "f_mean_Hz", "f_min_Hz" }));
}

void TstBlockColumns::lengthsOfBlocksAreThoseOfTheFormatPage()
{
    const auto rows = DocumentPage(QStringLiteral("formats/recorder.md")).table(QStringLiteral("## Channels"));
    QCOMPARE(rows.size(), 4);
    for (const QStringList &row : rows) {
        for (const QString &wiring : row.at(0).split(QStringLiteral(", "))) {
            QCOMPARE(blockBytes(*blockKindsOf(0xA1000020).begin(), wiring.toInt()), row.at(2).toInt());
            QCOMPARE(blockBytes(*blockKindsOf(0xA1000021).begin(), wiring.toInt()), row.at(3).toInt());
            QCOMPARE(blockBytes(*blockKindsOf(0xA1000037).begin(), wiring.toInt()), row.at(4).toInt());
        }
    }
}

void TstBlockColumns::namesOfColumnsAreUniqueInEveryWiring()
{
    for (int joinMode = 0; joinMode <= 10; ++joinMode) {
        const auto tables = allTables(joinMode);
        for (const RecordTable &table : tables) {
            const QStringList columns = names(table);
            QCOMPARE(QSet<QString>(columns.begin(), columns.end()).size(), columns.size());
        }
    }
}

void TstBlockColumns::everyTypeOfTheFormatHasAPlaceOfItsOwn()
{
    QSet<int> places;
    for (const quint32 stretch : { 0xA1000000U, 0xA1001000U, 0xA1010000U }) {
        for (quint32 type = stretch; type < stretch + 256; ++type)
            places << BlockCheck::placeOf(type);
    }
    QCOMPARE(places.size(), 3 * 256);
    QVERIFY(!places.contains(BlockCheck::kOtherPlace));
    for (const quint32 foreign : { 0x00000000U, 0x00000020U, 0xA1000120U, 0xA1011000U, 0xFFFFFFFFU })
        QCOMPARE(BlockCheck::placeOf(foreign), int(BlockCheck::kOtherPlace));
}

QTEST_APPLESS_MAIN(TstBlockColumns)
#include "tst_blockcolumns.moc"
