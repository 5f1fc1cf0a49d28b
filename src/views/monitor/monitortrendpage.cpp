#include "views/monitor/monitortrendpage.h"
#include "ui_monitorform.h"

#include "model/livedata.h"
#include "pages/channellabels.h"
#include "settings/config_data.h"
#include "views/monitor/monitortrend.h"
#include "widgets/charts/monitortrendchart.h"
#include "widgets/controls/labellook.h"
#include "widgets/text/f_to_str.h"

#include <algorithm>
#include <iterator>

namespace {

using Quantity = MonitorTrendPage::Quantity;

constexpr QRect kChartPlace(16, 34, 601, 320);
constexpr ValueStrip kValues = { 16, 206, 60, 140 };
constexpr int kSingleFirst = 8, kSingleSecond = 16; // flags of the chart
constexpr int kPhaseFlags = 7;

double unscaled()
{
    return 1.0;
}

float zero()
{
    return 0.0f;
}

QString percent(float value)
{
    return F_to_Str::number_2(value) + QLatin1Char('%');
}

const Quantity kVoltage {
    [] { return QStringLiteral("Vrms(%1)").arg(m_settingConfig_g.units().volt); },
    MonitorTrendVoltage,
    0,
    10,
    0,
    [] { return m_settingConfig_g.units().factorVolt; },
    [] { return m_settingConfig_g.getRealNominalVolt(); },
    [](float value) { return F_to_Str::number_V(value) + m_settingConfig_g.units().volt; },
    "___._V",
};
const Quantity kDistortion {
    [] { return QStringLiteral("THD(%)"); }, MonitorTrendThd, 0, 1, 0, unscaled, zero, percent, "___.__%",
};
const Quantity kFlicker {
    [] { return QStringLiteral("Plt"); }, MonitorTrendPlt, 0, 1, 0, unscaled, zero, F_to_Str::number_2, "__.__", 12,
};
const Quantity kUnbalance {
    [] { return MonitorTrendPage::tr("Unbalance(%)"); },
    MonitorTrendUnbalance,
    kSingleFirst,
    1,
    0,
    unscaled,
    zero,
    percent,
    "___.__%",
    1,
    true,
};
const Quantity kFrequency {
    [] { return MonitorTrendPage::tr("Freq(Hz)"); },
    MonitorTrendFrequency,
    kSingleSecond,
    0.1,
    1,
    unscaled,
    [] { return float(m_settingConfig_g.getNomFreq()); },
    [](float value) { return F_to_Str::number_F(value) + QStringLiteral("Hz"); },
    "___.__Hz",
};

const std::vector<Quantity> kVoltages { kVoltage };
const std::vector<Quantity> kDistortions { kDistortion };
const std::vector<Quantity> kFlickers { kFlicker };
const std::vector<Quantity> kUnbalanceAndFrequency { kUnbalance, kFrequency };

const MonitorInfo::Zoom &zoom()
{
    return MonitorInfo::m_zoom_time[std::clamp(MonitorInfo::m_zoom_index, 0,
                                               int(std::size(MonitorInfo::m_zoom_time)) - 1)];
}

} // namespace

MonitorTrendPage::MonitorTrendPage(const LiveData &data, const std::vector<Quantity> &quantities, QWidget *parent)
    : LivePage(UI_MONITOR, parent), m_data(data), m_quantities(quantities), m_ui(new Ui::MonitorForm),
      m_chart(new MonitorTrendChart(this))
{
    static const KeyRow<MonitorTrendPage> keys[] = {
        { Qt::Key_F1, nullptr, &MonitorTrendPage::nextType },  { Qt::Key_F4, nullptr, &MonitorTrendPage::nextZoom },
        { Qt::Key_F5, nullptr, &MonitorTrendPage::goBack },    { Qt::Key_Up, nullptr, &MonitorTrendPage::zoomIn },
        { Qt::Key_Down, nullptr, &MonitorTrendPage::zoomOut },
    };
    m_ui->setupUi(this);
    m_chart->setObjectName(QStringLiteral("trend"));
    m_chart->setGeometry(kChartPlace);
    m_labels = kValues.add(this, "D%1_Caption", "D%1_Value", kMonitorPhases);
    LabelLook::dress(this);
    setKeys(keys);
}

MonitorTrendPage::~MonitorTrendPage() = default;

void MonitorTrendPage::init_parameter()
{
    LivePage::init_parameter();
    m_quantity = has(0) ? 0 : int(m_quantities.size()) - 1;
    showType();
    showTrend();
}

