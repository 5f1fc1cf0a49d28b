#include "setup/linelist.h"
#include "ui_setuppane.h"

#include "widgets/controls/labellook.h"
#include "widgets/controls/readingmarks.h"

#include <QScrollBar>

#include <algorithm>

namespace {

// Pixels
constexpr int kTop = 44, kPitch = 35, kHeight = 32;
constexpr int kLeft = 24, kRight = 596, kTextSize = 22;
constexpr int kBarMargin = 8;
constexpr QRect kHint = { 392, 4, 240, 30 };
constexpr int kHintSize = 16;
constexpr QRect kScrollBar = { 616, kTop, 16, LineList::kLines *kPitch };

LabelGrid gridOf(int columns, int width)
{
    const int left = kRight - columns * width;
    return { left, width, width, kTextSize, kHeight, kLeft, left - kLeft - kBarMargin, kTextSize, columns };
}

QLabel *addBar(QWidget *page, const char *name, const char *color)
{
    auto *bar = new QLabel(page);
    bar->setObjectName(QLatin1String(name));
    bar->setProperty("background", QLatin1String(color));
    ReadingMarks::select(bar);
    return bar;
}

} // namespace

LineList::LineList(int columns, int width, const KeyRepeat::Pace &pace, QWidget *parent)
    : ListPage(UI_SETUP, Lines, pace, parent), m_ui(new Ui::SetupPane)
{
    m_ui->setupUi(this);
    m_hint = new QLabel(this);
    m_hint->setObjectName(QStringLiteral("hint"));
    m_hint->setGeometry(kHint);
    m_hint->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_hint->setProperty("textSize", kHintSize);
    m_hint->setProperty("textColor", QStringLiteral("#c0c0c0"));
    m_bar = addBar(this, "line_bar", "#004882");
    m_mark = addBar(this, "column_bar", "#1f6fd0");
    const LabelGrid grid = gridOf(columns, width);
    for (int i = 0; i < kLines; ++i) {
        const QString name = QStringLiteral("line%1").arg(i + 1);
        QStringList values;
        for (int c = 0; c < columns; ++c)
            values << QStringLiteral("%1_%2").arg(name).arg(c + 1);
        m_labels[std::size_t(i)] = grid.addRow(this, name + QLatin1String("_t"), values, kTop + i * kPitch);
    }
    m_scrollBar = new QScrollBar(this);
    m_scrollBar->setGeometry(kScrollBar);
    m_scrollBar->setPageStep(kLines);
    m_scrollBar->setStyleSheet(
        QStringLiteral("QScrollBar:vertical { background-color: #303030; width: 16px; margin: 0px; }"
                       "QScrollBar::handle:vertical { background-color: #c0c0c0; min-height: 16px; }"
                       "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0px; }"));
    setScrollBar(m_scrollBar);
    LabelLook::dress(this);
}

LineList::~LineList() = default;

void LineList::init_parameter()
{
    ListPage::init_parameter();
    showLines();
}

void LineList::retranslateUi()
{
    setObjectName(QString::fromLatin1(metaObject()->className()));
    ListPage::retranslateUi();
    showLines();
}

void LineList::selectLine(int index)
{
    stopRepeat();
    m_list.setCount(lineCount());
    m_list.moveLines(index - std::max(m_list.selected(), 0));
    showLines();
}

void LineList::showLines()
{
    setText(m_hint, hint());
    const int right = hint().isEmpty() ? kHint.right() : kHint.left();
    const int room = right - m_ui->title->x();
    setText(m_ui->title, m_ui->title->fontMetrics().elidedText(title(), Qt::ElideRight, room));
    m_list.setCount(lineCount());
    m_scrollBar->setVisible(m_list.count() > kLines);
    refreshList();
}

QString LineList::fittedName(const QString &text) const
{
    const QLabel *label = m_labels[0].caption;
    return label->fontMetrics().elidedText(text, Qt::ElideRight, label->width());
}

void LineList::showList()
{
    for (int i = 0; i < kLines; ++i) {
        const LabelGrid::Row &labels = m_labels[std::size_t(i)];
        const int index = m_list.first() + i;
        const Line shown = index < m_list.end() ? line(index) : Line();
        setText(labels.caption, shown.name);
        for (int c = 0; c < int(labels.values.size()); ++c)
            setText(labels.values[std::size_t(c)], shown.columns.value(c));
    }
    const int top = kTop + m_list.row() * kPitch;
    const bool any = m_list.count() > 0;
    m_bar->setGeometry(kLeft - kBarMargin, top, kRight - kLeft + 2 * kBarMargin, kHeight);
    m_bar->setVisible(any);
    m_mark->setVisible(any && markedColumn() >= 0);
    if (markedColumn() >= 0) {
        const QRect cell = m_labels[std::size_t(m_list.row())].values[std::size_t(markedColumn())]->geometry();
        m_mark->setGeometry(cell.adjusted(kBarMargin, 0, kBarMargin, 0));
    }
    lineChosen();
}

std::vector<FrontKeys::Row> LineList::commonKeys()
{
    std::vector<FrontKeys::Row> rows = ListPage::commonKeys();
    rows.push_back({ Qt::Key_F5, nullptr, {}, {}, 0, {} }); // nothing is held here
    return rows;
}
