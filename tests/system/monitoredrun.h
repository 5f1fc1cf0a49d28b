#pragma once

#include "livegraph.h"
#include "unit/record/readblocks.h"

#include "platform/target.h"

#include <QDir>
#include <QFile>

namespace SystemTest {

/// A run of the monitor whose seconds are those of the processor's time instead of this machine's.
namespace MonitoredRun {

/// Presses Start on its page; the ten seconds until then are passed by the clock. \a milliseconds of the processor's
/// time are a second of the run.
inline bool begin(QObject *receiver, int milliseconds)
{
    LiveGraph::key(Qt::Key_L);
    if (!QTest::qWaitFor([] { return g_unitask != nullptr; }, kPatienceMs))
        return false;
    QObject::disconnect(&g_unitask->secondTimer(), nullptr, g_unitask, nullptr); // ahead of the first of its seconds
    Clock::advance(11000);
    const bool runs = QTest::qWaitFor([] { return g_unitask->isTaskRunning(); }, kPatienceMs);
    Clock::useSystem();
    g_unitask->secondTimer().stop();
    QObject::connect(g_unitask, &UniTask::aggregationTaken, receiver,
                     [milliseconds, told = qint64(0)](const __datagram_aggregation *record) mutable {
                         const qint64 second = record->time / milliseconds;
                         for (told = told ? told : second; told < second; ++told)
                             g_unitask->tick();
                     });
    return runs;
}

/// Ends the run. What its file holds, by type; nothing when it is not the only one.
inline QMap<quint32, QList<ReadBlock>> endAndRead()
{
    g_unitask->stopTask();
    QMap<quint32, QList<ReadBlock>> blocks;
    const QDir storage(Target::path(QStringLiteral("/mnt/storage")));
    const QStringList folders = storage.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QFile file(storage.filePath(folders.value(0) + QStringLiteral("/Monitor.pqa2")));
    if (folders.size() != 1 || !file.open(QIODevice::ReadOnly))
        return blocks;
    for (const ReadBlock &block : readBlocks(file.readAll()))
        blocks[block.type] << block;
    return blocks;
}

} // namespace MonitoredRun

} // namespace SystemTest
