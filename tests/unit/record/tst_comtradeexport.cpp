#include "comtradereading.h"
#include "../documentpage.h"
#include "record/exports/comtradeexport.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <clocale>
#include <cmath>
#include <limits>

using ComtradeReading::Pair;

namespace {

constexpr double kStart = 1795306200000.0; // 2026-11-22 00:10:00 UTC

RecordedWaveform waveformOf(const QVector<QByteArray> &channels, double rate)
{
    RecordedWaveform waveform;
    waveform.number = 1;
    waveform.start = kStart;
    waveform.sampleRate = rate;
    for (const QByteArray &name : channels)
        waveform.channels.append({ name, name.mid(2), name.startsWith('U') ? "V" : "A", 0.5f });
    return waveform;
}

RecordFacts instrument()
{
    RecordFacts facts;
    facts.model = "QUVERA";
    facts.serialNumber = "SN0001";
    facts.nominalFrequency = 50;
    facts.ratio = facts.ratioN = "1/1;1/1";
    return facts;
}

/// Samples that tell their place: sample n of channel c is 100 n + c.
QVector<qint16> counted(int channels, int count)
{
    QVector<qint16> samples;
    for (int n = 0; n < count; ++n) {
        for (int c = 0; c < channels; ++c)
            samples << qint16(100 * n + c);
    }
    return samples;
}

} // namespace

/// Waveforms as COMTRADE pairs, read back by a reader that knows nothing of the writer.
class TstComtradeExport : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        QVERIFY(m_folder->isValid());
        m_facts = instrument();
    }

    void documentedExampleIsWritten();
    void readerTakesAnExampleOfTheStandard();
    void eachWaveformIsAPairWithItsValues();
    void piecesOfAWaveformBecomeOnePair();
    void phasesHaveTheirLetters();
    void stampsDoNotDrift();
    void lowestSampleDoesNotCountAsMissing();
    void withoutAFactorSamplesHaveNoUnit();
    void smallestFactorIsKept();
    void longWaveformIsSplitBeforeItsStampsOverflow();
    void triggerStaysInItsPart();
    void triggerStaysInTheRecordFarFrom1970();
    void timesAreRoundedToMicroseconds();
    void timeOutsideTheCalendarIsMarked_data();
    void timeOutsideTheCalendarIsMarked();
    void unusableWaveformHasNoPair_data();
    void unusableWaveformHasNoPair();
    void namesKeepFieldsAndLettersOfTheFormat();
    void nameThatAnotherChannelHasIsNumberedUntilItIsAlone();
    void stationWithoutAModelIsTheFolderWhereOneStands();
    void ratiosOfTransformersAreTold_data();
    void ratiosOfTransformersAreTold();
    void frequencyThatIsNoneOfANetworkIsTakenAsFifty();
    void numbersKeepTheirPointInAnyLanguage();
    void exportThatIsNotFinishedLeavesNothing();
    void replacesNothingButExports();

private:
    QString folder() const { return m_folder->filePath(QStringLiteral("out")); }
    QStringList files() const { return QDir(folder()).entryList(QDir::Files, QDir::Name); }
    Pair pair(const char *name) const { return ComtradeReading::readFiles(folder() + '/' + name); }
    bool write(const QVector<RecordedWaveform> &waveforms, const QVector<qint16> &samples, const QString &input = {})
    {
        ComtradeExport sink({ folder(), input, true });
        bool good = sink.begin(m_facts);
        for (const RecordedWaveform &waveform : waveforms) {
            good = good && sink.waveformBegin(waveform);
            if (!waveform.channels.isEmpty())
                good = good && sink.waveformSamples(samples.constData(), samples.size() / waveform.channels.size());
            good = good && sink.waveformEnd();
        }
        return good && sink.end(m_facts);
    }

    QScopedPointer<QTemporaryDir> m_folder;
    RecordFacts m_facts;
};

