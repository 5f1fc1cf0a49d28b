#include "device/devicedsp.h"

#include "device/controlframe.h"
#include "device/datagramkinds.h"
#include "platform/clock.h"
#include "platform/lineoutput.h"
#include "platform/target.h"

#include <QDateTime>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <cerrno>
#include <cmath>
#include <csignal>
#include <cstring>
#include <limits>
#include <poll.h>
#include <pthread.h>
#include <unistd.h>

namespace {

constexpr quint32 kFirstPackage = 0x80000000;
constexpr quint32 kLastPackage = 0x40000000;
constexpr quint32 kNumberMask = 0x000000FF;
constexpr quint32 kPattern = 0x00A5FF00; // every one of these bits is set in a good flag
constexpr int kReadBudget = 5; // failed reads in a row that end a burst
constexpr quint32 kClockIsSet = 1500000000; // s since 1970; a stamp up to this one comes from a clock never set
constexpr double kClockTolerance = 2000.0; // ms
constexpr qint32 kClockReload = 86400; // r.m.s. datagrams
constexpr int kSetupRepeats = 3;
constexpr int kSetupInterval = 1000; // ms
constexpr int kPackagesPerTurn = 64; // some 50 ms of a stream; then frames that wait to be written have their turn
constexpr int kFirstPause = 10; // ms after a burst that only failed; each further one doubles the pause
constexpr int kReadPause = 1000; // ms between looks at a node that cannot be read
constexpr useconds_t kStopPause = 500000; // microseconds that the processor gets to fall silent

#pragma pack(push, 1)
/// Head of the first package of a datagram; any other package has the first 16 bytes only. Little-endian.
struct PackageHead
{
    quint32 flag; // bit fields: docs/link-protocol.md, "Flag"
    quint32 id; // running count of datagrams
    quint32 unread1[2];
    quint32 type; // low 8 bits: __datagramtype
    quint32 bdsWord; // r.m.s. datagrams: not 0 when the processor's time comes from its BDS receiver
    quint32 unread2[2];
    quint32 seconds; // s since 1970
    quint32 milliseconds; // ms to add
};
static_assert(sizeof(PackageHead) == Link::kFirstHeadBytes, "the payload of a first package starts at byte 40");
static_assert(offsetof(PackageHead, type) == 16 && offsetof(PackageHead, seconds) == 32, "as on the wire");

/// The datagram under assembly.
struct DatagramStore
{
    quint8 flagValue; // bits 29 to 24 of the first package's flag; used by nothing
    quint8 type; // __datagramtype, or a value beyond it
    quint32 id; // of the last first package
    quint64 msec; // ms since 1970
    qint32 wordCount; // words of a whole datagram of this kind
    qint32 receivedWords; // with the two time words
    quint32 data[Link::kWaveWords]; // word 0 and 1: msec, low word first; then the payload
};
static_assert(offsetof(DatagramStore, data) == 22, "packed");
#pragma pack(pop)

// One of each, since one object on one thread reads the link.
DatagramStore g_store;
char g_datagram[Link::kPackageBytes]; // a short read leaves the rest of the package before
PackageHead g_head;
int wanted_pno = 0;

/// Copies payload words of the package behind the words received so far, cut at the ends of package and store.
void storeWords(int packageOffset, qint64 words)
{
    const qint64 room = qint64(Link::kWaveWords) - g_store.receivedWords;
    const qint64 there = (Link::kPackageBytes - packageOffset) / 4;
    const qint64 taken = std::min({ words, room, there });
    if (taken > 0)
        memcpy(reinterpret_cast<char *>(&g_store) + offsetof(DatagramStore, data) + 4 * size_t(g_store.receivedWords),
               g_datagram + packageOffset, 4 * size_t(taken));
}

/// Text of packed-decimal bytes: seconds, minutes, hours, (unused), day, month, year, century.
QDateTime decodePackedDecimal(const QByteArray &bytes)
{
    const auto digit = [&bytes](int at) {
        const quint8 packed = static_cast<quint8>(bytes.at(at));
        return 10 * (packed >> 4) + (packed & 0x0F);
    };
    return QDateTime(QDate(100 * digit(7) + digit(6), digit(5), digit(4)), QTime(digit(2), digit(1), digit(0)));
}

using DatagramSignal = void (DeviceDSP::*)(__datagramtype, const QByteArray &);
constexpr DatagramSignal kSignals[] = {
    &DeviceDSP::datagramAggregation, &DeviceDSP::datagramRMS_1_2, &DeviceDSP::datagramTransient,
    &DeviceDSP::datagramWave,        &DeviceDSP::datagramFlicker, &DeviceDSP::datagramFirmwareInfo,
    &DeviceDSP::datagramUpdate,
};
static_assert(std::size(kSignals) == std::size(kDatagramKinds), "one signal per kind");

} // namespace

