#include "../views/pagetest.h"
#include "pages/pagestack.h"

using namespace PageTest;

namespace {

/// A page that notes how often it began anew.
class SamplePage : public LivePage
{
    Q_OBJECT

public:
    explicit SamplePage() : LivePage(UI_USER) { setNoKeys(); }

    int begun = 0;

public slots:
    void init_parameter() override { ++begun; }

signals:
    void goNext();
    void goFar();
    void goBack();
    void goFirst();
};

/// Four pages in a row; the last can be opened by the second, too.
class SampleStack : public PageStack
{
public:
    SampleStack() : PageStack(UI_USER, {}, liveData(), table()) { enter(); }

    SamplePage *top() { return static_cast<SamplePage *>(currentPage()); }

private:
    static std::vector<SubPage> table()
    {
        const Way goBack = back(&SamplePage::goBack);
        return {
            { make<SamplePage>, { way(&SamplePage::goNext, 1) } },
            { make<SamplePage>, { way(&SamplePage::goNext, 2), way(&SamplePage::goFar, 3), goBack } },
            { make<SamplePage>, { way(&SamplePage::goNext, 3), goBack } },
            { make<SamplePage>, { goBack, way(&SamplePage::goFirst, 0) } },
        };
    }
};

} // namespace

/// The container of pages that measure nothing.
class TstPageStack : public QObject
{
    Q_OBJECT

private slots:
    void backLeadsToThePageThatOpenedThisOne();
    void backOnTheFirstPageStaysThere();
    void aPageThatIsGoneBackToForgetsWhatItOpened();
    void enteredAnewNothingLeadsBack();
    void aPageBeginsAnewEachTimeItComesOnTop();
};

void TstPageStack::backLeadsToThePageThatOpenedThisOne()
{
    SampleStack stack;
    emit stack.top()->goNext();
    emit stack.top()->goFar();
    QCOMPARE(stack.currentIndex(), 3);
    emit stack.top()->goBack();
    QCOMPARE(stack.currentIndex(), 1);
    emit stack.top()->goNext();
    emit stack.top()->goNext();
    QCOMPARE(stack.currentIndex(), 3);
    emit stack.top()->goBack();
    QCOMPARE(stack.currentIndex(), 2);
    emit stack.top()->goBack();
    QCOMPARE(stack.currentIndex(), 1);
    emit stack.top()->goBack();
    QCOMPARE(stack.currentIndex(), 0);
}

void TstPageStack::backOnTheFirstPageStaysThere()
{
    SampleStack stack;
    stack.showPrevious();
    QCOMPARE(stack.currentIndex(), 0);
}

void TstPageStack::aPageThatIsGoneBackToForgetsWhatItOpened()
{
    SampleStack stack;
    emit stack.top()->goNext();
    emit stack.top()->goNext();
    emit stack.top()->goNext();
    emit stack.top()->goFirst();
    stack.showPrevious();
    QCOMPARE(stack.currentIndex(), 0);
    emit stack.top()->goNext();
    stack.showPrevious();
    QCOMPARE(stack.currentIndex(), 0);
}

void TstPageStack::enteredAnewNothingLeadsBack()
{
    SampleStack stack;
    emit stack.top()->goNext();
    emit stack.top()->goFar();
    stack.enter();
    QCOMPARE(stack.currentIndex(), 0);
    stack.showPrevious();
    QCOMPARE(stack.currentIndex(), 0);
}

void TstPageStack::aPageBeginsAnewEachTimeItComesOnTop()
{
    SampleStack stack;
    SamplePage *first = stack.top();
    const int begun = first->begun;
    emit first->goNext();
    QCOMPARE(first->begun, begun); // not while it is covered
    emit stack.top()->goBack();
    QCOMPARE(first->begun, begun + 1);
    stack.enter();
    QCOMPARE(first->begun, begun + 2);
}

PAGE_TEST_MAIN(TstPageStack)
#include "tst_pagestack.moc"
