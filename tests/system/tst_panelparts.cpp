#include "desk/deskinstrument.h"
#include "panel/admission.h"
#include "panel/bulletin.h"
#include "panel/controltable.h"
#include "panel/picturenotes.h"
#include "panel/processorline.h"
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

#include <thread>

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
    void closedBulletinLetsEveryoneGo();
    void portEightyNeedsNoNumber();
    void cookieIsFoundAmongOthersOnly();
    void everyControlIsObeyedByTheProcessor();
    void controlsHaveNamesOfTheirOwn();
    void wishesBeyondTheBoundsMakeNoCommand_data();
    void wishesBeyondTheBoundsMakeNoCommand();
    void processorThatIsNotThereIsNotWaitedFor();
    void notesOfAPictureAreReadAsTheyWereWritten();
    void damagedPicturesHaveFewerNotes();
    void notesAreBounded();
    void refusalOfTheProcessorIsHandedOn();
    void answerInPiecesIsTakenWhole();
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

void TstPanelParts::answerInPiecesIsTakenWhole()
{
    QTemporaryDir root;
    QVERIFY(QDir(root.path()).mkdir("run"));
    QLocalServer processor;
    QVERIFY(processor.listen(root.path() + "/run/processor.ctl"));
    QString answer;
    bool told = false;
    std::thread asks([&] { told = ProcessorLine(root.path()).tell("help", &answer); });
    bool came = processor.waitForNewConnection(kPatience);
    QLocalSocket *line = processor.nextPendingConnection();
    for (const char *piece : { "  a line of help\n", "ok", " speed=1", "\n" }) {
        came = came && line->write(piece) > 0 && (line->flush() || line->waitForBytesWritten(kPatience));
        QTest::qWait(50);
    }
    asks.join();
    QVERIFY(came && told);
    QCOMPARE(answer, QString("a line of help\nok speed=1"));
}

QTEST_GUILESS_MAIN(TstPanelParts)

#include "tst_panelparts.moc"
