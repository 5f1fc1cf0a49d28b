#include "memorycase.h"

#include "board/backlight.h"
#include "unit/documentpage.h"
#include "unit/markedlanguage.h"

#include <QScrollBar>
#include <QSignalSpy>

using namespace MemoryCase;

namespace {

/// The arrows that lead to formatting, as the document has them.
QByteArray documentedArrows()
{
    const auto rows = DocumentPage(QStringLiteral("memory-page.md")).table(QStringLiteral("## For the service"));
    return rows.isEmpty() ? QByteArray("not documented") : rows[0].value(0).remove(QLatin1Char(' ')).toLatin1();
}

void pressArrows(const Screen &screen, const QByteArray &arrows)
{
    for (const char arrow : arrows)
        screen.press({ arrow == 'L' ? Left : Right });
}

} // namespace

/// Modes and keys of the memory page, deletion and formatting.
class TstMemoryPage : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }
    void theListIsReadWhenThePageIsEntered();
    void anEmptyCardHasNoRows();
    void eachModeHasItsKeys();
    void cancelLeadsBackToBrowsingWithoutMarks();
    void backLeavesThePage();
    void otherFunctionsDoNothing_data();
    void otherFunctionsDoNothing();
    void lightAndPowerRise();
    void arrowsMoveAndStopAtTheEnds();
    void aHeldArrowGoesOn();
    void enterSetsAndTakesTheMark();
    void allAndNone();
    void viewIsBlackOnWhatItCanShow();
    void theDeleteKeyAsksAndDeletesWhatIsChecked();
    void aNoDeletesNothing();
    void withoutAMarkNothingIsAsked();
    void marksAndSelectionStayWithTheirFiles();
    void whatIsInUseCannotBeChosen();
    void whatWasClosedSinceTheListWasReadCanBeChosen();
    void aFileThatIsOpenedBehindTheMarkStays();
    void formattingAsksAndTakesEverything();
    void formattingIsRefusedWhileSomethingIsInUse();
    void theArrowsOfTheServiceLeadToFormatting();
    void otherArrowsLeadNowhere_data();
    void otherArrowsLeadNowhere();
    void thePageCanBeLeftWhileFilesAreDeleted();
    void noKeyBeginsASecondThingMeanwhile();
    void thousandsAreDeletedWhileTheScreenGoesOn();
    void roomIsShownInMegabytesOrGigabytes();
    void textsFollowTheLanguage();
    void aDarkScreenIsOnlyWoken();
};

void TstMemoryPage::theListIsReadWhenThePageIsEntered()
{
    storeThree();
    Screen screen;
    QCOMPARE(screen.names(), QStringList({ "Vif1.png", "Scope1.pqa", QString::fromLatin1(kRecording) }));
    QCOMPARE(text(screen.page, "files_count"), QStringLiteral("1/3"));
    QCOMPARE(screen.list()->at(0).icon(), ":/bmp");
    QCOMPARE(screen.list()->at(1).icon(), ":/file");
    QCOMPARE(screen.list()->at(2).icon(), ":/folder");
    QCOMPARE(screen.list()->at(0).description(), QStringLiteral("Vif1.png"));
    QCOMPARE(screen.list()->at(2).description(), QStringLiteral("Logger_1"));
    QCOMPARE(screen.list()->at(2).item.time, QStringLiteral("2023-11-14 22:13:20"));
    store("later.png");
    screen.press({ F2, Down, Enter });
    screen.page->enter(); // the next time
    QTRY_COMPARE_WITH_TIMEOUT(screen.list()->count(), 4, kPatienceMs);
    QCOMPARE(screen.page->mode(), MemoryPage::Browsing);
    QVERIFY(screen.list()->checkedFiles().isEmpty());
    QCOMPARE(text(screen.page, "files_count"), QStringLiteral("1/4"));
}

