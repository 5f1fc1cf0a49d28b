#include "settings/config_data.h"
#include "board/screenshot.h"
#include "platform/clock.h"
#include "platform/target.h"
#include "record/pqafile.h"
#include "unit/documentpage.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/helddisk.h"
#include "unit/storage/rootfiles.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QWidget>
#include <QTest>

#include <limits>

class TstPqaFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { Clock::useSystem(); }
    void headerHasItsFieldsAtTheirOffsets();
    void nominalVoltsAreTruncatedAndHeldTo32Bits();
    void pictureRecordAndTrailerFollowTheHeader();
    void formatPageTellsTheHeaderAndItsExample();
    void snapshotIsAPlainPngOfTheScreen();
    void pictureIsTakenAtConstruction();
    void aCancelledSaveLeavesTemporariesThatTheNextOneReplaces();
    void aPageWithoutARecordStoresThePictureOnly();
    void storedFilesReplaceOldOnes();
    void temporariesGoWhenStored();
    void aCardThatDoesNotAnswerHoldsUpNobody();
    void anEmptyRecordIsWrittenWithoutData();
    void aFailedOpenLeavesEverythingSilentlyUnwritten();
    void whatStandsInTheWayOfAStoredFileStays();
    void fullDiskKeepsWhatItCouldTake();
    void knownRecordSizesAreStoredWhole_data();
    void knownRecordSizesAreStoredWhole();

private:
    QWidget m_page;
};

