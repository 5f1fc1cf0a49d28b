#pragma once

#include "widgets/controls/keyrepeat.h"

#include <functional>
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