void TstMemoryPage::anEmptyCardHasNoRows()
{
    Screen screen;
    QCOMPARE(text(screen.page, "files_count"), QStringLiteral("0/0"));
    // No key finds a row that is not there.
    Answers answers("LL");
    screen.press({ F4, Enter, Up, Down, F2, Enter, F1, F2, F4, F5, F3, Enter, F1, F4, F5 });
    QVERIFY(answers.said.isEmpty());
    QCOMPARE(screen.page->mode(), MemoryPage::Browsing);
}

void TstMemoryPage::eachModeHasItsKeys()
{
    storeThree();
    Screen screen;
    const QStringList browsing { "Format", "To USB", "Delete", "View", "Back" };
    QCOMPARE(screen.captions(), browsing);
    screen.press({ F2 });
    QCOMPARE(screen.page->mode(), MemoryPage::ChoosingForUsb);
    QCOMPARE(screen.captions(), QStringList({ "SelectAll", "SelectNone", "", "To USB", "Cancel" }));
    screen.press({ F3 });
    QCOMPARE(screen.page->mode(), MemoryPage::ChoosingForUsb);
    screen.press({ F5 });
    QCOMPARE(screen.captions(), browsing);
    screen.press({ F3 });
    QCOMPARE(screen.page->mode(), MemoryPage::ChoosingToDelete);
    QCOMPARE(screen.captions(), QStringList({ "SelectAll", "SelectNone", "", "Delete", "Cancel" }));
    screen.press({ F3 });
    QCOMPARE(screen.page->mode(), MemoryPage::ChoosingToDelete);
    screen.press({ F5 });
    QCOMPARE(screen.captions(), browsing);
}

void TstMemoryPage::cancelLeadsBackToBrowsingWithoutMarks()
{
    storeThree();
    Screen screen;
    QSignalSpy back(screen.page, &MemoryPage::goBack);
    for (const FrontKey choose : { F2, F3 }) {
        screen.press({ choose, F1, F5 });
        QCOMPARE(screen.page->mode(), MemoryPage::Browsing);
        QCOMPARE(screen.marks(), QList<bool>({ false, false, false }));
    }
    QCOMPARE(back.count(), 0);
}

void TstMemoryPage::backLeavesThePage()
{
    Screen screen;
    QSignalSpy back(screen.page, &MemoryPage::goBack);
    screen.press({ F5 });
    QCOMPARE(back.count(), 1);
}

void TstMemoryPage::otherFunctionsDoNothing_data()
{
    QTest::addColumn<int>("letter");
    for (const char letter : { 'E', 'A', 'U', 'S', 'R', 'I' })
        QTest::addRow("%c", letter) << int(letter);
}

void TstMemoryPage::otherFunctionsDoNothing()
{
    QFETCH(int, letter);
    storeThree();
    Screen screen;
    QSignalSpy leave(screen.page, &Page::leave);
    QSignalSpy back(screen.page, &MemoryPage::goBack);
    Answers answers("L");
    for (const FrontKey mode : { F5, F2, F3 }) {
        if (mode != F5)
            screen.press({ mode });
        QKeyEvent event(QEvent::KeyPress, letter, Qt::NoModifier);
        QCoreApplication::sendEvent(screen.page, &event);
        QVERIFY(event.isAccepted());
        if (mode != F5)
            screen.press({ F5 });
    }
    QCOMPARE(leave.count(), 0);
    QCOMPARE(back.count(), 0);
    QVERIFY(answers.said.isEmpty());
}

void TstMemoryPage::lightAndPowerRise()
{
    Screen screen;
    for (const int letter : { 'X', 'B' }) {
        QKeyEvent event(QEvent::KeyPress, letter, Qt::NoModifier);
        QCoreApplication::sendEvent(screen.page, &event);
        QVERIFY(!event.isAccepted());
    }
}

void TstMemoryPage::arrowsMoveAndStopAtTheEnds()
{
    for (int i = 0; i < 30; ++i)
        store(QByteArray("f") + QByteArray::number(i));
    Screen screen;
    auto *bar = screen.page->findChild<QScrollBar *>();
    QVERIFY(bar->isVisible());
    screen.press({ Up });
    QCOMPARE(text(screen.page, "files_count"), QStringLiteral("1/30"));
    for (int i = 0; i < 40; ++i)
        screen.press({ Down });
    QCOMPARE(text(screen.page, "files_count"), QStringLiteral("30/30"));
    QCOMPARE(bar->value(), bar->maximum());
    QCOMPARE(bar->maximum(), 30 - FilesList::kRows);
    screen.press({ Up });
    QCOMPARE(text(screen.page, "files_count"), QStringLiteral("29/30"));
}

