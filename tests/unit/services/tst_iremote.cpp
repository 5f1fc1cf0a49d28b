#include "board/screenshot.h"
#include "services/iremote.h"
#include "services/panel.h"
#include "remotepeer.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QTest>
#include <QUdpSocket>
#include <QVBoxLayout>
#include <QWidget>
#include <atomic>
#include <clocale>
#include <csignal>
#include <future>
#include <memory>
#include <thread>

using namespace RemotePeer;

namespace {

constexpr int kUnknownKey = 0x1FFFFFF;

/// A page: takes the focus, notes the keys, and changes its colour with each press.
class Page : public QWidget
{
public:
    explicit Page(QWidget *parent = nullptr) : QWidget(parent) { setFocusPolicy(Qt::StrongFocus); }
    struct Seen
    {
        QEvent::Type type;
        int key;
        Qt::KeyboardModifiers modifiers;
        QString text;
        bool isAutoRepeat;
        int count;
    };
    QList<Seen> seen;
    QWidget *nextFocus = nullptr; // gets the focus with the next press
    QWidget *passesFocusTo = nullptr; // gets it when this page gets it

    int presses() const
    {
        int count = 0;
        for (const Seen &event : seen)
            count += event.type == QEvent::KeyPress;
        return count;
    }

protected:
    void note(const QKeyEvent *event)
    {
        seen.append(
            { event->type(), event->key(), event->modifiers(), event->text(), event->isAutoRepeat(), event->count() });
    }
    void keyPressEvent(QKeyEvent *event) override
    {
        note(event);
        update();
        if (nextFocus)
            nextFocus->setFocus();
    }
    void keyReleaseEvent(QKeyEvent *event) override { note(event); }
    void focusInEvent(QFocusEvent *) override
    {
        if (passesFocusTo)
            passesFocusTo->setFocus();
    }
    void paintEvent(QPaintEvent *) override
    {
        QPainter(this).fillRect(rect(), presses() ? QColor(0, 200, 0) : QColor(0, 0, 90));
    }
};

/// Bytes without a pattern, the same in every run.
QByteArray noise(int size, quint32 seed)
{
    QByteArray bytes(size, '\0');
    for (char &byte : bytes) {
        seed = seed * 1664525 + 1013904223;
        byte = char(seed >> 24);
    }
    return bytes;
}

/// Pictures wanted since init(): counted in the thread that asks.
std::atomic<int> wanted { 0 };

int openDescriptors()
{
    return int(QDir(QStringLiteral("/proc/self/fd")).count());
}

} // namespace

class TstIRemote : public QObject
{
    Q_OBJECT
public slots:
    void countPicture() { ++wanted; } // public: not a test
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void identifyIsAnsweredWithTheNameIn32Bytes();
    void keepAliveIsAnsweredWithItsCommand();
    void respondScreenWithoutPictureAnswersCommand2();
    void commandsTwoAndFourSendTheScreen_data();
    void commandsTwoAndFourSendTheScreen();
    void pictureIsCutIntoDatagramsOf1024Bytes();
    void pictureOfExactlyTwoDatagramsHasNoThird();
    void emptyPictureStillTellsItsLength();
    void keyIsPressedAndReleasedAsTheFrontPanelSendsIt_data();
    void keyIsPressedAndReleasedAsTheFrontPanelSendsIt();
    void codesWithoutAKeyPostTheUnknownKey_data();
    void codesWithoutAKeyPostTheUnknownKey();
    void shortRequestUsesTheKeyCodeOfTheOneBefore();
    void emptyRequestRepeatsTheOneBefore();
    void bytesBehindThe128thAreNotRead();
    void largerCommandsAreIgnored_data();
    void largerCommandsAreIgnored();
    void requestsOfAnyLengthLeaveItAnswering();
    void hostileBytesLeaveItAnswering();
    void newPeerGetsTheRestOfAPicture();
    void oneOfManyPictureRequestsIsPending();
    void requestWhileAPictureIsSentGetsAWholeOneAfterwards();
    void pictureBehindAKeyShowsWhatTheKeyDid();
    void secondKeyGoesToThePageThatTheFirstOpened();
    void keysBeyondTheBoundOfOneRoundAreDropped();
    void floodOfKeysAndPicturesLeavesTheTimersRunning();
    void keyAfterADialogReachesThePageThatPassesTheFocusOn();
    void keyWithoutAnyWindowIsDropped();
    void onlyItsThreadBlocksSignals12And14();
    void socketIsClosedWithTheObject();

private:
    QWidget *m_window = nullptr;
    Page *m_page = nullptr;
    Page *m_otherPage = nullptr;
    IRemote *m_remote = nullptr;
    std::shared_ptr<Panel> m_panel;
    Peer *m_peer = nullptr;
};

