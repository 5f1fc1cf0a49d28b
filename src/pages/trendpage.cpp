#include "pages/trendpage.h"

#include "settings/phasecolor.h"
#include "widgets/controls/labellook.h"
#include "widgets/charts/viftrendchart.h"

#include <QLabel>

TrendPage::TrendPage(_quvera_ui_type type, const LiveData &data, const std::vector<Quantity> &cycle, QWidget *parent)
    : LivePage(type, parent), m_data(data), m_cycle(cycle)
{ }

void TrendPage::initTrend(const QStringList &axis, const char *chart, const char *captionEnd)
{
    // The chart has no meta-object of its own: it is found by its name.
    m_chart = static_cast<VifTrendChart *>(findChild<QWidget *>(QLatin1String(chart)));
    m_captionEnd = QLatin1String(captionEnd);
    m_typeLabel = findChild<QLabel *>(QStringLiteral("type"));
    m_captions = ChannelLabels::numberedRow(this, "D%1_Caption");
    m_values = ChannelLabels::numberedRow(this, "D%1_Value");
    m_chart->setFullScale(axis);
}

void TrendPage::init_parameter()
{
    LivePage::init_parameter();
    initTrendFlags();
    showType();
    showTrend();
}

void TrendPage::retranslateUi()
{
    LivePage::retranslateUi();
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
    m_chart->setFlags(quantity().flags());
}

void TrendPage::showType()
{
    setText(m_typeLabel, quantity().caption());
    ChannelLabels::clear(m_captions);
    ChannelLabels::clear(m_values);
    // The grey of a lost frequency must not stay with the next quantity.
    if (!m_values[0]->styleSheet().isEmpty())
        m_values[0]->setStyleSheet(QString());
    if (quantity().single)
        return;
    ChannelLabels::showHeaders(drawn(m_captions), m_captionEnd);
    if (quantity().fourthCaption && m_captions[3]) {
        setText(m_captions[3], QString::fromLatin1(quantity().fourthCaption));
        LabelLook::setColor(m_captions[3], PhaseColor::colorN());
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
    m_picture = TrendScaler::scale(q.record(m_data.shown()), q.factor(), TrendScaler::seriesOf(q.flags()));
    if (!m_picture.upper[0].isNull())
        m_chart->setLimits(m_picture.upper, m_picture.lower);
    __trend_chart_data data;
    for (int c = 0; c < kChannels; ++c)
        data.series[c] = &m_picture.series[c];
    m_chart->showVifData(&data);
    showValue();
}

void TrendPage::showValue()
{
    const Quantity &q = quantity();
    const Values values = q.values(m_data.shown());
    if (q.single) {
        if (q.plain)
            setText(m_values[0], q.format(values[0]));
        else
            ChannelLabels::showFrequency(m_values[0], values[0], QString());
        return;
    }
    ChannelLabels::showValues(drawn(m_values), values.data(), q.format);
    // A total stands in the fourth place whatever the wiring; where there is none the place stays empty.
    if (q.fourthCaption)
        setText(m_values[3], *q.fourthCaption ? q.format(values[3]) : QString());
}
