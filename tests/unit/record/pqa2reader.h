#pragma once

#include "record/pqa2ff.h"

#include <cstring>

/// One block as a reader of the file finds it.
struct ReadBlock
{
    quint32 offset;
    quint32 type;
    QByteArray payload;
};

/// Follows the links of a file from its first block, as docs/formats/pqa2.md tells a reader to, and stops at the last
/// whole block before any damage.
inline QList<ReadBlock> readBlocks(const QByteArray &file)
{
    QList<ReadBlock> blocks;
    if (file.size() < int(sizeof kPqa2FileHeader)
        || std::memcmp(file.constData(), &kPqa2FileHeader, sizeof kPqa2FileHeader) != 0)
        return blocks;
    const quint64 size = quint64(file.size());
    quint64 offset = sizeof kPqa2FileHeader;
    while (offset % 4 == 0 && offset + sizeof(Pqa2BlockHead) <= size) {
        Pqa2BlockHead head;
        std::memcpy(&head, file.constData() + offset, sizeof head);
        const quint64 padded = (quint64(head.size) + 3) & ~quint64(3);
        if (offset + sizeof head + padded > size)
            break;
        blocks.append({ quint32(offset), head.type, file.mid(int(offset + sizeof head), int(head.size)) });
        if (head.oonb == kPqa2LastBlock || head.oonb < offset + sizeof head + padded)
            break;
        offset = head.oonb;
    }
    return blocks;
}
