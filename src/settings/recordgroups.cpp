#include "settings/recordgroups.h"

#include "model/channelset.h"
#include "model/datagramrecords.h"

namespace {

constexpr int kSpectrum = offsetof(__datagram_aggregation, spectrum);
constexpr int kLine = sizeof(SpectrumLine);
constexpr int kFileLines = kHarmonicOrders / 2; // lines of a spectrum in a file

using Bits = RecordInfo;
using Record = __datagram_aggregation;

/// Rows of a group of the common file: \a first is that of L1.
constexpr RecordGroup rows(quint32 item, quint32 mean, quint32 maximum, quint32 minimum, int first, int bytes)
{
    return { item, CommonFile, mean, maximum, minimum, bytes, 0, 0, first, bytes, 1, 0 };
}

/// Values that belong to no channel.
constexpr RecordGroup single(quint32 item, quint32 mean, quint32 maximum, quint32 minimum, int first, int bytes)
{
    return { item, CommonFile, mean, maximum, minimum, 0, 0, 0, first, bytes, 1, 0 };
}

/// Half the lines of one of the spectra of a channel. \a lines is the place of the first in ChannelSpectrum.
constexpr RecordGroup spectrum(quint32 item, RecordFile file, quint32 mean, quint32 maximum, quint32 minimum, bool volt,
                               int lines)
{
    const int distortion
        = volt ? offsetof(ChannelSpectrum, voltageDistortion) : offsetof(ChannelSpectrum, currentDistortion);
    const int fundamental = volt ? offsetof(ChannelSpectrum, voltage) : offsetof(ChannelSpectrum, current);
    return { item,
             file,
             mean,
             maximum,
             minimum,
             sizeof(ChannelSpectrum),
             kSpectrum + distortion,
             kSpectrum + fundamental,
             kSpectrum + lines,
             sizeof(float),
             kFileLines,
             kLine };
}

constexpr int kVoltage = offsetof(ChannelSpectrum, voltage);
constexpr int kCurrent = offsetof(ChannelSpectrum, current);
constexpr int kVoltageInter = offsetof(ChannelSpectrum, voltageInter);
constexpr int kCurrentInter = offsetof(ChannelSpectrum, currentInter);
constexpr int kUpperHalf = kFileLines * kLine;

constexpr std::array<RecordFileRow, kRecordFiles> kFiles = { {
    { 0, "Common.pqa2" },
    { Bits::HarmonicVolt1to50, "U Harmonic(1-50).pqa2" },
    { Bits::HarmonicAmp1to50, "I Harmonic(1-50).pqa2" },
    { Bits::InterharmonicVolt0to49, "U inHarmonic(0-49).pqa2" },
    { Bits::InterharmonicAmp0to49, "I inHarmonic(0-49).pqa2" },
    { Bits::HarmonicVolt51to100, "U Harmonic(51-100).pqa2" },
    { Bits::HarmonicAmp51to100, "I Harmonic(51-100).pqa2" },
    { Bits::InterharmonicVolt50to99, "U inHarmonic(50-99).pqa2" },
    { Bits::InterharmonicAmp50to99, "I inHarmonic(50-99).pqa2" },
} };

constexpr std::array<RecordGroup, 14> kGroups = { {
    single(Bits::FrequencyInterval, 0xA1000029, 0xA1000064, 0xA10000A4, offsetof(Record, frequency), sizeof(float)),
    rows(Bits::CommonRms, 0xA1000020, 0xA1000060, 0xA10000A0, offsetof(Record, channel), sizeof(ChannelRms)),
    rows(Bits::Power, 0xA1000021, 0xA1000061, 0xA10000A1, offsetof(Record, power), sizeof(PowerRow)),
    rows(Bits::Energy, 0xA1000022, 0, 0, offsetof(Record, energy), sizeof(EnergyRow)),
    single(Bits::Unbalance, 0xA1000023, 0xA1000062, 0xA10000A2, offsetof(Record, voltageSequence),
           2 * sizeof(SequenceValues)),
    rows(Bits::MainsSignaling, 0xA1000038, 0xA100006D, 0xA10000AD, offsetof(Record, mainsSignal),
         sizeof(MainsSignalRow)),
    spectrum(Bits::HarmonicVolt1to50, HarmonicVoltLowFile, 0xA1000030, 0xA1000065, 0xA10000A5, true, kVoltage),
    spectrum(Bits::HarmonicAmp1to50, HarmonicAmpLowFile, 0xA1000031, 0xA1000066, 0xA10000A6, false, kCurrent),
    spectrum(Bits::InterharmonicVolt0to49, InterharmonicVoltLowFile, 0xA1000034, 0xA1000069, 0xA10000A9, true,
             kVoltageInter),
    spectrum(Bits::InterharmonicAmp0to49, InterharmonicAmpLowFile, 0xA1000035, 0xA100006A, 0xA10000AA, false,
             kCurrentInter),
    spectrum(Bits::HarmonicVolt51to100, HarmonicVoltHighFile, 0xA1000032, 0xA1000067, 0xA10000A7, true,
             kVoltage + kUpperHalf),
    spectrum(Bits::HarmonicAmp51to100, HarmonicAmpHighFile, 0xA1000033, 0xA1000068, 0xA10000A8, false,
             kCurrent + kUpperHalf),
    spectrum(Bits::InterharmonicVolt50to99, InterharmonicVoltHighFile, 0xA1000036, 0xA100006B, 0xA10000AB, true,
             kVoltageInter + kUpperHalf),
    spectrum(Bits::InterharmonicAmp50to99, InterharmonicAmpHighFile, 0xA1000037, 0xA100006C, 0xA10000AC, false,
             kCurrentInter + kUpperHalf),
} };

constexpr int kFrequencySeconds = 10;
constexpr int kPstSeconds = 600;
constexpr int kPstPerPlt = 12;

int channelsOf(const ChannelSet &wiring)
{
    int channels = 0;
    for (int c = 0; c < kChannels; ++c)
        channels += wiring.recordMask >> c & 1;
    return channels;
}

/// Bytes of all blocks that the end of an interval stores.
qint64 intervalBytes(quint32 items, const ChannelSet &wiring)
{
    qint64 bytes = 0;
    for (const RecordGroup &group : kGroups) {
        if (!(items & group.item))
            continue;
        const int blocks = (group.mean != 0) + (group.maximum != 0) + (group.minimum != 0);
        bytes += blocks * recordBlockBytes(kRecordTimeBytes + recordGroupBytes(group, wiring));
    }
    if (items & Bits::CommonRms)
        bytes += kRecordAngleGroups * recordBlockBytes(kRecordTimeBytes + channelsOf(wiring) * int(sizeof(float)));
    return bytes;
}

} // namespace

const std::array<RecordFileRow, kRecordFiles> &recordFiles()
{
    return kFiles;
}

const std::array<RecordGroup, 14> &recordGroups()
{
    return kGroups;
}

int recordGroupBytes(const RecordGroup &group, const ChannelSet &wiring)
{
    const int heads = group.distortion ? 2 * int(sizeof(float)) : 0;
    return (group.channelStride ? channelsOf(wiring) : 1) * (heads + group.bytes * group.count);
}

double recordBytesPerHour(quint32 items, int intervalSeconds, const ChannelSet &wiring)
{
    double perSecond = double(intervalBytes(items, wiring)) / intervalSeconds;
    if (items & Bits::Frequency10s)
        perSecond += 3.0 * recordBlockBytes(kRecordTimeBytes + int(sizeof(float))) / kFrequencySeconds;
    if (items & Bits::Flicker) {
        const double block = recordBlockBytes(kRecordTimeBytes + kFlickerPhases * int(sizeof(float)));
        perSecond += block / kPstSeconds + block / (kPstSeconds * kPstPerPlt);
    }
    return 3600 * perSecond;
}