void TstComtradeExport::documentedExampleIsWritten()
{
    m_facts.ratio = "20000/100;1/1";
    RecordedWaveform waveform = waveformOf({ "U_L1", "I_N" }, 10240);
    waveform.origin = RecordedWaveform::Capture;
    waveform.channels[0].factor = float(500.0 / 32767);
    waveform.channels[1].factor = float(100.0 / 32767);
    waveform.trigger = 5120;
    QVERIFY(write({ waveform }, QVector<qint16>(2 * 20480, 1)));
    QCOMPARE(files(), QStringList({ "0001_capture.cfg", "0001_capture.dat" }));
    const QString section = DocumentPage(QStringLiteral("formats/interchange.md"))
                                .section(QStringLiteral("### Example of a configuration"));
    const QStringList parts = section.split(QStringLiteral("```\n"));
    QCOMPARE(parts.size(), 3);
    QFile file(folder() + "/0001_capture.cfg");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromLatin1(file.readAll()), QString(parts[1]).replace("\n", "\r\n"));
    QCOMPARE(QFileInfo(folder() + "/0001_capture.dat").size(), 20480 * 12);
    QCOMPARE(pair("0001_capture").fault, QString());
}

void TstComtradeExport::readerTakesAnExampleOfTheStandard()
{
    QByteArray cfg = "QUVERA,SN0001,2013\r\n8,8A,0D\r\n";
    const char *names[] = { "U L1,A", "U L2,B", "U L3,C", "U N,N", "I L1,A", "I L2,B", "I L3,C", "I N,N" };
    for (int i = 0; i < 8; ++i)
        cfg += QByteArray::number(i + 1) + ',' + names[i] + ",Feeder 1,"
            + (i < 4 ? "V,0.0152592547" : "A,0.00305185095") + ",0,0,-32767,32767,1,1,P\r\n";
    cfg += "50\r\n1\r\n10240,3\r\n22/11/2026,00:10:00.000000\r\n22/11/"
           "2026,00:10:00.000100\r\nBINARY\r\n1\r\n0,+1\r\n4,3\r\n";
    QByteArray dat;
    const quint32 stamps[] = { 0, 98, 195 };
    for (quint32 n = 0; n < 3; ++n) {
        const quint32 head[] = { n + 1, stamps[n] };
        dat.append(reinterpret_cast<const char *>(head), 8).append(QByteArray::fromHex("0100ff7fffff0080").repeated(2));
    }
    Pair read = ComtradeReading::read(cfg, dat);
    QCOMPARE(read.fault, QString());
    QCOMPARE(read.channels[7].circuit, QByteArray("Feeder 1"));
    QCOMPARE(read.raw[1], QVector<qint16>({ 32767, 32767, 32767 }));
    QCOMPARE(read.raw[6], QVector<qint16>({ -1, -1, -1 }));
    QVERIFY(!ComtradeReading::read(cfg, dat + "12").fault.isEmpty());
    QVERIFY(!ComtradeReading::read(cfg.replace(",0,0,", ",0,"), dat).fault.isEmpty());
}

void TstComtradeExport::eachWaveformIsAPairWithItsValues()
{
    RecordedWaveform event = waveformOf({ "U_L1", "I_L1", "U_N" }, 10240);
    event.event = 12;
    RecordedWaveform transient = event;
    transient.number = 2;
    transient.event = 0;
    transient.origin = RecordedWaveform::Transient;
    QVERIFY(write({ event, transient }, counted(3, 4)));
    QCOMPARE(files(),
             QStringList({ "0001_event_12.cfg", "0001_event_12.dat", "0002_transient.cfg", "0002_transient.dat" }));
    for (const char *name : { "0001_event_12", "0002_transient" }) {
        const Pair read = pair(name);
        QCOMPARE(read.fault, QString());
        QCOMPARE(read.channels.size(), 3);
        QCOMPARE(read.channels[1].id, QByteArray("I L1"));
        QCOMPARE(read.channels[1].unit, QByteArray("A"));
        QCOMPARE(read.channels[2].phase, QByteArray("N"));
        QCOMPARE(read.raw[1], QVector<qint16>({ 1, 101, 201, 301 }));
        QCOMPARE(read.value(2, 3), 151.0);
        QCOMPARE(read.frequency, 50.0);
        QCOMPARE(read.start, qint64(kStart) * 1000);
    }
}

