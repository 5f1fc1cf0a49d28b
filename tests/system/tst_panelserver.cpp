#include "panelprocess.h"

#include <QHostInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSet>
#include <QTcpServer>
#include <QTemporaryFile>
#include <QUrl>

#include <algorithm>
#include <csignal>

using namespace PanelTest;

/// quvera-panel as browsers see it, before an instrument that counts what it is asked.
class TstPanelServer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void everyOptionIsInTheDocument();
    void wrongUseIsOneLine_data();
    void wrongUseIsOneLine();
    void usedPortIsOneLine();
    void addressThatTheMachineDoesNotHaveIsOneLine();
    void pageAndAllThatItNeedsComeFromThePanel();
    void helpLeadsToSectionsThatThereAre();
    void everyLinkOfTheGuideIsAnswered();
    void everyPageHasItsHelp();
    void everyAnswerCarriesTheContentPolicy();
    void keysReachTheInstrumentInTheirOrder();
    void keysThatAreNoneAreRefused();
    void keysThatLayOnTheWayAreNotPressed();
    void streamBeatsWhateverElseComes();
    void nobodyLooksNothingIsAsked();
    void unchangedScreenIsSentOnce();
    void viewersShareThePictures();
    void whatTheInstrumentSaysAboutAPictureGoesWithIt();
    void instrumentThatGoesAndComesIsToldOf();
    void beyondItsNumberViewersAreRefused();
    void withoutADeskThereAreNoControls();
    void tokenIsAskedForBeyondThisMachine();
    void tokenOfAFileHoldsOnThisMachineToo();
    void tokenOfAFileTakesNothingFromTheMachinesName();
    void tokenThatIsTooShortIsRefused();
    void addressOfTheNewerKindStandsInBrackets();
    void signalEndsItWithViewersWatching_data();
    void signalEndsItWithViewersWatching();

private:
    std::unique_ptr<FakeInstrument> m_instrument;
    std::unique_ptr<PanelProcess> m_panel;
    quint16 m_port = 0;
};

void TstPanelServer::init()
{
    m_panel.reset();
    m_instrument = std::make_unique<FakeInstrument>();
    m_instrument->begin();
    m_panel = std::make_unique<PanelProcess>();
    QVERIFY(m_panel->startFor(*m_instrument));
    m_port = m_panel->port();
}

void TstPanelServer::everyOptionIsInTheDocument()
{
    QProcess help;
    help.start(QStringLiteral(QUVERA_BIN_DIR "/quvera-panel"), { "--help" });
    QVERIFY(help.waitForFinished(kPatience));
    QFile page(QStringLiteral(QUVERA_SOURCE_DIR "/docs/panel.md"));
    QVERIFY(page.open(QIODevice::ReadOnly));
    const auto options = [](const QByteArray &text, const char *pattern) {
        QStringList found;
        auto matches = QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
        while (matches.hasNext())
            found << matches.next().captured(1);
        found.sort();
        return found;
    };
    QStringList known = options(help.readAllStandardOutput(), "^  (?:-h, )?(--[a-z-]+)");
    known.removeAll(QStringLiteral("--help-all")); // the toolkit's own
    QVERIFY(known.size() > 8);
    QCOMPARE(options(page.readAll(), "^\\| `(--[a-z-]+)"), known);
}

void TstPanelServer::wrongUseIsOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("error");
    QTest::newRow("port") << QStringList { "--port", "http" } << QByteArray("\"http\" is no port");
    QTest::newRow("instrument's port") << QStringList { "--instrument-port", "0" } << QByteArray("\"0\" is no port");
    QTest::newRow("address") << QStringList { "--listen", "here" } << QByteArray("\"here\" is no address to listen at");
    QTest::newRow("word") << QStringList { "loudly" } << QByteArray("\"loudly\" is no option");
    QTest::newRow("guide") << QStringList { "--guide", "/no/such/folder" }
                           << QByteArray("\"/no/such/folder\" is no folder");
    QTest::newRow("root") << QStringList { "--root", "/no/such/root" } << QByteArray("\"/no/such/root\" is no folder");
    QTest::newRow("token") << QStringList { "--token-file", "/no/such/file" } << QByteArray("/no/such/file");
}

