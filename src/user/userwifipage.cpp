#include "user/userwifipage.h"
#include "ui_userwifipage.h"

#include "board/network.h"
#include "user/wlansettingdialog.h"
#include "widgets/controls/labellook.h"

#include <algorithm>

namespace {

constexpr int kTop = 40, kPitch = 30; // of the lines, pixels
constexpr int kRefreshMs = 1000;

const QString kInterface = QStringLiteral("wlan0");

/// The daemon's words while it joins.
const char *const kJoiningStates[]
    = { "AUTHENTICATING", "ASSOCIATING", "ASSOCIATED", "4WAY_HANDSHAKE", "GROUP_HANDSHAKE" };

bool isJoiningState(const QString &state)
{
    return std::any_of(std::begin(kJoiningStates), std::end(kJoiningStates),
                       [&state](const char *word) { return state == QLatin1String(word); });
}

/// The daemon knows the address a little later than the kernel has it.
QString addressInUse()
{
    const QString address = NetWork::getIfIpaddr(kInterface);
    return address.isEmpty() ? Wifi::status.ip_address : address;
}

QString orUnknown(const QString &text)
{
    return text.isEmpty() ? UserWifiPage::tr("UNKNOWN") : text;
}

} // namespace

UserWifiPage::UserWifiPage(QWidget *parent)
    : ListPage(UI_USER, Lines, KeyRepeat::Pace(), parent), m_ui(new Ui::UserWifiPage)
{
    static const KeyRow<UserWifiPage> keys[] = {
        { Qt::Key_F1, nullptr, &UserWifiPage::switchWifi }, // its caption follows the state
        { Qt::Key_F4, QT_TRANSLATE_NOOP("UserWifiPage", "Connect To"), &UserWifiPage::connectSsid },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("UserWifiPage", "Exit"), &UserWifiPage::goUserMain },
    };
    m_ui->setupUi(this);
    addLines();
    LabelLook::dress(this);
    m_ui->verticalScrollBar->setPageStep(kLines);
    setScrollBar(m_ui->verticalScrollBar);
    setKeys(keys);
    m_refresh.setInterval(kRefreshMs);
    connect(&m_refresh, &QTimer::timeout, this, &UserWifiPage::connStatus);
    if (wifi) {
        connect(wifi, &Wifi::networksChanged, this, &UserWifiPage::updateResults);
        connect(wifi, &Wifi::statusChanged, this, &UserWifiPage::showConnection);
    }
}

UserWifiPage::~UserWifiPage() = default;

void UserWifiPage::addLines()
{
    const auto label = [this](const QString &name, int line, int left, int width) {
        auto *made = new QLabel(this);
        made->setObjectName(QStringLiteral("%1_%2").arg(name).arg(line));
        made->setGeometry(left, kTop + line * kPitch, width, kPitch);
        made->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        made->setTextFormat(Qt::PlainText); // names from the air may look like markup
        return made;
    };
    for (int i = 0; i < kLines; ++i) {
        m_lines[std::size_t(i)]
            = { label(QStringLiteral("name"), i, 20, 360), label(QStringLiteral("level"), i, 390, 100),
                label(QStringLiteral("security"), i, 500, 96) };
    }
}

std::vector<FrontKeys::Row> UserWifiPage::commonKeys()
{
    std::vector<FrontKeys::Row> rows { { Qt::Key_Enter, nullptr, [this] { connectSsid(); }, {}, 0, {} } };
    for (FrontKeys::Row &row : ListPage::commonKeys())
        rows.push_back(std::move(row));
    return rows;
}

void UserWifiPage::init_parameter()
{
    ListPage::init_parameter();
    m_list.reset();
    updateResults();
    showConnection();
}

void UserWifiPage::retranslateUi()
{
    ListPage::retranslateUi();
    setText(m_ui->title, tr("WLAN"));
    setText(m_ui->ssid_t, tr("SSID:"));
    setText(m_ui->state_t, tr("Status:"));
    setText(m_ui->address_t, tr("Address:"));
    setText(m_ui->netmask_t, tr("Netmask:"));
    setText(m_ui->gateway_t, tr("Gateway:"));
    showList();
    showConnection();
}

void UserWifiPage::showEvent(QShowEvent *event)
{
    ListPage::showEvent(event);
    initWifi();
}

void UserWifiPage::hideEvent(QHideEvent *event)
{
    // However the page is left.
    m_refresh.stop();
    Wifi::restoreScanInv();
    ListPage::hideEvent(event);
}

