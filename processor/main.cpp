#include "board/controlsocket.h"
#include "scenario/engine.h"
#include "scenario/options.h"

#include <QCoreApplication>

#include <clocale>
#include <cstdio>

namespace {

int fail(const QString &reason)
{
    std::fprintf(stderr, "quvera-processor: %s\n", qPrintable(reason));
    return 1;
}

/// Sends one command to the processor that runs, and prints its answer. The exit code tells "ok" from "error".
int tell(const scenario::Options &options)
{
    QString answer;
    if (!board::ControlSocket::tell(scenario::Engine::controlPath(options.root), options.tell, &answer))
        return fail(answer);
    std::printf("%s\n", qPrintable(answer));
    return answer.section(QLatin1Char('\n'), -1).startsWith(QLatin1String("ok")) ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quvera-processor"));
    std::setlocale(LC_NUMERIC, "C"); // the application object took over that of the environment
    std::setvbuf(stdout, nullptr, _IOLBF, 0);

    QString error;
    QString text;
    const auto options = scenario::Options::read(QCoreApplication::arguments(), &error, &text);
    if (!text.isEmpty()) {
        std::fputs(qPrintable(text), stdout);
        return 0;
    }
    if (!options)
        return fail(error);
    if (!options->tell.isEmpty())
        return tell(*options);
    scenario::Engine engine(*options);
    return engine.prepare(&error) ? engine.run() : fail(error);
}
