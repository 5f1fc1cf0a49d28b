#include "services/modbusserver.h"

#include "platform/lineoutput.h"
#include "services/modbusframer.h"
#include "services/modbusregisters.h"
#include "services/modbusresponder.h"

#include <modbus.h>

#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <fcntl.h>
#include <mutex>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <sys/select.h>
#include <sys/socket.h>
#include <unistd.h>

struct ModbusServer::Shared
{
    explicit Shared(std::shared_ptr<ModbusRegisters> theRegisters)
        : registers(std::move(theRegisters)), stop(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
    { }
    ~Shared()
    {
        if (stop >= 0)
            ::close(stop);
    }

    std::shared_ptr<ModbusRegisters> registers;
    const int stop; // readable: the thread is to end
    std::mutex mutex;
    std::condition_variable changed;
    bool started = false; // listening, or failed to
    bool ended = false;
    quint16 port = 0;
};

namespace {

constexpr int kBacklog = 5;
constexpr int kPauseAfterFailure = 50; // ms: a socket that keeps failing must not spin a core

/// What the thread works with: the listening socket and the client of the moment.
class ServerLoop
{
public:
    ServerLoop(modbus_t *context, int listening, int stop, ModbusResponder &responder)
        : m_context(context), m_listening(listening), m_stop(stop), m_responder(responder)
    { }
    ~ServerLoop() { dropClient(); }

    void run();

private:
    void acceptClient();
    void serveClient();
    void dropClient();
    void pause() const;

    modbus_t *m_context;
    const int m_listening;
    const int m_stop;
    ModbusResponder &m_responder;
    int m_client = -1;
    ModbusFramer m_framer;
};

void ServerLoop::dropClient()
{
    if (m_client >= 0)
        ::close(m_client);
    m_client = -1;
}

void ServerLoop::pause() const
{
    pollfd stopping = { m_stop, POLLIN, 0 };
    ::poll(&stopping, 1, kPauseAfterFailure);
}

void ServerLoop::run()
{
    for (;;) {
        fd_set readable;
        FD_ZERO(&readable);
        FD_SET(m_listening, &readable);
        FD_SET(m_stop, &readable);
        if (m_client >= 0)
            FD_SET(m_client, &readable);
        if (::select(qMax(qMax(m_listening, m_client), m_stop) + 1, &readable, nullptr, nullptr, nullptr) < 0) {
            LineOutput::print("Modbus Server select failure.\n");
            dropClient();
            pause();
            continue;
        }
        if (FD_ISSET(m_stop, &readable))
            return;
        if (FD_ISSET(m_listening, &readable))
            acceptClient();
        else if (m_client >= 0 && FD_ISSET(m_client, &readable))
            serveClient();
    }
}

void ServerLoop::acceptClient()
{
    LineOutput::print("---connection: %d\n", m_listening);
    if (m_client >= 0) {
        LineOutput::print("-----disconnect old: %d\n", m_client);
        dropClient();
    }
    // Never blocking: a client that does not read makes a send fail at once.
    const int client = ::accept4(m_listening, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (client < 0) {
        // A newcomer that gave up between the two calls is nothing to wait for.
        const int error = errno; // before printing, which has errors of its own
        LineOutput::print("Modbus Server accept error.\n");
        if (error != EAGAIN && error != ECONNABORTED)
            pause();
        return;
    }
    if (client >= FD_SETSIZE) { // has no place in a descriptor set
        ::close(client);
        return;
    }
    LineOutput::print("---connect new: %d\n", client);
    const int on = 1;
    ::setsockopt(client, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    m_client = client;
    m_framer.clear();
    m_responder.clearLock();
    modbus_set_socket(m_context, client);
}

void ServerLoop::serveClient()
{
    const ssize_t got = ::recv(m_client, m_framer.space(), size_t(m_framer.room()), 0);
    if (got < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    bool alive = got > 0;
    if (alive) {
        m_framer.filled(int(got));
        const quint8 *frame = nullptr;
        int length = 0;
        while (alive && m_framer.next(&frame, &length))
            alive = m_responder.answer(frame, length);
        alive = alive && !m_framer.isBroken();
    }
    if (alive)
        return;
    dropClient();
    LineOutput::print("-----disconnect by master\n");
}

quint16 boundPort(int listening)
{
    sockaddr_in address = {};
    socklen_t size = sizeof address;
    if (::getsockname(listening, reinterpret_cast<sockaddr *>(&address), &size) != 0)
        return 0;
    return ntohs(address.sin_port);
}

} // namespace

ModbusServer::ModbusServer(quint16 port, std::shared_ptr<ModbusRegisters> registers)
    : m_shared(std::make_shared<Shared>(std::move(registers)))
{
    const auto mb_thread = [shared = m_shared, port] {
        const auto tell = [&shared](bool Shared::*what, quint16 value) {
            const std::lock_guard<std::mutex> lock(shared->mutex);
            shared.get()->*what = true;
            if (what == &Shared::started)
                shared->port = value;
            shared->changed.notify_all();
        };
        modbus_t *context = modbus_new_tcp(nullptr, port);
        int listening = -1;
        if (context) {
            modbus_set_debug(context, FALSE);
            // The library sleeps this long before some of its exception answers.
            modbus_set_response_timeout(context, 0, 1000);
            listening = modbus_tcp_listen(context, kBacklog);
        }
        if (listening >= 0 && listening < FD_SETSIZE && shared->stop >= 0 && shared->stop < FD_SETSIZE) {
            ::fcntl(listening, F_SETFD, FD_CLOEXEC);
            ::fcntl(listening, F_SETFL, ::fcntl(listening, F_GETFL) | O_NONBLOCK);
            ModbusResponder responder(context, *shared->registers);
            if (responder.isReady()) {
                shared->registers->openBigData();
                tell(&Shared::started, boundPort(listening));
                ServerLoop(context, listening, shared->stop, responder).run();
            }
        }
        if (listening >= 0)
            ::close(listening);
        if (context)
            modbus_free(context);
        tell(&Shared::started, 0);
        tell(&Shared::ended, 0);
    };

    // Signals are for the main thread. The mask is inherited, so it is set before the thread exists.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    m_thread = std::thread(mb_thread);
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

ModbusServer::~ModbusServer()
{
    ::eventfd_write(m_shared->stop, 1);
    bool ended = false;
    {
        std::unique_lock<std::mutex> lock(m_shared->mutex);
        ended = m_shared->changed.wait_for(lock, std::chrono::seconds(1), [this] { return m_shared->ended; });
    }
    if (ended)
        m_thread.join();
    else
        m_thread.detach();
}

quint16 ModbusServer::port() const
{
    std::unique_lock<std::mutex> lock(m_shared->mutex);
    m_shared->changed.wait(lock, [this] { return m_shared->started; });
    return m_shared->port;
}
