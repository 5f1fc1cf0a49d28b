// Whatever is pressed on the whole instrument, it goes on, and what it leaves can be read.
#include "instrument.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSet>

#include <random>

using namespace SystemTest;

namespace {

constexpr quint32 kSeed = 20240118;
constexpr int kUsualSeconds = 12; // of each case
constexpr int kFewestKeys = 100; // on a machine that is slow
constexpr int kKeysToAPicture = 200;

// By their remote numbers. Enter and the arrows lead deeper, the other pages away: those come less often.
const int kKeys[] = { 13, 13, 13, 13, 13, 13, 16, 17, 18, 19, 16, 17, 18, 19, 16, 17, 18, 19, 16, 17, 18, 19, 40,
                      41, 42, 43, 44, 40, 41, 42, 43, 44, 40, 41, 42, 43, 44, 45, 46, 46, 46, 47, 48, 49, 50, 51 };

} // namespace

/// The real programs under keys that nobody thought of. QUVERA_TEST_SECONDS makes each case last longer: an hour of it
/// is run by hand, with the sanitizers.
class TstAnyKeys : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void floodOfKeysLeavesItResponding();
    void keysAtAUsersPaceLeaveItResponding();
    void cleanup();

private:
    int openFiles() const
    {
        const QString folder = QStringLiteral("/proc/%1/fd").arg(m_desk->instrument().processId());
        return QDir(folder).entryList(QDir::Files | QDir::System | QDir::NoDotAndDotDot).size();
    }
    void pressKeys(int pauseMs);

    std::unique_ptr<Instrument> m_desk;
    std::mt19937 m_random { kSeed };
    int m_openFiles = 0;
};

void TstAnyKeys::initTestCase()
{
    m_desk.reset(new Instrument);
    VERIFY_DESK(m_desk->start({ QStringLiteral("--scenario"), QStringLiteral("living") }), *m_desk);
    QVERIFY(!m_desk->screen().isNull());
    m_openFiles = openFiles();
}

void TstAnyKeys::pressKeys(int pauseMs)
{
    const int wanted = qEnvironmentVariableIntValue("QUVERA_TEST_SECONDS");
    const qint64 ms = qint64(1000) * (wanted > 0 ? wanted : kUsualSeconds);
    QElapsedTimer timer;
    timer.start();
    int pressed = 0;
    while (timer.elapsed() < ms || pressed < kFewestKeys) {
        const int key = kKeys[m_random() % std::size(kKeys)];
        QVERIFY2(m_desk->remote().pressKey(key), qPrintable(m_desk->remote().error()));
        if (++pressed % kKeysToAPicture == 0)
            QVERIFY2(!m_desk->screen().isNull(), qPrintable(QStringLiteral("behind %1 keys").arg(pressed)));
        if (pauseMs > 0)
            QTest::qSleep(pauseMs);
    }
}

void TstAnyKeys::floodOfKeysLeavesItResponding()
{
    pressKeys(0);
}

void TstAnyKeys::keysAtAUsersPaceLeaveItResponding()
{
    pressKeys(20);
}

void TstAnyKeys::cleanup()
{
    QVERIFY2(m_desk->isInstrumentRunning(), m_desk->instrumentOutput().right(2000));
    const QImage screen = m_desk->screen();
    QCOMPARE(screen.size(), QSize(640, 480));
    QVERIFY2(openFiles() <= m_openFiles + 8, qPrintable(QString::number(openFiles())));
    for (const char *name : { kSettingFile, kUserFile }) {
        QFile file(m_desk->path(QString::fromLatin1(name)));
        const QList<QByteArray> lines
            = file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QList<QByteArray>();
        QSet<QByteArray> keys;
        for (const QByteArray &line : lines) {
            const QByteArray key = line.left(line.indexOf('='));
            QVERIFY2(line.isEmpty() || (line.contains('=') && !keys.contains(key)), line.constData());
            keys << key;
        }
    }
}

QTEST_GUILESS_MAIN(TstAnyKeys)
#include "tst_anykeys.moc"
