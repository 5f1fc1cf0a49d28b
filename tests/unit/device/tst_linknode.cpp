#include "openlink.h"
#include "stdoutcapture.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QSocketNotifier>
#include <QTemporaryFile>
#include <QTest>
#include <cerrno>
#include <dlfcn.h>
#include <fcntl.h>
#include <functional>
#include <unistd.h>
#include <utility>

/// The node: start-up on the wire, writes with their repeats, a node that is missing, goes and comes back.
class TstLinkNode : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void startUpStopsTheStreamOnBothOpeningsOfTheNode();
    void missingNodePrintsOneLineAndIsNotTriedAgain();
    void nodeThatIsGoneAtTheReopeningPrintsOneLine();
    void framesPassStraightThrough();
    void bareSetUpFrameIsSentOnceAndRepeatedThreeTimes();
    void secondSetUpFrameIsDroppedWhileTheFirstRepeats();
    void oversizedSetUpFrameStaysInsideItsCopy();
    void updateFramesPassWhole();
    void farEndThatClosesIsTriedAgainQuietly();
    void nodeThatDisappearsAndComesBackIsReopened();
    void readErrorThatPassesLeavesAllStateAndSpinsNothing();
    void oneFailedReadInABurstCostsNothing();
    void readsThatFailForAMomentPauseOnlyForAMoment();
    void readsThatFailBehindEachPackageNeverPauseForLong();
    void streamThatNeverRunsDryLeavesFramesTheirTurn();
    void interruptedReadsAreNoErrors();
    void nodeThatOnlyFailsToBeReadIsNeverTakenForLost_data();
    void nodeThatOnlyFailsToBeReadIsNeverTakenForLost();
    void pollingTwinLeavesANodeThatIsGoneItsPause();
    void nodeThatIsLostForGoodIsOpenedAnew();
    void writesToAClosedFarEndFailUnnoticed();
    void readAnswersWhatTheNodeAnswers();
};

namespace {

/// Number of the next reads of the node that fail, and how; other descriptors are read as ever.
struct FailingReads
{
    int node = -1;
    int passing = 0; // reads that still succeed before
    int failing = 0;
    int error = 0;
} g_failing;

} // namespace

/// Done once at the begin of the link's pause.
static std::function<void()> g_inThePause;

/// Stands before the system's usleep().
extern "C" int usleep(useconds_t microseconds)
{
    static const auto real = reinterpret_cast<int (*)(useconds_t)>(::dlsym(RTLD_NEXT, "usleep"));
    if (const auto act = std::exchange(g_inThePause, nullptr))
        act();
    return real(microseconds);
}

/// Stands before the system's read().
extern "C" ssize_t read(int fd, void *buffer, size_t size)
{
    static const auto real = reinterpret_cast<ssize_t (*)(int, void *, size_t)>(::dlsym(RTLD_NEXT, "read"));
    if (fd == g_failing.node && fd >= 0 && g_failing.passing-- <= 0 && g_failing.failing > 0) {
        --g_failing.failing;
        errno = g_failing.error;
        return -1;
    }
    return real(fd, buffer, size);
}

namespace {

const QByteArray kStop = wordsToBytes({ 122, 193, 0, 123 });

QByteArray setUpFrame(quint32 mark)
{
    QVector<quint32> words(26, mark);
    words[0] = 198;
    return wordsToBytes(words);
}
} // namespace

void TstLinkNode::cleanup()
{
    g_failing = {};
    g_inThePause = nullptr;
    QFile::remove(ProcessorPeer::node());
}

void TstLinkNode::startUpStopsTheStreamOnBothOpeningsOfTheNode()
{
    ProcessorPeer peer;
    DeviceDSP dsp;
    QElapsedTimer timer;
    timer.start();
    dsp.openDSP();
    QVERIFY(timer.elapsed() >= 500);
    QVERIFY(peer.accept());
    QCOMPARE(peer.receive(), kStop);
    QCOMPARE(peer.receive(), QByteArray("")); // closed before the second opening
    QVERIFY(peer.accept());
    QCOMPARE(peer.receive(), kStop);
    QVERIFY(peer.receive().isNull()); // and nothing more
    QVERIFY(!peer.isConnectionWaiting());
}

