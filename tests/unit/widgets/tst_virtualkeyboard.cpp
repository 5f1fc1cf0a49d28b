#include "dialogdriver.h"

#include "board/backlight.h"
#include "platform/deskkeys.h"
#include "paintedtexts.h"
#include "widgets/controls/keygrid.h"
#include "widgets/controls/readingmarks.h"
#include "widgets/dialogs/virtualkeyboard.h"
#include "widgets/text/keymap.h"

#include <QKeyEvent>
#include <QSet>

#include <memory>

class TstVirtualKeyBoard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(skin); }
    void offersDigitsLettersAndSigns();
    void everyKeyCanBeReachedWithTheArrows();
    void keyUnderTheCursorIsMarkedForThoseWhoHearIt();
    void arrowsGoRoundTheEdges();
    void enterAppendsTheKeyUnderTheCursor();
    void lessThanErasesTheLastSign();
    void firstKeySwitchesUpperAndLowerCase();
    void clearSpaceOkAndCancel();
    void cancelAnswersTheOldText();
    void textEndsAtItsGreatestLength();
    void onlySignsThatCanLeadToAMatchAreTaken();
    void okIsRefusedUntilTheTextMatches();
    void alternativesOfAnExpressionAreFullMatches_data();
    void alternativesOfAnExpressionAreFullMatches();
    void longTextsShowTheirEnd();
    void keyboardOfAPcTypes();
    void typedSignsObeyTheExpression();
    void keysOfThePanelKeepTheirMeaning();
    void typedKeyOnADimmedScreenOnlyWakesIt();
};

/// Types a text as a user does: cursor to each sign, Enter.
static void type(QDialog *keyboard, const QString &text)
{
    auto *grid = static_cast<KeyGrid *>(keyboard->findChild<QWidget *>(QStringLiteral("keys")));
    for (const QChar sign : text) {
        if (sign.isLetter() && sign.isUpper() != grid->isUpperCase())
            QTest::keyClick(keyboard, 'W');
        QVERIFY(grid->setCurrentChar(sign));
        QTest::keyClick(keyboard, 'K');
    }
}

void TstVirtualKeyBoard::offersDigitsLettersAndSigns()
{
    KeyGrid grid;
    for (const char sign : QByteArray("0123456789abcdefghijklmnopqrstuvwxyz-_,.<?"))
        QVERIFY2(!sign || grid.setCurrentChar(QLatin1Char(sign)), &sign);
    QVERIFY(!grid.setCurrentChar(QLatin1Char('/')));
}

void TstVirtualKeyBoard::everyKeyCanBeReachedWithTheArrows()
{
    KeyGrid grid;
    QSet<QChar> reached;
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 11; ++column) {
            reached << grid.currentChar();
            grid.moveHorizontally(1);
        }
        grid.moveVertically(1);
    }
    QCOMPARE(reached.size(), 42);
}

void TstVirtualKeyBoard::keyUnderTheCursorIsMarkedForThoseWhoHearIt()
{
    KeyGrid grid;
    for (const char sign : QByteArray("05g?")) {
        QVERIFY(grid.setCurrentChar(QLatin1Char(sign)));
        QStringList heard;
        for (const PaintedText &text : paintedTexts(grid)) {
            if (ReadingMarks::selection(&grid).place.contains(text.ink.center().toPoint()))
                heard << text.text;
        }
        QCOMPARE(heard, QStringList(QString(QLatin1Char(sign))));
    }
}

void TstVirtualKeyBoard::arrowsGoRoundTheEdges()
{
    KeyGrid grid;
    QCOMPARE(grid.currentChar(), QChar('1'));
    grid.moveHorizontally(-1);
    QCOMPARE(grid.currentChar(), QChar('-'));
    grid.moveHorizontally(1);
    QCOMPARE(grid.currentChar(), QChar('1'));
    grid.moveVertically(-1);
    QCOMPARE(grid.currentChar(), QChar('z'));
    grid.moveVertically(1);
    QCOMPARE(grid.currentChar(), QChar('1'));
    grid.setCurrentChar(QLatin1Char('.'));
    grid.moveVertically(1);
    QCOMPARE(grid.currentChar(), QChar('<')); // wide: under the last two columns
    grid.moveHorizontally(1);
    QCOMPARE(grid.currentChar(), QChar('z'));
}

void TstVirtualKeyBoard::enterAppendsTheKeyUnderTheCursor()
{
    VirtualKeyBoard keyboard(QStringLiteral("Name"), QString(), QString(), 20);
    QCOMPARE(labelText(&keyboard, "title"), QStringLiteral("Name"));
    keyboard.show();
    QTest::keyClick(&keyboard, 'K'); // starts on q
    QTest::keyClick(&keyboard, 'D');
    QTest::keyClick(&keyboard, 'K');
    QTest::keyClick(&keyboard, 'T');
    QTest::keyClick(&keyboard, 'K');
    QTest::keyClick(&keyboard, 'O');
    QTest::keyClick(&keyboard, 'K');
    QTest::keyClick(&keyboard, 'Q');
    QTest::keyClick(&keyboard, 'K');
    QCOMPARE(keyboard.text(), QStringLiteral("qwsaq"));
}

