#pragma once

#include "model/displayrecords.h"
#include "task/functions/taskfunction.h"

struct DisplayRecords;

/// The trends of basic measuring: one point a second of the values as they stand.
class SecondTrends : public TaskFunction
{
public:
    /// \a live outlives it.
    explicit SecondTrends(DisplayRecords &live) : m_live(live) { }

    void second() override;

private:
    DisplayRecords &m_live;
};
