#include "report/reportwriter.h"
#include "unit/report/reporttexts.h"

#include <QTest>

#include <limits>

using namespace ReportTexts;

/// The sections behind the first page, line by line.
class TstReportSections : public QObject
{
    Q_OBJECT

private slots:
    void harmonicsReachTheirLimitsOrderByOrder();
    void withoutHarmonicsThereIsNoSection();
    void eventsHaveTheirPhaseTheirLengthAndTheirValue();
    void eventsOfLinesAreNamedByThem();
    void eventsThatAreNotListedAreCounted();
    void eventsBeforeTheRecordingAreMarked();
    void withoutAnEventThatIsSaid();
    void slowEventsAreThoseOfTheInstrument_data();
    void slowEventsAreThoseOfTheInstrument();
    void momentsHaveTheirHeadings();
    void instrumentAndSettingsAreListed();
    void whatIsNotKnownIsADash();
    void whatIsMissingIsListed();
    void nothingIsMissing();
    void kindsAndReasonsHaveTheirWords();
};

namespace {

Judgement withEvents(const QVector<RecordedEvent> &events)
{
    Judgement j = emptyWeek();
    j.overview.events = events;
    for (const RecordedEvent &event : events)
        j.listed.insert(event.number);
    return j;
}

QStringList paragraphsOf(const Judgement &j, const QString &heading)
{
    return textsOf(sectionOf(contentOf(j), heading), ReportBlock::Paragraph);
}

ReportTable firstTableOf(const QVector<ReportBlock> &blocks)
{
    for (const ReportBlock &block : blocks) {
        if (block.kind == ReportBlock::Table)
            return block.table;
    }
    return {};
}

const char *const kThresholds = "Voltage, harmonics, unbalance, frequency and flicker: events as the instrument found "
                                "them, by thresholds of its own. The verdict does not rest on them.";

} // namespace

void TstReportSections::harmonicsReachTheirLimitsOrderByOrder()
{
    Judgement j = emptyWeek();
    j.verdicts = { harmonic(0, 2, 95, 2, 0.5, Outcome::Pass),
                   harmonic(1, 2, 95, 2, 0.4, Outcome::Pass),
                   harmonic(0, 5, 95, 6, 6.6, Outcome::Fail),
                   harmonic(1, 5, 95, 6, 3.3, Outcome::Pass),
                   harmonic(1, 7, 95, 5, 1.2, Outcome::Pass), // L1 has none
                   harmonic(0, 9, 95, Bounds::kNone, 8.8, Outcome::NotApplied),
                   harmonic(0, 11, 99.5, 3.5, 2.1, Outcome::Pass) };
    const ReportTable table = tableOf(j, "Reached in the share of time, percent of the fundamental");
    QCOMPARE(table.head, lines({ "Order", "Limit", "L1", "L2", "Result" }));
    // Each shows the value of the share, half of its worst; the phase that fails is marked, and the order with it.
    QCOMPARE(rowsOf(table),
             lines({ "2 | 95 %: ≤ 2.00 % | 0.50 | 0.40 | pass+", "5 | 95 %: ≤ 6.00 % | 6.60- | 3.30 | fail-",
                     "7 | 95 %: ≤ 5.00 % | – | 1.20 | pass+", "11 | 99.5 %: ≤ 3.50 % | 2.10 | – | pass+" }));
    j.overview.facts.joinMode = 4;
    QCOMPARE(tableOf(j, table.caption).head, lines({ "Order", "Limit", "L12", "L23", "Result" }));
}

void TstReportSections::withoutHarmonicsThereIsNoSection()
{
    Judgement j = emptyWeek();
    const auto headings = [](const Judgement &judgement) {
        QStringList texts;
        for (const ReportBlock &block : contentOf(judgement).blocks) {
            if (block.kind == ReportBlock::Heading)
                texts << block.text + (block.anchor.isEmpty() ? QString() : '>' + block.anchor);
        }
        return texts;
    };
    QCOMPARE(headings(j), lines({ "Events>events", "Instrument and settings", "Missing and not judged" }));
    j.verdicts = { harmonic(0, 2, 95, 2, 0.5, Outcome::Pass) };
    QCOMPARE(headings(j).first(), QStringLiteral("Harmonics"));
}

