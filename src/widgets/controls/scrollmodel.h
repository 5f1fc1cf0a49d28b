#pragma once

#include <vector>

/// Which lines of a list stand on the screen, which one is selected and which have a check mark: what every list that
/// is longer than its page has in common. Lines count from 0. It knows no widget and no texts.
class ScrollModel
{
public:
    /// \a rows lines fit on the page, at least one.
    explicit ScrollModel(int rows);

    /// The list has \a count lines now. Window and selection stay where they are as far as there are lines; when the
    /// window would stand behind the last line it goes back to the top. New lines have no check mark.
    void setCount(int count);
    /// Back to the first line; nothing is checked.
    void reset();

    int count() const { return m_count; }
    int first() const { return m_first; } // line at the top of the window
    int end() const; // one behind the last line shown
    int row() const { return m_row; } // selection within the window
    int selected() const { return m_count > 0 ? m_first + m_row : -1; }
    /// Top of the last page when the list is read page by page.
    int lastPage() const;

    /// Selection by \a lines, negative upwards; the window follows when the selection would leave it.
    void moveLines(int lines);
    /// Window by \a pages whole pages, each beginning at a multiple of the rows; the last may be short.
    void movePages(int pages);

    bool isChecked(int line) const { return line >= 0 && line < m_count && m_checked[std::size_t(line)]; }
    void setChecked(int line, bool on);
    void checkAll(bool on);
    std::vector<int> checked() const;

private:
    const int m_rows;
    int m_count = 0;
    int m_first = 0;
    int m_row = 0;
    std::vector<bool> m_checked;
};