DeviceDSP::DeviceDSP(QObject *parent) : QObject(parent)
{
    g_store = {};
    g_head = {};
    wanted_pno = 0;
}

DeviceDSP::~DeviceDSP()
{
    closeDSPDev();
    delete m_recvTimer;
}

void DeviceDSP::openDSP()
{
    // A socket that plays the node raises SIGPIPE when its far end has gone; a failed write is a failed write.
    sigset_t pipeSignal;
    sigemptyset(&pipeSignal);
    sigaddset(&pipeSignal, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &pipeSignal, nullptr);

    if (!isNodeOpened())
        return;
    resetDSP();
    ::usleep(kStopPause);
    closeDSPDev();
    if (!isNodeOpened())
        return;
    resetDSP();
    m_recvTimer = new QTimer;
    connect(m_recvTimer, &QTimer::timeout, this, &DeviceDSP::datagramLoop);
    m_clockUpdated = 0;
}

bool DeviceDSP::isNodeOpened()
{
    if (openDSPDev())
        return true;
    LineOutput::print("failed to open /dev/mcasp\n");
    return false;
}

bool DeviceDSP::openDSPDev()
{
    m_fd = Target::openProcessor();
    if (m_fd < 0)
        return false;
    m_notifier = new QSocketNotifier(m_fd, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &DeviceDSP::dspNotifier);
    return true;
}

void DeviceDSP::closeDSPDev()
{
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
    if (m_notifier) {
        m_notifier->disconnect();
        delete m_notifier;
    }
    m_notifier = nullptr;
}

void DeviceDSP::resetDSP()
{
    static const quint32 frame[] = { ControlFrame::kStart, ControlFrame::StreamControl, 0, ControlFrame::kEnd };
    writeNode(frame, sizeof(frame));
}

/// The node cannot be read: its notifier would fire for ever.
void DeviceDSP::pauseReading(int milliseconds)
{
    if (m_notifier)
        m_notifier->setEnabled(false);
    if (!m_pauseTimer) {
        m_pauseTimer = new QTimer(this);
        m_pauseTimer->setObjectName(QStringLiteral("pause"));
        connect(m_pauseTimer, &QTimer::timeout, this, &DeviceDSP::resumeReading);
    }
    if (!m_pauseTimer->isActive())
        m_pauseTimer->start(milliseconds);
}

/// A burst of nothing but errors. One that passes costs a moment; only a node that cannot be read for a second and
/// tells an error or a hang-up is taken for lost.
void DeviceDSP::burstFailed()
{
    if (m_failedPause >= kReadPause && isNodeHungUp())
        m_nodeGone = true;
    m_failedPause = std::clamp(2 * m_failedPause, kFirstPause, kReadPause);
    pauseReading(m_nodeGone ? 0 : m_failedPause);
}

bool DeviceDSP::isNodeHungUp() const
{
    pollfd node { m_fd, POLLIN, 0 };
    return ::poll(&node, 1, 0) == 1 && (node.revents & (POLLERR | POLLHUP | POLLNVAL)) != 0;
}

void DeviceDSP::resumeReading()
{
    // A failed read alone is no reason to disturb the processor: all state survives it.
    if (!m_nodeGone) {
        m_pauseTimer->stop();
        m_notifier->setEnabled(true);
        return;
    }
    closeDSPDev();
    m_pauseTimer->setInterval(kReadPause);
    if (!openDSPDev())
        return;
    m_nodeGone = false;
    m_failedPause = 0;
    m_pauseTimer->stop();
    m_waitFirst = 1;
    g_store.id = 0; // the far end counts anew, which is no loss
    emit reopened();
}

void DeviceDSP::dspNotifier()
{
    readPackages();
}

void DeviceDSP::datagramLoop()
{
    if (!m_recvTimer)
        return;
    m_recvTimer->blockSignals(true);
    readPackages();
    m_recvTimer->blockSignals(false);
    m_recvTimer->start(1);
}

