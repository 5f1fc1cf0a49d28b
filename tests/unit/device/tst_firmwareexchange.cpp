#include "device/firmwareexchange.h"

#include "device/idevice.h"
#include "processorpeer.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <malloc.h>
#include <memory>

Q_DECLARE_METATYPE(QVector<quint32>)

/// The conversation that brings a new firmware to the processor: frames, stages, times, and each answer that can come.
class TstFirmwareExchange : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void crcHasThePublishedCheckValue();
    void crcOfNothingIs0();
    void imageIsPaddedAndItsCrcCoversTheBytesWithoutPadding_data();
    void imageIsPaddedAndItsCrcCoversTheBytesWithoutPadding();
    void announcementCarriesTheLengthWithoutPadding();
    void lengthThatReadsAsAMarkerIsEscaped_data();
    void lengthThatReadsAsAMarkerIsEscaped();
    void imageWordsThatReadAsMarkersGrowByOneWord();
    void crcThatReadsAsAMarkerIsEscaped();
    void goodAnswersLeadThroughAllStages();
    void flashingIsAskedForByTwoWords();
    void wrongAnswerEndsTheExchange_data();
    void wrongAnswerEndsTheExchange();
    void answerBeforeTheAnnouncementIsRefused();
    void otherCodeWhileFlashingIsIgnoredAndTheTimerStaysStopped();
    void otherResultOfTheFlashingIsIgnored();
    void onlyTheLow16BitsOfTheFlashResultCount();
    void faultOfTheFlashingWaitsTenSeconds();
    void timeOutTellsItsStage_data();
    void timeOutTellsItsStage();
    void timerOfTheAnnouncementRunsOut();
    void statusOfAnEarlierUpdateIsForgotten();
    void shortAnswerReadsAsZeros();
    void imageLivesUntilTheDeviceThreadHasWrittenIt();
    void answersBehindTheEndReachNobody();

private:
    static QByteArray words(const QVector<quint32> &values)
    {
        return QByteArray(reinterpret_cast<const char *>(values.constData()), values.size() * 4);
    }
    static QVector<quint32> wordsOf(const QByteArray &bytes)
    {
        QVector<quint32> values(bytes.size() / 4);
        memcpy(values.data(), bytes.constData(), size_t(values.size()) * 4);
        return values;
    }
    void answer(quint32 code, quint32 result)
    {
        m_device->datagramUpdateSlot(DatagramUpdate, words({ 1, 2, code, result, 0, 0 }));
    }
    /// Brings a new exchange to a stage by good answers.
    void reach(FirmwareExchange::Stage stage)
    {
        m_exchange = std::make_unique<FirmwareExchange>(m_device.get());
        m_exchange->start("12345678");
        if (stage != FirmwareExchange::Announced)
            answer(0xC401, 0);
        if (stage == FirmwareExchange::Flashing)
            answer(0xC402, 0);
        QCOMPARE(m_exchange->stage(), stage);
    }

    std::unique_ptr<IDevice> m_device;
    std::unique_ptr<FirmwareExchange> m_exchange;
    QList<QByteArray> m_announced; // frames of firmwareUpdate
    QList<QByteArray> m_sent; // frames of sendDSPMgmt
};

void TstFirmwareExchange::init()
{
    m_announced.clear();
    m_sent.clear();
    if (m_device)
        return;
    m_device = std::make_unique<IDevice>();
    connect(m_device.get(), &IDevice::dspUpdate, this, [this](const QByteArray &frame) { m_announced << frame; });
    connect(m_device.get(), &IDevice::writeDSP, this,
            [this](const void *data, int size) { m_sent << QByteArray(static_cast<const char *>(data), size); });
}

void TstFirmwareExchange::cleanup()
{
    m_exchange.reset();
}

void TstFirmwareExchange::crcHasThePublishedCheckValue()
{
    QCOMPARE(FirmwareExchange::_crc_32("123456789", 9), 0xCBF43926u);
}

void TstFirmwareExchange::crcOfNothingIs0()
{
    QCOMPARE(FirmwareExchange::_crc_32("1", 0), 0u);
    QCOMPARE(FirmwareExchange::_crc_32("1", -1), 0u);
    QCOMPARE(FirmwareExchange::_crc_32(nullptr, 0), 0u);
}

