#include "pqdifreading.h"
#include "../documentpage.h"
#include "record/exports/outputfile.h"
#include "record/exports/pqdifbody.h"
#include "record/exports/pqdifspool.h"
#include "record/exports/pqdiftags.h"

#include <QTemporaryDir>
#include <QTest>

#include <limits>

namespace {

constexpr qint64 kDay = 86400LL * 1000000; // us
constexpr qint64 kStart = (46347 - 25569) * kDay; // 2026-11-22

/// The bytes of the documented file: each line says where it stands.
QByteArray documentedFile()
{
    const QString section
        = DocumentPage(QStringLiteral("formats/interchange.md")).section(QStringLiteral("### Smallest file"));
    QByteArray bytes;
    for (const QString &line : section.section(QStringLiteral("```\n"), 1, 1).split('\n', Qt::SkipEmptyParts)) {
        if (line.left(4).toInt(nullptr, 16) != bytes.size())
            return {};
        bytes += QByteArray::fromHex(line.mid(4).section(';', 0, 0).toLatin1());
    }
    return bytes;
}

PqdifCollection container()
{
    PqdifCollection root;
    root.addVector(PqdifTag::kVersionInfo, QVector<quint32> { 1, 5, 1, 5 });
    root.addText(PqdifTag::kFileName, "m.pqd");
    root.addTime(PqdifTag::kCreation, PqdifTime::ofMicroseconds(kStart));
    return root;
}

void addSeries(PqdifCollection *series, const PqdifId &value, quint32 unit, const PqdifId &characteristic)
{
    PqdifCollection &one = series->addCollection(PqdifTag::kOneSeriesDefn);
    one.addId(PqdifTag::kValueTypeID, value);
    one.addNumber(PqdifTag::kQuantityUnitsID, unit);
    one.addId(PqdifTag::kQuantityCharacteristicID, characteristic);
    one.addNumber(PqdifTag::kStorageMethodID, 1);
}

PqdifCollection dataSource()
{
    PqdifCollection root;
    root.addId(PqdifTag::kDataSourceTypeID, PqdifValue::kDataSourceMeasure);
    root.addText(PqdifTag::kNameDS, "QUVERA");
    root.addTime(PqdifTag::kEffective, PqdifTime::ofMicroseconds(kStart));
    PqdifCollection &channel = root.addCollection(PqdifTag::kChannelDefns).addCollection(PqdifTag::kOneChannelDefn);
    channel.addNumber(PqdifTag::kPhaseID, 1);
    channel.addId(PqdifTag::kQuantityTypeID, PqdifValue::kValueLog);
    channel.addNumber(PqdifTag::kQuantityMeasuredID, 1);
    PqdifCollection &series = channel.addCollection(PqdifTag::kSeriesDefns);
    addSeries(&series, PqdifValue::kSeriesTime, 2, PqdifValue::kQcInstantaneous);
    addSeries(&series, PqdifValue::kSeriesVal, 6, PqdifValue::kQcRms);
    return root;
}

PqdifCollection observation()
{
    PqdifCollection root;
    root.addText(PqdifTag::kObservationName, "Trend");
    root.addTime(PqdifTag::kTimeCreate, PqdifTime::ofMicroseconds(kStart + 1200 * 1000000LL));
    root.addTime(PqdifTag::kTimeStart, PqdifTime::ofMicroseconds(kStart));
    root.addNumber(PqdifTag::kTriggerMethodID, 2);
    PqdifCollection &channel = root.addCollection(PqdifTag::kChannelInstances).addCollection(PqdifTag::kOneChannelInst);
    channel.addNumber(PqdifTag::kChannelDefnIdx, 0);
    PqdifCollection &series = channel.addCollection(PqdifTag::kSeriesInstances);
    series.addCollection(PqdifTag::kOneSeriesInstance).addVector(PqdifTag::kSeriesValues, QVector<float> { 0, 600 });
    series.addCollection(PqdifTag::kOneSeriesInstance)
        .addVector(PqdifTag::kSeriesValues, QVector<float> { 230.5, 229.0 });
    return root;
}

} // namespace

