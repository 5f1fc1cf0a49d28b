#include "link/frame.h"
#include "link/linkfaults.h"
#include "link/processorlink.h"

#include <QtEndian>
#include <QTest>

#include <random>

using namespace wire;

namespace {

QByteArray bytesOf(const Package &package)
{
    return QByteArray(reinterpret_cast<const char *>(package.data()), kPackageBytes);
}

/// Number of the package that \a message is, within its datagram.
int numberOf(const QByteArray &message)
{
    return int(quint8(message[0]));
}

std::vector<int> numbersOf(const std::vector<QByteArray> &messages)
{
    std::vector<int> numbers;
    for (const QByteArray &message : messages)
        numbers.push_back(numberOf(message));
    return numbers;
}

using Numbers = std::vector<int>;

} // namespace

/// Spoiled streams: what each fault does, that it is repeatable, and that a million of them do no harm.
class TstProcessorFaults : public QObject
{
    Q_OBJECT

private slots:
    void withoutFaultsPackagesLeaveAsTheyAre();
    void droppedPackagesAreMissing();
    void repeatedPackagesLeaveTwice();
    void tornPackagesAreTheBeginningOnly();
    void reorderedPackageLeavesBehindTheNextOne();
    void reorderedLastPackageLeavesWithTheNextDatagram();
    void garbageGoesAhead();
    void faultsWaitForTheirDatagram();
    void clearTakesBackWhatIsPending();
    void sameSeedSameStreamAnotherSeedAnother();
    void ratesStrikeAboutAsOftenAsAsked();
    void chanceTearsPackagesAnywhere();
    void millionFaultsDoNoHarm();
    void millionRandomFramesDoNoHarm();

private:
    static Datagram wave() { return Packager().pack(Kind::Wave, 0, 0, {}); }
};

void TstProcessorFaults::withoutFaultsPackagesLeaveAsTheyAre()
{
    LinkFaults faults;
    const Datagram datagram = wave();
    const std::vector<QByteArray> messages = faults.apply(datagram);
    QCOMPARE(messages.size(), std::size_t(9));
    for (std::size_t i = 0; i < 9; ++i)
        QCOMPARE(messages[i], bytesOf(datagram.packages[i]));
    QCOMPARE(faults.total(), quint64(0));
}

void TstProcessorFaults::droppedPackagesAreMissing()
{
    LinkFaults faults;
    faults.next(Fault::Drop, 3);
    QVERIFY(numbersOf(faults.apply(wave())) == (Numbers { 3, 4, 5, 6, 7, 8 }));
    QCOMPARE(faults.count(Fault::Drop), quint64(3));
    QCOMPARE(faults.apply(wave()).size(), std::size_t(9));
}

void TstProcessorFaults::repeatedPackagesLeaveTwice()
{
    LinkFaults faults;
    faults.next(Fault::Repeat, 2);
    QVERIFY(numbersOf(faults.apply(wave())) == (Numbers { 0, 0, 1, 1, 2, 3, 4, 5, 6, 7, 8 }));
}

void TstProcessorFaults::tornPackagesAreTheBeginningOnly()
{
    LinkFaults faults;
    DatagramFault fault;
    fault.fault = Fault::Tear;
    fault.package = 1;
    fault.bytes = 39;
    faults.schedule(fault);
    const Datagram datagram = wave();
    const std::vector<QByteArray> messages = faults.apply(datagram);
    QCOMPARE(messages[0].size(), 8192);
    QCOMPARE(messages[1], bytesOf(datagram.packages[1]).left(39));
    faults.next(Fault::Tear, 9);
    for (const QByteArray &message : faults.apply(datagram))
        QVERIFY(message.size() > 0 && message.size() < 8192);
}

void TstProcessorFaults::reorderedPackageLeavesBehindTheNextOne()
{
    LinkFaults faults;
    faults.next(Fault::Reorder, 1);
    QVERIFY(numbersOf(faults.apply(wave())) == (Numbers { 1, 0, 2, 3, 4, 5, 6, 7, 8 }));
}

void TstProcessorFaults::reorderedLastPackageLeavesWithTheNextDatagram()
{
    LinkFaults faults;
    DatagramFault fault;
    fault.fault = Fault::Reorder;
    faults.schedule(fault);
    QVERIFY(faults.apply(Packager(1).pack(Kind::Flicker, 0, 0, {})).empty());
    const std::vector<QByteArray> messages = faults.apply(Packager(2).pack(Kind::Flicker, 0, 0, {}));
    QCOMPARE(messages.size(), std::size_t(2));
    QCOMPARE(int(messages[0][4]), 2); // ids
    QCOMPARE(int(messages[1][4]), 1);
}

void TstProcessorFaults::garbageGoesAhead()
{
    LinkFaults faults;
    faults.next(Fault::Garbage, 1);
    const Datagram datagram = wave();
    const std::vector<QByteArray> messages = faults.apply(datagram);
    QCOMPARE(messages.size(), std::size_t(10));
    QCOMPARE(messages[0].size(), 8192);
    QVERIFY(messages[0] != bytesOf(datagram.packages[0]));
    QCOMPARE(messages[1], bytesOf(datagram.packages[0]));
}

