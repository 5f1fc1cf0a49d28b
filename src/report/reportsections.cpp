#include "model/channelset.h"
#include "model/monitorrecords.h"
#include "record/tables/recordevents.h"
#include "report/reportcharts.h"
#include "report/reportwriter.h"
#include "report/clockmeans.h"

#include <algorithm>
#include <cmath>

namespace {

ReportCell plain(const QString &text)
{
    return { text, Tone::Plain, {} };
}

QString orDash(const QString &text)
{
    return text.isEmpty() ? Report::dash() : text;
}

} // namespace

void ReportWriter::trends()
{
    static constexpr Quantity kShown[]
        = { Quantity::Voltage, Quantity::Frequency, Quantity::Thd, Quantity::Unbalance, Quantity::Plt };
    bool any = false;
    for (const Quantity quantity : kShown) {
        const Drawing drawing = trendChart(quantity, m_judgement, m_text);
        if (drawing.shapes.isEmpty())
            continue;
        if (!any) {
            m_content.add(ReportBlock::Heading, Report::tr("Trends"));
            m_content.add(ReportBlock::Paragraph,
                          Report::tr("Lowest and highest value of each moment; limits are dashed."), Tone::Weak);
        }
        any = true;
        m_content.add(drawing);
    }
}

void ReportWriter::harmonics()
{
    const Drawing drawing = harmonicChart(m_judgement, m_text);
    if (drawing.shapes.isEmpty())
        return;
    m_content.add(ReportBlock::Heading, Report::tr("Harmonics"));
    m_content.add(drawing);
    ReportTable table;
    table.caption = Report::tr("Reached in the share of time, percent of the fundamental");
    table.head = QStringList { Report::tr("Order"), Report::tr("Limit") };
    QVector<int> phases;
    for (int phase = 0; phase < kMonitorPhases; ++phase) {
        if (!m_judgement.find({ Quantity::Harmonic, qint8(phase), 2 }))
            continue;
        phases.append(phase);
        table.head << Report::phaseName(phase, m_judgement);
    }
    table.head << Report::tr("Result");
    for (int order = 2; order <= monitor_limit::kRows; ++order) {
        QVector<ReportCell> row { plain(QString::number(order)), {} };
        Outcome worst = Outcome::NotApplied;
        for (const int phase : phases) {
            const QuantityVerdict *v = m_judgement.find({ Quantity::Harmonic, qint8(phase), qint16(order) });
            if (!v || !v->bounds.hasPartial()) {
                row.append(plain(Report::dash()));
                continue;
            }
            row[1] = plain(m_text.share(v->bounds.share) + QStringLiteral(": ")
                           + m_text.range(v->key, v->bounds.low, v->bounds.high));
            row.append({ m_text.number(v->atShare, 2), v->outcome() == Outcome::Fail ? Tone::Bad : Tone::Plain, {} });
            worst = worseOf(worst, v->outcome());
        }
        if (row.at(1).text.isEmpty())
            continue;
        row.append({ Report::outcome(worst), toneOf(worst), {} });
        table.rows.append(row);
    }
    m_content.add(table);
}

QVector<ReportCell> ReportWriter::eventRow(const RecordedEvent &event) const
{
    const RecordOverview &o = m_judgement.overview;
    const __event_item &item = event.item;
    const double nominal = m_judgement.setup.nominalVolt;
    const bool hasMoment
        = std::any_of(m_judgement.moments.begin(), m_judgement.moments.end(), [&event](const Moment &moment) {
              return moment.event.number == event.number
                  && (!moment.samples.isEmpty() || !curveChart(moment, false, Report(QString())).shapes.isEmpty());
          });
    const bool volts = item.type >= EventRms && item.type <= EventRvc && item.type != EventFlicker;
    const bool sane = isPlausibleTime(item.startTime) && isPlausibleTime(item.endTime);
    return { { QString::number(event.number), Tone::Plain, hasMoment ? momentAnchor(event.number) : QString() },
             plain(Report::eventName(item.type)),
             plain(orDash(QString::fromLatin1(eventChannel(item, o.facts.joinMode)))),
             plain(m_text.time(item.startTime) + (o.isEarlier(item) ? QStringLiteral(" *") : QString())),
             plain(!item.finished ? Report::tr("goes on")
                       : sane     ? m_text.duration(item.endTime - item.startTime)
                                  : Report::dash()),
             plain(m_text.eventValue(item)),
             plain(volts && nominal > 0 ? m_text.percent(double(item.value) * 100 / nominal) : Report::dash()) };
}

