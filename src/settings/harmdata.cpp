#include "settings/harmdata.h"

#include "model/nominalfrequency.h"

namespace {
constexpr int kOrders400 = 12;
}

int HarmData::m_harm_max_numb = 100;
bool HarmData::m_bewith_inharm = true;

void HarmData::initHarmMaxNumb(double nominalFrequency)
{
    m_harm_max_numb = highestOrder(nominalFrequency, kOrders400, m_harm_max_numb);
    m_bewith_inharm = m_harm_max_numb > kOrders400;
}
