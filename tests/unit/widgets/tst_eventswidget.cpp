#include "painted.h"

#include "settings/config_data.h"
#include "widgets/controls/eventswidget.h"
#include "widgets/controls/readingmarks.h"

#include <QTest>

#include <cmath>

class TstEventsWidget : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_userConfig_g.setTimeZone(QStringLiteral("UTC")); }
    void filterShowsItsKinds_data();
    void filterShowsItsKinds();
    void filterOfSevenAndAboveShowsAll();
    void filterFiveShowsUnbalanceAndFrequency();
    void anotherFilterBeginsAtTheTop();
    void everyKindHasItsName();
    void anEmptyListDrawsTheHeaderOnly();
    void theFourteenthEventShowsOnlyAfterScrolling();
    void selectNextOnTheLastRowOfTheLastPageDoesNothing();
    void selectNextOnAnEmptyTableDoesNothing();
    void selectPrevScrollsBackAtTheFirstRow();
    void aShorterListKeepsSelectionInside();
    void aNullListResetsRowsAndCounts();
    void timeIsShownInTheUsersZone();
    void levelHasOneDecimal();
    void anUnfinishedDipHasNoDurationNorHasARapidVoltageChange();
    void aFinishedEventShowsItsDuration();
    void anUnknownKindHasNoName();
    void aCountSetByHandReadsNothingBeyondTheList();
    void rowsStandEvery22PixelsFrom30();
    void selectedRowIsMarkedForThoseWhoHearIt();
};

/// A list of events with all of them selected, as a page holds them.
class Lines
{
public:
    explicit Lines(const QList<__event_item> &events) : m_selection(m_list, kAllEvents)
    {
        for (const __event_item &event : events)
            m_list.append({ event, {}, {} });
        m_selection.refresh();
    }
    const EventSelection *all() const { return &m_selection; }

private:
    EventList m_list;
    EventSelection m_selection;
};

static __event_item item(int type, int channel = 0, float value = 0)
{
    __event_item event;
    event.type = type;
    event.channel = channel;
    event.value = value;
    return event;
}

static QList<__event_item> dips(int count)
{
    QList<__event_item> list;
    for (int i = 0; i < count; ++i)
        list.append(item(EventDip, 0, float(i)));
    return list;
}

static QList<__event_item> oneOfEach()
{
    QList<__event_item> list;
    for (int type = 0; type <= 34; ++type)
        list.append(item(type));
    return list;
}

void TstEventsWidget::filterShowsItsKinds_data()
{
    QTest::addColumn<int>("filter");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("rms") << 1 << QStringList { "L1 RMS" };
    QTest::newRow("flicker") << 3 << QStringList { "L1 FLK" };
    QTest::newRow("dips and the like") << 4 << QStringList { "L1 DIP", "L1 SWL", "L1 INT", "L1 RVC" };
    QTest::newRow("unbalance, frequency") << 5 << QStringList { "L1 UNBAL", "L1  Hz" };
    QTest::newRow("mains signalling") << 6 << QStringList { "L1 MSIG" };
}

void TstEventsWidget::filterShowsItsKinds()
{
    QFETCH(int, filter);
    QFETCH(QStringList, names);
    EventsWidget table;
    const Lines list(oneOfEach());
    table.refreshEventList(list.all());
    QCOMPARE(table.eventsCnt(), 35);
    table.changeEventType(filter);
    QCOMPARE(table.eventsCnt(), names.size());
    for (int i = 0; i < names.size(); ++i)
        QCOMPARE(table.lineTexts(i).at(1), names.at(i));
}

void TstEventsWidget::filterOfSevenAndAboveShowsAll()
{
    EventsWidget table;
    const Lines list(oneOfEach());
    table.refreshEventList(list.all());
    table.changeEventType(2);
    QCOMPARE(table.eventsCnt(), 25); // distortion and the orders 2 to 25
    for (const int type : { 7, 100, -1 }) {
        table.changeEventType(type);
        QCOMPARE(table.eventType(), 0);
        QCOMPARE(table.eventsCnt(), 35);
    }
}

void TstEventsWidget::filterFiveShowsUnbalanceAndFrequency()
{
    EventsWidget table;
    const Lines list({ item(EventFrequency), item(EventInrush), item(EventUnbalance), item(EventDip) });
    table.refreshEventList(list.all());
    table.changeEventType(5);
    QCOMPARE(table.eventsCnt(), 2);
    QCOMPARE(table.lineTexts(0).at(1), QStringLiteral("L1  Hz"));
    QCOMPARE(table.lineTexts(1).at(1), QStringLiteral("L1 UNBAL"));
}

void TstEventsWidget::anotherFilterBeginsAtTheTop()
{
    EventsWidget table;
    const Lines list(dips(40));
    table.refreshEventList(list.all());
    for (const int filter : { 4, 0 }) { // both show all forty
        for (int i = 0; i < 20; ++i)
            table.selectNextItem();
        QVERIFY(table.firstShown() > 0);
        table.changeEventType(filter);
        QCOMPARE(table.eventsCnt(), 40);
        QCOMPARE(table.firstShown(), 0);
        QCOMPARE(table.row(), 0);
    }
}

