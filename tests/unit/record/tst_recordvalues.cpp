#include "keptrecord.h"
#include "pqa2bytes.h"
#include "record/tables/logcolumns.h"
#include "record/tables/recordsource.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace {

using P = Pqa2Bytes;

constexpr qint64 kTime = P::kTime;

} // namespace

/// That each value of a block arrives under the name that its place has on the format pages.
class TstRecordValues : public QObject
{
    Q_OBJECT

private:
    QString path() const { return m_folder.filePath(QStringLiteral("file.pqa2")); }
    void read(const QString &at)
    {
        kept = std::make_unique<KeptRecord>();
        QVERIFY(source.open(at));
        QVERIFY(source.read(*kept));
        QCOMPARE(source.state(), RecordState::Whole);
        QCOMPARE(kept->complaints, QStringList());
    }

    QTemporaryDir m_folder;
    RecordSource source;
    std::unique_ptr<KeptRecord> kept;

private slots:
    void valuesStandInTheOrderOfTheFormat_data();
    void valuesStandInTheOrderOfTheFormat();
    void spectraBeginWithTwoHeadValues_data();
    void spectraBeginWithTwoHeadValues();
    void secondsReachBehindTheYear2038();
    void intervalThatIsCutByAPartIsOneRow();
    void captureHasItsFactorsItsFramesAndItsEnd();
    void namesOfTheLoggerHaveTheirColumns();
};

// Of one channel: the voltage is one between lines, the rest is of L1.
void TstRecordValues::valuesStandInTheOrderOfTheFormat_data()
{
    QTest::addColumn<quint32>("type");
    QTest::addColumn<int>("count"); // floats of the block, which count up from 1
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<int>("first"); // float that the first name stands for
    QTest::addColumn<QStringList>("names");
    const auto row = [](const char *name, quint32 type, int count, const char *table, int first, const char *names) {
        QTest::newRow(name) << type << count << QByteArray(table) << first << QString::fromLatin1(names).split(' ');
    };
    row("r.m.s.", 0xA1000020, 13, "rms", 1,
        "U_rms_mean_L12_V U_peak_mean_L12_V U_offset_mean_L12_V U_crest_mean_L12 I_rms_mean_L1_A I_peak_mean_L1_A "
        "I_offset_mean_L1_A I_crest_mean_L1 U_fundamental_mean_L12_V I_fundamental_mean_L1_A");
    row("angles behind them", 0xA1000060, 13, "angles", 11,
        "U_angle_max_L12_deg I_angle_max_L1_deg UI_angle_max_L1_deg");
    row("power", 0xA1000061, 6, "power", 1,
        "P_max_L1_W S_max_L1_VA Q_max_L1_var PF_max_L1 cos_phi_max_L1 tan_phi_max_L1");
    row("sequences", 0xA10000A2, 10, "unbalance", 1,
        "U_positive_min_V U_negative_min_V U_negative_ratio_min_percent U_zero_min_V U_zero_ratio_min_percent "
        "I_positive_min_A I_negative_min_A I_negative_ratio_min_percent I_zero_min_A I_zero_ratio_min_percent");
    row("signalling", 0xA1000038, 6, "signalling", 1,
        "U_signal1_ratio_mean_L12 U_signal1_mean_L12_V U_signal2_ratio_mean_L12 U_signal2_mean_L12_V");
    row("short-term flicker", 0xA1000026, 3, "flicker_pst", 1, "Pst_L12");
    row("long-term flicker", 0xA1000027, 3, "flicker_plt", 1, "Plt_L12");
    row("voltage angle", 0xA1001003, 1, "angles", 1, "U_angle_mean_L12_deg");
    row("current angle", 0xA1001004, 1, "angles", 1, "I_angle_mean_L1_deg");
    row("angle between them", 0xA1001005, 1, "angles", 1, "UI_angle_mean_L1_deg");
    row("angle of the third", 0xA1001006, 1, "angles", 1, "UI_angle_h03_mean_L1_deg");
    row("angle of the fifth", 0xA1001007, 1, "angles", 1, "UI_angle_h05_mean_L1_deg");
    row("angle of the seventh", 0xA1001008, 1, "angles", 1, "UI_angle_h07_mean_L1_deg");
}

void TstRecordValues::valuesStandInTheOrderOfTheFormat()
{
    QFETCH(quint32, type);
    QFETCH(int, count);
    QFETCH(QByteArray, table);
    QFETCH(int, first);
    QFETCH(QStringList, names);
    QVERIFY(P().opening("1P IT NO NEUTRAL_6").timed(type, kTime, P::countUp(1, count)).save(path()));
    read(path());
    for (int i = 0; i < names.size(); ++i) {
        QVERIFY2(kept->columns(table).contains(names.at(i)), qPrintable(names.at(i)));
        QCOMPARE(kept->number(table, 0, names.at(i)), double(first + i));
    }
}

