#include "exportfeed.h"
#include "record/exports/sqliteexport.h"
#include "unit/storage/filelimit.h"

#include <QTest>

#include <sqlite3.h>

using namespace ExportFeed;

namespace {

/// What a query answers: cells apart by "|", rows by line feeds, no value as "-".
QByteArray answer(const QString &path, const QByteArray &sql)
{
    sqlite3 *base = nullptr;
    sqlite3_stmt *query = nullptr;
    QByteArray text;
    if (sqlite3_open_v2(path.toUtf8().constData(), &base, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK
        && sqlite3_prepare_v2(base, sql.constData(), -1, &query, nullptr) == SQLITE_OK) {
        while (sqlite3_step(query) == SQLITE_ROW) {
            for (int i = 0; i < sqlite3_column_count(query); ++i) {
                const bool isNone = sqlite3_column_type(query, i) == SQLITE_NULL;
                const auto *cell = isNone ? "-" : reinterpret_cast<const char *>(sqlite3_column_text(query, i));
                text += (i > 0 ? "|" : "") + QByteArray(cell);
            }
            text += '\n';
        }
    } else {
        text = sqlite3_errmsg(base);
    }
    sqlite3_finalize(query);
    sqlite3_close(base);
    return text;
}

} // namespace

/// A recording as a database.
class TstSqliteExport : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.reset(new QTemporaryDir); }

    void tableHasItsRowsWithBothTimes();
    void timesAreIndexed();
    void storedFloatsComeBackBitForBit();
    void whateverStandsInATextComesBack();
    void infoTellsWhatTheRecordingSaysOfItself();
    void recordingWithoutEventsHasAnEmptyTableOfThem();
    void waveformsHaveTheirSamplesByNumber();
    void tableOfMoreColumnsThanADatabaseTakesGoesOn();
    void namesThatADatabaseTakesForOneGetNumbers();
    void databaseIsWholeAndNothingStandsBesideIt();
    void fullDiskIsNamedAndLeavesNothing();
    void unfinishedExportLeavesNothing();

