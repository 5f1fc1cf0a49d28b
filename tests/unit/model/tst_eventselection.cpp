#include "model/eventselection.h"

#include <QSignalSpy>
#include <QTest>

/// The one list of events and what is selected of it.
class TstEventSelection : public QObject
{
    Q_OBJECT

private slots:
    void listSaysWhichEventIsNewOrChanged();
    void emptiedListBeginsANewGeneration();
    void selectionHoldsItsKindsInTheirOrder();
    void changedEventComesGoesAndStaysInOrder();
    void selectionOfAnEmptiedListIsEmptyUntilItLooksAgain();
    void selectionKnowsOnlyWhatItHeardOf();
    void amongNarrowsTheKinds();
    void stepByStepOrAllAtOnceIsTheSame();
    void heldEventsStayAsTheyWere();
    void selectionOfAHeldListIsOfThatMoment();
    void releaseIsToldOnce();
    void emptyingAHeldListReleasesIt();

private:
    static PQAEventItem event(qint32 type)
    {
        PQAEventItem item;
        item.type = type;
        return item;
    }
    static QList<int> types(const EventSelection &selection)
    {
        QList<int> list;
        for (int i = 0; i < selection.size(); ++i)
            list << selection.at(i).type;
        return list;
    }
    static constexpr EventKinds kDips = { EventDip, EventRvc };
};

void TstEventSelection::listSaysWhichEventIsNewOrChanged()
{
    EventList list;
    QSignalSpy changed(&list, &EventList::changed);
    list.append(event(EventDip));
    list.append(event(EventSwell));
    list.change(0, [](PQAEventItem &item) { item.finished = 1; });
    list.quietly(1).startRms[0].append({ 1, 2 });
    QCOMPARE(changed.count(), 3);
    QCOMPARE(changed.at(0).at(0).toInt(), 0);
    QCOMPARE(changed.at(1).at(0).toInt(), 1);
    QCOMPARE(changed.at(2).at(0).toInt(), 0);
    QCOMPARE(list.at(0).finished, 1);
}

void TstEventSelection::emptiedListBeginsANewGeneration()
{
    EventList list;
    list.append(event(EventDip));
    list.finish();
    QVERIFY(list.isOver());
    QCOMPARE(list.size(), 1);
    QSignalSpy cleared(&list, &EventList::cleared);
    const quint32 before = list.generation();
    list.clear();
    QCOMPARE(cleared.count(), 1);
    QVERIFY(list.isEmpty());
    QVERIFY(!list.isOver());
    QVERIFY(list.generation() != before);
}

void TstEventSelection::selectionHoldsItsKindsInTheirOrder()
{
    EventList list;
    for (int type : { 28, 25, 29, 27, 33, 30, 27, 31 })
        list.append(event(type));
    EventSelection dips(list, kDips);
    dips.refresh();
    QCOMPARE(types(dips), QList<int>({ 28, 29, 27, 30, 27 }));
    EventSelection all(list, kAllEvents);
    all.refresh();
    QCOMPARE(all.size(), 8);
}

void TstEventSelection::changedEventComesGoesAndStaysInOrder()
{
    EventList list;
    for (int type : { 27, 33, 28 })
        list.append(event(type));
    EventSelection dips(list, kDips);
    dips.refresh();
    const auto turn = [&](int place, int type) {
        list.change(place, [type](PQAEventItem &item) { item.type = type; });
        return dips.update(place);
    };
    QVERIFY(turn(1, 30));
    QCOMPARE(types(dips), QList<int>({ 27, 30, 28 }));
    QVERIFY(turn(0, 29));
    QCOMPARE(types(dips), QList<int>({ 29, 30, 28 }));
    QVERIFY(turn(0, 32));
    QCOMPARE(types(dips), QList<int>({ 30, 28 }));
    QVERIFY(!turn(0, 31)); // none of ours, before or after
    QCOMPARE(types(dips), QList<int>({ 30, 28 }));
}

void TstEventSelection::selectionOfAnEmptiedListIsEmptyUntilItLooksAgain()
{
    EventList list;
    list.append(event(EventDip));
    list.append(event(EventDip));
    EventSelection dips(list, kDips);
    dips.refresh();
    QCOMPARE(dips.size(), 2);
    list.clear();
    QVERIFY(dips.isEmpty());
    QVERIFY(dips.among(kDips).isEmpty());
    list.append(event(EventSwell));
    QVERIFY(dips.isEmpty()); // its places are of the former list
    QVERIFY(dips.update(0));
    QCOMPARE(types(dips), QList<int>({ 28 }));
}

