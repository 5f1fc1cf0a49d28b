// The examples of docs/examples that work on exported tables, on recordings whose answers are known.
#include "record/exports/csvexport.h"
#include "record/exports/sqliteexport.h"
#include "record/tables/recordevents.h"
#include "record/tables/recordsource.h"
#include "testpaths.h"
#include "unit/record/exportfeed.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using namespace ExportFeed;

namespace {

constexpr qint64 kStart = 1705593600000; // 2024-01-18T16:00:00Z
constexpr qint64 kMinute = 60000; // ms
constexpr qint64 kHour = 60 * kMinute;
constexpr qint64 kDay = 24 * kHour;
const char *const kPhases[] = { "L1", "L2", "L3" };

/// Forty means of ten minutes, two missing behind the twentieth. L1 climbs from 210 V by one volt each; L2 is at 230 V
/// and once at 200 V; L3 is too high for the first nineteen.
bool feedVoltages(RecordSink *sink, int number)
{
    RecordTable table { "rms", {} };
    for (const Statistic statistic : { Statistic::Mean, Statistic::Maximum, Statistic::Minimum }) {
        for (const char *phase : kPhases)
            table.columns.append(column("U_rms", statistic, phase, "V"));
    }
    bool isGood = sink->table(number, table);
    for (int i = 0; i < 42; ++i) {
        if (i == 20 || i == 21)
            continue;
        const double l1 = 210 + i, l2 = i == 5 ? 200 : i == 7 ? 231 : 230, l3 = i < 19 ? (i == 3 ? 261 : 260) : 230;
        isGood = isGood
            && row(sink, number, kStart + i * 10 * kMinute,
                   { l1, l2, l3, l1 + 2, l2 + 2, l3 + 2, l1 - 1, l2 - 1, i == 30 ? 228 : l3 - 1 });
    }
    return isGood;
}

/// From 18:00 on an hour of three times the power.
bool feedPower(RecordSink *sink, int number)
{
    bool isGood = sink->table(
        number,
        { "power", { column("P", Statistic::Mean, "total", "W"), column("P", Statistic::Maximum, "total", "W") } });
    for (int i = 0; i < 42; ++i) {
        const bool isHigh = i >= 12 && i < 18;
        isGood = isGood
            && row(sink, number, kStart + i * 10 * kMinute, { isHigh ? 3000.0 : 1000.0, i == 15 ? 3500.0 : 1100.0 });
    }
    return isGood;
}

/// A counter over midnight.
bool feedEnergy(RecordSink *sink, int number)
{
    return sink->table(number, { "energy", { column("EP", Statistic::None, "total", "Wh", CellType::Double) } })
        && row(sink, number, kStart + 6 * kHour, { 100 }) && row(sink, number, kStart + 7 * kHour, { 250 })
        && row(sink, number, kStart + 8 * kHour, { 300 }) && row(sink, number, kStart + 9 * kHour, { 700 });
}

bool feedHarmonics(RecordSink *sink, int number)
{
    RecordTable table { "harmonics_u", { column("Uh01", Statistic::Mean, "L1", "V") } };
    for (const char *line : { "Uh03", "Uh05", "Uh07", "Uh11", "Uh13" })
        table.columns.append(column(line, Statistic::Maximum, "L1", "V"));
    return sink->table(number, table) && row(sink, number, kStart, { 230, 4.6, 2.3, 2.3, 1.15, 0.575 })
        && row(sink, number, kStart + kMinute, { 115, 1, 5.75, 1, 0.5, 0.25 });
}

bool feedEvents(RecordSink *sink, int number)
{
    const struct
    {
        int kind, channel, duration;
        float value;
        int minute;
    } events[] = {
        { EventDip, 0, 200, 161, 3 },
        { EventDip, 1, 500, 115, 5 },
        { EventInterruption, 2, 1500, 2.5f, 7 },
        { EventSwell, 0, 100, 260, 9 },
    };
    bool isGood = sink->table(number, eventTable());
    int count = 0;
    for (const auto &e : events) {
        RecordedEvent event;
        event.number = ++count;
        event.item.type = e.kind;
        event.item.channel = e.channel;
        event.item.value = e.value;
        event.item.finished = 1;
        event.item.startTime = kStart + e.minute * kMinute;
        event.item.endTime = event.item.startTime + e.duration;
        const EventCells cells = eventCells(event, 1);
        isGood = isGood && row(sink, number, event.item.startTime, cells.numbers, cells.texts);
    }
    return isGood;
}

/// Frequencies of two weeks.
bool feedFrequencies(RecordSink *sink, int number)
{
    return sink->table(number,
                       { "frequency",
                         { column("f", Statistic::Maximum, "", "Hz"), column("f", Statistic::Minimum, "", "Hz") } })
        && row(sink, number, kStart, { 50.0625, 49.9375 }) && row(sink, number, kStart + kMinute, { kNone, kNone })
        && row(sink, number, kStart + 8 * kDay, { 50.5, 49.5 })
        && row(sink, number, kStart + 9 * kDay, { 50.25, 49.75 });
}

} // namespace

