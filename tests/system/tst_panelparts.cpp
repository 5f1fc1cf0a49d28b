#include "desk/deskinstrument.h"
#include "panel/admission.h"
#include "panel/bulletin.h"
#include "panel/connection.h"
#include "panel/connectionqueue.h"
#include "panel/controltable.h"
#include "panel/guide.h"
#include "panel/panelserver.h"
#include "panel/picturenotes.h"
#include "panel/processorline.h"
#include "panel/screenfeed.h"
#include "panel/supply.h"
#include "testpaths.h"

#include <QBuffer>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSet>
#include <QTest>
#include <QtEndian>

#include <future>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

using namespace panel;

constexpr int kPatience = 60000; // ms, ends a hang only

/// The panel's own parts: who is let in, what is shown to all, which commands its controls are.
class TstPanelParts : public QObject
{
    Q_OBJECT

private slots:
    void sameTextIsNoNews();
    void slowReaderGetsTheNewestOnly();
    void readersAreCountedWhileTheyLive();
    void howThingsStandIsNotKnownWhileNobodyLooks();
    void peerThatIsGoneWithoutAWordIsGivenUp();
    void answerThatNobodyTakesEnds();
    void closedBulletinLetsEveryoneGo();
    void portEightyNeedsNoNumber();
    void cookieIsFoundAmongOthersOnly();
    void everyControlIsObeyedByTheProcessor();
    void valuesReachTheCommandDigitByDigit();
    void controlsHaveNamesOfTheirOwn();
    void controlsSayTheirBounds();
    void wishesBeyondTheBoundsMakeNoCommand_data();
    void wishesBeyondTheBoundsMakeNoCommand();
    void processorThatIsNotThereIsNotWaitedFor();
    void notesOfAPictureAreReadAsTheyWereWritten();
    void damagedPicturesHaveFewerNotes();
    void notesAreBounded();
    void noteOfOneSignIsRead();
    void packedNoteBeyondLatinIsRead();
    void refusalOfTheProcessorIsHandedOn();
    void answerInPiecesIsTakenWhole();
    void answerBeyondTheBoundIsNone();
    void silentProcessorIsNotWaitedForEndlessly();
    void supplyIsReportedWhileSomebodyLooks();
    void whoComesBeyondThreadsAndPlacesIsSentAwayAtOnce();
    void keysWaitUpToTheirNumber();
    void guideHasTypesThatItKnows();
    void stopAheadOfServingEndsIt();
};

void TstPanelParts::sameTextIsNoNews()
{
    Bulletin bulletin;
    Bulletin::Reader reader(bulletin);
    bulletin.publish(Bulletin::Screen, "one");
    QCOMPARE(bulletin.news(reader, std::chrono::milliseconds(0)).size(), size_t(1));
    bulletin.publish(Bulletin::Screen, "one");
    QCOMPARE(bulletin.news(reader, std::chrono::milliseconds(0)).size(), size_t(0));
}

void TstPanelParts::slowReaderGetsTheNewestOnly()
{
    Bulletin bulletin;
    Bulletin::Reader reader(bulletin);
    for (const char *text : { "one", "two", "three" })
        bulletin.publish(Bulletin::Screen, text);
    bulletin.publish(Bulletin::Instrument, "there");
    const auto news = bulletin.news(reader, std::chrono::milliseconds(0));
    QCOMPARE(news.size(), size_t(2));
    QCOMPARE(*news[0], std::string("there"));
    QCOMPARE(*news[1], std::string("three"));
    Bulletin::Reader late(bulletin);
    QCOMPARE(bulletin.news(late, std::chrono::milliseconds(0))[1].get(), news[1].get()); // shared, not made again
}

void TstPanelParts::readersAreCountedWhileTheyLive()
{
    Bulletin bulletin;
    QCOMPARE(bulletin.readers(), 0);
    {
        Bulletin::Reader one(bulletin), two(bulletin);
        QCOMPARE(bulletin.readers(), 2);
    }
    QCOMPARE(bulletin.readers(), 0);
}

