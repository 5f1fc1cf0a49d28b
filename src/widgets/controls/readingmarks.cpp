#include "widgets/controls/readingmarks.h"

#include <QVariant>
#include <QWidget>

namespace ReadingMarks {

namespace {

constexpr char kSelects[] = "selects";
constexpr char kChecked[] = "selectedIsChecked";
constexpr char kCoverKeys[] = "coverKeys";

// Each change of a property is an event of its own, and lines are marked whenever they are painted.
void setMark(QWidget *widget, const char *name, const QVariant &value)
{
    if (widget->property(name) != value)
        widget->setProperty(name, value);
}

} // namespace

void select(QWidget *widget, bool on)
{
    setMark(widget, kSelects, on);
}

void selectPart(QWidget *widget, const QRect &place, Check check)
{
    setMark(widget, kSelects, place);
    setMark(widget, kChecked, int(check));
}

Selection selection(const QWidget *widget)
{
    const QVariant mark = widget->property(kSelects);
    if (mark.type() == QVariant::Rect)
        return { mark.toRect(), Check(widget->property(kChecked).toInt()) };
    return { mark.toBool() ? widget->rect() : QRect(), Check::None };
}

void setCover(QWidget *widget, const QString &keys)
{
    setMark(widget, kCoverKeys, keys);
}

bool isCover(const QWidget *widget)
{
    return widget->property(kCoverKeys).isValid();
}

QString coverKeys(const QWidget *widget)
{
    return widget->property(kCoverKeys).toString();
}

} // namespace ReadingMarks
