// The way of docs/fleet.md with two instruments: they record by the example's script, are exported by the tool, and one
// database knows both.
#include "desk/deskinstrument.h"
#include "influxserver.h"
#include "testpaths.h"

#include <QDir>
#include <QDirIterator>
#include <QSet>
#include <QUdpSocket>

namespace {

constexpr int kWait = 280000; // ms; only a hang takes so long
constexpr int kPorts = 6; // from the first on: of two instruments, which the script numbers from one

/// A port that is free with those behind it.
int portOfFreeOnes()
{
    return DeskInstrument::freePort([](quint16 first) {
        const QHostAddress any(QHostAddress::AnyIPv4);
        int port = first;
        while (port < first + kPorts && QTcpServer().listen(any, quint16(port))
               && QUdpSocket().bind(any, quint16(port)))
            ++port;
        return port == first + kPorts;
    });
}

} // namespace

class TstFleet : public QObject
{
    Q_OBJECT

private slots:
    void instrumentsRecordAndFillOneDatabase();

private:
    QTemporaryDir m_folder;
};

void TstFleet::instrumentsRecordAndFillOneDatabase()
{
    const QString fleet = m_folder.filePath(QStringLiteral("fleet"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("FLEET_PORT"), QString::number(portOfFreeOnes()));
    QProcess script;
    script.setProcessEnvironment(environment);
    script.setProcessChannelMode(QProcess::MergedChannels);
    script.start(QStringLiteral(QUVERA_SOURCE_DIR "/docs/examples/fleet/record-fleet.sh"),
                 { QUVERA_BIN_DIR, fleet, "2", "10" });
    if (!script.waitForFinished(kWait)) {
        script.terminate();
        script.waitForFinished(30000);
        QFAIL("the script does not end");
    }
    QVERIFY2(script.exitCode() == 0, script.readAll());

    InfluxServer server;
    const QByteArray problem = server.start();
    QVERIFY2(problem.isEmpty(), problem);
    QCOMPARE(server.create("fleet"), 200);
    int recordings = 0;
    QDirIterator folders(fleet, { QStringLiteral("*Logger_1") }, QDir::Dirs, QDirIterator::Subdirectories);
    while (folders.hasNext()) {
        const QString lines = m_folder.filePath(QStringLiteral("one.line"));
        QProcess tool;
        tool.setProcessChannelMode(QProcess::MergedChannels);
        tool.start(QStringLiteral(QUVERA_BIN_DIR "/quvera-files"),
                   { "export", folders.next(), "--influx", lines, "--force" });
        QVERIFY(tool.waitForFinished(kWait));
        QVERIFY2(tool.exitCode() == 0, tool.readAll()); // a recording that was saved is whole
        QFile file(lines);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const int status = server.load("fleet", file.readAll());
        QVERIFY2(status == 204, server.said());
        ++recordings;
    }
    QCOMPARE(recordings, 2);

    QSet<QString> instruments;
    const QJsonArray series
        = server.query("fleet", "SELECT mean(U_rms_mean) FROM rms WHERE channel = 'L3' GROUP BY instrument");
    for (const QJsonValue &one : series) {
        instruments << one.toObject()["tags"].toObject()["instrument"].toString();
        const double mean = one.toObject()["values"].toArray().at(0).toArray().at(1).toDouble();
        QVERIFY2(mean > 150 && mean < 300, QByteArray::number(mean)); // a supply of 230 V on which things happen
    }
    QCOMPARE(instruments, QSet<QString>({ "FLEET01", "FLEET02" }));
    QVERIFY(server.value("fleet", "SELECT count(P_mean) FROM power WHERE channel = 'total'").toInt() >= 8);
}

QTEST_GUILESS_MAIN(TstFleet)
#include "tst_fleet.moc"