void TstPanelParts::howThingsStandIsNotKnownWhileNobodyLooks()
{
    constexpr std::chrono::milliseconds kNow(0);
    Bulletin bulletin;
    {
        Bulletin::Reader first(bulletin);
        for (const auto topic : { Bulletin::Screen, Bulletin::Instrument, Bulletin::Supply })
            bulletin.publish(topic, topic == Bulletin::Screen ? "picture" : "there");
        Bulletin::Reader second(bulletin);
        QCOMPARE(bulletin.news(second, kNow).size(), size_t(3)); // what somebody watched is known
    }
    Bulletin::Reader later(bulletin);
    auto news = bulletin.news(later, kNow);
    QCOMPARE(news.size(), size_t(1));
    QCOMPARE(*news[0], std::string("picture")); // the last one that came, the page says
    bulletin.publish(Bulletin::Instrument, "there");
    news = bulletin.news(later, kNow);
    QCOMPARE(news.size(), size_t(1));
    QCOMPARE(*news[0], std::string("there"));
}

// A machine that sleeps sends no end; what is sent to it would otherwise be tried for a quarter of an hour.
void TstPanelParts::peerThatIsGoneWithoutAWordIsGivenUp()
{
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    const int kept = ::dup(socket);
    {
        const Connection connection(socket);
        unsigned ms = 0;
        socklen_t size = sizeof ms;
        QCOMPARE(::getsockopt(kept, IPPROTO_TCP, TCP_USER_TIMEOUT, &ms, &size), 0);
        QVERIFY2(ms > 0 && ms <= 30'000, qPrintable(QString::number(ms)));
    }
    ::close(kept);
}

// A peer that takes nothing would otherwise keep its thread for ever.
void TstPanelParts::answerThatNobodyTakesEnds()
{
    int ends[2];
    QCOMPARE(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends), 0);
    {
        Connection connection(ends[0]);
        const std::string bytes(64 * 1024, 'x');
        while (connection.write(bytes.data(), bytes.size()) > 0) { }
        QVERIFY(!connection.is_writable());
        connection.beginPiece();
        QVERIFY(connection.is_writable());
    }
    ::close(ends[1]);
}

void TstPanelParts::closedBulletinLetsEveryoneGo()
{
    Bulletin bulletin;
    std::thread waits([&bulletin] {
        Bulletin::Reader reader(bulletin);
        bulletin.news(reader, std::chrono::hours(1));
    });
    while (bulletin.readers() == 0)
        std::this_thread::yield();
    bulletin.close();
    waits.join();
    QVERIFY(bulletin.isClosed());
}

void TstPanelParts::portEightyNeedsNoNumber()
{
    Admission::Request request;
    request.host = "127.0.0.1";
    QVERIFY(Admission(80, {}, {}).judge(request) == Admission::Answer::Welcome);
    QVERIFY(Admission(8080, {}, {}).judge(request) == Admission::Answer::ForeignHost);
    request.host = "LocalHost";
    QVERIFY(Admission(80, {}, {}).judge(request) == Admission::Answer::Welcome);
    request.host = "evil.example";
    QVERIFY(Admission(80, {}, {}).judge(request) == Admission::Answer::ForeignHost);
}

void TstPanelParts::cookieIsFoundAmongOthersOnly()
{
    const Admission admission(8080, "secret0123456789", {});
    const auto judged = [&admission](const char *cookie) {
        Admission::Request request;
        request.host = "localhost:8080";
        request.cookie = cookie;
        return admission.judge(request) == Admission::Answer::Welcome;
    };
    QVERIFY(judged("quvera-panel-8080=secret0123456789"));
    QVERIFY(judged("a=1; quvera-panel-8080=secret0123456789; b=2"));
    for (const char *cookie : { "", ";", "; ;", "quvera-panel-8080=", "quvera-panel-8080=secret", "secret0123456789",
                                "quvera-panel-8080=secret0123456789x", "quvera-panel-8081=secret0123456789",
                                "xquvera-panel-8080=secret0123456789" })
        QVERIFY2(!judged(cookie), cookie);
}

