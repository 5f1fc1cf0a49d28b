#include "report/htmlreport.h"
#include "report/reportwriter.h"
#include "unit/report/reporttexts.h"

#include <QTest>

using namespace ReportTexts;

/// The tables and lines of the first page, cell by cell: the judged record is made by hand, each of its numbers
/// another.
class TstReportTables : public QObject
{
    Q_OBJECT

private slots:
    void headlineSaysWhatTheResultRestsOn_data();
    void headlineSaysWhatTheResultRestsOn();
    void everyQuantityHasItsRow();
    void limitsOfSharesWithAHalfAreShownWithIt();
    void whatFailsByALittleDoesNotLookAsIfItHeld();
    void worstHarmonicStandsForAll();
    void worstMomentLeadsToTheEventThatReachesIntoItsInterval();
    void kindsOfEventsAreCountedAgainstTheirLimit();
    void notesTellWhatTheResultRestsOn();
    void notesOfOtherRecordings_data();
    void notesOfOtherRecordings();
    void differenceIsExplainedByItsRule_data();
    void differenceIsExplainedByItsRule();
    void sameResultNeedsNoExplanation();
    void factsAreInTheTimeOfTheReader();
    void everyStateHasItsWord();
    void eachPieceIsAnElement();
    void hostileNamesStayInTheirLinks();
    void lineFeedsAreBrokenInTheTextAlone();
};

namespace {

/// Voltages and the like of a week, none of which says what another says.
Judgement judgedWeek()
{
    Judgement j = emptyWeek();
    QuantityVerdict frequency = verdict({ Quantity::Frequency, -1, 0 }, 99.5, 49.5, 50.5, Outcome::Pass);
    frequency.bounds.wholeLow = 47;
    frequency.bounds.wholeHigh = 52;
    frequency.whole = Outcome::Pass;
    fill(&frequency, 50.1234, 50.6, kStart + Weeks::kDay + 10000, 99.7, 30240); // of 60480 ten seconds: a half
    frequency.leftOut = 7; // ten seconds, not ten minutes
    QuantityVerdict low = verdict({ Quantity::Voltage, 0, 0 }, 95, 207, 253, Outcome::Fail);
    low.bounds.wholeLow = 195.5;
    low.bounds.wholeHigh = 264.5;
    low.whole = Outcome::Pass;
    fill(&low, 201.2, 197.54, kStart + 2 * Weeks::kDay, 91.7, 1008); // of 1008 ten minutes
    low.flagged = 4;
    low.leftOut = 2;
    low.partialUnflagged = Outcome::Pass;
    QuantityVerdict good = verdict({ Quantity::Voltage, 1, 0 }, 95, 207, 253, Outcome::Pass);
    fill(&good, 236.1, 238.9, kStart + 600000, 100, 756); // three quarters
    const QuantityVerdict none = verdict({ Quantity::Voltage, 2, 0 }, 95, 207, 253, Outcome::NotJudged);
    QuantityVerdict unbalance = verdict({ Quantity::Unbalance, -1, 0 }, 95, -Bounds::kNone, 2, Outcome::Pass);
    fill(&unbalance, 1.25, 1.75, kStart + 3 * Weeks::kDay, 99.1, 252); // a quarter
    QuantityVerdict zero = verdict({ Quantity::ZeroUnbalance, -1, 0 }, 100, -Bounds::kNone, Bounds::kNone,
                                   Outcome::NotApplied); // without a limit: not listed
    fill(&zero, 0.5, 0.75, kStart + 600000, 100, 1008);
    QuantityVerdict pst = verdict({ Quantity::Pst, 0, 0 }, 100, -Bounds::kNone, Bounds::kNone, Outcome::NotApplied);
    pst.bounds.wholeHigh = 1.4;
    pst.whole = Outcome::Fail;
    fill(&pst, 1.3, 1.55, kStart + 4 * Weeks::kDay, 100, 504);
    QuantityVerdict plt = verdict({ Quantity::Plt, 2, 0 }, 95, -Bounds::kNone, 1, Outcome::Pass);
    fill(&plt, 0.62, 0.88, kStart + 5 * Weeks::kDay, 98.8, 63); // of 84 two hours
    const QuantityVerdict signal = verdict({ Quantity::Signal1, 0, 0 }, 99, -Bounds::kNone, 9, Outcome::NotJudged);
    j.verdicts = { frequency, low, good, none, unbalance, zero, pst, plt, signal };
    j.notJudged.append({ Quantity::Signal1, NotJudgedBecause::NotTheInterval });
    j.setup.limits.frequency1.value = 110;
    j.instrument = { { frequency.key, true, false }, { low.key, false, true }, { good.key, true, true } };
    return j;
}

QStringList notesOf(const Judgement &judgement, const ReportSource &source = {})
{
    return itemsOf(contentOf(judgement, source), QString());
}

const char *const kReached = "Reached: so far go the values in the share of time that the limit asks for. Within: the "
                             "share that keeps to it. Judged: the share of the recording that has values.";
const char *const kShort
    = "The recording is shorter than a week. The limits hold for weeks: the result is an indication.";
const char *const kYear = "The standard asks for the frequency in 99.5 % of a year; the limit set judges weeks.";
const char *const kBand
    = "Instrument, voltage and frequency: it compares a hundred times the deviation in V or Hz with "
      "the limit in percent, and one value inside is enough. Hence the other result.";
const char *const kShare = "Instrument, harmonics: one value that is not below the limit fails, whatever the share. "
                           "Hence the other result.";
const char *const kOne = "Instrument, unbalance and flicker: one value below the limit is enough. Hence the other "
                         "result.";

} // namespace

