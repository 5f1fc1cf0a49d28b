#include "exportfeed.h"
#include "record/exports/influxexport.h"

#include <QTest>

#include <limits>

using namespace ExportFeed;

/// A recording as lines for a time-series database.
class TstInfluxExport : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.reset(new QTemporaryDir); }

    void eachMomentHasALineForEachChannel();
    void textsAreFieldsAndTheirChannelIsATag();
    void instrumentIsItsSerialNumberOrItsModel_data();
    void instrumentIsItsSerialNumberOrItsModel();
    void whatHappenedInTheSameMillisecondStaysApart();
    void aMillionRowsOfOneMillisecondHaveNanosecondsAndNoMore();
    void partOfAWholeNumberIsNoValue();
    void timesBeyondNanosecondsAreCountedAndLeftOut();
    void unfinishedExportLeavesNothing();

private:
    QString out() const { return m_folder->filePath(QStringLiteral("out.line")); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TstInfluxExport::eachMomentHasALineForEachChannel()
{
    InfluxExport influx({ out(), QString(), false });
    QVERIFY2(influx.begin(facts()) && feedRms(&influx, 0) && influx.end(facts()), qPrintable(influx.error()));
    // The serial number is "1AA 0,0=7". The last row has no value and no line.
    const QByteArray start("rms,instrument=1AA\\ 0\\,0\\=7,channel=");
    QCOMPARE(contentOf(out()),
             start + "L1 U_rms_mean=230.1,U_rms_max=231 1600000000200000000\n" + start
                 + "L2 U_rms_mean=0.1,I_crest_min=-0 1600000000200000000\n" + start
                 + "L1 U_rms_max=1e-07 1600000000400000000\n" + start + "L2 U_rms_mean=12345678 1600000000400000000\n");
    QCOMPARE(namesIn(m_folder->path()), QStringList("out.line"));
}

void TstInfluxExport::textsAreFieldsAndTheirChannelIsATag()
{
    InfluxExport influx({ out(), QString(), false });
    RecordFacts plain = facts();
    plain.serialNumber = QStringLiteral("S1");
    QVERIFY2(influx.begin(plain) && feedHappenings(&influx, 3) && influx.end(plain), qPrintable(influx.error()));
    QCOMPARE(
        contentOf(out()),
        QByteArray("events,instrument=S1,channel=L1 number=1i,name=\"dip\",value=115.25,duration=250i"
                   " 1600000000123000000\n"
                   "events,instrument=S1,channel=L2 number=2i,name=\"dip\",value=99.5 1600000000123000001\n"
                   "events,instrument=S1 number=3i,name=\"a,b\\\"c\\\"\nd\\\\e'f\r\n;=\t\xC3\xA4\\\\\",duration=40i"
                   " 1600000000124000000\n"));
}

void TstInfluxExport::instrumentIsItsSerialNumberOrItsModel_data()
{
    QTest::addColumn<QString>("serial");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QByteArray>("tag");
    QTest::newRow("serial number") << "1AA000001"
                                   << "M" << QByteArray("1AA000001");
    QTest::newRow("model") << ""
                           << "My model" << QByteArray("My\\ model");
    QTest::newRow("neither") << ""
                             << "" << QByteArray("unknown");
    QTest::newRow("signs") << "a\\,b=\\ c\\"
                           << "" << QByteArray("a/\\,b\\=/\\ c/");
    QTest::newRow("line feed") << "a\nb\tc"
                               << "" << QByteArray("a_b_c");
    QTest::newRow("letters") << QString::fromUtf8("\xC3\x84") << "" << QByteArray("\xC3\x84");
}

void TstInfluxExport::instrumentIsItsSerialNumberOrItsModel()
{
    QFETCH(QString, serial);
    QFETCH(QString, model);
    QFETCH(QByteArray, tag);
    RecordFacts named;
    named.serialNumber = serial;
    named.model = model;
    InfluxExport influx({ out(), QString(), false });
    QVERIFY(influx.begin(named) && influx.table(0, { "frequency", { column("f", Statistic::Mean, "", "Hz") } })
            && row(&influx, 0, 5, { 50 }) && influx.end(named));
    QCOMPARE(contentOf(out()), "frequency,instrument=" + tag + " f_mean=50 5000000\n");
}

void TstInfluxExport::whatHappenedInTheSameMillisecondStaysApart()
{
    InfluxExport influx({ out(), QString(), false });
    QVERIFY(influx.begin(RecordFacts()));
    const RecordColumn text = column("text", Statistic::None, "", "", CellType::Text);
    QVERIFY(influx.table(0, { "system_log", { text } }) && influx.table(1, { "other", { text } }));
    for (const qint64 time : { 0, 0, 0, 1, 0 })
        QVERIFY(row(&influx, 0, time, {}, { "x" }) && row(&influx, 1, 7 + time, {}, { "y" }));
    QVERIFY(influx.end(RecordFacts()));
    QByteArray times;
    for (const QByteArray &line : contentOf(out()).split('\n')) {
        if (line.startsWith("system_log"))
            times += line.mid(line.lastIndexOf(' '));
    }
    QCOMPARE(times, QByteArray(" 0 1 2 1000000 0"));
}

void TstInfluxExport::aMillionRowsOfOneMillisecondHaveNanosecondsAndNoMore()
{
    constexpr int kLast = 999999; // row that has a nanosecond of its own
    InfluxExport influx({ out(), QString(), false });
    QVERIFY(influx.begin(RecordFacts()));
    QVERIFY(influx.table(0, { "frequency", { column("f", Statistic::Mean, "", "Hz") } }));
    for (int i = 0; i < kLast; ++i)
        QVERIFY(row(&influx, 0, 1, { kNone })); // takes its time, but has no value to be told
    for (int i = 0; i < 3; ++i)
        QVERIFY(row(&influx, 0, 1, { double(50 + i) }));
    QVERIFY(row(&influx, 0, 2, { 60 }) && influx.end(RecordFacts()));
    QCOMPARE(contentOf(out()),
             QByteArray("frequency,instrument=unknown f_mean=50 1999999\n"
                        "frequency,instrument=unknown f_mean=60 2000000\n"
                        "# 2 rows are missing: nanoseconds do not reach their time\n"));
}

void TstInfluxExport::partOfAWholeNumberIsNoValue()
{
    InfluxExport influx({ out(), QString(), false });
    QVERIFY(influx.begin(RecordFacts()));
    QVERIFY(influx.table(0, { "events", { column("number", Statistic::None, "", "", CellType::Integer) } }));
    for (const double number : { 1.0, 1.5, -2.0, kNone })
        QVERIFY(row(&influx, 0, 1, { number }));
    QVERIFY(influx.end(RecordFacts()));
    QCOMPARE(contentOf(out()),
             QByteArray("events,instrument=unknown number=1i 1000000\n"
                        "events,instrument=unknown number=-2i 1000002\n"));
}

void TstInfluxExport::timesBeyondNanosecondsAreCountedAndLeftOut()
{
    InfluxExport influx({ out(), QString(), false });
    QVERIFY(influx.begin(RecordFacts()));
    QVERIFY(influx.table(0, { "frequency", { column("f", Statistic::Mean, "", "Hz") } }));
    constexpr qint64 kLast = 9223372036853; // ms; 2262-04-11
    for (const qint64 time : { kLast + 1, kLast, std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min(),
                               -kLast, -kLast - 1 })
        QVERIFY(row(&influx, 0, time, { 50 }));
    QVERIFY(influx.end(RecordFacts()));
    QCOMPARE(contentOf(out()),
             QByteArray("frequency,instrument=unknown f_mean=50 9223372036853000000\n"
                        "frequency,instrument=unknown f_mean=50 -9223372036853000000\n"
                        "# 4 rows are missing: nanoseconds do not reach their time\n"));
}

void TstInfluxExport::unfinishedExportLeavesNothing()
{
    {
        InfluxExport influx({ out(), QString(), false });
        QVERIFY(influx.begin(facts()) && feedRms(&influx, 0));
        QVERIFY(!QFile::exists(out()));
        QVERIFY(!row(&influx, 1, 0, {}));
        QVERIFY(influx.error().contains("a row has no table"));
        QVERIFY(!influx.end(facts()));
    }
    QCOMPARE(namesIn(m_folder->path()), QStringList());
}

QTEST_GUILESS_MAIN(TstInfluxExport)
#include "tst_influxexport.moc"
