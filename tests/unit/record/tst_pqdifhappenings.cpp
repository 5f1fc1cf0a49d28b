#include "pqdifwriting.h"

#include <cmath>

using namespace PqdifReading;
using ExportFeed::kNone;
using Channels = QVector<Channel>;
using Series = QVector<QVector<double>>;

/// What events and waveforms become in a PQDIF file.
class TstPqdifHappenings : public QObject, protected PqdifWriting
{
    Q_OBJECT

private slots:
    void init() { reset(); }

    void eventHasItsCurvesAndStandsInTheList();
    void categoryFollowsKindAndDuration_data();
    void categoryFollowsKindAndDuration();
    void eventThatWentOnLastedUntilTheRecordingsEndAtLeast_data();
    void eventThatWentOnLastedUntilTheRecordingsEndAtLeast();
    void waveformHasItsSamples();
    void waveformOfAnEventHasItsCategory();
    void longCaptureIsTakenInPieces();
};

void TstPqdifHappenings::eventHasItsCurvesAndStandsInTheList()
{
    RecordedEvent event = dip(7, kStart + 10000, 250);
    event.item.startRms[0] = { { kStart + 9990, 230 }, { kStart + 10000, 150.5f }, { kStart + 10010, 151 } };
    event.item.startRms[4] = { { kStart + 9990, 5 }, { kStart + 10000, 9 }, { kStart + 10010, 8 } };
    // What goes back in time, and what is no number, has no place in a series.
    event.item.endRms[0] = { { kStart + 10010, 1 }, { kStart + 10250, float(kNone) }, { kStart + 10260, 229 } };
    RecordedEvent running = dip(8, kStart + 20000, 0);
    running.item.finished = 0;
    QVERIFY(begin());
    QVERIFY(m_sink->event(event));
    QVERIFY(m_sink->event(running));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QCOMPARE(file.observations().size(), size_t(2));
    const Element &curves = *file.observations()[0];
    QCOMPARE(curves["tagObservationName"].text, QByteArray("dip L2 2026-11-22T00:00:10.000Z"));
    QCOMPARE(curves["tagTimeStart"].time(), (kStart + 9990) * 1000);
    QCOMPARE(curves["tagTimeTriggered"].time(), (kStart + 10000) * 1000);
    QCOMPARE(curves["tagTriggerMethodID"].number(), 1.0);
    QCOMPARE(curves["tagObservationSerial"].number(), 7.0);
    QCOMPARE(curves["tagCharactDuration"].number(), 0.25);
    QCOMPARE(curves["tagDisturbanceCategoryID"].id, QByteArray("DISTURB_SHORTDUR_INSTANT_SAG"));
    QString fault;
    Channels all = channels(file, curves, &fault);
    QCOMPARE(fault, QString());
    QCOMPARE(all.size(), 2);
    QCOMPARE(all[0].definition, file.definitionIndex("U_rms L1 (event)"));
    QCOMPARE(all[0].series, Series({ { 0, 0.01, 0.02, 0.27 }, { 230, 150.5, 151, 229 } }));
    QCOMPARE(all[1].definition, file.definitionIndex("I_rms L1 (event)"));
    QCOMPARE(all[1].series, Series({ { 0, 0.01, 0.02 }, { 5, 9, 8 } }));
    const Element &list = *file.observations()[1];
    QCOMPARE(list["tagObservationName"].text, QByteArray("Events"));
    all = channels(file, list, &fault);
    QCOMPARE(all.size(), 2);
    QCOMPARE(all[0].series, Series({ { 0 }, { 150.5 }, { 0.25 } }));
    QCOMPARE(all[1].definition, file.definitionIndex("dip L2 (events that went on)"));
    QCOMPARE(all[1].series, Series({ { 10 }, { 150.5 }, { 86380 } }));
    const Element &definition = file.definition("dip L2 (events)");
    QCOMPARE(definition["tagQuantityTypeID"].id, QByteArray("ID_QT_MAGDURTIME"));
    QCOMPARE(definition["tagSeriesDefns"].children[2]["tagValueTypeID"].id, QByteArray("SERIES_DURATION"));
}

