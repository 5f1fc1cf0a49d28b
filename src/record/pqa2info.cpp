#include "record/pqa2info.h"

#include "settings/config_data.h"
#include "settings/softwareversion.h"
#include "device/idevice.h"
#include "platform/clock.h"

namespace {

/// "name;10mV/A 100A"
QString clampText(const Clamp *clamp)
{
    if (!clamp)
        return QString();
    return QStringLiteral("%1;%2mV/A %3A")
        .arg(clamp->name(), QString::number(clamp->ratio() / 1000.0, 'g', 6), QString::number(clamp->range()));
}

QString ratioText(int voltFenzi, int voltFenmu, int currentFenzi, int currentFenmu)
{
    return QStringLiteral("%1/%2;%3/%4").arg(voltFenzi).arg(voltFenmu).arg(currentFenzi).arg(currentFenmu);
}

} // namespace

QString firmwareOf(const QString &dspVersion)
{
    const QString mark = QStringLiteral("Firmware:");
    const int at = dspVersion.indexOf(mark);
    const QString version = at < 0 ? QString() : dspVersion.mid(at + mark.size()).section(QLatin1Char(';'), 0, 0);
    return version.isEmpty() ? QStringLiteral("None") : version;
}

QString getInstrumentInfo()
{
    const QString dsp = m_idevice ? m_idevice->dspVersion() : QString();
    QString text;
    text += QStringLiteral("MODEL: %1\n").arg(m_userConfig_g.getInstrumentModelName());
    text += QStringLiteral("SN: %1\n").arg(m_userConfig_g.getInstrumentSN());
    text += QStringLiteral("DT: %1\n").arg(Clock::now().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")));
    text += QStringLiteral("SV: %1\n")
                .arg(QStringLiteral("%1.%2.%3").arg(kSoftwareMajor).arg(kSoftwareMinor).arg(kSoftwareBuild));
    text += QStringLiteral("FV: %1\n").arg(firmwareOf(dsp));
    return text;
}

QString getSystemSetting()
{
    const SettingConfig &config = m_settingConfig_g;
    QString text;
    text += QStringLiteral("Fnom: %1\n").arg(QStringLiteral("%1Hz").arg(int(config.getNomFreq())));
    text += QStringLiteral("Unom: %1\n").arg(QStringLiteral("%1V").arg(double(config.getRealNominalVolt())));
    text += QStringLiteral("Join: %1_%2\n").arg(config.getJoinModeFullName()).arg(config.getJoinMode());
    text += QStringLiteral("Clamp: %1\n").arg(clampText(config.curClamp()));
    text += QStringLiteral("Ratio: %1\n")
                .arg(ratioText(config.getRatioVFenzi(), config.getRatioVFenmu(), config.getRatioIFenzi(),
                               config.getRatioIFenmu()));
    text += QStringLiteral("ClampN: %1\n").arg(clampText(config.curClampN()));
    text += QStringLiteral("RatioN: %1\n")
                .arg(ratioText(config.getRatioVNFenzi(), config.getRatioVNFenmu(), config.getRatioINFenzi(),
                               config.getRatioINFenmu()));
    return text;
}

QByteArray getChannelFactor()
{
    constexpr int kGroups[] = { 1, 2, 0 }; // rows of the scale table: voltage, current, power
    const float *wvi = m_settingConfig_g.wvi();
    QByteArray factors;
    for (const int group : kGroups) {
        for (int c = 0; c < 4; ++c) {
            const float factor = float(double(wvi[4 * group + c]) * 10.0 * 3.0517578125e-5);
            factors.append(reinterpret_cast<const char *>(&factor), int(sizeof factor));
        }
    }
    return factors;
}
