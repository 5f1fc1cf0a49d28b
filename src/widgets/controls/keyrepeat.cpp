#include "widgets/controls/keyrepeat.h"

#include <QKeyEvent>
#include <QWidget>

KeyRepeat::KeyRepeat(QWidget *page, int ticksPerStep, Steps steps)
    : QObject(page), m_ticksPerStep(ticksPerStep), m_steps(steps.empty() ? Steps { 1 } : std::move(steps))
{
    m_timer.setInterval(kPeriod);
    connect(&m_timer, &QTimer::timeout, this, &KeyRepeat::tick);
    page->installEventFilter(this);
}

void KeyRepeat::setPace(const Pace &pace)
{
    stop();
    m_ticksPerStep = pace.ticksPerStep;
    m_steps = pace.steps.empty() ? Steps { 1 } : pace.steps;
}

void KeyRepeat::start(int direction)
{
    const int sign = direction < 0 ? -1 : 1;
    if (m_timer.isActive() && sign == m_direction)
        return;
    stop();
    m_direction = sign;
    m_timer.start();
    emit repeated(step());
}

void KeyRepeat::stop()
{
    m_timer.stop();
    m_index = 0;
    m_ticks = 0;
}

void KeyRepeat::tick()
{
    if (!m_timer.isActive())
        return;
    if (m_index + 1 < m_steps.size() && ++m_ticks > m_ticksPerStep) {
        ++m_index;
        m_ticks = 1;
    }
    emit repeated(step());
}

bool KeyRepeat::eventFilter(QObject *watched, QEvent *event)
{
    // A keyboard that repeats by itself, releases included, must neither stop this nor begin it anew.
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (isActive() && isKey && static_cast<QKeyEvent *>(event)->isAutoRepeat()) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::Hide || event->type() == QEvent::WindowDeactivate)
        stop();
    return QObject::eventFilter(watched, event);
}
