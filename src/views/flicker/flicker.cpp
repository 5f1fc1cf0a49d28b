#include "views/flicker/flicker.h"

#include "views/flicker/flickermain.h"
#include "views/flicker/flickerpage.h"
#include "views/flicker/flickerparam.h"

#include <algorithm>
#include <cstring>

QString FlickerParam::m_cur_title;

namespace {

constexpr int kPhases = 3;

/// What a saved data file of this page holds (7,240 bytes). Only the first count values of a phase are filled.
struct __flicker_pqa_data
{
    float values[9]; // flickerMax, pst, plt of the three phases
    qint32 count; // length of the shortest trend, at most 600
    float pinst[kPhases][kTrendPoints]; // oldest first
};
static_assert(sizeof(__flicker_pqa_data) == 7240, "size of the saved record");

} // namespace

flicker::flicker(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_FLICKER, { 9, "Flicker" }, data,
                    {
                        { make<FlickerMain>, { way(&FlickerMain::goFlickerTrend, Trend) } },
                        { make<FlickerPage>, { way(&FlickerPage::goFlickerMain, Main) } },
                    },
                    parent)
{
    showTitle();
}

void flicker::retranslateUi()
{
    ViewContainer::retranslateUi();
    showTitle();
}

void flicker::showTitle()
{
    FlickerParam::m_cur_title = currentIndex() == Trend ? tr("pinst") : tr("Flicker");
}

QByteArray flicker::pqaData() const
{
    const __flicker_data &record = shown().flicker;
    QByteArray bytes(int(sizeof(__flicker_pqa_data)), '\0');
    __flicker_pqa_data data = {};
    int count = kTrendPoints;
    for (const QList<float> &trend : record.pinstTrend) {
        // A phase that the wiring does not measure has no trend and does not shorten the others.
        if (!trend.isEmpty())
            count = std::min(count, int(trend.size()));
    }
    if (record.pinstTrend[0].isEmpty())
        count = 0;
    data.count = count;
    for (int p = 0; p < kPhases; ++p) {
        data.values[p] = record.flickerMax[p];
        data.values[kPhases + p] = record.pst[p];
        data.values[2 * kPhases + p] = record.plt[p];
        const QList<float> &trend = record.pinstTrend[p];
        const int used = std::min(count, int(trend.size()));
        std::copy(trend.end() - used, trend.end(), data.pinst[p]);
    }
    std::memcpy(bytes.data(), &data, sizeof(data));
    return bytes;
}