void TstReportTables::headlineSaysWhatTheResultRestsOn_data()
{
    QTest::addColumn<int>("outcome");
    QTest::addColumn<int>("days");
    QTest::addColumn<int>("missing"); // a quantity, -1 none
    QTest::addColumn<int>("dips"); // one is allowed
    QTest::addColumn<QString>("headline");
    QTest::addColumn<int>("tone");
    const int pass = int(Outcome::Pass), fail = int(Outcome::Fail);
    const int good = int(Tone::Good), bad = int(Tone::Bad), plain = int(Tone::Plain);
    const QString complies = "The supply complies with EN50160.", fails = "The supply does not comply with EN50160.";
    const int plt = int(Quantity::Plt);
    QTest::newRow("pass") << pass << 7 << -1 << 1 << complies << good;
    QTest::newRow("without flicker") << pass << 7 << plt << 0
                                     << "As far as it was judged, the supply complies with EN50160." << plain;
    QTest::newRow("without signals") << pass << 7 << int(Quantity::Signal2) << 0 << complies << good;
    QTest::newRow("fail") << fail << 7 << -1 << 0 << fails << bad;
    QTest::newRow("fail without flicker") << fail << 7 << plt << 0 << fails << bad;
    QTest::newRow("too many dips") << pass << 7 << -1 << 2 << fails << bad;
    const QString days = "Indication from less than a week (6 d 00:00:00): ";
    QTest::newRow("six days") << pass << 6 << -1 << 0 << days + "the supply kept to the limits of EN50160." << plain;
    QTest::newRow("six days without flicker")
        << pass << 6 << plt << 0 << days + "as far as it was judged, the supply kept to the limits of EN50160."
        << plain;
    QTest::newRow("six bad days") << fail << 6 << -1 << 0 << days + "the supply did not keep to the limits of EN50160."
                                  << bad;
    QTest::newRow("nothing") << int(Outcome::NotJudged) << 7 << -1 << 0
                             << "The recording holds nothing that can be judged." << int(Tone::Weak);
}

