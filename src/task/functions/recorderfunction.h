#pragma once

#include "task/functions/functionfile.h"
#include "task/functions/taskfunction.h"

class LiveData;

/// What the recorder stores beside its statistics: events with their curves and waveforms, transients and flicker
/// severities. It runs inside basic measuring, while the recording window is open.
class RecorderFunction : public TaskFunction
{
public:
    /// \a data, whose events and transients it stores, outlives it.
    explicit RecorderFunction(const LiveData &data) : m_data(data) { }

    FunctionFile &commonFile() { return m_common; }

    /// Values go to the file where the recorder's choice has them. Blocks begin with the datagram's time, ms since
    /// 1970.
    void flicker(const __datagram_flicker &record, const FlickerOutput &out) override;
    void transient(const __trans_data &record) override;
    void eventComplete(const PQAEventItem &event) override;
    void eventWave(const EventWave &wave, const ChannelSet &wiring) override;
    /// All: their heads. Else with curves; with the finished ones go the transients.
    void storeEvents(EventChoice choice) override;

private:
    const LiveData &m_data;
    FunctionFile m_common;
};
