#pragma once

#include "board/wifi.h"
#include "pages/listpage.h"

#include <QTimer>

#include <array>
#include <memory>

namespace Ui {
class UserWifiPage;
}

/// The wireless network: the networks in reach, of which one can be joined, and the state of the connection. While the
/// page is shown the daemon looks for networks every second, else at its usual interval. Nothing here waits for the
/// daemon.
class UserWifiPage : public ListPage
{
    Q_OBJECT

public:
    static constexpr int kLines = 7; // of the list on the page

    explicit UserWifiPage(QWidget *parent = nullptr);
    ~UserWifiPage() override;

    /// The list as it is now; the selection stays on its network as long as that is in reach.
    void showNetworks(const QVector<WifiInfo> &networks);

public slots:
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goUserMain();

protected:
    ScrollModel &list() override { return m_list; }
    void showList() override;
    std::vector<FrontKeys::Row> commonKeys() override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    struct Line
    {
        QLabel *name, *level, *security;
    };

    void addLines();
    void initWifi();
    void switchWifi();
    void openWifi();
    void closeWifi();
    void scanWifi();
    void connectSsid();
    void join(const WifiInfo &info, const QString &password);
    void updateResults();
    void connStatus();
    void showConnection();
    void showLine(const Line &line, const WifiInfo &info);
    bool isOpen() const { return Wifi::is_opened || Wifi::isWifiConnected(); }
    QString stateText() const;

    std::unique_ptr<Ui::UserWifiPage> m_ui;
    std::array<Line, kLines> m_lines {};
    QVector<WifiInfo> m_networks;
    ScrollModel m_list { kLines };
    QTimer m_refresh;
    bool m_joining = false; // the daemon has not answered yet
};
