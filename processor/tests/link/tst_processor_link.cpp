#include "link/frame.h"
#include "link/processorlink.h"

#include <QtEndian>
#include <QTest>

#include <cstring>

using namespace wire;

namespace {

constexpr qint64 kNoon = 1705579200000; // 2024-01-18T12:00:00 UTC

/// A link whose messages are kept, with a few short ways to speak to it.
struct Desk
{
    std::vector<QByteArray> messages;
    ProcessorLink link { [this](const std::vector<QByteArray> &out) {
        messages.insert(messages.end(), out.begin(), out.end());
    } };

    Desk() { link.setClock(kNoon); }
    void say(quint32 id, const std::vector<quint32> &payload) { link.takeFrame(buildFrame(id, payload)); }
    void stream(bool on) { say(193, { on ? 1u : 0u }); }
    void measure()
    {
        static const auto rms = std::make_unique<processor::RmsPayload>();
        link.rms(*rms, kNoon + 5);
    }
    quint32 word(std::size_t message, int byte) const
    {
        return qFromLittleEndian<quint32>(messages.at(message).constData() + byte);
    }
    std::vector<int> kinds() const
    {
        std::vector<int> kinds;
        for (std::size_t i = 0; i < messages.size(); ++i)
            kinds.push_back(int(word(i, 16)));
        return kinds;
    }
};

std::vector<quint32> smallImage()
{
    // "12345678" and its CRC-32, 0x9AE0DAAF.
    return { 2, 1, 0x34333231, 0x38373635, 0x9AE0DAAF };
}

} // namespace

/// The processor's end of the wire: when it speaks, when it is silent, and what frames change.
class TstProcessorLink : public QObject
{
    Q_OBJECT

private slots:
    void silentUntilTheStreamIsSwitchedOn();
    void silentAfterTheStreamIsSwitchedOff();
    void silentWhenTheInstrumentIsGone();
    void firmwareTextWaitsForTheStream();
    void firmwareTextFillsItsDatagramWithZeros();
    void everyMeasurementBecomesItsKind();
    void transientIsSentBehindItsWave_data();
    void transientIsSentBehindItsWave();
    void measurementsKeepTheirTime();
    void payloadWordsStandWhereTheInstrumentReadsThem();
    void bdsShowsInHalfCycleDatagrams();
    void clockFrameSetsTheStamps();
    void impossibleClockIsCountedAndIgnored();
    void setupIsTakenAndAnnounced();
    void impossibleSetupIsCountedAndIgnored();
    void updateIsAnsweredInSilenceStepByStep();
    void flashCommandIsAnswered();
    void buzzerAndInrushChangeNothingElse();
    void heldBackPackagesLeaveTogether();
    void switchingOffForgetsWhatIsHeldBack();
    void countersTellTheKinds();
};

void TstProcessorLink::silentUntilTheStreamIsSwitchedOn()
{
    Desk desk;
    desk.measure();
    desk.say(194, { 0 });
    desk.link.advance(10000);
    QVERIFY(desk.messages.empty());
    desk.stream(true);
    desk.measure();
    QCOMPARE(desk.messages.size(), std::size_t(2));
}

void TstProcessorLink::silentAfterTheStreamIsSwitchedOff()
{
    Desk desk;
    desk.stream(true);
    desk.measure();
    desk.stream(false);
    desk.measure();
    desk.say(194, { 0 });
    QCOMPARE(desk.messages.size(), std::size_t(1));
    desk.stream(true);
    QCOMPARE(desk.messages.size(), std::size_t(2));
    QCOMPARE(desk.word(1, 16), 5u);
}

void TstProcessorLink::silentWhenTheInstrumentIsGone()
{
    Desk desk;
    desk.stream(true);
    desk.link.disconnected();
    desk.measure();
    QVERIFY(desk.messages.empty());
    QVERIFY(!desk.link.streaming());
}

