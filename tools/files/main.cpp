// quvera-files: reads what the instrument recorded, whole, cut or broken, and hands it on.
#include "files/bytenames.h"
#include "files/delivery.h"
#include "files/reportcommand.h"
#include "files/terminal.h"

#include <QCoreApplication>

#include <algorithm>
#include <clocale>
#include <cstdio>

namespace {

QString helpText()
{
    QString text = QStringLiteral("Usage: quvera-files COMMAND PATH [options]\n\n"
                                  "PATH is a file that the instrument wrote (.pqa2, .pqa, .wav, .csv of the logger) or "
                                  "a record folder.\n");
    for (const Command &command : commands()) {
        text += QStringLiteral("\n  %1 %2\n      %3\n").arg(command.name, command.synopsis, command.help);
        for (const CommandOption &option : command.options)
            text += QStringLiteral("      %1 %2\n")
                        .arg((option.name + QLatin1Char(' ') + option.value).leftJustified(18), option.help);
    }
    text += QStringLiteral(
        "\nExit: 0 whole, 1 cut short, 2 broken in the middle, 3 not readable, 64 wrong use or an output that\n"
        "exists, 73 the output could not be written.\n\n"
        "Examples:\n"
        "  quvera-files info \"/media/usb/240118_161500 Record 1\"\n"
        "  quvera-files verify /media/usb/*\n"
        "  quvera-files export \"/media/usb/240118_161500 Record 1\" --csv week\n"
        "  quvera-files report \"/media/usb/240118_161500 Monitor-1\" --pdf week.pdf --language GE\n");
    return text;
}

int run(const QStringList &words)
{
    if (words.isEmpty())
        return misuse(QStringLiteral("no command is given"));
    if (words.contains(QStringLiteral("--help")) || words.constFirst() == QLatin1String("-h")) {
        std::fputs(helpText().toUtf8().constData(), stdout);
        return Terminal::finishOutput() ? ExitWhole : ExitNoOutput;
    }
    if (words.constFirst() == QLatin1String("--version")) {
        std::printf("quvera-files %s\n", QUVERA_VERSION);
        return Terminal::finishOutput() ? ExitWhole : ExitNoOutput;
    }
    const auto command = std::find_if(commands().begin(), commands().end(),
                                      [&](const Command &row) { return row.name == words.constFirst(); });
    if (command == commands().end())
        return misuse(QStringLiteral("no command is called \"%1\"").arg(Terminal::printable(words.constFirst())));
    CommandLine line;
    if (!line.parse(words.mid(1), command->options))
        return misuse(QStringLiteral("%1: %2").arg(command->name, line.error()));
    if (line.paths.size() < command->leastPaths)
        return misuse(QStringLiteral("%1: no path is given").arg(command->name));
    if (line.paths.size() > command->mostPaths)
        return misuse(QStringLiteral("%1: one path at a time").arg(command->name));
    return command->run(line);
}

} // namespace

int main(int argc, char *argv[])
{
    keepNamesOfFiles();
    const std::unique_ptr<QCoreApplication> application = makeApplication(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    Terminal::catchSignals();
    return run(QCoreApplication::arguments().mid(1));
}
