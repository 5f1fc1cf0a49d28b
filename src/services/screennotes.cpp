#include "services/screennotes.h"

#include "widgets/text/textrecorder.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QStackedWidget>

#include <algorithm>

namespace {

constexpr int kRowHeight = 12; // texts whose middles are nearer than this stand in one row
constexpr int kMostCells = 400; // of a list that are looked at

struct Text
{
    QPoint middle; // in the window
    QString text;
};

void addCells(const QAbstractItemView *view, const QWidget *window, QVector<Text> *texts)
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
            texts->append({ view->viewport()->mapTo(window, place.center()), text });
    }
}

/// For charts, and tables that paint what they say.
void addPainted(QWidget *widget, const QWidget *window, QVector<Text> *texts)
{
    const auto painted = textsPaintedBy(widget);
    for (const PaintedText &part : painted) {
        const QString text = part.text.simplified();
        if (!text.isEmpty())
            texts->append({ widget->mapTo(window, part.ink.center().toPoint()), text });
    }
}

void addTexts(QWidget *widget, const QWidget *window, QVector<Text> *texts)
{
    if (!widget->isVisible())
        return;
    const QString text = widget->property("text").toString().simplified();
    if (!text.isEmpty())
        texts->append({ widget->mapTo(window, widget->rect().center()), text });
    else if (const auto *view = qobject_cast<const QAbstractItemView *>(widget))
        addCells(view, window, texts);
    else if (!qobject_cast<const QLabel *>(widget) && !qobject_cast<const QAbstractItemView *>(widget->parent()))
        addPainted(widget, window, texts);
    for (QObject *child : widget->children()) {
        if (child->isWidgetType())
            addTexts(static_cast<QWidget *>(child), window, texts);
    }
}

/// Row by row as a person reads them.
QString rowsOf(QWidget *part, const QWidget *window)
{
    QVector<Text> texts;
    addTexts(part, window, &texts);
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
    return rows.join(QLatin1Char('\n')).left(ScreenNotes::kLongest);
}

/// The captions of the soft keys, a key a line.
QString softKeysOf(const QWidget *part)
{
    QStringList keys;
    for (int key = 1; key <= 5; ++key) {
        const auto labels = part->findChildren<QLabel *>(QStringLiteral("btn_f%1").arg(key));
        for (const QLabel *label : labels) {
            if (label->isVisible() && !label->text().isEmpty())
                keys << QStringLiteral("F%1 %2").arg(key).arg(label->text().simplified());
        }
    }
    return keys.join(QLatin1Char('\n'));
}

void addNotes(QWidget *part, const QWidget *window, QMap<QString, QString> *notes)
{
    notes->insert(QStringLiteral("Texts"), rowsOf(part, window));
    notes->insert(QStringLiteral("Keys"), softKeysOf(part));
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
        addNotes(pages, window, &notes);
    }
    if (QWidget *dialog = QApplication::activeModalWidget()) {
        addNotes(dialog, dialog, &notes);
        QString texts = notes.value(QStringLiteral("Texts"));
        notes.insert(QStringLiteral("Dialog"), texts.replace(QLatin1Char('\n'), QLatin1Char(' ')));
    }
    return notes;
}
