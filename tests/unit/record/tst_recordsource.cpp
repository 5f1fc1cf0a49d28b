#include "keptrecord.h"
#include "pqa2bytes.h"
#include "record/tables/recordsource.h"
#include "testpaths.h"
#include "unit/documentpage.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace {

using P = Pqa2Bytes;

constexpr qint64 kTime = P::kTime;
constexpr qint64 kSeconds = P::kSeconds;

/// A file of spectra of one channel (wiring 6): distortion, fundamental, then lines that count up.
QByteArray lines(float distortion, float fundamental, float first)
{
    return P::f32(distortion) + P::f32(fundamental) + P::countUp(first, 50);
}

/// An event with curves; \a samples of one voltage and its current, by ms from the start.
QByteArray eventHead(int channel, int type, bool ended, float value, qint64 start, qint64 end)
{
    return P::le(quint32(channel), 4) + P::le(quint32(type), 4) + P::le(ended ? 1 : 0, 4) + P::f32(value)
        + P::le(quint64(start), 8) + P::le(quint64(end), 8);
}

QByteArray curve(qint64 start, int count, float first)
{
    QByteArray out;
    for (int i = 0; i < count; ++i)
        out += P::le(quint64(start + 10 * i), 8) + P::f32(first + float(i));
    return out;
}

QByteArray sections(const QByteArray &first, const QByteArray &second)
{
    return P::le(quint32(first.size()), 4) + first + P::le(quint32(second.size()), 4) + second;
}

} // namespace

/// What is read of recorded files of every kind.
class TstRecordSource : public QObject
{
    Q_OBJECT

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// Reads everything that stands under a name.
    void read(const QString &name)
    {
        kept = std::make_unique<KeptRecord>();
        QVERIFY(source.open(path(name)));
        QVERIFY(source.read(*kept));
        QVERIFY(kept->hasEnded);
        QCOMPARE(kept->complaints, QStringList());
    }

    QTemporaryDir m_folder;
    RecordSource source;
    std::unique_ptr<KeptRecord> kept;

private slots:
    void meanMaximumAndMinimumOfOneTimeAreOneRow();
    void openingBlocksTellTheInstrument();
    void openingThatTellsNothingIsNoDamage();
    void tenSecondsAndIntervalsAreTablesOfTheirOwn();
    void gapIsMissingRows();
    void clockThatWasSetBackGivesRowsAsTheyStand();
    void sameBlockTwiceAtOneTimeIsTwoRows();
    void harmonicsOfTwoFilesMeetByTime();
    void intervalThatOneFileLacksHasItsOtherHalf();
    void partsFollowEachOther();
    void eventsAreNumberedByTheirStarts();
    void longerOfTwoBlocksOfOneEventWins();
    void curvesEndWhereTheTimeGoesBack();
    void eventWithoutCurvesHasNoBlock();
    void waveformBelongsToTheEventInIt();
    void transientIsAWaveformAndARow();
    void logIsRowsOfText();
    void energyIsDoubles();
    void valueThatIsNoNumberStaysNone();
    void monitorIsToldByItsBlocks();
    void captureIsOneWaveform();
    void linesOfTheLoggerAreRows();
    void savedPageTellsWhenAndWithWhat();
    void pagesAreCalledAsOnTheFormatPage();
    void takerThatRefusesEndsTheReading();
    void readingEndsWhenTheProgressSaysSo();
    void recordingOfTheTestData();
};

void TstRecordSource::meanMaximumAndMinimumOfOneTimeAreOneRow()
{
    QVERIFY(P().opening("1P IT NO NEUTRAL_6")
                .start(kSeconds)
                .timed(0xA1000020, kTime + 1000, P::countUp(100, 13))
                .timed(0xA1000060, kTime + 1000, P::countUp(200, 13))
                .timed(0xA10000A0, kTime + 1000, P::countUp(50, 13))
                .end(kSeconds + 1)
                .save(path("Common.pqa2")));
    read(QStringLiteral("Common.pqa2"));
    QCOMPARE(source.state(), RecordState::Whole);
    QCOMPARE(kept->times("rms"), QVector<qint64>({ kTime + 1000 }));
    QCOMPARE(kept->number("rms", 0, QStringLiteral("U_rms_mean_L12_V")), 100.0);
    QCOMPARE(kept->number("rms", 0, QStringLiteral("U_rms_max_L12_V")), 200.0);
    QCOMPARE(kept->number("rms", 0, QStringLiteral("U_rms_min_L12_V")), 50.0);
    QCOMPARE(kept->number("rms", 0, QStringLiteral("I_fundamental_mean_L1_A")), 109.0);
    QCOMPARE(kept->columns("rms").size(), 30);
    // The last three are angles.
    QCOMPARE(kept->number("angles", 0, QStringLiteral("UI_angle_mean_L1_deg")), 112.0);
    QCOMPARE(kept->number("angles", 0, QStringLiteral("U_angle_max_L12_deg")), 210.0);
    QCOMPARE(kept->number("angles", 0, QStringLiteral("I_angle_min_L1_deg")), 61.0);
}

