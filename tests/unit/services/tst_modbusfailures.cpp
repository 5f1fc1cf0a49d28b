#include "modbusownserver.h"
#include "services/modbusframer.h"

#include <QDir>
#include <QTest>

#include <atomic>
#include <cerrno>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <sys/eventfd.h>
#include <sys/resource.h>
#include <sys/select.h>

// Calls of the system and of the library that fail under the server, and its parts where no master reaches them.

namespace {

enum Call { Select, Accept, Receive, PortOf, EventFd, NewContext, Listen, NewMapping, Calls };

/// How often the next such calls fail, and how.
struct
{
    std::atomic<int> left[Calls] = {};
    std::atomic<int> error { 0 };
    std::atomic<bool> beyondTheSet { false }; // a descriptor is made, but behind those that select() can look at
    std::atomic<int> pauses { 0 }; // of the server's thread
    std::mutex hold; // whoever waits for a descriptor waits for this first
    std::atomic<bool> isHeld { false }; // somebody does
} g_failing;

void fail(Call call, int error, bool beyondTheSet = false)
{
    g_failing.error = error;
    g_failing.beyondTheSet = beyondTheSet;
    g_failing.pauses = 0;
    g_failing.left[call] = 1;
}

bool fails(Call call)
{
    if (g_failing.left[call] == 0)
        return false;
    --g_failing.left[call];
    errno = g_failing.error;
    return true;
}

template <typename Function> Function *behind(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

/// What a failing maker of a descriptor answers instead of `made`, which is closed.
int failed(int made)
{
    const int moved = g_failing.beyondTheSet ? ::fcntl(made, F_DUPFD_CLOEXEC, FD_SETSIZE) : -1;
    ::close(made);
    return moved;
}

int openDescriptors()
{
    return int(QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).size());
}

int threads()
{
    return int(QDir(QStringLiteral("/proc/self/task")).entryList(QDir::NoDotAndDotDot | QDir::Dirs).size());
}

} // namespace

// Each stands before the function of its name.
extern "C" {

int select(int count, fd_set *reading, fd_set *writing, fd_set *excepted, timeval *timeout)
{
    static const auto real = behind<int(int, fd_set *, fd_set *, fd_set *, timeval *)>("select");
    if (fails(Select))
        return -1;
    if (!g_failing.hold.try_lock()) {
        g_failing.isHeld = true;
        g_failing.hold.lock();
    }
    g_failing.hold.unlock();
    return real(count, reading, writing, excepted, timeout);
}

int poll(pollfd *waiting, nfds_t count, int timeout)
{
    static const auto real = behind<int(pollfd *, nfds_t, int)>("poll");
    if (timeout > 0 && ::gettid() != ::getpid())
        ++g_failing.pauses;
    return real(waiting, count, timeout);
}

int accept4(int listening, sockaddr *address, socklen_t *size, int flags)
{
    static const auto real = behind<int(int, sockaddr *, socklen_t *, int)>("accept4");
    return fails(Accept) ? -1 : real(listening, address, size, flags);
}

ssize_t recv(int socket, void *buffer, size_t size, int flags)
{
    static const auto real = behind<ssize_t(int, void *, size_t, int)>("recv");
    return fails(Receive) ? -1 : real(socket, buffer, size, flags);
}

int getsockname(int socket, sockaddr *address, socklen_t *size) noexcept
{
    static const auto real = behind<int(int, sockaddr *, socklen_t *)>("getsockname");
    return fails(PortOf) ? -1 : real(socket, address, size);
}

int eventfd(unsigned int count, int flags) noexcept
{
    static const auto real = behind<int(unsigned int, int)>("eventfd");
    const int made = real(count, flags);
    return fails(EventFd) ? failed(made) : made;
}

modbus_t *modbus_new_tcp(const char *address, int port)
{
    static const auto real = behind<modbus_t *(const char *, int)>("modbus_new_tcp");
    return fails(NewContext) ? nullptr : real(address, port);
}

int modbus_tcp_listen(modbus_t *context, int backlog)
{
    static const auto real = behind<int(modbus_t *, int)>("modbus_tcp_listen");
    const int made = real(context, backlog);
    return fails(Listen) ? failed(made) : made;
}

modbus_mapping_t *modbus_mapping_new_start_address(unsigned int bits, unsigned int bitCount, unsigned int inputBits,
                                                   unsigned int inputBitCount, unsigned int registers,
                                                   unsigned int registerCount, unsigned int inputRegisters,
                                                   unsigned int inputRegisterCount)
{
    static const auto real
        = behind<modbus_mapping_t *(unsigned int, unsigned int, unsigned int, unsigned int, unsigned int, unsigned int,
                                    unsigned int, unsigned int)>("modbus_mapping_new_start_address");
    return fails(NewMapping)
        ? nullptr
        : real(bits, bitCount, inputBits, inputBitCount, registers, registerCount, inputRegisters, inputRegisterCount);
}

} // extern "C"

