#include "report/reportwriter.h"

#include "model/channelset.h"
#include "report/reportcharts.h"
#include "report/clockmeans.h"

#include <algorithm>

Tone ReportWriter::toneOf(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Pass:
        return Tone::Good;
    case Outcome::Fail:
        return Tone::Bad;
    default:
        return Tone::Weak;
    }
}

ReportWriter::ReportWriter(const Judgement &judgement, const ReportSource &source, const Report &text)
    : m_judgement(judgement), m_source(source), m_text(text)
{ }

ReportContent ReportWriter::content()
{
    m_content = {};
    m_content.title = Report::tr("Power quality report") + QStringLiteral(": ") + m_source.name.simplified();
    m_content.language = m_text.languageTag();
    frontPage();
    trends();
    harmonics();
    events();
    moments();
    instrument();
    missing();
    return m_content;
}

QString ReportWriter::headline(Tone *tone) const
{
    const Outcome outcome = m_judgement.outcome();
    *tone = toneOf(outcome);
    if (outcome != Outcome::Pass && outcome != Outcome::Fail)
        return m_judgement.overview.hasVoltage && !m_judgement.overview.hasLiveVoltage
            ? Report::tr("There was no voltage: nothing can be judged.")
            : Report::tr("The recording holds nothing that can be judged.");
    const QString name = m_judgement.limitsName.simplified();
    const bool fails = outcome == Outcome::Fail;
    const bool leavesOut = !fails && m_judgement.leavesOut();
    const bool isIndication = !m_judgement.weeks.isWhole();
    if (!fails && (leavesOut || isIndication))
        *tone = Tone::Plain;
    if (!isIndication) {
        const QString text = fails ? Report::tr("The supply does not comply with %1.")
            : leavesOut            ? Report::tr("As far as it was judged, the supply complies with %1.")
                                   : Report::tr("The supply complies with %1.");
        return text.arg(name);
    }
    // Whoever reads nothing but this has to see how much it rests on.
    const QString text = fails
        ? Report::tr("Indication from less than a week (%2): the supply did not keep to the limits of %1.")
        : leavesOut
        ? Report::tr("Indication from less than a week (%2): as far as it was judged, the supply kept to the limits of "
                     "%1.")
        : Report::tr("Indication from less than a week (%2): the supply kept to the limits of %1.");
    return text.arg(name, m_text.duration(m_judgement.overview.length()));
}

QString ReportWriter::reservation() const
{
    const Outcome outcome = m_judgement.outcome();
    const bool hasResult = outcome == Outcome::Pass || outcome == Outcome::Fail;
    return m_judgement.weeks.isWhole() || !hasResult
        ? QString()
        : Report::tr("The recording is shorter than a week. The limits hold for weeks: the result is an indication.");
}

QVector<QPair<QString, QString>> ReportWriter::facts() const
{
    static const char *const kStates[]
        = { QT_TRANSLATE_NOOP("Report", "whole"), QT_TRANSLATE_NOOP("Report", "cut short"),
            QT_TRANSLATE_NOOP("Report", "damaged in the middle"), QT_TRANSLATE_NOOP("Report", "not readable") };
    const RecordOverview &o = m_judgement.overview;
    return { { Report::tr("What"), Report::kindName(m_source.kind) + QStringLiteral(" ") + m_source.name.simplified() },
             { Report::tr("Begin"), m_text.time(o.start) + m_text.zoneMark() },
             { Report::tr("End"), m_text.time(o.end) + m_text.zoneMark() },
             { Report::tr("Duration"), m_text.duration(o.length()) },
             { Report::tr("State"), Report::tr(kStates[int(m_source.state)]) } };
}

void ReportWriter::frontPage()
{
    m_content.add(ReportBlock::Title, Report::tr("Power quality report"));
    Tone tone = Tone::Plain;
    const QString verdict = headline(&tone);
    m_content.add(ReportBlock::Verdict, verdict, tone);
    ReportTable about;
    for (const auto &fact : facts())
        about.rows.append({ { fact.first, Tone::Weak, {} }, { fact.second, Tone::Plain, {} } });
    m_content.add(about);
    m_content.add(verdictTable());
    notes();
}

QString ReportWriter::limitText(const QuantityVerdict &verdict) const
{
    const Bounds &b = verdict.bounds;
    QStringList parts;
    if (b.hasPartial())
        parts << m_text.share(b.share) + QStringLiteral(": ") + m_text.range(verdict.key, b.low, b.high);
    if (b.hasWhole())
        parts << m_text.percent(100, 0) + QStringLiteral(": ") + m_text.range(verdict.key, b.wholeLow, b.wholeHigh);
    return parts.isEmpty() ? Report::dash() : parts.join(QLatin1Char('\n'));
}

