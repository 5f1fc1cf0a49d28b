// Updates with nothing replaced: the instrument's own pages, the real unpacker, the processor stand-in, a USB disk.
#include "livegraph.h"
#include "device/firmwareexchange.h"
#include "unit/widgets/dialogdriver.h"
#include "updatestick.h"
#include "user/userpage.h"
#include "user/userupdate.h"

#include <functional>

using namespace SystemTest;

class TstLiveUpdate : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void softwareIsInstalled();
    void softwareThatIsNotGoodIsRefused_data();
    void softwareThatIsNotGoodIsRefused();
    void firmwareReachesTheProcessor();
    void firmwareThatIsNotGoodNeverReachesTheProcessor_data();
    void firmwareThatIsNotGoodNeverReachesTheProcessor();
    void failuresOfTheProcessorAreShown_data();
    void failuresOfTheProcessorAreShown();
    void faultOfTheFlashIsShownAndRunsOut();
    void faultOfTheFlashMayEndWell();
    void diskPulledAheadOfTheUpdateIsNoFile();
    void diskPulledWhileTheProcessorWorksChangesNothing();

private:
    static constexpr double kFast = 20;

    static QString root() { return qEnvironmentVariable("QUVERA_ROOT"); }
    static QString message() { return LiveGraph::text("message"); }
    static int updates() { return LiveGraph::status(QStringLiteral("updates")).toInt(); }
    /// Goes into the disk and picks its only file.
    static DialogDriver::Step pick() { return DialogDriver::press("WW"); }
    /// Presses a key on the page in front, which has the keyboard when no dialog has it.
    static void press(Qt::Key letter)
    {
        auto *user = qobject_cast<ViewContainer *>(m_basedialog->navigator().page(UI_USER));
        QTest::keyClick(user->currentPage(), letter);
    }
    /// Keys right behind an update are swallowed for a moment. Events once more: on a machine that is busy the wait may
    /// end before it has served its timers.
    static void letKeysThrough()
    {
        QTest::qWait(100);
        QCoreApplication::processEvents();
    }
    /// F1, and the package is picked; further dialogs are answered by `steps`.
    void execute(QList<DialogDriver::Step> steps = {})
    {
        steps.prepend(pick());
        m_driver = std::make_unique<DialogDriver>(steps);
        press(Qt::Key_W);
    }
    /// The next error message's text goes to m_error; it is closed.
    DialogDriver::Step takeError()
    {
        return [this](QDialog *dialog) {
            m_error = labelText(dialog, "message");
            QTest::keyClick(dialog, Qt::Key_L);
        };
    }
    static UserUpdate *page() { return qobject_cast<UserUpdate *>(LiveGraph::subPage(UI_USER, UserPage::Update)); }

    LiveGraph m_graph;
    std::unique_ptr<UpdateStick> m_stick;
    std::unique_ptr<DialogDriver> m_driver;
    QString m_error;
};

void TstLiveUpdate::initTestCase()
{
    // What the program beside quvera is to the instrument, to this test it is by a link.
    QFile::remove(root() + QStringLiteral("/bin/update-unpack"));
    QVERIFY(
        QFile::link(QStringLiteral(QUVERA_BIN_DIR "/update-unpack"), root() + QStringLiteral("/bin/update-unpack")));
    QVERIFY(m_graph.start({}));
    QVERIFY(LiveGraph::setSpeed(kFast));
    m_stick = std::make_unique<UpdateStick>(root());
    for (int row = 0; row < 2; ++row)
        LiveGraph::key(Qt::Key_T);
    for (int column = 0; column < 4 && m_basedialog->menu()->currentItem()->objectName() != "user"; ++column)
        LiveGraph::key(Qt::Key_D);
    QCOMPARE(m_basedialog->menu()->currentItem()->objectName(), QString("user"));
    LiveGraph::key(Qt::Key_K);
    LiveGraph::key(Qt::Key_F); // "Update" of the main list
    QVERIFY(page() && page()->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(m_idevice->dspVersion().contains(QStringLiteral("Firmware:1.0.0")), kPatienceMs);
}

void TstLiveUpdate::init()
{
    m_error.clear();
    QVERIFY(!LiveGraph::tell(QStringLiteral("fault update off")).isNull());
    LiveGraph::tell(QStringLiteral("usb insert ") + m_stick->name()); // refused where it is in
    QVERIFY(QDir(m_stick->folder()).exists());
    m_stick->giveKey();
    QTRY_VERIFY_WITH_TIMEOUT(!page()->isBusy(), kPatienceMs);
    letKeysThrough();
    press(Qt::Key_L); // out and in again: software, no message
    press(Qt::Key_F);
    QCOMPARE(message(), QString());
}

void TstLiveUpdate::softwareIsInstalled()
{
    m_stick->putSoftware(3);
    execute();
    QTRY_COMPARE_WITH_TIMEOUT(message(), QString("Software update complete..."), kPatienceMs);
    QCOMPARE(UpdateStick::read(root() + "/opt/quvera/current/bin/quvera"), QByteArray("new program"));
    QCOMPARE(QFile::symLinkTarget(root() + "/opt/quvera/current"), root() + "/opt/quvera/versions/3");
}

void TstLiveUpdate::softwareThatIsNotGoodIsRefused_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("shown");
    QTest::newRow("flipped bit") << "flipped"
                                 << "Software update error...";
    QTest::newRow("cut") << "cut"
                         << "Software update error...";
    QTest::newRow("empty") << "empty"
                           << "Software update error...";
    QTest::newRow("too old") << "old"
                             << "Software update error...";
    QTest::newRow("firmware") << "firmware"
                              << "Software update error...";
    QTest::newRow("instrument without key") << "key"
                                            << "Unkown error...";
}

