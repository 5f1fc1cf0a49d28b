#include "task/unitask.h"

#include "settings/recordinfo.h"
#include "device/datatypes.h"
#include "model/livedata.h"
#include "detect/flickerprocessor.h"
#include "record/pqa2ff.h"

// The flicker stream: severities for the pages, blocks for the files that record them.

namespace {

template <typename T> QByteArray blockHead(T value)
{
    return QByteArray(reinterpret_cast<const char *>(&value), sizeof(value));
}

/// Adds the blocks that hold a value behind their head.
void writeFlickerBlocks(Pqa2FF *file, const FlickerOutput &out, Pqa2DBType shortType, Pqa2DBType longType)
{
    if (!file || !file->isOpen())
        return;
    if (out.shortTerm)
        file->addDataBlock(shortType, out.shortBlock);
    if (out.longTerm)
        file->addDataBlock(longType, out.longBlock);
}

} // namespace

void UniTask::datagramFlicker(const QByteArray &bytes)
{
    const Call call(this);
    if (!DataTypes::fits(DatagramFlicker, bytes))
        return;
    DataTypes::datagramFlicker(m_flicker.get(), bytes.constData());
    if (!isLive())
        return;

    // The recorder's blocks start with the time in milliseconds, the monitor's with seconds.
    const bool monitoring = m_function == UniMonitor;
    const QByteArray head = monitoring ? blockHead(quint32(m_flicker->time / 1000)) : blockHead(m_flicker->time);
    const FlickerOutput out = m_flickerProcessor->process(*m_flicker, head, m_data.live().flicker);

    if (monitoring) {
        writeFlickerBlocks(m_monitorFile, out, Pqa2MonitorFlickerShort, Pqa2MonitorFlickerLong);
    } else if (m_function == UniBasic && isRecording() && (RecordInfo::m_recordItems & RecordInfo::Flicker)) {
        writeFlickerBlocks(m_commonFile, out, Pqa2FlickerShort, Pqa2FlickerLong);
    }
    if (m_function == UniBasic || monitoring)
        emit flickerTaken();
}
