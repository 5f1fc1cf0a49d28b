#include "keptrecord.h"
#include "pqa2bytes.h"
#include "record/tables/logcolumns.h"
#include "record/tables/logreading.h"
#include "record/tables/recordnames.h"
#include "record/tables/recordsource.h"
#include "unit/storage/withoutroot.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <limits>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using P = Pqa2Bytes;

constexpr qint64 kTime = P::kTime;

} // namespace

/// Records that no instrument leaves but that a reader has to do something sensible with.
class TstOddRecords : public QObject
{
    Q_OBJECT

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    void read(const QString &name)
    {
        QVERIFY(source.open(path(name)));
        kept = std::make_unique<KeptRecord>();
        QVERIFY(source.read(*kept) && kept->hasEnded);
        QCOMPARE(kept->complaints, QStringList());
    }

    QTemporaryDir m_folder;
    RecordSource source;
    std::unique_ptr<KeptRecord> kept;

private slots:
    void nothingOpenedTellsNothing();
    void waveformWithoutAWiringHasTheInputsItsBytesAreFor_data();
    void waveformWithoutAWiringHasTheInputsItsBytesAreFor();
    void rowAndLogOfOneMomentAreBothTold();
    void transientBehindTheYear9999IsDamage();
    void factorThatIsNoNumberIsNone_data();
    void factorThatIsNoNumberIsNone();
    void nominalValueThatIsNoNumberIsNotKnown_data();
    void nominalValueThatIsNoNumberIsNotKnown();
    void sixtyFourForeignKindsAreCounted();
    void pageOfAnotherFunctionHasItsNumber();
    void columnsOfTheLoggerWithOddOrdersAndUnits();
    void folderThatMayNotBeReadIsUnreadable();
    void folderOfManyOtherFilesNamesThree();
    void statesHaveTheirNames();
};

void TstOddRecords::nothingOpenedTellsNothing()
{
    const RecordSource fresh;
    QCOMPARE(fresh.state(), RecordState::Unreadable);
    QCOMPARE(fresh.events(), 0);
    QCOMPARE(fresh.facts().start, qint64(0));
    QVERIFY(fresh.files().isEmpty() && fresh.details().isEmpty() && fresh.faults().isEmpty());
    // The same once a record was open and something else is.
    QVERIFY(P::recording(2).end(P::kSeconds + 2).save(path("Common.pqa2")));
    read("Common.pqa2");
    QCOMPARE(source.facts().start, kTime);
    QVERIFY(source.open(path("nothing")));
    QCOMPARE(source.facts().start, qint64(0));
    QVERIFY(source.files().isEmpty() && source.details().isEmpty());
    QCOMPARE(source.events(), 0);
}

void TstOddRecords::waveformWithoutAWiringHasTheInputsItsBytesAreFor_data()
{
    QTest::addColumn<int>("pairs");
    QTest::addColumn<QStringList>("names");
    const QStringList all { "U_L1", "I_L1", "U_L2", "I_L2", "U_L3", "I_L3", "U_N", "I_N" };
    for (int pairs = 1; pairs <= 4; ++pairs)
        QTest::addRow("%d", pairs) << pairs << QStringList(all.mid(0, 2 * pairs));
}

void TstOddRecords::waveformWithoutAWiringHasTheInputsItsBytesAreFor()
{
    QFETCH(int, pairs);
    QFETCH(QStringList, names);
    QByteArray samples;
    for (int channel = 0; channel < 2 * pairs; ++channel)
        samples += QByteArray(2 * 2048, char(channel + 1));
    QVERIFY(P().add(0xA100002A, P::f64(double(kTime)) + samples).save(path("Common.pqa2")));
    read("Common.pqa2");
    QCOMPARE(source.state(), RecordState::Whole);
    QCOMPARE(kept->waveforms.size(), 1);
    QStringList found;
    for (const auto &channel : kept->waveforms.at(0).facts.channels)
        found << QString::fromLatin1(channel.name);
    QCOMPARE(found, names);
    QCOMPARE(kept->waveforms.at(0).samples.size(), 2 * pairs * 2048);
    QCOMPARE(kept->waveforms.at(0).samples.last(), qint16(0x0101 * 2 * pairs));
}

