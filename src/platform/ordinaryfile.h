#pragma once

#include <QByteArray>
#include <QString>

/// Files that may be something else: what stands under a name, a disk's or a desk's user may have made. Only an
/// ordinary file is read or written; a named pipe, a device, a socket or a folder in its place is refused at once, so
/// that nothing waits for whoever holds its other end. Paths are those of this system. Any thread.
namespace OrdinaryFile {

/// The descriptor of an ordinary file, opened with these flags of open(2); otherwise -1 with errno set (EINVAL for what
/// is none).
int open(const QString &path, int flags);
/// Its first bytes, at most \a most; empty where it cannot be read.
QByteArray start(const QString &path, int most);
/// Writes \a bytes over the file's first ones, as the files of the kernel take a value; false where it cannot be.
bool write(const QString &path, const QByteArray &bytes);
/// Makes the file hold \a bytes, as the shell's redirection does: a missing file is made, what else stands there takes
/// them as well; false where it cannot. A pipe that nobody reads is not waited for.
bool echo(const QString &path, const QByteArray &bytes);
/// Whether something else than an ordinary file stands under this name, which nobody may open blindly.
bool isSomethingElse(const QString &path);

} // namespace OrdinaryFile
