#include "painted.h"

#include "settings/phasecolor.h"
#include "widgets/charts/harmonicgraph.h"

#include <QTest>

#include <cmath>

static const QColor kGrey(Qt::darkGray);

class TstHarmonicGraph : public QObject
{
    Q_OBJECT

private slots:
    void init() { PhaseColor::setPhaseColors(QStringLiteral("01231")); }
    void withoutAListOnlyTheFrameIsDrawn();
    void framePixels();
    void lastOrderIsLimitedTo100();
    void windowIsLimitedByTheList_data();
    void windowIsLimitedByTheList();
    void cursorPositionsOfOneChannel();
    void cursorPositionsOfAllChannels();
    void cursorPositionsOfTwoPhases();
    void cursorIsHeldToItsTable();
    void cursorIsMaxedOnTheLastBar_data();
    void cursorIsMaxedOnTheLastBar();
    void cursorOfAnUnknownTypeIsAlwaysMaxed();
    void barsOfOneChannelAreThreePixelsWideInItsColour();
    void interharmonicsTakeSuccessivePositions();
    void barsOfAllChannelsStandSideBySide();
    void splitPhaseShowsTwoBarsAGroup();
    void hundredPercentReachesTheTopAndMoreIsClipped();
    void valuesThatAreNoNumberHaveNoBar();
    void cursorIsDrawnAtItsPosition();
    void ordersAreLabelledWithoutOverlap();
};

static QList<__graphdata> bars(int count, float value = 50.0f)
{
    QList<__graphdata> list;
    for (int i = 0; i < count; ++i)
        list << __graphdata { { value, value, value, value } };
    return list;
}

static void prepare(HarmonicGraph &graph)
{
    graph.resize(601, 320);
}

void TstHarmonicGraph::withoutAListOnlyTheFrameIsDrawn()
{
    HarmonicGraph graph;
    prepare(graph);
    const QImage image = painted(graph);
    QCOMPARE(countPixels(image, graph.rect(), Qt::white), 0); // no cursor
    QCOMPARE(countPixels(image, edges(60, 0, 600, 299), Qt::black), 541 * 300);
    QCOMPARE(countPixels(image, edges(75, 301, 600, 319), Qt::black), 526 * 19);
    graph.showGraph(nullptr, 1, 50);
    QCOMPARE(painted(graph), image);
    QCOMPARE(graph.barCount(), 0);
}

void TstHarmonicGraph::framePixels()
{
    HarmonicGraph graph;
    prepare(graph);
    const QImage image = painted(graph);
    QVERIFY(countPixels(image, edges(0, 0, 0, 299), kGrey) >= 98);
    QVERIFY(countPixels(image, edges(0, 300, 599, 300), kGrey) >= 198);
    for (const int y : { 30, 60, 90, 120, 180, 210, 240, 270 })
        QCOMPARE(countPixels(image, edges(0, y, 10, y), kGrey), 4);
    for (const int x : { 20, 50 })
        QCOMPARE(countPixels(image, edges(x, 300, x, 303), kGrey), 4);
    QVERIFY(countPixels(image, edges(2, 1, 34, 12), Qt::black) < 33 * 12); // "100%"
    QVERIFY(countPixels(image, edges(2, 144, 30, 155), Qt::black) < 29 * 12); // "50%"
}

void TstHarmonicGraph::lastOrderIsLimitedTo100()
{
    HarmonicGraph graph;
    const QList<__graphdata> list = bars(60);
    graph.showGraph(&list, 76, 125);
    QCOMPARE(graph.firstOrder(), 76);
    QCOMPARE(graph.lastOrder(), 100);
    QCOMPARE(graph.barCount(), 25);
    graph.showGraph(&list, 120, 110); // first above last
    QCOMPARE(graph.firstOrder(), 100);
    QCOMPARE(graph.lastOrder(), 100);
    QCOMPARE(graph.barCount(), 1);
}

void TstHarmonicGraph::windowIsLimitedByTheList_data()
{
    QTest::addColumn<int>("entries");
    QTest::addColumn<bool>("inharm");
    QTest::addColumn<int>("count"); // of the orders 1 to 50
    QTest::newRow("all there") << 52 << false << 50;
    QTest::newRow("400 Hz: twelve orders") << 14 << false << 12;
    QTest::newRow("in pairs") << 52 << true << 25;
    QTest::newRow("half a pair") << 15 << true << 6;
    QTest::newRow("only THD and DC") << 2 << false << 0;
    QTest::newRow("one entry") << 1 << true << 0;
    QTest::newRow("empty") << 0 << false << 0;
}