void TstRecordSource::openingBlocksTellTheInstrument()
{
    QVERIFY(P().opening("3P DELTA_4").start(kSeconds).end(kSeconds + 60).save(path("Common.pqa2")));
    read(QStringLiteral("Common.pqa2"));
    QCOMPARE(kept->facts.model, QStringLiteral("QUVERA"));
    QCOMPARE(kept->facts.serialNumber, QStringLiteral("1AA000007"));
    QCOMPARE(kept->facts.softwareVersion, QStringLiteral("2.2.6"));
    QCOMPARE(kept->facts.joinMode, 4);
    QCOMPARE(kept->facts.nominalVolt, 230.0);
    QCOMPARE(kept->facts.nominalFrequency, 50.0);
    QCOMPARE(kept->facts.clamp, QStringLiteral("TARN-41A;10mV/A 5A"));
    QCOMPARE(kept->facts.ratio, QStringLiteral("1/1;1/1"));
    QCOMPARE(kept->facts.start, kTime);
    QCOMPARE(kept->facts.end, kTime + 60000);
    QVERIFY(kept->rows.isEmpty());
}

void TstRecordSource::openingThatTellsNothingIsNoDamage()
{
    QVERIFY(P().add(0xA1000001, {})
                .add(0xA1000010, {})
                .add(0xA1000011, {})
                .timed(0xA1000020, kTime, P::countUp(0, 52)) // a wiring that is not told has all channels
                .save(path("Common.pqa2")));
    read(QStringLiteral("Common.pqa2"));
    QCOMPARE(source.state(), RecordState::Whole);
    QCOMPARE(kept->facts.joinMode, 0);
    QCOMPARE(kept->number("rms", 0, QStringLiteral("U_rms_mean_N_V")), 39.0);
}

void TstRecordSource::tenSecondsAndIntervalsAreTablesOfTheirOwn()
{
    QVERIFY(P().opening()
                .timed(0xA1000028, kTime, P::f32(50.25F))
                .timed(0xA1000063, kTime, P::f32(51))
                .timed(0xA1000029, kTime, P::f32(49.5F))
                .save(path("Common.pqa2")));
    read(QStringLiteral("Common.pqa2"));
    QCOMPARE(kept->columns("frequency_10s"), QStringList({ "f_mean_Hz", "f_max_Hz" }));
    QCOMPARE(kept->number("frequency_10s", 0, QStringLiteral("f_mean_Hz")), 50.25);
    QCOMPARE(kept->number("frequency_10s", 0, QStringLiteral("f_max_Hz")), 51.0);
    QCOMPARE(kept->columns("frequency"), QStringList({ "f_mean_Hz" }));
    QCOMPARE(kept->number("frequency", 0, QStringLiteral("f_mean_Hz")), 49.5);
}

void TstRecordSource::gapIsMissingRows()
{
    P file;
    for (const int second : { 1, 2, 60, 61 })
        file.timed(0xA1000029, kTime + second * 1000, P::f32(float(second)));
    QVERIFY(file.save(path("Common.pqa2")));
    read(QStringLiteral("Common.pqa2"));
    QCOMPARE(kept->times("frequency"), QVector<qint64>({ kTime + 1000, kTime + 2000, kTime + 60000, kTime + 61000 }));
}

void TstRecordSource::clockThatWasSetBackGivesRowsAsTheyStand()
{
    P first, second;
    first.opening("1P IT NO NEUTRAL_6");
    second.opening("1P IT NO NEUTRAL_6");
    const QVector<qint64> times { kTime + 5000, kTime + 6000, kTime + 2000, kTime + 3000 };
    for (const qint64 time : times) {
        first.timed(0xA1000030, time, lines(1, 2, 0));
        second.timed(0xA1000032, time, lines(1, 2, 0));
    }
    QVERIFY(QDir().mkpath(path("back")));
    QVERIFY(first.save(path("back/U Harmonic(1-50).pqa2")));
    QVERIFY(second.save(path("back/U Harmonic(51-100).pqa2")));
    read(QStringLiteral("back"));
    QCOMPARE(kept->times("harmonics_u"), times);
}

