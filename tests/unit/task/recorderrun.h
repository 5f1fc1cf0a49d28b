#pragma once

#include "detect/flickerprocessor.h"
#include "model/channelset.h"
#include "model/livedata.h"
#include "platform/clock.h"
#include "settings/recordinfo.h"
#include "storedblocks.h"
#include "task/functions/recorderfunction.h"
#include "unit/record/fakepqa2device.h"
#include "unit/storage/rootfiles.h"

#include <cstring>
#include <map>

/// A device that asks its test for the room on the storage and lies on a file of the root otherwise.
class RoomDevice : public Pqa2Device
{
public:
    explicit RoomDevice(const float *room) : m_room(room) { }
    float freeSize() override { return *m_room; }
    bool syncBehind() override
    {
        ++s_syncs;
        return true;
    }

    static inline int s_syncs = 0;

private:
    const float *m_room;
};

/// A recording without a task: aggregations are given to the recorder as they come, at 50 Hz every 200 ms.
class RecorderRun
{
public:
    static constexpr qint64 kStart = 1'700'000'000'000; // ms

    RecorderRun() : RecorderRun([this] { return std::make_unique<RoomDevice>(&room); }) { }
    explicit RecorderRun(const RecordFiles::MakeDevice &device)
        : m_recorder({ m_data, m_flicker, [this] { return setUp; }, device })
    {
        RootFiles::clean();
        Clock::setForTest(kStart);
        *RecordInfo::m_record_file = QStringLiteral("Logger_1");
        RecordInfo::m_recordItems = RecordInfo::Frequency10s;
        RecordInfo::m_interval_index = 3; // 10 s
        record = std::make_unique<__datagram_aggregation>();
        std::memset(static_cast<void *>(record.get()), 0, sizeof *record);
        record->frequency = 50.0f;
        record->time = kStart;
        m_data.empty(50.0f);
    }
    ~RecorderRun() { Clock::useSystem(); }

    RecorderFunction &recorder() { return m_recorder; }
    LiveData &data() { return m_data; }
    FlickerProcessor &flicker() { return m_flicker; }

    /// The next aggregation, so many ms after the one before.
    void take(int after = 200)
    {
        record->time += after;
        Clock::advance(after);
        m_recorder.aggregation(*record);
    }
    void take(int count, int after)
    {
        for (int i = 0; i < count; ++i)
            take(after);
    }
    /// The blocks of a file of the recording, behind those that every file opens with.
    QList<ReadBlock> blocks(const char *file = "Common.pqa2")
    {
        return storedBlocks(m_recorder.folder().file(QString::fromLatin1(file)));
    }
    QList<ReadBlock> blocks(quint32 type, const char *file = "Common.pqa2")
    {
        QList<ReadBlock> found;
        for (const ReadBlock &block : blocks(file)) {
            if (block.type == type)
                found << block;
        }
        return found;
    }
    /// Texts of the log.
    QByteArrayList log()
    {
        QByteArrayList texts;
        for (const ReadBlock &block : blocks(Pqa2SystemLog))
            texts << block.payload.mid(8);
        return texts;
    }

    RecorderSetUp setUp { channelSet(1), 50.0, 50.0f };
    float room = 1000.0f; // MB
    std::unique_ptr<__datagram_aggregation> record;

private:
    LiveData m_data;
    FlickerProcessor m_flicker;
    RecorderFunction m_recorder;
};

/// A number as it stands in a payload.
template <typename T> T valueAt(const QByteArray &payload, int offset)
{
    T value {};
    if (offset + int(sizeof value) <= payload.size())
        std::memcpy(&value, payload.constData() + offset, sizeof value);
    return value;
}
