#include "pages/scopereadout.h"

#include "settings/config_data.h"
#include "settings/phasecolor.h"
#include "widgets/text/f_to_str.h"
#include "widgets/controls/labellook.h"

#include <QLabel>

namespace {

constexpr int kFirstVoltScale = 4; // places in SettingConfig::wvi()
constexpr int kFirstAmpereScale = 8;
constexpr double kConverterFullScale = 10.0; // V
constexpr double kPerStep = 3.0517578125e-5; // 1 / 32768

} // namespace

ScopeReadout::ScopeReadout(const QWidget *form)
    : m_captions(ChannelLabels::numberedRow(form, "D%1_Caption")),
      m_values(ChannelLabels::numberedRow(form, "D%1_Value"))
{ }

float ScopeReadout::voltCoefficient(int channel)
{
    return m_settingConfig_g.wvi()[kFirstVoltScale + channel];
}

float ScopeReadout::ampereCoefficient(int channel)
{
    return m_settingConfig_g.wvi()[kFirstAmpereScale + channel];
}

float ScopeReadout::fromSample(float coefficient, qint16 sample)
{
    return float(coefficient * kConverterFullScale * kPerStep * sample);
}

void ScopeReadout::setMode(int mode)
{
    const ChannelSet &set = ChannelLabels::channels();
    m_places.fill(Place());
    if (mode == Voltages || mode == Currents) {
        for (int c = 0; c < kChannels; ++c) {
            if (set.has(c))
                m_places[c] = { c, mode == Currents };
        }
    } else {
        const int channel = mode == ChannelN ? 3 : mode - ChannelL1;
        m_places[0] = { channel, false };
        m_places[1] = { channel, true };
    }

    for (int i = 0; i < kChannels; ++i) {
        const Place &place = m_places[i];
        if (!m_captions[i] || !m_values[i])
            continue;
        m_values[i]->clear();
        if (place.channel < 0) {
            m_captions[i]->clear();
            continue;
        }
        const QColor color = place.current ? PhaseColor::colorI(place.channel) : PhaseColor::colorU(place.channel);
        m_captions[i]->setText(set.caption(place.channel) + QLatin1Char(':'));
        LabelLook::setColor(m_captions[i], color);
    }
}

void ScopeReadout::show(const __scope_data_ui &data, int cursor)
{
    for (int i = 0; i < kChannels; ++i) {
        const Place &place = m_places[i];
        if (place.channel < 0 || !m_values[i])
            continue;
        const int c = place.channel;
        float value = place.current ? data.current[c] : data.voltage[c];
        if (cursor >= 0 && cursor < 600) {
            value = place.current ? fromSample(ampereCoefficient(c), data.currentSamples[c][cursor])
                                  : fromSample(voltCoefficient(c), data.voltageSamples[c][cursor]);
        }
        const QString text = place.current ? F_to_Str::number_A(value) : F_to_Str::number_V(value);
        if (m_values[i]->text() != text)
            m_values[i]->setText(text);
    }
}
