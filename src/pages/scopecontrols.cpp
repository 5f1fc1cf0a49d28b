#include "pages/scopecontrols.h"

#include "settings/config_data.h"
#include "pages/scopereadout.h"
#include "widgets/charts/scopewidget.h"
#include "widgets/controls/softkeybuttons.h"

#include <QLabel>

#include <algorithm>

namespace {
constexpr int kTicksPerStep = 3;
constexpr int kLastSample = 599;
}

ScopeControls::ScopeControls(QWidget *page, ScopeWidget *scope, Btn2 *cursorButton, Btn3 *zoomButton, QLabel *scale)
    : QObject(page), m_scope(scope), m_cursorButton(cursorButton), m_zoomButton(zoomButton), m_scale(scale),
      m_repeat(new KeyRepeat(page, kTicksPerStep))
{
    connect(m_repeat, &KeyRepeat::repeated, this, &ScopeControls::stepCursor);
    showCursor();
    showZoom();
    showScale();
}

int ScopeControls::cursorIndex() const
{
    return std::clamp(m_scope->cursorPosition() - 1, 0, kLastSample);
}

void ScopeControls::setCursorIndex(int index)
{
    m_scope->setCursorPosition(std::clamp(index, 0, kLastSample));
}

void ScopeControls::reset()
{
    m_repeat->stop();
    m_cursorOn = true;
    m_zoomOn = true;
    setCursorIndex(0);
    showCursor();
    showZoom();
}

void ScopeControls::toggleCursor()
{
    m_repeat->stop();
    m_cursorOn = !m_cursorOn;
    showCursor();
    showZoom();
    emit cursorChanged();
}

void ScopeControls::toggleZoom()
{
    m_zoomOn = !m_zoomOn;
    showCursor();
    showZoom();
}

void ScopeControls::showDefaultZoom()
{
    const Clamp *clamp = m_settingConfig_g.curClamp();
    m_scope->setDefaultZoom(m_settingConfig_g.getRealNominalVolt(), ScopeReadout::voltCoefficient(0),
                            clamp ? clamp->range() * m_settingConfig_g.ratioI() : 0.0f,
                            ScopeReadout::ampereCoefficient(0));
    showScale();
}

void ScopeControls::zoomIn()
{
    if (!m_zoomOn)
        return;
    m_scope->setZoomNext();
    showScale();
}

void ScopeControls::zoomOut()
{
    if (!m_zoomOn)
        return;
    m_scope->setZoomPrev();
    showScale();
}

bool ScopeControls::moveCursor(int direction)
{
    if (!m_cursorOn)
        return false;
    m_repeat->start(direction);
    return true;
}

void ScopeControls::release(int key)
{
    if (key == Qt::Key_Left || key == Qt::Key_Right)
        m_repeat->stop();
}

void ScopeControls::stepCursor(int step)
{
    setCursorIndex(cursorIndex() + step);
    emit cursorChanged();
}

void ScopeControls::showCursor()
{
    m_scope->setCursorOn(m_cursorOn);
    m_cursorButton->setBtnFlag(m_cursorOn);
}

void ScopeControls::showZoom()
{
    m_zoomButton->setBtnFlag(m_zoomOn);
}

void ScopeControls::showScale()
{
    m_scale->setText(QString::fromLatin1(ScopeWidget::zoomText(m_scope->getZoomIndex())));
}