void TstEventsWidget::everyKindHasItsName()
{
    QStringList names { "L%1 THD" };
    for (int order = 2; order <= 25; ++order)
        names << (order < 10 ? QStringLiteral("L%1  H") : QStringLiteral("L%1 H")) + QString::number(order);
    names << "L%1 RMS"
          << "L%1 FLK"
          << "L%1 DIP"
          << "L%1 SWL"
          << "L%1 INT"
          << "L%1 RVC"
          << "L%1 UNBAL"
          << "L%1  Hz"
          << "L%1 INRUSH"
          << "L%1 MSIG";
    EventsWidget table;
    for (int channel = 0; channel < 4; ++channel) {
        QList<__event_item> events;
        for (int type = 0; type <= 34; ++type)
            events.append(item(type, channel));
        const Lines list(events);
        table.refreshEventList(list.all());
        for (int type = 0; type <= 34; ++type)
            QCOMPARE(table.lineTexts(type).at(1), QString(names.at(type)).arg(channel + 1));
    }
}

static QImage table(EventsWidget &widget)
{
    widget.resize(600, 320);
    return painted(widget);
}

void TstEventsWidget::anEmptyListDrawsTheHeaderOnly()
{
    EventsWidget widget;
    const QImage before = table(widget);
    const Lines list({});
    widget.refreshEventList(list.all());
    QCOMPARE(widget.eventsCnt(), 0);
    QCOMPARE(widget.firstShown(), 0);
    QCOMPARE(widget.lastShown(), 0);
    QCOMPARE(table(widget), before);
    QVERIFY(countPixels(before, edges(0, 0, 599, 20), Qt::white) > 50);
    QCOMPARE(countPixels(before, edges(0, 30, 599, 319), Qt::white), 0);
}

void TstEventsWidget::theFourteenthEventShowsOnlyAfterScrolling()
{
    EventsWidget widget;
    const Lines list(dips(14));
    widget.refreshEventList(list.all());
    QCOMPARE(widget.firstShown(), 0);
    QCOMPARE(widget.lastShown(), 13);
    for (int i = 0; i < 12; ++i)
        widget.selectNextItem();
    QCOMPARE(widget.row(), 12);
    QCOMPARE(widget.firstShown(), 0);
    widget.selectNextItem();
    QCOMPARE(widget.row(), 12);
    QCOMPARE(widget.firstShown(), 1);
    QCOMPARE(widget.lastShown(), 14);
}

void TstEventsWidget::selectNextOnTheLastRowOfTheLastPageDoesNothing()
{
    EventsWidget widget;
    for (const int count : { 1, 5, 13, 14, 40 }) {
        const Lines list(dips(count));
        widget.refreshEventList(nullptr);
        widget.refreshEventList(list.all());
        for (int i = 0; i < 100; ++i)
            widget.selectNextItem();
        QCOMPARE(widget.firstShown() + widget.row(), count - 1);
        QCOMPARE(widget.lastShown(), count);
    }
}

void TstEventsWidget::selectNextOnAnEmptyTableDoesNothing()
{
    EventsWidget widget;
    widget.selectNextItem();
    widget.selectPrevItem();
    QCOMPARE(widget.row(), 0);
    QCOMPARE(widget.firstShown(), 0);
    QCOMPARE(widget.lastShown(), 0);
}

void TstEventsWidget::selectPrevScrollsBackAtTheFirstRow()
{
    EventsWidget widget;
    const Lines list(dips(20));
    widget.refreshEventList(list.all());
    for (int i = 0; i < 19; ++i)
        widget.selectNextItem();
    QCOMPARE(widget.firstShown(), 7);
    for (int i = 0; i < 12; ++i)
        widget.selectPrevItem();
    QCOMPARE(widget.row(), 0);
    QCOMPARE(widget.firstShown(), 7);
    widget.selectPrevItem();
    QCOMPARE(widget.row(), 0);
    QCOMPARE(widget.firstShown(), 6);
    QCOMPARE(widget.lastShown(), 19);
    for (int i = 0; i < 20; ++i)
        widget.selectPrevItem();
    QCOMPARE(widget.firstShown(), 0);
    QCOMPARE(widget.lastShown(), 13);
}

void TstEventsWidget::aShorterListKeepsSelectionInside()
{
    EventsWidget widget;
    const Lines many(dips(40));
    widget.refreshEventList(many.all());
    for (int i = 0; i < 39; ++i)
        widget.selectNextItem();
    const Lines few(dips(3));
    widget.refreshEventList(few.all());
    QCOMPARE(widget.firstShown(), 0);
    QCOMPARE(widget.lastShown(), 3);
    QVERIFY(widget.row() < 3);
    QCOMPARE(table(widget).size(), QSize(600, 320));
}

