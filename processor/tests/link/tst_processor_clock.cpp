#include "link/deviceclock.h"

#include <QTest>

using wire::DeviceClock;
using Bytes = std::array<quint8, 8>;

Q_DECLARE_METATYPE(Bytes)

/// The processor's clock and the frames that set it.
class TstProcessorClock : public QObject
{
    Q_OBJECT

private slots:
    void runsWithSimulatedTime();
    void shiftAndSetMoveIt();
    void neverFallsBelow1970();
    void bytesAreADateAndATime_data();
    void bytesAreADateAndATime();
    void packedDecimalBytesAreTheOlderForm();
    void textAndBack();
};

void TstProcessorClock::runsWithSimulatedTime()
{
    const DeviceClock clock(1705594501000);
    QCOMPARE(clock.at(0), quint64(1705594501000));
    QCOMPARE(clock.at(250), quint64(1705594501250));
}

void TstProcessorClock::shiftAndSetMoveIt()
{
    DeviceClock clock(1000000);
    clock.shift(-5000);
    QCOMPARE(clock.at(0), quint64(995000));
    clock.set(7000000, 2000); // 7000 s at simulated second 2
    QCOMPARE(clock.at(2000), quint64(7000000));
    QCOMPARE(clock.at(2500), quint64(7000500));
}

void TstProcessorClock::neverFallsBelow1970()
{
    DeviceClock clock(1000);
    clock.shift(-5000);
    QCOMPARE(clock.at(0), quint64(0));
    QCOMPARE(clock.at(5000), quint64(1000));
}

void TstProcessorClock::bytesAreADateAndATime_data()
{
    QTest::addColumn<Bytes>("bytes");
    QTest::addColumn<QString>("text"); // empty: refused
    const auto year = [](int y) { return std::pair<quint8, quint8>(quint8(y & 0xFF), quint8(y >> 8)); };
    const auto row = [&](const char *name, Bytes bytes, int y, const QString &text) {
        std::tie(bytes[6], bytes[7]) = year(y);
        QTest::newRow(name) << bytes << text;
    };
    row("ordinary", { 59, 59, 23, 0, 31, 12 }, 2024, "2024-12-31T23:59:59.000");
    row("29 February of a leap year", { 0, 0, 0, 4, 29, 2 }, 2024, "2024-02-29T00:00:00.000");
    row("29 February of another", { 0, 0, 0, 4, 29, 2 }, 2023, "");
    row("day of the week does not matter", { 0, 0, 0, 99, 1, 1 }, 2024, "2024-01-01T00:00:00.000");
    row("second 60", { 60, 0, 0, 0, 1, 1 }, 2024, "");
    row("hour 24", { 0, 0, 24, 0, 1, 1 }, 2024, "");
    row("day 0", { 0, 0, 0, 0, 0, 1 }, 2024, "");
    row("month 13", { 0, 0, 0, 0, 1, 13 }, 2024, "");
    row("year 1969", { 0, 0, 0, 0, 1, 1 }, 1969, "");
    row("year 1970", { 0, 0, 0, 0, 1, 1 }, 1970, "1970-01-01T00:00:00.000");
    row("year 65535", { 0, 0, 0, 0, 1, 1 }, 65535, "");
}

void TstProcessorClock::bytesAreADateAndATime()
{
    QFETCH(Bytes, bytes);
    QFETCH(QString, text);
    DeviceClock clock(123000);
    QCOMPARE(clock.setBinary(bytes, 0), !text.isEmpty());
    QCOMPARE(DeviceClock::text(clock.at(0)), text.isEmpty() ? QString("1970-01-01T00:02:03.000") : text);
}

void TstProcessorClock::packedDecimalBytesAreTheOlderForm()
{
    DeviceClock clock;
    QVERIFY(clock.setPackedDecimal({ 0x59, 0x30, 0x16, 0x04, 0x18, 0x01, 0x24, 0x20 }, 0));
    QCOMPARE(DeviceClock::text(clock.at(0)), QString("2024-01-18T16:30:59.000"));
    // Halves above 9, where the sum alone would be second 50 or the year 2100.
    QVERIFY(!clock.setPackedDecimal({ 0x4A, 0x30, 0x16, 0x04, 0x18, 0x01, 0x24, 0x20 }, 0));
    QVERIFY(!clock.setPackedDecimal({ 0x59, 0x30, 0x16, 0x04, 0x18, 0x01, 0xA0, 0x20 }, 0));
    QCOMPARE(DeviceClock::text(clock.at(0)), QString("2024-01-18T16:30:59.000"));
}

void TstProcessorClock::textAndBack()
{
    QCOMPARE(DeviceClock::fromText("2024-01-18T16:15:01"), qint64(1705594501000));
    QCOMPARE(DeviceClock::fromText("2024-01-18T16:15:01.250"), qint64(1705594501250));
    QCOMPARE(DeviceClock::text(1705594501250), QString("2024-01-18T16:15:01.250"));
    QCOMPARE(DeviceClock::fromText("yesterday"), qint64(-1));
    QCOMPARE(DeviceClock::fromText(""), qint64(-1));
    QCOMPARE(DeviceClock::fromText("1960-01-01T00:00:00"), qint64(-1));
}

QTEST_GUILESS_MAIN(TstProcessorClock)
#include "tst_processor_clock.moc"
