#include "widgets/charts/harmonicgraph.h"

#include "settings/phasecolor.h"
#include "widgets/charts/chartparts.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

constexpr int kBase = 300; // pixel row of 0 percent, and pixels of 100 percent
constexpr int kMaxOrder = 100;
constexpr int kSinglePositions = 52;
constexpr int kAllPositions = 84;

/// Centre of group g: 0 THD, 1 DC, then the orders.
static constexpr int groupCentre(int group, int step)
{
    return group == 0 ? 20 : group == 1 ? 50 : 80 + step * (group - 2);
}

template <std::size_t Size> static constexpr std::array<int, Size> cursorPositions(int barsPerGroup, int step, int used)
{
    std::array<int, Size> positions {};
    for (int i = 0; i < used; ++i)
        positions[i] = groupCentre(i / barsPerGroup, step) + (barsPerGroup > 1 ? 4 * (i % barsPerGroup) - 4 : 0);
    return positions;
}

static constexpr auto graph_pos1 = cursorPositions<kSinglePositions>(1, 10, kSinglePositions);
static constexpr auto graph_pos_all = cursorPositions<kAllPositions>(3, 20, kAllPositions);
static constexpr auto graph_pos_all_ex = cursorPositions<kAllPositions>(2, 20, 56); // the rest stays 0

HarmonicGraph::HarmonicGraph(QWidget *parent) : QWidget(parent) { }

int HarmonicGraph::barsPerGroup() const
{
    if (m_type != GraphAll)
        return 1;
    return m_typeEx == GraphThreePhases ? 3 : 2;
}

int HarmonicGraph::groupStep() const
{
    return m_type == GraphAll ? 20 : 10;
}

int HarmonicGraph::groups() const
{
    return m_inharm ? m_count * 2 : m_count;
}

int HarmonicGraph::orderCentre(int order) const
{
    return groupCentre(2 + (order - m_first) * (m_inharm ? 2 : 1), groupStep());
}

void HarmonicGraph::showGraph(const QList<__graphdata> *list, int first, int last)
{
    m_list = list ? *list : QList<__graphdata>();
    m_last = std::clamp(last, 1, kMaxOrder);
    m_first = std::clamp(first, 1, m_last);
    const int listed = std::max(m_list.size() - 2, 0);
    m_count = std::min(m_last - m_first + 1, m_inharm ? listed / 2 : listed);
    update();
}

void HarmonicGraph::setCursorPosition(int index)
{
    if (m_type >= GraphL1 && m_type <= GraphN) {
        m_cursorIndex = std::clamp(index, 0, kSinglePositions - 1);
        m_cursorX = graph_pos1[m_cursorIndex];
    } else if (m_type == GraphAll) {
        m_cursorIndex = std::clamp(index, 0, kAllPositions - 1);
        m_cursorX = m_typeEx == GraphThreePhases ? graph_pos_all[m_cursorIndex] : graph_pos_all_ex[m_cursorIndex];
    }
    update();
}

bool HarmonicGraph::isCursorMaxed() const
{
    if (m_type < GraphL1 || m_type > GraphAll)
        return true;
    return m_cursorIndex > barsPerGroup() * (groups() + 2) - 2;
}

void HarmonicGraph::setinharmEnabled(bool enabled)
{
    m_inharm = enabled;
    update();
}

void HarmonicGraph::setgraphType(int type)
{
    m_type = type;
    update();
}

void HarmonicGraph::setgraphTypeEx(int type)
{
    m_typeEx = type;
    update();
}

void HarmonicGraph::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawFrame(painter);
    if (m_list.isEmpty())
        return;
    drawOrders(painter);
    drawBars(painter);
    ChartParts::drawCursor(painter, m_cursorX, kBase);
}

void HarmonicGraph::drawFrame(QPainter &painter) const
{
    painter.setPen(ChartParts::gridPen());
    painter.drawLine(0, 0, 0, kBase);
    painter.drawLine(0, kBase, 599, kBase);

    painter.setPen(ChartParts::axisPen());
    for (const int y : { 30, 60, 90, 120, 180, 210, 240, 270 })
        painter.drawLine(0, y, 3, y);
    ChartParts::setFontPixels(painter, 12);
    painter.drawText(2, 11, QStringLiteral("100%"));
    painter.drawText(2, 154, QStringLiteral("50%"));

    static const struct
    {
        int x;
        const char *text;
    } kHeads[] = { { 20, "THD" }, { 50, "DC" } };
    for (const auto &head : kHeads) {
        painter.drawLine(head.x, kBase, head.x, kBase + 3);
        painter.drawText(head.x - 20, kBase + 4, 40, 15, Qt::AlignHCenter | Qt::AlignVCenter,
                         QString::fromLatin1(head.text));
    }
}

void HarmonicGraph::drawOrders(QPainter &painter) const
{
    if (m_count < 1)
        return;
    painter.setPen(ChartParts::axisPen());
    ChartParts::setFontPixels(painter, 12);
    // The pair of groups of an order with its interharmonic is labelled in its middle; otherwise the ticks of the
    // all-channels form stand between the groups, the first one at 90.
    const bool all = m_type == GraphAll;
    const int labelShift = all && m_inharm ? 10 : 0;
    const int tickShift = all ? 10 : 0;
    const int lastOrder = m_first + m_count - 1;
    const int minimumGap = m_last >= kMaxOrder ? 30 : 22; // pixels that a number of three or two digits needs
    const int lastX = orderCentre(lastOrder);
    int previous = -minimumGap;
    for (int order = m_first; order <= lastOrder; ++order) {
        const int x = orderCentre(order);
        const bool fits = x - previous >= minimumGap && lastX - x >= minimumGap;
        const bool stands = order == m_first || order == lastOrder || (fits && (all || order % 5 == 0));
        if (all || stands)
            painter.drawLine(x + tickShift, kBase, x + tickShift, kBase + 3);
        if (!stands)
            continue;
        previous = x;
        painter.drawText(x + labelShift - 15, kBase + 4, 30, 15, Qt::AlignHCenter | Qt::AlignVCenter,
                         QString::number(order));
    }
}

/// Top row of a bar; a value that is no number, or is negative, has no height.
static int barTop(float percent)
{
    const double height = ChartParts::boundedPixel(double(percent) * kBase / 100.0);
    return int(kBase - std::max(height, 0.0));
}

void HarmonicGraph::drawBars(QPainter &painter) const
{
    const int perGroup = barsPerGroup();
    const int count = std::min(groups() + 2, m_list.size());
    for (int group = 0; group < count; ++group) {
        const int centre = groupCentre(group, groupStep());
        for (int bar = 0; bar < perGroup; ++bar) {
            const int channel = perGroup == 1 ? std::clamp(m_type - GraphL1, 0, 3) : bar;
            const int x = perGroup == 1 ? centre : centre - 4 + 4 * bar;
            const int top = barTop(m_list.at(group).value[channel]);
            painter.fillRect(x - 1, top, 3, kBase - top, PhaseColor::color(channel));
        }
    }
}