void ReportWriter::events()
{
    const RecordOverview &o = m_judgement.overview;
    m_content.add(ReportBlock::Heading, Report::tr("Events"), Tone::Plain, QStringLiteral("events"));
    if (o.events.isEmpty()) {
        m_content.add(ReportBlock::Paragraph, Report::tr("No event was recorded."));
        return;
    }
    const bool onPlane = std::any_of(o.events.begin(), o.events.end(), [](const RecordedEvent &event) {
        return event.item.type >= EventDip && event.item.type <= EventInterruption;
    });
    if (onPlane)
        m_content.add(depthChart(m_judgement, m_text));
    ReportTable table;
    table.caption = Report::tr("Events");
    table.head
        = QStringList { Report::tr("No."),      Report::tr("Event"), Report::tr("Phase"),     Report::tr("Begin"),
                        Report::tr("Duration"), Report::tr("Value"), Report::tr("Of nominal") };
    bool anyEarlier = false;
    for (const RecordedEvent &event : o.events) {
        if (!m_judgement.listed.contains(event.number))
            continue;
        table.anchors.append(eventAnchor(event.number));
        table.rows.append(eventRow(event));
        anyEarlier = anyEarlier || o.isEarlier(event.item);
    }
    m_content.add(table);
    if (anyEarlier)
        m_content.add(ReportBlock::Paragraph,
                      QStringLiteral("* ")
                          + Report::tr("Over before the recording began: found by the running measurement, and "
                                       "not counted in the verdict."),
                      Tone::Weak);
    const bool anySlow = std::any_of(o.events.begin(), o.events.end(), [](const RecordedEvent &event) {
        const qint32 type = event.item.type;
        return type < EventDip || type == EventUnbalance || type == EventFrequency;
    });
    if (anySlow)
        m_content.add(ReportBlock::Paragraph,
                      Report::tr("Voltage, harmonics, unbalance, frequency and flicker: events as the instrument found "
                                 "them, by thresholds of its own. The verdict does not rest on them."),
                      Tone::Weak);
    const qint64 more = o.events.size() - table.rows.size() + o.eventsBeyond;
    if (more > 0)
        m_content.add(ReportBlock::Paragraph, Report::tr("Further events, not listed: %1.").arg(more), Tone::Weak);
}

void ReportWriter::moments()
{
    bool any = false;
    for (const Moment &moment : m_judgement.moments) {
        const Drawing drawings[] = { curveChart(moment, false, m_text), waveChart(moment, false, m_text),
                                     curveChart(moment, true, m_text), waveChart(moment, true, m_text) };
        if (std::all_of(std::begin(drawings), std::end(drawings),
                        [](const Drawing &drawing) { return drawing.shapes.isEmpty(); }))
            continue;
        if (!any)
            m_content.add(ReportBlock::Heading, Report::tr("Worst moments"));
        any = true;
        const bool isEvent = moment.event.number != 0;
        const QString title = isEvent
            ? QStringLiteral("%1. ").arg(moment.event.number) + Report::eventName(moment.event.item.type)
                + QStringLiteral(", ") + m_text.time(moment.event.item.startTime)
            : Report::tr("Transient") + QStringLiteral(", ")
                + m_text.time(std::isfinite(moment.wave.start) && std::abs(moment.wave.start) < 1e15
                                  ? qint64(moment.wave.start)
                                  : 0);
        m_content.add(ReportBlock::SubHeading, title, Tone::Plain,
                      isEvent ? momentAnchor(moment.event.number) : QString());
        for (const Drawing &drawing : drawings) {
            if (!drawing.shapes.isEmpty())
                m_content.add(drawing);
        }
    }
}

