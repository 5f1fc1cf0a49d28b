#include "widgets/charts/trendchart.h"

#include "settings/phasecolor.h"
#include "widgets/charts/chartparts.h"

#include <QPainter>

// clang-format off
const TrendChart::Curve TrendChart::kCurves[7] = {
    { TrendL1,           0, PhaseColor::colorA, "1", 0 },
    { TrendL2,           1, PhaseColor::colorB, "2", 0 },
    { TrendL3,           2, PhaseColor::colorC, "3", 0 },
    { TrendN,            3, PhaseColor::colorN, "N", 1 },
    { TrendSingle,       0, ChartParts::white,  "1", 0 },
    { TrendSingleFourth, 3, ChartParts::white,  "1", 0 }, // Kept: band four, yet the phases' limits
    { TrendTotal,        3, PhaseColor::colorN, "T", 1 },
};
// clang-format on

TrendChart::TrendChart(QWidget *parent)
    : QWidget(parent), m_labels({ QStringLiteral("10m"), QStringLiteral("8m"), QStringLiteral("6m"),
                                  QStringLiteral("4m"), QStringLiteral("2m") }),
      m_upper { QStringLiteral("10"), QStringLiteral("10") }, m_lower { QStringLiteral("0"), QStringLiteral("0") }
{ }

const TrendChart::Curve *TrendChart::curve(int bit)
{
    for (const Curve &curve : kCurves) {
        if (curve.bit == bit)
            return &curve;
    }
    return nullptr;
}

void TrendChart::setFullScale(const QStringList &labels)
{
    if (ChartParts::takeLabels(labels, &m_labels))
        update();
}

void TrendChart::setLimits(const QString *upper, const QString *lower)
{
    for (int i = 0; i < 2; ++i) {
        m_upper[i] = upper[i];
        m_lower[i] = lower[i];
    }
    update();
}

void TrendChart::setFlags(int flags)
{
    m_flags = flags;
    update();
}

int TrendChart::bandTop(int band) const
{
    // Division towards zero: a widget that is not laid out yet has a negative plot height.
    return band * plotHeight() / kBands;
}

int TrendChart::bandBottom(int band) const
{
    return band == kBands - 1 ? height() - 14 : bandTop(band + 1);
}

void TrendChart::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int w = plotWidth();
    painter.setPen(ChartParts::gridPen());
    painter.drawRect(QRect(QPoint(0, 0), QPoint(width() - 10, height() - 15)));
    for (int band = 1; band < kBands; ++band)
        painter.drawLine(0, bandTop(band), w, bandTop(band));

    painter.setPen(ChartParts::axisPen());
    ChartParts::setFontPixels(painter, 12);
    const int bottom = height() - 14;
    for (int i = 0; i < m_labels.size(); ++i) {
        const int x = i * w / m_labels.size();
        painter.drawText(x, height(), m_labels.at(i));
        painter.drawLine(x, bottom - 3, x, bottom);
    }
}

void TrendChart::drawCursors(QPainter &painter, int flag, int x, int y) const
{
    if (const Curve *known = curve(flag))
        ChartParts::drawFlagTag(painter, x, y, known->color(), QString::fromLatin1(known->letter));
}

void TrendChart::drawUpLimits(QPainter &painter, int flag, int x, int y) const
{
    drawLimit(painter, curve(flag), m_upper, x, y);
}

void TrendChart::drawLoLimits(QPainter &painter, int flag, int x, int y) const
{
    drawLimit(painter, curve(flag), m_lower, x, y);
}

void TrendChart::drawLimit(QPainter &painter, const Curve *curve, const QString *texts, int x, int y) const
{
    if (!curve)
        return;
    painter.setPen(curve->color());
    ChartParts::setFontPixels(painter, 14);
    painter.drawText(x, y, texts[curve->limit]);
}
