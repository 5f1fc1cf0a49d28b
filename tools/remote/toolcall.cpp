#include "remote/toolcall.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>

#include <cstdio>

int fail(int status, const QString &text)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(QCoreApplication::applicationName()), qPrintable(text));
    return status;
}

bool readCall(QCommandLineParser &parser, bool takesWords)
{
    QString misuse;
    if (!parser.parse(QCoreApplication::arguments()))
        misuse = parser.errorText().remove(QRegularExpression(QStringLiteral("\\.$")));
    else
        parser.process(QCoreApplication::arguments()); // can only answer --help any more
    if (misuse.isEmpty() && !takesWords && !parser.positionalArguments().isEmpty())
        misuse = QStringLiteral("\"%1\" is no option").arg(parser.positionalArguments().constFirst());
    if (!misuse.isEmpty())
        fail(Misused, misuse + QStringLiteral("; --help lists the options"));
    return misuse.isEmpty();
}
