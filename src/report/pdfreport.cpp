#include "report/pdfreport.h"

#include "report/reportcontent.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QTextOption>

#include <algorithm>

namespace {

// One unit of a drawing is a 720th of the width of the text; all lengths below are in it.
constexpr double kWidth = Drawing::kWidth;
constexpr double kSidesMm = 14, kTopMm = 15, kBottomMm = 16;
constexpr double kFooter = 20;
constexpr double kCellGap = 6;
constexpr int kResolution = 1200; // points of an inch

QColor colorOf(Ink ink)
{
    static const QColor kColors[]
        = { QColor(0x5b, 0x65, 0x70), QColor(0xd5, 0xda, 0xe0), QColor(0, 0, 0),          QColor(0x5b, 0x65, 0x70),
            QColor(0x8a, 0x5a, 0x19), QColor(0x1b, 0x1f, 0x24), QColor(0x7a, 0x82, 0x8c), QColor(0x1f, 0x5f, 0xbf),
            QColor(0xb3, 0x26, 0x1e), QColor(0x17, 0x69, 0x2f), QColor(0xb3, 0x26, 0x1e) };
    return kColors[int(ink)];
}

QColor colorOf(Tone tone)
{
    switch (tone) {
    case Tone::Good:
        return colorOf(Ink::Good);
    case Tone::Bad:
        return colorOf(Ink::Bad);
    case Tone::Weak:
        return colorOf(Ink::Weak);
    case Tone::Plain:
        break;
    }
    return Qt::black;
}

/// Puts pieces below each other and turns pages.
class Pages
{
public:
    explicit Pages(QPdfWriter *writer) : m_writer(writer) { }

    bool begin(const QString &title)
    {
        m_title = title;
        if (!m_painter.begin(m_writer))
            return false;
        const double scale = m_writer->width() / kWidth;
        m_painter.scale(scale, scale);
        m_height = m_writer->height() / scale - kFooter;
        footer();
        return true;
    }
    bool end() { return m_painter.end(); }

    void text(const QString &text, double size, bool bold, Tone tone, double above, double below);
    void verdict(const QString &text, Tone tone);
    void item(const QString &text);
    void table(const ReportTable &table);
    void picture(const Drawing &drawing);
    void newPage();
    bool atTop() const { return m_y == 0; }
    /// At least so much room is left on the page.
    void need(double height)
    {
        if (m_y > 0 && m_y + height > m_height)
            newPage();
    }

private:
    static QFont font(double size, bool bold)
    {
        QFont font(QStringLiteral("Liberation Sans"));
        font.setStyleHint(QFont::SansSerif);
        font.setPixelSize(int(size));
        font.setBold(bold);
        return font;
    }
    /// How text breaks into lines: between words as long as one fits.
    static QTextOption lines()
    {
        QTextOption option(Qt::AlignLeft | Qt::AlignTop);
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        return option;
    }
    QRectF bounds(const QString &text, double width)
    {
        return m_painter.boundingRect(QRectF(0, 0, width, 1e6), text, lines());
    }
    void draw(const QRectF &place, const QString &text) { m_painter.drawText(place, text, lines()); }
    void footer();
    QVector<double> widths(const ReportTable &table);
    double rowHeight(const QVector<ReportCell> &row, const QVector<double> &widths);
    void row(const QVector<ReportCell> &row, const QVector<double> &widths, bool head);
    void head(const ReportTable &table, const QVector<double> &widths);
    void shape(const Shape &shape);

    static constexpr double kBody = 12, kCell = 10.5;

