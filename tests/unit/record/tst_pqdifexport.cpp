#include "../documentpage.h"
#include "pqdifwriting.h"
#include "platform/clock.h"
#include "record/exports/pqdifquantity.h"

#include <cmath>

using namespace PqdifReading;
using ExportFeed::column;
using ExportFeed::contentOf;
using ExportFeed::kNone;
using Channels = QVector<Channel>;
using Series = QVector<QVector<double>>;

namespace {

RecordColumn line(const char *quantity, Statistic statistic, const char *channel, const char *unit, int order)
{
    RecordColumn one = column(quantity, statistic, channel, unit);
    one.order = qint16(order);
    return one;
}

/// U r.m.s. of two phases, mean, highest, lowest of each.
RecordTable voltages()
{
    RecordTable table { "rms", {} };
    for (Statistic statistic : { Statistic::Mean, Statistic::Maximum, Statistic::Minimum }) {
        for (const char *channel : { "L1", "L2" })
            table.columns << column("U_rms", statistic, channel, "V");
    }
    return table;
}

} // namespace

/// What the tables of a recording become in a PQDIF file, and the file as a whole.
class TstPqdifExport : public QObject, protected PqdifWriting
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    void recordTellsOfTheInstrument();
    void folderWhereOneStandsHasItsName();
    void connectionIsThatOfTheWiring_data();
    void connectionIsThatOfTheWiring();
    void trendIsAValueLogWithExtremesAndMean();
    void spectrumIsOneChannelWithAnInstanceForEachOrder();
    void countersKeepTheirDigits();
    void quantitiesHaveTheirMarks_data();
    void quantitiesHaveTheirMarks();
    void ratioOfAMainsSignalIsVoltsByVolts();
    void gapIsLeftOutOfItsChannelAlone();
    void rowsBackInTimeAreBroughtIntoOrder();
    void onlyIntervalBeganWithTheRecording();
    void dayEndsAnObservationAndMidnightBelongsToIt();
    void eventsInFrontLeaveTrendsTheirDays();
    void fullMemoryEndsAnObservation();
    void compressedFileHoldsTheSame();
    void largeRecordingIsSplit();
    void failedExportLeavesNothing();
    void emptyRecordingMakesAFileOfItsContainerAlone();
    void hostileInputIsLeftOut();
};

void TstPqdifExport::recordTellsOfTheInstrument()
{
    Clock::setForTest(kStart + 5 * kDay);
    QVERIFY(begin());
    QVERIFY(m_sink->table(0, voltages()));
    QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + 600000, { 230, 231, 240, 241, 220, 221 }));
    const File file = finish();
    Clock::useSystem();
    QCOMPARE(file.fault, QString());
    const Element &container = file.records[0].root;
    QCOMPARE(container["tagVersionInfo"].numbers, QVector<double>({ 1, 5, 1, 5 }));
    QCOMPARE(container["tagFileName"].text, QByteArray("week.pqd"));
    QCOMPARE(container["tagCreation"].time(), (kStart + 5 * kDay) * 1000);
    QVERIFY(container["tagNotes"].text.contains("end of their interval"));
    const Element &source = file.dataSource();
    QCOMPARE(source["tagNameDS"].text, QByteArray("240118 Muller"));
    QCOMPARE(source["tagSerialNumberDS"].text, QByteArray("1AA 0,0=7"));
    QCOMPARE(source["tagTimeZoneDS"].text, QByteArray("UTC"));
    QCOMPARE(source["tagEffective"].time(), kStart * 1000);
    QCOMPARE(source["tagDataSourceTypeID"].id, QByteArray("ID_DS_TYPE_MEASURE"));
    QCOMPARE(source["tagCustomSourceInfo"]["tagInstrumentModelName"].text, QByteArray("PQ \"9\", mark=2"));
    QCOMPARE(file.records[2].type, QByteArray("tagRecMonitorSettings"));
    const Element &settings = file.records[2].root;
    QCOMPARE(settings["tagNominalFrequency"].number(), 50.0);
    QCOMPARE(settings["tagSettingPhysicalConnection"].number(), 4.0); // star
    QCOMPARE(settings["tagUseTransducer"].number(), 0.0);
    QCOMPARE(settings["tagChannelSettingsArray"].children.size(), source["tagChannelDefns"].children.size());
}

