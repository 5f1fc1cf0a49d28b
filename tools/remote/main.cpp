// quvera-remote: identifies the instrument, presses its keys and fetches its screen from a shell.
#include "remote/hostaddress.h"
#include "remote/remoteclient.h"
#include "remote/toolcall.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QSaveFile>
#include <QThread>
#include <clocale>
#include <cstdio>

namespace {

bool parseNumber(const QString &text, int lowest, int highest, int *value)
{
    bool isNumber = false;
    *value = text.toInt(&isNumber);
    return isNumber && *value >= lowest && *value <= highest;
}

int identify(RemoteClient &client)
{
    QString name;
    if (!client.identify(&name))
        return fail(Failed, client.error());
    std::printf("%s\n", qPrintable(name));
    return Done;
}

int pressKeys(RemoteClient &client, const QStringList &keys, int gapMs)
{
    QVector<int> codes;
    for (const QString &key : keys) {
        codes << RemoteClient::keyCode(key);
        if (codes.last() < 0)
            return fail(Misused,
                        QStringLiteral("no key is called \"%1\" (keys: %2, or a number)")
                            .arg(key, RemoteClient::keyNames().join(QLatin1Char(' '))));
    }
    for (int i = 0; i < codes.size(); ++i) {
        if (i > 0)
            QThread::msleep(ulong(gapMs));
        if (!client.pressKey(codes.at(i)))
            return fail(Failed, client.error());
    }
    return Done;
}

int saveScreen(RemoteClient &client, const QString &fileName)
{
    const QByteArray png = client.screen();
    if (png.isEmpty())
        return fail(Failed, client.error());
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(png) != png.size() || !file.commit())
        return fail(Failed, QStringLiteral("%1: %2").arg(fileName, file.errorString()));
    return Done;
}

/// What is wrong with a command and its arguments; empty when they fit.
QString misuseOf(const QString &command, const QStringList &arguments)
{
    const bool wantsNothing = command == QLatin1String("identify") || command == QLatin1String("keepalive");
    const bool isScreen = command == QLatin1String("screen");
    if (!wantsNothing && !isScreen && command != QLatin1String("key"))
        return QStringLiteral("no command is called \"%1\"").arg(command);
    if (wantsNothing != arguments.isEmpty())
        return QStringLiteral("wrong number of arguments for %1").arg(command);
    if (isScreen && arguments.size() != 1)
        return QStringLiteral("screen takes one file name");
    return {};
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QCoreApplication::setApplicationName(QStringLiteral("quvera-remote"));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Talks to an instrument over its UDP remote control.\n\nCommands:\n"
                       "  identify         print the instrument's name\n"
                       "  key NAME...      press keys one after the other: %1, or remote numbers\n"
                       "  screen FILE      save the screen as a PNG file\n"
                       "  keepalive        ask whether the instrument answers\n\n"
                       "Exit status: 0 done, 1 no answer or no file, 2 wrong use.")
            .arg(RemoteClient::keyNames().join(QLatin1Char(' '))));
    parser.addHelpOption();
    const QString defaultPort = qEnvironmentVariable("QUVERA_REMOTE_PORT", QStringLiteral("3527"));
    const QCommandLineOption host(QStringLiteral("host"), QStringLiteral("Name or address of the instrument."),
                                  QStringLiteral("host"), QStringLiteral("127.0.0.1"));
    const QCommandLineOption port(QStringLiteral("port"), QStringLiteral("Its UDP port (default %1).").arg(defaultPort),
                                  QStringLiteral("port"), defaultPort);
    const QCommandLineOption timeout(QStringLiteral("timeout"),
                                     QStringLiteral("How long an answer is waited for, three times (default 1500)."),
                                     QStringLiteral("ms"), QStringLiteral("1500"));
    const QCommandLineOption gap(QStringLiteral("gap"), QStringLiteral("Pause between two keys (default 100)."),
                                 QStringLiteral("ms"), QStringLiteral("100"));
    parser.addOptions({ host, port, timeout, gap });
    parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("identify, key, screen or keepalive."));
    if (!readCall(parser, true))
        return Misused;

    QStringList arguments = parser.positionalArguments();
    if (arguments.isEmpty())
        return fail(Misused, QStringLiteral("no command given (quvera-remote --help lists them)"));
    int portNumber = 0, timeoutMs = 0, gapMs = 0;
    if (!parseNumber(parser.value(port), 1, 65535, &portNumber))
        return fail(Misused, QStringLiteral("\"%1\" is no port").arg(parser.value(port)));
    if (!parseNumber(parser.value(timeout), 1, 600000, &timeoutMs)
        || !parseNumber(parser.value(gap), 0, 600000, &gapMs))
        return fail(Misused, QStringLiteral("times are in ms, at most 600000"));
    const QString command = arguments.takeFirst();
    const QString misuse = misuseOf(command, arguments);
    if (!misuse.isEmpty())
        return fail(Misused, misuse);

    const QHostAddress address = hostAddress(parser.value(host));
    if (address.isNull())
        return fail(Failed, QStringLiteral("no host is called \"%1\"").arg(parser.value(host)));
    RemoteClient client(address, quint16(portNumber));
    client.setPatience(timeoutMs, 3);
    if (command == QLatin1String("identify"))
        return identify(client);
    if (command == QLatin1String("keepalive"))
        return client.keepAlive() ? Done : fail(Failed, client.error());
    if (command == QLatin1String("key"))
        return pressKeys(client, arguments, gapMs);
    return saveScreen(client, arguments.first());
}