void TstVirtualKeyBoard::lessThanErasesTheLastSign()
{
    VirtualKeyBoard keyboard(QString(), QStringLiteral("ab"), QString(), 20);
    keyboard.show();
    for (const QString expected : { "a", "", "" }) {
        type(&keyboard, QStringLiteral("<"));
        QCOMPARE(keyboard.text(), expected);
    }
}

void TstVirtualKeyBoard::firstKeySwitchesUpperAndLowerCase()
{
    VirtualKeyBoard keyboard(QString(), QString(), QString(), 20);
    keyboard.show();
    QCOMPARE(keyTexts(&keyboard).first(), QStringLiteral("ABC"));
    QTest::keyClick(&keyboard, 'W');
    QCOMPARE(keyTexts(&keyboard).first(), QStringLiteral("abc"));
    QTest::keyClick(&keyboard, 'K');
    QTest::keyClick(&keyboard, 'W');
    QTest::keyClick(&keyboard, 'K');
    QCOMPARE(keyboard.text(), QStringLiteral("Qq"));
}

void TstVirtualKeyBoard::clearSpaceOkAndCancel()
{
    VirtualKeyBoard keyboard(QString(), QStringLiteral("abc"), QString(), 20);
    keyboard.show();
    QCOMPARE(keyTexts(&keyboard).mid(1), QStringList({ "Clear", "Space", "Ok", "Cancel" }));
    QTest::keyClick(&keyboard, 'Y');
    QCOMPARE(keyboard.text(), QString());
    QTest::keyClick(&keyboard, 'P');
    QCOMPARE(keyboard.text(), QStringLiteral(" "));
    QTest::keyClick(&keyboard, 'F');
    QCOMPARE(keyboard.result(), int(QDialog::Accepted));
}

void TstVirtualKeyBoard::cancelAnswersTheOldText()
{
    bool accepted = true;
    DialogDriver cancel({ DialogDriver::press("KKL") });
    QCOMPARE(VirtualKeyBoard::getKeyBoardInput(QString(), QStringLiteral("old"), QString(), 20, &accepted),
             QStringLiteral("old"));
    QVERIFY(!accepted);
    DialogDriver ok({ DialogDriver::press("KKF") });
    QCOMPARE(VirtualKeyBoard::getKeyBoardInput(QString(), QStringLiteral("old"), QString(), 20, &accepted),
             QStringLiteral("oldqq"));
    QVERIFY(accepted);
}

void TstVirtualKeyBoard::textEndsAtItsGreatestLength()
{
    VirtualKeyBoard keyboard(QString(), QStringLiteral("abc"), QString(), 4);
    keyboard.show();
    type(&keyboard, QStringLiteral("defg"));
    QCOMPARE(keyboard.text(), QStringLiteral("abcd"));
}

void TstVirtualKeyBoard::onlySignsThatCanLeadToAMatchAreTaken()
{
    VirtualKeyBoard keyboard(QString(), QString(), QStringLiteral("^(\\d{1,5})$"), 20);
    keyboard.show();
    type(&keyboard, QStringLiteral("a1-2.3456?7"));
    QCOMPARE(keyboard.text(), QStringLiteral("12345"));
}

void TstVirtualKeyBoard::okIsRefusedUntilTheTextMatches()
{
    VirtualKeyBoard keyboard(QString(), QString(), QStringLiteral("^(\\d{1,5})$"), 20);
    keyboard.show();
    QTest::keyClick(&keyboard, 'F');
    QVERIFY(keyboard.isVisible());
    QCOMPARE(labelText(&keyboard, "hint"), QStringLiteral("Invalid input!"));
    type(&keyboard, QStringLiteral("7"));
    QCOMPARE(labelText(&keyboard, "hint"), QString());
    QTest::keyClick(&keyboard, 'F');
    QVERIFY(!keyboard.isVisible());
}

void TstVirtualKeyBoard::alternativesOfAnExpressionAreFullMatches_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("taken");
    QTest::newRow("1000") << "1000"
                          << "1000" << true;
    QTest::newRow("1001 stops at 100") << "1001"
                                       << "100" << true;
    QTest::newRow("999") << "999"
                         << "999" << true;
    QTest::newRow("a point after zero") << "0.25"
                                        << "0.25" << true;
    QTest::newRow("a point after zero alone") << "0."
                                              << "0." << false;
    QTest::newRow("no point after five") << "5.2"
                                         << "52" << true;
}

void TstVirtualKeyBoard::alternativesOfAnExpressionAreFullMatches()
{
    QFETCH(QString, typed);
    QFETCH(bool, taken);
    VirtualKeyBoard keyboard(QString(), QString(), QStringLiteral("^(1000)|(\\d{1,3})|(0\\.\\d{1,3})$"), 20);
    keyboard.show();
    type(&keyboard, typed);
    QTEST(keyboard.text(), "text");
    QTest::keyClick(&keyboard, 'F');
    QCOMPARE(!keyboard.isVisible(), taken);
}

