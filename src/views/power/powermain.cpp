#include "views/power/powermain.h"
#include "ui_powermain.h"

#include "settings/config_data.h"
#include "settings/phasecolor.h"
#include "widgets/text/f_to_str.h"
#include "widgets/controls/labellook.h"

namespace {

/// One line of the table. Its fourth label is <name>_Tot.
struct Row : MeterLine
{
    float PowerDisplayRow::*power; // null: one of the two below
    float (__power_data::*phases)[3];
    bool hasTotal;
    QString (*format)(float);
};

const Row kRows[] = {
    { "P", 66, QT_TRANSLATE_NOOP("PowerMain", "P(%1)"), &DisplayUnits::watt, &PowerDisplayRow::active, nullptr, true,
      F_to_Str::number_P },
    { "S", 107, QT_TRANSLATE_NOOP("PowerMain", "S(%1)"), &DisplayUnits::voltAmpere, &PowerDisplayRow::apparent, nullptr,
      true, F_to_Str::number_P },
    { "Q", 148, QT_TRANSLATE_NOOP("PowerMain", "Q1(%1)"), &DisplayUnits::var, &PowerDisplayRow::reactive, nullptr, true,
      F_to_Str::number_P },
    { "TPF", 189, QT_TRANSLATE_NOOP("PowerMain", "PF"), nullptr, &PowerDisplayRow::factor, nullptr, true,
      F_to_Str::number_2 },
    { "DPF", 230, QT_TRANSLATE_NOOP("PowerMain", "cosΦ"), nullptr, &PowerDisplayRow::fundamentalFactor, nullptr, false,
      F_to_Str::number_2 },
    { "tan", 271, QT_TRANSLATE_NOOP("PowerMain", "tanΦ"), nullptr, &PowerDisplayRow::tangent, nullptr, true,
      F_to_Str::number_2 },
    { "Urms", 312, QT_TRANSLATE_NOOP("PowerMain", "Urms(%1)"), &DisplayUnits::volt, nullptr, &__power_data::voltage,
      false, F_to_Str::number_V },
    { "Irms", 353, QT_TRANSLATE_NOOP("PowerMain", "Irms(%1)"), &DisplayUnits::ampere, nullptr, &__power_data::current,
      false, F_to_Str::number_A },
};

/// One line of the energy panel.
struct EnergyLine
{
    const char *name; // labels <name> and <name>_1 to <name>_4
    QString DisplayUnits::*unit;
    float (__power_data::*values)[kChannels];
};

const EnergyLine kEnergies[] = {
    { "kwh", &DisplayUnits::wattHour, &__power_data::activeEnergy },
    { "kvah", &DisplayUnits::voltAmpereHour, &__power_data::apparentEnergy },
    { "kvarh", &DisplayUnits::varHour, &__power_data::reactiveEnergy },
};

/// The phases of the wiring, and the total where it is asked for.
bool isShown(int column, bool hasTotal)
{
    return column < 3 ? ChannelLabels::channels().has(column) : hasTotal;
}

constexpr MeterGrid kGrid = { { 124, 124, 110, 22, 36, 16, 108, 19 }, 34, 28, 22 };
// Inside the energy panel.
constexpr LabelGrid kEnergyGrid = { 98, 124, 126, 18, 36, 8, 90, 19 };
constexpr int kEnergyTop = 48;
constexpr int kEnergyPitch = 44;

} // namespace

PowerMain::PowerMain(const LiveData &data, QWidget *parent) : MeterPage(UI_POWER, data, parent), m_ui(new Ui::PowerMain)
{
    static const KeyRow<PowerMain> keys[] = {
        { Qt::Key_F2, nullptr, &PowerMain::pressReset },
        { Qt::Key_F3, nullptr, &PowerMain::toggleEnergy },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("PowerMain", "Trend"), &PowerMain::goPowerTrend },
    };
    m_ui->setupUi(this);
    for (int i = 0; i < int(std::size(kEnergies)); ++i) {
        QStringList values;
        for (int c = 1; c <= kChannels; ++c)
            values << QStringLiteral("%1_%2").arg(QLatin1String(kEnergies[i].name)).arg(c);
        m_energies.push_back(kEnergyGrid.addRow(m_ui->energy, QString::fromLatin1(kEnergies[i].name), values,
                                                kEnergyTop + i * kEnergyPitch));
    }
    setRows(kGrid, kRows, "Tot");
    m_ui->energy->raise(); // above the table
    m_flags = ChannelLabels::numberedRow(this, "q_flag%1");
    setKeys(keys);
    show_Energy();
}