void TstReportTables::headlineSaysWhatTheResultRestsOn()
{
    QFETCH(int, outcome);
    QFETCH(int, days);
    QFETCH(int, missing);
    QFETCH(int, dips);
    QFETCH(QString, headline);
    QFETCH(int, tone);
    Judgement j = emptyWeek();
    j.overview.end = kStart + days * Weeks::kDay;
    j.weeks = Weeks(kStart, j.overview.end);
    j.verdicts = { verdict({ Quantity::Voltage, 0, 0 }, 95, 207, 253, Outcome(outcome)) };
    if (missing >= 0)
        j.notJudged.append({ Quantity(missing), NotJudgedBecause::NotRecorded });
    j.eventCounts = { { EventDip, dips, dips, 1 } };
    const ReportBlock shown = contentOf(j).blocks.at(1);
    QCOMPARE(int(shown.kind), int(ReportBlock::Verdict));
    QCOMPARE(shown.text, headline);
    QCOMPARE(int(shown.tone), tone);
    if (outcome != int(Outcome::NotJudged))
        return;
    j.overview.hasLiveVoltage = false;
    QCOMPARE(contentOf(j).blocks.at(1).text, QStringLiteral("There was no voltage: nothing can be judged."));
    j.overview.hasVoltage = false; // a recording of currents alone says nothing of the voltage
    QCOMPARE(contentOf(j).blocks.at(1).text, headline);
}

void TstReportTables::everyQuantityHasItsRow()
{
    const Judgement j = judgedWeek();
    const Report text((QString()));
    const ReportSource source;
    const ReportTable table = ReportWriter(j, source, text).verdictTable();
    QCOMPARE(table.caption, QStringLiteral("Verdict"));
    QCOMPARE(table.head.join(" | "),
             QStringLiteral("Quantity | Limit | Reached | Worst | When | Within | Judged | Result | Instrument"));
    // Tones behind a text: + good, - bad, ~ weak.
    QCOMPARE(rowsOf(table),
             lines({
                 "Frequency | 99.5 %: 49.50 … 50.50 Hz / 100 %: 47.00 … 52.00 Hz | 50.123 Hz | 50.600 Hz | "
                 "2023-11-15 22:20:10 | 99.7 % | 50 % | pass+ | fail-",
                 "Voltage L1 | 95 %: 207.0 … 253.0 V / 100 %: 195.5 … 264.5 V | 201.2 V | 197.5 V | "
                 "2023-11-16 22:20:00 | 91.7 % | 100 % | fail- | fail-",
                 "Voltage L2 | 95 %: 207.0 … 253.0 V | 236.1 V | 238.9 V | 2023-11-14 22:30:00 | 100.0 % | 75 % | "
                 "pass+ | pass+",
                 "Voltage L3 | 95 %: 207.0 … 253.0 V | – | – | – | – | 0 % | not judged~ | –~",
                 "Unbalance | 95 %: ≤ 2.00 % | 1.25 % | 1.75 % | 2023-11-17 22:20:00 | 99.1 % | 25 % | pass+ | –~",
                 "Flicker Pst L1 | 100 %: ≤ 1.40 | – | 1.55 | 2023-11-18 22:20:00 | – | 50 % | fail- | –~",
                 "Flicker Plt L3 | 95 %: ≤ 1.00 | 0.62 | 0.88 | 2023-11-19 22:20:00 | 98.8 % | 75 % | pass+ | –~",
                 "Mains signal 110 Hz | –~ | –~ | –~ | –~ | –~ | –~ | not judged~ | –~",
             }));
}

void TstReportTables::limitsOfSharesWithAHalfAreShownWithIt()
{
    Judgement j = emptyWeek();
    j.verdicts = { verdict({ Quantity::Unbalance, -1, 0 }, 99.5, -Bounds::kNone, 2, Outcome::Pass),
                   verdict({ Quantity::ZeroUnbalance, -1, 0 }, 95, 0.5, Bounds::kNone, Outcome::Pass) };
    QCOMPARE(column(tableOf(j, "Verdict"), 0), lines({ "Unbalance", "Unbalance, zero sequence" }));
    QCOMPARE(column(tableOf(j, "Verdict"), 1), lines({ "99.5 %: ≤ 2.00 %", "95 %: ≥ 0.50 %" }));
}

