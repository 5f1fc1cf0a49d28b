#include "record/interruptedruns.h"

#include "platform/target.h"
#include "record/pqa2ff.h"
#include "record/pqa2reader.h"
#include "record/wavefile.h"
#include "storage/fileinfo.h"
#include "storage/runjournal.h"

#include <QFile>
#include <QFileInfo>

#include <cstring>
#include <optional>

namespace {

constexpr qint64 kTail = 1 << 20; // bytes that hold the last lines of a logger's file

template <typename Value> std::optional<Value> valueOf(const QByteArray &bytes)
{
    Value value;
    if (bytes.size() < int(sizeof value))
        return {};
    std::memcpy(&value, bytes.constData(), sizeof value);
    return value;
}

/// Those kinds whose payload begins with seconds; 0xA1010000 to 0xA1010006 are the monitor's.
bool beginsWithSeconds(quint32 type)
{
    return type == Pqa2StartTime || type == Pqa2EndTime
        || (type >= Pqa2MonitorFrequency && type <= Pqa2MonitorSecondSpectrum);
}

/// Those kinds whose payload begins with milliseconds.
bool beginsWithMilliseconds(quint32 type)
{
    const bool isAnother = type == Pqa2InstrumentInfo || type == Pqa2SystemSetting || type == Pqa2ChannelFactor
        || type == Pqa2Transient || type == Pqa2EventWave;
    return !isAnother && type >= Pqa2InstrumentInfo && type < Pqa2MonitorFrequency;
}

/// What the blocks of a file say; ms since 1970.
struct BlockTimes
{
    qint64 last = 0; // 0: none has a time
    bool ended = false;
};

BlockTimes timesOf(QFile &file)
{
    BlockTimes times;
    Pqa2Reader reader(&file);
    for (Pqa2Block block; reader.next(&block);) {
        if (beginsWithSeconds(block.type))
            times.last = qint64(valueOf<quint32>(reader.payload(block, 0, sizeof(quint32))).value_or(0)) * 1000;
        else if (beginsWithMilliseconds(block.type))
            times.last = valueOf<qint64>(reader.payload(block, 0, sizeof(qint64))).value_or(0);
        times.ended = times.ended || block.type == Pqa2EndTime;
    }
    return times;
}

qint64 timeOfCapture(QFile &file)
{
    const auto header = valueOf<WaveFileHeader>(file.read(sizeof(WaveFileHeader)));
    return header && header->isValid() ? qint64(header->lastWrite) * 1000 : 0;
}

/// Of the last whole line.
qint64 timeOfLines(QFile &file, const QTimeZone &zone)
{
    file.seek(qMax(file.size() - kTail, qint64(0)));
    const QByteArray tail = file.read(kTail);
    const int end = tail.lastIndexOf('\n');
    const int begin = end > 0 ? tail.lastIndexOf('\n', end - 1) + 1 : 0;
    const QString time = QString::fromLatin1(tail.mid(begin, tail.indexOf(',', begin) - begin));
    QDateTime at = QDateTime::fromString(time, QStringLiteral("yyyy/MM/dd  hh:mm:ss"));
    at.setTimeZone(zone);
    return at.isValid() ? at.toMSecsSinceEpoch() : 0;
}

/// The file that a folder's times stand in, in its last part.
QString fileOfTimes(const QString &folder)
{
    for (const char *name : { "/Common.pqa2", "/Monitor.pqa2" }) {
        const QString first = folder + QLatin1String(name);
        if (!QFileInfo::exists(first))
            continue;
        int part = 1;
        while (QFileInfo::exists(Pqa2FF::partPath(first, part + 1)))
            ++part;
        return Pqa2FF::partPath(first, part);
    }
    return folder;
}

/// \a mayHaveWaited: a run that holds no time may have waited for its start, and is none that was cut.
std::optional<InterruptedRun> lookAt(const QString &name, const QTimeZone &zone, bool mayHaveWaited)
{
    const QFileInfo item(Target::path(FileInfo::storagePath() + name));
    if (!item.exists() || !(item.isDir() || item.isFile()))
        return {};
    const QString path = item.isDir() ? fileOfTimes(item.filePath()) : item.filePath();
    qint64 last = 0;
    bool isRead = true;
    QFile file(path);
    if (QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly)) {
        if (name.endsWith(WaveFile::suffix())) {
            last = timeOfCapture(file);
        } else if (!item.isDir()) {
            last = timeOfLines(file, zone);
        } else if (file.size() <= InterruptedRuns::kLargestRead) {
            const BlockTimes times = timesOf(file);
            if (times.ended)
                return {};
            last = times.last;
        } else {
            isRead = false;
        }
    }
    if (mayHaveWaited && isRead && last <= 0)
        return {};
    const QDateTime at
        = last > 0 ? QDateTime::fromMSecsSinceEpoch(last, zone) : QFileInfo(path).lastModified().toTimeZone(zone);
    return InterruptedRun { name, at };
}

} // namespace

QVector<InterruptedRun> InterruptedRuns::find(RunJournal &journal, const QTimeZone &zone)
{
    QVector<InterruptedRun> runs;
    for (const QString &name : journal.interrupted()) {
        if (const std::optional<InterruptedRun> run = lookAt(name, zone, !journal.missed().isEmpty()))
            runs << *run;
        else
            journal.forget(name);
    }
    return runs;
}