void TstFirmwareExchange::imageIsPaddedAndItsCrcCoversTheBytesWithoutPadding_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("image");
    QTest::newRow("nine bytes") << QByteArray("123456789") << QByteArray("123456789\0\0\0\x26\x39\xF4\xCB", 16);
    // CRC-32 of "abcd", "abc" and "a" as published for this polynomial.
    QTest::newRow("whole words") << QByteArray("abcd") << QByteArray("abcd\x11\xCD\x82\xED", 8);
    QTest::newRow("one missing") << QByteArray("abc") << QByteArray("abc\0\xC2\x41\x24\x35", 8);
    QTest::newRow("three missing") << QByteArray("a") << QByteArray("a\0\0\0\x43\xBE\xB7\xE8", 8);
    QTest::newRow("nothing") << QByteArray() << QByteArray(4, '\0');
}

void TstFirmwareExchange::imageIsPaddedAndItsCrcCoversTheBytesWithoutPadding()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, image);
    QCOMPARE(FirmwareExchange::padded(content).toHex(), image.toHex());
}

void TstFirmwareExchange::announcementCarriesTheLengthWithoutPadding()
{
    m_exchange = std::make_unique<FirmwareExchange>(m_device.get());
    m_exchange->start("123456789");
    QCOMPARE(m_announced.size(), 1);
    QCOMPARE(wordsOf(m_announced[0]), QVector<quint32>({ 0x7A, 0xC4, 1, 1, 9, 0x7B }));
    QVERIFY(m_sent.isEmpty());
    QCOMPARE(m_exchange->waitMs(), 3000);
}

void TstFirmwareExchange::lengthThatReadsAsAMarkerIsEscaped_data()
{
    QTest::addColumn<quint32>("length");
    QTest::addColumn<QVector<quint32>>("payload");
    QTest::newRow("start") << 0x7Au << QVector<quint32> { 0x7D, 0x5A };
    QTest::newRow("end") << 0x7Bu << QVector<quint32> { 0x7D, 0x5B };
    QTest::newRow("neither") << 0x7Cu << QVector<quint32> { 0x7C };
    QTest::newRow("escape") << 0x7Du << QVector<quint32> { 0x7D, 0x5D };
    QTest::newRow("only its low byte") << 0x17Au << QVector<quint32> { 0x17A };
}

void TstFirmwareExchange::lengthThatReadsAsAMarkerIsEscaped()
{
    QFETCH(quint32, length);
    QFETCH(QVector<quint32>, payload);
    const QVector<quint32> expected = QVector<quint32> { 0x7A, 0xC4, 1, 1 } + payload + QVector<quint32> { 0x7B };
    QCOMPARE(wordsOf(FirmwareExchange::announceFrame(length)), expected);
}

void TstFirmwareExchange::imageWordsThatReadAsMarkersGrowByOneWord()
{
    const QByteArray image = words({ 0x7D, 1, 0x7A, 0x7B, 0x7C, 0x7D7D7D7D });
    QCOMPARE(wordsOf(FirmwareExchange::dataFrame(image)),
             QVector<quint32>({ 0x7A, 0xC4, 2, 1, 0x7D, 0x5D, 1, 0x7D, 0x5A, 0x7D, 0x5B, 0x7C, 0x7D7D7D7D, 0x7B }));
}

void TstFirmwareExchange::crcThatReadsAsAMarkerIsEscaped()
{
    QCOMPARE(wordsOf(FirmwareExchange::dataFrame(words({ 5, 0x7B }))),
             QVector<quint32>({ 0x7A, 0xC4, 2, 1, 5, 0x7D, 0x5B, 0x7B }));
}

