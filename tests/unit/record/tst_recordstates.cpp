#include "keptrecord.h"
#include "pqa2bytes.h"
#include "record/tables/linereader.h"
#include "record/tables/recordsource.h"
#include "testpaths.h"
#include "unit/filestandin.h"
#include "unit/storage/withoutroot.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <fcntl.h>
#include <unistd.h>

Q_DECLARE_METATYPE(RecordState)

namespace {

using P = Pqa2Bytes;

constexpr qint64 kTime = P::kTime;
constexpr qint64 kSeconds = P::kSeconds;

QByteArray overwritten(QByteArray bytes, int at, const QByteArray &with)
{
    return bytes.replace(at, with.size(), with);
}

} // namespace

/// How much of a record is there, whatever its bytes are.
class TstRecordStates : public QObject
{
    Q_OBJECT

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// Opens and reads a path: it ends, in good order, and what is not whole says where and why.
    void read(const QString &at)
    {
        kept = std::make_unique<KeptRecord>();
        QVERIFY(source.open(at));
        const bool isReadable = source.state() != RecordState::Unreadable;
        QCOMPARE(source.read(*kept), isReadable);
        QCOMPARE(kept->complaints, QStringList());
        QCOMPARE(source.faults().isEmpty(), source.state() == RecordState::Whole);
        for (const RecordFault &fault : source.faults())
            QVERIFY(!fault.path.isEmpty() && fault.offset >= 0 && !fault.reason.isEmpty());
    }
    void readBytes(const QByteArray &bytes)
    {
        QVERIFY(P::save(path("file.pqa2"), bytes));
        read(path("file.pqa2"));
    }

    QTemporaryDir m_folder;
    RecordSource source;
    std::unique_ptr<KeptRecord> kept;

private slots:
    void faultIsNamedWithPlaceAndState_data();
    void faultIsNamedWithPlaceAndState();
    void everyPrefixGivesTheBeginningOfTheWhole_data();
    void everyPrefixGivesTheBeginningOfTheWhole();
    void everyFlippedBitOfHeadsEndsInAState();
    void blockOfZerosHasNoRowAndIsNoStart();
    void linksInACircleEnd();
    void lengthsBeyondTheFileEnd();
    void whatIsNoRecordIsUnreadable_data();
    void whatIsNoRecordIsUnreadable();
    void standInForAFileIsUnreadable_data() { addFileStandIns(); }
    void standInForAFileIsUnreadable();
    void linksOfTheFileSystemInACircleAreUnreadable();
    void folderWithoutPermissionIsUnreadable();
    void folderTakesNoOtherFilesThanItsOwn();
    void nameThatOnlyLooksLikeAPartIsNone();
    void folderAboveRecordsNamesThem();
    void samplesWithoutAFactorAreNoValues();
    void emptyFileAmongOthersIsACut();
    void foreignFileAmongOthersIsDamage();
    void fileAmongOthersThatCannotBeOpenedIsDamage();
    void missingPartIsDamage();
    void fileThatGrowsIsCutUpToItsLastBlock();
    void fileThatShrinksWhileItIsReadEnds();
    void sparseFileOfFourGigabytesEnds();
    void folderOfAHundredThousandFilesEnds();
    void moreEventsThanAnyRecordingHasAreTold();
    void damagedCaptureHasAState_data();
    void damagedCaptureHasAState();
    void damagedPageHasAState_data();
    void damagedPageHasAState();
    void damagedLogHasAState_data();
    void damagedLogHasAState();
    void lineWithoutAnEndTakesNoMemory();
};

