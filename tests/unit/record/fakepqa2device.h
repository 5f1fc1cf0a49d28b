#pragma once

#include "record/pqa2device.h"

#include <QStringList>

#include <climits>

/// A file in memory that notes what is asked of it and fails where a test wants it.
class FakePqa2Device : public Pqa2Device
{
public:
    /// What a test keeps after the writer is gone.
    struct State
    {
        QByteArray content;
        QStringList calls; // "write 24+12": place and bytes
        QList<QPair<qint64, QByteArray>> writes; // place and bytes that were taken
        float free = 1000.0f; // MB
        bool opens = true;
        bool syncs = true; // the sync before has ended
        int writeNumber = 0; // of the write that comes next, from 0
        int failingWrite = INT_MAX; // this one and none other fails
        int failingWrites = 1; // so many in a row
        int bytesTaken = -1; // bytes that a failing write takes; -1: the call fails as such
        bool resizeFails = false;
        int seekNumber = 0; // of the seek that comes next, from 0
        int failingSeek = INT_MAX; // this one and none other fails
        qint64 skipped = 0; // bytes that a place in the file lies ahead of its place in memory
    };

    explicit FakePqa2Device(State *state) : m_state(state) { }

    bool open(const QString &) override
    {
        m_state->calls << QStringLiteral("open");
        m_state->content.clear();
        m_pos = 0;
        return m_state->opens;
    }
    void close() override { m_state->calls << QStringLiteral("close"); }
    qint64 write(const char *data, qint64 size) override
    {
        const int number = m_state->writeNumber++;
        m_state->calls << QStringLiteral("write %1+%2").arg(m_pos).arg(size);
        const bool fails = number >= m_state->failingWrite && number - m_state->failingWrite < m_state->failingWrites;
        const qint64 taken = !fails ? size : qMin<qint64>(m_state->bytesTaken, size);
        if (taken > 0)
            put(QByteArray(data, int(taken)));
        return taken;
    }
    bool seek(qint64 position) override
    {
        m_state->calls << QStringLiteral("seek %1").arg(position);
        if (m_state->seekNumber++ == m_state->failingSeek)
            return false;
        m_pos = position;
        return true;
    }
    qint64 pos() const override { return m_pos; }
    qint64 size() const override { return m_state->content.size() + m_state->skipped; }
    bool resize(qint64 size) override
    {
        m_state->calls << QStringLiteral("resize %1").arg(size);
        if (m_state->resizeFails)
            return false;
        m_state->content.resize(int(size - m_state->skipped));
        return true;
    }
    bool sync() override
    {
        m_state->calls << QStringLiteral("sync");
        return true;
    }
    bool syncBehind() override
    {
        m_state->calls << QStringLiteral("syncBehind");
        return m_state->syncs;
    }
    float freeSize() override
    {
        m_state->calls << QStringLiteral("free");
        return m_state->free;
    }
    /// Lets the file appear so much longer from here on, without holding the bytes.
    void skip(qint64 bytes)
    {
        m_state->skipped += bytes;
        m_pos += bytes;
    }

private:
    void put(const QByteArray &bytes)
    {
        m_state->writes.append({ m_pos, bytes });
        const int at = int(m_pos - m_state->skipped);
        if (at >= 0) { // a place before the skipped bytes is only noted
            if (m_state->content.size() < at)
                m_state->content.append(QByteArray(at - m_state->content.size(), '\0'));
            m_state->content.replace(at, bytes.size(), bytes);
        }
        m_pos += bytes.size();
    }

    State *m_state;
    qint64 m_pos = 0;
};
