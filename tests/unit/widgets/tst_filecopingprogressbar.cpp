#include "dialogdriver.h"

#include "platform/target.h"
#include "unit/storage/heldcopy.h"
#include "widgets/dialogs/filecopingprogressbar.h"

#include <QDir>
#include <QProgressBar>

static const QString kSource = QStringLiteral("/mnt/storage/data.pqa2");
static const QString kTarget = QStringLiteral("/run/media/sda1/data.pqa2");
static constexpr int kSomePieces = 40; // of a copy: some percent of the largest here

class TstFileCopingProgressBar : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(skin); }
    void init();
    void noErrorIsTheFirstState();
    void aFileIsCopiedWhole_data();
    void aFileIsCopiedWhole();
    void anOldFileIsReplaced();
    void aMissingSourceIsAnError();
    void aMissingDiskIsAnError();
    void cancelLeavesNothingBehind();
    void closingTheProgramMeanwhileLeavesNothingBehind();
    void eventsGoOnWhileItCopies();
};

static QByteArray content(int size)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char(i * 31 + i / 256);
    return bytes;
}

static void write(const QString &path, const QByteArray &bytes)
{
    QFile file(Target::path(path));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

static QByteArray read(const QString &path)
{
    QFile file(Target::path(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

static QStringList onDisk()
{
    return QDir(Target::path(QStringLiteral("/run/media/sda1"))).entryList(QDir::Files | QDir::Hidden);
}

void TstFileCopingProgressBar::init()
{
    QDir(Target::path(QStringLiteral("/run/media/sda1"))).removeRecursively();
    QVERIFY(QDir().mkpath(Target::path(QStringLiteral("/run/media/sda1"))));
    QVERIFY(QDir().mkpath(Target::path(QStringLiteral("/mnt/storage"))));
    QFile::remove(Target::path(kSource));
}

void TstFileCopingProgressBar::noErrorIsTheFirstState()
{
    QCOMPARE(FileCopingProgressBar::err, QStringLiteral("NoErr"));
}

void TstFileCopingProgressBar::aFileIsCopiedWhole_data()
{
    QTest::addColumn<int>("size");
    for (const int size : { 0, 1, 262143, 262144, 262145, 3000000 })
        QTest::addRow("%d bytes", size) << size;
}

void TstFileCopingProgressBar::aFileIsCopiedWhole()
{
    QFETCH(int, size);
    write(kSource, content(size));
    QVERIFY(FileCopingProgressBar::copyFile(kSource, kTarget));
    QCOMPARE(FileCopingProgressBar::err, QStringLiteral("NoErr"));
    QCOMPARE(read(kTarget), content(size));
    QCOMPARE(onDisk(), QStringList { "data.pqa2" });
}

void TstFileCopingProgressBar::anOldFileIsReplaced()
{
    write(kSource, content(1000));
    write(kTarget, content(5000));
    QVERIFY(FileCopingProgressBar::copyFile(kSource, kTarget));
    QCOMPARE(read(kTarget), content(1000));
}

void TstFileCopingProgressBar::aMissingSourceIsAnError()
{
    write(kTarget, content(10));
    QVERIFY(!FileCopingProgressBar::copyFile(kSource, kTarget));
    QVERIFY(FileCopingProgressBar::err != QStringLiteral("NoErr"));
    QCOMPARE(read(kTarget), content(10)); // the old copy stays
}

void TstFileCopingProgressBar::aMissingDiskIsAnError()
{
    write(kSource, content(10));
    QVERIFY(!FileCopingProgressBar::copyFile(kSource, QStringLiteral("/run/media/sdz9/data.pqa2")));
    QVERIFY(FileCopingProgressBar::err != QStringLiteral("NoErr"));
    QCOMPARE(read(kSource), content(10));
}

void TstFileCopingProgressBar::cancelLeavesNothingBehind()
{
    write(kSource, QByteArray(200000000, 'x'));
    HeldCopy held(kSomePieces);
    FileCopingProgressBar bar({ { kSource, kTarget } });
    bar.show();
    QTRY_VERIFY_WITH_TIMEOUT(bar.findChild<QProgressBar *>()->value() > 0, 30000);
    QTest::keyClick(&bar, 'L');
    held.release();
    QTRY_VERIFY_WITH_TIMEOUT(!bar.isVisible(), 30000);
    QCOMPARE(bar.result(), int(QDialog::Rejected));
    QVERIFY(FileCopingProgressBar::err != QStringLiteral("NoErr"));
    QCOMPARE(onDisk(), QStringList());
}

void TstFileCopingProgressBar::closingTheProgramMeanwhileLeavesNothingBehind()
{
    write(kSource, QByteArray(200000000, 'x'));
    {
        HeldCopy held(kSomePieces);
        FileCopingProgressBar bar({ { kSource, kTarget } });
        QTRY_VERIFY_WITH_TIMEOUT(bar.findChild<QProgressBar *>()->value() > 0, 30000);
        QCOMPARE(onDisk().size(), 1); // the part that is there
        held.let(kSomePieces); // the worker is on its way again, and far from the end
    }
    QCOMPARE(onDisk(), QStringList());
}

void TstFileCopingProgressBar::eventsGoOnWhileItCopies()
{
    write(kSource, content(8000000));
    int turns = 0;
    QTimer timer;
    HeldCopy held(0);
    connect(&timer, &QTimer::timeout, [&turns, &held] {
        ++turns;
        held.let(1); // and no other piece before the next turn
    });
    timer.start(0);
    QVERIFY(FileCopingProgressBar::copyFile(kSource, kTarget));
    QVERIFY(turns >= 8000000 / 262144 / 2);
}

QTEST_MAIN(TstFileCopingProgressBar)
#include "tst_filecopingprogressbar.moc"
