#include "dialogdriver.h"

#include "platform/clock.h"
#include "platform/target.h"
#include "settings/config_data.h"
#include "storage/fileinfo.h"
#include "unit/storage/helddisk.h"
#include "unit/storage/rootfiles.h"
#include "widgets/dialogs/message.h"
#include "widgets/dialogs/savedialog.h"
#include "widgets/dialogs/virtualkeyboard.h"

#include <QDir>
#include <QRadioButton>

class TstSaveDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(skin); }
    void init();
    void defaultNameIsTheFirstFreeOne();
    void pictureFilterDisablesAndHidesTheDataChoice();
    void downTogglesTheKindAndRebuildsTheName();
    void downDoesNothingWithoutTheDataChoice();
    void okAnswersTypeAndNameAndEntersTheIndex();
    void theIndexTellsTheTimeInTheUsersZone();
    void dataFileHasItsOwnType();
    void cancelAnswersZeroAndLeavesTheIndex();
    void closingAnswersZero();
    void enterEditsTheName();
    void editedNamesCannotLeaveTheStorage();
    void anExistingFileIsAskedAbout();
    void noKeepsTheDialogOpen();
    void yesRemovesTheOldEntryAndFile();
    void aCardThatDoesNotAnswerHoldsUpNobody();
    void aFileThatTheIndexForgotIsAskedAboutToo();
    void withAllDefaultNamesTakenOkWaitsForAName();
};

static QString stored(const QString &name)
{
    return Target::path(FileInfo::storagePath() + name);
}

