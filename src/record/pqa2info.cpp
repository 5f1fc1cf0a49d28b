#include "record/pqa2info.h"

#include "settings/derived.h"
#include "settings/softwareversion.h"
#include "platform/clock.h"

namespace {

/// "name;10mV/A 100A"; empty without a clamp.
QString clampText(const ClampInUse &clamp)
{
    if (clamp.name.isEmpty() && clamp.ratio == 0)
        return QString();
    return QStringLiteral("%1;%2mV/A %3A")
        .arg(clamp.name, QString::number(clamp.ratio / 1000.0, 'g', 6), QString::number(clamp.range));
}

/// "1/1;100/5"
QString ratioText(const TransformerRatio &volt, const TransformerRatio &current)
{
    return QStringLiteral("%1/%2;%3/%4")
        .arg(volt.numerator)
        .arg(volt.denominator)
        .arg(current.numerator)
        .arg(current.denominator);
}

} // namespace

QString firmwareOf(const QString &dspVersion)
{
    const QString mark = QStringLiteral("Firmware:");
    const int at = dspVersion.indexOf(mark);
    const QString version = at < 0 ? QString() : dspVersion.mid(at + mark.size()).section(QLatin1Char(';'), 0, 0);
    return version.isEmpty() ? QStringLiteral("None") : version;
}

QString getInstrumentInfo(const InstrumentLabels &labels)
{
    QString text;
    text += QStringLiteral("MODEL: %1\n").arg(labels.model);
    text += QStringLiteral("SN: %1\n").arg(labels.serialNumber);
    text += QStringLiteral("DT: %1\n").arg(Clock::now().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")));
    text += QStringLiteral("SV: %1\n")
                .arg(QStringLiteral("%1.%2.%3").arg(kSoftwareMajor).arg(kSoftwareMinor).arg(kSoftwareBuild));
    text += QStringLiteral("FV: %1\n").arg(firmwareOf(labels.dspVersion));
    return text;
}

QString getSystemSetting(const Derived &setUp)
{
    const QString wiring = setUp.channels ? QString::fromLatin1(setUp.channels->fullName) : QString();
    QString text;
    text += QStringLiteral("Fnom: %1\n").arg(QStringLiteral("%1Hz").arg(int(setUp.nominalFrequency)));
    text += QStringLiteral("Unom: %1\n").arg(QStringLiteral("%1V").arg(double(setUp.realNominalVolt)));
    text += QStringLiteral("Join: %1_%2\n").arg(wiring).arg(setUp.joinMode);
    text += QStringLiteral("Clamp: %1\n").arg(clampText(setUp.clamp));
    text += QStringLiteral("Ratio: %1\n").arg(ratioText(setUp.ratioV, setUp.ratioI));
    text += QStringLiteral("ClampN: %1\n").arg(clampText(setUp.clampN));
    text += QStringLiteral("RatioN: %1\n").arg(ratioText(setUp.ratioVN, setUp.ratioIN));
    return text;
}

QByteArray getChannelFactor(const ScaleTable &scales)
{
    QByteArray factors;
    for (const auto *group : { &scales.voltage, &scales.current, &scales.power }) {
        for (const float scale : *group) {
            const float factor = float(double(scale) * 10.0 * 3.0517578125e-5);
            factors.append(reinterpret_cast<const char *>(&factor), int(sizeof factor));
        }
    }
    return factors;
}
