#include "../views/pagetest.h"
#include "pages/editorpage.h"
#include "pages/starttime.h"

#include <QSignalSpy>

#include <memory>

using namespace PageTest;

namespace {

/// An editor with a working copy: a level in whole percent, a name that Enter changes, a factor that only a level above
/// 50 allows, and a fixed line.
class SampleEditor : public EditorPage
{
public:
    SampleEditor() : EditorPage(UI_SETUP, { "Sample" }, { 3, { 1, 5, 10, 20 } }, nullptr)
    {
        static const KeyRow<SampleEditor> keys[] = {
            { Qt::Key_F4, "Ok", &SampleEditor::ok },
            { Qt::Key_F5, "Cancel", &SampleEditor::cancel },
        };
        const Number number { [this] { return level; },
                              [this](double value) {
                                  level = value;
                                  ++writes;
                              },
                              10, 100 };
        const Number tenths { [this] { return factor; }, [this](double value) { factor = value; }, 0.1, 2.0, 0.1 };
        Row fixed { "fixed", "Fixed", [] { return QStringLiteral("always"); }, {}, {}, {} };
        Row name { "name", "Name", [this] { return title; }, {}, [this] { title += QLatin1Char('x'); }, {} };
        Row limited = numberRow("factor", "Factor", tenths, "x %1", 1);
        limited.enabled = [this] { return level > 50; };
        setRows({ numberRow("level", "Level", number, "%1 %"), limited, name, fixed });
        setKeys(keys);
    }

    double level = 0;
    double factor = 0;
    QString title;
    int writes = 0; // to the working copy
    double storedLevel = 40;
    double storedFactor = 1;

protected:
    void load() override
    {
        level = storedLevel;
        factor = storedFactor;
        title = QStringLiteral("n");
    }
    void store() override
    {
        storedLevel = level;
        storedFactor = factor;
    }
};

} // namespace

/// Fields, selection, steps and the working copy of the editor pages, and the group of a start time.
class TstEditorPage : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void rowsShowCaptionAndText();
    void selectionPassesGreyRowsAndStopsAtTheEnds();
    void aRowTurnsGreyWithWhatItDependsOn();
    void leftAndRightStopAtTheBoundsWithoutAWrite();
    void heldKeyGrows();
    void enterActsOnTheSelectedRow();
    void aRowWithoutStepIsLeftAlone();
    void aRowThatIsOnlyShownIsPassedAndNotGrey();
    void aNoteStandsBesideTheValue();
    void aLongTextIsCutToItsRow();
    void paceIsThatOfTheSetting();
    void okStoresTheWorkingCopy();
    void cancelDropsTheWorkingCopy();
    void f5IsNeverHold();
    void aReadingOutsideTheBoundsComesBackInside();

    void startIsImmediateAtFirst();
    void timedStartOpensTheDate();
    void dayFollowsMonthAndYear_data();
    void dayFollowsMonthAndYear();
    void fieldsOfATimeStopAtTheirBounds();
    void aBrokenClockStillGivesADate();
    void plannedStartIsAMomentOfTheZone();
    void rowsAreAsHighAsThePageAsks();

private:
    std::unique_ptr<SampleEditor> m_page;
};

void TstEditorPage::init()
{
    m_page = std::make_unique<SampleEditor>();
    m_page->init_parameter();
}

void TstEditorPage::rowsShowCaptionAndText()
{
    QCOMPARE(text(m_page.get(), "title"), QStringLiteral("Sample"));
    QCOMPARE(text(m_page.get(), "level_t"), QStringLiteral("Level"));
    QCOMPARE(text(m_page.get(), "level"), QStringLiteral("40 %"));
    QCOMPARE(text(m_page.get(), "factor"), QStringLiteral("x 1.0"));
    QCOMPARE(text(m_page.get(), "fixed"), QStringLiteral("always"));
    QCOMPARE(text(m_page.get(), "btn_f4"), QStringLiteral("Ok"));
}

void TstEditorPage::selectionPassesGreyRowsAndStopsAtTheEnds()
{
    QCOMPARE(m_page->field(), 0);
    press(m_page.get(), Up);
    QCOMPARE(m_page->field(), 0);
    press(m_page.get(), Down); // the factor is grey below 50 percent
    QCOMPARE(m_page->field(), 2);
    QCOMPARE(m_page->findChild<QWidget *>("field_bar")->y(), m_page->findChild<QWidget *>("name")->y());
    press(m_page.get(), Down, 5);
    QCOMPARE(m_page->field(), 3);
    press(m_page.get(), Up, 2);
    QCOMPARE(m_page->field(), 0);
}

