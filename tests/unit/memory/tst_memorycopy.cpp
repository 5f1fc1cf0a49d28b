#include "memorycase.h"

#include "unit/storage/filelimit.h"
#include "unit/storage/heldcopy.h"

#include <QProgressBar>

using namespace MemoryCase;

namespace {

QStringList onDisk()
{
    QStringList found
        = QDir(Target::path(kDisk)).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    found.removeAll(QStringLiteral(".capacity"));
    return found;
}

QByteArray read(const QString &name)
{
    return RootFiles::read(kDisk + QLatin1Char('/') + name);
}

constexpr int kSomePieces = 40; // of a copy: some percent of the largest here
const QString kExists = QStringLiteral("File already exists,\nReplace the file?");

} // namespace

/// Copies to a USB disk.
class TstMemoryCopy : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        RootFiles::clean();
        QVERIFY(QDir().mkpath(Target::path(kDisk)));
    }
    void whatIsCheckedIsCopied();
    void cancelCopiesNothing();
    void withoutADiskNothingIsCopied();
    void aDiskMayComeAndGoWhileThePageIsShown();
    void theFirstDiskIsTheTarget();
    void eachFileThatExistsIsAskedAbout();
    void oneAnswerMayHoldForAllThatFollow();
    void refusingAllCopiesNothing();
    void whatDoesNotFitIsSaidAndWhatFitsIsCopied();
    void aPulledDiskIsSaidAndLeavesNothing();
    void aDiskThatRefusesIsWorthAnotherAttempt();
    void cancelWhileCopyingLeavesNothingHalf();
    void namesThatAShellWouldReadAreCopiedAsTheyStand_data();
    void namesThatAShellWouldReadAreCopiedAsTheyStand();
    void manyFilesTakeOneDialog();
    void theScreenGoesOnWhileALargeRecordingIsCopied();
    void leavingBehindTheQuestionCopiesNothing();
};

void TstMemoryCopy::whatIsCheckedIsCopied()
{
    storeThree();
    Screen screen;
    screen.page->setMedias({ kDisk });
    Answers answers("F");
    screen.press({ F2, Enter, Down, Down, Enter, F4 });
    screen.wait();
    QCOMPARE(answers.said, QStringList { "Copy the files?" });
    QCOMPARE(onDisk(), QStringList({ QString::fromLatin1(kRecording), "Vif1.png" }));
    QCOMPARE(read("Vif1.png"), RootFiles::read(kStorage + "Vif1.png"));
    QCOMPARE(read(kRecording + "/Common.pqa2"), QByteArray(300000, 'c'));
    QVERIFY(onCard("Vif1.png") && onCard(kRecording)); // the originals stay
    QCOMPARE(screen.marks(), QList<bool>({ false, false, false }));
    QCOMPARE(screen.page->mode(), MemoryPage::ChoosingForUsb);
}

void TstMemoryCopy::cancelCopiesNothing()
{
    storeThree();
    Screen screen;
    screen.page->setMedias({ kDisk });
    Answers answers("L");
    screen.press({ F2, F1, F4 });
    screen.wait();
    QCOMPARE(onDisk(), QStringList());
    QCOMPARE(screen.marks(), QList<bool>({ true, true, true }));
}

void TstMemoryCopy::withoutADiskNothingIsCopied()
{
    storeThree();
    Screen screen;
    Answers answers("L");
    screen.press({ F2, F1, F4 });
    QCOMPARE(answers.said, QStringList { "Error!!!\nPlease insert USB Disk..." });
    QCOMPARE(screen.marks(), QList<bool>({ true, true, true }));
}

void TstMemoryCopy::aDiskMayComeAndGoWhileThePageIsShown()
{
    storeThree();
    Screen screen;
    screen.press({ F2, Enter });
    emit screen.page->massStorageMedias({ kDisk });
    {
        Answers answers("F");
        screen.press({ F4 });
        screen.wait();
        QCOMPARE(onDisk(), QStringList { "Vif1.png" });
    }
    screen.page->massStorageMedias({});
    screen.press({ Enter });
    Answers answers("L");
    screen.press({ F4 });
    QVERIFY(answers.said.value(0).startsWith("Error!!!"));
}

