#include "pqa2bytes.h"
#include "record/tables/recordsource.h"
#include "testpaths.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

using P = Pqa2Bytes;

constexpr int kMostCalls = 100000;

/// Takes tables and nothing else.
class TableSink : public RecordSink
{
public:
    bool begin(const RecordFacts &) override { return true; }
    bool table(int, const RecordTable &table) override
    {
        tables << QString::fromLatin1(table.name);
        return true;
    }
    bool row(const RecordRow &) override { return true; }
    bool end(const RecordFacts &) override { return hasEnded = true; }
    QString error() const override { return {}; }

    QStringList tables;
    bool hasEnded = false;
};

/// Refuses its call of one number, and counts what comes all the same.
class RefusingSink : public RecordSink
{
public:
    explicit RefusingSink(int refused) : m_refused(refused) { }

    bool begin(const RecordFacts &) override { return take(); }
    bool table(int, const RecordTable &) override { return take(); }
    bool row(const RecordRow &) override { return take(); }
    bool event(const RecordedEvent &) override { return take(); }
    bool waveformBegin(const RecordedWaveform &) override { return take(); }
    bool waveformSamples(const qint16 *, int) override { return take(); }
    bool waveformEnd() override { return take(); }
    bool end(const RecordFacts &) override { return take(); }
    QString error() const override { return {}; }

    int calls = 0;

private:
    bool take() { return calls++ != m_refused; }

    int m_refused;
};

} // namespace

/// Whoever takes a recording can end the reading at any call, whatever is read.
class TstRefusals : public QObject
{
    Q_OBJECT

private:
    void addKinds();
    QString happenings() const;
    QString put(const QString &name, const QByteArray &bytes) const
    {
        const QString path = m_folder.filePath(name);
        return P::save(path, bytes) ? path : QString();
    }

    QTemporaryDir m_folder;

private slots:
    void nothingComesBehindARefusedCall_data() { addKinds(); }
    void nothingComesBehindARefusedCall();
    void progressThatRefusesEndsTheReading_data() { addKinds(); }
    void progressThatRefusesEndsTheReading();
    void progressThatRefusesEndsTheLook_data() { addKinds(); }
    void progressThatRefusesEndsTheLook();
    void takerOfTablesGetsThoseOfHappenings();
};

void TstRefusals::addKinds()
{
    const QString data = QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/");
    QTest::addColumn<QString>("path");
    QTest::newRow("recording") << data + "recorder";
    QTest::newRow("monitor") << data + "monitor.pqa2";
    QTest::newRow("happenings") << happenings();
    QTest::newRow("capture") << data + "capture.wav";
    const QByteArray picture = QByteArray::fromHex("89504E470D0A1A0A");
    QByteArray page;
    for (const quint64 word : { quint64(4), quint64(P::kSeconds), quint64(230), quint64(50), quint64(1), quint64(10000),
                                quint64(picture.size()), quint64(0), quint64(0x02020006), quint64(0xCC33C3C3) })
        page += P::le(word, 4);
    QTest::newRow("page") << put("page.pqa", page + picture + QByteArray::fromHex("AA55"));
    QByteArray log = "TIME,VRMS(V) L1 AVG,FREQ AVG,\n";
    for (int second = 10; second < 15; ++second)
        log += "2023/11/14  22:13:" + QByteArray::number(second) + ",230.000,50.000,\n";
    QTest::newRow("log") << put("log.csv", log);
}

/// A dip with its waveform, a transient and a line of the log.
QString TstRefusals::happenings() const
{
    P file;
    file.opening("1P IT NO NEUTRAL_6").start(P::kSeconds).timed(0xA1000009, P::kTime, "text");
    file.add(0xA1010080,
             P::le(0, 4) + P::le(27, 4) + P::le(1, 4) + P::f32(150) + P::le(quint64(P::kTime) + 40, 8)
                 + P::le(quint64(P::kTime) + 90, 8));
    file.add(0xA100002A, P::f64(double(P::kTime)) + QByteArray(2 * 4096, '\1'));
    file.add(0xA1000025, P::f64(double(P::kTime)) + P::f32(50) + P::le(1U << 24 | 301, 4) + QByteArray(1200, '\1'));
    return put("happenings.pqa2", file.end(P::kSeconds + 1).bytes());
}

void TstRefusals::nothingComesBehindARefusedCall()
{
    QFETCH(QString, path);
    RecordSource source;
    QVERIFY(source.open(path));
    RefusingSink all(-1);
    QVERIFY(source.read(all));
    QVERIFY2(all.calls >= 2 && all.calls < kMostCalls, qPrintable(QString::number(all.calls)));
    for (int refused = 0; refused < all.calls; ++refused) {
        RefusingSink sink(refused);
        QVERIFY2(!source.read(sink), qPrintable(QString::number(refused)));
        QCOMPARE(sink.calls, refused + 1);
    }
}

void TstRefusals::progressThatRefusesEndsTheReading()
{
    QFETCH(QString, path);
    RecordSource source;
    QVERIFY(source.open(path));
    int asked = 0;
    RefusingSink all(-1);
    QVERIFY(source.read(all, [&asked](qint64, qint64) { return ++asked > 0; }));
    for (int refused = 0; refused < asked; ++refused) {
        int left = refused;
        RefusingSink sink(-1);
        QVERIFY2(!source.read(sink, [&left](qint64, qint64) { return left-- > 0; }),
                 qPrintable(QStringLiteral("%1 of %2").arg(refused).arg(asked)));
        QVERIFY(sink.calls < all.calls); // the end is never among them
    }
}

void TstRefusals::progressThatRefusesEndsTheLook()
{
    QFETCH(QString, path);
    RecordSource source;
    int asked = 0;
    QVERIFY(source.open(path, [&asked](qint64 done, qint64 total) { return ++asked > 0 && done <= total; }));
    QVERIFY(asked > 0 || path.endsWith(QStringLiteral(".pqa"))); // a saved page is small
    for (int refused = 0; refused < asked; ++refused) {
        int left = refused;
        QVERIFY(!source.open(path, [&left](qint64, qint64) { return left-- > 0; }));
        QCOMPARE(left, -1); // nobody is asked again
    }
}

void TstRefusals::takerOfTablesGetsThoseOfHappenings()
{
    RecordSource source;
    QVERIFY(source.open(happenings()));
    TableSink sink;
    QVERIFY(source.read(sink));
    QVERIFY(sink.hasEnded && !sink.isRefused());
    QCOMPARE(sink.tables, QStringList({ "events", "system_log", "transients" }));
}

QTEST_GUILESS_MAIN(TstRefusals)
#include "tst_refusals.moc"
