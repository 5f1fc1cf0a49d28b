#include "task/functions/recordfiles.h"

#include "record/pqa2device.h"
#include "task/recordfolder.h"

#include <algorithm>

namespace {

void storeStart(Pqa2FF &file, quint32 start)
{
    file.addDataBlock(Pqa2StartTime, QByteArray(reinterpret_cast<const char *>(&start), int(sizeof start)));
}

} // namespace

RecordFiles::RecordFiles(const MakeDevice &device)
    : m_makeDevice(device ? device : [] { return std::make_unique<Pqa2Device>(); })
{ }

void RecordFiles::open(const RecordFolder &folder, quint32 items, quint32 start)
{
    close();
    for (std::size_t i = 0; i < m_files.size(); ++i) {
        const RecordFileRow &row = recordFiles()[i];
        if (row.item && !(items & row.item))
            continue;
        auto file = std::make_unique<Pqa2FF>(m_makeDevice());
        if (!file->open(folder.file(QString::fromLatin1(row.name))))
            continue;
        file->continueInParts([start](Pqa2FF &part) { storeStart(part, start); });
        m_files[i] = std::move(file);
    }
    if (isOpen(CommonFile))
        storeStart(*m_files[CommonFile], start);
}

void RecordFiles::add(RecordFile file, quint32 type, const QByteArray &payload)
{
    if (isOpen(file)) // the raw form tells when there is no room
        m_files[file]->addDataBlock({ 0, type, quint32(payload.size()), payload.constData() });
}

void RecordFiles::log(const QByteArray &text)
{
    if (isOpen(CommonFile))
        m_files[CommonFile]->addSystemLog(text);
}

void RecordFiles::flushBehind()
{
    for (const auto &file : m_files) {
        if (file)
            file->flushBehind();
    }
}

bool RecordFiles::refuses() const
{
    return !isOpen(CommonFile)
        || std::any_of(m_files.begin(), m_files.end(), [](const auto &file) { return file && file->refuses(); });
}

void RecordFiles::close()
{
    for (auto &file : m_files)
        file.reset();
}
