#include "user/wlansettingdialog.h"
#include "ui_wlansettingdialog.h"

#include "board/ssidtext.h"
#include "widgets/dialogs/virtualkeyboard.h"

#include <QRegularExpression>

namespace {

// IEEE 802.11 annex M.4: a pass-phrase of 8 to 63 printable ASCII signs; 64 digits are the key itself.
const QString kPassword = QStringLiteral("[ -~]{8,63}|[0-9A-Fa-f]{64}");
constexpr int kLongestPassword = 64; // signs
constexpr int kTop = 46, kPitch = 44; // of the fields, pixels
constexpr int kShownDots = 16;

} // namespace

wlanSettingDialog::wlanSettingDialog(const WifiInfo &info, QWidget *parent)
    : SoftKeyDialog(parent), m_ui(new Ui::wlanSettingDialog), m_info(info), m_hidden(isHidden(info)),
      m_secured(isSecured(info)), m_field(m_hidden ? Ssid : Password)
{
    static const FrontKeys::KeyRow<wlanSettingDialog> keys[] = {
        { Qt::Key_Up, nullptr, &wlanSettingDialog::selectSsid },
        { Qt::Key_Down, nullptr, &wlanSettingDialog::selectPassword },
        { Qt::Key_Enter, nullptr, &wlanSettingDialog::wlanSetting },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("wlanSettingDialog", "Ok"), &wlanSettingDialog::accept },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("wlanSettingDialog", "Cancel"), &wlanSettingDialog::reject },
    };
    m_ui->setupUi(this);
    fitText(m_ui->title, tr("Connect To"), 22);
    fitText(m_ui->ssid_t, tr("SSID:"), 20);
    fitText(m_ui->password_t, m_secured ? tr("Password:") : QString(), 20);
    m_ui->row_bar->setStyleSheet(QStringLiteral("QLabel { background-color: #004882; }"));
    m_ui->hint->setStyleSheet(QStringLiteral("QLabel { color: rgb(255, 160, 64); }"));
    finishForm();
    setKeys(keys);
    lookForStored();
    showFields();
}

wlanSettingDialog::~wlanSettingDialog() = default;

bool wlanSettingDialog::isSecured(const WifiInfo &info)
{
    return info.flags().contains(QLatin1String("[WPA"));
}

bool wlanSettingDialog::isHidden(const WifiInfo &info)
{
    return SsidText::isHidden(info.ssidBytes());
}

bool wlanSettingDialog::isPassword(const QString &text)
{
    static const QRegularExpression whole(QRegularExpression::anchoredPattern(kPassword));
    return whole.match(text).hasMatch();
}

void wlanSettingDialog::lookForStored()
{
    if (isHidden(m_info))
        return;
    Wifi::networkId(m_info.ssid(), this, [this](int number) {
        m_stored = number >= 0;
        showFields();
    });
}

void wlanSettingDialog::select(Field field)
{
    if ((field == Ssid && !m_hidden) || (field == Password && !m_secured))
        return; // nothing to type there
    m_field = field;
    showFields();
}

void wlanSettingDialog::showFields()
{
    m_ui->row_bar->move(m_ui->row_bar->x(), kTop + m_field * kPitch);
    const int room = m_ui->ssid->width();
    m_ui->ssid->setText(m_ui->ssid->fontMetrics().elidedText(m_info.shownName(), Qt::ElideRight, room));
    if (!m_secured)
        return;
    const bool fromStore = m_password.isEmpty() && m_stored;
    const QString dots(std::min(int(m_password.size()), kShownDots), QLatin1Char('*'));
    m_ui->password->setText(fromStore ? tr("(stored)") : dots);
}

void wlanSettingDialog::wlanSetting()
{
    m_ui->hint->clear();
    m_field == Ssid ? editSsid() : editPassword();
    showFields();
}

void wlanSettingDialog::editSsid()
{
    const QString before = isHidden(m_info) ? QString() : m_info.shownName();
    bool taken = false;
    const QString name
        = VirtualKeyBoard::getKeyBoardInput(tr("SSID:"), before, QString(), SsidText::kLongestSsid, &taken);
    if (!taken)
        return;
    m_info.setSsid(SsidText::escaped(name.toUtf8()));
    m_stored = false;
    lookForStored();
}

void wlanSettingDialog::editPassword()
{
    m_password = VirtualKeyBoard::getKeyBoardInput(tr("Password:"), m_password, kPassword, kLongestPassword);
}

bool wlanSettingDialog::hasPassword() const
{
    return m_password.isEmpty() ? m_stored : isPassword(m_password);
}

void wlanSettingDialog::refuse()
{
    fitText(m_ui->hint, tr("Invalid input!"), 18);
}

void wlanSettingDialog::accept()
{
    const int length = m_info.ssidBytes().size();
    const bool named = !isHidden(m_info) && length <= SsidText::kLongestSsid;
    if (!named || (m_secured && !hasPassword()))
        refuse();
    else
        SoftKeyDialog::accept();
}

void wlanSettingDialog::connect2wifi(const WifiInfo &info, const QString &password, QObject *context, Wifi::Done done)
{
    const Wifi::Number join = [context, done](int number) {
        if (number >= 0)
            Wifi::change2Network(number, context, done);
        else
            done(false);
    };
    Wifi::networkId(info.ssid(), context, [info, password, context, join](int number) {
        const Wifi::Done configured = [number, join](bool ok) { join(ok ? number : -1); };
        if (number < 0)
            Wifi::addSsid(info, password, context, join);
        else if (!isSecured(info) && password.isEmpty())
            Wifi::configNetworkNoAuth(number, info, context, configured);
        else
            Wifi::forgetFormerKind(number, info, context, [=](bool ok) {
                if (ok && !password.isEmpty())
                    Wifi::configNetworkWithAuth(number, info, password, context, configured);
                else
                    configured(ok);
            });
    });
}
