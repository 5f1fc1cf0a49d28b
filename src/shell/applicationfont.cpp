#include "shell/applicationfont.h"

#include "platform/target.h"

#include <QApplication>
#include <QFontDatabase>

void loadApplicationFont()
{
    // Knows the system's faces from here on. Filled later, it would read the faces added before a second time, and the
    // thirty thousand characters of the second one are the dearest part of the start.
    const QFontDatabase database;
    QFontDatabase::addApplicationFont(Target::path(QStringLiteral("/usr/lib/fonts/arial.ttf")));
    const int id
        = QFontDatabase::addApplicationFont(Target::path(QStringLiteral("/usr/lib/fonts/WenQuanYiZenHei.ttf")));
    if (id < 0)
        return;
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    if (!families.isEmpty())
        QApplication::setFont(QFont(families.first()));
}