void TstFirmwareExchange::goodAnswersLeadThroughAllStages()
{
    m_exchange = std::make_unique<FirmwareExchange>(m_device.get());
    QSignalSpy taken(m_exchange.get(), &FirmwareExchange::dataTaken);
    QSignalSpy completed(m_exchange.get(), &FirmwareExchange::completed);
    QCOMPARE(m_exchange->stage(), FirmwareExchange::Idle);
    m_exchange->start("123456789");
    QCOMPARE(int(m_exchange->stage()), 1);
    answer(50177, 0);
    QCOMPARE(int(m_exchange->stage()), 2);
    QCOMPARE(m_exchange->waitMs(), 60000);
    QCOMPARE(m_sent.size(), 1);
    QCOMPARE(wordsOf(m_sent[0]),
             QVector<quint32>({ 0x7A, 0xC4, 2, 1, 0x34333231, 0x38373635, 0x39, 0xCBF43926, 0x7B }));
    answer(50178, 0);
    QCOMPARE(int(m_exchange->stage()), 4);
    QCOMPARE(m_exchange->waitMs(), 60000);
    QCOMPARE(taken.size(), 1);
    answer(50179, 0);
    QCOMPARE(int(m_exchange->stage()), 0);
    QCOMPARE(m_exchange->waitMs(), -1);
    QCOMPARE(completed.size(), 1);
    QCOMPARE(m_announced.size() + m_sent.size(), 2); // the flashing needs no frame
}

void TstFirmwareExchange::flashingIsAskedForByTwoWords()
{
    QCOMPARE(wordsOf(FirmwareExchange::flashFrame()), QVector<quint32>({ 0xCF, 3 }));
}

void TstFirmwareExchange::wrongAnswerEndsTheExchange_data()
{
    QTest::addColumn<int>("stage");
    QTest::addColumn<quint32>("code");
    QTest::addColumn<quint32>("result");
    QTest::newRow("announcement refused") << 1 << 0xC401u << 4u;
    QTest::newRow("high bits of the result count") << 1 << 0xC401u << 0x10000u;
    QTest::newRow("another code to the announcement") << 1 << 0xC402u << 0u;
    QTest::newRow("data refused") << 2 << 0xC402u << 3u;
    QTest::newRow("announcement answered twice") << 2 << 0xC401u << 0u;
    QTest::newRow("flashing before the data") << 2 << 0xC403u << 0u;
}

void TstFirmwareExchange::wrongAnswerEndsTheExchange()
{
    QFETCH(int, stage);
    QFETCH(quint32, code);
    QFETCH(quint32, result);
    reach(FirmwareExchange::Stage(stage));
    QSignalSpy refused(m_exchange.get(), &FirmwareExchange::refused);
    answer(code, result);
    QCOMPARE(refused.size(), 1);
    QCOMPARE(refused[0], QVariantList({ stage, code, result }));
    QCOMPARE(int(m_exchange->stage()), 0);
    QCOMPARE(m_exchange->waitMs(), -1);
}

void TstFirmwareExchange::otherCodeWhileFlashingIsIgnoredAndTheTimerStaysStopped()
{
    reach(FirmwareExchange::Flashing);
    QSignalSpy refused(m_exchange.get(), &FirmwareExchange::refused);
    QSignalSpy completed(m_exchange.get(), &FirmwareExchange::completed);
    answer(0xC402, 0);
    QCOMPARE(int(m_exchange->stage()), 4);
    QCOMPARE(m_exchange->waitMs(), -1);
    QVERIFY(refused.isEmpty() && completed.isEmpty());
    answer(0xC403, 0);
    QCOMPARE(completed.size(), 1);
}

void TstFirmwareExchange::otherResultOfTheFlashingIsIgnored()
{
    reach(FirmwareExchange::Flashing);
    QSignalSpy refused(m_exchange.get(), &FirmwareExchange::refused);
    answer(0xC403, 2);
    QCOMPARE(int(m_exchange->stage()), 4);
    QCOMPARE(m_exchange->waitMs(), -1);
    QCOMPARE(int(m_exchange->status()), 2);
    QVERIFY(refused.isEmpty());
}

void TstFirmwareExchange::onlyTheLow16BitsOfTheFlashResultCount()
{
    reach(FirmwareExchange::Flashing);
    QSignalSpy fault(m_exchange.get(), &FirmwareExchange::flashFault);
    QSignalSpy completed(m_exchange.get(), &FirmwareExchange::completed);
    answer(0xC403, 0xABCD0001);
    QCOMPARE(fault.size(), 1);
    answer(0xC403, 0x00010000);
    QCOMPARE(completed.size(), 1);
}

void TstFirmwareExchange::faultOfTheFlashingWaitsTenSeconds()
{
    reach(FirmwareExchange::Flashing);
    QSignalSpy fault(m_exchange.get(), &FirmwareExchange::flashFault);
    answer(0xC403, 1);
    QCOMPARE(fault.size(), 1);
    QCOMPARE(int(m_exchange->stage()), 4);
    QCOMPARE(int(m_exchange->status()), 1);
    QCOMPARE(m_exchange->waitMs(), 10000);
}

