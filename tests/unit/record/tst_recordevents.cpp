#include "record/tables/recordevents.h"

#include <QTest>

namespace {

RecordEvents::Place dipAt(qint64 start)
{
    RecordEvents::Place place;
    place.head.type = EventDip;
    place.head.startTime = start;
    place.head.endTime = start + 10;
    return place;
}

} // namespace

/// The order of a recording's events, and which of them a waveform was cut out around.
class TstRecordEvents : public QObject
{
    Q_OBJECT

private slots:
    void waveformBelongsToTheNearestEventThatHasNone();
    void waveformOfADistantMomentBelongsToNoEvent_data();
    void waveformOfADistantMomentBelongsToNoEvent();
    void moreEventsThanAnyMeasurementFindsAreRefused();
};

void TstRecordEvents::waveformBelongsToTheNearestEventThatHasNone()
{
    RecordEvents events;
    for (qint64 start : { 5000, 1020, 1000 })
        QVERIFY(events.add(dipAt(start)));
    events.sort();
    QCOMPARE(events.startOf(1), qint64(1000));
    // 810 samples before its event, at 20480 a second, are 39.55 ms: this one is that of the dip at 1020 ms.
    const double start = 1020 - 39.55;
    QCOMPARE(events.ofWave(start, 100), 2);
    QCOMPARE(events.ofWave(start, 100), 1); // the next of the same moment
    QCOMPARE(events.ofWave(start, 100), 2); // both have one
    QCOMPARE(events.ofWave(5000 - 39.55, 100), 3);
}

void TstRecordEvents::waveformOfADistantMomentBelongsToNoEvent_data()
{
    QTest::addColumn<double>("start");
    QTest::addColumn<int>("event");
    QTest::newRow("ends before the event") << 899.0 << 0;
    QTest::newRow("ends with the event") << 900.0 << 1;
    QTest::newRow("begins with the event") << 1000.0 << 1;
    QTest::newRow("begins less than a millisecond behind it") << 1000.9 << 1;
    QTest::newRow("begins behind it") << 1001.1 << 0;
}

void TstRecordEvents::waveformOfADistantMomentBelongsToNoEvent()
{
    QFETCH(double, start);
    RecordEvents events;
    QCOMPARE(events.ofWave(start, 100), 0);
    QVERIFY(events.add(dipAt(1000)));
    QTEST(events.ofWave(start, 100), "event");
}

void TstRecordEvents::moreEventsThanAnyMeasurementFindsAreRefused()
{
    RecordEvents events;
    for (int i = 0; i < 65536; ++i)
        QVERIFY(events.add(dipAt(i)));
    QVERIFY(!events.add(dipAt(65536)));
    QCOMPARE(events.count(), 65536);
}

QTEST_GUILESS_MAIN(TstRecordEvents)
#include "tst_recordevents.moc"