/// A wish with the first, or the last, value of each field.
static QJsonObject wishOf(const Control &control, bool last)
{
    QJsonObject wish { { "control", control.id } };
    for (const Field &field : control.fields) {
        const QStringList words = QString(field.choices).split(' ', Qt::SkipEmptyParts);
        if (!field.choices)
            wish.insert(field.name, last ? field.most : field.least);
        else
            wish.insert(field.name,
                        words.isEmpty() ? QString(last ? "swell" : "dip")
                            : last      ? words.last()
                                        : words.first());
    }
    return wish;
}

void TstPanelParts::everyControlIsObeyedByTheProcessor()
{
    DeskInstrument desk(QStringLiteral(QUVERA_BIN_DIR));
    QVERIFY2(desk.startProcessor(), qPrintable(desk.error()));
    const ProcessorLine line(desk.root());
    QString answer;
    QTRY_VERIFY_WITH_TIMEOUT(line.tell("status", &answer), kPatience);
    for (bool last : { false, true }) {
        for (const Control &control : controlTable()) {
            QString why;
            const QString command = commandFor(wishOf(control, last), { "dip", "swell" }, &why);
            QVERIFY2(!command.isEmpty(), qPrintable(control.id + why));
            QVERIFY2(!command.contains('%') || QRegularExpression("\\d%").match(command).hasMatch(),
                     qPrintable(command));
            QVERIFY(line.tell(command, &answer));
            QVERIFY2(answer.startsWith("ok"), qPrintable(command + ": " + answer));
        }
    }
    QVERIFY(line.tell("status", &answer));
    QVERIFY2(answer.contains("scenario=swell") && answer.contains("speed=50"), qPrintable(answer));
    QVERIFY2(answer.contains("usb= "), qPrintable(answer)); // pulled again
    QVERIFY(line.tell("help", &answer)); // more lines than one
    QVERIFY(answer.count('\n') > 10 && answer.endsWith("ok"));
}

void TstPanelParts::valuesReachTheCommandDigitByDigit()
{
    const auto command = [](const QByteArray &wish) {
        QString why;
        return commandFor(QJsonDocument::fromJson(wish).object(), { "dip" }, &why);
    };
    QCOMPARE(command("{\"control\":\"frequency\",\"hertz\":50.01}"), QString("set f 50.01"));
    QCOMPARE(command("{\"control\":\"volts\",\"phase\":\"all\",\"volts\":221.5}"), QString("set u 221.5"));
    QCOMPARE(command("{\"control\":\"volts\",\"phase\":\"2\",\"volts\":0}"), QString("set u2 0"));
    QCOMPARE(command("{\"control\":\"dip\",\"on\":\"l1+l2\",\"level\":55,\"ms\":10000}"),
             QString("event dip l1+l2 55% 10000ms"));
    QCOMPARE(command("{\"control\":\"faultRate\",\"kind\":\"torn\",\"share\":0.005}"),
             QString("fault rate torn 0.005"));
}

void TstPanelParts::controlsHaveNamesOfTheirOwn()
{
    QSet<QString> ids;
    for (const Control &control : controlTable())
        ids.insert(control.id);
    QCOMPARE(size_t(ids.size()), controlTable().size());
    const QJsonArray rows = QJsonDocument::fromJson(controlsAsJson({ "dip" })).array();
    QCOMPARE(size_t(rows.size()), controlTable().size());
    QCOMPARE(rows[0].toObject()["fields"].toArray()[0].toObject()["choices"].toArray(), QJsonArray { "dip" });
}

