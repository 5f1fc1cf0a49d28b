#pragma once

#include "model/displayrecords.h"
#include "pages/channellabels.h"

class QWidget;

/// The row of at most four values below a scope picture: r.m.s. values of what is shown or, with the cursor on, the
/// values of the samples under it. Labels D1_Caption to D4_Caption and D1_Value to D4_Value of a form.
class ScopeReadout
{
public:
    /// What a scope shows: all voltages, all currents, or voltage and current of one channel.
    enum Mode { Voltages, Currents, ChannelN, ChannelL1, ChannelL2, ChannelL3 };

    explicit ScopeReadout(const QWidget *form);

    /// Writes the captions for the wiring in force and empties the values.
    void setMode(int mode);
    /// Values of \a data: at sample \a cursor (0 to 599), or r.m.s. for a negative \a cursor.
    void show(const __scope_data_ui &data, int cursor);

    /// Volts (amperes) for one converter volt of a channel: gain of the calibration row in use times the transformer's
    /// ratio, for a current also per clamp sensitivity.
    static float voltCoefficient(int channel);
    static float ampereCoefficient(int channel);
    /// Value of a raw sample: \a coefficient x 10 V full scale of the converter in 32768 steps.
    static float fromSample(float coefficient, qint16 sample);

private:
    /// What stands in one place of the row.
    struct Place
    {
        int channel = -1; // -1: nothing
        bool current = false;
    };

    std::array<Place, kChannels> m_places;
    ChannelLabels::LabelRow m_captions;
    ChannelLabels::LabelRow m_values;
};
