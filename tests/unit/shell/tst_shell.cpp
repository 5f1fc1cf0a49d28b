#include "shellcase.h"

#include "memory/imageviewer.h"
#include "memory/memorypage.h"
#include "platform/target.h"
#include "record/pqa2ff.h"
#include "shell/pagetable.h"
#include "shell/systemtray.h"
#include "task/unitask.h"
#include "views/vif/vifmain.h"
#include "views/vif/vifpage.h"

#include <QDir>
#include <QFile>
#include <QSignalBlocker>
#include <QSignalSpy>
#include <QWindow>

/// Menu, navigation with its questions, title bar.
class TstShell : public ShellCase
{
    Q_OBJECT

private slots:
    void startsInTheMenu();
    void aRecordedFileSaysWhichInstrumentWroteIt();
    void menuIsATorus_data();
    void menuIsATorus();
    void currentTileIsHighlighted();
    void menuAt400HzHasNoFlicker();
    void tileOpensItsPageAndStartsTheTask();
    void menuKeepsTheMeasurementRunning();
    void goingToAnotherFunctionAsksAndCancelStays();
    void goingToAnotherFunctionAsksAndQuitStartsAnew();
    void closedQuestionEndsTheTask();
    void menuKeyOnARunningCaptureAsks_data();
    void menuKeyOnARunningCaptureAsks();
    void scopeKeyOnARunningMonitorAsks();
    void memoryKeyWhileRecordingAsksNothing();
    void backFromMemoryRestoresPageAndTitle();
    void memoryIsReadAnewEachTimeItIsOpened();
    void aPictureKeepsTheKeysBehindAQuestion();
    void aDiskThatIsPluggedInIsKnownToMemory();
    void recordingQuestionOffersSaveExitRestartCancel();
    void restartInTheRecorderQuestionStaysAndBeginsANewRecording();
    void everyTileOpensItsPage();
    void monitorKeyDoesNothingAt400Hz();
    void processorTimeBecomesTheSystemTime();
    void titleBarShowsIconsAndText();
    void titleBarPaintsAnIconOnlyWhenItChanges();
    void statusDialogRestartsTheTask();
    void languageChangeSetsTheTitleOfTheUserPage();
    void everyTileAndFunctionKeyIsSafe();
};

void TstShell::startsInTheMenu()
{
    QCOMPARE(title(), QStringLiteral("Menu"));
    QCOMPARE(top(), static_cast<QWidget *>(m_basedialog->menu()));
    QCOMPARE(current(), QStringLiteral("vif"));
    QVERIFY(!m_taskmanage->currentTask());
    QCOMPARE(m_basedialog->size(), QSize(640, 480));
    QVERIFY(m_basedialog->geometry().contains(splash->geometry()));
    QVERIFY(splash->isVisible()); // covered, not closed
    QCOMPARE(m_basedialog->findChild<QLabel *>("datetime")->text().size(), 19);
    QCOMPARE(m_basedialog->menu()->findChild<QLabel *>("menu_tips")->text(),
             QStringLiteral("Press F1-F5 to show more infomation"));
    QCOMPARE(m_basedialog->menu()->findChild<QLabel *>("mainssignaling_t")->text(), QStringLiteral("Mains\nSignaling"));
    QCOMPARE(m_basedialog->menu()->findChild<QLabel *>("power_t")->text(), QStringLiteral("Power&Energy\n"));
}

void TstShell::aRecordedFileSaysWhichInstrumentWroteIt()
{
    const QString path = "/mnt/storage/opening.pqa2";
    Pqa2FF file;
    QVERIFY(file.open(path));
    file.close();
    QFile written(Target::path(path));
    QVERIFY(written.open(QIODevice::ReadOnly));
    const QByteArray content = written.readAll();
    QVERIFY(written.remove());
    for (const char *line : { "MODEL: ", "SN: ", "Fnom: 50Hz\n", "Unom: 230V\n", "Join: " })
        QVERIFY2(content.contains(line), line);
}

