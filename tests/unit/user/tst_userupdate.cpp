#include "user/userupdate.h"

#include "board/backlight.h"
#include "device/firmwareexchange.h"
#include "device/idevice.h"
#include "platform/target.h"
#include "unit/views/pagetest.h"
#include "unit/widgets/dialogdriver.h"
#include "widgets/dialogs/filemanager.h"
#include "widgets/dialogs/message.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QSignalSpy>

using namespace PageTest;
using Steps = QList<DialogDriver::Step>;

/// The update page: what each key does, what the unpacker's statuses and the processor's answers are shown as.
class TstUserUpdate : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void versionsAreShownOnEntry();
    void firmwareIsShownOnlyFromAThirdFieldOfThatName_data();
    void firmwareIsShownOnlyFromAThirdFieldOfThatName();
    void leftAndRightChooseWhatIsUpdated();
    void entryBeginsWithSoftware();
    void exitLeavesThePage();
    void updateBeginsOnlyAfterItsTextIsPainted();
    void withoutADiskTheFileDialogNeverOpens_data();
    void withoutADiskTheFileDialogNeverOpens();
    void cancelledDialogIsNoFile_data();
    void cancelledDialogIsNoFile();
    void unpackersStatusIsShown_data();
    void unpackersStatusIsShown();
    void unpackerGetsThePathInQuotes();
    void pathThatTheShellWouldReadIsRefused_data();
    void pathThatTheShellWouldReadIsRefused();
    void fileThatIsGoneIsNotFound();
    void firmwareGoesToTheProcessor();
    void packageThatLeavesNoImageIsNotFound();
    void imageOfAnEarlierUpdateIsNotTaken();
    void imageThatIsALinkOrTooLargeIsNotTaken_data();
    void imageThatIsALinkOrTooLargeIsNotTaken();
    void everyKeyIsSwallowedWhileBusy();
    void pressThatWakesTheScreenDoesNoMore();
    void keysPressedWhileTheScreenStoodStillGoNowhere();
    void refusedAnswerIsShownWithStageCodeAndResult();
    void timeOutsAreShownByTheirStage_data();
    void timeOutsAreShownByTheirStage();
    void timeOutOfTheFlashingWithoutAFaultShowsNothing();
    void errorsOfLaterFirmwareHaveTheirTexts_data();
    void errorsOfLaterFirmwareHaveTheirTexts();
    void flashIsAskedForByItself();
    void nextUpdateAfterAFailureBeginsAnew();
    void answerBehindAnErrorBringsNoSecondOne();
    void diskPulledDuringTheExchangeChangesNothing();
    void enteringThePageOnceMoreLeavesAnUpdateAlone();

private:
    static void write(const QString &path, const QByteArray &content)
    {
        QDir().mkpath(QFileInfo(Target::path(path)).path());
        QFile file(Target::path(path));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("a file of the test cannot be written");
    }
    /// Takes the place of the unpacker: a shell script.
    static void setUnpacker(const QByteArray &script)
    {
        const QString path = QStringLiteral("/bin/update-unpack");
        QFile::remove(Target::path(path));
        write(path, "#!/bin/sh\n" + script + '\n');
        QFile::setPermissions(Target::path(path), QFile::Permissions(0x7755));
    }
    static QByteArray imagePath() { return QFile::encodeName(Target::path(QStringLiteral("/tmp/.firmwareupd.tmp"))); }
    QString message() const { return m_page->findChild<QLabel *>(QStringLiteral("message"))->text(); }
    QString text(const char *label) const { return m_page->findChild<QLabel *>(QString::fromLatin1(label))->text(); }
    void answer(quint32 code, quint32 result)
    {
        const quint32 words[6] = { 0, 0, code, result, 0, 0 };
        m_idevice->datagramUpdateSlot(DatagramUpdate, QByteArray(reinterpret_cast<const char *>(words), sizeof(words)));
    }
    /// Goes into the first disk, picks its first file and comes back.
    static Steps picks() { return { DialogDriver::press("WW") }; }
    /// The wait in which keys are swallowed that came while the screen stood still. Events once more: on a machine that
    /// is busy the wait may end before it has served its timers.
    static void letKeysThrough()
    {
        QTest::qWait(70);
        QCoreApplication::processEvents();
    }
    /// Starts a firmware update that waits for the first answer.
    void startFirmware()
    {
        setUnpacker("printf 12345678 > " + imagePath());
        press(m_page.get(), Right);
        DialogDriver driver(picks());
        m_page->sysUpdate();
        QVERIFY(m_page->isBusy());
        letKeysThrough();
    }
    /// Lets the exchange reach a stage, then `act`s, and answers the text of the message that this brings.
    QString errorText(const std::function<void()> &act)
    {
        QString shown;
        QPixmap icon;
        DialogDriver driver({ [&](QDialog *dialog) {
            shown = labelText(dialog, "message");
            m_messageKeys = keyTexts(dialog);
            QTest::keyClick(dialog, Qt::Key_L);
        } });
        act();
        return shown;
    }

    std::unique_ptr<UserUpdate> m_page;
    QStringList m_messageKeys;
};

