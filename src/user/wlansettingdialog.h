#pragma once

#include "board/wifi.h"
#include "widgets/dialogs/softkeydialog.h"

#include <memory>

namespace Ui {
class wlanSettingDialog;
}

/// Asks for what a scan does not say of a network: its password, and the name of one that hides it. Keys:
/// docs/user-pages.md.
class wlanSettingDialog : public SoftKeyDialog
{
    Q_OBJECT

public:
    explicit wlanSettingDialog(const WifiInfo &info, QWidget *parent = nullptr);
    ~wlanSettingDialog() override;

    /// The network with the name that was typed, if it hides its own.
    WifiInfo network() const { return m_info; }
    /// Empty for a network without one, and where the stored one is to be used.
    QString password() const { return m_password; }

    /// Whether joining asks for a password.
    static bool isSecured(const WifiInfo &info);
    static bool isHidden(const WifiInfo &info);
    /// 8 to 63 printable signs, or 64 hexadecimal digits, which are a raw key.
    static bool isPassword(const QString &text);

    /// Joins a network: one that the daemon does not have yet is added, one that it has is configured anew, or taken as
    /// it is stored when it asks for a password and none is given. `done` says whether it was selected; it is not
    /// called when `context` is gone by then.
    static void connect2wifi(const WifiInfo &info, const QString &password, QObject *context, Wifi::Done done);

private:
    enum Field { Ssid, Password };

    /// Edits the field under the bar.
    void wlanSetting();
    void editSsid();
    void editPassword();
    void selectSsid() { select(Ssid); }
    void selectPassword() { select(Password); }
    void select(Field field);
    void showFields();
    void lookForStored();
    bool hasPassword() const;
    void refuse();
    void accept() override;

    std::unique_ptr<Ui::wlanSettingDialog> m_ui;
    WifiInfo m_info;
    QString m_password;
    const bool m_hidden;
    const bool m_secured;
    bool m_stored = false; // the daemon has a network of this name
    Field m_field;
};
