#include "widgets/charts/monitortrendchart.h"

#include "settings/phasecolor.h"
#include "widgets/charts/chartparts.h"

#include <QPainter>

namespace {
/// What the chart knows about one bit of its flags. Tops in pixels.
struct MonitorCurve
{
    int bit;
    int band;
    QColor (*color)();
    const char *letter;
    int upperTop;
    int lowerTop;
};
} // namespace

// clang-format off
static const MonitorCurve kCurves[] = {
    {  1, 0, PhaseColor::colorA, "1",   0,  85 },
    {  2, 1, PhaseColor::colorB, "2", 101, 187 },
    {  4, 2, PhaseColor::colorC, "3", 202, 288 },
    {  8, 0, ChartParts::white,  "1",   0,  85 },
    { 16, 0, ChartParts::white,  "1",   0,  85 },
};
// clang-format on

constexpr int kBandHeight = 101;

MonitorTrendChart::MonitorTrendChart(QWidget *parent)
    : QWidget(parent),
      m_labels({ QStringLiteral("21h"), QStringLiteral("18h"), QStringLiteral("15h"), QStringLiteral("12h"),
                 QStringLiteral("9h"), QStringLiteral("6h"), QStringLiteral("3h") }),
      m_upper(QStringLiteral("10")), m_lower(QStringLiteral("0"))
{ }

void MonitorTrendChart::showTrendData(const __trend_chart_data *data)
{
    if (!data)
        return;
    for (int band = 0; band < kBands; ++band) {
        const QVector<qint16> series = data->series[band] ? *data->series[band] : QVector<qint16>();
        m_path[band] = ChartParts::seriesPath(series, kPoints);
        m_filled[band] = !series.isEmpty();
        if (m_filled[band])
            m_lastOffset[band] = series.last();
    }
    update();
}

void MonitorTrendChart::setFlags(int flags)
{
    m_flags = flags;
    update();
}

void MonitorTrendChart::setFullScale(const QStringList &labels)
{
    if (ChartParts::takeLabels(labels, &m_labels))
        update();
}

void MonitorTrendChart::setLimits(const QString &upper, const QString &lower)
{
    m_upper = upper;
    m_lower = lower;
    update();
}

void MonitorTrendChart::drawFrame(QPainter &painter) const
{
    const int left = width() - 521;
    painter.setPen(ChartParts::gridPen());
    painter.drawRect(QRect(QPoint(left, 0), QPoint(width() - 16, 303)));
    for (int band = 1; band < kBands; ++band)
        painter.drawLine(left, band * kBandHeight, width() - 15, band * kBandHeight);

    painter.setPen(ChartParts::axisPen());
    ChartParts::setFontPixels(painter, 12);
    for (int i = 0; i < m_labels.size(); ++i) {
        const int x = i * kPoints / m_labels.size();
        painter.drawText(x + 70, 317, m_labels.at(i));
        painter.drawLine(x + 80, 300, x + 80, 303);
    }
}

void MonitorTrendChart::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawFrame(painter);
    const int textWidth = width() - 525; // left of the frame, right-aligned to it
    for (const MonitorCurve &curve : kCurves) {
        if (!(m_flags & curve.bit))
            continue;
        painter.setPen(QPen(curve.color(), 1));
        ChartParts::setFontPixels(painter, 14);
        painter.drawText(0, curve.upperTop, textWidth, 16, Qt::AlignRight | Qt::AlignVCenter, m_upper);
        painter.drawText(0, curve.lowerTop, textWidth, 16, Qt::AlignRight | Qt::AlignVCenter, m_lower);
        if (!m_filled[curve.band])
            continue;
        const int top = curve.band * kBandHeight + 1;
        painter.translate(width() - 520, top);
        painter.drawPath(m_path[curve.band]);
        painter.resetTransform();
        ChartParts::drawFlagTag(painter, width() - 15, top + m_lastOffset[curve.band], curve.color(),
                                QString::fromLatin1(curve.letter));
    }
}
