#pragma once

#include <vector>

/// Numbers in ascending order, as many as a run of years brings. Taking one in costs the same however many there are:
/// they stand in short blocks, of which only the one that a number belongs to is moved, and a tree of sums over the
/// sizes of the blocks leads to a place.
class SortedValues
{
public:
    /// What is not a number has no place in the order and is left out.
    void insert(float value);
    int size() const { return m_size; }
    bool isEmpty() const { return m_size == 0; }
    /// \a place from 0 (the smallest) to size() - 1.
    float at(int place) const;
    /// Value below which \a share (0 to 1) of them lie, as DataTypes::percentiles() has it for the whole list.
    float percentile(float share) const;

private:
    static constexpr int kBlock = 256; // longest block

    void indexBlocks();

    std::vector<std::vector<float>> m_blocks; // none is empty
    std::vector<float> m_tops; // the largest value of each block
    std::vector<int> m_sums; // [i]: values of as many blocks before the i-th as the lowest set bit of i says
    int m_size = 0;
};
