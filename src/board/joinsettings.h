#pragma once

#include "board/wifiinfo.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/// One value of a stored network.
struct NetworkSetting
{
    QByteArray name;
    QByteArray value;
    bool quoted; // a text, not a word or number
};

/// What the daemon must know of a network to join it.
namespace JoinSettings {

/// A network without a password.
QVector<NetworkSetting> withoutAuth(const WifiInfo &info);
/// A network with a password; the kind of key follows from its flags. 64 characters are a raw hexadecimal key.
QVector<NetworkSetting> withAuth(const WifiInfo &info, const QString &password);
/// What a stored network may hold of what it was before, and withAuth() leaves alone: the daemon's default instead.
/// Nothing where withAuth() says it all.
QVector<NetworkSetting> leftToDefault(const WifiInfo &info);

/// The command that stores a value: "SET_NETWORK 0 ssid "name"". A name that quotes cannot carry safely (quotes,
/// backslashes, anything but printable ASCII) goes as hexadecimal digits, which the daemon takes for this field. Empty
/// when the value cannot be sent at all: other values with control characters, a name of 0 or more than 32 bytes, a
/// field's name that is not of lower-case letters, digits and underscores, a negative number.
QByteArray command(int id, const NetworkSetting &setting);

} // namespace JoinSettings
