#pragma once

#include "platform/ordinaryfile.h"
#include "platform/target.h"

#include <QString>

/// The kernel's files of one GPIO line, by the shell commands and reads that the board services share.
namespace GpioFiles {

/// Through the shell, which would wait for the reader of a pipe that stands there.
inline void tell(const QString &text, const QString &file)
{
    if (!OrdinaryFile::waitsForReader(Target::path(file)))
        Target::shell(QStringLiteral("echo %1 > %2").arg(text, file));
}

inline void exportLine(int line)
{
    tell(QString::number(line), QStringLiteral("/sys/class/gpio/export"));
}

/// `way`: "in" or "out".
inline void setDirection(int line, const QString &way)
{
    tell(way, QStringLiteral("/sys/class/gpio/gpio%1/direction").arg(line));
}

inline void writeValue(int line, bool high)
{
    tell(QString::number(high ? 1 : 0), QStringLiteral("/sys/class/gpio/gpio%1/value").arg(line));
}

/// Whether an input line reads "1\n".
inline bool isHigh(int line)
{
    return OrdinaryFile::start(Target::path(QStringLiteral("/sys/class/gpio/gpio%1/value").arg(line)), 8) == "1\n";
}

} // namespace GpioFiles