void TstEventSelection::selectionKnowsOnlyWhatItHeardOf()
{
    EventList list;
    EventSelection dips(list, kDips);
    list.append(event(EventDip));
    QVERIFY(dips.isEmpty());
    QVERIFY(dips.update(0));
    QCOMPARE(dips.size(), 1);
    QVERIFY(dips.update(0)); // again: it may have changed, and is there once
    QCOMPARE(dips.size(), 1);
}

void TstEventSelection::amongNarrowsTheKinds()
{
    EventList list;
    for (int type = 0; type <= 34; ++type)
        list.append(event(type));
    EventSelection dips(list, kDips);
    dips.refresh();
    QCOMPARE(types(dips.among({ EventSwell, EventInrush })), QList<int>({ 28, 29, 30 }));
    QVERIFY(dips.among({ EventInrush, EventInrush }).isEmpty());

    // Events that come later go by both: what the part asks for, and what the whole takes.
    EventSelection part = dips.among({ EventSwell, EventInrush });
    list.append(event(EventUnbalance));
    QVERIFY(!part.update(list.size() - 1));
    list.append(event(EventDip));
    QVERIFY(!part.update(list.size() - 1));
    list.append(event(EventRvc));
    QVERIFY(part.update(list.size() - 1));
    QCOMPARE(types(part), QList<int>({ 28, 29, 30, 30 }));
}

void TstEventSelection::stepByStepOrAllAtOnceIsTheSame()
{
    EventList list;
    EventSelection steps(list, kDips);
    quint32 state = 1;
    const auto next = [&](int below) {
        state = state * 1664525u + 1013904223u;
        return int((state >> 16) % quint32(below));
    };
    for (int i = 0; i < 2000; ++i) {
        int place = list.size();
        const int type = next(35);
        if (list.isEmpty() || next(2))
            list.append(event(type));
        else
            list.change(place = next(list.size()), [type](PQAEventItem &item) { item.type = type; });
        steps.update(place);
        if (next(500) == 0)
            list.clear();
    }
    EventSelection whole(list, kDips);
    whole.refresh();
    if (steps.isEmpty())
        steps.refresh();
    QCOMPARE(types(steps), types(whole));
    QVERIFY(whole.size() > 10);
}

void TstEventSelection::heldEventsStayAsTheyWere()
{
    EventList list;
    list.append(event(EventDip));
    list.append(event(EventSwell));
    list.hold();
    const auto finish = [](PQAEventItem &item) { ++item.finished; };
    list.change(1, finish);
    list.change(1, finish);
    list.append(event(EventRvc));
    list.change(2, finish);
    list.hold(); // while held it changes nothing
    QCOMPARE(list.shownSize(), 2);
    QCOMPARE(list.shownAt(1).finished, 0);
    QCOMPARE(list.at(1).finished, 2);
    list.run();
    QCOMPARE(list.shownSize(), 3);
    QCOMPARE(list.shownAt(1).finished, 2);
    QCOMPARE(list.shownAt(2).finished, 1);
}

void TstEventSelection::selectionOfAHeldListIsOfThatMoment()
{
    EventList list;
    for (int type : { 27, 33, 28 })
        list.append(event(type));
    EventSelection dips(list, kDips);
    dips.refresh();
    list.hold();
    list.change(0, [](PQAEventItem &item) { item.type = EventFrequency; });
    list.change(1, [](PQAEventItem &item) { item.type = EventRvc; });
    list.append(event(EventInterruption));
    QCOMPARE(types(dips), QList<int>({ 27, 28 }));
    QCOMPARE(types(dips.among({ EventDip, EventDip })), QList<int>({ 27 }));
    EventSelection late(list, kDips);
    late.refresh();
    QCOMPARE(types(late), QList<int>({ 27, 28 }));
    list.run();
    dips.refresh();
    QCOMPARE(types(dips), QList<int>({ 30, 28, 29 }));
}

void TstEventSelection::releaseIsToldOnce()
{
    EventList list;
    QSignalSpy released(&list, &EventList::released);
    list.run();
    QCOMPARE(released.count(), 0);
    list.hold();
    QVERIFY(list.isHeld());
    list.run();
    list.run();
    QCOMPARE(released.count(), 1);
    QVERIFY(!list.isHeld());
}

void TstEventSelection::emptyingAHeldListReleasesIt()
{
    EventList list;
    list.append(event(EventDip));
    list.hold();
    list.change(0, [](PQAEventItem &item) { item.type = EventSwell; });
    list.clear();
    QVERIFY(!list.isHeld());
    QCOMPARE(list.shownSize(), 0);
    list.append(event(EventRvc));
    QCOMPARE(list.shownSize(), 1);
    QCOMPARE(list.shownAt(0).type, int(EventRvc));
}

QTEST_GUILESS_MAIN(TstEventSelection)
#include "tst_eventselection.moc"