void TstPqdifExport::folderWhereOneStandsHasItsName()
{
    const QString before = QDir::currentPath(), here = m_folder->filePath(QStringLiteral("240118 Here"));
    QVERIFY(QDir().mkpath(here) && QDir::setCurrent(here));
    m_sink.reset(new PqdifExport({ target(), QStringLiteral("."), false }, false));
    const bool isWritten = m_sink->begin(instrument()) && m_sink->table(0, voltages())
        && ExportFeed::row(m_sink.data(), 0, kStart + 600000, { 230, 231, 240, 241, 220, 221 });
    const File file = finish();
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(isWritten);
    QCOMPARE(file.fault, QString());
    QCOMPARE(file.dataSource()["tagNameDS"].text, QByteArray("240118 Here"));
}

void TstPqdifExport::connectionIsThatOfTheWiring_data()
{
    constexpr double kSinglePhase = 1, kTwoElements = 2, kStar = 4, kDelta = 5, kSplitPhase = 6, kNone = 0;
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<double>("connection");
    QTest::newRow("3P WYE") << 1 << kStar;
    QTest::newRow("3P IT") << 2 << kDelta;
    QTest::newRow("1P +NEUTRAL") << 3 << kSinglePhase;
    QTest::newRow("3P DELTA") << 4 << kDelta;
    QTest::newRow("1P SPLIT PHASE") << 5 << kSplitPhase;
    QTest::newRow("1P IT NO NEUTRAL") << 6 << kSinglePhase;
    QTest::newRow("2.5-ELEMENT") << 9 << kNone; // the format knows none such
    QTest::newRow("2-ELEMENT") << 10 << kTwoElements;
    QTest::newRow("unknown") << 0 << kNone;
}

void TstPqdifExport::connectionIsThatOfTheWiring()
{
    QFETCH(int, joinMode);
    QFETCH(double, connection);
    RecordFacts facts = instrument();
    facts.joinMode = joinMode;
    PqdifExport sink({ target(), m_folder->filePath(QStringLiteral("record")), true });
    QVERIFY(sink.begin(facts));
    QVERIFY(sink.table(0, voltages()));
    QVERIFY(ExportFeed::row(&sink, 0, kStart + 600000, { 230, 231, 240, 241, 220, 221 }));
    QVERIFY2(sink.end(facts), qPrintable(sink.error()));
    const File file = read();
    QCOMPARE(file.fault, QString());
    const Element &settings = file.records[2].root;
    QCOMPARE(settings["tagNominalFrequency"].number(), 50.0);
    QCOMPARE(settings["tagSettingPhysicalConnection"].numbers,
             connection > 0 ? QVector<double> { connection } : QVector<double>());
}

void TstPqdifExport::trendIsAValueLogWithExtremesAndMean()
{
    QVERIFY(begin());
    QVERIFY(m_sink->table(3, voltages()));
    QVERIFY(ExportFeed::row(m_sink.data(), 3, kStart + 600000, { 230, 231, 240, 241, 220, 221 }));
    QVERIFY(ExportFeed::row(m_sink.data(), 3, kStart + 1200000, { 230.5, 231.5, 242, 243, 222, 223 }));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    const Element &definition = file.definition("U_rms L2 (rms)");
    QCOMPARE(definition["tagPhaseID"].number(), 2.0);
    QCOMPARE(definition["tagQuantityTypeID"].id, QByteArray("ID_QT_VALUELOG"));
    QCOMPARE(definition["tagQuantityMeasuredID"].number(), 1.0);
    QByteArrayList values;
    for (const Element &series : definition["tagSeriesDefns"].children) {
        values << series["tagValueTypeID"].id;
        QCOMPARE(series["tagStorageMethodID"].number(), 1.0);
        const bool isTime = values.size() == 1;
        QCOMPARE(series["tagQuantityUnitsID"].number(), isTime ? 2.0 : 6.0);
        QCOMPARE(series["tagQuantityCharacteristicID"].id, QByteArray(isTime ? "QC_INSTANTANEOUS" : "QC_RMS"));
        QCOMPARE(series["tagSeriesNominalQuantity"].number(), isTime ? -1.0 : 230.0);
    }
    QCOMPARE(values, QByteArrayList({ "SERIES_TIME", "SERIES_MIN", "SERIES_MAX", "SERIES_AVG" }));
    QCOMPARE(file.observations().size(), size_t(1));
    const Element &observation = *file.observations()[0];
    QCOMPARE(observation["tagObservationName"].text, QByteArray("Trend rms"));
    QCOMPARE(observation["tagTimeStart"].time(), kStart * 1000);
    QCOMPARE(observation["tagTriggerMethodID"].number(), 2.0);
    QString fault;
    const Channels all = channels(file, observation, &fault);
    QCOMPARE(fault, QString());
    QCOMPARE(all.size(), 2);
    QCOMPARE(all[1].definition, file.definitionIndex("U_rms L2 (rms)"));
    QCOMPARE(all[1].series, Series({ { 600, 1200 }, { 221, 223 }, { 241, 243 }, { 231, 231.5 } }));
    // The time stands in the file once.
    const Element &second = observation["tagChannelInstances"].children[1]["tagSeriesInstances"].children[0];
    QVERIFY(!second.has("tagSeriesValues"));
    QCOMPARE(second["tagSeriesShareChannelIdx"].number(), 0.0);
}

