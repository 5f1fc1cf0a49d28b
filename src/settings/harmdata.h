#pragma once

/// Orders that the nominal frequency allows in the harmonics function.
class HarmData
{
public:
    static int m_harm_max_numb; // highest order
    static bool m_bewith_inharm; // interharmonics available

    /// 100 orders with interharmonics at 50 and 60 Hz, 12 without at 400 Hz; another frequency changes nothing.
    static void initHarmMaxNumb(double nominalFrequency);
};