void TstIRemote::initTestCase()
{
    ScreenShot::initScreenShot();
}

void TstIRemote::init()
{
    m_window = new QWidget;
    m_window->resize(640, 480);
    auto *layout = new QVBoxLayout(m_window);
    m_page = new Page;
    m_otherPage = new Page;
    layout->addWidget(m_page);
    layout->addWidget(m_otherPage);
    m_window->show();
    m_page->setFocus();
    QApplication::setActiveWindow(m_window);
    QTRY_COMPARE(QGuiApplication::focusObject(), static_cast<QObject *>(m_page));
    m_panel = Panel::shared(); // as long as the test runs
    m_remote = new IRemote(nullptr);
    wanted = 0;
    // By name: the thread sanitizer takes a connected function object, which the toolkit hands over under a lock that
    // it cannot see, for a race.
    connect(m_panel.get(), SIGNAL(pictureWanted()), this, SLOT(countPicture()), Qt::DirectConnection);
    QTRY_VERIFY_WITH_TIMEOUT(IRemote::port() != 0, kPatience);
    m_peer = new Peer;
}

void TstIRemote::cleanup()
{
    delete m_peer;
    delete m_remote;
    m_panel.reset();
    delete m_window;
}

void TstIRemote::identifyIsAnsweredWithTheNameIn32Bytes()
{
    m_peer->send(request(0));
    const QByteArray answer = m_peer->answerWithoutLoop();
    QCOMPARE(answer.size(), 32);
    QCOMPARE(word(answer, 0), 0u);
    QCOMPARE(word(answer, 4), 6u);
    QCOMPARE(answer.mid(8, 7), QByteArray("QUVERA\0", 7));
}

void TstIRemote::keepAliveIsAnsweredWithItsCommand()
{
    m_peer->send(request(3));
    const QByteArray answer = m_peer->answerWithoutLoop();
    QCOMPARE(answer.size(), 32);
    QCOMPARE(word(answer, 0), 3u);
    QCOMPARE(word(answer, 4), 6u);
    QCOMPARE(answer.mid(8, 7), QByteArray("QUVERA\0", 7));
}

void TstIRemote::respondScreenWithoutPictureAnswersCommand2()
{
    QVERIFY(m_peer->isCaughtUp());
    m_remote->respondScreen();
    const QByteArray answer = m_peer->answerWithoutLoop();
    QCOMPARE(answer.size(), 32);
    QCOMPARE(word(answer, 0), 2u);
}

void TstIRemote::commandsTwoAndFourSendTheScreen_data()
{
    QTest::addColumn<quint32>("command");
    QTest::newRow("2") << 2u;
    QTest::newRow("4") << 4u;
}

void TstIRemote::commandsTwoAndFourSendTheScreen()
{
    QFETCH(quint32, command);
    m_peer->send(request(command));
    QTRY_VERIFY_WITH_TIMEOUT(!m_peer->wholePicture().isEmpty(), kPatience);
    const QByteArray stream = m_peer->wholePicture();
    QCOMPARE(word(stream, 0), 4u);
    QCOMPARE(int(word(stream, 4)), stream.size() - 8);
    const QImage image = QImage::fromData(stream.mid(8), "PNG");
    QVERIFY(!image.isNull());
    const QPoint middle = m_page->mapTo(m_window, m_page->rect().center());
    QCOMPARE(image.pixelColor(middle), QColor(0, 0, 90));
}

