#pragma once

#include "record/exports/pqdifid.h"

#include <QByteArray>
#include <QTemporaryFile>
#include <QVector>

class OutputFile;

/// The records of a PQDIF file, one behind the other. Observations wait in a file without a name until the ones that
/// have to stand before them, which name every channel, are known; in the end all are written in the order of their
/// times.
class PqdifSpool
{
public:
    struct Record
    {
        PqdifId type;
        QByteArray body;
    };

    /// \a folder is one with room for as much as the file itself will take.
    PqdifSpool(const QString &folder, bool compressed);

    /// Keeps an observation; \a time orders them, equal ones stay as they came.
    bool add(const QByteArray &body, qint64 time);
    /// Bytes of all that was added, as they will stand in the file.
    qint64 size() const { return m_size; }
    int count() const { return m_observations.size(); }

    /// Writes the file: \a first, then the observations. The first one, the container, is never compressed.
    bool writeTo(OutputFile *file, const QVector<Record> &first);
    /// Why something could not be written or read back, for people.
    QString error() const { return m_error; }

private:
    struct Observation
    {
        qint64 time;
        qint64 offset;
        qint32 size;
        quint32 checkSum;
    };
    QByteArray stored(const QByteArray &body) const;
    bool failBySystem();

    const bool m_compressed;
    QTemporaryFile m_file;
    QVector<Observation> m_observations;
    qint64 m_size = 0;
    QString m_error;
};
