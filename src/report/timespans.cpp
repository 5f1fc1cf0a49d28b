#include "report/timespans.h"

#include <algorithm>

void TimeSpans::add(qint64 from, qint64 to)
{
    constexpr qint64 kLatest = qint64(1) << 53; // ms; a damaged file may hold any number
    if (to < from || from < -kLatest || to > kLatest)
        return;
    auto first = std::lower_bound(m_spans.begin(), m_spans.end(), from,
                                  [](const Span &span, qint64 time) { return span.to < time; });
    auto last = first;
    while (last != m_spans.end() && last->from <= to)
        ++last;
    if (first == last && m_spans.size() >= kMost) {
        // No room for one more: the one before, or the one behind, reaches as far.
        if (first != m_spans.begin())
            (first - 1)->to = to;
        else
            first->from = from;
        return;
    }
    if (first == last) {
        m_spans.insert(first, { from, to });
        return;
    }
    first->to = std::max((last - 1)->to, to);
    first->from = std::min(first->from, from);
    m_spans.erase(first + 1, last);
}

bool TimeSpans::touch(qint64 from, qint64 to) const
{
    const auto behind = std::upper_bound(m_spans.begin(), m_spans.end(), from,
                                         [](qint64 time, const Span &span) { return time < span.to; });
    return behind != m_spans.end() && behind->from < to;
}

qint64 TimeSpans::length() const
{
    qint64 sum = 0;
    for (const Span &span : m_spans)
        sum += span.to - span.from;
    return sum;
}
