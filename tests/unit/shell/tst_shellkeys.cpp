#include "shellcase.h"

#include "board/backlight.h"
#include "platform/deskkeys.h"
#include "platform/diskworker.h"
#include "platform/target.h"
#include "task/unitask.h"
#include "views/vif/vifmain.h"
#include "views/vif/vifpage.h"
#include "widgets/text/keymap.h"

#include <QFile>
#include <QSignalSpy>
#include <QThread>
#include <QWindow>

#include <atomic>
#include <memory>

/// Keys of the panel and of a PC, the light, and switching off.
class TstShellKeys : public ShellCase
{
    Q_OBJECT

private slots:
    void firstPressOnADarkScreenOnlyLightsIt();
    void firstPressOnADarkScreenDoesNothingElseWhicheverKeyItIs_data();
    void firstPressOnADarkScreenDoesNothingElseWhicheverKeyItIs();
    void keysOfAPcDriveTheInstrumentOnADesk();
    void heldFunctionKeyActsOnce();
    void heldArrowGoesOn();
    void heldPowerKeyAsksLikeAShortPress();
    void lightKeyStepsTheLight();
    void powerKeyAsksAfterAMomentAndCancelChangesNothing();
    void powerKeySwitchesOffOnOk();
    void supplyStaysUntilTheCardHasEverything();
};

void TstShellKeys::firstPressOnADarkScreenOnlyLightsIt()
{
    moveToTile("vif");
    BackLight::shutDownBL();
    QTest::keyClick(m_basedialog->menu(), kRight);
    QCOMPARE(current(), QStringLiteral("vif"));
    QTest::keyClick(m_basedialog->menu(), kRight);
    QCOMPARE(current(), QStringLiteral("harmonics"));
    BackLight::shutDownBL();
    DialogAnswer answer(kF5);
    QTest::keyClick(m_basedialog, kPower);
    QTest::qWait(250);
    QVERIFY(!answer.asked);
}

void TstShellKeys::firstPressOnADarkScreenDoesNothingElseWhicheverKeyItIs_data()
{
    QTest::addColumn<int>("letter");
    for (const char letter : QByteArray("WYPFLEAUSRIXBOQDTK"))
        QTest::addRow("%c", letter) << int(letter);
}

void TstShellKeys::firstPressOnADarkScreenDoesNothingElseWhicheverKeyItIs()
{
    QFETCH(int, letter);
    const auto light = [] { return BackLight::level(); };
    DialogAnswer answer(kF5);
    BackLight::setBackLight(2);

    moveToTile("vif");
    BackLight::shutDownBL();
    QTest::keyPress(m_basedialog->menu(), Qt::Key(letter));
    QVERIFY(!BackLight::isShut());
    QCOMPARE(current(), QStringLiteral("vif"));
    QCOMPARE(title(), QStringLiteral("Menu"));
    QCOMPARE(light(), 2);

    enterVif();
    QSignalSpy pause(vifPage(), &LivePage::pause);
    auto *main = vifPage()->findChild<VifMain *>();
    BackLight::shutDownBL();
    QTest::keyPress(main, Qt::Key(letter));
    QVERIFY(!BackLight::isShut());
    QCOMPARE(title(), QStringLiteral("Volts/Amps/Hertz"));
    QVERIFY(main->isVisible());
    QCOMPARE(pause.count(), 0);
    QCOMPARE(light(), 2);
    QTest::qWait(letter == kPower ? 250 : 0);
    QVERIFY(!answer.asked);
}

void TstShellKeys::keysOfAPcDriveTheInstrumentOnADesk()
{
    // Through the window, as the toolkit's input layer delivers them.
    const std::unique_ptr<DeskKeys> desk(DeskKeys::install(qApp, keyMap::panelLetter));
    QVERIFY(desk);
    QWindow *window = m_basedialog->windowHandle();
    QApplication::setActiveWindow(m_basedialog);
    moveToTile("power");
    QTest::keyClick(window, Qt::Key_Right);
    QCOMPARE(current(), QStringLiteral("vif"));
    QTest::keyClick(window, Qt::Key_Down);
    QTest::keyClick(window, Qt::Key_Up);
    QTest::keyClick(window, Qt::Key_Return);
    QCOMPARE(title(), QStringLiteral("Volts/Amps/Hertz"));
    QTest::keyClick(window, Qt::Key_F6);
    QCOMPARE(title(), QStringLiteral("Scope"));
    QTest::keyClick(window, Qt::Key_Escape);
    QCOMPARE(title(), QStringLiteral("Menu"));

    // Escape cancels the status dialog; F1 would restart.
    UniTask *task = g_unitask;
    bool escaped = false;
    QTimer user;
    connect(&user, &QTimer::timeout, this, [&escaped] {
        if (QWidget *dialog = QApplication::activeModalWidget()) {
            QTest::keyClick(dialog, Qt::Key_Escape);
            escaped = !dialog->isVisible();
            dialog->close();
        }
    });
    user.start(10);
    QTest::keyClick(window, Qt::Key_F3);
    QVERIFY(escaped);
    QCOMPARE(g_unitask, task);
}