void TstRecordSource::sameBlockTwiceAtOneTimeIsTwoRows()
{
    QVERIFY(P().timed(0xA1000029, kTime, P::f32(1)).timed(0xA1000029, kTime, P::f32(2)).save(path("Common.pqa2")));
    read(QStringLiteral("Common.pqa2"));
    QCOMPARE(kept->times("frequency"), QVector<qint64>({ kTime, kTime }));
    QCOMPARE(kept->number("frequency", 0, QStringLiteral("f_mean_Hz")), 1.0);
    QCOMPARE(kept->number("frequency", 1, QStringLiteral("f_mean_Hz")), 2.0);
}

void TstRecordSource::harmonicsOfTwoFilesMeetByTime()
{
    QVERIFY(QDir().mkpath(path("two")));
    QVERIFY(P().opening("1P IT NO NEUTRAL_6")
                .timed(0xA1000030, kTime, lines(7, 230, 1000))
                .timed(0xA1000065, kTime, lines(8, 231, 2000))
                .save(path("two/U Harmonic(1-50).pqa2")));
    QVERIFY(P().opening("1P IT NO NEUTRAL_6")
                .timed(0xA1000032, kTime, lines(7, 230, 3000))
                .save(path("two/U Harmonic(51-100).pqa2")));
    read(QStringLiteral("two"));
    QCOMPARE(kept->times("harmonics_u"), QVector<qint64>({ kTime }));
    QCOMPARE(kept->number("harmonics_u", 0, QStringLiteral("U_distortion_mean_L12_V")), 7.0);
    QCOMPARE(kept->number("harmonics_u", 0, QStringLiteral("U_fundamental_max_L12_V")), 231.0);
    QCOMPARE(kept->number("harmonics_u", 0, QStringLiteral("Uh01_mean_L12_V")), 1000.0);
    QCOMPARE(kept->number("harmonics_u", 0, QStringLiteral("Uh50_max_L12_V")), 2049.0);
    QCOMPARE(kept->number("harmonics_u", 0, QStringLiteral("Uh51_mean_L12_V")), 3000.0);
    QCOMPARE(kept->number("harmonics_u", 0, QStringLiteral("Uh100_mean_L12_V")), 3049.0);
    QVERIFY(!kept->columns("harmonics_u").contains(QStringLiteral("Uh51_max_L12_V")));
    QCOMPARE(kept->facts.start, kTime); // of the first row, as these files tell no start
    QCOMPARE(kept->facts.end, kTime);
}

void TstRecordSource::intervalThatOneFileLacksHasItsOtherHalf()
{
    P low, high;
    low.opening("1P IT NO NEUTRAL_6");
    high.opening("1P IT NO NEUTRAL_6");
    for (int i = 0; i < 5; ++i) {
        if (i != 3)
            low.timed(0xA1000031, kTime + i * 1000, lines(1, 2, float(10 * i)));
        if (i != 1)
            high.timed(0xA1000033, kTime + i * 1000, lines(1, 2, float(100 * i)));
    }
    QVERIFY(QDir().mkpath(path("half")));
    QVERIFY(low.save(path("half/I Harmonic(1-50).pqa2")));
    QVERIFY(high.save(path("half/I Harmonic(51-100).pqa2")));
    read(QStringLiteral("half"));
    QCOMPARE(kept->times("harmonics_i"),
             QVector<qint64>({ kTime, kTime + 1000, kTime + 2000, kTime + 3000, kTime + 4000 }));
    QCOMPARE(kept->number("harmonics_i", 1, QStringLiteral("Ih01_mean_L1_A")), 10.0);
    QVERIFY(std::isnan(kept->number("harmonics_i", 1, QStringLiteral("Ih51_mean_L1_A"))));
    QVERIFY(std::isnan(kept->number("harmonics_i", 3, QStringLiteral("Ih01_mean_L1_A"))));
    QCOMPARE(kept->number("harmonics_i", 3, QStringLiteral("Ih51_mean_L1_A")), 300.0);
    QCOMPARE(kept->number("harmonics_i", 4, QStringLiteral("Ih51_mean_L1_A")), 400.0);
}