void TstIRemote::pictureIsCutIntoDatagramsOf1024Bytes()
{
    QVERIFY(m_peer->isCaughtUp());
    const QByteArray png = noise(2500, 1); // with its head 2508 bytes: 1024, 1024, 460
    m_remote->respondImage(png);
    QTRY_COMPARE_WITH_TIMEOUT(m_peer->received().size(), 3, kPatience);
    QCOMPARE(m_peer->received().at(0).size(), 1024);
    QCOMPARE(m_peer->received().at(1).size(), 1024);
    QCOMPARE(m_peer->received().at(2).size(), 460);
    QCOMPARE(m_peer->wholePicture().mid(8), png);
}

void TstIRemote::pictureOfExactlyTwoDatagramsHasNoThird()
{
    QVERIFY(m_peer->isCaughtUp());
    m_remote->respondImage(noise(2040, 2));
    QVERIFY(m_peer->isCaughtUp()); // its answer stands behind the picture
    m_peer->forget();
    m_remote->respondImage(noise(2040, 2));
    m_remote->respondMesg(0);
    QTRY_COMPARE_WITH_TIMEOUT(m_peer->received().size(), 3, kPatience);
    QCOMPARE(m_peer->received().at(0).size(), 1024);
    QCOMPARE(m_peer->received().at(1).size(), 1024);
    QCOMPARE(m_peer->received().at(2).size(), 32);
}

void TstIRemote::emptyPictureStillTellsItsLength()
{
    QVERIFY(m_peer->isCaughtUp());
    m_remote->respondImage(QByteArray());
    QTRY_COMPARE_WITH_TIMEOUT(m_peer->received().size(), 1, kPatience);
    QCOMPARE(m_peer->received().first(), QByteArray("\4\0\0\0\0\0\0\0", 8));
}

void TstIRemote::keyIsPressedAndReleasedAsTheFrontPanelSendsIt_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("letter");
    const struct
    {
        int code;
        char letter;
    } keys[] = { { 13, 'K' }, { 16, 'O' }, { 17, 'Q' }, { 18, 'D' }, { 19, 'T' }, { 40, 'W' },
                 { 41, 'Y' }, { 42, 'P' }, { 43, 'F' }, { 44, 'L' }, { 45, 'E' }, { 46, 'A' },
                 { 47, 'U' }, { 48, 'I' }, { 49, 'S' }, { 50, 'R' }, { 51, 'X' } };
    for (const auto &key : keys)
        QTest::addRow("%d: %c", key.code, key.letter) << key.code << int(key.letter);
}

void TstIRemote::keyIsPressedAndReleasedAsTheFrontPanelSendsIt()
{
    QFETCH(int, code);
    QFETCH(int, letter);
    m_peer->send(request(1, code));
    QTRY_COMPARE_WITH_TIMEOUT(m_page->seen.size(), 2, kPatience);
    QCOMPARE(m_page->seen.at(0).type, QEvent::KeyPress);
    QCOMPARE(m_page->seen.at(1).type, QEvent::KeyRelease);
    for (const Page::Seen &event : m_page->seen) {
        QCOMPARE(event.key, letter);
        QCOMPARE(event.modifiers, Qt::KeyboardModifiers(Qt::NoModifier));
        QCOMPARE(event.text, QString());
        QCOMPARE(event.isAutoRepeat, false);
        QCOMPARE(event.count, 1);
    }
}

void TstIRemote::codesWithoutAKeyPostTheUnknownKey_data()
{
    QTest::addColumn<int>("code");
    const int codes[] = { 14, 15, 20, 39, 12, 52, 0, -1, 65, 1000, 0x7fffffff, int(0x80000000) };
    for (int code : codes)
        QTest::addRow("%d", code) << code;
}

