#pragma once

#include "record/pqa2device.h"

#include <QStringList>

#include <algorithm>

/// What devices were asked for.
struct EndlessCounts
{
    qint64 writes = 0, bytes = 0, flushes = 0;

    EndlessCounts operator-(const EndlessCounts &before) const
    {
        return { writes - before.writes, bytes - before.bytes, flushes - before.flushes };
    }
    bool operator==(const EndlessCounts &other) const
    {
        return writes == other.writes && bytes == other.bytes && flushes == other.flushes;
    }
};

/// Takes everything and keeps nothing but the counts, of all files together.
class EndlessDevice : public Pqa2Device
{
public:
    /// \a ahead: behind its head each file goes on that much nearer to its end.
    explicit EndlessDevice(qint64 ahead = 0) : m_ahead(ahead) { }

    bool open(const QString &path) override
    {
        s_opened << path;
        m_place = m_size = 0;
        return true;
    }
    void close() override { }
    qint64 write(const char *, qint64 size) override
    {
        ++s_counts.writes;
        s_counts.bytes += size;
        m_place += size + (m_place == 0 ? m_ahead : 0);
        m_size = std::max(m_size, m_place);
        return size;
    }
    bool seek(qint64 position) override
    {
        m_place = position;
        return true;
    }
    qint64 pos() const override { return m_place; }
    qint64 size() const override { return m_size; }
    bool resize(qint64 size) override
    {
        m_size = size;
        return true;
    }
    bool sync() override { return true; }
    bool syncBehind() override
    {
        ++s_counts.flushes;
        return true;
    }
    float freeSize() override { return 1000.0f; }

    static inline EndlessCounts s_counts;
    static inline QStringList s_opened;

private:
    const qint64 m_ahead;
    qint64 m_place = 0;
    qint64 m_size = 0;
};
