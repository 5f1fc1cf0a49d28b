#include "shell/applicationfont.h"
#include "shell/quveraglobal.h"

#include "settings/langtranslation.h"
#include "settings/userconfig.h"
#include "platform/deskkeys.h"
#include "platform/deskroot.h"
#include "platform/lineoutput.h"
#include "platform/servicenotes.h"
#include "platform/startarguments.h"
#include "widgets/text/keymap.h"

#include <QApplication>
#include <QTextCodec>

#include <clocale>
#include <cstdio>

namespace {

// Static objects make folders, so that main() would be too late. The C library gives the arguments to a
// constructor, too.
__attribute__((constructor(101))) void beforeStaticObjects(int argc, char **argv)
{
    StartArguments::settle(argc, argv);
}

} // namespace

int main(int argc, char **argv)
{
    // The output ends in a journal or a pipe.
    setvbuf(stdout, nullptr, _IOLBF, 0);
    LineOutput::takeToolkitMessages();
    QString error;
    if (!DeskRoot::prepare(&error)) {
        std::fprintf(stderr, "quvera: %s\n", qPrintable(error));
        return 1;
    }

    QApplication app(argc, argv);
    // The toolkit takes over the environment's locale; formats of files and of the link are those of C.
    setlocale(LC_NUMERIC, "C");
    DeskKeys::install(&app, keyMap::panelLetter);
    showSplash();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    loadApplicationFont();
    languageTranslator.initLangTranslation(m_userConfig_g.getLang());

    appInit();
    appConnection();
    langConnection();
    ServiceNotes::begin();
    return app.exec();
}