void TstIRemote::codesWithoutAKeyPostTheUnknownKey()
{
    QFETCH(int, code);
    m_peer->send(request(1, code));
    QTRY_COMPARE_WITH_TIMEOUT(m_page->seen.size(), 2, kPatience);
    QCOMPARE(m_page->seen.at(0).key, kUnknownKey);
    QCOMPARE(m_page->seen.at(1).key, kUnknownKey);
}

void TstIRemote::shortRequestUsesTheKeyCodeOfTheOneBefore()
{
    m_peer->send(request(3, 43));
    m_peer->send(request(1).left(8)); // a key press without its code
    QTRY_COMPARE_WITH_TIMEOUT(m_page->seen.size(), 2, kPatience);
    QCOMPARE(m_page->seen.at(0).key, int('F'));
    // Two bytes of the code: 44 over the 43 of before, the upper two stay.
    m_peer->send(request(1, 44).left(10));
    QTRY_COMPARE_WITH_TIMEOUT(m_page->seen.size(), 4, kPatience);
    QCOMPARE(m_page->seen.at(2).key, int('L'));
}

void TstIRemote::emptyRequestRepeatsTheOneBefore()
{
    m_peer->send(request(3));
    QCOMPARE(word(m_peer->answerWithoutLoop(), 0), 3u);
    m_peer->send(QByteArray());
    QCOMPARE(word(m_peer->answerWithoutLoop(), 0), 3u);
}

void TstIRemote::bytesBehindThe128thAreNotRead()
{
    m_peer->send(request(0) + QByteArray(60000, '\x7f'));
    QCOMPARE(word(m_peer->answerWithoutLoop(), 0), 0u);
    m_peer->send(request(3) + QByteArray(116, '\x7f'));
    QCOMPARE(word(m_peer->answerWithoutLoop(), 0), 3u);
}

void TstIRemote::largerCommandsAreIgnored_data()
{
    QTest::addColumn<quint32>("command");
    for (quint32 command : { 5u, 6u, 255u, 256u, 0x01000000u, 0x80000000u, 0xffffffffu })
        QTest::addRow("%u", command) << command;
}

void TstIRemote::largerCommandsAreIgnored()
{
    QFETCH(quint32, command);
    m_peer->send(request(command, 43));
    // The keep-alive's answer is the first datagram that comes back.
    m_peer->send(request(3));
    QCOMPARE(word(m_peer->answerWithoutLoop(), 0), 3u);
    QCoreApplication::processEvents();
    QVERIFY(m_page->seen.isEmpty());
    QVERIFY(m_peer->received().isEmpty());
}

void TstIRemote::requestsOfAnyLengthLeaveItAnswering()
{
    for (quint32 command = 0; command <= 5; ++command) {
        QByteArray bytes = request(command, 14);
        for (int length = 0; length <= 2000; length += length < 140 ? 1 : 97) {
            m_peer->send(length <= 12 ? bytes.left(length) : bytes + noise(length - 12, quint32(length)));
            QVERIFY(m_peer->isCaughtUp());
            QCoreApplication::processEvents();
        }
        m_peer->send(bytes + noise(65507 - 12, command));
        QVERIFY(m_peer->isCaughtUp());
    }
    m_peer->forget();
}

void TstIRemote::hostileBytesLeaveItAnswering()
{
    for (quint32 seed = 0; seed < 3000; ++seed) {
        m_peer->send(noise(int(seed * 7919 % 131), seed));
        if (seed % 50 == 0) {
            QVERIFY(m_peer->isCaughtUp());
            QCoreApplication::processEvents();
        }
    }
    QVERIFY(m_peer->isCaughtUp());
}

