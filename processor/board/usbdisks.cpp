#include "board/usbdisks.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

namespace board {

namespace {

constexpr char kCapacity[] = "/.capacity";

qint64 bytesIn(const QString &folder)
{
    qint64 bytes = 0;
    QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        walk.next();
        bytes += walk.fileInfo().size();
    }
    return bytes;
}

} // namespace

UsbDisks::UsbDisks(const QString &root)
    : m_media(root + QLatin1String("/run/media/")), m_drawer(root + QLatin1String("/run/usb/"))
{ }

bool UsbDisks::isName(const QString &name)
{
    static const QRegularExpression pattern(QStringLiteral("^[A-Za-z0-9_-][A-Za-z0-9_.-]{0,63}$"));
    return pattern.match(name).hasMatch();
}

QString UsbDisks::insert(const QString &name, qint64 capacity)
{
    if (!isName(name))
        return QStringLiteral("a disk name is letters, digits, '_', '-' and '.'");
    const QString disk = m_media + name;
    if (QFileInfo::exists(disk))
        return QStringLiteral("%1 is in already").arg(name);
    const QString drawer = m_drawer + name;
    if (!QDir().mkpath(m_media) || !QDir().mkpath(drawer))
        return QStringLiteral("cannot write %1").arg(drawer);
    if (capacity > 0) {
        QFile file(drawer + QLatin1String(kCapacity));
        if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray::number(capacity) + '\n') < 0)
            return QStringLiteral("cannot write %1").arg(file.fileName());
    }
    return QDir().rename(drawer, disk) ? QString() : QStringLiteral("cannot make %1").arg(disk);
}

QString UsbDisks::pull(const QString &name)
{
    if (!isName(name) || !QFileInfo(m_media + name).isDir())
        return QStringLiteral("%1 is not in").arg(name);
    QDir().mkpath(m_drawer);
    QDir(m_drawer + name).removeRecursively(); // what an earlier disk of that name left
    return QDir().rename(m_media + name, m_drawer + name) ? QString() : QStringLiteral("cannot pull %1").arg(name);
}

QStringList UsbDisks::inserted() const
{
    return QDir(m_media).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

QStringList UsbDisks::overfull() const
{
    QStringList names;
    for (const QString &name : inserted()) {
        QFile file(m_media + name + QLatin1String(kCapacity));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const qint64 capacity = file.readLine(32).trimmed().toLongLong();
        if (capacity > 0 && bytesIn(m_media + name) > capacity)
            names << name;
    }
    return names;
}

qint64 UsbDisks::sizeFromText(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("^([0-9]{1,9})([kKMG]?)$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return -1;
    const QString unit = match.captured(2).toUpper();
    const int shift = unit == QLatin1String("K") ? 10
        : unit == QLatin1String("M")             ? 20
        : unit == QLatin1String("G")             ? 30
                                                 : 0;
    return match.captured(1).toLongLong() << shift;
}

} // namespace board