void TstReportTables::whatFailsByALittleDoesNotLookAsIfItHeld()
{
    Judgement j = emptyWeek();
    QuantityVerdict v = verdict({ Quantity::Unbalance, -1, 0 }, 99.5, -Bounds::kNone, 2, Outcome::Fail);
    const auto within = [&](double share) {
        v.shareWithin = share;
        j.verdicts = { v };
        return column(tableOf(j, "Verdict"), 5).join(QString());
    };
    QCOMPARE(within(60479 * 100.0 / 60480), QStringLiteral("99.9 %")); // one value of a week is beyond
    QCOMPARE(within(99.499), QStringLiteral("99.4 %"));
    QCOMPARE(within(100), QStringLiteral("100.0 %"));
    QCOMPARE(within(QuantityVerdict::kNone), QStringLiteral("–"));
    // Tenths that no double holds are not cut.
    for (int tenths = 0; tenths <= 1000; ++tenths)
        QCOMPARE(within(tenths * 60 * 100.0 / 60000), QString("%1.%2 %").arg(tenths / 10).arg(tenths % 10));
}

void TstReportTables::worstHarmonicStandsForAll()
{
    // Of the limits: 4 of 5 are 80 percent, 1.5 of 2 are 75, 5.7 of 6 are 95.
    Judgement j = emptyWeek();
    j.verdicts = { harmonic(0, 7, 95, 5, 4, Outcome::Pass), harmonic(1, 5, 95, 6, 5.7, Outcome::Pass),
                   harmonic(2, 2, 95, 2, 1.5, Outcome::Pass) };
    QCOMPARE(column(tableOf(j, "Verdict"), 0), lines({ "Harmonic 5 L2" }));
    // One that fails stands before one that goes farther and could not be judged by its share.
    j.verdicts.append(harmonic(0, 11, 95, 3.5, 3.6, Outcome::Fail));
    j.verdicts.append(harmonic(0, 13, 95, 3, 9, Outcome::NotJudged));
    QCOMPARE(column(tableOf(j, "Verdict"), 0), lines({ "Harmonic 11 L1" }));
    QCOMPARE(column(tableOf(j, "Verdict"), 2), lines({ "3.60 %" }));
    // Orders without a limit stand for nothing.
    j.verdicts = { harmonic(0, 30, 95, Bounds::kNone, 50, Outcome::NotApplied) };
    QVERIFY(tableOf(j, "Verdict").rows.isEmpty());
}

void TstReportTables::worstMomentLeadsToTheEventThatReachesIntoItsInterval()
{
    const qint64 worst = kStart + 2 * Weeks::kDay; // its ten minutes begin 600000 ms before
    const auto linkFor = [worst](const QVector<RecordedEvent> &events) {
        Judgement j = judgedWeek();
        j.overview.events = events;
        for (const RecordedEvent &event : events)
            j.listed.insert(event.number);
        j.listed.remove(9);
        const ReportTable table = tableOf(j, "Verdict");
        return table.rows.at(1).at(0).text == "Voltage L1" ? table.rows.at(1).at(4).link : QString("another row");
    };
    QCOMPARE(linkFor({ madeEvent(1, EventDip, 0, worst - 599000, worst - 598000, 150) }), QStringLiteral("event-1"));
    // One that begins behind the interval or ends before it explains nothing.
    QCOMPARE(linkFor({ madeEvent(1, EventDip, 0, worst, worst + 1000, 150) }), QString());
    QCOMPARE(linkFor({ madeEvent(1, EventDip, 0, worst - 700000, worst - 600001, 150) }), QString());
    QCOMPARE(linkFor({ madeEvent(1, EventDip, 0, worst + 5000, worst + 6000, 150),
                       madeEvent(2, EventSwell, 0, worst - 700000, worst - 600000, 260) }),
             QStringLiteral("event-2"));
    // One that goes on reaches to the end of the recording.
    RecordedEvent open = madeEvent(3, EventInterruption, 0, worst - 900000, worst - 900000, 2);
    QCOMPARE(linkFor({ open }), QString());
    open.item.finished = 0;
    QCOMPARE(linkFor({ open }), QStringLiteral("event-3"));
    // Neither does a slow event, nor one that the table does not list.
    QCOMPARE(linkFor({ madeEvent(4, EventRms, 0, worst - 599000, worst, 190) }), QString());
    QCOMPARE(linkFor({ madeEvent(9, EventDip, 0, worst - 599000, worst, 150) }), QString());
}

