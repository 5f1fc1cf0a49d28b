#pragma once

#include "record/pqa2ff.h"
#include "record/pqa2reader.h"

#include <QBuffer>
#include <QList>

/// One block as a reader of the file finds it.
struct ReadBlock
{
    quint32 offset;
    quint32 type;
    QByteArray payload;
};

/// What a reader gets of a file up to the first thing that is wrong in it.
inline QList<ReadBlock> readBlocks(const QByteArray &file)
{
    QBuffer buffer;
    buffer.setData(file);
    buffer.open(QIODevice::ReadOnly);
    Pqa2Reader reader(&buffer);
    QList<ReadBlock> blocks;
    for (Pqa2Block block; reader.next(&block);)
        blocks.append({ quint32(block.offset), block.type, reader.payload(block) });
    return blocks;
}
