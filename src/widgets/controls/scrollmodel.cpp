#include "widgets/controls/scrollmodel.h"

#include <algorithm>

ScrollModel::ScrollModel(int rows) : m_rows(std::max(rows, 1)) { }

int ScrollModel::end() const
{
    return std::min(m_first + m_rows, m_count);
}

int ScrollModel::lastPage() const
{
    return std::max(m_count - 1, 0) / m_rows * m_rows;
}

void ScrollModel::setCount(int count)
{
    m_count = std::max(count, 0);
    m_checked.resize(std::size_t(m_count));
    if (m_first >= m_count)
        m_first = 0;
    m_row = std::clamp(m_row, 0, std::max(end() - m_first - 1, 0));
}

void ScrollModel::reset()
{
    m_first = 0;
    m_row = 0;
    checkAll(false);
}

void ScrollModel::moveLines(int lines)
{
    if (m_count == 0)
        return;
    const int target = std::clamp(m_first + m_row + lines, 0, m_count - 1);
    m_first = std::clamp(m_first, std::max(target - m_rows + 1, 0), target);
    m_row = target - m_first;
}

void ScrollModel::movePages(int pages)
{
    m_first = std::clamp(m_first / m_rows + pages, 0, lastPage() / m_rows) * m_rows;
    m_row = std::clamp(m_row, 0, std::max(end() - m_first - 1, 0));
}

void ScrollModel::setChecked(int line, bool on)
{
    if (line >= 0 && line < m_count)
        m_checked[std::size_t(line)] = on;
}

void ScrollModel::checkAll(bool on)
{
    std::fill(m_checked.begin(), m_checked.end(), on);
}

std::vector<int> ScrollModel::checked() const
{
    std::vector<int> lines;
    for (int line = 0; line < m_count; ++line) {
        if (isChecked(line))
            lines.push_back(line);
    }
    return lines;
}
