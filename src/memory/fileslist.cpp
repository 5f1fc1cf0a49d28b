#include "memory/fileslist.h"

#include "widgets/charts/chartparts.h"
#include "widgets/controls/readingmarks.h"

#include <QPainter>
#include <QRegularExpression>

namespace {

constexpr int kHeaderHeight = 26;
constexpr int kRowStep = 24; // the height of the icons
constexpr int kIconLeft = 46, kCheckLeft = 14; // pixels
constexpr int kTimeLeft = 100, kTimeWidth = 190;
constexpr int kTextLeft = 300;
const QColor kInUse(144, 144, 144);

const char *const kTitles[] = { QT_TRANSLATE_NOOP("FilesList", "TYPE"), QT_TRANSLATE_NOOP("FilesList", "TIME"),
                                QT_TRANSLATE_NOOP("FilesList", "DESCRIPTION") };

} // namespace

bool FileListItem::isPicture() const
{
    return !item.isFolder && item.name.endsWith(QLatin1String(".png"), Qt::CaseInsensitive);
}

const char *FileListItem::icon() const
{
    return item.isFolder ? ":/folder" : isPicture() ? ":/bmp" : ":/file";
}

QString FileListItem::description() const
{
    static const QRegularExpression begun(QStringLiteral("^\\d{6}_\\d{6} (?=.)"));
    QString text = item.name;
    if (item.isFolder)
        text.remove(begun);
    return text.simplified(); // a line feed would take the row below
}

FilesList::FilesList(QWidget *parent) : QWidget(parent) { }

void FilesList::setItems(const QVector<StoredItem> &items, const QSet<QByteArray> &inUse)
{
    const QList<QByteArray> list = checkedFiles();
    const QSet<QByteArray> checked(list.begin(), list.end());
    const QByteArray selected = current() ? current()->item.file : QByteArray();
    m_items.clear();
    m_scroll.checkAll(false);
    m_scroll.setCount(items.size());
    for (int row = 0; row < items.size(); ++row) {
        const StoredItem &item = items.at(row);
        m_items.push_back({ item, inUse.contains(item.file) });
        m_scroll.setChecked(row, checked.contains(item.file) && !m_items.back().inUse);
        if (item.file == selected)
            m_scroll.moveLines(row - m_scroll.selected());
    }
    update();
}

const FileListItem *FilesList::current() const
{
    return m_scroll.selected() < 0 ? nullptr : &m_items[std::size_t(m_scroll.selected())];
}

void FilesList::move(int rows)
{
    m_scroll.moveLines(rows);
    update();
}

void FilesList::toTop()
{
    m_scroll.reset();
    update();
}

void FilesList::setEditing(bool on)
{
    m_editing = on;
    m_scroll.checkAll(false);
    update();
}

bool FilesList::toggleCurrent()
{
    const FileListItem *item = current();
    if (!item || item->inUse)
        return !item;
    m_scroll.setChecked(m_scroll.selected(), !m_scroll.isChecked(m_scroll.selected()));
    update();
    return true;
}

void FilesList::checkAll(bool on)
{
    for (int row = 0; row < count(); ++row)
        m_scroll.setChecked(row, on && !at(row).inUse);
    update();
}

QList<QByteArray> FilesList::checkedFiles() const
{
    QList<QByteArray> files;
    for (const int row : m_scroll.checked())
        files << at(row).item.file;
    return files;
}

void FilesList::uncheck(const QList<QByteArray> &files)
{
    const QSet<QByteArray> gone(files.begin(), files.end());
    for (const int row : m_scroll.checked())
        m_scroll.setChecked(row, !gone.contains(at(row).item.file));
    update();
}

void FilesList::setInUse(const QSet<QByteArray> &files)
{
    for (int row = 0; row < count(); ++row) {
        FileListItem &item = m_items[std::size_t(row)];
        item.inUse = files.contains(item.item.file);
        m_scroll.setChecked(row, isChecked(row) && !item.inUse);
    }
    update();
}

void FilesList::resizeEvent(QResizeEvent *)
{
    m_background = ChartParts::scaledPicture(QStringLiteral(":/eventwidget_bg"), size());
    m_bar = ChartParts::scaledPicture(QStringLiteral(":/eventwidget_bar"), QSize(width() - 6, kRowStep));
}

void FilesList::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_background);
    drawHeader(painter);
    for (int row = m_scroll.first(); row < m_scroll.end(); ++row)
        drawRow(painter, kHeaderHeight + (row - m_scroll.first()) * kRowStep, row);
    markSelected();
    if (count() > 0)
        return;
    painter.setPen(Qt::white);
    ChartParts::setFontPixels(painter, 18);
    painter.drawText(rect().adjusted(0, kHeaderHeight, 0, 0), Qt::AlignCenter, tr("no files"));
}

void FilesList::markSelected()
{
    const int row = m_scroll.selected();
    if (row < m_scroll.first() || row >= m_scroll.end()) {
        ReadingMarks::selectPart(this, QRect());
        return;
    }
    auto check = ReadingMarks::Check::None;
    if (m_editing && !at(row).inUse)
        check = isChecked(row) ? ReadingMarks::Check::On : ReadingMarks::Check::Off;
    const int top = kHeaderHeight + (row - m_scroll.first()) * kRowStep;
    ReadingMarks::selectPart(this, QRect(3, top, width() - 6, kRowStep), check);
}

void FilesList::drawHeader(QPainter &painter) const
{
    const QRect places[] = { { 6, 0, kTimeLeft - 6, kHeaderHeight },
                             { kTimeLeft, 0, kTimeWidth, kHeaderHeight },
                             { kTextLeft, 0, width() - kTextLeft - 6, kHeaderHeight } };
    painter.setPen(Qt::white);
    ChartParts::setFontPixels(painter, 20);
    for (int column = 0; column < 3; ++column) {
        const auto align = column == 0 ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter;
        painter.drawText(places[column], int(align), tr(kTitles[column]));
    }
}

void FilesList::drawRow(QPainter &painter, int top, int row) const
{
    const FileListItem &item = at(row);
    if (row == m_scroll.selected())
        painter.drawPixmap(3, top, m_bar);
    if (m_editing && !item.inUse)
        painter.drawPixmap(kCheckLeft, top, QPixmap(isChecked(row) ? ":/checked" : ":/unchecked"));
    painter.drawPixmap(kIconLeft, top, QPixmap(QString::fromLatin1(item.icon())));
    painter.setPen(item.inUse ? kInUse : QColor(Qt::white));
    ChartParts::setFontPixels(painter, 18);
    const auto align = int(Qt::AlignLeft | Qt::AlignVCenter);
    painter.drawText(QRect(kTimeLeft, top, kTimeWidth, kRowStep), align, item.item.time);
    const QRect place(kTextLeft, top, width() - kTextLeft - 6, kRowStep);
    painter.drawText(place, align | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(item.description(), Qt::ElideMiddle, place.width()));
}