void TstPanelServer::wrongUseIsOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, error);
    PanelProcess panel;
    QVERIFY(!panel.start(arguments));
    QCOMPARE(panel.process().exitCode(), 2);
    const QByteArray told = panel.process().readAllStandardError();
    QVERIFY2(told.contains(error), told);
    QCOMPARE(told.count('\n'), 1);
}

void TstPanelServer::usedPortIsOneLine()
{
    PanelProcess second;
    QVERIFY(!second.startFor(*m_instrument, { "--port", QString::number(m_port) }));
    QCOMPARE(second.process().exitCode(), 1);
    const QByteArray told = second.process().readAllStandardError();
    QCOMPARE(told,
             "quvera-panel: TCP port " + QByteArray::number(m_port)
                 + " of 127.0.0.1 is in use or not allowed; choose another with --port\n");
}

void TstPanelServer::addressThatTheMachineDoesNotHaveIsOneLine()
{
    PanelProcess other;
    QVERIFY(!other.startFor(*m_instrument, { "--listen", "192.0.2.1" })); // of documents only
    QCOMPARE(other.process().exitCode(), 1);
    QCOMPARE(other.process().readAllStandardError(),
             QByteArray("quvera-panel: this machine has no address 192.0.2.1; choose another with --listen\n"));
}

void TstPanelServer::pageAndAllThatItNeedsComeFromThePanel()
{
    const Answer page = get(m_port, "/");
    QCOMPARE(page.status, 200);
    QCOMPARE(page.field("Content-Type"), QByteArray("text/html; charset=utf-8"));
    QVERIFY(!page.body.contains("://"));
    // Nothing that the policy would forbid: scripts and styles in files, no handlers in attributes.
    QVERIFY(!QRegularExpression(" on[a-z]+=|<style|style=|<script>").match(page.body).hasMatch());
    int needed = 0;
    auto links = QRegularExpression("(?:src|href)=\"([^\"#]+\\.(?:js|css|svg))\"").globalMatch(page.body);
    while (links.hasNext()) {
        const QByteArray path = '/' + links.next().captured(1).toLatin1();
        const Answer part = get(m_port, path);
        QVERIFY2(part.status == 200 && !part.body.isEmpty(), path);
        QVERIFY2(!QString(part.body).remove("http://www.w3.org/2000/svg").contains("://"), path);
        const QByteArray type = path.endsWith(".svg") ? "image/svg+xml"
            : path.endsWith(".css")                   ? "text/css; charset=utf-8"
                                                      : "text/javascript; charset=utf-8";
        QCOMPARE(part.field("Content-Type"), type);
        ++needed;
    }
    QVERIFY(needed >= 4);
    for (const char *none : { "/nothing", "/panel.js/", "/guide/", "/guide/../panel.css",
                              "/guide/%2e%2e/%2e%2e/README.md", "//etc/passwd", "/:/panel/index.html" })
        QVERIFY2(get(m_port, none).status == 404, none);
}

void TstPanelServer::helpLeadsToSectionsThatThereAre()
{
    const QByteArray table = get(m_port, "/help.js").body;
    int followed = 0;
    auto links = QRegularExpression("'([a-z/-]+\\.html)(?:#([a-z0-9-]+))?'").globalMatch(table);
    while (links.hasNext()) {
        const auto link = links.next();
        const Answer page = get(m_port, "/guide/" + link.captured(1).toLatin1());
        QVERIFY2(page.status == 200, qPrintable(link.captured()));
        QCOMPARE(page.field("Content-Type"), QByteArray("text/html; charset=utf-8"));
        QVERIFY2(link.captured(2).isEmpty() || page.body.contains("id=\"" + link.captured(2).toLatin1() + '"'),
                 qPrintable(link.captured()));
        // For who measures, not for who changes the program.
        QVERIFY2(link.captured(1).startsWith("guide/") || link.captured(1) == "user-guide.html",
                 qPrintable(link.captured()));
        ++followed;
    }
    QVERIFY(followed > 15);
    QCOMPARE(get(m_port, "/guide/guide.css").field("Content-Type"), QByteArray("text/css; charset=utf-8"));
    QCOMPARE(get(m_port, "/guide/pictures/site-values-measuring.png").field("Content-Type"), QByteArray("image/png"));
}

