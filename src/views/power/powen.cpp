#include "views/power/powen.h"

#include "views/power/powermain.h"
#include "views/power/powertrendpage.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr int kTrends = 8;
constexpr int kRecordWords = 48;

/// What a saved data file of this page holds (76,996 bytes): the 48 words of the record, the points in use, and the
/// trends P, S, Q, PF, cos phi, tan phi, U rms, I rms of L1, L2, L3 and total. Only the first count points are filled.
struct _power_pqa_data
{
    quint32 record[kRecordWords];
    qint32 count; // length of the shortest P series, at most 600
    float series[kTrends][kChannels][kTrendPoints];
};
static_assert(sizeof(_power_pqa_data) == 76996, "size of the saved record");

} // namespace

powen::powen(const LiveData &data, QWidget *parent)
    : ViewContainer(
        UI_POWER, { 6, "Power" }, data,
        {
            { make<PowerMain>,
              { way(&PowerMain::goPowerTrend, Trend), pass(&PowerMain::resetEnergy, &powen::resetEnergy) } },
            { make<PowerTrendPage>, { way(&PowerTrendPage::goPowerMain, Main) } },
        },
        parent)
{ }

QByteArray powen::pqaData() const
{
    const __power_data &power = shown().power;
    QByteArray bytes(int(sizeof(_power_pqa_data)), '\0');
    auto *data = reinterpret_cast<_power_pqa_data *>(bytes.data());
    std::memcpy(data->record, &power, sizeof(data->record));

    int count = kTrendPoints;
    for (const QList<float> &series : power.trend[0].series)
        count = std::min(count, int(series.size()));
    data->count = count;
    for (int q = 0; q < kTrends; ++q) {
        for (int c = 0; c < kChannels; ++c) {
            const QList<float> &series = power.trend[q].series[c];
            std::copy_n(series.begin(), std::min(count, int(series.size())), data->series[q][c]);
        }
    }
    return bytes;
}
