#pragma once

#include "record/tables/recordreading.h"

/// A waveform capture: one long waveform of the inputs that the wiring has.
class CaptureReading : public RecordReading
{
public:
    explicit CaptureReading(const QString &path) : RecordReading(RecordKind::Waveform, path) { }

    bool scan(const RecordProgress &progress) override;
    bool read(RecordSink &sink, const RecordProgress &progress) override;
    QVector<std::pair<QString, QString>> details() const override;

private:
    bool readFrames(RecordSink &sink, const RecordedWaveform &waveform, const RecordProgress &progress);

    qint64 m_frames = 0;
    quint32 m_rate = 0; // frames per second
    bool m_hasRate = false;
};