void TstFirmwareExchange::timeOutTellsItsStage_data()
{
    QTest::addColumn<int>("stage");
    QTest::newRow("announcement") << 1;
    QTest::newRow("data") << 2;
    QTest::newRow("flashing") << 4;
}

void TstFirmwareExchange::timeOutTellsItsStage()
{
    QFETCH(int, stage);
    reach(FirmwareExchange::Stage(stage));
    QSignalSpy timedOut(m_exchange.get(), &FirmwareExchange::timedOut);
    m_exchange->firmwareTimeOut();
    QCOMPARE(timedOut.size(), 1);
    QCOMPARE(timedOut[0][0].toInt(), stage);
    QCOMPARE(int(m_exchange->stage()), 0);
    QCOMPARE(m_exchange->waitMs(), -1);
}

void TstFirmwareExchange::timerOfTheAnnouncementRunsOut()
{
    QElapsedTimer timer;
    timer.start();
    reach(FirmwareExchange::Announced);
    QSignalSpy timedOut(m_exchange.get(), &FirmwareExchange::timedOut);
    QCOMPARE(m_exchange->waitMs(), 3000);
    QVERIFY(timedOut.wait(30000));
    QVERIFY2(timer.elapsed() > 2500, qPrintable(QString::number(timer.elapsed())));
}

void TstFirmwareExchange::statusOfAnEarlierUpdateIsForgotten()
{
    reach(FirmwareExchange::Flashing);
    answer(0xC403, 1);
    reach(FirmwareExchange::Flashing);
    QCOMPARE(int(m_exchange->status()), 0);
}

void TstFirmwareExchange::shortAnswerReadsAsZeros()
{
    for (int size = 0; size < 16; ++size) {
        reach(FirmwareExchange::Announced);
        QSignalSpy refused(m_exchange.get(), &FirmwareExchange::refused);
        m_exchange->firmwareUpdate(words({ 1, 2, 0xC401, 5 }).left(size));
        QCOMPARE(refused.size(), size < 12 ? 1 : 0); // the code is whole from 12 bytes on, the result reads as 0
    }
}

/// Only a pointer crosses to the device thread, and the exchange may be gone before that thread writes.
void TstFirmwareExchange::imageLivesUntilTheDeviceThreadHasWrittenIt()
{
    m_device.reset(); // the one without a node
    ProcessorPeer peer;
    m_device = std::make_unique<IDevice>();
    QVERIFY(peer.accept());
    QVERIFY(peer.accept()); // the start-up opens the node twice
    ::mallopt(M_MMAP_THRESHOLD, 64 * 1024); // memory of the image goes back to the system when it is freed
    const QByteArray content(150000, 'q');
    m_exchange = std::make_unique<FirmwareExchange>(m_device.get());
    m_exchange->start(content);
    const QByteArray expected = FirmwareExchange::dataFrame(FirmwareExchange::padded(content));
    answer(0xC401, 0);
    m_exchange.reset();
    bool came = false;
    QTRY_VERIFY_WITH_TIMEOUT(([&] {
                                 for (QByteArray frame; !came && !(frame = peer.receive()).isEmpty();)
                                     came = frame == expected;
                                 return came;
                             }()),
                             30000);
    m_exchange.reset();
    m_device.reset();
}

void TstFirmwareExchange::answersBehindTheEndReachNobody()
{
    reach(FirmwareExchange::Announced);
    m_exchange.reset();
    answer(0xC401, 0);
    QVERIFY(m_sent.isEmpty());
}

void TstFirmwareExchange::answerBeforeTheAnnouncementIsRefused()
{
    m_exchange = std::make_unique<FirmwareExchange>(m_device.get());
    QSignalSpy refused(m_exchange.get(), &FirmwareExchange::refused);
    m_exchange->firmwareUpdate(words({ 1, 2, 0xC401, 0 }));
    QCOMPARE(refused.size(), 1);
    QCOMPARE(refused[0], QVariantList({ 0, 0xC401u, 0u }));
    QVERIFY(m_sent.isEmpty());
}

QTEST_GUILESS_MAIN(TstFirmwareExchange)
#include "tst_firmwareexchange.moc"