void TstMemoryCopy::theFirstDiskIsTheTarget()
{
    storeThree();
    QVERIFY(QDir().mkpath(Target::path("/run/media/sdb1")));
    Screen screen;
    screen.page->setMedias({ "/run/media/sdb1", kDisk });
    Answers answers("F");
    screen.press({ F2, Enter, F4 });
    screen.wait();
    QVERIFY(RootFiles::exists("/run/media/sdb1/Vif1.png"));
    QCOMPARE(onDisk(), QStringList());
}

void TstMemoryCopy::eachFileThatExistsIsAskedAbout()
{
    storeThree();
    RootFiles::write(kDisk + "/Vif1.png", "old");
    RootFiles::write(kDisk + "/Scope1.pqa", "old");
    RootFiles::write(kDisk + "/" + QString::fromLatin1(kRecording) + "/old", "old");
    Screen screen;
    screen.page->setMedias({ kDisk });
    Answers answers("FFLF"); // Ok, then Yes, No, Yes from the top of the list
    screen.press({ F2, F1, F4 });
    QTRY_VERIFY_WITH_TIMEOUT(answers.isDone(), kPatienceMs);
    screen.wait();
    QCOMPARE(answers.said,
             QStringList({ "Copy the files?", "Vif1.png\n" + kExists, "Scope1.pqa\n" + kExists,
                           QString::fromLatin1(kRecording) + "\n" + kExists }));
    QVERIFY(read("Vif1.png") != "old");
    QCOMPARE(read("Scope1.pqa"), QByteArray("old"));
    QCOMPARE(read(kRecording + "/Common.pqa2"), QByteArray(300000, 'c'));
    QVERIFY(!RootFiles::exists(kDisk + "/" + QString::fromLatin1(kRecording) + "/old"));
    QCOMPARE(screen.marks(), QList<bool>({ false, true, false })); // what was left out stays marked
}

void TstMemoryCopy::oneAnswerMayHoldForAllThatFollow()
{
    const auto copied = [](const QByteArray &keys) {
        storeThree();
        RootFiles::write(kDisk + "/Vif1.png", "old");
        RootFiles::write(kDisk + "/Scope1.pqa", "old");
        RootFiles::write(kDisk + "/" + QString::fromLatin1(kRecording) + "/Common.pqa2", "old");
        Screen screen;
        screen.page->setMedias({ kDisk });
        Answers answers(keys);
        screen.press({ F2, F1, F4 });
        QTRY_VERIFY_WITH_TIMEOUT(answers.isDone(), kPatienceMs);
        screen.wait();
        QCOMPARE(answers.said.size(), 3); // whether to copy at all, and two of the three files
    };
    const auto isNew = [](const QByteArray &name) { return read(name) != "old"; };
    copied("FLW"); // Ok, No, Yes to all
    QVERIFY(!isNew("Vif1.png") && isNew("Scope1.pqa") && isNew(kRecording + "/Common.pqa2"));
    copied("FFY"); // Ok, Yes, No to all
    QVERIFY(isNew("Vif1.png") && !isNew("Scope1.pqa") && !isNew(kRecording + "/Common.pqa2"));
}

void TstMemoryCopy::refusingAllCopiesNothing()
{
    storeThree();
    RootFiles::write(kDisk + "/Vif1.png", "old");
    Screen screen;
    screen.page->setMedias({ kDisk });
    Answers answers("FL");
    screen.press({ F2, Enter, F4 });
    QTRY_VERIFY_WITH_TIMEOUT(answers.isDone(), kPatienceMs);
    screen.wait();
    QCOMPARE(onDisk(), QStringList { "Vif1.png" });
    QCOMPARE(read("Vif1.png"), QByteArray("old"));
}

