#pragma once

#include "record/interruptedruns.h"
#include "record/wavefile.h"
#include "storage/fileinfo.h"
#include "storage/runjournal.h"
#include "storage/storeditems.h"
#include "unit/record/readblocks.h"
#include "unit/storage/rootfiles.h"

#include <QMap>
#include <QSet>

/// How what is left on a card is looked at: every file by its reader.
namespace CardChecks {

using Files = QMap<QByteArray, QByteArray>;

/// What a reader finds of a file, piece by piece: blocks, frames or lines.
inline QList<QByteArray> pieces(const QByteArray &name, const QByteArray &content)
{
    QList<QByteArray> found;
    if (name.endsWith(".pqa2")) {
        for (const ReadBlock &block : readBlocks(content))
            found << QByteArray::number(block.offset) + ' ' + QByteArray::number(block.type, 16) + ' ' + block.payload;
    } else if (name.endsWith(".wav")) {
        QBuffer buffer;
        buffer.setData(content);
        buffer.open(QIODevice::ReadOnly);
        WaveFileReader reader(&buffer);
        for (WaveChunk chunk; reader.next(&chunk);)
            found << reader.frames(chunk);
    } else {
        found = content.split('\n');
        found.removeLast(); // what no line feed ends
    }
    return found;
}

/// Recorded files grow; the others are replaced as a whole.
inline bool grows(const QByteArray &name)
{
    return name.endsWith(".pqa2") || name.endsWith(".wav") || name.endsWith(".csv");
}

inline bool startsWith(const QList<QByteArray> &all, const QList<QByteArray> &first)
{
    return all.size() >= first.size() && all.mid(0, first.size()) == first;
}

/// Puts files in place of those of the test's root, as the next start finds them.
inline void putOnCard(const Files &files)
{
    RootFiles::clean();
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        RootFiles::write(QStringLiteral("/mnt/") + QFile::decodeName(file.key()), file.value());
}

/// What a start does with them. Empty, or what is wrong.
inline QByteArray startOn(const Files &files, QStringList *cut)
{
    putOnCard(files);
    StoredItems::mendIndex(QTimeZone::utc());
    RunJournal journal;
    for (const InterruptedRun &run : InterruptedRuns::find(journal, QTimeZone::utc()))
        *cut << run.name;
    QSet<QString> listed, there;
    for (const QString &name : FileInfo().getInfoFiles())
        listed << name;
    for (const StoredItem &item : StoredItems::read(QTimeZone::utc()))
        there << item.name;
    return listed == there ? QByteArray() : QByteArray("the index names other things than there are");
}

} // namespace CardChecks
