#pragma once

#include "task/functions/taskfunction.h"

#include <functional>

struct DisplayRecords;

/// The power inverter: its record follows each aggregation, its trends get a point a second (docs/power-inverter.md).
class InverterFunction : public TaskFunction
{
public:
    /// How the output is wired at present.
    struct Output
    {
        bool single;
        int phases; // InverterFeed::outputMask
    };

    /// \a live outlives it; \a output is asked at each value, since the user may change it in mid-run.
    InverterFunction(DisplayRecords &live, std::function<Output()> output) : m_live(live), m_output(std::move(output))
    { }

    void aggregation(const __datagram_aggregation &record) override;
    void second() override;

private:
    DisplayRecords &m_live;
    std::function<Output()> m_output;
};
