#include "views/scope/scopepage.h"

#include "settings/config_data.h"
#include "views/scope/linesample.h"
#include "widgets/controls/softkeybuttons.h"

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
    : ScopeFormPage(UI_SCOPE, { 11, "Scope" }, parent), m_data(data), m_modeKey(new Btn1)
{
    static const HeadLabel head[] = {
        { "freq_t", 20, 74 },
        { "freq", 94, 140 },
    };
    setUp(head, m_modeKey);
}

void ScopePage::setPageKeys()
{
    static const KeyRow<ScopePage> keys[] = {
        { Qt::Key_F1, nullptr, &ScopePage::nextMode },
        { Qt::Key_F2, QT_TRANSLATE_NOOP("ScopePage", "Default"), &ScopePage::defaultZoom },
        { Qt::Key_F6, nullptr, &ScopePage::stayHere }, // the scope is already on top
    };
    setKeys(keys);
}

void ScopePage::init_parameter()
{
    m_mode = ScopeReadout::Voltages;
    wave_step = 1;
    ScopeFormPage::init_parameter();
    updateDisplay(nullptr);
}

void ScopePage::retranslateUi()
{
    ScopeFormPage::retranslateUi();
    setText(headLabel("freq_t"), tr("Freq ="));
}

void ScopePage::updateDisplay(void *)
{
    const __scope_data &shown = m_data.shown().scope;
    __scope_data_ui &drawn = drawnData();
    std::memcpy(&drawn, &shown, offsetof(__scope_data_ui, voltageSamples));
    for (int c = 0; c < kChannels; ++c) {
        lineSample(drawn.voltageSamples[c], shown.voltageSamples[c], kPoints, wave_step, kWaveSamples, kCycles);
        lineSample(drawn.currentSamples[c], shown.currentSamples[c], kPoints, wave_step, kWaveSamples, kCycles);
    }
    showPicture();
}

void ScopePage::showMode()
{
    ScopeFormPage::showMode();
    m_modeKey->setBtnFlag(m_mode);
}

void ScopePage::showCurVal()
{
    ScopeFormPage::showCurVal();
    ChannelLabels::showFrequency(headLabel("freq"), drawn().frequency);
}

void ScopePage::nextMode()
{
    m_mode = ChannelLabels::channels().nextScopeMode(m_mode);
    showMode();
    showCurVal();
}

void ScopePage::zoomTime(int direction)
{
    if (direction < 0)
        wave_step = wave_step < 3 ? 1 : wave_step - 2;
    else if (wave_step == 1)
        wave_step = 2;
    else if (wave_step < kMostCycles)
        wave_step += 2;
    updateDisplay(nullptr);
}

QByteArray ScopePage::pqaData() const
{
    __scope_pqa_data data;
    std::memcpy(&data, &drawn(), offsetof(__scope_pqa_data, voltageSamples));
    for (int c = 0; c < kChannels; ++c) {
        const float volt = ScopeReadout::voltCoefficient(c);
        const float ampere = ScopeReadout::ampereCoefficient(c);
        for (int i = 0; i < kPoints; ++i) {
            data.voltageSamples[c][i] = ScopeReadout::fromSample(volt, drawn().voltageSamples[c][i]);
            data.currentSamples[c][i] = ScopeReadout::fromSample(ampere, drawn().currentSamples[c][i]);
        }
    }
    return QByteArray(reinterpret_cast<const char *>(&data), int(sizeof data));
}
