#include "widgets/controls/frontkeys.h"

#include "board/backlight.h"

#include <QKeyEvent>
#include <QTest>
#include <QWidget>

/// The one handler of front keys: waking, dropped repeats, the table, and steps of a held key.
class TstFrontKeys : public QObject
{
    Q_OBJECT

private slots:
    void aPressDoesWhatItsRowSays();
    void aKeyWithoutARowIsNotTaken();
    void theWakingPressDoesNothingElse();
    void aHeldKeyActsOnce();
    void aHeldKeyStepsInGrowingSteps();
    void aReleaseEndsTheSteps();
    void anotherKeyStepsByItsOwnPace();
    void anotherTableEndsTheSteps();
    void anActionMaySetAnotherTable();

private:
    /// A press of a panel letter, with the table asked at once.
    static bool press(FrontKeys &keys, Qt::Key letter, bool repeated = false)
    {
        const QKeyEvent event(QEvent::KeyPress, letter, Qt::NoModifier, QString(), repeated);
        return FrontKeys::press(event, [&keys](int key) { return keys.act(key); });
    }
    static void release(FrontKeys &keys, Qt::Key letter)
    {
        keys.release(QKeyEvent(QEvent::KeyRelease, letter, Qt::NoModifier));
    }
    static void tick(const QWidget &owner, int times)
    {
        for (int i = 0; i < times; ++i)
            owner.findChild<KeyRepeat *>()->tick();
    }
    /// Right and Left step, each with its own pace.
    std::vector<FrontKeys::Row> stepping()
    {
        const auto note = [this](int step) { m_steps << step; };
        return { { Qt::Key_Right, nullptr, nullptr, note, 1, { 1, { 1, 5 } } },
                 { Qt::Key_Down, nullptr, nullptr, note, 1, { 2, { 7 } } } };
    }

    QList<int> m_steps;

private slots:
    void init()
    {
        BackLight::setBackLight(3);
        m_steps.clear();
    }
};

constexpr auto kF1 = Qt::Key_W, kF2 = Qt::Key_Y, kRight = Qt::Key_D, kDown = Qt::Key_T, kEnter = Qt::Key_K;

void TstFrontKeys::aPressDoesWhatItsRowSays()
{
    QWidget owner;
    FrontKeys keys(&owner);
    int first = 0;
    int enter = 0;
    keys.setRows({ { Qt::Key_F1, "One", [&first] { ++first; }, nullptr, 0, {} },
                   { Qt::Key_Return, nullptr, [&enter] { ++enter; }, nullptr, 0, {} } });
    QVERIFY(press(keys, kF1));
    QVERIFY(press(keys, kEnter));
    QCOMPARE(first, 1);
    QCOMPARE(enter, 1);
    QVERIFY(keys.has(Qt::Key_Enter)); // Enter and Return are one key
    QCOMPARE(QByteArray(keys.rows().front().caption), QByteArray("One"));
}

void TstFrontKeys::aKeyWithoutARowIsNotTaken()
{
    QWidget owner;
    FrontKeys keys(&owner);
    keys.setRows({ { Qt::Key_F1, nullptr, [] {}, nullptr, 0, {} } });
    QVERIFY(!press(keys, kF2));
    QVERIFY(!press(keys, Qt::Key_Z)); // no letter of the panel
    QVERIFY(!keys.has(Qt::Key_F2));
}

void TstFrontKeys::theWakingPressDoesNothingElse()
{
    QWidget owner;
    FrontKeys keys(&owner);
    int pressed = 0;
    keys.setRows({ { Qt::Key_F1, nullptr, [&pressed] { ++pressed; }, nullptr, 0, {} } });
    BackLight::shutDownBL();
    QVERIFY(press(keys, kF1));
    QCOMPARE(pressed, 0);
    QVERIFY(!BackLight::isShut());
    QVERIFY(press(keys, kF1));
    QCOMPARE(pressed, 1);
}

void TstFrontKeys::aHeldKeyActsOnce()
{
    QWidget owner;
    FrontKeys keys(&owner);
    int pressed = 0;
    keys.setRows({ { Qt::Key_F1, nullptr, [&pressed] { ++pressed; }, nullptr, 0, {} } });
    press(keys, kF1);
    for (int i = 0; i < 3; ++i)
        QVERIFY(press(keys, kF1, true));
    QCOMPARE(pressed, 1);
}

void TstFrontKeys::aHeldKeyStepsInGrowingSteps()
{
    QWidget owner;
    FrontKeys keys(&owner);
    keys.setRows(stepping());
    press(keys, kRight);
    tick(owner, 3);
    QCOMPARE(m_steps, QList<int>({ 1, 1, 5, 5 })); // the press and one tick at 1, then 5
}

void TstFrontKeys::aReleaseEndsTheSteps()
{
    QWidget owner;
    FrontKeys keys(&owner);
    keys.setRows(stepping());
    press(keys, kRight);
    release(keys, kF1); // another key
    tick(owner, 1);
    release(keys, kRight);
    tick(owner, 5);
    QCOMPARE(m_steps, QList<int>({ 1, 1 }));
    press(keys, kRight);
    QCOMPARE(m_steps, QList<int>({ 1, 1, 1 })); // small again
}

void TstFrontKeys::anotherKeyStepsByItsOwnPace()
{
    QWidget owner;
    FrontKeys keys(&owner);
    keys.setRows(stepping());
    press(keys, kRight);
    tick(owner, 2);
    press(keys, kDown);
    tick(owner, 1);
    QCOMPARE(m_steps, QList<int>({ 1, 1, 5, 7, 7 }));
    release(keys, kRight); // it was let go late
    tick(owner, 1);
    QCOMPARE(m_steps.size(), 6);
    release(keys, kDown);
    tick(owner, 1);
    QCOMPARE(m_steps.size(), 6);
}

void TstFrontKeys::anotherTableEndsTheSteps()
{
    QWidget owner;
    FrontKeys keys(&owner);
    keys.setRows(stepping());
    press(keys, kRight);
    keys.setRows(stepping());
    tick(owner, 3);
    QCOMPARE(m_steps, QList<int> { 1 });
}

void TstFrontKeys::anActionMaySetAnotherTable()
{
    QWidget owner;
    FrontKeys keys(&owner);
    QStringList modes;
    keys.setRows({ { Qt::Key_F1,
                     nullptr,
                     [&] {
                         keys.setRows({ { Qt::Key_F1, nullptr, [&] { modes << "second"; }, nullptr, 0, {} } });
                         modes << "first";
                     },
                     nullptr,
                     0,
                     {} } });
    press(keys, kF1);
    press(keys, kF1);
    QCOMPARE(modes, QStringList({ "first", "second" }));
}

QTEST_MAIN(TstFrontKeys)
#include "tst_frontkeys.moc"
