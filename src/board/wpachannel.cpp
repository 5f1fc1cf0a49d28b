#include "board/wpachannel.h"

#include "platform/target.h"

#include <QFile>
#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <wpa_ctrl.h>

namespace {

/// Messages taken before the event loop gets its turn again: a daemon that floods delays nothing else.
constexpr int kMessagesAtOnce = 32;

/// The client's own socket stands in a folder for passing files. Its address must also hold the name that the library
/// appends; where the desk's root is too deep for that, the library's own folder serves.
constexpr int kLongestClientFolder = int(sizeof(sockaddr_un::sun_path)) - 40;

/// Opens through a descriptor of the folder, since a socket's address holds 107 characters and a root may be deeper.
wpa_ctrl *openDaemon(const QString &folder, const QString &interface)
{
    const int directory = ::open(QFile::encodeName(Target::path(folder)).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (directory < 0)
        return nullptr;
    const QByteArray path = "/proc/self/fd/" + QByteArray::number(directory) + '/' + QFile::encodeName(interface);
    const QByteArray client = QFile::encodeName(Target::path(QStringLiteral("/tmp")));
    wpa_ctrl *ctrl
        = wpa_ctrl_open2(path.constData(), client.size() <= kLongestClientFolder ? client.constData() : nullptr);
    ::close(directory);
    return ctrl;
}

} // namespace

WpaChannel::WpaChannel(QObject *parent) : QObject(parent)
{
    m_timeout.setSingleShot(true);
    connect(&m_timeout, &QTimer::timeout, this, &WpaChannel::giveUp);
}

WpaChannel::~WpaChannel()
{
    disconnectDaemon();
}

bool WpaChannel::open(const QString &folder, const QString &interface)
{
    close();
    m_folder = folder;
    m_interface = interface;
    return connectDaemon();
}

void WpaChannel::close()
{
    disconnectDaemon();
    failAll();
}

bool WpaChannel::connectDaemon()
{
    m_ctrl = openDaemon(m_folder, m_interface);
    if (!m_ctrl)
        return false;
    const int fd = wpa_ctrl_get_fd(m_ctrl);
    // What the shell starts for this program, the DHCP client for one, must not keep the socket.
    ::fcntl(fd, F_SETFD, FD_CLOEXEC);
    ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) | O_NONBLOCK);
    m_readable = new QSocketNotifier(fd, QSocketNotifier::Read, this);
    m_writable = new QSocketNotifier(fd, QSocketNotifier::Write, this);
    m_writable->setEnabled(false);
    connect(m_readable, &QSocketNotifier::activated, this, &WpaChannel::receive);
    connect(m_writable, &QSocketNotifier::activated, this, &WpaChannel::sendNext);
    return true;
}

void WpaChannel::disconnectDaemon()
{
    m_timeout.stop();
    m_sent = false;
    for (QSocketNotifier *notifier : { m_readable, m_writable }) {
        if (!notifier)
            continue;
        notifier->setEnabled(false);
        notifier->deleteLater(); // it may be the one that called
    }
    m_readable = m_writable = nullptr;
    if (m_ctrl)
        wpa_ctrl_close(m_ctrl);
    m_ctrl = nullptr;
}

void WpaChannel::request(const QByteArray &command, QObject *context, WpaAnswer answer)
{
    const Request request { command, context, std::move(answer) };
    const bool plain = !command.isEmpty() && std::none_of(command.begin(), command.end(), isControl);
    if (!m_ctrl || !plain || m_requests.size() >= kMostWaiting) {
        failLater(request);
        return;
    }
    m_requests.enqueue(request);
    if (m_requests.size() == 1)
        sendNext();
}

bool WpaChannel::isWaiting(const QByteArray &command) const
{
    return std::any_of(m_requests.begin(), m_requests.end(),
                       [&command](const Request &request) { return request.command == command; });
}

void WpaChannel::sendNext()
{
    if (!m_ctrl || m_sent || m_requests.isEmpty())
        return;
    if (!m_timeout.isActive())
        m_timeout.start(m_answerTime); // from the first try: a daemon whose socket stays full has not answered either
    const QByteArray &command = m_requests.head().command;
    const ssize_t sent = ::send(wpa_ctrl_get_fd(m_ctrl), command.constData(), static_cast<size_t>(command.size()),
                                MSG_DONTWAIT | MSG_NOSIGNAL);
    const bool full = sent < 0 && (errno == EAGAIN || errno == EWOULDBLOCK || errno == ENOBUFS || errno == EINTR);
    m_writable->setEnabled(full);
    m_sent = sent == command.size();
    if (!m_sent && !full)
        close(); // the daemon is gone
}

void WpaChannel::receive()
{
    const QPointer<WpaChannel> self(this);
    for (int i = 0; i < kMessagesAtOnce && self && m_ctrl; ++i) {
        char buffer[kLongestMessage + 1];
        size_t length = kLongestMessage;
        if (wpa_ctrl_recv(m_ctrl, buffer, &length) < 0) {
            if (errno != EAGAIN && errno != EWOULDBLOCK && errno != EINTR)
                close();
            return;
        }
        buffer[std::min<size_t>(length, kLongestMessage)] = '\0';
        const QByteArray text(buffer); // as the daemon's other clients do: up to a zero byte
        if (text.startsWith('<') || text.startsWith("IFNAME=")) {
            emit message(text);
            continue;
        }
        if (!m_sent)
            continue; // an answer that nobody asked for
        m_sent = false;
        m_timeout.stop();
        const Request request = m_requests.dequeue();
        if (request.context)
            request.answer(Answered, text);
        if (self)
            sendNext();
    }
}

void WpaChannel::giveUp()
{
    if (m_requests.isEmpty())
        return;
    const QPointer<WpaChannel> self(this);
    const Request request = m_requests.dequeue();
    disconnectDaemon();
    if (!connectDaemon())
        failAll();
    if (request.context)
        request.answer(TimedOut, QByteArray());
    if (self)
        sendNext();
}

void WpaChannel::failAll()
{
    const QQueue<Request> requests = m_requests;
    m_requests.clear();
    for (const Request &request : requests)
        failLater(request);
}

void WpaChannel::failLater(const Request &request)
{
    QTimer::singleShot(0, this, [request] {
        if (request.context)
            request.answer(Failed, QByteArray());
    });
}
