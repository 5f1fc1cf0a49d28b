#include "device/deliveryqueue.h"
#include "stdoutcapture.h"

#include <QTest>
#include <QVector>

#include <thread>
#include <unistd.h>

/// The hand-over of results: order, bound, what goes when it is full, memory.
class TstDeliveryQueue : public QObject
{
    Q_OBJECT

private slots:
    void comesOutInTheOrderOfArrivalWhateverTheKind();
    void asksForOneTurnUntilItBegins();
    void tenSecondsOfEverythingFit();
    void noMoreThan64MiBWait();
    void beyondTheBoundTheOldestOfTheLargestKindGoes();
    void smallDeliveriesAreBoundedToo();
    void droppedOnesArePrintedOnceAtTheBeginningAndOnceAtTheEnd();
    void droppedClockWordsAreNamedLikeTheirSignals();
    void unknownKindsAreNotTaken();
    void emptiedQueueGivesItsMemoryBack();
    void twoThreadsLoseNothing();
};

namespace {

Delivery datagram(int kind, int size, char mark = 'x')
{
    return { kind, QByteArray(size, mark), 0 };
}

Delivery word(int kind, quint32 value)
{
    return { kind, {}, value };
}

QVector<Delivery> takeAll(DeliveryQueue &queue)
{
    QVector<Delivery> all;
    queue.beginTurn();
    for (Delivery one; queue.take(&one);)
        all << one;
    return all;
}

qint64 residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toLongLong() * ::sysconf(_SC_PAGESIZE)
                                          : -1;
}

} // namespace

void TstDeliveryQueue::comesOutInTheOrderOfArrivalWhateverTheKind()
{
    DeliveryQueue queue;
    const int kinds[] = { 3, 1, Delivery::BdsWord, 1, 0, 6, Delivery::TimeStamp, 3, 4, 5 };
    quint32 number = 0;
    for (const int kind : kinds)
        queue.put({ kind, QByteArray::number(number), number }), ++number;
    const QVector<Delivery> all = takeAll(queue);
    QCOMPARE(all.size(), int(number));
    for (int i = 0; i < all.size(); ++i) {
        QCOMPARE(all[i].kind, kinds[i]);
        QCOMPARE(all[i].word, quint32(i));
        QCOMPARE(all[i].bytes, QByteArray::number(i));
    }
    QCOMPARE(queue.bytes(), qint64(0));
}

void TstDeliveryQueue::asksForOneTurnUntilItBegins()
{
    DeliveryQueue queue;
    QVERIFY(queue.put(datagram(1, 10)));
    QVERIFY(!queue.put(datagram(1, 10)));
    queue.beginTurn();
    QVERIFY(queue.put(datagram(1, 10))); // came while the turn runs: another turn, should this one have looked already
    QVERIFY(!queue.put(datagram(1, 10)));
    QCOMPARE(takeAll(queue).size(), 4);
    QVERIFY(queue.put(datagram(1, 10)));
}

void TstDeliveryQueue::tenSecondsOfEverythingFit()
{
    // The densest stream: every 200 ms an aggregation, a wave and half cycles, every second flicker, at ten times
    // speed.
    DeliveryQueue queue;
    for (int tick = 0; tick < 10 * 5 * 10; ++tick) {
        queue.put(datagram(DatagramAggregation, 13000));
        queue.put(datagram(DatagramRMS_1_2, 2180));
        queue.put(datagram(DatagramWave, 65548));
        queue.put(word(Delivery::BdsWord, 1));
        if (tick % 5 == 0)
            queue.put(datagram(DatagramFlicker, 6012));
    }
    QCOMPARE(queue.dropped(), quint64(0));
    QCOMPARE(takeAll(queue).size(), 500 * 4 + 100);
}

void TstDeliveryQueue::noMoreThan64MiBWait()
{
    DeliveryQueue queue;
    const Delivery wave = datagram(DatagramWave, 65548);
    for (int i = 0; i < 1500; ++i) { // 94 MiB
        queue.put(wave);
        QVERIFY(queue.bytes() <= 64 * 1024 * 1024);
    }
    QVERIFY(queue.bytes() > 63 * 1024 * 1024);
    QVERIFY(queue.dropped() > 400);
}

void TstDeliveryQueue::beyondTheBoundTheOldestOfTheLargestKindGoes()
{
    StdoutCapture out;
    constexpr qint64 kOne = 1000 + DeliveryQueue::kBytesBeside;
    DeliveryQueue queue(10 * kOne); // ten of a thousand bytes
    queue.put(datagram(DatagramFirmwareInfo, 1000, 'f'));
    queue.put(datagram(DatagramAggregation, 1000, 'a'));
    for (int i = 0; i < 8; ++i)
        queue.put(datagram(DatagramWave, 1000, char('0' + i)));
    QCOMPARE(queue.dropped(), quint64(0));
    QCOMPARE(queue.bytes(), 10 * kOne);
    queue.put(datagram(DatagramWave, 1000, '8'));
    queue.put(datagram(DatagramAggregation, 1000, 'b')); // makes room at the waves' cost: they have most
    QCOMPARE(queue.dropped(), quint64(2));
    QCOMPARE(queue.bytes(), 10 * kOne);
    QByteArray marks;
    for (const Delivery &one : takeAll(queue))
        marks += one.bytes.at(0);
    QCOMPARE(marks, QByteArray("fa2345678b"));
}

