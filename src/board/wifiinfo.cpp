#include "board/wifiinfo.h"

#include "board/ssidtext.h"

QByteArray WifiInfo::ssidBytes() const
{
    return SsidText::unescaped(m_data->ssid);
}

QString WifiInfo::shownName() const
{
    const QByteArray name = ssidBytes();
    return SsidText::isHidden(name) ? QStringLiteral("[Unknown]") : SsidText::shown(name);
}
