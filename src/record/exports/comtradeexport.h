#pragma once

#include "record/exports/output.h"
#include "record/exports/outputfile.h"
#include "record/tables/recordsink.h"

#include <QVector>

/// Waveforms as pairs of a .cfg and a .dat (IEEE C37.111-2013, BINARY), docs/formats/interchange.md: a pair for each
/// event, transient and capture, several where one would not hold all of it. A few bytes of memory whatever their
/// length.
class ComtradeExport : public RecordSink
{
public:
    explicit ComtradeExport(const OutputPlace &place);

    bool begin(const RecordFacts &facts) override;
    bool table(int, const RecordTable &) override { return true; }
    bool row(const RecordRow &) override { return true; }
    bool waveformBegin(const RecordedWaveform &waveform) override;
    bool waveformSamples(const qint16 *samples, int count) override;
    bool waveformEnd() override;
    bool end(const RecordFacts &facts) override;
    QString error() const override { return m_output.error(); }
    bool isRefused() const override { return m_output.isRefused(); }

    /// Whether an export writes files of that name: "0012_event_3.cfg".
    static bool writes(const QString &name);

private:
    struct Part
    {
        qint64 first = 0; // sample of the waveform that stands first in it
        qint64 samples = 0;
    };
    QString partName() const;
    bool beginPart();
    bool endPart();
    void writeSample(const qint16 *sample);
    QByteArray configuration() const;
    QList<QByteArray> channelNames() const;
    QByteArray channelLine(int number, const QByteArray &name) const;

    Output m_output;
    const QString m_input; // name of the file or folder that is read
    RecordFacts m_facts;
    RecordedWaveform m_waveform;
    bool m_isUsable = false; // the waveform has channels and a rate that the format can tell
    OutputFile m_data;
    int m_part = 0; // of the waveform, from 1
    Part m_now;
    qint64 m_mostSamples = 0; // of a part
    qint64 m_taken = 0; // samples of the waveform so far
};
