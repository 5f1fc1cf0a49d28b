#include "views/monitor/monitorbarspage.h"
#include "ui_monitorform.h"

#include "model/livedata.h"
#include "settings/config_data.h"
#include "settings/phasecolor.h"
#include "widgets/controls/labellook.h"

#include <algorithm>

namespace {

constexpr int kChartTop = 34, kChartHeight = 250; // pixels
constexpr int kCaptionTop = 286, kCaptionHeight = 18;
constexpr int kHeadingTop = 306;
constexpr LabelGrid kHeading = { 324, 0, 300, 20, 26, 16, 300, 20, 1 };
constexpr int kFieldsInRow = 3;
constexpr int kFieldTops[] = { 336, 368 };
/// The words of the last column are the longest, its numbers the shortest.
constexpr LabelGrid kFields[kFieldsInRow] = {
    { 108, 0, 100, 20, 30, 16, 92, 16, 1 },
    { 316, 0, 100, 20, 30, 222, 94, 16, 1 },
    { 550, 0, 78, 20, 30, 430, 120, 16, 1 },
};

const struct
{
    const char *text; // to be translated
    Qt::GlobalColor color;
} kVerdicts[] = { { "", Qt::white },
                  { QT_TRANSLATE_NOOP("MonitorBarsPage", "Within the limits"), Qt::green },
                  { QT_TRANSLATE_NOOP("MonitorBarsPage", "Limit exceeded"), Qt::red } };

} // namespace

MonitorBarsPage::MonitorBarsPage(const LiveData &data, QWidget *parent)
    : LivePage(UI_MONITOR, parent), m_data(data), m_ui(new Ui::MonitorForm)
{
    m_ui->setupUi(this);
}

MonitorBarsPage::~MonitorBarsPage() = default;

void MonitorBarsPage::setUpBars(QWidget *chart, int left, int width)
{
    setObjectName(QString::fromLatin1(metaObject()->className()));
    chart->setParent(this);
    chart->setObjectName(QStringLiteral("histogram"));
    chart->setGeometry(left, kChartTop, width, kChartHeight);
    const LabelGrid::Row heading
        = kHeading.addRow(this, QStringLiteral("quantity"), { QStringLiteral("verdict") }, kHeadingTop);
    m_quantity = heading.caption;
    m_verdict = heading.values[0];
    for (int i = 0; i < MonitorReadout::kFields; ++i) {
        const QString name
            = QStringLiteral("%1%2_").arg(QLatin1Char(char('A' + i / kFieldsInRow))).arg(i % kFieldsInRow + 1);
        m_fields[std::size_t(i)] = kFields[i % kFieldsInRow].addRow(
            this, name + QLatin1String("Caption"), { name + QLatin1String("Value") }, kFieldTops[i / kFieldsInRow]);
    }
    LabelLook::dress(this);
}

QLabel *MonitorBarsPage::addCaption(const QString &name, int centre, int width, int textSize)
{
    auto *label = new QLabel(this);
    label->setObjectName(name);
    label->setGeometry(centre - width / 2, kCaptionTop, width, kCaptionHeight);
    label->setAlignment(Qt::AlignCenter);
    label->setProperty("textSize", textSize);
    label->setProperty("textColor", QStringLiteral("#c0c0c0"));
    return label;
}

void MonitorBarsPage::updateDisplay(void *)
{
    const MonitorView now = view();
    setText(m_ui->type, m_limits_g.activeLimitsName());
    showBars(now);
    showReadout(readout(now));
}

void MonitorBarsPage::init_parameter()
{
    LivePage::init_parameter();
    updateDisplay(nullptr);
}

void MonitorBarsPage::retranslateUi()
{
    LivePage::retranslateUi();
    updateDisplay(nullptr); // on hold no refresh would bring the words
}

void MonitorBarsPage::moveCursor(int step)
{
    int bar = m_cursor + step;
    while (bar >= 0 && bar < barCount() && !isShown(bar))
        bar += step;
    if (bar >= 0 && bar < barCount())
        setCursor(bar);
}

void MonitorBarsPage::setCursor(int bar)
{
    m_cursor = bar;
    updateDisplay(nullptr);
}

MonitorView MonitorBarsPage::view() const
{
    const DisplayRecords &shown = m_data.shown();
    return { shown.monitor, shown.monitorTrend, *m_limits_g.getLimitsInUsed(), ChannelLabels::channels(), events() };
}

void MonitorBarsPage::showReadout(const MonitorReadout &readout)
{
    setText(m_quantity, readout.quantity);
    LabelLook::setColor(m_quantity, readout.phase < 0 ? QColor(Qt::white) : PhaseColor::color(readout.phase));
    const auto &verdict = kVerdicts[readout.verdict];
    setText(m_verdict, *verdict.text ? tr(verdict.text) : QString());
    LabelLook::setColor(m_verdict, verdict.color);
    for (int i = 0; i < MonitorReadout::kFields; ++i) {
        const MonitorReadout::Field field = readout.fields.value(i);
        const LabelGrid::Row &labels = m_fields[std::size_t(i)];
        setText(labels.caption, field.caption);
        setText(labels.values[0], field.value);
    }
}
