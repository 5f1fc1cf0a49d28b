#include "desk/wirelessstandin.h"

#include <QDir>
#include <QFile>

#include <cstring>
#include <iterator>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int kLookMs = 50; // how often the thread looks whether it shall end
constexpr int kLongestCommand = 4096;

struct Network
{
    const char *name, *flags;
    int level;
};
constexpr Network kNetworks[] = {
    { "Substation 12", "[WPA2-PSK-CCMP][ESS]", -48 },
    { "Switchgear-Hall-B", "[WPA-PSK-TKIP][WPA2-PSK-CCMP][ESS]", -61 },
    { "Visitors", "[ESS]", -67 },
    { "", "[WPA2-PSK-CCMP][ESS]", -72 }, // hides its name
    { "A name of two and thirty letters", "[WPA2-PSK-CCMP][ESS]", -83 },
};

QByteArray network(int number)
{
    if (number < 0 || number >= int(std::size(kNetworks)))
        return "FAIL\n";
    const Network &one = kNetworks[number];
    return "bssid=02:00:00:00:00:0" + QByteArray::number(number) + "\nfreq=2437\nlevel=" + QByteArray::number(one.level)
        + "\nflags=" + one.flags + "\nssid=" + one.name + '\n';
}

} // namespace

WirelessStandIn::WirelessStandIn(const QString &root)
    : m_path(QFile::encodeName(root + QStringLiteral("/var/run/wpa_supplicant/wlan0"))),
      m_status("wpa_state=DISCONNECTED\n")
{
    sockaddr_un address {};
    address.sun_family = AF_UNIX;
    if (m_path.size() >= int(sizeof address.sun_path))
        return;
    std::memcpy(address.sun_path, m_path.constData(), std::size_t(m_path.size()));
    QDir().mkpath(QFileInfo(QFile::decodeName(m_path)).path());
    ::unlink(m_path.constData());
    m_socket = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (m_socket >= 0 && ::bind(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
        ::close(m_socket);
        m_socket = -1;
    }
    if (m_socket >= 0)
        m_thread = std::thread([this] { serve(); });
}

WirelessStandIn::~WirelessStandIn()
{
    if (m_socket < 0)
        return;
    m_ends = true;
    m_thread.join();
    ::close(m_socket);
    ::unlink(m_path.constData());
}

void WirelessStandIn::serve()
{
    while (!m_ends) {
        pollfd wait { m_socket, POLLIN, 0 };
        if (::poll(&wait, 1, kLookMs) <= 0)
            continue;
        char buffer[kLongestCommand];
        sockaddr_un client {};
        socklen_t size = sizeof client;
        const ssize_t length
            = ::recvfrom(m_socket, buffer, sizeof buffer, 0, reinterpret_cast<sockaddr *>(&client), &size);
        if (length < 0)
            continue;
        const QByteArray text = answer(QByteArray(buffer, int(length)));
        ::sendto(m_socket, text.constData(), std::size_t(text.size()), MSG_NOSIGNAL,
                 reinterpret_cast<const sockaddr *>(&client), size);
    }
}

QByteArray WirelessStandIn::answer(const QByteArray &command)
{
    const QList<QByteArray> words = command.split(' ');
    const QByteArray &word = words.first();
    if (word == "PING")
        return "PONG\n";
    if (word == "BSS")
        return network(words.value(1).toInt());
    if (word == "STATUS")
        return m_status;
    if (word == "ADD_NETWORK")
        return "0\n";
    if (word == "LIST_NETWORKS")
        return "network id / ssid / bssid / flags\n";
    if (word == "REASSOCIATE")
        m_status = "wpa_state=SCANNING\n";
    else if (word == "DISCONNECT")
        m_status = "wpa_state=DISCONNECTED\n";
    else if (command.startsWith("SET_NETWORK 0 ssid "))
        m_joined = command.mid(int(std::strlen("SET_NETWORK 0 ssid "))).replace('"', "");
    else if (word == "SELECT_NETWORK")
        m_status = "bssid=02:00:00:00:00:00\nssid=" + m_joined + "\nwpa_state=COMPLETED\nip_address=10.0.0.7\n";
    return "OK\n";
}