void TstPanelParts::controlsSayTheirBounds()
{
    const QJsonArray rows = QJsonDocument::fromJson(controlsAsJson({ "dip" })).array();
    int found = 0;
    for (const QJsonValue &row : rows) {
        if (row.toObject()["id"] != "frequency")
            continue;
        const QJsonObject expected { { "name", "hertz" }, { "label", "Frequency" }, { "unit", "Hz" }, { "least", 40 },
                                     { "most", 70 },      { "step", 0.01 },         { "value", 50 } };
        QCOMPARE(row.toObject()["fields"].toArray(), QJsonArray { expected });
        QCOMPARE(row.toObject()["live"], QJsonValue(true));
        QCOMPARE(row.toObject()["group"], QJsonValue("Supply"));
        ++found;
    }
    QCOMPARE(found, 1);
}

void TstPanelParts::wishesBeyondTheBoundsMakeNoCommand_data()
{
    QTest::addColumn<QByteArray>("wish");
    QTest::newRow("nothing") << QByteArray("{}");
    QTest::newRow("unknown control") << QByteArray("{\"control\":\"quit\"}");
    QTest::newRow("value missing") << QByteArray("{\"control\":\"frequency\"}");
    QTest::newRow("too high") << QByteArray("{\"control\":\"frequency\",\"hertz\":70.1}");
    QTest::newRow("too low") << QByteArray("{\"control\":\"frequency\",\"hertz\":-1e300}");
    QTest::newRow("text for a number") << QByteArray("{\"control\":\"frequency\",\"hertz\":\"50\"}");
    QTest::newRow("command in a word") << QByteArray("{\"control\":\"scenario\",\"scenario\":\"dip\\nquit\"}");
    QTest::newRow("file for a name") << QByteArray("{\"control\":\"scenario\",\"scenario\":\"/etc/passwd\"}");
    QTest::newRow("word of another field") << QByteArray("{\"control\":\"charger\",\"state\":\"l1\"}");
    QTest::newRow("empty word") << QByteArray("{\"control\":\"charger\",\"state\":\"\"}");
    QTest::newRow("number for a word") << QByteArray("{\"control\":\"charger\",\"state\":1}");
}

void TstPanelParts::wishesBeyondTheBoundsMakeNoCommand()
{
    QFETCH(QByteArray, wish);
    QString why;
    QCOMPARE(commandFor(QJsonDocument::fromJson(wish).object(), { "dip" }, &why), QString());
    QVERIFY(!why.isEmpty());
}

void TstPanelParts::processorThatIsNotThereIsNotWaitedFor()
{
    QTemporaryDir root;
    QString answer;
    QVERIFY(!ProcessorLine(root.path()).tell("status", &answer));
    QVERIFY(!ProcessorLine("/no/such/root").tell("status", &answer));
    // A path longer than a socket's name holds.
    const QString deep = root.path() + '/' + QString(180, 'd');
    QVERIFY(QDir().mkpath(deep));
    DeskInstrument desk(QStringLiteral(QUVERA_BIN_DIR), deep);
    QVERIFY2(desk.startProcessor(), qPrintable(desk.error()));
    QTRY_VERIFY_WITH_TIMEOUT(ProcessorLine(deep).tell("status", &answer), kPatience);
}

/// A picture with notes of each kind: short, long enough to be packed, beyond Latin.
static QByteArray notedPicture()
{
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(Qt::darkBlue);
    image.setText("Title", "Menu");
    image.setText("Texts", QString("Urms(V) 229.4\n").repeated(20));
    image.setText("Dialog", QString::fromUtf8("\u7535\u538b\n230 V"));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return buffer.data();
}

