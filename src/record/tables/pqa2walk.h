#pragma once

#include "record/pqa2reader.h"
#include "record/tables/recordreport.h"

#include <QFile>

#include <memory>

/// The blocks of one file, damage skipped wherever something stands behind it.
class Pqa2Walk
{
public:
    /// Opens an ordinary file; whatever is wrong with it is in state(). Nothing is searched for behind damage of a file
    /// that is known to have nothing there.
    explicit Pqa2Walk(const QString &path, bool skipsDamage = true);

    bool next(Pqa2Block *block);
    /// The payload of the block that next() gave last, or its first \a most bytes. Valid until the next call.
    const char *payload(const Pqa2Block &block, qint64 most) { return m_reader->view(block, most); }
    /// Bytes of the payload of any block that next() gave, at most \a most from \a at on.
    QByteArray copy(const Pqa2Block &block, qint64 at, qint64 most) { return m_reader->payload(block, at, most); }

    bool isOpen() const { return m_openError.isEmpty(); }
    qint64 size() const { return m_file.size(); }
    RecordState state() const;
    qint64 faultOffset() const { return m_reader->faultOffset(); }
    QString reason() const;

private:
    const bool m_skipsDamage;
    QFile m_file;
    QString m_openError;
    std::unique_ptr<Pqa2Reader> m_reader;
};
