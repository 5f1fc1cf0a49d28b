#pragma once

#include <QByteArray>
#include <QString>

/// Names of wireless networks. A name is up to 32 bytes of anything; the daemon prints it with escapes, so that every
/// name is one line of printable ASCII.
namespace SsidText {

constexpr int kLongestSsid = 32; // bytes, IEEE 802.11 9.4.2.2

/// The bytes behind the daemon's text: \x and two hexadecimal digits, \\, \", \e, \n, \r, \t. What is no escape of
/// these stays as it stands.
QByteArray unescaped(const QString &text);
/// The daemon's text of these bytes.
QString escaped(const QByteArray &ssid);
/// What a person reads: UTF-8, with U+FFFD for every byte or character that cannot be shown (control characters,
/// changes of direction and the like). Show it as plain text: a name may look like markup.
QString shown(const QByteArray &ssid);
/// Whether the network hides its name: it is empty, or zero bytes stand for its letters.
bool isHidden(const QByteArray &ssid);

} // namespace SsidText
