#include "widgets/controls/frontkeys.h"

#include "widgets/text/keymap.h"

#include <QKeyEvent>
#include <QWidget>

#include <algorithm>

namespace {

int oneEnter(int key)
{
    return key == Qt::Key_Return ? Qt::Key_Enter : key;
}

} // namespace

void FrontKeys::setRows(std::vector<Row> rows)
{
    stopRepeat();
    m_rows = std::move(rows);
    const auto steps = [](const Row &row) { return bool(row.step); };
    if (m_repeat || std::none_of(m_rows.begin(), m_rows.end(), steps))
        return;
    m_repeat = new KeyRepeat(m_owner, KeyRepeat::Pace().ticksPerStep);
    QObject::connect(m_repeat, &KeyRepeat::repeated, m_owner, [this](int step) {
        // A copy: the step itself may set another table.
        const Row *held = row(m_heldKey);
        const auto action = held ? held->step : nullptr;
        if (action)
            action(step);
    });
}

const FrontKeys::Row *FrontKeys::row(int key) const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(),
                                    [key](const Row &row) { return oneEnter(row.key) == oneEnter(key); });
    return found == m_rows.end() ? nullptr : &*found;
}

bool FrontKeys::press(const QKeyEvent &event, const std::function<bool(int)> &pressKey)
{
    // The press that wakes the screen does nothing else. A held F5 does not toggle again and again.
    if (keyMap::recoverBackLight() || keyMap::isDroppedRepeat(event))
        return true;
    return pressKey(keyMap::keyPressMap(event.key()));
}

int FrontKeys::release(const QKeyEvent &event)
{
    const int key = keyMap::keyReleaseMap(event.key());
    if (key == m_heldKey)
        stopRepeat();
    return key;
}

bool FrontKeys::act(int key)
{
    const Row *found = row(key);
    if (!found)
        return false;
    if (found->step) {
        startRepeat(*found);
    } else if (found->action) {
        const auto action = found->action; // a copy: the action may set another table
        action();
    }
    return true;
}

void FrontKeys::startRepeat(const Row &row)
{
    if (m_heldKey != row.key || !m_repeat->isActive()) {
        m_heldKey = row.key;
        m_repeat->setPace(row.pace);
    }
    m_repeat->start(row.direction);
}

void FrontKeys::stopRepeat()
{
    if (m_repeat)
        m_repeat->stop();
    m_heldKey = 0;
}