void TstReportSections::eventsHaveTheirPhaseTheirLengthAndTheirValue()
{
    const qint64 t = kStart;
    QVector<RecordedEvent> events = { madeEvent(1, EventDip, 1, t, t + 420, 150), // of 230 V: 65.2 percent
                                      madeEvent(2, EventInterruption, 0, t + 1000, t + 1000, 3),
                                      madeEvent(3, EventFlicker, 2, t + 2000, t + 602000, 1.25f),
                                      madeEvent(4, 4, 0, t + 3000, t + 15300, 7.5f),
                                      madeEvent(5, EventFrequency, 0, t + 4000, t + 14000, 49.3f),
                                      madeEvent(6, EventUnbalance, 0, t + 5000, t + 15000, 2.6f),
                                      madeEvent(7, EventInrush, 1, t + 6000, t + 6800, 85.5f),
                                      madeEvent(8, EventSwell, 2, -5, t, 260),
                                      madeEvent(9, EventRvc, 0, t, std::numeric_limits<qint64>::max(), 12.5f),
                                      madeEvent(10, EventThd, 1, t, t + 700, 8.25f),
                                      madeEvent(11, EventRms, 3, t, t + Weeks::kDay, 255),
                                      madeEvent(12, EventHarmonicLast, 4, t, t - 1, 1.5f) };
    events[1].item.finished = 0;
    const ReportTable table = tableOf(withEvents(events), "Events");
    QCOMPARE(table.head, lines({ "No.", "Event", "Phase", "Begin", "Duration", "Value", "Of nominal" }));
    // Frequency and unbalance have no phase; volts alone are a share of the nominal voltage.
    QCOMPARE(rowsOf(table),
             lines({ "1 | Dip | L2 | 2023-11-14 22:20:00 | 0.420 s | 150.0 V | 65.2 %",
                     "2 | Interruption | L1 | 2023-11-14 22:20:01 | goes on | 3.0 V | 1.3 %",
                     "3 | Flicker | L3 | 2023-11-14 22:20:02 | 00:10:00 | 1.25 | –",
                     "4 | Harmonic 5 | L1 | 2023-11-14 22:20:03 | 12.3 s | 7.50 % | –",
                     "5 | Frequency | – | 2023-11-14 22:20:04 | 10.0 s | 49.300 Hz | –",
                     "6 | Unbalance | – | 2023-11-14 22:20:05 | 10.0 s | 2.60 % | –",
                     "7 | Inrush | L2 | 2023-11-14 22:20:06 | 0.800 s | 85.5 A | –",
                     "8 | Swell | L3 | – | – | 260.0 V | 113.0 %",
                     "9 | Rapid voltage change | L1 | 2023-11-14 22:20:00 | – | 12.5 V | 5.4 %",
                     "10 | THD | L2 | 2023-11-14 22:20:00 | 0.700 s | 8.25 % | –",
                     "11 | Voltage | N | 2023-11-14 22:20:00 | 1 d 00:00:00 | 255.0 V | 110.9 %",
                     "12 | Harmonic 25 | – | 2023-11-14 22:20:00 | – | 1.50 % | –" }));
    QCOMPARE(table.anchors.mid(0, 2).toList(), QList<QString>({ "event-1", "event-2" }));
    QCOMPARE(table.anchors.size(), 12);
    Judgement unknown = withEvents(events.mid(0, 1));
    unknown.setup.nominalVolt = 0;
    QCOMPARE(column(tableOf(unknown, "Events"), 6), lines({ "–" }));
}

void TstReportSections::eventsOfLinesAreNamedByThem()
{
    Judgement j = withEvents({ madeEvent(1, EventDip, 1, kStart, kStart + 100, 150),
                               madeEvent(2, EventInrush, 1, kStart, kStart + 100, 50) });
    j.overview.facts.joinMode = 4; // three phases without a star point: its currents are still those of the inputs
    QCOMPARE(column(tableOf(j, "Events"), 2), lines({ "L23", "L2" }));
}

void TstReportSections::eventsThatAreNotListedAreCounted()
{
    Judgement j = withEvents({ madeEvent(1, EventDip, 0, kStart, kStart + 100, 150),
                               madeEvent(2, EventDip, 0, kStart + 1000, kStart + 1100, 151),
                               madeEvent(3, EventDip, 0, kStart + 2000, kStart + 2100, 152) });
    QCOMPARE(paragraphsOf(j, "Events"), QStringList());
    j.listed.remove(2);
    QCOMPARE(column(tableOf(j, "Events"), 0), lines({ "1", "3" }));
    QCOMPARE(paragraphsOf(j, "Events"), lines({ "Further events, not listed: 1." }));
    j.overview.eventsBeyond = 40;
    QCOMPARE(paragraphsOf(j, "Events"), lines({ "Further events, not listed: 41." }));
}

