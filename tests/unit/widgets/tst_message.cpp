#include "dialogdriver.h"

#include "board/backlight.h"
#include "widgets/dialogs/message.h"

class TstMessage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(skin); }
    void cleanup() { BackLight::recoverBackLight(); }
    void eachTypeHasItsIconAndKeys_data();
    void eachTypeHasItsIconAndKeys();
    void eachKeyAnswersItsNumber_data();
    void eachKeyAnswersItsNumber();
    void keysWithoutTextDoNothing();
    void otherKeysDoNothing();
    void closedByOtherMeansItAnswersZero();
    void aConfirmedActionIsNamedOnItsKey_data();
    void aConfirmedActionIsNamedOnItsKey();
    void newMessageHasTheReturnValueEight();
    void anUnknownTypeShowsAsInformation();
    void thePressThatWakesTheScreenDoesNothingElse();
    void theHeldKeyThatOpenedItDoesNotAnswerIt();
    void standsAtTheBottomOfTheInstrumentsWindow();
    void aMessageOverADialogStandsAtTheSameBottom();
    void theKeyboardComesToTheDialogAndGoesBack();
    void longTextsAreNotCutOff();
    void eventsGoOnWhileItIsOpen();
};

constexpr char kF[] = { 'W', 'Y', 'P', 'F', 'L' };

struct Form
{
    int type;
    const char *icon;
    const char *texts[5];
    int rets[5]; // -1: no key
};

// clang-format off
static const Form kForms[] = {
    { 0, ":/info",     { "", "", "", "", "Ok" },                                        { -1, -1, -1, -1, 0 } },
    { 1, ":/question", { "", "", "", "Quit", "Cancel" },                                { -1, -1, -1, 3, 1 } },
    { 2, ":/warning",  { "", "", "", "Ok", "Cancel" },                                  { -1, -1, -1, 0, 1 } },
    { 3, ":/error",    { "", "", "", "", "Ok" },                                        { -1, -1, -1, -1, 0 } },
    { 4, ":/question", { "", "", "", "Yes", "No" },                                     { -1, -1, -1, 4, 5 } },
    { 5, ":/info",     { "", "", "Save & Restart", "Discard & Restart", "Cancel" },     { -1, -1, 2, 6, 1 } },
    { 6, ":/info",     { "", "", "Save & Exit", "Discard & Exit", "Cancel" },           { -1, -1, 2, 6, 1 } },
    { 7, ":/warning",  { "Exit", "Restart", "", "Save", "Cancel" },                     { 6, 7, -1, 2, 1 } },
    { 8, ":/question", { "Yes to all", "No to all", "", "Yes", "No" },                  { 9, 10, -1, 4, 5 } },
};
// clang-format on

void TstMessage::eachTypeHasItsIconAndKeys_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < int(std::size(kForms)); ++i)
        QTest::addRow("type %d", kForms[i].type) << i;
}

void TstMessage::eachTypeHasItsIconAndKeys()
{
    QFETCH(int, row);
    const Form &form = kForms[row];
    Message message(form.type, QStringLiteral("text"));
    QStringList expected;
    for (const char *text : form.texts)
        expected << QString::fromLatin1(text);
    QCOMPARE(keyTexts(&message), expected);
    QCOMPARE(labelText(&message, "message"), QStringLiteral("text"));
    const QPixmap icon = message.findChild<QLabel *>(QStringLiteral("icon"))->pixmap(Qt::ReturnByValue);
    QVERIFY(!icon.isNull());
    QCOMPARE(icon.toImage(), QPixmap(QString::fromLatin1(form.icon)).toImage());
}

void TstMessage::eachKeyAnswersItsNumber_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("letter");
    QTest::addColumn<int>("ret");
    for (const Form &form : kForms) {
        for (int key = 0; key < 5; ++key) {
            if (form.rets[key] >= 0)
                QTest::addRow("type %d, F%d", form.type, key + 1)
                    << form.type << QByteArray(1, kF[key]) << form.rets[key];
        }
    }
}

void TstMessage::eachKeyAnswersItsNumber()
{
    QFETCH(int, type);
    QFETCH(QByteArray, letter);
    DialogDriver driver({ DialogDriver::press(letter) });
    QTEST(Message::showMessage(type, QStringLiteral("text")), "ret");
    QVERIFY(driver.isDone());
}

void TstMessage::keysWithoutTextDoNothing()
{
    for (const Form &form : kForms) {
        Message message(form.type, QStringLiteral("text"));
        message.show();
        for (int key = 0; key < 5; ++key) {
            if (form.rets[key] < 0)
                QTest::keyClick(&message, kF[key]);
        }
        QVERIFY(message.isVisible());
        QCOMPARE(message.getRet(), 8);
    }
}

void TstMessage::otherKeysDoNothing()
{
    Message message(7, QStringLiteral("text"));
    message.show();
    for (const char letter : QByteArray("EAUSRIXBOQDTK")) {
        if (letter)
            QTest::keyClick(&message, letter);
    }
    for (const Qt::Key key : { Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_F1, Qt::Key_F5 })
        QTest::keyClick(&message, key);
    QVERIFY(message.isVisible());
    QCOMPARE(message.getRet(), 8);
}

void TstMessage::closedByOtherMeansItAnswersZero()
{
    for (int type = 0; type < int(std::size(kForms)); ++type) {
        DialogDriver driver({ [](QDialog *dialog) { dialog->close(); } });
        QCOMPARE(Message::showMessage(type, QStringLiteral("text")), 0);
    }
}

void TstMessage::newMessageHasTheReturnValueEight()
{
    QCOMPARE(Message(0, QString()).getRet(), 8);
}