void TstPanelParts::notesOfAPictureAreReadAsTheyWereWritten()
{
    const QJsonObject notes = notesOf(notedPicture());
    QCOMPARE(notes.value("Title").toString(), QString("Menu"));
    QCOMPARE(notes.value("Texts").toString(), QString("Urms(V) 229.4\n").repeated(20));
    QCOMPARE(notes.value("Dialog").toString(), QString::fromUtf8("\u7535\u538b\n230 V"));
    QCOMPARE(notes.size(), 3);
}

void TstPanelParts::damagedPicturesHaveFewerNotes()
{
    const QByteArray png = notedPicture();
    for (int size = 0; size < png.size(); ++size)
        QVERIFY(notesOf(png.left(size)).size() <= 3);
    for (int at = 0; at < png.size(); ++at) {
        QByteArray damaged = png;
        for (const char sign : { '\0', '\xff', '\x7f' }) {
            damaged[at] = sign;
            QVERIFY(notesOf(damaged).size() <= 4); // of an image's bytes no more than one becomes a note
        }
    }
    // A note that unpacks to more than anybody writes.
    const QByteArray bomb = qCompress(QByteArray(10'000'000, 'x'), 9).mid(4);
    QByteArray length(4, '\0');
    qToBigEndian<quint32>(quint32(bomb.size() + 6), length.data());
    const QJsonObject notes
        = notesOf("\x89PNG\r\n\x1a\n" + length + "zTXt" + QByteArray("Long\0\0", 6) + bomb + "abcd");
    QCOMPARE(notes.value("Long").toString(), QString());
}

/// A chunk of a picture.
static QByteArray chunkOf(const QByteArray &kind, const QByteArray &bytes)
{
    QByteArray length(4, '\0');
    qToBigEndian<quint32>(quint32(bytes.size()), length.data());
    return length + kind + bytes + "abcd";
}