private:
    QString out() const { return m_folder->filePath(QStringLiteral("out.db")); }
    QByteArray ask(const char *sql) const { return answer(out(), sql); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TstSqliteExport::tableHasItsRowsWithBothTimes()
{
    SqliteExport sqlite({ out(), QString(), false });
    QVERIFY2(sqlite.begin(facts()) && feedRms(&sqlite, 2) && sqlite.end(facts()), qPrintable(sqlite.error()));
    QCOMPARE(ask("select name || ' ' || type from pragma_table_info('rms')"),
             QByteArray("time_utc TEXT\ntime_ms INTEGER\nU_rms_mean_L1_V REAL\nU_rms_max_L1_V REAL\n"
                        "U_rms_mean_L2_V REAL\nI_crest_min_L2 REAL\n"));
    QCOMPARE(ask("select time_utc, time_ms, round(U_rms_mean_L1_V, 4), U_rms_max_L1_V, round(U_rms_mean_L2_V, 4),"
                 " I_crest_min_L2 from rms"),
             QByteArray("2020-09-13T12:26:40.200Z|1600000000200|230.1|231.0|0.1|0.0\n"
                        "2020-09-13T12:26:40.400Z|1600000000400|-|1.0000000116861e-07|12345678.0|-\n"
                        "2020-09-13T12:26:40.600Z|1600000000600|-|-|-|-\n"));
    // The database's own calendar reads the text as the same moment.
    QCOMPARE(ask("select count(*) from rms where cast(round((julianday(time_utc) - 2440587.5) * 86400000) as int) = "
                 "time_ms"),
             QByteArray("3\n"));
}

void TstSqliteExport::timesAreIndexed()
{
    SqliteExport sqlite({ out(), QString(), false });
    QVERIFY(sqlite.begin(facts()) && feedRms(&sqlite, 0) && sqlite.end(facts()));
    const QByteArray plan = ask("explain query plan select * from rms where time_ms between 1 and 2");
    QVERIFY2(plan.contains("USING INDEX rms_by_time"), plan);
}

void TstSqliteExport::storedFloatsComeBackBitForBit()
{
    SqliteExport sqlite({ out(), QString(), false });
    QVERIFY(sqlite.begin(facts()) && sqlite.table(0, { "rms", { column("U", Statistic::None, "", "V") } }));
    const std::vector<float> values { 230.1f, 1e-45f, 3.4028235e38f, -1.17549435e-38f, 1.0f / 3 };
    for (const float value : values)
        QVERIFY(row(&sqlite, 0, 0, { double(value) }));
    QVERIFY(sqlite.end(facts()));
    const QList<QByteArray> cells = ask("select printf('%!.17g', U_V) from rms order by rowid").trimmed().split('\n');
    QCOMPARE(cells.size(), int(values.size()));
    for (int i = 0; i < cells.size(); ++i)
        QCOMPARE(cells.at(i).toDouble(), double(values[std::size_t(i)]));
}

void TstSqliteExport::whateverStandsInATextComesBack()
{
    SqliteExport sqlite({ out(), QString(), false });
    QVERIFY2(sqlite.begin(facts()) && feedHappenings(&sqlite, 0) && sqlite.end(facts()), qPrintable(sqlite.error()));
    QCOMPARE(ask("select number, name, channel, value, duration_ms from events where number < 3"),
             QByteArray("1|dip|L1|115.25|250\n2|dip|L2|99.5|-\n"));
    QCOMPARE(ask("select name, channel, value from events where number = 3"), wildText() + "||-\n");
    QCOMPARE(ask("select typeof(number) || typeof(value) || typeof(name) from events where number = 1"),
             QByteArray("integerrealtext\n"));
}

void TstSqliteExport::infoTellsWhatTheRecordingSaysOfItself()
{
    SqliteExport sqlite({ out(), QString(), false });
    RecordFacts begun = facts();
    begun.end = 0; // known only when all is read
    QVERIFY2(sqlite.begin(begun) && sqlite.end(facts()), qPrintable(sqlite.error()));
    QCOMPARE(ask("select kind, start_utc, end_utc, model, serial, version, firmware from info"),
             QByteArray("recording|2020-09-13T12:26:40.000Z|2020-09-13T12:36:40.000Z|PQ \"9\", mark=2|1AA 0,0=7|2.2.6|"
                        "line\nfeed\n"));
    QCOMPARE(ask("select clamp, clamp_N, ratio, ratio_N, wiring, nominal_voltage_V, nominal_frequency_Hz from info"),
             QByteArray("Zange \xC3\x84;10mV/A 5A|-|-|-|1|230.0|50.0\n"));
}

void TstSqliteExport::recordingWithoutEventsHasAnEmptyTableOfThem()
{
    SqliteExport sqlite({ out(), QString(), false });
    QVERIFY2(sqlite.begin(facts()) && sqlite.end(facts()), qPrintable(sqlite.error()));
    QCOMPARE(ask("select count(*), count(time_utc), count(time_ms), count(kind), count(value) from events"),
             QByteArray("0|0|0|0|0\n"));
}

void TstSqliteExport::waveformsHaveTheirSamplesByNumber()
{
    SqliteExport sqlite({ out(), QString(), false });
    QVERIFY(sqlite.begin(facts()) && feedWaveform(&sqlite, 1));
    RecordedWaveform other = waveform(2);
    other.origin = RecordedWaveform::Capture;
    other.event = 0;
    other.start = kNone;
    other.channels = { { "U_L2", "L2", "V", 2 } };
    const qint16 samples[] = { 4 };
    QVERIFY(sqlite.waveformBegin(other) && sqlite.waveformSamples(samples, 1) && sqlite.waveformEnd());
    QVERIFY2(sqlite.end(facts()), qPrintable(sqlite.error()));
    QCOMPARE(ask("select number, time_ms, origin, event, rate_Hz, trigger_sample from waveforms"),
             QByteArray("1|1600000000000|transient|2|2000.0|1\n2|0|capture|-|2000.0|1\n"));
    QCOMPARE(
        ask("select waveform, sample, t_s, U_L1_V, I_N_A, U_L2_V from waveform_samples"),
        QByteArray("1|0|0.0|5.0|250.0|-\n1|1|0.0005|-16384.0|8191.75|-\n1|2|0.001|1.5|-1.75|-\n2|0|0.0|-|-|8.0\n"));
}

void TstSqliteExport::tableOfMoreColumnsThanADatabaseTakesGoesOn()
{
    constexpr int kColumns = 4500; // a database takes 2000, two of them are times
    RecordTable wide { "wide", {} };
    std::vector<double> values;
    for (int i = 0; i < kColumns; ++i) {
        wide.columns.append(column(("q" + QByteArray::number(i)).constData(), Statistic::None, "", ""));
        values.push_back(i);
    }
    SqliteExport sqlite({ out(), QString(), false });
    QVERIFY2(sqlite.begin(facts()) && sqlite.table(0, wide) && row(&sqlite, 0, 7, values) && sqlite.end(facts()),
             qPrintable(sqlite.error()));
    QCOMPARE(ask("select q0, q1997, q1998, q3995, q3996, q4499 from wide join wide_2 using(time_ms) join wide_3 "
                 "using(time_ms)"),
             QByteArray("0.0|1997.0|1998.0|3995.0|3996.0|4499.0\n"));
}

void TstSqliteExport::namesThatADatabaseTakesForOneGetNumbers()
{
    RecordTable odd { "odd \"table\"", {} };
    for (const char *name : { "EP", "ep", "EP", "a\"b", "time_ms" })
        odd.columns.append(column(name, Statistic::None, "", ""));
    SqliteExport sqlite({ out(), QString(), false });
    QVERIFY2(sqlite.begin(facts()) && sqlite.table(0, odd) && row(&sqlite, 0, 7, { 1, 2, 3, 4, 5 })
                 && sqlite.end(facts()),
             qPrintable(sqlite.error()));
    QCOMPARE(ask("select name from pragma_table_info('odd \"table\"')"),
             QByteArray("time_utc\ntime_ms\nEP\nep_2\nEP_3\na\"b\ntime_ms_2\n"));
    QCOMPARE(ask("select time_ms, EP, ep_2, EP_3, \"a\"\"b\", time_ms_2 from \"odd \"\"table\"\"\""),
             QByteArray("7|1.0|2.0|3.0|4.0|5.0\n"));
}

void TstSqliteExport::databaseIsWholeAndNothingStandsBesideIt()
{
    SqliteExport sqlite({ out(), QString(), false });
    QVERIFY(sqlite.begin(facts()) && feedRms(&sqlite, 0));
    QCOMPARE(namesIn(m_folder->path()).size(), 1); // no journal either
    for (int i = 0; i < 100000; ++i)
        QVERIFY(row(&sqlite, 0, 1600000001000 + i, { double(i), 1, 2, 3 }));
    QVERIFY(feedHappenings(&sqlite, 1) && feedWaveform(&sqlite, 1) && sqlite.end(facts()));
    QCOMPARE(namesIn(m_folder->path()), QStringList("out.db"));
    QCOMPARE(ask("pragma integrity_check"), QByteArray("ok\n"));
    QCOMPARE(ask("select count(*), sum(U_rms_mean_L1_V) from rms where time_ms >= 1600000001000"),
             QByteArray("100000|4999950000.0\n"));
}

void TstSqliteExport::fullDiskIsNamedAndLeavesNothing()
{
    bool refused = false;
    QString error;
    {
        SqliteExport sqlite({ out(), QString(), false });
        QVERIFY(sqlite.begin(facts()) && sqlite.table(0, rms()));
        const FileLimit full(1 << 20);
        for (int i = 0; i < 1000000 && !refused; ++i)
            refused = !row(&sqlite, 0, i, { 1, 2, 3, 4 });
        error = sqlite.error();
    }
    QVERIFY(refused);
    QVERIFY2(error.startsWith(out() + ": ") && error.size() > out().size() + 4, qPrintable(error));
    QCOMPARE(namesIn(m_folder->path()), QStringList());
}

void TstSqliteExport::unfinishedExportLeavesNothing()
{
    {
        SqliteExport sqlite({ out(), QString(), false });
        QVERIFY(sqlite.begin(facts()) && feedRms(&sqlite, 0) && feedWaveform(&sqlite, 1));
        QVERIFY(!QFile::exists(out()));
        QVERIFY(!row(&sqlite, 1, 0, {}));
        QVERIFY(sqlite.error().contains("a row has no table"));
        QVERIFY(!sqlite.end(facts()));
    }
    QCOMPARE(namesIn(m_folder->path()), QStringList());
}

QTEST_GUILESS_MAIN(TstSqliteExport)
#include "tst_sqliteexport.moc"