void TstPqdifExport::spectrumIsOneChannelWithAnInstanceForEachOrder()
{
    RecordTable table { "harmonics_u", { column("U_distortion", Statistic::Mean, "L1", "V") } };
    for (int order = 0; order < 3; ++order)
        table.columns << line(QByteArray("Uh0" + QByteArray::number(order)), Statistic::Mean, "L1", "V", order);
    QVERIFY(begin());
    QVERIFY(m_sink->table(0, table));
    QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + 1000, { 3, 10, 11, 12 }));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QCOMPARE(file.dataSource()["tagChannelDefns"].children.size(), size_t(2));
    const Element &series = file.definition("Uh L1 (harmonics_u)")["tagSeriesDefns"].children[1];
    QCOMPARE(series["tagQuantityCharacteristicID"].id, QByteArray("QC_SPECTRA_HGROUP"));
    QString fault;
    const Channels all = channels(file, *file.observations()[0], &fault);
    QCOMPARE(fault, QString());
    QCOMPARE(all.size(), 4);
    for (int order = 0; order < 3; ++order) {
        QCOMPARE(all[1 + order].group, order);
        QCOMPARE(all[1 + order].definition, file.definitionIndex("Uh L1 (harmonics_u)"));
        QCOMPARE(all[1 + order].series[1], QVector<double>({ 10.0 + order }));
    }
}

void TstPqdifExport::countersKeepTheirDigits()
{
    QVERIFY(begin());
    QVERIFY(m_sink->table(0, { "energy", { column("EP", Statistic::None, "total", "Wh", CellType::Double) } }));
    QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + 1000, { 123456789.0123 }));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    const Element &definition = file.definition("EP total (energy)");
    QCOMPARE(definition["tagPhaseID"].number(), 13.0);
    QCOMPARE(definition["tagQuantityMeasuredID"].number(), 4.0);
    QCOMPARE(definition["tagSeriesDefns"].children[1]["tagValueTypeID"].id, QByteArray("SERIES_VAL"));
    QString fault;
    QCOMPARE(channels(file, *file.observations()[0], &fault)[0].series[1], QVector<double>({ 123456789.0123 }));
}

void TstPqdifExport::quantitiesHaveTheirMarks_data()
{
    QTest::addColumn<QByteArray>("quantity");
    QTest::addColumn<QByteArray>("channel");
    QTest::addColumn<QByteArray>("unit");
    QTest::addColumn<QVector<double>>("numbers"); // measured, phase, unit
    QTest::addColumn<QByteArray>("characteristic");
    const auto row = [](const QByteArray &quantity, const QByteArray &channel, const QByteArray &unit,
                        const QVector<double> &numbers, const QByteArray &characteristic) {
        QTest::addRow("%s %s %s", quantity.constData(), channel.constData(), unit.constData())
            << quantity << channel << unit << numbers << QByteArray("QC_" + characteristic);
    };
    const auto documented
        = DocumentPage(QStringLiteral("formats/interchange.md")).table(QStringLiteral("### Quantities"));
    QVERIFY(documented.size() > 40);
    for (const QStringList &cells : documented) {
        const bool hasChannel = cells[3] == QStringLiteral("channel");
        row(cells[0].toLatin1(), hasChannel ? "L2" : "", cells[1].toLatin1(),
            { cells[2].toDouble(), hasChannel ? 2 : cells[3].toDouble(), cells[4].toDouble() }, cells[5].toLatin1());
    }
    const char *phases[] = { "L1", "L2", "L3", "N", "L12", "L23", "L31" };
    for (int i = 0; i < 7; ++i)
        row("U_rms", phases[i], "V", { 1, i + 1.0, 6 }, "RMS");
    row("P", "total", "W", { 3, 13, 9 }, "P");
    row("something", "else", "furlong", { 0, 0, 0 }, "NONE");
}

