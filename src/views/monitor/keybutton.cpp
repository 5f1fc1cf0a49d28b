#include "views/monitor/keybutton.h"

#include "widgets/controls/softkeybutton.h"

#include <QVariant>

void KeyButton::place(QWidget *page, int number, SoftKeyButton *button)
{
    const QString name = QStringLiteral("btn_f%1").arg(number);
    auto *plain = page->findChild<QWidget *>(name);
    button->setParent(page);
    button->setObjectName(name);
    if (plain)
        button->setGeometry(plain->geometry());
    delete plain;
    button->setProperty("background", QStringLiteral(":/button"));
}
