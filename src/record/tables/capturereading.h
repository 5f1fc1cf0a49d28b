#pragma once

#include "record/tables/recordreading.h"

/// A waveform capture: one long waveform of the inputs that the wiring has.
class CaptureReading : public RecordReading
{
public:
    explicit CaptureReading(const QString &path);

    bool scan(const RecordProgress &progress) override;
    bool read(RecordSink &sink, const RecordProgress &progress) override;

private:
    bool readFrames(RecordSink &sink, const RecordedWaveform &waveform, const RecordProgress &progress);

    qint64 m_frames = 0;
    bool m_hasRate = false;
};
