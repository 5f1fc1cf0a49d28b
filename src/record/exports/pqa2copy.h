#pragma once

#include "record/tables/pqa2walk.h"

class OutputFile;

/// Writes blocks of one PQA2 file as the whole chain of another one. A block is written when its successor is known.
class Pqa2Copy
{
public:
    Pqa2Copy(Pqa2Walk *from, OutputFile *to);

    void add(const Pqa2Block &block);
    /// The end of the recording, s since 1970, behind all blocks; none where there are none.
    void addEnd(quint32 seconds);
    /// Writes the last one. False: there was no block at all, or one of them is gone meanwhile.
    bool finish();

private:
    void put(bool isLast);

    Pqa2Walk *m_from;
    OutputFile *m_to;
    Pqa2Block m_block; // that waits
    bool m_hasBlock = false;
    bool m_isShort = false; // a block is no longer whole in the file
    qint64 m_end = 0; // of what was written
};
