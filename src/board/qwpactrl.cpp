#include "board/qwpactrl.h"

#include "board/wpaanswers.h"
#include "platform/target.h"

#include <QDir>

#include <wpa_ctrl.h>

QWpaCtrl::QWpaCtrl(const QString &folder, const QString &interface, QObject *parent)
    : QObject(parent), m_folder(folder), m_interface(interface)
{
    m_ping_timer.setInterval(kPingMs);
    m_scan_timer.setInterval(kScanMs);
    connect(&m_ping_timer, &QTimer::timeout, this, &QWpaCtrl::ping);
    connect(&m_scan_timer, &QTimer::timeout, this, &QWpaCtrl::scan);
    connect(&m_events, &WpaChannel::message, this, &QWpaCtrl::receiveMsgs);
    openCtrlConnection(m_interface);
    m_ping_timer.start();
}

int QWpaCtrl::openCtrlConnection(const QString &name)
{
    closeCtrlConnection();
    m_interface = name;
    const QString interface = name.isEmpty() ? firstInterface() : name;
    if (interface.isEmpty() || !m_commands.open(m_folder, interface) || !m_events.open(m_folder, interface)) {
        closeCtrlConnection();
        return -1;
    }
    attach();
    // What the daemon answers is of no use here; that it answers shows in the next ping.
    ctrlRequest("INTERFACES", this, [](int, const QByteArray &) {});
    return 0;
}

void QWpaCtrl::closeCtrlConnection()
{
    m_commands.close();
    m_events.close();
}

QString QWpaCtrl::firstInterface() const
{
    const QStringList names
        = QDir(Target::path(m_folder))
              .entryList(QDir::Files | QDir::Dirs | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    const QString usual = QStringLiteral("wlan0");
    return names.contains(usual) ? usual : names.value(0);
}

void QWpaCtrl::attach()
{
    m_events.request("ATTACH", this, [this](int result, const QByteArray &answer) {
        if (result < 0 || !WpaAnswers::isOk(answer))
            closeCtrlConnection(); // a connection without events is none; the next ping tries again
    });
}

void QWpaCtrl::ctrlRequest(const QByteArray &command, QObject *context, WpaAnswer answer)
{
    m_commands.request(command, context, std::move(answer));
}

void QWpaCtrl::setAnswerTime(int ms)
{
    m_commands.setAnswerTime(ms);
    m_events.setAnswerTime(ms);
}

void QWpaCtrl::reopen()
{
    openCtrlConnection(m_interface);
}

void QWpaCtrl::ping()
{
    const QByteArray command = "PING";
    if (!isOpen()) {
        reopen();
        return;
    }
    if (isWaiting(command))
        return;
    ctrlRequest(command, this, [this](int result, const QByteArray &answer) {
        if (result < 0 || answer.trimmed() != "PONG")
            reopen();
    });
}

void QWpaCtrl::scan()
{
    const QByteArray command = "SCAN";
    // The answer says only that the scan began or that one runs; results come as an event.
    if (!isWaiting(command))
        ctrlRequest(command, this, [](int, const QByteArray &) {});
}

void QWpaCtrl::startScan(int ms)
{
    m_scan_timer.start(ms);
}

void QWpaCtrl::stopScan()
{
    m_scan_timer.stop();
}

void QWpaCtrl::restartScan(int ms)
{
    // The shorter one holds, so that results do not slow the scans of an open page down.
    m_scan_timer.start(qMin(ms, m_scanInterval));
}

void QWpaCtrl::setScanInterval(int ms)
{
    m_scanInterval = ms;
    m_scan_timer.setInterval(ms);
}

void QWpaCtrl::receiveMsgs(const QByteArray &line)
{
    processMsg(WpaAnswers::eventText(line));
}

void QWpaCtrl::processMsg(const QByteArray &text)
{
    // Requests for a password ("CTRL-REQ-") and the reasons of rejected joins change nothing: the password stands in
    // the stored network, and the state shows in the next status.
    if (text.startsWith(WPA_EVENT_SCAN_RESULTS)) {
        emit scanResult();
        restartScan(kScanMs);
    } else if (text.startsWith(WPA_EVENT_DISCONNECTED)) {
        emit disconnected();
        stopScan();
    } else if (text.startsWith(WPA_EVENT_CONNECTED)) {
        emit connected();
    }
}
