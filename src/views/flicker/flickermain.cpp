#include "views/flicker/flickermain.h"
#include "ui_flickermain.h"

#include "widgets/text/f_to_str.h"

#include <algorithm>

namespace {

constexpr int kPhases = 3;

struct Row : MeterLine
{
    float (__flicker_data::*values)[kPhases];
};

const Row kRows[] = {
    { "Pst", 110, QT_TRANSLATE_NOOP("FlickerMain", "Pst"), nullptr, &__flicker_data::pst },
    { "Plt", 180, QT_TRANSLATE_NOOP("FlickerMain", "Plt"), nullptr, &__flicker_data::plt },
    { "P1", 250, QT_TRANSLATE_NOOP("FlickerMain", "pinst"), nullptr, &__flicker_data::flickerMax },
};

constexpr MeterGrid kGrid = { { 170, 150, 140, 30, 46, 16, 134, 20, kPhases }, 54, 30, 24 };

} // namespace

FlickerMain::FlickerMain(const LiveData &data, QWidget *parent)
    : MeterPage(UI_FLICKER, data, parent), m_ui(new Ui::FlickerMain)
{
    static const KeyRow<FlickerMain> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("FlickerMain", "Trend"), &FlickerMain::goFlickerTrend },
    };
    m_ui->setupUi(this);
    setRows(kGrid, kRows);
    setKeys(keys);
}

FlickerMain::~FlickerMain() = default;

void FlickerMain::showHeaders()
{
    ChannelLabels::showPairHeaders(m_headers);
}

void FlickerMain::showCurParams()
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        // The label rows have a place for the neutral, the record has none.
        float values[kChannels] = {};
        std::copy_n(shown().flicker.*kRows[i].values, kPhases, values);
        ChannelLabels::showValues(m_rows[i], values, F_to_Str::number_2);
    }
}
