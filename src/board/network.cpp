#include "board/network.h"

#include "platform/cable.h"
#include "platform/target.h"

#include <QStringList>
#include <cstring>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

/// One request about the interface `name`; false when the kernel refuses it.
bool ask(unsigned long request, const QString &name, ifreq *answer)
{
    memset(answer, 0, sizeof(*answer));
    const QByteArray interface = name.toLocal8Bit().left(IFNAMSIZ - 1);
    memcpy(answer->ifr_name, interface.constData(), static_cast<size_t>(interface.size()));
    const int fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return false;
    const bool ok = ::ioctl(fd, request, answer) == 0;
    ::close(fd);
    return ok;
}

QString address(unsigned long request, const QString &name)
{
    ifreq answer;
    if (!ask(request, name, &answer))
        return {};
    sockaddr_in internet;
    memcpy(&internet, &answer.ifr_addr, sizeof(internet)); // the netmask stands in the same place
    const quint8 *byte = reinterpret_cast<const quint8 *>(&internet.sin_addr);
    return QStringLiteral("%1.%2.%3.%4").arg(byte[0]).arg(byte[1]).arg(byte[2]).arg(byte[3]);
}

} // namespace

bool NetWork::checkNetwireStatus(const QString &name)
{
    ifreq answer;
    return Cable::isIn(name, ask(SIOCGIFFLAGS, name, &answer) && (answer.ifr_flags & IFF_RUNNING));
}

QString NetWork::getIfIpaddr(const QString &name)
{
    return address(SIOCGIFADDR, name);
}

QString NetWork::getIfNetmask(const QString &name)
{
    return address(SIOCGIFNETMASK, name);
}

QString NetWork::getIfHwaddr(const QString &name)
{
    ifreq answer;
    if (!ask(SIOCGIFHWADDR, name, &answer))
        return {};
    QStringList bytes;
    for (int i = 0; i < 6; ++i)
        bytes << QString::number(static_cast<quint8>(answer.ifr_hwaddr.sa_data[i]), 16);
    return bytes.join(QLatin1Char(':'));
}

QString NetWork::getIfGateway()
{
    const QString routes = Target::shellOutput(QStringLiteral("ip route"));
    for (const QString &line : routes.split(QLatin1Char('\n'))) {
        if (!line.trimmed().startsWith(QLatin1String("default")))
            continue;
        char gateway[64] = "0.0.0.0";
        sscanf(line.toLatin1().constData(), "%*s%*s%63s", gateway);
        return QString::fromLatin1(gateway);
    }
    return QStringLiteral("0.0.0.0");
}
