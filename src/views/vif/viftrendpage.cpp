#include "views/vif/viftrendpage.h"
#include "ui_viftrendpage.h"

#include "config/channelset.h"
#include "config/config_data.h"
#include "widgets/f_to_str.h"

#include <algorithm>
#include <iterator>

namespace {

struct Quantity
{
    int type;
    const char *caption; // "%1" stands for the unit
    QString DisplayUnits::*unit;
    VifTrend trend;
    double DisplayUnits::*factor; // of the limit labels; null: 1.0
    float (__vif_data::*values)[kChannels]; // null: the frequency
    QString (*format)(float);
};

/// In the order in which F1 steps through them.
const Quantity kCycle[] = {
    { 1, QT_TRANSLATE_NOOP("VifTrendPage", "U rms(%1)"), &DisplayUnits::volt, VifTrendURms, &DisplayUnits::factorVolt,
      &__vif_data::voltage, F_to_Str::number_V },
    { 2, QT_TRANSLATE_NOOP("VifTrendPage", "U pk(%1)"), &DisplayUnits::volt, VifTrendUPeak, &DisplayUnits::factorVolt,
      &__vif_data::voltagePeak, F_to_Str::number_V },
    { 4, QT_TRANSLATE_NOOP("VifTrendPage", "U dc(V)"), nullptr, VifTrendUDc, nullptr, &__vif_data::voltageOffset,
      F_to_Str::number_2 },
    { 3, QT_TRANSLATE_NOOP("VifTrendPage", "U cf"), nullptr, VifTrendUCrest, nullptr, &__vif_data::voltageCrest,
      F_to_Str::number_2 },
    { 5, QT_TRANSLATE_NOOP("VifTrendPage", "I rms(%1)"), &DisplayUnits::ampere, VifTrendIRms,
      &DisplayUnits::factorAmpere, &__vif_data::current, F_to_Str::number_A },
    { 6, QT_TRANSLATE_NOOP("VifTrendPage", "I pk(%1)"), &DisplayUnits::ampere, VifTrendIPeak,
      &DisplayUnits::factorAmpere, &__vif_data::currentPeak, F_to_Str::number_A },
    { 8, QT_TRANSLATE_NOOP("VifTrendPage", "I dc(A)"), nullptr, VifTrendIDc, nullptr, &__vif_data::currentOffset,
      F_to_Str::number_2 },
    { 7, QT_TRANSLATE_NOOP("VifTrendPage", "I cf"), nullptr, VifTrendICrest, nullptr, &__vif_data::currentCrest,
      F_to_Str::number_2 },
    { 9, QT_TRANSLATE_NOOP("VifTrendPage", "Freq(Hz)"), nullptr, VifTrendFrequency, nullptr, nullptr,
      F_to_Str::number_F },
};
constexpr int kFrequencyType = 9;

const Quantity &quantity(int type)
{
    return *std::find_if(std::begin(kCycle), std::end(kCycle), [type](const Quantity &q) { return q.type == type; });
}

} // namespace

VifTrendPage::VifTrendPage(QWidget *parent) : ViewPage(UI_VIF, parent), m_ui(new Ui::VifTrendPage)
{
    static const KeyRow<VifTrendPage> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("VifTrendPage", "Type"), &VifTrendPage::nextType },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("VifTrendPage", "Back"), &VifTrendPage::goBack },
    };
    m_ui->setupUi(this);
    m_captions = ChannelLabels::numberedRow(this, "D%1_Caption");
    m_values = ChannelLabels::numberedRow(this, "D%1_Value");
    m_ui->trend->setFullScale({ "10m", "8m", "6m", "4m", "2m" });
    setKeys(keys);
}

VifTrendPage::~VifTrendPage() = default;

void VifTrendPage::init_parameter()
{
    ViewPage::init_parameter();
    initTrendFlags();
    showType();
    showVifTrend();
}

void VifTrendPage::retranslateUi()
{
    ViewPage::retranslateUi();
    initTrendFlags();
    showType();
}

void VifTrendPage::changeType()
{
    const auto it
        = std::find_if(std::begin(kCycle), std::end(kCycle), [this](const auto &q) { return q.type == m_type; });
    m_type = std::next(it) == std::end(kCycle) ? kCycle[0].type : std::next(it)->type;
}

void VifTrendPage::nextType()
{
    changeType();
    initTrendFlags();
    showType();
    showVifTrend();
}

void VifTrendPage::initTrendFlags()
{
    m_ui->trend->setFlags(m_type == kFrequencyType ? int(TrendSingle) : ChannelLabels::channels().trendFlags());
}

void VifTrendPage::showType()
{
    const Quantity &q = quantity(m_type);
    const QString caption = tr(q.caption);
    setText(m_ui->type, q.unit ? caption.arg(m_settingConfig_g.units().*q.unit) : caption);
    ChannelLabels::clear(m_captions);
    ChannelLabels::clear(m_values);
    if (m_type != kFrequencyType)
        ChannelLabels::showHeaders(m_captions, QStringLiteral(":"));
}

void VifTrendPage::showVifTrend()
{
    if (!g_vif_data)
        return;
    const Quantity &q = quantity(m_type);
    const double factor = q.factor ? m_settingConfig_g.units().*q.factor : 1.0;
    m_picture = TrendScaler::scale(g_vif_data->trend[q.trend], factor);
    if (!m_picture.upper[0].isNull())
        m_ui->trend->setLimits(m_picture.upper, m_picture.lower);
    __trend_chart_data data;
    for (int c = 0; c < kChannels; ++c)
        data.series[c] = &m_picture.series[c];
    m_ui->trend->showVifData(&data);
    showVifValue();
}

void VifTrendPage::showVifValue()
{
    const Quantity &q = quantity(m_type);
    if (q.values)
        ChannelLabels::showValues(m_values, g_vif_data->*q.values, q.format);
    else
        ChannelLabels::showFrequency(m_values[0], g_vif_data->frequency, QString());
}