    QPdfWriter *m_writer;
    QPainter m_painter;
    QString m_title;
    double m_height = 0;
    double m_y = 0;
    int m_page = 1;
};

void Pages::footer()
{
    m_painter.setFont(font(9, false));
    m_painter.setPen(colorOf(Ink::Weak));
    const QRectF line(0, m_height + kFooter - 12, kWidth, 12);
    const QFontMetricsF metrics(m_painter.font(), m_writer);
    m_painter.drawText(line, Qt::AlignLeft, metrics.elidedText(m_title, Qt::ElideRight, kWidth - 40));
    m_painter.drawText(line, Qt::AlignRight, QString::number(m_page));
}

void Pages::newPage()
{
    m_writer->newPage();
    ++m_page;
    m_y = 0;
    footer();
}

void Pages::text(const QString &text, double size, bool bold, Tone tone, double above, double below)
{
    m_painter.setFont(font(size, bold));
    const double height = bounds(text, kWidth).height();
    need(above + height);
    m_y += m_y > 0 ? above : 0;
    m_painter.setFont(font(size, bold));
    m_painter.setPen(colorOf(tone));
    draw(QRectF(0, m_y, kWidth, height), text);
    m_y += height + below;
}

void Pages::verdict(const QString &text, Tone tone)
{
    constexpr double kIndent = 14, kPadding = 8;
    m_painter.setFont(font(15, true));
    const double height = bounds(text, kWidth - 2 * kIndent).height() + 2 * kPadding;
    need(height);
    m_painter.fillRect(QRectF(0, m_y, kWidth, height), QColor(0xf2, 0xf4, 0xf7));
    m_painter.fillRect(QRectF(0, m_y, 5, height), colorOf(tone));
    m_painter.setFont(font(15, true));
    m_painter.setPen(colorOf(tone));
    draw(QRectF(kIndent, m_y + kPadding, kWidth - 2 * kIndent, height), text);
    m_y += height + 10;
}

void Pages::item(const QString &text)
{
    constexpr double kIndent = 14;
    m_painter.setFont(font(kBody, false));
    const double height = bounds(text, kWidth - kIndent).height();
    need(height);
    m_painter.setFont(font(kBody, false));
    m_painter.setPen(Qt::black);
    draw(QRectF(2, m_y, kIndent, height), QStringLiteral("•"));
    draw(QRectF(kIndent, m_y, kWidth - kIndent, height), text);
    m_y += height + 3;
}

/// Each column gets what its widest cell takes; where that is too much, wide columns give way.
QVector<double> Pages::widths(const ReportTable &table)
{
    int columns = table.head.size();
    for (const auto &row : table.rows)
        columns = std::max(columns, int(row.size()));
    QVector<double> widths(columns, 10);
    const auto widen = [this, &widths](int column, const QString &text, bool bold) {
        constexpr int kLooked = 400; // letters of a cell that decide
        m_painter.setFont(font(kCell, bold));
        const QFontMetricsF metrics(m_painter.font(), m_writer);
        for (const QString &line : text.left(kLooked).split(QLatin1Char('\n')))
            widths[column] = std::max(widths[column], metrics.horizontalAdvance(line) + kCellGap + 1);
    };
    for (int i = 0; i < table.head.size(); ++i)
        widen(i, table.head.at(i), true);
    for (const auto &row : table.rows) {
        for (int i = 0; i < row.size(); ++i)
            widen(i, row.at(i).text, row.at(i).tone == Tone::Good || row.at(i).tone == Tone::Bad);
    }
    double sum = 0;
    for (const double width : qAsConst(widths))
        sum += width;
    for (double excess = sum - kWidth; excess > 0.5 && columns > 0;) {
        const auto widest = std::max_element(widths.begin(), widths.end());
        const double step = std::min(excess, std::max(*widest * 0.05, 0.5));
        *widest -= step;
        excess -= step;
    }
    if (sum < kWidth && columns > 0) {
        constexpr double kMostMore = 45; // further apart, one loses the line
        const double more = std::min((kWidth - sum) / columns, kMostMore);
        for (double &width : widths)
            width += more;
        widths.last() += kWidth - sum - more * columns;
    }
    return widths;
}

double Pages::rowHeight(const QVector<ReportCell> &row, const QVector<double> &widths)
{
    double height = 0;
    for (int i = 0; i < row.size(); ++i) {
        m_painter.setFont(font(kCell, row.at(i).tone == Tone::Good || row.at(i).tone == Tone::Bad));
        height = std::max(height, bounds(row.at(i).text, widths.at(i) - kCellGap).height());
    }
    return height + 5;
}

void Pages::row(const QVector<ReportCell> &row, const QVector<double> &widths, bool head)
{
    const double height = rowHeight(row, widths);
    double x = 0;
    for (int i = 0; i < row.size(); ++i) {
        const ReportCell &cell = row.at(i);
        m_painter.setFont(font(kCell, head || cell.tone == Tone::Good || cell.tone == Tone::Bad));
        m_painter.setPen(colorOf(cell.tone));
        draw(QRectF(x, m_y + 2, widths.at(i) - kCellGap, height), cell.text);
        x += widths.at(i);
    }
    m_y += height;
    m_painter.setPen(QPen(colorOf(Ink::Grid), head ? 1.5 : 0.7));
    m_painter.drawLine(QPointF(0, m_y), QPointF(kWidth, m_y));
}

void Pages::head(const ReportTable &table, const QVector<double> &widths)
{
    if (table.head.isEmpty())
        return;
    QVector<ReportCell> cells;
    for (const QString &text : table.head)
        cells.append({ text, Tone::Plain, {} });
    row(cells, widths, true);
}

void Pages::table(const ReportTable &table)
{
    if (!table.caption.isEmpty())
        text(table.caption, kBody, true, Tone::Plain, 8, 3);
    const QVector<double> columns = widths(table);
    need(40);
    head(table, columns);
    for (const auto &cells : table.rows) {
        if (m_y > 0 && m_y + rowHeight(cells, columns) > m_height) {
            newPage();
            head(table, columns);
        }
        row(cells, columns, false);
    }
    m_y += 10;
}

void Pages::shape(const Shape &shape)
{
    if (shape.points.isEmpty())
        return;
    const QColor color = colorOf(shape.ink);
    m_painter.setBrush(shape.kind == Shape::Line ? QBrush(Qt::NoBrush) : QBrush(color));
    m_painter.setPen(Qt::NoPen);
    switch (shape.kind) {
    case Shape::Line: {
        QPen pen(color, shape.ink == Ink::Grid ? 0.6 : 1.0);
        if (shape.dashed)
            pen.setDashPattern({ 5, 3 });
        m_painter.setPen(pen);
        m_painter.drawPolyline(shape.points.constData(), shape.points.size());
        break;
    }
    case Shape::Area:
        m_painter.drawPolygon(shape.points.constData(), shape.points.size());
        break;
    case Shape::Dot:
        m_painter.drawEllipse(shape.points.first(), 3.2, 3.2);
        break;
    case Shape::Text: {
        m_painter.setFont(font(Drawing::kTextHeight, false));
        m_painter.setPen(color);
        const QFontMetricsF metrics(m_painter.font(), m_writer);
        const double width = metrics.horizontalAdvance(shape.text);
        const double left = shape.anchor == Shape::Left ? 0 : shape.anchor == Shape::Middle ? width / 2 : width;
        m_painter.drawText(shape.points.first() - QPointF(left, 0), shape.text);
        break;
    }
    }
}

void Pages::picture(const Drawing &drawing)
{
    need(drawing.height);
    m_painter.save();
    m_painter.translate(0, m_y);
    m_painter.setRenderHint(QPainter::Antialiasing);
    for (const Shape &one : drawing.shapes)
        shape(one);
    m_painter.restore();
    m_y += drawing.height + 8;
}

} // namespace