void TstMemoryCopy::whatDoesNotFitIsSaidAndWhatFitsIsCopied()
{
    storeThree();
    RootFiles::write(kDisk + "/.capacity", "200000\n"); // the recording has 300,000 bytes
    Screen screen;
    screen.page->setMedias({ kDisk });
    Answers answers("FL");
    screen.press({ F2, F1, F4 });
    QTRY_VERIFY_WITH_TIMEOUT(answers.isDone(), kPatienceMs);
    screen.wait();
    QCOMPARE(answers.said,
             QStringList({ "Copy the files?", "Insufficient storage space in Removable Storage Device." }));
    QCOMPARE(onDisk(), QStringList({ "Scope1.pqa", "Vif1.png" }));
    QCOMPARE(screen.marks(), QList<bool>({ false, false, true })); // for a larger disk
}

void TstMemoryCopy::aPulledDiskIsSaidAndLeavesNothing()
{
    store("large", QByteArray(150000000, 'x'));
    Screen screen;
    screen.page->setMedias({ kDisk });
    Answers answers("FL");
    HeldCopy held(kSomePieces);
    const DuringCopy pull([](QDialog *) { return !onDisk().isEmpty(); },
                          [&held](QDialog *) {
                              QDir(Target::path(kDisk)).removeRecursively();
                              held.release();
                          });
    screen.press({ F2, F1, F4 });
    QTRY_VERIFY_WITH_TIMEOUT(answers.isDone(), kPatienceMs);
    screen.wait();
    QVERIFY(pull.isDone);
    QCOMPARE(answers.said, QStringList({ "Copy the files?", "Error!!!" }));
    QVERIFY(!RootFiles::exists(kDisk));
    QCOMPARE(screen.marks(), QList<bool> { true });
    QCOMPARE(RootFiles::read(kStorage + "large").size(), 150000000);
}

void TstMemoryCopy::aDiskThatRefusesIsWorthAnotherAttempt()
{
    storeThree();
    Screen screen;
    screen.page->setMedias({ kDisk });
    Answers answers("FL");
    {
        const FileLimit worn(100000);
        screen.press({ F2, F1, F4 });
        QTRY_VERIFY_WITH_TIMEOUT(answers.isDone(), kPatienceMs);
    }
    screen.wait();
    QCOMPARE(answers.said, QStringList({ "Copy the files?", "Error! Try egain." }));
    QVERIFY(!onDisk().join(QString()).contains(".part"));
    QVERIFY(!onDisk().contains(QString::fromLatin1(kRecording)));
}

void TstMemoryCopy::cancelWhileCopyingLeavesNothingHalf()
{
    store("large", QByteArray(150000000, 'x'));
    RootFiles::write(kDisk + "/large", "old");
    Screen screen;
    screen.page->setMedias({ kDisk });
    Answers answers("FF");
    HeldCopy held(kSomePieces);
    const DuringCopy cancel([](QDialog *dialog) { return dialog->findChild<QProgressBar *>()->value() > 0; },
                            [&held](QDialog *dialog) {
                                QTest::keyClick(dialog, 'L');
                                held.release();
                            });
    screen.press({ F2, F1, F4 });
    QTRY_VERIFY_WITH_TIMEOUT(cancel.isDone, kPatienceMs);
    QTRY_VERIFY_WITH_TIMEOUT(!QApplication::activeModalWidget(), kPatienceMs); // no message: it was the user's wish
    QCOMPARE(onDisk(), QStringList { "large" });
    QCOMPARE(read("large"), QByteArray("old"));
    QCOMPARE(answers.said.size(), 2);
    QCOMPARE(screen.marks(), QList<bool> { true });
}