void TstRecordSource::partsFollowEachOther()
{
    QVERIFY(QDir().mkpath(path("parts")));
    const auto part = [this](const QString &name, int second, bool isLast) {
        P file;
        file.opening().start(kSeconds).timed(0xA1000029, kTime + second * 1000, P::f32(float(second)));
        if (isLast)
            file.end(kSeconds + second);
        return file.save(path(name));
    };
    QVERIFY(part(QStringLiteral("parts/Common.pqa2"), 1, false));
    for (int number = 2; number <= 11; ++number)
        QVERIFY(part(QStringLiteral("parts/Common_%1.pqa2").arg(number), number, number == 11));
    read(QStringLiteral("parts"));
    QCOMPARE(source.state(), RecordState::Whole);
    QCOMPARE(source.files().size(), 11);
    QVector<qint64> times;
    for (int second = 1; second <= 11; ++second)
        times << kTime + second * 1000;
    QCOMPARE(kept->times("frequency"), times);
    // One part alone goes on in the next one, which is there.
    read(QStringLiteral("parts/Common_2.pqa2"));
    QCOMPARE(source.state(), RecordState::Whole);
    QCOMPARE(kept->times("frequency"), QVector<qint64>({ kTime + 2000 }));
}

void TstRecordSource::eventsAreNumberedByTheirStarts()
{
    QVERIFY(P().opening()
                .add(0xA1010080, eventHead(1, 27, true, 180, kTime + 5000, kTime + 5200))
                .add(0xA1010080, eventHead(0, 32, false, 53, kTime + 9000, kTime + 9000))
                .add(0xA1010080, eventHead(2, 7, true, 6.5F, kTime + 1000, kTime + 2000))
                .save(path("Monitor.pqa2")));
    read(QStringLiteral("Monitor.pqa2"));
    QCOMPARE(source.events(), 3);
    QCOMPARE(kept->times("events"), QVector<qint64>({ kTime + 1000, kTime + 5000, kTime + 9000 }));
    const auto &rows = kept->rows.value("events");
    QCOMPARE(rows.at(0).texts,
             QVector<QByteArray>({ "harmonic of order 8", "L3", "percent", "2023-11-14T22:13:22.000Z" }));
    QCOMPARE(rows.at(1).texts, QVector<QByteArray>({ "dip", "L2", "V", "2023-11-14T22:13:25.200Z" }));
    QCOMPARE(rows.at(1).numbers, QVector<double>({ 2, 27, 180, 1, 200 }));
    QCOMPARE(rows.at(2).texts, QVector<QByteArray>({ "frequency", "", "Hz", "" }));
    QCOMPARE(kept->number("events", 2, QStringLiteral("ended")), 0.0);
    QVERIFY(std::isnan(kept->number("events", 2, QStringLiteral("duration_ms"))));
    QCOMPARE(kept->events.at(1).item.value, 180.0F);
    QCOMPARE(kept->events.at(1).item.endTime, kTime + 5200);
}

void TstRecordSource::longerOfTwoBlocksOfOneEventWins()
{
    const QByteArray head = eventHead(0, 27, true, 150, kTime, kTime + 3000);
    const QByteArray shorter = head + sections(curve(kTime - 10, 3, 1) + curve(kTime - 10, 3, 2), {});
    const QByteArray longer = head + sections(curve(kTime - 10, 5, 1) + curve(kTime - 10, 5, 2), {});
    for (const bool isLongerFirst : { true, false }) {
        QVERIFY(P().opening("1P IT NO NEUTRAL_6")
                    .add(0xA1010083, isLongerFirst ? longer : shorter)
                    .add(0xA1010083, isLongerFirst ? shorter : longer)
                    .add(0xA1010083, eventHead(0, 28, true, 150, kTime, kTime + 3000) + sections({}, {}))
                    .save(path("Common.pqa2")));
        read(QStringLiteral("Common.pqa2"));
        QCOMPARE(kept->events.size(), 2); // one of another kind began at the same time
        QCOMPARE(source.events(), 2);
        QCOMPARE(source.files().at(0).events, qint64(2));
        QCOMPARE(kept->events.at(0).item.startRms[0].size(), 5);
        QCOMPARE(kept->events.at(1).item.type, 28);
    }
}