/// When the worst value was, and the picture of what happened then.
ReportCell ReportWriter::momentOf(const QuantityVerdict &verdict) const
{
    ReportCell cell { m_text.time(verdict.worstTime), Tone::Plain, {} };
    const qint64 from = verdict.worstTime - intervalOf(verdict.key.quantity);
    for (const RecordedEvent &event : m_judgement.overview.events) {
        const __event_item &item = event.item;
        const qint64 until = item.finished ? item.endTime : m_judgement.overview.end;
        if (m_judgement.listed.contains(event.number) && item.startTime < verdict.worstTime && until >= from
            && item.type >= EventDip && item.type <= EventRvc) {
            cell.link = eventAnchor(event.number);
            break;
        }
    }
    return cell;
}

QVector<ReportCell> ReportWriter::verdictRow(const QuantityVerdict &v) const
{
    const Outcome outcome = v.outcome();
    const InstrumentResult *own = m_judgement.instrumentOf(v.key);
    const bool ownOk = own && own->partialOk && own->wholeOk;
    return {
        { m_text.nameOf(v.key, m_judgement), Tone::Plain, {} },
        { limitText(v), Tone::Plain, {} },
        { v.judged > 0 && v.bounds.hasPartial() ? m_text.value(v.key, v.atShare) : Report::dash(), Tone::Plain, {} },
        { m_text.value(v.key, v.worst), Tone::Plain, {} },
        momentOf(v),
        { v.bounds.hasPartial() ? m_text.shareWithin(v.shareWithin) : Report::dash(), Tone::Plain, {} },
        { m_text.percent(v.covered(m_judgement.overview.length()), 0), Tone::Plain, {} },
        { Report::outcome(outcome), toneOf(outcome), {} },
        { !own ? Report::dash() : Report::outcome(ownOk ? Outcome::Pass : Outcome::Fail),
          !own ? Tone::Weak : toneOf(ownOk ? Outcome::Pass : Outcome::Fail),
          {} }
    };
}

QVector<ReportCell> ReportWriter::countRow(const EventCount &count) const
{
    const QString limit = QStringLiteral("≤ %1").arg(count.allowed);
    const Outcome outcome = m_judgement.outcomeOf(count);
    return { { Report::eventName(count.type), Tone::Plain, count.all > 0 ? QStringLiteral("events") : QString() },
             { Report::tr("%1 in a week").arg(limit), Tone::Plain, {} },
             { QString::number(count.count), Tone::Plain, {} },
             { Report::dash(), Tone::Plain, {} },
             { Report::dash(), Tone::Plain, {} },
             { Report::dash(), Tone::Plain, {} },
             { Report::dash(), Tone::Plain, {} },
             { Report::outcome(outcome), toneOf(outcome), {} },
             { Report::dash(), Tone::Weak, {} } };
}

/// Of the harmonics the order that goes farthest stands for all.
const QuantityVerdict *ReportWriter::worstHarmonic() const
{
    const QuantityVerdict *worst = nullptr;
    const auto key = [](const QuantityVerdict &v) {
        return std::make_pair(int(v.outcome()), v.judged > 0 ? v.bounds.ratio(v.atShare) : -1.0);
    };
    for (const QuantityVerdict &v : m_judgement.verdicts) {
        if (v.key.quantity == Quantity::Harmonic && v.outcome() != Outcome::NotApplied
            && (!worst || key(v) > key(*worst)))
            worst = &v;
    }
    return worst;
}

/// What the limit set asks for and the recording does not answer.
void ReportWriter::addRest(ReportTable *table) const
{
    for (const NotJudged &rest : m_judgement.notJudged) {
        QVector<ReportCell> row { { m_text.nameOf(rest.quantity, m_judgement), Tone::Plain, {} } };
        while (row.size() < table->head.size())
            row.append({ Report::dash(), Tone::Weak, {} });
        row[table->head.size() - 2] = { Report::outcome(Outcome::NotJudged), Tone::Weak, {} };
        table->rows.append(row);
    }
}