static QByteArray read(const QString &path)
{
    QFile file(Target::path(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

static quint32 word(const QByteArray &bytes, int offset)
{
    quint32 value = 0;
    for (int i = 3; i >= 0; --i)
        value = value << 8 | quint8(bytes.at(offset + i));
    return value;
}

void TstPqaFile::initTestCase()
{
    m_page.setFixedSize(64, 48);
    m_page.setStyleSheet(QStringLiteral("background-color: rgb(10, 200, 30);"));
    m_page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m_page));
}

void TstPqaFile::init()
{
    for (const char *folder : { "/tmp", "/mnt/storage" }) {
        QDir(Target::path(QString::fromLatin1(folder))).removeRecursively();
        QVERIFY(QDir().mkpath(Target::path(QString::fromLatin1(folder))));
    }
}

void TstPqaFile::headerHasItsFieldsAtTheirOffsets()
{
    Clock::setForTest(1700000000999);
    PqaFile file(4, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    const QByteArray record(100, 'r');
    file.writeFileData(record.constData(), quint32(record.size()));
    const QByteArray image = read(PqaFile::imagePath());
    const QByteArray bytes = read(PqaFile::dataPath());
    QVERIFY(bytes.size() > 40);
    QCOMPARE(word(bytes, 0), 4u);
    QCOMPARE(word(bytes, 4), 1700000000u);
    // A new instrument: 230 V, 50 Hz, 3P WYE, TARN-41A.
    QCOMPARE(word(bytes, 8), 230u);
    QCOMPARE(word(bytes, 12), 50u);
    QCOMPARE(word(bytes, 16), 1u);
    QCOMPARE(word(bytes, 20), 10000u);
    QCOMPARE(word(bytes, 24), quint32(image.size()));
    QCOMPARE(word(bytes, 28), 100u);
    QCOMPARE(word(bytes, 32), 0x02020006u);
    QCOMPARE(word(bytes, 36), 0xCC33C3C3u);
}

void TstPqaFile::nominalVoltsAreTruncatedAndHeldTo32Bits()
{
    const struct
    {
        int numerator, denominator;
        quint32 expected;
    } rows[] = {
        { 1, 3, 76 }, // 230 V / 3 = 76.67 V
        { std::numeric_limits<int>::max(), 1, 0x7fffffff },
        { std::numeric_limits<int>::min(), 1, 0x80000000 },
    };
    QCOMPARE(m_settingConfig_g.getNomVolt(), 230);
    for (const auto &row : rows) {
        m_settingConfig_g.setRatioVFenzi(row.numerator);
        m_settingConfig_g.setRatioVFenmu(row.denominator);
        PqaFile file(4, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
        file.writeFileData("", 0);
        QCOMPARE(word(read(PqaFile::dataPath()), 8), row.expected);
    }
    m_settingConfig_g.setRatioVFenzi(1);
    m_settingConfig_g.setRatioVFenmu(1);
}

void TstPqaFile::pictureRecordAndTrailerFollowTheHeader()
{
    PqaFile file(2, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    QByteArray record;
    for (int i = 0; i < 1000; ++i)
        record.append(char(i));
    file.writeFileData(record.constData(), quint32(record.size()));
    const QByteArray image = read(PqaFile::imagePath());
    const QByteArray bytes = read(PqaFile::dataPath());
    QCOMPARE(bytes.size(), 40 + image.size() + 1000 + 2);
    QCOMPARE(bytes.mid(40, image.size()), image);
    QVERIFY(image.startsWith("\x89PNG\r\n"));
    QCOMPARE(bytes.mid(40 + image.size(), 1000), record);
    QCOMPARE(bytes.right(2), QByteArray("\xAA\x55"));
}

void TstPqaFile::formatPageTellsTheHeaderAndItsExample()
{
    const QString text = DocumentPage(QStringLiteral("formats/pqa.md")).text();
    const struct
    {
        std::size_t offset;
        const char *field;
    } fields[] = {
        { offsetof(__pqa_file_header, page), "page" },
        { offsetof(__pqa_file_header, time), "time" },
        { offsetof(__pqa_file_header, nominalVolt), "nominal volt" },
        { offsetof(__pqa_file_header, nominalFrequency), "nominal frequency" },
        { offsetof(__pqa_file_header, joinMode), "join mode" },
        { offsetof(__pqa_file_header, clampRatio), "clamp ratio" },
        { offsetof(__pqa_file_header, imageSize), "image size" },
        { offsetof(__pqa_file_header, dataSize), "data size" },
        { offsetof(__pqa_file_header, version), "version" },
        { offsetof(__pqa_file_header, magic), "magic" },
    };
    for (const auto &field : fields) {
        const QRegularExpression row(
            QStringLiteral("^\\| %1 \\| 4 \\| u?int32 \\| %2 \\|").arg(field.offset).arg(field.field),
            QRegularExpression::MultilineOption);
        QVERIFY2(row.match(text).hasMatch(), field.field);
    }

    // The example: the header of page 4 with a picture of 1234 bytes and a record of 19300.
    const __pqa_file_header example { 4, 1700000000, 230, 50, 1, 10000, 1234, 19300, 0x02020006, 0xCC33C3C3 };
    QByteArray expected(reinterpret_cast<const char *>(&example), sizeof example);
    const QRegularExpression line(QStringLiteral("^[0-9a-f]{4}  ((?:[0-9a-f]{2} ?)+)$"),
                                  QRegularExpression::MultilineOption);
    QByteArray documented;
    auto matches = line.globalMatch(text);
    while (matches.hasNext())
        documented += QByteArray::fromHex(matches.next().captured(1).toLatin1());
    QCOMPARE(documented.toHex(' '), expected.toHex(' '));
}

void TstPqaFile::snapshotIsAPlainPngOfTheScreen()
{
    PqaFile file(2, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    file.saveSnapshot(QStringLiteral("VAHz1.png"));
    const QImage image = QImage::fromData(read(QStringLiteral("/mnt/storage/VAHz1.png")), "png");
    QVERIFY(!image.isNull());
    QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2), QColor(10, 200, 30));
}

void TstPqaFile::pictureIsTakenAtConstruction()
{
    PqaFile file(2, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    QWidget dialog(nullptr, Qt::Dialog);
    dialog.setFixedSize(64, 48);
    dialog.setStyleSheet(QStringLiteral("background-color: rgb(250, 0, 0);"));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    file.saveSnapshot(QStringLiteral("VAHz1.png"));
    const QImage image = QImage::fromData(read(QStringLiteral("/mnt/storage/VAHz1.png")), "png");
    QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2), QColor(10, 200, 30));
}

void TstPqaFile::aCancelledSaveLeavesTemporariesThatTheNextOneReplaces()
{
    {
        PqaFile cancelled(2, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
        const QByteArray record(5000, 'c');
        cancelled.writeFileData(record.constData(), quint32(record.size()));
    }
    QVERIFY(QFile::exists(Target::path(PqaFile::imagePath())));
    QVERIFY(QFile::exists(Target::path(PqaFile::dataPath())));
    PqaFile file(11, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    file.writeFileData("new", 3);
    const QByteArray bytes = read(PqaFile::dataPath());
    QCOMPARE(word(bytes, 0), 11u);
    QCOMPARE(bytes.size(), int(40 + word(bytes, 24) + 3 + 2));
    QVERIFY(bytes.endsWith("new\xAA\x55"));
}

void TstPqaFile::aPageWithoutARecordStoresThePictureOnly()
{
    PqaFile file(1, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    file.saveSnapshot(QStringLiteral("Menu1.png"));
    QVERIFY(read(QStringLiteral("/mnt/storage/Menu1.png")).startsWith("\x89PNG\r\n"));
    QVERIFY(!QFile::exists(Target::path(PqaFile::dataPath())));
    QCOMPARE(QDir(Target::path(QStringLiteral("/mnt/storage"))).entryList(QDir::Files), QStringList { "Menu1.png" });
}

void TstPqaFile::storedFilesReplaceOldOnes()
{
    QFile old(Target::path(QStringLiteral("/mnt/storage/Scope1.pqa")));
    QVERIFY(old.open(QIODevice::WriteOnly));
    old.write(QByteArray(500000, 'o'));
    old.close();
    PqaFile file(11, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    file.writeFileData("data", 4);
    const QByteArray built = read(PqaFile::dataPath());
    file.saveDataFile(QStringLiteral("Scope1.pqa"));
    QCOMPARE(read(QStringLiteral("/mnt/storage/Scope1.pqa")), built);
}

void TstPqaFile::aCardThatDoesNotAnswerHoldsUpNobody()
{
    RootFiles::commands(); // of the tests before
    QFile::remove(Target::path("/var/log/commands"));
    {
        const HeldDisk held;
        PqaFile file(2, Derived {}, "png");
        file.writeFileData("data", 4);
        file.saveDataFile(QStringLiteral("a.pqa"));
        QVERIFY(!RootFiles::exists("/var/log/commands")); // nobody waits for a sync here
    }
    QVERIFY(RootFiles::commands().contains("sync\n"));
    QVERIFY(RootFiles::exists("/mnt/storage/a.pqa"));
}

void TstPqaFile::temporariesGoWhenStored()
{
    PqaFile file(11, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    file.writeFileData("data", 4);
    file.saveDataFile(QStringLiteral("Scope1.pqa"));
    QVERIFY(!QFile::exists(Target::path(PqaFile::dataPath())));
    QVERIFY(QFile::exists(Target::path(PqaFile::imagePath()))); // only the file asked for is taken
    file.saveSnapshot(QStringLiteral("Scope1.png"));
    QVERIFY(!QFile::exists(Target::path(PqaFile::imagePath())));
}

void TstPqaFile::anEmptyRecordIsWrittenWithoutData()
{
    PqaFile file(2, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    file.writeFileData(nullptr, 0);
    const QByteArray bytes = read(PqaFile::dataPath());
    QCOMPARE(word(bytes, 28), 0u);
    QCOMPARE(bytes.size(), int(40 + word(bytes, 24) + 2));
    file.writeFileData(nullptr, 4000); // a size without a record
    QCOMPARE(word(read(PqaFile::dataPath()), 28), 0u);
}

void TstPqaFile::aFailedOpenLeavesEverythingSilentlyUnwritten()
{
    // A folder in the place of the file cannot be opened, not even by the administrator.
    QVERIFY(QDir().mkpath(Target::path(PqaFile::dataPath()) + QStringLiteral("/in-the-way")));
    PqaFile file(2, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    file.writeFileData("data", 4);
    QVERIFY(QFileInfo(Target::path(PqaFile::dataPath())).isDir());
    file.saveDataFile(QStringLiteral("VAHz1.pqa"));
    QVERIFY(!QFile::exists(Target::path(QStringLiteral("/mnt/storage/VAHz1.pqa"))));

    QVERIFY(QDir(Target::path(QStringLiteral("/tmp"))).removeRecursively()); // no folder for temporaries at all
    PqaFile nowhere(2, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    nowhere.writeFileData("data", 4);
    nowhere.saveSnapshot(QStringLiteral("VAHz1.png"));
    QVERIFY(!QFile::exists(Target::path(QStringLiteral("/mnt/storage/VAHz1.png"))));
}

void TstPqaFile::whatStandsInTheWayOfAStoredFileStays()
{
    QVERIFY(QDir().mkpath(Target::path(QStringLiteral("/mnt/storage/Scope1.pqa/in-the-way"))));
    PqaFile file(11, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    file.writeFileData("data", 4);
    file.saveDataFile(QStringLiteral("Scope1.pqa"));
    QVERIFY(QFileInfo(Target::path(QStringLiteral("/mnt/storage/Scope1.pqa/in-the-way"))).isDir());
    QVERIFY(!QFile::exists(Target::path(PqaFile::dataPath())));
}

void TstPqaFile::fullDiskKeepsWhatItCouldTake()
{
    constexpr int kRoom = 150000; // bytes
    PqaFile file(2, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    QByteArray record(500000, '\0');
    for (int i = 0; i < record.size(); ++i)
        record[i] = char(i * 31 / 7);
    file.writeFileData(record.constData(), quint32(record.size()));
    const QByteArray whole = read(PqaFile::dataPath());
    QVERIFY(whole.size() > record.size());
    {
        const FileLimit full(kRoom);
        file.saveDataFile(QStringLiteral("VAHz1.pqa"));
    }
    QCOMPARE(read(QStringLiteral("/mnt/storage/VAHz1.pqa")), whole.left(kRoom));
    QVERIFY(!QFile::exists(Target::path(PqaFile::dataPath())));
}

void TstPqaFile::knownRecordSizesAreStoredWhole_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("size");
    QTest::newRow("Volts/Amps/Hertz") << 2 << 60136;
    QTest::newRow("harmonics") << 4 << 19300;
    QTest::newRow("power") << 6 << 76996;
    QTest::newRow("unbalance") << 8 << 100;
    QTest::newRow("flicker") << 9 << 7240;
    QTest::newRow("scope") << 11 << 19236;
}

void TstPqaFile::knownRecordSizesAreStoredWhole()
{
    QFETCH(int, page);
    QFETCH(int, size);
    PqaFile file(page, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    const QByteArray record(size, char(page));
    file.writeFileData(record.constData(), quint32(size));
    const QByteArray bytes = read(PqaFile::dataPath());
    QCOMPARE(word(bytes, 0), quint32(page));
    QCOMPARE(word(bytes, 28), quint32(size));
    QCOMPARE(bytes.mid(bytes.size() - 2 - size, size), record);
}

QTEST_MAIN(TstPqaFile)
#include "tst_pqafile.moc"