void TstMemoryPage::aHeldArrowGoesOn()
{
    for (int i = 0; i < 50; ++i)
        store(QByteArray("f") + QByteArray::number(i));
    Screen screen;
    const auto row = [&screen] { return text(screen.page, "files_count").section(QLatin1Char('/'), 0, 0).toInt(); };
    QTest::keyPress(screen.page, Qt::Key(Down));
    QCOMPARE(row(), 2);
    QTRY_VERIFY(row() >= 3);
    QTest::keyRelease(screen.page, Qt::Key(Down));
    const int reached = row();
    QTest::qWait(2 * KeyRepeat::kPeriod);
    QCOMPARE(row(), reached);
}

void TstMemoryPage::enterSetsAndTakesTheMark()
{
    storeThree();
    Screen screen;
    screen.press({ Enter });
    QCOMPARE(screen.marks(), QList<bool>({ false, false, false })); // browsing knows no marks
    screen.press({ F2, Down, Enter });
    QCOMPARE(screen.marks(), QList<bool>({ false, true, false }));
    screen.press({ Down, Enter, Up, Enter });
    QCOMPARE(screen.marks(), QList<bool>({ false, false, true }));
}

void TstMemoryPage::allAndNone()
{
    storeThree();
    Screen screen;
    for (const FrontKey choose : { F2, F3 }) {
        screen.press({ choose, F1 });
        QCOMPARE(screen.marks(), QList<bool>({ true, true, true }));
        screen.press({ Enter, F2 });
        QCOMPARE(screen.marks(), QList<bool>({ false, false, false }));
        screen.press({ F5 });
    }
}

void TstMemoryPage::viewIsBlackOnWhatItCanShow()
{
    const QString black = "color: #000000;", grey = "color: #909090;";
    storeThree();
    store("notes.txt"); // the newest
    Screen screen;
    QCOMPARE(screen.names().first(), QStringLiteral("notes.txt"));
    QCOMPARE(sheet(screen.page, "btn_f4"), grey);
    screen.press({ F3 });
    QCOMPARE(sheet(screen.page, "btn_f4"), black);
    screen.press({ F5 });
    QCOMPARE(sheet(screen.page, "btn_f4"), grey);
    for (int row = 1; row < 4; ++row) { // a picture, a saved page, a recording
        screen.press({ Down });
        QCOMPARE(sheet(screen.page, "btn_f4"), black);
    }
    screen.press({ Up, Up, Up });
    QCOMPARE(sheet(screen.page, "btn_f4"), grey);
}

void TstMemoryPage::theDeleteKeyAsksAndDeletesWhatIsChecked()
{
    storeThree();
    Screen screen;
    Answers answers("F");
    screen.press({ F3, Enter, Down, Down, Enter, F4 });
    screen.wait();
    QCOMPARE(answers.said, QStringList { "Delete the file?" });
    QVERIFY(!onCard("Vif1.png") && !onCard(kRecording));
    QVERIFY(onCard("Scope1.pqa"));
    QCOMPARE(screen.names(), QStringList { "Scope1.pqa" });
    QCOMPARE(FileInfo().getInfoFiles(), QStringList { "Scope1.pqa" });
    QVERIFY(RootFiles::commands().endsWith("sync\n"));
    QCOMPARE(screen.page->mode(), MemoryPage::ChoosingToDelete); // for more
    QCOMPARE(text(screen.page, "files_count"), QStringLiteral("1/1"));
}