/// The order in "Uh05", -1 where there is none.
int orderOf(const QByteArray &quantity)
{
    static const QRegularExpression order(QStringLiteral("h(\\d\\d)"));
    const QRegularExpressionMatch match = order.match(QString::fromLatin1(quantity));
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

void TstPqdifExport::quantitiesHaveTheirMarks()
{
    QFETCH(QByteArray, quantity);
    QFETCH(QByteArray, channel);
    QFETCH(QByteArray, unit);
    QFETCH(QVector<double>, numbers);
    QFETCH(QByteArray, characteristic);
    QVERIFY(begin());
    QVERIFY(m_sink->table(0, { "t", { line(quantity, Statistic::Mean, channel, unit, orderOf(quantity)) } }));
    QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + 1000, { 1 }));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    const Element &definition = file.dataSource()["tagChannelDefns"]["tagOneChannelDefn"];
    const Element &series = definition["tagSeriesDefns"].children[1];
    QCOMPARE(QVector<double>({ definition["tagQuantityMeasuredID"].number(), definition["tagPhaseID"].number(),
                               series["tagQuantityUnitsID"].number() }),
             numbers);
    QCOMPARE(series["tagQuantityCharacteristicID"].id, characteristic);
}

/// And not per unit, which behind a voltage transformer it is not.
void TstPqdifExport::ratioOfAMainsSignalIsVoltsByVolts()
{
    for (const char *quantity : { "U_signal1_ratio", "U_signal2_ratio" }) {
        QCOMPARE(pqdifQuantity(column(quantity, Statistic::Mean, "L1", "")).unit, 37U);
        QCOMPARE(pqdifQuantity(column(quantity, Statistic::Mean, "L1", "")).stem, QByteArray(quantity));
    }
}

void TstPqdifExport::gapIsLeftOutOfItsChannelAlone()
{
    QVERIFY(begin());
    QVERIFY(m_sink->table(0, voltages()));
    QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + 1000, { 1, 2, 3, 4, 5, 6 }));
    QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + 2000, { 11, 12, kNone, 14, 15, 16 }));
    QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + 3000, { 21, 22, 23, 24, 25, INFINITY }));
    QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + 4000, { 31, kNone, 33, 34, 35, 36 }));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QString fault;
    const Channels all = channels(file, *file.observations()[0], &fault);
    QCOMPARE(fault, QString());
    QCOMPARE(all.size(), 2);
    QCOMPARE(all[0].series, Series({ { 1, 3, 4 }, { 5, 25, 35 }, { 3, 23, 33 }, { 1, 21, 31 } }));
    QCOMPARE(all[1].series, Series({ { 1, 2 }, { 6, 16 }, { 4, 14 }, { 2, 12 } }));
}

void TstPqdifExport::rowsBackInTimeAreBroughtIntoOrder()
{
    QVERIFY(begin());
    QVERIFY(m_sink->table(0, { "frequency", { column("f", Statistic::Mean, "", "Hz") } }));
    for (int second : { 30, 10, 20 })
        QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + second * 1000, { double(second) }));
    const File file = finish();
    QString fault;
    const Channels all = channels(file, *file.observations()[0], &fault);
    QCOMPARE(file.observations()[0]->operator[]("tagTimeStart").time(), kStart * 1000);
    QCOMPARE(all[0].series, Series({ { 10, 20, 30 }, { 10, 20, 30 } }));
}

void TstPqdifExport::onlyIntervalBeganWithTheRecording()
{
    QVERIFY(begin());
    QVERIFY(m_sink->table(0, { "frequency", { column("f", Statistic::Mean, "", "Hz") } }));
    QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + 7500, { 50 }));
    const File file = finish();
    QString fault;
    QCOMPARE((*file.observations()[0])["tagTimeStart"].time(), kStart * 1000);
    QCOMPARE(channels(file, *file.observations()[0], &fault)[0].series[0], QVector<double>({ 7.5 }));
}

