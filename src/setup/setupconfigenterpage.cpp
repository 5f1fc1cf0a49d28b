#include "setup/setupconfigenterpage.h"

#include "settings/config_data.h"
#include "setup/joinpicture.h"

#include <QLabel>
#include <QPixmap>

SetupConfigEnterPage::SetupConfigEnterPage(QWidget *parent)
    : SetupPane(QT_TRANSLATE_NOOP("SetupConfigEnterPage", "JOIN CONFIG"), parent), m_picture(new QLabel(this)),
      m_name(new QLabel(this))
{
    static const KeyRow<SetupConfigEnterPage> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("SetupConfigEnterPage", "Ok"), &SetupConfigEnterPage::ok },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("SetupConfigEnterPage", "Cancel"), &SetupConfigEnterPage::goBack },
    };
    m_picture->setObjectName(QStringLiteral("detail"));
    m_picture->setGeometry(40, 52, 560, 330);
    m_name->setObjectName(QStringLiteral("join_name"));
    m_name->setGeometry(320, 4, 304, 30);
    m_name->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_name->setProperty("textSize", 22);
    dressPane();
    setKeys(keys);
}

void SetupConfigEnterPage::setJoinMode(int joinMode)
{
    m_joinMode = joinMode;
    showSettings();
}

void SetupConfigEnterPage::showSettings()
{
    m_picture->setPixmap(QPixmap(JoinPicture::detail(m_joinMode)));
    setText(m_name, SettingConfig::getJoinModeFullName(m_joinMode));
}

void SetupConfigEnterPage::ok()
{
    m_settingConfig_g.setValue(*SettingConfig::row("JOINMODE"), m_joinMode);
    emit stored();
}