void TstPqdifHappenings::categoryFollowsKindAndDuration_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("duration");
    QTest::addColumn<QByteArray>("category");
    const auto row = [](const char *name, int kind, int duration, const char *category) {
        QTest::newRow(name) << kind << duration << QByteArray(category);
    };
    row("30 cycles", EventDip, 600, "DISTURB_SHORTDUR_INSTANT_SAG");
    row("longer", EventDip, 601, "DISTURB_SHORTDUR_MOMENT_SAG");
    row("3 s", EventDip, 3000, "DISTURB_SHORTDUR_MOMENT_SAG");
    row("a minute", EventDip, 60000, "DISTURB_SHORTDUR_TEMP_SAG");
    row("above a minute", EventDip, 60001, "DISTURB_LONGDUR_SAG");
    row("swell", EventSwell, 100, "DISTURB_SHORTDUR_INSTANT_SWELL");
    row("long swell", EventSwell, 5000, "DISTURB_SHORTDUR_TEMP_SWELL");
    row("interruption", EventInterruption, 100, "DISTURB_SHORTDUR_MOMENT_INTERRUPT");
    row("interruption of 4 s", EventInterruption, 4000, "DISTURB_SHORTDUR_TEMP_INTERRUPT");
    row("interruption of an hour", EventInterruption, 3600000, "DISTURB_LONGDUR_INTERRUPT");
    row("rapid change", EventRvc, 0, "DISTURB_NONE");
    row("flicker", EventFlicker, 0, "DISTURB_VOLTAGEFLUCTUATION");
    row("unbalance", EventUnbalance, 0, "DISTURB_IMBALANCE");
    row("frequency", EventFrequency, 0, "DISTURB_POWERFREQVARIATION");
    row("harmonic", EventHarmonicLast, 0, "DISTURB_WAVEDISTORT_HARMONIC");
    row("thd", EventThd, 0, "DISTURB_WAVEDISTORT_HARMONIC");
    row("inrush", EventInrush, 0, "DISTURB_NONE");
    row("unknown", 1000, 0, "DISTURB_NONE");
}

void TstPqdifHappenings::categoryFollowsKindAndDuration()
{
    QFETCH(int, kind);
    QFETCH(int, duration);
    QFETCH(QByteArray, category);
    RecordedEvent event = dip(1, kStart, duration);
    event.item.type = kind;
    event.item.startRms[0] = { { kStart, 230 } };
    QVERIFY(begin());
    QVERIFY(m_sink->event(event));
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QCOMPARE(file.observations().size(), size_t(2));
    bool found = false;
    for (const Element *observation : file.observations()) {
        if (observation->has("tagDisturbanceCategoryID")) {
            QCOMPARE((*observation)["tagDisturbanceCategoryID"].id, category);
            found = true;
        }
    }
    QVERIFY(found);
}

void TstPqdifHappenings::eventThatWentOnLastedUntilTheRecordingsEndAtLeast_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("before"); // ms from its start to the end of the recording
    QTest::addColumn<QByteArray>("category");
    QTest::addColumn<double>("seconds");
    const auto row = [](const char *name, int kind, int before, const char *category, double seconds) {
        QTest::newRow(name) << kind << before << QByteArray(category) << seconds;
    };
    row("interruption for 2 s", EventInterruption, 2000, "DISTURB_SHORTDUR_MOMENT_INTERRUPT", 2);
    row("interruption for 4 s", EventInterruption, 4000, "DISTURB_SHORTDUR_TEMP_INTERRUPT", 4);
    row("interruption for an hour", EventInterruption, 3600000, "DISTURB_LONGDUR_INTERRUPT", 3600);
    row("dip for 100 ms", EventDip, 100, "DISTURB_SHORTDUR_INSTANT_SAG", double(0.1F));
    row("dip for an hour", EventDip, 3600000, "DISTURB_LONGDUR_SAG", 3600);
    row("swell for 5 s", EventSwell, 5000, "DISTURB_SHORTDUR_TEMP_SWELL", 5);
    row("a clock that was set back", EventDip, -1000, "DISTURB_SHORTDUR_INSTANT_SAG", 0);
}

void TstPqdifHappenings::eventThatWentOnLastedUntilTheRecordingsEndAtLeast()
{
    QFETCH(int, kind);
    QFETCH(int, before);
    RecordedEvent event = dip(3, instrument().end - before, 0);
    event.item.type = kind;
    event.item.finished = 0;
    event.item.startRms[0] = { { event.item.startTime, 230 } };
    RecordedWaveform waveform = waveformOf(RecordedWaveform::Event);
    waveform.event = 3;
    const qint16 samples[] = { 1, 2 };
    QVERIFY(begin());
    QVERIFY(m_sink->event(event) && m_sink->waveformBegin(waveform) && m_sink->waveformSamples(samples, 1)
            && m_sink->waveformEnd());
    const File file = finish();
    QCOMPARE(file.fault, QString());
    int categories = 0, lists = 0;
    for (const Element *observation : file.observations()) {
        QVERIFY(!observation->has("tagCharactDuration")); // nobody knows how long it lasted
        if (observation->has("tagDisturbanceCategoryID")) {
            QTEST((*observation)["tagDisturbanceCategoryID"].id, "category");
            ++categories;
        } else {
            QString fault;
            QTEST(channels(file, *observation, &fault)[0].series[2][0], "seconds");
            ++lists;
        }
    }
    QCOMPARE(categories, 2); // curves, waveform
    QCOMPARE(lists, 1);
}

