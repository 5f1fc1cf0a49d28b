#pragma once

#include "link/unixsocket.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <deque>
#include <vector>

struct pollfd;

namespace wire {

/// The device node: a listening sequential-packet socket with one instrument at its far end. Never blocks.
///
/// One message out is one package, one message in is one frame. Packages that the instrument is too slow to read wait
/// in a bounded queue; when that is full whole datagrams are dropped and counted, so that time never stands still.
class PackageSocket
{
public:
    static constexpr std::size_t kQueueMessages = 2048; // 16 MiB, half a minute of the stream at its own speed
    static constexpr int kBufferBytes = 16 << 20; // wished size of the system's own buffers
    static constexpr int kMaxFrameBytes = 32 << 20; // a longer message is read and thrown away

    PackageSocket() = default;
    ~PackageSocket() { close(); }
    PackageSocket(const PackageSocket &) = delete;
    PackageSocket &operator=(const PackageSocket &) = delete;

    /// Makes the socket at \a path; false and one line in \a error.
    bool open(const QString &path, QString *error);
    /// Hangs up and removes the socket from the file system.
    void close();

    bool connected() const { return m_client.isOpen(); }

    /// Queues the messages of one datagram, all or none, and sends what the far end takes.
    void send(const std::vector<QByteArray> &messages);

    /// Descriptors to wait on, with the events wished.
    void addPolls(std::vector<pollfd> *polls) const;

    /// What happened at the node.
    struct Event
    {
        enum class Kind { Connected, Disconnected, Frame };
        Kind kind;
        QByteArray frame; // only of a frame
    };
    using Events = std::vector<Event>;
    /// Accepts, reads and sends whatever is possible without waiting; the events in their order. A newcomer takes the
    /// place of the far end that is there, once what that one had still sent is read: an instrument may open the node
    /// anew before its old end is gone.
    Events serve();

    quint64 sentPackages() const { return m_sent; }
    quint64 droppedDatagrams() const { return m_dropped; }
    std::size_t queued() const { return m_queue.size(); }

private:
    void flush();
    void readFrames(Events *events);
    bool farEndGone() const; // tells an empty message from the end, which both read as 0 bytes
    void hangUp(Events *events = nullptr);

    Descriptor m_listener;
    Descriptor m_client;
    QString m_path;
    std::deque<QByteArray> m_queue;
    quint64 m_sent = 0;
    quint64 m_dropped = 0;
};

} // namespace wire