void DeviceDSP::readPackages()
{
    int budget = kReadBudget;
    m_burstErrors = 0;
    m_burstPackages = 0;
    // The notifier fires again at once when more is there, but behind what waits for this thread.
    do {
        budget = handleDatagram() == -1 ? budget - 1 : kReadBudget;
    } while (budget >= 1 && m_burstPackages < kPackagesPerTurn);
    if (m_burstPackages > 0 || m_burstErrors < kReadBudget)
        m_failedPause = 0;
    if (m_nodeGone)
        pauseReading(kReadPause);
    else if (m_burstErrors >= kReadBudget)
        burstFailed();
}

int DeviceDSP::handleDatagram()
{
    const int length = DSPRead(g_datagram, sizeof(g_datagram));
    if (length == 0)
        m_nodeGone = true;
    else if (length < 0 && m_fd >= 0 && errno != EAGAIN && errno != EINTR)
        ++m_burstErrors;
    else
        m_burstErrors = 0;
    if (length <= 0)
        return -1;
    ++m_burstPackages;
    memcpy(&g_head, g_datagram, sizeof(g_head));
    const quint32 flag = g_head.flag;
    if ((flag & kPattern) != kPattern) {
        LineOutput::print("L: %d > Unkown package!\n", __LINE__);
        return -1;
    }
    if (!takesPackage(flag))
        return -1;
    if (storePayload(flag))
        emitDatagram();
    return 0;
}

bool DeviceDSP::takesPackage(quint32 flag)
{
    if ((flag & (kFirstPackage | kNumberMask)) != kFirstPackage && !m_waitFirst)
        return continuesDatagram(flag);
    return beginsDatagram(flag);
}

bool DeviceDSP::continuesDatagram(quint32 flag)
{
    ++wanted_pno;
    if (wanted_pno == static_cast<int>(flag & kNumberMask))
        return true;
    LineOutput::print("L: %d > Wrong package number! id = %d; flag = %08X; msec = %lld; wanted = %d\n", __LINE__,
                      static_cast<int>(g_store.id), flag, static_cast<long long>(g_store.msec), wanted_pno);
    m_waitFirst = 1;
    return false;
}

bool DeviceDSP::beginsDatagram(quint32 flag)
{
    wanted_pno = static_cast<int>(flag & kNumberMask);
    if (wanted_pno != 0) {
        LineOutput::print("L: %d > Wrong first package No. %d!\n", __LINE__, wanted_pno);
        return false;
    }
    g_store.flagValue = static_cast<quint8>((flag >> 24) & 0x3F);
    g_store.msec = g_head.milliseconds + quint64(1000) * g_head.seconds;
    const quint32 lastId = g_store.id;
    const quint32 id = g_head.id;
    if (lastId != 0 && id - lastId != 1) {
        LineOutput::print("L: %d > May be lost some package id!\n", __LINE__);
        LineOutput::print("L: %d > last_id = %u; curr_id = %u\n", __LINE__, lastId, id);
        LineOutput::print("L: %d > msec64 = %lld; localms = %lld\n", __LINE__, static_cast<long long>(g_store.msec),
                          static_cast<long long>(Clock::msecs()));
    }
    g_store.id = id;
    g_store.type = static_cast<quint8>(g_head.type);
    // Kept: an unknown kind keeps the length of the datagram before; it is dropped when it is whole.
    if (g_store.type < kDatagramKindCount)
        g_store.wordCount = kDatagramKinds[g_store.type].words;
    if (g_store.type == DatagramRMS_1_2)
        checkClock();
    m_waitFirst = 0;
    g_store.receivedWords = Link::kTimeWords;
    g_store.data[0] = static_cast<quint32>(g_store.msec);
    g_store.data[1] = static_cast<quint32>(g_store.msec >> 32);
    return true;
}

/// Stores the payload of a package that was taken; true when the datagram is to be emitted.
bool DeviceDSP::storePayload(quint32 flag)
{
    if (flag & kFirstPackage) {
        const bool single = flag & kLastPackage;
        // Kept: a single package counts all words of its kind as payload, the two time words with them. What
        // lies behind the package's end keeps the store's old contents.
        const int words = single ? int(g_store.wordCount) : int(Link::kFirstPayloadWords);
        storeWords(Link::kFirstHeadBytes, words);
        g_store.receivedWords += words;
        m_waitFirst = single;
        return single;
    }
    // A first package of a short kind may have counted more words than the kind has: nothing is missing then.
    const int missing = std::clamp(g_store.wordCount - g_store.receivedWords, 0, Link::kNextPayloadWords);
    storeWords(Link::kNextHeadBytes, missing);
    g_store.receivedWords += missing;
    m_waitFirst = (flag & kLastPackage) != 0;
    return m_waitFirst;
}

