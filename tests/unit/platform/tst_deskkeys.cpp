#include "platform/deskkeys.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QProcess>
#include <QTest>
#include <QWidget>

#include <memory>

namespace {

/// The panel's letters, as the front keys of the instrument have them.
int panelLetter(int key)
{
    switch (key) {
    case Qt::Key_F1:
        return 'W';
    case Qt::Key_F5:
        return 'L';
    case Qt::Key_F7:
        return 'A';
    case Qt::Key_Left:
        return 'O';
    case Qt::Key_Enter:
        return 'K';
    default:
        return Qt::Key_unknown;
    }
}

/// Notes the key events that reach it, and takes them or lets them rise.
class KeySpy : public QWidget
{
public:
    explicit KeySpy(bool takes = true, QWidget *parent = nullptr) : QWidget(parent), m_takes(takes) { }
    QList<int> pressed, released;
    int repeats = 0;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        pressed << event->key();
        repeats += event->isAutoRepeat();
        event->setAccepted(m_takes);
    }
    void keyReleaseEvent(QKeyEvent *event) override
    {
        released << event->key();
        event->setAccepted(m_takes);
    }

private:
    bool m_takes;
};

} // namespace

class TstDeskKeys : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_keys.reset(DeskKeys::install(qApp, panelLetter)); }
    void cleanup() { m_keys.reset(); }

    void pcKeysArriveAsThePanelsLetters_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("letter");
        QTest::newRow("F1") << int(Qt::Key_F1) << int('W');
        QTest::newRow("F5") << int(Qt::Key_F5) << int('L');
        QTest::newRow("left") << int(Qt::Key_Left) << int('O');
        QTest::newRow("enter of the digits") << int(Qt::Key_Enter) << int('K');
        QTest::newRow("return") << int(Qt::Key_Return) << int('K');
        QTest::newRow("escape on a page is Menu") << int(Qt::Key_Escape) << int('A');
        QTest::newRow("a letter of the panel") << int(Qt::Key_W) << int('W');
        QTest::newRow("a key that the panel lacks") << int(Qt::Key_Home) << int(Qt::Key_Home);
    }

    void pcKeysArriveAsThePanelsLetters()
    {
        QFETCH(int, key);
        QFETCH(int, letter);
        KeySpy page;
        QTest::keyClick(&page, Qt::Key(key));
        QCOMPARE(page.pressed, QList<int>({ letter }));
        QCOMPARE(page.released, QList<int>({ letter }));
    }

    void escapeInADialogIsTheFifthSoftKey()
    {
        QDialog dialog;
        dialog.setModal(true);
        KeySpy content(true, &dialog);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QTest::keyPress(&content, Qt::Key_Escape);
        QCOMPARE(content.pressed, QList<int>({ int('L') }));
        QVERIFY(dialog.isVisible()); // the dialog decides what its key does
    }

    void keysOfTheDeskStayTheDesks()
    {
        KeySpy page;
        for (const auto modifier : { Qt::AltModifier, Qt::ControlModifier, Qt::MetaModifier })
            press(&page, Qt::Key_F1, modifier);
        QCOMPARE(page.pressed, QList<int>({ Qt::Key_F1, Qt::Key_F1, Qt::Key_F1 }));
        press(&page, Qt::Key_Left, Qt::KeypadModifier);
        QCOMPARE(page.pressed.last(), int('O'));
    }

    void aKeyThatAPageIgnoresRisesOnceAsALetter()
    {
        KeySpy page;
        KeySpy inner(false, &page);
        QTest::keyClick(&inner, Qt::Key_F1);
        QCOMPARE(inner.pressed, QList<int>({ int('W') }));
        QCOMPARE(page.pressed, QList<int>({ int('W') }));
        QCOMPARE(page.released, QList<int>({ int('W') }));
    }

    void repeatsOfAHeldKeyStayRepeats()
    {
        KeySpy page;
        for (const bool repeat : { false, true }) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier, QString(), repeat);
            QCoreApplication::sendEvent(&page, &press);
            QVERIFY(press.isAccepted());
        }
        QCOMPARE(page.pressed, QList<int>({ int('O'), int('O') }));
        QCOMPARE(page.repeats, 1);
    }

    void aKeyMayDeleteItsReceiver()
    {
        class Last : public QWidget
        {
            void keyPressEvent(QKeyEvent *) override { delete this; }
        };
        QPointer<QWidget> page = new Last;
        QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
        QCoreApplication::sendEvent(page, &press);
        QVERIFY(page.isNull());
    }

    void onTheBoardNothingIsTranslated()
    {
        // A process of its own, since the root is fixed at its first use.
        QProcess board;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove("QUVERA_ROOT");
        environment.insert("TST_DESKKEYS_SHOW", "1");
        board.setProcessEnvironment(environment);
        board.start(QCoreApplication::applicationFilePath(), QStringList());
        QVERIFY(board.waitForFinished(30000));
        QCOMPARE(board.readAllStandardOutput(), QByteArray("installed=0 key=F1\n"));
    }

private:
    /// Alone: the test library would press the modifier's own key as well.
    static void press(QWidget *page, int key, Qt::KeyboardModifier modifier)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifier);
        QCoreApplication::sendEvent(page, &event);
    }

    std::unique_ptr<DeskKeys> m_keys;
};

/// What a process without a desk root makes of F1.
static void show()
{
    const bool installed = DeskKeys::install(qApp, panelLetter);
    KeySpy page;
    QTest::keyPress(&page, Qt::Key_F1);
    printf("installed=%d key=%s\n", installed, page.pressed.value(0) == Qt::Key_F1 ? "F1" : "another");
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (qEnvironmentVariableIsSet("TST_DESKKEYS_SHOW")) {
        show();
        return 0;
    }
    TstDeskKeys test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_deskkeys.moc"