void TstComtradeExport::piecesOfAWaveformBecomeOnePair()
{
    const QVector<qint16> samples = counted(2, 10);
    ComtradeExport sink({ folder(), {}, false });
    QVERIFY(sink.begin(m_facts));
    QVERIFY(sink.waveformBegin(waveformOf({ "U_L12", "U_L23" }, 5120)));
    QVERIFY(sink.waveformSamples(samples.constData(), 3));
    QVERIFY(sink.waveformSamples(samples.constData() + 6, 0));
    QVERIFY(sink.waveformSamples(samples.constData() + 6, 7));
    QVERIFY(sink.waveformEnd());
    QVERIFY(sink.end(m_facts));
    const Pair read = pair("0001_event");
    QCOMPARE(read.fault, QString());
    QCOMPARE(read.last, qint64(10));
    QCOMPARE(read.raw[0].last(), qint16(900));
    QCOMPARE(read.channels[1].phase, QByteArray("BC"));
}

void TstComtradeExport::phasesHaveTheirLetters()
{
    const QVector<QByteArray> names { "U_L1", "U_L2", "U_L3", "U_N", "U_L12", "U_L23", "U_L31", "I_other" };
    QVERIFY(write({ waveformOf(names, 10240) }, counted(names.size(), 1)));
    const Pair read = pair("0001_event");
    QCOMPARE(read.fault, QString());
    QByteArrayList phases;
    for (const ComtradeReading::Channel &channel : read.channels)
        phases << channel.phase;
    QCOMPARE(phases, QByteArrayList({ "A", "B", "C", "N", "AB", "BC", "CA", "" }));
}

void TstComtradeExport::stampsDoNotDrift()
{
    QVERIFY(write({ waveformOf({ "U_L1" }, 10240) }, QVector<qint16>(20481)));
    const Pair read = pair("0001_event");
    QCOMPARE(read.fault, QString());
    QCOMPARE(read.stamps.mid(0, 4), QVector<quint32>({ 0, 98, 195, 293 }));
    QCOMPARE(read.stamps.last(), 2000000u);
}

void TstComtradeExport::lowestSampleDoesNotCountAsMissing()
{
    QVERIFY(write({ waveformOf({ "U_L1" }, 10240) }, { -32768, -32767, 32767 }));
    QCOMPARE(pair("0001_event").raw.value(0), QVector<qint16>({ -32767, -32767, 32767 }));
}

void TstComtradeExport::withoutAFactorSamplesHaveNoUnit()
{
    for (float factor : { std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 0.0f }) {
        RecordedWaveform waveform = waveformOf({ "U_L1", "U_L2" }, 10240);
        waveform.channels[0].factor = factor;
        QVERIFY(write({ waveform }, counted(2, 2)));
        const Pair read = pair("0001_event");
        QCOMPARE(read.fault, QString());
        QCOMPARE(read.raw[0], QVector<qint16>({ 0, 100 }));
        QCOMPARE(read.channels[0].unit, QByteArray("NONE"));
        QCOMPARE(read.channels[0].a, 1.0);
        QCOMPARE(read.channels[1].unit, QByteArray("V"));
    }
}

void TstComtradeExport::smallestFactorIsKept()
{
    RecordedWaveform waveform = waveformOf({ "U_L1" }, 10240);
    waveform.channels[0].factor = std::numeric_limits<float>::denorm_min();
    QVERIFY(write({ waveform }, { 5 }));
    const Pair read = pair("0001_event");
    QCOMPARE(read.fault, QString());
    QCOMPARE(float(read.value(0, 0)), 5 * std::numeric_limits<float>::denorm_min());
}