void TstPanelServer::everyLinkOfTheGuideIsAnswered()
{
    const QRegularExpression form(QStringLiteral("(?:href|src)=\"(?![a-z]+:|#)([^\"#]+)"));
    QSet<QByteArray> seen { "/guide/user-guide.html" };
    QList<QByteArray> pages = seen.values();
    int followed = 0;
    while (!pages.isEmpty()) {
        const QByteArray at = pages.takeFirst();
        const Answer answer = get(m_port, at);
        QVERIFY2(answer.status == 200, at);
        QVERIFY2(!answer.body.isEmpty(), at);
        ++followed;
        if (!at.endsWith(".html"))
            continue;
        auto links = form.globalMatch(QString::fromUtf8(answer.body));
        while (links.hasNext()) {
            const QByteArray to = QUrl(at).resolved(QUrl(links.next().captured(1))).path().toLatin1();
            if (!seen.contains(to)) {
                seen.insert(to);
                pages << to;
            }
        }
    }
    QVERIFY2(followed > 80, QByteArray::number(followed)); // pages and their pictures
}

// The page table makes each page by its class; pictures carry that name.
void TstPanelServer::everyPageHasItsHelp()
{
    const QByteArray table = get(m_port, "/help.js").body;
    QFile pages(QStringLiteral(QUVERA_SOURCE_DIR "/src/shell/pagetable.cpp"));
    QVERIFY(pages.open(QIODevice::ReadOnly));
    int found = 0;
    auto made = QRegularExpression("(?:make<|new )(\\w{2,})[>(]").globalMatch(pages.readAll());
    for (; made.hasNext(); ++found) {
        const QByteArray page = made.next().captured(1).toLatin1();
        QVERIFY2(table.contains("  " + page + ": '"), page);
    }
    QVERIFY(found >= 17);
    // The guide has sections of set-up's sub pages; the first two pages and the voltage are set-up itself.
    QFile parts(QStringLiteral(QUVERA_SOURCE_DIR "/src/setup/setuppage.cpp"));
    QVERIFY(parts.open(QIODevice::ReadOnly));
    int parted = 0;
    made = QRegularExpression("make<(\\w+)>").globalMatch(parts.readAll());
    for (; made.hasNext(); ++parted) {
        const QByteArray part = made.next().captured(1).toLatin1();
        const bool isItself = part == "SetupMain" || part == "SetupMainPage2" || part == "SetupVnomPage";
        QVERIFY2(table.contains("  " + part + ": '") != isItself, part);
    }
    QVERIFY(parted >= 13);
}

void TstPanelServer::everyAnswerCarriesTheContentPolicy()
{
    const QByteArray policy = "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self' data:; "
                              "connect-src 'self'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'";
    for (const Answer &answer :
         { get(m_port, "/"), get(m_port, "/nothing"), post(m_port, "/key", "{}"), post(m_port, "/key", "x", "") }) {
        QCOMPARE(answer.field("Content-Security-Policy"), policy);
        QCOMPARE(answer.field("X-Content-Type-Options"), QByteArray("nosniff"));
        QCOMPARE(answer.field("X-Frame-Options"), QByteArray("DENY"));
        QCOMPARE(answer.field("Referrer-Policy"), QByteArray("no-referrer"));
        QCOMPARE(answer.field("Cross-Origin-Resource-Policy"), QByteArray("same-origin"));
        QCOMPARE(answer.field("Cross-Origin-Opener-Policy"), QByteArray("same-origin"));
        QCOMPARE(answer.field("Cache-Control"), QByteArray("no-store"));
        QCOMPARE(answer.field("Access-Control-Allow-Origin"), QByteArray());
    }
}