void DeviceDSP::emitDatagram()
{
    if (g_store.type >= kDatagramKindCount || !kDatagramKinds[g_store.type].emitted)
        return;
    const DatagramKind &kind = kDatagramKinds[g_store.type];
    // A deep copy: the store is filled again while the receiver still holds the array.
    const char *datagram = reinterpret_cast<const char *>(&g_store) + offsetof(DatagramStore, data);
    const QByteArray bytes(datagram + kind.skippedBytes, emittedBytes(kind));
    const DatagramSignal signal = kSignals[kind.type];
    emit(this->*signal)(kind.type, bytes);
}

/// The processor's clock is the master: every so often, and at each r.m.s. datagram while it has BDS time, its stamp is
/// compared with the local time.
void DeviceDSP::checkClock()
{
    const timeval now = Clock::timeOfDay();
    const auto countDown = [this] {
        if (m_clockCountDown > std::numeric_limits<qint32>::min())
            --m_clockCountDown;
    };
    if (g_head.bdsWord != 0) {
        emit usingBDS(g_head.bdsWord);
    } else if (m_clockCountDown != 1) {
        countDown();
        return;
    }
    const quint32 seconds = g_head.seconds;
    if (seconds <= kClockIsSet) {
        // Kept: the count runs on below 1, so a clock set later is looked at with BDS time or after a write.
        countDown();
        return;
    }
    const qint64 local = qint64(now.tv_sec) * 1000 + now.tv_usec / 1000;
    if (std::fabs(static_cast<double>(local - static_cast<qint64>(g_store.msec))) <= kClockTolerance)
        return;
    emit dspTimeStamp(seconds);
    m_clockCountDown = m_clockReload;
    m_clockReload = kClockReload;
}

/// The older route of the processor's time; nothing calls it.
void DeviceDSP::updateClock(const QByteArray &bcd)
{
    if (bcd.size() < 8)
        return;
    const QString time = decodePackedDecimal(bcd).toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    Target::shell(QStringLiteral("date -s '%1'").arg(time));
    m_clockUpdated = 1;
}

int DeviceDSP::DSPRead(char *buffer, unsigned int len)
{
    return static_cast<int>(::read(m_fd, buffer, len));
}

void DeviceDSP::RecvStop()
{
    if (m_recvTimer)
        m_recvTimer->stop();
}

void DeviceDSP::writeNode(const void *data, int len)
{
    const ssize_t written = ::write(m_fd, data, static_cast<size_t>(len));
    Q_UNUSED(written) // Kept: the link has no acknowledgement, and a failed write goes unnoticed
}

void DeviceDSP::DSPWrite(const void *data, int len)
{
    if (!data || len <= 0)
        return;
    quint32 first = 0;
    memcpy(&first, data, std::min(sizeof(first), static_cast<size_t>(len)));
    if (first != ControlFrame::RawSetUp) {
        writeNode(data, len);
        return;
    }
    if (m_setupPending)
        return;
    m_setupPending = 1;
    memcpy(m_setupFrame, data, std::min(sizeof(m_setupFrame), static_cast<size_t>(len)));
    writeNode(data, len);
    m_clockCountDown = 1;
    m_setupRetries = 0;
    QTimer::singleShot(kSetupInterval, this, &DeviceDSP::dspSetupTimeout);
}

void DeviceDSP::dspSetupTimeout()
{
    if (m_setupAcked) {
        m_setupAcked = 0;
        m_setupRetries = 0;
        m_setupPending = 0;
        return;
    }
    ++m_setupRetries;
    writeNode(m_setupFrame, sizeof(m_setupFrame));
    if (m_setupRetries >= kSetupRepeats) {
        m_setupRetries = 0;
        m_setupPending = 0;
        return;
    }
    QTimer::singleShot(kSetupInterval, this, &DeviceDSP::dspSetupTimeout);
}

void DeviceDSP::writeHWClock(const QByteArray &bytes)
{
    quint32 frame[4] = { ControlFrame::RawClock, 0, 0, 0 };
    memcpy(&frame[2], bytes.constData(), std::min<size_t>(8, static_cast<size_t>(bytes.size())));
    DSPWrite(frame, sizeof(frame));
    m_clockCountDown = 1;
}

void DeviceDSP::firmwareUpdate(const QByteArray &frame)
{
    if (frame.size() >= 8)
        memcpy(&m_updateWord, frame.constData() + 4, sizeof(m_updateWord));
    DSPWrite(frame.constData(), frame.size());
}
