#include "pqdifwriting.h"
#include "record/exports/pqdifquantity.h"

using namespace PqdifReading;
using ExportFeed::column;
using ExportFeed::kNone;
using Series = QVector<QVector<double>>;

namespace {

constexpr int kMostEvents = 65536; // of a list, of names that are remembered; values of a curve, too

RecordTable table(const char *name, int columns)
{
    RecordTable table { name, {} };
    for (int i = 0; i < columns; ++i)
        table.columns << column("x" + QByteArray::number(i), Statistic::Mean, "L1", "V");
    return table;
}

} // namespace

/// What of a recording has no plain place in a PQDIF file, and where one file has to end and cannot go on.
class TstPqdifParts : public QObject, protected PqdifWriting
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    void channelsOfOneNameThatDifferAreSeveral();
    void listOfManyEventsComesInPieces();
    void curveIsCutBehindWhatAnyInstrumentStores();
    void eventOfNoInputAndNoFrequencyIsListed();
    void tablesOfHappeningsAreNoTrends();
    void recordingWithoutAUsableStartBeginsWithItsRows_data();
    void recordingWithoutAUsableStartBeginsWithItsRows();
    void rowsOfOneMomentAreAllThere();
    void recordingOfGapsHasChannelsAndNoValues();
    void channelsWithTimesOfTheirOwnHaveThem();
    void columnsOfOneChannelAreOfTheLargerKind();
    void captureOfExactlyAPieceIsOneObservation();
    void signsInsideAQuantityStay();
    void dayWithoutAnythingMakesNoFile();
    void nextFileThatIsThereEndsTheExport_data();
    void nextFileThatIsThereEndsTheExport();

private:
    bool beginWith(const RecordFacts &facts)
    {
        m_sink.reset(new PqdifExport({ target(), QString(), false }, false));
        return m_sink->begin(facts);
    }
    bool put(int number, qint64 time, const std::vector<double> &values)
    {
        return ExportFeed::row(m_sink.data(), number, time, values);
    }
};

void TstPqdifParts::channelsOfOneNameThatDifferAreSeveral()
{
    PqdifChannel base;
    base.name = "U";
    base.phase = 1;
    base.measured = PqdifMeasured::Voltage;
    base.series << pqdifTimeSeries() << PqdifSeries { PqdifValue::kSeriesVal, 6, PqdifValue::kQcRms };
    QVector<PqdifChannel> all(9, base);
    all[1].phase = 2;
    all[2].type = PqdifValue::kWaveform;
    all[3].measured = PqdifMeasured::Current;
    all[4].series[1].value = PqdifValue::kSeriesMax;
    all[5].series[1].unit = 7;
    all[6].series[1].characteristic = PqdifValue::kQcPeak;
    all[7].series[1].storage = PqdifStorage::Scaled;
    all[8].series[1].nominal = 230;
    PqdifChannels channels;
    for (int time = 0; time < 2; ++time) {
        for (int i = 0; i < all.size(); ++i)
            QCOMPARE(channels.numberOf(all[i]), i);
    }
    QCOMPARE(channels.count(), all.size());
    PqdifChannel other = base;
    other.name = "U #2"; // a name that the second one has in the file
    QCOMPARE(channels.numberOf(other), all.size());
    QVERIFY(!(other == base));
}

void TstPqdifParts::listOfManyEventsComesInPieces()
{
    constexpr int kEvents = kMostEvents + 3;
    QVERIFY(begin());
    for (int i = 1; i <= kEvents; ++i)
        QVERIFY(m_sink->event(dip(i, kStart + i, 250)));
    const qint16 samples[2] = {};
    for (const int event : { 1, kEvents }) {
        RecordedWaveform waveform = waveformOf(RecordedWaveform::Event);
        waveform.event = event;
        QVERIFY(m_sink->waveformBegin(waveform) && m_sink->waveformSamples(samples, 1) && m_sink->waveformEnd());
    }
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QVector<int> listed;
    QList<QByteArray> categories;
    for (const Element *observation : file.observations()) {
        QString fault;
        const auto found = channels(file, *observation, &fault);
        QCOMPARE(fault, QString());
        if ((*observation)["tagObservationName"].text == "Events")
            listed << found[0].series[0].size();
        else
            categories << (*observation)["tagDisturbanceCategoryID"].id;
    }
    QCOMPARE(listed, QVector<int>({ kMostEvents, 3 }));
    // Of the last ones no more is known than that they are.
    QCOMPARE(categories, QList<QByteArray>({ "DISTURB_SHORTDUR_INSTANT_SAG", "DISTURB_NONE" }));
}

