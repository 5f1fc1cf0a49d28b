#include "readblocks.h"
#include "platform/target.h"
#include "record/pqafile.h"

#include <QFile>
#include <QTest>

/// A program that links this folder and nothing else, as a tool beside the instrument does: recordings are written and
/// read, and nothing of the screen's toolkit is loaded for it.
class TstRecordAlone : public QObject
{
    Q_OBJECT

private slots:
    void recordingIsWrittenAndReadBack()
    {
        Pqa2FF::setOpening([]() -> Pqa2Opening { return { "MODEL: X\n", "Fnom: 50Hz\n", QByteArray(48, '\1') }; });
        Pqa2FF file("/mnt/storage/alone.pqa2");
        QVERIFY(file.open());
        QCOMPARE(file.addSystemLog("text"), 0);
        file.close();
        QFile stored(Target::path(file.fullFilePath()));
        QVERIFY(stored.open(QIODevice::ReadOnly));
        const QList<ReadBlock> blocks = readBlocks(stored.readAll());
        QCOMPARE(blocks.size(), 4);
        QCOMPARE(blocks.at(0).payload, QByteArray("MODEL: X\n"));
        QCOMPARE(blocks.at(1).payload, QByteArray("Fnom: 50Hz\n"));
        QCOMPARE(blocks.at(2).payload, QByteArray(48, '\1'));
        QCOMPARE(blocks.at(3).payload.mid(8), QByteArray("text"));
    }

    void nothingOfTheScreensToolkitIsLoaded()
    {
        QVERIFY(!PqaFile::dataPath().isEmpty()); // the saved pages' part is linked too
        QFile maps(QStringLiteral("/proc/self/maps"));
        QVERIFY(maps.open(QIODevice::ReadOnly));
        const QByteArray loaded = maps.readAll();
        QVERIFY(loaded.contains("libQt5Core"));
        QVERIFY(loaded.contains("libqv_record"));
        for (const char *library : { "libQt5Gui", "libQt5Widgets", "libqv_settings", "libqv_device", "libqv_board" })
            QVERIFY2(!loaded.contains(library), library);
    }
};

QTEST_APPLESS_MAIN(TstRecordAlone)
#include "tst_recordalone.moc"
