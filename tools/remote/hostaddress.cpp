#include "remote/hostaddress.h"

#include <QHostInfo>

QHostAddress hostAddress(const QString &host)
{
    const QHostAddress literal(host);
    if (!literal.isNull())
        return literal;
    const auto addresses = QHostInfo::fromName(host).addresses();
    for (const QHostAddress &address : addresses) {
        if (address.protocol() == QAbstractSocket::IPv4Protocol) // the instrument listens on IPv4
            return address;
    }
    return {};
}
