#include "../views/pagetest.h"
#include "pages/listpage.h"

#include <QScrollBar>

using namespace PageTest;

namespace {

/// A list of files of four rows a page; F3 begins the choice of files to delete, F5 ends it.
class SampleList : public ListPage
{
public:
    explicit SampleList(bool pages = false, const KeyRepeat::Pace &pace = { 0, { 1 } })
        : ListPage(UI_MEMORY, pages ? Pages : Lines, pace, nullptr), bar(new QScrollBar(this))
    {
        static const KeyRow<SampleList> keys[] = {
            { Qt::Key_F1, "SelectAll", &SampleList::checkAll },
            { Qt::Key_F2, "SelectNone", &SampleList::uncheckAll },
            { Qt::Key_F3, "Delete", &SampleList::begin },
            { Qt::Key_F5, "Cancel", &SampleList::end },
        };
        bar->setPageStep(4);
        setScrollBar(bar);
        model.setCount(10);
        refreshList();
        setKeys(keys);
    }

    ScrollModel model { 4 };
    QScrollBar *bar;
    int shown = 0;

protected:
    ScrollModel &list() override { return model; }
    void showList() override { ++shown; }

private:
    void begin() { setChecking(true); }
    void end() { setChecking(false); }
};

} // namespace

/// Keys, scroll bar and check marks of the list pages.
class TstListPage : public QObject
{
    Q_OBJECT

private slots:
    void upAndDownMoveTheSelection();
    void heldKeyGoesOnUntilItIsLetGo();
    void pagesGrowWithTheKey();
    void barFollowsTheWindow();
    void enterChecksOnlyWhileChecking();
    void allAndNone();
    void aRestartStopsTheKey();
    void barLeavesTheKeysToThePage();
};

void TstListPage::upAndDownMoveTheSelection()
{
    SampleList page;
    const int shown = page.shown;
    press(&page, Down, 5);
    QCOMPARE(page.model.selected(), 5);
    QCOMPARE(page.model.first(), 2);
    QCOMPARE(page.shown, shown + 5);
    press(&page, Up, 9);
    QCOMPARE(page.model.selected(), 0);
}

void TstListPage::heldKeyGoesOnUntilItIsLetGo()
{
    SampleList page;
    hold(&page, Down, 4);
    QCOMPARE(page.model.selected(), 5);
    release(&page, Down);
    page.findChild<KeyRepeat *>()->tick();
    QCOMPARE(page.model.selected(), 5);
}

void TstListPage::pagesGrowWithTheKey()
{
    SampleList page(true, { 3, { 1, 5 } });
    page.model.setCount(100);
    hold(&page, Down, 4); // 1, then 1 three times, then 5
    QCOMPARE(page.model.first(), 9 * 4);
    release(&page, Down);
    press(&page, Up);
    QCOMPARE(page.model.first(), 8 * 4);
}

void TstListPage::barFollowsTheWindow()
{
    SampleList page;
    QCOMPARE(page.bar->maximum(), 6); // ten lines, four of them seen
    press(&page, Down, 9);
    QCOMPARE(page.bar->value(), 6);
    SampleList paged(true);
    QCOMPARE(paged.bar->maximum(), 8); // pages begin at 0, 4 and 8
    press(&paged, Down, 2);
    QCOMPARE(paged.bar->value(), 8);
}

void TstListPage::enterChecksOnlyWhileChecking()
{
    SampleList page;
    press(&page, Enter);
    QVERIFY(page.model.checked().empty());
    press(&page, F3);
    press(&page, Down, 2);
    press(&page, Enter);
    QCOMPARE(page.model.checked(), std::vector<int>({ 2 }));
    press(&page, Up);
    press(&page, Enter);
    QCOMPARE(page.model.checked(), std::vector<int>({ 1, 2 }));
    press(&page, Enter);
    QCOMPARE(page.model.checked(), std::vector<int>({ 2 }));
    press(&page, F5); // no choice is left behind
    QVERIFY(page.model.checked().empty());
    QCOMPARE(page.model.selected(), 1);
}

void TstListPage::allAndNone()
{
    SampleList page;
    press(&page, F3);
    press(&page, F1);
    QCOMPARE(int(page.model.checked().size()), 10);
    press(&page, F2);
    QVERIFY(page.model.checked().empty());
}

void TstListPage::aRestartStopsTheKey()
{
    SampleList page;
    hold(&page, Down, 1);
    page.init_parameter();
    QVERIFY(!page.findChild<KeyRepeat *>()->isActive());
}

void TstListPage::barLeavesTheKeysToThePage()
{
    SampleList page;
    QCOMPARE(page.bar->focusPolicy(), Qt::NoFocus);
}

QTEST_MAIN(TstListPage)
#include "tst_listpage.moc"
