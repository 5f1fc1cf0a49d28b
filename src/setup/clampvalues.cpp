#include "setup/clampvalues.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int kPlaces = 3; // behind the point, in mV/A
constexpr int kPerMillivolt = 1000; // uV/A

bool matches(const char *pattern, const QString &text)
{
    const QRegularExpression whole(QRegularExpression::anchoredPattern(QLatin1String(pattern)));
    return whole.match(text).hasMatch();
}

} // namespace

std::optional<int> ClampValues::ratioOf(const QString &typed)
{
    if (!matches(kSensitivityPattern, typed))
        return std::nullopt;
    const int point = typed.indexOf(QLatin1Char('.'));
    if (point < 0)
        return typed.toInt() * kPerMillivolt;
    return typed.mid(point + 1).leftJustified(kPlaces, QLatin1Char('0')).toInt();
}

QString ClampValues::sensitivity(int ratio)
{
    QString text = QString::number(ratio / double(kPerMillivolt), 'f', kPlaces);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text;
}

QString ClampValues::sensitivityText(int ratio)
{
    return sensitivity(ratio) + QStringLiteral(" mV/A");
}

QString ClampValues::rangeText(int amps)
{
    return QStringLiteral("%1 A").arg(amps);
}

int ClampValues::changeRangeMax(int ratio, int bound)
{
    constexpr int kLargestOutput = 2000000; // uV
    return ratio == 0 ? bound : std::max(kLargestOutput / ratio, 1);
}

QString ClampValues::description(const QString &name, bool flexible)
{
    return name + (flexible ? QStringLiteral(", flexible") : QStringLiteral(", Not flexible"))
        + QStringLiteral(", Editable");
}
