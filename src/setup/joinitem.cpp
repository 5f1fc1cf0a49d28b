#include "setup/joinitem.h"

#include "settings/config_data.h"
#include "setup/joinpicture.h"
#include "widgets/controls/labellook.h"
#include "widgets/controls/readingmarks.h"

#include <QPixmap>

JoinItem::JoinItem(const QString &name, QWidget *parent)
    : QWidget(parent), m_icon(new QLabel(this)), m_mark(new QLabel(this)), m_name(new QLabel(this))
{
    resize(kWidth, kHeight);
    m_icon->setObjectName(name + QLatin1String("_icon"));
    m_icon->setGeometry((kWidth - 160) / 2, 10, 160, 110);
    m_mark->setObjectName(name + QLatin1String("_mark"));
    m_mark->setGeometry(20, 53, 24, 24);
    m_name->setObjectName(name + QLatin1String("_t"));
    m_name->setGeometry(6, 126, kWidth - 12, 32);
    m_name->setAlignment(Qt::AlignCenter);
    m_name->setProperty("textSize", 22);
}

void JoinItem::setSelected(bool on)
{
    LabelLook::setBackground(this, on ? QStringLiteral("#004882") : QStringLiteral("black"));
    ReadingMarks::select(this, on);
}

void JoinItem::showJoinMode(int joinMode, bool inUse)
{
    const QString icon = JoinPicture::icon(joinMode);
    setVisible(!icon.isEmpty());
    m_icon->setPixmap(QPixmap(icon));
    m_mark->setPixmap(QPixmap(inUse ? QStringLiteral(":/radio_checked") : QStringLiteral(":/radio_unchecked")));
    m_name->setText(SettingConfig::getJoinModeFullName(joinMode));
}
