#include "shell/applicationfont.h"

#include "platform/target.h"

#include <QApplication>
#include <QFontDatabase>

void loadApplicationFont()
{
    QFontDatabase::addApplicationFont(Target::path(QStringLiteral("/usr/lib/fonts/arial.ttf")));
    const int id
        = QFontDatabase::addApplicationFont(Target::path(QStringLiteral("/usr/lib/fonts/WenQuanYiZenHei.ttf")));
    if (id < 0)
        return;
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (!families.isEmpty())
        QApplication::setFont(QFont(families.first()));
}