void TstComtradeExport::longWaveformIsSplitBeforeItsStampsOverflow()
{
    RecordedWaveform waveform = waveformOf({ "U_L1" }, 1);
    QVector<qint16> samples(5000);
    for (int i = 0; i < samples.size(); ++i)
        samples[i] = qint16(i);
    QVERIFY(write({ waveform }, samples));
    QCOMPARE(files().size(), 6);
    const Pair first = pair("0001_event"), second = pair("0001_event_part2"), third = pair("0001_event_part3");
    for (const Pair *read : { &first, &second, &third })
        QCOMPARE(read->fault, QString());
    QCOMPARE(first.last, qint64(2148)); // 2^31 us are 2147.48 s
    QCOMPARE(second.start - first.start, 2148000000LL);
    QCOMPARE(second.raw[0].first(), qint16(2148));
    QCOMPARE(third.raw[0].last(), qint16(4999));
    QCOMPARE(first.last + second.last + third.last, qint64(5000));
}

void TstComtradeExport::triggerStaysInItsPart()
{
    RecordedWaveform waveform = waveformOf({ "U_L1" }, 1);
    waveform.trigger = 3000;
    QVERIFY(write({ waveform }, QVector<qint16>(5000)));
    QCOMPARE(pair("0001_event").trigger, pair("0001_event").start + 2147000000LL); // its last sample
    QCOMPARE(pair("0001_event_part2").trigger, qint64(kStart) * 1000 + 3000000000LL);
    QCOMPARE(pair("0001_event_part3").trigger, pair("0001_event_part3").start);
    waveform.trigger = -5;
    QVERIFY(write({ waveform }, QVector<qint16>(2)));
    QCOMPARE(pair("0001_event").fault, QString());
}

void TstComtradeExport::timesAreRoundedToMicroseconds()
{
    RecordedWaveform waveform = waveformOf({ "U_L1" }, 10240);
    waveform.start = kStart + 59999.9996;
    QVERIFY(write({ waveform }, { 1 }));
    QCOMPARE(pair("0001_event").fault, QString());
    QCOMPARE(pair("0001_event").start, qint64(kStart) * 1000 + 60000000);
}

void TstComtradeExport::triggerStaysInTheRecordFarFrom1970()
{
    RecordedWaveform waveform = waveformOf({ "U_L1" }, 219.974632);
    waveform.trigger = 47;
    for (int i = 0; i < 20; ++i) {
        waveform.start = 52782000000000.0 + i / 128.0; // in the year 3642, where a double knows times to 1/128 ms
        QVERIFY(write({ waveform }, QVector<qint16>(48)));
        const Pair read = pair("0001_event");
        QCOMPARE(read.fault, QString());
        QCOMPARE(read.trigger - read.start, 213661LL); // 47 / 219.974632 s
    }
}

void TstComtradeExport::timeOutsideTheCalendarIsMarked_data()
{
    QTest::addColumn<double>("start");
    QTest::newRow("none") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("before 1970") << -1.0;
    QTest::newRow("huge") << 1e300;
    QTest::newRow("year 10000") << 253402300800000.0;
    QTest::newRow("reaching into the year 10000") << 253402300798000.0;
}

void TstComtradeExport::timeOutsideTheCalendarIsMarked()
{
    QFETCH(double, start);
    RecordedWaveform waveform = waveformOf({ "U_L1" }, 10240);
    waveform.start = start;
    QVERIFY(write({ waveform }, { 1, 2 }));
    const Pair read = pair("0001_event");
    QCOMPARE(read.fault, QString());
    QCOMPARE(read.start, 0LL);
    QCOMPARE(read.quality, QByteArray("F"));
}