void TstReportTables::kindsOfEventsAreCountedAgainstTheirLimit()
{
    Judgement j = emptyWeek();
    j.verdicts = { verdict({ Quantity::Unbalance, -1, 0 }, 95, -Bounds::kNone, 2, Outcome::Pass) };
    j.eventCounts = { { EventDip, 10, 14, 10 }, { EventSwell, 0, 0, 5 }, { EventInterruption, 3, 4, 2 } };
    // The number of the fullest week stands against the limit; only what there was has a link.
    QCOMPARE(rowsOf(tableOf(j, "Verdict")).mid(1),
             lines({ "Dip>events | ≤ 10 in a week | 10 | – | – | – | – | pass+ | –~",
                     "Swell | ≤ 5 in a week | 0 | – | – | – | – | pass+ | –~",
                     "Interruption>events | ≤ 2 in a week | 3 | – | – | – | – | fail- | –~" }));
    j.verdicts.clear();
    QCOMPARE(column(tableOf(j, "Verdict"), 7), lines({ "not judged", "not judged", "fail" }));
}

void TstReportTables::notesTellWhatTheResultRestsOn()
{
    // Two ten minutes were left out; the seven of the frequency are ten seconds. The voltage L1 fails by its flagged
    // values alone; the frequency has another result beside it.
    QCOMPARE(notesOf(judgedWeek()),
             lines({ kReached, "Intervals of ten minutes with an interruption, not judged: 2.",
                     "Intervals of ten minutes with a dip or a swell, flagged and judged like the others: 4. Without "
                     "them the result would be another one.",
                     kYear, kBand }));
}

void TstReportTables::notesOfOtherRecordings_data()
{
    QTest::addColumn<int>("days");
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("unflagged");
    QTest::addColumn<QString>("limits");
    QTest::addColumn<QStringList>("notes");
    const QString flagged = "Intervals of ten minutes with a dip or a swell, flagged and judged like the others: 3.";
    const QString same = flagged + " Without them the result is the same.";
    const QString notWhole = "The recording is not whole. What could be read was judged.";
    const int whole = int(RecordState::Whole), fail = int(Outcome::Fail);
    const QString other = "GOST32144";
    QTest::newRow("a week") << 7 << whole << fail << other << QStringList { kReached, same };
    QTest::newRow("by the standard") << 7 << whole << fail << "EN50160" << QStringList { kReached, same, kYear };
    QTest::newRow("a week and a day") << 8 << whole << fail << other
                                      << QStringList { "Weeks judged, each by itself: 2. The table shows the worst.",
                                                       "The last of them is only 1 d 00:00:00 long.", kReached, same };
    QTest::newRow("two weeks") << 14 << whole << fail << other
                               << QStringList { "Weeks judged, each by itself: 2. The table shows the worst.", kReached,
                                                same };
    QTest::newRow("six days") << 6 << whole << fail << other << QStringList { kShort, kReached, same };
    QTest::newRow("cut") << 7 << int(RecordState::Cut) << fail << other << QStringList { notWhole, kReached, same };
    QTest::newRow("damaged") << 7 << int(RecordState::Broken) << fail << other
                             << QStringList { notWhole, kReached, same };
    // All values were flagged: nobody knows.
    QTest::newRow("nothing unflagged") << 7 << whole << int(Outcome::NotJudged) << other
                                       << QStringList { kReached, flagged };
}

void TstReportTables::notesOfOtherRecordings()
{
    QFETCH(int, days);
    QFETCH(int, state);
    QFETCH(int, unflagged);
    QFETCH(QString, limits);
    QFETCH(QStringList, notes);
    Judgement j = emptyWeek();
    j.overview.end = kStart + days * Weeks::kDay;
    j.weeks = Weeks(kStart, j.overview.end);
    j.limitsName = limits;
    QuantityVerdict frequency = verdict({ Quantity::Frequency, -1, 0 }, 99.5, 49.5, 50.5, Outcome::Pass);
    fill(&frequency, 50.1, 50.2, kStart + 10000, 100, 60);
    QuantityVerdict voltage = verdict({ Quantity::Voltage, 0, 0 }, 95, 207, 253, Outcome::Fail);
    fill(&voltage, 201, 199, kStart + 600000, 90, 60);
    voltage.flagged = 3;
    voltage.partialUnflagged = Outcome(unflagged);
    j.verdicts = { frequency, voltage };
    ReportSource source;
    source.state = RecordState(state);
    QCOMPARE(notesOf(j, source), notes);
}

