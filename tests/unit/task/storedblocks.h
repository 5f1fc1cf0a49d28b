#pragma once

#include "platform/target.h"
#include "record/pqa2ff.h"
#include "task/functions/recorderfunction.h"
#include "unit/record/readblocks.h"
#include "unit/storage/rootfiles.h"

#include <QFile>

/// The blocks of a file (a board's path) behind those that every file opens with.
inline QList<ReadBlock> storedBlocks(const QString &path)
{
    RootFiles::waitForDisks();
    QFile stored(Target::path(path));
    return stored.open(QIODevice::ReadOnly) ? readBlocks(stored.readAll()).mid(3) : QList<ReadBlock>();
}

inline QList<ReadBlock> storedBlocks(const Pqa2FF &file)
{
    return storedBlocks(file.fullFilePath());
}

/// What a recording's common file holds of one kind; the recording is held.
inline QList<ReadBlock> recordedBlocks(RecorderFunction &recorder, quint32 type)
{
    QList<ReadBlock> found;
    for (const ReadBlock &block : storedBlocks(recorder.folder().file(QStringLiteral("Common.pqa2")))) {
        if (block.type == type)
            found << block;
    }
    return found;
}