void TstRecordValues::spectraBeginWithTwoHeadValues_data()
{
    QTest::addColumn<QVector<quint32>>("types"); // mean, maximum, minimum
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<QString>("names"); // of both head values and the first line
    const auto row = [](quint32 mean, quint32 maximum, quint32 minimum, const char *table, const char *first) {
        const bool isVoltage = QByteArray(table).endsWith('u');
        const QString names = QStringLiteral("%1_distortion_%2 %1_fundamental_%2 %3_%2");
        const QString channel = QStringLiteral("%1_") + QLatin1String(isVoltage ? "L12_V" : "L1_A");
        QTest::newRow(first) << QVector<quint32> { mean, maximum, minimum } << QByteArray(table)
                             << names.arg(QLatin1String(isVoltage ? "U" : "I"), channel, QLatin1String(first));
    };
    row(0xA1000030, 0xA1000065, 0xA10000A5, "harmonics_u", "Uh01");
    row(0xA1000031, 0xA1000066, 0xA10000A6, "harmonics_i", "Ih01");
    row(0xA1000032, 0xA1000067, 0xA10000A7, "harmonics_u", "Uh51");
    row(0xA1000033, 0xA1000068, 0xA10000A8, "harmonics_i", "Ih51");
    row(0xA1000034, 0xA1000069, 0xA10000A9, "interharmonics_u", "Uih00");
    row(0xA1000035, 0xA100006A, 0xA10000AA, "interharmonics_i", "Iih00");
    row(0xA1000036, 0xA100006B, 0xA10000AB, "interharmonics_u", "Uih50");
    row(0xA1000037, 0xA100006C, 0xA10000AC, "interharmonics_i", "Iih50");
}

void TstRecordValues::spectraBeginWithTwoHeadValues()
{
    QFETCH(QVector<quint32>, types);
    QFETCH(QByteArray, table);
    QFETCH(QString, names);
    const char *const statistics[] = { "mean", "max", "min" };
    for (int i = 0; i < 3; ++i) {
        QVERIFY(P().opening("1P IT NO NEUTRAL_6").timed(types.at(i), kTime, P::countUp(1, 52)).save(path()));
        read(path());
        const QStringList columns = names.arg(QLatin1String(statistics[i])).split(' ');
        for (int n = 0; n < columns.size(); ++n)
            QCOMPARE(kept->number(table, 0, columns.at(n)), double(n + 1));
    }
}

void TstRecordValues::secondsReachBehindTheYear2038()
{
    constexpr qint64 kLate = 4102444800; // 2100-01-01
    QVERIFY(P().opening().start(kLate).timedS(0xA1010000, kLate + 10, P::f32(50)).end(kLate + 60).save(path()));
    read(path());
    QCOMPARE(kept->facts.start, kLate * 1000);
    QCOMPARE(kept->facts.end, (kLate + 60) * 1000);
    QCOMPARE(kept->times("monitor_frequency"), QVector<qint64>({ (kLate + 10) * 1000 }));
}

void TstRecordValues::intervalThatIsCutByAPartIsOneRow()
{
    const QString folder = m_folder.filePath(QStringLiteral("parts"));
    QVERIFY(QDir().mkpath(folder));
    P first, second;
    first.opening().start(P::kSeconds).timed(0xA1000029, kTime, P::f32(50));
    second.opening().start(P::kSeconds).timed(0xA1000064, kTime, P::f32(51)).end(P::kSeconds + 1);
    QVERIFY(first.save(folder + QStringLiteral("/Common.pqa2")));
    QVERIFY(second.save(folder + QStringLiteral("/Common_2.pqa2")));
    read(folder);
    QCOMPARE(kept->times("frequency"), QVector<qint64>({ kTime }));
    QCOMPARE(kept->number("frequency", 0, QStringLiteral("f_mean_Hz")), 50.0);
    QCOMPARE(kept->number("frequency", 0, QStringLiteral("f_max_Hz")), 51.0);
}

