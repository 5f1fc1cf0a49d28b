// The pages that tell which keys there are say what the code does.
#include "platform/deskkeys.h"
#include "unit/documentpage.h"
#include "widgets/text/keymap.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QKeySequence>
#include <QTest>

#include <clocale>

namespace {

/// Notes the last key that was pressed on it.
template <typename Window> class KeyNote : public Window
{
public:
    int last = 0;

protected:
    void keyPressEvent(QKeyEvent *event) override { last = event->key(); }
};

/// "F1 to F5", "soft keys 1 to 5" and "Left, Up" as single names.
QStringList keyNames(QString cell)
{
    const QStringList ends
        = cell.replace(QLatin1String("soft keys 1 to "), QLatin1String("F1 to F")).split(QStringLiteral(" to "));
    if (ends.size() != 2)
        return cell.split(QStringLiteral(", "));
    QStringList names;
    for (int n = ends[0].mid(1).toInt(); n <= ends[1].mid(1).toInt(); ++n)
        names << ends[0].at(0) + QString::number(n);
    return names;
}

} // namespace

class TstKeyDocs : public QObject
{
    Q_OBJECT
private slots:
    void numbersOfTheRemoteControl();
    void keysOfAPcOnADesk();
    void scanCodesOfTheBoard();
};

void TstKeyDocs::numbersOfTheRemoteControl()
{
    // The table lies on its side: numbers, then the letters below them.
    const QStringList lines = DocumentPage(QStringLiteral("remote-control.md"))
                                  .section(QStringLiteral("## Keys"))
                                  .split(QLatin1Char('\n'))
                                  .filter(QRegularExpression(QStringLiteral("^\\| (number|letter)")));
    QCOMPARE(lines.size(), 2);
    const QStringList numbers = lines[0].split(QLatin1Char('|')).mid(2);
    const QStringList letters = lines[1].split(QLatin1Char('|')).mid(2);
    QCOMPARE(numbers.size(), 17 + 1); // and nothing behind the last line
    QCOMPARE(letters.size(), numbers.size());
    for (int i = 0; i < 17; ++i)
        QCOMPARE(QString(QChar(keyMap::keyboardBackMap(numbers[i].toInt()))), letters[i].trimmed());
}

void TstKeyDocs::keysOfAPcOnADesk()
{
    QVERIFY(DeskKeys::install(qApp, keyMap::panelLetter));
    KeyNote<QWidget> page;
    KeyNote<QDialog> dialog;
    int listed = 0;
    const auto rows = DocumentPage(QStringLiteral("desk-set-up.md")).table(QStringLiteral("## Keys"));
    for (const QStringList &row : rows) {
        if (row[0] == QLatin1String("power key")) // a PC's is its desk's
            continue;
        const bool inDialog = row[0] == QLatin1String("Escape in a dialog");
        if (inDialog)
            dialog.open();
        const QStringList names = row[0].startsWith(QLatin1String("Escape")) ? QStringList { "Esc" } : keyNames(row[0]);
        const QStringList letters = row[1].split(QLatin1Char(' '));
        for (int i = 0; i < names.size(); ++i, ++listed) {
            const auto key = Qt::Key(QKeySequence::fromString(names[i])[0]);
            QTest::keyClick(inDialog ? static_cast<QWidget *>(&dialog) : &page, key);
            const int arrived = inDialog ? dialog.last : page.last;
            QCOMPARE(names[i] + QChar(arrived), names[i] + letters.value(i, letters.last()));
        }
        dialog.close();
    }
    QCOMPARE(listed, 12 + 4 + 2 + 2);
}

void TstKeyDocs::scanCodesOfTheBoard()
{
    const QHash<QString, int> keys {
        { "F1", Qt::Key_F1 },      { "F2", Qt::Key_F2 },       { "F3", Qt::Key_F3 },
        { "F4", Qt::Key_F4 },      { "F5", Qt::Key_F5 },       { "Scope", Qt::Key_F6 },
        { "Menu", Qt::Key_F7 },    { "Monitor", Qt::Key_F8 },  { "Setup", Qt::Key_F9 },
        { "Memory", Qt::Key_F10 }, { "Save", Qt::Key_F11 },    { "Light", Qt::Key_F12 },
        { "Left", Qt::Key_Left },  { "Up", Qt::Key_Up },       { "Right", Qt::Key_Right },
        { "Down", Qt::Key_Down },  { "Enter", Qt::Key_Enter }, { "Power", Qt::Key_PowerOff },
    };
    // What the system makes of the scan codes of the panel's driver.
    const DocumentPage map(QStringLiteral("../packaging/board/60-quvera-keys.hwdb"));
    QVERIFY(map.text().contains(QLatin1String("\nevdev:name:quvera-panel:*\n")));
    QMap<int, QString> letters;
    auto lines
        = QRegularExpression(QStringLiteral("\n KEYBOARD_KEY_([0-9a-f]+)=([a-z])(?=\n)")).globalMatch(map.text());
    while (lines.hasNext()) {
        const auto line = lines.next();
        const int code = line.captured(1).toInt(nullptr, 16);
        QVERIFY2(!letters.contains(code), qPrintable(line.captured(1)));
        letters.insert(code, line.captured(2));
    }
    QCOMPARE(letters.size(), keys.size());

    // The page says the same, and the program takes each letter for the key that the page names.
    const DocumentPage page(QStringLiteral("board.md"));
    QVERIFY(page.text().contains(QLatin1String("is to be called `quvera-panel`")));
    QSet<QString> documented;
    const auto rows = page.table(QStringLiteral("## Screen and keys"));
    for (const QStringList &row : rows) {
        const QStringList range = row[0].split(QStringLiteral(" to ")), spoken = row[1].split(QLatin1Char(' '));
        const QStringList names = keyNames(row[2]);
        const int first = range.first().mid(2).toInt(nullptr, 16);
        QCOMPARE(range.last().mid(2).toInt(nullptr, 16), first + int(spoken.size()) - 1);
        QCOMPARE(names.size(), spoken.size());
        for (int i = 0; i < names.size(); ++i) {
            QCOMPARE(letters.value(first + i), spoken[i]);
            QVERIFY2(keys.contains(names[i]), qPrintable(names[i]));
            QCOMPARE(keyMap::keyMapping(spoken[i].toUpper().at(0).unicode()), keys.value(names[i]));
            documented << names[i];
        }
    }
    QCOMPARE(documented.size(), keys.size());
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    TstKeyDocs test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_keydocs.moc"