void TstShell::menuIsATorus_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("to");
    const QStringList names { "power",  "vif",        "harmonics",      "unbalance", "flicker", "dips_swells",
                              "inrush", "transients", "mainssignaling", "wave",      "logger",  "user" };
    for (int i = 0; i < 12; ++i) {
        const int row = i / 4;
        const int column = i % 4;
        QTest::newRow(qPrintable(names[i] + " left")) << names[i] << int(kLeft) << names[row * 4 + (column + 3) % 4];
        QTest::newRow(qPrintable(names[i] + " right")) << names[i] << int(kRight) << names[row * 4 + (column + 1) % 4];
        QTest::newRow(qPrintable(names[i] + " up")) << names[i] << int(kUp) << names[(row + 2) % 3 * 4 + column];
        QTest::newRow(qPrintable(names[i] + " down")) << names[i] << int(kDown) << names[(row + 1) % 3 * 4 + column];
    }
}

void TstShell::menuIsATorus()
{
    QFETCH(QString, from);
    QFETCH(int, key);
    QFETCH(QString, to);
    moveToTile(from);
    QTest::keyClick(m_basedialog->menu(), Qt::Key(key));
    QCOMPARE(current(), to);
}

void TstShell::currentTileIsHighlighted()
{
    moveToTile("harmonics");
    const auto picture = [](const char *name) {
        return m_basedialog->menu()->findChild<QLabel *>(name)->pixmap(Qt::ReturnByValue).toImage();
    };
    QVERIFY(!picture("harmonics").isNull());
    QVERIFY(picture("harmonics") != QPixmap(":/harmonics").toImage());
    QCOMPARE(picture("harmonics"), QPixmap(":/harmonics_hl").toImage());
    QTest::keyClick(m_basedialog->menu(), kRight);
    QCOMPARE(picture("harmonics"), QPixmap(":/harmonics").toImage());
    QCOMPARE(picture("unbalance"), QPixmap(":/unbalance_hl").toImage());
}

void TstShell::menuAt400HzHasNoFlicker()
{
    moveToTile("flicker");
    m_settingConfig_g.setNomFreq(3);
    m_basedialog->menu()->initMenuMatrix();
    QCOMPARE(current(), QStringLiteral("vif")); // it stood on flicker
    QVERIFY(m_basedialog->menu()->findChild<QLabel *>("flicker")->isVisibleTo(m_basedialog->menu()));

    const struct
    {
        const char *from;
        Qt::Key key;
        const char *to;
    } rows[] = {
        { "dips_swells", kLeft, "transients" },
        { "transients", kRight, "dips_swells" },
        { "power", kDown, "mainssignaling" },
        { "power", kUp, "mainssignaling" },
        { "mainssignaling", kDown, "power" },
        { "mainssignaling", kUp, "power" },
        { "vif", kLeft, "power" },
        { "wave", kLeft, "mainssignaling" },
    };
    for (const auto &row : rows) {
        m_settingConfig_g.setNomFreq(1);
        m_basedialog->menu()->initMenuMatrix();
        moveToTile(row.from);
        m_settingConfig_g.setNomFreq(3);
        m_basedialog->menu()->initMenuMatrix();
        QTest::keyClick(m_basedialog->menu(), row.key);
        QCOMPARE(current(), QLatin1String(row.to));
    }
}

void TstShell::tileOpensItsPageAndStartsTheTask()
{
    enterVif();
    QCOMPARE(title(), QStringLiteral("Volts/Amps/Hertz"));
    QCOMPARE(top(), static_cast<QWidget *>(vifPage()));
    QCOMPARE(m_taskmanage->curTaskType(), 13);
    QCOMPARE(m_taskmanage->getUniFunction(), 1);
    QVERIFY(!g_unitask->isTaskRunning()); // it starts in ten seconds
    QCOMPARE(m_basedialog->navigator().currentPage(), static_cast<QWidget *>(vifPage()));
}

void TstShell::menuKeepsTheMeasurementRunning()
{
    enterVif();
    g_unitask->startTask();
    UniTask *task = g_unitask;
    QTest::keyClick(vifPage()->findChild<VifMain *>(), kF7);
    QCOMPARE(title(), QStringLiteral("Menu"));
    QVERIFY(task->isTaskRunning());
    enterVif();
    QCOMPARE(g_unitask, task);
    QVERIFY(task->isTaskRunning());
    QCOMPARE(title(), QStringLiteral("Volts/Amps/Hertz"));
}