void MonitorTrendPage::retranslateUi()
{
    LivePage::retranslateUi();
    // The words belong to all pages of the kind, whose own classes have none.
    setKeyCaption(4, tr("Zoom"));
    setKeyCaption(5, tr("Back"));
    showType();
    showTrend();
}

bool MonitorTrendPage::has(int quantity) const
{
    return !m_quantities[std::size_t(quantity)].threePhasesOnly
        || ChannelLabels::channels().taskPhases == kMonitorPhases;
}

int MonitorTrendPage::next() const
{
    const int behind = (m_quantity + 1) % int(m_quantities.size());
    return has(behind) ? behind : m_quantity;
}

void MonitorTrendPage::nextType()
{
    m_quantity = next();
    showType();
    showTrend();
}

void MonitorTrendPage::nextZoom()
{
    setZoom(MonitorInfo::m_zoom_index > 0 ? MonitorInfo::m_zoom_index - 1
                                          : int(std::size(MonitorInfo::m_zoom_time)) - 1);
}

void MonitorTrendPage::zoomIn()
{
    setZoom(MonitorInfo::m_zoom_index + 1);
}

void MonitorTrendPage::zoomOut()
{
    setZoom(MonitorInfo::m_zoom_index - 1);
}

void MonitorTrendPage::setZoom(int index)
{
    MonitorInfo::m_zoom_index = std::clamp(index, 0, int(std::size(MonitorInfo::m_zoom_time)) - 1);
    showTrend();
}

void MonitorTrendPage::showType()
{
    const Quantity &shown = m_quantities[std::size_t(m_quantity)];
    setText(m_ui->type, shown.caption());
    setKeyCaption(1, next() != m_quantity ? tr("Type") : QString());
    const int phases = (1 << ChannelLabels::channels().taskPhases) - 1;
    m_chart->setFlags(shown.flag ? shown.flag : phases & kPhaseFlags);
    if (shown.flag)
        ChannelLabels::clear(m_labels.captions);
    else
        ChannelLabels::showHeaders(m_labels.captions, QStringLiteral(":"));
}

void MonitorTrendPage::showTrend()
{
    const Quantity &shown = m_quantities[std::size_t(m_quantity)];
    const QList<float> *rows = m_data.shown().monitorTrend.row + shown.row;
    const int curves = shown.flag ? 1 : int(ChannelLabels::channels().taskPhases);
    QVector<const QList<float> *> lists;
    for (int i = 0; i < curves; ++i)
        lists << rows + i;
    const MonitorTrend::Scale scale = MonitorTrend::scaleOf(lists, shown.grid);
    m_chart->setFullScale(MonitorTrend::axisLabels(zoom().hours));
    const auto label = [&shown](double end) { return QString::number(end * shown.factor(), 'f', shown.decimals); };
    if (rows->isEmpty())
        m_chart->setLimits(QStringLiteral("10"), QStringLiteral("0")); // as any chart without data
    else
        m_chart->setLimits(label(scale.max), label(scale.min));
    const double valuesPerPoint = double(zoom().step) / shown.intervals;
    QVector<qint16> series[kMonitorPhases];
    __trend_chart_data picture {};
    for (int i = 0; i < kMonitorPhases; ++i) {
        if (i < curves)
            series[i] = MonitorTrend::offsets(rows[i], valuesPerPoint, shown.reference(), scale);
        picture.series[i] = &series[i];
        const auto place = std::size_t(i);
        setText(m_labels.values[place],
                i >= curves             ? QString()
                    : rows[i].isEmpty() ? QString::fromLatin1(shown.placeholder)
                                        : shown.text(rows[i].last()));
    }
    m_chart->showTrendData(&picture);
}

MonitStarVrmTrendPage::MonitStarVrmTrendPage(const LiveData &data, QWidget *parent)
    : MonitorTrendPage(data, kVoltages, parent)
{ }

MonitHarmEvenTrePage::MonitHarmEvenTrePage(const LiveData &data, QWidget *parent)
    : MonitorTrendPage(data, kDistortions, parent)
{ }

MonitFlickTrePage::MonitFlickTrePage(const LiveData &data, QWidget *parent) : MonitorTrendPage(data, kFlickers, parent)
{ }

MonitDirsTrePage::MonitDirsTrePage(const LiveData &data, QWidget *parent)
    : MonitorTrendPage(data, kVoltages, parent) { }

MonitUnbalTrePage::MonitUnbalTrePage(const LiveData &data, QWidget *parent)
    : MonitorTrendPage(data, kUnbalanceAndFrequency, parent)
{ }
