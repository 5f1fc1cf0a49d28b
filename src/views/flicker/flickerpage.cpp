#include "views/flicker/flickerpage.h"
#include "ui_flickerpage.h"

#include "widgets/text/f_to_str.h"
#include "widgets/controls/labellook.h"

namespace {

constexpr int kPhases = 3;
constexpr int kPhaseFlags = (1 << kPhases) - 1; // no curve for the neutral

} // namespace

FlickerPage::FlickerPage(const LiveData &data, QWidget *parent)
    : LivePage(UI_FLICKER, parent), m_data(data), m_ui(new Ui::FlickerPage)
{
    static const KeyRow<FlickerPage> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("FlickerPage", "Back"), &FlickerPage::goFlickerMain },
    };
    m_ui->setupUi(this);
    LabelLook::dress(this);
    m_captions = ChannelLabels::namedRow(this, "P");
    for (int p = 0; p < kPhases; ++p)
        m_values[p] = findChild<QLabel *>(QStringLiteral("P_L%1_V").arg(p + 1));
    m_values[kPhases] = nullptr;
    m_ui->trend_flicker->setFullScale(QStringLiteral("12s;9s;6s;3s").split(QLatin1Char(';')));
    setKeys(keys);
}

FlickerPage::~FlickerPage() = default;

void FlickerPage::init_parameter()
{
    LivePage::init_parameter();
    showTitle();
    showFlickerTrend();
}

void FlickerPage::retranslateUi()
{
    LivePage::retranslateUi();
    showTitle();
}

void FlickerPage::showTitle()
{
    setText(m_ui->type, tr("pinst"));
    m_ui->trend_flicker->setFlags(ChannelLabels::channels().trendFlags() & kPhaseFlags);
    ChannelLabels::showPairHeaders(m_captions);
    ChannelLabels::clearUnused(m_values);
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
    m_picture = TrendScaler::scale(record, 1.0, TrendScaler::seriesOf(m_ui->trend_flicker->flags()));
    if (!m_picture.upper[0].isNull())
        m_ui->trend_flicker->setLimits(m_picture.upper, m_picture.lower);
    __trend_chart_data data;
    for (int c = 0; c < kChannels; ++c)
        data.series[c] = &m_picture.series[c];
    m_ui->trend_flicker->showVifData(&data);
    ChannelLabels::showValues(m_values, latest, F_to_Str::number_2);
}
