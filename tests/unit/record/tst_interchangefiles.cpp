#include "comtradereading.h"
#include "keptrecord.h"
#include "pqdifreading.h"
#include "record/exports/comtradeexport.h"
#include "record/exports/pqdifexport.h"
#include "record/tables/recordsource.h"
#include "testpaths.h"

#include <QDir>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using Values = QVector<double>;

namespace {

/// Series of the trends in a PQDIF file, by "Uh L1 (harmonics_u)", order and kind of series.
struct TrendKey
{
    QByteArray channel;
    int group;
    QByteArray series;

    bool operator<(const TrendKey &other) const
    {
        return std::tie(channel, group, series) < std::tie(other.channel, other.group, other.series);
    }
};

QMap<TrendKey, Values> trendsOf(const PqdifReading::File &file, QString *fault)
{
    QMap<TrendKey, Values> trends;
    const auto &definitions = file.dataSource()["tagChannelDefns"].children;
    for (const PqdifReading::Element *observation : file.observations()) {
        if (!(*observation)["tagObservationName"].text.startsWith("Trend "))
            continue;
        const double start = double((*observation)["tagTimeStart"].time()) / 1e3;
        for (const PqdifReading::Channel &channel : PqdifReading::channels(file, *observation, fault)) {
            const PqdifReading::Element &definition = definitions[size_t(channel.definition)];
            const auto &series = definition["tagSeriesDefns"].children;
            for (int i = 0; i < channel.series.size(); ++i) {
                Values values = channel.series[i];
                if (i == 0)
                    std::for_each(values.begin(), values.end(), [=](double &time) { time = start + time * 1e3; });
                trends[{ definition["tagChannelName"].text, channel.group, series[size_t(i)]["tagValueTypeID"].id }]
                    << values;
            }
        }
    }
    return trends;
}

/// What stands in the file for a column: order behind the quantity, mean and extremes apart.
TrendKey keyOf(const RecordTable &table, const RecordColumn &column)
{
    static constexpr const char *kSeries[] = { "SERIES_VAL", "SERIES_AVG", "SERIES_MAX", "SERIES_MIN" };
    QByteArray stem = column.quantity;
    int group = column.order;
    if (group >= 0)
        stem.chop(group < 100 ? 2 : 3);
    else if (stem.endsWith("_fundamental"))
        group = 1;
    else if (stem.endsWith("_offset"))
        group = 0;
    const QByteArray channel = column.channel.isEmpty() ? QByteArray() : ' ' + column.channel;
    return { stem + channel + " (" + table.name + ')', group, kSeries[int(column.statistic)] };
}

} // namespace

/// Real files of the instrument, exported and read back: every value that the reader of recordings hands on arrives.
class TstInterchangeFiles : public QObject
{
    Q_OBJECT

private slots:
    void everyTrendArrives_data();
    void everyTrendArrives();
    void captureArrivesSampleBySample();

private:
    /// Reads a file of tests/data twice: into the export, and to be kept.
    template <typename Export> bool take(const QString &name, const QString &target)
    {
        const QString path = QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/") + name;
        Export sink({ target, path, false });
        m_kept.reset(new KeptRecord);
        return m_source.open(path) && m_source.read(sink) && m_source.read(*m_kept);
    }

    QTemporaryDir m_folder;
    RecordSource m_source;
    QScopedPointer<KeptRecord> m_kept;
};

void TstInterchangeFiles::everyTrendArrives_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("least");
    QTest::newRow("recording") << QStringLiteral("recorder") << 500;
    QTest::newRow("monitor") << QStringLiteral("monitor.pqa2") << 300;
}

void TstInterchangeFiles::everyTrendArrives()
{
    QFETCH(QString, name);
    QFETCH(int, least);
    const QString target = m_folder.filePath(name + ".pqd");
    QVERIFY(take<PqdifExport>(name, target));
    QFile written(target);
    QVERIFY(written.open(QIODevice::ReadOnly));
    const PqdifReading::File file = PqdifReading::read(written.readAll());
    QCOMPARE(file.fault, QString());
    QString fault;
    const QMap<TrendKey, Values> trends = trendsOf(file, &fault);
    QCOMPARE(fault, QString());
    int compared = 0;
    for (const RecordTable &table : m_kept->tables()) {
        if (table.name == "events" || table.name == "transients" || table.name == "system_log")
            continue;
        for (const RecordColumn &column : table.columns) {
            Values times, values;
            const QVector<qint64> rows = m_kept->times(table.name);
            for (int row = 0; row < rows.size(); ++row) {
                times << double(rows[row]);
                values << m_kept->number(table.name, row, QString::fromLatin1(column.name()));
            }
            TrendKey key = keyOf(table, column);
            QVERIFY2(trends.contains(key), column.name().constData());
            QCOMPARE(trends.value(key), values);
            key.series = "SERIES_TIME";
            QCOMPARE(trends.value(key), times);
            ++compared;
        }
    }
    QVERIFY2(compared >= least, qPrintable(QString::number(compared)));
}

void TstInterchangeFiles::captureArrivesSampleBySample()
{
    QVERIFY(take<ComtradeExport>(QStringLiteral("capture.wav"), m_folder.filePath(QStringLiteral("pairs"))));
    const ComtradeReading::Pair pair
        = ComtradeReading::readFiles(m_folder.filePath(QStringLiteral("pairs/0001_capture")));
    QCOMPARE(pair.fault, QString());
    QCOMPARE(pair.station, QByteArray("capture.wav"));
    QCOMPARE(m_kept->waveforms.size(), 1);
    const KeptRecord::Waveform &waveform = m_kept->waveforms.first();
    const int inputs = waveform.facts.channels.size();
    QCOMPARE(pair.channels.size(), inputs);
    QCOMPARE(pair.last * inputs, qint64(waveform.samples.size()));
    QVERIFY(pair.last > 1);
    for (int i = 0; i < waveform.samples.size(); ++i)
        QCOMPARE(pair.value(i % inputs, i / inputs),
                 double(waveform.samples[i]) * double(waveform.facts.channels[i % inputs].factor));
}

QTEST_APPLESS_MAIN(TstInterchangeFiles)
#include "tst_interchangefiles.moc"
