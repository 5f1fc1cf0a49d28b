#pragma once

#include "record/tables/blockstream.h"
#include "record/tables/pqa2recording.h"
#include "record/tables/recordoutput.h"

/// Hands a recording on that was looked through: events first, then what its files tell, read side by side. What two
/// files tell of one moment for one table is one row.
class Pqa2Merge
{
public:
    Pqa2Merge(const RecordFacts &facts, const QVector<Pqa2Part> &parts, const QVector<RecordFileReport> &files,
              const BlockCheck &check, const RecordEvents &events);

    bool read(RecordSink &sink, const RecordProgress &progress, qint64 total);

private:
    bool readEvents(RecordOutput &out);
    bool readStreams(RecordOutput &out, const RecordProgress &progress, qint64 total);
    bool takeRow(RecordOutput &out, StreamItem *item, int stream);
    bool takeTransient(RecordOutput &out, const StreamItem &item);
    bool takeEventWave(RecordOutput &out, const StreamItem &item);
    bool putWaveform(RecordOutput &out, RecordedWaveform *waveform, const char *samples, int count);
    RecordedWaveform::Channel channel(const Pqa2Part &part, int input, bool isVoltage) const;

    const RecordFacts &m_facts;
    const QVector<Pqa2Part> &m_parts;
    const BlockCheck &m_check;
    RecordEvents m_events;
    const BlockColumns m_columns;
    std::vector<std::unique_ptr<BlockStream>> m_streams;
};
