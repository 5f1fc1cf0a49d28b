#include "platform/target.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include "platform/deskroot.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

/// Beginnings of the paths that commands of the board name. Only these move under the root: "/dev/null", "/bin/sh" and
/// the like stay the host's.
const char *const kInstrumentPaths[] = {
    "/mnt",
    "/sys/class",
    "/sys/bus",
    "/tmp",
    "/run",
    "/var/run",
    "/var/log",
    "/etc/init.d",
    "/etc/network",
    "/etc/resolv.conf",
    "/etc/wpa_supplicant.conf",
    "/usr/lib/fonts",
    "/dev/mcasp",
};

constexpr int kNodeSendBuffer = 8 * 1024 * 1024; // bytes; a firmware image goes out as one frame
constexpr int kOutputLimit = 1024 * 1024; // bytes taken of a command's output

struct Root
{
    QString folder; // empty: on the board
    QString error;
    Root()
    {
        const QByteArray given = qgetenv("QUVERA_ROOT");
        if (given.isEmpty())
            return;
        folder = QDir::cleanPath(QDir().absoluteFilePath(QFile::decodeName(given)));
        if (folder == QLatin1String("/")) {
            folder.clear();
            return;
        }
        error = DeskRoot::build(folder);
    }
};

const Root &theRoot()
{
    static const Root instance;
    return instance;
}

quint16 portFromEnvironment(const char *variable, quint16 usual)
{
    if (theRoot().folder.isEmpty())
        return usual;
    bool ok = false;
    const uint port = qgetenv(variable).trimmed().toUInt(&ok);
    return ok && port <= 65535 ? static_cast<quint16>(port) : usual;
}

/// Whether a character can stand inside a path, so that a slash behind it does not begin one.
bool isPathCharacter(QChar c)
{
    return c.isLetterOrNumber() || QStringLiteral("_.-~/}").contains(c);
}

/// Length of the instrument path that begins at `at`, or 0.
int instrumentPathAt(const QString &command, int at)
{
    for (const char *beginning : kInstrumentPaths) {
        const QLatin1String text(beginning);
        if (command.midRef(at, text.size()) != text)
            continue;
        const int end = at + text.size();
        if (end == command.size() || command.at(end) == QLatin1Char('/') || !isPathCharacter(command.at(end)))
            return text.size();
    }
    return 0;
}

/// Connects to the stand-in that listens at the node. The folder is opened first, since a socket's address holds 107
/// characters and the path of a root may be longer.
int connectNode(const QByteArray &node)
{
    const int slash = node.lastIndexOf('/');
    const QByteArray name = node.mid(slash + 1);
    const int folder = ::open(node.left(slash).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return -1;
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    snprintf(address.sun_path, sizeof(address.sun_path), "/proc/self/fd/%d/%s", folder, name.constData());
    const int fd = ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    int result = fd;
    if (fd >= 0) {
        // The forced form needs a privilege; the plain one is held to the kernel's limit.
        if (::setsockopt(fd, SOL_SOCKET, SO_SNDBUFFORCE, &kNodeSendBuffer, sizeof(kNodeSendBuffer)) != 0)
            ::setsockopt(fd, SOL_SOCKET, SO_SNDBUF, &kNodeSendBuffer, sizeof(kNodeSendBuffer));
        if (::connect(fd, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) != 0)
            result = -1;
    }
    const int error = errno;
    if (fd >= 0 && result < 0)
        ::close(fd);
    ::close(folder);
    errno = error;
    return result;
}

} // namespace

QString Target::root()
{
    return theRoot().folder;
}

QString Target::rootError()
{
    return theRoot().error;
}

QString Target::path(const QString &boardPath)
{
    const QString &folder = theRoot().folder;
    if (folder.isEmpty() || !boardPath.startsWith(QLatin1Char('/')))
        return boardPath;
    if (boardPath.startsWith(folder)
        && (boardPath.size() == folder.size() || boardPath.at(folder.size()) == QLatin1Char('/')))
        return boardPath;
    return folder + boardPath;
}

QString Target::boardPath(const QString &realPath)
{
    const QString &folder = theRoot().folder;
    if (folder.isEmpty() || !realPath.startsWith(folder + QLatin1Char('/')))
        return realPath;
    return realPath.mid(folder.size());
}

QString Target::deskCommand(const QString &command)
{
    const QString &folder = theRoot().folder;
    if (folder.isEmpty())
        return command;
    QString mapped = QStringLiteral("PATH='%1/bin':\"$PATH\"; export PATH; ").arg(folder);
    for (int at = 0; at < command.size();) {
        const bool begins = command.at(at) == QLatin1Char('/') && (at == 0 || !isPathCharacter(command.at(at - 1)));
        if (!begins) {
            mapped += command.at(at++);
            continue;
        }
        if (command.midRef(at, folder.size()) == folder) { // the caller mapped it already
            mapped += folder;
            at += folder.size();
            continue;
        }
        const int length = instrumentPathAt(command, at);
        if (length > 0)
            mapped += folder;
        const int taken = qMax(length, 1);
        mapped += command.midRef(at, taken);
        at += taken;
    }
    return mapped;
}

int Target::shell(const QString &command)
{
    return ::system(deskCommand(command).toLocal8Bit().constData());
}

QString Target::shellOutput(const QString &command, bool *started)
{
    FILE *pipe = ::popen(deskCommand(command).toLocal8Bit().constData(), "re");
    if (started)
        *started = pipe != nullptr;
    if (!pipe)
        return {};
    QByteArray output;
    char piece[4096];
    for (size_t n; (n = ::fread(piece, 1, sizeof(piece), pipe)) > 0;) {
        if (output.size() < kOutputLimit)
            output.append(piece, static_cast<int>(n));
    }
    ::pclose(pipe);
    return QString::fromLocal8Bit(output);
}

int Target::openProcessor()
{
    const QByteArray node = QFile::encodeName(path(QStringLiteral("/dev/mcasp")));
    struct stat info
    {
    };
    if (::stat(node.constData(), &info) == 0 && S_ISSOCK(info.st_mode))
        return connectNode(node);
    return ::open(node.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
}

quint16 Target::modbusPort()
{
    return portFromEnvironment("QUVERA_MODBUS_PORT", 502);
}

quint16 Target::remotePort()
{
    return portFromEnvironment("QUVERA_REMOTE_PORT", 3527);
}
