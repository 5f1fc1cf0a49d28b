#include "widgets/charts/compliancebars.h"

#include "widgets/charts/chartparts.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>

ComplianceBars::ComplianceBars(const int *positions, int count, int cursorIndex, QWidget *parent)
    : QWidget(parent), m_positions(positions), m_cursorX(positions[cursorIndex]), m_cursorIndex(cursorIndex),
      m_bars(count), m_limitSign(QStringLiteral(":/limitval_2")), m_allowedSign(QStringLiteral(":/limitval_1"))
{ }

void ComplianceBars::takeBars(const ComplianceBar *bars)
{
    std::copy(bars, bars + m_bars.size(), m_bars.begin());
    update();
}

void ComplianceBars::moveCursor(int index)
{
    m_cursorIndex = std::clamp(index, 0, m_bars.size() - 1);
    m_cursorX = m_positions[m_cursorIndex];
    update();
}

void ComplianceBars::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawScale(painter);
    drawCursor(painter);
    drawBars(painter);
    drawLegends(painter); // readable above the last bars
}

void ComplianceBars::drawScale(QPainter &painter) const
{
    const int H = height();
    const int right = width() - 1;
    painter.setPen(ChartParts::gridPen());
    // 100 percent of the allowed time, 100 percent of the limit, and the base on the widget's last row.
    for (const int y : { H / 8, H * 2 / 8, H - 1 })
        painter.drawLine(0, y, right, y);
}

void ComplianceBars::drawLegends(QPainter &painter) const
{
    const struct
    {
        const QPixmap &sign;
        QString text;
        int y;
    } legends[] = { { m_limitSign, QCoreApplication::translate("ComplianceBars", "Limit"), 15 },
                    { m_allowedSign, QCoreApplication::translate("ComplianceBars", "Allowed%"), 54 } };
    painter.setPen(Qt::white);
    ChartParts::setFontPixels(painter, 14);
    constexpr int kMargin = 4;
    int textX = width() - 66; // further left for a longer text
    for (const auto &legend : legends)
        textX = std::min(textX, width() - kMargin - painter.fontMetrics().horizontalAdvance(legend.text));
    for (const auto &legend : legends) {
        painter.drawPixmap(textX - 6 - std::max(legend.sign.width(), 12), legend.y, legend.sign);
        const int rowHeight = std::max(legend.sign.height(), 16);
        painter.drawText(textX, legend.y, width() - textX, rowHeight, Qt::AlignLeft | Qt::AlignVCenter, legend.text);
    }
}

void ComplianceBars::drawCursor(QPainter &painter) const
{
    ChartParts::drawCursor(painter, m_cursorX, height() - 1);
    // Outside the grip: the keys Left and Right move it.
    static const struct
    {
        int side;
        Qt::GlobalColor color;
    } kTips[] = { { -1, Qt::white }, { 1, Qt::green } };
    painter.setPen(Qt::NoPen);
    for (const auto &tip : kTips) {
        const double x = m_cursorX + 0.5 + 5 * tip.side;
        const QPointF corners[] = { { x, 3.5 }, { x, 11.5 }, { x + 5.0 * tip.side, 7.5 } };
        painter.setBrush(tip.color);
        painter.drawPolygon(corners, 3);
    }
    painter.setBrush(Qt::NoBrush);
}

void ComplianceBars::drawBars(QPainter &painter) const
{
    const double limitScale = (height() + 1) * 6 / 8 / 100.0;
    const double allowedScale = (height() + 1) * 7 / 8 / 100.0;
    for (int i = 0; i < m_bars.size(); ++i) {
        if (!isShown(i))
            continue;
        drawPart(painter, m_positions[i], 3, m_bars.at(i).limit, limitScale);
        drawPart(painter, m_positions[i], 1, m_bars.at(i).allowed, allowedScale);
    }
}

void ComplianceBars::drawPart(QPainter &painter, int position, int reach, float percent, double pixelsPerPercent) const
{
    const int barHeight = int(ChartParts::boundedPixel(double(percent) * pixelsPerPercent));
    if (barHeight < 1)
        return;
    painter.fillRect(position - reach, height() - barHeight, 2 * reach + 1, barHeight,
                     percent > 100.0f ? Qt::red : Qt::green);
}