void TstPqdifParts::curveIsCutBehindWhatAnyInstrumentStores()
{
    RecordedEvent event = dip(1, kStart, 250);
    for (int i = 0; i < kMostEvents + 5; ++i)
        event.item.startRms[0].append({ kStart + i, float(i) });
    QVERIFY(begin() && m_sink->event(event));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QString fault;
    const auto found = channels(file, *file.observations()[0], &fault);
    QCOMPARE(found[0].series[1].size(), kMostEvents);
    QCOMPARE(found[0].series[1].last(), double(kMostEvents - 1));
}

void TstPqdifParts::eventOfNoInputAndNoFrequencyIsListed()
{
    RecordFacts facts = instrument();
    facts.nominalFrequency = 0; // durations count by cycles of 50 Hz
    QVERIFY(beginWith(facts));
    int number = 0;
    for (const qint64 duration : { 600, 601 }) {
        RecordedEvent event = dip(++number, kStart, duration);
        event.item.channel = 7;
        event.item.startRms[0] = { { kStart, 230 } };
        QVERIFY(m_sink->event(event));
    }
    RecordedEvent odd = dip(++number, kStart, 10);
    odd.item.type = -5;
    odd.item.startRms[0] = { { kStart, 230 } };
    QVERIFY(m_sink->event(odd));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QVERIFY(file.definitionIndex("dip (events)") >= 0 && file.definitionIndex("kind -5 L2 (events)") >= 0);
    QList<QByteArray> categories;
    for (const Element *observation : file.observations()) {
        if (observation->has("tagDisturbanceCategoryID"))
            categories << (*observation)["tagDisturbanceCategoryID"].id;
    }
    QCOMPARE(categories,
             QList<QByteArray>({ "DISTURB_SHORTDUR_INSTANT_SAG", "DISTURB_SHORTDUR_MOMENT_SAG", "DISTURB_NONE" }));
    // Without a nominal frequency there are no settings.
    for (const Record &record : file.records)
        QVERIFY(record.type != "tagRecMonitorSettings");
}

void TstPqdifParts::tablesOfHappeningsAreNoTrends()
{
    QVERIFY(begin());
    int number = 0;
    for (const char *name : { "events", "transients", "system_log" }) {
        QVERIFY(m_sink->table(number, table(name, 1)));
        QVERIFY(put(number++, kStart + 1000, { 1 }));
    }
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QCOMPARE(file.records.size(), size_t(1)); // the container alone
}

void TstPqdifParts::recordingWithoutAUsableStartBeginsWithItsRows_data()
{
    QTest::addColumn<qint64>("start");
    QTest::addColumn<qint64>("effective"); // as the file tells it
    QTest::addColumn<qint64>("first"); // of the only row's observation
    QTest::newRow("before the row") << kStart << kStart << kStart;
    QTest::newRow("none") << qint64(0) << qint64(0) << kStart + 5000;
    QTest::newRow("behind the row, by a clock set back") << kStart + 9000 << kStart + 9000 << kStart + 5000;
    QTest::newRow("behind the year 9999") << qint64(253402300800000) << qint64(0) << kStart + 5000;
    QTest::newRow("before 1970") << qint64(-1000) << qint64(0) << kStart + 5000;
    QTest::newRow("outside every calendar") << std::numeric_limits<qint64>::max() << qint64(0) << kStart + 5000;
}

