#include "widgets/charts/vectorchart.h"

#include "settings/phasecolor.h"
#include "widgets/charts/chartparts.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

VectorChart::VectorChart(QWidget *parent) : QWidget(parent) { }

void VectorChart::setVector(int index, double angle, bool visible)
{
    m_vector[index] = { angle, visible };
    update();
}

void VectorChart::paintEvent(QPaintEvent *)
{
    const int radius = (std::min(width(), height()) - 23) / 2;
    if (radius < 3)
        return;
    QPainter painter(this);
    painter.translate(radius + 12, radius + 12);
    drawLabels(painter, radius);
    drawRings(painter, radius);
    drawVectors(painter, radius);
}

void VectorChart::drawLabels(QPainter &painter, int radius) const
{
    ChartParts::setFontPixels(painter, 12);
    painter.setPen(Qt::white);
    painter.drawText(QPointF(radius + 1, 4.0), QStringLiteral("0"));
    static const struct
    {
        double turn; // degrees, so that the text runs along the ring
        QPointF place;
        const char *text;
    } kLabels[] = { { 270.0, { -18, 11 }, "-120" }, { 90.0, { -22, -1 }, "-240" } };
    painter.save();
    for (const auto &label : kLabels) {
        painter.rotate(120.0);
        painter.save();
        painter.translate(radius + 1, 0);
        painter.rotate(label.turn);
        painter.drawText(label.place, QString::fromLatin1(label.text));
        painter.restore();
    }
    painter.restore();
}

void VectorChart::drawRings(QPainter &painter, int radius) const
{
    const int third = radius / 3;
    painter.setPen(ChartParts::gridPen());
    for (const int ring : { radius, third * 2, third })
        painter.drawEllipse(-ring, -ring, 2 * ring + 1, 2 * ring + 1);
    painter.save();
    for (int step = 0; step < 6; ++step) {
        painter.drawLine(1 - radius, 0, -third, 0);
        painter.drawLine(third + 1, 0, radius - 1, 0);
        painter.rotate(30.0);
    }
    painter.restore();
}

void VectorChart::drawVectors(QPainter &painter, int radius) const
{
    static const QPointF kHead[] = { { -4, 0 }, { 4, 0 }, { 0, 8 } };
    // A voltage's tip stands just inside the outer ring, a current's just inside the ring at two thirds.
    const int voltageLength = radius - 9;
    const int currentLength = std::max(radius / 3 * 2 - 9, 1);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < kVectors; ++i) {
        const Vector &vector = m_vector[i];
        if (!vector.visible || !std::isfinite(vector.angle))
            continue;
        const int length = i < 3 ? voltageLength : currentLength;
        const QColor color = PhaseColor::color(i % 3);
        painter.save();
        painter.rotate(360.0 - std::fmod(vector.angle, 360.0));
        painter.setPen(QPen(color, 1));
        painter.drawLine(0, 0, length, 0);
        painter.translate(length, 0);
        painter.rotate(270.0);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawPolygon(kHead, 3);
        painter.restore();
    }
}
