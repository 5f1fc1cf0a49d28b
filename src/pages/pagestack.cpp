#include "pages/pagestack.h"

#include <algorithm>

void PageStack::showPrevious()
{
    showPage(m_way.size() > 1 ? m_way[m_way.size() - 2] : 0);
}

void PageStack::aboutToShow(int row)
{
    // A page that stands on the way already is gone back to.
    m_way.erase(std::find(m_way.begin(), m_way.end(), row), m_way.end());
    m_way.push_back(row);
    page(row)->init_parameter();
}
