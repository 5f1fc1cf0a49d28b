#include "settings/calibfile.h"

#include <QByteArray>
#include <QDir>

#include "platform/debuglog.h"
#include "platform/target.h"
#include "storage/safefile.h"
#include "storage/wholefile.h"

#include <cstring>

namespace {
const char kFile[] = "/mnt/calibration/calibration.dat";
const char kFolder[] = "/mnt/calibration/";
constexpr qint64 kLargestFile = 64 * 1024; // bytes; what stands behind the block is not taken
}

CalibFile::CalibFile()
{
    QDir().mkpath(Target::path(QLatin1String(kFolder)));
    initCalibData();
    load();
}

void CalibFile::initCalibData()
{
    static const float voltGain[4] = { 39.8f, 79.25f, 153.6f, 667.0f }; // 120, 220, 400, 600 V
    static const float currentGain[4] = { 99.4f, 214.45f, 285.72f, 71.45f };
    m_data = {};
    for (int row = 0; row < 4; ++row) {
        for (int channel = 0; channel < 4; ++channel) {
            m_data.volt[row][channel] = voltGain[row];
            m_data.current[row][channel] = currentGain[row];
        }
    }
    for (float &factor : m_data.factors)
        factor = 1.0f;
}

void CalibFile::load()
{
    QByteArray bytes;
    const WholeFile::Reading reading = WholeFile::read(QLatin1String(kFile), kLargestFile, &bytes);
    m_unread = reading == WholeFile::Failed;
    if (reading == WholeFile::Missing)
        save();
    if (m_unread)
        QUVERA_DEBUG("read calib file error!");
    // Whole floats only: half a number would be a wild one.
    const size_t floats = qMin(static_cast<size_t>(bytes.size()), sizeof(m_data)) / sizeof(float);
    memcpy(&m_data, bytes.constData(), floats * sizeof(float));
}

void CalibFile::save()
{
    if (m_unread) {
        QUVERA_DEBUG("calib file could not be read, is not written over");
        return;
    }
    const QByteArray bytes(reinterpret_cast<const char *>(&m_data), sizeof(m_data));
    if (!SafeFile::replace(QLatin1String(kFile), bytes)) {
        QUVERA_DEBUG("open calib file error!");
        return;
    }
    Target::shell(QStringLiteral("sync"));
}