void TstMemoryPage::aNoDeletesNothing()
{
    storeThree();
    Screen screen;
    Answers answers("L");
    screen.press({ F3, F1, F4 });
    screen.wait();
    QCOMPARE(answers.said, QStringList { "Delete the file?" });
    QVERIFY(onCard("Vif1.png") && onCard("Scope1.pqa") && onCard(kRecording));
    QCOMPARE(screen.marks(), QList<bool>({ true, true, true }));
}

void TstMemoryPage::withoutAMarkNothingIsAsked()
{
    storeThree();
    Screen screen;
    screen.page->setMedias({ kDisk });
    Answers answers("L");
    screen.press({ F3, F4, F5, F2, F4, F5 });
    QTest::qWait(50);
    QVERIFY(answers.said.isEmpty());
}

void TstMemoryPage::marksAndSelectionStayWithTheirFiles()
{
    storeThree();
    Screen screen;
    screen.press({ F3, Down, Enter });
    store("newer");
    RootFiles::write(kStorage + "20300101_000000", "newest");
    screen.page->reflashFilesList();
    screen.wait();
    QCOMPARE(screen.list()->count(), 5);
    QCOMPARE(screen.list()->checkedFiles(), QList<QByteArray> { "Scope1.pqa" });
    QCOMPARE(screen.list()->current()->item.name, QStringLiteral("Scope1.pqa"));
}

void TstMemoryPage::whatIsInUseCannotBeChosen()
{
    storeThree();
    QFile common(Target::path(kStorage + QString::fromLatin1(kRecording) + "/Common.pqa2"));
    QVERIFY(common.open(QIODevice::ReadWrite));
    Screen screen;
    for (const FrontKey choose : { F2, F3 }) {
        screen.press({ choose, F1 });
        QCOMPARE(screen.marks(), QList<bool>({ true, true, false }));
        Answers answers("L");
        screen.press({ Down, Down, Enter });
        QCOMPARE(answers.said, QStringList { "The file is in use by the running measurement." });
        QCOMPARE(screen.marks(), QList<bool>({ true, true, false }));
        screen.press({ Up, Up, F5 });
    }
}

void TstMemoryPage::whatWasClosedSinceTheListWasReadCanBeChosen()
{
    storeThree();
    QFile data(Target::path(kStorage + "Vif1.png"));
    QVERIFY(data.open(QIODevice::ReadWrite));
    Screen screen;
    screen.press({ F3, F1 });
    QCOMPARE(screen.marks(), QList<bool>({ false, true, true }));
    data.close();
    screen.press({ F1 });
    QCOMPARE(screen.marks(), QList<bool>({ true, true, true }));
    screen.press({ F2 });
    QVERIFY(data.open(QIODevice::ReadWrite));
    {
        Answers answers("L");
        screen.press({ Enter });
        QCOMPARE(answers.said.size(), 1);
    }
    data.close();
    screen.press({ Enter });
    QCOMPARE(screen.marks(), QList<bool>({ true, false, false }));
}

void TstMemoryPage::aFileThatIsOpenedBehindTheMarkStays()
{
    storeThree();
    Screen screen;
    screen.press({ F3, F1 });
    QFile data(Target::path(kStorage + "Scope1.pqa"));
    QVERIFY(data.open(QIODevice::ReadWrite));
    Answers answers("FL");
    screen.press({ F4 });
    QTRY_VERIFY_WITH_TIMEOUT(answers.isDone(), kPatienceMs);
    screen.wait();
    QCOMPARE(answers.said, QStringList({ "Delete the file?", "Error! Try egain." }));
    QCOMPARE(screen.names(), QStringList { "Scope1.pqa" });
    QCOMPARE(FileInfo().getInfoFiles(), QStringList { "Scope1.pqa" });
}

void TstMemoryPage::formattingAsksAndTakesEverything()
{
    storeThree();
    Screen screen;
    {
        Answers answers("L");
        screen.press({ F1 });
        QCOMPARE(answers.said, QStringList { "It will format the mass storage, \nDo you continue?" });
    }
    screen.wait();
    QCOMPARE(screen.list()->count(), 3);
    Answers answers("F");
    screen.press({ F1 });
    screen.wait();
    QCOMPARE(screen.list()->count(), 0);
    QVERIFY(!RootFiles::exists(kStorage + ".infomation"));
    QVERIFY(!onCard("Vif1.png") && !onCard("Scope1.pqa") && !onCard(kRecording));
    QVERIFY(RootFiles::exists(kStorage));
}

