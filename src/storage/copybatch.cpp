#include "storage/copybatch.h"

#include "platform/target.h"
#include "storage/itemcopy.h"
#include "storage/massstorage.h"

#include <QFileInfo>

#include <cerrno>
#include <memory>
#include <vector>

namespace {

constexpr qint64 kKilobyte = 1024;

bool hasRoom(const QString &target, qint64 bytes)
{
    const QString folder = QFileInfo(target).path();
    // A disk that is not there any more has no room either, but that is not why.
    return !QFileInfo(Target::path(folder)).isDir() || MassStorage::storageFreeRoom(folder) >= bytes / kKilobyte;
}

} // namespace

CopyBatch::Result CopyBatch::run()
{
    std::vector<std::unique_ptr<ItemCopy>> items;
    for (const Job &job : m_jobs) {
        items.push_back(std::make_unique<ItemCopy>(job.source, job.target));
        m_bytes += items.back()->size();
    }
    qint64 before = 0;
    for (std::size_t i = 0; i < items.size(); ++i) {
        m_current = int(i);
        ItemCopy &item = *items[i];
        if (!hasRoom(m_jobs.at(int(i)).target, item.size())) {
            m_error = qt_error_string(ENOSPC);
            return NoRoom;
        }
        const Result result = copy(item, before);
        if (result != Copied)
            return result;
        ++m_copied;
        before += item.size();
        items[i].reset();
    }
    return Copied;
}

CopyBatch::Result CopyBatch::copy(ItemCopy &item, qint64 before)
{
    FileCopy::State state = FileCopy::Running;
    while (state == FileCopy::Running && !m_cancelled) {
        state = item.copyPiece();
        if (m_bytes > 0)
            m_progress = double(before + item.copied()) / double(m_bytes);
    }
    if (state == FileCopy::Done)
        return Copied;
    if (state == FileCopy::Running)
        return Cancelled;
    m_error = item.error();
    return item.isOutOfRoom() ? NoRoom : Failed;
}
