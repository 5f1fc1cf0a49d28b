#include "board/backlight.h"
#include "widgets/text/keymap.h"

#include <QKeyEvent>
#include <QTest>

class TstKeyMap : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { BackLight::recoverBackLight(); }
    void eachLetterIsItsKey_data();
    void eachLetterIsItsKey();
    void everyOtherCodeIsUnknown();
    void eachRemoteNumberIsItsLetter_data();
    void eachRemoteNumberIsItsLetter();
    void everyOtherRemoteNumberIsUnknown();
    void aPressOnADimmedScreenOnlyWakesIt();
    void aPressWakesTheScreenAndMaps();
    void aReleaseMaps();
    void eachKeyOfThePanelLeadsBackToItsLetter();
    void aHeldKeyRepeatsForTheArrowsOnly();
};

void TstKeyMap::eachLetterIsItsKey_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("key");
    QTest::newRow("W") << 87 << int(Qt::Key_F1);
    QTest::newRow("Y") << 89 << int(Qt::Key_F2);
    QTest::newRow("P") << 80 << int(Qt::Key_F3);
    QTest::newRow("F") << 70 << int(Qt::Key_F4);
    QTest::newRow("L") << 76 << int(Qt::Key_F5);
    QTest::newRow("E, Scope") << 69 << int(Qt::Key_F6);
    QTest::newRow("A, Menu") << 65 << int(Qt::Key_F7);
    QTest::newRow("U, Monitor") << 85 << int(Qt::Key_F8);
    QTest::newRow("S, Setup") << 83 << int(Qt::Key_F9);
    QTest::newRow("R, Memory") << 82 << int(Qt::Key_F10);
    QTest::newRow("I, Save") << 73 << int(Qt::Key_F11);
    QTest::newRow("X, Backlight") << 88 << int(Qt::Key_F12);
    QTest::newRow("B, Power") << 66 << int(Qt::Key_PowerOff);
    QTest::newRow("O") << 79 << int(Qt::Key_Left);
    QTest::newRow("Q") << 81 << int(Qt::Key_Up);
    QTest::newRow("D") << 68 << int(Qt::Key_Right);
    QTest::newRow("T") << 84 << int(Qt::Key_Down);
    QTest::newRow("K") << 75 << int(Qt::Key_Enter);
}

void TstKeyMap::eachLetterIsItsKey()
{
    QFETCH(int, code);
    QTEST(keyMap::keyMapping(code), "key");
}

void TstKeyMap::everyOtherCodeIsUnknown()
{
    QCOMPARE(int(Qt::Key_unknown), 0x1FFFFFF);
    const QByteArray listed("WYPFLEAUSRIXBOQDTK");
    QCOMPARE(listed.size(), 18);
    for (int code = -300; code < 70000; ++code) {
        if (code < 0 || code > 127 || !listed.contains(char(code)))
            QCOMPARE(keyMap::keyMapping(code), int(Qt::Key_unknown));
    }
    QCOMPARE(keyMap::keyMapping(Qt::Key_F1), int(Qt::Key_unknown));
    QCOMPARE(keyMap::keyMapping(Qt::Key_Return), int(Qt::Key_unknown));
}

void TstKeyMap::eachRemoteNumberIsItsLetter_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("letter");
    const struct
    {
        int number;
        char letter;
    } rows[] = { { 13, 'K' }, { 16, 'O' }, { 17, 'Q' }, { 18, 'D' }, { 19, 'T' }, { 40, 'W' },
                 { 41, 'Y' }, { 42, 'P' }, { 43, 'F' }, { 44, 'L' }, { 45, 'E' }, { 46, 'A' },
                 { 47, 'U' }, { 48, 'I' }, { 49, 'S' }, { 50, 'R' }, { 51, 'X' } };
    for (const auto &row : rows)
        QTest::addRow("%d", row.number) << row.number << int(row.letter);
}

void TstKeyMap::eachRemoteNumberIsItsLetter()
{
    QFETCH(int, number);
    QTEST(keyMap::keyboardBackMap(number), "letter");
}

void TstKeyMap::everyOtherRemoteNumberIsUnknown()
{
    const QList<int> listed { 13, 16, 17, 18, 19, 40, 41, 42, 43, 44, 45, 46, 47, 48, 49, 50, 51 };
    for (int number = -100; number < 1000; ++number) {
        if (!listed.contains(number))
            QCOMPARE(keyMap::keyboardBackMap(number), int(Qt::Key_unknown));
    }
}

void TstKeyMap::aPressOnADimmedScreenOnlyWakesIt()
{
    QVERIFY(!keyMap::recoverBackLight());
    BackLight::shutDownBL();
    QVERIFY(keyMap::recoverBackLight());
    QVERIFY(!keyMap::recoverBackLight()); // the next press counts
}

void TstKeyMap::aPressWakesTheScreenAndMaps()
{
    BackLight::shutDownBL();
    QCOMPARE(keyMap::keyPressMap('W'), int(Qt::Key_F1));
    QVERIFY(!keyMap::recoverBackLight());
}

void TstKeyMap::aReleaseMaps()
{
    QCOMPARE(keyMap::keyReleaseMap('O'), int(Qt::Key_Left));
}

void TstKeyMap::eachKeyOfThePanelLeadsBackToItsLetter()
{
    const struct
    {
        int key;
        char letter;
    } rows[] = { { Qt::Key_F1, 'W' },       { Qt::Key_F2, 'Y' },   { Qt::Key_F3, 'P' },  { Qt::Key_F4, 'F' },
                 { Qt::Key_F5, 'L' },       { Qt::Key_F6, 'E' },   { Qt::Key_F7, 'A' },  { Qt::Key_F8, 'U' },
                 { Qt::Key_F9, 'S' },       { Qt::Key_F10, 'R' },  { Qt::Key_F11, 'I' }, { Qt::Key_F12, 'X' },
                 { Qt::Key_PowerOff, 'B' }, { Qt::Key_Left, 'O' }, { Qt::Key_Up, 'Q' },  { Qt::Key_Right, 'D' },
                 { Qt::Key_Down, 'T' },     { Qt::Key_Enter, 'K' } };
    for (const auto &row : rows)
        QCOMPARE(keyMap::panelLetter(row.key), int(row.letter));
    for (const int key : { int(Qt::Key_Escape), int(Qt::Key_W), int(Qt::Key_F13), 0 })
        QCOMPARE(keyMap::panelLetter(key), int(Qt::Key_unknown));
}

void TstKeyMap::aHeldKeyRepeatsForTheArrowsOnly()
{
    for (int letter = 'A'; letter <= 'Z'; ++letter) {
        const QKeyEvent first(QEvent::KeyPress, letter, Qt::NoModifier);
        QVERIFY(!keyMap::isDroppedRepeat(first));
        const QKeyEvent repeat(QEvent::KeyPress, letter, Qt::NoModifier, QString(), true);
        QCOMPARE(keyMap::isDroppedRepeat(repeat), !QByteArray("OQDT").contains(char(letter)));
    }
}

QTEST_GUILESS_MAIN(TstKeyMap)
#include "tst_keymap.moc"
