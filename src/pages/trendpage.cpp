#include "pages/trendpage.h"

#include "settings/phasecolor.h"
#include "widgets/controls/labellook.h"
#include "widgets/charts/viftrendchart.h"

#include <QLabel>

TrendPage::TrendPage(_quvera_ui_type type, const LiveData &data, const std::vector<Quantity> &cycle, QWidget *parent)
    : TrendChartPage(type, parent), m_data(data), m_cycle(cycle)
{ }

void TrendPage::initTrend(const ValueStrip &strip, const char *chart, const char *captionEnd)
{
    m_captionEnd = QLatin1String(captionEnd);
    setUpChart({ "10m", "8m", "6m", "4m", "2m" }, chart, strip.add(this));
}

void TrendPage::init_parameter()
{
    TrendChartPage::init_parameter();
    initTrendFlags();
    showType();
    showTrend();
}

void TrendPage::retranslateUi()
{
    TrendChartPage::retranslateUi();
    initTrendFlags();
    showType();
    showValue(); // on hold no refresh would bring it back
}

void TrendPage::nextType()
{
    m_index = (m_index + 1) % m_cycle.size();
    initTrendFlags();
    showType();
    showTrend();
}

void TrendPage::initTrendFlags()
{
    chart().setFlags(quantity().flags());
}

void TrendPage::showType()
{
    showName(quantity().caption());
    ChannelLabels::clear(m_labels.captions);
    ChannelLabels::clear(m_labels.values);
    // The grey of a lost frequency must not stay with the next quantity.
    if (!m_labels.values[0]->styleSheet().isEmpty())
        m_labels.values[0]->setStyleSheet(QString());
    if (quantity().single)
        return;
    ChannelLabels::showHeaders(drawn(m_labels.captions), m_captionEnd);
    if (quantity().fourthCaption && m_labels.captions[3]) {
        setText(m_labels.captions[3], QString::fromLatin1(quantity().fourthCaption));
        LabelLook::setColor(m_labels.captions[3], PhaseColor::colorN());
    }
}

ChannelLabels::LabelRow TrendPage::drawn(ChannelLabels::LabelRow row) const
{
    const int flags = quantity().flags();
    for (int phase = 0; phase < 3; ++phase) {
        if (!(flags >> phase & 1))
            row[phase] = nullptr;
    }
    return row;
}

void TrendPage::showTrend()
{
    const Quantity &q = quantity();
    showPicture(TrendScaler::scale(q.record(m_data.shown()), q.factor(), TrendScaler::seriesOf(q.flags())));
    showValue();
}

void TrendPage::showValue()
{
    const Quantity &q = quantity();
    const Values values = q.values(m_data.shown());
    if (q.single) {
        if (q.plain)
            setText(m_labels.values[0], q.format(values[0]));
        else
            ChannelLabels::showFrequency(m_labels.values[0], values[0], QString());
        return;
    }
    ChannelLabels::showValues(drawn(m_labels.values), values.data(), q.format);
    // A total stands in the fourth place whatever the wiring; where there is none the place stays empty.
    if (q.fourthCaption)
        setText(m_labels.values[3], *q.fourthCaption ? q.format(values[3]) : QString());
}