void TstShellKeys::heldFunctionKeyActsOnce()
{
    const auto repeat = [](QWidget *page, int letter) {
        QKeyEvent event(QEvent::KeyPress, letter, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(page, &event);
    };
    enterVif();
    auto *page = vifPage()->findChild<VifMain *>();
    QSignalSpy pause(vifPage(), &LivePage::pause);
    QSignalSpy run(vifPage(), &LivePage::run);
    g_unitask->startTask();
    QTest::keyPress(page, kF5);
    for (int i = 0; i < 5; ++i)
        repeat(page, kF5);
    QCOMPARE(pause.count(), 1);
    QCOMPARE(run.count(), 0);
    repeat(page, kF7);
    QCOMPARE(title(), QStringLiteral("Volts/Amps/Hertz"));

    QTest::keyPress(page, kF7);
    QCOMPARE(title(), QStringLiteral("Menu"));
    DialogAnswer answer(kF5);
    for (const auto letter : { kEnter, kF1, kF6, kF10 })
        repeat(m_basedialog->menu(), letter);
    QTest::qWait(60);
    QVERIFY(!answer.asked);
    QCOMPARE(title(), QStringLiteral("Menu"));

    BackLight::setBackLight(3);
    repeat(m_basedialog->menu(), kF12);
    repeat(m_basedialog, kF12);
    QCOMPARE(BackLight::level(), 3);
}

void TstShellKeys::heldArrowGoesOn()
{
    moveToTile("vif");
    for (const char *tile : { "harmonics", "unbalance" }) {
        QKeyEvent event(QEvent::KeyPress, kRight, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(m_basedialog->menu(), &event);
        QCOMPARE(current(), QLatin1String(tile));
    }
}

void TstShellKeys::heldPowerKeyAsksLikeAShortPress()
{
    DialogAnswer answer(kF5);
    QTest::keyPress(m_basedialog, kPower);
    // Repeats come faster than the timer runs; each one would start it anew.
    QTimer keyboard;
    connect(&keyboard, &QTimer::timeout, this, [] {
        QKeyEvent event(QEvent::KeyPress, kPower, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(m_basedialog, &event);
    });
    keyboard.start(10);
    QTRY_VERIFY_WITH_TIMEOUT(answer.asked, 30000);
    QVERIFY(answer.text.contains("Power off?"));
}

void TstShellKeys::lightKeyStepsTheLight()
{
    const auto level = [] {
        QFile file(Target::path("/sys/class/backlight/backlight/brightness"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray("?");
    };
    BackLight::setBackLight(3);
    QCOMPARE(level(), QByteArray("7"));
    for (const char *text : { "5", "3", "1", "7" }) {
        QTest::keyClick(m_basedialog->menu(), kF12); // rises to the main window
        QCOMPARE(level(), QByteArray(text));
    }
}

void TstShellKeys::powerKeyAsksAfterAMomentAndCancelChangesNothing()
{
    enterVif();
    DialogAnswer answer(kF5);
    QTest::keyClick(vifPage()->findChild<VifMain *>(), kPower); // pressed and let go at once
    QTRY_VERIFY_WITH_TIMEOUT(answer.asked, 30000);
    QVERIFY(answer.text.contains("Power off?"));
    QVERIFY(m_taskmanage->currentTask());
}

void TstShellKeys::powerKeySwitchesOffOnOk()
{
    enterVif();
    DialogAnswer answer(kF4);
    QTest::keyClick(m_basedialog, kPower);
    QTRY_VERIFY_WITH_TIMEOUT(answer.asked, 30000);
    QTRY_VERIFY(!m_taskmanage->currentTask());
    QFile latch(Target::path("/sys/class/gpio/gpio47/value"));
    QVERIFY(latch.open(QIODevice::ReadOnly));
    QCOMPARE(latch.readAll().trimmed(), QByteArray("1"));
    QFile direction(Target::path("/sys/class/gpio/gpio47/direction"));
    QVERIFY(direction.open(QIODevice::ReadOnly));
    QCOMPARE(direction.readAll().trimmed(), QByteArray("out"));
}

void TstShellKeys::supplyStaysUntilTheCardHasEverything()
{
    QFile latch(Target::path("/sys/class/gpio/gpio47/value"));
    QVERIFY(latch.open(QIODevice::WriteOnly) && latch.write("0\n") == 2);
    latch.close();
    // A card that takes its time: while it writes the supply is still there.
    std::atomic<int> heldMeanwhile { 0 };
    const auto write = [&heldMeanwhile, path = latch.fileName()] {
        QThread::msleep(150);
        QFile value(path);
        if (value.open(QIODevice::ReadOnly) && value.readAll().trimmed() == "0")
            ++heldMeanwhile;
    };
    DiskWorker::slow().run([write] {
        write();
        DiskWorker::instance().run(write); // as a file that is closed at last
    });
    DialogAnswer answer(kF4);
    QTest::keyClick(m_basedialog, kPower);
    QTRY_VERIFY_WITH_TIMEOUT(answer.asked, 30000);
    const auto isOff = [&latch] {
        const bool opened = latch.open(QIODevice::ReadOnly);
        const bool off = opened && latch.readAll().trimmed() == "1";
        latch.close();
        return off;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isOff(), 30000);
    QCOMPARE(heldMeanwhile.load(), 2);
}

QTEST_MAIN(TstShellKeys)
#include "tst_shellkeys.moc"
