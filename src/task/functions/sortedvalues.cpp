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
        indexBlocks();
    }
    const auto top = std::lower_bound(m_tops.begin(), m_tops.end() - 1, value);
    const std::size_t place = std::size_t(top - m_tops.begin());
    std::vector<float> &block = m_blocks[place];
    block.insert(std::upper_bound(block.begin(), block.end(), value), value);
    if (int(block.size()) <= kBlock) {
        m_tops[place] = block.back();
        for (std::size_t i = place + 1; i < m_sums.size(); i += i & -i)
            ++m_sums[i];
        return;
    }
    std::vector<float> upper(block.begin() + kBlock / 2, block.end());
    block.resize(kBlock / 2);
    m_blocks.insert(m_blocks.begin() + std::ptrdiff_t(place) + 1, std::move(upper));
    indexBlocks();
}

void SortedValues::indexBlocks()
{
    m_tops.clear();
    m_sums.assign(m_blocks.size() + 1, 0);
    for (std::size_t i = 1; i < m_sums.size(); ++i) {
        const std::vector<float> &block = m_blocks[i - 1];
        m_tops.push_back(block.empty() ? 0 : block.back());
        m_sums[i] += int(block.size());
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