void TstOddRecords::rowAndLogOfOneMomentAreBothTold()
{
    QVERIFY(QDir().mkpath(path("moment")));
    QVERIFY(P().timed(0xA1000029, kTime, P::f32(50)).save(path("moment/Common.pqa2")));
    QVERIFY(P().timed(0xA1000009, kTime, "text").save(path("moment/Monitor.pqa2")));
    read("moment");
    QCOMPARE(source.state(), RecordState::Whole);
    QCOMPARE(kept->times("frequency"), QVector<qint64>({ kTime }));
    QCOMPARE(kept->times("system_log"), QVector<qint64>({ kTime }));
}

void TstOddRecords::transientBehindTheYear9999IsDamage()
{
    const QByteArray rest = P::f32(50) + P::le(1U << 24 | 301, 4) + QByteArray(1200, '\1');
    constexpr double kEnd = 253402300799999; // the last ms of the year 9999
    for (const double time : { kEnd, kEnd + 1, std::numeric_limits<double>::infinity() }) {
        QVERIFY(P().add(0xA1000025, P::f64(time) + rest).save(path("Common.pqa2")));
        read("Common.pqa2");
        QCOMPARE(source.state(), time > kEnd ? RecordState::Broken : RecordState::Whole);
        QCOMPARE(kept->waveforms.size(), time > kEnd ? 0 : 1);
    }
}

void TstOddRecords::factorThatIsNoNumberIsNone_data()
{
    QTest::addColumn<float>("factor");
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity();
    QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("zero") << 0.0F;
    QTest::newRow("minus zero") << -0.0F;
}

void TstOddRecords::factorThatIsNoNumberIsNone()
{
    QFETCH(float, factor);
    const QByteArray transient = P::f64(double(kTime)) + P::f32(50) + P::le(1U << 24 | 301, 4) + QByteArray(1200, '\7');
    QVERIFY(
        P().add(0xA1000011, P::f32(factor) + P::countUp(1, 11)).add(0xA1000025, transient).save(path("Common.pqa2")));
    read("Common.pqa2");
    QVERIFY(std::isnan(kept->waveforms.at(0).facts.channels.at(0).factor));
    QVERIFY(std::isnan(kept->rows.value("transients").at(0).numbers.at(1)));
}

void TstOddRecords::nominalValueThatIsNoNumberIsNotKnown_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("usual") << QByteArray("230.9V") << 230.9;
    QTest::newRow("without a unit") << QByteArray("230") << 230.0;
    QTest::newRow("no number") << QByteArray("V") << 0.0;
    QTest::newRow("nothing") << QByteArray() << 0.0;
    QTest::newRow("beyond all numbers") << QByteArray("1e999V") << 0.0;
    QTest::newRow("signs alone") << QByteArray("+-.eV") << 0.0;
}

void TstOddRecords::nominalValueThatIsNoNumberIsNotKnown()
{
    QFETCH(QByteArray, text);
    QVERIFY(P().add(0xA1000010, "Fnom: 50Hz\nUnom: " + text + "\nJoin: 3P WYE_1\n").save(path("Common.pqa2")));
    read("Common.pqa2");
    QTEST(kept->facts.nominalVolt, "value");
    QCOMPARE(kept->facts.nominalFrequency, 50.0);
    QCOMPARE(kept->facts.joinMode, 1);
}

void TstOddRecords::sixtyFourForeignKindsAreCounted()
{
    P file = P::recording(1);
    for (quint32 kind = 1; kind <= 70; ++kind)
        file.add(kind, "abcd");
    for (const quint32 kind : { 64, 65 }) // the last one that is counted, the first one that is not
        file.add(kind, "efgh");
    QVERIFY(file.end(P::kSeconds + 1).save(path("Common.pqa2")));
    read("Common.pqa2");
    QCOMPARE(source.state(), RecordState::Whole);
    QVector<quint32> foreign;
    for (const RecordBlockCount &count : source.files().at(0).blocks) {
        if (count.type > 70)
            continue;
        foreign << count.type;
        QCOMPARE(count.count, qint64(count.type == 64 ? 2 : 1));
        QCOMPARE(count.bytes, 4 * count.count);
    }
    QCOMPARE(foreign.size(), 64);
    QCOMPARE(foreign.last(), 64U);
    QCOMPARE(kept->times("frequency").size(), 1);
}

