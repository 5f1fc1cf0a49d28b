#pragma once

#include "record/tables/recordreport.h"
#include "record/tables/recordsink.h"

#include <utility>

/// What is read of one kind of record; RecordSource picks the one that fits.
class RecordReading
{
public:
    virtual ~RecordReading() = default;

    /// Looks through all files once. False: interrupted.
    virtual bool scan(const RecordProgress &progress) = 0;
    /// Hands everything on. False: the taker refused, or it was interrupted.
    virtual bool read(RecordSink &sink, const RecordProgress &progress) = 0;

    const RecordFacts &facts() const { return m_facts; }
    const QVector<RecordFileReport> &files() const { return m_files; }
    virtual int events() const { return 0; }
    /// What this kind of record tells besides, for people: names with values.
    virtual QVector<std::pair<QString, QString>> details() const { return {}; }

protected:
    RecordReading() = default;
    /// Of a record that is one file.
    RecordReading(RecordKind kind, const QString &path) : m_files(1)
    {
        m_facts.kind = kind;
        m_files[0].path = path;
    }

    RecordFacts m_facts;
    QVector<RecordFileReport> m_files;
};