class TstTableExamples : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void tenQuestionsAreAnswered_data();
    void tenQuestionsAreAnswered();
    void questionsOfATableThatIsMissingDoNotStopTheOthers();
    void worstValuesOfEachWeekAreFound();
    void weeksCountFromTheFirstValueWhateverHappenedBefore();
    void worstValuesOfAMonitorComeFromItsOwnTables();
    void worstValuesOfALoggersFile();
    void folderWithoutTablesIsSaidToBeOne();

private:
    QString at(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    static QString example(const char *name)
    {
        return QStringLiteral(QUVERA_SOURCE_DIR "/docs/examples/") + QLatin1String(name);
    }
    QByteArray said(const QString &program, const QStringList &arguments, const QByteArray &input = {})
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        process.write(input);
        process.closeWriteChannel();
        if (!process.waitForFinished(300000))
            return "failed: " + process.errorString().toUtf8();
        m_status = process.exitCode();
        return process.readAll();
    }
    QByteArray worstOf(const QString &folder) { return said("python3", { example("worst_of_week.py"), folder }); }

    QTemporaryDir m_folder;
    int m_status = 0; // of the last program
};

void TstTableExamples::initTestCase()
{
    SqliteExport sqlite({ at("week.db"), QString(), false });
    CsvExport csv({ at("week"), QString(), false });
    for (RecordSink *sink : { static_cast<RecordSink *>(&sqlite), static_cast<RecordSink *>(&csv) }) {
        QVERIFY2(sink->begin(facts()) && feedVoltages(sink, 0) && feedPower(sink, 1) && feedEnergy(sink, 2)
                     && feedHarmonics(sink, 3) && feedEvents(sink, 4) && feedFrequencies(sink, 5) && sink->end(facts()),
                 qPrintable(sink->error()));
    }
}

void TstTableExamples::tenQuestionsAreAnswered_data()
{
    QTest::addColumn<QByteArray>("answer");
    const struct
    {
        const char *name, *answer;
    } rows[] = {
        { "1",
          "recording|2020-09-13T12:26:40.000Z|2020-09-13T12:36:40.000Z|PQ \"9\", mark=2|1AA 0,0=7|2.2.6|230.0|50.0\n" },
        { "2",
          "L1|209.0|2024-01-18T16:00:00.000Z|253.0|2024-01-18T22:50:00.000Z\n"
          "L2|199.0|2024-01-18T16:50:00.000Z|233.0|2024-01-18T17:10:00.000Z\n"
          "L3|228.0|2024-01-18T21:00:00.000Z|263.0|2024-01-18T16:30:00.000Z\n" },
        { "3", "0.0|2.5|47.5\n" },
        { "4", "211.0|250.0\n" }, // of forty, one at each end is left out
        { "5", "2024-01-18 18:00|3000.0|3500.0\n" },
        { "6", "2024-01-18|250.0\n2024-01-19|450.0\n" },
        { "7", "dip|2|115.0|161.0|V\ninterruption|1|2.5|2.5|V\nswell|1|260.0|260.0|V\n" },
        { "8",
          "2024-01-18T16:07:00.000Z|L3|interruption|1.1|1500\n2024-01-18T16:05:00.000Z|L2|dip|50.0|500\n"
          "2024-01-18T16:03:00.000Z|L1|dip|70.0|200\n" },
        { "9", "2.0|5.0|1.0|0.5|0.25\n" },
        { "10", "2024-01-18T19:10:00.000Z|2024-01-18T19:40:00.000Z|1800.0\n" },
    };
    for (const auto &row : rows)
        QTest::newRow(row.name) << QByteArray(row.answer);
}

