#pragma once

#include "record/tables/recordreading.h"

#include <memory>

/// Something that the instrument recorded, whatever it is made of: a recording's folder, a file of one, a monitor's
/// file, a waveform capture, a saved page or the lines of the logger. It is looked through once at the opening and can
/// then be handed on any number of times; both take constant memory, whatever the bytes are. Nothing is written. One
/// thread.
class RecordSource
{
public:
    RecordSource();
    ~RecordSource();
    RecordSource(const RecordSource &) = delete;
    RecordSource &operator=(const RecordSource &) = delete;

    /// Looks through all that belongs to \a path, which is one of this system. False: \a progress ended it; what could
    /// not be read is in state().
    bool open(const QString &path, const RecordProgress &progress = {});
    /// Hands on what there is. False: the taker says why, or \a progress ended it.
    bool read(RecordSink &sink, const RecordProgress &progress = {});

    QString path() const { return m_path; }
    bool isFolder() const { return m_isFolder; }
    const RecordFacts &facts() const;
    const QVector<RecordFileReport> &files() const;
    int events() const { return m_reading ? m_reading->events() : 0; }
    QVector<std::pair<QString, QString>> details() const;
    /// The worst of all files; a file that cannot be read beside others that can leaves the whole one broken.
    RecordState state() const;
    /// The first ones of each file, the worst file's first.
    QVector<RecordFault> faults() const;

    /// Kinds of files by their first bytes.
    enum class Format : quint8 { None, Pqa2, Capture, Page, Log };
    static Format formatOf(const QString &path);

private:
    bool openFolder(const RecordProgress &progress);
    void fault(const QString &path, const QString &reason);

    QString m_path;
    bool m_isFolder = false;
    std::unique_ptr<RecordReading> m_reading; // null: nothing to read
    RecordFacts m_noFacts;
    QVector<RecordFileReport> m_noFiles; // what is told of it then
    QVector<RecordFault> m_ownFaults; // of the folder
};
