// A recording from the first key to the files on the card, by the keys of the remote control.
#include "instrument.h"

#include "record/pqa2reader.h"

#include <QDir>
#include <QFile>

using namespace SystemTest;

namespace {

constexpr int kWaitMs = 60000; // for what takes ten seconds on a quiet machine

QStringList keys(const char *names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

} // namespace

class TstRemoteRecording : public QObject
{
    Q_OBJECT
private slots:
    void recordsBesideTheLivePagesAndIsSavedRestartedAndDiscarded();

private:
    /// Names of the recordings on the card, the times in front cut off.
    QStringList recordings() const
    {
        QStringList names;
        for (const QString &folder : folders())
            names << folder.section(QLatin1Char(' '), 1);
        return names;
    }
    QStringList folders() const
    {
        return QDir(m_desk.path(QStringLiteral("/mnt/storage/")))
            .entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    }
    QByteArray index() const
    {
        QFile file(m_desk.path(QStringLiteral("/mnt/storage/.infomation")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// How many blocks of a type a file of the recording has; -1 when it is not whole.
    int blocks(const QString &folder, const char *file, quint32 type) const
    {
        QFile device(m_desk.path(QStringLiteral("/mnt/storage/") + folder + QLatin1Char('/') + QLatin1String(file)));
        if (!device.open(QIODevice::ReadOnly))
            return -1;
        Pqa2Reader reader(&device);
        Pqa2Block block;
        int found = 0;
        while (reader.next(&block))
            found += block.type == type;
        return reader.state() == Pqa2Reader::Whole ? found : -1;
    }

    Instrument m_desk;
};

void TstRemoteRecording::recordsBesideTheLivePagesAndIsSavedRestartedAndDiscarded()
{
    VERIFY_DESK(m_desk.start(), m_desk);
    const QImage menu = title(m_desk.screen());
    VERIFY_DESK(m_desk.press(keys("Down Down Right Enter")), m_desk); // from "Volts/Amps/Hertz" to "Logger"
    VERIFY_DESK(m_desk.press(keys("F2 F1 F4")), m_desk); // all parameters
    VERIFY_DESK(m_desk.press(keys("Down Down Left Left Left")), m_desk); // every second
    const QImage logger = title(m_desk.screen());
    QVERIFY(logger != menu);
    QVERIFY(folders().isEmpty());
    VERIFY_DESK(m_desk.press(keys("F5")), m_desk);
    QTRY_COMPARE_WITH_TIMEOUT(recordings(), QStringList { "Logger_1" }, kWaitMs);

    // Live pages stay live meanwhile, and no question stands in the way.
    VERIFY_DESK(m_desk.press(keys("Menu Up Up Left Enter")), m_desk);
    const QImage values = m_desk.screen();
    QVERIFY(title(values) != menu && title(values) != logger);
    QVERIFY(!m_desk.waitForScreen([&](const QImage &now) { return page(now) != page(values); }).isNull());
    const QString first = folders().value(0);
    const QString common = m_desk.path(QStringLiteral("/mnt/storage/") + first + QStringLiteral("/Common.pqa2"));
    const qint64 before = QFileInfo(common).size();
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(common).size() > before + 4000, kWaitMs);

    VERIFY_DESK(m_desk.press(keys("Menu Down Down Right Enter")), m_desk);
    QCOMPARE(title(m_desk.screen()), logger);
    VERIFY_DESK(m_desk.press(keys("F5 F4")), m_desk); // Stop: Save
    QTRY_COMPARE_WITH_TIMEOUT(blocks(first, "Common.pqa2", 0xA1000019), 1, kWaitMs); // the end
    QVERIFY(blocks(first, "Common.pqa2", 0xA1000020) >= 3); // r.m.s. values of an interval each
    QTRY_VERIFY_WITH_TIMEOUT(blocks(first, "U Harmonic(1-50).pqa2", 0xA1000030) >= 3, kWaitMs); // closed one by one
    QTRY_VERIFY_WITH_TIMEOUT(blocks(first, "I inHarmonic(50-99).pqa2", 0xA1000037) >= 3, kWaitMs);
    QTRY_COMPARE_WITH_TIMEOUT(index().count("Logger_1"), 1, kWaitMs);

    VERIFY_DESK(m_desk.press(keys("F5")), m_desk); // the next one, by the same choices
    QTRY_COMPARE_WITH_TIMEOUT(recordings(), QStringList({ "Logger_1", "Logger_2" }), kWaitMs);
    const QString second = folders().value(1);
    VERIFY_DESK(m_desk.press(keys("F5 F2")), m_desk); // Stop: Restart
    QTRY_VERIFY_WITH_TIMEOUT(folders().size() == 2 && !folders().contains(second), kWaitMs);
    QCOMPARE(recordings(), QStringList({ "Logger_1", "Logger_2" }));

    VERIFY_DESK(m_desk.press(keys("F5 F5")), m_desk); // Stop: Cancel
    QCOMPARE(recordings().size(), 2);
    VERIFY_DESK(m_desk.press(keys("F5 F1")), m_desk); // Stop: Exit
    QTRY_COMPARE_WITH_TIMEOUT(folders(), QStringList { first }, kWaitMs);
    QTRY_COMPARE_WITH_TIMEOUT(index().count("Logger_"), 1, kWaitMs);
    QVERIFY(m_desk.isInstrumentRunning());
}

QTEST_MAIN(TstRemoteRecording)
#include "tst_remoterecording.moc"
