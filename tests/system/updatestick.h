#pragma once

#include "testpaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <functional>

/// A maker of update packages with its key, and the USB disk that it puts them on. Included by one source of each test.
class UpdateStick
{
public:
    /// \a root gets the public key. The disk is there once the stand-in was told to insert it.
    explicit UpdateStick(const QString &root) : m_root(root)
    {
        write(m_office.filePath(QStringLiteral("software/bin/quvera")), "new program");
        makeUpdate({ QStringLiteral("keys"), key(), m_office.filePath(QStringLiteral("update.pub")) });
        giveKey();
    }

    QString name() const { return QStringLiteral("STICK"); }
    QString folder() const { return m_root + QStringLiteral("/run/media/") + name(); }

    void giveKey() const
    {
        write(m_root + QStringLiteral("/etc/quvera/update.pub"), read(m_office.filePath(QStringLiteral("update.pub"))));
    }
    void takeKeyAway() const { QFile::remove(m_root + QStringLiteral("/etc/quvera/update.pub")); }

    /// Puts software on the disk: a package with one program.
    void putSoftware(int version, int minimum = 0) const
    {
        makeUpdate({ QStringLiteral("software"), key(), QString::number(version), QString::number(minimum),
                     m_office.filePath(QStringLiteral("software")), package(QStringLiteral("Software.upd")) });
    }
    void putFirmware(const QByteArray &image) const
    {
        write(m_office.filePath(QStringLiteral("image")), image);
        makeUpdate({ QStringLiteral("firmware"), key(), QStringLiteral("1"), QStringLiteral("0"),
                     m_office.filePath(QStringLiteral("image")), package(QStringLiteral("Firmware.upd")) });
    }
    /// Changes what is on the disk.
    void spoil(const std::function<void(QByteArray *)> &change) const
    {
        const QString path = folder() + QLatin1Char('/') + QDir(folder()).entryList(QDir::Files).value(0);
        QByteArray bytes = read(path);
        change(&bytes);
        write(path, bytes);
    }

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QString key() const { return m_office.filePath(QStringLiteral("update.key")); }
    /// The only package on the disk is the one that is made now.
    QString package(const QString &name) const
    {
        for (const QString &old : QDir(folder()).entryList(QDir::Files))
            QFile::remove(folder() + QLatin1Char('/') + old);
        return folder() + QLatin1Char('/') + name;
    }
    static void write(const QString &path, const QByteArray &content)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("a file of the test cannot be written");
    }
    static void makeUpdate(const QStringList &arguments)
    {
        if (QProcess::execute(QStringLiteral(QUVERA_BIN_DIR "/make-update"), arguments) != 0)
            qFatal("a package cannot be made");
    }

    const QString m_root;
    QTemporaryDir m_office;
};
