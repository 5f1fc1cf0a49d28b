#include "memory/recordview.h"

#include "settings/localtime.h"
#include "storage/storeditems.h"
#include "widgets/charts/chartparts.h"
#include "widgets/controls/readingmarks.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int kLeft = 12, kRight = 628; // pixels
constexpr int kFactsTop = 8, kFactStep = 22, kFactValue = 130;
constexpr int kHeadlineTop = kFactsTop + 5 * kFactStep + 4, kHeadlineHeight = 40;
constexpr int kNoteTop = kHeadlineTop + kHeadlineHeight, kNoteHeight = 18;
constexpr int kTableTop = kNoteTop + kNoteHeight + 4, kRowStep = 20;
constexpr QRect kBack(510, 443, 125, 33);

/// The columns that have room, of those that a report has.
struct Column
{
    int of;
    int left, width;
};
constexpr int kResult = 7;
constexpr Column kColumns[]
    = { { 0, kLeft, 142 }, { 1, 156, 172 }, { 2, 330, 80 }, { 5, 412, 64 }, { kResult, 478, 86 }, { 8, 566, 68 } };

QColor colorOf(Tone tone)
{
    switch (tone) {
    case Tone::Good:
        return QColor(120, 220, 140);
    case Tone::Bad:
        return QColor(255, 120, 110);
    case Tone::Weak:
        return QColor(160, 170, 180);
    case Tone::Plain:
        break;
    }
    return Qt::white;
}

void write(QPainter &painter, const QRect &place, const QString &text, int align = Qt::AlignLeft)
{
    painter.drawText(place, align | Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
}

} // namespace

bool RecordView::canShow(const StoredItem &item)
{
    static const char *const kSuffixes[] = { ".pqa2", ".pqa", ".wav", ".csv" };
    return item.isFolder || std::any_of(std::begin(kSuffixes), std::end(kSuffixes), [&item](const char *suffix) {
               return item.name.endsWith(QLatin1String(suffix), Qt::CaseInsensitive);
           });
}

void RecordView::read(Reading *reading, const QString &path, const MonitorLimits2 &limits)
{
    const RecordProgress progress = [reading](qint64 done, qint64 total) {
        reading->percent = total > 0 ? int(qBound(0.0, double(done) * 100 / double(total), 100.0)) : 0;
        return !reading->givenUp;
    };
    RecordSource source;
    if (!source.open(path, progress))
        return;
    reading->source = reportSourceOf(source);
    reading->isJudged = source.facts().kind == RecordKind::Monitor && source.state() != RecordState::Unreadable;
    if (reading->isJudged) {
        reading->judgement = judgeRecord(source, limits, progress);
        return;
    }
    // Of the others the files themselves say when they were: no need to go through all values.
    auto judgement = std::make_unique<Judgement>();
    judgement->overview.facts = source.facts();
    for (const RecordFileReport &file : source.files()) {
        qint64 &start = judgement->overview.start;
        start = start == 0 || (file.start > 0 && file.start < start) ? file.start : start;
        judgement->overview.end = std::max(judgement->overview.end, file.end);
    }
    reading->judgement = std::move(judgement);
}

RecordView::RecordView(const std::shared_ptr<Reading> &reading, QWidget *page) : CoverView(page), m_reading(reading)
{
    ReadingMarks::setCover(this, QStringLiteral("F5 ") + tr("Back"));
    constexpr int kTurn = 200; // ms
    connect(&m_progress, &QTimer::timeout, this, [this] { update(); });
    m_progress.start(kTurn);
}

RecordView::~RecordView()
{
    m_reading->givenUp = true;
}

void RecordView::showReading()
{
    m_progress.stop();
    m_isThrough = true;
    if (m_reading->judgement) {
        const Report text(QString(), LocalTime::localTimeZone());
        const ReportWriter writer(*m_reading->judgement, m_reading->source, text);
        m_facts = writer.facts();
        if (m_reading->isJudged) {
            m_headline = writer.headline(&m_tone);
            m_note = writer.reservation();
            m_table = writer.verdictTable();
            // What made the verdict is seen without a key.
            std::stable_partition(m_table.rows.begin(), m_table.rows.end(),
                                  [](const QVector<ReportCell> &row) { return row.value(kResult).tone == Tone::Bad; });
        }
    }
    update();
}