void TstShell::goingToAnotherFunctionAsksAndCancelStays()
{
    m_basedialog->navigator().startFunction(AbstractTask::UniWave, UI_WAVE);
    g_unitask->startTask();
    UniTask *task = g_unitask;
    DialogAnswer answer(kF5);
    m_basedialog->navigator().go(UI_WAVE, UI_VIF);
    QVERIFY(answer.asked);
    QVERIFY(answer.text.contains("The task \"Power Quality\" is running.\ndo you want to quit?"));
    QCOMPARE(g_unitask, task);
    QVERIFY(task->isTaskRunning());
    QCOMPARE(title(), QStringLiteral("Menu"));
}

void TstShell::goingToAnotherFunctionAsksAndQuitStartsAnew()
{
    m_basedialog->navigator().startFunction(AbstractTask::UniWave, UI_WAVE);
    g_unitask->startTask();
    QSignalSpy destroyed(g_unitask, &QObject::destroyed);
    DialogAnswer answer(kF4);
    m_basedialog->navigator().go(UI_WAVE, UI_VIF);
    QVERIFY(answer.asked);
    QTRY_COMPARE(destroyed.count(), 1);
    QCOMPARE(m_taskmanage->getUniFunction(), 1);
    QCOMPARE(title(), QStringLiteral("Volts/Amps/Hertz"));
}

void TstShell::closedQuestionEndsTheTask()
{
    m_basedialog->navigator().startFunction(AbstractTask::UniWave, UI_WAVE);
    g_unitask->startTask();
    DialogAnswer answer(Qt::Key_H); // no key of the dialog: it is closed
    m_basedialog->navigator().go(UI_WAVE, UI_VIF);
    QVERIFY(answer.asked);
    QCOMPARE(m_taskmanage->getUniFunction(), 1);
    QCOMPARE(title(), QStringLiteral("Volts/Amps/Hertz"));
}

void TstShell::menuKeyOnARunningCaptureAsks_data()
{
    QTest::addColumn<int>("page");
    QTest::newRow("wave") << int(UI_WAVE);
    QTest::newRow("monitor") << int(UI_MONITOR);
    QTest::newRow("power inverter") << int(UI_POWER_INVERTER);
}

void TstShell::menuKeyOnARunningCaptureAsks()
{
    QFETCH(int, page);
    const auto type = _quvera_ui_type(page);
    enterVif(); // a page that is not the menu stands in front
    m_taskmanage->exitTask();
    switch (type) {
    case UI_WAVE:
        m_basedialog->navigator().startFunction(AbstractTask::UniWave, UI_WAVE);
        break;
    case UI_MONITOR:
        m_basedialog->navigator().startFunction(AbstractTask::UniMonitor, UI_MONITOR);
        break;
    default:
        m_basedialog->navigator().startFunction(AbstractTask::UniPowerInverter, UI_POWER_INVERTER);
    }
    g_unitask->startTask();
    UniTask *task = g_unitask;

    DialogAnswer cancel(kF5);
    m_basedialog->navigator().go(type, UI_MENU);
    QVERIFY(cancel.text.contains("do you want to quit?"));
    QCOMPARE(top(), static_cast<QWidget *>(vifPage()));
    QCOMPARE(g_unitask, task);
    QVERIFY(task->isTaskRunning());

    DialogAnswer quit(kF4);
    m_basedialog->navigator().go(type, UI_MENU);
    QVERIFY(quit.asked);
    QCOMPARE(top(), static_cast<QWidget *>(m_basedialog->menu()));
    QVERIFY(!m_taskmanage->currentTask());
}

void TstShell::scopeKeyOnARunningMonitorAsks()
{
    enterVif();
    m_taskmanage->exitTask();
    m_basedialog->navigator().startFunction(AbstractTask::UniMonitor, UI_MONITOR);
    g_unitask->startTask();
    DialogAnswer cancel(kF5);
    m_basedialog->navigator().go(UI_MONITOR, UI_SCOPE);
    QVERIFY(cancel.text.contains("do you want to quit?"));
    QCOMPARE(top(), static_cast<QWidget *>(vifPage()));
    QCOMPARE(m_taskmanage->getUniFunction(), 4);
}

