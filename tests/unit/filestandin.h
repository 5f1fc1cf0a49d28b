#pragma once

#include "platform/target.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <cstring>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

// What may stand in the place of a file: whoever opens it blindly waits, or reads for ever.

enum class FileStandIn { Pipe, Folder, Socket, Device };
Q_DECLARE_METATYPE(FileStandIn)

/// A data row for each; column "kind".
inline void addFileStandIns()
{
    QTest::addColumn<FileStandIn>("kind");
    QTest::newRow("a named pipe") << FileStandIn::Pipe;
    QTest::newRow("a folder") << FileStandIn::Folder;
    QTest::newRow("a socket") << FileStandIn::Socket;
    QTest::newRow("a device without end") << FileStandIn::Device;
}

inline void removeStandIn(const QString &boardPath)
{
    const QString path = Target::path(boardPath);
    if (QFileInfo(path).isDir() && !QFileInfo(path).isSymLink())
        QDir().rmdir(path);
    else
        QFile::remove(path);
}

inline bool bindSocket(const QByteArray &path)
{
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    if (path.size() >= int(sizeof address.sun_path))
        return false;
    std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool bound = ::bind(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    ::close(fd); // its name stays
    return bound;
}

/// Puts one in the place of a file (a board's path), whose folder is made where it is missing.
inline bool putStandIn(const QString &boardPath, FileStandIn kind)
{
    const QByteArray path = QFile::encodeName(Target::path(boardPath));
    QDir().mkpath(QFileInfo(Target::path(boardPath)).path());
    removeStandIn(boardPath);
    switch (kind) {
    case FileStandIn::Pipe:
        return ::mkfifo(path.constData(), 0600) == 0;
    case FileStandIn::Folder:
        return ::mkdir(path.constData(), 0700) == 0;
    case FileStandIn::Socket:
        return bindSocket(path);
    case FileStandIn::Device:
        return ::symlink("/dev/zero", path.constData()) == 0;
    }
    return false;
}