void TstEditorPage::aRowTurnsGreyWithWhatItDependsOn()
{
    const auto color = [this](const char *name) {
        return m_page->findChild<QLabel *>(QString::fromLatin1(name))->palette().color(QPalette::WindowText);
    };
    QCOMPARE(color("factor"), QColor("#606060"));
    QCOMPARE(color("factor_t"), QColor("#606060"));
    hold(m_page.get(), Right, 6);
    release(m_page.get(), Right);
    QVERIFY(m_page->level > 50);
    QCOMPARE(color("factor"), QColor(Qt::white));
    QCOMPARE(color("factor_t"), color("level_t"));
    press(m_page.get(), Down);
    QCOMPARE(m_page->field(), 1);
    // Grey again under the selection: keys leave it alone.
    m_page->level = 20;
    press(m_page.get(), Right);
    QCOMPARE(m_page->factor, 1.0);
}

void TstEditorPage::leftAndRightStopAtTheBoundsWithoutAWrite()
{
    press(m_page.get(), Left, 30);
    QCOMPARE(m_page->level, 10.0);
    QCOMPARE(m_page->writes, 30);
    press(m_page.get(), Left, 3);
    QCOMPARE(m_page->writes, 30);
    hold(m_page.get(), Right, 60);
    release(m_page.get(), Right);
    QCOMPARE(m_page->level, 100.0);
    const int writes = m_page->writes;
    press(m_page.get(), Right);
    QCOMPARE(m_page->writes, writes);
    QCOMPARE(text(m_page.get(), "level"), QStringLiteral("100 %"));
}

void TstEditorPage::heldKeyGrows()
{
    hold(m_page.get(), Right, 5);
    QCOMPARE(m_page->level, 40.0 + 1 + 3 * 1 + 2 * 5);
    release(m_page.get(), Right);
    press(m_page.get(), Left);
    QCOMPARE(m_page->level, 53.0);
    hold(m_page.get(), Right, 2);
    press(m_page.get(), Down); // another row: the key does not go on there
    QVERIFY(!m_page->findChild<KeyRepeat *>()->isActive());
}

void TstEditorPage::enterActsOnTheSelectedRow()
{
    press(m_page.get(), Enter);
    QCOMPARE(text(m_page.get(), "name"), QStringLiteral("n"));
    press(m_page.get(), Down);
    press(m_page.get(), Enter);
    QCOMPARE(text(m_page.get(), "name"), QStringLiteral("nx"));
}

void TstEditorPage::aRowWithoutStepIsLeftAlone()
{
    press(m_page.get(), Down, 3);
    press(m_page.get(), Right, 2);
    QCOMPARE(text(m_page.get(), "fixed"), QStringLiteral("always"));
    QCOMPARE(m_page->writes, 0);
}

namespace {

/// A field, a line of information with a note, a field.
class NotedEditor : public EditorPage
{
public:
    NotedEditor() : EditorPage(UI_SETUP, { "Noted" }, { 3, { 1 } }, nullptr)
    {
        Row info { "info", "Info", [this] { return fitted("info", value); }, {}, [this] { value.clear(); }, {} };
        info.note = [this] { return note; };
        info.shownOnly = true;
        setRows({ { "a", "A", {}, {}, {}, {} }, info, { "b", "B", {}, {}, {}, {} } });
        setNoKeys();
    }

    QString value = QStringLiteral("1.5");
    QString note = QStringLiteral("about");
};

} // namespace

void TstEditorPage::aRowThatIsOnlyShownIsPassedAndNotGrey()
{
    NotedEditor page;
    press(&page, Down);
    QCOMPARE(page.field(), 2);
    const auto color = [&page](const char *name) {
        return page.findChild<QLabel *>(QString::fromLatin1(name))->palette().color(QPalette::WindowText);
    };
    QCOMPARE(color("info"), color("a"));
    QCOMPARE(color("info_t"), color("a_t"));
}

void TstEditorPage::aNoteStandsBesideTheValue()
{
    NotedEditor page;
    QCOMPARE(text(&page, "info"), QStringLiteral("1.5"));
    QCOMPARE(text(&page, "info_note"), QStringLiteral("about"));
    QVERIFY(!page.findChild<QLabel *>("a_note"));
    const QRect value = page.findChild<QLabel *>("info")->geometry();
    const QRect note = page.findChild<QLabel *>("info_note")->geometry();
    QCOMPARE(note.top(), value.top());
    QVERIFY(note.right() < value.right() - 100); // both stand to the right of their room
    page.note = QStringLiteral("else");
    page.init_parameter();
    QCOMPARE(text(&page, "info_note"), QStringLiteral("else"));
}

