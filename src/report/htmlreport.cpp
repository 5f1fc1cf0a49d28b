#include "report/htmlreport.h"

#include "report/reportcontent.h"

namespace {

constexpr char kStyle[] = R"(
:root { color-scheme: light dark; --ink: #1b1f24; --weak: #5b6570; --paper: #fff; --line: #d5dae0; --soft: #f2f4f7;
  --l1: #8a5a19; --l2: #1b1f24; --l3: #7a828c; --n: #1f5fbf; --limit: #b3261e; --good: #17692f; --bad: #b3261e; }
@media (prefers-color-scheme: dark) {
  :root { --ink: #e6e9ed; --weak: #a3adb8; --paper: #14171b; --line: #363d46; --soft: #1e2329;
    --l1: #d9a15a; --l2: #e6e9ed; --l3: #98a2ae; --n: #7fb0ff; --limit: #ff8a80; --good: #7bd893; --bad: #ff8a80; }
}
@page { size: A4; margin: 15mm 14mm 16mm; }
* { box-sizing: border-box; }
body { margin: 2em auto; padding: 0 1em; max-width: 60em; background: var(--paper); color: var(--ink);
  font: 15px/1.45 "Liberation Sans", Arial, "Noto Sans CJK SC", "WenQuanYi Zen Hei", sans-serif; }
h1 { font-size: 1.7em; line-height: 1.2; margin: 0 0 .5em; overflow-wrap: anywhere; }
h2 { font-size: 1.25em; margin: 2em 0 .5em; border-bottom: 2px solid var(--line); padding-bottom: .2em; }
h3 { font-size: 1.05em; margin: 1.5em 0 .4em; }
p, li { overflow-wrap: anywhere; } ul { padding-left: 1.2em; }
.verdict { font-size: 1.15em; font-weight: bold; padding: .6em .8em; border-left: .4em solid var(--weak); background: var(--soft); }
.verdict.good { border-color: var(--good); } .verdict.bad { border-color: var(--bad); }
.good { color: var(--good); } .bad { color: var(--bad); } .weak { color: var(--weak); }
td.good, td.bad { font-weight: bold; }
.wide { overflow-x: auto; }
table { border-collapse: collapse; width: 100%; font-size: .85em; margin: .5em 0 1em; font-variant-numeric: tabular-nums; }
caption { text-align: left; font-weight: bold; padding: .3em 0; }
th, td { text-align: left; vertical-align: top; padding: .25em .5em .25em 0; border-bottom: 1px solid var(--line); overflow-wrap: anywhere; }
thead th { border-bottom: 2px solid var(--line); } tbody th { font-weight: normal; }
tr:target, section:target h2, h3:target { background: var(--soft); }
thead ~ tbody td, thead ~ tbody th, thead th { overflow-wrap: normal; }
a { color: inherit; }
figure { margin: .8em 0; } svg { display: block; width: 100%; height: auto; }
svg text { font-size: 11px; fill: var(--ink); } svg a circle { cursor: pointer; }
.s-frame { stroke: var(--weak); } .s-grid { stroke: var(--line); } .s-text { stroke: var(--ink); } .s-weak { stroke: var(--weak); }
.s-l1 { stroke: var(--l1); } .s-l2 { stroke: var(--l2); } .s-l3 { stroke: var(--l3); } .s-n { stroke: var(--n); }
.s-limit { stroke: var(--limit); } .s-good { stroke: var(--good); } .s-bad { stroke: var(--bad); }
polyline, line { fill: none; stroke-width: 1.1; } .dash { stroke-dasharray: 5 3; }
svg .f-frame, svg .f-grid { fill: var(--line); } svg .f-text { fill: var(--ink); } svg .f-weak { fill: var(--weak); }
svg .f-l1 { fill: var(--l1); } svg .f-l2 { fill: var(--l2); } svg .f-l3 { fill: var(--l3); } svg .f-n { fill: var(--n); }
svg .f-limit { fill: var(--limit); } svg .f-good { fill: var(--good); } svg .f-bad { fill: var(--bad); }
@media print {
  :root { color-scheme: light; --ink: #000; --weak: #444; --paper: #fff; --line: #bbb; --soft: #f2f2f2;
    --l1: #8a5a19; --l2: #000; --l3: #777; --n: #1f5fbf; --limit: #b3261e; --good: #17692f; --bad: #b3261e; }
  body { margin: 0; max-width: none; font-size: 9pt; }
  h2 { break-after: avoid; }
  section:first-of-type { break-before: page; }
  table { font-size: 7.5pt; }
  figure, tr, li, .facts { break-inside: avoid; }
  thead { display: table-header-group; }
  a { text-decoration: none; }
}
)";

const char *inkName(Ink ink)
{
    static constexpr const char *kNames[]
        = { "frame", "grid", "text", "weak", "l1", "l2", "l3", "n", "limit", "good", "bad" };
    return kNames[int(ink)];
}

const char *toneName(Tone tone)
{
    static constexpr const char *kNames[] = { "", "good", "bad", "weak" };
    return kNames[int(tone)];
}

/// Any text as HTML shows it, in an attribute, too. Signs that HTML cannot carry become blanks.
QByteArray quoted(const QString &text)
{
    QString plain = text;
    for (QChar &sign : plain) {
        if ((sign.unicode() < 0x20 && sign != QLatin1Char('\n')) || (sign.unicode() >= 0x7f && sign.unicode() < 0xa0)
            || sign.unicode() >= 0xfffe)
            sign = QLatin1Char(' ');
    }
    return plain.toHtmlEscaped().toUtf8();
}

QByteArray classOf(Tone tone, const QByteArray &more = {})
{
    QByteArray names = more;
    if (tone != Tone::Plain)
        names += (names.isEmpty() ? "" : " ") + QByteArray(toneName(tone));
    return names.isEmpty() ? QByteArray() : " class=\"" + names + '"';
}

QByteArray idOf(const QString &anchor)
{
    return anchor.isEmpty() ? QByteArray() : " id=\"" + quoted(anchor) + '"';
}

QByteArray linked(const QByteArray &inner, const QString &link)
{
    return link.isEmpty() ? inner : "<a href=\"#" + quoted(link) + "\">" + inner + "</a>";
}

QByteArray number(double value)
{
    return QByteArray::number(value, 'f', 1);
}

QByteArray pointsOf(const QVector<QPointF> &points)
{
    QByteArray text;
    for (const QPointF &point : points)
        text += number(point.x()) + ',' + number(point.y()) + ' ';
    text.chop(1);
    return text;
}

QByteArray svgShape(const Shape &shape)
{
    if (shape.points.isEmpty())
        return {};
    const QByteArray ink = inkName(shape.ink);
    const QPointF first = shape.points.first();
    switch (shape.kind) {
    case Shape::Line:
        return "<polyline class=\"s-" + ink + (shape.dashed ? " dash" : "") + "\" points=\"" + pointsOf(shape.points)
            + "\"/>\n";
    case Shape::Area:
        return "<polygon class=\"f-" + ink + "\" points=\"" + pointsOf(shape.points) + "\"/>\n";
    case Shape::Dot:
        return linked("<circle class=\"f-" + ink + "\" r=\"3.5\" cx=\"" + number(first.x()) + "\" cy=\""
                          + number(first.y()) + "\"><title>" + quoted(shape.text) + "</title></circle>",
                      shape.link)
            + '\n';
    case Shape::Text:
        break;
    }
    static constexpr const char *kAnchors[] = { "start", "middle", "end" };
    return "<text class=\"f-" + ink + "\" text-anchor=\"" + kAnchors[int(shape.anchor)] + "\" x=\"" + number(first.x())
        + "\" y=\"" + number(first.y()) + "\">" + quoted(shape.text) + "</text>\n";
}

QByteArray svg(const Drawing &drawing)
{
    QByteArray text = "<figure><svg viewBox=\"0 0 " + number(Drawing::kWidth) + ' ' + number(drawing.height)
        + "\" role=\"img\" aria-label=\"" + quoted(drawing.title) + "\">\n";
    for (const Shape &shape : drawing.shapes)
        text += svgShape(shape);
    return text + "</svg></figure>\n";
}

QByteArray htmlTable(const ReportTable &table)
{
    // One without a head is of a few facts, which stay on one page.
    QByteArray text = QByteArray("<div class=\"wide") + (table.head.isEmpty() ? " facts" : "") + "\"><table>\n";
    if (!table.caption.isEmpty())
        text += "<caption>" + quoted(table.caption) + "</caption>\n";
    if (!table.head.isEmpty()) {
        text += "<thead><tr>";
        for (const QString &head : table.head)
            text += "<th scope=\"col\">" + quoted(head) + "</th>";
        text += "</tr></thead>\n";
    }
    text += "<tbody>\n";
    for (int r = 0; r < table.rows.size(); ++r) {
        text += "<tr" + idOf(table.anchors.value(r)) + '>';
        bool first = true;
        for (const ReportCell &cell : table.rows.at(r)) {
            const QByteArray inner = linked(quoted(cell.text).replace('\n', "<br>"), cell.link);
            text += first ? "<th scope=\"row\"" : "<td";
            text += classOf(cell.tone) + '>' + inner + (first ? "</th>" : "</td>");
            first = false;
        }
        text += "</tr>\n";
    }
    return text + "</tbody></table></div>\n";
}

QByteArray element(const char *name, const ReportBlock &block, const QByteArray &more = {})
{
    return '<' + QByteArray(name) + idOf(block.anchor) + classOf(block.tone, more) + '>' + quoted(block.text) + "</"
        + name + ">\n";
}

} // namespace

QByteArray htmlReport(const ReportContent &content)
{
    QByteArray html = "<!DOCTYPE html>\n<html lang=\"" + quoted(content.language)
        + "\">\n<head>\n<meta charset=\"utf-8\">\n"
          "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>"
        + quoted(content.title) + "</title>\n<style>" + kStyle + "</style>\n</head>\n<body>\n<main>\n";
    bool inSection = false, inList = false;
    for (const ReportBlock &block : content.blocks) {
        if (inList && block.kind != ReportBlock::Item)
            html += "</ul>\n";
        if (!inList && block.kind == ReportBlock::Item)
            html += "<ul>\n";
        inList = block.kind == ReportBlock::Item;
        switch (block.kind) {
        case ReportBlock::Title:
            html += element("h1", block);
            break;
        case ReportBlock::Verdict:
            html += element("p", block, "verdict");
            break;
        case ReportBlock::Heading:
            html += QByteArray(inSection ? "</section>\n" : "") + "<section>\n" + element("h2", block);
            inSection = true;
            break;
        case ReportBlock::SubHeading:
            html += element("h3", block);
            break;
        case ReportBlock::Paragraph:
            html += element("p", block);
            break;
        case ReportBlock::Item:
            html += element("li", block);
            break;
        case ReportBlock::Table:
            html += htmlTable(block.table);
            break;
        case ReportBlock::Picture:
            html += svg(block.picture);
            break;
        }
    }
    html += inList ? "</ul>\n" : "";
    return html + (inSection ? "</section>\n" : "") + "</main>\n</body>\n</html>\n";
}
