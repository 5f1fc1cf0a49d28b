#include "record/exports/recovery.h"

#include "record/exports/outputfile.h"
#include "record/exports/pqa2copy.h"
#include "record/pqafile.h"
#include "record/tables/blockcheck.h"
#include "record/tables/inputfile.h"
#include "record/tables/logreading.h"
#include "record/tables/partname.h"
#include "record/tables/recordsource.h"
#include "record/wavefile.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>

namespace {

constexpr int kProgressStep = 1000; // blocks or lines
const QString kSuffix = QStringLiteral(".pqa2");

/// Tells what a recovered folder was made of; without it a folder of recordings is an original.
const QString kMark = QStringLiteral("recovered.txt");

/// Names that a recovered folder has.
bool writes(const QString &name)
{
    return name == kMark || name.endsWith(kSuffix);
}

QByteArray markOf(const RecordSource &source, const QString &name)
{
    QString text = QStringLiteral("What could be read of \"%1\", copied by quvera-files.\n").arg(name.simplified());
    for (const RecordFault &fault : source.faults())
        text += QStringLiteral("%1: byte %2: %3\n")
                    .arg(QFileInfo(fault.path).fileName().simplified(), QString::number(fault.offset), fault.reason);
    return text.toUtf8();
}

} // namespace

Recovery::Recovery(const OutputPlace &place) : m_place(place) { }

Recovery::Result Recovery::run(const RecordSource &source, const RecordProgress &progress)
{
    m_progress = progress;
    Output output(source.isFolder() ? Output::Folder : Output::File, m_place, writes, kMark);
    Result result = output.begin() ? Done : Failed;
    if (result == Done)
        result = source.isFolder() ? copyFolder(source, output)
                                   : copyFile(source, source.files().constFirst(), output.path());
    if (result == Done && !output.finish())
        result = Failed;
    if (m_error.isEmpty())
        m_error = output.error();
    m_isRefused = output.isRefused();
    return result;
}

/// Parts are numbered anew, without the missing ones and those that hold nothing: what a lost supply leaves of a file
/// that was just begun takes nothing from the others.
Recovery::Result Recovery::copyFolder(const RecordSource &source, Output &output)
{
    QMap<QString, int> parts;
    Result all = Nothing;
    for (const RecordFileReport &file : source.files()) {
        if (file.state == RecordState::Unreadable)
            continue;
        const QString base = PartName::of(QFileInfo(file.path).fileName().chopped(kSuffix.size())).base;
        const int part = parts.value(base) + 1;
        const QString name = part == 1 ? base : base + QLatin1Char('_') + QString::number(part);
        const QString to = output.path() + QLatin1Char('/') + name + kSuffix;
        const Result result = copyFile(source, file, to);
        if (result == Nothing && m_error.isEmpty()) {
            QFile::remove(to);
            continue;
        }
        if (result != Done)
            return result;
        parts[base] = part;
        all = Done;
    }
    if (all == Nothing)
        return all;
    OutputFile mark;
    if (mark.open(output.path() + QLatin1Char('/') + kMark))
        mark.write(markOf(source, m_place.inputName()));
    return closed(&mark, Done);
}

Recovery::Result Recovery::closed(OutputFile *out, Result result)
{
    if (result == Done && !out->close())
        result = Failed;
    if (result == Failed)
        m_error = m_place.target + QStringLiteral(": ") + out->reason();
    return result;
}

bool Recovery::canRead(const RecordFileReport &file, const QString &refusal)
{
    if (refusal.isEmpty())
        return true;
    m_error = QStringLiteral("\"%1\" can no longer be read: %2").arg(QFileInfo(file.path).fileName(), refusal);
    return false;
}

Recovery::Result Recovery::copyFile(const RecordSource &source, const RecordFileReport &file, const QString &to)
{
    OutputFile out;
    Result result = out.open(to) ? Done : Failed;
    if (result == Done) {
        switch (source.facts().kind) {
        case RecordKind::Recording:
        case RecordKind::Monitor:
            result = copyBlocks(source, file, out);
            break;
        case RecordKind::Waveform:
            result = copyCapture(file, out);
            break;
        case RecordKind::Page:
            result = copyPage(file, out);
            break;
        case RecordKind::Log:
            result = copyLines(file, out);
            break;
        }
    }
    const QFileInfo now(file.path);
    // What was found out about it holds no longer, and a copy made by that may lack its end.
    if ((result == Done || result == Nothing) && now.exists() && now.size() < file.size) {
        m_error = QStringLiteral("\"%1\" became shorter while it was copied").arg(now.fileName());
        result = Nothing;
    }
    return closed(&out, result);
}