void TstUserUpdate::init()
{
    if (!m_idevice)
        m_idevice = new IDevice;
    write(QStringLiteral("/run/media/STICK/Firmware.upd"), "package");
    QFile::remove(QString::fromLocal8Bit(imagePath()));
    m_page = std::make_unique<UserUpdate>();
    m_page->init_parameter();
}

void TstUserUpdate::cleanup()
{
    m_page.reset();
    QDir(Target::path(QStringLiteral("/run/media/STICK"))).removeRecursively();
}

void TstUserUpdate::versionsAreShownOnEntry()
{
    QCOMPARE(text("software_version"), QString("Software:2.2.6_2024-0118-1615"));
    QCOMPARE(text("firmware_version"), QString("Firmware:None"));
    QCOMPARE(message(), QString());
    QCOMPARE(text("btn_f1"), QString("Execute"));
    QCOMPARE(text("btn_f5"), QString("Exit"));
}

void TstUserUpdate::firmwareIsShownOnlyFromAThirdFieldOfThatName_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QString>("shown");
    QTest::newRow("as it comes") << QByteArray("CPU:ADSP-21479;Silicon:0.2;Firmware:1.0.3;") << "Firmware:1.0.3";
    QTest::newRow("two fields") << QByteArray("CPU:ADSP-21479;Firmware:1.0.3") << "";
    QTest::newRow("another third field") << QByteArray("CPU:A;B:C;Software:9;Firmware:1") << "";
    QTest::newRow("nothing") << QByteArray("") << "";
}

void TstUserUpdate::firmwareIsShownOnlyFromAThirdFieldOfThatName()
{
    QFETCH(QByteArray, version);
    QFETCH(QString, shown);
    const QByteArray before = m_idevice->dspVersion().toLatin1();
    m_idevice->datagramFirmwareInfoSlot(DatagramFirmwareInfo, version);
    UserUpdate page;
    page.init_parameter();
    QCOMPARE(page.findChild<QLabel *>(QStringLiteral("firmware_version"))->text(), shown);
    m_idevice->datagramFirmwareInfoSlot(DatagramFirmwareInfo, before);
}

void TstUserUpdate::leftAndRightChooseWhatIsUpdated()
{
    QCOMPARE(text("type"), QString("Software"));
    press(m_page.get(), Left);
    QCOMPARE(m_page->type(), UserUpdate::Software);
    QCOMPARE(heard(m_page.get()), QString("Software"));
    press(m_page.get(), Right, 2);
    QCOMPARE(text("type"), QString("Firmware"));
    QCOMPARE(heard(m_page.get()), QString("Firmware"));
    press(m_page.get(), Left);
    QCOMPARE(text("type"), QString("Software"));
}

void TstUserUpdate::entryBeginsWithSoftware()
{
    press(m_page.get(), Right);
    QDir(Target::path(QStringLiteral("/run/media/STICK"))).removeRecursively();
    m_page->sysUpdate();
    QVERIFY(!message().isEmpty());
    m_page->init_parameter();
    QCOMPARE(m_page->type(), UserUpdate::Software);
    QCOMPARE(message(), QString());
}

void TstUserUpdate::exitLeavesThePage()
{
    QSignalSpy left(m_page.get(), &UserUpdate::goUserMain);
    press(m_page.get(), F5);
    QCOMPARE(left.size(), 1);
}

