// What other programs find in the exports: the shell of SQLite, Python with its own modules and with pandas, a
// time-series database. Each reads what was fed by hand.
#include "influxserver.h"
#include "record/exports/csvexport.h"
#include "record/exports/influxexport.h"
#include "record/exports/sqliteexport.h"
#include "unit/record/wildrecording.h"

#include <cmath>
#include <cstring>

using namespace ExportFeed;

namespace {

constexpr int kFloats = 2000;

/// Finite floats of all sizes and signs.
float floatOf(int number)
{
    quint32 bits = quint32(number) * 2654435761u;
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return std::isfinite(value) ? value : 1;
}

bool feedFloats(RecordSink *sink, int number)
{
    if (!sink->table(number, { "frequency", { column("f", Statistic::Mean, "", "Hz") } }))
        return false;
    for (int i = 0; i < kFloats; ++i) {
        if (!row(sink, number, 1600000000000 + i, { double(floatOf(i)) }))
            return false;
    }
    return true;
}

/// How many of these numbers are, as floats, the ones that were fed, bit for bit.
int floatsFound(const std::vector<double> &numbers)
{
    int found = 0;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const float read = float(numbers[i]), fed = floatOf(int(i));
        found += std::memcmp(&read, &fed, sizeof read) == 0;
    }
    return found;
}

} // namespace

class TstExportReaders : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void sqliteShellFindsTablesTextsAndTimes();
    void pythonsModulesFindEveryTextAndNumber();
    void pandasOpensTheDatabaseAndTheTables();
    void timeSeriesDatabaseTakesEveryLine();
    void timeSeriesDatabaseTakesWildContent();

private:
    template <typename Sink> void feed(const QString &target)
    {
        Sink sink({ target, QString(), false });
        QVERIFY2(sink.begin(facts()) && feedRms(&sink, 0) && feedHappenings(&sink, 1) && feedFloats(&sink, 2)
                     && feedWaveform(&sink, 1) && sink.end(facts()),
                 qPrintable(sink.error()));
    }
    QString at(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    /// What a program prints; its complaints come along and spoil the comparison.
    QByteArray said(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        if (!process.waitForFinished(300000) || process.exitCode() != 0)
            return program.toUtf8() + " failed: " + process.errorString().toUtf8() + process.readAll();
        return process.readAll();
    }
    /// The distribution's own Python, for which its packages are.
    QByteArray python(const QByteArray &script)
    {
        return said(QStringLiteral("/usr/bin/python3"),
                    { "-c", QString::fromUtf8(script), at("out.db"), at("tables") });
    }

    QTemporaryDir m_folder;
};

void TstExportReaders::initTestCase()
{
    feed<CsvExport>(at("tables"));
    feed<SqliteExport>(at("out.db"));
    feed<InfluxExport>(at("out.line"));
}

void TstExportReaders::sqliteShellFindsTablesTextsAndTimes()
{
    const auto shell = [this](const char *sql) { return said("sqlite3", { "-batch", at("out.db"), sql }); };
    QCOMPARE(
        shell("select group_concat(name, ' ') from (select name from sqlite_master where type='table' order by 1)"),
        QByteArray("events frequency info rms waveform_samples waveforms\n"));
    QCOMPARE(shell("pragma integrity_check"), QByteArray("ok\n"));
    QCOMPARE(shell("select name from events where number = 3"), wildText() + '\n');
    QCOMPARE(shell("select max(U_rms_max_L1_V), min(time_utc), max(time_ms) from rms"),
             QByteArray("231.0|2020-09-13T12:26:40.200Z|1600000000600\n"));
    QCOMPARE(shell("select model from info"), QByteArray("PQ \"9\", mark=2\n"));
    QCOMPARE(shell(".dump waveforms").count("INSERT"), 1);
}

void TstExportReaders::pythonsModulesFindEveryTextAndNumber()
{
    const QByteArray found = python(R"(
import csv, sqlite3, sys
base = sqlite3.connect(sys.argv[1])
for number, text in base.execute("select number, name from events"):
    print(number, text.encode().hex())
rows = list(csv.DictReader(open(sys.argv[2] + "/events.csv", newline="", encoding="utf-8")))
for row in rows:
    print(row["number"], row["name"].encode().hex(), row["channel"], row["value"], row["duration_ms"])
for row in csv.reader(open(sys.argv[2] + "/rms.csv", newline="")):
    print(len(row))
table = [float(row["f_mean_Hz"]) for row in csv.DictReader(open(sys.argv[2] + "/frequency.csv"))]
print(len(table))
for number in table:
    print(number.hex())
for (number,) in base.execute("select f_mean_Hz from frequency order by time_ms"):
    print(number.hex())
)");
    const QList<QByteArray> lines = found.split('\n');
    const QByteArray wild = wildText().toHex();
    const QList<QByteArray> texts { "1 " + QByteArray("dip").toHex(),
                                    "2 " + QByteArray("dip").toHex(),
                                    "3 " + wild,
                                    "1 " + QByteArray("dip").toHex() + " L1 115.25 250",
                                    "2 " + QByteArray("dip").toHex() + " L2 99.5 ",
                                    "3 " + wild + "   40",
                                    "5",
                                    "5",
                                    "5",
                                    "5",
                                    QByteArray::number(kFloats) };
    for (int i = 0; i < texts.size(); ++i)
        QCOMPARE(lines.value(i), texts.at(i));
    for (const int from : { texts.size(), texts.size() + kFloats }) {
        std::vector<double> numbers;
        for (int i = 0; i < kFloats; ++i)
            numbers.push_back(std::strtod(lines.value(from + i).constData(), nullptr));
        // A database keeps no sign of a zero; there is none among these.
        QCOMPARE(floatsFound(numbers), kFloats);
    }
}