void TstLinkNode::missingNodePrintsOneLineAndIsNotTriedAgain()
{
    StdoutCapture out;
    DeviceDSP dsp;
    dsp.openDSP();
    QCOMPARE(out.lines(), QStringList { QStringLiteral("failed to open /dev/mcasp") });
    ProcessorPeer late;
    dsp.DSPWrite(kStop.constData(), kStop.size());
    dsp.dspNotifier();
    dsp.datagramLoop();
    dsp.RecvStop();
    QTest::qWait(1500);
    QVERIFY(!late.isConnectionWaiting());
    QVERIFY(out.lines().isEmpty());
    QVERIFY(!dsp.findChild<QSocketNotifier *>());
}

void TstLinkNode::nodeThatIsGoneAtTheReopeningPrintsOneLine()
{
    StdoutCapture out;
    ProcessorPeer peer;
    DeviceDSP dsp;
    g_inThePause = [&peer] { // the link's 500 ms
        peer.accept();
        peer.goAway();
    };
    dsp.openDSP();
    QCOMPARE(out.lines(), QStringList { QStringLiteral("failed to open /dev/mcasp") });
}

void TstLinkNode::framesPassStraightThrough()
{
    OpenLink link;
    QVERIFY(link.open());
    QCOMPARE(link.startFrames, (QVector<QByteArray> { kStop, kStop }));
    const QVector<QByteArray> frames { wordsToBytes({ 122, 198, 1, 123 }), wordsToBytes({ 194, 0 }),
                                       wordsToBytes({ 174 }), QByteArray("\xc6", 1) };
    for (const QByteArray &frame : frames) {
        link.dsp.DSPWrite(frame.constData(), frame.size());
        QCOMPARE(link.peer.receive(1000), frame);
    }
    link.dsp.DSPWrite(nullptr, 16);
    link.dsp.DSPWrite(frames[0].constData(), 0);
    link.dsp.DSPWrite(frames[0].constData(), -1);
    QVERIFY(link.peer.receive().isNull());
}

void TstLinkNode::bareSetUpFrameIsSentOnceAndRepeatedThreeTimes()
{
    OpenLink link;
    QVERIFY(link.open());
    const QByteArray frame = setUpFrame(5);
    QCOMPARE(frame.size(), 104);
    QElapsedTimer timer;
    timer.start();
    link.dsp.DSPWrite(frame.constData(), frame.size());
    QCOMPARE(link.peer.receive(), frame);
    for (int repeat = 1; repeat <= 3; ++repeat) {
        QTRY_VERIFY(link.peer.isFrameWaiting());
        QCOMPARE(link.peer.receive(), frame);
        QVERIFY(timer.elapsed() >= 950 * repeat);
    }
    // The third repeat ends it: the next set-up is taken.
    const QByteArray next = setUpFrame(6);
    link.dsp.DSPWrite(next.constData(), next.size());
    QCOMPARE(link.peer.receive(), next);
}

void TstLinkNode::secondSetUpFrameIsDroppedWhileTheFirstRepeats()
{
    OpenLink link;
    QVERIFY(link.open());
    const QByteArray first = setUpFrame(1), second = setUpFrame(2);
    link.dsp.DSPWrite(first.constData(), first.size());
    link.dsp.DSPWrite(second.constData(), second.size());
    link.dsp.DSPWrite(kStop.constData(), kStop.size()); // others still pass
    QCOMPARE(link.peer.receive(), first);
    QCOMPARE(link.peer.receive(), kStop);
    QTRY_VERIFY(link.peer.isFrameWaiting());
    QCOMPARE(link.peer.receive(), first);
}

void TstLinkNode::oversizedSetUpFrameStaysInsideItsCopy()
{
    OpenLink link;
    QVERIFY(link.open());
    const QByteArray frame = setUpFrame(9) + QByteArray(5000, '\x11');
    link.dsp.DSPWrite(frame.constData(), frame.size());
    QCOMPARE(link.peer.receive(), frame);
    QTRY_VERIFY(link.peer.isFrameWaiting());
    QCOMPARE(link.peer.receive(), frame.left(104));
}