void TstTableExamples::tenQuestionsAreAnswered()
{
    QFETCH(QByteArray, answer);
    const QString text = QString::fromUtf8(contentOf(example("questions.sql")));
    const QStringList questions = text.split(QRegularExpression(QStringLiteral("\n-- (?=\\d+\\. )")));
    QCOMPARE(questions.size(), 11); // what stands in front of the first counts as one
    const int number = QByteArray(QTest::currentDataTag()).toInt();
    const QString question = QStringLiteral("-- ") + questions.at(number);
    QVERIFY(question.startsWith(QStringLiteral("-- %1. ").arg(number)));
    QCOMPARE(said("sqlite3", { "-batch", at("week.db") }, question.toUtf8()), answer);
    QCOMPARE(m_status, 0);
}

void TstTableExamples::questionsOfATableThatIsMissingDoNotStopTheOthers()
{
    SqliteExport sqlite({ at("few.db"), QString(), true });
    QVERIFY(sqlite.begin(facts()) && feedEnergy(&sqlite, 0) && sqlite.end(facts()));
    const QByteArray found = said("sqlite3", { "-batch", at("few.db") }, contentOf(example("questions.sql")));
    QVERIFY2(found.contains("no such table: rms"), found);
    QVERIFY2(found.contains("2024-01-18|250.0\n2024-01-19|450.0\n"), found);
}

void TstTableExamples::worstValuesOfEachWeekAreFound()
{
    QCOMPARE(worstOf(at("week")),
             QByteArray("Week from 2024-01-18 16:00\n"
                        "  voltage, lowest            L1             209 V   2024-01-18 16:00:00\n"
                        "  voltage, lowest            L2             199 V   2024-01-18 16:50:00\n"
                        "  voltage, lowest            L3             228 V   2024-01-18 21:00:00\n"
                        "  voltage, highest           L1             253 V   2024-01-18 22:50:00\n"
                        "  voltage, highest           L2             233 V   2024-01-18 17:10:00\n"
                        "  voltage, highest           L3             263 V   2024-01-18 16:30:00\n"
                        "  frequency, lowest                     49.9375 Hz  2024-01-18 16:00:00\n"
                        "  frequency, highest                    50.0625 Hz  2024-01-18 16:00:00\n"
                        "  active power, highest                    3500 W   2024-01-18 18:30:00\n"
                        "  2 x dip, 115 to 161 V\n"
                        "  1 x interruption, 2.5 to 2.5 V\n"
                        "  1 x swell, 260 to 260 V\n"
                        "Week from 2024-01-25 16:00\n"
                        "  frequency, lowest                        49.5 Hz  2024-01-26 16:00:00\n"
                        "  frequency, highest                       50.5 Hz  2024-01-26 16:00:00\n"));
    QCOMPARE(m_status, 0);
}

