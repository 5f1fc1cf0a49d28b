#include "memorycase.h"

#include "memory/recordview.h"
#include "paintedtexts.h"
#include "settings/config_data.h"
#include "testpaths.h"
#include "unit/record/pqa2bytes.h"
#include "unit/report/writtenweek.h"
#include "widgets/controls/readingmarks.h"

#include <QPointer>

using namespace MemoryCase;

namespace {

const QString kFolder = QStringLiteral("231114_222000 Monitor-1");

/// A monitor's folder with a run of so many seconds.
void storeMonitor(WrittenWeek::Supply supply, int seconds)
{
    QVERIFY(QDir().mkpath(Target::path(kStorage + kFolder)));
    QVERIFY(WrittenWeek::write(kStorage + kFolder + "/Monitor.pqa2", supply, seconds));
}

/// What F4 opens, once it is read; null where nothing stays open.
RecordView *opened(const Screen &screen)
{
    screen.press({ F4 });
    screen.wait();
    const QList<RecordView *> views = screen.window.findChildren<RecordView *>();
    return views.isEmpty() || !views.first()->isVisible() ? nullptr : views.first();
}

QString factOf(const RecordView &view, const QString &name)
{
    for (const auto &fact : view.facts()) {
        if (fact.first == name)
            return fact.second;
    }
    return {};
}

} // namespace

/// "View" on what was recorded.
class TstRecordView : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }
    void aMonitorsRunShowsItsVerdict();
    void theLimitsInUseJudge();
    void aRecordingShowsWhatItIs();
    void timesAreThoseOfTheUser();
    void theTableMovesAndStopsAtItsEnds();
    void ofTwoLimitsTheFirstStandsInTheTable();
    void f5LeavesAndTheKeyboardComesBack();
    void leavingEndsTheReading();
    void aViewThatIsGoneGivesTheReadingUp();
    void theReadingTellsHowFarItIs();
    void aRecordingBeginsWithItsEarliestValue();
    void whatCannotBeReadIsSaid_data();
    void whatCannotBeReadIsSaid();
    void otherKeysRise();
    void theKeyIsBlackOnWhatItOpens();
};

void TstRecordView::aMonitorsRunShowsItsVerdict()
{
    storeMonitor(WrittenWeek::Bad, 86400);
    Screen screen;
    const RecordView *view = opened(screen);
    QVERIFY(view);
    QVERIFY(ReadingMarks::isCover(view));
    QCOMPARE(ReadingMarks::coverKeys(view), QStringLiteral("F5 Back"));
    QCOMPARE(view->headline(),
             QStringLiteral("Indication from less than a week (1 d 00:00:00): the supply did not keep to the "
                            "limits of EN50160."));
    QCOMPARE(factOf(*view, "State"), QStringLiteral("whole"));
    QCOMPARE(factOf(*view, "Duration"), QStringLiteral("1 d 00:00:00"));
    QVERIFY(factOf(*view, "What").contains(kFolder));
    // L2 is low for two of 24 hours: 8.3 percent, five are allowed.
    QStringList failed;
    for (const auto &row : view->table().rows) {
        if (row.at(7).text == QLatin1String("fail"))
            failed << row.at(0).text;
    }
    QVERIFY2(failed.contains("Voltage L2"), qPrintable(failed.join(',')));
    QVERIFY(!failed.contains("Voltage L1"));
    for (int row = 0; row < failed.size(); ++row) // first what made the verdict
        QCOMPARE(view->table().rows.at(row).at(0).text, failed.at(row));
}

void TstRecordView::theLimitsInUseJudge()
{
    storeMonitor(WrittenWeek::Clean, 7200);
    m_limits_g.initActiveLimits("GOST32144");
    Screen screen;
    const RecordView *view = opened(screen);
    m_limits_g.initActiveLimits("EN50160");
    QVERIFY(view);
    QVERIFY2(view->headline().contains("GOST32144"), qPrintable(view->headline()));
}