void TstLiveUpdate::softwareThatIsNotGoodIsRefused()
{
    QFETCH(QString, what);
    QFETCH(QString, shown);
    m_stick->putSoftware(7, 5);
    if (what == "flipped")
        m_stick->spoil([](QByteArray *bytes) { (*bytes)[bytes->size() - 1] = char(bytes->back() ^ 1); });
    if (what == "cut")
        m_stick->spoil([](QByteArray *bytes) { bytes->chop(1); });
    if (what == "empty")
        m_stick->spoil([](QByteArray *bytes) { bytes->clear(); });
    if (what == "firmware")
        m_stick->putFirmware("image");
    if (what == "key")
        m_stick->takeKeyAway();
    if (what == "old") {
        execute();
        QTRY_COMPARE_WITH_TIMEOUT(message(), QString("Software update complete..."), kPatienceMs);
        letKeysThrough();
        m_stick->putSoftware(4);
    }
    const QString before = QFile::symLinkTarget(root() + "/opt/quvera/current");
    execute();
    QTRY_COMPARE_WITH_TIMEOUT(message(), shown, kPatienceMs);
    QCOMPARE(QFile::symLinkTarget(root() + "/opt/quvera/current"), before);
    QVERIFY(!QFile::exists(root() + "/tmp/.firmwareupd.tmp"));
}

void TstLiveUpdate::firmwareReachesTheProcessor()
{
    const int before = updates();
    QByteArray image(100001, '\0'); // no whole words, and all marker words in it
    for (int at = 0; at + 4 <= image.size(); at += 4)
        image[at] = char(at / 4 % 3 == 0 ? 0x7A : at / 4 % 3 == 1 ? 0x7B : 0x7D);
    m_stick->putFirmware(image);
    press(Qt::Key_D);
    execute();
    QTRY_COMPARE_WITH_TIMEOUT(message(), QString("Firmware data checksum ok."), kPatienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(message(), QString("Firmware update complete..."), kPatienceMs);
    QCOMPARE(updates(), before + 1);
    QVERIFY(!QFile::exists(root() + "/tmp/.firmwareupd.tmp"));
}

void TstLiveUpdate::firmwareThatIsNotGoodNeverReachesTheProcessor_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : { "flipped", "software", "key" })
        QTest::newRow(what) << QString::fromLatin1(what);
}

void TstLiveUpdate::firmwareThatIsNotGoodNeverReachesTheProcessor()
{
    QFETCH(QString, what);
    const int before = updates();
    m_stick->putFirmware("image");
    if (what == "flipped")
        m_stick->spoil([](QByteArray *bytes) { (*bytes)[50] = char(bytes->at(50) ^ 0x10); });
    if (what == "software")
        m_stick->putSoftware(99);
    if (what == "key")
        m_stick->takeKeyAway();
    const QString version = QFile::symLinkTarget(root() + "/opt/quvera/current");
    press(Qt::Key_D);
    execute();
    QTRY_COMPARE_WITH_TIMEOUT(message(), QString("File not found..."), kPatienceMs);
    QVERIFY(!page()->isBusy());
    QCOMPARE(updates(), before);
    QCOMPARE(QFile::symLinkTarget(root() + "/opt/quvera/current"), version);
}

void TstLiveUpdate::failuresOfTheProcessorAreShown_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("shown");
    QTest::newRow("no answer") << "announce silent"
                               << "ErrCode: 0010 [C401 Timeout]";
    // 200 simulated seconds are ten real ones, three of which are waited.
    QTest::newRow("late answer") << "announce late 200s"
                                 << "ErrCode: 0010 [C401 Timeout]";
    QTest::newRow("length refused") << "announce result 4"
                                    << "ErrCode: 0005[S01 Sc401 D04]";
    QTest::newRow("strange answer") << "announce code 0xC409"
                                    << "ErrCode: 0005[S01 Sc409 D00]";
    QTest::newRow("answer comes again") << "announce repeat 1"
                                        << "ErrCode: 0005[S02 Sc401 D00]";
    QTest::newRow("checksum refused") << "data result 3"
                                      << "ErrCode: 0005[S02 Sc402 D03]";
}

