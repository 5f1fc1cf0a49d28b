#include "views/wave/waveprogressbar.h"

#include <QPainter>

#include <algorithm>

void WaveProgressBar::setPercent(int percent)
{
    const int held = std::clamp(percent, 0, 100);
    if (held == m_percent)
        return;
    m_percent = held;
    update();
}

void WaveProgressBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect frame = rect().adjusted(0, 0, -1, -1);
    painter.fillRect(frame, QColor(5, 8, 15));
    QRect done = frame.adjusted(1, 1, 0, 0);
    done.setWidth(done.width() * m_percent / 100);
    painter.fillRect(done, QColor(31, 111, 208));
    painter.setPen(QColor(60, 90, 134));
    painter.drawRect(frame);
    QFont text = font();
    text.setPixelSize(height() * 6 / 10);
    painter.setFont(text);
    painter.setPen(Qt::white);
    painter.drawText(frame, Qt::AlignCenter, QStringLiteral("%1 %").arg(m_percent));
}
