#pragma once

#include "record/exports/output.h"
#include "record/exports/pqdifhappenings.h"
#include "record/exports/pqdifspool.h"
#include "record/exports/pqdiftrends.h"

#include <memory>
#include <vector>

/// Trends, events and waveforms as a PQDIF file (IEEE 1159.3), docs/formats/interchange.md; several files where one
/// would become too large: "week.pqd", "week_2.pqd". Bounded memory, and on the disk for a while twice the room of the
/// file.
class PqdifExport : public RecordSink
{
public:
    struct Limits
    {
        qint64 atDay = qint64(1) << 30; // bytes from which on a file ends with the day
        qint64 most = (qint64(1) << 31) - (qint64(64) << 20); // bytes of the observations; offsets have a sign
        int observations = 100000; // so many are kept in order
    };

    explicit PqdifExport(const OutputPlace &place, bool compressed = false);
    PqdifExport(const OutputPlace &place, bool compressed, const Limits &limits);

    bool begin(const RecordFacts &facts) override;
    bool table(int number, const RecordTable &table) override;
    bool row(const RecordRow &row) override;
    bool event(const RecordedEvent &event) override { return m_happenings.event(event); }
    bool waveformBegin(const RecordedWaveform &waveform) override { return m_happenings.waveformBegin(waveform); }
    bool waveformSamples(const qint16 *samples, int count) override
    {
        return m_happenings.waveformSamples(samples, count);
    }
    bool waveformEnd() override { return m_happenings.waveformEnd(); }
    bool end(const RecordFacts &facts) override;
    QString error() const override { return m_error; }
    bool isRefused() const override { return !m_files.empty() && m_files.back()->isRefused(); }

private:
    bool fail(const QString &error);
    bool flush();
    bool keep(const QByteArray &body, qint64 time);
    bool beginFile();
    bool endFile();
    QString targetOf(int number) const;
    QByteArray container() const;
    QByteArray dataSource() const;
    QByteArray settings() const;

    const OutputPlace m_place;
    const bool m_compressed;
    const Limits m_limits;
    RecordFacts m_facts;
    PqdifChannels m_channels;
    PqdifTrends m_trends;
    PqdifHappenings m_happenings;
    std::vector<std::unique_ptr<Output>> m_files; // in the order of their times; the last one goes on
    std::unique_ptr<PqdifSpool> m_spool; // of the last one
    qint64 m_day = -1; // since 1970, of the latest row of a trend
    qint64 m_happeningsDay = -1; // of the latest of the others: a recording tells its events first
    QString m_error;
};