void TstRecordStates::faultIsNamedWithPlaceAndState_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<RecordState>("state");
    QTest::addColumn<qint64>("offset");
    QTest::addColumn<int>("rows");
    const P whole = P::recording(9).end(kSeconds + 9);
    const QByteArray bytes = whole.bytes();
    const int fifth = whole.offsetOf(8);
    QTest::newRow("whole") << bytes << RecordState::Whole << qint64(0) << 9;
    QTest::newRow("cut inside a block") << bytes.left(fifth + 15) << RecordState::Cut << qint64(fifth) << 4;
    QTest::newRow("cut inside a head") << bytes.left(fifth + 7) << RecordState::Cut << qint64(fifth) << 4;
    QTest::newRow("without its end") << P::recording(9).bytes() << RecordState::Cut
                                     << qint64(P::recording(9).bytes().size()) << 9;
    QTest::newRow("a head destroyed") << overwritten(bytes, fifth, QByteArray(12, '\xEE')) << RecordState::Broken
                                      << qint64(fifth) << 8;
    QTest::newRow("zeros in the middle") << overwritten(bytes, fifth, QByteArray(48, '\0')) << RecordState::Broken
                                         << qint64(fifth) << 7;
    QTest::newRow("a block of another length") << P::recording(2)
                                                      .timed(0xA1000029, kTime, P::f64(1))
                                                      .timed(0xA1000029, kTime + 3000, P::f32(1))
                                                      .end(kSeconds)
                                                      .bytes()
                                               << RecordState::Broken << qint64(P::recording(2).bytes().size()) << 3;
    QTest::newRow("a time before 1970") << P::recording(2).timed(0xA1000029, -1, P::f32(1)).end(kSeconds).bytes()
                                        << RecordState::Broken << qint64(P::recording(2).bytes().size()) << 2;
    QTest::newRow("a time behind the year 9999")
        << P::recording(2).timed(0xA1000029, 253402300800000, P::f32(1)).end(kSeconds).bytes() << RecordState::Broken
        << qint64(P::recording(2).bytes().size()) << 2;
    QTest::newRow("a time that is no number")
        << P::recording(2).add(0xA1000025, P::f64(std::nan("")) + QByteArray(1208, '\0')).end(kSeconds).bytes()
        << RecordState::Broken << qint64(P::recording(2).bytes().size()) << 2;
    const auto oddBlock = [](const char *name, quint32 type, const QByteArray &payload) {
        QTest::newRow(name) << P::recording(2).add(type, payload).end(kSeconds).bytes() << RecordState::Broken
                            << qint64(P::recording(2).bytes().size()) << 2;
    };
    oddBlock("values of zeros", 0xA1000029, QByteArray(12, '\0'));
    oddBlock("values of the monitor of zeros", 0xA1010000, QByteArray(8, '\0'));
    oddBlock("a log of zeros", 0xA1000009, QByteArray(20, '\0'));
    oddBlock("a transient of zeros", 0xA1000025, QByteArray(1216, '\0'));
    oddBlock("an event of zeros", 0xA1010080, QByteArray(32, '\0'));
    oddBlock("an end of zeros", 0xA1000019, QByteArray(4, '\0'));
    const QByteArray event = QByteArray(16, '\1') + P::le(quint64(kTime), 8) + P::le(quint64(kTime), 8);
    oddBlock("factors of thirteen values", 0xA1000011, QByteArray(52, '\1'));
    oddBlock("curves without a whole head", 0xA1010083, event.left(31));
    oddBlock("curves without their sections", 0xA1010083, event + QByteArray(7, '\0'));
    QTest::newRow("foreign") << QByteArray("%PDF-1.4 and more than twenty-four bytes of it") << RecordState::Unreadable
                             << qint64(0) << 0;
    QTest::newRow("another version") << overwritten(bytes, 4, P::le(0x10002010, 4)) << RecordState::Unreadable
                                     << qint64(0) << 0;
    QTest::newRow("empty") << QByteArray() << RecordState::Unreadable << qint64(0) << 0;
}

void TstRecordStates::faultIsNamedWithPlaceAndState()
{
    QFETCH(QByteArray, bytes);
    QFETCH(RecordState, state);
    QFETCH(int, rows);
    readBytes(bytes);
    QCOMPARE(source.state(), state);
    QCOMPARE(kept->times("frequency").size(), rows);
    if (state != RecordState::Whole) {
        QTEST(source.faults().constFirst().offset, "offset");
        QCOMPARE(source.faults().constFirst().path, path("file.pqa2"));
    }
}

void TstRecordStates::everyPrefixGivesTheBeginningOfTheWhole_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("table");
    QTest::newRow("recorder") << QStringLiteral("recorder/Common.pqa2") << QByteArray("rms");
    QTest::newRow("spectra") << QStringLiteral("recorder/U Harmonic(1-50).pqa2") << QByteArray("harmonics_u");
    QTest::newRow("monitor") << QStringLiteral("monitor.pqa2") << QByteArray("monitor_frequency");
}