void TstMessage::aConfirmedActionIsNamedOnItsKey_data()
{
    QTest::addColumn<char>("letter"); // 0: closed
    QTest::addColumn<bool>("confirmed");
    QTest::newRow("the action") << 'F' << true;
    QTest::newRow("no") << 'L' << false;
    QTest::newRow("closed by other means") << '\0' << false;
}

void TstMessage::aConfirmedActionIsNamedOnItsKey()
{
    QFETCH(char, letter);
    DialogDriver driver({ [letter](QDialog *dialog) {
        QCOMPARE(keyTexts(dialog), QStringList({ "", "", "", "Overwrite", "No" }));
        if (letter)
            QTest::keyClick(dialog, letter);
        else
            dialog->close();
    } });
    QTEST(Message::confirm(QStringLiteral("It exists"), QStringLiteral("Overwrite")), "confirmed");
    QVERIFY(driver.isDone());
}

void TstMessage::anUnknownTypeShowsAsInformation()
{
    for (const int type : { 9, -1, 1000000 })
        QCOMPARE(keyTexts(std::make_unique<Message>(type, QString()).get()), QStringList({ "", "", "", "", "Ok" }));
}

void TstMessage::thePressThatWakesTheScreenDoesNothingElse()
{
    Message message(2, QStringLiteral("Power off?"));
    message.show();
    BackLight::shutDownBL();
    QTest::keyClick(&message, 'F');
    QVERIFY(message.isVisible());
    QVERIFY(!BackLight::isShut());
    QTest::keyClick(&message, 'F');
    QVERIFY(!message.isVisible());
    QCOMPARE(message.getRet(), 0);
}

void TstMessage::theHeldKeyThatOpenedItDoesNotAnswerIt()
{
    Message message(Message::Warning, QStringLiteral("Power off?"));
    message.show();
    for (const char letter : { 'F', 'L' }) { // Ok and Cancel
        QKeyEvent repeat(QEvent::KeyPress, letter, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(&message, &repeat);
        QVERIFY(repeat.isAccepted());
        QVERIFY(message.isVisible());
        QCOMPARE(message.getRet(), int(Message::None));
    }
    QTest::keyClick(&message, 'L');
    QVERIFY(!message.isVisible());
    QCOMPARE(message.getRet(), int(Message::Cancel));
}

void TstMessage::standsAtTheBottomOfTheInstrumentsWindow()
{
    QDialog instrument(nullptr, Qt::Dialog | Qt::FramelessWindowHint);
    instrument.setFixedSize(640, 480);
    instrument.move(70, 40);
    instrument.show();
    QVERIFY(QTest::qWaitForWindowExposed(&instrument));
    Message message(0, QStringLiteral("text"));
    message.show();
    QCOMPARE(message.pos(), QPoint(70, 40 + 479 - message.height()));
    QCOMPARE(message.width(), 640);
    QVERIFY(!message.testAttribute(Qt::WA_DeleteOnClose));
}

void TstMessage::aMessageOverADialogStandsAtTheSameBottom()
{
    QDialog instrument(nullptr, Qt::Dialog | Qt::FramelessWindowHint);
    instrument.setFixedSize(640, 480);
    instrument.move(30, 20);
    instrument.show();
    QVERIFY(QTest::qWaitForWindowExposed(&instrument));
    Message below(2, QStringLiteral("one"));
    below.show();
    QVERIFY(QTest::qWaitForWindowExposed(&below));
    Message above(2, QStringLiteral("two"));
    above.show();
    QCOMPARE(above.pos(), below.pos());
}

void TstMessage::theKeyboardComesToTheDialogAndGoesBack()
{
    QWidget instrument;
    instrument.setFixedSize(640, 480);
    instrument.show();
    instrument.activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), &instrument);
    Message question(4, QStringLiteral("text"));
    question.show();
    QTRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget *>(&question));
    Message upon(0, QStringLiteral("text"));
    upon.show();
    QTRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget *>(&upon));
    QTest::keyClick(&upon, 'L');
    QTRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget *>(&question));
    QTest::keyClick(&question, 'L');
    QTRY_COMPARE(QApplication::activeWindow(), &instrument);
}

void TstMessage::longTextsAreNotCutOff()
{
    const QString text
        = QStringLiteral("The recording cannot be started because the storage room left is too small. ").repeated(4);
    Message message(0, text);
    const auto *label = message.findChild<QLabel *>(QStringLiteral("message"));
    const QRect needed
        = QFontMetrics(label->font()).boundingRect(QRect(0, 0, label->width(), 2000), Qt::TextWordWrap, text);
    QVERIFY(needed.height() <= label->height());
    for (const Form &form : kForms) {
        Message keys(form.type, QString());
        for (int i = 1; i <= 5; ++i) {
            const auto *key = keys.findChild<QLabel *>(QStringLiteral("btn_f%1").arg(i));
            QVERIFY(QFontMetrics(key->font()).horizontalAdvance(key->text()) <= key->width() - 8);
        }
    }
}

void TstMessage::eventsGoOnWhileItIsOpen()
{
    // What the device link delivers comes as queued calls: they must run inside of exec().
    int delivered = 0;
    for (int i = 0; i < 100; ++i)
        QMetaObject::invokeMethod(
            this, [&delivered] { ++delivered; }, Qt::QueuedConnection);
    DialogDriver driver({ [&delivered](QDialog *dialog) {
        QCOMPARE(delivered, 100);
        QTest::keyClick(dialog, 'L');
    } });
    QCOMPARE(Message::showMessage(0, QStringLiteral("text")), 0);
    QCOMPARE(delivered, 100);
}

QTEST_MAIN(TstMessage)
#include "tst_message.moc"