void TstPqdifHappenings::waveformHasItsSamples()
{
    QVERIFY(begin());
    const qint16 samples[] = { 1, 2, -32768, 32767, 5, 6 };
    RecordedWaveform waveform = waveformOf(RecordedWaveform::Transient);
    waveform.trigger = 2;
    QVERIFY(m_sink->waveformBegin(waveform));
    QVERIFY(m_sink->waveformSamples(samples, 3));
    QVERIFY(m_sink->waveformEnd());
    const File file = finish();
    QCOMPARE(file.fault, QString());
    const Element &observation = *file.observations()[0];
    QCOMPARE(observation["tagTimeStart"].time(), kStart * 1000 + 123);
    QCOMPARE(observation["tagTimeTriggered"].time(), kStart * 1000 + 123 + 195);
    QCOMPARE(observation["tagDisturbanceCategoryID"].id, QByteArray("DISTURB_TRANSIENT"));
    const Element &definition = file.definition("U_L1 (waveform)");
    QCOMPARE(definition["tagQuantityTypeID"].id, QByteArray("ID_QT_WAVEFORM"));
    QCOMPARE(definition["tagSeriesDefns"].children[0]["tagStorageMethodID"].number(), 4.0);
    QCOMPARE(definition["tagSeriesDefns"].children[1]["tagStorageMethodID"].number(), 3.0);
    QCOMPARE(definition["tagSeriesDefns"].children[1]["tagQuantityCharacteristicID"].id,
             QByteArray("QC_INSTANTANEOUS"));
    const Element &time = observation["tagChannelInstances"]["tagOneChannelInst"]["tagSeriesInstances"].children[0];
    QCOMPARE(time["tagSeriesValues"].numbers, QVector<double>({ 1, 3, 9.765625e-05 }));
    QCOMPARE(time["tagSeriesValues"].type, 41);
    QString fault;
    const Channels all = channels(file, observation, &fault);
    QCOMPARE(fault, QString());
    QCOMPARE(all[0].series, Series({ { 0, 9.765625e-05, 1.953125e-04 }, { 0.5, -16384, 2.5 } }));
    QCOMPARE(all[1].series[1], QVector<double>({ 0.5, 8191.75, 1.5 }));
}

void TstPqdifHappenings::waveformOfAnEventHasItsCategory()
{
    QVERIFY(begin());
    const qint16 samples[] = { 1, 2 };
    RecordedWaveform waveform = waveformOf(RecordedWaveform::Event);
    waveform.event = 3;
    QVERIFY(m_sink->event(dip(3, kStart, 1000)));
    QVERIFY(m_sink->waveformBegin(waveform));
    QVERIFY(m_sink->waveformSamples(samples, 1));
    QVERIFY(m_sink->waveformEnd());
    const File file = finish();
    QCOMPARE(file.fault, QString());
    const Element &observation = *file.observations()[1]; // 123 us behind the list
    QCOMPARE(observation["tagObservationName"].text, QByteArray("Waveform of event 3"));
    QCOMPARE(observation["tagObservationAggregationSerial"].number(), 3.0);
    QCOMPARE(observation["tagDisturbanceCategoryID"].id, QByteArray("DISTURB_SHORTDUR_MOMENT_SAG"));
}

void TstPqdifHappenings::longCaptureIsTakenInPieces()
{
    QVERIFY(begin());
    QVERIFY(m_sink->waveformBegin(waveformOf(RecordedWaveform::Capture)));
    const int piece = PqdifHappenings::kMostSamples / 2, count = piece + 5;
    QVector<qint16> samples;
    for (int i = 0; i < count; ++i)
        samples << qint16(i % 30000) << 0;
    QVERIFY(m_sink->waveformSamples(samples.constData(), 100));
    QVERIFY(m_sink->waveformSamples(samples.constData() + 200, count - 100));
    QVERIFY(m_sink->waveformEnd());
    const File file = finish();
    QCOMPARE(file.fault, QString());
    QCOMPARE(file.observations().size(), size_t(2));
    QString fault;
    const Channels second = channels(file, *file.observations()[1], &fault);
    QCOMPARE(second[0].series[1].size(), 5);
    QCOMPARE(second[0].series[1][0], piece % 30000 * 0.5);
    QCOMPARE((*file.observations()[1])["tagTimeStart"].time(),
             kStart * 1000 + qint64(std::llround(123 + piece * 97.65625)));
}

QTEST_APPLESS_MAIN(TstPqdifHappenings)
#include "tst_pqdifhappenings.moc"
