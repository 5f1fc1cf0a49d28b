#include "widgets/controls/eventswidget.h"

#include "widgets/charts/chartparts.h"
#include "widgets/controls/readingmarks.h"
#include "widgets/text/f_to_str.h"
#include "settings/localtime.h"

#include <QDateTime>
#include <QPainter>

#include <algorithm>
#include <iterator>

static const EventKinds kFilters[] = {
    { EventThd, EventMainsSignaling }, // unused: filter 0 takes the list as it is
    { EventRms, EventRms },
    { EventThd, EventHarmonicLast },
    { EventFlicker, EventFlicker },
    { EventDip, EventRvc },
    { EventUnbalance, EventFrequency },
    { EventMainsSignaling, EventMainsSignaling },
};

// The two spaces keep one-digit orders as wide as the others.
static const char *const kTypeNames[] = {
    "L%1 THD", "L%1  H2", "L%1  H3", "L%1  H4", "L%1  H5",   "L%1  H6", "L%1  H7",    "L%1  H8",  "L%1  H9",
    "L%1 H10", "L%1 H11", "L%1 H12", "L%1 H13", "L%1 H14",   "L%1 H15", "L%1 H16",    "L%1 H17",  "L%1 H18",
    "L%1 H19", "L%1 H20", "L%1 H21", "L%1 H22", "L%1 H23",   "L%1 H24", "L%1 H25",    "L%1 RMS",  "L%1 FLK",
    "L%1 DIP", "L%1 SWL", "L%1 INT", "L%1 RVC", "L%1 UNBAL", "L%1  Hz", "L%1 INRUSH", "L%1 MSIG",
};
static_assert(std::size(kTypeNames) == EventMainsSignaling + 1, "one name a kind");

constexpr int kHeaderHeight = 21;
constexpr int kFirstRowTop = 30;
constexpr int kRowStep = 22;

EventsWidget::EventsWidget(QWidget *parent) : QWidget(parent) { }

void EventsWidget::refreshEventList(const EventSelection *list)
{
    if (!list) {
        initEventsCnt();
        return;
    }
    m_all = list;
    eventTypeFilter();
    update();
}

void EventsWidget::eventTypeFilter()
{
    if (m_filter < 0 || m_filter >= int(std::size(kFilters)))
        m_filter = EventsAll;
    m_filtered.reset();
    if (m_filter != EventsAll && m_all)
        m_filtered = m_all->among(kFilters[m_filter]);
    m_scroll.setCount(shownSize());
}

void EventsWidget::changeEventType(int type)
{
    m_filter = type;
    m_scroll.reset();
    eventTypeFilter();
    update();
}

void EventsWidget::selectPrevItem()
{
    m_scroll.moveLines(-1);
    update();
}

void EventsWidget::selectNextItem()
{
    m_scroll.moveLines(1);
    update();
}

void EventsWidget::initEventsCnt()
{
    m_scroll.setCount(0);
    m_scroll.reset();
    m_all = nullptr;
    m_filtered.reset();
    update();
}

QStringList EventsWidget::lineTexts(int index) const
{
    if (index < 0 || index >= shownSize())
        return {};
    const __event_item &item = shown()->at(index);
    const QDateTime start = LocalTime::toLocalDateTime(QDateTime::fromSecsSinceEpoch(item.startSeconds, Qt::UTC));
    const bool known = item.type >= 0 && item.type < int(std::size(kTypeNames));
    const bool hasDuration = item.finished == 1 && item.type != EventRvc;
    return {
        start.toString(QStringLiteral("yyyy/MM/dd hh:mm:ss")),
        known ? QString::fromLatin1(kTypeNames[item.type]).arg(item.channel + 1) : QString(),
        F_to_Str::number_1(item.value),
        hasDuration ? QDateTime::fromMSecsSinceEpoch(item.duration, Qt::UTC).toString(QStringLiteral("hh:mm:ss:zzz"))
                    : QString(),
    };
}

namespace {
/// First and last pixel column of a table column.
struct Columns
{
    int left;
    int right;
};
} // namespace

static QRect cell(int column, int top, int height, int widgetWidth)
{
    static const Columns kColumns[] = { { 0, 209 }, { 210, 309 }, { 310, 409 }, { 410, 0 } };
    const Columns &place = kColumns[column];
    const int right = place.right ? place.right : widgetWidth - 1;
    return QRect(QPoint(place.left, top), QPoint(right, top + height - 1));
}

void EventsWidget::resizeEvent(QResizeEvent *)
{
    m_background = ChartParts::scaledPicture(QStringLiteral(":/eventwidget_bg"), size());
    m_bar = ChartParts::scaledPicture(QStringLiteral(":/eventwidget_bar"), QSize(width() - 6, kRowStep));
}

void EventsWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_background);
    drawHeader(painter);
    for (int index = firstShown(); index < lastShown() && index < shownSize(); ++index)
        drawRow(painter, index - firstShown(), lineTexts(index));
    const bool hasSelected = firstShown() + m_scroll.row() < qMin(lastShown(), shownSize());
    const QRect bar(3, kFirstRowTop + m_scroll.row() * kRowStep, width() - 6, kRowStep);
    ReadingMarks::selectPart(this, hasSelected ? bar : QRect());
}

void EventsWidget::drawHeader(QPainter &painter) const
{
    painter.setPen(Qt::white);
    ChartParts::setFontPixels(painter, 20);
    const QString titles[] = { tr("TIME"), tr("TYPE"), tr("LEVEL"), tr("DURATION") };
    for (int column = 0; column < int(std::size(titles)); ++column)
        painter.drawText(cell(column, 0, kHeaderHeight, width()), Qt::AlignCenter, titles[column]);
}

void EventsWidget::drawRow(QPainter &painter, int row, const QStringList &texts) const
{
    const int top = kFirstRowTop + row * kRowStep;
    if (row == m_scroll.row())
        painter.drawPixmap(3, top, m_bar);
    painter.setPen(Qt::white);
    ChartParts::setFontPixels(painter, 18);
    for (int column = 0; column < texts.size(); ++column)
        painter.drawText(cell(column, top, kRowStep - 1, width()), Qt::AlignCenter, texts.at(column));
}
