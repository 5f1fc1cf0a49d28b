#pragma once

#include <QColor>
#include <QStringList>
#include <QVector>
#include <QWidget>

/// Curves of a trend chart, one bit each.
enum __trendflag {
    TrendL1 = 1,
    TrendL2 = 2,
    TrendL3 = 4,
    TrendN = 8,
    TrendSingle = 16, // one value in the first band, such as the frequency
    TrendSingleFourth = 32, // one value in the fourth band, such as a total
    TrendTotal = 64, // total, in the fourth band
};

/// Series of pixel offsets inside a band, 0 at its top, oldest first, at most 600 points; null counts as empty. The
/// page owns them and keeps them alive between calls.
struct __trend_chart_data
{
    const QVector<qint16> *series[4] = {};
};

/// Base of the trend charts: frame, grid, time axis, limit labels and curve flags over four stacked bands. On its own
/// it draws the empty chart. Made for 609 by 317 pixels: 600 points across and bands of 76 pixels. GUI thread.
class TrendChart : public QWidget
{
public:
    explicit TrendChart(QWidget *parent = nullptr);

    /// Replaces the labels of the time axis, oldest first. An empty list is refused and the old labels stay.
    void setFullScale(const QStringList &labels);
    QStringList fullScale() const { return m_labels; }

    /// `upper` and `lower` point to two texts each: the first for the phase bands, the second for the fourth band.
    void setLimits(const QString *upper, const QString *lower);

    /// The `__trendflag` bits in force.
    void setFlags(int flags);
    int flags() const { return m_flags; }

    static constexpr int kBands = 4;

protected:
    /// What the chart knows about one bit of its flags.
    struct Curve
    {
        int bit;
        int band; // 0 to 3, from the top; also the number of its series
        QColor (*color)();
        const char *letter;
        int limit; // which text of a limit pair
    };
    static const Curve kCurves[7];
    static const Curve *curve(int bit); // null for an unknown bit

    void paintEvent(QPaintEvent *event) override;

    /// The tag of the curve `flag` (one bit) at (x, y); an unknown bit draws nothing. So do the limit routines.
    void drawCursors(QPainter &painter, int flag, int x, int y) const;
    void drawUpLimits(QPainter &painter, int flag, int x, int y) const;
    void drawLoLimits(QPainter &painter, int flag, int x, int y) const;

    int plotWidth() const { return width() - 9; }
    int plotHeight() const { return height() - 13; }
    int bandTop(int band) const;
    int bandBottom(int band) const;

private:
    void drawLimit(QPainter &painter, const Curve *curve, const QString *texts, int x, int y) const;

    int m_flags = 0;
    QStringList m_labels;
    QString m_upper[2];
    QString m_lower[2];
};
