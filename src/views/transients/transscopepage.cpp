#include "views/transients/transscopepage.h"

#include "pages/scopecontrols.h"
#include "widgets/charts/scopewidget.h"

#include <cstring>

TransScopePage::TransScopePage(QWidget *parent) : LivePage(UI_TRANSIENTS, parent), m_data(new __scope_data_ui()) { }

TransScopePage::~TransScopePage() = default;

void TransScopePage::setUp(ScopeWidget *scope, Btn2 *cursorButton, Btn3 *zoomButton, QLabel *scale)
{
    m_scope = scope;
    m_controls = new ScopeControls(this, scope, cursorButton, zoomButton, scale);
    m_readout = std::make_unique<ScopeReadout>(this);
    connect(m_controls, &ScopeControls::cursorChanged, this, &TransScopePage::showCurVal);
}

void TransScopePage::initScopeWidget()
{
    m_scope->setFlags(quint8(ChannelLabels::channels().scopeFlags(ScopeReadout::Voltages)));
    m_readout->setMode(ScopeReadout::Voltages);
}

void TransScopePage::init_parameter()
{
    LivePage::init_parameter();
    m_controls->reset();
    initScopeWidget();
    m_controls->showDefaultZoom();
    showRecord(nullptr);
}

void TransScopePage::retranslateUi()
{
    LivePage::retranslateUi();
    initScopeWidget();
    showCurVal();
}

void TransScopePage::showRecord(const __trans_data *record)
{
    if (record) {
        m_data->frequency = record->frequency;
        std::memcpy(m_data->voltage, record->rms, sizeof m_data->voltage);
        std::memcpy(m_data->voltageSamples, record->samples, sizeof m_data->voltageSamples);
        static_assert(sizeof m_data->voltageSamples == sizeof record->samples);
    } else {
        *m_data = __scope_data_ui();
    }
    showCurVal();
    m_scope->showScopeData(m_data.get());
}

void TransScopePage::showCurVal()
{
    m_readout->show(*m_data, m_controls->cursorOn() ? m_controls->cursorIndex() : -1);
}

void TransScopePage::defaultZoom()
{
    m_controls->showDefaultZoom();
}

void TransScopePage::toggleCursor()
{
    m_controls->toggleCursor();
}

void TransScopePage::toggleZoom()
{
    m_controls->toggleZoom();
}

void TransScopePage::pressLeft()
{
    m_controls->moveCursor(-1);
}

void TransScopePage::pressRight()
{
    m_controls->moveCursor(1);
}

void TransScopePage::pressUp()
{
    m_controls->zoomIn();
}

void TransScopePage::pressDown()
{
    m_controls->zoomOut();
}

void TransScopePage::releaseKey(int key)
{
    m_controls->release(key);
}
