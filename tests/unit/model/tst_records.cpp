#include "model/datagramrecords.h"
#include "model/displayrecords.h"
#include "unit/documentpage.h"

#include <QTest>
#include <cstring>

/// docs/formats/records.md against the pinned records.
class TstRecords : public QObject
{
    Q_OBJECT

private slots:
    void tablesHaveTheOffsetsOfTheCode_data();
    void tablesHaveTheOffsetsOfTheCode();
    void entryExampleIsTheRecordsBytes();
    void displayRecordsBeginWithTheirWordsInOrder();

private:
    const DocumentPage m_page { QStringLiteral("formats/records.md") };
};

namespace {

struct Field
{
    const char *name;
    size_t offset;
    size_t size;
};
#define FIELD(record, name)                                                                                            \
    {                                                                                                                  \
#name, offsetof(record, name), sizeof(record::name)                                                            \
    }
using Fields = QVector<Field>;

} // namespace
Q_DECLARE_METATYPE(Fields)

void TstRecords::tablesHaveTheOffsetsOfTheCode_data()
{
    QTest::addColumn<QString>("heading");
    QTest::addColumn<Fields>("fields");
    QTest::newRow("aggregation") << QStringLiteral("## __datagram_aggregation (19784 bytes)")
                                 << Fields { FIELD(__datagram_aggregation, time),
                                             FIELD(__datagram_aggregation, frequency),
                                             FIELD(__datagram_aggregation, channel),
                                             FIELD(__datagram_aggregation, power),
                                             FIELD(__datagram_aggregation, reserved),
                                             FIELD(__datagram_aggregation, energy),
                                             FIELD(__datagram_aggregation, spectrum),
                                             FIELD(__datagram_aggregation, voltageSequence),
                                             FIELD(__datagram_aggregation, currentSequence),
                                             FIELD(__datagram_aggregation, mainsSignal) };
    QTest::newRow("half-cycle") << QStringLiteral("## __datagram_rms (2912 bytes)")
                                << Fields { FIELD(__datagram_rms, voltage), FIELD(__datagram_rms, current) };
    QTest::newRow("wave") << QStringLiteral("## __datagram_wave (65548 bytes)")
                          << Fields { FIELD(__datagram_wave, time), FIELD(__datagram_wave, voltage),
                                      FIELD(__datagram_wave, current), FIELD(__datagram_wave, transient) };
    QTest::newRow("flicker") << QStringLiteral("## __datagram_flicker (6012 bytes)")
                             << Fields { FIELD(__datagram_flicker, time), FIELD(__datagram_flicker, pinst),
                                         FIELD(__datagram_flicker, samplesPerWindow) };
    QTest::newRow("harmonics") << QStringLiteral("## harm_data (19300 bytes)")
                               << Fields { FIELD(harm_data, reference), FIELD(harm_data, channel) };
    QTest::newRow("unbalance")
        << QStringLiteral("## __unbalance_data (100 bytes)")
        << Fields { FIELD(__unbalance_data, frequency),          FIELD(__unbalance_data, voltageNegativeRatio),
                    FIELD(__unbalance_data, voltageZeroRatio),   FIELD(__unbalance_data, currentNegativeRatio),
                    FIELD(__unbalance_data, currentZeroRatio),   FIELD(__unbalance_data, voltageFundamental),
                    FIELD(__unbalance_data, currentFundamental), FIELD(__unbalance_data, voltageAngle),
                    FIELD(__unbalance_data, currentAngle),       FIELD(__unbalance_data, angleDifference) };
}

void TstRecords::tablesHaveTheOffsetsOfTheCode()
{
    QFETCH(QString, heading);
    QFETCH(Fields, fields);
    const QVector<QStringList> rows = m_page.table(heading);
    QCOMPARE(rows.size(), fields.size());
    size_t end = 0;
    for (int i = 0; i < rows.size(); ++i) {
        QCOMPARE(rows[i][0].toULong(), ulong(fields[i].offset));
        QCOMPARE(rows[i][1].toULong(), ulong(fields[i].size));
        QCOMPARE(rows[i][2], QString::fromLatin1(fields[i].name));
        QCOMPARE(fields[i].offset, end); // no gaps
        end += fields[i].size;
    }
    QVERIFY(heading.contains(QStringLiteral("(%1 bytes)").arg(end)));
}

void TstRecords::entryExampleIsTheRecordsBytes()
{
    RmsSeries series = {};
    series.count = 1;
    series.entry[0].time = 1600000000789;
    series.entry[0].value = 230.5f;
    const QByteArray example = m_page.hexBlocks(QStringLiteral("## Worked example")).value(0);
    QCOMPARE(example.size(), 16);
    QCOMPARE(QByteArray(reinterpret_cast<const char *>(&series), 16), example);
}

void TstRecords::displayRecordsBeginWithTheirWordsInOrder()
{
    __vif_data vif;
    for (int i = 0; i < 33; ++i) {
        const float value = float(i + 1);
        memcpy(reinterpret_cast<char *>(&vif.voltage) + 4 * i, &value, 4);
    }
    QCOMPARE(vif.voltage[0], 1.0f);
    QCOMPARE(vif.voltagePeak[0], 5.0f);
    QCOMPARE(vif.voltageOffset[0], 9.0f);
    QCOMPARE(vif.voltageCrest[0], 13.0f);
    QCOMPARE(vif.current[0], 17.0f);
    QCOMPARE(vif.currentPeak[0], 21.0f);
    QCOMPARE(vif.currentOffset[0], 25.0f);
    QCOMPARE(vif.currentCrest[3], 32.0f);
    QCOMPARE(vif.frequency, 33.0f);

    __power_data power;
    for (int i = 0; i < 45; ++i) {
        const float value = float(i);
        memcpy(reinterpret_cast<char *>(&power.voltage) + 4 * i, &value, 4);
    }
    QCOMPARE(power.current[0], 3.0f);
    QCOMPARE(power.activeEnergy[0], 6.0f);
    QCOMPARE(power.apparentEnergy[0], 10.0f);
    QCOMPARE(power.reactiveEnergy[0], 14.0f);
    QCOMPARE(power.row[0].active, 19.0f);
    QCOMPARE(power.row[0].reactive, 20.0f); // before the apparent power here
    QCOMPARE(power.row[3].tangent, 42.0f);
    QCOMPARE(reinterpret_cast<char *>(&power.hours) - reinterpret_cast<char *>(&power.voltage), ptrdiff_t(4 * 45));
}

QTEST_GUILESS_MAIN(TstRecords)
#include "tst_records.moc"