void TstPanelParts::notesAreBounded()
{
    QByteArray png = "\x89PNG\r\n\x1a\n";
    png += chunkOf("tEXt", QByteArray("Long\0", 5) + QByteArray(70'000, 'x'));
    for (int i = 0; i < 100; ++i)
        png += chunkOf("tEXt", QByteArray::number(i) + QByteArray("\0one", 4));
    const QJsonObject notes = notesOf(png);
    QCOMPARE(notes.size(), 32);
    QVERIFY(!notes.contains("Long"));
    QCOMPARE(notes.value("0").toString(), QString("one"));
}

void TstPanelParts::noteOfOneSignIsRead()
{
    const QByteArray png = "\x89PNG\r\n\x1a\n" + chunkOf("tEXt", QByteArray("Title\0A", 7));
    QCOMPARE(notesOf(png).value("Title").toString(), QString("A"));
    for (const char *kind : { "tEXt", "zTXt", "iTXt" })
        QVERIFY(notesOf("\x89PNG\r\n\x1a\n" + chunkOf(kind, QByteArray("Title\0", 6))).isEmpty());
}

void TstPanelParts::packedNoteBeyondLatinIsRead()
{
    const QString text = QString::fromUtf8("\u7535\u538b 230 V");
    const QByteArray packed = qCompress(text.toUtf8()).mid(4); // without the toolkit's own length
    const QByteArray head = QByteArray("Dialog\0\1\0zh\0\0", 13);
    const QJsonObject notes = notesOf("\x89PNG\r\n\x1a\n" + chunkOf("iTXt", head + packed));
    QCOMPARE(notes.value("Dialog").toString(), text);
}

void TstPanelParts::refusalOfTheProcessorIsHandedOn()
{
    Bulletin bulletin;
    const QJsonObject pull { { "control", "usbOut" } };
    QVERIFY(Supply(QString(), bulletin).obey(pull).contains("no desk"));
    DeskInstrument desk(QStringLiteral(QUVERA_BIN_DIR));
    QVERIFY(Supply(desk.root(), bulletin).obey(pull).contains("does not answer"));
    QVERIFY2(desk.startProcessor(), qPrintable(desk.error()));
    Supply supply(desk.root(), bulletin);
    QTRY_VERIFY_WITH_TIMEOUT(supply.controls() != "[]", kPatience);
    const QString why = supply.obey(pull); // of a disk that is not there
    QVERIFY2(why.size() > 3 && !why.startsWith("error"), qPrintable(why));
    QCOMPARE(supply.obey({ { "control", "usbIn" }, { "size", "64k" } }), QString());
    QCOMPARE(supply.obey(pull), QString());
}

namespace {

/// The command line of a processor stand-in, on which a test answers itself.
struct PlayedProcessor
{
    bool listens() { return QDir(folder.path()).mkdir("run") && server.listen(root() + "/run/processor.ctl"); }
    QString root() const { return folder.path(); }

    QTemporaryDir folder;
    QLocalServer server;
};

} // namespace

void TstPanelParts::answerInPiecesIsTakenWhole()
{
    PlayedProcessor processor;
    QVERIFY(processor.listens());
    QString answer;
    const auto isTaken = [&] {
        auto told
            = std::async(std::launch::async, [&] { return ProcessorLine(processor.root()).tell("help", &answer); });
        bool came = processor.server.waitForNewConnection(kPatience);
        QLocalSocket *line = processor.server.nextPendingConnection();
        for (const char *piece : { "  a line of help\n", "ok", " speed=1", "\n" }) {
            came = came && line->write(piece) > 0 && (line->flush() || line->waitForBytesWritten(kPatience));
            QTest::qWait(50);
        }
        return told.get() && came;
    };
    QVERIFY(isTaken() || isTaken() || isTaken()); // two seconds are granted, and this machine may stand still as long
    QCOMPARE(answer, QString("a line of help\nok speed=1"));
}

void TstPanelParts::answerBeyondTheBoundIsNone()
{
    PlayedProcessor processor;
    QVERIFY(processor.listens());
    QString answer;
    auto told = std::async(std::launch::async, [&] { return ProcessorLine(processor.root()).tell("help", &answer); });
    const bool came = processor.server.waitForNewConnection(kPatience);
    QLocalSocket *line = processor.server.nextPendingConnection();
    if (came)
        line->write(QByteArray("  a line of help\n").repeated(20'000) + "ok\n");
    while (came && line->bytesToWrite() > 0 && line->waitForBytesWritten(kPatience)) { }
    QVERIFY(!told.get() && came);
}

void TstPanelParts::silentProcessorIsNotWaitedForEndlessly()
{
    PlayedProcessor processor;
    QVERIFY(processor.listens());
    QString answer;
    QVERIFY(!ProcessorLine(processor.root()).tell("status", &answer));
}

void TstPanelParts::supplyIsReportedWhileSomebodyLooks()
{
    DeskInstrument desk(QStringLiteral(QUVERA_BIN_DIR));
    QVERIFY2(desk.startProcessor({ "--scenario", "swell" }), qPrintable(desk.error()));
    QVERIFY(QDir().mkpath(desk.path("/sys/class/backlight/backlight")));
    QFile light(desk.path("/sys/class/backlight/backlight/brightness"));
    QVERIFY(light.open(QIODevice::WriteOnly) && light.write("5\n") == 2 && light.flush());
    Bulletin bulletin;
    Supply supply(desk.root(), bulletin);
    supply.start();
    QTest::qWait(1500);
    {
        Bulletin::Reader nobodyYet(bulletin);
        QCOMPARE(bulletin.news(nobodyYet, std::chrono::milliseconds(0)).size(), size_t(0));
    }
    Bulletin::Reader reader(bulletin);
    std::string report;
    QTRY_VERIFY_WITH_TIMEOUT(
        [&] {
            const auto news = bulletin.news(reader, std::chrono::milliseconds(100));
            report = news.empty() ? report : *news.back();
            return report.find("\"there\":true") != std::string::npos;
        }(),
        kPatience);
    const QByteArray text = QByteArray::fromStdString(report);
    QVERIFY2(text.startsWith("event: supply\ndata: {") && text.endsWith("}\n\n"), text);
    const QJsonObject state = QJsonDocument::fromJson(text.mid(text.indexOf('{')).trimmed()).object();
    QCOMPARE(state["scenario"].toString(), QString("swell"));
    QCOMPARE(state["speed"].toString(), QString("1"));
    QVERIFY2(state["volts"].toString().startsWith("230,230,230"), text);
    QCOMPARE(state["light"].toString(), QString("5"));
    QCOMPARE(state["charging"].toString(), QString("0"));
}

void TstPanelParts::whoComesBeyondThreadsAndPlacesIsSentAwayAtOnce()
{
    constexpr int threads = int(ConnectionQueue::kMostThreads), places = int(ConnectionQueue::kMostWaiting);
    std::promise<void> end;
    const std::shared_future<void> ended(end.get_future());
    std::atomic<int> begun { 0 }, served { 0 };
    ConnectionQueue queue;
    const auto fill = [&](int count) {
        for (int i = 0; i < count; ++i) {
            queue.enqueue([&] {
                ++begun;
                ended.wait();
                ++served;
            });
        }
    };
    fill(threads);
    while (begun < threads)
        std::this_thread::yield();
    const bool waitsBefore = ConnectionQueue::somebodyWaits();
    fill(places);
    const bool waitsThen = ConnectionQueue::somebodyWaits();
    bool isSentAway = false;
    std::thread::id by;
    queue.enqueue([&] {
        isSentAway = ConnectionQueue::isFull();
        by = std::this_thread::get_id();
    });
    const bool atOnce = by == std::this_thread::get_id();
    end.set_value();
    queue.shutdown();
    QVERIFY(!waitsBefore && waitsThen && !ConnectionQueue::somebodyWaits());
    QVERIFY(atOnce && isSentAway && !ConnectionQueue::isFull());
    QCOMPARE(served.load(), threads + places);
}

void TstPanelParts::keysWaitUpToTheirNumber()
{
    Bulletin bulletin;
    ScreenFeed feed(QHostAddress(QHostAddress::LocalHost), 9, bulletin); // not started: nobody takes them
    for (int i = 0; i < 32; ++i)
        QVERIFY(feed.pressKey(19));
    QVERIFY(!feed.pressKey(19));
}

void TstPanelParts::guideHasTypesThatItKnows()
{
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir("examples"));
    const auto make = [&folder](const QString &name) {
        QFile file(folder.path() + '/' + name);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("content") == 7);
    };
    const QVector<QPair<QString, std::string>> files { { "page.html", "text/html; charset=utf-8" },
                                                       { "guide.css", "text/css; charset=utf-8" },
                                                       { "picture.png", "image/png" },
                                                       { "examples/questions.sql", "text/plain; charset=utf-8" },
                                                       { "examples/week.py", "text/plain; charset=utf-8" } };
    for (const auto &file : files)
        make(file.first);
    make("manual.8");
    const Guide guide(folder.path());
    for (const auto &file : files) {
        std::string type;
        QCOMPARE(guide.read("/guide/" + file.first.toStdString(), &type), QByteArray("content"));
        QCOMPARE(type, file.second);
    }
    std::string type;
    for (const char *none : { "/guide/manual.8", "/guide/missing.html", "/page.html", "/guide/examples/../page.html" })
        QVERIFY2(guide.read(none, &type).isNull(), none);
}

// A signal may come while the program starts.
void TstPanelParts::stopAheadOfServingEndsIt()
{
    Bulletin bulletin;
    PanelServer server(bulletin, Actions(), Guide());
    QVERIFY(server.bind("127.0.0.1", 0));
    server.stop();
    server.serve();
    QVERIFY(bulletin.isClosed());
}

QTEST_GUILESS_MAIN(TstPanelParts)

#include "tst_panelparts.moc"