void TstPanelServer::keysReachTheInstrumentInTheirOrder()
{
    const QVector<quint32> expected { 40, 19, 13, 46, 51, 17 };
    int begin = 0;
    const auto areAllTaken = [this, &begin] {
        begin = m_instrument->keys().size();
        for (const char *key : { "F1", "Down", "Enter", "Menu", "light", "17" }) {
            if (post(m_port, "/key", "{\"key\":\"" + QByteArray(key) + "\"}").status != 204)
                return false;
        }
        return true;
    };
    // Behind a key that a busy machine lets wait for its answer, the others are left out; then all of them anew.
    QVERIFY(eventually(areAllTaken));
    QTRY_COMPARE_WITH_TIMEOUT(m_instrument->keys().mid(begin), expected, kPatience);
}

void TstPanelServer::keysThatAreNoneAreRefused()
{
    for (const char *wish : { "", "{", "[]", "{}", "{\"key\":13}", "{\"key\":\"F13\"}", "{\"key\":null}", "\"F1\"",
                              "{\"key\":[\"F1\"]}", "{\"kex\":\"F1\"}", "{\"key\":\"14\"}", "{\"key\":\"52\"}" })
        QVERIFY2(post(m_port, "/key", wish).status == 400, wish);
    QCOMPARE(get(m_port, "/key").status, 404);
    QCOMPARE(say(m_port, "PUT /key HTTP/1.1\r\n" + host(m_port) + "Content-Type: application/json\r\n\r\n").status,
             404);
    QCOMPARE(m_instrument->keys().size(), 0);
}

/// The panel's clock as the last beat tells it; -1 before one came.
static double clockOf(Viewer *viewer)
{
    viewer->count("beat");
    const QByteArray begin = "event: beat\ndata: ";
    const int at = viewer->read().lastIndexOf(begin);
    const int end = viewer->read().indexOf('\n', at + begin.size());
    if (at < 0 || end < 0)
        return -1;
    const QByteArray data = viewer->read().mid(at + begin.size(), end - at - begin.size());
    return QJsonDocument::fromJson(data).object().value("at").toDouble(-1);
}