void TstRecordValues::captureHasItsFactorsItsFramesAndItsEnd()
{
    constexpr int kFrames = 15, kRate = 10; // a second and a half
    QByteArray bytes = QByteArray("WAV\x1A") + P::le(0x02020006, 4) + P::le(230, 4) + P::le(50, 4) + P::le(3, 4)
        + P::le(10000, 4) + P::floats({ 0.5F, 0.25F, 0.125F, 2, 4, 8, 16, 32 }) + P::le(P::kSeconds, 4)
        + P::le(P::kSeconds + 1, 4) + P::le(kRate, 4) + P::le(0, 4) + P::le(kFrames, 8) + P::le(0xAA55A5A5, 4)
        + P::le(0xCC33C3C3, 4);
    for (int frame = 0; frame < kFrames; ++frame) {
        if (frame == 0 || frame == 10) // two chunks
            bytes += P::le(quint64(frame == 0 ? 10 : kFrames - 10) * 16, 4);
        for (int input = 0; input < 8; ++input)
            bytes += P::le(quint64(100 * frame + input), 2);
    }
    QVERIFY(P::save(path(), bytes));
    read(path());
    QCOMPARE(kept->facts.kind, RecordKind::Waveform);
    QCOMPARE(kept->facts.end, kTime + 1500);
    QCOMPARE(kept->waveforms.size(), 1);
    // The wiring has L1 and N: the first and the fourth of both kinds.
    QStringList channels;
    for (const auto &channel : kept->waveforms.at(0).facts.channels)
        channels << QStringLiteral("%1 %2").arg(QLatin1String(channel.name)).arg(double(channel.factor));
    QCOMPARE(channels, QStringList({ "U_L1 0.5", "U_N 2", "I_L1 4", "I_N 32" }));
    const QVector<qint16> &samples = kept->waveforms.at(0).samples;
    QCOMPARE(samples.size(), 4 * kFrames);
    QCOMPARE(samples.mid(40, 4), QVector<qint16>({ 1000, 1003, 1004, 1007 }));
    QCOMPARE(samples.last(), qint16(1407));
}

void TstRecordValues::namesOfTheLoggerHaveTheirColumns()
{
    const QVector<QPair<QByteArray, QByteArray>> names {
        { "VRMS(V) L1 AVG", "U_rms_mean_L1_V" },
        { "VCF L2 MAX", "U_crest_max_L2" },
        { "VTHD L3 MIN", "U_THD_min_L3_percent" },
        { "VNEG AVG", "U_negative_ratio_mean_percent" },
        { "VZERO AVG", "U_zero_ratio_mean_percent" },
        { "VDC N AVG", "U_offset_mean_N_V" },
        { "IRMS(A) N AVG", "I_rms_mean_N_A" },
        { "ICF L1 AVG", "I_crest_mean_L1" },
        { "ITHD L1 AVG", "I_THD_mean_L1_percent" },
        { "INEG MAX", "I_negative_ratio_max_percent" },
        { "IZERO MIN", "I_zero_ratio_min_percent" },
        { "IDC L1 AVG", "I_offset_mean_L1_A" },
        { "P(W) ALL AVG", "P_mean_total_W" },
        { "S L1 AVG", "S_mean_L1_VA" },
        { "Q L1 AVG", "Q_mean_L1_var" },
        { "PF ALL AVG", "PF_mean_total" },
        { "cos\xCE\xA6 L1 AVG", "cos_phi_mean_L1" },
        { "tan\xCE\xA6 L1 AVG", "tan_phi_mean_L1" },
        { "EnergyP ALL", "EP_total_Wh" },
        { "EnergyS ALL", "ES_total_VAh" },
        { "EnergyQ ALL", "EQ_total_varh" },
        { "FREQ AVG", "f_mean_Hz" },
        { "PST L1", "Pst_L1" },
    };
    for (const auto &name : names) {
        const LogColumns columns({ name.first });
        QCOMPARE(columns.unknown(), 0);
        QCOMPARE(columns.tables().at(0).name, QByteArray("log"));
        QCOMPARE(columns.tables().at(0).columns.at(0).name(), name.second);
    }
    // A prefix of a unit is a factor, whichever quantity it stands with; capitals tell milli from mega.
    const QVector<QPair<QByteArray, double>> factors { { "VRMS(V) L1", 1 },     { "VRMS(mV) L1", 1e-3 },
                                                       { "VRMS(uV) L1", 1e-6 }, { "P(kW) L1", 1e3 },
                                                       { "P(MW) L1", 1e6 },     { "EnergyP(GWh) L1", 1e9 } };
    for (const auto &factor : factors)
        QCOMPARE(LogColumns({ factor.first }).places().at(0).factor, factor.second);
    QCOMPARE(LogColumns({ "VRMS(kA) L1" }).unknown(), 1);
}

QTEST_APPLESS_MAIN(TstRecordValues)
#include "tst_recordvalues.moc"
