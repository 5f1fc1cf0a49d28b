#pragma once

#include "record/pqa2reader.h"
#include "record/tables/recordreport.h"

#include <QFile>

#include <memory>

/// The blocks of one file, damage skipped wherever something stands behind it.
class Pqa2Walk
{
public:
    /// Opens an ordinary file; whatever is wrong with it is in state().
    explicit Pqa2Walk(const QString &path);

    bool next(Pqa2Block *block);
    /// The payload of the block that next() gave last, or its first \a most bytes. Valid until the next call.
    const char *payload(const Pqa2Block &block, qint64 most) { return m_reader->view(block, most); }
    /// Another block of the file.
    QByteArray copy(const Pqa2Block &block, qint64 most) { return m_reader->payload(block, 0, most); }

    qint64 size() const { return m_file.size(); }
    RecordState state() const;
    qint64 faultOffset() const { return m_reader->faultOffset(); }
    QString reason() const;

private:
    QFile m_file;
    QString m_openError;
    std::unique_ptr<Pqa2Reader> m_reader;
};