void TstComtradeExport::unusableWaveformHasNoPair_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<int>("channels");
    QTest::newRow("rate 0") << 0.0 << 1;
    QTest::newRow("rate that is none") << std::numeric_limits<double>::quiet_NaN() << 1;
    QTest::newRow("infinite rate") << std::numeric_limits<double>::infinity() << 1;
    QTest::newRow("negative rate") << -10240.0 << 1;
    QTest::newRow("no channels") << 10240.0 << 0;
    QTest::newRow("too many channels") << 10240.0 << 3000;
}

void TstComtradeExport::unusableWaveformHasNoPair()
{
    QFETCH(double, rate);
    QFETCH(int, channels);
    QVERIFY(write({ waveformOf(QVector<QByteArray>(channels, "U_L1"), rate) }, QVector<qint16>(3000)));
    QCOMPARE(files(), QStringList());
    QVERIFY(write({ waveformOf({ "U_L1" }, 10240) }, {})); // no samples
    QCOMPARE(files(), QStringList());
}

void TstComtradeExport::namesKeepFieldsAndLettersOfTheFormat()
{
    m_facts.model = QString::fromUtf8("Messger\xC3\xA4t \"A\", links\r\n50\x7F"
                                      "5\xF0\x9F\x98\x80");
    m_facts.serialNumber = QString(100000, 'x');
    RecordedWaveform waveform = waveformOf({ "U_L1", "U_L1", "", "U,\n" }, 10240);
    waveform.channels[1].unit = "k V,1";
    waveform.channels[2].unit = "%{\x7F}";
    waveform.channels[3].channel = "L1,";
    QVERIFY(write({ waveform }, { 1, 2, 3, 4 }));
    const Pair read = pair("0001_event");
    QCOMPARE(read.fault, QString());
    QCOMPARE(read.station, QByteArray("Messgerat \"A\"  links  50 5?"));
    QCOMPARE(read.device, QByteArray(64, 'x'));
    QCOMPARE(read.channels[0].id, QByteArray("U L1"));
    QCOMPARE(read.channels[1].id, QByteArray("U L1#2"));
    QCOMPARE(read.channels[2].id, QByteArray("#3"));
    QCOMPARE(read.channels[1].unit, QByteArray("kV"));
    QCOMPARE(read.channels[2].unit, QByteArray("NONE"));
    QCOMPARE(read.channels[3].phase, QByteArray());
}

void TstComtradeExport::nameThatAnotherChannelHasIsNumberedUntilItIsAlone()
{
    const QByteArray longName(70, 'L');
    QVERIFY(write({ waveformOf({ "Q#3", "Q", "Q", "Q", longName, longName }, 10240) }, { 1, 2, 3, 4, 5, 6 }));
    const Pair read = pair("0001_event");
    QCOMPARE(read.fault, QString());
    QList<QByteArray> names;
    for (const ComtradeReading::Channel &channel : read.channels)
        names << channel.id;
    QCOMPARE(names, (QList<QByteArray> { "Q#3", "Q", "Q#9", "Q#4", longName.left(64), longName.left(52) + "#6" }));
}

void TstComtradeExport::stationWithoutAModelIsTheFolderWhereOneStands()
{
    m_facts.model.clear();
    const QString before = QDir::currentPath(), here = m_folder->filePath(QStringLiteral("240118 Here"));
    QVERIFY(QDir().mkpath(here) && QDir::setCurrent(here));
    const bool isWritten = write({ waveformOf({ "U_L1" }, 10240) }, { 1 }, QStringLiteral("."));
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(isWritten);
    QCOMPARE(pair("0001_event").station, QByteArray("240118 Here"));
}

