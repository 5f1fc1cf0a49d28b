#include "views/inrush/inrushstartpage.h"

#include "settings/inrushinfo.h"
#include "widgets/charts/inrushtrendchart.h"

#include <algorithm>

namespace {

constexpr int kPairs = 4;

const InrushInfo::Duration &duration()
{
    return InrushInfo::m_dura_time[std::clamp(InrushInfo::m_duration_index, 0, 6)];
}

} // namespace

InrushStartPage::InrushStartPage(const LiveData &data, QWidget *parent)
    : RmsTrendPage(UI_INRUSH, data, parent), m_chart(new InrushTrendChart)
{
    setUp(m_chart);
}

void InrushStartPage::init_parameter()
{
    chooseScale();
    RmsTrendPage::init_parameter();
}

void InrushStartPage::beginView()
{
    chooseScale();
    resetView();
}

int InrushStartPage::valuesPerSecond() const
{
    return InrushInfo::m_rms_numb_per_sec;
}

TrendZoom InrushStartPage::durationScale() const
{
    return { RmsTrend::kPoints * duration().step / InrushInfo::m_rms_numb_per_sec, duration().step };
}

QVector<TrendZoom> InrushStartPage::zoomSteps() const
{
    QVector<TrendZoom> steps(InrushInfo::m_zoom_time, InrushInfo::m_zoom_time + kPairs);
    const TrendZoom own = durationScale();
    const auto place = std::find_if(steps.begin(), steps.end(),
                                    [own](const TrendZoom &step) { return step.seconds <= own.seconds; });
    if (place == steps.end() || place->seconds != own.seconds)
        steps.insert(place, own);
    return steps;
}

void InrushStartPage::chooseScale()
{
    const QVector<TrendZoom> steps = zoomSteps();
    const auto own = std::find_if(steps.begin(), steps.end(), [seconds = durationScale().seconds](const auto &step) {
        return step.seconds == seconds;
    });
    zoomIndexChanged(int(own - steps.begin()));
}

void InrushStartPage::zoomIndexChanged(int index)
{
    m_zoom = index;
    const int seconds = zoomSteps().at(index).seconds;
    for (int pair = 0; pair < kPairs; ++pair) {
        if (InrushInfo::m_zoom_time[pair].seconds == seconds)
            InrushInfo::m_zoom_index = pair;
    }
}

int InrushStartPage::axisLabelCount() const
{
    return InrushInfo::m_zoom_time == InrushInfo::m_zoom_time_50 ? 6 : 5;
}

void InrushStartPage::showSeries(const __trend_chart_data &data)
{
    m_chart->showVifData(&data);
}

void InrushStartPage::showChartCursor(int position)
{
    // The chart counts from the right and puts 0 beside the plot: the newest point shares the pixel of its neighbour.
    m_chart->setCursorPosition(std::max(position - 1, 1));
}