Recovery::Result Recovery::copyBlocks(const RecordSource &source, const RecordFileReport &file, OutputFile &to)
{
    const BlockCheck check(source.facts().joinMode);
    Pqa2Walk walk(file.path);
    if (!canRead(file, walk.isOpen() ? QString() : walk.reason()))
        return Nothing;
    Pqa2Copy copy(&walk, &to);
    Pqa2Block block;
    for (qint64 count = 0; walk.next(&block); ++count) {
        if (!check.inspect(block, walk.payload(block, BlockCheck::kLook)).problem)
            copy.add(block);
        if (to.hasFailed())
            return Failed;
        if (count % kProgressStep == 0 && !goesOn(block.offset, file.size))
            return Ended;
    }
    // What is copied without its further part ends where it does.
    if (source.isFolder() ? file.lacksEnd : file.isUnended)
        copy.addEnd(quint32(qMax<qint64>(source.facts().end, 0) / 1000));
    return copy.finish() ? Done : Nothing;
}

Recovery::Result Recovery::copyCapture(const RecordFileReport &file, OutputFile &to)
{
    QFile in;
    if (!canRead(file, openInput(&in, file.path)))
        return Nothing;
    WaveFileReader counting(&in);
    WaveFileHeader header = counting.header();
    if (header.sampleRate == 0) // which it is without a head, too
        return Nothing;
    header.frames = 0;
    for (WaveChunk chunk; counting.next(&chunk);)
        header.frames += quint64(chunk.frames);
    to.write(reinterpret_cast<const char *>(&header), sizeof header);
    WaveFileReader reader(&in);
    qint64 left = qint64(header.frames); // what comes meanwhile is left out
    for (WaveChunk chunk; left > 0 && reader.next(&chunk);) {
        const qint64 taken = qMin(left, chunk.frames);
        const quint32 length = quint32(taken * kWaveFrameBytes);
        to.write(reinterpret_cast<const char *>(&length), sizeof length);
        for (qint64 at = 0; at < taken;) {
            const QByteArray frames = reader.frames(chunk, at, taken - at);
            if (frames.isEmpty())
                return Nothing; // the file has become shorter
            to.write(frames);
            at += frames.size() / kWaveFrameBytes;
        }
        left -= taken;
        if (to.hasFailed())
            return Failed;
        if (!goesOn(chunk.offset, file.size))
            return Ended;
    }
    return left == 0 ? Done : Nothing;
}

/// A picture and a record are of use only as a whole; one that is not is left out.
Recovery::Result Recovery::copyPage(const RecordFileReport &file, OutputFile &to)
{
    QFile in;
    if (!canRead(file, openInput(&in, file.path)))
        return Nothing;
    __pqa_file_header header {};
    if (in.read(reinterpret_cast<char *>(&header), sizeof header) != qint64(sizeof header))
        return Nothing;
    const qint64 data = qint64(sizeof header) + header.imageSize;
    if (file.size < data)
        return Nothing;
    if (file.size < data + header.dataSize)
        header.dataSize = 0;
    if (header.imageSize == 0 && header.dataSize == 0)
        return Nothing;
    to.write(reinterpret_cast<const char *>(&header), sizeof header);
    for (qint64 left = qint64(header.imageSize) + header.dataSize; left > 0;) {
        const QByteArray piece = in.read(qMin<qint64>(left, 1 << 20));
        if (piece.isEmpty())
            return Nothing;
        to.write(piece);
        left -= piece.size();
        if (to.hasFailed())
            return Failed;
    }
    to.write(QByteArrayLiteral("\xAA\x55"));
    return Done;
}

Recovery::Result Recovery::copyLines(const RecordFileReport &file, OutputFile &to)
{
    QFile in;
    if (!canRead(file, openInput(&in, file.path)))
        return Nothing;
    LineReader lines(&in);
    QByteArray line;
    if (!lines.next(&line) || !lines.isWhole())
        return Nothing;
    to.write(line + '\n');
    const int cells = LogReading::headerCells(line);
    for (qint64 count = 0; lines.next(&line); ++count) {
        if (lines.isWhole() && LogReading::timeOf(line, cells) >= 0)
            to.write(line + '\n');
        if (to.hasFailed())
            return Failed;
        if (count % kProgressStep == 0 && !goesOn(lines.offset(), file.size))
            return Ended;
    }
    return Done;
}