void TstComtradeExport::ratiosOfTransformersAreTold_data()
{
    QTest::addColumn<QString>("ratio");
    QTest::addColumn<QVector<double>>("expected"); // U L1, I L1, U N
    QTest::newRow("set") << "20000/100;300/5" << QVector<double> { 20000, 100, 300, 5, 10, 2 };
    QTest::newRow("none") << "" << QVector<double> { 1, 1, 1, 1, 10, 2 };
    QTest::newRow("zero") << "0/100;300/0" << QVector<double> { 1, 1, 1, 1, 10, 2 };
    QTest::newRow("wild") << "99999999999/1;1/1\r\n,P" << QVector<double> { 1, 1, 1, 1, 10, 2 };
}

void TstComtradeExport::ratiosOfTransformersAreTold()
{
    QFETCH(QString, ratio);
    QFETCH(QVector<double>, expected);
    m_facts.ratio = ratio;
    m_facts.ratioN = "10/2;1/1";
    QVERIFY(write({ waveformOf({ "U_L1", "I_L1", "U_N" }, 10240) }, { 1, 2, 3 }));
    const Pair read = pair("0001_event");
    QCOMPARE(read.fault, QString());
    QVector<double> found;
    for (const ComtradeReading::Channel &channel : read.channels) {
        found << channel.primary << channel.secondary;
        QCOMPARE(channel.side, 'P');
    }
    QCOMPARE(found, expected);
}

void TstComtradeExport::frequencyThatIsNoneOfANetworkIsTakenAsFifty()
{
    for (const double frequency : { 60.0, 400.0, 16.7, 0.0, -50.0, 1e6, 1e300 }) {
        m_facts.nominalFrequency = frequency;
        QVERIFY(write({ waveformOf({ "U_L1" }, 10240) }, { 5 }));
        const Pair read = pair("0001_event");
        QCOMPARE(read.fault, QString());
        QCOMPARE(read.frequency, frequency > 0 && frequency < 1000 ? frequency : 50.0);
    }
}

void TstComtradeExport::numbersKeepTheirPointInAnyLanguage()
{
    QLocale::setDefault(QLocale(QLocale::German));
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    m_facts.nominalFrequency = 16.7;
    QVERIFY(write({ waveformOf({ "U_L1" }, 12345.5) }, { 1, 2, 3 }));
    std::setlocale(LC_ALL, "C");
    QLocale::setDefault(QLocale::c());
    const Pair read = pair("0001_event");
    QCOMPARE(read.fault, QString());
    QCOMPARE(read.rate, 12345.5);
    QCOMPARE(read.frequency, 16.7);
    QCOMPARE(read.channels[0].a, 0.5);
    QVERIFY(write({ waveformOf({ "U_L1" }, 1000000) }, { 1, 2, 3 }));
    QFile file(folder() + "/0001_event.cfg");
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("\r\n1000000,3\r\n"));
}

void TstComtradeExport::exportThatIsNotFinishedLeavesNothing()
{
    {
        const QVector<qint16> samples = counted(1, 5);
        ComtradeExport sink({ folder(), {}, false });
        QVERIFY(sink.begin(m_facts));
        QVERIFY(sink.waveformBegin(waveformOf({ "U_L1" }, 10240)));
        QVERIFY(sink.waveformSamples(samples.constData(), 5));
    }
    QVERIFY(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
}

void TstComtradeExport::replacesNothingButExports()
{
    QVERIFY(write({ waveformOf({ "U_L1" }, 10240) }, { 1 }));
    ComtradeExport again({ folder(), {}, false });
    QVERIFY(!again.begin(m_facts));
    QVERIFY(again.error().contains(folder()));
    QVERIFY(write({ waveformOf({ "U_L1" }, 10240) }, { 1 })); // the user said so
    QFile other(folder() + "/notes.cfg");
    QVERIFY(other.open(QIODevice::WriteOnly));
    ComtradeExport third({ folder(), {}, true });
    QVERIFY(!third.begin(m_facts));
    QVERIFY(other.exists());
}

QTEST_APPLESS_MAIN(TstComtradeExport)
#include "tst_comtradeexport.moc"
