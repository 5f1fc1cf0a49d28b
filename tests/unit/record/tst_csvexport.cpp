#include "exportfeed.h"
#include "record/exports/csvexport.h"
#include "unit/storage/filelimit.h"

#include <QLocale>
#include <QTest>

#include <cstring>
#include <locale>

using namespace ExportFeed;

namespace {

/// Numbers as they are written where a comma stands before the decimals and a point between thousands.
class CommaNumbers : public std::numpunct<char>
{
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

} // namespace

/// A recording as files of comma-separated values.
class TstCsvExport : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.reset(new QTemporaryDir); }

    void tableIsWrittenCellByCell();
    void whateverStandsInATextComesBack();
    void valuesOfEveryFloatComeBackBitForBit();
    void numbersHaveAPointWhateverTheLanguage();
    void doublesKeepAllTheirDigits();
    void waveformHasAFileWithTheTimeOfEachSample();
    void waveformWithoutATimeHasSecondsAlone();
    void recordingWithoutTablesIsAnEmptyFolder();
    void fullDiskIsNamedAndLeavesNothing();
    void unfinishedExportLeavesNothing();
    void nameThatIsNoTablesIsRefused();
    void rowOfATableThatWasNeverToldIsRefused();

private:
    QString out() const { return m_folder->filePath(QStringLiteral("out")); }
    QByteArray file(const char *name) const { return contentOf(out() + '/' + QLatin1String(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TstCsvExport::tableIsWrittenCellByCell()
{
    CsvExport csv({ out(), QString(), false });
    QVERIFY2(csv.begin(facts()) && feedRms(&csv, 0) && csv.end(facts()), qPrintable(csv.error()));
    QCOMPARE(file("rms.csv"),
             QByteArray("time_utc,U_rms_mean_L1_V,U_rms_max_L1_V,U_rms_mean_L2_V,I_crest_min_L2\n"
                        "2020-09-13T12:26:40.200Z,230.1,231,0.1,-0\n"
                        "2020-09-13T12:26:40.400Z,,1e-07,12345678,\n"
                        "2020-09-13T12:26:40.600Z,,,,\n"));
    QCOMPARE(namesIn(out()), QStringList("rms.csv"));
}

void TstCsvExport::whateverStandsInATextComesBack()
{
    CsvExport csv({ out(), QString(), false });
    QVERIFY2(csv.begin(facts()) && feedHappenings(&csv, 7) && csv.end(facts()), qPrintable(csv.error()));
    // What is no whole number of any size has none; the quotes are doubled, and the line feed stays one.
    QCOMPARE(file("events.csv"),
             QByteArray("time_utc,number,name,channel,value,duration_ms\n"
                        "2020-09-13T12:26:40.123Z,1,dip,L1,115.25,250\n"
                        "2020-09-13T12:26:40.123Z,2,dip,L2,99.5,\n"
                        "2020-09-13T12:26:40.124Z,3,\"a,b\"\"c\"\"\nd\\e'f\r\n;=\t\xC3\xA4\\\",,,40\n"));
}

void TstCsvExport::valuesOfEveryFloatComeBackBitForBit()
{
    constexpr int kValues = 200000;
    CsvExport csv({ out(), QString(), false });
    QVERIFY(csv.begin(facts()));
    QVERIFY(csv.table(0, { "rms", { column("U_rms", Statistic::Mean, "L1", "V") } }));
    std::vector<quint32> stored;
    quint32 bits = 1;
    for (int i = 0; i < kValues; ++i) {
        float value;
        std::memcpy(&value, &bits, sizeof value);
        if (std::isfinite(value)) {
            stored.push_back(bits);
            QVERIFY(row(&csv, 0, i, { double(value) }));
        }
        bits = i < 300 ? bits + 1 : bits * 1664525 + 1013904223; // the smallest ones first
    }
    QVERIFY(csv.end(facts()));
    const QList<QByteArray> lines = file("rms.csv").split('\n');
    QCOMPARE(lines.size(), int(stored.size()) + 2);
    for (int i = 0; i < int(stored.size()); ++i) {
        const QByteArray text = lines.at(i + 1).mid(25);
        const float value = std::strtof(text.constData(), nullptr);
        quint32 found;
        std::memcpy(&found, &value, sizeof found);
        if (found != stored[std::size_t(i)])
            QCOMPARE(text, QByteArray::number(stored[std::size_t(i)]));
    }
}

void TstCsvExport::numbersHaveAPointWhateverTheLanguage()
{
    const std::locale before = std::locale::global(std::locale(std::locale(), new CommaNumbers));
    QLocale::setDefault(QLocale(QLocale::German));
    CsvExport csv({ out(), QString(), false });
    const bool done = csv.begin(facts()) && feedRms(&csv, 0) && feedWaveform(&csv, 1) && csv.end(facts());
    std::locale::global(before);
    QLocale::setDefault(QLocale::c());
    QVERIFY2(done, qPrintable(csv.error()));
    QCOMPARE(file("rms.csv").split('\n').at(1), QByteArray("2020-09-13T12:26:40.200Z,230.1,231,0.1,-0"));
    QCOMPARE(file("rms.csv").split('\n').at(2), QByteArray("2020-09-13T12:26:40.400Z,,1e-07,12345678,"));
    QCOMPARE(file("waveforms/0001.csv").split('\n').at(2), QByteArray("2020-09-13T12:26:40.001Z,5e-04,-16384,8191.75"));
}

void TstCsvExport::doublesKeepAllTheirDigits()
{
    CsvExport csv({ out(), QString(), false });
    QVERIFY(csv.begin(facts()));
    QVERIFY(csv.table(0, { "energy", { column("E", Statistic::None, "total", "Wh", CellType::Double) } }));
    QVERIFY(row(&csv, 0, 0, { 0.1 + 0.2 }) && row(&csv, 0, 200, { 1e300 }) && row(&csv, 0, 400, { kNone }));
    QVERIFY(csv.end(facts()));
    QCOMPARE(file("energy.csv"),
             QByteArray("time_utc,E_total_Wh\n1970-01-01T00:00:00.000Z,0.30000000000000004\n"
                        "1970-01-01T00:00:00.200Z,1e+300\n1970-01-01T00:00:00.400Z,\n"));
}

void TstCsvExport::waveformHasAFileWithTheTimeOfEachSample()
{
    CsvExport csv({ out(), QString(), false });
    QVERIFY2(csv.begin(facts()) && feedWaveform(&csv, 1) && feedRms(&csv, 0) && feedWaveform(&csv, 12345)
                 && csv.end(facts()),
             qPrintable(csv.error()));
    // 2000 samples a second: half a ms each, from half a ms on; -32768 x 0.5, 32767 x 0.25.
    const QByteArray expected("time_utc,t_s,U_L1_V,I_N_A\n"
                              "2020-09-13T12:26:40.000Z,0,5,250\n"
                              "2020-09-13T12:26:40.001Z,5e-04,-16384,8191.75\n"
                              "2020-09-13T12:26:40.001Z,0.001,1.5,-1.75\n");
    QCOMPARE(file("waveforms/0001.csv"), expected);
    QCOMPARE(file("waveforms/12345.csv"), expected);
    QCOMPARE(namesIn(out()), QStringList({ "rms.csv", "waveforms" }));
    QCOMPARE(namesIn(out() + "/waveforms"), QStringList({ "0001.csv", "12345.csv" }));
}

void TstCsvExport::waveformWithoutATimeHasSecondsAlone()
{
    for (const double start : { kNone, 1e300, -std::numeric_limits<double>::infinity() }) {
        CsvExport csv({ out(), QString(), true });
        RecordedWaveform wave = waveform(1);
        wave.start = start;
        wave.channels = { { "U_L1", "L1", "V", std::numeric_limits<float>::infinity() } };
        const qint16 samples[] = { 1, 0 };
        QVERIFY2(csv.begin(facts()) && csv.waveformBegin(wave) && csv.waveformSamples(samples, 2) && csv.waveformEnd()
                     && csv.end(facts()),
                 qPrintable(csv.error()));
        QCOMPARE(file("waveforms/0001.csv"), QByteArray("time_utc,t_s,U_L1_V\n,0,\n,5e-04,\n"));
    }
}

void TstCsvExport::recordingWithoutTablesIsAnEmptyFolder()
{
    CsvExport csv({ out(), QString(), false });
    QVERIFY2(csv.begin(facts()) && csv.end(facts()), qPrintable(csv.error()));
    QVERIFY(QFileInfo(out()).isDir());
    QCOMPARE(namesIn(out()), QStringList());
}

void TstCsvExport::fullDiskIsNamedAndLeavesNothing()
{
    for (const char *what : { "table", "waveform" }) {
        bool refused = false;
        QString error;
        {
            CsvExport csv({ out(), QString(), false });
            QVERIFY(csv.begin(facts()) && csv.table(0, rms()) && csv.waveformBegin(waveform(3)));
            const FileLimit full(200000);
            const std::vector<qint16> samples(2000);
            for (int i = 0; i < 10000 && !refused; ++i)
                refused
                    = what[0] == 't' ? !row(&csv, 0, i, { 1, 2, 3, 4 }) : !csv.waveformSamples(samples.data(), 1000);
            error = csv.error();
        }
        QVERIFY2(refused, what);
        const char *name = what[0] == 't' ? "/rms.csv: " : "/waveforms/0003.csv: ";
        QCOMPARE(error, out() + QLatin1String(name) + qt_error_string(EFBIG));
        QCOMPARE(namesIn(m_folder->path()), QStringList());
    }
}

void TstCsvExport::unfinishedExportLeavesNothing()
{
    {
        CsvExport csv({ out(), QString(), false });
        QVERIFY(csv.begin(facts()) && feedRms(&csv, 0) && feedWaveform(&csv, 1));
        QVERIFY(!QFile::exists(out()));
    }
    QCOMPARE(namesIn(m_folder->path()), QStringList());
}

void TstCsvExport::nameThatIsNoTablesIsRefused()
{
    for (const char *name : { "", "../rms", "a/b", "/etc/x", "Rms", "r\nm" }) {
        CsvExport csv({ out(), QString(), false });
        QVERIFY(csv.begin(facts()));
        QVERIFY2(!csv.table(0, { name, {} }), name);
        QVERIFY(csv.error().contains("is no name of a table"));
    }
    QCOMPARE(namesIn(m_folder->path()), QStringList());
    QVERIFY(CsvExport::writes("frequency_10s.csv") && CsvExport::writes("waveforms/0001.csv"));
    for (const char *name : { "Logger_1_00.csv", "waveforms/1.csv", "rms.txt", "deep/rms.csv", ".csv", "rms.csv\n" })
        QVERIFY2(!CsvExport::writes(name), name);
}

void TstCsvExport::rowOfATableThatWasNeverToldIsRefused()
{
    for (const int number : { -1, 1, 2, 1000000 }) {
        CsvExport csv({ out(), QString(), false });
        QVERIFY(csv.begin(facts()) && csv.table(2, rms()) && csv.table(0, { "power", {} }));
        QCOMPARE(row(&csv, number, 0, { 1, 2, 3, 4 }), number == 2);
        QCOMPARE(csv.error().contains("a row has no table"), number != 2);
    }
}

QTEST_GUILESS_MAIN(TstCsvExport)
#include "tst_csvexport.moc"