class TstModbusFailures : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_output = std::make_unique<CaughtOutput>(); } // a line for each request would bury the results
    void cleanup()
    {
        for (auto &left : g_failing.left)
            left = 0;
        g_failing.isHeld = false;
        m_output.reset();
    }

    void callThatFailsOnceCostsAtMostTheClient_data();
    void callThatFailsOnceCostsAtMostTheClient();
    void newcomerIsTakenAfterAFailedAccept_data();
    void newcomerIsTakenAfterAFailedAccept();
    void serverThatCannotStartHasNoPortAndLeavesNothing_data();
    void serverThatCannotStartHasNoPortAndLeavesNothing();
    void threadThatHangsKeepsNobodyFromEnding();
    void blockWithoutMemoryIsDropped();
    void dataThatIsMissingChangesNothing();
    void bigDataIsTakenFromItsOpeningOn();
    void snapshotGoesToTheStartOfABlockOnly();
    void nothingComesBehindABrokenHeadUntilItIsCleared();

private:
    std::unique_ptr<CaughtOutput> m_output;
};

void TstModbusFailures::callThatFailsOnceCostsAtMostTheClient_data()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("error");
    QTest::addColumn<bool>("stays");
    QTest::newRow("nothing to read after all") << int(Receive) << EAGAIN << true;
    QTest::newRow("read interrupted") << int(Receive) << EINTR << true;
    QTest::newRow("read failed") << int(Receive) << ECONNRESET << false;
    QTest::newRow("select failed") << int(Select) << ENOMEM << false;
}

void TstModbusFailures::callThatFailsOnceCostsAtMostTheClient()
{
    QFETCH(int, call);
    QFETCH(int, error);
    QFETCH(bool, stays);
    OwnServer own;
    ModbusClient client(own.port());
    QCOMPARE(client.ask(readInput(100, 1)), modelRead(100, 1));
    fail(Call(call), error);
    QVERIFY(client.send(modbusFrame(9, readInput(101, 1))));
    if (stays)
        QCOMPARE(client.answer(), modelRead(101, 1));
    else
        QVERIFY(client.isClosedByServer());
    QCOMPARE(g_failing.left[call].load(), 0);
    ModbusClient next(own.port());
    QCOMPARE(next.ask(readInput(102, 1)), modelRead(102, 1));
    QCOMPARE(g_failing.pauses.load(), call == Select ? 1 : 0);
}

void TstModbusFailures::newcomerIsTakenAfterAFailedAccept_data()
{
    QTest::addColumn<int>("error");
    QTest::addColumn<int>("pauses");
    QTest::newRow("nobody there after all") << EAGAIN << 0;
    QTest::newRow("gave up meanwhile") << ECONNABORTED << 0;
    QTest::newRow("no descriptor left: tried again, but not at once") << EMFILE << 1;
}

void TstModbusFailures::newcomerIsTakenAfterAFailedAccept()
{
    QFETCH(int, error);
    QFETCH(int, pauses);
    OwnServer own;
    QVERIFY(own.port() != 0);
    fail(Accept, error);
    ModbusClient client(own.port());
    QCOMPARE(client.ask(readInput(100, 1)), modelRead(100, 1));
    QCOMPARE(g_failing.left[Accept].load(), 0);
    QCOMPARE(m_output->lines().filter(QStringLiteral("---connect new")).size(), 1); // the failed one is nobody
    QCOMPARE(g_failing.pauses.load(), pauses);
}

void TstModbusFailures::serverThatCannotStartHasNoPortAndLeavesNothing_data()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<bool>("beyondTheSet");
    QTest::newRow("no context") << int(NewContext) << false;
    QTest::newRow("no listening socket") << int(Listen) << false;
    QTest::newRow("listening socket beyond the set") << int(Listen) << true;
    QTest::newRow("no descriptor that ends it") << int(EventFd) << false;
    QTest::newRow("that descriptor beyond the set") << int(EventFd) << true;
    QTest::newRow("no memory for the lock") << int(NewMapping) << false;
    QTest::newRow("its port is not to be known") << int(PortOf) << false;
}

