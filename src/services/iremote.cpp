#include "services/iremote.h"

#include "platform/lineoutput.h"
#include "platform/target.h"
#include "services/panel.h"

#include <QtEndian>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

IRemote *IRemote::m_iremote = nullptr;
std::atomic<quint16> IRemote::m_port { 0 };

namespace {

enum Command : quint32 { Identify = 0, Key = 1, Screen = 2, KeepAlive = 3, ScreenToo = 4 };

constexpr size_t kRequestBytes = 128; // read of a datagram; the rest is cut off
constexpr size_t kKeyOffset = 8;
constexpr size_t kMessageBytes = 32;
constexpr char kNoSocket[] = "创建套接字失败了.\r";
constexpr char kName[] = "QUVERA";
constexpr size_t kPictureHead = 8;
constexpr quint32 kPictureWord = 4;
constexpr size_t kDatagramBytes = 1024;
constexpr useconds_t kPause = 500; // us, so that the tool's receive buffer keeps up
constexpr int kLongestRestMs = 1000;

void putWord(char *at, quint32 word)
{
    qToLittleEndian(word, at);
}

quint64 packAddress(const sockaddr_in &address)
{
    return quint64(ntohl(address.sin_addr.s_addr)) << 32 | ntohs(address.sin_port);
}

sockaddr_in unpackAddress(quint64 packed)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(quint32(packed >> 32));
    address.sin_port = htons(quint16(packed & 0xffff));
    return address;
}

// Kept: an instrument without its remote control ends at once. Other threads run, so nothing is torn down.
[[noreturn]] void endProcess(const char *text)
{
    LineOutput::print("%s", text);
    std::_Exit(-1);
}

void print(const char *text)
{
    LineOutput::print("%s", text);
}

// Failures that repeat are waited out for longer and longer, so that a broken socket does not take a core.
class Rest
{
public:
    void afterFailure()
    {
        usleep(useconds_t(m_ms) * 1000);
        m_ms = std::min(m_ms * 2, kLongestRestMs);
    }
    void afterSuccess() { m_ms = 1; }

private:
    int m_ms = 1;
};

} // namespace

IRemote::IRemote(QObject *parent) : QObject(parent)
{
    m_iremote = this;
    m_panel = Panel::shared();
    m_taker = m_panel->addTaker([this](const QByteArray &png) { respondImage(png); });
    initThreadUdpRecv();
}

IRemote::~IRemote()
{
    if (m_threadRuns) {
        const char end = 0;
        if (write(m_wake[1], &end, 1) == 1)
            pthread_join(m_thread, nullptr);
    }
    m_panel->removeTaker(m_taker);
    const int socket = m_socket.exchange(-1);
    for (int descriptor : { m_wake[0], m_wake[1], socket }) {
        if (descriptor >= 0)
            close(descriptor);
    }
    m_port = 0;
    if (m_iremote == this)
        m_iremote = nullptr;
}

void IRemote::initThreadUdpRecv()
{
    if (m_threadRuns)
        return;
    if (pipe2(m_wake, O_CLOEXEC) != 0)
        endProcess(kNoSocket); // no descriptors are left: there would be none for the socket either
    m_threadRuns = pthread_create(&m_thread, nullptr, threadUdpRecv, this) == 0;
}

quint16 IRemote::port()
{
    return m_port;
}

void *IRemote::threadUdpRecv(void *self)
{
    // Kept: signals 12 and 14 belong to the main thread.
    sigset_t blocked;
    sigemptyset(&blocked);
    sigaddset(&blocked, 12);
    sigaddset(&blocked, 14);
    pthread_sigmask(SIG_BLOCK, &blocked, nullptr);
    static_cast<IRemote *>(self)->serve();
    return nullptr;
}

void IRemote::serve()
{
    const int descriptor = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (descriptor < 0)
        endProcess(kNoSocket);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_ANY);
    address.sin_port = htons(Target::remotePort());
    if (bind(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
        close(descriptor);
        endProcess("bind() 函数使用失败了.\r");
    }
    socklen_t size = sizeof address;
    getsockname(descriptor, reinterpret_cast<sockaddr *>(&address), &size);
    m_socket = descriptor;
    m_port = ntohs(address.sin_port);

    char buffer[kRequestBytes] = {}; // Kept: it keeps its bytes from request to request
    Rest rest;
    for (;;) {
        pollfd waits[2] = { { descriptor, POLLIN, 0 }, { m_wake[0], POLLIN, 0 } };
        const int ready = poll(waits, 2, -1);
        if (ready > 0 && waits[1].revents)
            return;
        if (ready < 1 || waits[0].revents & POLLNVAL) {
            print("err select");
            rest.afterFailure();
            continue;
        }
        if (!receive(buffer, sizeof buffer)) {
            rest.afterFailure();
            continue;
        }
        rest.afterSuccess();
        act(buffer);
    }
}

bool IRemote::receive(char *buffer, size_t size)
{
    sockaddr_in peer = {};
    socklen_t peerSize = sizeof peer;
    if (recvfrom(m_socket, buffer, size, MSG_DONTWAIT, reinterpret_cast<sockaddr *>(&peer), &peerSize) < 0) {
        print("recvfrom()函数使用失败了.");
        return false;
    }
    m_clientAddr = packAddress(peer);
    return true;
}

void IRemote::act(const char *buffer)
{
    switch (qFromLittleEndian<quint32>(buffer)) {
    case Identify:
        respondMesg(Identify);
        break;
    case Key:
        m_panel->pressKey(qFromLittleEndian<qint32>(buffer + kKeyOffset));
        break;
    case Screen:
    case ScreenToo:
        requestScreen();
        break;
    case KeepAlive:
        respondMesg(KeepAlive);
        break;
    default:
        break;
    }
}

void IRemote::requestScreen()
{
    if (m_iremote)
        m_iremote->m_panel->requestPicture(m_iremote->m_taker);
}

void IRemote::respondScreen()
{
    respondMesg(Screen);
}

void IRemote::respondMesg(int command)
{
    char answer[kMessageBytes] = {};
    putWord(answer, quint32(command));
    putWord(answer + 4, sizeof kName - 1);
    std::memcpy(answer + 8, kName, sizeof kName);
    sendToPeer(answer, sizeof answer);
}

void IRemote::respondImage(const QByteArray &png)
{
    QByteArray stream(int(kPictureHead), '\0');
    putWord(stream.data(), kPictureWord);
    putWord(stream.data() + 4, quint32(png.size()));
    stream += png;
    for (size_t at = 0; at < size_t(stream.size()); at += kDatagramBytes) {
        const size_t size = std::min(kDatagramBytes, size_t(stream.size()) - at);
        if (!sendToPeer(stream.constData() + at, size)) {
            LineOutput::print("sendto fail errno %s\r\n", std::strerror(errno));
            return;
        }
        usleep(kPause);
    }
}

// Kept: the peer is looked up for each datagram, so that a new request redirects the rest of a picture.
bool IRemote::sendToPeer(const char *bytes, size_t size) const
{
    const sockaddr_in peer = unpackAddress(m_clientAddr);
    const ssize_t sent
        = sendto(m_socket, bytes, size, MSG_NOSIGNAL, reinterpret_cast<const sockaddr *>(&peer), sizeof peer);
    return sent == ssize_t(size);
}