void TstIRemote::newPeerGetsTheRestOfAPicture()
{
    QVERIFY(m_peer->isCaughtUp());
    std::atomic<bool> redirected { false };
    // Comes in while the picture's 200 datagrams are on their way; what it gets of them is longer than an answer.
    std::thread newPeer([&] {
        QUdpSocket socket;
        socket.bind(QHostAddress(QHostAddress::LocalHost), 0);
        socket.writeDatagram(request(3), QHostAddress(QHostAddress::LocalHost), IRemote::port());
        while (!redirected && socket.waitForReadyRead(kPatience)) {
            while (socket.hasPendingDatagrams()) {
                redirected = redirected || socket.pendingDatagramSize() == 1024;
                socket.readDatagram(nullptr, 0);
            }
        }
    });
    const QDeadlineTimer patience(kPatience);
    while (!redirected && !patience.hasExpired())
        m_remote->respondImage(noise(200 * 1024, 3));
    newPeer.join();
    QVERIFY(redirected);
}

void TstIRemote::oneOfManyPictureRequestsIsPending()
{
    for (int i = 0; i < 300; ++i) {
        m_peer->send(request(i % 2 ? 2 : 4));
        if (i % 50 == 49)
            QVERIFY(m_peer->isCaughtUp()); // the GUI thread does not run meanwhile
    }
    QCOMPARE(wanted.load(), 1);
    QTRY_VERIFY_WITH_TIMEOUT(!m_peer->wholePicture().isEmpty(), kPatience);
    // Done with it, it takes the next request.
    m_peer->forget();
    QTRY_VERIFY_WITH_TIMEOUT((m_peer->send(request(2)), QTest::qWait(1), wanted.load() > 1), kPatience);
}

void TstIRemote::requestWhileAPictureIsSentGetsAWholeOneAfterwards()
{
    Peer other;
    // A second taker, which gets the picture behind the remote control, holds the moment when all of it has been sent.
    std::promise<void> goesOn;
    std::atomic<bool> sent { false };
    const int second = m_panel->addTaker([&](const QByteArray &) {
        sent = true;
        goesOn.get_future().wait();
    });
    m_panel->requestPicture(second);
    m_peer->send(request(2));
    QVERIFY(m_peer->isCaughtUp());
    QTRY_VERIFY_WITH_TIMEOUT(sent, kPatience);
    other.send(request(2));
    QVERIFY(other.isCaughtUp());
    goesOn.set_value();
    QTRY_VERIFY_WITH_TIMEOUT(!other.wholePicture().isEmpty(), kPatience);
    QVERIFY(!QImage::fromData(other.wholePicture().mid(8), "PNG").isNull());
    QVERIFY(!m_peer->wholePicture().isEmpty());
    QCOMPARE(wanted.load(), 2);
    m_panel->removeTaker(second);
}

void TstIRemote::pictureBehindAKeyShowsWhatTheKeyDid()
{
    m_peer->send(request(1, 43));
    m_peer->send(request(2));
    QTRY_VERIFY_WITH_TIMEOUT(!m_peer->wholePicture().isEmpty(), kPatience);
    const QImage image = QImage::fromData(m_peer->wholePicture().mid(8), "PNG");
    QCOMPARE(image.pixelColor(m_page->mapTo(m_window, m_page->rect().center())), QColor(0, 200, 0));
}

void TstIRemote::secondKeyGoesToThePageThatTheFirstOpened()
{
    m_page->nextFocus = m_otherPage;
    m_peer->send(request(1, 46));
    m_peer->send(request(1, 13));
    QVERIFY(m_peer->isCaughtUp());
    QTRY_COMPARE_WITH_TIMEOUT(m_otherPage->presses(), 1, kPatience);
    QCOMPARE(m_page->presses(), 1);
    QCOMPARE(m_page->seen.first().key, int('A'));
    QCOMPARE(m_otherPage->seen.first().key, int('K'));
}

void TstIRemote::keysBeyondTheBoundOfOneRoundAreDropped()
{
    for (int i = 0; i < 500; ++i) {
        m_peer->send(request(1, 43));
        if (i % 50 == 0)
            QVERIFY(m_peer->isCaughtUp()); // so that the socket's own buffer loses none
    }
    QVERIFY(m_peer->isCaughtUp());
    QTRY_COMPARE_WITH_TIMEOUT(m_page->seen.size(), 2 * 32, kPatience);
    // The loop has come round: keys are taken again.
    QTRY_VERIFY_WITH_TIMEOUT((m_peer->send(request(1, 44)), QTest::qWait(1), m_page->seen.last().key == 'L'),
                             kPatience);
}

