#pragma once

#include "report/reportwriter.h"
#include "unit/report/fedrecording.h"

#include <initializer_list>

/// Judged records that a test makes by hand, and what a report shows of them as plain lines.
namespace ReportTexts {

constexpr qint64 kStart = 1700000400000; // 2023-11-14 22:20:00

/// A week from kStart on of which nothing is known yet.
inline Judgement emptyWeek()
{
    Judgement j;
    j.overview.start = kStart;
    j.overview.end = kStart + Weeks::kWeek;
    j.overview.hasVoltage = j.overview.hasLiveVoltage = true;
    j.overview.facts.joinMode = 1;
    j.setup.nominalVolt = 230;
    j.limitsName = "EN50160";
    j.weeks = Weeks(j.overview.start, j.overview.end);
    return j;
}

inline QuantityVerdict verdict(const QuantityKey &key, double share, double low, double high, Outcome partial)
{
    QuantityVerdict v;
    v.key = key;
    v.bounds.share = share;
    v.bounds.low = low;
    v.bounds.high = high;
    v.partial = v.partialUnflagged = partial;
    v.whole = Outcome::NotApplied;
    return v;
}

inline void fill(QuantityVerdict *v, double atShare, double worst, qint64 worstTime, double within, qint64 judged)
{
    v->atShare = atShare;
    v->worst = worst;
    v->worstTime = worstTime;
    v->shareWithin = within;
    v->judged = judged;
}

/// Its worst value is the double of what the share reaches.
inline QuantityVerdict harmonic(int phase, int order, double share, double high, double atShare, Outcome partial)
{
    QuantityVerdict v
        = verdict({ Quantity::Harmonic, qint8(phase), qint16(order) }, share, -Bounds::kNone, high, partial);
    fill(&v, atShare, 2 * atShare, kStart + 600000, 96, 1008);
    return v;
}

inline ReportContent contentOf(const Judgement &judgement, const ReportSource &source = {})
{
    const Report text((QString()));
    return ReportWriter(judgement, source, text).content();
}

inline QStringList lines(std::initializer_list<const char *> texts)
{
    QStringList list;
    for (const char *text : texts)
        list << QString::fromUtf8(text);
    return list;
}

/// Each row as a line: tones as + good, - bad, ~ weak behind the text, a link behind a >.
inline QStringList rowsOf(const ReportTable &table)
{
    QStringList rows;
    for (const QVector<ReportCell> &row : table.rows) {
        QStringList cells;
        for (const ReportCell &cell : row) {
            static const char *const kTones[] = { "", "+", "-", "~" };
            cells << QString(cell.text).replace('\n', " / ") + kTones[int(cell.tone)]
                    + (cell.link.isEmpty() ? QString() : '>' + cell.link);
        }
        rows << cells.join(" | ");
    }
    return rows;
}

inline QStringList column(const ReportTable &table, int column)
{
    QStringList texts;
    for (const QVector<ReportCell> &row : table.rows)
        texts << row.value(column).text;
    return texts;
}

/// The table with this caption.
inline ReportTable tableOf(const Judgement &judgement, const QString &caption)
{
    const ReportContent content = contentOf(judgement);
    for (const ReportBlock &block : content.blocks) {
        if (block.kind == ReportBlock::Table && block.table.caption == caption)
            return block.table;
    }
    return {};
}

/// The blocks under a heading, up to the next one; those before the first heading under none.
inline QVector<ReportBlock> sectionOf(const ReportContent &content, const QString &heading)
{
    QVector<ReportBlock> blocks;
    QString present;
    for (const ReportBlock &block : content.blocks) {
        if (block.kind == ReportBlock::Heading)
            present = block.text;
        else if (present == heading)
            blocks.append(block);
    }
    return blocks;
}

inline QStringList textsOf(const QVector<ReportBlock> &blocks, ReportBlock::Kind kind)
{
    QStringList texts;
    for (const ReportBlock &block : blocks) {
        if (block.kind == kind)
            texts << block.text;
    }
    return texts;
}

inline QStringList itemsOf(const ReportContent &content, const QString &heading)
{
    return textsOf(sectionOf(content, heading), ReportBlock::Item);
}

} // namespace ReportTexts