void ReportWriter::instrument()
{
    const RecordFacts &facts = m_judgement.overview.facts;
    m_content.add(ReportBlock::Heading, Report::tr("Instrument and settings"));
    const ChannelSet *wiring = channelSet(facts.joinMode);
    const auto nominal = [this](double value, int decimals, const char *unit) {
        return value > 0 ? m_text.number(value, decimals) + QLatin1Char(' ') + QLatin1String(unit) : QString();
    };
    const QPair<QString, QString> rows[] = {
        { Report::tr("Model"), facts.model },
        { Report::tr("Serial number"), facts.serialNumber },
        { Report::tr("Software"), facts.softwareVersion },
        { Report::tr("Firmware"), facts.firmware },
        { Report::tr("Wiring"), wiring ? QString::fromLatin1(wiring->fullName) : QString() },
        { Report::tr("Nominal voltage"), nominal(facts.nominalVolt, 1, "V") },
        { Report::tr("Nominal frequency"), nominal(facts.nominalFrequency, 0, "Hz") },
        { Report::tr("Clamp"), facts.clamp },
        { Report::tr("Clamp") + QStringLiteral(" N"), facts.clampN },
        { Report::tr("Ratio"), facts.ratio },
        { Report::tr("Ratio") + QStringLiteral(" N"), facts.ratioN },
        { Report::tr("Limit set"), m_judgement.limitsName },
    };
    ReportTable table;
    for (const auto &row : rows) {
        table.rows.append({ { row.first, Tone::Weak, {} }, plain(orDash(row.second.simplified())) });
    }
    m_content.add(table);
    m_content.add(
        ReportBlock::Paragraph,
        Report::tr("The limits are those of the set chosen for this report. A recording does not say which set "
                   "was in use on the instrument."),
        Tone::Weak);
}

void ReportWriter::missing()
{
    m_content.add(ReportBlock::Heading, Report::tr("Missing and not judged"));
    const int before = m_content.blocks.size();
    const auto item = [this](const QString &text) { m_content.add(ReportBlock::Item, text); };
    for (const RecordFault &fault : m_source.faults)
        item(fault.path.section(QLatin1Char('/'), -1).simplified() + QStringLiteral(", ")
             + QString::number(fault.offset) + QStringLiteral(": ") + fault.reason.simplified());
    for (const NotJudged &rest : m_judgement.notJudged)
        item(Report::tr("%1 could not be judged: %2.")
                 .arg(m_text.nameOf(rest.quantity, m_judgement), Report::reason(rest.why)));
    for (const JudgedInPart &part : m_judgement.gaps)
        item(Report::tr("%1 was judged in %2 of the time only.")
                 .arg(m_text.nameOf(part.quantity, m_judgement), m_text.percent(std::floor(part.covered), 0)));
    for (const QuantityVerdict &v : m_judgement.verdicts) {
        if (v.withoutNumber + v.unread > 0 && v.key.quantity != Quantity::Harmonic)
            item(Report::tr("%1, intervals without a value: %2.")
                     .arg(m_text.nameOf(v.key, m_judgement), QString::number(v.withoutNumber + v.unread)));
    }
    if (m_judgement.incompleteTenMinutes > 0)
        item(Report::tr("Incomplete ten minutes: %1.").arg(m_judgement.incompleteTenMinutes));
    for (const QString &line : m_judgement.overview.log)
        item(line.simplified());
    if (m_content.blocks.size() == before)
        m_content.add(ReportBlock::Paragraph, Report::tr("Nothing."));
    m_content.add(ReportBlock::Paragraph, Report::tr("All times are UTC."), Tone::Weak);
}
