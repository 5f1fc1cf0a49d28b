#include "cardcalls.h"

#include "platform/target.h"

#include <QFile>

#include <cstdarg>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <sys/vfs.h>
#include <unistd.h>

namespace {

template <typename Function> Function next(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

struct Card
{
    std::mutex mutex;
    bool watched = false;
    QByteArray root; // with a slash at its end
    CardCalls::Fault fault;
    int number = 0;
    QList<CardCalls::Call> calls;
    QMap<QByteArray, int> files; // by name
    int nextFile = 0;
    QList<float> room;

    /// The name below the card; empty for what lies elsewhere.
    QByteArray nameOf(const char *path) const
    {
        return watched && std::strncmp(path, root.constData(), size_t(root.size())) == 0
            ? QByteArray(path + root.size())
            : QByteArray();
    }
    QByteArray nameOf(int descriptor) const
    {
        char path[512] = {};
        const QByteArray link = "/proc/self/fd/" + QByteArray::number(descriptor);
        return watched && ::readlink(link.constData(), path, sizeof(path) - 1) > 0 ? nameOf(path) : QByteArray();
    }
    /// Counts a call that can fail.
    bool fails()
    {
        const int now = number++;
        if (now < fault.first || now - fault.first >= fault.count)
            return false;
        errno = fault.error;
        return true;
    }
    void note(CardCalls::Call::Kind kind, const QByteArray &name, qint64 at = 0, const QByteArray &bytes = {})
    {
        calls.append({ kind, files.value(name, -1), name, {}, at, bytes, ::gettid() == ::getpid() });
    }
};

Card &card()
{
    static auto *only = new Card; // outlives the disk threads
    return *only;
}

int openOnCard(const char *path, int flags, mode_t mode)
{
    static const auto real = next<int (*)(const char *, int, ...)>("open");
    const std::lock_guard<std::mutex> lock(card().mutex);
    const QByteArray name = card().nameOf(path);
    if (name.isEmpty() || (flags & O_ACCMODE) == O_RDONLY)
        return real(path, flags, mode);
    if (card().fails())
        return -1;
    const int descriptor = real(path, flags, mode);
    if (descriptor < 0)
        return descriptor;
    if (!card().files.contains(name)) {
        card().files.insert(name, card().nextFile++);
        card().note(CardCalls::Call::Create, name);
    } else if (flags & O_TRUNC) {
        card().note(CardCalls::Call::Resize, name);
    }
    return descriptor;
}

mode_t modeOf(int flags, va_list arguments)
{
    return flags & O_CREAT ? mode_t(va_arg(arguments, unsigned)) : 0;
}

} // namespace

// Calls of the C library. Those of the test's program come before the library's own, for the toolkit, too.

extern "C" {

int open(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return openOnCard(path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = modeOf(flags, arguments);
    va_end(arguments);
    return openOnCard(path, flags, mode);
}

ssize_t write(int descriptor, const void *data, size_t size)
{
    static const auto real = next<ssize_t (*)(int, const void *, size_t)>("write");
    const std::lock_guard<std::mutex> lock(card().mutex);
    const QByteArray name = card().nameOf(descriptor);
    if (name.isEmpty())
        return real(descriptor, data, size);
    if (card().fails()) {
        if (card().fault.taken < 0)
            return -1;
        size = qMin(size, size_t(card().fault.taken));
    }
    const off_t at = ::lseek(descriptor, 0, SEEK_CUR);
    const ssize_t done = real(descriptor, data, size);
    if (done > 0)
        card().note(CardCalls::Call::Write, name, at, QByteArray(static_cast<const char *>(data), int(done)));
    return done;
}

int ftruncate64(int descriptor, off64_t size)
{
    static const auto real = next<int (*)(int, off64_t)>("ftruncate64");
    const std::lock_guard<std::mutex> lock(card().mutex);
    const QByteArray name = card().nameOf(descriptor);
    if (!name.isEmpty()) {
        if (card().fails())
            return -1;
        card().note(CardCalls::Call::Resize, name, size);
    }
    return real(descriptor, size);
}

int fsync(int descriptor)
{
    static const auto real = next<int (*)(int)>("fsync");
    const std::lock_guard<std::mutex> lock(card().mutex);
    const QByteArray name = card().nameOf(descriptor);
    if (name.isEmpty())
        return real(descriptor);
    if (card().fails())
        return -1;
    card().note(CardCalls::Call::Sync, name);
    return 0;
}

int rename(const char *from, const char *to) noexcept
{
    static const auto real = next<int (*)(const char *, const char *)>("rename");
    const std::lock_guard<std::mutex> lock(card().mutex);
    const QByteArray name = card().nameOf(from);
    if (name.isEmpty())
        return real(from, to);
    if (card().fails())
        return -1;
    const QByteArray other = card().nameOf(to);
    card().note(CardCalls::Call::Rename, name);
    card().calls.last().to = other;
    if (card().files.contains(name))
        card().files.insert(other, card().files.take(name));
    return real(from, to);
}

int unlink(const char *path) noexcept
{
    static const auto real = next<int (*)(const char *)>("unlink");
    const std::lock_guard<std::mutex> lock(card().mutex);
    const QByteArray name = card().nameOf(path);
    if (card().files.contains(name)) {
        if (card().fails())
            return -1;
        card().note(CardCalls::Call::Remove, name);
        card().files.remove(name);
    }
    return real(path);
}

int system(const char *command)
{
    static const auto real = next<int (*)(const char *)>("system");
    {
        const std::lock_guard<std::mutex> lock(card().mutex);
        if (card().watched && std::strstr(command, "sync")) {
            card().note(CardCalls::Call::SyncAll, {});
            return 0;
        }
    }
    return real(command);
}

int statfs(const char *path, struct statfs *info) noexcept
{
    static const auto real = next<int (*)(const char *, struct statfs *)>("statfs");
    const int result = real(path, info);
    const std::lock_guard<std::mutex> lock(card().mutex);
    if (result == 0 && !card().room.isEmpty()) {
        info->f_bsize = 1024;
        info->f_bavail = fsblkcnt_t(card().room.first() * 1024);
        if (card().room.size() > 1)
            card().room.removeFirst();
    }
    return result;
}
}

// The test's side

void CardCalls::begin(const Fault &fault)
{
    const QByteArray root = QFile::encodeName(Target::path(QStringLiteral("/mnt/")));
    const std::lock_guard<std::mutex> lock(card().mutex);
    card().root = root.endsWith('/') ? root : root + '/';
    card().fault = fault;
    card().number = 0;
    card().calls.clear();
    card().files.clear();
    card().room.clear();
    card().watched = true;
}

void CardCalls::setRoom(const QList<float> &megabytes)
{
    const std::lock_guard<std::mutex> lock(card().mutex);
    card().room = megabytes;
}

int CardCalls::calls()
{
    const std::lock_guard<std::mutex> lock(card().mutex);
    return card().number;
}

QList<CardCalls::Call> CardCalls::taken()
{
    const std::lock_guard<std::mutex> lock(card().mutex);
    return card().calls;
}

void CardCalls::end()
{
    const std::lock_guard<std::mutex> lock(card().mutex);
    card().watched = false;
    card().room.clear();
}
