#pragma once

#include "board.h"
#include "compose.h"
#include "crypto.h"
#include "testpaths.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// A root with a key, and packages for it. Included by one source of each test.
class UpdateDesk
{
public:
    using Content = QMap<QString, QByteArray>; // by name

    /// \a below: where the root is made. Hundreds of updates, each of which waits for its disk a dozen times, are made
    /// in memory where that can be.
    explicit UpdateDesk(const QString &below = quickDisk()) : m_folder(below + QStringLiteral("/update.XXXXXX"))
    {
        update::makeKeys(&privateKey, &publicKey);
        for (const char *folder : { "/etc/quvera", "/opt/quvera", "/tmp", "/usb", "/var/lib/quvera" })
            QDir().mkpath(path(folder));
        write(path(update::kKeyFile), QByteArray::fromStdString(publicKey));
    }

    static QString quickDisk()
    {
        const QString memory = QStringLiteral("/dev/shm");
        return QFileInfo(memory).isWritable() ? memory : QDir::tempPath();
    }

    QString path(const QString &boardPath) const { return m_folder.path() + boardPath; }

    static void write(const QString &path, const QByteArray &content)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("a file of the test cannot be written");
    }
    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static update::Digest digestOf(const QByteArray &content)
    {
        update::Digest digest;
        update::Sha256 sum;
        sum.add(content.constData(), std::size_t(content.size()));
        sum.finish(&digest);
        return digest;
    }
    static update::Entry entry(const std::string &name, const QByteArray &content)
    {
        return { name, false, std::uint64_t(content.size()), digestOf(content) };
    }

    /// A signed package made of given parts, also of such that make-update would not make.
    QByteArray signedPackage(const update::Head &head, const std::vector<update::Entry> &entries,
                             const QByteArray &payload) const
    {
        const std::string message = update::compose(head, entries);
        return QByteArray::fromStdString(message + update::sign(privateKey, message)) + payload;
    }

    static update::Head head(update::Kind kind, std::uint32_t version, std::uint32_t minimum = 0)
    {
        update::Head head;
        head.kind = kind;
        head.version = version;
        head.minimum = minimum;
        return head;
    }

    QByteArray firmwarePackage(const QByteArray &image, std::uint32_t version = 1, std::uint32_t minimum = 0) const
    {
        return signedPackage(head(update::Kind::Firmware, version, minimum), { entry(update::kFirmwareName, image) },
                             image);
    }
    QByteArray softwarePackage(const Content &files, std::uint32_t version, std::uint32_t minimum = 0) const
    {
        std::vector<update::Entry> entries;
        QByteArray payload;
        for (auto file = files.begin(); file != files.end(); ++file) {
            entries.push_back(entry(file.key().toStdString(), file.value()));
            payload += file.value();
        }
        return signedPackage(head(update::Kind::Software, version, minimum), entries, payload);
    }

    struct Result
    {
        int status; // -1: ended by a signal
        QByteArray text;
    };
    QProcessEnvironment environment() const
    {
        QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
        all.insert("QUVERA_ROOT", m_folder.path());
        return all;
    }
    Result unpack(const QString &package, QProcessEnvironment all) const
    {
        QProcess process;
        process.setProcessEnvironment(all);
        process.start(QStringLiteral(QUVERA_BIN_DIR "/update-unpack"), { package });
        process.waitForFinished(60000);
        const bool ended = process.exitStatus() == QProcess::NormalExit && process.error() == QProcess::UnknownError;
        return { ended ? process.exitCode() : -1, process.readAllStandardError() };
    }
    Result unpack(const QByteArray &package) const
    {
        write(path("/usb/Software.upd"), package);
        return unpack(path("/usb/Software.upd"), environment());
    }

    /// What the version that a link leads to holds; empty when there is none.
    Content version(const char *link) const
    {
        Content files;
        const QString folder = QFileInfo(path("/opt/quvera/") + QLatin1String(link)).canonicalFilePath();
        QDirIterator each(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (!folder.isEmpty() && each.hasNext()) {
            const QString name = each.next();
            files.insert(name.mid(folder.size() + 1), read(name));
        }
        return files;
    }
    Content current() const { return version(update::kCurrentLink); }
    QStringList versions() const
    {
        return QDir(path("/opt/quvera/versions")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    QByteArray firmware() const { return read(path("/tmp/.firmwareupd.tmp")); }

    std::string privateKey, publicKey;

private:
    QTemporaryDir m_folder;
};
