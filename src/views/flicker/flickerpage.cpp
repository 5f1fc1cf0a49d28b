#include "views/flicker/flickerpage.h"

#include "widgets/charts/viftrendchart.h"
#include "widgets/text/f_to_str.h"

namespace {

constexpr int kPhases = 3;
constexpr int kPhaseFlags = (1 << kPhases) - 1; // no curve for the neutral

} // namespace

FlickerPage::FlickerPage(const LiveData &data, QWidget *parent) : TrendChartPage(UI_FLICKER, parent), m_data(data)
{
    static const KeyRow<FlickerPage> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("FlickerPage", "Back"), &FlickerPage::goFlickerMain },
    };
    constexpr ValueStrip strip = { 16, 204, 84, 110 };
    setUpChart({ "12s", "9s", "6s", "3s" }, "trend_flicker", strip.add(this, "P_L%1", "P_L%1_V", kPhases));
    setKeys(keys);
}

void FlickerPage::init_parameter()
{
    TrendChartPage::init_parameter();
    showTitle();
    showFlickerTrend();
}

void FlickerPage::retranslateUi()
{
    TrendChartPage::retranslateUi();
    showTitle();
}

void FlickerPage::showTitle()
{
    showName(tr("pinst"));
    chart().setFlags(ChannelLabels::channels().trendFlags() & kPhaseFlags);
    ChannelLabels::showPairHeaders(m_labels.captions);
    ChannelLabels::clearUnused(m_labels.values);
}

void FlickerPage::showFlickerTrend()
{
    __trend_data record; // shares the lists
    float latest[kChannels] = {};
    for (int p = 0; p < kPhases; ++p) {
        record.series[p] = m_data.shown().flicker.pinstTrend[p];
        if (!record.series[p].isEmpty())
            latest[p] = record.series[p].last();
    }
    showPicture(TrendScaler::scale(record, 1.0, TrendScaler::seriesOf(chart().flags())));
    ChannelLabels::showValues(m_labels.values, latest, F_to_Str::number_2);
}
