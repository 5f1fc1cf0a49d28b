#include "pages/rmstrendpage.h"
#include "ui_rmstrendform.h"

#include "settings/config_data.h"
#include "widgets/charts/cursortrendchart.h"
#include "widgets/text/f_to_str.h"
#include "widgets/controls/labellook.h"

#include <QLabel>

#include <algorithm>
#include <cstdlib>

namespace {
constexpr QRect kChartPlace(16, 32, 609, 317);
constexpr ValueStrip kValues = { 16, 154, 50, 100 };
constexpr int kPage = 600; // values by which the window moves when the cursor leaves it
}

RmsTrendPage::RmsTrendPage(_quvera_ui_type type, const LiveData &data, QWidget *parent)
    : LivePage(type, parent), m_data(data), m_ui(new Ui::RmsTrendForm)
{
    m_ui->setupUi(this);
}

RmsTrendPage::~RmsTrendPage() = default;

void RmsTrendPage::setUp(CursorTrendChart *chart)
{
    setObjectName(QString::fromLatin1(metaObject()->className()));
    m_chart = chart;
    m_chart->setParent(this);
    m_chart->setObjectName(QStringLiteral("trend"));
    m_chart->setGeometry(kChartPlace);
    m_labels = kValues.add(this);
    LabelLook::dress(this);
    chooseArrows();
}

/// The arrows act on what is on: they lead the cursor as long as they are held, or zoom by one step.
void RmsTrendPage::chooseArrows()
{
    static const KeyRow<RmsTrendPage> cursor[] = {
        { Qt::Key_Left, nullptr, &RmsTrendPage::changeCursorPos, -1, {} },
        { Qt::Key_Right, nullptr, &RmsTrendPage::changeCursorPos, 1, {} },
    };
    static const KeyRow<RmsTrendPage> zoom[] = {
        { Qt::Key_Left, nullptr, &RmsTrendPage::changeScaleL },
        { Qt::Key_Right, nullptr, &RmsTrendPage::changeScaleR },
    };
    m_zoomOn ? setKeys(zoom) : setKeys(cursor);
}

std::vector<FrontKeys::Row> RmsTrendPage::commonKeys()
{
    static const KeyRow<RmsTrendPage> keys[] = {
        { Qt::Key_F1, nullptr, &RmsTrendPage::changeType },
        { Qt::Key_F2, nullptr, &RmsTrendPage::openEvents },
        { Qt::Key_F3, nullptr, &RmsTrendPage::toggleCursor },
        { Qt::Key_F4, nullptr, &RmsTrendPage::toggleZoom },
    };
    return FrontKeys::rowsOf(this, keys);
}

void RmsTrendPage::init_parameter()
{
    LivePage::init_parameter();
    resetView();
    showEventsCounts(0);
}

void RmsTrendPage::resetView()
{
    m_zoomOn = true;
    m_cursorOn = false;
    chooseArrows();
    m_position = 1;
    const QVector<TrendZoom> steps = zoomSteps();
    m_seconds = steps.at(std::clamp(zoomIndex(), 0, int(steps.size()) - 1)).seconds;
    // Kept: at 400 Hz the first step starts with 10 values for a point and has 12 when it is chosen again.
    m_window = { 0, std::max(int(valuesPerSecond() * m_seconds / 600.0), 1) };
    showScaleList();
    showCursor();
    showZoom();
    m_quantity = firstQuantity() == Voltage ? Current : Voltage;
    changeType();
}

void RmsTrendPage::retranslateUi()
{
    LivePage::retranslateUi();
    setKeyCaption(2, tr("Events"));
    setText(m_ui->events_t, tr("EVENTS :"));
    showType();
    showCurVal(); // on hold no refresh would bring the values back
}

void RmsTrendPage::showEventsCounts(int count)
{
    setText(m_ui->events_count, QString::number(count));
}

const RmsTrendPage::Lists &RmsTrendPage::shownLists() const
{
    const __rms_trend_data &shown = record(m_data.shown());
    return m_quantity == Current ? shown.current : shown.voltage;
}

void RmsTrendPage::changeType()
{
    m_quantity = m_quantity == Voltage ? Current : Voltage;
    showType();
    showTrend();
}

