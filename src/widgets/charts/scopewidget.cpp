#include "widgets/charts/scopewidget.h"

#include "settings/phasecolor.h"
#include "widgets/charts/chartparts.h"

#include <QDebug>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {
struct ZoomStep
{
    double factor;
    const char *text;
};
} // namespace

static const ZoomStep kZoom[ScopeWidget::kZooms] = {
    { 0.03125, "1/32X" }, { 0.0625, "1/16X" }, { 0.1, "1/10X" }, { 0.125, "1/8X" }, { 0.25, "1/4X" },
    { 0.5, "1/2X" },      { 1.0, "1X" },       { 2.0, "2X" },    { 4.0, "4X" },     { 8.0, "8X" },
    { 10.0, "10X" },      { 16.0, "16X" },     { 32.0, "32X" },
};
constexpr int kZoomOne = 6; // 1X

constexpr double kCentre = 151.0; // pixel row of zero
constexpr double kHalfHeight = 146.0; // pixels from there to the full-scale value
constexpr quint8 kVoltageBits = 0x0f;
constexpr quint8 kCurrentBits = 0xf0;

// Ties a nominal value to the raw sample range: 10 V in 32768 counts make 3276.8 counts per converter volt, and a sine
// of the nominal r.m.s. value peaks at 1.414 times it.
constexpr double kRawPerNominal = 4633.3952;

/// A nominal value without its decimals: 0 for not a number, bounded where an integer ends.
static int truncated(float nominal)
{
    constexpr float kMost = 2.0e9f;
    return std::isnan(nominal) ? 0 : int(std::clamp(nominal, -kMost, kMost));
}

ScopeWidget::ScopeWidget(QWidget *parent) : QWidget(parent), m_data(new __scope_data_ui)
{
    std::memset(m_data.get(), 0, sizeof *m_data);
    initLinePath();
}

void ScopeWidget::showScopeData(const __scope_data_ui *data)
{
    if (!data)
        return;
    std::memcpy(m_data.get(), data, sizeof *m_data);
    initLinePath();
    update();
}

void ScopeWidget::setFlags(quint8 flags)
{
    m_flags = flags;
    update();
}

void ScopeWidget::setCursorOn(bool on)
{
    m_cursorOn = on;
    update();
}

void ScopeWidget::setCursorPosition(int index)
{
    const int last = std::max(width() - 1, 1);
    m_cursor = index < 0 ? 1 : index >= last ? last : index + 1;
    update();
}

double ScopeWidget::zoomFactor() const
{
    return kZoom[m_zoomIndex].factor;
}

const char *ScopeWidget::zoomText(int index)
{
    return kZoom[std::clamp(index, 0, kZooms - 1)].text;
}

const qint16 *ScopeWidget::samples(int curve) const
{
    return curve < kChannels ? m_data->voltageSamples[curve] : m_data->currentSamples[curve - kChannels];
}

float ScopeWidget::scaleOf(int curve) const
{
    return curve < kChannels ? m_scaleU : m_scaleI;
}

void ScopeWidget::getSubmultiple()
{
    // Floors keep a dead input from being blown up to noise. The first channel counts whether it is shown or not.
    double full[2] = { 3.0, 5.0 };
    for (int curve = 0; curve < kCurves; ++curve) {
        if (curve % kChannels != 0 && !(m_flags & (1 << curve)))
            continue;
        const qint16 *s = samples(curve);
        for (int i = 0; i < ChartParts::kPlotPoints; ++i)
            full[curve / kChannels] = std::max(full[curve / kChannels], std::abs(double(s[i])));
    }
    m_fullU = full[0];
    m_fullI = full[1];
}

void ScopeWidget::setDefaultZoom()
{
    getSubmultiple();
    m_zoomIndex = kZoomOne;
    m_fullU /= 0.94267;
    m_fullI /= 0.94267;
    setScale();
}

void ScopeWidget::setDefaultZoom(double fullU, double fullI)
{
    getSubmultiple();
    m_zoomIndex = kZoomOne;
    m_fullU = fullU;
    m_fullI = fullI;
    qDebug() << "fullU" << m_fullU << "fullI" << m_fullI;
    setScale();
}

void ScopeWidget::setDefaultZoom(float Vnom, float Ucoefficient, float Inom, float Icoefficient)
{
    m_zoomIndex = kZoomOne;
    m_fullU = Vnom * kRawPerNominal / Ucoefficient;
    m_fullI = Inom * kRawPerNominal / Icoefficient;
    m_Unom = truncated(Vnom);
    m_Inom = truncated(Inom);
    setScale();
}

