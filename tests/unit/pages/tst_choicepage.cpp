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

QTEST_MAIN(TstChoicePage)
#include "tst_choicepage.moc"