int RecordView::rowsShown() const
{
    return (kBack.top() - 6 - kTableTop) / kRowStep - 1;
}

bool RecordView::pressKey(int key)
{
    const int last = std::max(0, int(m_table.rows.size()) - rowsShown());
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
        m_first = qBound(0, m_first + (key == Qt::Key_Down ? 1 : -1), last);
        update();
        return true;
    }
    return CoverView::pressKey(key);
}

void RecordView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.fillRect(kBack, QColor(225, 230, 236));
    painter.setPen(Qt::black);
    ChartParts::setFontPixels(painter, 18);
    write(painter, kBack, tr("Back"), Qt::AlignHCenter);
    painter.setPen(Qt::white);
    if (!m_isThrough) {
        ChartParts::setFontPixels(painter, 20);
        const QString text = tr("Reading...") + QStringLiteral(" %1 %").arg(m_reading->percent);
        painter.drawText(rect(), Qt::AlignCenter, text);
        return;
    }
    paintFacts(painter);
    if (!m_table.rows.isEmpty())
        paintTable(painter);
}

void RecordView::paintFacts(QPainter &painter) const
{
    ChartParts::setFontPixels(painter, 16);
    int top = kFactsTop;
    for (const auto &fact : m_facts) {
        painter.setPen(colorOf(Tone::Weak));
        write(painter, QRect(kLeft, top, kFactValue - kLeft - 4, kFactStep), fact.first);
        painter.setPen(Qt::white);
        write(painter, QRect(kFactValue, top, kRight - kFactValue, kFactStep), fact.second);
        top += kFactStep;
    }
    painter.setPen(colorOf(m_tone));
    // That of a short recording says on how little it rests and takes two lines.
    const QRect headline(kLeft, kHeadlineTop, kRight - kLeft, kHeadlineHeight);
    ChartParts::setFontPixels(painter, 20);
    if (painter.fontMetrics().horizontalAdvance(m_headline) > headline.width())
        ChartParts::setFontPixels(painter, 15);
    painter.drawText(headline, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, m_headline);
    ChartParts::setFontPixels(painter, 13);
    painter.setPen(colorOf(Tone::Weak));
    write(painter, QRect(kLeft, kNoteTop, kRight - kLeft, kNoteHeight), m_note);
}

void RecordView::paintTable(QPainter &painter) const
{
    ChartParts::setFontPixels(painter, 14);
    painter.fillRect(QRect(4, kTableTop, 632, kRowStep), QColor(30, 60, 110));
    painter.setPen(Qt::white);
    for (const Column &column : kColumns)
        write(painter, QRect(column.left, kTableTop, column.width, kRowStep), m_table.head.value(column.of));
    const int end = std::min(int(m_table.rows.size()), m_first + rowsShown());
    for (int row = m_first; row < end; ++row) {
        const int top = kTableTop + (row - m_first + 1) * kRowStep;
        for (const Column &column : kColumns) {
            const ReportCell cell = m_table.rows.at(row).value(column.of);
            painter.setPen(colorOf(cell.tone));
            // Of two limits the one for the share of time; the other stands in the report.
            write(painter, QRect(column.left, top, column.width, kRowStep), cell.text.section(QLatin1Char('\n'), 0, 0));
        }
    }
    if (m_table.rows.size() <= rowsShown())
        return;
    const int room = rowsShown() * kRowStep;
    const int bar = room * rowsShown() / m_table.rows.size();
    painter.fillRect(
        QRect(636, kTableTop + kRowStep + (room - bar) * m_first / (m_table.rows.size() - rowsShown()), 3, bar),
        colorOf(Tone::Weak));
}
