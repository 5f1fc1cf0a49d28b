#include "link/firmwareexchange.h"
#include "link/frame.h"

#include <QTest>

using namespace wire;
using Words = std::vector<quint32>;
using Exchange = FirmwareExchange;

Q_DECLARE_METATYPE(std::vector<quint32>)

namespace {

/// CRC-32 by the definition, bit by bit: an independent way.
quint32 slowCrc(const QByteArray &bytes)
{
    quint32 crc = 0xFFFFFFFF;
    for (char byte : bytes) {
        crc ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

/// The image as sent: padded to whole words, and the CRC of what was there before the padding.
Words image(QByteArray bytes)
{
    const quint32 crc = slowCrc(bytes);
    bytes.append(QByteArray((4 - bytes.size() % 4) % 4, 0));
    Words words = wordsOf(bytes);
    words.push_back(crc);
    return words;
}

} // namespace

/// The conversation of a firmware update, well and badly.
class TstProcessorFirmware : public QObject
{
    Q_OBJECT

private slots:
    void goodImageIsTakenCheckedAndFlashed_data();
    void goodImageIsTakenCheckedAndFlashed();
    void checksumCoversTheBytesWithoutPadding();
    void wrongImageIsRefused_data();
    void wrongImageIsRefused();
    void lengthsOutOfBoundsAreRefused_data();
    void lengthsOutOfBoundsAreRefused();
    void flashWithoutAnImageIsOutOfTurn();
    void refusedAnnouncementTakesNoImage();
    void everyAnswerCanBeReplaced_data();
    void everyAnswerCanBeReplaced();
    void lateAnswerDelaysWhatFollows();
    void answerComesAgain();
    void badDataAnswerEndsTheExchange();
    void faultOfTheFlashLeavesTheVersion();
    void versionRisesWithEachUpdate();
};

void TstProcessorFirmware::goodImageIsTakenCheckedAndFlashed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("whole words") << QByteArray("12345678");
    QTest::newRow("three bytes over") << QByteArray("1234567");
    QTest::newRow("one byte") << QByteArray("1");
    QTest::newRow("a megabyte") << QByteArray(1 << 20, 'q');
}

void TstProcessorFirmware::goodImageIsTakenCheckedAndFlashed()
{
    QFETCH(QByteArray, bytes);
    Exchange exchange;
    const Exchange::Answers announced = exchange.announce(quint32(bytes.size()));
    QCOMPARE(announced.size(), std::size_t(1));
    QCOMPARE(announced[0].code, 0xC401u);
    QCOMPARE(announced[0].result, 0u);
    const Exchange::Answers answers = exchange.data(image(bytes));
    QCOMPARE(answers.size(), std::size_t(2)); // checked, and flashed without a command
    QCOMPARE(answers[0].code, 0xC402u);
    QCOMPARE(answers[0].result, 0u);
    QCOMPARE(answers[1].code, 0xC403u);
    QCOMPARE(answers[1].result, 0u);
    QVERIFY(answers[1].delayMs > answers[0].delayMs);
    QVERIFY(answers[1].delayMs < 60000);
}

void TstProcessorFirmware::checksumCoversTheBytesWithoutPadding()
{
    QCOMPARE(slowCrc("123456789"), 0xCBF43926u); // the check value that is published with this polynomial
    Exchange exchange;
    exchange.announce(9);
    QCOMPARE(exchange.data({ 0x34333231, 0x38373635, 0x39, 0xCBF43926 })[0].result, 0u);
}

void TstProcessorFirmware::wrongImageIsRefused_data()
{
    QTest::addColumn<Words>("words");
    QTest::addColumn<quint32>("result");
    Words flipped = image("12345678");
    flipped[0] ^= 1;
    QTest::newRow("one bit flipped") << flipped << quint32(Exchange::BadChecksum);
    Words crc = image("12345678");
    crc[2] += 1;
    QTest::newRow("checksum wrong") << crc << quint32(Exchange::BadChecksum);
    QTest::newRow("a word short") << Words { 1, 2 } << quint32(Exchange::BadLength);
    QTest::newRow("a word long") << Words { 1, 2, 3, 4 } << quint32(Exchange::BadLength);
    QTest::newRow("nothing") << Words {} << quint32(Exchange::BadLength);
}

void TstProcessorFirmware::wrongImageIsRefused()
{
    QFETCH(Words, words);
    QFETCH(quint32, result);
    Exchange exchange;
    exchange.announce(8);
    const Exchange::Answers answers = exchange.data(words);
    QCOMPARE(answers.size(), std::size_t(1));
    QCOMPARE(answers[0].code, 0xC402u);
    QCOMPARE(answers[0].result, result);
    QCOMPARE(exchange.updates(), 0);
}

void TstProcessorFirmware::lengthsOutOfBoundsAreRefused_data()
{
    QTest::addColumn<quint32>("length");
    QTest::addColumn<quint32>("result");
    QTest::newRow("0") << 0u << quint32(Exchange::BadLength);
    QTest::newRow("1") << 1u << 0u;
    QTest::newRow("8 MiB") << (8u << 20) << 0u;
    QTest::newRow("8 MiB and a byte") << (8u << 20) + 1 << quint32(Exchange::BadLength);
    QTest::newRow("all ones") << 0xFFFFFFFFu << quint32(Exchange::BadLength);
}

void TstProcessorFirmware::lengthsOutOfBoundsAreRefused()
{
    QFETCH(quint32, length);
    QFETCH(quint32, result);
    Exchange exchange;
    QCOMPARE(exchange.announce(length)[0].result, result);
}

void TstProcessorFirmware::flashWithoutAnImageIsOutOfTurn()
{
    Exchange exchange;
    const Exchange::Answers answers = exchange.flash();
    QCOMPARE(answers.size(), std::size_t(1));
    QCOMPARE(answers[0].code, 0xC403u);
    QCOMPARE(answers[0].result, quint32(Exchange::OutOfTurn));
    QCOMPARE(exchange.data({ 1, 2 })[0].result, quint32(Exchange::OutOfTurn));
}

void TstProcessorFirmware::refusedAnnouncementTakesNoImage()
{
    Exchange exchange;
    exchange.replaceResult(Exchange::Announce, 9);
    QCOMPARE(exchange.announce(8)[0].result, 9u);
    QCOMPARE(exchange.data(image("12345678"))[0].result, quint32(Exchange::OutOfTurn));
}

void TstProcessorFirmware::everyAnswerCanBeReplaced_data()
{
    QTest::addColumn<int>("step");
    QTest::newRow("announcement") << int(Exchange::Announce);
    QTest::newRow("data") << int(Exchange::Data);
    QTest::newRow("flash") << int(Exchange::Flash);
}

void TstProcessorFirmware::everyAnswerCanBeReplaced()
{
    QFETCH(int, step);
    const auto answerOf = [step](Exchange &exchange) {
        Exchange::Answers all = exchange.announce(8);
        const Exchange::Answers data = exchange.data(image("12345678"));
        all.insert(all.end(), data.begin(), data.end());
        return all.size() > std::size_t(step) ? std::optional(all[std::size_t(step)]) : std::nullopt;
    };
    Exchange exchange;
    exchange.replaceResult(Exchange::Step(step), 0x12345);
    QCOMPARE(answerOf(exchange)->result, 0x12345u);
    exchange.answerWell();
    QCOMPARE(answerOf(exchange)->result, 0u);
    exchange.replaceCode(Exchange::Step(step), 0xBEEF);
    QCOMPARE(answerOf(exchange)->code, 0xBEEFu);
    exchange.answerWell();
    exchange.silence(Exchange::Step(step));
    QVERIFY(!answerOf(exchange) || answerOf(exchange)->code != 0xC401u + quint32(step));
}

void TstProcessorFirmware::lateAnswerDelaysWhatFollows()
{
    Exchange exchange;
    exchange.delay(Exchange::Data, 5000);
    QCOMPARE(exchange.announce(8)[0].delayMs, 0);
    const Exchange::Answers answers = exchange.data(image("12345678"));
    QCOMPARE(answers[0].delayMs, Exchange::kChecksumMs + 5000);
    QCOMPARE(answers[1].delayMs, answers[0].delayMs + Exchange::kFlashMs);
}

void TstProcessorFirmware::answerComesAgain()
{
    Exchange exchange;
    exchange.repeat(Exchange::Announce, 2);
    const Exchange::Answers answers = exchange.announce(8);
    QCOMPARE(answers.size(), std::size_t(3));
    for (const Exchange::Answer &answer : answers)
        QCOMPARE(answer.code, 0xC401u);
    QCOMPARE(exchange.data(image("12345678"))[0].result, 0u);
}

void TstProcessorFirmware::badDataAnswerEndsTheExchange()
{
    Exchange exchange;
    exchange.replaceResult(Exchange::Data, 7);
    exchange.announce(8);
    QCOMPARE(exchange.data(image("12345678")).size(), std::size_t(1));
    QCOMPARE(exchange.flash()[0].result, quint32(Exchange::OutOfTurn));
}

void TstProcessorFirmware::faultOfTheFlashLeavesTheVersion()
{
    Exchange exchange;
    exchange.replaceResult(Exchange::Flash, Exchange::Fault);
    exchange.announce(8);
    QCOMPARE(exchange.data(image("12345678"))[1].result, 1u);
    QCOMPARE(exchange.versionText(), QString("CPU:ADSP-21479;Silicon:0.2;Firmware:1.0.0;"));
}

void TstProcessorFirmware::versionRisesWithEachUpdate()
{
    Exchange exchange;
    for (int update = 1; update <= 2; ++update) {
        exchange.announce(8);
        exchange.data(image("12345678"));
        QCOMPARE(exchange.versionText(), QString("CPU:ADSP-21479;Silicon:0.2;Firmware:1.0.%1;").arg(update));
    }
}

QTEST_GUILESS_MAIN(TstProcessorFirmware)
#include "tst_processor_firmware.moc"
