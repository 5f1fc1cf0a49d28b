#include "views/vif/vifmain.h"
#include "ui_vifmain.h"

#include "widgets/text/f_to_str.h"

namespace {

struct Row : MeterLine
{
    float (__vif_data::*values)[kChannels];
    QString (*format)(float);
};

const Row kRows[] = {
    { "Urms", 84, QT_TRANSLATE_NOOP("VifMain", "Urms(%1)"), &DisplayUnits::volt, &__vif_data::voltage,
      F_to_Str::number_V },
    { "Upk", 128, QT_TRANSLATE_NOOP("VifMain", "Upk(%1)"), &DisplayUnits::volt, &__vif_data::voltagePeak,
      F_to_Str::number_V },
    { "Ucf", 172, QT_TRANSLATE_NOOP("VifMain", "CF"), nullptr, &__vif_data::voltageCrest, F_to_Str::number_2 },
    { "Irms", 240, QT_TRANSLATE_NOOP("VifMain", "Irms(%1)"), &DisplayUnits::ampere, &__vif_data::current,
      F_to_Str::number_A },
    { "Ipk", 284, QT_TRANSLATE_NOOP("VifMain", "Ipk(%1)"), &DisplayUnits::ampere, &__vif_data::currentPeak,
      F_to_Str::number_A },
    { "Icf", 328, QT_TRANSLATE_NOOP("VifMain", "CF"), nullptr, &__vif_data::currentCrest, F_to_Str::number_2 },
};

constexpr MeterGrid kGrid = { { 150, 120, 112, 24, 38, 16, 130, 20 }, 40, 32, 24 };

} // namespace

VifMain::VifMain(const LiveData &data, QWidget *parent) : MeterPage(UI_VIF, data, parent), m_ui(new Ui::VifMain)
{
    static const KeyRow<VifMain> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("VifMain", "Trend"), &VifMain::goVifTrend },
    };
    m_ui->setupUi(this);
    setRows(kGrid, kRows);
    setKeys(keys);
}

VifMain::~VifMain() = default;

void VifMain::showCurParams()
{
    const __vif_data &data = shown().vif;
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        ChannelLabels::showValues(m_rows[i], data.*kRows[i].values, kRows[i].format);
    ChannelLabels::showFrequency(m_ui->freq, data.frequency);
}