void RmsTrendPage::showType()
{
    const DisplayUnits &units = m_settingConfig_g.units();
    setKeyCaption(1, m_quantity == Current ? tr("I(%1)").arg(units.ampere) : tr("U(%1)").arg(units.volt));
    ChannelLabels::clear(m_labels.captions);
    ChannelLabels::clear(m_labels.values);
    ChannelLabels::showHeaders(m_labels.captions, QStringLiteral(":"));
}

void RmsTrendPage::showTrend()
{
    const DisplayUnits &units = m_settingConfig_g.units();
    const bool current = m_quantity == Current;
    // A dip or swell lies far from the nominal voltage, an inrush far from no current.
    const int flags = ChannelLabels::channels().dipTrendFlags();
    m_picture = RmsTrend::scale(shownLists(), m_window, current ? 0.0f : m_settingConfig_g.getRealNominalVolt(),
                                current ? units.factorAmpere : units.factorVolt, TrendScaler::seriesOf(flags));
    m_chart->setFlags(flags);
    if (!m_picture.upper[0].isNull())
        m_chart->setLimits(m_picture.upper, m_picture.lower);
    showCursor();
    showCurVal();
    __trend_chart_data data;
    for (int c = 0; c < kChannels; ++c)
        data.series[c] = &m_picture.series[c];
    showSeries(data);
}

void RmsTrendPage::showCurVal()
{
    float values[kChannels];
    for (int c = 0; c < kChannels; ++c)
        values[c] = RmsTrend::valueAt(shownLists()[c], m_window, m_cursorOn ? m_position : 1);
    ChannelLabels::showValues(m_labels.values, values, m_quantity == Current ? F_to_Str::number_A : F_to_Str::number_V);
}

void RmsTrendPage::showCursor()
{
    // The cursor never stands where the chart has no value.
    m_position = std::clamp(m_position, 1, std::max(int(m_picture.series[0].size()), 1));
    if (m_chart->cursorOn() != m_cursorOn)
        m_chart->setCursorOn(m_cursorOn);
    const int flags = ChannelLabels::channels().dipTrendFlags();
    if (m_chart->cursorFlags() != flags)
        m_chart->setCursorFlags(flags);
    showChartCursor(m_position);
    m_ui->btn_f3->setBtnFlag(m_cursorOn);
}

void RmsTrendPage::showZoom()
{
    m_ui->btn_f4->setBtnFlag(m_zoomOn);
}

void RmsTrendPage::showScaleList()
{
    m_chart->setFullScale(RmsTrend::axisLabels(axisLabelCount(), m_seconds));
}

void RmsTrendPage::toggleCursor()
{
    m_cursorOn = !m_cursorOn;
    m_zoomOn = !m_cursorOn;
    chooseArrows();
    showCursor();
    showZoom();
    showCurVal();
}

void RmsTrendPage::toggleZoom()
{
    toggleCursor(); // each switches the other off
}

void RmsTrendPage::changeScale(int direction)
{
    const QVector<TrendZoom> steps = zoomSteps();
    const int index = std::clamp(zoomIndex() + direction, 0, int(steps.size()) - 1);
    if (index == zoomIndex())
        return;
    zoomIndexChanged(index);
    m_seconds = steps.at(index).seconds;
    m_window.valuesPerPoint = steps.at(index).valuesPerPixel;
    showScaleList();
    showTrend();
}

void RmsTrendPage::changeCursorPos(int step)
{
    for (int i = 0; i < std::abs(step); ++i)
        step < 0 ? moveCursorL() : moveCursorR();
    showCursor();
    showCurVal();
}

void RmsTrendPage::moveCursorL()
{
    if (m_position < m_picture.series[0].size()) {
        ++m_position;
    } else if (m_position == RmsTrend::kPoints && m_window.offset + m_window.values() < shownLists()[0].size()) {
        m_window.offset += kPage;
        m_position = 1;
        showTrend();
    }
}

void RmsTrendPage::moveCursorR()
{
    if (m_position >= 2) {
        --m_position;
    } else if (m_window.offset > 0) {
        m_window.offset = std::max(m_window.offset - kPage, 0);
        m_position = RmsTrend::kPoints;
        showTrend();
    }
}