void TstReportTables::differenceIsExplainedByItsRule_data()
{
    QTest::addColumn<int>("quantity");
    QTest::addColumn<int>("phase");
    QTest::addColumn<QString>("text");
    QTest::newRow("frequency") << int(Quantity::Frequency) << -1 << kBand;
    QTest::newRow("voltage") << int(Quantity::Voltage) << 1 << kBand;
    QTest::newRow("THD") << int(Quantity::Thd) << 0 << kShare;
    QTest::newRow("harmonics") << int(Quantity::Harmonic) << 2 << kShare;
    QTest::newRow("unbalance") << int(Quantity::Unbalance) << -1 << kOne;
    QTest::newRow("long-term flicker") << int(Quantity::Plt) << 1 << kOne;
}

void TstReportTables::differenceIsExplainedByItsRule()
{
    QFETCH(int, quantity);
    QFETCH(int, phase);
    QFETCH(QString, text);
    const QuantityKey key { Quantity(quantity), qint8(phase), qint16(quantity == int(Quantity::Harmonic) ? 5 : 0) };
    // The instrument passes what fails, or it fails what passes: by its share or by its result for all values.
    for (const auto &results : { std::make_pair(Outcome::Fail, InstrumentResult { key, true, true }),
                                 std::make_pair(Outcome::Pass, InstrumentResult { key, false, true }),
                                 std::make_pair(Outcome::Pass, InstrumentResult { key, true, false }) }) {
        Judgement j = emptyWeek();
        j.limitsName = "GOST32144";
        j.verdicts = { verdict(key, 95, 1, 2, results.first) };
        j.instrument = { results.second };
        QCOMPARE(notesOf(j), lines({ kReached, qPrintable(text) }));
    }
}

void TstReportTables::sameResultNeedsNoExplanation()
{
    const QuantityKey key { Quantity::Voltage, 0, 0 };
    for (const auto &results : { std::make_pair(Outcome::Fail, InstrumentResult { key, true, false }),
                                 std::make_pair(Outcome::Pass, InstrumentResult { key, true, true }),
                                 std::make_pair(Outcome::NotJudged, InstrumentResult { key, true, true }) }) {
        Judgement j = emptyWeek();
        j.limitsName = "GOST32144";
        j.verdicts = { verdict(key, 95, 207, 253, results.first) };
        j.instrument = { results.second };
        QVERIFY(!notesOf(j).contains(kBand));
    }
}

void TstReportTables::factsAreInTheTimeOfTheReader()
{
    const Judgement j = emptyWeek();
    ReportSource source;
    source.name = "20231114_222000/\nMonitor.pqa2";
    source.kind = RecordKind::Monitor;
    const auto factsIn = [&](const Report &text) {
        QStringList facts;
        for (const auto &fact : ReportWriter(j, source, text).facts())
            facts << fact.first + ": " + fact.second;
        return facts;
    };
    QCOMPARE(factsIn(Report(QString())),
             lines({ "What: Monitor 20231114_222000/ Monitor.pqa2", "Begin: 2023-11-14 22:20:00 UTC",
                     "End: 2023-11-21 22:20:00 UTC", "Duration: 7 d 00:00:00", "State: whole" }));
    QCOMPARE(factsIn(Report(QString(), QTimeZone(5400))).mid(1, 2),
             lines({ "Begin: 2023-11-14 23:50:00", "End: 2023-11-21 23:50:00" }));
    // The page that says it shows the same, the names weakly.
    const ReportContent content = contentOf(j, source);
    QCOMPARE(content.title, QStringLiteral("Power quality report: 20231114_222000/ Monitor.pqa2"));
    QCOMPARE(rowsOf(content.blocks.at(2).table).mid(1, 1), lines({ "Begin~ | 2023-11-14 22:20:00 UTC" }));
}

