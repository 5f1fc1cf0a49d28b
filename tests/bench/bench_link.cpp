// Reassembling wave datagrams from their nine packages and handing them over queued, beside the toolkit alone: the same
// notifier, thread and queued array with nine plain copies and one deep copy a datagram. Time is the processor time of
// the reading and of the receiving thread; the far end has a thread of its own that does not count.
#include "bench/ratios.h"
#include "device/devicedsp.h"
#include "unit/device/processorpeer.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QSocketNotifier>
#include <QThread>

#include <atomic>
#include <pthread.h>
#include <thread>
#include <time.h>

namespace {

constexpr int kDatagrams = 100; // of one iteration

/// Nothing but what the toolkit needs to bring nine reads into another thread as one array.
class PlainReader : public QObject
{
    Q_OBJECT
public:
    static constexpr int kConnections = 1;

public slots:
    void openDSP()
    {
        m_fd = Target::openProcessor();
        m_notifier = new QSocketNotifier(m_fd, QSocketNotifier::Read, this);
        connect(m_notifier, &QSocketNotifier::activated, this, &PlainReader::readAll);
    }

signals:
    void datagramWave(__datagramtype, const QByteArray &datagram);

private:
    void readAll()
    {
        while (::read(m_fd, m_package, sizeof(m_package)) > 0) {
            const int offset = m_packages * Link::kPackageBytes;
            memcpy(m_store + offset, m_package, sizeof(m_package));
            if (++m_packages == 9) {
                m_packages = 0;
                emit datagramWave(DatagramWave, QByteArray(m_store, 4 * Link::kWaveWords));
            }
        }
    }

    int m_fd = -1;
    QSocketNotifier *m_notifier = nullptr;
    int m_packages = 0;
    char m_package[Link::kPackageBytes];
    char m_store[9 * Link::kPackageBytes];
};

struct ProgramReader : DeviceDSP
{
    static constexpr int kConnections = 2; // it opens the node twice
};

qint64 processorTime(clockid_t clock)
{
    timespec time;
    clock_gettime(clock, &time);
    return qint64(time.tv_sec) * 1000000000 + time.tv_nsec;
}

/// Sends datagrams from its own thread as they are asked for.
class FarEnd
{
public:
    explicit FarEnd(ProcessorPeer *peer) : m_peer(peer), m_thread([this] { run(); }) { }
    ~FarEnd()
    {
        m_wanted = -1;
        m_thread.join();
    }
    void ask(int datagrams) { m_wanted += datagrams; }

private:
    void run()
    {
        HeadValues head;
        head.type = DatagramWave;
        while (m_wanted >= 0) {
            if (m_wanted == 0) {
                QThread::usleep(50);
                continue;
            }
            ++head.id;
            m_peer->send(makeDatagram(head, m_payload));
            --m_wanted;
        }
    }

    ProcessorPeer *m_peer;
    const QByteArray m_payload = countingPayload(Link::kWaveWords - Link::kTimeWords, 1);
    std::atomic<int> m_wanted { 0 };
    std::thread m_thread; // last: it uses what stands before
};

template <typename Reader> void readWaves(benchmark::State &state)
{
    ProcessorPeer peer;
    QThread thread;
    auto *reader = new Reader;
    reader->moveToThread(&thread);
    int received = 0;
    QObject receiver;
    QObject::connect(
        reader, &Reader::datagramWave, &receiver,
        [&received](__datagramtype, const QByteArray &datagram) { received += !datagram.isEmpty(); },
        Qt::QueuedConnection);
    QObject::connect(&thread, &QThread::started, reader, &Reader::openDSP);
    QObject::connect(&thread, &QThread::finished, reader, &QObject::deleteLater);
    std::atomic<pthread_t> readingThread { 0 };
    QObject::connect(&thread, &QThread::started, reader, [&readingThread] { readingThread = pthread_self(); });
    thread.start(QThread::HighestPriority);
    for (int i = 0; i < Reader::kConnections; ++i)
        peer.accept();
    while (!readingThread)
        QThread::msleep(1);
    clockid_t readingClock;
    pthread_getcpuclockid(readingThread, &readingClock);

    {
        FarEnd farEnd(&peer);
        for (auto _ : state) {
            received = 0;
            const qint64 before = processorTime(readingClock) + processorTime(CLOCK_THREAD_CPUTIME_ID);
            farEnd.ask(kDatagrams);
            while (received < kDatagrams)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            const qint64 after = processorTime(readingClock) + processorTime(CLOCK_THREAD_CPUTIME_ID);
            state.SetIterationTime(double(after - before) * 1e-9);
        }
    }
    thread.quit();
    thread.wait();
}

void programLink(benchmark::State &state)
{
    readWaves<ProgramReader>(state);
}

void toolkitAlone(benchmark::State &state)
{
    readWaves<PlainReader>(state);
}

BENCHMARK(programLink)->UseManualTime()->Iterations(20)->Unit(benchmark::kMicrosecond);
BENCHMARK(toolkitAlone)->UseManualTime()->Iterations(20)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    qRegisterMetaType<__datagramtype>("__datagramtype");
    return Ratios::run(argc, argv, Ratios::RealTime,
                       { { "wave datagram: program / toolkit alone", "programLink", "toolkitAlone", 1.5 } });
}

#include "bench_link.moc"
