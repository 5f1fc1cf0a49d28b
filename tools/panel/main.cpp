// quvera-panel: the instrument's front panel in a browser.
#include "panel/guide.h"
#include "panel/panelserver.h"
#include "panel/screenfeed.h"
#include "panel/supply.h"
#include "remote/hostaddress.h"
#include "remote/toolcall.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHostInfo>
#include <QTcpServer>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <pthread.h>
#include <random>
#include <thread>

namespace {

constexpr int kShortestToken = 16; // signs

struct Options
{
    QString instrument;
    QHostAddress instrumentAddress;
    int instrumentPort = 0;
    QHostAddress listen;
    int port = 0;
    QString root; // empty: the instrument is on no desk of ours
    QString guide;
    QString token;
    std::vector<std::string> names;
};

QString newToken()
{
    std::random_device device;
    QString token;
    for (int i = 0; i < 4; ++i)
        token += QStringLiteral("%1").arg(quint32(device()), 8, 16, QLatin1Char('0'));
    return token;
}

/// Reads a port; false when it is none.
bool readPort(const QString &text, int lowest, int *port)
{
    bool isNumber = false;
    *port = text.toInt(&isNumber);
    return isNumber && *port >= lowest && *port <= 65535;
}

struct Definitions
{
    QCommandLineOption instrument { QStringLiteral("instrument"),
                                    QStringLiteral("Name or address of the instrument (default 127.0.0.1)."),
                                    QStringLiteral("host"), QStringLiteral("127.0.0.1") };
    QCommandLineOption instrumentPort { QStringLiteral("instrument-port"),
                                        QStringLiteral("UDP port of its remote control (default 3527, or "
                                                       "QUVERA_REMOTE_PORT)."),
                                        QStringLiteral("port"),
                                        qEnvironmentVariable("QUVERA_REMOTE_PORT", QStringLiteral("3527")) };
    QCommandLineOption port { QStringLiteral("port"),
                              QStringLiteral("TCP port of the panel (default 8080; 0: any that is free)."),
                              QStringLiteral("port"), QStringLiteral("8080") };
    QCommandLineOption listen { QStringLiteral("listen"),
                                QStringLiteral(
                                    "Address to serve at (default 127.0.0.1: this machine only). Beyond this "
                                    "machine a token is asked for."),
                                QStringLiteral("address"), QStringLiteral("127.0.0.1") };
    QCommandLineOption tokenFile { QStringLiteral("token-file"),
                                   QStringLiteral("File whose first line is the token; without it one is made up."),
                                   QStringLiteral("file") };
    QCommandLineOption name { QStringLiteral("name"),
                              QStringLiteral("Another host name that the panel goes by; may be given again."),
                              QStringLiteral("name") };
    QCommandLineOption root { QStringLiteral("root"),
                              QStringLiteral("Root of the instrument's desk: its supply is shown beside it (default "
                                             "QUVERA_ROOT)."),
                              QStringLiteral("folder"), qEnvironmentVariable("QUVERA_ROOT") };
    QCommandLineOption guide { QStringLiteral("guide"), QStringLiteral("Folder of the user guide's pages."),
                               QStringLiteral("folder") };

    void addTo(QCommandLineParser *parser)
    {
        parser->setApplicationDescription(QStringLiteral(
            "Serves an instrument's front panel to browsers: its screen, its keys, and on a desk the "
            "supply beside it. Ctrl-C ends it.\n\nExit status: 0 done, 1 the port or the address cannot be had or no "
            "host has that name, 2 wrong use, such as a file that cannot be read or a folder "
            "that does not exist."));
        parser->addHelpOption();
        parser->addOptions({ instrument, instrumentPort, port, listen, tokenFile, name, root, guide });
    }
};

QString readToken(const QString &fileName, QString *token)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("%1: %2").arg(fileName, file.errorString());
    *token = QString::fromLatin1(file.readLine(1024).trimmed());
    for (const QChar sign : qAsConst(*token)) {
        if (!sign.isLetterOrNumber() || sign.unicode() > 127)
            return QStringLiteral("%1: a token is of letters and digits").arg(fileName);
    }
    return token->size() >= kShortestToken
        ? QString()
        : QStringLiteral("%1: a token has at least %2 signs").arg(fileName).arg(kShortestToken);
}

/// Where the build puts the guide, or the package.
QString usualGuide()
{
    const QString top = QCoreApplication::applicationDirPath() + QStringLiteral("/..");
    const QString built = top + QStringLiteral("/guide");
    return QFile::exists(built) ? built : top + QStringLiteral("/share/quvera-tools/guide");
}

QString notAFolder(const QString &name)
{
    return QStringLiteral("\"%1\" is no folder").arg(name);
}