void TstProcessorLink::firmwareTextWaitsForTheStream()
{
    Desk desk;
    desk.stream(false);
    desk.say(194, { 0 });
    QVERIFY(desk.messages.empty());
    desk.stream(true);
    desk.measure();
    QVERIFY(desk.kinds() == (std::vector<int> { 5, 1 }));
    desk.stream(true); // once asked, once answered
    QCOMPARE(desk.messages.size(), std::size_t(2));
}

void TstProcessorLink::firmwareTextFillsItsDatagramWithZeros()
{
    Desk desk;
    desk.stream(true);
    desk.say(194, { 0 });
    const QByteArray payload = desk.messages.at(0).mid(40, 4096);
    const QByteArray text = "CPU:ADSP-21479;Silicon:0.2;Firmware:1.0.0;";
    QCOMPARE(payload.left(text.size()), text);
    QCOMPARE(payload.mid(text.size()), QByteArray(4096 - text.size(), 0));
}

void TstProcessorLink::everyMeasurementBecomesItsKind()
{
    Desk desk;
    desk.stream(true);
    const auto aggregation = std::make_unique<processor::AggregationPayload>();
    const auto wave = std::make_unique<processor::WavePayload>();
    const auto flicker = std::make_unique<processor::FlickerPayload>();
    desk.link.aggregation(*aggregation, 0);
    QVERIFY(desk.kinds()[0] == 0);
    QCOMPARE(desk.messages.size(), std::size_t(2));
    desk.link.wave(*wave, 0);
    QCOMPARE(desk.word(2, 16), 3u);
    QCOMPARE(desk.messages.size(), std::size_t(11));
    desk.link.flicker(*flicker, 0);
    QCOMPARE(desk.word(11, 16), 4u);
    QCOMPARE(desk.messages.size(), std::size_t(12));
}

void TstProcessorLink::transientIsSentBehindItsWave_data()
{
    QTest::addColumn<quint32>("sample");
    QTest::addColumn<quint32>("first");
    QTest::newRow("first sample of the wave") << 0u << 0u;
    QTest::newRow("in the middle") << 1700u << 1200u;
    QTest::newRow("last sample of the wave") << 4095u << 2096u;
}

void TstProcessorLink::transientIsSentBehindItsWave()
{
    QFETCH(quint32, sample);
    QFETCH(quint32, first);
    const auto wave = std::make_unique<processor::WavePayload>();
    for (std::size_t k = 0; k < 4; ++k) {
        for (std::size_t i = 0; i < 4096; ++i)
            wave->pair[k].voltage[i] = qint16(i + 5000 * k);
    }
    wave->transient = (2u << 24) | sample;
    Desk desk;
    desk.link.wave(*wave, kNoon + 5);
    QVERIFY(desk.messages.empty()); // the stream is off
    desk.stream(true);
    desk.link.wave(*wave, kNoon + 5);
    QCOMPARE(desk.messages.size(), std::size_t(11)); // nine packages of the wave, two of the transient
    QCOMPARE(desk.word(9, 16), 2u);
    QCOMPARE(desk.word(9, 4), desk.word(0, 4) + 1);
    QCOMPARE(desk.word(9, 32), quint32(kNoon / 1000));
    QCOMPARE(desk.word(9, 40), (2u << 24) | sample);
    QCOMPARE(desk.word(9, 44), first);
    QCOMPARE(desk.word(9, 48), 0u);
    const auto voltage = [&desk](int k, int i) { // 1000 words a voltage behind the three words of the head
        const int payloadByte = 12 + 4000 * k + 2 * i;
        const bool inFirst = payloadByte < 8152;
        const char *bytes = desk.messages.at(inFirst ? 9 : 10).constData();
        return int(qFromLittleEndian<qint16>(bytes + (inFirst ? 40 + payloadByte : 16 + payloadByte - 8152)));
    };
    for (int k = 0; k < 4; ++k) {
        QCOMPARE(voltage(k, 0), int(first) + 5000 * k);
        QCOMPARE(voltage(k, 1999), int(first) + 1999 + 5000 * k);
    }
}

