#include "panelprocess.h"

#include <QRandomGenerator>

#include <sys/resource.h>
#include <sys/socket.h>

using namespace PanelTest;

/// Requests that nobody well-meaning sends, and whether keys and pictures go on behind them.
class TstPanelGuests : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void foreignHostsAreSentAway_data();
    void foreignHostsAreSentAway();
    void ownHostsAreLetIn_data();
    void ownHostsAreLetIn();
    void foreignPagesPressNoKeys_data();
    void foreignPagesPressNoKeys();
    void linkFromElsewhereOpensThePage();
    void requestsBeyondTheBoundsAreRefused_data();
    void requestsBeyondTheBoundsAreRefused();
    void longestBodyIsTaken();
    void blanksAroundALengthAreNoneOfIt();
    void requestInPiecesIsTakenWhole();
    void requestThatDoesNotComeToItsEndIsEnded();
    void peerThatHangsUpHalfWayIsNotAnswered();
    void wildBytesAreRefused();
    void deepJsonIsRefused();
    void thousandSilentConnectionsKeepNobodyOut();
    void viewersThatReadNothingHoldNobodyUp();
    void keysOfAFloodAreBounded();
    void keysWithoutAnAnswerAreNotMadeUpFor();

private:
    /// Keys get through and the page is served.
    void verifyService()
    {
        static constexpr quint32 kF1 = 40;
        const int keys = m_instrument->keys().count(kF1);
        QCOMPARE(get(m_port, "/").status, 200);
        // A key behind one that a busy machine lets wait for its answer is left out, and pressed anew.
        const auto isPressed = [this, keys] { return m_instrument->keys().count(kF1) > keys; };
        QVERIFY(eventually([&] {
            return post(m_port, "/key", "{\"key\":\"F1\"}").status == 204 && QTest::qWaitFor(isPressed, 10000);
        }));
    }

    std::unique_ptr<FakeInstrument> m_instrument;
    std::unique_ptr<PanelProcess> m_panel;
    quint16 m_port = 0;
};

void TstPanelGuests::initTestCase()
{
    rlimit files = {};
    QCOMPARE(getrlimit(RLIMIT_NOFILE, &files), 0);
    files.rlim_cur = qMin<rlim_t>(files.rlim_max, 4096);
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &files), 0);
    QVERIFY(files.rlim_cur >= 2048);
}

void TstPanelGuests::init()
{
    m_instrument = std::make_unique<FakeInstrument>();
    m_instrument->begin();
    m_panel = std::make_unique<PanelProcess>();
    QVERIFY(m_panel->startFor(*m_instrument, { "--name", "Panel.Workshop" }));
    m_port = m_panel->port();
}

// Whatever a test sent, the panel serves the next one and has not started anew.
void TstPanelGuests::cleanup()
{
    verifyService();
    QCOMPARE(m_panel->process().state(), QProcess::Running);
}

void TstPanelGuests::foreignHostsAreSentAway_data()
{
    QTest::addColumn<QByteArray>("fields");
    const QByteArray port = QByteArray(":PORT");
    QTest::newRow("name") << "Host: evil.example" + port + "\r\n";
    QTest::newRow("name that begins like ours") << "Host: localhost.evil.example" + port + "\r\n";
    QTest::newRow("name that ends like ours") << "Host: evil-localhost" + port + "\r\n";
    QTest::newRow("address in a name") << "Host: 127.0.0.1.evil.example" + port + "\r\n";
    QTest::newRow("other port") << QByteArray("Host: 127.0.0.1:1\r\n");
    QTest::newRow("no port") << QByteArray("Host: 127.0.0.1\r\n");
    QTest::newRow("none") << QByteArray();
    QTest::newRow("two") << "Host: 127.0.0.1" + port + "\r\nHost: evil.example\r\n";
    QTest::newRow("empty") << QByteArray("Host: \r\n");
}