void TstHarmonicGraph::windowIsLimitedByTheList()
{
    QFETCH(int, entries);
    QFETCH(bool, inharm);
    HarmonicGraph graph;
    prepare(graph);
    graph.setinharmEnabled(inharm);
    QCOMPARE(graph.inharmEnabled(), inharm);
    const QList<__graphdata> list = bars(entries);
    graph.showGraph(&list, 1, 50);
    QTEST(graph.barCount(), "count");
    QCOMPARE(painted(graph).size(), graph.size());
}

void TstHarmonicGraph::cursorPositionsOfOneChannel()
{
    HarmonicGraph graph;
    for (int type = GraphL1; type <= GraphN; ++type) {
        graph.setgraphType(type);
        for (int i = 0; i < 52; ++i) {
            graph.setCursorPosition(i);
            QCOMPARE(graph.cursorX(), i == 0 ? 20 : i == 1 ? 50 : 80 + 10 * (i - 2));
        }
    }
}

void TstHarmonicGraph::cursorPositionsOfAllChannels()
{
    HarmonicGraph graph;
    graph.setgraphType(GraphAll);
    const int known[][2] = { { 0, 16 }, { 1, 20 }, { 2, 24 },   { 3, 46 },   { 5, 54 },   { 6, 76 },  { 7, 80 },
                             { 8, 84 }, { 9, 96 }, { 12, 116 }, { 80, 564 }, { 81, 576 }, { 83, 584 } };
    for (const auto &row : known) {
        graph.setCursorPosition(row[0]);
        QCOMPARE(graph.cursorX(), row[1]);
    }
}

void TstHarmonicGraph::cursorPositionsOfTwoPhases()
{
    HarmonicGraph graph;
    graph.setgraphType(GraphAll);
    graph.setgraphTypeEx(GraphTwoPhases);
    QCOMPARE(graph.graphTypeEx(), int(GraphTwoPhases));
    const int known[][2] = { { 0, 16 }, { 1, 20 },   { 2, 46 },   { 3, 50 }, { 4, 76 }, { 5, 80 },
                             { 6, 96 }, { 54, 576 }, { 55, 580 }, { 56, 0 }, { 83, 0 } };
    for (const auto &row : known) {
        graph.setCursorPosition(row[0]);
        QCOMPARE(graph.cursorX(), row[1]);
    }
}

void TstHarmonicGraph::cursorIsHeldToItsTable()
{
    HarmonicGraph graph;
    graph.setCursorPosition(-3);
    QCOMPARE(graph.cursorIndex(), 0);
    graph.setCursorPosition(1000);
    QCOMPARE(graph.cursorIndex(), 51);
    graph.setgraphType(GraphAll);
    graph.setCursorPosition(1000);
    QCOMPARE(graph.cursorIndex(), 83);
}

void TstHarmonicGraph::cursorIsMaxedOnTheLastBar_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("typeEx");
    QTest::addColumn<bool>("inharm");
    QTest::addColumn<int>("orders");
    QTest::addColumn<int>("lastIndex");
    // Indices count THD and DC too: bars per group times (groups + 2), minus one.
    QTest::newRow("one channel, 50 orders") << int(GraphL1) << 1 << false << 50 << 51;
    QTest::newRow("one channel, 12 orders") << int(GraphN) << 1 << false << 12 << 13;
    QTest::newRow("one channel, 25 pairs") << int(GraphL2) << 1 << true << 25 << 51;
    QTest::newRow("all, 25 orders") << int(GraphAll) << 1 << false << 25 << 80;
    QTest::newRow("all, 13 pairs") << int(GraphAll) << 1 << true << 13 << 83;
    QTest::newRow("two phases, 25 orders") << int(GraphAll) << 2 << false << 25 << 53;
    QTest::newRow("two phases, 13 pairs") << int(GraphAll) << 2 << true << 13 << 55;
}

