// The examples that read many instruments by Modbus: each value that they fetch is the one that the register table
// calls so, in its unit, of its channel.
#include "unit/documentpage.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QProcess>
#include <QTest>

namespace {

/// A float of the register table.
struct Register
{
    QString field; // "vif.voltage"
    QString unit;
    int index = 0; // in a field of several
};

/// All floats of the table, by address.
QMap<int, Register> registers()
{
    QMap<int, Register> found;
    static const QRegularExpression type(QStringLiteral("^float(?:\\[(\\d+)\\])?$"));
    const auto rows = DocumentPage(QStringLiteral("modbus.md")).table(QStringLiteral("## Input registers"));
    for (const QStringList &row : rows) {
        const auto match = type.match(row[1]);
        if (!match.hasMatch())
            continue;
        const int count = match.captured(1).isEmpty() ? 1 : match.captured(1).toInt();
        for (int i = 0; i < count; ++i)
            found[row[0].toInt() + 2 * i] = { row[3], row[2], i };
    }
    return found;
}

/// What a value must be: the field of the table without its channel, and its place in it.
struct Expected
{
    const char *field;
    const char *channels; // of the places; empty: there is one
};
constexpr char kInputs[] = "L1 L2 L3 N", kPowers[] = "L1 L2 L3 total", kThree[] = "L1 L2 L3";

const QMap<QString, Expected> &expectedFields()
{
    static const QMap<QString, Expected> fields {
        { "f", { "vif.frequency", "" } },
        { "U_rms", { "vif.voltage", kInputs } },
        { "U_peak", { "vif.voltagePeak", kInputs } },
        { "U_crest", { "vif.voltageCrest", kInputs } },
        { "I_rms", { "vif.current", kInputs } },
        { "I_peak", { "vif.currentPeak", kInputs } },
        { "I_crest", { "vif.currentCrest", kInputs } },
        { "P", { "power.active", kPowers } },
        { "S", { "power.apparent", kPowers } },
        { "Q", { "power.reactive", kPowers } },
        { "PF", { "power.factor", kPowers } },
        { "cos_phi", { "power.fundamentalFactor", kPowers } },
        { "tan_phi", { "power.tangent", kPowers } },
        { "EP", { "power.activeEnergy", kPowers } },
        { "ES", { "power.apparentEnergy", kPowers } },
        { "EQ", { "power.reactiveEnergy", kPowers } },
        { "Pst", { "flicker.pst", kThree } },
        { "Plt", { "flicker.plt", kThree } },
        { "U_distortion", { "ufft.distortion", kThree } },
        { "U_negative_ratio", { "unbalance.ratio", "" } },
        { "U_zero_ratio", { "unbalance.ratio", "" } },
        { "I_negative_ratio", { "unbalance.ratio", "" } },
        { "I_zero_ratio", { "unbalance.ratio", "" } },
    };
    return fields;
}

/// Place of a value among the four ratios, 0 for all others.
int placeOfRatio(const QString &quantity)
{
    static const QStringList ratios { "U_negative_ratio", "U_zero_ratio", "I_negative_ratio", "I_zero_ratio" };
    return qMax(0, ratios.indexOf(quantity));
}

/// Empty when the register holds this quantity of this channel in this unit, else what is wrong.
QString problem(int address, const QString &quantity, const QString &channel, const QString &unit)
{
    static const QMap<int, Register> table = registers();
    const QString what = QStringLiteral("%1: %2 %3 %4").arg(address).arg(quantity, channel, unit);
    if (!table.contains(address))
        return what + QStringLiteral(": there is no float");
    const Register found = table[address];
    if (found.unit != (unit == QLatin1String("percent") ? QStringLiteral("%") : unit))
        return what + QStringLiteral(": the unit is ") + found.unit;
    static const QRegularExpression line(QStringLiteral("^Uh(\\d\\d)$"));
    const auto order = line.match(quantity);
    if (order.hasMatch()) {
        const QString field = QStringLiteral("ufft.%1.harmonic").arg(channel);
        return found.field == field && found.index == order.captured(1).toInt() - 1
            ? QString()
            : what + QStringLiteral(": it is ") + found.field;
    }
    if (!expectedFields().contains(quantity))
        return what + QStringLiteral(": nobody knows it");
    const Expected expected = expectedFields()[quantity];
    if (quantity == QLatin1String("U_distortion")) // a field for each channel
        return found.field == QStringLiteral("ufft.%1.distortion").arg(channel) ? QString() : what;
    const QStringList channels = QString::fromLatin1(expected.channels).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const int place = channels.isEmpty() && channel.isEmpty() ? placeOfRatio(quantity) : channels.indexOf(channel);
    const bool isIt = found.field == QLatin1String(expected.field) && found.index == place;
    return isIt ? QString() : what + QStringLiteral(": it is ") + found.field;
}

} // namespace