void TstUserUpdate::updateBeginsOnlyAfterItsTextIsPainted()
{
    QDir(Target::path(QStringLiteral("/run/media/STICK"))).removeRecursively();
    QElapsedTimer timer;
    timer.start();
    press(m_page.get(), F1);
    QCOMPARE(message(), QString("Update in progress. Do not operate!!!"));
    QTRY_COMPARE(message(), QString("Please insert USB Disk..."));
    QVERIFY(timer.elapsed() >= 45);
}

void TstUserUpdate::withoutADiskTheFileDialogNeverOpens_data()
{
    QTest::addColumn<bool>("firmware");
    QTest::newRow("software") << false;
    QTest::newRow("firmware") << true;
}

void TstUserUpdate::withoutADiskTheFileDialogNeverOpens()
{
    QFETCH(bool, firmware);
    QDir(Target::path(QStringLiteral("/run/media/STICK"))).removeRecursively();
    if (firmware)
        press(m_page.get(), Right);
    bool opened = false;
    DialogDriver driver({ [&](QDialog *dialog) {
        opened = true;
        dialog->reject();
    } });
    m_page->sysUpdate();
    QVERIFY(!opened);
    QCOMPARE(message(), QString("Please insert USB Disk..."));
    QVERIFY(!m_page->isBusy());
}

void TstUserUpdate::cancelledDialogIsNoFile_data()
{
    withoutADiskTheFileDialogNeverOpens_data();
}

void TstUserUpdate::cancelledDialogIsNoFile()
{
    QFETCH(bool, firmware);
    setUnpacker("touch " + imagePath());
    if (firmware)
        press(m_page.get(), Right);
    bool busyMeanwhile = false;
    DialogDriver driver({ [&](QDialog *dialog) {
        busyMeanwhile = m_page->isBusy();
        QVERIFY(qobject_cast<FileManager *>(dialog));
        QTest::keyClick(dialog, Qt::Key_L);
    } });
    m_page->sysUpdate();
    QVERIFY(driver.isDone() && busyMeanwhile);
    QCOMPARE(message(), QString("File not found..."));
    QVERIFY(!m_page->isBusy());
    QVERIFY(!QFile::exists(QString::fromLocal8Bit(imagePath())));
}

void TstUserUpdate::unpackersStatusIsShown_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("shown");
    QTest::newRow("0") << QByteArray("exit 0") << "Software update complete...";
    QTest::newRow("1") << QByteArray("exit 1") << "Software update error...";
    QTest::newRow("2") << QByteArray("exit 2") << "Unkown error...";
    QTest::newRow("127") << QByteArray("exit 127") << "Unkown error...";
    QTest::newRow("ended by a signal") << QByteArray("kill -9 $$") << "Unkown error...";
}

void TstUserUpdate::unpackersStatusIsShown()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, shown);
    setUnpacker(script);
    DialogDriver driver(picks());
    m_page->sysUpdate();
    QVERIFY(!m_page->isBusy()); // at once; what blocks the screen comes behind
    QCOMPARE(message(), QString("Update in progress. Do not operate!!!"));
    QTRY_COMPARE(message(), shown);
}

void TstUserUpdate::unpackerGetsThePathInQuotes()
{
    QCOMPARE(UserUpdate::unpackCommand(QStringLiteral("/run/media/A B/x.upd")),
             QString("update-unpack \"/run/media/A B/x.upd\""));
    const QString log = Target::path(QStringLiteral("/tmp/arguments"));
    setUnpacker("printf '%s|' \"$#\" \"$@\" \"$QUVERA_UPDATE_KIND\" > " + QFile::encodeName(log));
    QDir().rename(Target::path(QStringLiteral("/run/media/STICK/Firmware.upd")),
                  Target::path(QStringLiteral("/run/media/STICK/a ; 'b' & *(c).upd")));
    DialogDriver driver(picks());
    m_page->sysUpdate();
    QTRY_COMPARE(message(), QString("Software update complete..."));
    QFile file(log);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString path = Target::path(QStringLiteral("/run/media/STICK/a ; 'b' & *(c).upd"));
    QCOMPARE(QString::fromLocal8Bit(file.readAll()), "1|" + path + "|software|");
}