void TstExportReaders::pandasOpensTheDatabaseAndTheTables()
{
    const QByteArray found = python(R"(
import sqlite3, sys
import pandas
base = sqlite3.connect(sys.argv[1])
for rms in (pandas.read_sql("select * from rms", base, parse_dates=["time_utc"]),
            pandas.read_csv(sys.argv[2] + "/rms.csv", parse_dates=["time_utc"])):
    print(len(rms), rms["time_utc"].dt.tz, rms["time_utc"].iloc[1].isoformat(), rms["U_rms_max_L1_V"].max(),
          rms["U_rms_mean_L1_V"].isna().sum())
wave = pandas.read_csv(sys.argv[2] + "/waveforms/0001.csv", index_col="t_s")
print(list(wave.columns), wave["I_N_A"].min(), wave.index[1])
events = pandas.read_csv(sys.argv[2] + "/events.csv")
print(events["name"].iloc[2].encode().hex())
)");
    const QByteArray rms = "3 UTC 2020-09-13T12:26:40.400000+00:00 231.0 2\n";
    QCOMPARE(found, rms + rms + "['time_utc', 'U_L1_V', 'I_N_A'] -1.75 0.0005\n" + wildText().toHex() + '\n');
}

void TstExportReaders::timeSeriesDatabaseTakesEveryLine()
{
    InfluxServer server;
    const QByteArray problem = server.start();
    QVERIFY2(problem.isEmpty(), problem);
    QCOMPARE(server.create("site"), 200);
    const int status = server.load("site", contentOf(at("out.line")));
    QVERIFY2(status == 204, server.said());
    QCOMPARE(server.value("site", "SELECT count(f_mean) FROM frequency").toInt(), kFloats);
    const QString instrument = facts().serialNumber;
    const QString mine = QStringLiteral(" WHERE instrument = '%1'").arg(instrument);
    QCOMPARE(server.value("site", "SELECT count(f_mean) FROM frequency" + mine).toInt(), kFloats);
    QCOMPARE(server.value("site", "SELECT U_rms_max FROM rms" + mine + " AND channel = 'L1'").toDouble(), 231.0);
    QCOMPARE(server.query("site", "SELECT U_rms_mean FROM rms GROUP BY channel").size(), 2);

    std::vector<double> numbers;
    const QJsonArray rows = server.query("site", "SELECT f_mean FROM frequency").at(0).toObject()["values"].toArray();
    for (const QJsonValue &cells : rows)
        numbers.push_back(cells.toArray().at(1).toDouble());
    QCOMPARE(floatsFound(numbers), kFloats);

    // Two events of the same ms are two, and every sign of a text came through.
    const QJsonArray events
        = server.query("site", "SELECT number, \"name\", channel FROM events").at(0).toObject()["values"].toArray();
    QCOMPARE(events.size(), 3);
    QCOMPARE(events.at(0).toArray().at(3).toString(), QStringLiteral("L1"));
    QCOMPARE(events.at(1).toArray().at(3).toString(), QStringLiteral("L2"));
    QCOMPARE(events.at(2).toArray().at(2).toString().toUtf8(), wildText());

    // Loaded again, nothing is there twice.
    QCOMPARE(server.load("site", contentOf(at("out.line"))), 204);
    QCOMPARE(server.value("site", "SELECT count(f_mean) FROM frequency").toInt(), kFloats);
    QCOMPARE(server.value("site", "SELECT count(number) FROM events").toInt(), 3);
}

// Whatever stands in names and texts, the server finds nothing wrong with any line. It also takes what it can of a
// request with bad ones, and says so.
void TstExportReaders::timeSeriesDatabaseTakesWildContent()
{
    InfluxServer server;
    const QByteArray problem = server.start();
    QVERIFY2(problem.isEmpty(), problem);
    int values = 0;
    for (quint32 seed = 1; seed <= 40; ++seed) {
        const WildRecording wild(seed);
        InfluxExport influx({ at("wild.line"), QString(), true });
        QVERIFY2(wild.feed(&influx), qPrintable(influx.error()));
        const QString base = QStringLiteral("wild%1").arg(seed);
        QCOMPARE(server.create(base), 200);
        const QByteArray lines = contentOf(at("wild.line"));
        const int status = server.load(base, lines);
        QVERIFY2(status == 204, server.said() + '\n' + lines);
        values += server.query(base, "SELECT * FROM log").at(0).toObject()["values"].toArray().size();
    }
    QVERIFY(values > 100);
}

QTEST_GUILESS_MAIN(TstExportReaders)
#include "tst_exportreaders.moc"
