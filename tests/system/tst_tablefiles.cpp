// The tool's tables of the example recordings, beside the bytes of their files: read by another reader, in another
// language, from the format pages alone.
#include "testpaths.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cstring>

namespace {

const QString kData = QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/");

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

} // namespace

class TstTableFiles : public QObject
{
    Q_OBJECT

private slots:
    void everyStoredFloatStandsInTheTables_data();
    void everyStoredFloatStandsInTheTables();
    void captureHasItsSamplesInVoltsAndAmperes();
    void lineProtocolHasTheSameNumbers();
    void languageOfTheUserChangesNothing();
    void cutRecordingIsExportedUpToItsCut();

private:
    QString at(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    /// Runs a program; what it printed on its standard output is kept.
    int run(const QString &program, const QStringList &arguments, const QProcessEnvironment &environment = {})
    {
        QProcess process;
        if (!environment.isEmpty())
            process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(program, arguments);
        if (!process.waitForFinished(120000))
            return -1;
        m_said = process.readAllStandardOutput();
        return process.exitCode();
    }
    int exported(const QString &recording, const char *format, const char *target)
    {
        return run(QStringLiteral(QUVERA_BIN_DIR "/quvera-files"),
                   { "export", recording, QLatin1String(format), at(target), "--force" });
    }

    QTemporaryDir m_folder;
    QByteArray m_said;
};

void TstTableFiles::everyStoredFloatStandsInTheTables_data()
{
    QTest::addColumn<QString>("recording");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QByteArray>("tables");
    // Three intervals. Ten quantities of four inputs, three statistics; six of three phases and the total; ten
    // sequences; distortion, fundamental and fifty lines of four inputs.
    QTest::newRow("recorder") << QStringLiteral("recorder")
                              << QStringList { "recorder/Common.pqa2", "recorder/U Harmonic(1-50).pqa2" }
                              << QByteArray("frequency 3 9 9\nharmonics_u 3 1872 1872\npower 3 216 216\n"
                                            "rms 3 360 360\nunbalance 3 90 90\n");
    // Sixty ten seconds and one more; fifty values of the voltage and fifty of the current of three phases.
    QTest::newRow("monitor") << QStringLiteral("monitor.pqa2") << QStringList { "monitor.pqa2" }
                             << QByteArray("monitor_frequency 61 61 61\nmonitor_harmonics 1 300 300\n"
                                           "monitor_voltage 1 3 3\n");
}

void TstTableFiles::everyStoredFloatStandsInTheTables()
{
    QFETCH(QString, recording);
    QFETCH(QStringList, files);
    QFETCH(QByteArray, tables);
    QCOMPARE(exported(kData + recording, "--csv", "tables"), 0);
    QCOMPARE(exported(kData + recording, "--sqlite", "tables.db"), 0);
    QStringList arguments { QStringLiteral(QUVERA_SOURCE_DIR "/tests/system/tablecheck.py"), at("tables"),
                            at("tables.db") };
    for (const QString &file : files)
        arguments << kData + file;
    QCOMPARE(run(QStringLiteral("python3"), arguments), 0);
    QCOMPARE(m_said, tables);
}

// Its head has the factors of the voltages from byte 24 and of the currents from byte 40 on, L1, L2, L3, N.
void TstTableFiles::captureHasItsSamplesInVoltsAndAmperes()
{
    QCOMPARE(exported(kData + "capture.wav", "--csv", "capture"), 0);
    const QByteArray bytes = contentOf(kData + "capture.wav");
    const auto number = [&](int offset) {
        float value;
        std::memcpy(&value, bytes.constData() + offset, sizeof value);
        return value;
    };
    const auto sample = [&](int offset) {
        qint16 value;
        std::memcpy(&value, bytes.constData() + offset, sizeof value);
        return value;
    };
    const QList<QByteArray> lines = contentOf(at("capture/waveforms/0001.csv")).trimmed().split('\n');
    QCOMPARE(lines.at(0), QByteArray("time_utc,t_s,U_L1_V,U_N_V,I_L1_A,I_N_A")); // a single phase with neutral
    int line = 1;
    for (int chunk = 88; chunk < bytes.size();) {
        const int length = sample(chunk); // short ones: the high half is 0
        for (int frame = chunk + 4; frame < chunk + 4 + length; frame += 16, ++line) {
            const QList<QByteArray> cells = lines.value(line).split(',');
            QCOMPARE(cells.value(1).toDouble(), (line - 1) / 5120.0);
            QCOMPARE(cells.value(2).toFloat(), float(sample(frame)) * number(24));
            QCOMPARE(cells.value(3).toFloat(), float(sample(frame + 6)) * number(36));
            QCOMPARE(cells.value(4).toFloat(), float(sample(frame + 8)) * number(40));
            QCOMPARE(cells.value(5).toFloat(), float(sample(frame + 14)) * number(52));
        }
        chunk += 4 + length;
    }
    QCOMPARE(lines.size(), line);
    QCOMPARE(line, 9); // two chunks of four frames
}

void TstTableFiles::lineProtocolHasTheSameNumbers()
{
    QCOMPARE(exported(kData + "recorder", "--csv", "tables"), 0);
    QCOMPARE(exported(kData + "recorder", "--influx", "lines"), 0);
    const QList<QByteArray> names = contentOf(at("tables/rms.csv")).split('\n').at(0).split(',');
    const QList<QByteArray> cells = contentOf(at("tables/rms.csv")).split('\n').at(1).split(',');
    QByteArray line;
    for (const QByteArray &one : contentOf(at("lines")).split('\n')) {
        if (one.startsWith("rms,") && one.contains(",channel=L2 ") && one.endsWith(" 1700000001200000000"))
            line = one;
    }
    int values = 0;
    for (int i = 1; i < names.size(); ++i) {
        const QByteArray name = names.at(i);
        const int channel = name.indexOf("_L2");
        if (channel < 0)
            continue;
        const QByteArray field = name.left(channel) + '=' + cells.at(i);
        QVERIFY2(line.contains(' ' + field + ',') || line.contains(',' + field + ',')
                     || line.contains(',' + field + ' '),
                 field);
        ++values;
    }
    QCOMPARE(values, 30);
}

void TstTableFiles::languageOfTheUserChangesNothing()
{
    QCOMPARE(exported(kData + "recorder", "--csv", "plain"), 0);
    // A locale made for this test: the system may have none with a comma.
    QCOMPARE(run(QStringLiteral("localedef"), { "-i", "de_DE", "-f", "UTF-8", at("de_DE.UTF-8") }), 0);
    QProcessEnvironment german = QProcessEnvironment::systemEnvironment();
    german.insert(QStringLiteral("LOCPATH"), m_folder.path());
    german.insert(QStringLiteral("LC_ALL"), QStringLiteral("de_DE.UTF-8"));
    QCOMPARE(run(QStringLiteral(QUVERA_BIN_DIR "/quvera-files"),
                 { "export", kData + "recorder", "--csv", at("german") }, german),
             0);
    const QStringList files = QDir(at("plain")).entryList(QDir::Files);
    QVERIFY(files.contains(QStringLiteral("rms.csv")));
    for (const QString &name : files)
        QCOMPARE(contentOf(at("german/") + name), contentOf(at("plain/") + name));
}

void TstTableFiles::cutRecordingIsExportedUpToItsCut()
{
    QCOMPARE(exported(kData + "monitor.pqa2", "--csv", "whole"), 0);
    const QByteArray bytes = contentOf(kData + "monitor.pqa2");
    // The head, three opening blocks, the start, then frequencies of 20 bytes each.
    const int first = bytes.indexOf(QByteArray::fromHex("000001a1"));
    QVERIFY(first > 0);
    QFile cut(at("cut.pqa2"));
    QVERIFY(cut.open(QIODevice::WriteOnly));
    cut.write(bytes.left(first - 4 + 20 * 10 + 7)); // ten, and the beginning of one more
    cut.close();
    QCOMPARE(exported(at("cut.pqa2"), "--csv", "cut"), 1);
    const QList<QByteArray> whole = contentOf(at("whole/monitor_frequency.csv")).split('\n');
    const QList<QByteArray> found = contentOf(at("cut/monitor_frequency.csv")).split('\n');
    QCOMPARE(found.size(), 1 + 10 + 1);
    QCOMPARE(found.mid(0, 11), whole.mid(0, 11));
    QCOMPARE(QDir(at("cut")).entryList(QDir::Files), QStringList("monitor_frequency.csv"));
}

QTEST_GUILESS_MAIN(TstTableFiles)
#include "tst_tablefiles.moc"
