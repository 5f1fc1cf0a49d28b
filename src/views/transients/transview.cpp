#include "views/transients/transview.h"

#include "model/livedata.h"

#include "settings/localtime.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr quint32 kPlaceMask = 0x00FFFFFF;

QString timeText(double msecs)
{
    constexpr double kLatest = 253402300799999.0; // end of the year 9999
    if (!(msecs >= 0 && msecs <= kLatest))
        return {};
    return LocalTime::toLocalDateTime(QDateTime::fromMSecsSinceEpoch(qint64(msecs), Qt::UTC))
        .toString(QStringLiteral("yyyy-MM-dd hh:mm:ss zzz"));
}

} // namespace

TransView::TransView(const LiveData &data, QWidget *parent) : TransScopePage(parent), m_list(data.transients())
{
    static const HeadLabel head[] = {
        { "trans_number", 20, 180 },
        { "trans_time", 200, 300 },
        { "trigger_t", 20, 134, 2 },
        { "trigger", 150, 60, 2 },
    };
    setUp(head);
    showHeader(nullptr);
}

void TransView::setPageKeys()
{
    static const KeyRow<TransView> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("TransView", "Prev"), &TransView::selectPrev },
        { Qt::Key_F2, QT_TRANSLATE_NOOP("TransView", "Next"), &TransView::selectNext },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("TransView", "Back"), &TransView::goTranStart },
    };
    setKeys(keys);
}

void TransView::init_parameter()
{
    TransScopePage::init_parameter();
    selectNewest();
}

void TransView::selectNewest()
{
    select(m_list.shownSize() - 1);
}

void TransView::selectPrev()
{
    followList();
    if (m_index > 0)
        select(m_index - 1);
}

void TransView::selectNext()
{
    followList();
    if (m_index + 1 < m_list.shownSize())
        select(m_index + 1);
}

bool TransView::isShown(int index) const
{
    if (index < 0 || index >= m_list.shownSize())
        return false;
    const __trans_data &record = m_list.shownAt(index);
    return record.number == m_number && record.time == m_time;
}

void TransView::followList()
{
    if (m_list.shownSize() == 0) {
        if (m_number != 0)
            select(0);
        return;
    }
    // At its limit the list loses its head: what is shown moves towards it.
    for (int index = std::min(m_index, m_list.shownSize() - 1); index >= 0; --index) {
        if (!isShown(index))
            continue;
        m_index = index;
        showHeader(&m_list.shownAt(index));
        return;
    }
    select(m_number == 0 ? m_list.shownSize() - 1 : 0);
}

void TransView::select(int index)
{
    m_index = std::clamp(index, 0, std::max(m_list.shownSize() - 1, 0));
    const __trans_data *record = m_list.shownSize() == 0 ? nullptr : &m_list.shownAt(m_index);
    m_number = record ? record->number : 0;
    m_time = record ? record->time : 0;
    if (record)
        setCursorIndex(int(record->position & kPlaceMask));
    showHeader(record);
    showRecord(record);
}

void TransView::showHeader(const __trans_data *record)
{
    const int count = m_list.shownSize();
    setText(headLabel("trans_number"), QStringLiteral("#%1/%2(trans)").arg(record ? m_index + 1 : 0).arg(count));
    setText(headLabel("trans_time"), record ? timeText(record->time) : QString());
    setText(headLabel("trigger"),
            record ? ChannelLabels::channels().caption(int(record->position >> 24) - 1) : QString());
}
