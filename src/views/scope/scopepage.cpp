#include "views/scope/scopepage.h"
#include "ui_scopepage.h"

#include "settings/config_data.h"
#include "pages/scopecontrols.h"
#include "views/scope/linesample.h"
#include "widgets/controls/labellook.h"

#include <cstring>

int wave_step = 1;

namespace {

constexpr int kPoints = 600;
constexpr int kCycles = 10; // in the samples that the task hands over
constexpr int kMostCycles = 8; // shown

/// What a saved data file of this page holds (19,236 bytes).
struct __scope_pqa_data
{
    float frequency; // Hz
    float voltage[kChannels]; // V r.m.s.
    float current[kChannels]; // A r.m.s.
    float voltageSamples[kChannels][kPoints]; // V
    float currentSamples[kChannels][kPoints]; // A
};
static_assert(sizeof(__scope_pqa_data) == 19236, "size of the saved record");

} // namespace

ScopePage::ScopePage(const LiveData &data, QWidget *parent)
    : FunctionPage(UI_SCOPE, { 11, "Scope" }, parent), m_data(data), m_drawn(new __scope_data_ui()),
      m_ui(new Ui::ScopePage), m_readout((m_ui->setupUi(this), LabelLook::dress(this), this)),
      m_controls(new ScopeControls(this, m_ui->scope, m_ui->btn_f3, m_ui->btn_f4, m_ui->zoom_scale))
{
    static const KeyRow<ScopePage> keys[] = {
        { Qt::Key_F1, nullptr, &ScopePage::nextMode },
        { Qt::Key_F2, QT_TRANSLATE_NOOP("ScopePage", "Default"), &ScopePage::defaultZoom },
        { Qt::Key_F3, nullptr, &ScopePage::toggleCursor },
        { Qt::Key_F4, nullptr, &ScopePage::toggleZoom },
        { Qt::Key_Left, nullptr, &ScopePage::pressLeft },
        { Qt::Key_Right, nullptr, &ScopePage::pressRight },
        { Qt::Key_Up, nullptr, &ScopePage::pressUp },
        { Qt::Key_Down, nullptr, &ScopePage::pressDown },
        { Qt::Key_F6, nullptr, &ScopePage::stayHere }, // the scope is already on top
    };
    connect(m_controls, &ScopeControls::cursorChanged, this, &ScopePage::showCurVal);
    setKeys(keys);
}

ScopePage::~ScopePage() = default;

void ScopePage::init_parameter()
{
    FunctionPage::init_parameter();
    m_mode = ScopeReadout::Voltages;
    wave_step = 1;
    m_controls->reset();
    initScopeWidget();
    m_controls->showDefaultZoom();
    updateDisplay(nullptr);
}

void ScopePage::retranslateUi()
{
    FunctionPage::retranslateUi();
    setText(m_ui->freq_t, tr("Freq ="));
    initScopeWidget();
    showCurVal();
}

void ScopePage::initScopeWidget()
{
    m_ui->btn_f1->setBtnFlag(m_mode);
    m_ui->scope->setFlags(quint8(ChannelLabels::channels().scopeFlags(m_mode)));
    m_readout.setMode(m_mode);
}

void ScopePage::updateDisplay(void *)
{
    const __scope_data &shown = m_data.shown().scope;
    std::memcpy(m_drawn.get(), &shown, offsetof(__scope_data_ui, voltageSamples));
    for (int c = 0; c < kChannels; ++c) {
        lineSample(m_drawn->voltageSamples[c], shown.voltageSamples[c], kPoints, wave_step, kWaveSamples, kCycles);
        lineSample(m_drawn->currentSamples[c], shown.currentSamples[c], kPoints, wave_step, kWaveSamples, kCycles);
    }
    showCurVal();
    m_ui->scope->showScopeData(m_drawn.get());
}

void ScopePage::showCurVal()
{
    m_readout.show(*m_drawn, m_controls->cursorOn() ? m_controls->cursorIndex() : -1);
    ChannelLabels::showFrequency(m_ui->freq, m_drawn->frequency);
}

void ScopePage::nextMode()
{
    m_mode = ChannelLabels::channels().nextScopeMode(m_mode);
    initScopeWidget();
    showCurVal();
}

void ScopePage::defaultZoom()
{
    m_controls->showDefaultZoom();
}

void ScopePage::toggleCursor()
{
    m_controls->toggleCursor();
}

void ScopePage::toggleZoom()
{
    m_controls->toggleZoom();
}

void ScopePage::pressLeft()
{
    if (m_controls->moveCursor(-1) || !m_controls->zoomOn())
        return;
    wave_step = wave_step < 3 ? 1 : wave_step - 2;
    updateDisplay(nullptr);
}

void ScopePage::pressRight()
{
    if (m_controls->moveCursor(1) || !m_controls->zoomOn())
        return;
    if (wave_step == 1)
        wave_step = 2;
    else if (wave_step < kMostCycles)
        wave_step += 2;
    updateDisplay(nullptr);
}

void ScopePage::pressUp()
{
    m_controls->zoomIn();
}

void ScopePage::pressDown()
{
    m_controls->zoomOut();
}

void ScopePage::releaseKey(int key)
{
    m_controls->release(key);
}

QByteArray ScopePage::pqaData() const
{
    __scope_pqa_data data;
    std::memcpy(&data, m_drawn.get(), offsetof(__scope_pqa_data, voltageSamples));
    for (int c = 0; c < kChannels; ++c) {
        const float volt = ScopeReadout::voltCoefficient(c);
        const float ampere = ScopeReadout::ampereCoefficient(c);
        for (int i = 0; i < kPoints; ++i) {
            data.voltageSamples[c][i] = ScopeReadout::fromSample(volt, m_drawn->voltageSamples[c][i]);
            data.currentSamples[c][i] = ScopeReadout::fromSample(ampere, m_drawn->currentSamples[c][i]);
        }
    }
    return QByteArray(reinterpret_cast<const char *>(&data), int(sizeof data));
}
