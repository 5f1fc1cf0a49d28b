#pragma once

#include "record/exports/pqdifbody.h"

#include <QVector>

/// How an observation came about.
enum class PqdifTrigger : quint8 { None = 0, Channel = 1, Periodic = 2 };

/// The record of one block of trends, one event or one waveform: channels with their series, in the order in which the
/// definitions of the channels have them. Times in us since 1970.
class PqdifObservation
{
public:
    /// \a start is the zero of the time series.
    PqdifObservation(const QByteArray &name, qint64 start, qint64 created, PqdifTrigger trigger);

    /// For further tags.
    PqdifCollection &root() { return m_root; }
    qint64 start() const { return m_start; }

    /// \a group: order of a harmonic, -1 for none. Its series follow, the time first.
    void beginChannel(int definition, int group = -1);
    /// Seconds behind the start. A channel before this one that has the same shares its own.
    void addTimes(const QVector<double> &seconds);
    /// Times of samples at a fixed distance from the start on.
    void addClock(qint64 samples, double rate);
    void addValues(const QVector<float> &values);
    void addValues(const QVector<double> &values);
    void addScaled(const QVector<qint16> &values, double scale);

    bool isEmpty() const { return m_channels == 0; }
    QByteArray body() const { return m_root.body(); }

private:
    struct Shared
    {
        int channel;
        QVector<double> stored;
    };

    PqdifCollection m_root;
    PqdifCollection *m_instances;
    PqdifCollection *m_series = nullptr; // of the last channel
    qint64 m_start;
    int m_channels = 0;
    QVector<Shared> m_times;
};
