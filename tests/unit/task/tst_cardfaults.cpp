// A card that refuses calls, that is full for a while, that is taken away: what is on it stays readable, and nothing
// stops.
#include <QDirIterator>
#include <QLoggingCategory>
#include <QTest>

#include "cardchecks.h"
#include "cardruns.h"

using namespace CardChecks;

namespace {

using Run = std::function<CardRuns::Trace(const CardCalls::Fault &)>;

Run runOf(const QByteArray &name)
{
    if (name == "recorder")
        return [](const CardCalls::Fault &fault) { return CardRuns::recorder(fault); };
    if (name == "monitor")
        return [](const CardCalls::Fault &fault) { return CardRuns::monitor(fault); };
    return name == "capture" ? CardRuns::capture : name == "logger" ? CardRuns::logger : CardRuns::settings;
}

/// The files under "/mnt/" as they stand.
Files onCard()
{
    Files files;
    const QDir root(Target::path(QStringLiteral("/mnt")));
    QDirIterator all(root.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            files.insert(QFile::encodeName(root.relativeFilePath(path)), file.readAll());
    }
    return files;
}

/// Whether each of \a some stands in \a all, in the same order; places in the file apart.
bool isSelection(const QByteArray &name, const QList<QByteArray> &some, const QList<QByteArray> &all)
{
    const auto content = [&name](const QByteArray &piece) {
        return name.endsWith(".pqa2") ? piece.mid(piece.indexOf(' ') + 1) : piece;
    };
    int at = 0;
    for (const QByteArray &piece : some) {
        while (at < all.size() && content(all[at]) != content(piece))
            ++at;
        if (at++ >= all.size())
            return false;
    }
    return true;
}

/// What is wrong with the files, beside those of a run without a fault. \a missing: pieces that they lack.
QByteArray faultOf(const Files &files, const Files &good, int *missing)
{
    *missing = 0;
    for (auto file = good.cbegin(); file != good.cend(); ++file)
        *missing += grows(file.key()) ? pieces(file.key(), file.value()).size() : 0;
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        if (!grows(file.key()))
            continue;
        const QList<QByteArray> found = pieces(file.key(), file.value());
        if (!isSelection(file.key(), found, pieces(file.key(), good.value(file.key()))))
            return file.key() + ": holds what was never measured";
        *missing -= found.size();
    }
    QStringList cut;
    return startOn(files, &cut);
}

} // namespace

class TstCardFaults : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Pqa2FF::setOpening(recordOpening);
        CardRuns::s_seconds = 6;
        QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    }
    void everyCallMayFail_data() { rows(); }
    void everyCallMayFail();
    void aCardThatIsFullForAWhileGoesOn_data() { rows(); }
    void aCardThatIsFullForAWhileGoesOn();
    void aCardThatIsTakenAwayKeepsWhatIsOnIt_data() { rows(); }
    void aCardThatIsTakenAwayKeepsWhatIsOnIt();
    void roomThatComesAndGoesLeavesAWholeFile();
    void belowFiftyMegabytesNoFileIsBegun();

private:
    static void rows()
    {
        QTest::addColumn<int>("blocks"); // pieces that one refused call may cost; -1: all that follow
        QTest::newRow("recorder") << 3;
        QTest::newRow("monitor") << 3;
        QTest::newRow("capture") << -1;
        QTest::newRow("logger") << 1;
        QTest::newRow("settings") << 0;
    }
};

void TstCardFaults::everyCallMayFail()
{
    const Run run = runOf(QTest::currentDataTag());
    const CardRuns::Trace trace = run({});
    const Files good = onCard();
    QVERIFY(trace.failing > 10);
    for (const int taken : { -1, 0, 5 }) {
        // How much a write takes matters to writes only.
        for (int call = 0; call < trace.failing; call += taken < 0 ? 1 : 2) {
            run({ call, 1, taken == 0 ? ENOSPC : EIO, taken });
            int missing = 0;
            const QByteArray fault = faultOf(onCard(), good, &missing);
            QVERIFY2(fault.isEmpty(), fault + ", call " + QByteArray::number(call));
        }
    }
}

void TstCardFaults::aCardThatIsFullForAWhileGoesOn()
{
    QFETCH(int, blocks);
    constexpr int kRefused = 10;
    const Run run = runOf(QTest::currentDataTag());
    const CardRuns::Trace trace = run({});
    const Files good = onCard();
    // Once the files are begun.
    const int opened = trace.failing / 4;
    for (int call = opened; call < trace.failing; ++call) {
        run({ call, kRefused, ENOSPC, 3 });
        int missing = 0;
        const QByteArray fault = faultOf(onCard(), good, &missing);
        QVERIFY2(fault.isEmpty(), fault + ", call " + QByteArray::number(call));
        QVERIFY2(blocks < 0 || missing <= blocks * kRefused, QByteArray::number(missing) + " pieces are missing");
    }
}

void TstCardFaults::aCardThatIsTakenAwayKeepsWhatIsOnIt()
{
    const Run run = runOf(QTest::currentDataTag());
    const CardRuns::Trace trace = run({});
    const Files good = onCard();
    for (int call = 0; call < trace.failing; ++call) {
        run({ call, INT_MAX, EIO, -1 });
        const Files left = onCard();
        for (auto file = left.cbegin(); file != left.cend(); ++file) {
            const QList<QByteArray> whole = pieces(file.key(), good.value(file.key()));
            if (grows(file.key()))
                QVERIFY2(startsWith(whole, pieces(file.key(), file.value())),
                         file.key() + ", call " + QByteArray::number(call));
        }
        int missing = 0;
        const QByteArray fault = faultOf(left, good, &missing);
        QVERIFY2(fault.isEmpty(), fault + ", call " + QByteArray::number(call));
    }
}

void TstCardFaults::roomThatComesAndGoesLeavesAWholeFile()
{
    QList<float> room;
    for (int i = 0; i < 12; ++i)
        room << 1000.0f; // both files are begun
    for (int i = 0; i < 400; ++i)
        room << (i / 7 % 2 ? 4.9f : 5.1f);
    CardRuns::recorder({});
    const Files good = onCard();
    CardRuns::recorder({}, room);
    const Files left = onCard();
    int missing = 0;
    QCOMPARE(faultOf(left, good, &missing), QByteArray());
    QVERIFY(missing > 10);
    int files = 0;
    for (auto file = left.cbegin(); file != left.cend(); ++file) {
        if (!file.key().endsWith(".pqa2"))
            continue;
        ++files;
        QVERIFY(pieces(file.key(), file.value()).size() > 8);
        QBuffer buffer;
        buffer.setData(file.value());
        buffer.open(QIODevice::ReadOnly);
        Pqa2Reader reader(&buffer);
        for (Pqa2Block block; reader.next(&block);) { }
        QCOMPARE(reader.state(), Pqa2Reader::Whole);
    }
    QCOMPARE(files, 2);
}

void TstCardFaults::belowFiftyMegabytesNoFileIsBegun()
{
    const auto files = [](float room) {
        CardRuns::recorder({}, { room });
        int found = 0;
        for (const QByteArray &name : onCard().keys())
            found += name.endsWith(".pqa2");
        return found;
    };
    QCOMPARE(files(49.9f), 0);
    QCOMPARE(files(50.0f), 2);
}

QTEST_GUILESS_MAIN(TstCardFaults)
#include "tst_cardfaults.moc"