void TstRecordSource::curvesEndWhereTheTimeGoesBack()
{
    const QByteArray first = curve(kTime, 4, 230) + curve(kTime, 4, 10) + curve(kTime, 4, 231) + curve(kTime, 4, 11);
    const QByteArray second = curve(kTime + 5000, 2, 229) + curve(kTime + 5000, 2, 9) + curve(kTime + 5000, 2, 228)
        + curve(kTime + 5000, 2, 8);
    QVERIFY(P().opening("1P SPLIT PHASE_5")
                .add(0xA1010083, eventHead(1, 27, true, 100, kTime + 20, kTime + 5000) + sections(first, second))
                .save(path("Common.pqa2")));
    read(QStringLiteral("Common.pqa2"));
    const PQAEventItem &event = kept->events.at(0).item;
    for (const int input : { 0, 1, 4, 5 }) {
        QCOMPARE(event.startRms[input].size(), 4);
        QCOMPARE(event.endRms[input].size(), 2);
    }
    for (const int input : { 2, 3, 6, 7 })
        QVERIFY(event.startRms[input].isEmpty() && event.endRms[input].isEmpty());
    QCOMPARE(event.startRms[4].at(3).value, 13.0F);
    QCOMPARE(event.startRms[1].at(0).value, 231.0F);
    QCOMPARE(qint64(event.startRms[5].at(3).time), kTime + 30); // packed: no reference to it
    QCOMPARE(event.endRms[5].at(1).value, 9.0F);
}

void TstRecordSource::eventWithoutCurvesHasNoBlock()
{
    QVERIFY(P().opening().start(kSeconds).add(0xA1010083, {}).end(kSeconds).save(path("Common.pqa2")));
    read(QStringLiteral("Common.pqa2"));
    QCOMPARE(source.state(), RecordState::Whole);
    QCOMPARE(source.events(), 0);
}

void TstRecordSource::waveformBelongsToTheEventInIt()
{
    const auto samples = [](int first) {
        QByteArray out;
        for (int i = 0; i < 2048; ++i)
            out += P::le(quint16(first + i), 2);
        return out;
    };
    // 810 samples before the event at 20480 a second are 39.55 ms.
    QVERIFY(P().opening("1P +NEUTRAL_3")
                .add(0xA1010083, eventHead(0, 27, true, 150, kTime + 40, kTime + 3000) + sections({}, {}))
                .add(0xA1010083, eventHead(0, 28, true, 250, kTime + 4000, kTime + 5000) + sections({}, {}))
                .add(0xA100002A,
                     P::f64(double(kTime) + 0.44921875) + samples(0) + samples(-3000) + samples(5000) + samples(9000))
                .add(0xA100002A, P::f64(double(kTime) + 9000) + samples(0) + samples(1) + samples(2) + samples(3))
                .save(path("Common.pqa2")));
    read(QStringLiteral("Common.pqa2"));
    QCOMPARE(kept->waveforms.size(), 2);
    const auto &waveform = kept->waveforms.at(0);
    QCOMPARE(waveform.facts.origin, RecordedWaveform::Event);
    QCOMPARE(waveform.facts.event, 1);
    QCOMPARE(waveform.facts.trigger, 810);
    QCOMPARE(waveform.facts.start, double(kTime) + 0.44921875);
    QCOMPARE(waveform.facts.sampleRate, 20480.0);
    QCOMPARE(waveform.facts.samples, 2048);
    QList<QByteArray> names;
    for (const auto &channel : waveform.facts.channels)
        names << channel.name;
    QCOMPARE(names, QList<QByteArray>({ "U_L1", "I_L1", "U_N", "I_N" }));
    QCOMPARE(waveform.facts.channels.at(0).factor, 0.5F);
    QCOMPARE(waveform.facts.channels.at(1).factor, 4.0F);
    QCOMPARE(waveform.facts.channels.at(3).factor, 32.0F);
    QCOMPARE(waveform.samples.mid(0, 8), QVector<qint16>({ 0, -3000, 5000, 9000, 1, -2999, 5001, 9001 }));
    QCOMPARE(waveform.samples.size(), 4 * 2048);
    QCOMPARE(kept->waveforms.at(1).facts.event, 0);
}