void TstProcessorLink::measurementsKeepTheirTime()
{
    Desk desk;
    desk.stream(true);
    desk.measure();
    QCOMPARE(desk.word(0, 32), quint32(kNoon / 1000));
    QCOMPARE(desk.word(0, 36), 5u);
}

void TstProcessorLink::payloadWordsStandWhereTheInstrumentReadsThem()
{
    // Word w of the instrument's table stands at byte 40 + 4 * (w - 2) of the first package.
    Desk desk;
    desk.stream(true);
    const auto aggregation = std::make_unique<processor::AggregationPayload>();
    aggregation->frequency = 50.0f;
    aggregation->channel[1].voltageRms = 1.5f; // word 8 + 9
    aggregation->signalling[3][1] = 0.25f; // word 3249, the last
    desk.link.aggregation(*aggregation, 0);
    QCOMPARE(desk.word(0, 40), 0x42480000u); // 50.0
    QCOMPARE(desk.word(0, 40 + 4 * 15), 0x3FC00000u); // 1.5
    // The second package begins with word 2 + 2038 of the table.
    QCOMPARE(desk.word(1, 16 + 4 * (3249 - 2040)), 0x3E800000u); // 0.25
    const auto wave = std::make_unique<processor::WavePayload>();
    wave->pair[0].voltage[1] = 0x1234; // the high half of word 2
    wave->transient = 0x02000123;
    desk.link.wave(*wave, 0);
    QCOMPARE(desk.word(2, 40), 0x12340000u);
    QCOMPARE(desk.word(10, 16 + 4 * 38), 0x02000123u); // the last of 39 words of the ninth package
}

void TstProcessorLink::bdsShowsInHalfCycleDatagrams()
{
    Desk desk;
    desk.stream(true);
    desk.measure();
    QCOMPARE(desk.word(0, 20), 0u);
    desk.link.setBds(true);
    desk.measure();
    QVERIFY(desk.word(1, 20) != 0);
}

void TstProcessorLink::clockFrameSetsTheStamps()
{
    Desk desk;
    desk.stream(true);
    desk.link.advance(4000);
    const unsigned before = desk.link.clockCount();
    desk.say(195, { 0x04000000, 0x07E80112 }); // 2024-01-18T00:00:00
    QCOMPARE(desk.link.clockCount(), before + 1);
    desk.link.advance(4250);
    QCOMPARE(desk.link.clock().at(4250), quint64(1705536000250));
    desk.say(194, { 0 });
    QCOMPARE(desk.word(0, 32), 1705536000u);
    QCOMPARE(desk.word(0, 36), 250u);
    desk.link.shiftClock(-250);
    QCOMPARE(desk.link.clockCount(), before + 2);
}

void TstProcessorLink::impossibleClockIsCountedAndIgnored()
{
    Desk desk;
    desk.say(195, { 0x04000000, 0x07E80D12 }); // month 13
    QCOMPARE(desk.link.counters().malformed, quint64(1));
    QCOMPARE(desk.link.clock().at(0), quint64(kNoon));
    desk.link.takeFrame(bytesOf({ 197, 0, 0x04000000, 0x20240118 })); // older form: 2024-01-18, bytes 18 01 24 20
    QCOMPARE(DeviceClock::text(desk.link.clock().at(0)), QString("2024-01-18T00:00:00.000"));
}

void TstProcessorLink::setupIsTakenAndAnnounced()
{
    Desk desk;
    std::vector<quint32> payload(21, 0);
    payload[0] = 60u << 16;
    for (std::size_t i = 9; i < 18; ++i)
        payload[i] = 0x3F800000; // 1.0
    payload[18] = 120;
    desk.say(198, payload);
    QCOMPARE(desk.link.setup().nominalFrequency, 60);
    QCOMPARE(desk.link.setup().flickerCurve, 120);
    QCOMPARE(desk.link.setupCount(), 1u);
}