void TstMemoryPage::formattingIsRefusedWhileSomethingIsInUse()
{
    storeThree();
    QFile data(Target::path(kStorage + "Scope1.pqa"));
    QVERIFY(data.open(QIODevice::ReadWrite));
    Screen screen;
    {
        Answers answers("L");
        screen.press({ F1 });
        QCOMPARE(answers.said, QStringList { "A recording is running.\nIt has to end first." });
    }
    data.close();
    // It is opened while the question stands.
    DialogDriver driver({ [&data](QDialog *dialog) {
                             QVERIFY(data.open(QIODevice::ReadWrite));
                             QTest::keyClick(dialog, 'F');
                         },
                          DialogDriver::press("L") });
    screen.press({ F1 });
    QTRY_VERIFY_WITH_TIMEOUT(driver.isDone(), kPatienceMs);
    screen.wait();
    QVERIFY(onCard("Vif1.png") && onCard("Scope1.pqa") && onCard(kRecording));
    QCOMPARE(FileInfo().getInfoFiles().size(), 3);
}

void TstMemoryPage::theArrowsOfTheServiceLeadToFormatting()
{
    storeThree();
    Screen screen;
    const QByteArray arrows = documentedArrows();
    QCOMPARE(arrows.size(), 8);
    for (int time = 0; time < 2; ++time) {
        Answers answers("L");
        pressArrows(screen, arrows);
        QVERIFY(answers.said.isEmpty()); // not before Enter
        screen.press({ Enter });
        QCOMPARE(answers.said, QStringList { "It will format the mass storage, \nDo you continue?" });
        screen.press({ Enter });
    }
    QCOMPARE(screen.list()->count(), 3);
}

void TstMemoryPage::otherArrowsLeadNowhere_data()
{
    QTest::addColumn<QByteArray>("arrows");
    const QByteArray right = documentedArrows();
    QTest::newRow("none") << QByteArray();
    QTest::newRow("short") << right.left(7);
    QTest::newRow("one more behind") << right + "L";
    for (int i = 0; i < right.size(); ++i) {
        QByteArray wrong = right;
        wrong[i] = wrong[i] == 'L' ? 'R' : 'L';
        QTest::addRow("arrow %d the other way", i + 1) << wrong;
    }
    // Those of Setup.
    QTest::newRow("calibration") << QByteArray("LLRRLRLR");
    QTest::newRow("labels") << QByteArray("RRLLRLRL");
}

void TstMemoryPage::otherArrowsLeadNowhere()
{
    QFETCH(QByteArray, arrows);
    Screen screen;
    Answers answers("L");
    pressArrows(screen, arrows);
    screen.press({ Enter });
    QVERIFY(answers.said.isEmpty());
    // Another key between them, and while files are chosen.
    const QByteArray right = documentedArrows();
    pressArrows(screen, right.left(4));
    screen.press({ Down });
    pressArrows(screen, right.mid(4));
    screen.press({ Enter, F3 });
    pressArrows(screen, right);
    screen.press({ Enter, F5, Enter });
    QVERIFY(answers.said.isEmpty());
}

void TstMemoryPage::thePageCanBeLeftWhileFilesAreDeleted()
{
    for (int i = 0; i < 3000; ++i)
        store("f" + QByteArray::number(i), "x");
    Screen screen;
    QSignalSpy back(screen.page, &MemoryPage::goBack);
    Answers answers("F");
    screen.press({ F3, F1, F4 });
    QVERIFY(screen.page->isBusy());
    QCOMPARE(text(screen.page, "state"), QStringLiteral("Deleting..."));
    screen.press({ F5, F5 });
    QCOMPARE(back.count(), 1);
    screen.page->hide();
    screen.page->show();
    screen.page->enter(); // before it is through
    screen.wait();
    QCOMPARE(screen.list()->count(), 0);
    QCOMPARE(text(screen.page, "state"), QString());
}

