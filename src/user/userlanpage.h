#pragma once

#include "pages/editorpage.h"
#include "platform/shellqueue.h"

#include <QTimer>

#include <array>

/// The wired network: by DHCP or with fixed addresses, and the addresses that it has at the moment. "Ok" stores and
/// lets the board's network scripts apply it, which nothing here waits for.
class UserLanPage : public EditorPage
{
    Q_OBJECT

public:
    explicit UserLanPage(QWidget *parent = nullptr);

    /// The network of an address: its first three fields and ".0".
    static QString networkOf(const QString &address);

signals:
    void goUserMain();

protected:
    void load() override { initUserLan(); }
    void store() override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

public slots:
    void retranslateUi() override;

private:
    enum Address { IpAddress, Netmask, Gateway, kAddresses };

    std::vector<Row> rows();
    Row choice(const char *name, const char *caption, bool dhcp);
    void addLabels();
    QLabel *addHeader(const char *name, int top);
    void initUserLan();
    void setDhcp(bool dhcp);
    void editAddress(Address address);
    void showChoice();
    void showInUse();

    bool m_dhcp = true;
    std::array<QString, kAddresses> m_addresses;
    std::array<QLabel *, 2> m_headers {}; // set up, in use
    std::array<QLabel *, kAddresses> m_captions {}; // of what is in use
    std::array<QLabel *, kAddresses> m_inUse {};
    std::array<QLabel *, 2> m_marks {}; // DHCP, static
    ShellQueue m_shell;
    QTimer m_refresh;
};