void TstEditorPage::aLongTextIsCutToItsRow()
{
    NotedEditor page;
    page.value = QString(300, 'W');
    page.init_parameter();
    const auto *label = page.findChild<QLabel *>("info");
    QVERIFY(label->text().startsWith("WW"));
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
}

void TstEditorPage::paceIsThatOfTheSetting()
{
    struct Editor : EditorPage
    {
        using EditorPage::paceOf;
    };
    const KeyRepeat::Pace transient = Editor::paceOf("TRANS_THRESHOLD");
    QCOMPARE(transient.ticksPerStep, 5);
    QCOMPARE(transient.steps, KeyRepeat::Steps({ 1, 5, 10, 20, 50, 100 }));
    const KeyRepeat::Pace inrush = Editor::paceOf("INRUSH_THRESHOLD");
    QCOMPARE(inrush.ticksPerStep, 3);
    QCOMPARE(inrush.steps, KeyRepeat::Steps({ 1, 5, 10, 20 }));
    for (const char *key : { "JOINMODE", "NO_SUCH_KEY" })
        QCOMPARE(Editor::paceOf(key).steps, KeyRepeat::Steps({ 1 }));
}

void TstEditorPage::okStoresTheWorkingCopy()
{
    QSignalSpy stored(m_page.get(), &EditorPage::stored);
    press(m_page.get(), Right, 2);
    QCOMPARE(m_page->storedLevel, 40.0);
    press(m_page.get(), F4);
    QCOMPARE(m_page->storedLevel, 42.0);
    QCOMPARE(stored.count(), 1);
}

void TstEditorPage::cancelDropsTheWorkingCopy()
{
    QSignalSpy cancelled(m_page.get(), &EditorPage::cancelled);
    press(m_page.get(), Right, 2);
    press(m_page.get(), F5);
    QCOMPARE(m_page->storedLevel, 40.0);
    QCOMPARE(text(m_page.get(), "level"), QStringLiteral("40 %"));
    QCOMPARE(cancelled.count(), 1);
}

void TstEditorPage::f5IsNeverHold()
{
    /// Without a row for F5.
    class BareEditor : public EditorPage
    {
    public:
        BareEditor() : EditorPage(UI_SETUP, { "Bare" }, { 3, { 1 } }, nullptr)
        {
            setRows({});
            setNoKeys();
        }
    } bare;
    QSignalSpy pause(&bare, &LivePage::pause);
    bare.init_parameter();
    for (FrontKey key : { F5, Up, Down, Left, Right })
        press(&bare, key);
    press(&bare, Enter);
    QCOMPARE(pause.count(), 0);
    QCOMPARE(text(&bare, "btn_f5"), QString());
}

void TstEditorPage::aReadingOutsideTheBoundsComesBackInside()
{
    m_page->level = 500;
    press(m_page.get(), Right);
    QCOMPARE(m_page->level, 100.0);
    m_page->level = -3;
    press(m_page.get(), Left);
    QCOMPARE(m_page->level, 10.0);
}

namespace {

/// An editor of nothing but a start time.
class StartEditor : public EditorPage
{
public:
    explicit StartEditor(int height = Look().height)
        : EditorPage(UI_LOGGER, { "Start", 50, 50, 240, height }, { 3, { 1, 5, 10, 20 } }, nullptr)
    {
        setRows(start.rows());
        setNoKeys();
    }

    StartTime start;

protected:
    void load() override { start.reset(QDateTime(QDate(2024, 2, 29), QTime(23, 58, 17))); }
};

} // namespace

void TstEditorPage::startIsImmediateAtFirst()
{
    StartEditor page;
    page.init_parameter();
    QVERIFY(page.start.isImmediate());
    QCOMPARE(text(&page, "start"), QStringLiteral("Immediate"));
    QCOMPARE(text(&page, "year"), QStringLiteral("2024"));
    QCOMPARE(text(&page, "month"), QStringLiteral("02"));
    QCOMPARE(text(&page, "minutes"), QStringLiteral("58"));
    press(&page, Down, 3);
    QCOMPARE(page.field(), 0); // the date is grey
}