void TstProcessorLink::impossibleSetupIsCountedAndIgnored()
{
    Desk desk;
    std::vector<quint32> payload(21, 0);
    payload[0] = 17u << 16;
    desk.say(198, payload);
    QCOMPARE(desk.link.setup().nominalFrequency, 50);
    QCOMPARE(desk.link.setupCount(), 0u);
    QCOMPARE(desk.link.counters().malformed, quint64(1));
}

void TstProcessorLink::updateIsAnsweredInSilenceStepByStep()
{
    Desk desk;
    desk.say(196, { 1, 1, 8 });
    QCOMPARE(desk.messages.size(), std::size_t(1));
    QCOMPARE(desk.word(0, 0), 0xC0A5FF00u);
    QCOMPARE(desk.word(0, 16), 6u);
    QCOMPARE(desk.word(0, 40), 0xC401u); // word 2 of the instrument's array
    QCOMPARE(desk.word(0, 44), 0u);
    desk.say(196, smallImage());
    QCOMPARE(desk.messages.size(), std::size_t(1)); // the checksum takes its time
    desk.link.advance(FirmwareExchange::kChecksumMs);
    QCOMPARE(desk.messages.size(), std::size_t(2));
    QCOMPARE(desk.word(1, 40), 0xC402u);
    QCOMPARE(desk.word(1, 44), 0u);
    desk.link.advance(FirmwareExchange::kChecksumMs + FirmwareExchange::kFlashMs);
    QCOMPARE(desk.messages.size(), std::size_t(3));
    QCOMPARE(desk.word(2, 40), 0xC403u);
    desk.stream(true);
    desk.say(194, { 0 });
    QVERIFY(desk.messages.back().contains("Firmware:1.0.1;"));
}

void TstProcessorLink::flashCommandIsAnswered()
{
    Desk desk;
    desk.link.takeFrame(bytesOf({ 0xCF, 3 }));
    QCOMPARE(desk.word(0, 40), 0xC403u);
    QCOMPARE(desk.word(0, 44), quint32(FirmwareExchange::OutOfTurn));
}

void TstProcessorLink::buzzerAndInrushChangeNothingElse()
{
    Desk desk;
    desk.link.takeFrame(bytesOf({ 194, 7 }));
    desk.link.takeFrame(bytesOf({ 174 }));
    QCOMPARE(desk.link.buzzer(), 7u);
    QCOMPARE(desk.link.counters().frames, quint64(2));
    QCOMPARE(desk.link.counters().malformed, quint64(0));
    QVERIFY(desk.messages.empty());
}

void TstProcessorLink::heldBackPackagesLeaveTogether()
{
    Desk desk;
    desk.stream(true);
    desk.link.advance(1000);
    desk.link.holdBack(300);
    desk.measure();
    desk.link.advance(1299);
    desk.measure();
    QVERIFY(desk.messages.empty());
    desk.link.advance(1300);
    QCOMPARE(desk.messages.size(), std::size_t(2));
    QVERIFY(desk.word(0, 4) < desk.word(1, 4)); // in order
    desk.measure();
    QCOMPARE(desk.messages.size(), std::size_t(3));
}

void TstProcessorLink::switchingOffForgetsWhatIsHeldBack()
{
    Desk desk;
    desk.stream(true);
    desk.link.holdBack(300);
    desk.measure();
    desk.stream(false);
    desk.link.advance(1000);
    QVERIFY(desk.messages.empty());
}

void TstProcessorLink::countersTellTheKinds()
{
    Desk desk;
    desk.stream(true);
    desk.measure();
    desk.measure();
    desk.say(194, { 0 });
    desk.link.takeFrame("rubbish");
    QCOMPARE(desk.link.counters().datagrams[1], quint64(2));
    QCOMPARE(desk.link.counters().datagrams[5], quint64(1));
    QCOMPARE(desk.link.counters().frames, quint64(3));
    QCOMPARE(desk.link.counters().malformed, quint64(1));
}

QTEST_GUILESS_MAIN(TstProcessorLink)
#include "tst_processor_link.moc"