void TstPanelServer::keysThatLayOnTheWayAreNotPressed()
{
    Viewer viewer(m_port);
    QTRY_VERIFY_WITH_TIMEOUT(clockOf(&viewer) > 0, kPatience);
    const auto pressedAt = [this](const char *key, const QByteArray &at) {
        return post(m_port, "/key", QByteArray("{\"key\":\"") + key + "\",\"at\":" + at + '}').status;
    };
    const double now = clockOf(&viewer);
    QCOMPARE(pressedAt("F1", QByteArray::number(now - 2000, 'f', 3)), 409);
    QCOMPARE(pressedAt("F1", QByteArray::number(now + 600'000, 'f', 3)), 409); // of another panel's clock
    for (const char *none : { "null", "\"now\"", "[]", "-1e300", "1e300" })
        QVERIFY2(pressedAt("F1", none) == 409, none);
    const QByteArray late = "{\"control\":\"clear\",\"at\":0}";
    QCOMPARE(post(m_port, "/control", late).status, 409);
    // Pressed a second ago. A busy machine may be late itself, and is asked again, by the clock of a later beat.
    QVERIFY(eventually([&] { return pressedAt("F2", QByteArray::number(clockOf(&viewer) - 1000, 'f', 3)) == 204; }));
    QTRY_COMPARE_WITH_TIMEOUT(m_instrument->keys(), QVector<quint32> { 41 }, kPatience);
}

// The page takes silence for the end of the panel.
void TstPanelServer::streamBeatsWhateverElseComes()
{
    Viewer still(m_port);
    QTRY_VERIFY_WITH_TIMEOUT(still.count("beat") >= 3 && still.count("screen") > 0, kPatience);
    QCOMPARE(still.count("screen"), 1);
    Viewer busy(m_port);
    // Longer where the machine stands still for a while, and with it the pictures.
    bool isThrough = false;
    for (int i = 0; !isThrough && i < kPatience; i += 100) {
        m_instrument->show(QColor(i / 100 % 256, 100, 0));
        QTest::qWait(100);
        const int beats = busy.count("beat");
        isThrough = beats >= 3 && busy.count("screen") > beats;
    }
    QVERIFY2(isThrough,
             qPrintable(QStringLiteral("%1 screens, %2 beats").arg(busy.count("screen")).arg(busy.count("beat"))));
}

void TstPanelServer::nobodyLooksNothingIsAsked()
{
    QTest::qWait(1000);
    QCOMPARE(m_instrument->picturesAsked.load(), 0);
    QCOMPARE(get(m_port, "/screen.png").status, 404); // there is none yet
    {
        Viewer viewer(m_port);
        QTRY_VERIFY_WITH_TIMEOUT(viewer.count("screen") == 1, kPatience);
    }
    // Who is gone is noticed; then the count stands still.
    int before = -1;
    QVERIFY(eventually([&] {
        const int last = before;
        QTest::qWait(1500);
        before = m_instrument->picturesAsked;
        return before == last;
    }));
}

void TstPanelServer::unchangedScreenIsSentOnce()
{
    Viewer viewer(m_port);
    QTRY_VERIFY_WITH_TIMEOUT(viewer.count("screen") == 1, kPatience);
    const int asked = m_instrument->picturesAsked;
    QTRY_VERIFY_WITH_TIMEOUT(m_instrument->picturesAsked > asked + 4, kPatience);
    QCOMPARE(viewer.count("screen"), 1);
    // Once that it is there; more only where a machine that stands still makes it seem gone, and never twice the same.
    const QVector<QByteArray> sayings = viewer.sayings();
    QVERIFY(sayings.contains("{\"there\":true}"));
    QVERIFY(std::adjacent_find(sayings.begin(), sayings.end()) == sayings.end());
    QVERIFY(viewer.read().contains(m_instrument->png().toBase64()));
    m_instrument->show(Qt::red);
    QTRY_COMPARE_WITH_TIMEOUT(viewer.count("screen"), 2, kPatience);
    QVERIFY(viewer.read().contains(m_instrument->png().toBase64()));
    QCOMPARE(get(m_port, "/screen.png").body, m_instrument->png());
}

void TstPanelServer::viewersShareThePictures()
{
    const auto askedForTwelveChanges = [this](int viewers) {
        QVector<QSharedPointer<Viewer>> all;
        for (int i = 0; i < viewers; ++i)
            all << QSharedPointer<Viewer>::create(m_port);
        for (const auto &viewer : all) {
            while (viewer->count("screen") < 1)
                QTest::qWait(10);
        }
        // Twelve changes, each seen by all before the next.
        const int before = m_instrument->picturesAsked;
        for (int change = 0; change < 12; ++change) {
            m_instrument->show(QColor(10 * change + viewers, 0, 100));
            for (const auto &viewer : all) {
                while (viewer->count("screen") < change + 2)
                    QTest::qWait(10);
            }
        }
        return m_instrument->picturesAsked - before;
    };
    int alone = 0, together = 0;
    // Looks go on while a busy machine is late with a change: it is not so again and again.
    const bool isShared = eventually([&] {
        alone = askedForTwelveChanges(1);
        together = askedForTwelveChanges(20);
        return together <= 2 * alone;
    });
    QVERIFY2(isShared, qPrintable(QStringLiteral("%1 and %2").arg(alone).arg(together)));
}

void TstPanelServer::whatTheInstrumentSaysAboutAPictureGoesWithIt()
{
    m_instrument->show(Qt::darkGreen, QStringLiteral("Volts/Amps/Hertz"));
    Viewer viewer(m_port);
    QTRY_VERIFY_WITH_TIMEOUT(viewer.count("screen") == 1 && viewer.read().endsWith("\n\n"), kPatience);
    const QByteArray data = viewer.read().mid(viewer.read().indexOf("event: screen\ndata: ") + 20);
    const QJsonObject screen = QJsonDocument::fromJson(data.left(data.indexOf('\n'))).object();
    QCOMPARE(screen.value("Title").toString(), QStringLiteral("Volts/Amps/Hertz"));
}

void TstPanelServer::instrumentThatGoesAndComesIsToldOf()
{
    Viewer viewer(m_port);
    QTRY_VERIFY_WITH_TIMEOUT(viewer.count("screen") == 1, kPatience);
    QVERIFY(viewer.sayings().contains("{\"there\":true}"));
    const quint16 port = m_instrument->port();
    m_instrument.reset();
    QTRY_VERIFY_WITH_TIMEOUT(viewer.sayings().last().contains("\"there\":false"), kPatience);
    // Another program takes its port and answers in its place.
    QUdpSocket socket;
    QVERIFY(socket.bind(QHostAddress(QHostAddress::LocalHost), port));
    QTRY_VERIFY_WITH_TIMEOUT(socket.hasPendingDatagrams(), kPatience);
    QCOMPARE(get(m_port, "/").status, 200);
}

void TstPanelServer::beyondItsNumberViewersAreRefused()
{
    QVector<QSharedPointer<Viewer>> viewers;
    for (int i = 0; i < 40; ++i) {
        viewers << QSharedPointer<Viewer>::create(m_port);
        QTRY_VERIFY_WITH_TIMEOUT(viewers.last()->count("screen") == 1, kPatience);
    }
    const Answer refused = get(m_port, "/events");
    QCOMPARE(refused.status, 503);
    QCOMPARE(refused.field("Retry-After"), QByteArray("5"));
    QCOMPARE(refused.body, QByteArray("Too many look on already\n")); // the page says so
    QCOMPARE(get(m_port, "/").status, 200); // keys and the page are there for all
    viewers.removeLast();
    QVERIFY(eventually([&] {
        Viewer another(m_port);
        while (another.socket().state() == QAbstractSocket::ConnectedState && another.count("screen") == 0)
            QTest::qWait(10);
        another.count("screen");
        return another.read().startsWith("HTTP/1.1 200");
    }));
}

void TstPanelServer::withoutADeskThereAreNoControls()
{
    QCOMPARE(get(m_port, "/controls").body, QByteArray("[]"));
    QCOMPARE(post(m_port, "/control", "{\"control\":\"clear\"}").status, 400);
    Viewer viewer(m_port);
    QTRY_VERIFY_WITH_TIMEOUT(viewer.count("screen") == 1, kPatience);
    QCOMPARE(viewer.count("supply"), 0);
}

void TstPanelServer::tokenIsAskedForBeyondThisMachine()
{
    PanelProcess panel;
    QVERIFY(panel.startFor(*m_instrument, { "--listen", "0.0.0.0" }));
    const quint16 port = panel.port();
    QCOMPARE(panel.address().host(), QHostInfo::localHostName().toLower()); // who has it can go there
    const QByteArray token = panel.address().query().toLatin1().mid(6);
    QVERIFY2(token.size() == 32, token);
    for (const char *path : { "/", "/events", "/controls", "/screen.png", "/panel.js" })
        QVERIFY2(get(port, path).status == 401, path);
    QCOMPARE(post(port, "/key", "{\"key\":\"F1\"}").status, 401);
    const QByteArray ownName = "Host: " + QHostInfo::localHostName().toLatin1() + ':' + QByteArray::number(port);
    QCOMPARE(say(port, "GET / HTTP/1.1\r\n" + ownName + "\r\n\r\n").status, 401); // not 421
    QCOMPARE(get(port, "/?token=" + QByteArray(32, '0')).status, 401);
    QCOMPARE(post(port, "/key?token=" + token, "{\"key\":\"F1\"}").status, 401); // never in an address that acts
    const Answer entry = get(port, "/?token=" + token);
    QCOMPARE(entry.status, 303);
    QCOMPARE(entry.field("Location"), QByteArray("/"));
    const QByteArray cookie = entry.field("Set-Cookie");
    QVERIFY2(cookie.endsWith("; Path=/; HttpOnly; SameSite=Lax"), cookie);
    const QByteArray shown = "Cookie: other=1; " + cookie.left(cookie.indexOf(';')) + "; more=2\r\n";
    QCOMPARE(get(port, "/", shown).status, 200);
    QCOMPARE(post(port, "/key", "{\"key\":\"F1\"}", shown + "Content-Type: application/json\r\n").status, 204);
    QCOMPARE(get(port, "/", "Authorization: Bearer " + token + "\r\n").status, 200);
    QCOMPARE(get(port, "/", "Authorization: Bearer " + token.left(31) + "\r\n").status, 401);
    QTRY_COMPARE_WITH_TIMEOUT(m_instrument->keys().size(), 1, kPatience);
    PanelProcess other;
    QVERIFY(other.startFor(*m_instrument, { "--listen", "0.0.0.0" }));
    QVERIFY(other.address().query() != panel.address().query());
}

void TstPanelServer::tokenOfAFileHoldsOnThisMachineToo()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("abcdef0123456789XYZ\nnothing else\n");
    file.close();
    PanelProcess panel;
    QVERIFY(panel.startFor(*m_instrument, { "--token-file", file.fileName() }));
    QCOMPARE(panel.address().query(), QStringLiteral("token=abcdef0123456789XYZ"));
    QCOMPARE(get(panel.port(), "/").status, 401);
    QCOMPARE(get(panel.port(), "/", "Authorization: Bearer abcdef0123456789XYZ\r\n").status, 200);
}

// The address that is printed has that name.
void TstPanelServer::tokenOfAFileTakesNothingFromTheMachinesName()
{
    QTemporaryFile file;
    QVERIFY(file.open() && file.write("abcdef0123456789XYZ\n") > 0 && file.flush());
    PanelProcess panel;
    QVERIFY(panel.startFor(*m_instrument, { "--listen", "0.0.0.0", "--token-file", file.fileName() }));
    const QByteArray host = panel.address().host().toLatin1() + ':' + QByteArray::number(panel.port());
    QCOMPARE(say(panel.port(), "GET /?token=abcdef0123456789XYZ HTTP/1.1\r\nHost: " + host + "\r\n\r\n").status, 303);
}

void TstPanelServer::tokenThatIsTooShortIsRefused()
{
    for (const char *token : { "short", "abcdef0123456789;Path=/", "" }) {
        QTemporaryFile file;
        QVERIFY(file.open());
        file.write(token);
        file.close();
        PanelProcess panel;
        QVERIFY2(!panel.startFor(*m_instrument, { "--token-file", file.fileName() }), token);
        QCOMPARE(panel.process().exitCode(), 2);
    }
}

void TstPanelServer::addressOfTheNewerKindStandsInBrackets()
{
    PanelProcess panel;
    const bool serves = panel.startFor(*m_instrument, { "--listen", "::1" });
    QTcpServer loopback;
    if (!loopback.listen(QHostAddress(QHostAddress::LocalHostIPv6))) { // a machine without such addresses
        QVERIFY(!serves);
        QVERIFY(panel.process().readAllStandardError().startsWith("quvera-panel: this machine has no address ::1;"));
        return;
    }
    QCOMPARE(panel.address().host(), QString("::1"));
    QVERIFY2(panel.address().toString().startsWith("http://[::1]:"), qPrintable(panel.address().toString()));
    QTcpSocket socket;
    socket.connectToHost(QHostAddress(QHostAddress::LocalHostIPv6), panel.port());
    QVERIFY(socket.waitForConnected(kPatience));
}

void TstPanelServer::signalEndsItWithViewersWatching_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("Ctrl-C") << SIGINT;
    QTest::newRow("end") << SIGTERM;
    QTest::newRow("terminal closed") << SIGHUP;
}

void TstPanelServer::signalEndsItWithViewersWatching()
{
    QFETCH(int, signal);
    Viewer viewer(m_port);
    QTRY_VERIFY_WITH_TIMEOUT(viewer.count("screen") == 1, kPatience);
    QCOMPARE(::kill(pid_t(m_panel->process().processId()), signal), 0);
    QVERIFY(m_panel->process().waitForFinished(kPatience));
    QCOMPARE(m_panel->process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_panel->process().exitCode(), 0);
}

QTEST_GUILESS_MAIN(TstPanelServer)

#include "tst_panelserver.moc"