void TstRecordStates::everyPrefixGivesTheBeginningOfTheWhole()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, table);
    const QByteArray bytes = P::bytesOf(QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/") + name);
    readBytes(bytes);
    QCOMPARE(source.state(), RecordState::Whole);
    const QVector<qint64> whole = kept->times(table);
    QVERIFY(!whole.isEmpty());
    int longest = 0;
    for (int length = 0; length < bytes.size(); length += length < 400 ? 1 : 29) {
        readBytes(bytes.left(length));
        const QVector<qint64> times = kept->times(table);
        QCOMPARE(source.state(), length < 24 ? RecordState::Unreadable : RecordState::Cut);
        QCOMPARE(times, whole.mid(0, times.size()));
        QVERIFY(times.size() >= longest);
        longest = times.size();
    }
    QCOMPARE(longest, whole.size());
}

void TstRecordStates::everyFlippedBitOfHeadsEndsInAState()
{
    P file;
    file.add(0xA1000010, "Join: 1P_6\n").add(0xA1000011, QByteArray(48, '\1')).start(kSeconds);
    file.timed(0xA1000020, kTime, P::countUp(0, 13)).timed(0xA1000022, kTime, QByteArray(24, '\1'));
    file.add(0xA1010083,
             P::le(0, 4) + P::le(27, 4) + P::le(1, 4) + P::f32(1) + P::le(quint64(kTime), 8) + P::le(quint64(kTime), 8)
                 + P::le(24, 4) + QByteArray(24, '\2') + P::le(0, 4));
    file.timed(0xA1000009, kTime, "text").end(kSeconds);
    const QByteArray bytes = file.bytes();
    int unreadable = 0;
    for (int bit = 0; bit < bytes.size() * 8; ++bit) {
        QByteArray flipped = bytes;
        flipped[bit / 8] = char(flipped[bit / 8] ^ (1 << bit % 8));
        readBytes(flipped);
        unreadable += source.state() == RecordState::Unreadable ? 1 : 0;
        QVERIFY(kept->events.size() <= 1);
    }
    QCOMPARE(unreadable, 24 * 8); // the head of the file; behind it each bit leaves something
}

void TstRecordStates::blockOfZerosHasNoRowAndIsNoStart()
{
    // Spectra tell no start of their own: it is that of their first block.
    const P file = P().opening()
                       .timed(0xA1000030, 0, QByteArray(832, '\0'))
                       .timed(0xA1000030, kTime, P::countUp(0, 208))
                       .timed(0xA1000030, kTime + 1000, P::countUp(0, 208));
    readBytes(file.bytes());
    QCOMPARE(source.state(), RecordState::Broken);
    QCOMPARE(source.faults().size(), 1);
    QCOMPARE(source.faults().at(0).offset, qint64(file.offsetOf(3)));
    QCOMPARE(kept->times("harmonics_u"), QVector<qint64>({ kTime, kTime + 1000 }));
    QCOMPARE(source.files().at(0).start, kTime);
    QCOMPARE(source.facts().start, kTime);
}

void TstRecordStates::linksInACircleEnd()
{
    const P whole = P::recording(9).end(kSeconds);
    for (const int target : { 0, 24, whole.offsetOf(2), whole.offsetOf(5), whole.offsetOf(6) }) {
        readBytes(overwritten(whole.bytes(), whole.offsetOf(6), P::le(quint64(target), 4)));
        QVERIFY(source.state() == RecordState::Broken);
        QCOMPARE(source.faults().constFirst().offset, qint64(whole.offsetOf(6)));
        QCOMPARE(kept->times("frequency").size(), 9);
    }
}

void TstRecordStates::lengthsBeyondTheFileEnd()
{
    const P whole = P::recording(9).end(kSeconds);
    for (const quint32 size : { 0xFFFFFFFFU, 0x7FFFFFFFU, 0x80000000U, 0U, 1U, 25U, 4096U }) {
        readBytes(overwritten(whole.bytes(), whole.offsetOf(6) + 8, P::le(size, 4)));
        QVERIFY(source.state() == RecordState::Broken);
        QVERIFY(kept->times("frequency").size() >= 8);
    }
}

void TstRecordStates::whatIsNoRecordIsUnreadable_data()
{
    QTest::addColumn<QString>("at");
    QTest::newRow("missing") << path("missing.pqa2");
    QTest::newRow("empty name") << QString();
    QTest::newRow("folder without recordings") << QStringLiteral(QUVERA_SOURCE_DIR "/tests");
    QTest::newRow("device") << QStringLiteral("/dev/zero");
    QTest::newRow("text") << QStringLiteral(QUVERA_SOURCE_DIR "/README.md");
}

