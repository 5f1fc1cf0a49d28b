#include "memorycase.h"

#include "board/backlight.h"
#include "memory/imageviewer.h"
#include "widgets/controls/readingmarks.h"

#include <QPainter>

#include <sys/stat.h>

using namespace MemoryCase;

namespace {

QImage painted(QWidget *widget)
{
    return widget->grab().toImage();
}

ImageViewer *openPicture(const Screen &screen)
{
    QTest::keyClick(screen.page, Qt::Key(F4));
    const auto viewer = [&screen] { return screen.window.findChild<ImageViewer *>(); };
    return QTest::qWaitFor([&viewer] { return viewer() != nullptr; }, kPatienceMs) ? viewer() : nullptr;
}

} // namespace

/// Pictures over the whole screen.
class TstImageViewer : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }
    void aPictureCoversTheWindowAndF5LeavesIt();
    void otherKeysRise();
    void aDarkScreenIsOnlyWoken();
    void whatIsNoPictureIsNotOpened();
    void aBrokenPictureIsSaid_data();
    void aBrokenPictureIsSaid();
    void aLargePictureIsShownSmaller();
    void theViewerGoesWithItsPage();
};

void TstImageViewer::aPictureCoversTheWindowAndF5LeavesIt()
{
    storePicture("a.png", { 640, 480 });
    Screen screen;
    screen.page->setFocus();
    ImageViewer *viewer = openPicture(screen);
    QVERIFY(viewer);
    QCOMPARE(viewer->geometry(), QRect(0, 0, 640, 480));
    QVERIFY(ReadingMarks::isCover(viewer)); // nothing below it is read aloud
    const QImage image = painted(&screen.window);
    for (const QPoint &corner : { QPoint(0, 0), QPoint(639, 0), QPoint(0, 479), QPoint(639, 479), QPoint(320, 240) })
        QCOMPARE(image.pixelColor(corner), QColor(Qt::red));
    QPointer<ImageViewer> watched(viewer);
    QTest::keyClick(viewer, Qt::Key(F5));
    QTRY_VERIFY(!watched);
    QVERIFY(painted(&screen.window).pixelColor(320, 470) != QColor(Qt::red));
}

void TstImageViewer::otherKeysRise()
{
    storePicture("a.png");
    Screen screen;
    ImageViewer *viewer = openPicture(screen);
    QVERIFY(viewer);
    for (const char letter : QByteArray("WYPFEAUSRIXBOQDTK")) {
        QKeyEvent event(QEvent::KeyPress, letter, Qt::NoModifier);
        QCoreApplication::sendEvent(viewer, &event);
        QVERIFY2(!event.isAccepted(), &letter);
        QVERIFY(viewer->isVisible());
    }
    QCOMPARE(screen.page->mode(), MemoryPage::Browsing); // none reached the list below
}

void TstImageViewer::aDarkScreenIsOnlyWoken()
{
    storePicture("a.png");
    Screen screen;
    ImageViewer *viewer = openPicture(screen);
    QVERIFY(viewer);
    BackLight::shutDownBL();
    QTest::keyClick(viewer, Qt::Key(F5));
    QVERIFY(viewer->isVisible());
    QVERIFY(!BackLight::isShut());
}

void TstImageViewer::whatIsNoPictureIsNotOpened()
{
    store("a.txt");
    Screen screen;
    Answers answers("L");
    screen.press({ F4 });
    screen.wait();
    QVERIFY(!screen.window.findChild<ImageViewer *>());
    QVERIFY(answers.said.isEmpty());
}

void TstImageViewer::aBrokenPictureIsSaid_data()
{
    QTest::addColumn<QByteArray>("bytes");
    storePicture("whole.png");
    const QByteArray whole = RootFiles::read(kStorage + "whole.png");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("no picture");
    QTest::newRow("head alone") << whole.left(40);
    // Width and height stand at 16 and 20 behind the first head, then a sum over them: 40,000 by 40,000 pixels.
    QTest::newRow("enormous") << QByteArray::fromHex("89504e470d0a1a0a0000000d4948445200009c4000009c400802000000")
            + QByteArray::fromHex("c1b5a2d5");
}

void TstImageViewer::aBrokenPictureIsSaid()
{
    QFETCH(QByteArray, bytes);
    store("a.png", bytes);
    Screen screen;
    Answers answers("L");
    screen.press({ F4 });
    QTRY_VERIFY_WITH_TIMEOUT(answers.isDone(), kPatienceMs);
    QCOMPARE(answers.said, QStringList { "Error!!!" });
    QVERIFY(!screen.window.findChild<ImageViewer *>());
}

void TstImageViewer::aLargePictureIsShownSmaller()
{
    storePicture("wide.png", { 1280, 480 });
    QCOMPARE(ImageViewer::read(kStorage + "wide.png").size(), QSize(640, 240));
    storePicture("screen.png", { 640, 480 });
    QCOMPARE(ImageViewer::read(kStorage + "screen.png").size(), QSize(640, 480));
    storePicture("small.png", { 10, 20 });
    QCOMPARE(ImageViewer::read(kStorage + "small.png").size(), QSize(10, 20));
    storePicture("side.png", { 4097, 1 });
    QVERIFY(ImageViewer::read(kStorage + "side.png").isNull());
    QCOMPARE(::mkfifo(QFile::encodeName(Target::path(kStorage + "pipe.png")).constData(), 0644), 0);
    QVERIFY(ImageViewer::read(kStorage + "pipe.png").isNull()); // nobody waits for its other end
}

void TstImageViewer::theViewerGoesWithItsPage()
{
    storePicture("a.png");
    Screen screen;
    QPointer<ImageViewer> viewer(openPicture(screen));
    QVERIFY(viewer);
    screen.page->hide(); // another page comes in front
    QTRY_VERIFY_WITH_TIMEOUT(!viewer, kPatienceMs);
}

PAGE_TEST_MAIN(TstImageViewer)
#include "tst_imageviewer.moc"