void TstRecordSource::transientIsAWaveformAndARow()
{
    QByteArray samples;
    for (int i = 0; i < 600; ++i)
        samples += P::le(quint16(i == 301 ? -800 : i), 2);
    QVERIFY(P().opening()
                .add(0xA1000025, P::f64(double(kTime) + 0.5) + P::f32(49.75F) + P::le(2U << 24 | 301, 4) + samples)
                .save(path("Common.pqa2")));
    read(QStringLiteral("Common.pqa2"));
    const auto &waveform = kept->waveforms.at(0);
    QCOMPARE(waveform.facts.origin, RecordedWaveform::Transient);
    QCOMPARE(waveform.facts.channels.size(), 1);
    QCOMPARE(waveform.facts.channels.at(0).name, QByteArray("U_L2"));
    QCOMPARE(waveform.facts.channels.at(0).factor, 0.25F);
    QCOMPARE(waveform.facts.trigger, 301);
    QCOMPARE(waveform.samples.size(), 600);
    QCOMPARE(waveform.samples.at(301), qint16(-800));
    const auto &row = kept->rows.value("transients").at(0);
    QCOMPARE(row.time, kTime + 15); // 0.5 ms + 301 / 20480 s
    QCOMPARE(row.numbers, QVector<double>({ 1, -200, 49.75 }));
    QCOMPARE(row.texts, QVector<QByteArray>({ "L2" }));
}

void TstRecordSource::logIsRowsOfText()
{
    QVERIFY(P().timed(0xA1000009, kTime, "Lost some data!")
                .timed(0xA1000009, kTime + 1, "a\nb,\"\xE9")
                .save(path("Common.pqa2")));
    read(QStringLiteral("Common.pqa2"));
    QCOMPARE(kept->rows.value("system_log").at(0).texts, QVector<QByteArray>({ "Lost some data!" }));
    QCOMPARE(kept->rows.value("system_log").at(1).texts, QVector<QByteArray>({ "a\nb,\"\xC3\xA9" }));
    QCOMPARE(kept->times("system_log"), QVector<qint64>({ kTime, kTime + 1 }));
}

void TstRecordSource::energyIsDoubles()
{
    QByteArray values;
    for (int i = 1; i <= 12; ++i)
        values += P::f64(i / 10.0);
    QVERIFY(P().opening().timed(0xA1000022, kTime, values).save(path("Common.pqa2")));
    read(QStringLiteral("Common.pqa2"));
    QCOMPARE(kept->number("energy", 0, QStringLiteral("EP_L1_Wh")), 0.1);
    QCOMPARE(kept->number("energy", 0, QStringLiteral("ES_L1_VAh")), 0.2);
    QCOMPARE(kept->number("energy", 0, QStringLiteral("EP_L2_Wh")), 0.4);
    QCOMPARE(kept->number("energy", 0, QStringLiteral("EQ_total_varh")), 1.2);
}

void TstRecordSource::valueThatIsNoNumberStaysNone()
{
    QVERIFY(P().timedS(0xA1010000, kSeconds, P::f32(std::nanf(""))).save(path("Monitor.pqa2")));
    read(QStringLiteral("Monitor.pqa2"));
    QCOMPARE(kept->times("monitor_frequency"), QVector<qint64>({ kTime }));
    QVERIFY(std::isnan(kept->number("monitor_frequency", 0, QStringLiteral("f_mean_Hz"))));
}

void TstRecordSource::monitorIsToldByItsBlocks()
{
    QVERIFY(P().opening()
                .timedS(0xA1010001, kSeconds, P::floats({ 231, 232, 233 }))
                .timedS(0xA1010004, kSeconds, P::floats({ 1.5F, 0.5F }))
                .timedS(0xA1010005, kSeconds, P::countUp(0, 150))
                .timedS(0xA1010006, kSeconds, P::countUp(1000, 150))
                .timedS(0xA1010003, kSeconds, P::floats({ 0.75F, 1, 1.25F }))
                .save(path("renamed.pqa2")));
    read(QStringLiteral("renamed.pqa2"));
    QCOMPARE(kept->facts.kind, RecordKind::Monitor);
    QCOMPARE(kept->number("monitor_voltage", 0, QStringLiteral("U_rms_mean_L2_V")), 232.0);
    QCOMPARE(kept->number("monitor_unbalance", 0, QStringLiteral("U_zero_ratio_percent")), 0.5);
    QCOMPARE(kept->number("monitor_harmonics", 0, QStringLiteral("U_distortion_L2_percent")), 50.0);
    QCOMPARE(kept->number("monitor_harmonics", 0, QStringLiteral("Uh02_L1_percent")), 1.0);
    QCOMPARE(kept->number("monitor_harmonics", 0, QStringLiteral("Uh50_L3_percent")), 149.0);
    QCOMPARE(kept->number("monitor_harmonics", 0, QStringLiteral("Ih02_L3_percent")), 1101.0);
    QCOMPARE(kept->number("monitor_flicker_plt", 0, QStringLiteral("Plt_L3")), 1.25);
    QVERIFY(P().opening().start(kSeconds).save(path("Monitor_new.pqa2")));
    read(QStringLiteral("Monitor_new.pqa2"));
    QCOMPARE(kept->facts.kind, RecordKind::Monitor); // by its name, as it has nothing else yet
}

