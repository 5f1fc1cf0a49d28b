#include "instrument.h"
#include "testpaths.h"

#include <QDir>

using namespace SystemTest;

/// The instrument while its processor is missing, goes away, comes back, or talks nonsense.
class TstProcessorNode : public QObject
{
    Q_OBJECT
private slots:
    void withoutANodeTheInterfaceRuns();
    void valuesGoOnAfterTheNodeWasAway();
    void faultsOnTheLinkLeaveTheScreenAlive_data();
    void faultsOnTheLinkLeaveTheScreenAlive();

private:
    static bool showsLiveValues(DeskInstrument &desk);
};

// The page changes twice: values arrive.
bool TstProcessorNode::showsLiveValues(DeskInstrument &desk)
{
    const auto table = [](const QImage &screen) { return screen.copy(0, 72, 640, 340); };
    QImage before = desk.screen();
    for (int changes = 0; changes < 2 && !before.isNull(); ++changes)
        before = desk.waitForScreen([&](const QImage &now) { return table(now) != table(before); }, 30000);
    return !before.isNull();
}

void TstProcessorNode::withoutANodeTheInterfaceRuns()
{
    Instrument desk;
    QVERIFY2(desk.startInstrument(), qPrintable(desk.error()));
    const QImage menu = desk.screen();
    QVERIFY(!menu.isNull());
    VERIFY_DESK(desk.press({ QStringLiteral("Enter") }), desk);
    QVERIFY(title(desk.screen()) != title(menu));
    VERIFY_DESK(desk.press({ QStringLiteral("Menu") }), desk);
    QCOMPARE(title(desk.screen()), title(menu));
    QVERIFY(desk.isInstrumentRunning());
}

void TstProcessorNode::valuesGoOnAfterTheNodeWasAway()
{
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    VERIFY_DESK(desk.press({ QStringLiteral("Enter") }), desk);
    VERIFY_DESK(showsLiveValues(desk), desk);
    desk.stopProcessor();
    // The interface lives on: clock and keys.
    const QImage without = desk.screen();
    VERIFY_DESK(!desk.waitForScreen([&](const QImage &now) { return now != without; }).isNull(), desk);
    VERIFY_DESK(desk.startProcessor({ QStringLiteral("--stream") }), desk);
    VERIFY_DESK(showsLiveValues(desk), desk);
}

void TstProcessorNode::faultsOnTheLinkLeaveTheScreenAlive_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("lost") << QStringLiteral("fault drop 50");
    QTest::newRow("torn") << QStringLiteral("fault torn 50");
    QTest::newRow("garbage") << QStringLiteral("fault garbage 50");
    QTest::newRow("repeated") << QStringLiteral("fault repeat 50");
    QTest::newRow("reordered") << QStringLiteral("fault reorder 50");
}

void TstProcessorNode::faultsOnTheLinkLeaveTheScreenAlive()
{
    QFETCH(QString, command);
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    VERIFY_DESK(desk.press({ QStringLiteral("Enter") }), desk);
    QProcess tell;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QUVERA_ROOT"), desk.root());
    tell.setProcessEnvironment(environment);
    tell.start(QStringLiteral(QUVERA_BIN_DIR) + QStringLiteral("/quvera-processor"),
               { QStringLiteral("--tell"), command });
    QVERIFY(tell.waitForFinished(20000));
    QVERIFY2(tell.exitCode() == 0, tell.readAllStandardError() + tell.readAllStandardOutput());
    VERIFY_DESK(showsLiveValues(desk), desk);
    QVERIFY(desk.isInstrumentRunning());
}

QTEST_GUILESS_MAIN(TstProcessorNode)

#include "tst_processornode.moc"
