#pragma once

#include <QString>

/// Asks the kernel about a network interface. Keeps no state; any thread. The name is cut to 15 characters.
class NetWork
{
public:
    /// Whether the interface runs (has a carrier); false on any failure.
    static bool checkNetwireStatus(const QString &name);
    static QString getIfIpaddr(const QString &name); // "192.168.2.100", or empty
    static QString getIfNetmask(const QString &name); // "255.255.255.0", or empty
    static QString getIfHwaddr(const QString &name); // "6e:69:75:53:1:a", hexadecimal without leading zeros, or empty
    /// Gateway of the default route; "0.0.0.0" without one.
    static QString getIfGateway();
};
