#pragma once

#include <QRect>

class QString;
class QWidget;

/// What a person sees at a glance and a list of texts does not tell: which line is selected, whether it is checked,
/// what lies in front. Pages leave these marks on their widgets, the notes beside a picture of the screen read them. A
/// form file may give a bar behind the selected line the dynamic property selects (true). GUI thread.
namespace ReadingMarks {

enum class Check { None, Off, On };

/// What of a widget stands out, in its own coordinates.
struct Selection
{
    QRect place; // empty: nothing
    Check check = Check::None;
};

/// The whole widget is what is selected, or lies behind it. It counts while the widget is visible.
void select(QWidget *widget, bool on = true);
/// For a widget that paints its lines.
void selectPart(QWidget *widget, const QRect &place, Check check = Check::None);
Selection selection(const QWidget *widget);

/// The widget hides the page below it. \a keys: captions that it paints, as "F5 Back", a key a line.
void setCover(QWidget *widget, const QString &keys);
bool isCover(const QWidget *widget);
QString coverKeys(const QWidget *widget);

} // namespace ReadingMarks
