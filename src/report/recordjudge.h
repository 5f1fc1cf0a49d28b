#pragma once

#include "report/clockmeans.h"
#include "report/instrumentjudge.h"
#include "report/judgement.h"

#include <memory>

/// Judges what a recording holds against a limit set, in one pass over it, behind the one that made the overview.
class RecordJudge : public RecordSink
{
public:
    RecordJudge(const RecordOverview &overview, const MonitorLimits2 &limits);
    ~RecordJudge() override;

    bool begin(const RecordFacts &facts) override;
    bool table(int number, const RecordTable &table) override;
    bool row(const RecordRow &row) override;
    bool event(const RecordedEvent &event) override;
    bool waveformBegin(const RecordedWaveform &wave) override;
    bool waveformSamples(const qint16 *samples, int count) override;
    bool end(const RecordFacts &facts) override;
    QString error() const override { return {}; }

    const Judgement &judgement() const { return m_judgement; }

private:
    struct Lane;
    struct Feed;

    void addLane(Feed &feed, const QuantityKey &key, int cell, int fundamental);
    void findLanes(Feed &feed, const RecordTable &table);
    void prepare(Feed &feed);
    void take(const Feed &feed, qint64 time, const std::vector<double> &values);
    ValueJudge::Mark markOf(qint64 from, qint64 to) const;
    void chooseMoments();
    void countEvents();
    void listNotJudged();
    void listGaps();
    const Lane *laneOf(Quantity quantity) const;

    Judgement m_judgement;
    std::vector<std::unique_ptr<Feed>> m_feeds; // by the table's number; null: nothing is judged of it
    std::vector<ValueJudge> m_judges;
    InstrumentJudge m_instrument;
    Moment *m_filling = nullptr; // a moment whose samples come
};