void TstModbusFailures::serverThatCannotStartHasNoPortAndLeavesNothing()
{
    QFETCH(int, call);
    QFETCH(bool, beyondTheSet);
    rlimit limit = {};
    QCOMPARE(::getrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlimit raised = { qMax<rlim_t>(limit.rlim_cur, 4096), qMax<rlim_t>(limit.rlim_max, 4096) };
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &raised), 0);
    const int descriptors = openDescriptors(), threadsBefore = threads();
    {
        fail(Call(call), EMFILE, beyondTheSet);
        const ModbusServer server(0, std::make_shared<ModbusRegisters>());
        QCOMPARE(server.port(), quint16(0));
        QCOMPARE(g_failing.left[call].load(), 0);
    }
    QTRY_COMPARE_WITH_TIMEOUT(openDescriptors(), descriptors, 30'000);
    QTRY_COMPARE_WITH_TIMEOUT(threads(), threadsBefore, 30'000);
}

void TstModbusFailures::threadThatHangsKeepsNobodyFromEnding()
{
    const int descriptors = openDescriptors(), threadsBefore = threads();
    {
        OwnServer own;
        ModbusClient client(own.port());
        QCOMPARE(client.ask(readInput(100, 1)), modelRead(100, 1));
        const std::lock_guard<std::mutex> hanging(g_failing.hold);
        // The next wait hangs: the one that this request ends may be over it already.
        QVERIFY(client.send(modbusFrame(2, readInput(100, 1))));
        QTRY_VERIFY_WITH_TIMEOUT(g_failing.isHeld, 30'000);
        own.server.reset(); // gives up waiting
        QVERIFY(threads() > threadsBefore);
    }
    QTRY_COMPARE_WITH_TIMEOUT(threads(), threadsBefore, 30'000); // it ends by itself when it can
    QTRY_COMPARE_WITH_TIMEOUT(openDescriptors(), descriptors, 30'000);
}

void TstModbusFailures::blockWithoutMemoryIsDropped()
{
    ModbusRegisters registers;
    quint16 values[kModbusMostRead];
    int available = -1;
    fail(NewMapping, ENOMEM);
    registers.mb_mapping_add_map(300, 10);
    QCOMPARE(g_failing.left[NewMapping].load(), 0);
    QCOMPARE(registers.read(300, 1, false, values, &available), ModbusRegisters::NoBlock);
    registers.mb_mapping_add_map(300, 10);
    QCOMPARE(registers.read(300, 20, false, values, &available), ModbusRegisters::BlockFound);
    QCOMPARE(available, 10);
}

void TstModbusFailures::dataThatIsMissingChangesNothing()
{
    ModbusRegisters registers;
    registers.mb_mapping_add_map(300, 2);
    registers.mb_mapping_add_map(kScopeStart, kScopeRegisters);
    registers.openBigData();
    const quint16 written[] = { 7, 8 };
    registers.mb_mapping_setdata(300, 2, written);
    registers.mb_set_bd_buffer(kScopeStart, 2, written);
    registers.mb_mapping_setdata(300, 2, nullptr);
    registers.mb_set_bd_buffer(kScopeStart, 2, nullptr);
    for (const int start : { 300, kScopeStart }) {
        quint16 values[kModbusMostRead] = {};
        int available = 0;
        QCOMPARE(registers.read(start, 2, true, values, &available), ModbusRegisters::BlockFound);
        QCOMPARE(available, 2);
        QCOMPARE(values[0], quint16(7));
        QCOMPARE(values[1], quint16(8));
    }
}

void TstModbusFailures::bigDataIsTakenFromItsOpeningOn()
{
    ModbusRegisters registers;
    registers.mb_mapping_add_map(kTransientStart, kTransientRegisters);
    for (const quint16 value : { quint16(5), quint16(6) }) {
        registers.mb_set_bd_buffer(kTransientStart, 1, &value);
        quint16 seen[kModbusMostRead] = {};
        int available = 0;
        registers.read(kTransientStart, 1, true, seen, &available);
        QCOMPARE(seen[0], quint16(value == 5 ? 0 : 6));
        registers.openBigData();
    }
}

void TstModbusFailures::snapshotGoesToTheStartOfABlockOnly()
{
    ModbusRegisters registers; // a block that begins before the place of the big one
    registers.mb_mapping_add_map(kScopeStart - 1, 3);
    registers.openBigData();
    const quint16 snapshot[] = { 90, 91, 92 }, written[] = { 1, 2, 3 };
    registers.mb_set_bd_buffer(kScopeStart, 3, snapshot);
    registers.mb_mapping_setdata(kScopeStart - 1, 3, written);
    quint16 seen[kModbusMostRead] = {};
    int available = 0;
    QCOMPARE(registers.read(kScopeStart, 3, true, seen, &available), ModbusRegisters::BlockFound);
    QCOMPARE(available, 2);
    QCOMPARE(seen[0], quint16(2));
    QCOMPARE(seen[1], quint16(3));
}

void TstModbusFailures::nothingComesBehindABrokenHeadUntilItIsCleared()
{
    const QByteArray request = modbusFrame(1, readInput(100, 1));
    QByteArray foreign = request;
    foreign[2] = 1; // another protocol
    ModbusFramer framer;
    const auto take = [&framer](const QByteArray &bytes) {
        std::memcpy(framer.space(), bytes.constData(), size_t(bytes.size()));
        framer.filled(bytes.size());
        const quint8 *frame = nullptr;
        int length = 0;
        return framer.next(&frame, &length);
    };
    QVERIFY(take(request));
    QVERIFY(!take(foreign));
    QVERIFY(framer.isBroken());
    QVERIFY(!take(request));
    framer.clear();
    QVERIFY(!framer.isBroken());
    QVERIFY(take(request));
}

QTEST_GUILESS_MAIN(TstModbusFailures)
#include "tst_modbusfailures.moc"
