#include "model/trendzoom.h"

#include "model/nominalfrequency.h"

const TrendZoom RmsTrendTables::m_zoom_time_50[4] = { { 60, 10 }, { 48, 8 }, { 24, 4 }, { 12, 2 } };
const TrendZoom RmsTrendTables::m_zoom_time_60[4] = { { 60, 12 }, { 40, 8 }, { 20, 4 }, { 10, 2 } };
const TrendZoom RmsTrendTables::m_zoom_time_400[4] = { { 60, 12 }, { 48, 8 }, { 24, 4 }, { 12, 2 } };

bool RmsTrendTables::choose(double nominalFrequency, int *valuesPerSecond, const TrendZoom **zoom)
{
    static constexpr struct
    {
        double nominal; // Hz
        int valuesPerSecond;
        const TrendZoom *zoom;
    } kRates[] = { { 50.0, 100, m_zoom_time_50 }, { 60.0, 120, m_zoom_time_60 }, { 400.0, 100, m_zoom_time_400 } };
    for (const auto &rate : kRates) {
        if (!isNominal(nominalFrequency, rate.nominal))
            continue;
        *valuesPerSecond = rate.valuesPerSecond;
        *zoom = rate.zoom;
        return true;
    }
    return false;
}
