#include "instrument.h"
#include "updatestick.h"

using namespace SystemTest;

/// An update as a user makes it, by keys alone: the executables as they are installed, and nothing beside them.
class TstRemoteUpdate : public QObject
{
    Q_OBJECT
private slots:
    void keysInstallSoftwareAndFirmware();

private:
    static QByteArray tell(const DeskInstrument &desk, const QString &command)
    {
        QProcess process;
        process.start(QStringLiteral(QUVERA_BIN_DIR "/quvera-processor"),
                      { QStringLiteral("--root"), desk.root(), QStringLiteral("--tell"), command });
        process.waitForFinished(60000);
        return process.readAllStandardOutput();
    }
    static QByteArray commands(const DeskInstrument &desk)
    {
        return UpdateStick::read(desk.path(QStringLiteral("/var/log/commands")));
    }
};

void TstRemoteUpdate::keysInstallSoftwareAndFirmware()
{
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    const UpdateStick stick(desk.root());
    QVERIFY(tell(desk, QStringLiteral("usb insert STICK 16M")).startsWith("ok"));
    QTRY_VERIFY_WITH_TIMEOUT(QDir(stick.folder()).exists(), 20000);
    stick.putSoftware(2);
    // From the first tile to "User", to its page of updates.
    VERIFY_DESK(desk.press({ "Down", "Down", "Right", "Right", "Enter", "F4" }), desk);
    const auto messagePlace = [](const QImage &screen) { return screen.copy(0, 300, 640, 130); };
    const auto isBlank = [&](const QImage &screen) { return brightPixels(messagePlace(screen)) == 0; };
    const QImage before = desk.screen();
    QVERIFY(isBlank(before));
    const auto opensFileDialog = [&] {
        const QImage closed = desk.screen();
        const auto isOpen = [&](const QImage &now) { return page(now) != page(closed) && isBlank(now); };
        return desk.press({ "F1" }) && !desk.waitForScreen(isOpen).isNull();
    };
    VERIFY_DESK(opensFileDialog(), desk);
    VERIFY_DESK(desk.press({ "F1", "F1" }), desk);
    const QString current = desk.path(QStringLiteral("/opt/quvera/current/bin/quvera"));
    QTRY_COMPARE_WITH_TIMEOUT(UpdateStick::read(current), QByteArray("new program"), 20000);
    // The stand-in noted what it was called with, and handed over.
    const QByteArray logged = "update-unpack " + QFile::encodeName(stick.folder()) + "/Software.upd";
    QVERIFY2(commands(desk).contains(logged), commands(desk));
    VERIFY_DESK(!desk.waitForScreen([&](const QImage &now) { return !isBlank(now); }).isNull(), desk);

    stick.putFirmware(QByteArray(50000, 'f'));
    // What is pressed right behind an update is swallowed.
    const QImage updated = desk.screen();
    QTRY_VERIFY_WITH_TIMEOUT(desk.press({ "F5" }) && page(desk.screen()) != page(updated), 20000);
    QVERIFY(tell(desk, QStringLiteral("fault update flash late 30s")).startsWith("ok")); // Menu comes in that time
    VERIFY_DESK(desk.press({ "F4", "Right" }), desk);
    VERIFY_DESK(opensFileDialog(), desk);
    VERIFY_DESK(desk.press({ "F1", "F1" }), desk);
    QTRY_VERIFY_WITH_TIMEOUT(tell(desk, QStringLiteral("status")).contains("updates=1"), 60000);
    // The keys count again when the processor has written its flash.
    VERIFY_DESK(desk.press({ "Menu" }), desk);
    QCOMPARE(title(desk.screen()), title(before));
    QVERIFY(tell(desk, QStringLiteral("speed 20")).startsWith("ok"));
    QTRY_VERIFY_WITH_TIMEOUT(desk.press({ "Menu" }) && title(desk.screen()) != title(before), 60000);
}

QTEST_GUILESS_MAIN(TstRemoteUpdate)
#include "tst_remoteupdate.moc"
