#pragma once

#include "widgets/controls/keyrepeat.h"

#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

class QKeyEvent;
class QWidget;

/// The front keys of one page, dialog or window: the one handler of key events. A press on a dimmed screen only wakes
/// it, a keyboard's own repeat counts for the arrows alone, letters of the panel become keys, and what a key does
/// stands in a table; a key may step something, in steps that grow while it is held.
class FrontKeys
{
public:
    /// What one key does. Without a caption the label over it stays as it is.
    struct Row
    {
        int key; // Qt::Key_F1 to F12, arrows, Enter
        const char *caption; // to be translated
        std::function<void()> action; // once per press; null for a row that steps
        std::function<void(int)> step; // with each step while held, signed by the direction
        int direction = 0; // 1 or -1
        KeyRepeat::Pace pace;
    };

    /// One key in the table of a page or dialog: what its label says and what it does. Without a caption the label
    /// stays as it is (a soft-key button paints its own).
    template <typename Owner> struct KeyRow
    {
        using Action = void (Owner::*)();
        using Step = void (Owner::*)(int);

        KeyRow(int key, const char *caption, Action action) : key(key), caption(caption), action(action) { }
        /// A key that steps while it is held: \a direction 1 or -1 is the sign of its steps.
        KeyRow(int key, const char *caption, Step step, int direction, const KeyRepeat::Pace &pace)
            : key(key), caption(caption), step(step), direction(direction), pace(pace)
        { }

        int key; // Qt::Key_F1 to F12, arrows, Enter
        const char *caption;
        Action action = nullptr;
        Step step = nullptr;
        int direction = 0;
        KeyRepeat::Pace pace;
    };

    /// The rows of a table, as \a owner does them.
    template <typename Owner, std::size_t N>
    static std::vector<Row> rowsOf(Owner *owner, const KeyRow<Owner> (&table)[N])
    {
        std::vector<Row> rows;
        for (const KeyRow<Owner> &entry : table) {
            Row row { entry.key, entry.caption, nullptr, nullptr, entry.direction, entry.pace };
            if (entry.step)
                row.step = [owner, step = entry.step](int steps) { (owner->*step)(steps); };
            else
                row.action = [owner, action = entry.action] { (owner->*action)(); };
            rows.push_back(std::move(row));
        }
        return rows;
    }

    /// \a owner owns what repeats, and stops it when it is hidden.
    explicit FrontKeys(QWidget *owner) : m_owner(owner) { }

    void setRows(std::vector<Row> rows);
    const std::vector<Row> &rows() const { return m_rows; }
    bool has(int key) const { return row(key) != nullptr; }

    /// Handles a press; a key that is not dropped goes to \a pressKey, which may ask act(). False: let the event rise.
    static bool press(const QKeyEvent &event, const std::function<bool(int)> &pressKey);
    /// Handles a release: its key. What it repeated stops.
    int release(const QKeyEvent &event);
    /// Does what the table says of a key; false without a row. Enter and Return are one key.
    bool act(int key);
    void stopRepeat();

private:
    const Row *row(int key) const;
    void startRepeat(const Row &row);

    QWidget *const m_owner;
    std::vector<Row> m_rows;
    KeyRepeat *m_repeat = nullptr; // made for the first row that steps
    int m_heldKey = 0; // the key that repeats
};
