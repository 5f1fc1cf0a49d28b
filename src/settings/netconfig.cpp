#include "settings/netconfig.h"

#include <QRegularExpression>
#include <QRegularExpressionValidator>

QString NetConfig::filePath()
{
    return QStringLiteral("/mnt/userfs/config/eth0.conf");
}

const QVector<SettingRow<NetValues>> &NetConfig::rows()
{
    using V = NetValues;
    static const QVector<SettingRow<V>> table = {
        { "USE_DHCP", "0 or 1", "1", 0, 0, &V::useDhcp, "address by DHCP; anything but 0 is on" },
        { "IPADDR", "address", "192.168.2.100", 0, 0, &V::ipAddr, "address" },
        { "NETMASK", "address", "255.255.255.0", 0, 0, &V::netMask, "net mask" },
        { "GATEWAY", "address", "192.168.2.1", 0, 0, &V::gateWay, "gateway" },
        { "NETWORK", "address", "192.168.2.0", 0, 0, &V::netWork, "network address" },
        { "MAC", "text", "6E:69:75:53:01:0A", 0, 0, &V::mac, "hardware address" },
    };
    return table;
}

NetConfig::NetConfig()
{
    const QByteArray file = Config::readWhole(filePath());
    for (const auto &row : rows()) {
        const QString text = Config::valueIn(file, QLatin1String(row.key));
        m_values.*std::get<QString NetValues::*>(row.member)
            = text.isEmpty() ? QString::fromLatin1(row.defaultText) : text;
    }
}

void NetConfig::store(QString NetValues::*member, const QString &value)
{
    m_values.*member = value;
    for (const auto &row : rows()) {
        if (std::get<QString NetValues::*>(row.member) == member)
            m_waiting.append({ QLatin1String(row.key), value });
    }
    if (!m_together)
        writeWaiting();
}

void NetConfig::writeWaiting()
{
    if (!m_waiting.isEmpty())
        Config::writeConfigFile(filePath(), m_waiting);
    m_waiting.clear();
}

void NetConfig::changeTogether(const std::function<void()> &change)
{
    m_together = true;
    change();
    m_together = false;
    writeWaiting();
}

void NetConfig::storeAddress(QString NetValues::*member, const QString &value)
{
    if (ipIsValid(value))
        store(member, value);
}

bool NetConfig::getIsDHCP() const
{
    return m_values.useDhcp != QLatin1String("0");
}

void NetConfig::setDHCP(bool on)
{
    store(&NetValues::useDhcp, QLatin1String(on ? "1" : "0"));
}

void NetConfig::setIPAddr(const QString &address)
{
    storeAddress(&NetValues::ipAddr, address);
}

void NetConfig::setNetMask(const QString &mask)
{
    storeAddress(&NetValues::netMask, mask);
}

void NetConfig::setGateWay(const QString &address)
{
    storeAddress(&NetValues::gateWay, address);
}

void NetConfig::setNetWork(const QString &address)
{
    storeAddress(&NetValues::netWork, address);
}

void NetConfig::setMAC(const QString &address)
{
    store(&NetValues::mac, address);
}

QString NetConfig::addressExpression()
{
    return QStringLiteral("(?!0\\.0\\.0\\.0$)(([0-9]{1,2}|1[0-9]{2}|2[0-4][0-9]|25[0-5])\\.){3}"
                          "([0-9]{1,2}|1[0-9]{2}|2[0-4][0-9]|25[0-5])");
}

bool NetConfig::ipIsValid(const QString &text)
{
    static const QRegularExpression dottedQuad(addressExpression());
    const QRegularExpressionValidator validator(dottedQuad);
    QString candidate = text;
    int position = 0;
    return validator.validate(candidate, position) == QValidator::Acceptable;
}