void TstUserUpdate::pathThatTheShellWouldReadIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("quote") << "a\"; touch hurt; \".upd";
    QTest::newRow("dollar") << "$(touch hurt).upd";
    QTest::newRow("backquote") << "`touch hurt`.upd";
    QTest::newRow("backslash") << "a\\.upd";
    QTest::newRow("line feed") << "a\nb.upd";
    QTest::newRow("tab") << "a\tb.upd";
    QTest::newRow("delete") << "a\x7f.upd";
}

void TstUserUpdate::pathThatTheShellWouldReadIsRefused()
{
    QFETCH(QString, name);
    const QString path = QStringLiteral("/run/media/STICK/") + name;
    QVERIFY(!UserUpdate::isQuotable(path));
    QVERIFY(UserUpdate::isQuotable(QStringLiteral("/run/media/STICK/\u00fc \u4e2d.upd")));
    QVERIFY(!UserUpdate::isQuotable(QStringLiteral("-rf")));
    QVERIFY(!UserUpdate::isQuotable(QString()));
    const QString ran = Target::path(QStringLiteral("/tmp/ran"));
    setUnpacker("touch " + QFile::encodeName(ran));
    QFile::remove(Target::path(QStringLiteral("/run/media/STICK/Firmware.upd")));
    write(path, "package");
    for (const FrontKey type : { Left, Right }) {
        press(m_page.get(), type);
        DialogDriver driver(picks());
        m_page->sysUpdate();
        QCOMPARE(message(), QString("File not found..."));
        QVERIFY(!m_page->isBusy());
    }
    QTest::qWait(70);
    QVERIFY(!QFile::exists(ran));
}

void TstUserUpdate::fileThatIsGoneIsNotFound()
{
    DialogDriver driver({ [](QDialog *dialog) {
        QTest::keyClick(dialog, Qt::Key_W);
        QFile::remove(Target::path(QStringLiteral("/run/media/STICK/Firmware.upd")));
        QTest::keyClick(dialog, Qt::Key_W);
    } });
    m_page->sysUpdate();
    QCOMPARE(message(), QString("File not found..."));
}

void TstUserUpdate::firmwareGoesToTheProcessor()
{
    QSignalSpy announced(m_idevice, &IDevice::dspUpdate);
    startFirmware();
    QCOMPARE(announced.size(), 1);
    QCOMPARE(announced[0][0].toByteArray(), FirmwareExchange::announceFrame(8));
    QCOMPARE(message(), QString("Update in progress. Do not operate!!!"));
    answer(0xC401, 0);
    QCOMPARE(int(m_page->exchange()->stage()), 2);
    answer(0xC402, 0);
    QCOMPARE(message(), QString("Firmware data checksum ok."));
    QVERIFY(m_page->isBusy());
    answer(0xC403, 1);
    QCOMPARE(message(), QString("Firmware update fault."));
    QVERIFY(m_page->isBusy());
    answer(0xC403, 0);
    QCOMPARE(message(), QString("Firmware update complete..."));
    QVERIFY(!m_page->isBusy());
    QVERIFY(!m_page->exchange());
    QVERIFY(!QFile::exists(QString::fromLocal8Bit(imagePath())));
}

void TstUserUpdate::packageThatLeavesNoImageIsNotFound()
{
    setUnpacker("exit 1");
    press(m_page.get(), Right);
    DialogDriver driver(picks());
    m_page->sysUpdate();
    QCOMPARE(message(), QString("File not found..."));
    QVERIFY(!m_page->isBusy());
}

void TstUserUpdate::imageOfAnEarlierUpdateIsNotTaken()
{
    write(QStringLiteral("/tmp/.firmwareupd.tmp"), "old image");
    packageThatLeavesNoImageIsNotFound();
}

void TstUserUpdate::imageThatIsALinkOrTooLargeIsNotTaken_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::newRow("link") << QByteArray("echo x > " + imagePath() + "x; ln -s " + imagePath() + "x " + imagePath());
    QTest::newRow("pipe") << QByteArray("mkfifo " + imagePath());
    QTest::newRow("more than 8 MiB") << QByteArray("head -c 8388609 /dev/zero > " + imagePath());
}