void TstRecordStates::whatIsNoRecordIsUnreadable()
{
    QFETCH(QString, at);
    kept = std::make_unique<KeptRecord>();
    QVERIFY(source.open(at));
    QCOMPARE(source.state(), RecordState::Unreadable);
    QCOMPARE(source.faults().size(), 1);
    QVERIFY(!source.read(*kept));
}

void TstRecordStates::standInForAFileIsUnreadable()
{
    QFETCH(FileStandIn, kind);
    const QString file = QStringLiteral("/record/Common.pqa2");
    QVERIFY(putStandIn(file, kind));
    for (const QString &at : { file, QStringLiteral("/record") }) {
        read(Target::path(at));
        QCOMPARE(source.state(), RecordState::Unreadable);
    }
    removeStandIn(file);
}

void TstRecordStates::linksOfTheFileSystemInACircleAreUnreadable()
{
    QVERIFY(QDir().mkpath(path("circle")));
    QVERIFY(QFile::link(path("circle/Monitor.pqa2"), path("circle/Common.pqa2")));
    QVERIFY(QFile::link(path("circle/Common.pqa2"), path("circle/Monitor.pqa2")));
    for (const char *at : { "circle", "circle/Common.pqa2" }) {
        read(path(QString::fromLatin1(at)));
        QCOMPARE(source.state(), RecordState::Unreadable);
    }
}

