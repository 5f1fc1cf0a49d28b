#include "../views/pagetest.h"
#include "pages/choicepage.h"

#include <QAbstractButton>
#include <QSignalSpy>

#include <algorithm>

using namespace PageTest;

namespace {

/// Three groups of parameters; F4 takes them, as a recorder's parameter page does.
class SampleChoice : public ChoicePage
{
public:
    explicit SampleChoice(Kind kind) : ChoicePage(UI_LOGGER, kind, { "Sample", 60, 80, 50, 400 }, nullptr)
    {
        static const Choice choices[] = { { "rms", "(rms)" }, { "angle", "(angle)" }, { "power", "P S Q" } };
        static const KeyRow<SampleChoice> keys[] = {
            { Qt::Key_F1, "All", &SampleChoice::selectAll },
            { Qt::Key_F2, "Invert", &SampleChoice::invertAll },
            { Qt::Key_F4, "Ok", &SampleChoice::take },
        };
        setChoices(choices);
        setKeys(keys);
    }

    std::vector<int> taken = { 1 };

protected:
    void load() override
    {
        for (int i = 0; i < 3; ++i)
            setChosen(i, std::count(taken.begin(), taken.end(), i) > 0);
    }

private:
    void take() { taken = chosenAll(); }
};

/// Five boxes in two columns, of which the fourth can be had or not.
class ColumnChoice : public ChoicePage
{
public:
    ColumnChoice() : ChoicePage(UI_LOGGER, AnyOf, { "Columns", 100, 60, 50, 200, 2, 220, 18, 36 }, nullptr)
    {
        static const Choice choices[] = {
            { "first", "1" }, { "second", "2" }, { "third", "3" }, { "fourth", "4" }, { "fifth", nullptr },
        };
        static const KeyRow<ColumnChoice> keys[] = {
            { Qt::Key_F1, nullptr, &ColumnChoice::selectAll },
            { Qt::Key_F2, nullptr, &ColumnChoice::invertAll },
        };
        setChoices(choices);
        setCaption(4, QStringLiteral("VRMS"));
        setKeys(keys);
    }

    void have(bool fourth, bool chosen)
    {
        setAvailable(3, fourth);
        setChosen(3, chosen);
    }
    QRect place(const char *name) const { return findChild<QAbstractButton *>(name)->geometry(); }
};

using Indices = std::vector<int>;

} // namespace

/// Check boxes and radio buttons of the choice pages.
class TstChoicePage : public QObject
{
    Q_OBJECT

private slots:
    void loadedChoicesAreShown();
    void enterSwitchesTheBoxUnderTheCursor();
    void cursorStopsAtTheEnds();
    void allAndInvert();
    void choicesCountOnlyWhenTaken();
    void oneRadioButtonIsAlwaysOn();
    void allAndInvertLeaveRadioButtonsAlone();
    void keysOfThePageReachNoButton();
    void columnsAreFilledLineByLine();
    void leftAndRightStayInTheLine();
    void whatCannotBeHadStaysAsItIs();
    void aTextWithoutTranslationStays();
};

void TstChoicePage::loadedChoicesAreShown()
{
    SampleChoice page(ChoicePage::AnyOf);
    QCOMPARE(page.chosen(), -1);
    page.init_parameter();
    QCOMPARE(page.chosenAll(), Indices({ 1 }));
    QCOMPARE(page.findChild<QAbstractButton *>("power")->text(), QStringLiteral("P S Q"));
    QCOMPARE(text(&page, "title"), QStringLiteral("Sample"));
    QCOMPARE(text(&page, "btn_f5"), QString());
    QVERIFY(!page.isChosen(-1));
    QVERIFY(!page.isChosen(3));
}

void TstChoicePage::enterSwitchesTheBoxUnderTheCursor()
{
    SampleChoice page(ChoicePage::AnyOf);
    page.init_parameter();
    QSignalSpy changed(&page, &ChoicePage::choiceChanged);
    press(&page, Enter);
    QCOMPARE(page.chosenAll(), Indices({ 0, 1 }));
    press(&page, Down);
    QCOMPARE(changed.count(), 1); // the cursor alone changes nothing
    press(&page, Enter);
    QCOMPARE(page.chosenAll(), Indices({ 0 }));
    QCOMPARE(changed.count(), 2);
    QCOMPARE(page.findChild<QWidget *>("field_bar")->y(), page.findChild<QWidget *>("angle")->y());
}

void TstChoicePage::cursorStopsAtTheEnds()
{
    SampleChoice page(ChoicePage::AnyOf);
    page.init_parameter();
    press(&page, Up);
    QCOMPARE(page.cursor(), 0);
    press(&page, Down, 7);
    QCOMPARE(page.cursor(), 2);
    press(&page, Up, 7);
    QCOMPARE(page.cursor(), 0);
}