void UserWifiPage::initWifi()
{
    Wifi::accScanInv();
    scanWifi();
    connStatus();
    m_refresh.start();
}

void UserWifiPage::scanWifi()
{
    Wifi::startScan();
    Wifi::scanResults();
}

void UserWifiPage::switchWifi()
{
    isOpen() ? closeWifi() : openWifi();
}

void UserWifiPage::openWifi()
{
    Wifi::open();
    connStatus();
}

void UserWifiPage::closeWifi()
{
    Wifi::close();
    Wifi::status = {}; // the next answer of the daemon says the same
    m_joining = false;
    showConnection();
}

void UserWifiPage::connectSsid()
{
    if (m_list.selected() < 0)
        return;
    const WifiInfo info = m_networks.at(m_list.selected());
    if (!wlanSettingDialog::isSecured(info) && !wlanSettingDialog::isHidden(info)) {
        join(info, QString());
        return;
    }
    wlanSettingDialog dialog(info);
    if (dialog.exec() == QDialog::Accepted)
        join(dialog.network(), dialog.password());
}

void UserWifiPage::join(const WifiInfo &info, const QString &password)
{
    if (!Wifi::is_opened)
        Wifi::open();
    m_joining = true;
    wlanSettingDialog::connect2wifi(info, password, this, [this](bool) {
        m_joining = false;
        connStatus();
    });
    showConnection();
}

void UserWifiPage::connStatus()
{
    Wifi::scanStatus();
    showConnection();
}

QString UserWifiPage::stateText() const
{
    if (Wifi::isWifiConnected() && !m_joining)
        return tr("Connected");
    if (m_joining || isJoiningState(Wifi::status.wpa_state))
        return tr("Connecting");
    // Opening ends with the first join; without a daemon there is no state at all.
    const QString &state = Wifi::status.wpa_state;
    if (Wifi::is_opened && !state.isEmpty() && (Wifi::is_openning || state == QLatin1String("SCANNING")))
        return tr("Scanning");
    return tr("Disconnect");
}

void UserWifiPage::showConnection()
{
    const bool connected = Wifi::isWifiConnected();
    setKeyCaption(1, isOpen() ? tr("Close") : tr("Open"));
    setText(m_ui->state, stateText());
    setText(m_ui->ssid, connected ? Wifi::hexStr2QString(Wifi::status.ssid) : QString());
    setText(m_ui->address, orUnknown(connected ? addressInUse() : QString()));
    setText(m_ui->netmask, orUnknown(connected ? NetWork::getIfNetmask(kInterface) : QString()));
    setText(m_ui->gateway, orUnknown(connected ? NetWork::getIfGateway() : QString()));
}

void UserWifiPage::updateResults()
{
    showNetworks(Wifi::networks());
}

void UserWifiPage::showNetworks(const QVector<WifiInfo> &networks)
{
    const int selected = m_list.selected();
    const QString bssid = selected >= 0 ? m_networks.at(selected).bssid() : QString();
    m_networks = networks;
    m_list.setCount(m_networks.size());
    const auto same = [&bssid](const WifiInfo &info) { return info.bssid() == bssid; };
    const auto found = std::find_if(m_networks.cbegin(), m_networks.cend(), same);
    if (found != m_networks.cend())
        m_list.moveLines(int(found - m_networks.cbegin()) - m_list.selected());
    refreshList();
}

void UserWifiPage::showLine(const Line &line, const WifiInfo &info)
{
    const QString name = line.name->fontMetrics().elidedText(info.shownName(), Qt::ElideRight, line.name->width());
    setText(line.name, name);
    setText(line.level, tr("%1 dBm").arg(info.level()));
    setText(line.security, wlanSettingDialog::isSecured(info) ? tr("secured") : QString());
}

void UserWifiPage::showList()
{
    for (int i = 0; i < kLines; ++i) {
        const Line &line = m_lines[std::size_t(i)];
        if (m_list.first() + i < m_list.end()) {
            showLine(line, m_networks.at(m_list.first() + i));
            continue;
        }
        for (QLabel *label : { line.name, line.level, line.security })
            setText(label, QString());
    }
    m_ui->verticalScrollBar->setVisible(m_list.count() > kLines);
    m_ui->list_bar->setVisible(m_list.count() > 0);
    m_ui->list_bar->move(m_ui->list_bar->x(), kTop + m_list.row() * kPitch);
    setText(m_ui->count,
            m_list.count() > 0 ? QStringLiteral("%1 / %2").arg(m_list.selected() + 1).arg(m_list.count())
                               : tr("no networks"));
}