void TstProcessorFaults::faultsWaitForTheirDatagram()
{
    LinkFaults faults;
    DatagramFault fault;
    fault.datagram = 2;
    fault.package = 1;
    faults.schedule(fault);
    QCOMPARE(faults.apply(wave()).size(), std::size_t(9));
    QCOMPARE(faults.apply(wave()).size(), std::size_t(9));
    QVERIFY(numbersOf(faults.apply(wave())) == (Numbers { 0, 2, 3, 4, 5, 6, 7, 8 }));
    QCOMPARE(faults.apply(wave()).size(), std::size_t(9));
}

void TstProcessorFaults::clearTakesBackWhatIsPending()
{
    LinkFaults faults;
    faults.next(Fault::Drop, 100);
    faults.random(Fault::Garbage, 1.0);
    faults.clear();
    QCOMPARE(faults.apply(wave()).size(), std::size_t(9));
}

void TstProcessorFaults::sameSeedSameStreamAnotherSeedAnother()
{
    const auto stream = [](quint64 seed) {
        LinkFaults faults(seed);
        for (int i = 0; i < kFaultCount; ++i)
            faults.random(Fault(i), 0.1);
        std::vector<QByteArray> all;
        for (int i = 0; i < 20; ++i) {
            const std::vector<QByteArray> messages = faults.apply(wave());
            all.insert(all.end(), messages.begin(), messages.end());
        }
        return all;
    };
    QVERIFY(stream(5) == stream(5));
    QVERIFY(stream(5) != stream(6));
}

void TstProcessorFaults::ratesStrikeAboutAsOftenAsAsked()
{
    // 9000 packages at 1 percent: 90 expected, standard deviation 9.4; five of them each way.
    LinkFaults faults(3);
    faults.random(Fault::Drop, 0.01);
    const Datagram datagram = wave();
    for (int i = 0; i < 1000; ++i)
        faults.apply(datagram);
    QVERIFY(faults.count(Fault::Drop) > 43 && faults.count(Fault::Drop) < 137);
}

void TstProcessorFaults::chanceTearsPackagesAnywhere()
{
    // 900 packages, any length as likely as another: 225 expected in each quarter, standard deviation 13; five of them.
    LinkFaults faults(3);
    faults.random(Fault::Tear, 1.0);
    int quarters[4] = {};
    for (int i = 0; i < 100; ++i) {
        for (const QByteArray &message : faults.apply(wave())) {
            QVERIFY(message.size() < kPackageBytes);
            ++quarters[message.size() * 4 / kPackageBytes];
        }
    }
    for (const int count : quarters)
        QVERIFY(count > 160 && count < 290);
}

void TstProcessorFaults::millionFaultsDoNoHarm()
{
    LinkFaults faults(1);
    for (int i = 0; i < kFaultCount; ++i)
        faults.random(Fault(i), Fault(i) == Fault::Garbage ? 0.1 : 0.9);
    Packager packager;
    quint64 messages = 0;
    while (faults.total() < 1000000) {
        const std::vector<QByteArray> out = faults.apply(packager.pack(Kind::Aggregation, 0, 0, {}));
        QVERIFY(out.size() <= 8); // two packages: each with garbage ahead, twice, and one that was held back
        for (const QByteArray &message : out)
            QVERIFY(!message.isEmpty() && message.size() <= kPackageBytes);
        messages += out.size();
    }
    QVERIFY(messages > 0);
    faults.clear();
    faults.apply(packager.pack(Kind::Flicker, 0, 0, {})); // what is still held back leaves here
    QCOMPARE(faults.apply(packager.pack(Kind::Flicker, 0, 0, {})).size(), std::size_t(1));
}

void TstProcessorFaults::millionRandomFramesDoNoHarm()
{
    std::mt19937_64 random(42);
    quint64 sent = 0;
    ProcessorLink link([&sent](const std::vector<QByteArray> &messages) { sent += messages.size(); });
    const quint32 words[] = { 122, 123, 125, 124, 174, 193, 194, 195, 196, 197, 198, 0xCF, 0, 1, 2, 3, 90, 0x7FC00000 };
    for (int i = 0; i < 1000000; ++i) {
        std::vector<quint32> frame(random() % 28);
        for (quint32 &word : frame)
            word = random() % 4 ? words[random() % std::size(words)] : quint32(random());
        if (frame.size() > 2 && random() % 2) {
            frame.front() = kFrameStart;
            frame.back() = kFrameEnd;
        }
        QByteArray bytes = wire::bytesOf(frame);
        bytes.chop(random() % 16 ? 0 : int(random() % 4));
        link.takeFrame(bytes);
        link.advance(i);
    }
    QCOMPARE(link.counters().frames, quint64(1000000));
    QVERIFY(link.counters().malformed > 500000);
    QVERIFY(link.counters().malformed < 1000000);
    const quint64 before = sent;
    link.takeFrame(buildFrame(193, { 1 }));
    link.takeFrame(buildFrame(194, { 0 }));
    QVERIFY(sent > before); // it still answers
}

QTEST_GUILESS_MAIN(TstProcessorFaults)
#include "tst_processor_faults.moc"