void TstEditorPage::timedStartOpensTheDate()
{
    StartEditor page;
    page.init_parameter();
    press(&page, Enter);
    QCOMPARE(text(&page, "start"), QStringLiteral("Timed"));
    press(&page, Down, 5);
    QCOMPARE(page.field(), 5);
    press(&page, Right, 3);
    QCOMPARE(text(&page, "minutes"), QStringLiteral("59"));
    QCOMPARE(page.start.time(), QDateTime(QDate(2024, 2, 29), QTime(23, 59)));
    press(&page, Up, 5);
    press(&page, Left);
    QVERIFY(page.start.isImmediate());
}

void TstEditorPage::dayFollowsMonthAndYear_data()
{
    QTest::addColumn<QDate>("from");
    QTest::addColumn<int>("years");
    QTest::addColumn<int>("months");
    QTest::addColumn<QDate>("to");
    QTest::newRow("leap day, next year") << QDate(2024, 2, 29) << 1 << 0 << QDate(2025, 2, 28);
    QTest::newRow("leap day, next leap year") << QDate(2024, 2, 29) << 4 << 0 << QDate(2028, 2, 29);
    QTest::newRow("31 January, one month on") << QDate(2023, 1, 31) << 0 << 1 << QDate(2023, 2, 28);
    QTest::newRow("31 May, one month on") << QDate(2023, 5, 31) << 0 << 1 << QDate(2023, 6, 30);
    QTest::newRow("December stays December") << QDate(2023, 12, 5) << 0 << 1 << QDate(2023, 12, 5);
    QTest::newRow("the last year") << QDate(2095, 3, 1) << 20 << 0 << QDate(2099, 3, 1);
    QTest::newRow("the first year") << QDate(2005, 3, 1) << -20 << 0 << QDate(2000, 3, 1);
}

void TstEditorPage::dayFollowsMonthAndYear()
{
    QFETCH(QDate, from);
    QFETCH(int, years);
    QFETCH(int, months);
    QFETCH(QDate, to);
    StartTime start;
    start.reset(QDateTime(from, QTime(12, 0)));
    if (years)
        start.stepYear(years);
    if (months)
        start.stepMonth(months);
    QCOMPARE(start.time().date(), to);
}

void TstEditorPage::fieldsOfATimeStopAtTheirBounds()
{
    StartTime start;
    start.reset(QDateTime(QDate(2023, 4, 15), QTime(12, 30)));
    start.stepDay(100);
    start.stepHour(100);
    start.stepMinute(100);
    QCOMPARE(start.time(), QDateTime(QDate(2023, 4, 30), QTime(23, 59)));
    start.stepDay(-100);
    start.stepHour(-100);
    start.stepMinute(-100);
    QCOMPARE(start.time(), QDateTime(QDate(2023, 4, 1), QTime(0, 0)));
}

void TstEditorPage::aBrokenClockStillGivesADate()
{
    StartTime start;
    start.reset(QDateTime());
    QVERIFY(start.time().isValid());
    start.reset(QDateTime(QDate(1970, 1, 1), QTime(0, 0)));
    QCOMPARE(start.time().date(), QDate(2000, 1, 1));
}

void TstEditorPage::plannedStartIsAMomentOfTheZone()
{
    const QTimeZone berlin("Europe/Berlin");
    StartTime start;
    start.reset(QDateTime(QDate(2024, 7, 1), QTime(12, 0)));
    QCOMPARE(start.begin(berlin), 0u); // at once
    start.rows().front().enter();
    QCOMPARE(start.begin(berlin), 1719828000u); // 10:00 UTC
    QCOMPARE(start.begin(QTimeZone::utc()), 1719828000u + 7200u);
    // 02:30 does not exist on the day on which summer time begins: 03:30, which is 01:30 UTC.
    start.stepMonth(-4);
    start.stepDay(30);
    start.stepHour(-10);
    start.stepMinute(30);
    QCOMPARE(start.begin(berlin), 1711848600u);
}

void TstEditorPage::rowsAreAsHighAsThePageAsks()
{
    StartEditor page(34);
    QCOMPARE(page.findChild<QLabel *>("field_bar")->height(), 34);
    QCOMPARE(page.findChild<QLabel *>("month")->height(), 34);
    StartEditor plain;
    QCOMPARE(plain.findChild<QLabel *>("field_bar")->height(), 44);
}

QTEST_MAIN(TstEditorPage)
#include "tst_editorpage.moc"
