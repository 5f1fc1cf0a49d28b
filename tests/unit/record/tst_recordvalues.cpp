#include "keptrecord.h"
#include "pqa2bytes.h"
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
    void secondsReachBehindTheYear2038();
    void intervalThatIsCutByAPartIsOneRow();
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
    // Spectra: two head values, then 50 lines, of the mean, the maximum and the minimum.
    const struct
    {
        quint32 types[3];
        const char *table, *names; // of both head values and the first line
    } spectra[] = {
        { { 0xA1000030, 0xA1000065, 0xA10000A5 },
          "harmonics_u",
          "U_distortion_%1_L12_V U_fundamental_%1_L12_V Uh01_%1_L12_V" },
        { { 0xA1000031, 0xA1000066, 0xA10000A6 },
          "harmonics_i",
          "I_distortion_%1_L1_A I_fundamental_%1_L1_A Ih01_%1_L1_A" },
        { { 0xA1000032, 0xA1000067, 0xA10000A7 },
          "harmonics_u",
          "U_distortion_%1_L12_V U_fundamental_%1_L12_V Uh51_%1_L12_V" },
        { { 0xA1000033, 0xA1000068, 0xA10000A8 },
          "harmonics_i",
          "I_distortion_%1_L1_A I_fundamental_%1_L1_A Ih51_%1_L1_A" },
        { { 0xA1000034, 0xA1000069, 0xA10000A9 },
          "interharmonics_u",
          "U_distortion_%1_L12_V U_fundamental_%1_L12_V Uih00_%1_L12_V" },
        { { 0xA1000035, 0xA100006A, 0xA10000AA },
          "interharmonics_i",
          "I_distortion_%1_L1_A I_fundamental_%1_L1_A Iih00_%1_L1_A" },
        { { 0xA1000036, 0xA100006B, 0xA10000AB },
          "interharmonics_u",
          "U_distortion_%1_L12_V U_fundamental_%1_L12_V Uih50_%1_L12_V" },
        { { 0xA1000037, 0xA100006C, 0xA10000AC },
          "interharmonics_i",
          "I_distortion_%1_L1_A I_fundamental_%1_L1_A Iih50_%1_L1_A" },
    };
    const char *statistics[] = { "mean", "max", "min" };
    for (const auto &spectrum : spectra) {
        for (int i = 0; i < 3; ++i)
            QTest::addRow("0x%X", spectrum.types[i])
                << spectrum.types[i] << 52 << QByteArray(spectrum.table) << 1
                << QString::fromLatin1(spectrum.names).arg(QLatin1String(statistics[i])).split(' ');
    }
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

QTEST_APPLESS_MAIN(TstRecordValues)
#include "tst_recordvalues.moc"