void TstShell::memoryKeyWhileRecordingAsksNothing()
{
    enterVif();
    g_unitask->startTask();
    RecordInfo::m_in_recording = 1;
    UniTask *task = g_unitask;
    DialogAnswer answer(kF5);
    QTest::keyClick(vifPage()->findChild<VifMain *>(), kF10);
    QTest::qWait(50);
    QVERIFY(!answer.asked);
    QCOMPARE(title(), QStringLiteral("Memory"));
    QCOMPARE(g_unitask, task);
    QVERIFY(task->isTaskRunning());
    QCOMPARE(m_basedialog->navigator().currentPage(), static_cast<QWidget *>(vifPage()));
    // No key of the functions leads on from there; Back leads to where one was.
    for (const auto key : { kF6, kF7, kF8, kF10 })
        QTest::keyClick(top(), key);
    QCOMPARE(title(), QStringLiteral("Memory"));
    QTest::keyClick(top(), kF5);
    QCOMPARE(top(), static_cast<QWidget *>(vifPage()));
    QCOMPARE(title(), QStringLiteral("Volts/Amps/Hertz"));
    QCOMPARE(g_unitask, task);
    QVERIFY(task->isTaskRunning() && !answer.asked);
}

void TstShell::backFromMemoryRestoresPageAndTitle()
{
    enterVif();
    auto *memory = pageOf<MemoryPage>(UI_MEMORY);
    QTest::keyClick(vifPage()->findChild<VifMain *>(), kF10);
    QCOMPARE(top(), static_cast<QWidget *>(memory));
    QTest::keyClick(memory, kF5);
    QCOMPARE(top(), static_cast<QWidget *>(vifPage()));
    QCOMPARE(title(), QStringLiteral("Volts/Amps/Hertz"));
    QVERIFY(vifPage()->isAncestorOf(QApplication::focusWidget())); // the keys are its own again

    m_basedialog->navigator().go(UI_VIF, UI_MENU);
    QTest::keyClick(m_basedialog->menu(), kF10);
    QCOMPARE(top(), static_cast<QWidget *>(memory));
    QTest::keyClick(memory, kF5);
    QCOMPARE(top(), static_cast<QWidget *>(m_basedialog->menu()));
    QCOMPARE(title(), QStringLiteral("Menu"));
}