void TstIRemote::floodOfKeysAndPicturesLeavesTheTimersRunning()
{
    std::atomic<bool> ends { false };
    std::thread flood([&] {
        QUdpSocket socket;
        const QByteArray key = request(1, 43), screen = request(2);
        while (!ends) {
            socket.writeDatagram(key, QHostAddress(QHostAddress::LocalHost), IRemote::port());
            socket.writeDatagram(screen, QHostAddress(QHostAddress::LocalHost), IRemote::port());
        }
    });
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(1);
    const bool ran = QTest::qWaitFor([&] { return ticks > 50 && m_page->presses() > 50; }, kPatience);
    ends = true;
    flood.join();
    QVERIFY(ran);
    m_peer->forget();
    // The flood may have filled the socket: the question is asked again until it gets through.
    QTRY_VERIFY_WITH_TIMEOUT(m_peer->isCaughtUp(), kPatience);
}

void TstIRemote::keyAfterADialogReachesThePageThatPassesTheFocusOn()
{
    QPointer<QDialog> dialog = new QDialog(m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setModal(true);
    dialog->show();
    QTRY_VERIFY(QApplication::activeModalWidget() == dialog);
    dialog->close();
    QTRY_VERIFY(dialog.isNull());
    // A container hands the focus to its page in its focus event, which only an active window brings.
    m_otherPage->passesFocusTo = m_page;
    m_otherPage->setFocus();
    m_peer->send(request(1, 43));
    QTRY_COMPARE_WITH_TIMEOUT(m_page->presses(), 1, kPatience);
    QCOMPARE(m_otherPage->presses(), 0);
}

void TstIRemote::keyWithoutAnyWindowIsDropped()
{
    delete m_window;
    m_window = nullptr;
    Panel::postKey(QEvent::KeyPress, 43);
    m_peer->send(request(1, 43));
    QVERIFY(m_peer->isCaughtUp());
    QCoreApplication::processEvents();
    QVERIFY(m_peer->isCaughtUp());
}

void TstIRemote::onlyItsThreadBlocksSignals12And14()
{
    constexpr quint64 both = 1ull << (12 - 1) | 1ull << (14 - 1);
    const auto threadsThatBlock = [] {
        int count = 0;
        const QStringList threads
            = QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &thread : threads) {
            QFile file(QStringLiteral("/proc/self/task/%1/status").arg(thread));
            if (!file.open(QIODevice::ReadOnly))
                continue;
            const QByteArray status = file.readAll();
            const int at = status.indexOf("SigBlk:");
            const quint64 mask = status.mid(at + 7, 20).simplified().split(' ').first().toULongLong(nullptr, 16);
            count += (mask & both) == both;
        }
        return count;
    };
    const int withRemote = threadsThatBlock();
    delete m_remote;
    QCOMPARE(threadsThatBlock(), withRemote - 1); // the toolkit may have others
    m_remote = new IRemote(nullptr);
    sigset_t own;
    pthread_sigmask(SIG_BLOCK, nullptr, &own);
    QCOMPARE(sigismember(&own, 12), 0);
    QCOMPARE(sigismember(&own, 14), 0);
}

void TstIRemote::socketIsClosedWithTheObject()
{
    delete m_remote;
    const int before = openDescriptors();
    for (int i = 0; i < 20; ++i) {
        IRemote remote(nullptr);
        QTRY_VERIFY_WITH_TIMEOUT(IRemote::port() != 0, kPatience);
    }
    QCOMPARE(openDescriptors(), before);
    QCOMPARE(int(IRemote::port()), 0);
    IRemote::requestScreen(); // nobody is there: nothing happens
    m_remote = new IRemote(nullptr);
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    TstIRemote test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_iremote.moc"