/// Bodies, heads and the chain of records of PQDIF files.
class TstPqdifBody : public QObject
{
    Q_OBJECT

private slots:
    void documentedFileIsWrittenByteByByte();
    void readerTakesTheDocumentedFile();
    void readerSeesEveryFlippedBit();
    void compressedRecordsAreReadBack();
    void observationsStandInTheOrderOfTheirTimes();
    void everyKindOfElementIsReadBack();
    void timesAreThoseOfTheCalendar_data();
    void timesAreThoseOfTheCalendar();
    void nothingStaysOfTheWaitingObservations();

private:
    QByteArray file(const QVector<QPair<QByteArray, qint64>> &observations, bool compressed)
    {
        PqdifSpool spool(m_folder.path(), compressed);
        for (const auto &observation : observations) {
            if (!spool.add(observation.first, observation.second))
                return "not added";
        }
        PqdifCollection first = container();
        if (compressed) {
            first.addNumber(PqdifTag::kCompressionStyleID, 2);
            first.addNumber(PqdifTag::kCompressionAlgorithmID, 1);
        }
        const QString path = m_folder.filePath(QStringLiteral("m.pqd"));
        OutputFile output;
        if (!output.open(path)
            || !spool.writeTo(
                &output,
                { { PqdifTag::kContainerRecord, first.body() }, { PqdifTag::kDataSourceRecord, dataSource().body() } })
            || !output.close())
            return "not written";
        QFile written(path);
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
};

void TstPqdifBody::documentedFileIsWrittenByteByByte()
{
    const QByteArray expected = documentedFile();
    QCOMPARE(expected.size(), 1420);
    QCOMPARE(file({ { observation().body(), 0 } }, false).toHex(), expected.toHex());
}

void TstPqdifBody::readerTakesTheDocumentedFile()
{
    const PqdifReading::File read = PqdifReading::read(documentedFile());
    QCOMPARE(read.fault, QString());
    QCOMPARE(read.records.size(), size_t(3));
    QCOMPARE(read.dataSource()["tagNameDS"].text, QByteArray("QUVERA"));
    QCOMPARE(read.dataSource()["tagEffective"].time(), kStart);
    const auto observations = read.observations();
    QCOMPARE(observations.size(), size_t(1));
    QString fault;
    const auto channels = PqdifReading::channels(read, *observations[0], &fault);
    QCOMPARE(fault, QString());
    QCOMPARE(channels.size(), 1);
    QCOMPARE(channels[0].series, QVector<QVector<double>>({ { 0, 600 }, { 230.5, 229.0 } }));
}

void TstPqdifBody::readerSeesEveryFlippedBit()
{
    // Whoever judges the writer has to notice whatever is wrong. The reader knows no rule for what a vector holds, but
    // the check sums do.
    const QByteArray good = documentedFile();
    for (int i = 0; i < good.size() * 8; ++i) {
        QByteArray bad = good;
        bad[i / 8] = char(bad[i / 8] ^ (1 << i % 8));
        QVERIFY2(!PqdifReading::read(bad).fault.isEmpty(), qPrintable(QString::number(i)));
    }
    for (int size = 0; size < good.size(); ++size)
        QVERIFY2(!PqdifReading::read(good.left(size)).fault.isEmpty(), qPrintable(QString::number(size)));
}

void TstPqdifBody::compressedRecordsAreReadBack()
{
    const QByteArray bytes = file({ { observation().body(), 0 } }, true);
    const PqdifReading::File read = PqdifReading::read(bytes);
    QCOMPARE(read.fault, QString());
    QCOMPARE(read.records.size(), size_t(3));
    QCOMPARE(bytes.at(int(read.records[1].offset) + 64), '\x78'); // as a stream of zlib begins
    QVERIFY(read.records[1].stored < 676);
    QString fault;
    QCOMPARE(PqdifReading::channels(read, *read.observations()[0], &fault)[0].series[1],
             QVector<double>({ 230.5, 229.0 }));
}

void TstPqdifBody::observationsStandInTheOrderOfTheirTimes()
{
    QVector<QPair<QByteArray, qint64>> observations;
    const qint64 times[] = { 30, 10, 20, 10 };
    for (int i = 0; i < 4; ++i) {
        PqdifCollection one = observation();
        one.addNumber(PqdifTag::kObservationSerial, quint32(i));
        observations.append({ one.body(), times[i] });
    }
    for (bool compressed : { false, true }) {
        const PqdifReading::File read = PqdifReading::read(file(observations, compressed));
        QCOMPARE(read.fault, QString());
        QVector<double> order;
        for (const PqdifReading::Element *one : read.observations())
            order << (*one)["tagObservationSerial"].number();
        QCOMPARE(order, QVector<double>({ 1, 3, 2, 0 }));
    }
}

void TstPqdifBody::everyKindOfElementIsReadBack()
{
    PqdifCollection one = observation();
    one.addSwitch(PqdifTag::kUseTransducer, true);
    one.addShort(PqdifTag::kChannelGroupID, -7);
    one.addReal(PqdifTag::kSeriesScale, -0.1);
    one.addText(PqdifTag::kNotes, "");
    PqdifCollection &inner = one.addCollection(PqdifTag::kCustomSourceInfo);
    inner.addVector(PqdifTag::kSeriesValues, QVector<qint16> { -32768, 0, 32767 });
    inner.addReal(PqdifTag::kSeriesOffset, std::numeric_limits<double>::max());
    one.addVector(PqdifTag::kSeriesValues, QVector<double> { 1e-300 });
    const PqdifReading::File read = PqdifReading::read(file({ { one.body(), 0 } }, false));
    QCOMPARE(read.fault, QString());
    const PqdifReading::Element &root = *read.observations()[0];
    QCOMPARE(root["tagUseTransducer"].number(), 1.0);
    QCOMPARE(root["tagChannelGroupID"].number(), -7.0);
    QCOMPARE(root["tagSeriesScale"].number(), -0.1);
    QVERIFY(root.has("tagNotes"));
    QCOMPARE(root["tagNotes"].text, QByteArray());
    QCOMPARE(root["tagCustomSourceInfo"]["tagSeriesValues"].numbers, QVector<double>({ -32768, 0, 32767 }));
    QCOMPARE(root["tagCustomSourceInfo"]["tagSeriesOffset"].number(), std::numeric_limits<double>::max());
    QCOMPARE(root["tagSeriesValues"].numbers, QVector<double>({ 1e-300 }));
}

void TstPqdifBody::timesAreThoseOfTheCalendar_data()
{
    QTest::addColumn<qint64>("time");
    QTest::addColumn<uint>("day");
    QTest::addColumn<double>("second");
    QTest::newRow("1970") << 0LL << 25569u << 0.0;
    QTest::newRow("1999-06-01") << 928195200LL * 1000000 << 36312u << 0.0;
    QTest::newRow("fraction behind the cut") << 928195200LL * 1000000 + 123456 << 36312u << 0.123456001;
    QTest::newRow("last of a day") << kDay - 1 << 25569u << 86399.999999001;
    QTest::newRow("before 1970") << -1LL << 25569u << 0.0;
    QTest::newRow("lowest") << std::numeric_limits<qint64>::min() << 25569u << 0.0;
    QTest::newRow("highest") << std::numeric_limits<qint64>::max() << 2958465u << 86399.999999001;
}

void TstPqdifBody::timesAreThoseOfTheCalendar()
{
    QFETCH(qint64, time);
    QFETCH(uint, day);
    QFETCH(double, second);
    const PqdifTime found = PqdifTime::ofMicroseconds(time);
    QCOMPARE(found.day, day);
    QVERIFY2(qAbs(found.second - second) < 1e-10, qPrintable(QString::number(found.second, 'g', 17)));
}

void TstPqdifBody::nothingStaysOfTheWaitingObservations()
{
    QTemporaryDir folder;
    {
        PqdifSpool spool(folder.path(), false);
        QVERIFY(spool.add(observation().body(), 0));
        QCOMPARE(spool.size(), qint64(64 + observation().body().size()));
    }
    QVERIFY(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
    PqdifSpool nowhere(folder.filePath(QStringLiteral("missing")), false);
    QVERIFY(!nowhere.add(observation().body(), 0));
    QVERIFY(!nowhere.error().isEmpty());
}

QTEST_APPLESS_MAIN(TstPqdifBody)
#include "tst_pqdifbody.moc"
