#pragma once

#include "record/exports/output.h"
#include "record/tables/recordreport.h"

class OutputFile;
class RecordSource;
struct RecordFileReport;

/// A sound copy of what can be read of a record, of the same kind: a whole chain of the blocks that were found, the
/// frames, pieces or lines that are right. A recording that lacks its end gets one, at the last time that it holds, and
/// so does a part that is copied without the parts behind it.
class Recovery
{
public:
    explicit Recovery(const OutputPlace &place);

    enum Result : quint8 {
        Done,
        Nothing, // of what there is a sound copy cannot be made; error() tells when the source changed meanwhile
        Failed, // the output could not be written: error()
        Ended // the progress wanted no more
    };
    /// Of a source that was opened. Nothing is written into it.
    Result run(const RecordSource &source, const RecordProgress &progress = {});
    QString error() const { return m_error; }
    /// As Output::isRefused().
    bool isRefused() const { return m_isRefused; }

private:
    Result copyFolder(const RecordSource &source, Output &output);
    Result copyFile(const RecordSource &source, const RecordFileReport &file, const QString &to);
    Result copyBlocks(const RecordSource &source, const RecordFileReport &file, OutputFile &to);
    Result copyCapture(const RecordFileReport &file, OutputFile &to);
    Result copyPage(const RecordFileReport &file, OutputFile &to);
    Result copyLines(const RecordFileReport &file, OutputFile &to);
    bool canRead(const RecordFileReport &file, const QString &refusal);
    Result closed(OutputFile *out, Result result);
    bool goesOn(qint64 offset, qint64 size) const { return !m_progress || m_progress(offset, size); }

    const OutputPlace m_place;
    RecordProgress m_progress;
    QString m_error;
    bool m_isRefused = false;
};