void TstPanelGuests::foreignHostsAreSentAway()
{
    QFETCH(QByteArray, fields);
    fields.replace("PORT", QByteArray::number(m_port));
    QCOMPARE(say(m_port, "GET / HTTP/1.1\r\n" + fields + "\r\n").status, 421);
    QCOMPARE(say(m_port,
                 "POST /key HTTP/1.1\r\n" + fields
                     + "Content-Type: application/json\r\nContent-Length: 12\r\n\r\n{\"key\":\"F1\"}")
                 .status,
             421);
    QCOMPARE(m_instrument->keys().size(), 0);
}

void TstPanelGuests::ownHostsAreLetIn_data()
{
    QTest::addColumn<QByteArray>("host");
    for (const char *host : { "127.0.0.1", "localhost", "LocalHost", "[::1]", "192.168.1.20", "panel.workshop" })
        QTest::newRow(host) << QByteArray(host);
}

void TstPanelGuests::ownHostsAreLetIn()
{
    QFETCH(QByteArray, host);
    QCOMPARE(say(m_port, "GET / HTTP/1.1\r\nHost: " + host + ':' + QByteArray::number(m_port) + "\r\n\r\n").status,
             200);
}

void TstPanelGuests::foreignPagesPressNoKeys_data()
{
    QTest::addColumn<QByteArray>("fields");
    QTest::addColumn<int>("status");
    const QByteArray json = "Content-Type: application/json\r\n";
    QTest::newRow("origin") << json + "Origin: http://evil.example\r\n" << 403;
    QTest::newRow("origin on this machine") << json + "Origin: http://127.0.0.1:1\r\n" << 403;
    QTest::newRow("origin of a file") << json + "Origin: null\r\n" << 403;
    QTest::newRow("origin by https") << json + "Origin: https://127.0.0.1:PORT\r\n" << 403;
    QTest::newRow("other site") << json + "Sec-Fetch-Site: cross-site\r\n" << 403;
    QTest::newRow("same site") << json + "Sec-Fetch-Site: same-site\r\n" << 403;
    QTest::newRow("form that leads here") << json + "Sec-Fetch-Site: cross-site\r\nSec-Fetch-Mode: navigate\r\n" << 403;
    QTest::newRow("form") << QByteArray("Content-Type: application/x-www-form-urlencoded\r\n") << 415;
    QTest::newRow("text") << QByteArray("Content-Type: text/plain\r\n") << 415;
    QTest::newRow("no type") << QByteArray() << 415;
    QTest::newRow("no page at all") << json + "Sec-Fetch-Site: none\r\n" << 204;
    QTest::newRow("our own") << json + "Origin: http://127.0.0.1:PORT\r\nSec-Fetch-Site: same-origin\r\n" << 204;
}

void TstPanelGuests::foreignPagesPressNoKeys()
{
    QFETCH(QByteArray, fields);
    QFETCH(int, status);
    fields.replace("PORT", QByteArray::number(m_port));
    QCOMPARE(post(m_port, "/key", "{\"key\":\"F2\"}", fields).status, status);
    verifyService(); // a key behind it has come: the refused one never does
    QCOMPARE(m_instrument->keys().count(41), status == 204 ? 1 : 0);
}

void TstPanelGuests::linkFromElsewhereOpensThePage()
{
    QCOMPARE(get(m_port, "/", "Sec-Fetch-Site: cross-site\r\nSec-Fetch-Mode: navigate\r\n").status, 200);
    QCOMPARE(get(m_port, "/screen.png", "Sec-Fetch-Site: cross-site\r\nSec-Fetch-Mode: no-cors\r\n").status, 403);
    // With a token, too: the browser keeps its cookie and brings it along where it is led, for that is a link's way on.
    PanelProcess panel;
    QVERIFY(panel.startFor(*m_instrument, { "--listen", "0.0.0.0" }));
    const QByteArray follows = "Sec-Fetch-Site: cross-site\r\nSec-Fetch-Mode: navigate\r\n";
    const Answer entry = get(panel.port(), "/?" + panel.address().query().toLatin1(), follows);
    QCOMPARE(entry.status, 303);
    const QByteArray cookie = entry.field("Set-Cookie");
    QVERIFY2(cookie.endsWith("; SameSite=Lax"), cookie); // Strict would keep it back
    const QByteArray kept = "Cookie: " + cookie.left(cookie.indexOf(';')) + "\r\n";
    QCOMPARE(get(panel.port(), entry.field("Location"), follows + kept).status, 200);
    // A link brings the cookie, and nothing that it may lead to acts.
    for (const char *path : { "/key", "/control", "/key?key=F1", "/control?control=clear" })
        QVERIFY2(get(panel.port(), path, follows + kept).status == 404, path);
    QCOMPARE(
        post(panel.port(), "/key", "{\"key\":\"F1\"}", follows + kept + "Content-Type: application/json\r\n").status,
        403);
}