void TstTableExamples::weeksCountFromTheFirstValueWhateverHappenedBefore()
{
    // Events on the first day, a row without a value on the third, the first value on the fourth.
    CsvExport csv({ at("late"), QString(), true });
    QVERIFY(csv.begin(facts()) && feedEvents(&csv, 0)
            && csv.table(1, { "monitor_voltage", { column("U_rms", Statistic::Mean, "L1", "V") } })
            && row(&csv, 1, kStart + 2 * kDay, { kNone }) && row(&csv, 1, kStart + 3 * kDay, { 231 })
            && row(&csv, 1, kStart + 9 * kDay, { 229 }) && row(&csv, 1, kStart + 10 * kDay, { 230 })
            && csv.end(facts()));
    QCOMPARE(worstOf(at("late")),
             QByteArray("Week from 2024-01-14 16:00\n"
                        "  2 x dip, 115 to 161 V\n"
                        "  1 x interruption, 2.5 to 2.5 V\n"
                        "  1 x swell, 260 to 260 V\n"
                        "Week from 2024-01-21 16:00\n"
                        "  voltage, lowest            L1             229 V   2024-01-27 16:00:00\n"
                        "  voltage, highest           L1             231 V   2024-01-21 16:00:00\n"
                        "Week from 2024-01-28 16:00\n"
                        "  voltage, lowest            L1             230 V   2024-01-28 16:00:00\n"
                        "  voltage, highest           L1             230 V   2024-01-28 16:00:00\n"));
    CsvExport events({ at("events"), QString(), true });
    QVERIFY(events.begin(facts()) && feedEvents(&events, 0) && events.end(facts()));
    QVERIFY(worstOf(at("events")).startsWith("Week from 2024-01-18 16:03\n")); // where there is no value at all
}

void TstTableExamples::worstValuesOfAMonitorComeFromItsOwnTables()
{
    CsvExport csv({ at("monitor"), QString(), true });
    QVERIFY(csv.begin(facts()) && feedVoltages(&csv, 0)
            && csv.table(1, { "monitor_voltage", { column("U_rms", Statistic::Mean, "L1", "V") } })
            && row(&csv, 1, kStart, { 231 }) && row(&csv, 1, kStart + kDay, { kNone })
            && row(&csv, 1, kStart + 2 * kDay, { 229 })
            && csv.table(2, { "monitor_harmonics", { column("U_distortion", Statistic::None, "L1", "percent") } })
            && row(&csv, 2, kStart, { 3.5 })
            && csv.table(3, { "monitor_flicker_plt", { column("Plt", Statistic::None, "L1", "") } })
            && row(&csv, 3, kStart, { 0.75 }) && csv.end(facts()));
    QCOMPARE(worstOf(at("monitor")),
             QByteArray("Week from 2024-01-18 16:00\n"
                        "  voltage, lowest            L1             229 V   2024-01-20 16:00:00\n"
                        "  voltage, highest           L1             231 V   2024-01-18 16:00:00\n"
                        "  distortion of the voltage  L1             3.5 %   2024-01-18 16:00:00\n"
                        "  flicker, long-term         L1            0.75     2024-01-18 16:00:00\n"));
}

void TstTableExamples::worstValuesOfALoggersFile()
{
    QFile lines(at("Logger_1_00.csv"));
    QVERIFY(lines.open(QIODevice::WriteOnly));
    lines.write(
        "TIME,VRMS(kV) L1 AVG,VRMS(kV) L1 MAX,VRMS(kV) L1 MIN,P(kW) ALL AVG,P(kW) ALL MAX,P(kW) ALL MIN,PST L1,\n"
        "2024/01/18  16:00:00,0.230,0.2315,0.229,1.000,1.500,0.500,0.75,\n");
    lines.close();
    RecordSource source;
    CsvExport csv({ at("log"), lines.fileName(), false });
    QVERIFY(source.open(lines.fileName()) && source.read(csv));
    QCOMPARE(worstOf(at("log")),
             QByteArray("Week from 2024-01-18 16:00\n"
                        "  voltage, lowest            L1             229 V   2024-01-18 16:00:00\n"
                        "  voltage, highest           L1           231.5 V   2024-01-18 16:00:00\n"
                        "  flicker, short-term        L1            0.75     2024-01-18 16:00:00\n"
                        "  active power, highest                    1500 W   2024-01-18 16:00:00\n"));
}

void TstTableExamples::folderWithoutTablesIsSaidToBeOne()
{
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("empty")));
    QCOMPARE(worstOf(at("empty")), QByteArray("there is no table with values in ") + at("empty").toUtf8() + '\n');
    QCOMPARE(m_status, 1);
    QVERIFY(worstOf(at("nowhere")).startsWith("usage: "));
}

QTEST_GUILESS_MAIN(TstTableExamples)
#include "tst_tableexamples.moc"
