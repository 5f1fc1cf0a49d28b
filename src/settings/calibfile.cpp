#include "settings/calibfile.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "storage/safefile.h"
#include "platform/debuglog.h"
#include "platform/target.h"

#include <cstring>

namespace {
const char kFile[] = "/mnt/calibration/calibration.dat";
const char kFolder[] = "/mnt/calibration/";
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
    const QString path = Target::path(QLatin1String(kFile));
    if (!QFileInfo::exists(path)) {
        save();
        return;
    }
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return;
    const QByteArray bytes = file.read(sizeof(m_data));
    // Whole floats only: half a number would be a wild one.
    memcpy(&m_data, bytes.constData(), static_cast<size_t>(bytes.size()) / sizeof(float) * sizeof(float));
}

void CalibFile::save()
{
    const QByteArray bytes(reinterpret_cast<const char *>(&m_data), sizeof(m_data));
    if (!SafeFile::replace(QLatin1String(kFile), bytes)) {
        QUVERA_DEBUG("open calib file error!");
        return;
    }
    Target::shell(QStringLiteral("sync"));
}
