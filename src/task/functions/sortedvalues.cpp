#include "task/functions/sortedvalues.h"

#include "device/datatypes.h"

#include <algorithm>
#include <cmath>

void SortedValues::insert(float value)
{
    if (std::isnan(value))
        return;
    ++m_size;
    if (m_blocks.empty())
        m_blocks.emplace_back();
    auto block = std::lower_bound(m_blocks.begin(), m_blocks.end() - 1, value,
                                  [](const std::vector<float> &one, float wanted) { return one.back() < wanted; });
    block->insert(std::upper_bound(block->begin(), block->end(), value), value);
    if (int(block->size()) <= kBlock)
        return;
    const auto middle = block->begin() + kBlock / 2;
    std::vector<float> upper(middle, block->end());
    block->erase(middle, block->end());
    m_blocks.insert(block + 1, std::move(upper));
}

float SortedValues::at(int place) const
{
    auto block = m_blocks.begin();
    for (; place >= int(block->size()); ++block)
        place -= int(block->size());
    return (*block)[std::size_t(place)];
}

float SortedValues::percentile(float share) const
{
    return DataTypes::percentileOf(share, m_size, [this](int place) { return at(place); });
}
