#pragma once

#include <QString>

/// The cable of a network interface. On the board the kernel knows; on a desk the host's own cable says nothing about
/// the instrument, so a file under the root can stand before it. Any thread.
class Cable
{
public:
    /// Whether the cable of interface `name` is in. `kernelSaysRunning` is the flag that the kernel gives, and the
    /// answer on the board. On a desk "/sys/class/net/<name>/carrier" under the root decides with "1" or "0"; where it
    /// is missing or holds something else, the kernel's flag stands.
    static bool isIn(const QString &name, bool kernelSaysRunning);
};