void TstPanelGuests::requestsBeyondTheBoundsAreRefused_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<int>("status");
    const QByteArray key = "POST /key HTTP/1.1\r\nHOST";
    const QByteArray packed = "Content-Type: application/json\r\nContent-Length: 12\r\n\r\n{\"key\":\"F1\"}";
    QTest::newRow("long field") << "GET / HTTP/1.1\r\nHOSTX-A: " + QByteArray(20000, 'a') + "\r\n\r\n" << 431;
    QTest::newRow("many fields") << "GET / HTTP/1.1\r\nHOST" + QByteArray("a: b\r\n").repeated(4000) + "\r\n" << 431;
    QTest::newRow("a few fields too many") << "GET / HTTP/1.1\r\nHOST" + QByteArray("a: b\r\n").repeated(2800) + "\r\n"
                                           << 431;
    QTest::newRow("endless line") << QByteArray(100000, 'G') << 431;
    QTest::newRow("long path") << "GET /" + QByteArray(15000, 'a') + " HTTP/1.1\r\nHOST\r\n" << 414;
    QTest::newRow("long body") << key + "Content-Length: 5000\r\n\r\n" + QByteArray(5000, ' ') << 413;
    QTest::newRow("huge body to come") << key + "Content-Length: 999999999999999999999\r\n\r\n" << 413;
    QTest::newRow("body of less than nothing") << key + "Content-Length: -1\r\n\r\n" << 400;
    QTest::newRow("two lengths") << key + "Content-Length: 1\r\nContent-Length: 2\r\n\r\n{}" << 400;
    QTest::newRow("pieces") << key + "Transfer-Encoding: chunked\r\n\r\n5\r\nabcde\r\n0\r\n\r\n" << 411;
    QTest::newRow("ranges") << "GET / HTTP/1.1\r\nHOSTRange: bytes=" + QByteArray("0-1,").repeated(3000) + "0-1\r\n\r\n"
                            << 411;
    QTest::newRow("ranges in small letters") << QByteArray("GET / HTTP/1.1\r\nHOSTrange:bytes=0-1\r\n\r\n") << 411;
    QTest::newRow("expectation") << key + "Expect: 100-continue\r\nContent-Length: 4000\r\n\r\n" << 411;
    QTest::newRow("packed body") << key + "Content-Encoding: gzip\r\n" + packed << 415;
    QTest::newRow("body packed the other way") << key + "content-encoding:br\r\n" + packed << 415;
    QTest::newRow("packed body that says its way twice")
        << key + "Content-Encoding: identity\r\nContent-Encoding: gzip\r\n" + packed << 415;
    QTest::newRow("range behind a line feed alone")
        << QByteArray("GET / HTTP/1.1\r\nHOSTa: b\nRange: bytes=0-3\r\n\r\n") << 400;
    QTest::newRow("pieces behind a line feed alone") << key
            + "Content-Type: application/json\r\na: b\nTransfer-Encoding: "
              "chunked\r\n\r\nc\r\n{\"key\":\"F1\"}\r\n0\r\n\r\n"
                                                     << 400;
    QTest::newRow("line feed in the request line") << QByteArray("GET / HTTP/1.1\nRange: bytes=0-3\r\nHOST\r\n") << 400;
    QTest::newRow("return alone") << QByteArray("GET / HTTP/1.1\r\nHOSTa: b\rRange: bytes=0-3\r\n\r\n") << 400;
    QTest::newRow("return too many") << QByteArray("GET / HTTP/1.1\r\nHOSTa: b\r\r\n\r\n") << 400;
    QTest::newRow("zero byte") << "GET / HTTP/1.1\r\nHOSTa: b" + QByteArray(1, '\0') + "c\r\n\r\n" << 400;
    QTest::newRow("bell") << QByteArray("GET / HTTP/1.1\r\nHOSTa: \a\r\n\r\n") << 400;
    QTest::newRow("delete") << QByteArray("GET / HTTP/1.1\r\nHOSTa: \x7f\r\n\r\n") << 400;
    QTest::newRow("tab") << QByteArray("GET / HTTP/1.1\r\nHOSTa:\tb\tc\r\n\r\n") << 200;
    QTest::newRow("other version") << QByteArray("GET / HTTP/9.9\r\nHOST\r\n") << 400;
    QTest::newRow("no request line") << QByteArray("\r\n\r\n") << 400;
}