void TstReportTables::everyStateHasItsWord()
{
    const Judgement j = emptyWeek();
    const Report text((QString()));
    QStringList states;
    for (const RecordState state :
         { RecordState::Whole, RecordState::Cut, RecordState::Broken, RecordState::Unreadable }) {
        ReportSource source;
        source.state = state;
        states << ReportWriter(j, source, text).facts().last().second;
    }
    QCOMPARE(states, lines({ "whole", "cut short", "damaged in the middle", "not readable" }));
}

void TstReportTables::eachPieceIsAnElement()
{
    ReportContent content;
    content.add(ReportBlock::Title, "title");
    content.add(ReportBlock::Verdict, "verdict", Tone::Good);
    content.add(ReportBlock::Item, "one");
    content.add(ReportBlock::Item, "two", Tone::Weak);
    content.add(ReportBlock::Heading, "first", Tone::Plain, "place");
    content.add(ReportBlock::SubHeading, "below");
    content.add(ReportBlock::Paragraph, "text", Tone::Weak);
    content.add(ReportBlock::Heading, "second");
    ReportTable table;
    table.rows = { { { "name", Tone::Weak, {} }, { "value", Tone::Plain, {} } } };
    content.add(table);
    content.add(ReportBlock::Item, "last");
    const QByteArray html = htmlReport(content);
    const int from = html.indexOf("<main>");
    // Lists and sections end where something else begins, and at the end.
    QCOMPARE(html.mid(from, html.indexOf("</main>") - from).replace('\n', ""),
             QByteArray("<main><h1>title</h1><p class=\"verdict good\">verdict</p>"
                        "<ul><li>one</li><li class=\"weak\">two</li></ul>"
                        "<section><h2 id=\"place\">first</h2><h3>below</h3><p class=\"weak\">text</p></section>"
                        "<section><h2>second</h2><div class=\"wide facts\"><table><tbody><tr>"
                        "<th scope=\"row\" class=\"weak\">name</th><td>value</td></tr></tbody></table></div>"
                        "<ul><li>last</li></ul></section>"));
}

void TstReportTables::hostileNamesStayInTheirLinks()
{
    const QString hostile = "\"><script>&'";
    const QByteArray safe = "&quot;&gt;&lt;script&gt;&amp;'"; // in double quotes a single one ends nothing
    ReportTable table;
    table.caption = hostile;
    table.head << hostile;
    table.rows = { { { hostile, Tone::Bad, hostile } } };
    table.anchors = { hostile };
    ReportContent content;
    content.title = content.language = hostile;
    content.add(ReportBlock::Heading, hostile, Tone::Plain, hostile);
    content.add(table);
    Drawing drawing;
    drawing.title = hostile;
    drawing.dot(Ink::N, { 1, 2 }, hostile, hostile);
    content.add(drawing);
    const QByteArray html = htmlReport(content);
    QVERIFY(!html.contains("<script"));
    for (const QByteArray &part :
         { QByteArray("<html lang=\"" + safe + "\">"), QByteArray("<title>" + safe + "</title>"),
           QByteArray("<h2 id=\"" + safe + "\">" + safe + "</h2>"), QByteArray("<caption>" + safe + "</caption>"),
           QByteArray("<th scope=\"col\">" + safe + "</th>"),
           QByteArray("<tr id=\"" + safe + "\"><th scope=\"row\" class=\"bad\"><a href=\"#" + safe + "\">" + safe
                      + "</a></th></tr>"),
           QByteArray("aria-label=\"" + safe + "\""), QByteArray("<a href=\"#" + safe + "\"><circle"),
           QByteArray("<title>" + safe + "</title></circle></a>") })
        QVERIFY2(html.contains(part), part.constData());
}

void TstReportTables::lineFeedsAreBrokenInTheTextAlone()
{
    ReportTable table;
    table.rows = { { { "one\ntwo", Tone::Plain, "an\nanchor" } } };
    ReportContent content;
    content.add(table);
    const QByteArray html = htmlReport(content);
    QVERIFY(html.contains("<a href=\"#an\nanchor\">one<br>two</a>"));
}

QTEST_GUILESS_MAIN(TstReportTables)
#include "tst_reporttables.moc"