void TstLinkNode::updateFramesPassWhole()
{
    OpenLink link;
    QVERIFY(link.open());
    const QByteArray frame = wordsToBytes({ 122, 196, 2, 1 }) + QByteArray(150000, '\x42') + wordsToBytes({ 123 });
    link.dsp.firmwareUpdate(frame);
    QCOMPARE(link.peer.receive(1000), frame);
    link.dsp.firmwareUpdate(QByteArray("abc"));
    QCOMPARE(link.peer.receive(1000), QByteArray("abc"));
    link.dsp.firmwareUpdate(QByteArray());
    QVERIFY(link.peer.receive().isNull());
}

void TstLinkNode::farEndThatClosesIsTriedAgainQuietly()
{
    OpenLink link;
    QVERIFY(link.open());
    StdoutCapture out;
    QSignalSpy reopened(&link.dsp, &DeviceDSP::reopened);
    link.takeRms(500, 0);
    // A datagram in progress when the far end goes is lost.
    link.take(makeDatagram({ 0, 501, DatagramWave, 0, 0, 0 }, countingPayload(16385, 1)).mid(0, 3));
    link.peer.disconnect();
    QSocketNotifier *notifier = link.dsp.findChild<QSocketNotifier *>();
    QVERIFY(notifier);
    bool isStill = false; // behind the look that finds nobody
    connect(notifier, &QSocketNotifier::activated, this,
            [&] { isStill = !notifier->isEnabled() && reopened.isEmpty(); });
    QTRY_VERIFY(isStill); // nothing spins
    QTRY_COMPARE(reopened.size(), 1);
    QVERIFY(link.peer.accept());
    QVERIFY(link.peer.receive().isNull()); // setting up is the instrument's business
    link.peer.send(makePackage({ 0xC0A5FF00, 1, DatagramUpdate, 0, 0, 0 }));
    QTRY_COMPARE(link.datagrams.size(), 2);
    QVERIFY(out.lines().isEmpty());
}

void TstLinkNode::nodeThatDisappearsAndComesBackIsReopened()
{
    OpenLink link;
    QVERIFY(link.open());
    StdoutCapture out;
    QSignalSpy reopened(&link.dsp, &DeviceDSP::reopened);
    for (int round = 1; round <= 2; ++round) {
        link.peer.goAway();
        QTRY_VERIFY(!link.dsp.findChild<QSocketNotifier *>()); // tried in vain at least once
        link.dsp.DSPWrite(kStop.constData(), kStop.size());
        QVERIFY(link.peer.listen());
        QTRY_COMPARE(reopened.size(), round);
        QVERIFY(link.peer.accept());
        QVERIFY(!link.peer.isConnectionWaiting());
        link.peer.send(makePackage({ 0xC0A5FF00, 1, DatagramUpdate, 0, 0, 0 }));
        QTRY_COMPARE(link.datagrams.size(), round);
    }
    QVERIFY(out.lines().isEmpty());
}

void TstLinkNode::readErrorThatPassesLeavesAllStateAndSpinsNothing()
{
    OpenLink link;
    QVERIFY(link.open());
    StdoutCapture out;
    QSignalSpy reopened(&link.dsp, &DeviceDSP::reopened);
    QSocketNotifier *notifier = link.dsp.findChild<QSocketNotifier *>();
    QVERIFY(notifier);
    const QVector<QByteArray> wire = makeDatagram({ 0, 1, DatagramWave, 0, 0, 0 }, countingPayload(16385, 1));
    link.take(wire.mid(0, 4));
    const int node = static_cast<int>(notifier->socket());
    const int kept = ::dup(node), folder = ::open("/", O_RDONLY | O_DIRECTORY);
    QVERIFY(kept >= 0 && folder >= 0);
    ::dup2(folder, node); // always ready, and every read of it fails
    QTRY_VERIFY(!notifier->isEnabled());
    ::dup2(kept, node);
    ::close(kept);
    ::close(folder);
    QTRY_VERIFY(notifier->isEnabled());
    link.peer.send(wire.mid(4));
    QTRY_COMPARE(link.datagrams.size(), 1);
    QCOMPARE(link.datagrams[0].bytes, timeBytes(0) + countingPayload(16385, 1));
    QVERIFY(reopened.isEmpty());
    QVERIFY(out.lines().isEmpty());
}