void TstPqdifExport::dayEndsAnObservationAndMidnightBelongsToIt()
{
    QVERIFY(begin());
    QVERIFY(m_sink->table(0, { "frequency", { column("f", Statistic::Mean, "", "Hz") } }));
    for (int hour : { 23, 24, 25, 26 })
        QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + hour * 3600000, { double(hour) }));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QCOMPARE(file.observations().size(), size_t(2));
    QString fault;
    const Channels first = channels(file, *file.observations()[0], &fault);
    const Channels second = channels(file, *file.observations()[1], &fault);
    QCOMPARE(first[0].series[1], QVector<double>({ 23, 24 }));
    QCOMPARE(second[0].series[1], QVector<double>({ 25, 26 }));
    QCOMPARE((*file.observations()[1])["tagTimeStart"].time(), (kStart + kDay) * 1000);
}

void TstPqdifExport::eventsInFrontLeaveTrendsTheirDays()
{
    QVERIFY(begin());
    QVERIFY(m_sink->table(0, { "events", { column("number", Statistic::None, "", "", CellType::Integer) } }));
    QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + 2 * kDay + 5000, { 1 })); // of the last day
    QVERIFY(m_sink->table(1, voltages()));
    for (int day = 0; day < 3; ++day)
        QVERIFY(ExportFeed::row(m_sink.data(), 1, kStart + day * kDay + 600000, { 230, 231, 240, 241, 220, 221 }));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QCOMPARE(file.observations().size(), 3);
}

void TstPqdifExport::fullMemoryEndsAnObservation()
{
    QVERIFY(begin());
    QVERIFY(m_sink->table(0, { "frequency", { column("f", Statistic::Mean, "", "Hz") } }));
    const int rows = PqdifTrends::kMostCells + 10;
    for (int i = 1; i <= rows; ++i)
        QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + i * 200, { double(i) }));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QCOMPARE(file.observations().size(), size_t(2));
    QString fault;
    QVector<double> all;
    for (const Element *observation : file.observations())
        all << channels(file, *observation, &fault)[0].series[1];
    QCOMPARE(all.size(), rows);
    QCOMPARE(all.last(), double(rows));
}

void TstPqdifExport::compressedFileHoldsTheSame()
{
    qint64 sizes[2] = {};
    for (bool compressed : { false, true }) {
        QVERIFY(begin(compressed));
        QVERIFY(m_sink->table(0, voltages()));
        for (int i = 1; i < 1000; ++i)
            QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + i * 1000, { 230, 230, 230, 230, 230, double(i) }));
        const File file = finish();
        QCOMPARE(file.fault, QString());
        QCOMPARE(file.records[0].root["tagCompressionStyleID"].number(), compressed ? 2.0 : 0.0);
        QString fault;
        QCOMPARE(channels(file, *file.observations()[0], &fault)[1].series[1].last(), 999.0);
        sizes[compressed] = QFileInfo(target()).size();
    }
    QVERIFY(sizes[1] * 2 < sizes[0]);
}

void TstPqdifExport::largeRecordingIsSplit()
{
    PqdifExport::Limits limits;
    limits.atDay = 5000;
    QVERIFY(begin(false, limits));
    QVERIFY(m_sink->table(0, { "frequency", { column("f", Statistic::Mean, "", "Hz") } }));
    for (int day = 0; day < 3; ++day) {
        for (int i = 1; i <= 1000; ++i)
            QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + day * kDay + i * 1000, { double(day) }));
    }
    QCOMPARE(finish().fault, QString());
    QCOMPARE(left(), QStringList({ "week.pqd", "week_2.pqd", "week_3.pqd" }));
    for (int day = 0; day < 3; ++day) {
        const File file = read(left()[day]);
        QCOMPARE(file.fault, QString());
        QString fault;
        QCOMPARE(file.records[0].root["tagFileName"].text, left()[day].toLatin1());
        QCOMPARE(channels(file, *file.observations()[0], &fault)[0].series[1], QVector<double>(1000, day));
    }
    // Without a new day a file ends where no more would fit.
    limits = {};
    limits.observations = 2;
    QVERIFY(begin(false, limits));
    for (int i = 0; i < 5; ++i) {
        RecordedEvent event = dip(i + 1, kStart + i, 10);
        event.item.startRms[0] = { { kStart + i, 1 } };
        QVERIFY(m_sink->event(event));
    }
    QCOMPARE(finish().fault, QString());
    QCOMPARE(read(QStringLiteral("week_2.pqd")).observations().size(), size_t(2));
    QCOMPARE(read(QStringLiteral("week_3.pqd")).fault, QString());
}