void TstDeliveryQueue::smallDeliveriesAreBoundedToo()
{
    StdoutCapture out;
    DeliveryQueue queue(100 * DeliveryQueue::kBytesBeside);
    for (quint32 i = 0; i < 1000; ++i)
        queue.put(word(Delivery::BdsWord, i));
    QCOMPARE(queue.dropped(), quint64(900));
    const QVector<Delivery> all = takeAll(queue);
    QCOMPARE(all.size(), 100);
    QCOMPARE(all.first().word, 900u);
    QCOMPARE(all.last().word, 999u);
}

void TstDeliveryQueue::droppedOnesArePrintedOnceAtTheBeginningAndOnceAtTheEnd()
{
    StdoutCapture out;
    DeliveryQueue queue(5000);
    for (int i = 0; i < 100; ++i) {
        queue.put(datagram(DatagramWave, 2000));
        queue.put(datagram(DatagramFlicker, 1000));
    }
    QCOMPARE(out.linesWithoutNumbers(),
             QStringList { QStringLiteral("L: 0 > Results are not taken, dropping the oldest: datagramWave") });
    const quint64 dropped = queue.dropped();
    queue.beginTurn();
    const QStringList lines = out.linesWithoutNumbers();
    QCOMPARE(lines.size(), 1);
    const QRegularExpression line(
        QStringLiteral("^L: 0 > Results are taken again, dropped: datagramWave (\\d+); datagramFlicker (\\d+);$"));
    const auto match = line.match(lines.first());
    QVERIFY2(match.hasMatch(), qPrintable(lines.first()));
    QCOMPARE(match.captured(1).toULongLong() + match.captured(2).toULongLong(), dropped);
    QCOMPARE(takeAll(queue).size(), int(200 - dropped));
    QVERIFY(out.lines().isEmpty());
}

void TstDeliveryQueue::droppedClockWordsAreNamedLikeTheirSignals()
{
    for (const auto &[kind, name] :
         { std::pair(Delivery::TimeStamp, "dspTimeStamp"), { Delivery::BdsWord, "usingBDS" } }) {
        StdoutCapture out;
        DeliveryQueue queue(100 * DeliveryQueue::kBytesBeside);
        for (quint32 i = 0; i <= 100; ++i)
            queue.put(word(kind, i));
        queue.beginTurn();
        QCOMPARE(out.linesWithoutNumbers(),
                 QStringList({ QStringLiteral("L: 0 > Results are not taken, dropping the oldest: %1").arg(name),
                               QStringLiteral("L: 0 > Results are taken again, dropped: %1 1;").arg(name) }));
    }
}

void TstDeliveryQueue::unknownKindsAreNotTaken()
{
    DeliveryQueue queue;
    QVERIFY(!queue.put(datagram(-1, 10)));
    QVERIFY(!queue.put(datagram(Delivery::KindCount, 10)));
    QVERIFY(takeAll(queue).isEmpty());
}

void TstDeliveryQueue::emptiedQueueGivesItsMemoryBack()
{
    DeliveryQueue queue;
    [[maybe_unused]] const qint64 before = residentBytes();
    // On a thread of its own, as the link: its allocations lie in an arena of their own.
    std::thread([&queue] {
        for (int i = 0; i < 900; ++i)
            queue.put(datagram(DatagramWave, 65548));
    }).join();
    QVERIFY(queue.bytes() > 50 << 20);
#if !defined(__SANITIZE_THREAD__) // its allocator shows other sizes
    QVERIFY(residentBytes() - before > 50 << 20);
#endif
    queue.beginTurn();
    int taken = 0;
    for (Delivery one; queue.take(&one);)
        ++taken;
    QCOMPARE(taken, 900);
    QCOMPARE(queue.bytes(), qint64(0));
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // their allocators keep what is freed
    QVERIFY2(residentBytes() - before < 10 << 20, qPrintable(QString::number(residentBytes() - before)));
#endif
}

void TstDeliveryQueue::twoThreadsLoseNothing()
{
    constexpr quint32 kCount = 50000;
    DeliveryQueue queue;
    std::thread source([&queue] {
        for (quint32 i = 0; i < kCount; ++i)
            queue.put({ int(i % Delivery::KindCount), QByteArray(100, char(i)), i });
    });
    quint32 next = 0;
    bool inOrder = true;
    while (next < kCount && inOrder) {
        queue.beginTurn();
        for (Delivery one; queue.take(&one); ++next)
            inOrder = inOrder && one.word == next && one.bytes == QByteArray(100, char(next));
    }
    source.join();
    QVERIFY(inOrder);
    QCOMPARE(queue.dropped(), quint64(0));
}

QTEST_APPLESS_MAIN(TstDeliveryQueue)
#include "tst_deliveryqueue.moc"
