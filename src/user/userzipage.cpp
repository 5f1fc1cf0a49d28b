#include "user/userzipage.h"

#include "board/backlight.h"
#include "board/network.h"
#include "board/wifi.h"
#include "settings/config_data.h"
#include "settings/langtranslation.h"
#include "settings/phasecolor.h"
#include "settings/softwareversion.h"
#include "user/phasecolordialog.h"
#include "user/phasecolorpalette.h"
#include "widgets/dialogs/virtualkeyboard.h"
#include "settings/localtime.h"

#include <QFontMetrics>

namespace {

constexpr int kTop = 40, kPitch = 40; // of the rows, pixels
constexpr int kColorRow = 3;
constexpr int kRefreshMs = 1000;
constexpr int kLongestName = 32; // signs
// An empty name would read as the default one at the next start.
const QString kName = QStringLiteral("[^ ].*");

QString lanState()
{
    return NetWork::checkNetwireStatus(QStringLiteral("eth0")) ? UserZiPage::tr("Connected")
                                                               : UserZiPage::tr("Disconnected");
}

/// The daemon's own word for a network that is joined.
QString wlanState()
{
    return Wifi::isWifiConnected() ? Wifi::status.wpa_state : UserZiPage::tr("Disconnected");
}

QString version()
{
    return QStringLiteral("%1.%2.%3").arg(kSoftwareMajor).arg(kSoftwareMinor).arg(kSoftwareBuild);
}

} // namespace

UserZiPage::UserZiPage(QWidget *parent)
    : EditorPage(UI_USER, { QT_TRANSLATE_NOOP("UserZiPage", "User"), kTop, kPitch }, paceOf(""), parent),
      m_palette(new PhaseColorPalette(this))
{
    static const KeyRow<UserZiPage> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("UserZiPage", "Date & Time"), &UserZiPage::goUserDate },
        { Qt::Key_F2, QT_TRANSLATE_NOOP("UserZiPage", "LAN"), &UserZiPage::goUserLan },
        { Qt::Key_F3, QT_TRANSLATE_NOOP("UserZiPage", "WLAN"), &UserZiPage::goUserWLan },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("UserZiPage", "Update"), &UserZiPage::goUpdate },
    };
    setRows(rows());
    m_palette->setObjectName(QStringLiteral("phase_colors_palette"));
    m_palette->setGeometry(326, kTop + kColorRow * kPitch + 4, 240, 36);
    m_palette->raise();
    setKeys(keys);
    m_refresh.setInterval(kRefreshMs);
    connect(&m_refresh, &QTimer::timeout, this, &UserZiPage::initUserMain);
}

std::vector<EditorPage::Row> UserZiPage::rows()
{
    const auto name = [this] {
        // A long name is cut at its end, where the value's place ends.
        QFont shown = font();
        shown.setPixelSize(24);
        return QFontMetrics(shown).elidedText(m_userConfig_g.getUserName(), Qt::ElideRight, 230);
    };
    return {
        { "language",
          QT_TRANSLATE_NOOP("UserZiPage", "Language"),
          [] { return m_userConfig_g.getLanguage(); },
          [this](int step) { changeLanguage(step); },
          {},
          {} },
        { "sleep",
          QT_TRANSLATE_NOOP("UserZiPage", "Sleep Time"),
          [] { return m_userConfig_g.sleepDelay() > 0 ? m_userConfig_g.getSleep() : tr("OFF"); },
          [this](int step) { changeSleep(step); },
          {},
          {} },
        { "light",
          QT_TRANSLATE_NOOP("UserZiPage", "Light"),
          [] { return QStringLiteral("%1 / %2").arg(BackLight::level() + 1).arg(BackLight::Level3 + 1); },
          [this](int step) { changeLight(step); },
          [] { BackLight::switchBackLight(); },
          {} },
        { "phase_colors",
          QT_TRANSLATE_NOOP("UserZiPage", "Phase Colors"),
          {},
          {},
          [this] { choosePhaseColors(); },
          {} },
        { "user_name", QT_TRANSLATE_NOOP("UserZiPage", "User Name"), name, {}, [this] { editUserName(); }, {} },
        { "date",
          QT_TRANSLATE_NOOP("UserZiPage", "Date & Time"),
          [] { return LocalTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd")); },
          {},
          [this] { emit goUserDate(); },
          {} },
        { "lan", QT_TRANSLATE_NOOP("UserZiPage", "LAN"), lanState, {}, [this] { emit goUserLan(); }, {} },
        { "wlan", QT_TRANSLATE_NOOP("UserZiPage", "WLAN"), wlanState, {}, [this] { emit goUserWLan(); }, {} },
        { "version", QT_TRANSLATE_NOOP("UserZiPage", "Version"), version, {}, [this] { emit goUpdate(); }, {} },
    };
}

void UserZiPage::initUserMain()
{
    showRows();
    showPhaseColors();
}

void UserZiPage::showEvent(QShowEvent *event)
{
    EditorPage::showEvent(event);
    initUserMain();
    m_refresh.start();
}

void UserZiPage::hideEvent(QHideEvent *event)
{
    m_refresh.stop();
    EditorPage::hideEvent(event);
}

void UserZiPage::changeLanguage(int step)
{
    const int before = m_userConfig_g.getLang();
    step > 0 ? m_userConfig_g.changeLangNext() : m_userConfig_g.changeLangPrev();
    const int language = m_userConfig_g.getLang();
    if (language == before)
        return;
    m_userConfig_g.setLanguage(language);
    languageTranslator.reloadLangTranslation(language);
}

void UserZiPage::changeSleep(int step)
{
    step > 0 ? m_userConfig_g.changeSleepNext() : m_userConfig_g.changeSleepPrev();
    BackLight::setBackLightDeley(m_userConfig_g.sleepDelay());
}

void UserZiPage::changeLight(int step)
{
    BackLight::setBackLight(BackLight::level() + (step > 0 ? 1 : -1)); // stops at the ends
}

void UserZiPage::editUserName()
{
    const QString name = m_userConfig_g.getUserName();
    const QString edited = VirtualKeyBoard::getKeyBoardInput(tr("User Name"), name, kName, kLongestName);
    if (edited != name)
        m_userConfig_g.setUserName(edited);
}

void UserZiPage::choosePhaseColors()
{
    if (PhaseColorDialog::choose())
        showPhaseColors();
}

void UserZiPage::showPhaseColors()
{
    QVector<QColor> colors;
    for (int row = 0; row < PhaseColorDialog::kRows; ++row)
        colors.append(PhaseColor::color(row));
    m_palette->setColors(colors);
}
