#pragma once

#include "board/wifiinfo.h"

#include <QByteArray>

/// The wireless daemon's state as the pages show it; all empty until an answer came.
struct __wifi_status
{
    QString wpa_state; // "COMPLETED" when joined
    QString ssid; // with the daemon's escapes
    QString ip_address;
    QString bssid;
    QString key_mgmt;
};

/// Readers of the wireless daemon's answers: any bytes, any length.
namespace WpaAnswers {

bool isOk(const QByteArray &answer); // "OK", with or without a line feed
/// The number of a new network; -1 for anything but a number.
int networkNumber(const QByteArray &answer);
/// Value of the first line that begins with `name` and "="; empty when there is none.
QString value(const QByteArray &answer, const char *name);
__wifi_status status(const QByteArray &answer);
/// Whether an answer to "BSS n" ends the list.
bool endsList(const QByteArray &answer);
WifiInfo network(const QByteArray &answer);
/// Number of the stored network with this name (its bytes); -1 without one. The first of several counts.
int networkId(const QByteArray &list, const QByteArray &ssid);
/// An unsolicited line without its level mark "<n>".
QByteArray eventText(const QByteArray &line);

} // namespace WpaAnswers
