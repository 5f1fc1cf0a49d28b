#pragma once

#include "model/datagramrecords.h"

#include <QByteArray>
#include <QList>

struct __flicker_data;

/// What one flicker datagram, or the closing of an interval, brought to an end.
struct FlickerOutput
{
    quint32 shortTerm = 0; // bit p: phase p has a new short-term value
    quint32 longTerm = 0; // bit p: phase p has a new long-term value
    float plt[kFlickerPhases] = {}; // the new long-term values
    QByteArray shortBlock; // payload of the short-term block: the given head, then the values; the head alone: none
    QByteArray longBlock; // the same for the long-term block
};

/// Turns instantaneous flicker values into one-second maxima, the trend, and the short-term and long-term severity
/// (IEC 61000-4-15). Keeps the working data of the three phases; the results for the pages go into a __flicker_data.
/// Main thread. Any float is welcome.
class FlickerProcessor
{
public:
    static constexpr int kSumSamples = 40; // instantaneous values behind one mean
    static constexpr int kTrendValues = 600; // longest pinst trend
    static constexpr int kIntervalValues = 30000; // means that make a short-term interval
    static constexpr int kShortPerLong = 12; // short-term values that make a long-term value

    /// Takes one datagram. blockHead stands before the values of both blocks: the time as the file of the caller wants
    /// it.
    FlickerOutput process(const __datagram_flicker &record, const QByteArray &blockHead, __flicker_data &data);

    /// Ends the intervals that hold more than moreThan means, at the end of a recording. Long-term values are capped at
    /// 20.0, and the blocks hold the values of the phases that had enough, and no others.
    FlickerOutput closeIntervals(int moreThan, const QByteArray &blockHead, __flicker_data &data);

    /// Puts a mean into the descending buffer of a phase (0 to 2). A value equal to the largest goes behind its equals.
    void insertFlickerPinst(int phase, float pinst);
    /// The descending buffer of the running interval.
    const QList<float> &intervalValues(int phase) const { return m_phase[phase].interval; }
    /// Short-term values that wait for a long-term value.
    const QList<float> &shortTermValues(int phase) const { return m_phase[phase].shortTerm; }

    /// Forgets the running sums, windows and intervals, and empties the trends of the pages.
    void clear(__flicker_data &data);

private:
    /// Maximum of a window of samples and of the window before it.
    struct Window
    {
        float running = 0;
        float previous = 0;
        quint32 count = 0;
        void take(float value, quint32 samplesPerWindow);
    };

    /// Working data of one phase.
    struct Phase
    {
        Window windowA; // behind flickerMax
        Window windowB; // runs beside it with the same limit
        float sum = 0;
        int count = 0;
        QList<float> interval; // means of the running interval, descending
        QList<float> shortTerm; // at most 12 in use
    };

    /// Ends the interval of a phase: short-term value, and the long-term value when enough stand.
    void endInterval(int phase, float pltCap, FlickerOutput &out, __flicker_data &data);

    Phase m_phase[kFlickerPhases];
    float m_lastPst = 0; // value of the last interval ended, of any phase
    float m_lastPlt = 0;
};
