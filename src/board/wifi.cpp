#include "board/wifi.h"

#include "board/joinsettings.h"
#include "board/qwpactrl.h"
#include "board/ssidtext.h"

#include <QPointer>

Wifi *wifi = nullptr;
QWpaCtrl *Wifi::wpaCtrl = nullptr;
bool Wifi::is_opened = false;
bool Wifi::is_openning = false;
__wifi_status Wifi::status;
QVector<WifiInfo> Wifi::s_networks;

Wifi::Wifi(QObject *parent) : QObject(parent)
{
    Q_ASSERT(!wifi);
    wifi = this;
    wpaCtrl = new QWpaCtrl;
    connect(wpaCtrl, &QWpaCtrl::connected, this, &Wifi::connected);
    connect(wpaCtrl, &QWpaCtrl::disconnected, this, &Wifi::disconnected);
    connect(wpaCtrl, &QWpaCtrl::scanResult, this, &Wifi::scanResults);
    connect(&m_statusTimer, &QTimer::timeout, this, &Wifi::scanStatus);
    m_statusTimer.start(kStatusMs);
}

Wifi::~Wifi()
{
    delete wpaCtrl;
    wpaCtrl = nullptr;
    wifi = nullptr;
    is_opened = is_openning = false;
    status = {};
    s_networks.clear();
}

void Wifi::ask(const QByteArray &command, QObject *context, WpaAnswer answer)
{
    if (wpaCtrl)
        wpaCtrl->ctrlRequest(command, context, std::move(answer));
    else
        QTimer::singleShot(0, context, [answer] { answer(WpaChannel::Failed, QByteArray()); });
}

void Wifi::tell(const QByteArray &command)
{
    if (wpaCtrl)
        ask(command, wpaCtrl, [](int, const QByteArray &) {});
}

void Wifi::askOk(const QByteArray &command, QObject *context, Done done)
{
    ask(command, context,
        [done](int result, const QByteArray &answer) { done(result >= 0 && WpaAnswers::isOk(answer)); });
}

bool Wifi::isWifiConnected()
{
    return wpaCtrl && status.wpa_state == QLatin1String("COMPLETED");
}

void Wifi::open()
{
    if (is_openning)
        return;
    reassociateNetwork();
    is_openning = true;
    is_opened = true;
    startScan();
}

void Wifi::close()
{
    disconnectNetwork();
    is_openning = false;
    is_opened = false;
    if (wifi)
        ++wifi->m_closed;
}

void Wifi::startScan()
{
    if (!wpaCtrl)
        return;
    wpaCtrl->scan();
    wpaCtrl->startScan(wpaCtrl->scanInterval());
}

void Wifi::stopScan()
{
    if (wpaCtrl)
        wpaCtrl->stopScan();
}

void Wifi::accScanInv()
{
    if (wpaCtrl)
        wpaCtrl->setScanInterval(kPageScanMs);
}

void Wifi::restoreScanInv()
{
    if (wpaCtrl)
        wpaCtrl->setScanInterval(QWpaCtrl::kScanMs);
}

void Wifi::connected()
{
    m_shell.run(QStringLiteral("udhcpc -i wlan0 > /dev/null 2>&1 &"));
    is_openning = false;
}

void Wifi::disconnected()
{
    m_shell.run(QStringLiteral("ps | grep \"udhcpc -i wlan0\" | awk '{print $1}' | xargs kill -9 > /dev/null 2>&1"));
    m_shell.run(QStringLiteral("wlan0_del_route.sh"));
}

void Wifi::scanStatus()
{
    const QByteArray command = "STATUS";
    if (!wifi || wpaCtrl->isWaiting(command))
        return;
    ask(command, wifi, [closed = wifi->m_closed](int, const QByteArray &answer) {
        if (closed != wifi->m_closed)
            return; // what was so before the network was left
        status = WpaAnswers::status(answer);
        emit wifi->statusChanged();
    });
}

void Wifi::scanResults()
{
    if (!wifi || wifi->m_reading)
        return;
    wifi->m_reading = true;
    wifi->m_found.clear();
    wifi->askForNetwork(0);
}

void Wifi::askForNetwork(int number)
{
    ask("BSS " + QByteArray::number(number), this, [this, number](int result, const QByteArray &answer) {
        const bool isLast = result < 0 || WpaAnswers::endsList(answer);
        if (!isLast)
            m_found.append(WpaAnswers::network(answer));
        if (isLast || m_found.size() >= kMostNetworks)
            takeNetworks();
        else
            askForNetwork(number + 1);
    });
}