void TstHarmonicGraph::cursorIsMaxedOnTheLastBar()
{
    QFETCH(int, type);
    QFETCH(int, typeEx);
    QFETCH(bool, inharm);
    QFETCH(int, orders);
    QFETCH(int, lastIndex);
    HarmonicGraph graph;
    graph.setgraphType(type);
    graph.setgraphTypeEx(typeEx);
    graph.setinharmEnabled(inharm);
    const QList<__graphdata> list = bars(2 + orders * (inharm ? 2 : 1));
    graph.showGraph(&list, 1, orders);
    graph.setCursorPosition(lastIndex - 1);
    QVERIFY(!graph.isCursorMaxed());
    graph.setCursorPosition(lastIndex);
    QVERIFY(graph.isCursorMaxed());
}

void TstHarmonicGraph::cursorOfAnUnknownTypeIsAlwaysMaxed()
{
    HarmonicGraph graph;
    for (const int type : { 0, 6, -1 }) {
        graph.setgraphType(type);
        QVERIFY(graph.isCursorMaxed());
    }
}

void TstHarmonicGraph::barsOfOneChannelAreThreePixelsWideInItsColour()
{
    HarmonicGraph graph;
    prepare(graph);
    QList<__graphdata> list = bars(12, 0.0f);
    list[0].value[1] = 10.0f; // THD of L2: 30 pixels
    list[1].value[1] = 20.0f;
    list[2].value[1] = 50.0f;
    list[4].value[1] = 40.0f;
    list[4].value[0] = 90.0f; // L1 is not shown
    graph.setgraphType(GraphL2);
    graph.showGraph(&list, 1, 10);
    graph.setCursorPosition(11); // out of the way, x = 170
    const QImage image = painted(graph);
    const QColor color = PhaseColor::colorB();
    QCOMPARE(countPixels(image, edges(15, 0, 25, 299), color), 3 * 30);
    QCOMPARE(countPixels(image, edges(19, 270, 21, 299), color), 3 * 30);
    QCOMPARE(countPixels(image, edges(49, 240, 51, 299), color), 3 * 60);
    QCOMPARE(countPixels(image, edges(79, 150, 81, 299), color), 3 * 150);
    QCOMPARE(countPixels(image, edges(99, 180, 101, 299), color), 3 * 120);
    QCOMPARE(countPixels(image, graph.rect(), color), 3 * (30 + 60 + 150 + 120));
}

void TstHarmonicGraph::interharmonicsTakeSuccessivePositions()
{
    HarmonicGraph graph;
    prepare(graph);
    graph.setinharmEnabled(true);
    QList<__graphdata> list = bars(2 + 6, 0.0f);
    for (int i = 0; i < 6; ++i)
        list[2 + i].value[0] = 10.0f * (i + 1); // H1, I1, H2, I2, H3, I3
    graph.showGraph(&list, 1, 3);
    const QImage image = painted(graph);
    for (int i = 0; i < 6; ++i)
        QCOMPARE(countPixels(image, edges(79 + 10 * i, 0, 81 + 10 * i, 299), PhaseColor::colorA()), 3 * 30 * (i + 1));
}

void TstHarmonicGraph::barsOfAllChannelsStandSideBySide()
{
    HarmonicGraph graph;
    prepare(graph);
    graph.setgraphType(GraphAll);
    QList<__graphdata> list = bars(4, 0.0f);
    list[3] = __graphdata { { 10.0f, 20.0f, 30.0f, 40.0f } }; // order 2, group at 100
    graph.showGraph(&list, 1, 2);
    graph.setCursorPosition(0);
    const QImage image = painted(graph);
    QCOMPARE(countPixels(image, edges(95, 0, 97, 299), PhaseColor::colorA()), 3 * 30);
    QCOMPARE(countPixels(image, edges(99, 0, 101, 299), PhaseColor::colorB()), 3 * 60);
    QCOMPARE(countPixels(image, edges(103, 0, 105, 299), PhaseColor::colorC()), 3 * 90);
    QCOMPARE(countPixels(image, graph.rect(), PhaseColor::colorN()), 0);
}

