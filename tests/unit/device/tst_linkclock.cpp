#include "openlink.h"
#include "platform/clock.h"
#include "stdoutcapture.h"

#include <QTest>
#include <memory>

/// The clock rule that runs on half-cycle datagrams, and the writes that steer it.
class TstLinkClock : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void firstComparisonIsOnThe30thRmsDatagram();
    void otherKindsDoNotCount();
    void secondComparisonIs30DatagramsLaterAndTheThird86400();
    void agreeingClocksAreComparedOnEveryDatagram();
    void differenceOfExactlyTwoSecondsMakesNoCorrection_data();
    void differenceOfExactlyTwoSecondsMakesNoCorrection();
    void unsetProcessorClockIsNeverUsedAndTheCountRunsOn();
    void bdsTimeIsComparedOnEveryDatagram();
    void usingBdsComesWithEachNonZeroWordOnly();
    void clockWriteMakesTheNextDatagramCompare();
    void bareSetUpFrameMakesTheNextDatagramCompare();

private:
    void takeMany(int count, quint32 seconds, quint32 milliseconds = 0, quint32 bds = 0);

    std::unique_ptr<OpenLink> m_link;
    quint32 m_id = 1;
};

namespace {
constexpr qint64 kNow = 1600000000000; // ms
constexpr quint32 kNowSeconds = 1600000000;
constexpr quint32 kLater = kNowSeconds + 10;
} // namespace

void TstLinkClock::init()
{
    Clock::setForTest(kNow);
    m_id = 1;
    m_link = std::make_unique<OpenLink>();
    QVERIFY(m_link->open());
}

void TstLinkClock::cleanup()
{
    m_link.reset();
    Clock::useSystem();
}

void TstLinkClock::takeMany(int count, quint32 seconds, quint32 milliseconds, quint32 bds)
{
    for (int i = 0; i < count; ++i) {
        m_link->takeRms(m_id++, seconds, milliseconds, bds);
        m_link->datagrams.clear();
    }
}

void TstLinkClock::firstComparisonIsOnThe30thRmsDatagram()
{
    takeMany(29, kLater);
    QVERIFY(m_link->timeStamps.isEmpty());
    takeMany(1, kLater);
    QCOMPARE(m_link->timeStamps, QVector<quint32> { kLater });
}

void TstLinkClock::otherKindsDoNotCount()
{
    HeadValues head;
    head.type = DatagramFlicker;
    head.seconds = kLater;
    head.bds = 1;
    for (int i = 0; i < 40; ++i) {
        head.id = m_id++;
        m_link->take(makePackage(head));
    }
    QVERIFY(m_link->timeStamps.isEmpty());
    QVERIFY(m_link->bdsWords.isEmpty());
    takeMany(29, kLater);
    QVERIFY(m_link->timeStamps.isEmpty());
}

void TstLinkClock::secondComparisonIs30DatagramsLaterAndTheThird86400()
{
    takeMany(30, kLater);
    QCOMPARE(m_link->timeStamps.size(), 1);
    takeMany(29, kLater);
    QCOMPARE(m_link->timeStamps.size(), 1);
    takeMany(1, kLater);
    QCOMPARE(m_link->timeStamps.size(), 2);
    takeMany(86399, kLater);
    QCOMPARE(m_link->timeStamps.size(), 2);
    takeMany(1, kLater);
    QCOMPARE(m_link->timeStamps.size(), 3);
}

void TstLinkClock::agreeingClocksAreComparedOnEveryDatagram()
{
    takeMany(100, kNowSeconds, 500);
    QVERIFY(m_link->timeStamps.isEmpty());
    takeMany(1, kNowSeconds, 2001);
    QCOMPARE(m_link->timeStamps, QVector<quint32> { kNowSeconds });
}

void TstLinkClock::differenceOfExactlyTwoSecondsMakesNoCorrection_data()
{
    QTest::addColumn<qint64>("local"); // ms
    QTest::addColumn<bool>("corrected");
    QTest::newRow("2000 ms ahead") << kNow + 2000 << false;
    QTest::newRow("2001 ms ahead") << kNow + 2001 << true;
    QTest::newRow("2000 ms behind") << kNow - 2000 << false;
    QTest::newRow("2001 ms behind") << kNow - 2001 << true;
    QTest::newRow("the year 1970") << qint64(0) << true;
}

void TstLinkClock::differenceOfExactlyTwoSecondsMakesNoCorrection()
{
    QFETCH(qint64, local);
    QFETCH(bool, corrected);
    Clock::setForTest(local);
    takeMany(1, kNowSeconds, 0, 1);
    QCOMPARE(m_link->timeStamps.size(), corrected ? 1 : 0);
}

void TstLinkClock::unsetProcessorClockIsNeverUsedAndTheCountRunsOn()
{
    Clock::setForTest(0);
    takeMany(40, 1500000000); // the 30th to 40th are looked at and refused: the count falls below 1
    QVERIFY(m_link->timeStamps.isEmpty());
    takeMany(40, 1500000001);
    QVERIFY(m_link->timeStamps.isEmpty());
    takeMany(1, 1500000001, 0, 1); // BDS time brings it back
    QCOMPARE(m_link->timeStamps, QVector<quint32> { 1500000001 });
}

void TstLinkClock::bdsTimeIsComparedOnEveryDatagram()
{
    takeMany(3, kLater, 0, 7);
    QCOMPARE(m_link->timeStamps.size(), 3);
    takeMany(1, 1500000000, 0, 7);
    QCOMPARE(m_link->timeStamps.size(), 3);
}

void TstLinkClock::usingBdsComesWithEachNonZeroWordOnly()
{
    takeMany(2, kNowSeconds, 0, 0);
    QVERIFY(m_link->bdsWords.isEmpty());
    takeMany(2, kNowSeconds, 0, 5);
    takeMany(1, kNowSeconds, 0, 0x80000000);
    takeMany(1, kNowSeconds, 0, 0);
    QCOMPARE(m_link->bdsWords, (QVector<quint32> { 5, 5, 0x80000000 }));
}

void TstLinkClock::clockWriteMakesTheNextDatagramCompare()
{
    m_link->dsp.writeHWClock(QByteArray::fromHex("0102030405060708"));
    QCOMPARE(m_link->peer.receive(1000), wordsToBytes({ 197, 0, 0x04030201, 0x08070605 }));
    takeMany(1, kLater);
    QCOMPARE(m_link->timeStamps.size(), 1);
    // Too short and too long arrays stay inside the frame.
    m_link->dsp.writeHWClock(QByteArray("\x01", 1));
    QCOMPARE(m_link->peer.receive(1000), wordsToBytes({ 197, 0, 1, 0 }));
    m_link->dsp.writeHWClock(QByteArray(100, '\xff'));
    QCOMPARE(m_link->peer.receive(1000), wordsToBytes({ 197, 0, 0xFFFFFFFF, 0xFFFFFFFF }));
}

void TstLinkClock::bareSetUpFrameMakesTheNextDatagramCompare()
{
    QVector<quint32> words(26, 0);
    words[0] = 198;
    const QByteArray frame = wordsToBytes(words);
    m_link->dsp.DSPWrite(frame.constData(), frame.size());
    takeMany(1, kLater);
    QCOMPARE(m_link->timeStamps.size(), 1);
}

QTEST_GUILESS_MAIN(TstLinkClock)
#include "tst_linkclock.moc"