void TstUserUpdate::imageThatIsALinkOrTooLargeIsNotTaken()
{
    QFETCH(QByteArray, script);
    setUnpacker(script);
    press(m_page.get(), Right);
    DialogDriver driver(picks());
    m_page->sysUpdate();
    QCOMPARE(message(), QString("File not found..."));
    QVERIFY(!QFileInfo(QString::fromLocal8Bit(imagePath())).isSymLink());
    QVERIFY(!QFile::exists(QString::fromLocal8Bit(imagePath())));
}

void TstUserUpdate::everyKeyIsSwallowedWhileBusy()
{
    startFirmware();
    QSignalSpy left(m_page.get(), &UserUpdate::goUserMain);
    QSignalSpy other(m_page.get(), &UserUpdate::leave);
    for (int letter = Qt::Key_A; letter <= Qt::Key_Z; ++letter) {
        QKeyEvent press(QEvent::KeyPress, letter, Qt::NoModifier);
        QApplication::sendEvent(m_page.get(), &press);
        QVERIFY(press.isAccepted()); // nothing rises, the power key included
    }
    QVERIFY(left.isEmpty() && other.isEmpty());
    QCOMPARE(m_page->type(), UserUpdate::Firmware);
    QCOMPARE(int(m_page->exchange()->stage()), 1);
    answer(0xC401, 0);
    answer(0xC402, 0);
    answer(0xC403, 0);
    press(m_page.get(), F5);
    QCOMPARE(left.size(), 1);
}

void TstUserUpdate::pressThatWakesTheScreenDoesNoMore()
{
    startFirmware();
    BackLight::shutDownBL();
    press(m_page.get(), F5);
    QVERIFY(!BackLight::isShut());
    QVERIFY(m_page->isBusy());
}

void TstUserUpdate::keysPressedWhileTheScreenStoodStillGoNowhere()
{
    setUnpacker("exit 0");
    QSignalSpy left(m_page.get(), &UserUpdate::goUserMain);
    DialogDriver driver(picks());
    m_page->sysUpdate();
    press(m_page.get(), F5); // before the unpacker starts
    QTRY_COMPARE(message(), QString("Software update complete..."));
    press(m_page.get(), F5); // as one that waited in the queue
    QVERIFY(left.isEmpty());
    letKeysThrough();
    press(m_page.get(), F5);
    QCOMPARE(left.size(), 1);
}

void TstUserUpdate::refusedAnswerIsShownWithStageCodeAndResult()
{
    startFirmware();
    QCOMPARE(errorText([this] { answer(0xC401, 0x1234); }), QString("ErrCode: 0005[S01 Sc401 D1234]"));
    QCOMPARE(m_messageKeys, QStringList({ "", "", "", "Ok", "Cancel" }));
    QVERIFY(!m_page->isBusy());
    QCOMPARE(message(), QString());
    startFirmware();
    answer(0xC401, 0);
    QCOMPARE(errorText([this] { answer(7, 0xFFFFFFFF); }), QString("ErrCode: 0005[S02 S07 Dffffffff]"));
}

void TstUserUpdate::timeOutsAreShownByTheirStage_data()
{
    QTest::addColumn<QList<quint32>>("codes");
    QTest::addColumn<QString>("shown");
    QTest::newRow("announcement") << QList<quint32>() << "ErrCode: 0010 [C401 Timeout]";
    QTest::newRow("data") << QList<quint32> { 0xC401 } << "ErrCode: 0011 [C402 Timeout]";
    QTest::newRow("flashing after a fault")
        << QList<quint32> { 0xC401, 0xC402, 0xC403 } << "ErrCode: 0012 [C403 Timeout]";
}

void TstUserUpdate::timeOutsAreShownByTheirStage()
{
    QFETCH(QList<quint32>, codes);
    QFETCH(QString, shown);
    startFirmware();
    for (const quint32 code : codes)
        answer(code, code == 0xC403 ? 1 : 0);
    auto *exchange = const_cast<FirmwareExchange *>(m_page->exchange());
    QCOMPARE(errorText([exchange] { exchange->firmwareTimeOut(); }), shown);
    QCOMPARE(m_messageKeys, QStringList({ "", "", "", "Ok", "Cancel" }));
    QVERIFY(!m_page->isBusy() && !m_page->exchange());
    QCOMPARE(message(), QString());
    QVERIFY(!QFile::exists(QString::fromLocal8Bit(imagePath())));
    QCOMPARE(errorText([this] { m_page->firmwareTimeOut(0); }), QString("ErrCode: 0013 [Timeout]"));
}