void TstRecordStates::folderWithoutPermissionIsUnreadable()
{
    QVERIFY(QDir().mkpath(path("closed")));
    QVERIFY(QFile::setPermissions(path("closed"), {}));
    {
        const WithoutRoot user;
        read(path("closed"));
    }
    QVERIFY(QFile::setPermissions(path("closed"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QCOMPARE(source.state(), RecordState::Unreadable);
}

void TstRecordStates::folderTakesNoOtherFilesThanItsOwn()
{
    QVERIFY(QDir().mkpath(path("own")));
    QVERIFY(P::recording(2).end(kSeconds).save(path("own/Common.pqa2")));
    for (const char *name : { "Common_02.pqa2", "Common_1.pqa2", "Common_x.pqa2", "common.pqa2", "Common.pqa2.bak",
                              "Other.pqa2", "Common_-2.pqa2", "Common_1000.pqa2", "Common_99999999999.pqa2" })
        QVERIFY(P::save(path(QStringLiteral("own/") + QLatin1String(name)), "no record"));
    read(path("own"));
    QCOMPARE(source.state(), RecordState::Whole);
    QCOMPARE(source.files().size(), 1);
}

void TstRecordStates::nameThatOnlyLooksLikeAPartIsNone()
{
    // One at a time, each with a whole recording in it: what a folder hands out first makes no difference.
    int folder = 0;
    for (const char *name : { "Common_1", "Common_0", "Common_02", "Common_+2", "Common_-2", "Common_ 2", "Common_",
                              "Common_x", "common", "_2", "Common_1000", "Common_99999999999" }) {
        const QString at = path(QStringLiteral("odd%1").arg(++folder));
        QVERIFY(QDir().mkpath(at));
        QVERIFY(P::recording(2).end(kSeconds).save(at + QLatin1Char('/') + QLatin1String(name) + ".pqa2"));
        read(at);
        QVERIFY2(source.state() == RecordState::Unreadable, name);
    }
}

void TstRecordStates::emptyFileAmongOthersIsACut()
{
    QVERIFY(QDir().mkpath(path("empty")));
    QVERIFY(P::recording(2).end(kSeconds).save(path("empty/Common.pqa2")));
    QVERIFY(P::save(path("empty/U Harmonic(1-50).pqa2"), P::fileHead().left(23)));
    read(path("empty"));
    QCOMPARE(source.state(), RecordState::Cut);
    QCOMPARE(kept->times("frequency").size(), 2);
    QCOMPARE(source.faults().constFirst().path, path("empty/U Harmonic(1-50).pqa2"));
}

void TstRecordStates::fileAmongOthersThatCannotBeOpenedIsDamage()
{
    QVERIFY(QDir().mkpath(path("gone")));
    QVERIFY(P::recording(2).end(kSeconds).save(path("gone/Common.pqa2")));
    QVERIFY(
        QFile::link(path("gone/nowhere"), path("gone/I Harmonic(1-50).pqa2"))); // nothing tells that it held nothing
    read(path("gone"));
    QCOMPARE(source.state(), RecordState::Broken);
    QCOMPARE(kept->times("frequency").size(), 2);
}

void TstRecordStates::foreignFileAmongOthersIsDamage()
{
    QVERIFY(QDir().mkpath(path("foreign")));
    QVERIFY(P::recording(2).end(kSeconds).save(path("foreign/Common.pqa2")));
    QVERIFY(P::save(path("foreign/Monitor.pqa2"), QByteArray(100, 'x')));
    read(path("foreign"));
    QCOMPARE(source.state(), RecordState::Broken);
    QCOMPARE(kept->times("frequency").size(), 2);
}

void TstRecordStates::missingPartIsDamage()
{
    QVERIFY(QDir().mkpath(path("missing")));
    QVERIFY(P::recording(2).save(path("missing/Common.pqa2")));
    QVERIFY(P::recording(3).end(kSeconds).save(path("missing/Common_3.pqa2")));
    read(path("missing"));
    QCOMPARE(source.state(), RecordState::Broken);
    QCOMPARE(kept->times("frequency").size(), 5);
    QVERIFY(source.faults().constFirst().path.endsWith(QStringLiteral("Common_3.pqa2")));
}

void TstRecordStates::fileThatGrowsIsCutUpToItsLastBlock()
{
    for (int rows = 1; rows <= 4; ++rows) {
        // As the writer leaves it at each of its steps: the block, not yet linked; then linked.
        const P now = P::recording(rows);
        const QByteArray linked = now.bytes();
        const int before = now.offsetOf(2 + rows); // the block in front of the last one
        for (const QByteArray &bytes : { overwritten(linked, before, P::le(0xFFFFFFFF, 4)), linked }) {
            readBytes(bytes);
            QCOMPARE(source.state(), RecordState::Cut);
            QCOMPARE(kept->times("frequency").size(), bytes == linked ? rows : rows - 1);
        }
    }
    // It goes on between the look and the reading, with kinds of blocks that were not there.
    QVERIFY(P::recording(2).save(path("grows.pqa2")));
    QVERIFY(source.open(path("grows.pqa2")));
    QVERIFY(P::recording(3).timed(0xA1000064, kTime, P::f32(1)).end(kSeconds).save(path("grows.pqa2")));
    kept = std::make_unique<KeptRecord>();
    QVERIFY(source.read(*kept));
    QCOMPARE(kept->complaints, QStringList());
    QVERIFY(kept->times("frequency").size() >= 2);
    QCOMPARE(kept->columns("frequency"), QStringList({ "f_mean_Hz" }));
}

void TstRecordStates::fileThatShrinksWhileItIsReadEnds()
{
    const QByteArray bytes = P::bytesOf(QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/monitor.pqa2"));
    for (int length = 0; length < bytes.size(); length += 37) {
        QVERIFY(P::save(path("shrinks.pqa2"), bytes));
        QVERIFY(source.open(path("shrinks.pqa2")));
        QVERIFY(P::save(path("shrinks.pqa2"), bytes.left(length)));
        kept = std::make_unique<KeptRecord>();
        QVERIFY(source.read(*kept));
        QCOMPARE(kept->complaints, QStringList());
        QCOMPARE(kept->events.size(), 4); // what was seen of them
    }
}

void TstRecordStates::sparseFileOfFourGigabytesEnds()
{
    const QByteArray bytes = P::recording(3).bytes();
    QVERIFY(P::save(path("sparse.pqa2"), bytes));
    QVERIFY(::truncate(QFile::encodeName(path("sparse.pqa2")).constData(), 0x100001000) == 0);
    read(path("sparse.pqa2"));
    QCOMPARE(source.state(), RecordState::Cut);
    QCOMPARE(kept->times("frequency").size(), 3);
    QFile::remove(path("sparse.pqa2"));
}

void TstRecordStates::folderOfAHundredThousandFilesEnds()
{
    QVERIFY(QDir().mkpath(path("many")));
    const QByteArray folder = QFile::encodeName(path("many"));
    for (int i = 0; i < 100000; ++i) {
        const QByteArray name = folder + "/Common_" + QByteArray::number(i) + ".pqa2";
        const int fd = ::open(name.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
        QVERIFY(fd >= 0);
        ::close(fd);
    }
    QVERIFY(P::recording(2).save(path("many/Common.pqa2")));
    read(path("many"));
    QCOMPARE(source.state(), RecordState::Cut);
    QCOMPARE(kept->times("frequency").size(), 2);
    QCOMPARE(source.files().size(), 999);
}

void TstRecordStates::moreEventsThanAnyRecordingHasAreTold()
{
    QByteArray bytes = P::recording(1).bytes();
    const int last = P::recording(1).offsetOf(4);
    bytes = overwritten(bytes, last, P::le(quint64(bytes.size()), 4));
    constexpr int kEvents = 70000;
    for (int i = 0; i < kEvents; ++i)
        bytes += P::le(i + 1 < kEvents ? quint64(bytes.size() + 44) : 0xFFFFFFFF, 4) + P::le(0xA1010080, 4)
            + P::le(32, 4) + P::le(0, 4) + P::le(27, 4) + P::le(1, 4) + P::f32(1) + P::le(quint64(kTime + i), 8)
            + P::le(quint64(kTime + i), 8);
    readBytes(bytes);
    QCOMPARE(source.state(), RecordState::Broken);
    QCOMPARE(source.events(), 65536);
}

void TstRecordStates::damagedCaptureHasAState_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<RecordState>("state");
    const QByteArray bytes = P::bytesOf(QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/capture.wav"));
    QTest::newRow("whole") << bytes << RecordState::Whole;
    QTest::newRow("torn chunk") << bytes.left(bytes.size() - 3) << RecordState::Cut;
    QTest::newRow("head alone") << bytes.left(88) << RecordState::Cut;
    QTest::newRow("torn head") << bytes.left(87) << RecordState::Unreadable;
    QTest::newRow("length of zero") << overwritten(bytes, 88, P::le(0, 4)) << RecordState::Cut;
    QTest::newRow("no rate") << overwritten(bytes, 64, P::le(0, 4)) << RecordState::Broken;
    QTest::newRow("wild rate") << overwritten(bytes, 64, P::le(0xFFFFFFFF, 4)) << RecordState::Broken;
    QTest::newRow("wild wiring") << overwritten(bytes, 16, P::le(77, 4)) << RecordState::Whole;
}

void TstRecordStates::damagedCaptureHasAState()
{
    QFETCH(QByteArray, bytes);
    readBytes(bytes);
    QTEST(source.state(), "state");
}

void TstRecordStates::damagedPageHasAState_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<RecordState>("state");
    const QByteArray image = QByteArray::fromHex("89504E470D0A1A0A") + "picture";
    const auto page = [&](quint32 imageSize, quint32 dataSize) {
        return P::le(4, 4) + P::le(quint64(kSeconds), 4) + QByteArray(16, '\1') + P::le(imageSize, 4)
            + P::le(dataSize, 4) + P::le(1, 4) + P::le(0xCC33C3C3, 4) + image + "data" + QByteArray::fromHex("AA55");
    };
    const QByteArray whole = page(15, 4);
    QTest::newRow("whole") << whole << RecordState::Whole;
    QTest::newRow("without its end") << whole.chopped(1) << RecordState::Cut;
    QTest::newRow("head alone") << whole.left(40) << RecordState::Cut;
    QTest::newRow("longer") << whole + "x" << RecordState::Broken;
    QTest::newRow("no picture") << overwritten(whole, 40, "nothing") << RecordState::Broken;
    QTest::newRow("sizes beyond the file") << page(0xFFFFFFFF, 0xFFFFFFFF) << RecordState::Cut;
    QTest::newRow("sizes inside the file") << page(8, 4) << RecordState::Broken;
}

void TstRecordStates::damagedPageHasAState()
{
    QFETCH(QByteArray, bytes);
    readBytes(bytes);
    QTEST(source.state(), "state");
}

void TstRecordStates::damagedLogHasAState_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<RecordState>("state");
    QTest::addColumn<int>("rows");
    const QByteArray head = "TIME,FREQ AVG,\n";
    const QByteArray line = "2023/11/14  22:13:20,50.000,\n";
    QTest::newRow("whole") << head + line + line << RecordState::Whole << 2;
    QTest::newRow("header alone") << head << RecordState::Whole << 0;
    QTest::newRow("torn header") << head.chopped(1) << RecordState::Cut << 0;
    QTest::newRow("torn line") << head + line + line.chopped(1) << RecordState::Cut << 1;
    QTest::newRow("hole at the end") << head + line + QByteArray(5000, '\0') << RecordState::Cut << 1;
    QTest::newRow("hole between lines") << head + line + QByteArray(5000, '\0') + "\n" + line << RecordState::Broken
                                        << 2;
    QTest::newRow("more cells") << head + line + "2023/11/14  22:13:20,50,50,\n" + line << RecordState::Broken << 2;
    QTest::newRow("no day") << head + "2023/13/14  22:13:20,50.000,\n" + line << RecordState::Broken << 1;
    QTest::newRow("before 1970") << head + "1969/12/31  23:59:59,50.000,\n" + line << RecordState::Broken << 1;
    QTest::newRow("a line of two megabytes")
        << head + line + QByteArray(2 << 20, '1') + "\n" + line << RecordState::Broken << 2;
    QTest::newRow("foreign columns") << QByteArray(
        "TIME,\"a\";drop table,FREQ AVG,FREQ AVG,\n2023/11/14  22:13:20,1,2,3,\n")
                                     << RecordState::Broken << 1;
}

void TstRecordStates::damagedLogHasAState()
{
    QFETCH(QByteArray, bytes);
    readBytes(bytes);
    QTEST(source.state(), "state");
    QFETCH(int, rows);
    QCOMPARE(kept->times("log").size(), rows);
}

void TstRecordStates::folderAboveRecordsNamesThem()
{
    const auto reason = [this](const QString &name) {
        read(path(name));
        return source.state() == RecordState::Unreadable ? source.faults().constFirst().reason : QString();
    };
    QVERIFY(QDir().mkpath(path("stick/photos")) && QDir().mkpath(path("stick/240118 Record 1")));
    QVERIFY(P::save(path("stick/letter.txt"), "text"));
    QCOMPARE(reason("stick"), QStringLiteral("the folder holds no recording"));
    QVERIFY(P::recording(1).save(path("stick/240118 Record 1/Common.pqa2")));
    QCOMPARE(reason("stick"), QStringLiteral("the folder holds no recording of its own; in it: \"240118 Record 1\""));
    QVERIFY(P::save(path("stick/log.csv"), "TIME,FREQ AVG,\n"));
    QVERIFY(QDir().mkpath(path("stick/a\"b")) && P::recording(1).save(path("stick/a\"b/Monitor.pqa2")));
    QVERIFY(P::recording(1).save(path("stick/x.pqa2")));
    QCOMPARE(
        reason("stick"),
        QStringLiteral("the folder holds no recording of its own; in it: \"240118 Record 1\", \"a\"b\", \"log.csv\" "
                       "and 1 more"));
}

void TstRecordStates::samplesWithoutAFactorAreNoValues()
{
    const QByteArray transient = P::f64(double(kTime)) + P::f32(50) + P::le(1U << 24 | 301, 4) + QByteArray(1200, 7);
    for (const QByteArray &factors : { P::countUp(1, 7), P::floats({ 0, 1, 1, 1, 1, 1, 1, 1, 0, 0, 0, 0 }) }) {
        readBytes(P().add(0xA1000011, factors).add(0xA1000025, transient).bytes());
        QCOMPARE(kept->waveforms.size(), 1);
        QVERIFY(std::isnan(kept->waveforms.at(0).facts.channels.at(0).factor));
        QVERIFY(std::isnan(kept->rows.value("transients").at(0).numbers.at(1))); // its extreme value
    }
}

void TstRecordStates::lineWithoutAnEndTakesNoMemory()
{
    QVERIFY(P::save(path("lines"), "first\n" + QByteArray(3 << 20, '1') + "\nlast\n" + QByteArray(3 << 20, '2')));
    QFile file(path("lines"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    LineReader lines(&file);
    QByteArray line;
    QVERIFY(lines.next(&line));
    QCOMPARE(line, QByteArray("first"));
    QVERIFY(lines.next(&line));
    QVERIFY(line.isEmpty() && lines.isTooLong() && lines.isWhole());
    QCOMPARE(lines.offset(), qint64(6));
    QVERIFY(lines.next(&line));
    QCOMPARE(line, QByteArray("last"));
    QVERIFY(!lines.isTooLong());
    QVERIFY(lines.next(&line));
    QVERIFY(line.isEmpty() && lines.isTooLong() && !lines.isWhole());
    QVERIFY(!lines.next(&line));
}

QTEST_APPLESS_MAIN(TstRecordStates)
#include "tst_recordstates.moc"
