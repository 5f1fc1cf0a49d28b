#include "user/phasecolorpalette.h"

#include <QPainter>

namespace {

constexpr int kGap = 4; // between a box and the edge of its place, pixels

} // namespace

PhaseColorPalette::PhaseColorPalette(QWidget *parent) : QWidget(parent) { }

void PhaseColorPalette::setColors(const QVector<QColor> &colors)
{
    if (m_colors == colors)
        return;
    m_colors = colors;
    update();
}

void PhaseColorPalette::setChosen(int index)
{
    if (m_chosen == index)
        return;
    m_chosen = index;
    update();
}

void PhaseColorPalette::paintEvent(QPaintEvent *)
{
    if (m_colors.isEmpty())
        return;
    QPainter painter(this);
    const int place = width() / m_colors.size();
    for (int i = 0; i < m_colors.size(); ++i) {
        const QRect around(i * place, 0, place - 1, height() - 1);
        painter.fillRect(around.adjusted(kGap, kGap, 1 - kGap, 1 - kGap), m_colors.at(i));
        if (i == m_chosen) {
            painter.setPen(Qt::white);
            painter.drawRect(around);
            painter.drawRect(around.adjusted(1, 1, -1, -1));
        }
    }
}
