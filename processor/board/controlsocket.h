#pragma once

#include "link/unixsocket.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <vector>

struct pollfd;

namespace board {

/// The control socket: a listening stream socket that takes one command a line and answers each at once.
///
/// An answer is any number of lines that begin with two spaces, and then one line that begins with "ok" or "error: ".
/// Any number of clients may stay connected; none of them can make the processor wait.
class ControlSocket
{
public:
    static constexpr int kMaxLine = 4096; // bytes; a longer line is answered with an error and its client sent away
    static constexpr std::size_t kMaxClients = 16;

    using Handler = std::function<QString(const QString &line)>;

    ControlSocket() = default;
    ~ControlSocket() { close(); }
    ControlSocket(const ControlSocket &) = delete;
    ControlSocket &operator=(const ControlSocket &) = delete;

    bool open(const QString &path, QString *error);
    void close();

    void addPolls(std::vector<pollfd> *polls) const;
    /// Accepts, reads, and answers through \a handler whatever is there, without waiting.
    void serve(const Handler &handler);

    /// Sends \a line to the processor that serves \a path and waits for its answer, which goes into \a answer without
    /// the line feed at its end. False: not reached, and \a answer says why.
    static bool tell(const QString &path, const QString &line, QString *answer);

private:
    struct Client
    {
        wire::Descriptor socket;
        QByteArray received; // the beginning of a line
    };
    /// False: the client is gone, or has to go.
    bool serveClient(Client *client, const Handler &handler);

    wire::Descriptor m_listener;
    QString m_path;
    std::vector<Client> m_clients;
};

} // namespace board