void TstPanelGuests::requestsBeyondTheBoundsAreRefused()
{
    QFETCH(QByteArray, request);
    QFETCH(int, status);
    request.replace("HOST", host(m_port));
    QCOMPARE(say(m_port, request).status, status);
}

void TstPanelGuests::longestBodyIsTaken()
{
    const QByteArray key = "{\"key\":\"F3\"}";
    QCOMPARE(post(m_port, "/key", key + QByteArray(4096 - key.size(), ' ')).status, 204);
    QCOMPARE(post(m_port, "/key", key + QByteArray(4097 - key.size(), ' ')).status, 413);
}

void TstPanelGuests::blanksAroundALengthAreNoneOfIt()
{
    QCOMPARE(say(m_port,
                 "POST /key HTTP/1.1\r\n" + host(m_port)
                     + "Content-Type: application/json\r\ncontent-length: \t12 \t\r\n\r\n{\"key\":\"F1\"}")
                 .status,
             204);
}

void TstPanelGuests::requestInPiecesIsTakenWhole()
{
    const QByteArray request = "POST /key HTTP/1.1\r\n" + host(m_port)
        + "Content-Type: application/json\r\nContent-Length: 12\r\n\r\n{\"key\":\"F3\"}";
    QByteArray answer;
    // Once more where this process stood still between two pieces: the whole has to come within seconds.
    const bool isTaken = eventually([&] {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress(QHostAddress::LocalHost), m_port);
        if (!socket.waitForConnected(kPatience))
            return false;
        socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
        for (const char sign : request) {
            socket.write(&sign, 1);
            socket.flush();
        }
        answer.clear();
        while (!answer.contains("\r\n\r\n") && socket.waitForReadyRead(kPatience))
            answer += socket.readAll();
        return answer.startsWith("HTTP/1.1 204");
    });
    QVERIFY2(isTaken, answer);
}

void TstPanelGuests::requestThatDoesNotComeToItsEndIsEnded()
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), m_port);
    QVERIFY(socket.waitForConnected(kPatience));
    socket.write("POST /key HTTP/1.1\r\n" + host(m_port));
    // A field now and then: each of them in time, the whole never.
    QByteArray answer;
    QVERIFY(eventually([&] {
        socket.write("a: b\r\n");
        socket.flush();
        socket.waitForReadyRead(50);
        answer += socket.readAll();
        return socket.state() == QAbstractSocket::UnconnectedState;
    }));
    QVERIFY2(answer.startsWith("HTTP/1.1 408"), answer);
}

void TstPanelGuests::peerThatHangsUpHalfWayIsNotAnswered()
{
    QCOMPARE(say(m_port, "POST /key HTTP/1.1\r\n" + host(m_port), true).status, 0);
    QCOMPARE(say(m_port, QByteArray(), true).status, 0);
}

void TstPanelGuests::wildBytesAreRefused()
{
    QRandomGenerator random(11);
    const QByteArray good = "POST /key HTTP/1.1\r\n" + host(m_port)
        + "Content-Type: application/json\r\nContent-Length: 12\r\n\r\n{\"key\":\"F4\"}";
    for (int round = 0; round < 200; ++round) {
        QByteArray wild = good;
        for (int flips = random.bounded(1, 12); flips > 0; --flips)
            wild[random.bounded(wild.size())] = char(random.bounded(256));
        const int status = say(m_port, wild, true).status;
        QVERIFY2(status == 0 || status == 204 || (status >= 400 && status < 500), wild.toPercentEncoding());
    }
}

