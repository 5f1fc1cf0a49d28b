#include "record/exports/pqdifobservation.h"

#include "record/exports/asciitext.h"
#include "record/exports/pqdiftags.h"

PqdifObservation::PqdifObservation(const QByteArray &name, qint64 start, qint64 created, PqdifTrigger trigger)
    : m_start(start)
{
    constexpr int kMostName = 200; // characters
    m_root.addText(PqdifTag::kObservationName, AsciiText::of(name, kMostName));
    m_root.addTime(PqdifTag::kTimeCreate, PqdifTime::ofMicroseconds(created));
    m_root.addTime(PqdifTag::kTimeStart, PqdifTime::ofMicroseconds(start));
    m_root.addNumber(PqdifTag::kTriggerMethodID, quint32(trigger));
    m_instances = &m_root.addCollection(PqdifTag::kChannelInstances);
}

void PqdifObservation::beginChannel(int definition, int group)
{
    PqdifCollection &instance = m_instances->addCollection(PqdifTag::kOneChannelInst);
    instance.addNumber(PqdifTag::kChannelDefnIdx, quint32(definition));
    if (group >= 0)
        instance.addShort(PqdifTag::kChannelGroupID, qint16(group));
    m_series = &instance.addCollection(PqdifTag::kSeriesInstances);
    ++m_channels;
}

void PqdifObservation::addTimes(const QVector<double> &seconds)
{
    for (const Shared &times : qAsConst(m_times)) {
        if (times.stored == seconds) {
            PqdifCollection &series = m_series->addCollection(PqdifTag::kOneSeriesInstance);
            series.addNumber(PqdifTag::kSeriesShareChannelIdx, quint32(times.channel));
            series.addNumber(PqdifTag::kSeriesShareSeriesIdx, 0);
            return;
        }
    }
    addValues(seconds);
    constexpr int kMostOwners = 8; // where every channel has its own times, nothing is to be gained
    if (m_times.size() < kMostOwners)
        m_times.append({ m_channels - 1, seconds });
}

void PqdifObservation::addClock(qint64 samples, double rate)
{
    // One rate, so many samples, their distance.
    addTimes({ 1, double(samples), 1 / rate });
}

void PqdifObservation::addValues(const QVector<float> &values)
{
    m_series->addCollection(PqdifTag::kOneSeriesInstance).addVector(PqdifTag::kSeriesValues, values);
}

void PqdifObservation::addValues(const QVector<double> &values)
{
    m_series->addCollection(PqdifTag::kOneSeriesInstance).addVector(PqdifTag::kSeriesValues, values);
}

void PqdifObservation::addScaled(const QVector<qint16> &values, double scale)
{
    PqdifCollection &series = m_series->addCollection(PqdifTag::kOneSeriesInstance);
    series.addVector(PqdifTag::kSeriesValues, values);
    series.addReal(PqdifTag::kSeriesScale, scale);
    series.addReal(PqdifTag::kSeriesOffset, 0);
}