void TstEventsWidget::aNullListResetsRowsAndCounts()
{
    EventsWidget widget;
    const Lines list(dips(20));
    widget.refreshEventList(list.all());
    for (int i = 0; i < 15; ++i)
        widget.selectNextItem();
    widget.refreshEventList(nullptr);
    QCOMPARE(widget.row(), 0);
    QCOMPARE(widget.eventsCnt(), 0);
    QCOMPARE(widget.firstShown(), 0);
    QCOMPARE(widget.lastShown(), 0);
}

void TstEventsWidget::timeIsShownInTheUsersZone()
{
    __event_item event = item(EventDip);
    event.startSeconds = 1700000000; // 2023-11-14 22:13:20 UTC
    const Lines list({ event });
    EventsWidget widget;
    widget.refreshEventList(list.all());
    QCOMPARE(widget.lineTexts(0).at(0), QStringLiteral("2023/11/14 22:13:20"));
    m_userConfig_g.setTimeZone(QStringLiteral("Asia/Shanghai"));
    QCOMPARE(widget.lineTexts(0).at(0), QStringLiteral("2023/11/15 06:13:20"));
}

void TstEventsWidget::levelHasOneDecimal()
{
    const Lines list({ item(EventSwell, 0, 251.26f), item(EventSwell, 0, NAN) });
    EventsWidget widget;
    widget.refreshEventList(list.all());
    QCOMPARE(widget.lineTexts(0).at(2), QStringLiteral("251.3"));
    QCOMPARE(widget.lineTexts(1).at(2), QStringLiteral("0.0"));
}

void TstEventsWidget::anUnfinishedDipHasNoDurationNorHasARapidVoltageChange()
{
    __event_item dip = item(EventDip);
    dip.duration = 5000;
    __event_item change = item(EventRvc);
    change.duration = 5000;
    change.finished = 1;
    const Lines list({ dip, change });
    EventsWidget widget;
    widget.refreshEventList(list.all());
    QCOMPARE(widget.lineTexts(0).at(3), QString());
    QCOMPARE(widget.lineTexts(1).at(3), QString());
}

void TstEventsWidget::aFinishedEventShowsItsDuration()
{
    __event_item dip = item(EventDip);
    dip.finished = 1;
    dip.duration = 3723045; // 1 h 2 min 3.045 s
    const Lines list({ dip });
    EventsWidget widget;
    widget.refreshEventList(list.all());
    QCOMPARE(widget.lineTexts(0).at(3), QStringLiteral("01:02:03:045"));
}

void TstEventsWidget::anUnknownKindHasNoName()
{
    const Lines list({ item(35), item(-1), item(INT_MAX) });
    EventsWidget widget;
    widget.refreshEventList(list.all());
    for (int i = 0; i < 3; ++i)
        QCOMPARE(widget.lineTexts(i).at(1), QString());
    QCOMPARE(table(widget).size(), QSize(600, 320));
}

void TstEventsWidget::aCountSetByHandReadsNothingBeyondTheList()
{
    EventsWidget widget;
    const Lines list(dips(2));
    widget.refreshEventList(list.all());
    widget.setEventCnt(500);
    for (int i = 0; i < 30; ++i)
        widget.selectNextItem();
    widget.setEventType(4); // not filtered yet
    QCOMPARE(table(widget).size(), QSize(600, 320));
    QCOMPARE(widget.lineTexts(400), QStringList());
}

void TstEventsWidget::rowsStandEvery22PixelsFrom30()
{
    EventsWidget widget;
    const Lines list(dips(13));
    widget.refreshEventList(list.all());
    widget.resize(600, 320);
    const QImage image = painted(widget);
    for (int row = 0; row < 13; ++row) {
        const int top = 30 + 22 * row;
        QVERIFY(countPixels(image, edges(10, top, 200, top + 20), Qt::white) > 20); // time
        QVERIFY(countPixels(image, edges(220, top, 300, top + 20), Qt::white) > 10); // kind
        QVERIFY(countPixels(image, edges(320, top, 400, top + 20), Qt::white) > 3); // level
    }
}

void TstEventsWidget::selectedRowIsMarkedForThoseWhoHearIt()
{
    EventsWidget widget;
    const auto place = [&widget] { return (table(widget), ReadingMarks::selection(&widget).place); };
    QVERIFY(place().isEmpty());
    const Lines list(dips(3));
    widget.refreshEventList(list.all());
    QVERIFY(place().contains(100, 30 + 11)); // the middle of the first row
    widget.selectNextItem();
    QVERIFY(place().contains(100, 30 + 22 + 11));
    QVERIFY(!place().contains(100, 30 + 11));
    widget.refreshEventList(nullptr);
    QVERIFY(place().isEmpty());
}

QTEST_MAIN(TstEventsWidget)
#include "tst_eventswidget.moc"