class TstFleetConfigurations : public QObject
{
    Q_OBJECT

private slots:
    void telegrafReadsWhatItSays();
    void modbusExporterReadsWhatItSays();
    void homeAssistantReadsWhatItSays();
    void prometheusAsksTheModuleThatThereIs();

private:
    /// A configuration, read by a parser of its language.
    static QJsonObject configuration(const QString &name, const char *parser)
    {
        const QString path = QStringLiteral(QUVERA_SOURCE_DIR "/docs/examples/fleet/") + name;
        QProcess python;
        python.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        python.start(QStringLiteral("/usr/bin/python3"),
                     { "-c",
                       QStringLiteral("import json, sys, tomllib, yaml\n"
                                      "json.dump(%1(open(sys.argv[1], 'rb')), sys.stdout)")
                           .arg(QLatin1String(parser)),
                       path });
        if (!python.waitForFinished(60000))
            return {};
        return QJsonDocument::fromJson(python.readAllStandardOutput()).object();
    }
};

void TstFleetConfigurations::telegrafReadsWhatItSays()
{
    const QJsonArray inputs
        = configuration(QStringLiteral("telegraf.conf"), "tomllib.load")["inputs"].toObject()["modbus"].toArray();
    QVERIFY(!inputs.isEmpty());
    static const QRegularExpression name(
        QStringLiteral("^(.+?)(?:_(L[123]|N|total))?(?:_(V|A|Hz|W|VA|var|Wh|VAh|varh|percent))?$"));
    int values = 0;
    for (const QJsonValue &input : inputs) {
        const QJsonArray requests = input.toObject()["request"].toArray();
        for (const QJsonValue &value : requests) {
            const QJsonObject request = value.toObject();
            QCOMPARE(request["register"].toString(), QStringLiteral("input"));
            QCOMPARE(request["byte_order"].toString(), QStringLiteral("CDAB")); // the low half first
            QCOMPARE(request["tags"].toObject()["instrument"], input.toObject()["name"]);
            const QJsonArray fields = request["fields"].toArray();
            QVERIFY(fields.size() * 2 <= 125); // one read
            int next = fields.at(0).toObject()["address"].toInt();
            for (const QJsonValue &cell : fields) {
                const QJsonObject field = cell.toObject();
                QCOMPARE(field["type"].toString(), QStringLiteral("FLOAT32"));
                QCOMPARE(field["address"].toInt(), next); // a gap would be another read
                next += 2;
                const auto parts = name.match(field["name"].toString());
                const QString wrong
                    = problem(field["address"].toInt(), parts.captured(1), parts.captured(2), parts.captured(3));
                QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
                ++values;
            }
        }
    }
    QVERIFY(values > 100);
}