void TstPanelGuests::deepJsonIsRefused()
{
    QCOMPARE(post(m_port, "/key", QByteArray(4000, '[')).status, 400);
    QCOMPARE(post(m_port, "/control", QByteArray("{\"a\":").repeated(800)).status, 400);
    QCOMPARE(post(m_port, "/key", "{\"key\":\"" + QByteArray(3900, '1') + "\"}").status, 400);
}

void TstPanelGuests::thousandSilentConnectionsKeepNobodyOut()
{
    Viewer viewer(m_port);
    QTRY_VERIFY_WITH_TIMEOUT(viewer.count("screen") == 1, kPatience);
    QVector<QSharedPointer<QTcpSocket>> silent;
    for (int i = 0; i < 1000; ++i) {
        silent << QSharedPointer<QTcpSocket>::create();
        silent.last()->connectToHost(QHostAddress(QHostAddress::LocalHost), m_port);
        silent.last()->waitForConnected(kPatience);
        silent.last()->write("GET / HT");
        silent.last()->flush();
    }
    // A page that waits for its turn may be sent away; it is served when it asks again.
    QVERIFY(eventually([this] { return get(m_port, "/").status == 200; }));
    m_instrument->show(Qt::red);
    QTRY_COMPARE_WITH_TIMEOUT(viewer.count("screen"), 2, kPatience);
}

void TstPanelGuests::viewersThatReadNothingHoldNobodyUp()
{
    Viewer reads(m_port);
    QTRY_VERIFY_WITH_TIMEOUT(reads.count("screen") == 1, kPatience);
    QVector<QSharedPointer<QTcpSocket>> deaf;
    for (int i = 0; i < 30; ++i) {
        deaf << QSharedPointer<QTcpSocket>::create();
        deaf.last()->setReadBufferSize(1);
        deaf.last()->connectToHost(QHostAddress(QHostAddress::LocalHost), m_port);
        QVERIFY(deaf.last()->waitForConnected(kPatience));
        const int small = 2048;
        setsockopt(int(deaf.last()->socketDescriptor()), SOL_SOCKET, SO_RCVBUF, &small, sizeof small);
        deaf.last()->write("GET /events HTTP/1.1\r\n" + host(m_port) + "\r\n");
        deaf.last()->flush();
    }
    for (int change = 1; change <= 8; ++change) {
        m_instrument->show(QColor(20 * change, 0, 0));
        QTRY_COMPARE_WITH_TIMEOUT(reads.count("screen"), change + 1, kPatience);
    }
}

void TstPanelGuests::keysOfAFloodAreBounded()
{
    m_instrument.reset(); // nobody takes them
    QVector<int> answers;
    QVERIFY(eventually([&] {
        answers << post(m_port, "/key", "{\"key\":\"Down\"}").status;
        return answers.last() == 429;
    }));
    QVERIFY(answers.size() > 30);
    m_panel.reset();
    init();
}

// Each of the keys would otherwise come as late as the ones before it were waited for.
void TstPanelGuests::keysWithoutAnAnswerAreNotMadeUpFor()
{
    Viewer viewer(m_port);
    m_instrument->isSilent = true;
    for (int i = 0; i < 20; ++i)
        QCOMPARE(post(m_port, "/key", "{\"key\":\"Down\"}").status, 204);
    QTRY_VERIFY_WITH_TIMEOUT(!m_instrument->keys().isEmpty(), kPatience);
    // Four looks, of two questions each: all that waited was tried.
    const int asked = m_instrument->picturesAsked;
    QTRY_VERIFY_WITH_TIMEOUT(m_instrument->picturesAsked > asked + 8, kPatience);
    m_instrument->isSilent = false;
    QVERIFY(eventually([this] { return post(m_port, "/key", "{\"key\":\"F1\"}").status == 204; }));
    QTRY_VERIFY_WITH_TIMEOUT(m_instrument->keys().contains(40), kPatience);
    QVERIFY2(m_instrument->keys().count(19) < 20, qPrintable(QString::number(m_instrument->keys().count(19))));
}

QTEST_GUILESS_MAIN(TstPanelGuests)

#include "tst_panelguests.moc"
