#pragma once

#include <QString>
#include <QVector>

#include "settings/config.h"
#include "settings/settingrow.h"

#include <functional>

/// The values behind the keys of eth0.conf.
struct NetValues
{
    QString useDhcp, ipAddr, netMask, gateWay, netWork, mac;
};

/// The wired network's settings in "/mnt/userfs/config/eth0.conf", which the system's network script reads too.
/// Read at construction, stored at each change. GUI thread. Keys: docs/settings.md.
class NetConfig
{
public:
    NetConfig();

    static const QVector<SettingRow<NetValues>> &rows();
    static QString filePath(); // the board's

    /// What  change sets is stored in one write at its end: the network script never finds old and new addresses side
    /// by side, and the disk is waited for once.
    void changeTogether(const std::function<void()> &change);

    bool getIsDHCP() const;
    void setDHCP(bool on);
    // The setters of addresses store only what ipIsValid accepts.
    QString getIPAddr() const { return m_values.ipAddr; }
    void setIPAddr(const QString &address);
    QString getNetMask() const { return m_values.netMask; }
    void setNetMask(const QString &mask);
    QString getGateWay() const { return m_values.gateWay; }
    void setGateWay(const QString &address);
    QString getNetWork() const { return m_values.netWork; }
    void setNetWork(const QString &address);
    QString getMAC() const { return m_values.mac; }
    void setMAC(const QString &address);

    /// Four dotted decimal fields of 0 to 255, and not "0.0.0.0".
    static bool ipIsValid(const QString &text);
    /// The regular expression of such an address, for a full match.
    static QString addressExpression();

private:
    void store(QString NetValues::*member, const QString &value);
    void writeWaiting();
    void storeAddress(QString NetValues::*member, const QString &value);

    NetValues m_values;
    bool m_together = false;
    Config::Entries m_waiting; // set together, not written yet
};
