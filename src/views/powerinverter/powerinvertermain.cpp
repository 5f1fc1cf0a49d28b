#include "views/powerinverter/powerinvertermain.h"
#include "ui_powerinvertermain.h"

#include "settings/config_data.h"
#include "model/displayrecords.h"
#include "views/powerinverter/inverterfeed.h"
#include "widgets/text/f_to_str.h"
#include "widgets/controls/labellook.h"

#include <algorithm>

namespace {

constexpr int kPhases = 3;

template <typename Value> struct Row
{
    const char *name; // labels <name>_t and <name>, or <name>_L1 ... <name>_L3
    const char *caption; // its unit follows in parentheses
    QString DisplayUnits::*unit;
    Value __pi_data::*value;
    QString (*format)(float);
};

const Row<float> kInputs[] = {
    { "Uin", QT_TRANSLATE_NOOP("PowerInverterMain", "U in"), &DisplayUnits::volt, &__pi_data::inputVoltage,
      F_to_Str::number_V },
    { "Iin", QT_TRANSLATE_NOOP("PowerInverterMain", "I in"), &DisplayUnits::ampere, &__pi_data::inputCurrent,
      F_to_Str::number_A },
    { "Pin", QT_TRANSLATE_NOOP("PowerInverterMain", "P in"), &DisplayUnits::watt, &__pi_data::inputPower,
      F_to_Str::number_P },
};

const Row<float[kPhases]> kOutputs[] = {
    { "Uout", QT_TRANSLATE_NOOP("PowerInverterMain", "U out"), &DisplayUnits::volt, &__pi_data::outputVoltage,
      F_to_Str::number_V },
    { "Iout", QT_TRANSLATE_NOOP("PowerInverterMain", "I out"), &DisplayUnits::ampere, &__pi_data::outputCurrent,
      F_to_Str::number_A },
    { "Pout", QT_TRANSLATE_NOOP("PowerInverterMain", "P out"), &DisplayUnits::watt, &__pi_data::outputPower,
      F_to_Str::number_P },
};

} // namespace

PowerInverterMain::PowerInverterMain(QWidget *parent)
    : LivePage(UI_POWER_INVERTER, parent), m_ui(new Ui::PowerInverterMain)
{
    static const KeyRow<PowerInverterMain> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("PowerInverterMain", "Trend"), &PowerInverterMain::goPowerInverterTrend },
    };
    m_ui->setupUi(this);
    LabelLook::dress(this);
    m_headers = ChannelLabels::numberedRow(this, "header_%1");
    for (const auto &row : kInputs)
        m_inputs.push_back(findChild<QLabel *>(QString::fromLatin1(row.name)));
    for (const auto &row : kOutputs)
        m_rows.push_back(ChannelLabels::namedRow(this, row.name));
    setKeys(keys);
}

PowerInverterMain::~PowerInverterMain() = default;

void PowerInverterMain::init_parameter()
{
    LivePage::init_parameter();
    showTitle();
    showCurParams();
}

void PowerInverterMain::retranslateUi()
{
    LivePage::retranslateUi();
    setText(m_ui->freq_t, tr("Freq ="));
    showTitle();
}

ChannelLabels::LabelRow PowerInverterMain::outputs(ChannelLabels::LabelRow row)
{
    const int mask = InverterFeed::outputMask(ChannelLabels::channels().trendFlags(), singleOrThree != 0);
    for (int c = 0; c < kChannels; ++c) {
        if (!(mask >> c & 1))
            row[c] = nullptr;
    }
    return row;
}

void PowerInverterMain::showTitle()
{
    const auto title = [this](const auto &row) {
        setText(findChild<QLabel *>(QString::fromLatin1(row.name) + QLatin1String("_t")),
                QStringLiteral("%1(%2)").arg(tr(row.caption), m_settingConfig_g.units().*row.unit));
    };
    std::for_each(std::begin(kInputs), std::end(kInputs), title);
    std::for_each(std::begin(kOutputs), std::end(kOutputs), title);
    setText(m_ui->eff_t, tr("Efficiency"));
    ChannelLabels::clear(m_headers);
    ChannelLabels::showHeaders(outputs(m_headers));
    for (const ChannelLabels::LabelRow &row : m_rows)
        ChannelLabels::clear(row);
    showCurParams();
}

void PowerInverterMain::showCurParams()
{
    if (!g_pi_data)
        return;
    for (std::size_t i = 0; i < m_inputs.size(); ++i)
        setText(m_inputs[i], kInputs[i].format(g_pi_data->*kInputs[i].value));
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        // The label rows have a place for the neutral, the record has none.
        float values[kChannels] = {};
        std::copy_n(g_pi_data->*kOutputs[i].value, kPhases, values);
        ChannelLabels::showValues(outputs(m_rows[i]), values, kOutputs[i].format);
    }
    setText(m_ui->eff, F_to_Str::number_2(g_pi_data->efficiency) + QLatin1Char('%'));
    ChannelLabels::showFrequency(m_ui->freq, g_pi_data->frequency);
}
