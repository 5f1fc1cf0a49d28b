#include "report/valuejudge.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kHundred = 100;

/// How many of \a count make \a share percent. The allowance is far below the share of one value in a year.
std::size_t demanded(double share, std::size_t count)
{
    constexpr double kAllowance = 1e-6;
    const double exact = share * double(count) / kHundred;
    return std::min(count, std::size_t(std::max(0.0, std::ceil(exact - kAllowance))));
}

} // namespace

Outcome worseOf(Outcome one, Outcome other)
{
    return std::max(one, other);
}

double QuantityVerdict::covered(qint64 length) const
{
    if (length <= 0)
        return 0;
    return std::min(kHundred, double(judged) * double(intervalOf(key.quantity)) * kHundred / double(length));
}

ValueJudge::ValueJudge(const QuantityKey &key, const Bounds &bounds, const Weeks &weeks)
    : m_weeks(weeks), m_most(std::size_t(2 * Weeks::kWeek / intervalOf(key.quantity)))
{
    m_verdict.key = key;
    m_verdict.bounds = bounds;
    m_verdict.worstWeek = weeks.start;
    m_verdict.partial = m_verdict.partialUnflagged = bounds.hasPartial() ? Outcome::NotJudged : Outcome::NotApplied;
    m_verdict.whole = bounds.hasWhole() ? Outcome::NotJudged : Outcome::NotApplied;
}

void ValueJudge::take(qint64 time, double value, Mark mark)
{
    QuantityVerdict &v = m_verdict;
    if (!std::isfinite(value)) {
        ++v.withoutNumber;
        return;
    }
    if (mark == LeftOut) {
        ++v.leftOut;
        return;
    }
    if (const int week = m_weeks.indexOf(time); week > m_week) {
        closeWeek();
        m_week = week;
    }
    if (m_plain.size() + m_flagged.size() >= m_most) {
        ++v.unread;
        return;
    }
    ++v.judged;
    v.flagged += mark == Flagged;
    (mark == Flagged ? m_flagged : m_plain).push_back(float(value));
    v.lowest = std::fmin(v.lowest, value);
    v.highest = std::fmax(v.highest, value);
    if (const double ratio = v.bounds.ratio(value); ratio > m_worstRatio) {
        m_worstRatio = ratio;
        v.worst = value;
        v.worstTime = time;
    }
}

bool ValueJudge::holdsShare(const std::vector<float> &values, std::size_t *within) const
{
    const Bounds &bounds = m_verdict.bounds;
    *within = std::size_t(std::count_if(values.begin(), values.end(),
                                        [&bounds](float value) { return bounds.holdsPartial(double(value)); }));
    return *within >= demanded(bounds.share, values.size());
}

double ValueJudge::valueAtShare(std::vector<float> &values) const
{
    const Bounds &bounds = m_verdict.bounds;
    const std::size_t count = std::max<std::size_t>(1, demanded(bounds.share, values.size()));
    const auto at = values.begin() + std::ptrdiff_t(count) - 1;
    std::nth_element(values.begin(), at, values.end(), [&bounds](float one, float other) {
        return bounds.partialRatio(double(one)) < bounds.partialRatio(double(other));
    });
    return double(*at);
}

void ValueJudge::closeWeek()
{
    if (m_plain.empty() && m_flagged.empty())
        return;
    QuantityVerdict &v = m_verdict;
    const auto judge = [](bool holds) { return holds ? Outcome::Pass : Outcome::Fail; };
    std::size_t within = 0;
    if (v.bounds.hasPartial() && !m_plain.empty())
        v.partialUnflagged = worseOf(v.partialUnflagged, judge(holdsShare(m_plain, &within)));
    m_plain.insert(m_plain.end(), m_flagged.begin(), m_flagged.end());
    const bool holds = holdsShare(m_plain, &within);
    const bool holdsAll
        = std::all_of(m_plain.begin(), m_plain.end(), [&v](float value) { return v.bounds.holdsWhole(double(value)); });
    if (v.bounds.hasPartial())
        v.partial = worseOf(v.partial, judge(holds));
    if (v.bounds.hasWhole())
        v.whole = worseOf(v.whole, judge(holdsAll));
    ++v.weeks;
    v.weeksFailed += (v.bounds.hasPartial() && !holds) || !holdsAll;
    const double at = valueAtShare(m_plain);
    if (const double ratio = v.bounds.partialRatio(at); ratio > m_worstWeekRatio) {
        m_worstWeekRatio = ratio;
        v.atShare = at;
        v.shareWithin = double(within) * kHundred / double(m_plain.size());
        v.worstWeek = m_weeks.startOf(m_week);
    }
    m_plain.clear();
    m_flagged.clear();
}

const QuantityVerdict &ValueJudge::finish()
{
    closeWeek();
    return m_verdict;
}
