// The supply is cut between any two calls of anything that writes on the card: what was finished stays readable.
#include <QTest>

#include "cardchecks.h"
#include "cardruns.h"

using namespace CardChecks;

namespace {

constexpr unsigned kSeeds = 7; // states of the card that are looked at behind each call
constexpr int kLost = 6; // s that a cut may take along

/// Every content that a file which is replaced as a whole had, by its name.
QMap<QByteArray, QSet<QByteArray>> versions(const QList<CardCalls::Call> &calls)
{
    QMap<QByteArray, QSet<QByteArray>> known;
    for (int i = 0; i < calls.size(); ++i) {
        if (calls[i].kind == CardCalls::Call::Rename)
            known[calls[i].to] << CardCalls::afterCut(calls, i, 1).value(calls[i].name);
    }
    return known;
}

/// What is wrong with a state of the card; \a safe is what was synced at that time.
QByteArray faultOf(const Files &left, const Files &safe, const QMap<QByteArray, QSet<QByteArray>> &known)
{
    for (auto file = safe.cbegin(); file != safe.cend(); ++file) {
        const QByteArray &name = file.key();
        if (grows(name) && left.contains(name) && !startsWith(pieces(name, left[name]), pieces(name, file.value())))
            return name + ": what was written out is not readable";
    }
    for (auto file = left.cbegin(); file != left.cend(); ++file) {
        if (known.contains(file.key()) && !known[file.key()].contains(file.value()))
            return file.key() + ": neither the old nor the new content";
    }
    return {};
}

/// How many blocks of a kind the files whose names end so hold.
int blocksOf(const Files &files, const QByteArray &suffix, quint32 type)
{
    int found = 0;
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        for (const ReadBlock &block : file.key().endsWith(suffix) ? readBlocks(file.value()) : QList<ReadBlock>())
            found += block.type == type;
    }
    return found;
}

CardRuns::Trace runOf(const QByteArray &name)
{
    if (name == "recorder")
        return CardRuns::recorder({});
    if (name == "monitor")
        return CardRuns::monitor({});
    return (name == "capture" ? CardRuns::capture : name == "logger" ? CardRuns::logger : CardRuns::settings)({});
}

} // namespace

class TstPowerCut : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Pqa2FF::setOpening(recordOpening); }
    void whatWasWrittenOutStaysReadable_data();
    void whatWasWrittenOutStaysReadable();
    void recordingsLoseNoMoreThanTheirLastSeconds();
    void theNextStartListsWhatIsThereAndTellsWhatWasCut();
};

void TstPowerCut::whatWasWrittenOutStaysReadable_data()
{
    QTest::addColumn<int>("fewest"); // calls; fewer, and the test would look at nothing
    QTest::newRow("recorder") << 300;
    QTest::newRow("monitor") << 30;
    QTest::newRow("capture") << 30;
    QTest::newRow("logger") << 30;
    QTest::newRow("settings") << 10;
}

void TstPowerCut::whatWasWrittenOutStaysReadable()
{
    QFETCH(int, fewest);
    const CardRuns::Trace trace = runOf(QTest::currentDataTag());
    QVERIFY2(trace.calls.size() >= fewest, qPrintable(QString::number(trace.calls.size())));
    const auto known = versions(trace.calls);
    for (int count = 0; count <= trace.calls.size(); ++count) {
        const Files safe = CardCalls::afterCut(trace.calls, count, 0);
        for (unsigned seed = 0; seed < kSeeds; ++seed) {
            const QByteArray fault = faultOf(CardCalls::afterCut(trace.calls, count, seed), safe, known);
            QVERIFY2(fault.isEmpty(), fault + " behind call " + QByteArray::number(count));
        }
    }
}

void TstPowerCut::recordingsLoseNoMoreThanTheirLastSeconds()
{
    CardRuns::Trace trace = CardRuns::recorder({});
    for (int second = 0; second < trace.seconds.size(); ++second) {
        const Files safe = CardCalls::afterCut(trace.calls, trace.seconds[second], 0);
        QVERIFY(blocksOf(safe, "Common.pqa2", 0xA1000020) >= second + 1 - kLost);
        QVERIFY(blocksOf(safe, "U Harmonic(1-50).pqa2", 0xA1000030) >= second + 1 - kLost);
    }
    trace = CardRuns::monitor({});
    for (int second = 0; second < trace.seconds.size(); ++second) {
        const Files safe = CardCalls::afterCut(trace.calls, trace.seconds[second], 0);
        QVERIFY(blocksOf(safe, "Monitor.pqa2", 0xA1010000) >= second / 10); // the block of this second may be lost
    }
    for (const bool isCapture : { true, false }) {
        trace = isCapture ? CardRuns::capture({}) : CardRuns::logger({});
        for (int second = 0; second < trace.seconds.size(); ++second) {
            int found = 0;
            const Files safe = CardCalls::afterCut(trace.calls, trace.seconds[second], 0);
            for (auto file = safe.cbegin(); file != safe.cend(); ++file)
                found += grows(file.key()) ? pieces(file.key(), file.value()).size() : 0;
            QVERIFY(found >= second + 1 - kLost);
        }
    }
}

void TstPowerCut::theNextStartListsWhatIsThereAndTellsWhatWasCut()
{
    for (const char *name : { "recorder", "monitor", "capture", "logger" }) {
        const CardRuns::Trace trace = runOf(name);
        for (int count = 0; count <= trace.calls.size(); count += 1 + trace.calls.size() / 60) {
            for (const unsigned seed : { 0u, 1u, 2u }) {
                QStringList cut;
                const Files left = CardCalls::afterCut(trace.calls, count, seed);
                const QByteArray fault = startOn(left, &cut);
                QVERIFY2(fault.isEmpty(), fault + " behind call " + QByteArray::number(count) + " of " + name);
                // While it runs, and all that was asked of the card is done, it is told.
                const bool runs = trace.seconds.first() <= count && count <= trace.seconds.last();
                QVERIFY2(cut.size() == (runs ? 1 : cut.size()),
                         QByteArray(name) + " is not told behind call " + QByteArray::number(count));
            }
        }
        // Ended well, it is not.
        QStringList cut;
        QVERIFY(startOn(CardCalls::afterCut(trace.calls, trace.calls.size(), 0), &cut).isEmpty());
        QCOMPARE(cut, QStringList());
    }
}

QTEST_GUILESS_MAIN(TstPowerCut)
#include "tst_powercut.moc"
