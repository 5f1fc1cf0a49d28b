#pragma once

#include "platform/target.h"
#include "record/pqa2ff.h"
#include "unit/record/readblocks.h"

#include <QFile>

/// The blocks of a file behind those that every file opens with.
inline QList<ReadBlock> storedBlocks(const Pqa2FF &file)
{
    QFile stored(Target::path(file.fullFilePath()));
    return stored.open(QIODevice::ReadOnly) ? readBlocks(stored.readAll()).mid(3) : QList<ReadBlock>();
}