void TstChoicePage::allAndInvert()
{
    SampleChoice page(ChoicePage::AnyOf);
    page.init_parameter();
    press(&page, F2);
    QCOMPARE(page.chosenAll(), Indices({ 0, 2 }));
    press(&page, F1);
    QCOMPARE(page.chosenAll(), Indices({ 0, 1, 2 }));
    press(&page, F2);
    QVERIFY(page.chosenAll().empty());
}

void TstChoicePage::choicesCountOnlyWhenTaken()
{
    SampleChoice page(ChoicePage::AnyOf);
    page.init_parameter();
    press(&page, F1);
    QCOMPARE(page.taken, Indices({ 1 }));
    page.init_parameter();
    QCOMPARE(page.chosenAll(), Indices({ 1 }));
    press(&page, F1);
    press(&page, F4);
    QCOMPARE(page.taken, Indices({ 0, 1, 2 }));
}

void TstChoicePage::oneRadioButtonIsAlwaysOn()
{
    SampleChoice page(ChoicePage::OneOf);
    QCOMPARE(page.chosenAll(), Indices({ 0 }));
    page.init_parameter(); // the second is stored
    QCOMPARE(page.chosenAll(), Indices({ 1 }));
    QCOMPARE(page.cursor(), 1);
    press(&page, Down);
    QCOMPARE(page.chosenAll(), Indices({ 2 }));
    press(&page, Down);
    QCOMPARE(page.chosenAll(), Indices({ 2 }));
    press(&page, Enter);
    QCOMPARE(page.chosenAll(), Indices({ 2 }));
    press(&page, Up, 5);
    QCOMPARE(page.chosenAll(), Indices({ 0 }));
}

void TstChoicePage::allAndInvertLeaveRadioButtonsAlone()
{
    SampleChoice page(ChoicePage::OneOf);
    page.init_parameter();
    press(&page, F1);
    press(&page, F2);
    QCOMPARE(page.chosenAll(), Indices({ 1 }));
}

void TstChoicePage::keysOfThePageReachNoButton()
{
    SampleChoice page(ChoicePage::AnyOf);
    page.init_parameter();
    page.show();
    QSignalSpy pause(&page, &LivePage::pause);
    QTest::keyClick(&page, Qt::Key_Space); // would switch a button that has the focus
    press(&page, F5);
    QCOMPARE(page.chosenAll(), Indices({ 1 }));
    QCOMPARE(pause.count(), 0);
}

void TstChoicePage::columnsAreFilledLineByLine()
{
    ColumnChoice page;
    QCOMPARE(page.place("first"), QRect(100, 60, 200, 36));
    QCOMPARE(page.place("second"), QRect(320, 60, 200, 36));
    QCOMPARE(page.place("fourth"), QRect(320, 110, 200, 36));
    QCOMPARE(page.place("fifth"), QRect(100, 160, 200, 36));
    QVERIFY(page.findChild<QLabel *>("title")->geometry().bottom() < 60);
}

void TstChoicePage::leftAndRightStayInTheLine()
{
    ColumnChoice page;
    press(&page, Right, 2);
    QCOMPARE(page.cursor(), 1);
    press(&page, Down, 2);
    QCOMPARE(page.cursor(), 3); // nothing below it
    press(&page, Left, 2);
    press(&page, Down);
    QCOMPARE(page.cursor(), 4);
    QVERIFY(page.findChild<QWidget *>("field_bar")->geometry().contains(page.place("fifth")));
    SampleChoice plain(ChoicePage::AnyOf);
    plain.init_parameter();
    press(&plain, Right);
    press(&plain, Left);
    QCOMPARE(plain.cursor(), 0);
}

void TstChoicePage::whatCannotBeHadStaysAsItIs()
{
    ColumnChoice page;
    page.have(false, true);
    press(&page, F2);
    QCOMPARE(page.chosenAll(), Indices({ 0, 1, 2, 3, 4 }));
    press(&page, F2);
    QCOMPARE(page.chosenAll(), Indices({ 3 }));
    page.have(false, false);
    press(&page, F1);
    QCOMPARE(page.chosenAll(), Indices({ 0, 1, 2, 4 }));
    press(&page, Right);
    press(&page, Down);
    QCOMPARE(page.cursor(), 3);
    press(&page, Enter);
    QVERIFY(!page.isChosen(3));
    page.have(true, false);
    press(&page, Enter);
    QVERIFY(page.isChosen(3));
}

void TstChoicePage::aTextWithoutTranslationStays()
{
    ColumnChoice page;
    page.retranslateUi();
    QCOMPARE(page.findChild<QAbstractButton *>("fifth")->text(), QStringLiteral("VRMS"));
    QCOMPARE(page.findChild<QAbstractButton *>("first")->text(), QStringLiteral("1"));
}

QTEST_MAIN(TstChoicePage)
#include "tst_choicepage.moc"
