#include "pages/trendchartpage.h"
#include "ui_trendform.h"

#include "widgets/charts/viftrendchart.h"
#include "widgets/controls/labellook.h"

TrendChartPage::TrendChartPage(_quvera_ui_type type, QWidget *parent)
    : LivePage(type, parent), m_ui(new Ui::TrendForm), m_chart(nullptr)
{
    m_ui->setupUi(this);
    m_chart = m_ui->trend;
}

TrendChartPage::~TrendChartPage() = default;

void TrendChartPage::setUpChart(const QStringList &axis, const char *chart, const ValueStrip::Labels &labels)
{
    setObjectName(QString::fromLatin1(metaObject()->className()));
    m_labels = labels;
    m_chart->setObjectName(QString::fromLatin1(chart));
    m_chart->setFullScale(axis);
    LabelLook::dress(this);
}

void TrendChartPage::showPicture(TrendScaler::Picture picture)
{
    m_picture = std::move(picture);
    if (!m_picture.upper[0].isNull())
        m_chart->setLimits(m_picture.upper, m_picture.lower);
    __trend_chart_data data;
    for (int c = 0; c < kChannels; ++c)
        data.series[c] = &m_picture.series[c];
    m_chart->showVifData(&data);
}

void TrendChartPage::showName(const QString &name)
{
    setText(m_ui->type, name);
}
