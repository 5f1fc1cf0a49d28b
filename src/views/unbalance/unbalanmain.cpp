#include "views/unbalance/unbalanmain.h"
#include "ui_unbalanmain.h"

#include "views/unbalance/unbalancevalues.h"
#include "widgets/text/f_to_str.h"

namespace {

using Values = const float *(*)(const DisplayRecords &); // of the four channels

template <float (__vif_data::*values)[kChannels]> const float *live(const DisplayRecords &shown)
{
    return shown.vif.*values;
}

template <float (__unbalance_data::*values)[kChannels]> const float *own(const DisplayRecords &shown)
{
    return shown.unbalance.*values;
}

struct Row : MeterLine
{
    Values values;
    QString (*format)(float);
};

const Row kRows[] = {
    { "U", 76, QT_TRANSLATE_NOOP("UnbalanMain", "Urms(%1)"), &DisplayUnits::volt, live<&__vif_data::voltage>,
      F_to_Str::number_V },
    { "I", 120, QT_TRANSLATE_NOOP("UnbalanMain", "Irms(%1)"), &DisplayUnits::ampere, live<&__vif_data::current>,
      F_to_Str::number_A },
    { "Uf", 164, QT_TRANSLATE_NOOP("UnbalanMain", "Ufund(%1)"), &DisplayUnits::volt,
      own<&__unbalance_data::voltageFundamental>, F_to_Str::number_V },
    { "If", 208, QT_TRANSLATE_NOOP("UnbalanMain", "Ifund(%1)"), &DisplayUnits::ampere,
      own<&__unbalance_data::currentFundamental>, F_to_Str::number_A },
    { "IU", 252, QT_TRANSLATE_NOOP("UnbalanMain", "ФI-U(°):"), nullptr, own<&__unbalance_data::angleDifference>,
      F_to_Str::number_Ang },
};

struct Ratio
{
    const char *name; // labels <name> and <name>_v
    const char *caption;
    float __unbalance_data::*value; // percent
};

const Ratio kRatios[] = {
    { "uneg", QT_TRANSLATE_NOOP("UnbalanMain", "Uneg"), &__unbalance_data::voltageNegativeRatio },
    { "uzero", QT_TRANSLATE_NOOP("UnbalanMain", "Uzero"), &__unbalance_data::voltageZeroRatio },
    { "Ineg", QT_TRANSLATE_NOOP("UnbalanMain", "Ineg"), &__unbalance_data::currentNegativeRatio },
    { "Izero", QT_TRANSLATE_NOOP("UnbalanMain", "Izero"), &__unbalance_data::currentZeroRatio },
};

constexpr MeterGrid kGrid = { { 150, 120, 112, 24, 38, 16, 134, 20 }, 40, 30, 24 };
// The ratios stand in two columns of one value each.
constexpr LabelGrid kRatioColumns[] = {
    { 140, 0, 122, 24, 38, 16, 120, 20, 1 },
    { 454, 0, 122, 24, 38, 330, 120, 20, 1 },
};
constexpr int kRatioTop = 312;
constexpr int kRatioPitch = 44;

} // namespace

UnbalanMain::UnbalanMain(const LiveData &data, QWidget *parent)
    : MeterPage(UI_UNBALANCE, data, parent), m_ui(new Ui::UnbalanMain)
{
    static const KeyRow<UnbalanMain> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("UnbalanMain", "Vector"), &UnbalanMain::goUnbalanVector },
    };
    m_ui->setupUi(this);
    for (int i = 0; i < int(std::size(kRatios)); ++i) {
        const QString name = QString::fromLatin1(kRatios[i].name);
        m_ratios.push_back(
            kRatioColumns[i % 2].addRow(this, name, { name + QLatin1String("_v") }, kRatioTop + i / 2 * kRatioPitch));
    }
    setRows(kGrid, kRows);
    setKeys(keys);
}

UnbalanMain::~UnbalanMain() = default;

void UnbalanMain::showTitle()
{
    MeterPage::showTitle();
    const bool shown = UnbalanceValues::hasSequences();
    for (std::size_t i = 0; i < m_ratios.size(); ++i) {
        setText(m_ratios[i].caption, shown ? tr(kRatios[i].caption) : QString());
        if (!shown)
            setText(m_ratios[i].values[0], QString());
    }
}

void UnbalanMain::showCurParams()
{
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        ChannelLabels::showValues(m_rows[i], kRows[i].values(shown()), kRows[i].format);
    if (UnbalanceValues::hasSequences()) {
        for (std::size_t i = 0; i < m_ratios.size(); ++i)
            setText(m_ratios[i].values[0], F_to_Str::number_2(shown().unbalance.*kRatios[i].value) + QLatin1Char('%'));
    }
    ChannelLabels::showFrequency(m_ui->freq_v, UnbalanceValues::signedFrequency(shown()));
}
