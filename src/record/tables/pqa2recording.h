#pragma once

#include "record/tables/blockcheck.h"
#include "record/tables/recordevents.h"
#include "record/tables/recordreading.h"

#include <QStringList>

class Pqa2Walk;

/// A part of a recording: one file, and what its opening blocks tell.
struct Pqa2Part
{
    int file = 0; // whose part it is
    QString path;
    struct Factors
    {
        float volts[4]; // V for one step of a sample: L1, L2, L3, N; 0: not told
        float amperes[4]; // A for one step
    };
    Factors factors {};
    bool hasStart = false;
    bool hasEnd = false;
};

/// A recording or a monitor's file: one file or several, each in one part or more. They are read side by side, in as
/// much memory for a gigabyte as for a kilobyte; only the places of the events are kept, up to a bound.
class Pqa2Recording : public RecordReading
{
public:
    /// A file and its further parts, in their order.
    using Parts = QStringList;
    /// \a isComplete: all parts that there are of the files stand in \a files.
    Pqa2Recording(const QVector<Parts> &files, bool isComplete);

    bool scan(const RecordProgress &progress) override;
    bool read(RecordSink &sink, const RecordProgress &progress) override;
    int events() const override { return m_events.count(); }

private:
    class Counts;

    bool scanPart(int index, const RecordProgress &progress);
    void takeBlock(int index, const Pqa2Block &block, Pqa2Walk &walk, RecordFileReport &report);
    void takeEvent(int index, const Pqa2Block &block, const char *look);
    void takeOpening(int index, const Pqa2Block &block, const QByteArray &payload);
    void findKind();
    void findEnds();
    bool goesOn(int index) const;

    const bool m_isComplete;
    QVector<Pqa2Part> m_parts; // as m_files
    BlockCheck m_check;
    RecordEvents m_events;
    qint64 m_done = 0, m_total = 0; // bytes that were looked through, of how many
};
