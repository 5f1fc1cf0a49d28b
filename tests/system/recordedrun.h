#pragma once

#include "livegraph.h"
#include "unit/record/readblocks.h"

#include "platform/diskworker.h"
#include "platform/target.h"
#include "settings/recordgroups.h"

#include <QDir>
#include <QFile>
#include <QMap>

namespace SystemTest {

template <typename T> T valueAt(const QByteArray &payload, int offset)
{
    T value {};
    if (offset >= 0 && offset + int(sizeof value) <= payload.size())
        std::memcpy(&value, payload.constData() + offset, sizeof value);
    return value;
}

/// A recording of everything by the instrument's own objects, in the time of the stand-in, and what its files hold.
class RecordedRun
{
public:
    /// From now on the instrument's clock goes with the processor's: energies are counted by it.
    static void followProcessor(QObject *receiver)
    {
        QObject::connect(g_unitask, &UniTask::aggregationTaken, receiver,
                         [last = qint64(0)](const __datagram_aggregation *record) mutable {
                             if (last == 0)
                                 Clock::setForTest(record->time);
                             else
                                 Clock::advance(record->time - last);
                             last = record->time;
                         });
    }

    /// Begins at once: the ten seconds until then are passed by the clock.
    static bool begin(const QString &name, int intervalIndex, int hours = 1)
    {
        *RecordInfo::m_record_file = name;
        RecordInfo::m_recordItems = 0xFFFF;
        RecordInfo::m_interval_index = intervalIndex;
        RecordInfo::m_duration = hours;
        m_taskmanage->enableRecord();
        Clock::advance(11000);
        const bool begins = LiveGraph::runUntil([] { return g_unitask->isRecording(); }, 1);
        Clock::useSystem();
        return begins;
    }

    /// The blocks of all files of the recording of that name; false when it is not there.
    bool read(const QString &name)
    {
        DiskWorker::slow().wait();
        const QDir storage(Target::path(QStringLiteral("/mnt/storage")));
        const QStringList folders = storage.entryList({ QStringLiteral("* ") + name }, QDir::Dirs);
        for (const RecordFileRow &row : recordFiles()) {
            QFile file(storage.filePath(folders.value(0) + QLatin1Char('/') + QLatin1String(row.name)));
            if (!file.open(QIODevice::ReadOnly))
                return false;
            for (const ReadBlock &block : readBlocks(file.readAll()))
                m_blocks[block.type] << block.payload;
        }
        return folders.size() == 1;
    }

    QList<QByteArray> of(quint32 type) const { return m_blocks.value(type); }
    /// The time of a block, s of the signal.
    static double secondsOf(const QByteArray &payload)
    {
        return double(valueAt<qint64>(payload, 0) - LiveGraph::startMs()) / 1000;
    }

private:
    QMap<quint32, QList<QByteArray>> m_blocks;
};

} // namespace SystemTest