ReportTable ReportWriter::verdictTable() const
{
    ReportTable table;
    table.caption = Report::tr("Verdict");
    table.head = QStringList { Report::tr("Quantity"), Report::tr("Limit"),  Report::tr("Reached"),
                               Report::tr("Worst"),    Report::tr("When"),   Report::tr("Within"),
                               Report::tr("Judged"),   Report::tr("Result"), Report::tr("Instrument") };
    const QuantityVerdict *harmonic = worstHarmonic();
    for (const QuantityVerdict &v : m_judgement.verdicts) {
        const bool listed = v.key.quantity != Quantity::Harmonic || &v == harmonic;
        const bool limited = v.bounds.hasPartial() || v.bounds.hasWhole();
        const bool empty = std::any_of(m_judgement.notJudged.begin(), m_judgement.notJudged.end(),
                                       [&v](const NotJudged &rest) { return rest.quantity == v.key.quantity; });
        if (listed && limited && !empty)
            table.rows.append(verdictRow(v));
    }
    addRest(&table);
    for (const EventCount &count : m_judgement.eventCounts)
        table.rows.append(countRow(count));
    return table;
}

void ReportWriter::notes()
{
    const Weeks &weeks = m_judgement.weeks;
    const auto note = [this](const QString &text) { m_content.add(ReportBlock::Item, text); };
    if (!reservation().isEmpty())
        note(reservation());
    else if (weeks.count > 1)
        note(Report::tr("Weeks judged, each by itself: %1. The table shows the worst.").arg(weeks.count));
    if (weeks.isWhole() && weeks.rest() > 0)
        note(Report::tr("The last of them is only %1 long.").arg(m_text.duration(weeks.rest())));
    if (m_source.state == RecordState::Cut || m_source.state == RecordState::Broken)
        note(Report::tr("The recording is not whole. What could be read was judged."));
    note(
        Report::tr("Reached: so far go the values in the share of time that the limit asks for. Within: the share that "
                   "keeps to it. Judged: the share of the recording that has values."));
    qint64 flagged = 0, leftOut = 0;
    bool changes = false, same = true;
    for (const QuantityVerdict &v : m_judgement.verdicts) {
        const bool tenMinutes = intervalOf(v.key.quantity) == ClockMeans::kTenMinutes;
        flagged = std::max(flagged, tenMinutes ? v.flagged : 0);
        leftOut = std::max(leftOut, tenMinutes ? v.leftOut : 0);
        const bool known = v.partialUnflagged == Outcome::Pass || v.partialUnflagged == Outcome::Fail;
        same = same && (known || v.flagged == 0);
        changes = changes || (known && v.flagged > 0 && v.partialUnflagged != v.partial);
    }
    if (leftOut > 0)
        note(Report::tr("Intervals of ten minutes with an interruption, not judged: %1.").arg(leftOut));
    if (flagged > 0) {
        QString text
            = Report::tr("Intervals of ten minutes with a dip or a swell, flagged and judged like the others: %1.")
                  .arg(flagged);
        if (changes)
            text += QLatin1Char(' ') + Report::tr("Without them the result would be another one.");
        else if (same)
            text += QLatin1Char(' ') + Report::tr("Without them the result is the same.");
        note(text);
    }
    const QuantityVerdict *frequency = m_judgement.find({ Quantity::Frequency, -1, 0 });
    if (frequency && frequency->judged > 0 && m_judgement.limitsName == QLatin1String("EN50160"))
        note(Report::tr("The standard asks for the frequency in 99.5 % of a year; the limit set judges weeks."));
    differences();
}

/// Where the instrument came to another result, and by which rule.
void ReportWriter::differences()
{
    bool shown[3] = {};
    for (const QuantityVerdict &v : m_judgement.verdicts) {
        const InstrumentResult *own = m_judgement.instrumentOf(v.key);
        const Outcome outcome = v.outcome();
        if (!own || (outcome != Outcome::Pass && outcome != Outcome::Fail)
            || (own->partialOk && own->wholeOk) == (outcome == Outcome::Pass))
            continue;
        const bool band = v.key.quantity == Quantity::Frequency || v.key.quantity == Quantity::Voltage;
        const bool harmonic = v.key.quantity == Quantity::Thd || v.key.quantity == Quantity::Harmonic;
        shown[band ? 0 : harmonic ? 1 : 2] = true;
    }
    if (shown[0])
        m_content.add(
            ReportBlock::Item,
            Report::tr("Instrument, voltage and frequency: it compares a hundred times the deviation in V or Hz "
                       "with the limit in percent, and one value inside is enough. Hence the other result."));
    if (shown[1])
        m_content.add(
            ReportBlock::Item,
            Report::tr("Instrument, harmonics: one value that is not below the limit fails, whatever the share. "
                       "Hence the other result."));
    if (shown[2])
        m_content.add(ReportBlock::Item,
                      Report::tr("Instrument, unbalance and flicker: one value below the limit is enough. "
                                 "Hence the other result."));
}