void TstLinkNode::oneFailedReadInABurstCostsNothing()
{
    for (const int error : { EIO, EOVERFLOW, ENOBUFS }) {
        OpenLink link;
        QVERIFY(link.open());
        QSignalSpy reopened(&link.dsp, &DeviceDSP::reopened);
        QSocketNotifier *notifier = link.dsp.findChild<QSocketNotifier *>();
        const QVector<QByteArray> wire = makeDatagram({ 0, 1, DatagramWave, 0, 0, 0 }, countingPayload(16385, 1));
        link.peer.send(wire);
        g_failing = { int(notifier->socket()), 3, 1, error };
        link.pump();
        QCOMPARE(g_failing.failing, 0);
        QCOMPARE(link.datagrams.size(), 1); // the rest came with the same burst
        QCOMPARE(link.datagrams[0].bytes, timeBytes(0) + countingPayload(16385, 1));
        QVERIFY(notifier->isEnabled());
        g_failing = {};
        QTest::qWait(1200);
        QVERIFY(reopened.isEmpty());
        QVERIFY(!link.peer.isConnectionWaiting());
    }
}

void TstLinkNode::readsThatFailForAMomentPauseOnlyForAMoment()
{
    OpenLink link;
    QVERIFY(link.open());
    QSignalSpy reopened(&link.dsp, &DeviceDSP::reopened);
    QSocketNotifier *notifier = link.dsp.findChild<QSocketNotifier *>();
    g_failing = { int(notifier->socket()), 0, 10, EIO }; // two bursts of nothing else
    link.peer.send(makePackage({ 0xC0A5FF00, 1, DatagramUpdate, 0, 0, 0 }));
    QTRY_COMPARE(link.datagrams.size(), 1);
    QCOMPARE(link.dsp.findChild<QTimer *>("pause")->interval(), 20); // 10 ms, and then twice that
    QVERIFY(reopened.isEmpty());
    QVERIFY(!link.peer.isConnectionWaiting());
}

void TstLinkNode::readsThatFailBehindEachPackageNeverPauseForLong()
{
    OpenLink link;
    QVERIFY(link.open());
    QSocketNotifier *notifier = link.dsp.findChild<QSocketNotifier *>();
    for (quint32 id = 1; id <= 9; ++id) { // as many as would double the first pause up to a second
        g_failing = { int(notifier->socket()), 1, 5, EIO };
        link.take(makePackage({ 0xC0A5FF00, id, DatagramUpdate, 0, 0, 0 }));
        QCOMPARE(link.datagrams.size(), int(id));
        QVERIFY(!notifier->isEnabled());
        QCOMPARE(link.dsp.findChild<QTimer *>("pause")->interval(), 10); // ms
        QTRY_VERIFY(notifier->isEnabled());
    }
}

void TstLinkNode::streamThatNeverRunsDryLeavesFramesTheirTurn()
{
    OpenLink link;
    QVERIFY(link.open());
    constexpr int kPackages = 2000;
    QTemporaryFile stream; // a node that always has one more package
    QVERIFY(stream.open());
    for (quint32 id = 1; id <= kPackages; ++id)
        stream.write(makePackage({ 0xC0A5FF00, id, DatagramUpdate, 0, 0, 0 }));
    QVERIFY(stream.flush() && stream.seek(0));
    QSocketNotifier *notifier = link.dsp.findChild<QSocketNotifier *>();
    const int node = int(notifier->socket()), kept = ::dup(node);
    ::dup2(stream.handle(), node);
    int readBefore = -1;
    link.pump();
    QVERIFY(!link.datagrams.isEmpty() && link.datagrams.size() < kPackages / 4);
    // A frame that is queued while the stream runs is written between two turns.
    QMetaObject::invokeMethod(
        &link.dsp, [&] { readBefore = link.datagrams.size(); }, Qt::QueuedConnection);
    QTRY_VERIFY(readBefore >= 0);
    QVERIFY(readBefore < kPackages / 2);
    QTRY_COMPARE(link.datagrams.size(), kPackages); // the turns go on by themselves
    ::dup2(kept, node);
    ::close(kept);
}

void TstLinkNode::interruptedReadsAreNoErrors()
{
    OpenLink link;
    QVERIFY(link.open());
    QSocketNotifier *notifier = link.dsp.findChild<QSocketNotifier *>();
    for (int burst = 0; burst < 3; ++burst) {
        g_failing = { int(notifier->socket()), 0, 5, EINTR };
        link.pump();
        QCOMPARE(g_failing.failing, 0);
        QVERIFY(notifier->isEnabled());
    }
    QVERIFY(!link.dsp.findChild<QTimer *>("pause"));
}

