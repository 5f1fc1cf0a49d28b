#include "views/powerinverter/powerinvertermain.h"
#include "ui_powerinvertermain.h"

#include "settings/config_data.h"
#include "task/inverterfeed.h"
#include "widgets/text/f_to_str.h"
#include "widgets/controls/labellook.h"

#include <algorithm>

namespace {

constexpr int kPhases = 3;

constexpr LabelGrid kInputGrid = { 150, 0, 140, 26, 36, 16, 134, 20, 1 };
constexpr LabelGrid kOutputGrid = { 150, 150, 140, 26, 42, 16, 134, 20, kPhases };

template <typename Value> struct Row
{
    const char *name; // labels <name>_t and <name>, or <name>_L1 ... <name>_L3
    int top;
    const char *caption; // its unit follows in parentheses
    QString DisplayUnits::*unit;
    Value __pi_data::*value;
    QString (*format)(float);
};

const Row<float> kInputs[] = {
    { "Uin", 44, QT_TRANSLATE_NOOP("PowerInverterMain", "U in"), &DisplayUnits::volt, &__pi_data::inputVoltage,
      F_to_Str::number_V },
    { "Iin", 86, QT_TRANSLATE_NOOP("PowerInverterMain", "I in"), &DisplayUnits::ampere, &__pi_data::inputCurrent,
      F_to_Str::number_A },
    { "Pin", 128, QT_TRANSLATE_NOOP("PowerInverterMain", "P in"), &DisplayUnits::watt, &__pi_data::inputPower,
      F_to_Str::number_P },
};

const Row<float[kPhases]> kOutputs[] = {
    { "Uout", 228, QT_TRANSLATE_NOOP("PowerInverterMain", "U out"), &DisplayUnits::volt, &__pi_data::outputVoltage,
      F_to_Str::number_V },
    { "Iout", 280, QT_TRANSLATE_NOOP("PowerInverterMain", "I out"), &DisplayUnits::ampere, &__pi_data::outputCurrent,
      F_to_Str::number_A },
    { "Pout", 332, QT_TRANSLATE_NOOP("PowerInverterMain", "P out"), &DisplayUnits::watt, &__pi_data::outputPower,
      F_to_Str::number_P },
};

} // namespace

PowerInverterMain::PowerInverterMain(const LiveData &data, QWidget *parent)
    : LivePage(UI_POWER_INVERTER, parent), m_data(data), m_ui(new Ui::PowerInverterMain)
{
    static const KeyRow<PowerInverterMain> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("PowerInverterMain", "Trend"), &PowerInverterMain::goPowerInverterTrend },
    };
    m_ui->setupUi(this);
    for (const auto &row : kInputs) {
        const QString name = QString::fromLatin1(row.name);
        m_inputs.push_back(kInputGrid.addRow(this, name + QLatin1String("_t"), { name }, row.top));
    }
    m_headers = kOutputGrid.addHeaders(this, 186, 30, 24);
    for (const auto &row : kOutputs)
        m_outputs.push_back(kOutputGrid.addChannels(this, QString::fromLatin1(row.name), row.top));
    LabelLook::dress(this);
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
    const auto title = [](const auto &rows, const std::vector<LabelGrid::Row> &labels) {
        for (std::size_t i = 0; i < labels.size(); ++i)
            setText(labels[i].caption,
                    QStringLiteral("%1(%2)").arg(tr(rows[i].caption), m_settingConfig_g.units().*rows[i].unit));
    };
    title(kInputs, m_inputs);
    title(kOutputs, m_outputs);
    setText(m_ui->eff_t, tr("Efficiency"));
    ChannelLabels::clear(m_headers);
    ChannelLabels::showHeaders(outputs(m_headers));
    for (const LabelGrid::Row &row : m_outputs)
        ChannelLabels::clear(row.values);
    showCurParams();
}

void PowerInverterMain::showCurParams()
{
    const __pi_data &record = m_data.shown().inverter;
    for (std::size_t i = 0; i < m_inputs.size(); ++i)
        setText(m_inputs[i].values[0], kInputs[i].format(record.*kInputs[i].value));
    for (std::size_t i = 0; i < m_outputs.size(); ++i) {
        // The label rows have a place for the neutral, the record has none.
        float values[kChannels] = {};
        std::copy_n(record.*kOutputs[i].value, kPhases, values);
        ChannelLabels::showValues(outputs(m_outputs[i].values), values, kOutputs[i].format);
    }
    setText(m_ui->eff, F_to_Str::number_2(record.efficiency) + QLatin1Char('%'));
    ChannelLabels::showFrequency(m_ui->freq, record.frequency);
}
