#include "quveraglobal.h"

#include "config/langtranslation.h"
#include "config/userconfig.h"
#include "platform/deskroot.h"
#include "platform/target.h"

#include <QApplication>
#include <QFontDatabase>
#include <QTextCodec>

#include <clocale>
#include <cstdio>

namespace {

void loadFonts()
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

} // namespace

int main(int argc, char **argv)
{
    // The output ends in a journal or a pipe.
    setvbuf(stdout, nullptr, _IOLBF, 0);
    QString error;
    if (!DeskRoot::prepare(&error)) {
        std::fprintf(stderr, "quvera: %s\n", qPrintable(error));
        return 1;
    }

    QApplication app(argc, argv);
    // The toolkit takes over the environment's locale; formats of files and of the link are those of C.
    setlocale(LC_NUMERIC, "C");
    showSplash();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    loadFonts();
    languageTranslator.initLangTranslation(m_userConfig_g.getLang());

    appInit();
    appConnection();
    langConnection();
    return app.exec();
}