void TstOddRecords::pageOfAnotherFunctionHasItsNumber()
{
    for (const quint32 page : { 99U, 0U, 0xFFFFFFFFU }) {
        QVERIFY(P::save(path("page.pqa"),
                        P::le(page, 4) + QByteArray(32, '\0') + P::le(0xCC33C3C3, 4) + QByteArray::fromHex("AA55")));
        QVERIFY(source.open(path("page.pqa")));
        QCOMPARE(source.state(), RecordState::Whole);
        QCOMPARE(source.details().at(0).second, QString::number(qint32(page)));
    }
}

void TstOddRecords::columnsOfTheLoggerWithOddOrdersAndUnits()
{
    for (const char *name : { "VHarmonic L1 -1'th AVG", "VHarmonic L1 101'th AVG", "VHarmonic L1 x'th AVG",
                              "VHarmonic L1 AVG", "VRMS(V) L1 5'th AVG", "VRMS(V) L1 -1'th AVG", "VRMS(V) M1 AVG",
                              "VRMS(V) L1 AVH", "VRMS(V L1 AVG", "VRMSx L1 AVG", "VRMS(VV) L1 AVG", "VRMS(kX) L1 AVG" })
        QCOMPARE(LogColumns({ name }).unknown(), 1);
    // What has no unit of its own is as it is, whatever a program wrote behind it.
    for (const char *name : { "VCF(%) L1 AVG", "PF(1) L1 AVG" }) {
        const LogColumns columns({ name });
        QCOMPARE(columns.unknown(), 0);
        QCOMPARE(columns.places().at(0).factor, 1.0);
    }
    QCOMPARE(LogReading::headerCells("TIME,FREQ AVG,"), 1);
    QCOMPARE(LogReading::headerCells("TIME"), 0);
    QCOMPARE(LogReading::headerCells(""), 0);
}

void TstOddRecords::folderThatMayNotBeReadIsUnreadable()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir().mkpath(path("shut")));
    QVERIFY(P::recording(2).save(path("shut/Common.pqa2")));
    // From inside, so that the folders above need not be open to everybody.
    QVERIFY(QDir::setCurrent(m_folder.path()));
    QCOMPARE(::chmod(".", 0711), 0);
    QCOMPARE(::chmod("shut", 0), 0);
    kept = std::make_unique<KeptRecord>();
    bool isOpened = false;
    {
        const WithoutRoot user;
        isOpened = source.open(QStringLiteral("shut"));
    }
    QCOMPARE(::chmod("shut", 0700), 0);
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(isOpened && source.isFolder());
    QCOMPARE(source.state(), RecordState::Unreadable);
    QCOMPARE(source.faults().constFirst().reason, QString::fromLocal8Bit(std::strerror(EACCES)));
    QVERIFY(!source.read(*kept));
}

void TstOddRecords::folderOfManyOtherFilesNamesThree()
{
    QVERIFY(QDir().mkpath(path("logs")));
    for (int i = 0; i < 1100; ++i)
        QVERIFY(P::save(path(QStringLiteral("logs/Logger_%1_00.csv").arg(i)), "TIME,FREQ AVG,\n"));
    QVERIFY(source.open(path("logs")));
    QCOMPARE(source.state(), RecordState::Unreadable);
    // A thousand of them are looked at.
    QVERIFY2(source.faults().constFirst().reason.endsWith(QStringLiteral(".csv\" and 997 more")),
             qPrintable(source.faults().constFirst().reason));
}

void TstOddRecords::statesHaveTheirNames()
{
    QCOMPARE(recordStateName(RecordState::Whole), "whole");
    QCOMPARE(recordStateName(RecordState::Cut), "cut");
    QCOMPARE(recordStateName(RecordState::Broken), "broken");
    QCOMPARE(recordStateName(RecordState::Unreadable), "unreadable");
}

QTEST_APPLESS_MAIN(TstOddRecords)
#include "tst_oddrecords.moc"
