#pragma once

#include "platform/target.h"

#include <QFile>
#include <QString>

/// The kernel's files of one GPIO line, by the shell commands and reads that the board services share.
namespace GpioFiles {

inline void exportLine(int line)
{
    Target::shell(QStringLiteral("echo %1 > /sys/class/gpio/export").arg(line));
}

/// `way`: "in" or "out".
inline void setDirection(int line, const QString &way)
{
    Target::shell(QStringLiteral("echo %1 > /sys/class/gpio/gpio%2/direction").arg(way).arg(line));
}

inline void writeValue(int line, bool high)
{
    Target::shell(QStringLiteral("echo %1 > /sys/class/gpio/gpio%2/value").arg(high ? 1 : 0).arg(line));
}

/// Whether an input line reads "1\n".
inline bool isHigh(int line)
{
    QFile file(Target::path(QStringLiteral("/sys/class/gpio/gpio%1/value").arg(line)));
    return file.open(QIODevice::ReadOnly) && file.read(8) == "1\n";
}

} // namespace GpioFiles
