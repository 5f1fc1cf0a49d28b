#pragma once

/// Ring of half-cycle r.m.s. values of one input, between the datagram and the trends.
/// Kept: a full ring reads as empty: the count is write minus read, plus the size if negative.
class RmsRing
{
public:
    static constexpr int kSize = 1024;

    void rmsfifoPush(float value);
    int rmsfifoCount() const;
    /// Takes the oldest value out. With an empty ring it returns what stands at the read position and stays empty.
    float rms_data_extract();

private:
    static int next(int index) { return index + 1 == kSize ? 0 : index + 1; }
    void rmsfifoIncSize() { m_top = next(m_top); }
    void rmsfifoIncBottom() { m_bottom = next(m_bottom); }

    float m_values[kSize] = {};
    int m_top = 0; // next place to write
    int m_bottom = 0; // oldest value
};
