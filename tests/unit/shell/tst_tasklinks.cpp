#include "wholegraph.h"

#include "shell/pagetable.h"
#include "shell/tasklinks.h"
#include "shell/taskmanage.h"
#include "task/unitask.h"
#include "unit/measureddata.h"

#include <QSignalSpy>

namespace {

/// A page that counts what reaches it.
class CountingPage : public FunctionPage
{
public:
    explicit CountingPage(_quvera_ui_type type) : FunctionPage(type, { 0, "Counting" }) { }
    void updateDisplay(void *) override { ++refreshes; }
    void stopWatchChanged(const QString &text) override { time = text; }
    void init_parameter() override { ++begins; }

    void setPause() override { ++pauses; }

    int refreshes = 0;
    int pauses = 0;
    int begins = 0;
    QString time;
};

PageRow rowWith(_quvera_ui_type type, unsigned hears)
{
    PageRow row = *PageTable::row(type);
    row.hears = hears;
    return row;
}

} // namespace

/// What reaches a page of the task, and the task of a page, however often the page was visited.
class TstTaskLinks : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { buildWholeGraph(); }
    void visitsDoNotAddUp();
    void onlyThePageInFrontHearsRefreshAndTime();
    void aPageHearsWhatItsRowSays();
    void aForgottenTaskIsNotHeard();
    void onlyThePageInFrontAsksTheTask();
};

void TstTaskLinks::visitsDoNotAddUp()
{
    TaskLinks links;
    CountingPage page(UI_VIF);
    links.take(&page, rowWith(UI_VIF, Hears::kLive));
    UniTask task(MeasuredData::liveData());
    links.follow(&task);
    for (int visit = 0; visit < 5; ++visit) {
        // From the menu to the page and back.
        links.clearFront(UI_MENU);
        links.setFront(UI_VIF);
    }
    emit task.updateDisplay(nullptr);
    QCOMPARE(page.refreshes, 1);
    emit task.init_param();
    QCOMPARE(page.begins, 1);
    QSignalSpy wanted(&links, &TaskLinks::pauseWanted);
    emit page.pause();
    QCOMPARE(wanted.count(), 1);
    emit task.taskPaused();
    QCOMPARE(page.pauses, 1);
    links.forget(&task);
}

void TstTaskLinks::onlyThePageInFrontHearsRefreshAndTime()
{
    TaskLinks links;
    CountingPage first(UI_VIF);
    CountingPage second(UI_SCOPE);
    links.take(&first, rowWith(UI_VIF, Hears::kLive));
    links.take(&second, rowWith(UI_SCOPE, Hears::kLive));
    UniTask task(MeasuredData::liveData());
    links.follow(&task);
    emit task.updateDisplay(nullptr); // none in front
    links.setFront(UI_VIF);
    emit task.updateDisplay(nullptr);
    links.setFront(UI_SCOPE);
    emit task.updateDisplay(nullptr);
    emit task.stopWatchChanged("00:00:07");
    QCOMPARE(first.refreshes, 1);
    QCOMPARE(second.refreshes, 1);
    QCOMPARE(first.time, QString());
    QCOMPARE(second.time, QStringLiteral("00:00:07"));
    links.clearFront(UI_VIF); // it is not the one
    emit task.updateDisplay(nullptr);
    QCOMPARE(second.refreshes, 2);
    links.clearFront(UI_SCOPE);
    emit task.updateDisplay(nullptr);
    QCOMPARE(second.refreshes, 2);
    links.forget(&task);
}

void TstTaskLinks::aPageHearsWhatItsRowSays()
{
    TaskLinks links;
    CountingPage recorder(UI_LOGGER);
    CountingPage deaf(UI_USER);
    links.take(&recorder, rowWith(UI_LOGGER, Hears::Refresh | Hears::RecordTime));
    links.take(&deaf, rowWith(UI_USER, 0));
    UniTask task(MeasuredData::liveData());
    links.follow(&task);
    links.setFront(UI_LOGGER);
    emit task.stopWatchChanged("00:00:07");
    QCOMPARE(recorder.time, QString());
    emit task.recordTimeChanged("00:00:03");
    QCOMPARE(recorder.time, QStringLiteral("00:00:03"));
    QSignalSpy wanted(&links, &TaskLinks::pauseWanted);
    emit recorder.pause();
    QCOMPARE(wanted.count(), 0);
    links.setFront(UI_USER);
    emit task.updateDisplay(nullptr);
    emit task.init_param();
    QCOMPARE(deaf.refreshes + deaf.begins + recorder.begins, 0);
    links.forget(&task);
}

void TstTaskLinks::aForgottenTaskIsNotHeard()
{
    TaskLinks links;
    CountingPage page(UI_VIF);
    links.take(&page, rowWith(UI_VIF, Hears::kLive));
    UniTask old(MeasuredData::liveData());
    links.follow(&old);
    links.setFront(UI_VIF);
    emit old.stopWatchChanged("00:00:07");
    links.forget(&old);
    page.time.clear();
    UniTask task(MeasuredData::liveData());
    links.follow(&task);
    links.setFront(UI_VIF);
    QCOMPARE(page.time, QString()); // the time of another run
    emit old.updateDisplay(nullptr);
    emit old.init_param();
    QCOMPARE(page.refreshes + page.begins, 0);
    emit task.updateDisplay(nullptr);
    QCOMPARE(page.refreshes, 1);
    links.forget(&task);
}

void TstTaskLinks::onlyThePageInFrontAsksTheTask()
{
    TaskLinks links;
    CountingPage page(UI_VIF);
    links.take(&page, rowWith(UI_VIF, Hears::kLive));
    int asked = 0;
    const auto ask = [&] { links.ask(&page, [&](UniTask &) { ++asked; }); };
    ask(); // no task
    UniTask task(MeasuredData::liveData());
    links.follow(&task);
    ask(); // not in front
    QCOMPARE(asked, 0);
    links.setFront(UI_VIF);
    ask();
    QCOMPARE(asked, 1);
    links.forget(&task);
    ask();
    QCOMPARE(asked, 1);
}

QTEST_MAIN(TstTaskLinks)
#include "tst_tasklinks.moc"
