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

/// "F1 to F5" and "Left, Up" as single names.
QStringList keyNames(const QString &cell)
{
    const QStringList ends = cell.split(QStringLiteral(" to "));
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

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    TstKeyDocs test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_keydocs.moc"