bool pdfReport(const ReportContent &content, QIODevice *device)
{
    QPdfWriter writer(device);
    writer.setTitle(content.title);
    writer.setResolution(kResolution);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(kSidesMm, kTopMm, kSidesMm, kBottomMm), QPageLayout::Millimeter);
    Pages pages(&writer);
    if (!pages.begin(content.title))
        return false;
    bool first = true; // heading
    for (const ReportBlock &block : content.blocks) {
        switch (block.kind) {
        case ReportBlock::Title:
            pages.text(block.text, 24, true, block.tone, 0, 8);
            break;
        case ReportBlock::Verdict:
            pages.verdict(block.text, block.tone);
            break;
        case ReportBlock::Heading:
            // What is first behind the verdict begins a page, so that the first one can be handed on by itself.
            if (first)
                pages.newPage();
            first = false;
            pages.need(220);
            pages.text(block.text, 17, true, block.tone, 16, 6);
            break;
        case ReportBlock::SubHeading:
            pages.need(190);
            pages.text(block.text, 13, true, block.tone, 12, 4);
            break;
        case ReportBlock::Paragraph:
            pages.text(block.text, 12, false, block.tone, 0, 6);
            break;
        case ReportBlock::Item:
            pages.item(block.text);
            break;
        case ReportBlock::Table:
            pages.table(block.table);
            break;
        case ReportBlock::Picture:
            pages.picture(block.picture);
            break;
        }
    }
    return pages.end();
}
