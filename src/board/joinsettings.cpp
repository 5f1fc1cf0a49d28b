#include "board/joinsettings.h"

#include "board/ssidtext.h"
#include "board/wpachannel.h"

#include <algorithm>

namespace {

constexpr int kRawKeyLength = 64; // hexadecimal digits of a pre-shared key of 256 bits

/// Kind of key by the flags of a network; the first row that is found counts.
struct KeyKind
{
    const char *flag;
    const char *proto; // null: the daemon's default
    const char *keyManagement;
};
constexpr KeyKind kKeyKinds[] = {
    { "[WPA2-PSK", "WPA2", "WPA-PSK" },
    { "[WPA-PSK", nullptr, "WPA-PSK" },
    { "[WPA2-EAP", "WPA2", "WPA-EAP" },
    { "[WPA-EAP", nullptr, "WPA-EAP" },
};
constexpr KeyKind kNoKey = { "", nullptr, "NONE" }; // "[WPS]" alone, or none of all

bool isPrintable(char c)
{
    return c >= 0x20 && c < 0x7f;
}

bool isNameLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

const KeyKind &keyKind(const QString &flags)
{
    for (const KeyKind &kind : kKeyKinds) {
        if (flags.contains(QLatin1String(kind.flag)))
            return kind;
    }
    return kNoKey;
}

QByteArray ssidValue(const QByteArray &ssid)
{
    const bool quotable
        = std::all_of(ssid.begin(), ssid.end(), [](char c) { return isPrintable(c) && c != '"' && c != '\\'; });
    return quotable ? '"' + ssid + '"' : ssid.toHex();
}

} // namespace

QVector<NetworkSetting> JoinSettings::withoutAuth(const WifiInfo &info)
{
    return { { "ssid", info.ssidBytes(), true }, { "key_mgmt", "NONE", false }, { "scan_ssid", "1", false } };
}

QVector<NetworkSetting> JoinSettings::withAuth(const WifiInfo &info, const QString &password)
{
    const KeyKind &kind = keyKind(info.flags());
    QVector<NetworkSetting> settings { { "ssid", info.ssidBytes(), true }, { "scan_ssid", "1", false } };
    if (kind.proto)
        settings.append({ "proto", kind.proto, false });
    settings.append({ "key_mgmt", kind.keyManagement, false });
    settings.append({ "psk", password.toUtf8(), password.size() != kRawKeyLength });
    return settings;
}

QVector<NetworkSetting> JoinSettings::leftToDefault(const WifiInfo &info)
{
    if (keyKind(info.flags()).proto)
        return {};
    return { { "proto", "WPA RSN", false } };
}

QByteArray JoinSettings::command(int id, const NetworkSetting &setting)
{
    const QByteArray &name = setting.name;
    const QByteArray &value = setting.value;
    if (id < 0 || name.isEmpty() || !std::all_of(name.begin(), name.end(), isNameLetter))
        return {};
    const QByteArray start = "SET_NETWORK " + QByteArray::number(id) + ' ' + name + ' ';
    if (name == "ssid" && setting.quoted) {
        const bool fits = !value.isEmpty() && value.size() <= SsidText::kLongestSsid;
        return fits ? start + ssidValue(value) : QByteArray();
    }
    if (value.isEmpty() || std::any_of(value.begin(), value.end(), WpaChannel::isControl))
        return {};
    return start + (setting.quoted ? '"' + value + '"' : value);
}