void TstRecordSource::captureIsOneWaveform()
{
    QVERIFY(source.open(QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/capture.wav")));
    KeptRecord kept;
    QVERIFY(source.read(kept));
    QCOMPARE(kept.facts.kind, RecordKind::Waveform);
    QCOMPARE(kept.facts.joinMode, 3);
    QCOMPARE(kept.facts.nominalVolt, 120.0);
    QCOMPARE(kept.waveforms.size(), 1);
    const auto &waveform = kept.waveforms.at(0);
    QCOMPARE(source.details().at(0).second,
             QStringLiteral("%1 of each of 4 inputs, 5120 a second").arg(waveform.facts.samples));
    QCOMPARE(waveform.facts.sampleRate, 5120.0);
    QCOMPARE(waveform.facts.channels.size(), 4);
    QCOMPARE(waveform.facts.channels.at(1).name, QByteArray("U_N"));
    QCOMPARE(waveform.facts.channels.at(2).unit, QByteArray("A"));
    QCOMPARE(waveform.facts.start, 1767225600000.0);
    QCOMPARE(waveform.samples.size(), int(waveform.facts.samples) * 4);
}

void TstRecordSource::linesOfTheLoggerAreRows()
{
    QVERIFY(P::save(path("Logger_1_00.csv"),
                    "TIME,VRMS(kV) L1 AVG,VRMS(kV) L1 MAX,P(MW) ALL MIN,EnergyP(kWh) ALL,cos\xCE\xA6 L2 AVG,FREQ AVG,"
                    "VHarmonic N 5'th AVG,VHarm\xCE\xA6 L1 12'th MIN,\n"
                    "2023/11/14  22:13:20,0.230,0.231,-1.5,12.5,0.97,50.01,1.25,-170.5,\n"
                    "2023/11/14  22:13:21,,x,1e999,13,1,50,2,3,\n"));
    read(QStringLiteral("Logger_1_00.csv"));
    QCOMPARE(source.state(), RecordState::Whole);
    QCOMPARE(kept->facts.kind, RecordKind::Log);
    QCOMPARE(source.details().at(0).second, QStringLiteral("2 of 8 columns"));
    QCOMPARE(kept->times("log"), QVector<qint64>({ kTime, kTime + 1000 }));
    QCOMPARE(kept->number("log", 0, QStringLiteral("U_rms_mean_L1_V")), 230.0);
    QCOMPARE(kept->number("log", 0, QStringLiteral("P_min_total_W")), -1.5e6);
    QCOMPARE(kept->number("log", 0, QStringLiteral("EP_total_Wh")), 12500.0);
    QCOMPARE(kept->number("log", 0, QStringLiteral("cos_phi_mean_L2")), 0.97);
    QCOMPARE(kept->number("log", 0, QStringLiteral("f_mean_Hz")), 50.01);
    QCOMPARE(kept->number("log_harmonics_u", 0, QStringLiteral("Uh05_mean_N_V")), 1.25);
    QCOMPARE(kept->number("log_angles_u", 0, QStringLiteral("Uh12_angle_min_L1_deg")), -170.5);
    for (const char *column : { "U_rms_mean_L1_V", "U_rms_max_L1_V", "P_min_total_W" })
        QVERIFY(std::isnan(kept->number("log", 1, QString::fromLatin1(column))));
}

void TstRecordSource::savedPageTellsWhenAndWithWhat()
{
    const QByteArray image = QByteArray::fromHex("89504E470D0A1A0A") + "picture";
    const QByteArray head = P::le(4, 4) + P::le(quint64(kSeconds), 4) + P::le(230, 4) + P::le(50, 4) + P::le(1, 4)
        + P::le(10000, 4) + P::le(quint64(image.size()), 4) + P::le(3, 4) + P::le(0x02020006, 4) + P::le(0xCC33C3C3, 4);
    QVERIFY(P::save(path("Harm_1.pqa"), head + image + "abc" + QByteArray::fromHex("AA55")));
    read(QStringLiteral("Harm_1.pqa"));
    QCOMPARE(source.state(), RecordState::Whole);
    QCOMPARE(kept->facts.kind, RecordKind::Page);
    QCOMPARE(kept->facts.start, kTime);
    QCOMPARE(kept->facts.softwareVersion, QStringLiteral("2.2.6"));
    QCOMPARE(kept->facts.joinMode, 1);
    QCOMPARE(source.details().at(0).second, QStringLiteral("Harmonics"));
    QCOMPARE(source.details().at(1).second, QStringLiteral("picture of 15 bytes, record of 3"));
    QVERIFY(kept->rows.isEmpty());
}

void TstRecordSource::pagesAreCalledAsOnTheFormatPage()
{
    const auto sections
        = DocumentPage(QStringLiteral("formats/pqa.md")).text().split(QStringLiteral("| page | function |"));
    QCOMPARE(sections.size(), 2);
    int pages = 0;
    for (const QString &line : sections.at(1).split(QLatin1Char('\n'))) {
        const QStringList cells = line.split(QLatin1Char('|'));
        if (cells.size() < 4 || cells.at(1).trimmed().toInt() == 0)
            continue;
        ++pages;
        QVERIFY(P::save(path("page.pqa"),
                        P::le(quint64(cells.at(1).trimmed().toInt()), 4) + QByteArray(32, '\0') + P::le(0xCC33C3C3, 4)
                            + QByteArray::fromHex("AA55")));
        QVERIFY(source.open(path("page.pqa")));
        QCOMPARE(source.details().at(0).second, cells.at(2).trimmed());
    }
    QCOMPARE(pages, 14);
}

void TstRecordSource::takerThatRefusesEndsTheReading()
{
    P file;
    for (int second = 1; second <= 5; ++second)
        file.timed(0xA1000029, kTime + second * 1000, P::f32(float(second)));
    QVERIFY(file.save(path("Common.pqa2")));
    QVERIFY(source.open(path("Common.pqa2")));
    KeptRecord kept;
    kept.rowsLeft = 2;
    QVERIFY(!source.read(kept));
    QCOMPARE(kept.times("frequency").size(), 3); // the third one was refused
    QVERIFY(!kept.hasEnded);
}

void TstRecordSource::readingEndsWhenTheProgressSaysSo()
{
    QVERIFY(P().timed(0xA1000029, kTime, P::f32(1)).save(path("Common.pqa2")));
    const auto refuse = [](qint64, qint64) { return false; };
    QVERIFY(!source.open(path("Common.pqa2"), refuse));
    QVERIFY(source.open(path("Common.pqa2")));
    KeptRecord kept;
    QVERIFY(!source.read(kept, refuse));
    QVERIFY(!kept.hasEnded);
}

// The values are those that tst_recorderfile puts into its aggregations: see there.
void TstRecordSource::recordingOfTheTestData()
{
    QVERIFY(source.open(QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/recorder")));
    KeptRecord kept;
    QVERIFY(source.read(kept));
    QCOMPARE(kept.complaints, QStringList());
    QCOMPARE(source.state(), RecordState::Whole);
    const QVector<qint64> times { kTime + 1200, kTime + 2200, kTime + 2600 };
    for (const char *table :
         { "frequency", "rms", "angles", "power", "energy", "unbalance", "signalling", "harmonics_u" })
        QCOMPARE(kept.times(table), times);
    // As a hexadecimal editor shows them: 00 00 B0 40 behind the time of the first mean is 5.5.
    const double means[] = { 5.5, 11, 14.5 }, maxima[] = { 8, 13, 15 }, minima[] = { 3, 9, 14 };
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(kept.number("rms", row, QStringLiteral("U_rms_mean_L1_V")), means[row]);
        QCOMPARE(kept.number("rms", row, QStringLiteral("U_rms_max_L1_V")), maxima[row]);
        QCOMPARE(kept.number("rms", row, QStringLiteral("U_rms_min_L1_V")), minima[row]);
    }
    QCOMPARE(kept.number("frequency", 0, QStringLiteral("f_max_Hz")), 50.5);
    QCOMPARE(kept.number("harmonics_u", 0, QStringLiteral("U_distortion_mean_L1_V")), 106.5);
    QCOMPARE(kept.number("harmonics_u", 0, QStringLiteral("U_fundamental_mean_L1_V")), 408.5);
    QCOMPARE(kept.number("harmonics_u", 0, QStringLiteral("Uh01_mean_L1_V")), 408.5);
    QCOMPARE(kept.number("harmonics_u", 0, QStringLiteral("Uh02_mean_L1_V")), 411.5);
}

QTEST_APPLESS_MAIN(TstRecordSource)
#include "tst_recordsource.moc"