/// Empty, or one line that says what is wrong.
QString readOptions(const QCommandLineParser &parser, const Definitions &given, Options *options)
{
    options->instrument = parser.value(given.instrument);
    if (!readPort(parser.value(given.instrumentPort), 1, &options->instrumentPort))
        return QStringLiteral("\"%1\" is no port").arg(parser.value(given.instrumentPort));
    if (!readPort(parser.value(given.port), 0, &options->port))
        return QStringLiteral("\"%1\" is no port").arg(parser.value(given.port));
    if (!options->listen.setAddress(parser.value(given.listen)))
        return QStringLiteral("\"%1\" is no address to listen at").arg(parser.value(given.listen));
    options->root = parser.isSet(given.instrument) && !parser.isSet(given.root) ? QString() : parser.value(given.root);
    if (!options->root.isEmpty() && !QFileInfo(options->root).isDir())
        return notAFolder(options->root);
    options->guide = parser.isSet(given.guide) ? parser.value(given.guide) : usualGuide();
    if (parser.isSet(given.guide) && !QFileInfo(options->guide).isDir())
        return notAFolder(options->guide);
    const QStringList names = parser.values(given.name);
    for (const QString &name : names)
        options->names.push_back(name.toStdString());
    if (!options->listen.isLoopback()) {
        options->token = newToken();
        options->names.push_back(QHostInfo::localHostName().toStdString());
    }
    return parser.isSet(given.tokenFile) ? readToken(parser.value(given.tokenFile), &options->token) : QString();
}

/// Signals end the server; no other thread is to see them. To be called before there is any.
sigset_t blockSignals()
{
    sigset_t ends;
    sigemptyset(&ends);
    sigaddset(&ends, SIGINT);
    sigaddset(&ends, SIGTERM);
    sigaddset(&ends, SIGHUP);
    pthread_sigmask(SIG_BLOCK, &ends, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
    return ends;
}

void printAddress(const Options &options, int port)
{
    QString host = options.listen.toString();
    if (options.listen == QHostAddress(QHostAddress::AnyIPv4) || options.listen == QHostAddress(QHostAddress::AnyIPv6)
        || options.listen == QHostAddress(QHostAddress::Any))
        host = QHostInfo::localHostName();
    if (host.contains(QLatin1Char(':')))
        host = QLatin1Char('[') + host + QLatin1Char(']');
    const QString token = options.token.isEmpty() ? QString() : QStringLiteral("?token=") + options.token;
    std::printf("http://%s:%d/%s\n", qPrintable(host), port, qPrintable(token));
    std::fflush(stdout);
}

/// Where even a free port cannot be had it is the address that is wrong.
QString whyNothingIsServed(const Options &options)
{
    const QString address = options.listen.toString();
    if (!QTcpServer().listen(options.listen, 0))
        return QStringLiteral("this machine has no address %1; choose another with --listen").arg(address);
    return QStringLiteral("TCP port %1 of %2 is in use or not allowed; choose another with --port")
        .arg(options.port)
        .arg(address);
}

int serve(const Options &options)
{
    sigset_t ends = blockSignals();
    panel::Bulletin bulletin;
    panel::ScreenFeed feed(options.instrumentAddress, quint16(options.instrumentPort), bulletin);
    panel::Supply supply(options.root, bulletin);
    panel::Actions actions;
    actions.pressKey = [&feed](int code) { return feed.pressKey(code); };
    actions.picture = [&feed] { return feed.picture(); };
    actions.controls = [&supply] { return supply.controls(); };
    actions.control = [&supply](const QJsonObject &wish) { return supply.obey(wish); };
    panel::PanelServer server(bulletin, actions, panel::Guide(options.guide));
    if (!server.bind(options.listen.toString().toStdString(), options.port))
        return fail(Failed, whyNothingIsServed(options));
    server.admit(options.token.toStdString(), options.names);
    feed.start();
    supply.start();
    std::thread watch([&server, &ends] {
        int signal = 0;
        sigwait(&ends, &signal);
        server.stop();
    });
    printAddress(options, server.port());
    server.serve();
    bulletin.close();
    feed.end();
    supply.end();
    pthread_kill(watch.native_handle(), SIGTERM);
    watch.join();
    return Done;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QCoreApplication::setApplicationName(QStringLiteral("quvera-panel"));
    QCommandLineParser parser;
    Definitions definitions;
    definitions.addTo(&parser);
    if (!readCall(parser, false))
        return Misused;
    Options options;
    const QString misuse = readOptions(parser, definitions, &options);
    if (!misuse.isEmpty())
        return fail(Misused, misuse);
    options.instrumentAddress = hostAddress(options.instrument);
    if (options.instrumentAddress.isNull())
        return fail(Failed, QStringLiteral("no host is called \"%1\"").arg(options.instrument));
    return serve(options);
}
