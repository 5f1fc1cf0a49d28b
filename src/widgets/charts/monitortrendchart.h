#pragma once

#include "widgets/charts/trendchart.h"

#include <QPainterPath>

/// 24-hour trend of the Monitor pages: three bands of fixed height, each a channel. GUI thread.
/// The right edge of the plot stands 15 pixels left of the widget's; made for 601 by 320 pixels.
class MonitorTrendChart : public QWidget
{
public:
    explicit MonitorTrendChart(QWidget *parent = nullptr);

    /// Points of a curve from the left to the right edge of the plot.
    static constexpr int kPoints = 506;

    /// Shows at most 506 offsets (0 to 99 pixels) a channel; a null pointer changes nothing. The single values of the
    /// bits 8 and 16 are series 0.
    void showTrendData(const __trend_chart_data *data);
    /// Bits 1, 2, 4: L1, L2, L3, a band each; 8 and 16: one value in the first band.
    void setFlags(int flags);
    int flags() const { return m_flags; }
    /// An empty list is refused and the old labels stay.
    void setFullScale(const QStringList &labels);
    QStringList fullScale() const { return m_labels; }
    void setLimits(const QString &upper, const QString &lower);
    QStringList limits() const { return { m_upper, m_lower }; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    static constexpr int kBands = 3;

    void drawFrame(QPainter &painter) const;

    int m_flags = 0;
    QStringList m_labels;
    QString m_upper;
    QString m_lower;
    QPainterPath m_path[kBands];
    qint16 m_lastOffset[kBands] = {};
    bool m_filled[kBands] = {};
};