void TstUserUpdate::timeOutOfTheFlashingWithoutAFaultShowsNothing()
{
    startFirmware();
    answer(0xC401, 0);
    answer(0xC402, 0);
    auto *exchange = const_cast<FirmwareExchange *>(m_page->exchange());
    QCOMPARE(errorText([exchange] { exchange->firmwareTimeOut(); }), QString());
    QVERIFY(!m_page->isBusy());
    QCOMPARE(message(), QString());
}

void TstUserUpdate::errorsOfLaterFirmwareHaveTheirTexts_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QStringList>("keys");
    const QStringList ok { "", "", "", "", "Ok" }, warning { "", "", "", "Ok", "Cancel" };
    QTest::newRow("fatal") << 0 << "ErrCode: 0000[D0a]" << ok;
    QTest::newRow("SPI") << 1 << "ErrCode: 0001[Dabc]" << ok;
    QTest::newRow("checksum") << 2 << "ErrCode: 0003" << warning;
}

void TstUserUpdate::errorsOfLaterFirmwareHaveTheirTexts()
{
    QFETCH(int, which);
    QFETCH(QString, shown);
    QFETCH(QStringList, keys);
    startFirmware();
    const auto act = [this, which] {
        if (which == 0)
            m_page->firmwareFatalError(10);
        else if (which == 1)
            m_page->firmwareSPIError(0xABC);
        else
            m_page->firmwareCrc32Error();
    };
    QCOMPARE(errorText(act), shown);
    QCOMPARE(m_messageKeys, keys);
    QVERIFY(!m_page->isBusy() && !m_page->exchange());
}

void TstUserUpdate::flashIsAskedForByItself()
{
    QSignalSpy frames(m_idevice, &IDevice::dspUpdate);
    m_page->firmwareFlash();
    QCOMPARE(frames.size(), 1);
    QCOMPARE(frames[0][0].toByteArray().toHex(), QByteArray("cf00000003000000"));
}

void TstUserUpdate::nextUpdateAfterAFailureBeginsAnew()
{
    startFirmware();
    answer(0xC401, 0);
    errorText([this] { answer(0xC402, 3); });
    answer(0xC402, 0); // late: nobody waits for it
    QVERIFY(!m_page->isBusy());
    startFirmware();
    answer(0xC401, 0);
    answer(0xC402, 0);
    answer(0xC403, 0);
    QCOMPARE(message(), QString("Firmware update complete..."));
}

void TstUserUpdate::diskPulledDuringTheExchangeChangesNothing()
{
    startFirmware();
    QVERIFY(QDir(Target::path(QStringLiteral("/run/media/STICK"))).removeRecursively());
    answer(0xC401, 0);
    answer(0xC402, 0);
    answer(0xC403, 0);
    QCOMPARE(message(), QString("Firmware update complete..."));
}

void TstUserUpdate::enteringThePageOnceMoreLeavesAnUpdateAlone()
{
    startFirmware();
    m_page->init_parameter();
    QVERIFY(m_page->isBusy());
    QCOMPARE(message(), QString("Update in progress. Do not operate!!!"));
    QCOMPARE(text("type"), QString("Firmware"));
    answer(0xC401, 0);
    answer(0xC402, 0);
    answer(0xC403, 0);
    QVERIFY(!m_page->isBusy());
}

void TstUserUpdate::answerBehindAnErrorBringsNoSecondOne()
{
    startFirmware();
    int shown = 0;
    const DialogDriver::Step step = [this, &shown](QDialog *dialog) {
        if (++shown == 1)
            answer(0xC401, 0); // the error stands on the screen
        QTest::keyClick(dialog, Qt::Key_L);
    };
    DialogDriver driver({ step, step });
    QEventLoop loop; // as on the instrument, where what is to be deleted outlives the message
    QTimer::singleShot(0, &loop, [this, &loop] {
        answer(0xC401, 7);
        loop.quit();
    });
    loop.exec();
    QCOMPARE(shown, 1);
}

PAGE_TEST_MAIN(TstUserUpdate)
#include "tst_userupdate.moc"
