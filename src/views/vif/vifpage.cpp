#include "views/vif/vifpage.h"

#include "views/vif/vifmain.h"
#include "views/vif/viftrendpage.h"

#include <algorithm>
#include <cstring>

namespace {

/// What a saved data file of this page holds (60,136 bytes). Only the first count entries of a series are filled.
struct __vif_pqa_data
{
    float values[33]; // as the first 33 words of __vif_data
    qint32 count; // length of the shortest U rms series, at most 600
    /// U rms, U peak, U crest factor, I rms, I peak, I crest factor; each the four channels together.
    float series[6][kChannels][kTrendPoints];
    float frequency[kTrendPoints];
};
static_assert(sizeof(__vif_pqa_data) == 60136, "size of the saved record");

constexpr VifTrend kSavedTrends[]
    = { VifTrendURms, VifTrendUPeak, VifTrendUCrest, VifTrendIRms, VifTrendIPeak, VifTrendICrest };

} // namespace

VifPage::VifPage(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_VIF, { 2, "VAHz" }, data,
                    {
                        { make<VifMain>, { way(&VifMain::goVifTrend, Trend) } },
                        { make<VifTrendPage>, { way(&VifTrendPage::goBack, Main) } },
                    },
                    parent)
{ }

QByteArray VifPage::pqaData() const
{
    const __vif_data &vif = shown().vif;
    QByteArray bytes(int(sizeof(__vif_pqa_data)), '\0');
    __vif_pqa_data data = {};
    std::memcpy(data.values, &vif, sizeof(data.values));

    int count = kTrendPoints;
    for (const QList<float> &series : vif.trend[VifTrendURms].series)
        count = std::min(count, int(series.size()));
    data.count = count;
    for (int q = 0; q < 6; ++q) {
        for (int c = 0; c < kChannels; ++c) {
            const QList<float> &series = vif.trend[kSavedTrends[q]].series[c];
            std::copy_n(series.begin(), std::min(count, int(series.size())), data.series[q][c]);
        }
    }
    const QList<float> &frequency = vif.trend[VifTrendFrequency].series[0];
    std::copy_n(frequency.begin(), std::min(count, int(frequency.size())), data.frequency);
    std::memcpy(bytes.data(), &data, sizeof(data));
    return bytes;
}