void TstReportSections::eventsBeforeTheRecordingAreMarked()
{
    Judgement j = withEvents({ madeEvent(1, EventDip, 0, kStart - 9000, kStart - 8900, 150),
                               madeEvent(2, EventDip, 0, kStart - 50, kStart + 50, 151), // runs into it
                               madeEvent(3, EventDip, 0, kStart - 50, kStart, 152), // ends as it begins
                               madeEvent(4, EventDip, 0, kStart - 9000, kStart - 8900, 153) });
    j.overview.events[3].item.finished = false; // what it has of an end is none
    j.overview.countsFrom = kStart;
    QCOMPARE(column(tableOf(j, "Events"), 3),
             lines({ "2023-11-14 22:19:51 *", "2023-11-14 22:19:59", "2023-11-14 22:19:59", "2023-11-14 22:19:51" }));
    const QString note = "* Over before the recording began: found by the running measurement, and not counted in the "
                         "verdict.";
    QCOMPARE(paragraphsOf(j, "Events"), QStringList { note });
    // Without one, or where the table leaves it out, there is no note.
    j.listed.remove(1);
    QVERIFY(!paragraphsOf(j, "Events").contains(note));
}

void TstReportSections::withoutAnEventThatIsSaid()
{
    QCOMPARE(paragraphsOf(emptyWeek(), "Events"), lines({ "No event was recorded." }));
}

void TstReportSections::slowEventsAreThoseOfTheInstrument_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isSlow");
    for (const int type : { EventThd, EventHarmonicFirst, EventRms, EventFlicker, EventUnbalance, EventFrequency })
        QTest::newRow(qPrintable(QString::number(type))) << type << true;
    for (const int type : { EventDip, EventSwell, EventInterruption, EventRvc, EventInrush })
        QTest::newRow(qPrintable(QString::number(type))) << type << false;
}

void TstReportSections::slowEventsAreThoseOfTheInstrument()
{
    QFETCH(int, type);
    QFETCH(bool, isSlow);
    const Judgement j = withEvents({ madeEvent(1, type, 0, kStart, kStart + 100, 1) });
    QCOMPARE(paragraphsOf(j, "Events"), isSlow ? lines({ kThresholds }) : QStringList());
}

void TstReportSections::momentsHaveTheirHeadings()
{
    Judgement j = withEvents({ madeEvent(7, EventDip, 0, kStart + 1000, kStart + 1100, 150),
                               madeEvent(8, EventSwell, 0, kStart + 2000, kStart + 2100, 260) });
    Moment dip;
    dip.event = j.overview.events.first();
    dip.event.item.startRms[0] = { { kStart, 230 }, { kStart + 1000, 150 } };
    Moment bare; // of which nothing was recorded
    bare.event = j.overview.events.last();
    Moment transient;
    transient.wave.channels = { { "U_L1", "L1", "V", 0.1f } };
    transient.wave.sampleRate = 1000;
    transient.wave.start = double(kStart + 3000);
    transient.samples = { 100, -100, 50 };
    Moment lost = transient;
    lost.wave.start = 1e300;
    j.moments = { dip, bare, transient, lost };
    const QVector<ReportBlock> section = sectionOf(contentOf(j), "Worst moments");
    QCOMPARE(textsOf(section, ReportBlock::SubHeading),
             lines({ "7. Dip, 2023-11-14 22:20:01", "Transient, 2023-11-14 22:20:03", "Transient, –" }));
    QCOMPARE(section.first().anchor, QStringLiteral("moment-7"));
    QCOMPARE(section.at(2).anchor, QString());
    const ReportTable table = tableOf(j, "Events");
    QCOMPARE(rowsOf(table).at(0).section(" | ", 0, 0), QStringLiteral("7>moment-7"));
    QCOMPARE(rowsOf(table).at(1).section(" | ", 0, 0), QStringLiteral("8"));
}

void TstReportSections::instrumentAndSettingsAreListed()
{
    Judgement j = emptyWeek();
    RecordFacts &facts = j.overview.facts;
    facts.model = "MODEL 1";
    facts.serialNumber = "1AA000002";
    facts.softwareVersion = "2.2.3";
    facts.firmware = "1.4";
    facts.joinMode = 5;
    facts.nominalVolt = 120;
    facts.nominalFrequency = 60;
    facts.clamp = "clamp\n6";
    facts.clampN = "clamp 7";
    facts.ratio = "8/1;1/1";
    facts.ratioN = "9/1;1/1";
    const QVector<ReportBlock> section = sectionOf(contentOf(j), "Instrument and settings");
    QCOMPARE(rowsOf(firstTableOf(section)),
             lines({ "Model~ | MODEL 1", "Serial number~ | 1AA000002", "Software~ | 2.2.3", "Firmware~ | 1.4",
                     "Wiring~ | 1P SPLIT PHASE", "Nominal voltage~ | 120.0 V", "Nominal frequency~ | 60 Hz",
                     "Clamp~ | clamp 6", "Clamp N~ | clamp 7", "Ratio~ | 8/1;1/1", "Ratio N~ | 9/1;1/1",
                     "Limit set~ | EN50160" }));
    QCOMPARE(textsOf(section, ReportBlock::Paragraph),
             lines({ "The limits are those of the set chosen for this report. A recording does not say which set was "
                     "in use on the instrument." }));
}