PowerMain::~PowerMain() = default;

void PowerMain::init_parameter()
{
    m_energyShown = false;
    show_Energy();
    MeterPage::init_parameter();
}

void PowerMain::retranslateUi()
{
    MeterPage::retranslateUi();
    show_Energy();
}

void PowerMain::pressReset()
{
    if (m_energyShown)
        emit resetEnergy();
}

void PowerMain::toggleEnergy()
{
    m_energyShown = !m_energyShown;
    show_Energy();
}

void PowerMain::show_Energy()
{
    m_ui->energy->setVisible(m_energyShown);
    m_ui->btn_f3->setBtnFlag(m_energyShown ? 1 : 0);
    setKeyCaption(2, m_energyShown ? tr("Reset") : QString());
}

void PowerMain::showHeaders()
{
    MeterPage::showHeaders();
    // The fourth column is the total, in every wiring.
    setText(m_headers[3], tr("Total"));
    LabelLook::setColor(m_headers[3], PhaseColor::colorN());
}

void PowerMain::showTitle()
{
    const DisplayUnits &units = m_settingConfig_g.units();
    showHeaders();
    showCaptions();
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        for (int c = 0; c < kChannels; ++c) {
            if (!isShown(c, kRows[i].hasTotal))
                setText(m_rows[i][c], QString());
        }
    }
    setText(m_ui->energy_t, tr("E(%1)").arg(units.wattHour));
    for (std::size_t i = 0; i < m_energies.size(); ++i) {
        setText(m_energies[i].caption, units.*kEnergies[i].unit);
        for (int c = 0; c < kChannels; ++c) {
            if (!isShown(c, true))
                setText(m_energies[i].values[c], QString());
        }
    }
}

void PowerMain::showRow(const ChannelLabels::LabelRow &row, const float *values, bool hasTotal,
                        QString (*format)(float)) const
{
    for (int c = 0; c < (hasTotal ? kChannels : 3); ++c) {
        if (isShown(c, hasTotal))
            setText(row[c], format(values[c]));
    }
}

void PowerMain::showCurParams()
{
    const __power_data &data = shown().power;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const Row &row = kRows[i];
        float values[kChannels] = {};
        for (int c = 0; c < kChannels; ++c)
            values[c] = row.power ? data.row[c].*row.power : c < 3 ? (data.*row.phases)[c] : 0.0f;
        showRow(m_rows[i], values, row.hasTotal, row.format);
    }
    showEnergies();
    showCaporInd();
}

void PowerMain::showEnergies()
{
    const __power_data &data = shown().power;
    for (std::size_t i = 0; i < m_energies.size(); ++i)
        showRow(m_energies[i].values, data.*kEnergies[i].values, true, F_to_Str::number_E);
    const QLatin1Char zero('0');
    setText(m_ui->energy_time,
            QStringLiteral("%1:%2:%3")
                .arg(data.hours, 2, 10, zero)
                .arg(data.minutes, 2, 10, zero)
                .arg(data.seconds, 2, 10, zero));
}

void PowerMain::showCaporInd()
{
    constexpr float kNothing = 1e-5f; // var

    for (int c = 0; c < kChannels; ++c) {
        const float reactive = shown().power.row[c].reactive;
        QString sheet;
        if (isShown(c, true) && reactive < -kNothing)
            sheet = QStringLiteral("background-image: url(:/capacitance);");
        else if (isShown(c, true) && reactive > kNothing)
            sheet = QStringLiteral("background-image: url(:/incuctor);");
        // Only when the sign turned: a sheet costs a new polish.
        if (m_flags[c]->styleSheet() != sheet)
            m_flags[c]->setStyleSheet(sheet);
    }
}
