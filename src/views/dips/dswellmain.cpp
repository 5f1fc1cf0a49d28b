#include "views/dips/dswellmain.h"

#include "settings/config_data.h"
#include "settings/dipswellinfo.h"
#include "widgets/charts/dstrendchart.h"

DswellMain::DswellMain(const LiveData &data, QWidget *parent)
    : RmsTrendPage(UI_DIPS_SWELLS, data, parent), m_chart(new DSTrendChart)
{
    setUp(m_chart);
}

void DswellMain::init_parameter()
{
    DipSwellInfo::initInfoTimes(m_settingConfig_g.getNomFreq());
    RmsTrendPage::init_parameter();
}

int DswellMain::valuesPerSecond() const
{
    return DipSwellInfo::m_rms_numb_per_sec;
}

QVector<TrendZoom> DswellMain::zoomSteps() const
{
    return QVector<TrendZoom>(DipSwellInfo::m_zoom_time, DipSwellInfo::m_zoom_time + 4);
}

int DswellMain::zoomIndex() const
{
    return DipSwellInfo::m_zoom_index;
}

void DswellMain::zoomIndexChanged(int index)
{
    DipSwellInfo::m_zoom_index = index;
}

int DswellMain::axisLabelCount() const
{
    return DipSwellInfo::m_zoom_time == DipSwellInfo::m_zoom_time_50 ? 6 : 5;
}

void DswellMain::showSeries(const __trend_chart_data &data)
{
    m_chart->showDSData(&data);
}

void DswellMain::showChartCursor(int position)
{
    m_chart->setCursorPosition(601 - position); // the chart counts from the left
}