static void writeStored(const QString &name)
{
    QFile file(stored(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("old");
}

static void enterIndex(const QString &name)
{
    QVERIFY(FileInfo().saveInfo(name, QDateTime(QDate(2023, 11, 14), QTime(22, 13, 20))));
}

void TstSaveDialog::init()
{
    RootFiles::waitForDisks();
    QDir storage(Target::path(FileInfo::storagePath()));
    storage.removeRecursively();
    QVERIFY(storage.mkpath(QStringLiteral(".")));
    QFile index(Target::path(FileInfo::indexPath()));
    QVERIFY(index.open(QIODevice::WriteOnly)); // the index of a new instrument: empty
}

void TstSaveDialog::defaultNameIsTheFirstFreeOne()
{
    QCOMPARE(SaveDialog(1, QStringLiteral("VAHz")).name(), QStringLiteral("VAHz1.png"));
    enterIndex(QStringLiteral("VAHz1.png"));
    SaveDialog dialog(1, QStringLiteral("VAHz"));
    QCOMPARE(dialog.name(), QStringLiteral("VAHz2.png"));
    QCOMPARE(dialog.fileName(), QStringLiteral("/mnt/storage/VAHz2.png"));
    QCOMPARE(labelText(&dialog, "file_name"), QStringLiteral("VAHz2.png"));
}

void TstSaveDialog::pictureFilterDisablesAndHidesTheDataChoice()
{
    const auto choice = [](SaveDialog &dialog) { return dialog.findChild<QRadioButton *>(QStringLiteral("data")); };
    SaveDialog picture(1, QStringLiteral("VAHz"));
    picture.show();
    QVERIFY(!choice(picture)->isEnabled());
    QVERIFY(!choice(picture)->isVisible());
    QCOMPARE(picture.findChild<QRadioButton *>(QStringLiteral("screen"))->text(), QStringLiteral("Screen "));
    SaveDialog both(3, QStringLiteral("VAHz"));
    both.show();
    QVERIFY(choice(both)->isEnabled());
    QVERIFY(choice(both)->isVisible());
    QCOMPARE(choice(both)->text(), QStringLiteral("Data "));
}

void TstSaveDialog::downTogglesTheKindAndRebuildsTheName()
{
    enterIndex(QStringLiteral("VAHz1.png"));
    SaveDialog dialog(3, QStringLiteral("VAHz"));
    dialog.show();
    QCOMPARE(dialog.fileType(), 1);
    QCOMPARE(dialog.name(), QStringLiteral("VAHz2.png"));
    QTest::keyClick(&dialog, 'T');
    QCOMPARE(dialog.fileType(), 2);
    QCOMPARE(dialog.name(), QStringLiteral("VAHz1.pqa"));
    QTest::keyClick(&dialog, 'T');
    QCOMPARE(dialog.fileType(), 1);
    QCOMPARE(dialog.name(), QStringLiteral("VAHz2.png"));
}

void TstSaveDialog::downDoesNothingWithoutTheDataChoice()
{
    SaveDialog dialog(1, QStringLiteral("VAHz"));
    dialog.show();
    QTest::keyClick(&dialog, 'T');
    QCOMPARE(dialog.fileType(), 1);
    QCOMPARE(dialog.name(), QStringLiteral("VAHz1.png"));
}

void TstSaveDialog::okAnswersTypeAndNameAndEntersTheIndex()
{
    DialogDriver driver({ DialogDriver::press("F") });
    QString name = QStringLiteral("VAHz");
    QCOMPARE(SaveDialog::save(1, name), 1);
    QCOMPARE(name, QStringLiteral("VAHz1.png"));
    QCOMPARE(FileInfo().getInfoFiles(), QStringList { "VAHz1.png" });
}

void TstSaveDialog::theIndexTellsTheTimeInTheUsersZone()
{
    Clock::setForTest(1700000000000); // 2023-11-14 22:13:20 UTC
    m_userConfig_g.setTimeZone("Europe/Warsaw"); // an hour ahead in winter
    DialogDriver driver({ DialogDriver::press("F") });
    QString name = QStringLiteral("VAHz");
    QCOMPARE(SaveDialog::save(1, name), 1);
    Clock::useSystem();
    m_userConfig_g.setTimeZone("UTC");
    QCOMPARE(RootFiles::index(), QStringList { "VAHz1.png,2023-11-14 23:13:20" });
}

void TstSaveDialog::dataFileHasItsOwnType()
{
    DialogDriver driver({ DialogDriver::press("TF") });
    QString name = QStringLiteral("Scope");
    QCOMPARE(SaveDialog::save(3, name), 2);
    QCOMPARE(name, QStringLiteral("Scope1.pqa"));
}

void TstSaveDialog::cancelAnswersZeroAndLeavesTheIndex()
{
    DialogDriver driver({ DialogDriver::press("L") });
    QString name = QStringLiteral("VAHz");
    QCOMPARE(SaveDialog::save(1, name), 0);
    QCOMPARE(name, QStringLiteral("VAHz"));
    QVERIFY(FileInfo().getInfoFiles().isEmpty());
}

void TstSaveDialog::closingAnswersZero()
{
    DialogDriver driver({ [](QDialog *dialog) { dialog->close(); } });
    QString name = QStringLiteral("VAHz");
    QCOMPARE(SaveDialog::save(1, name), 0);
}

void TstSaveDialog::enterEditsTheName()
{
    // Clear, "q", "w", Ok; then Ok of the dialog itself.
    DialogDriver driver({ DialogDriver::press("K"), DialogDriver::press("YKDKF"), DialogDriver::press("F") });
    QString name = QStringLiteral("VAHz");
    QCOMPARE(SaveDialog::save(1, name), 1);
    QCOMPARE(name, QStringLiteral("qw.png"));
    QCOMPARE(FileInfo().getInfoFiles(), QStringList { "qw.png" });
}

void TstSaveDialog::editedNamesCannotLeaveTheStorage()
{
    SaveDialog dialog(1, QStringLiteral("VAHz"));
    dialog.show();
    // A leading dot (hidden file) and a comma (separator of the index) are not taken; an empty name is refused.
    DialogDriver driver({ [](QDialog *keyboard) {
        QVERIFY(qobject_cast<VirtualKeyBoard *>(keyboard));
        QTest::keyClick(keyboard, 'Y'); // clear
        QTest::keyClick(keyboard, 'F');
        QVERIFY(keyboard->isVisible());
        // From q: down to a, left to ".", Enter, left to ",", Enter
        for (const char letter : QByteArray("TOKOK")) {
            if (letter)
                QTest::keyClick(keyboard, letter);
        }
        QTest::keyClick(keyboard, 'P'); // a blank
        QCOMPARE(static_cast<VirtualKeyBoard *>(keyboard)->text(), QString());
        QTest::keyClick(keyboard, 'L');
    } });
    QTest::keyClick(&dialog, 'K');
    QVERIFY(driver.isDone());
    QCOMPARE(dialog.name(), QStringLiteral("VAHz1.png"));
}

/// Edits the offered name to "q" and presses Ok.
static QList<DialogDriver::Step> saveAsQ()
{
    return { DialogDriver::press("K"), DialogDriver::press("YKF"), DialogDriver::press("F") };
}

void TstSaveDialog::anExistingFileIsAskedAbout()
{
    enterIndex(QStringLiteral("q.png"));
    QString question;
    auto steps = saveAsQ();
    steps << [&question](QDialog *dialog) {
        QVERIFY(qobject_cast<Message *>(dialog));
        question = labelText(dialog, "message");
        QCOMPARE(keyTexts(dialog), QStringList({ "", "", "", "Yes", "No" }));
        QTest::keyClick(dialog, 'F');
    };
    DialogDriver driver(steps);
    QString name = QStringLiteral("VAHz");
    QCOMPARE(SaveDialog::save(1, name), 1);
    QCOMPARE(question, QStringLiteral("The file \"q.png\" is exist.\nDo you want to overwrite it?"));
    QCOMPARE(name, QStringLiteral("q.png"));
    QCOMPARE(FileInfo().getInfoFiles(), QStringList { "q.png" });
}

void TstSaveDialog::noKeepsTheDialogOpen()
{
    enterIndex(QStringLiteral("q.png"));
    writeStored(QStringLiteral("q.png"));
    bool open = false;
    auto steps = saveAsQ();
    steps << DialogDriver::press("L") << [&open](QDialog *dialog) {
        open = qobject_cast<SaveDialog *>(dialog);
        QTest::keyClick(dialog, 'L');
    };
    DialogDriver driver(steps);
    QString name = QStringLiteral("VAHz");
    QCOMPARE(SaveDialog::save(1, name), 0);
    QVERIFY(open);
    QVERIFY(QFile::exists(stored(QStringLiteral("q.png"))));
    QCOMPARE(FileInfo().getInfoFiles(), QStringList { "q.png" });
}

void TstSaveDialog::yesRemovesTheOldEntryAndFile()
{
    enterIndex(QStringLiteral("q.png"));
    writeStored(QStringLiteral("q.png"));
    DialogDriver driver(saveAsQ() << DialogDriver::press("F"));
    QString name = QStringLiteral("VAHz");
    QCOMPARE(SaveDialog::save(1, name), 1);
    QVERIFY(!QFile::exists(stored(QStringLiteral("q.png")))); // the page writes the new one
    QVERIFY(RootFiles::isIndexed(QStringLiteral("q.png")));
    QCOMPARE(RootFiles::index().size(), 1);
}

void TstSaveDialog::aCardThatDoesNotAnswerHoldsUpNobody()
{
    enterIndex(QStringLiteral("q.png"));
    writeStored(QStringLiteral("q.png"));
    const QStringList before = RootFiles::index();
    {
        const HeldDisk held;
        DialogDriver driver(saveAsQ() << DialogDriver::press("F"));
        QString name = QStringLiteral("VAHz");
        QCOMPARE(SaveDialog::save(1, name), 1);
        QVERIFY(!QFile::exists(stored(QStringLiteral("q.png"))));
        QCOMPARE(FileInfo().readInfo(), before);
    }
    QVERIFY(RootFiles::index() != before);
}

void TstSaveDialog::aFileThatTheIndexForgotIsAskedAboutToo()
{
    writeStored(QStringLiteral("q.png"));
    bool asked = false;
    DialogDriver driver(saveAsQ() << [&asked](QDialog *dialog) {
        asked = qobject_cast<Message *>(dialog);
        QTest::keyClick(dialog, 'F');
    });
    QString name = QStringLiteral("VAHz");
    QCOMPARE(SaveDialog::save(1, name), 1);
    QVERIFY(asked);
}

void TstSaveDialog::withAllDefaultNamesTakenOkWaitsForAName()
{
    QFile index(Target::path(FileInfo::indexPath()));
    QVERIFY(index.open(QIODevice::WriteOnly));
    for (int n = 1; n <= 999; ++n)
        index.write(QStringLiteral("VAHz%1.png,2024-01-01 00:00:00\n").arg(n).toLatin1());
    index.close();
    SaveDialog dialog(1, QStringLiteral("VAHz"));
    QCOMPARE(dialog.name(), QString());
    dialog.show();
    QTest::keyClick(&dialog, 'F');
    QVERIFY(dialog.isVisible());
    DialogDriver driver({ DialogDriver::press("KF") });
    QTest::keyClick(&dialog, 'K');
    QCOMPARE(dialog.name(), QStringLiteral("q.png"));
    QTest::keyClick(&dialog, 'F');
    QVERIFY(!dialog.isVisible());
}

QTEST_MAIN(TstSaveDialog)
#include "tst_savedialog.moc"
