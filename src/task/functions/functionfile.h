#pragma once

#include "record/pqa2ff.h"

/// The file of a recording function: none, closed, or open. What is written without an open one is dropped.
class FunctionFile
{
public:
    /// \a file outlives its use here; null: none.
    void set(Pqa2FF *file) { m_file = file; }
    bool isOpen() const { return m_file && m_file->isOpen(); }
    void add(Pqa2DBType type, const QByteArray &payload)
    {
        if (isOpen())
            m_file->addDataBlock(type, payload);
    }
    void addAll(Pqa2DBType type, const QList<QByteArray> &payloads)
    {
        if (isOpen())
            m_file->addDataBlocks(type, payloads);
    }

private:
    Pqa2FF *m_file = nullptr;
};