void TstRecordView::aRecordingShowsWhatItIs()
{
    QVERIFY(QDir().mkpath(Target::path(kStorage + kFolder)));
    QVERIFY(QFile::copy(QUVERA_SOURCE_DIR "/tests/data/recorder/Common.pqa2",
                        Target::path(kStorage + kFolder + "/Common.pqa2")));
    Screen screen;
    const RecordView *view = opened(screen);
    QVERIFY(view);
    QVERIFY(view->headline().isEmpty());
    QVERIFY(view->table().rows.isEmpty());
    QCOMPARE(factOf(*view, "Begin"), QStringLiteral("2023-11-14 22:13:20 UTC"));
}

void TstRecordView::timesAreThoseOfTheUser()
{
    storeMonitor(WrittenWeek::Clean, 600);
    m_userConfig_g.setTimeZone("Asia/Tokyo");
    Screen screen;
    const RecordView *view = opened(screen);
    m_userConfig_g.setTimeZone("UTC");
    QVERIFY(view);
    QCOMPARE(factOf(*view, "Begin"), QStringLiteral("2023-11-15 07:20:00")); // 22:20 UTC
}

void TstRecordView::theTableMovesAndStopsAtItsEnds()
{
    storeMonitor(WrittenWeek::Clean, 7200);
    Screen screen;
    RecordView *view = opened(screen);
    QVERIFY(view);
    const QString wanted = qEnvironmentVariable("QUVERA_REPORTS");
    QVERIFY(wanted.isEmpty() || view->grab().save(wanted + "/view.png"));
    const auto painted = [view] { return view->grab().toImage(); };
    const QImage top = painted();
    QTest::keyClick(view, Qt::Key(Up));
    QCOMPARE(painted(), top);
    QTest::keyClick(view, Qt::Key(Down));
    QVERIFY(painted() != top);
    for (int i = 0; i < 100; ++i)
        QTest::keyClick(view, Qt::Key(Down));
    const QImage bottom = painted();
    QTest::keyClick(view, Qt::Key(Down));
    QCOMPARE(painted(), bottom);
    for (int i = 0; i < 100; ++i)
        QTest::keyClick(view, Qt::Key(Up));
    QCOMPARE(painted(), top);
}

void TstRecordView::ofTwoLimitsTheFirstStandsInTheTable()
{
    storeMonitor(WrittenWeek::Clean, 7200);
    Screen screen;
    RecordView *view = opened(screen);
    QVERIFY(view);
    QStringList painted, limits;
    for (const PaintedText &text : paintedTexts(*view))
        painted << text.text;
    for (const auto &row : view->table().rows) {
        if (row.at(0).text == QLatin1String("Voltage L1"))
            limits = row.at(1).text.split(QLatin1Char('\n'));
    }
    QCOMPARE(limits.size(), 2); // of a share of the time and of all of it
    QVERIFY2(painted.contains(limits.at(0)), qPrintable(painted.join('|')));
    QVERIFY(painted.filter(limits.at(1)).isEmpty());
}

void TstRecordView::f5LeavesAndTheKeyboardComesBack()
{
    storeMonitor(WrittenWeek::Clean, 600);
    Screen screen;
    QPointer<RecordView> view(opened(screen));
    QVERIFY(view);
    QCOMPARE(view->geometry(), screen.window.rect());
    QTest::keyClick(view, Qt::Key(F5));
    QTRY_VERIFY_WITH_TIMEOUT(!view, kPatienceMs);
    QCOMPARE(screen.page->mode(), MemoryPage::Browsing);
}

void TstRecordView::leavingEndsTheReading()
{
    storeMonitor(WrittenWeek::Clean, WrittenWeek::kWeek);
    Screen screen;
    screen.press({ F4 });
    QPointer<RecordView> view(screen.window.findChild<RecordView *>());
    QVERIFY(view); // at once, before anything is read
    QTest::keyClick(view, Qt::Key(F5));
    QTRY_VERIFY_WITH_TIMEOUT(!view, kPatienceMs);
    screen.wait();
    QVERIFY(!screen.page->isBusy());
    QVERIFY(opened(screen)); // and once more, to its end
    // What nobody wants any more is not read further.
    RecordView::Reading reading;
    reading.givenUp = true;
    MonitorLimits2 limits;
    limits.initEN50160();
    RecordView::read(&reading, Target::path(kStorage + kFolder), limits);
    QVERIFY(!reading.judgement);
}