void TstFleetConfigurations::modbusExporterReadsWhatItSays()
{
    const struct
    {
        const char *name, *quantity, *unit;
    } names[] = {
        { "frequency_hertz", "f", "Hz" },
        { "voltage_volts", "U_rms", "V" },
        { "current_amperes", "I_rms", "A" },
        { "active_power_watts", "P", "W" },
        { "apparent_power_voltamperes", "S", "VA" },
        { "reactive_power_vars", "Q", "var" },
        { "power_factor", "PF", "" },
        { "active_energy_watthours", "EP", "Wh" },
        { "flicker_pst", "Pst", "" },
        { "flicker_plt", "Plt", "" },
        { "voltage_distortion_volts", "U_distortion", "V" },
        { "voltage_unbalance_percent", "U", "percent" },
        { "current_unbalance_percent", "I", "percent" },
    };
    const QJsonArray modules
        = configuration(QStringLiteral("modbus_exporter.yml"), "yaml.safe_load")["modules"].toArray();
    QCOMPARE(modules.size(), 1);
    QCOMPARE(modules.at(0).toObject()["name"].toString(), QStringLiteral("quvera"));
    const QJsonArray metrics = modules.at(0).toObject()["metrics"].toArray();
    QVERIFY(metrics.size() > 30);
    for (const QJsonValue &cell : metrics) {
        const QJsonObject metric = cell.toObject(), labels = metric["labels"].toObject();
        QCOMPARE(metric["dataType"].toString(), QStringLiteral("float32"));
        QCOMPARE(metric["endianness"].toString(), QStringLiteral("mixed")); // the low half first
        const QString address = QString::number(metric["address"].toInt());
        QCOMPARE(address.size(), 6);
        QVERIFY(address.startsWith(QLatin1Char('4'))); // read input registers
        const auto row = std::find_if(std::begin(names), std::end(names), [&](const auto &known) {
            return metric["name"].toString() == QStringLiteral("quvera_") + QLatin1String(known.name);
        });
        QVERIFY2(row != std::end(names), qPrintable(metric["name"].toString()));
        QString quantity = QLatin1String(row->quantity);
        if (labels.contains(QStringLiteral("sequence")))
            quantity += QStringLiteral("_%1_ratio").arg(labels["sequence"].toString());
        const QString wrong
            = problem(address.mid(1).toInt(), quantity, labels["channel"].toString(), QLatin1String(row->unit));
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
    }
}

void TstFleetConfigurations::homeAssistantReadsWhatItSays()
{
    const QMap<QString, QString> quantities { { "Frequency", "f" },
                                              { "Voltage", "U_rms" },
                                              { "Current", "I_rms" },
                                              { "Active power", "P" },
                                              { "Reactive power", "Q" },
                                              { "Apparent power", "S" },
                                              { "Power factor", "PF" },
                                              { "Active energy", "EP" },
                                              { "Short-term flicker", "Pst" },
                                              { "Voltage unbalance", "U_negative_ratio" } };
    const QJsonObject hub
        = configuration(QStringLiteral("home_assistant.yaml"), "yaml.safe_load")["modbus"].toArray().at(0).toObject();
    QCOMPARE(hub["type"].toString(), QStringLiteral("tcp"));
    const QJsonArray sensors = hub["sensors"].toArray();
    QVERIFY(sensors.size() > 20);
    QStringList ids;
    static const QRegularExpression name(QStringLiteral("^(.+?)(?: (L[123]|N|total))?$"));
    for (const QJsonValue &cell : sensors) {
        const QJsonObject sensor = cell.toObject();
        QCOMPARE(sensor["input_type"].toString(), QStringLiteral("input"));
        QCOMPARE(sensor["data_type"].toString(), QStringLiteral("float32"));
        QCOMPARE(sensor["swap"].toString(), QStringLiteral("word")); // the low half first
        const auto parts = name.match(sensor["name"].toString());
        const QString wrong = problem(sensor["address"].toInt(-1), quantities.value(parts.captured(1)),
                                      parts.captured(2), sensor["unit_of_measurement"].toString());
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
        QVERIFY(!ids.contains(sensor["unique_id"].toString()));
        ids << sensor["unique_id"].toString();
    }
}

void TstFleetConfigurations::prometheusAsksTheModuleThatThereIs()
{
    const QJsonObject job = configuration(QStringLiteral("prometheus.yml"), "yaml.safe_load")["scrape_configs"]
                                .toArray()
                                .at(0)
                                .toObject();
    QCOMPARE(job["params"].toObject()["module"].toArray(), QJsonArray { "quvera" });
    QCOMPARE(job["metrics_path"].toString(), QStringLiteral("/modbus"));
    QCOMPARE(job["relabel_configs"].toArray().at(0).toObject()["target_label"].toString(),
             QStringLiteral("__param_target"));
    QVERIFY(job["static_configs"].toArray().size() >= 2);
}

QTEST_GUILESS_MAIN(TstFleetConfigurations)
#include "tst_fleetconfigurations.moc"