void TstMemoryCopy::namesThatAShellWouldReadAreCopiedAsTheyStand_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("quote") << QByteArray("a\"b.png");
    QTest::newRow("command") << QByteArray("\"; $(rm victim) `rm victim`; \"");
    QTest::newRow("line feed") << QByteArray("one\ntwo.png");
    QTest::newRow("dash") << QByteArray("-rf");
    QTest::newRow("star") << QByteArray("*");
    QTest::newRow("percent") << QByteArray("%1 %2.png");
    QTest::newRow("markup") << QByteArray("<b>x<");
    QTest::newRow("letters of other scripts") << QByteArray("\xd0\xb6\xe6\xb3\xa2.png");
    QTest::newRow("long") << QByteArray(240, 'n');
}

void TstMemoryCopy::namesThatAShellWouldReadAreCopiedAsTheyStand()
{
    QFETCH(QByteArray, name);
    store(name);
    RootFiles::write(kDisk + "/victim", "victim");
    RootFiles::write(kDisk + "/" + QFile::decodeName(name), "old");
    Screen screen;
    screen.page->setMedias({ kDisk });
    Answers answers("FF"); // it is there already: asked about by its name
    screen.press({ F2, F1, F4 });
    QTRY_VERIFY_WITH_TIMEOUT(answers.isDone(), kPatienceMs);
    screen.wait();
    QCOMPARE(onDisk().size(), 2);
    QCOMPARE(read(QFile::decodeName(name)), QByteArray("data"));
    QCOMPARE(read("victim"), QByteArray("victim"));
}

void TstMemoryCopy::manyFilesTakeOneDialog()
{
    for (int i = 0; i < 300; ++i)
        store("f" + QByteArray::number(i), QByteArray(1000, 'x'));
    Screen screen;
    screen.page->setMedias({ kDisk });
    QSet<QWidget *> dialogs;
    QTimer look;
    connect(&look, &QTimer::timeout, this, [&dialogs] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (dialog && dialog->findChild<QProgressBar *>())
            dialogs << dialog;
    });
    look.start(0);
    Answers answers("F");
    screen.press({ F2, F1, F4 });
    screen.wait();
    QCOMPARE(onDisk().size(), 300);
    QVERIFY(dialogs.size() <= 1);
}

void TstMemoryCopy::theScreenGoesOnWhileALargeRecordingIsCopied()
{
    store(kRecording + "/Common.pqa2", QByteArray(150000000, 'x'));
    Screen screen;
    screen.page->setMedias({ kDisk });
    Pulse pulse;
    HeldCopy held(0);
    QSet<int> seen; // percents that the bar showed on the way
    QTimer look;
    connect(&look, &QTimer::timeout, this, [&seen, &held] {
        const QWidget *dialog = QApplication::activeModalWidget();
        const auto *bar = dialog ? dialog->findChild<QProgressBar *>() : nullptr;
        if (!bar || seen.contains(bar->value()))
            return;
        seen << bar->value();
        held.let(2 * kSomePieces); // the next when these have been shown
    });
    look.start(0);
    Answers answers("F");
    screen.press({ F2, F1, F4 });
    screen.wait();
    QCOMPARE(onDisk(), QStringList { QString::fromLatin1(kRecording) });
    QVERIFY2(seen.size() > 2, qPrintable(QString::number(seen.size())));
    QVERIFY2(pulse.longestMs < 500, qPrintable(QString::number(pulse.longestMs)));
}

void TstMemoryCopy::leavingBehindTheQuestionCopiesNothing()
{
    storeThree();
    Screen screen;
    screen.page->setMedias({ kDisk });
    Answers answers("F");
    screen.press({ F2, F1 });
    QTest::keyClick(screen.page, Qt::Key(F4));
    screen.press({ F5 }); // before it was looked which files are there
    screen.wait();
    QTest::qWait(50);
    QCOMPARE(onDisk(), QStringList());
}

PAGE_TEST_MAIN(TstMemoryCopy)
#include "tst_memorycopy.moc"
