#pragma once

#include <QString>
#include <QtGlobal>

struct ChannelSet;

/// The user's choices of the recorder function.
class RecordInfo
{
public:
    /// Bits of m_recordItems.
    enum Item : quint32 {
        Frequency10s = 1,
        FrequencyInterval = 2,
        CommonRms = 4,
        Power = 8,
        Energy = 16,
        Flicker = 32,
        Unbalance = 64,
        HarmonicVolt1to50 = 128,
        HarmonicAmp1to50 = 0x100,
        InterharmonicVolt0to49 = 0x200,
        InterharmonicAmp0to49 = 0x400,
        HarmonicVolt51to100 = 0x800,
        HarmonicAmp51to100 = 0x1000,
        InterharmonicVolt50to99 = 0x2000,
        InterharmonicAmp50to99 = 0x4000,
        MainsSignaling = 0x8000,
        AllHarmonics = 0x7F80,
        /// Chosen before anyone chose: what fits into the common file but for mains signals.
        NewInstrument = FrequencyInterval | CommonRms | Power | Energy | Flicker | Unbalance,
    };

    static constexpr double kRoomToBegin = 50; // MB free, below which no file is begun
    static constexpr double kRoomKept = 5; // MB free, below which nothing is stored any more

    static int m_in_recording; // 1: prepared or running
    static QString *m_record_file; // record name
    static quint32 m_recordItems; // Item
    static quint32 m_begain_time; // s since 1970
    static int m_duration; // h
    static int m_max_duration; // h that the room allows
    static int m_interval_index; // into m_record_interval
    static const int m_record_interval[8]; // s
    static int m_harm_max_numb; // highest order
    static int m_storage_room; // MB free when checked

    /// The chosen items of record.conf. Reading and writing always add Frequency10s, and CommonRms when any harmonic
    /// item is chosen.
    static void readSelectedParam();
    static void writeSelectedParam();
    /// 100 orders at 50 and 60 Hz, 12 at 400 Hz; another nominal frequency changes nothing.
    static void initHarmMaxNumb(double nominalFrequency);
    /// Hours that a recording of these items can go on for with so many MB free (docs/formats/recorder.md); 0 where the
    /// room is too small to begin one.
    static int hoursInRoom(double room, quint32 items, int intervalSeconds, const ChannelSet &wiring);
    /// The same for a recording that has begun: it goes on until nothing is stored any more.
    static int hoursLeft(double room, quint32 items, int intervalSeconds, const ChannelSet &wiring);
    /// Looks how much room is free: m_storage_room and m_max_duration follow for the items and the interval as they are
    /// chosen, and m_duration is lowered where it is longer, to no less than an hour.
    static void checkMaxDuration(const ChannelSet &wiring);
};
