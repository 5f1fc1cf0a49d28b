#include "setup/ratiochoice.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr int kFactor = 10; // from one preset to the next
constexpr int kLastPreset = 10000;
constexpr int kFirstCustom = 1000;
constexpr int kLargest = 99999; // five digits

bool isPreset(int numerator, int denominator)
{
    int preset = 1;
    while (preset < numerator && preset < kLastPreset)
        preset *= kFactor;
    return denominator == 1 && preset == numerator;
}

} // namespace

RatioChoice::RatioChoice(int numerator, int denominator, int selector)
    : m_numerator(numerator), m_denominator(denominator),
      m_custom(selector == Custom || !isPreset(numerator, denominator))
{ }

void RatioChoice::next()
{
    if (m_custom)
        return;
    if (m_numerator < kLastPreset) {
        m_numerator *= kFactor;
        return;
    }
    setCustom(kFirstCustom, 1);
}

void RatioChoice::prev()
{
    if (m_custom) {
        m_custom = false;
        m_numerator = kLastPreset;
        m_denominator = 1;
    } else if (m_numerator > 1) {
        m_numerator /= kFactor;
    }
}

void RatioChoice::setCustom(int numerator, int denominator)
{
    m_custom = true;
    m_numerator = std::clamp(numerator, 1, kLargest);
    m_denominator = std::clamp(denominator, 1, kLargest);
}

QString RatioChoice::numbers() const
{
    return QStringLiteral("%1:%2").arg(m_numerator).arg(m_denominator);
}

QString RatioChoice::text() const
{
    return m_custom ? QCoreApplication::translate("RatioChoice", "CUSTOM") : numbers();
}