void TstRecordView::aViewThatIsGoneGivesTheReadingUp()
{
    const auto reading = std::make_shared<RecordView::Reading>();
    QWidget page;
    {
        RecordView view(reading, &page);
        QVERIFY(!reading->givenUp);
    }
    QVERIFY(reading->givenUp);
}

void TstRecordView::theReadingTellsHowFarItIs()
{
    // Of 36 bytes the head has 24: two thirds, where the only block begins.
    const QString file = Target::path(kStorage + "bare.pqa2");
    QVERIFY(Pqa2Bytes().add(0, {}).save(file));
    RecordView::Reading reading;
    RecordView::read(&reading, file, MonitorLimits2());
    QCOMPARE(int(reading.percent), 66);
    QVERIFY(reading.judgement && !reading.isJudged);
}

void TstRecordView::aRecordingBeginsWithItsEarliestValue()
{
    // The clock was set back before the second part began.
    const QString folder = Target::path(kStorage + kFolder);
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(Pqa2Bytes::recording(2).save(folder + "/Common.pqa2"));
    QVERIFY(Pqa2Bytes()
                .timed(0xA1000029, Pqa2Bytes::kTime - 5000, Pqa2Bytes::f32(50))
                .end(Pqa2Bytes::kSeconds)
                .save(folder + "/Common_2.pqa2"));
    RecordView::Reading reading;
    RecordView::read(&reading, folder, MonitorLimits2());
    QVERIFY(reading.judgement);
    QCOMPARE(reading.judgement->overview.start, Pqa2Bytes::kTime - 5000);
    QCOMPARE(reading.judgement->overview.end, Pqa2Bytes::kTime + 2000);
}

void TstRecordView::whatCannotBeReadIsSaid_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << "a.pqa2" << QByteArray();
    QTest::newRow("foreign") << "a.pqa2" << QByteArray(5000, 'x');
    QTest::newRow("saved page") << "a.pqa" << QByteArray("data");
    QTest::newRow("folder without a recording") << "folder/notes.txt" << QByteArray("data");
}

void TstRecordView::whatCannotBeReadIsSaid()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    store(name.toLatin1(), content);
    Screen screen;
    Answers answers("L");
    screen.press({ F4 });
    QTRY_VERIFY_WITH_TIMEOUT(answers.isDone(), kPatienceMs);
    QCOMPARE(answers.said, QStringList { "Error!!!" });
    QTRY_VERIFY_WITH_TIMEOUT(!screen.window.findChild<RecordView *>(), kPatienceMs);
}

void TstRecordView::otherKeysRise()
{
    storeMonitor(WrittenWeek::Clean, 600);
    Screen screen;
    RecordView *view = opened(screen);
    QVERIFY(view);
    for (const int key : { int(F1), int(F2), int(F3), int(F4), int(Enter) })
        QTest::keyClick(view, Qt::Key(key));
    QVERIFY(view->isVisible());
    QCOMPARE(screen.page->mode(), MemoryPage::Browsing);
}

void TstRecordView::theKeyIsBlackOnWhatItOpens()
{
    StoredItem item;
    for (const char *name : { "a.pqa2", "a.PQA", "a.wav", "a.csv" }) {
        item.name = QLatin1String(name);
        QVERIFY2(RecordView::canShow(item), name);
    }
    for (const char *name : { "a.txt", "a", "pqa2", "" }) {
        item.name = QLatin1String(name);
        QVERIFY2(!RecordView::canShow(item), name);
    }
    item.isFolder = true;
    QVERIFY(RecordView::canShow(item));
}

PAGE_TEST_MAIN(TstRecordView)
#include "tst_recordview.moc"
