#pragma once

#include "task/functions/functionfile.h"
#include "task/functions/taskfunction.h"

class LiveData;

/// What the monitor stores of events: their heads, transients and flicker severities.
class MonitorFunction : public TaskFunction
{
public:
    /// \a data, whose events it stores, outlives it.
    explicit MonitorFunction(const LiveData &data) : m_data(data) { }

    FunctionFile &file() { return m_file; }

    /// Blocks begin with the datagram's time, whole seconds since 1970.
    void flicker(const __datagram_flicker &record, const FlickerOutput &out) override;
    void transient(const __trans_data &record) override;
    void storeEvents(EventChoice choice) override;
    /// The heads of all events are the end of its file.
    void stop(Keep keep) override;

private:
    const LiveData &m_data;
    FunctionFile m_file;
};
