#pragma once

class QColor;
class QLabel;
class QString;
class QWidget;

/// How the labels of a form look, without a style sheet: a sheet would cost every label a search through its rules when
/// the form is made, again each time the form gets a parent, and a slower paint at every refresh.
///
/// A form file gives a label dynamic properties where it differs from white text of 18 pixels on nothing:
///   textSize    height of the font, pixels
///   textColor   name of a colour
///   background  name of a colour, or of an embedded picture (":/button")
/// Any other widget of the form may have them too; a frame draws its line in the text colour. The form itself is black.
namespace LabelLook {

/// Call it once, directly behind setupUi.
void dress(QWidget *form);

/// Fills a widget with one colour or with an embedded picture.
void setBackground(QWidget *widget, const QString &background);

/// Colour of a text that is another one at another time. Null is harmless.
void setColor(QLabel *label, const QColor &color);

} // namespace LabelLook