void TstLiveUpdate::failuresOfTheProcessorAreShown()
{
    QFETCH(QString, fault);
    QFETCH(QString, shown);
    m_stick->putFirmware("image");
    QVERIFY(!LiveGraph::tell(QStringLiteral("fault update ") + fault).isNull());
    press(Qt::Key_D);
    execute({ takeError() });
    QTRY_COMPARE_WITH_TIMEOUT(m_error, shown, kPatienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(message(), QString(), kPatienceMs);
    QVERIFY(!page()->isBusy());
    QVERIFY(!QFile::exists(root() + "/tmp/.firmwareupd.tmp"));
    // What still comes finds nobody, and the next update goes through.
    const double late = fault.contains("late") ? 200 : 0; // s of the processor
    const double comes = LiveGraph::status(QStringLiteral("t")).toDouble() + late;
    QTRY_VERIFY_WITH_TIMEOUT(LiveGraph::status(QStringLiteral("t")).toDouble() >= comes, kPatienceMs);
    QTest::qWait(200);
    QVERIFY(!LiveGraph::tell(QStringLiteral("fault update off")).isNull());
    execute();
    QTRY_COMPARE_WITH_TIMEOUT(message(), QString("Firmware update complete..."), kPatienceMs);
}

void TstLiveUpdate::faultOfTheFlashIsShownAndRunsOut()
{
    const int before = updates();
    m_stick->putFirmware("image");
    QVERIFY(!LiveGraph::tell(QStringLiteral("fault update flash result 1")).isNull());
    press(Qt::Key_D);
    QElapsedTimer timer; // from before it began, for it may be seen late
    timer.start();
    execute({ takeError() });
    QTRY_COMPARE_WITH_TIMEOUT(message(), QString("Firmware update fault."), kPatienceMs);
    QTRY_COMPARE_WITH_TIMEOUT(m_error, QString("ErrCode: 0012 [C403 Timeout]"), kPatienceMs);
    QVERIFY(timer.elapsed() > 9000);
    QCOMPARE(updates(), before);
}

void TstLiveUpdate::faultOfTheFlashMayEndWell()
{
    m_stick->putFirmware("image");
    QVERIFY(!LiveGraph::tell(QStringLiteral("fault update flash result 1")).isNull());
    press(Qt::Key_D);
    execute();
    QTRY_COMPARE_WITH_TIMEOUT(message(), QString("Firmware update fault."), kPatienceMs);
    QVERIFY(!LiveGraph::tell(QStringLiteral("fault update off")).isNull());
    m_idevice->sendDSPMgmt(FirmwareExchange::announceFrame(4)); // the processor is brought to flash once more
    m_idevice->sendDSPMgmt(FirmwareExchange::dataFrame(FirmwareExchange::padded("next")));
    QTRY_COMPARE_WITH_TIMEOUT(message(), QString("Firmware update complete..."), kPatienceMs);
}

void TstLiveUpdate::diskPulledAheadOfTheUpdateIsNoFile()
{
    for (const bool firmware : { false, true }) {
        LiveGraph::tell(QStringLiteral("usb insert ") + m_stick->name());
        m_stick->putSoftware(50);
        letKeysThrough();
        press(firmware ? Qt::Key_D : Qt::Key_O);
        // The disk goes between the list and the choice, before the list hears of it.
        m_driver = std::make_unique<DialogDriver>(QList<DialogDriver::Step> { [this](QDialog *dialog) {
            QTest::keyClick(dialog, Qt::Key_W);
            LiveGraph::tell(QStringLiteral("usb pull ") + m_stick->name());
            QTest::keyClick(dialog, Qt::Key_W);
        } });
        press(Qt::Key_W);
        QTRY_COMPARE_WITH_TIMEOUT(message(), QString("File not found..."), kPatienceMs);
        QVERIFY(!page()->isBusy());
        letKeysThrough();
        press(Qt::Key_W);
        QTRY_COMPARE_WITH_TIMEOUT(message(), QString("Please insert USB Disk..."), kPatienceMs);
        letKeysThrough();
    }
}

void TstLiveUpdate::diskPulledWhileTheProcessorWorksChangesNothing()
{
    m_stick->putFirmware("image");
    QVERIFY(!LiveGraph::tell(QStringLiteral("fault update data late 20s")).isNull()); // one real second
    press(Qt::Key_D);
    execute();
    QTRY_VERIFY_WITH_TIMEOUT(page()->exchange() && page()->exchange()->stage() == FirmwareExchange::DataSent,
                             kPatienceMs);
    QVERIFY(!LiveGraph::tell(QStringLiteral("usb pull ") + m_stick->name()).isNull());
    QTRY_COMPARE_WITH_TIMEOUT(message(), QString("Firmware update complete..."), kPatienceMs);
}

int main(int argc, char **argv)
{
    return runInInstrument<TstLiveUpdate>(argc, argv);
}

#include "tst_liveupdate.moc"
