#include "settings/config_data.h"
#include "device/controlframe.h"
#include "device/deviceinit.h"
#include "device/idevice.h"
#include "unit/documentpage.h"
#include "openlink.h"
#include "testpaths.h"

#include <QTest>
#include <cstring>

/// docs/link-protocol.md against the code.
class TstLinkProtocol : public QObject
{
    Q_OBJECT

private slots:
    void tableOfKindsIsThatOfTheCode();
    void tableOfFramesNamesTheCommands();
    void everyPrintedLineStandsInTheSource_data();
    void everyPrintedLineStandsInTheSource();
    void packageExampleIsEmittedAsDocumented();
    void frameExampleIsWhatIsSent();

private:
    const DocumentPage m_page { QStringLiteral("link-protocol.md") };
};

void TstLinkProtocol::tableOfKindsIsThatOfTheCode()
{
    const QVector<QStringList> rows = m_page.table(QStringLiteral("## Kinds"));
    QCOMPARE(rows.size(), kDatagramKindCount);
    for (int i = 0; i < kDatagramKindCount; ++i) {
        const DatagramKind &kind = kDatagramKinds[i];
        QCOMPARE(rows[i][0].toInt(), int(kind.type));
        QCOMPARE(rows[i][1], QString::fromLatin1(kind.name));
        QCOMPARE(rows[i][2].toInt(), kind.words);
        QCOMPARE(rows[i][3].toInt(), emittedBytes(kind));
        QCOMPARE(rows[i][4].toInt(), packagesOnWire(kind));
    }
}

void TstLinkProtocol::tableOfFramesNamesTheCommands()
{
    QVector<uint> ids;
    for (const QStringList &row : m_page.table(QStringLiteral("## Frames")))
        ids << row[0].toUInt();
    using namespace ControlFrame;
    QCOMPARE(ids, (QVector<uint> { StreamControl, StreamControl, FirmwareInfo, SetClock, FirmwareTransfer, SetUp }));
    const QString text = m_page.section(QStringLiteral("## Frames"));
    for (quint32 word : { kStart, kEnd, kEscape })
        QVERIFY(text.contains(QString::number(word)));
}

void TstLinkProtocol::everyPrintedLineStandsInTheSource_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<int>("count");
    QTest::newRow("link") << QStringLiteral("## Assembly") << QStringLiteral("devicedsp") << 7;
    QTest::newRow("hand-over") << QStringLiteral("## Hand-over") << QStringLiteral("deliveryqueue") << 2;
}

void TstLinkProtocol::everyPrintedLineStandsInTheSource()
{
    QFETCH(QString, section);
    QFETCH(QString, unit);
    QFETCH(int, count);
    QFile source(QStringLiteral(QUVERA_SOURCE_DIR "/src/device/%1.cpp").arg(unit));
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QString code = QString::fromUtf8(source.readAll());
    QStringList lines;
    for (const QString &line : m_page.section(section).split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1String("| `")))
            lines << line.mid(3, line.lastIndexOf(QLatin1Char('`')) - 3);
    }
    QCOMPARE(lines.size(), count);
    QCOMPARE(code.count(QStringLiteral("LineOutput::print(\"")), count);
    QVERIFY(!code.contains(QStringLiteral("printf(\"")));
    for (const QString &line : lines)
        QVERIFY2(code.contains(QLatin1Char('"') + line + QStringLiteral("\\n\"")), qPrintable(line));
}

void TstLinkProtocol::packageExampleIsEmittedAsDocumented()
{
    const QVector<QByteArray> blocks = m_page.hexBlocks(QStringLiteral("## Worked example"));
    QCOMPARE(blocks.size(), 3);
    QCOMPARE(blocks[0].size(), 56);
    OpenLink link;
    QVERIFY(link.open());
    link.take(blocks[0] + QByteArray(Link::kPackageBytes - blocks[0].size(), '\xee'));
    QCOMPARE(link.datagrams.size(), 1);
    QCOMPARE(link.datagrams[0].type, int(DatagramUpdate));
    QCOMPARE(link.datagrams[0].bytes, blocks[1]);
}

void TstLinkProtocol::frameExampleIsWhatIsSent()
{
    ProcessorPeer peer;
    m_idevice = new IDevice;
    QVERIFY(peer.accept());
    QVERIFY(peer.accept());
    peer.receive(30000);
    const quint32 pattern = 123;
    float volt[4] = {}, current[4] = {};
    memcpy(&volt[0], &pattern, 4);
    DeviceInit::changeCalibZero(volt, current);
    const QByteArray expected = m_page.hexBlocks(QStringLiteral("## Worked example")).value(2);
    QCOMPARE(expected.size(), 20);
    QCOMPARE(peer.receive(30000).left(expected.size()), expected);
    delete m_idevice;
}

QTEST_GUILESS_MAIN(TstLinkProtocol)
#include "tst_linkprotocol.moc"
