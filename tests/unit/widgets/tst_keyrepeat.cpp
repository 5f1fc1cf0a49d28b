#include "widgets/controls/keyrepeat.h"

#include <QKeyEvent>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

class TstKeyRepeat : public QObject
{
    Q_OBJECT

private slots:
    void firstStepIsMadeAtOnce();
    void stepGrowsAfterMoreThanThreeTicks();
    void backwardStepsGrowLikewise();
    void longRangesWaitForFiveTicksAndGrowToAHundred();
    void releaseStopsAndStartsAgainWithOne();
    void aKeyThatRepeatsByItselfChangesNothing();
    void theOppositeKeyStartsAnew();
    void timerRepeatsWithoutFurtherHelp();
    void hiddenPageStops();
    void pageThatLosesItsWindowStops();
    void anEmptyListOfStepsCountsAsOne();

private:
    /// Starts forward and goes on until the step is 5.
    static void startAndGrow(KeyRepeat &repeat)
    {
        repeat.start(1);
        for (int i = 0; i < 4; ++i)
            repeat.tick();
    }

    static QList<int> steps(const QSignalSpy &spy)
    {
        QList<int> list;
        for (const QList<QVariant> &call : spy)
            list << call.first().toInt();
        return list;
    }
};

void TstKeyRepeat::firstStepIsMadeAtOnce()
{
    QWidget page;
    KeyRepeat repeat(&page, 3);
    QSignalSpy spy(&repeat, &KeyRepeat::repeated);
    repeat.start(1);
    QCOMPARE(steps(spy), QList<int>({ 1 }));
    QVERIFY(repeat.isActive());
    QCOMPARE(KeyRepeat::kPeriod, 300);
}

void TstKeyRepeat::stepGrowsAfterMoreThanThreeTicks()
{
    QWidget page;
    KeyRepeat repeat(&page, 3);
    QSignalSpy spy(&repeat, &KeyRepeat::repeated);
    repeat.start(1);
    for (int i = 0; i < 20; ++i)
        repeat.tick();
    // The press, three ticks at 1; the fourth grows and counts as the first at 5, and so on; 20 stays.
    QCOMPARE(steps(spy), QList<int>({ 1, 1, 1, 1, 5, 5, 5, 10, 10, 10, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20, 20 }));
}

void TstKeyRepeat::backwardStepsGrowLikewise()
{
    QWidget page;
    KeyRepeat repeat(&page, 3);
    QSignalSpy spy(&repeat, &KeyRepeat::repeated);
    repeat.start(-1);
    for (int i = 0; i < 10; ++i)
        repeat.tick();
    QCOMPARE(steps(spy), QList<int>({ -1, -1, -1, -1, -5, -5, -5, -10, -10, -10, -20 }));
}

void TstKeyRepeat::longRangesWaitForFiveTicksAndGrowToAHundred()
{
    QWidget page;
    KeyRepeat repeat(&page, 5, { 1, 5, 10, 20, 50, 100 });
    QSignalSpy spy(&repeat, &KeyRepeat::repeated);
    repeat.start(1);
    for (int i = 0; i < 27; ++i)
        repeat.tick();
    QCOMPARE(steps(spy), QList<int>({ 1,  1,  1,  1,  1,  1,  5,  5,  5,  5,  5,  10, 10,  10,
                                      10, 10, 20, 20, 20, 20, 20, 50, 50, 50, 50, 50, 100, 100 }));
}

void TstKeyRepeat::releaseStopsAndStartsAgainWithOne()
{
    QWidget page;
    KeyRepeat repeat(&page, 3);
    repeat.start(-1);
    for (int i = 0; i < 5; ++i)
        repeat.tick();
    QCOMPARE(repeat.step(), -5);
    QSignalSpy spy(&repeat, &KeyRepeat::repeated);
    repeat.stop();
    repeat.tick();
    QCOMPARE(spy.count(), 0);
    QVERIFY(!repeat.isActive());
    repeat.start(1);
    QCOMPARE(steps(spy), QList<int>({ 1 }));
}

void TstKeyRepeat::aKeyThatRepeatsByItselfChangesNothing()
{
    QWidget page;
    KeyRepeat repeat(&page, 3);
    startAndGrow(repeat);
    QSignalSpy spy(&repeat, &KeyRepeat::repeated);
    repeat.start(1);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(repeat.step(), 5);
    // The page sees neither the keyboard's own presses nor its releases in between.
    for (const QEvent::Type type : { QEvent::KeyRelease, QEvent::KeyPress }) {
        QKeyEvent event(type, Qt::Key_O, Qt::NoModifier, QString(), true);
        event.ignore();
        QCoreApplication::sendEvent(&page, &event);
        QVERIFY(event.isAccepted());
        QVERIFY(repeat.isActive());
    }
}

void TstKeyRepeat::theOppositeKeyStartsAnew()
{
    QWidget page;
    KeyRepeat repeat(&page, 3);
    startAndGrow(repeat);
    QSignalSpy spy(&repeat, &KeyRepeat::repeated);
    repeat.start(-1);
    QCOMPARE(steps(spy), QList<int>({ -1 }));
}

void TstKeyRepeat::timerRepeatsWithoutFurtherHelp()
{
    QWidget page;
    KeyRepeat repeat(&page, 3);
    QSignalSpy spy(&repeat, &KeyRepeat::repeated);
    repeat.start(1);
    QTRY_VERIFY_WITH_TIMEOUT(spy.count() >= 3, 20000);
}

void TstKeyRepeat::hiddenPageStops()
{
    QWidget page;
    page.show();
    KeyRepeat repeat(&page, 3);
    repeat.start(1);
    page.hide();
    QVERIFY(!repeat.isActive());
}

void TstKeyRepeat::pageThatLosesItsWindowStops()
{
    QWidget page;
    KeyRepeat repeat(&page, 3);
    repeat.start(1);
    QEvent event(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(&page, &event);
    QVERIFY(!repeat.isActive());
}

void TstKeyRepeat::anEmptyListOfStepsCountsAsOne()
{
    QWidget page;
    KeyRepeat repeat(&page, 0, {});
    QSignalSpy spy(&repeat, &KeyRepeat::repeated);
    repeat.start(1);
    repeat.tick();
    QCOMPARE(steps(spy), QList<int>({ 1, 1 }));
}

QTEST_MAIN(TstKeyRepeat)
#include "tst_keyrepeat.moc"
