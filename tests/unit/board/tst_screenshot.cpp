#include "board/screenshot.h"

#include <QDialog>
#include <QImage>
#include <QSignalSpy>
#include <QSplashScreen>
#include <QTest>

/// Pictures of the screen, here on a platform that cannot read its screen back.
class TstScreenShot : public QObject
{
    Q_OBJECT

private slots:
    void nothingToShowIsANullPicture();
    void pageAloneIsItsSize();
    void dialogLiesOverThePage();
    void splashLiesUnderThePage();
    void slotEmitsThePicture();
};

namespace {
void paint(QWidget *widget, const QColor &colour, const QRect &geometry)
{
    QPalette palette;
    palette.setColor(QPalette::Window, colour);
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
    widget->setGeometry(geometry);
}
} // namespace

void TstScreenShot::nothingToShowIsANullPicture()
{
    QVERIFY(ScreenShot::getScreenPixmap().isNull());
}

void TstScreenShot::pageAloneIsItsSize()
{
    QWidget page(nullptr, Qt::FramelessWindowHint);
    paint(&page, Qt::blue, QRect(0, 0, 640, 480));
    QWidget hidden;
    paint(&hidden, Qt::green, QRect(0, 0, 640, 480));
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    const QImage picture = ScreenShot::getScreenPixmap().toImage();
    QCOMPARE(picture.size(), QSize(640, 480));
    QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::blue));
    QCOMPARE(picture.pixelColor(639, 479), QColor(Qt::blue));
}

void TstScreenShot::dialogLiesOverThePage()
{
    QWidget page(nullptr, Qt::FramelessWindowHint);
    paint(&page, Qt::blue, QRect(10, 20, 640, 480));
    page.show();
    QDialog dialog(nullptr, Qt::FramelessWindowHint);
    dialog.setModal(true);
    paint(&dialog, Qt::red, QRect(110, 220, 200, 100));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QImage picture = ScreenShot::getScreenPixmap().toImage();
    QCOMPARE(picture.size(), QSize(640, 480));
    QCOMPARE(picture.pixelColor(99, 200), QColor(Qt::blue));
    QCOMPARE(picture.pixelColor(100, 200), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(299, 299), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(300, 299), QColor(Qt::blue));
    // A page that is shown anew does not come before its dialog.
    page.hide();
    page.show();
    picture = ScreenShot::getScreenPixmap().toImage();
    QCOMPARE(picture.pixelColor(150, 250), QColor(Qt::red));
    // A dialog with a parent needs no modality to lie above it.
    QDialog child(&page, Qt::FramelessWindowHint);
    paint(&child, Qt::yellow, QRect(10, 20, 50, 50));
    child.show();
    picture = ScreenShot::getScreenPixmap().toImage();
    QCOMPARE(picture.pixelColor(20, 20), QColor(Qt::yellow));
}

void TstScreenShot::splashLiesUnderThePage()
{
    QPixmap picture(800, 600);
    picture.fill(Qt::green);
    QSplashScreen splash(picture);
    splash.show();
    QVERIFY(QTest::qWaitForWindowExposed(&splash));
    QCOMPARE(ScreenShot::getScreenPixmap().toImage().pixelColor(10, 10), QColor(Qt::green));
    QWidget page(nullptr, Qt::FramelessWindowHint);
    paint(&page, Qt::blue, QRect(0, 0, 640, 480));
    page.show();
    const QImage shot = ScreenShot::getScreenPixmap().toImage();
    QCOMPARE(shot.size(), QSize(640, 480));
    QCOMPARE(shot.pixelColor(10, 10), QColor(Qt::blue));
}

void TstScreenShot::slotEmitsThePicture()
{
    QVERIFY(!ScreenShot::iScreenShot());
    ScreenShot::initScreenShot();
    ScreenShot *first = ScreenShot::iScreenShot();
    QVERIFY(first);
    ScreenShot::initScreenShot();
    QCOMPARE(ScreenShot::iScreenShot(), first);
    QWidget page(nullptr, Qt::FramelessWindowHint);
    paint(&page, Qt::cyan, QRect(0, 0, 64, 48));
    page.show();
    QSignalSpy pictures(first, &ScreenShot::screenPixmap);
    first->grabScreenPixmap();
    QCOMPARE(pictures.size(), 1);
    QCOMPARE(pictures[0][0].value<QPixmap>().toImage().pixelColor(5, 5), QColor(Qt::cyan));
}

QTEST_MAIN(TstScreenShot)
#include "tst_screenshot.moc"
