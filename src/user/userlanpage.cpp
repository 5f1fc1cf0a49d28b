#include "user/userlanpage.h"

#include "board/network.h"
#include "settings/netconfig.h"
#include "widgets/controls/labellook.h"
#include "widgets/dialogs/virtualkeyboard.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPixmap>

namespace {

constexpr int kTop = 40, kPitch = 40; // of the rows, pixels
constexpr int kHeaderRow = 2; // the free row over the addresses
constexpr int kInUseTop = 290, kInUsePitch = 28; // of the addresses in use, pixels
constexpr int kRefreshMs = 2000;
constexpr int kLongestAddress = 15; // signs

constexpr LabelGrid kInUseGrid = { 330, 0, 234, 20, 26, 76, 240, 20, 1 };

const char *const kCaptions[]
    = { QT_TRANSLATE_NOOP("UserLanPage", "Address:"), QT_TRANSLATE_NOOP("UserLanPage", "Netmask:"),
        QT_TRANSLATE_NOOP("UserLanPage", "Gateway:") };
const char *const kNames[] = { "address", "netmask", "gateway" };

const QString kInterface = QStringLiteral("eth0");
const QString kApply = QStringLiteral("networking.sh eth0;/etc/init.d/networking restart; sleep 1");

/// An interface that is missing has no address.
QString shownAddress(const QString &address)
{
    return address.isEmpty() ? QStringLiteral("0.0.0.0") : address;
}

} // namespace

UserLanPage::UserLanPage(QWidget *parent)
    : EditorPage(UI_USER, { QT_TRANSLATE_NOOP("UserLanPage", "LAN SETUP"), kTop, kPitch }, paceOf(""), parent)
{
    static const KeyRow<UserLanPage> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("UserLanPage", "Ok"), &UserLanPage::ok },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("UserLanPage", "Cancel"), &UserLanPage::cancel },
    };
    addLabels();
    setRows(rows());
    m_marks = { findChild<QLabel *>(QStringLiteral("dhcp")), findChild<QLabel *>(QStringLiteral("static")) };
    for (QLabel *header : m_headers)
        header->raise();
    setKeys(keys);
    connect(this, &EditorPage::stored, this, &UserLanPage::goUserMain);
    connect(this, &EditorPage::cancelled, this, &UserLanPage::goUserMain);
    m_refresh.setInterval(kRefreshMs);
    connect(&m_refresh, &QTimer::timeout, this, &UserLanPage::showInUse);
}

QLabel *UserLanPage::addHeader(const char *name, int top)
{
    auto *label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    label->setGeometry(60, top, 520, 28);
    label->setProperty("textSize", 20);
    label->setProperty("textColor", QStringLiteral("#80c0ff"));
    return label;
}

void UserLanPage::addLabels()
{
    m_headers = { addHeader("setup_t", kTop + kHeaderRow * kPitch + 12), addHeader("in_use_t", kInUseTop - 2) };
    for (std::size_t i = 0; i < kAddresses; ++i) {
        const QString name = QString::fromLatin1(kNames[i]) + QLatin1String("_in_use");
        const LabelGrid::Row row
            = kInUseGrid.addRow(this, name + QLatin1String("_t"), { name }, kInUseTop + (int(i) + 1) * kInUsePitch);
        m_captions[i] = row.caption;
        m_inUse[i] = row.values[0];
    }
}

EditorPage::Row UserLanPage::choice(const char *name, const char *caption, bool dhcp)
{
    const auto take = [this, dhcp] { setDhcp(dhcp); };
    return { QString::fromLatin1(name), caption, {}, [take](int) { take(); }, take, {} };
}

std::vector<EditorPage::Row> UserLanPage::rows()
{
    std::vector<Row> rows { choice("dhcp", QT_TRANSLATE_NOOP("UserLanPage", "Use DHCP"), true),
                            choice("static", QT_TRANSLATE_NOOP("UserLanPage", "Static"), false),
                            { "free", nullptr, {}, {}, {}, [] { return false; } } };
    for (int i = 0; i < kAddresses; ++i) {
        const auto address = Address(i);
        rows.push_back({ QString::fromLatin1(kNames[i]),
                         kCaptions[i],
                         [this, i] { return m_addresses[std::size_t(i)]; },
                         {},
                         [this, address] { editAddress(address); },
                         [this] { return !m_dhcp; } });
    }
    return rows;
}

void UserLanPage::retranslateUi()
{
    EditorPage::retranslateUi();
    setText(m_headers[0], tr("IP Setup"));
    setText(m_headers[1], tr("IP In-use:"));
    for (std::size_t i = 0; i < kAddresses; ++i)
        setText(m_captions[i], tr(kCaptions[i]));
}

void UserLanPage::initUserLan()
{
    const NetConfig config; // as the file stands now
    m_addresses = { config.getIPAddr(), config.getNetMask(), config.getGateWay() };
    setDhcp(config.getIsDHCP());
}

void UserLanPage::setDhcp(bool dhcp)
{
    m_dhcp = dhcp;
    showChoice();
}

void UserLanPage::showChoice()
{
    const QPixmap off(QStringLiteral(":/radio_unchecked")), on(QStringLiteral(":/radio_checked"));
    m_marks[0]->setPixmap(m_dhcp ? on : off);
    m_marks[1]->setPixmap(m_dhcp ? off : on);
}

void UserLanPage::showInUse()
{
    setText(m_inUse[IpAddress], shownAddress(NetWork::getIfIpaddr(kInterface)));
    setText(m_inUse[Netmask], shownAddress(NetWork::getIfNetmask(kInterface)));
    setText(m_inUse[Gateway], shownAddress(NetWork::getIfGateway()));
}

void UserLanPage::showEvent(QShowEvent *event)
{
    EditorPage::showEvent(event);
    showInUse();
    m_refresh.start();
}

void UserLanPage::hideEvent(QHideEvent *event)
{
    m_refresh.stop();
    EditorPage::hideEvent(event);
}

void UserLanPage::editAddress(Address address)
{
    QString &text = m_addresses[address];
    text = VirtualKeyBoard::getKeyBoardInput(tr(kCaptions[address]), text, NetConfig::addressExpression(),
                                             kLongestAddress);
}

QString UserLanPage::networkOf(const QString &address)
{
    return address.section(QLatin1Char('.'), 0, 2) + QLatin1String(".0");
}

void UserLanPage::store()
{
    NetConfig config;
    config.changeTogether([this, &config] {
        config.setDHCP(m_dhcp);
        config.setIPAddr(m_addresses[IpAddress]);
        config.setNetMask(m_addresses[Netmask]);
        config.setGateWay(m_addresses[Gateway]);
        config.setNetWork(networkOf(m_addresses[IpAddress]));
    });
    m_shell.run(kApply);
}
