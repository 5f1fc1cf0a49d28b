#include "services/screennotes.h"

#include "widgets/controls/readingmarks.h"
#include "widgets/controls/softkeybutton.h"
#include "widgets/text/textrecorder.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QRadioButton>
#include <QStackedWidget>

#include <algorithm>

namespace {

using ReadingMarks::Check;

constexpr int kRowHeight = 12; // texts whose middles are nearer than this stand in one row
constexpr int kMostCells = 400; // of a list that are looked at

/// All places are those in the window.
struct Text
{
    QPoint middle;
    QString text;
    Check check = Check::None;
};

struct Mark
{
    QRect place;
    Check check;
};

/// What of a part of the screen can be read.
class Reading
{
public:
    Reading(QWidget *part, const QWidget *window) : m_window(window) { add(part); }
    /// Row by row as a person reads them.
    QString texts() const { return rowsOf(m_texts).join(QLatin1Char('\n')).left(ScreenNotes::kLongest); }
    /// What is selected, a mark a line; a line that stands in a column of another follows it.
    QString selected() const;

private:
    void add(QWidget *widget);
    void addCells(const QAbstractItemView *view);
    void addPainted(QWidget *widget);
    void addMark(const QWidget *widget, const QRect &place, Check check)
    {
        if (!place.isEmpty())
            m_marks.append({ QRect(widget->mapTo(m_window, place.topLeft()), place.size()), check });
    }
    QString lineOf(const Mark &mark) const;
    static QStringList rowsOf(QVector<Text> texts);

