#include "link/streamfile.h"

#include <QTemporaryDir>
#include <QTest>

using namespace wire;

/// The file of a recorded stream: what is written comes back, and damage ends it cleanly.
class TstProcessorStreamFile : public QObject
{
    Q_OBJECT

private slots:
    void messagesComeBackAsTheyWere();
    void layoutIsTheDocumentedOne();
    void everyCutEndsAtTheLastWholeMessage();
    void otherFilesAreRefused();
    void fullDiskClosesTheFile();

private:
    static QList<StreamMessage> readAll(const QString &path, bool *damaged)
    {
        StreamReader reader;
        QString error;
        QList<StreamMessage> messages;
        if (reader.open(path, &error)) {
            while (auto message = reader.next())
                messages << *message;
        }
        *damaged = reader.damaged();
        return messages;
    }
};

void TstProcessorStreamFile::messagesComeBackAsTheyWere()
{
    QTemporaryDir folder;
    StreamWriter writer;
    QString error;
    QVERIFY(writer.open(folder.filePath("s"), &error));
    for (int i = 1; i <= 50; ++i)
        QVERIFY(writer.write({ quint64(i) * 1000003, QByteArray(i * 163, char(i)) }));
    writer.close();
    bool damaged = true;
    const QList<StreamMessage> messages = readAll(folder.filePath("s"), &damaged);
    QVERIFY(!damaged);
    QCOMPARE(messages.size(), 50);
    for (int i = 1; i <= 50; ++i) {
        QCOMPARE(messages[i - 1].microseconds, quint64(i) * 1000003);
        QCOMPARE(messages[i - 1].bytes, QByteArray(i * 163, char(i)));
    }
}

void TstProcessorStreamFile::layoutIsTheDocumentedOne()
{
    QTemporaryDir folder;
    StreamWriter writer;
    QString error;
    QVERIFY(writer.open(folder.filePath("s"), &error));
    QVERIFY(writer.write({ 0x0102030405060708, "ab" }));
    writer.close();
    QFile file(folder.filePath("s"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().toHex(),
             QByteArray("QVSTREAM1\n").toHex() + "0807060504030201" + "02000000" + QByteArray("ab").toHex());
}

void TstProcessorStreamFile::everyCutEndsAtTheLastWholeMessage()
{
    QTemporaryDir folder;
    StreamWriter writer;
    QString error;
    QVERIFY(writer.open(folder.filePath("s"), &error));
    for (int i = 1; i <= 3; ++i)
        QVERIFY(writer.write({ quint64(i), QByteArray(5, char(i)) }));
    writer.close();
    for (int length = 10; length <= 10 + 3 * 17; ++length) { // head 10 bytes, each message 12 + 5
        QFile file(folder.filePath("cut"));
        QFile whole(folder.filePath("s"));
        QVERIFY(file.open(QIODevice::WriteOnly) && whole.open(QIODevice::ReadOnly));
        file.write(whole.read(length));
        file.close();
        bool damaged = false;
        QCOMPARE(readAll(folder.filePath("cut"), &damaged).size(), (length - 10) / 17);
        QCOMPARE(damaged, (length - 10) % 17 != 0);
    }
}

void TstProcessorStreamFile::otherFilesAreRefused()
{
    QTemporaryDir folder;
    StreamReader reader;
    QString error;
    QVERIFY(!reader.open(folder.filePath("none"), &error));
    QVERIFY(error.startsWith("cannot read "));
    QFile file(folder.filePath("text"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("hello");
    file.close();
    QVERIFY(!reader.open(folder.filePath("text"), &error));
    QVERIFY(error.endsWith("is no recorded stream"));
    // A length beyond all sense is damage, and nothing is allocated for it.
    QFile wild(folder.filePath("wild"));
    QVERIFY(wild.open(QIODevice::WriteOnly));
    wild.write(QByteArray("QVSTREAM1\n") + QByteArray(12, '\xff'));
    wild.close();
    bool damaged = false;
    QCOMPARE(readAll(folder.filePath("wild"), &damaged).size(), 0);
    QVERIFY(damaged);
}

void TstProcessorStreamFile::fullDiskClosesTheFile()
{
    StreamWriter writer;
    QString error;
    QVERIFY(writer.open("/dev/full", &error) || !error.isEmpty());
    bool good = writer.isOpen();
    for (int i = 0; i < 100 && good; ++i) // a few go into the buffer
        good = writer.write({ 0, QByteArray(8192, 'x') });
    QVERIFY(!good);
    QVERIFY(!writer.isOpen());
}

QTEST_GUILESS_MAIN(TstProcessorStreamFile)
#include "tst_processor_streamfile.moc"
