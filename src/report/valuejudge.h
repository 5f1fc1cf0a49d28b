#pragma once

#include "report/bounds.h"
#include "report/weeks.h"

#include <limits>
#include <vector>

enum class Outcome : quint8 {
    NotApplied, // the limit set has no limit for it
    NotJudged, // there is a limit, but no value
    Pass,
    Fail
};

/// The worse of two: a failure counts, then what was judged.
Outcome worseOf(Outcome one, Outcome other);

/// What came out for one quantity of one phase.
struct QuantityVerdict
{
    static constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

    QuantityKey key;
    Bounds bounds;
    Outcome partial = Outcome::NotJudged; // of the worst week
    Outcome whole = Outcome::NotJudged;
    Outcome partialUnflagged = Outcome::NotJudged; // what it were without the flagged values
    // Of the week that is worst by its share. Not a number: no value.
    double shareWithin = kNone; // percent of the values within the partial bounds
    double atShare = kNone; // so far go the values of the demanded share
    qint64 worstWeek = 0; // its start, ms since 1970
    // Of the whole recording.
    double worst = kNone; // the value that goes farthest
    qint64 worstTime = 0; // end of its interval
    double lowest = kNone, highest = kNone;
    qint64 judged = 0; // values
    qint64 flagged = 0; // of them in an interval with a dip or a swell
    qint64 leftOut = 0; // in an interval with an interruption: not judged
    qint64 withoutNumber = 0; // intervals that were stored without a value
    qint64 unread = 0; // more than fit into a week
    int weeks = 0, weeksFailed = 0; // with values

    Outcome outcome() const { return worseOf(partial, whole); }
    /// Percent of \a length ms that the judged values cover.
    double covered(qint64 length) const;
};

/// Judges the values of one quantity, week by week, and forgets them after each: a value is judged by how many lie
/// within the bounds, not by sums of them.
class ValueJudge
{
public:
    enum Mark : quint8 {
        Plain,
        Flagged, // counts, and is counted
        LeftOut
    };

    ValueJudge(const QuantityKey &key, const Bounds &bounds, const Weeks &weeks);

    /// \a time is the end of the value's interval. Values of a week that is over already count for the present one.
    void take(qint64 time, double value, Mark mark = Plain);
    /// No more values come.
    const QuantityVerdict &finish();
    const QuantityVerdict &verdict() const { return m_verdict; }

private:
    void closeWeek();
    double valueAtShare(std::vector<float> &values) const;
    bool holdsShare(const std::vector<float> &values, std::size_t *within) const;

    QuantityVerdict m_verdict;
    Weeks m_weeks;
    std::size_t m_most; // values of a week
    int m_week = 0;
    std::vector<float> m_plain, m_flagged;
    double m_worstRatio = -1; // of a value
    double m_worstWeekRatio = -1; // of a week's value at the share
};