void TstMemoryPage::noKeyBeginsASecondThingMeanwhile()
{
    for (int i = 0; i < 3000; ++i)
        store("f" + QByteArray::number(i), "x");
    Screen screen;
    Answers answers("FLL");
    screen.press({ F3, F1, F4 });
    QVERIFY(screen.page->isBusy());
    screen.press({ F4, F1, Enter, F5 }); // Delete again, then back to browsing
    screen.press({ F1, F2, F3, F4, Enter });
    QCOMPARE(screen.page->mode(), MemoryPage::Browsing);
    screen.wait();
    QCOMPARE(answers.said, QStringList { "Delete the file?" });
}

void TstMemoryPage::thousandsAreDeletedWhileTheScreenGoesOn()
{
    constexpr int kFiles = 5000;
    QByteArray index;
    for (int i = 0; i < kFiles; ++i) {
        const QByteArray name = "Vif" + QByteArray::number(i) + ".png";
        store(name, "x");
        index += name + ",2023-01-02 00:00:00\n";
    }
    RootFiles::write(kStorage + ".infomation", index);
    Screen screen;
    QCOMPARE(screen.list()->count(), kFiles);
    Answers answers("F");
    screen.press({ F3, F1, F4 });
    QVERIFY(screen.page->isBusy()); // the key is through, what it began is not
    Pulse pulse;
    screen.wait();
    QCOMPARE(screen.list()->count(), 0);
    QVERIFY(FileInfo().getInfoFiles().isEmpty());
    // What stands in the way of the measurement would be seconds.
    QVERIFY2(pulse.longestMs < 500, qPrintable(QString::number(pulse.longestMs)));
}

void TstMemoryPage::roomIsShownInMegabytesOrGigabytes()
{
    Screen screen;
    const QRegularExpression used(QStringLiteral("^Used: (\\d{1,4}\\.\\d M|\\d+\\.\\d\\d G)$"));
    const QRegularExpression free(QStringLiteral("^Free: (\\d{1,4}\\.\\d M|\\d+\\.\\d\\d G)$"));
    QVERIFY(used.match(text(screen.page, "disk_used")).hasMatch());
    QVERIFY(free.match(text(screen.page, "disk_free")).hasMatch());
    QCOMPARE(MemoryPage::roomText(0), QStringLiteral("0.0 M"));
    QCOMPARE(MemoryPage::roomText(812.46f), QStringLiteral("812.5 M"));
    QCOMPARE(MemoryPage::roomText(1023.9f), QStringLiteral("1023.9 M"));
    QCOMPARE(MemoryPage::roomText(1024), QStringLiteral("1.00 G"));
    QCOMPARE(MemoryPage::roomText(3800), QStringLiteral("3.71 G"));
}

void TstMemoryPage::textsFollowTheLanguage()
{
    storeThree();
    Screen screen;
    screen.press({ F2 });
    const QString english = text(screen.page, "disk_used");
    MarkedLanguage language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    screen.page->retranslateUi();
    Screen fresh;
    fresh.press({ F2 });
    QCOMPARE(screen.captions(), fresh.captions());
    QVERIFY(screen.captions() != QStringList({ "SelectAll", "SelectNone", "", "To USB", "Cancel" }));
    QVERIFY(text(screen.page, "disk_used") != english);
    QCoreApplication::removeTranslator(&language);
    screen.page->retranslateUi();
    QCOMPARE(screen.captions(), QStringList({ "SelectAll", "SelectNone", "", "To USB", "Cancel" }));
}

void TstMemoryPage::aDarkScreenIsOnlyWoken()
{
    storeThree();
    Screen screen;
    BackLight::shutDownBL();
    screen.press({ F3 });
    QCOMPARE(screen.page->mode(), MemoryPage::Browsing);
    QVERIFY(!BackLight::isShut());
}

PAGE_TEST_MAIN(TstMemoryPage)
#include "tst_memorypage.moc"