void TstPqdifParts::recordingWithoutAUsableStartBeginsWithItsRows()
{
    QFETCH(qint64, start);
    QFETCH(qint64, effective);
    QFETCH(qint64, first);
    RecordFacts facts = instrument();
    facts.start = start;
    QVERIFY(beginWith(facts) && m_sink->table(0, table("rms", 1)) && put(0, kStart + 5000, { 230 }));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QCOMPARE(file.dataSource()["tagEffective"].time(), effective * 1000);
    QCOMPARE((*file.observations()[0])["tagTimeStart"].time(), first * 1000);
}

void TstPqdifParts::rowsOfOneMomentAreAllThere()
{
    QVERIFY(begin() && m_sink->table(0, table("rms", 1)));
    for (const int second : { 10, 12, 12 })
        QVERIFY(put(0, kStart + second * 1000, { double(second) }));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QString fault;
    const auto found = channels(file, *file.observations()[0], &fault);
    QCOMPARE((*file.observations()[0])["tagTimeStart"].time(), (kStart + 8000) * 1000); // intervals of 2 s
    QCOMPARE(found[0].series, Series({ { 2, 4, 4 }, { 10, 12, 12 } }));
}

void TstPqdifParts::recordingOfGapsHasChannelsAndNoValues()
{
    QVERIFY(begin() && m_sink->table(0, table("rms", 2)));
    for (int second = 1; second <= 3; ++second)
        QVERIFY(put(0, kStart + second * 1000, { kNone, double(INFINITY) }));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QVERIFY(file.observations().empty());
    QCOMPARE(file.dataSource()["tagChannelDefns"].children.size(), size_t(2));
    QCOMPARE(file.records.size(), size_t(3)); // container, data source, settings
}

void TstPqdifParts::channelsWithTimesOfTheirOwnHaveThem()
{
    constexpr int kChannels = 12;
    QVERIFY(begin() && m_sink->table(0, table("rms", kChannels)));
    for (int second = 1; second <= kChannels; ++second) {
        std::vector<double> values(kChannels, second);
        values[std::size_t(second - 1)] = kNone; // each channel lacks another row
        QVERIFY(put(0, kStart + second * 1000, values));
    }
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QString fault;
    const auto found = channels(file, *file.observations()[0], &fault);
    QCOMPARE(fault, QString());
    QCOMPARE(found.size(), kChannels);
    for (int channel = 0; channel < kChannels; ++channel) {
        QVector<double> seconds;
        for (int second = 1; second <= kChannels; ++second) {
            if (second != channel + 1)
                seconds << second;
        }
        QCOMPARE(found[channel].series, Series({ seconds, seconds }));
    }
}

void TstPqdifParts::columnsOfOneChannelAreOfTheLargerKind()
{
    constexpr double kPrecise = 1234567890.125; // has no place in a float
    RecordTable energy { "energy", {} };
    energy.columns << column("EP", Statistic::Minimum, "L1", "Wh", CellType::Double)
                   << column("EP", Statistic::Maximum, "L1", "Wh") << column("EP", Statistic::Mean, "L1", "Wh");
    QVERIFY(begin() && m_sink->table(0, energy));
    QVERIFY(put(0, kStart + 1000, { kPrecise, 3, 1 }));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QString fault;
    const auto found = channels(file, *file.observations()[0], &fault);
    QCOMPARE(found[0].series.mid(1), Series({ { kPrecise }, { 3 }, { 1 } })); // lowest, highest, mean
}

void TstPqdifParts::captureOfExactlyAPieceIsOneObservation()
{
    const QVector<qint16> samples(PqdifHappenings::kMostSamples);
    QVERIFY(begin() && m_sink->waveformBegin(waveformOf(RecordedWaveform::Capture)));
    QVERIFY(m_sink->waveformSamples(samples.constData(), samples.size() / 2) && m_sink->waveformEnd());
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QCOMPARE(file.observations().size(), size_t(1));
    QString fault;
    QCOMPARE(channels(file, *file.observations()[0], &fault)[0].series[1].size(), samples.size() / 2);
}

