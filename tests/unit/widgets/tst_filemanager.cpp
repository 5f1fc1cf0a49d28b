#include "dialogdriver.h"

#include "platform/target.h"
#include "widgets/dialogs/filemanager.h"

#include <QDir>
#include <QListWidget>

class TstFileManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(skin); }
    void init();
    void disksAreLabelledAndHaveTheirIcon();
    void theInternalCardNeverShows();
    void aDiskMountedLaterShowsUpByItself();
    void aPulledDiskLeadsBackToTheDisks();
    void enterAndOpenDirGoDownFoldDirGoesUp();
    void enterOnAFileDoesNothing();
    void selectAnswersTheAbsolutePath();
    void selectOnAFolderDoesNothing();
    void cancelAnswersTheEmptyText();
    void keysThatDoNotApplyAreGrey();
    void firstKeyNamesWhatItDoes();
    void anEmptyListSwallowsItsKeys();
    void selectionStopsAtTheEnds();
    void hiddenFilesAreLeftOut();
};

static QString media(const QString &rest = QString())
{
    return Target::path(QStringLiteral("/run/media/")) + rest;
}

static void writeFile(const QString &rest)
{
    QFile file(media(rest));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("x");
}

static QStringList listed(const FileManager &manager)
{
    const auto *list = manager.findChild<QListWidget *>();
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts << list->item(row)->text();
    return texts;
}

static int selected(const FileManager &manager)
{
    return manager.findChild<QListWidget *>()->currentRow();
}

static QString style(const FileManager &manager, int key)
{
    return manager.findChild<QLabel *>(QStringLiteral("btn_f%1").arg(key))->styleSheet();
}

static const QString kUsable
    = QStringLiteral("background-color: transparent;background-image: url(:/button);color: rgb(0, 0, 0);");
static const QString kUseless
    = QStringLiteral("background-color: transparent;background-image: url(:/button);color: rgb(144, 144, 144);");

void TstFileManager::init()
{
    QDir(media()).removeRecursively();
    QVERIFY(QDir().mkpath(media(QStringLiteral("sda1/Updates/old"))));
    writeFile(QStringLiteral("sda1/Software.upd"));
    writeFile(QStringLiteral("sda1/Updates/Firmware.upd"));
}

static void press(FileManager &manager, const QByteArray &letters)
{
    for (const char letter : letters)
        QTest::keyClick(&manager, letter);
}

void TstFileManager::disksAreLabelledAndHaveTheirIcon()
{
    QVERIFY(QDir().mkpath(media(QStringLiteral("sdb1"))));
    FileManager manager;
    QCOMPARE(listed(manager), QStringList({ "UDisk", "UDisk" }));
    const QIcon icon = manager.findChild<QListWidget *>()->item(0)->icon();
    QCOMPARE(icon.pixmap(24).toImage(), QPixmap(QStringLiteral(":/driver")).toImage());
}

void TstFileManager::theInternalCardNeverShows()
{
    QVERIFY(QDir().mkpath(media(QStringLiteral("mmcblk0p1"))));
    writeFile(QStringLiteral("not-a-folder"));
    FileManager manager;
    QCOMPARE(listed(manager), QStringList({ "UDisk" }));
}

void TstFileManager::aDiskMountedLaterShowsUpByItself()
{
    QDir(media(QStringLiteral("sda1"))).removeRecursively();
    FileManager manager;
    manager.show();
    QCOMPARE(listed(manager), QStringList());
    QVERIFY(QDir().mkpath(media(QStringLiteral("sdc1"))));
    QTRY_COMPARE(listed(manager), QStringList({ "UDisk" }));
}

void TstFileManager::aPulledDiskLeadsBackToTheDisks()
{
    FileManager manager;
    manager.show();
    press(manager, "KK"); // the disk, then Updates
    QCOMPARE(manager.folder(), QStringLiteral("/run/media/sda1/Updates"));
    QDir(media(QStringLiteral("sda1"))).removeRecursively();
    QTRY_COMPARE(manager.folder(), QString());
    QCOMPARE(listed(manager), QStringList());
}