void TstShell::memoryIsReadAnewEachTimeItIsOpened()
{
    auto *memory = pageOf<MemoryPage>(UI_MEMORY);
    QTest::keyClick(m_basedialog->menu(), kF10);
    QTRY_VERIFY_WITH_TIMEOUT(!memory->isWorking(), 30000);
    const int before = memory->findChild<FilesList *>()->count();
    QTest::keyClick(memory, kF5);
    QFile file(Target::path(QStringLiteral("/mnt/storage/saved meanwhile.png")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QTest::keyClick(m_basedialog->menu(), kF10);
    QTRY_COMPARE_WITH_TIMEOUT(memory->findChild<FilesList *>()->count(), before + 1, 30000);
    QTest::keyClick(memory, kF5);
    QVERIFY(file.remove());
}

void TstShell::aPictureKeepsTheKeysBehindAQuestion()
{
    const QString path = Target::path(QStringLiteral("/mnt/storage/picture.png"));
    QDir storage(Target::path(QStringLiteral("/mnt/storage"))); // what other cases left
    QVERIFY(storage.removeRecursively() && storage.mkpath(storage.path()));
    QImage picture(64, 48, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(path));
    auto *memory = pageOf<MemoryPage>(UI_MEMORY);
    QTest::keyClick(m_basedialog->menu(), kF10);
    QTRY_VERIFY_WITH_TIMEOUT(!memory->isWorking(), 30000);
    QTest::keyClick(QApplication::focusWidget(), kF4);
    QTRY_VERIFY_WITH_TIMEOUT(m_basedialog->findChild<ImageViewer *>(), 30000);
    QWidget *viewer = m_basedialog->findChild<ImageViewer *>();
    {
        DialogAnswer cancel(kF5);
        QTest::keyClick(viewer, kPower); // rises to the window
        QTRY_VERIFY(cancel.asked);
        QVERIFY(cancel.text.contains("Power off?"));
    }
    m_basedialog->setFocus(); // which hands on what it gets
    QTRY_COMPARE(QApplication::focusWidget(), viewer);
    DialogAnswer format(kF5);
    QTest::keyClick(QApplication::focusWidget(), kF1);
    QTest::qWait(50);
    QVERIFY(!format.asked);
    QTest::keyClick(QApplication::focusWidget(), kF5);
    QVERIFY(!viewer->isVisible());
    QVERIFY(memory->isAncestorOf(QApplication::focusWidget()));
    QTest::keyClick(QApplication::focusWidget(), kF5);
    QCOMPARE(title(), QStringLiteral("Menu"));
    QVERIFY(QFile::remove(path));
}

void TstShell::aDiskThatIsPluggedInIsKnownToMemory()
{
    auto *memory = pageOf<MemoryPage>(UI_MEMORY);
    const QString disk = Target::path(QStringLiteral("/run/media/sda1"));
    QVERIFY(QDir().mkpath(disk));
    QTRY_COMPARE(memory->medias(), QStringList { "/run/media/sda1" });
    QVERIFY(QDir().rmdir(disk));
    QTRY_VERIFY(memory->medias().isEmpty());
}

void TstShell::recordingQuestionOffersSaveExitRestartCancel()
{
    const struct
    {
        Qt::Key key;
        bool left; // the way was free
    } rows[] = { { kF5, false }, { kF4, true }, { kF1, true }, { Qt::Key_Y, false } };
    for (const auto &row : rows) {
        m_taskmanage->exitTask();
        m_basedialog->navigator().go(UI_VIF, UI_MENU);
        m_basedialog->navigator().startFunction(AbstractTask::UniWave, UI_WAVE);
        g_unitask->startTask();
        RecordInfo::m_in_recording = 1;
        DialogAnswer answer(row.key);
        m_basedialog->navigator().go(UI_WAVE, UI_VIF);
        QVERIFY(answer.text.contains("Logger is running!\nSave: save the data.\nExit: delete the data and exit.\n"
                                     "Restart: delete the data and restart logger."));
        QCOMPARE(title() == QLatin1String("Volts/Amps/Hertz"), row.left);
        if (row.key == Qt::Key_Y) { // Restart: a new recording in a new task of the normal function
            QCOMPARE(m_taskmanage->getUniFunction(), 1);
            QVERIFY(g_unitask->recordEnabled());
        }
    }
}

void TstShell::restartInTheRecorderQuestionStaysAndBeginsANewRecording()
{
    enterVif();
    m_taskmanage->exitTask();
    m_basedialog->navigator().startFunction(AbstractTask::UniMonitor, UI_MONITOR);
    g_unitask->startTask();
    RecordInfo::m_in_recording = 1;
    QSignalSpy destroyed(g_unitask, &QObject::destroyed);
    DialogAnswer restart(Qt::Key_Y);
    m_basedialog->navigator().go(UI_VIF, UI_SCOPE);
    QVERIFY(restart.text.contains("Logger is running!"));
    QTRY_COMPARE(destroyed.count(), 1);
    QVERIFY(g_unitask->recordEnabled());
    QCOMPARE(m_taskmanage->getUniFunction(), 1);
    QCOMPARE(top(), static_cast<QWidget *>(vifPage()));
    QCOMPARE(title(), QStringLiteral("Volts/Amps/Hertz"));
}

void TstShell::everyTileOpensItsPage()
{
    for (const PageRow &row : PageTable::rows()) {
        if (!row.tile.place)
            continue;
        moveToTile(row.tile.name);
        QTest::keyClick(m_basedialog->menu(), kEnter);
        QCOMPARE(title(), QString::fromLatin1(row.title));
        const auto *page = qobject_cast<FunctionPage *>(top());
        QVERIFY2(page && page->uiType() == row.type, row.title);
        m_taskmanage->exitTask();
        m_basedialog->navigator().go(row.type, UI_MENU);
    }
}

void TstShell::monitorKeyDoesNothingAt400Hz()
{
    m_settingConfig_g.setNomFreq(3);
    DialogAnswer answer(kF5);
    QTest::keyClick(m_basedialog->menu(), kF8);
    QTest::qWait(60);
    QVERIFY(!answer.asked);
    QCOMPARE(title(), QStringLiteral("Menu"));
}

void TstShell::processorTimeBecomesTheSystemTime()
{
    QFile log(Target::path("/var/log/commands"));
    const auto commands = [&log] {
        const bool open = log.open(QIODevice::ReadOnly);
        const QByteArray text = open ? log.readAll() : QByteArray();
        log.close();
        return text;
    };
    m_basedialog->showDSPTimeStamp(0);
    QVERIFY(!commands().contains("date"));
    emit m_idevice->dspTimeStamp(1'700'000'000);
    QVERIFY(commands().contains("date -s 2023-11-14 22:13:20"));
}

void TstShell::titleBarShowsIconsAndText()
{
    QCOMPARE(m_basedialog->findChild<QWidget *>("widget")->styleSheet(),
             QStringLiteral("QWidget#widget{\nbackground-image: url(:/base_title);}\n"));
    m_basedialog->showSysIcon("battery_f", "USB");
    const auto picture
        = [](const char *name) { return m_basedialog->findChild<QLabel *>(name)->pixmap(Qt::ReturnByValue).toImage(); };
    QVERIFY(!picture("sys_icon_1").isNull());
    QVERIFY(!picture("sys_icon_2").isNull());
    QCOMPARE(picture("sys_icon_1"), QPixmap(":/battery_f").toImage());
    QCOMPARE(picture("sys_icon_2"), QPixmap(":/USB").toImage());
    m_basedialog->showSysIcon(QString(), "battery_1");
    QVERIFY(picture("sys_icon_1").isNull());
    m_basedialog->showSysInfo("230V;50Hz\\TARN-41A;TARN-41A\\3P WYE");
    QCOMPARE(m_basedialog->findChild<QLabel *>("sys_info")->text(),
             QStringLiteral("230V;50Hz\\\nTARN-41A;TARN-41A\\3P WYE"));
}

void TstShell::titleBarPaintsAnIconOnlyWhenItChanges()
{
    /// Counts how often a label is painted.
    class PaintCount : public QObject
    {
    public:
        int paints = 0;

    protected:
        bool eventFilter(QObject *, QEvent *event) override
        {
            paints += event->type() == QEvent::Paint;
            return false;
        }
    } count;
    const QSignalBlocker quiet(systemTray); // it shows its own icons every second
    auto *icon = m_basedialog->findChild<QLabel *>("sys_icon_2");
    m_basedialog->showSysIcon("USB", "battery_1");
    QCoreApplication::processEvents();
    icon->installEventFilter(&count);
    for (int i = 0; i < 3; ++i) {
        m_basedialog->showSysIcon(i % 2 ? "USB" : "bds", "battery_1"); // the other one changes
        QCoreApplication::processEvents();
    }
    QCOMPARE(count.paints, 0);
    icon->removeEventFilter(&count);
    auto *left = m_basedialog->findChild<QLabel *>("sys_icon_1");
    left->installEventFilter(&count);
    for (int i = 0; i < 3; ++i) {
        m_basedialog->showSysIcon("bds", i % 2 ? "battery_1" : "battery_3");
        QCoreApplication::processEvents();
    }
    QCOMPARE(count.paints, 0);
    left->removeEventFilter(&count);
    icon->installEventFilter(&count);
    m_basedialog->showSysIcon("USB", "battery_2");
    QTRY_VERIFY(count.paints > 0);
}

void TstShell::statusDialogRestartsTheTask()
{
    enterVif();
    UniTask *task = g_unitask;
    QTest::keyClick(vifPage()->findChild<VifMain *>(), kF7);
    DialogAnswer stay(kF5);
    QTest::keyClick(m_basedialog->menu(), kF4);
    QVERIFY(stay.text.contains("System Status:"));
    QCOMPARE(g_unitask, task);
    QSignalSpy destroyed(task, &QObject::destroyed);
    DialogAnswer restart(kF1);
    QTest::keyClick(m_basedialog->menu(), kF1);
    QTRY_COMPARE(destroyed.count(), 1);
    QVERIFY(g_unitask);
    QCOMPARE(m_taskmanage->getUniFunction(), 1);
}

void TstShell::languageChangeSetsTheTitleOfTheUserPage()
{
    m_basedialog->retranslateUi();
    QCOMPARE(title(), QStringLiteral("User"));
}

void TstShell::everyTileAndFunctionKeyIsSafe()
{
    for (int key = Qt::Key_A; key <= Qt::Key_Y; ++key) {
        DialogAnswer answer(kF5);
        QWidget *page = top();
        QTest::keyClick(page, Qt::Key(key));
        QTest::qWait(key == kPower ? 200 : 0);
    }
    QVERIFY(top());
}

QTEST_MAIN(TstShell)
#include "tst_shell.moc"