    const QWidget *m_window;
    QVector<Text> m_texts;
    QVector<Mark> m_marks;
};

void Reading::addCells(const QAbstractItemView *view)
{
    const QAbstractItemModel *model = view->model();
    const int rows = model ? model->rowCount() : 0, columns = model ? model->columnCount() : 0;
    const QRect shown = view->viewport()->rect();
    const int first = std::max(0, view->indexAt(shown.topLeft()).row()) * columns; // a long list stands anywhere
    for (int cell = first; cell < std::min(rows * columns, first + kMostCells); ++cell) {
        const QModelIndex index = model->index(cell / columns, cell % columns);
        const QRect place = view->visualRect(index);
        const QString text = index.data().toString().simplified();
        if (!text.isEmpty() && shown.intersects(place))
            m_texts.append({ view->viewport()->mapTo(m_window, place.center()), text });
        if (shown.intersects(place) && index == view->currentIndex())
            addMark(view->viewport(), place, Check::None);
    }
}

/// For charts, and tables that paint what they say.
void Reading::addPainted(QWidget *widget)
{
    const auto painted = textsPaintedBy(widget);
    for (const PaintedText &part : painted) {
        const QString text = part.text.simplified();
        if (!text.isEmpty())
            m_texts.append({ widget->mapTo(m_window, part.ink.center().toPoint()), text });
    }
}

Check checkOf(const QWidget *widget)
{
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    if (!button || !button->isCheckable() || qobject_cast<const QRadioButton *>(widget))
        return Check::None;
    return button->isChecked() ? Check::On : Check::Off;
}

void Reading::add(QWidget *widget)
{
    if (!widget->isVisible())
        return;
    const QString text = widget->property("text").toString().simplified();
    if (!text.isEmpty())
        m_texts.append({ widget->mapTo(m_window, widget->rect().center()), text, checkOf(widget) });
    else if (const auto *view = qobject_cast<const QAbstractItemView *>(widget))
        addCells(view);
    else if (!qobject_cast<const QLabel *>(widget) && !qobject_cast<const QAbstractItemView *>(widget->parent()))
        addPainted(widget);
    const auto *choice = qobject_cast<const QRadioButton *>(widget);
    const ReadingMarks::Selection selection = ReadingMarks::selection(widget);
    addMark(widget, choice && choice->isChecked() ? widget->rect() : selection.place, selection.check);
    for (QObject *child : widget->children()) {
        if (child->isWidgetType())
            add(static_cast<QWidget *>(child));
    }
}

QStringList Reading::rowsOf(QVector<Text> texts)
{
    std::stable_sort(texts.begin(), texts.end(),
                     [](const Text &one, const Text &other) { return one.middle.y() < other.middle.y(); });
    QStringList rows;
    for (auto begin = texts.begin(); begin != texts.end();) {
        const int top = begin->middle.y();
        const auto end
            = std::find_if(begin, texts.end(), [top](const Text &text) { return text.middle.y() >= top + kRowHeight; });
        std::stable_sort(begin, end,
                         [](const Text &one, const Text &other) { return one.middle.x() < other.middle.x(); });
        QStringList row;
        for (; begin != end; ++begin)
            row << begin->text;
        rows << row.join(QLatin1Char(' '));
    }
    return rows;
}

QString Reading::lineOf(const Mark &mark) const
{
    QVector<Text> within;
    Check check = mark.check;
    for (const Text &text : m_texts) {
        if (!mark.place.contains(text.middle))
            continue;
        within << text;
        check = text.check == Check::None ? check : text.check;
    }
    if (within.isEmpty())
        return {};
    // Boxes that stand beside each other have the caption of their line to the left.
    const Text box = within.first();
    for (const Text &text : m_texts) {
        if (box.check != Check::None && text.check == Check::None && text.middle.x() < mark.place.left()
            && std::abs(text.middle.y() - box.middle.y()) < kRowHeight)
            within << text;
    }
    const QString state = check == Check::None ? QString() : QLatin1String(check == Check::On ? " [x]" : " [ ]");
    return rowsOf(within).join(QLatin1Char(' ')) + state;
}

QString Reading::selected() const
{
    QStringList lines;
    for (const Mark &mark : m_marks)
        lines << lineOf(mark);
    lines.removeAll(QString());
    lines.removeDuplicates();
    return lines.join(QLatin1Char('\n')).left(ScreenNotes::kLongest);
}

/// The captions of the soft keys, a key a line.
QString softKeysOf(const QWidget *part)
{
    QStringList keys;
    for (int key = 1; key <= 5; ++key) {
        const auto labels = part->findChildren<QLabel *>(QStringLiteral("btn_f%1").arg(key));
        for (const QLabel *label : labels) {
            const auto *choices = qobject_cast<const SoftKeyButton *>(label);
            const QString caption = (choices ? choices->spokenText() : label->text()).simplified();
            if (label->isVisible() && !caption.isEmpty())
                keys << QStringLiteral("F%1 ").arg(key) + caption;
        }
    }
    return keys.join(QLatin1Char('\n'));
}

void addNotes(QWidget *part, const QWidget *window, QMap<QString, QString> *notes)
{
    const Reading reading(part, window);
    notes->insert(QStringLiteral("Texts"), reading.texts());
    notes->insert(QStringLiteral("Selected"), reading.selected());
    notes->insert(QStringLiteral("Keys"),
                  ReadingMarks::isCover(part) ? ReadingMarks::coverKeys(part) : softKeysOf(part));
}

/// What lies over all pages, the last that came first; null: nothing.
QWidget *coverOf(const QWidget *window)
{
    QWidget *cover = nullptr;
    for (QObject *child : window->children()) { // in the order in which they are drawn
        auto *widget = qobject_cast<QWidget *>(child);
        if (widget && widget->isVisible() && ReadingMarks::isCover(widget))
            cover = widget;
    }
    return cover;
}

} // namespace

QMap<QString, QString> ScreenNotes::take()
{
    QMap<QString, QString> notes;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        auto *pages = window->findChild<QStackedWidget *>(QStringLiteral("base_stackedWidget"));
        if (!window->isVisible() || !pages || !pages->currentWidget())
            continue;
        notes.insert(QStringLiteral("Page"), QString::fromLatin1(pages->currentWidget()->metaObject()->className()));
        const auto *parts = pages->currentWidget()->findChild<QStackedWidget *>();
        if (parts && parts->currentWidget())
            notes.insert(QStringLiteral("Part"),
                         QString::fromLatin1(parts->currentWidget()->metaObject()->className()));
        if (const auto *title = window->findChild<QLabel *>(QStringLiteral("name")))
            notes.insert(QStringLiteral("Title"), title->text().simplified());
        QWidget *cover = coverOf(window);
        addNotes(cover ? cover : pages, window, &notes);
    }
    if (QWidget *dialog = QApplication::activeModalWidget()) {
        addNotes(dialog, dialog, &notes);
        QString texts = notes.value(QStringLiteral("Texts"));
        notes.insert(QStringLiteral("Dialog"), texts.replace(QLatin1Char('\n'), QLatin1Char(' ')));
    }
    return notes;
}
