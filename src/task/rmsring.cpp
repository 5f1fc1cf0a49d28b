#include "task/rmsring.h"

void RmsRing::rmsfifoPush(float value)
{
    m_values[m_top] = value;
    rmsfifoIncSize();
}

int RmsRing::rmsfifoCount() const
{
    const int count = m_top - m_bottom;
    return count < 0 ? count + kSize : count;
}

float RmsRing::rms_data_extract()
{
    const float value = m_values[m_bottom];
    if (rmsfifoCount() > 0)
        rmsfifoIncBottom();
    return value;
}
