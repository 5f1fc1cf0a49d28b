#include "widgets/controls/scrollmodel.h"

#include <QTest>

/// Window, selection and check marks of a list of five rows a page.
class TstScrollModel : public QObject
{
    Q_OBJECT

private slots:
    void anEmptyListHasNoSelection();
    void selectionMovesBeforeTheWindow();
    void linesStopAtBothEnds();
    void largeStepsKeepTheSelectionInTheWindow();
    void pagesBeginAtMultiplesOfTheRows();
    void aShorterListKeepsWhatItCan();
    void aListThatGrowsKeepsItsPlace();
    void marksBelongToLines();
    void resetForgetsPlaceAndMarks();
    void aPageHasAtLeastOneRow();
};

void TstScrollModel::anEmptyListHasNoSelection()
{
    ScrollModel list(5);
    for (int step : { -1, 1, 100 }) {
        list.moveLines(step);
        list.movePages(step);
        QCOMPARE(list.selected(), -1);
        QCOMPARE(list.first(), 0);
        QCOMPARE(list.end(), 0);
    }
    list.setChecked(0, true);
    QVERIFY(!list.isChecked(0));
    list.setCount(-3);
    QCOMPARE(list.count(), 0);
}

void TstScrollModel::selectionMovesBeforeTheWindow()
{
    ScrollModel list(5);
    list.setCount(8);
    for (int i = 0; i < 4; ++i)
        list.moveLines(1);
    QCOMPARE(list.first(), 0);
    QCOMPARE(list.row(), 4);
    list.moveLines(1);
    QCOMPARE(list.first(), 1);
    QCOMPARE(list.row(), 4);
    QCOMPARE(list.selected(), 5);
    QCOMPARE(list.end(), 6);
    list.moveLines(-1);
    QCOMPARE(list.first(), 1); // the selection goes up inside the window
    QCOMPARE(list.row(), 3);
}

void TstScrollModel::linesStopAtBothEnds()
{
    ScrollModel list(5);
    list.setCount(7);
    list.moveLines(100);
    QCOMPARE(list.selected(), 6);
    QCOMPARE(list.first(), 2);
    list.moveLines(1);
    QCOMPARE(list.selected(), 6);
    list.moveLines(-100);
    QCOMPARE(list.selected(), 0);
    QCOMPARE(list.first(), 0);
}

void TstScrollModel::largeStepsKeepTheSelectionInTheWindow()
{
    ScrollModel list(5);
    list.setCount(100);
    for (int step : { 20, -7, 33, -1, 60, -90, 3 }) {
        list.moveLines(step);
        QVERIFY(list.selected() >= list.first() && list.selected() < list.end());
        QCOMPARE(list.end() - list.first(), 5);
    }
}

void TstScrollModel::pagesBeginAtMultiplesOfTheRows()
{
    ScrollModel list(5);
    list.setCount(12);
    QCOMPARE(list.lastPage(), 10);
    list.movePages(1);
    QCOMPARE(list.first(), 5);
    list.movePages(20);
    QCOMPARE(list.first(), 10);
    QCOMPARE(list.end(), 12); // two lines are left
    list.moveLines(-7);
    list.moveLines(4); // the last row of a window
    list.movePages(20);
    QCOMPARE(list.selected(), 11);
    list.movePages(-1);
    QCOMPARE(list.first(), 5);
    list.setCount(10);
    QCOMPARE(list.lastPage(), 5);
}

void TstScrollModel::aShorterListKeepsWhatItCan()
{
    ScrollModel list(5);
    list.setCount(20);
    list.moveLines(12);
    QCOMPARE(list.first(), 8);
    list.setCount(10);
    QCOMPARE(list.first(), 8);
    QCOMPARE(list.selected(), 9); // the last line there is
    list.setCount(4);
    QCOMPARE(list.first(), 0);
    QVERIFY(list.selected() >= 0 && list.selected() < 4);
    list.setCount(20);
    list.reset();
    list.moveLines(12);
    list.setCount(8); // as many as stood above the window
    QCOMPARE(list.first(), 0);
    QVERIFY(list.selected() < list.end());
}

void TstScrollModel::aListThatGrowsKeepsItsPlace()
{
    ScrollModel list(5);
    list.setCount(9);
    list.moveLines(7);
    const int first = list.first();
    list.setCount(50);
    QCOMPARE(list.first(), first);
    QCOMPARE(list.selected(), 7);
}

void TstScrollModel::marksBelongToLines()
{
    ScrollModel list(5);
    list.setCount(8);
    list.setChecked(2, true);
    list.setChecked(7, true);
    list.setChecked(8, true); // there is no such line
    list.setChecked(-1, true);
    QCOMPARE(list.checked(), std::vector<int>({ 2, 7 }));
    list.moveLines(6);
    QVERIFY(list.isChecked(2));
    list.setCount(5);
    list.setCount(8);
    QCOMPARE(list.checked(), std::vector<int>({ 2 })); // what comes new has no mark
    list.checkAll(true);
    QCOMPARE(int(list.checked().size()), 8);
}

void TstScrollModel::resetForgetsPlaceAndMarks()
{
    ScrollModel list(5);
    list.setCount(8);
    list.moveLines(7);
    list.checkAll(true);
    list.reset();
    QCOMPARE(list.selected(), 0);
    QVERIFY(list.checked().empty());
    QCOMPARE(list.count(), 8);
}

void TstScrollModel::aPageHasAtLeastOneRow()
{
    ScrollModel list(0);
    list.setCount(3);
    list.moveLines(2);
    QCOMPARE(list.selected(), 2);
    QCOMPARE(list.end(), 3);
}

QTEST_APPLESS_MAIN(TstScrollModel)
#include "tst_scrollmodel.moc"
