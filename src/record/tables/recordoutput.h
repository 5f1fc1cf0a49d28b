#pragma once

#include "record/tables/recordsink.h"

#include <QHash>

#include <vector>

/// Hands tables and waveforms on to a taker: tells a table before its first row, numbers the waveforms.
class RecordOutput
{
public:
    explicit RecordOutput(RecordSink &sink) : m_sink(sink) { }

    RecordSink &sink() { return m_sink; }
    bool row(const RecordTable &table, qint64 time, const double *numbers, const QByteArray *texts = nullptr);
    int nextWaveform() { return ++m_waveforms; }

private:
    RecordSink &m_sink;
    QHash<QByteArray, int> m_told;
    int m_waveforms = 0;
};

/// The tables of transients and of the log.
const RecordTable &transientTable();
const RecordTable &logTable();