void Wifi::takeNetworks()
{
    m_reading = false;
    s_networks.swap(m_found);
    m_found.clear();
    emit networksChanged();
}

void Wifi::addNetwork(QObject *context, Number done)
{
    ask("ADD_NETWORK", context,
        [done](int result, const QByteArray &answer) { done(result < 0 ? -1 : WpaAnswers::networkNumber(answer)); });
}

void Wifi::setNetwork(int id, const QByteArray &name, const QByteArray &value, bool quoted, QObject *context, Done done)
{
    // An empty command, for a value that cannot be sent, fails like one that the daemon refuses.
    askOk(JoinSettings::command(id, { name, value, quoted }), context, std::move(done));
}

void Wifi::enableNetwork(int id, QObject *context, Done done)
{
    askOk("ENABLE_NETWORK " + QByteArray::number(id), context, std::move(done));
}

void Wifi::selectNetwork(int id, QObject *context, Done done)
{
    askOk("SELECT_NETWORK " + QByteArray::number(id), context, std::move(done));
}

void Wifi::removeNetwork(int id, QObject *context, Done done)
{
    askOk("REMOVE_NETWORK " + QByteArray::number(id), context, std::move(done));
}

void Wifi::disconnectNetwork()
{
    tell("DISCONNECT");
}

void Wifi::reconnectNetwork()
{
    tell("RECONNECT");
}

void Wifi::reassociateNetwork()
{
    tell("REASSOCIATE");
}

void Wifi::reconfigureNetwork()
{
    tell("RECONFIGURE");
}

void Wifi::saveConfig(QObject *context, Done done)
{
    const QPointer<QObject> asker(context);
    askOk("SAVE_CONFIG", wifi ? wifi : context, [asker, done](bool ok) {
        if (wifi)
            wifi->m_shell.run(QStringLiteral("sync"));
        if (asker)
            done(ok);
    });
}

void Wifi::networkId(const QString &ssid, QObject *context, Number done)
{
    const QByteArray name = SsidText::unescaped(ssid);
    ask("LIST_NETWORKS", context, [name, done](int result, const QByteArray &answer) {
        done(result < 0 ? -1 : WpaAnswers::networkId(answer, name));
    });
}

void Wifi::configure(int id, const QVector<NetworkSetting> &settings, int next, QObject *context, Done done)
{
    const NetworkSetting &setting = settings.at(next);
    setNetwork(id, setting.name, setting.value, setting.quoted, context, [=](bool ok) {
        if (ok && next + 1 < settings.size())
            configure(id, settings, next + 1, context, done);
        else
            done(ok);
    });
}

void Wifi::configNetworkNoAuth(int id, const WifiInfo &info, QObject *context, Done done)
{
    configure(id, JoinSettings::withoutAuth(info), 0, context, std::move(done));
}

void Wifi::configNetworkWithAuth(int id, const WifiInfo &info, const QString &password, QObject *context, Done done)
{
    configure(id, JoinSettings::withAuth(info, password), 0, context, std::move(done));
}

void Wifi::forgetFormerKind(int id, const WifiInfo &info, QObject *context, Done done)
{
    const QVector<NetworkSetting> settings = JoinSettings::leftToDefault(info);
    if (settings.isEmpty())
        QTimer::singleShot(0, context, [done] { done(true); });
    else
        configure(id, settings, 0, context, std::move(done));
}

void Wifi::addSsid(const WifiInfo &info, const QString &password, QObject *context, Number done)
{
    // The steps run to their end even when the asker is gone: a half-configured network must not stay behind.
    QObject *keeper = wifi ? wifi : context;
    const QPointer<QObject> asker(context);
    const Number answer = [asker, done](int number) {
        if (asker)
            done(number);
    };
    addNetwork(keeper, [=](int number) {
        if (number < 0) {
            answer(-1);
            return;
        }
        const Done finish = [=](bool ok) {
            if (ok)
                answer(number);
            else
                removeNetwork(number, keeper, [answer](bool) { answer(-1); });
        };
        if (password.isEmpty())
            configNetworkNoAuth(number, info, keeper, finish);
        else
            configNetworkWithAuth(number, info, password, keeper, finish);
    });
}

void Wifi::change2Network(int id, QObject *context, Done done)
{
    const QPointer<QObject> asker(context);
    selectNetwork(id, wifi ? wifi : context, [asker, done](bool ok) {
        if (wifi)
            saveConfig(wifi, [](bool) {});
        if (asker)
            done(ok);
    });
}

QString Wifi::hexStr2QString(const QString &text)
{
    return SsidText::shown(SsidText::unescaped(text));
}