void TstPqdifExport::failedExportLeavesNothing()
{
    QVERIFY(begin());
    QVERIFY(m_sink->event(dip(1, kStart, 10)));
    m_sink.reset();
    QCOMPARE(left(), QStringList());
    QFile other(target());
    QVERIFY(other.open(QIODevice::WriteOnly));
    PqdifExport refused({ target(), {}, false });
    QVERIFY(!refused.begin(instrument()));
    QVERIFY(refused.error().contains(QStringLiteral("week.pqd")));
}

void TstPqdifExport::emptyRecordingMakesAFileOfItsContainerAlone()
{
    QVERIFY(begin());
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QCOMPARE(file.records.size(), size_t(1));
    QCOMPARE(file.records[0].root["tagFileName"].text, QByteArray("week.pqd"));
}

void TstPqdifExport::hostileInputIsLeftOut()
{
    QVERIFY(begin());
    RecordTable table = voltages();
    table.columns << column("text", Statistic::None, "", "", CellType::Text);
    QVERIFY(m_sink->table(0, table));
    QVERIFY(m_sink->table(1, { "events", { column("value", Statistic::None, "", "") } }));
    QVERIFY(m_sink->table(2, { "texts", { column("text", Statistic::None, "", "", CellType::Text) } }));
    constexpr qint64 kWild[] = { std::numeric_limits<qint64>::min(), -1, std::numeric_limits<qint64>::max() };
    for (qint64 time : kWild) {
        QVERIFY(ExportFeed::row(m_sink.data(), 0, time, { 1, 2, 3, 4, 5, 6 }, { "x" }));
        QVERIFY(m_sink->event(dip(1, time, 10)));
        RecordedEvent event = dip(2, kStart, 10);
        event.item.value = float(kNone);
        event.item.channel = int(time);
        event.item.endTime = time;
        event.item.startRms[0] = { { time, 1 } };
        QVERIFY(m_sink->event(event));
    }
    QVERIFY(ExportFeed::row(m_sink.data(), 1, kStart, { 1 }));
    QVERIFY(ExportFeed::row(m_sink.data(), 2, kStart, {}, { "x" }));
    const qint16 samples[16] = {};
    for (double rate : { 0.0, -1.0, kNone, double(INFINITY), 1e300 }) {
        RecordedWaveform waveform = waveformOf(RecordedWaveform::Event);
        waveform.sampleRate = rate;
        QVERIFY(m_sink->waveformBegin(waveform));
        QVERIFY(m_sink->waveformSamples(samples, 8));
        QVERIFY(m_sink->waveformEnd());
    }
    QVERIFY(ExportFeed::row(m_sink.data(), 0, kStart + 1000, { 1, 2, 3, 4, 5, 6 }, { "x" }));
    RecordedWaveform odd = waveformOf(RecordedWaveform::Event);
    odd.start = kNone;
    odd.trigger = std::numeric_limits<qint64>::max();
    odd.channels[0].factor = float(kNone);
    odd.channels[1].name = ExportFeed::wildText();
    odd.channels[1].unit = ExportFeed::wildText();
    QVERIFY(m_sink->waveformBegin(odd));
    QVERIFY(m_sink->waveformSamples(samples, 8));
    QVERIFY(m_sink->waveformEnd());
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QCOMPARE(file.observations().size(), size_t(2));
    QString fault;
    QCOMPARE(channels(file, *file.observations()[0], &fault).size(), 2); // of the odd waveform, in 1970
    QVERIFY(file.definitionIndex("U_L1 (waveform, steps)") >= 0);
    QCOMPARE(file.definition("U_L1 (waveform)").kind, 0);
    QCOMPARE(channels(file, *file.observations()[1], &fault).size(), 2);
    QCOMPARE(fault, QString());
}

QTEST_APPLESS_MAIN(TstPqdifExport)
#include "tst_pqdifexport.moc"