void ScopeWidget::setZoomNext()
{
    if (m_zoomIndex < kZooms - 1)
        ++m_zoomIndex;
    setScale();
}

void ScopeWidget::setZoomPrev()
{
    if (m_zoomIndex > 0)
        --m_zoomIndex;
    setScale();
}

void ScopeWidget::setScale()
{
    const double factor = zoomFactor();
    m_scaleU = float(kHalfHeight / m_fullU * factor);
    m_scaleI = float(kHalfHeight / m_fullI * factor);
    initLinePath();
    update();
}

int ScopeWidget::getCursorPosUY(int sample) const
{
    return int(ChartParts::boundedPixel(kCentre - (double(sample) * m_scaleU + 0.5)));
}

int ScopeWidget::getCursorPosIY(int sample) const
{
    return int(ChartParts::boundedPixel(kCentre - (double(sample) * m_scaleI + 0.5)));
}

void ScopeWidget::initLinePath()
{
    for (int curve = 0; curve < kCurves; ++curve) {
        const qint16 *s = samples(curve);
        const double scale = scaleOf(curve);
        QPolygonF points(ChartParts::kPlotPoints);
        for (int x = 0; x < ChartParts::kPlotPoints; ++x)
            points[x] = QPointF(x, ChartParts::boundedPixel(kCentre - (s[x] * scale + 0.5)));
        QPainterPath path;
        path.addPolygon(points);
        m_path[curve] = path;
    }
}

void ScopeWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawGrid(painter);
    drawScaleLabels(painter);
    drawCurves(painter);
    if (m_cursorOn)
        drawCursorMarks(painter);
}

void ScopeWidget::drawGrid(QPainter &painter) const
{
    painter.setPen(ChartParts::gridPen());
    painter.drawRect(QRect(QPoint(0, 0), QPoint(598, 301)));
    for (const int y : { 44, 140, 151, 161, 256 })
        painter.drawLine(0, y, 599, y);

    painter.setPen(ChartParts::axisPen());
    ChartParts::setFontPixels(painter, 12);
    painter.drawText(2, 315, QStringLiteral("0"));
    for (int x = 100; x <= 500; x += 100) {
        painter.drawLine(x, 297, x, 302);
        painter.drawText(x - 15, 315, QString::number(x));
    }
    painter.drawText(570, 315, QStringLiteral("600"));
}

void ScopeWidget::drawScaleLabels(QPainter &painter) const
{
    static const struct
    {
        int y;
        double part; // of the nominal value
    } kRows[] = { { 15, 1.414 }, { 59, 1.0 }, { 140, 0.1 } };

    painter.setPen(Qt::lightGray);
    ChartParts::setFontPixels(painter, 12);
    const double v = m_Unom / zoomFactor();
    const double i = m_Inom / zoomFactor();
    for (const auto &row : kRows) {
        if (m_flags & kVoltageBits)
            painter.drawText(2, row.y, QString::number(v * row.part) + QLatin1Char('V'));
        if (m_flags & kCurrentBits) {
            const QString text = QString::number(i * row.part) + QLatin1Char('A');
            painter.drawText(597 - painter.fontMetrics().boundingRect(text).width(), row.y, text);
        }
    }
}

void ScopeWidget::drawCurves(QPainter &painter) const
{
    painter.save();
    // A zoomed curve stays between top and bottom; to the right its newest sample stands on pixel 600.
    painter.setClipRect(QRect(1, 1, ChartParts::kPlotPoints, 301));
    painter.translate(1.0, 0.0); // the cursor stands one pixel right of its sample
    for (int curve = 0; curve < kCurves; ++curve) {
        if (!(m_flags & (1 << curve)))
            continue;
        painter.setPen(QPen(curve < kChannels ? PhaseColor::colorU(curve) : PhaseColor::colorI(curve - kChannels), 1));
        painter.drawPath(m_path[curve]);
    }
    painter.restore();
}

void ScopeWidget::drawCursorMarks(QPainter &painter) const
{
    ChartParts::drawCursor(painter, m_cursor, 301);
    const int index = m_cursor - 1;
    if (index >= ChartParts::kPlotPoints)
        return; // right of the last sample
    for (int curve = 0; curve < kCurves; ++curve) {
        if (!(m_flags & (1 << curve)))
            continue;
        const int sample = samples(curve)[index];
        const int y = curve < kChannels ? getCursorPosUY(sample) : getCursorPosIY(sample);
        ChartParts::drawTriangle(painter, m_cursor, y, PhaseColor::color(curve % kChannels)); // base on the curve
    }
}
