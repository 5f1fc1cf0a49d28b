#pragma once

#include <QVector>
#include <QtGlobal>

/// Stretches of time, merged where they meet. Times are ms since 1970.
class TimeSpans
{
public:
    /// More than any measurement brings; what comes then widens the last one, so that a damaged file takes no memory.
    static constexpr int kMost = 50000;

    void add(qint64 from, qint64 to);
    /// Something of them lies in the interval behind \a from, up to \a to.
    bool touch(qint64 from, qint64 to) const;
    bool isEmpty() const { return m_spans.isEmpty(); }
    int size() const { return m_spans.size(); }
    /// All of them together, in ms.
    qint64 length() const;

private:
    struct Span
    {
        qint64 from, to;
    };
    QVector<Span> m_spans; // ascending, apart from each other
};
