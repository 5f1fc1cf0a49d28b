#include "shell/systemtray.h"

#include "settings/config_data.h"
#include "settings/recordinfo.h"
#include "board/battery.h"
#include "board/network.h"

#include <algorithm>
#include <iterator>

constexpr int kCycle = 1000; // ms
constexpr int kFirstReadings = 3; // of the battery, until its steps have settled

// Icons that the collecting itself adds and removes, in the order in which they take turns: what the user acts on
// first.
static const char *const kRecording = "inRecording";
static const char *const kUsb = "USB";
static const char *const kBds = "bds";
static const char *const kWired = "netWireConnected";
static const char *const kWireless = "wirelessConnected";
static const char *const kOrder[] = { kRecording, kUsb, kBds, kWired, kWireless };
static const char *const kUnplugged = "netWireBroken";

SystemTray::SystemTray(QObject *parent) : QObject(parent)
{
    Battery::batteryInit();
    for (int i = 0; i < kFirstReadings; ++i)
        changeBatteryIcon(Battery::batteryStatus());
    connect(&m_timer, &QTimer::timeout, this, &SystemTray::collectSystemInfo);
    m_timer.start(kCycle);
}

void SystemTray::addInfo(const QString &info)
{
    if (!m_infos.contains(info))
        m_infos.append(info);
}

void SystemTray::removeInfo(const QString &info)
{
    m_infos.removeAll(info);
}

/// Place of an icon in the order of turns; foreign ones come last.
static int rank(const QString &icon)
{
    const auto *found = std::find_if(std::begin(kOrder), std::end(kOrder),
                                     [&icon](const char *own) { return icon == QLatin1String(own); });
    return int(found - std::begin(kOrder));
}

void SystemTray::addIcon(const QString &icon)
{
    if (icon.isEmpty() || m_icons.contains(icon))
        return;
    m_icons.append(icon);
    std::stable_sort(m_icons.begin(), m_icons.end(),
                     [](const QString &a, const QString &b) { return rank(a) < rank(b); });
}

void SystemTray::removeIcon(const QString &icon)
{
    m_icons.removeAll(icon);
}

void SystemTray::setIcon(const char *icon, bool shown)
{
    if (shown)
        addIcon(QString::fromLatin1(icon));
    else
        removeIcon(QString::fromLatin1(icon));
}

QString SystemTray::batteryIcon(int status)
{
    static const char *const kIcons[]
        = { "battery_0", "battery_1", "battery_2", "battery_3", "battery_f", "battery_charging", "battery_charged" };
    // Without a gauge there is no battery to tell about: the name that has no picture.
    const bool known = status >= Battery::Low && status <= Battery::Charged;
    return QString::fromLatin1(kIcons[known ? status : 0]);
}

void SystemTray::changeBatteryIcon(int status)
{
    m_batteryIcon = batteryIcon(status);
}

void SystemTray::usingBDS(quint32 word)
{
    // Kept: the processor never reports that it lost its satellites, so that the icon stays once it was shown.
    setIcon(kBds, word != 0);
}

void SystemTray::tellStorage()
{
    const bool refuses = m_storageRefuses && m_storageRefuses();
    const QString info = refuses ? tr("Nothing is stored:\nstorage full") : QString();
    if (info == m_storageInfo)
        return;
    removeInfo(m_storageInfo); // of another language, perhaps
    m_storageInfo = info;
    if (refuses)
        addInfo(info);
}

QString SystemTray::infoInTurn() const
{
    const int turn = m_turn % (m_infos.size() + 1);
    return turn == 0 ? m_settingConfig_g.systemInfo() : m_infos.at(turn - 1);
}

QString SystemTray::iconInTurn() const
{
    return m_icons.isEmpty() ? QString::fromLatin1(kUnplugged) : m_icons.at(m_turn % m_icons.size());
}

void SystemTray::collectSystemInfo()
{
    changeBatteryIcon(Battery::batteryStatus());
    setIcon(kRecording, RecordInfo::m_in_recording);
    setIcon(kUsb, m_disks.hasMassStorage());
    setIcon(kWired, NetWork::checkNetwireStatus(QStringLiteral("eth0")));
    setIcon(kWireless, m_wirelessJoined && m_wirelessJoined());

    tellStorage();

    emit refreshSystemInfo(infoInTurn());
    emit refreshSystemIcon(iconInTurn(), m_batteryIcon);
    m_turn = (m_turn + 1) & 0xffff;
}
