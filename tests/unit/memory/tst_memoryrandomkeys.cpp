#include "memorycase.h"

#include "memory/imageviewer.h"

#include <QSet>

using namespace MemoryCase;

namespace {

constexpr int kKeys = 5000;
constexpr int kMostKeys = 10 * kKeys; // what they lead to hangs on the machine's pace, too
constexpr int kBatch = 20; // keys between two looks at the event loop

const FrontKey kPanel[] = { F1, F2, F3, F4, F5, Up, Down, Down, Enter, Left, Right, F6, F11 };

const QStringList kUnfinished { "*.part", "*.old" };

/// What the index names and the card does not have.
QStringList entriesWithoutFile()
{
    QStringList missing;
    if (!FileInfo().testInfo())
        return missing; // formatted
    for (const QString &name : FileInfo().getInfoFiles()) {
        if (!onCard(QFile::encodeName(name)))
            missing << name;
    }
    return missing;
}

} // namespace

/// Whatever is pressed on the memory page: card, index and disk stay in order, and nothing else is touched.
class TstMemoryRandomKeys : public QObject
{
    Q_OBJECT

private slots:
    void anyKeysKeepCardAndDiskInOrder();

private:
    void pressSome(Screen &screen);
    void fill();
    quint32 next() { return (m_random = m_random * 1664525 + 1013904223) >> 16; }

    bool isDone() const
    {
        return m_pressed >= kMostKeys || (m_pressed >= kKeys && unseen().isEmpty() && m_filled > 2 && hasCopied());
    }
    QStringList unseen() const
    {
        QStringList names { "MemoryPage", "Message", "FileCopingProgressBar", "ImageViewer" };
        for (const QString &seen : m_seen)
            names.removeOne(seen);
        return names;
    }
    static bool hasCopied()
    {
        const QDir disk(Target::path(kDisk));
        const int unfinished = disk.entryList(kUnfinished, QDir::AllEntries).size();
        return disk.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size() - unfinished > 1; // beside what it had
    }

    quint32 m_random = 20240118;
    int m_pressed = 0;
    int m_filled = 0;
    QSet<QString> m_seen; // pages and dialogs that had a key
};

/// Things of several kinds, as a day's work leaves them.
void TstMemoryRandomKeys::fill()
{
    ++m_filled;
    const QByteArray number = QByteArray::number(m_filled);
    for (const QByteArray &name : { "Vif" + number + ".png", "a\"b$" + number, "-rf" + number }) {
        store(name, QByteArray(int(next() % 4000), 'x'));
        FileInfo().saveInfo(QFile::decodeName(name), QDateTime(QDate(2024, 1, 1), QTime(0, 0), Qt::UTC));
    }
    storePicture(QStringLiteral("shot%1.png").arg(m_filled));
    store("24010" + number.right(1) + "_000000 Logger_" + number + "/Common.pqa2", QByteArray(4000000, 'c'));
}

void TstMemoryRandomKeys::pressSome(Screen &screen)
{
    if (isDone())
        return;
    // Before the keys: one of them may open a dialog, which runs a loop of its own.
    QTimer::singleShot(5, &screen.window, [this, &screen] { pressSome(screen); });
    QWidget *const begun = QApplication::activeModalWidget();
    // Most keys do nothing while something is under way.
    const int keys = screen.page->isWorking() ? 1 : kBatch;
    for (int i = 0; i < keys && QApplication::activeModalWidget() == begun; ++i, ++m_pressed) {
        QWidget *target = begun;
        if (!target)
            target = screen.window.findChild<ImageViewer *>();
        if (!target)
            target = screen.page;
        m_seen << QString::fromLatin1(target->metaObject()->className());
        QTest::keyClick(target, Qt::Key(kPanel[next() % std::size(kPanel)]));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    if (screen.list()->count() < 5 && !screen.page->isWorking() && !begun) {
        fill();
        screen.page->reflashFilesList();
    }
}

void TstMemoryRandomKeys::anyKeysKeepCardAndDiskInOrder()
{
    RootFiles::clean();
    RootFiles::write("/mnt/userfs/keep", "keep");
    RootFiles::write(kDisk + "/keep.txt", "keep");
    RootFiles::write(kDisk + "/.capacity", "30000000\n"); // soon full
    fill();
    Screen screen;
    screen.page->setMedias({ kDisk });
    pressSome(screen);
    QTimer closer; // of dialogs that come behind the last key
    connect(&closer, &QTimer::timeout, this, [this] {
        QWidget *dialog = QApplication::activeModalWidget();
        if (dialog && isDone())
            dialog->close();
    });
    closer.start(10);
    QTRY_VERIFY_WITH_TIMEOUT(isDone() && !QApplication::activeModalWidget() && !screen.page->isWorking(), 200000);
    QCOMPARE(unseen(), QStringList());
    QVERIFY(m_filled > 2);
    QCOMPARE(RootFiles::read("/mnt/userfs/keep"), QByteArray("keep"));
    QCOMPARE(RootFiles::read(kDisk + "/keep.txt"), QByteArray("keep"));
    QCOMPARE(entriesWithoutFile(), QStringList());
    QVERIFY(QDir(Target::path(kDisk)).entryList(kUnfinished, QDir::AllEntries).isEmpty());
    QVERIFY(hasCopied());
}

PAGE_TEST_MAIN(TstMemoryRandomKeys)
#include "tst_memoryrandomkeys.moc"
