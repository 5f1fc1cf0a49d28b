#include "record/tables/recordsource.h"

#include "platform/ordinaryfile.h"
#include "record/pqa2format.h"
#include "record/pqafile.h"
#include "record/tables/capturereading.h"
#include "record/tables/inputfile.h"
#include "record/tables/logreading.h"
#include "record/tables/pagereading.h"
#include "record/tables/partname.h"
#include "record/tables/pqa2recording.h"

#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <unistd.h>

namespace {

constexpr int kMostParts = 999; // of a file, 4 GiB each
constexpr int kSuffix = 5; // characters of ".pqa2"

/// The files of a record folder, in the order in which they are read.
constexpr std::array<const char *, 10> kFolderFiles = {
    "Common",
    "U Harmonic(1-50)",
    "U Harmonic(51-100)",
    "I Harmonic(1-50)",
    "I Harmonic(51-100)",
    "U inHarmonic(0-49)",
    "U inHarmonic(50-99)",
    "I inHarmonic(0-49)",
    "I inHarmonic(50-99)",
    "Monitor",
};

RecordState joined(RecordState worst, const RecordFileReport &file, bool isAlone)
{
    if (file.state != RecordState::Unreadable || isAlone)
        return qMax(worst, file.state);
    // What a lost supply leaves of a new file; one that is no file or may not be read could hold anything.
    const bool isTornHead = file.isOpen && file.size < qint64(sizeof(Pqa2FileHeader));
    return qMax(worst, isTornHead ? RecordState::Cut : RecordState::Broken);
}

/// The files of a recording that a folder may have; none for other names.
const char *const *folderFile(const PartName &part)
{
    const auto file = std::find_if(kFolderFiles.begin(), kFolderFiles.end(),
                                   [&](const char *row) { return part.base == QLatin1String(row); });
    return file != kFolderFiles.end() && part.number <= kMostParts ? file : nullptr;
}

bool isRecordFolder(const QString &path)
{
    QDirIterator entries(path, { QStringLiteral("*.pqa2") }, QDir::Files | QDir::System);
    while (entries.hasNext()) {
        entries.next();
        if (folderFile(PartName::of(entries.fileName().chopped(kSuffix))))
            return true;
    }
    return false;
}

/// What there is in a folder that is none of a recording: whoever names a whole stick learns what to name instead.
QString hintAt(const QString &path)
{
    constexpr int kLooked = 1000; // of what may be a hundred thousand
    constexpr int kNamed = 3;
    QStringList found;
    QDirIterator entries(path, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    for (int i = 0; i < kLooked && entries.hasNext(); ++i) {
        const QString entry = entries.next();
        if (entries.fileInfo().isDir() ? isRecordFolder(entry)
                                       : RecordSource::formatOf(entry) != RecordSource::Format::None)
            found.append(QLatin1Char('"') + entries.fileName() + QLatin1Char('"'));
    }
    if (found.isEmpty())
        return {};
    found.sort();
    const int more = found.size() - kNamed;
    const QString behind = more > 0 ? QStringLiteral(" and %1 more").arg(more) : QString();
    return QStringLiteral(" of its own; in it: ") + found.mid(0, kNamed).join(QStringLiteral(", ")) + behind;
}

} // namespace

RecordSource::RecordSource() = default;
RecordSource::~RecordSource() = default;

RecordSource::Format RecordSource::formatOf(const QString &path)
{
    const QByteArray start = OrdinaryFile::start(path, 40);
    if (start.startsWith(QByteArray(kPqa2FileHeader.magic, sizeof kPqa2FileHeader.magic)))
        return Format::Pqa2;
    if (start.startsWith(QByteArray("WAV\x1A", 4)))
        return Format::Capture;
    if (start.startsWith("TIME,"))
        return Format::Log;
    constexpr int kMagicAt = int(offsetof(__pqa_file_header, magic));
    const quint32 magic = PqaFile::kMagic;
    if (start.mid(kMagicAt) == QByteArray(reinterpret_cast<const char *>(&magic), int(sizeof magic)))
        return Format::Page;
    return Format::None;
}

bool RecordSource::open(const QString &path, const RecordProgress &progress)
{
    m_path = path;
    m_reading.reset();
    m_ownFaults.clear();
    m_isFolder = QFileInfo(path).isDir();
    if (m_isFolder)
        return openFolder(progress);
    switch (formatOf(path)) {
    case Format::Pqa2:
        m_reading = std::make_unique<Pqa2Recording>(QVector<Pqa2Recording::Parts> { { path } }, false);
        break;
    case Format::Capture:
        m_reading = std::make_unique<CaptureReading>(path);
        break;
    case Format::Page:
        m_reading = std::make_unique<PageReading>(path);
        break;
    case Format::Log:
        m_reading = std::make_unique<LogReading>(path);
        break;
    case Format::None:
        break;
    }
    if (m_reading)
        return m_reading->scan(progress);
    QFile file;
    const QString reason = openInput(&file, path);
    const bool isEmpty = reason.isEmpty() && file.size() == 0;
    fault(path, !reason.isEmpty() ? reason : QString::fromLatin1(isEmpty ? "it is empty" : "it is no recorded file"));
    return true;
}

bool RecordSource::openFolder(const RecordProgress &progress)
{
    if (::faccessat(AT_FDCWD, QFile::encodeName(m_path).constData(), R_OK | X_OK, AT_EACCESS) != 0) {
        fault(m_path, QString::fromLocal8Bit(std::strerror(errno)));
        return true;
    }
    std::array<std::map<int, QString>, kFolderFiles.size()> parts;
    QDirIterator entries(m_path, QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QString name = entries.fileName();
        if (!name.endsWith(QLatin1String(".pqa2")))
            continue;
        const PartName part = PartName::of(name.chopped(kSuffix));
        if (const auto *file = folderFile(part))
            parts[std::size_t(file - kFolderFiles.data())][part.number] = entries.filePath();
    }
    QVector<Pqa2Recording::Parts> files;
    for (const auto &file : parts) {
        Pqa2Recording::Parts paths;
        for (const auto &part : file)
            paths.append(part.second);
        if (paths.isEmpty())
            continue;
        files.append(paths);
        if (file.rbegin()->first != paths.size())
            m_ownFaults.append({ paths.constLast(), 0, QStringLiteral("a part in front of it is missing") });
    }
    if (files.isEmpty()) {
        fault(m_path, QStringLiteral("the folder holds no recording") + hintAt(m_path));
        return true;
    }
    m_reading = std::make_unique<Pqa2Recording>(files, true);
    return m_reading->scan(progress);
}

bool RecordSource::read(RecordSink &sink, const RecordProgress &progress)
{
    return state() != RecordState::Unreadable && m_reading->read(sink, progress);
}

const RecordFacts &RecordSource::facts() const
{
    return m_reading ? m_reading->facts() : m_noFacts;
}

const QVector<RecordFileReport> &RecordSource::files() const
{
    return m_reading ? m_reading->files() : m_noFiles;
}

QVector<std::pair<QString, QString>> RecordSource::details() const
{
    return m_reading ? m_reading->details() : QVector<std::pair<QString, QString>>();
}

RecordState RecordSource::state() const
{
    if (!m_reading)
        return RecordState::Unreadable;
    const auto isReadable = [](const RecordFileReport &file) { return file.state != RecordState::Unreadable; };
    const bool isAlone = std::none_of(files().cbegin(), files().cend(), isReadable);
    RecordState worst = m_ownFaults.isEmpty() ? RecordState::Whole : RecordState::Broken;
    for (const RecordFileReport &file : files())
        worst = joined(worst, file, isAlone);
    return worst;
}

QVector<RecordFault> RecordSource::faults() const
{
    QVector<const RecordFileReport *> order;
    for (const RecordFileReport &file : files())
        order.append(&file);
    std::stable_sort(order.begin(), order.end(), [](const auto *a, const auto *b) { return a->state > b->state; });
    QVector<RecordFault> faults = m_ownFaults;
    for (const RecordFileReport *file : qAsConst(order))
        faults += file->faults;
    return faults;
}

void RecordSource::fault(const QString &path, const QString &reason)
{
    m_ownFaults.append({ path, 0, reason });
}