void TstReportSections::whatIsNotKnownIsADash()
{
    Judgement j = emptyWeek();
    j.overview.facts = {};
    j.limitsName.clear();
    const ReportTable table = firstTableOf(sectionOf(contentOf(j), "Instrument and settings"));
    QCOMPARE(table.rows.size(), 12);
    QCOMPARE(column(table, 1).count(QStringLiteral("–")), 12);
}

void TstReportSections::whatIsMissingIsListed()
{
    Judgement j = emptyWeek();
    j.setup.limits.frequency1.value = 110;
    j.setup.limits.frequency2.value = 175;
    j.notJudged = { { Quantity::Plt, NotJudgedBecause::NotRecorded },
                    { Quantity::Voltage, NotJudgedBecause::IntervalTooLong },
                    { Quantity::Signal2, NotJudgedBecause::NotTheInterval },
                    { Quantity::Frequency, NotJudgedBecause::NoNominal },
                    { Quantity::Thd, NotJudgedBecause::NoValue } };
    j.gaps = { { Quantity::Pst, 7.9 } };
    QuantityVerdict gaps = verdict({ Quantity::Unbalance, -1, 0 }, 95, -Bounds::kNone, 2, Outcome::Pass);
    gaps.withoutNumber = 30;
    gaps.unread = 4;
    QuantityVerdict beyond = verdict({ Quantity::Pst, 1, 0 }, 95, -Bounds::kNone, 1, Outcome::Pass);
    beyond.unread = 5;
    QuantityVerdict order = harmonic(0, 2, 95, 2, 0.5, Outcome::Pass);
    order.withoutNumber = 6; // those of the THD say it for all orders
    j.verdicts = { gaps, beyond, order };
    j.incompleteTenMinutes = 8;
    j.overview.log = QStringList { "2023-11-14 battery\n low", "second line" };
    ReportSource source;
    source.faults = { { "/folder/Volt.pqa2", 4711, "no\nblock" } };
    const ReportContent content = contentOf(j, source);
    const QString heading = "Missing and not judged";
    QCOMPARE(itemsOf(content, heading),
             lines({ "Volt.pqa2, 4711: no block", "Flicker Plt could not be judged: it was not recorded.",
                     "Voltage could not be judged: its intervals are longer than ten minutes.",
                     "Mains signal 175 Hz could not be judged: its intervals are longer than three seconds.",
                     "Frequency could not be judged: its nominal value is not known.",
                     "THD could not be judged: each of its intervals is incomplete or has an interruption.",
                     "Flicker Pst was judged in 7 % of the time only.", "Unbalance, intervals without a value: 34.",
                     "Flicker Pst L2, intervals without a value: 5.", "Incomplete ten minutes: 8.",
                     "2023-11-14 battery low", "second line" }));
    QCOMPARE(textsOf(sectionOf(content, heading), ReportBlock::Paragraph), lines({ "All times are UTC." }));
}

void TstReportSections::nothingIsMissing()
{
    QCOMPARE(paragraphsOf(emptyWeek(), "Missing and not judged"), lines({ "Nothing.", "All times are UTC." }));
}

void TstReportSections::kindsAndReasonsHaveTheirWords()
{
    QStringList kinds;
    for (const RecordKind kind :
         { RecordKind::Monitor, RecordKind::Waveform, RecordKind::Page, RecordKind::Log, RecordKind::Recording })
        kinds << Report::kindName(kind);
    QCOMPARE(kinds, lines({ "Monitor", "Waveform capture", "Saved page", "Logger", "Recording" }));
    QStringList outcomes;
    for (const Outcome outcome : { Outcome::NotApplied, Outcome::NotJudged, Outcome::Pass, Outcome::Fail })
        outcomes << Report::outcome(outcome);
    QCOMPARE(outcomes, lines({ "no limit", "not judged", "pass", "fail" }));
}

QTEST_GUILESS_MAIN(TstReportSections)
#include "tst_reportsections.moc"