void TstVirtualKeyBoard::longTextsShowTheirEnd()
{
    VirtualKeyBoard keyboard(QString(), QString(200, QLatin1Char('m')) + QStringLiteral("xyz"), QString(), 400);
    const QString shown = labelText(&keyboard, "input");
    QVERIFY(shown.endsWith(QStringLiteral("xyz_")));
    QVERIFY(shown.size() < 100);
}

void TstVirtualKeyBoard::keyboardOfAPcTypes()
{
    const std::unique_ptr<DeskKeys> desk(DeskKeys::install(qApp, keyMap::panelLetter));
    VirtualKeyBoard keyboard(QString(), QStringLiteral("x"), QString(), 20);
    keyboard.show();
    // W, L and K are F1, F5 and Enter of the panel; here they are letters.
    QTest::keyClicks(&keyboard, QStringLiteral("WLk 7!"));
    QCOMPARE(keyboard.text(), QStringLiteral("xWLk 7!"));
    QTest::keyClick(&keyboard, Qt::Key_Backspace);
    QTest::keyClick(&keyboard, Qt::Key_Backspace);
    QCOMPARE(keyboard.text(), QStringLiteral("xWLk "));
    QVERIFY(keyboard.isVisible());
    QTest::keyClick(&keyboard, Qt::Key_Return);
    QVERIFY(!keyboard.isVisible());
    QCOMPARE(keyboard.result(), int(QDialog::Accepted));

    keyboard.show();
    QTest::keyClicks(&keyboard, QStringLiteral("abc"));
    QTest::keyClick(&keyboard, Qt::Key_Escape);
    QVERIFY(!keyboard.isVisible());
    QCOMPARE(keyboard.result(), int(QDialog::Rejected));
}

void TstVirtualKeyBoard::typedSignsObeyTheExpression()
{
    const std::unique_ptr<DeskKeys> desk(DeskKeys::install(qApp, keyMap::panelLetter));
    VirtualKeyBoard keyboard(QString(), QString(), QStringLiteral("^(\\d{1,5})$"), 4);
    keyboard.show();
    QTest::keyClicks(&keyboard, QStringLiteral("a1;b2'34567"));
    QCOMPARE(keyboard.text(), QStringLiteral("1234"));
    for (int i = 0; i < 6; ++i)
        QTest::keyClick(&keyboard, Qt::Key_Backspace);
    QCOMPARE(keyboard.text(), QString());
    QTest::keyClick(&keyboard, Qt::Key_Return);
    QVERIFY(keyboard.isVisible());
    QCOMPARE(labelText(&keyboard, "hint"), QStringLiteral("Invalid input!"));
}

void TstVirtualKeyBoard::keysOfThePanelKeepTheirMeaning()
{
    const std::unique_ptr<DeskKeys> desk(DeskKeys::install(qApp, keyMap::panelLetter));
    VirtualKeyBoard keyboard(QString(), QString(), QString(), 20);
    keyboard.show();
    // From the panel and the remote control: letters without a text.
    const auto panel = [&keyboard](char letter) {
        for (const auto type : { QEvent::KeyPress, QEvent::KeyRelease }) {
            QKeyEvent event(type, letter, Qt::NoModifier);
            QCoreApplication::sendEvent(&keyboard, &event);
        }
    };
    panel('W'); // upper case
    panel('K');
    QCOMPARE(keyboard.text(), QStringLiteral("Q"));
    // From a PC: the arrows, Enter and the soft keys; after an arrow Enter presses the key under the cursor again.
    QTest::keyClick(&keyboard, Qt::Key_F1);
    QTest::keyClicks(&keyboard, QStringLiteral("1"));
    QTest::keyClick(&keyboard, Qt::Key_Right);
    QTest::keyClick(&keyboard, Qt::Key_Return);
    QCOMPARE(keyboard.text(), QStringLiteral("Q1w"));
    QTest::keyClick(&keyboard, Qt::Key_F2);
    QCOMPARE(keyboard.text(), QString());
    for (const auto modifier : { Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier }) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_V, modifier, QStringLiteral("v")); // the desk's own
        QCoreApplication::sendEvent(&keyboard, &event);
    }
    QCOMPARE(keyboard.text(), QString());
    panel('L');
    QVERIFY(!keyboard.isVisible());
}

void TstVirtualKeyBoard::typedKeyOnADimmedScreenOnlyWakesIt()
{
    const std::unique_ptr<DeskKeys> desk(DeskKeys::install(qApp, keyMap::panelLetter));
    VirtualKeyBoard keyboard(QString(), QString(), QString(), 20);
    keyboard.show();
    BackLight::shutDownBL();
    QTest::keyClicks(&keyboard, QStringLiteral("ab"));
    QCOMPARE(keyboard.text(), QStringLiteral("b"));
    QVERIFY(!BackLight::isShut());
}

QTEST_MAIN(TstVirtualKeyBoard)
#include "tst_virtualkeyboard.moc"
