// Somebody takes the card out of an instrument that records, and puts it back; or pulls a disk out of a copy.
#include "instrument.h"

#include "record/pqa2reader.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

using namespace SystemTest;

namespace {

constexpr int kWaitMs = 60000; // for what takes ten seconds on a quiet machine
constexpr quint32 kInterval = 0xA1000020, kEnd = 0xA1000019;

QStringList keys(const char *names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

} // namespace

class TstCardTaken : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void recordingGoesOnWhenItIsBack();
    void whatIsOnItIsReadAndToldAfterAStartWithTheCardBack();
    void aDiskPulledOutOfACopyLeavesCardAndRecordingAlone();

private:
    QDir storage() const { return QDir(m_desk->path(QStringLiteral("/mnt/storage/"))); }
    QString folder() const { return storage().entryList(QDir::Dirs | QDir::NoDotAndDotDot).value(0); }
    QByteArray content(const char *name) const
    {
        QFile file(storage().filePath(QLatin1String(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// How many blocks of a type the common file has; -1: nothing but the last link may be missing, and more is.
    int blocks(quint32 type) const;
    void takeCard(bool out) const;
    /// Takes it out of the page that records, which says that the storage takes no more data.
    void takeCardAndHearOfIt();
    /// Everything every second; some intervals of it are there.
    void record();

    std::unique_ptr<Instrument> m_desk;
};

void TstCardTaken::init()
{
    m_desk = std::make_unique<Instrument>();
    VERIFY_DESK(m_desk->start(), *m_desk);
}

int TstCardTaken::blocks(quint32 type) const
{
    QFile file(storage().filePath(folder() + QStringLiteral("/Common.pqa2")));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    Pqa2Reader reader(&file);
    int found = 0;
    for (Pqa2Block block; reader.next(&block);)
        found += block.type == type;
    return reader.state() == Pqa2Reader::Whole || (reader.state() == Pqa2Reader::Cut && !reader.skipDamage()) ? found
                                                                                                              : -1;
}

void TstCardTaken::takeCard(bool out) const
{
    QFile mark(m_desk->path(QStringLiteral("/card-gone")));
    if (out)
        QVERIFY(mark.open(QIODevice::WriteOnly));
    else
        QVERIFY(mark.remove());
}

void TstCardTaken::takeCardAndHearOfIt()
{
    const auto state = [](const QImage &screen) { return screen.copy(0, 100, 640, 80); };
    const QImage running = state(m_desk->screen());
    takeCard(true);
    QVERIFY(!m_desk->waitForScreen([&](const QImage &now) { return state(now) != running; }, kWaitMs).isNull());
}

void TstCardTaken::record()
{
    VERIFY_DESK(m_desk->press(keys("Down Down Right Enter F2 F1 F4 Down Down Left Left Left F5")), *m_desk);
    QTRY_VERIFY_WITH_TIMEOUT(blocks(kInterval) >= 3, kWaitMs);
}

void TstCardTaken::recordingGoesOnWhenItIsBack()
{
    record();
    takeCardAndHearOfIt();
    const int before = blocks(kInterval);
    VERIFY_DESK(m_desk->press(keys("Menu Up Up Left Enter")), *m_desk);
    const QImage values = m_desk->screen();
    QVERIFY(!m_desk->waitForScreen([&](const QImage &now) { return page(now) != page(values); }).isNull()); // it lives
    QCOMPARE(blocks(kInterval), before);
    takeCard(false);
    QTRY_VERIFY_WITH_TIMEOUT(blocks(kInterval) >= before + 3, kWaitMs);
    VERIFY_DESK(m_desk->press(keys("Menu Down Down Right Enter F5 F4")), *m_desk); // Stop: Save
    QTRY_COMPARE_WITH_TIMEOUT(blocks(kEnd), 1, kWaitMs);
    QTRY_COMPARE_WITH_TIMEOUT(content(".infomation").count("Logger_1,"), 1, kWaitMs);
    QTRY_VERIFY_WITH_TIMEOUT(content(".running").isEmpty(), kWaitMs);
}

void TstCardTaken::whatIsOnItIsReadAndToldAfterAStartWithTheCardBack()
{
    const QImage menu = page(m_desk->screen());
    record();
    takeCardAndHearOfIt(); // what was being written is through
    const int before = blocks(kInterval);
    QTest::qWait(2000);
    m_desk->instrument().kill();
    QVERIFY(m_desk->instrument().waitForFinished());
    takeCard(false);
    QCOMPARE(blocks(kInterval), before);
    VERIFY_DESK(m_desk->startInstrument(), *m_desk);
    QVERIFY(!m_desk->waitForScreen([&menu](const QImage &now) { return page(now) != menu; }).isNull()); // it is told
    VERIFY_DESK(m_desk->press(keys("F5")), *m_desk);
    QTRY_VERIFY_WITH_TIMEOUT(content(".running").isEmpty(), kWaitMs);
    QTRY_COMPARE_WITH_TIMEOUT(content(".infomation").count("Logger_1,"), 1, kWaitMs);
    QCOMPARE(blocks(kInterval), before);
}

void TstCardTaken::aDiskPulledOutOfACopyLeavesCardAndRecordingAlone()
{
    constexpr qint64 kLarge = 200'000'000;
    const QString name = QStringLiteral("large.pqa");
    QFile large(storage().filePath(name));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(kLarge));
    large.close();
    record();
    const QDir media(m_desk->path(QStringLiteral("/run/media")));
    QVERIFY(media.mkpath(QStringLiteral("sda1")));
    QDir disk(media.filePath(QStringLiteral("sda1")));
    QFile slow(m_desk->path(QStringLiteral("/disk-slow"))); // it is not through before the disk is pulled
    QVERIFY(slow.open(QIODevice::WriteOnly));
    VERIFY_DESK(m_desk->press(keys("Memory F2 F1 F4")), *m_desk); // all but what runs
    VERIFY_DESK(m_desk->press(keys("F4")), *m_desk); // it may be copied
    const QString pulled = m_desk->path(QStringLiteral("/pulled"));
    QElapsedTimer time;
    time.start();
    while (disk.isEmpty() && time.elapsed() < kWaitMs)
        QThread::msleep(1);
    QVERIFY(QFile::rename(disk.path(), pulled));
    QVERIFY(!QFile::exists(pulled + QLatin1Char('/') + name)); // the copy had begun, and was not through
    QVERIFY(slow.remove());
    QCOMPARE(QFileInfo(large.fileName()).size(), kLarge);
    int before = blocks(kInterval);
    QTRY_VERIFY_WITH_TIMEOUT(blocks(kInterval) >= before + 3, kWaitMs);

    // Another disk gets it whole, behind "Error!!!".
    VERIFY_DESK(m_desk->press(keys("F5")), *m_desk);
    QVERIFY(media.mkpath(QStringLiteral("sdb1")));
    VERIFY_DESK(m_desk->press(keys("F4 F4")), *m_desk);
    QTRY_COMPARE_WITH_TIMEOUT(QFileInfo(media.filePath(QStringLiteral("sdb1/") + name)).size(), kLarge, kWaitMs);
    QVERIFY(!QFile::exists(pulled + QLatin1Char('/') + name));
    before = blocks(kInterval);
    QTRY_VERIFY_WITH_TIMEOUT(blocks(kInterval) >= before + 3, kWaitMs);
}

int main(int argc, char **argv)
{
    qputenv("LD_PRELOAD", QUVERA_CARD_GONE); // for what is started from here
    QTEST_SET_MAIN_SOURCE_PATH
    QGuiApplication application(argc, argv);
    TstCardTaken test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_cardtaken.moc"