void TstFileManager::enterAndOpenDirGoDownFoldDirGoesUp()
{
    FileManager manager;
    manager.show();
    press(manager, "K");
    QCOMPARE(manager.folder(), QStringLiteral("/run/media/sda1"));
    QCOMPARE(listed(manager), QStringList({ "Updates", "Software.upd" }));
    press(manager, "W"); // F1 on a folder
    QCOMPARE(manager.folder(), QStringLiteral("/run/media/sda1/Updates"));
    QCOMPARE(listed(manager), QStringList({ "old", "Firmware.upd" }));
    press(manager, "Y");
    QCOMPARE(manager.folder(), QStringLiteral("/run/media/sda1"));
    QCOMPARE(selected(manager), 0); // the folder that was left
    press(manager, "Y");
    QCOMPARE(manager.folder(), QString());
    QCOMPARE(listed(manager), QStringList({ "UDisk" }));
    press(manager, "Y");
    QCOMPARE(manager.folder(), QString());
}

void TstFileManager::enterOnAFileDoesNothing()
{
    FileManager manager;
    manager.show();
    press(manager, "KTK");
    QVERIFY(manager.isVisible());
    QCOMPARE(manager.folder(), QStringLiteral("/run/media/sda1"));
}

void TstFileManager::selectAnswersTheAbsolutePath()
{
    DialogDriver byF4({ DialogDriver::press("KTF") });
    QCOMPARE(FileManager::getExistFileName(), QStringLiteral("/run/media/sda1/Software.upd"));
    DialogDriver byF1({ DialogDriver::press("KKTW") });
    QCOMPARE(FileManager::getExistFileName(), QStringLiteral("/run/media/sda1/Updates/Firmware.upd"));
}

void TstFileManager::selectOnAFolderDoesNothing()
{
    FileManager manager;
    manager.show();
    press(manager, "F");
    QVERIFY(manager.isVisible());
    press(manager, "KF");
    QVERIFY(manager.isVisible());
}

void TstFileManager::cancelAnswersTheEmptyText()
{
    DialogDriver driver({ DialogDriver::press("KTL") });
    QCOMPARE(FileManager::getExistFileName(), QString());
    DialogDriver closed({ [](QDialog *dialog) { dialog->close(); } });
    QCOMPARE(FileManager::getExistFileName(), QString());
}

void TstFileManager::keysThatDoNotApplyAreGrey()
{
    FileManager manager;
    manager.show();
    QCOMPARE(style(manager, 1), kUsable);
    QCOMPARE(style(manager, 2), kUseless);
    QCOMPARE(style(manager, 4), kUseless);
    QCOMPARE(style(manager, 5), kUsable);
    press(manager, "K"); // on a folder
    QCOMPARE(style(manager, 2), kUsable);
    QCOMPARE(style(manager, 4), kUseless);
    press(manager, "T"); // on a file
    QCOMPARE(style(manager, 1), kUsable);
    QCOMPARE(style(manager, 4), kUsable);
    press(manager, "Q");
    QCOMPARE(style(manager, 4), kUseless);
}

void TstFileManager::firstKeyNamesWhatItDoes()
{
    FileManager manager;
    manager.show();
    QCOMPARE(keyTexts(&manager), QStringList({ "Open Dir", "Fold Dir", "", "Select", "Cancel" }));
    press(manager, "KT");
    QCOMPARE(keyTexts(&manager).first(), QStringLiteral("Select"));
    press(manager, "Q");
    QCOMPARE(keyTexts(&manager).first(), QStringLiteral("Open Dir"));
}

void TstFileManager::anEmptyListSwallowsItsKeys()
{
    QDir(media(QStringLiteral("sda1"))).removeRecursively();
    FileManager manager;
    manager.show();
    press(manager, "KWYFQTODEAU");
    QVERIFY(manager.isVisible());
    QCOMPARE(style(manager, 1), kUseless);
    press(manager, "L");
    QVERIFY(!manager.isVisible());
}

void TstFileManager::selectionStopsAtTheEnds()
{
    FileManager manager;
    manager.show();
    press(manager, "KQ");
    QCOMPARE(selected(manager), 0);
    press(manager, "TTTT");
    QCOMPARE(selected(manager), 1);
}

void TstFileManager::hiddenFilesAreLeftOut()
{
    writeFile(QStringLiteral("sda1/.hidden"));
    FileManager manager;
    manager.show();
    press(manager, "K");
    QCOMPARE(listed(manager), QStringList({ "Updates", "Software.upd" }));
}

QTEST_MAIN(TstFileManager)
#include "tst_filemanager.moc"