void TstLinkNode::nodeThatOnlyFailsToBeReadIsNeverTakenForLost_data()
{
    QTest::addColumn<bool>("isReady");
    QTest::newRow("nothing to read") << false;
    QTest::newRow("ready, as poll() has it") << true;
}

void TstLinkNode::nodeThatOnlyFailsToBeReadIsNeverTakenForLost()
{
    QFETCH(bool, isReady);
    OpenLink link;
    QVERIFY(link.open());
    QSignalSpy reopened(&link.dsp, &DeviceDSP::reopened);
    QSocketNotifier *notifier = link.dsp.findChild<QSocketNotifier *>();
    if (isReady)
        link.peer.send(makePackage({ 0xC0A5FF00, 1, DatagramUpdate, 0, 0, 0 }));
    for (int burst = 0; burst < 12; ++burst) { // the pauses double from 10 ms to a second and stay there
        g_failing = { int(notifier->socket()), 0, 5, EIO };
        link.pump();
    }
    g_failing = {};
    QVERIFY(!notifier->isEnabled());
    QTRY_VERIFY(notifier->isEnabled());
    if (!isReady)
        link.peer.send(makePackage({ 0xC0A5FF00, 1, DatagramUpdate, 0, 0, 0 }));
    QTRY_COMPARE(link.datagrams.size(), 1);
    QVERIFY(reopened.isEmpty());
    QVERIFY(!link.peer.isConnectionWaiting());
}

void TstLinkNode::pollingTwinLeavesANodeThatIsGoneItsPause()
{
    OpenLink link;
    QVERIFY(link.open());
    QSignalSpy reopened(&link.dsp, &DeviceDSP::reopened);
    link.peer.goAway();
    QTRY_VERIFY(!link.dsp.findChild<QSocketNotifier *>());
    link.dsp.datagramLoop(); // finds no node each millisecond from here on, which must not begin the pause anew
    QVERIFY(link.peer.listen());
    QTRY_COMPARE(reopened.size(), 1);
    QVERIFY(link.peer.accept());
    link.peer.send(makePackage({ 0xC0A5FF00, 1, DatagramUpdate, 0, 0, 0 }));
    QTRY_COMPARE(link.datagrams.size(), 1);
    link.dsp.RecvStop();
}

void TstLinkNode::nodeThatIsLostForGoodIsOpenedAnew()
{
    OpenLink link;
    QVERIFY(link.open());
    StdoutCapture out;
    QSignalSpy reopened(&link.dsp, &DeviceDSP::reopened);
    const int node = static_cast<int>(link.dsp.findChild<QSocketNotifier *>()->socket());
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    ::close(ends[0]);
    ::dup2(ends[1], node); // like a driver that went: reads fail, poll() tells an error
    ::close(ends[1]);
    link.pump();
    QTRY_COMPARE(reopened.size(), 1);
    QVERIFY(link.peer.accept());
    link.peer.send(makePackage({ 0xC0A5FF00, 1, DatagramUpdate, 0, 0, 0 }));
    QTRY_COMPARE(link.datagrams.size(), 1);
    QVERIFY(out.lines().isEmpty());
}

void TstLinkNode::writesToAClosedFarEndFailUnnoticed()
{
    OpenLink link;
    QVERIFY(link.open());
    link.peer.disconnect();
    for (int i = 0; i < 3; ++i) // a broken pipe must not end the program
        link.dsp.DSPWrite(kStop.constData(), kStop.size());
    link.pump();
    QVERIFY(link.datagrams.isEmpty());
}

void TstLinkNode::readAnswersWhatTheNodeAnswers()
{
    OpenLink link;
    QVERIFY(link.open());
    char buffer[16];
    QCOMPARE(link.dsp.DSPRead(buffer, sizeof(buffer)), -1);
    link.peer.send(QByteArray("hello"));
    QCOMPARE(link.dsp.DSPRead(buffer, sizeof(buffer)), 5);
    link.peer.disconnect();
    QCOMPARE(link.dsp.DSPRead(buffer, sizeof(buffer)), 0);
}

QTEST_GUILESS_MAIN(TstLinkNode)
#include "tst_linknode.moc"
