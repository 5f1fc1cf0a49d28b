#include "task/functions/sortedvalues.h"

#include "device/datatypes.h"

#include <algorithm>
#include <cmath>

void SortedValues::insert(float value)
{
    if (std::isnan(value))
        return;
    ++m_size;
    if (m_blocks.empty()) {
        m_blocks.emplace_back();
        m_sums.assign(2, 0);
    }
    auto block = std::lower_bound(m_blocks.begin(), m_blocks.end() - 1, value,
                                  [](const std::vector<float> &one, float wanted) { return one.back() < wanted; });
    block->insert(std::upper_bound(block->begin(), block->end(), value), value);
    if (int(block->size()) <= kBlock) {
        for (std::size_t i = std::size_t(block - m_blocks.begin()) + 1; i < m_sums.size(); i += i & -i)
            ++m_sums[i];
        return;
    }
    const auto middle = block->begin() + kBlock / 2;
    std::vector<float> upper(middle, block->end());
    block->erase(middle, block->end());
    m_blocks.insert(block + 1, std::move(upper));
    countBlocks();
}

void SortedValues::countBlocks()
{
    m_sums.assign(m_blocks.size() + 1, 0);
    for (std::size_t i = 1; i < m_sums.size(); ++i) {
        m_sums[i] += int(m_blocks[i - 1].size());
        const std::size_t above = i + (i & -i);
        if (above < m_sums.size())
            m_sums[above] += m_sums[i];
    }
}

float SortedValues::at(int place) const
{
    std::size_t block = 0;
    std::size_t step = 1;
    while (2 * step < m_sums.size())
        step *= 2;
    for (; step > 0; step /= 2) {
        if (block + step >= m_sums.size() || m_sums[block + step] > place)
            continue;
        block += step;
        place -= m_sums[block];
    }
    return m_blocks[block][std::size_t(place)];
}

float SortedValues::percentile(float share) const
{
    return DataTypes::percentileOf(share, m_size, [this](int place) { return at(place); });
}
