#include "shell/applicationfont.h"

#include "platform/target.h"
#include "settings/facefile.h"

#include <QApplication>
#include <QFontDatabase>

void loadApplicationFont()
{
    // Knows the system's faces from here on. Filled later, it would read the faces added before a second time.
    const QFontDatabase database;
    familyOfFaceFile(Target::path(QStringLiteral("/usr/lib/fonts/arial.ttf")));
    const QString family = familyOfFaceFile(Target::path(QStringLiteral("/usr/lib/fonts/WenQuanYiZenHei.ttf")));
    if (!family.isEmpty())
        QApplication::setFont(QFont(family));
}
