#pragma once

#include "platform/ordinaryfile.h"
#include "platform/target.h"

#include <QString>

/// The kernel's files of one GPIO line, by the writes and reads that the board services share.
namespace GpioFiles {

/// What the shell does for "echo TEXT > FILE", without a shell: the start writes some thirty such lines, and as many
/// processes were half of it.
inline void tell(const QString &text, const QString &file)
{
    OrdinaryFile::echo(Target::path(file), text.toLatin1() + '\n');
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