void TstHarmonicGraph::splitPhaseShowsTwoBarsAGroup()
{
    HarmonicGraph graph;
    prepare(graph);
    graph.setgraphType(GraphAll);
    graph.setgraphTypeEx(GraphTwoPhases);
    QList<__graphdata> list = bars(3, 0.0f);
    list[2] = __graphdata { { 10.0f, 20.0f, 30.0f, 40.0f } }; // order 1, group at 80
    graph.showGraph(&list, 1, 1);
    graph.setCursorPosition(0);
    const QImage image = painted(graph);
    QCOMPARE(countPixels(image, edges(75, 0, 77, 299), PhaseColor::colorA()), 3 * 30);
    QCOMPARE(countPixels(image, edges(79, 0, 81, 299), PhaseColor::colorB()), 3 * 60);
    QCOMPARE(countPixels(image, graph.rect(), PhaseColor::colorC()), 0);
}

void TstHarmonicGraph::hundredPercentReachesTheTopAndMoreIsClipped()
{
    HarmonicGraph graph;
    prepare(graph);
    QList<__graphdata> list = bars(4, 0.0f);
    list[2].value[0] = 100.0f;
    list[3].value[0] = 250.0f;
    graph.showGraph(&list, 1, 2);
    const QImage image = painted(graph);
    QCOMPARE(countPixels(image, edges(79, 0, 81, 299), PhaseColor::colorA()), 3 * 300);
    QCOMPARE(countPixels(image, edges(89, 0, 91, 299), PhaseColor::colorA()), 3 * 300);
}

void TstHarmonicGraph::valuesThatAreNoNumberHaveNoBar()
{
    HarmonicGraph graph;
    prepare(graph);
    QList<__graphdata> list = bars(5, 0.0f);
    list[2].value[0] = NAN;
    list[3].value[0] = -20.0f;
    list[4].value[0] = INFINITY;
    graph.showGraph(&list, 1, 3);
    const QImage image = painted(graph);
    QCOMPARE(countPixels(image, edges(79, 0, 81, 319), PhaseColor::colorA()), 0);
    QCOMPARE(countPixels(image, edges(89, 0, 91, 319), PhaseColor::colorA()), 0);
    QCOMPARE(countPixels(image, edges(99, 0, 101, 319), PhaseColor::colorA()), 3 * 300);
}

void TstHarmonicGraph::cursorIsDrawnAtItsPosition()
{
    HarmonicGraph graph;
    prepare(graph);
    const QList<__graphdata> list = bars(52, 0.0f);
    graph.showGraph(&list, 1, 50);
    graph.setCursorPosition(12); // order 11, x = 180
    const QImage image = painted(graph);
    QCOMPARE(countPixels(image, edges(180, 1, 180, 300), Qt::white), 300);
    QCOMPARE(countPixels(image, edges(178, 2, 178, 12), Qt::white), 11);
    QCOMPARE(image.pixelColor(184, 7), QColor(Qt::white));
}

void TstHarmonicGraph::ordersAreLabelledWithoutOverlap()
{
    const struct
    {
        int type;
        bool inharm;
        int first;
        int last;
    } forms[] = { { GraphL1, false, 1, 50 },  { GraphL1, true, 1, 25 },     { GraphL1, true, 76, 100 },
                  { GraphAll, false, 1, 25 }, { GraphAll, false, 76, 100 }, { GraphAll, true, 92, 100 } };
    for (const auto &form : forms) {
        HarmonicGraph graph;
        prepare(graph);
        graph.setgraphType(form.type);
        graph.setinharmEnabled(form.inharm);
        const QList<__graphdata> list = bars(2 + (form.last - form.first + 1) * (form.inharm ? 2 : 1), 0.0f);
        graph.showGraph(&list, form.first, form.last);
        const QImage image = painted(graph);
        // Between two labels there is at least one run of four empty columns, and digits never fill 30 in a row.
        int run = 0;
        int longest = 0;
        int labelled = 0;
        for (int x = 62; x < 600; ++x) {
            const bool empty = countPixels(image, edges(x, 305, x, 319), Qt::black) == 15;
            labelled += !empty;
            run = empty ? 0 : run + 1;
            longest = qMax(longest, run);
        }
        QVERIFY(labelled > 20);
        QVERIFY2(longest < 24, qPrintable(QString::number(longest)));
    }
}

QTEST_MAIN(TstHarmonicGraph)
#include "tst_harmonicgraph.moc"