void TstPqdifParts::signsInsideAQuantityStay()
{
    RecordColumn odd = column("U.h-05", Statistic::Mean, "L1", "V");
    odd.order = 5;
    QCOMPARE(pqdifQuantity(odd).stem, QByteArray("U.h-"));
    QCOMPARE(pqdifQuantity(odd).group, 5);
}

void TstPqdifParts::dayWithoutAnythingMakesNoFile()
{
    QVERIFY(begin(false, { 1, 1 << 20, 100 }) && m_sink->table(0, table("rms", 1)));
    QVERIFY(put(0, kStart + 1000, { 230 }));
    QVERIFY(put(0, kStart + kDay + 1000, { kNone }));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QCOMPARE(left(), QStringList("week.pqd"));
    QCOMPARE(file.observations().size(), size_t(1));
}

void TstPqdifParts::nextFileThatIsThereEndsTheExport_data()
{
    QTest::addColumn<QString>("by");
    for (const char *by : { "a day", "tables", "events at the end", "curves", "a list", "rows", "samples" })
        QTest::newRow(by) << QString::fromLatin1(by);
}

void TstPqdifParts::nextFileThatIsThereEndsTheExport()
{
    QFETCH(QString, by);
    const QString next = m_folder->filePath(QStringLiteral("week_2.pqd"));
    QFile mine(next);
    QVERIFY(mine.open(QIODevice::WriteOnly) && mine.write("mine") == 4);
    mine.close();
    // One observation has room.
    m_sink.reset(new PqdifExport({ target(), QString(), false }, false, { 1, 1 << 30, 1 }));
    QVERIFY(m_sink->begin(instrument()));
    RecordedEvent curved = dip(1, kStart, 250);
    curved.item.startRms[0] = { { kStart, 230 } };
    bool isTaken = true;
    if (by == QStringLiteral("curves") || by == QStringLiteral("a list")) {
        QVERIFY(m_sink->event(curved));
        if (by == QStringLiteral("curves"))
            isTaken = m_sink->event(curved);
        for (int i = 0; i < kMostEvents && isTaken; ++i)
            isTaken = m_sink->event(dip(2 + i, kStart, 250));
    } else if (by == QStringLiteral("samples")) {
        const QVector<qint16> samples(4 * PqdifHappenings::kMostSamples);
        QVERIFY(m_sink->waveformBegin(waveformOf(RecordedWaveform::Capture)));
        isTaken = m_sink->waveformSamples(samples.constData(), samples.size() / 2);
    } else if (by == QStringLiteral("rows")) {
        constexpr int kColumns = 1000;
        QVERIFY(m_sink->table(0, table("rms", kColumns)));
        for (int i = 0; i < 3 * PqdifTrends::kMostCells / kColumns && isTaken; ++i)
            isTaken = put(0, kStart + 1000 + i, std::vector<double>(kColumns, i));
    } else {
        const int tables = by == QStringLiteral("tables") ? 3 : 1;
        const char *const names[] = { "rms", "power", "frequency" };
        for (int number = 0; number < tables; ++number)
            QVERIFY(m_sink->table(number, table(names[number], 1)) && put(number, kStart + 1000, { 230 }));
        if (by == QStringLiteral("a day"))
            isTaken = put(0, kStart + kDay + 1000, { 230 });
        else if (by == QStringLiteral("events at the end"))
            QVERIFY(m_sink->event(dip(1, kStart, 250)));
    }
    const bool isAtEnd = by == QStringLiteral("tables") || by == QStringLiteral("events at the end");
    QCOMPARE(isTaken, isAtEnd);
    QVERIFY(!m_sink->end(instrument()));
    QVERIFY2(m_sink->error().startsWith(next + QStringLiteral(": is there already")), qPrintable(m_sink->error()));
    QVERIFY(m_sink->isRefused());
    m_sink.reset();
    QCOMPARE(left(), QStringList("week_2.pqd"));
    QCOMPARE(ExportFeed::contentOf(next), QByteArray("mine"));
}

QTEST_APPLESS_MAIN(TstPqdifParts)
#include "tst_pqdifparts.moc"
