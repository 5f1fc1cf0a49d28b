#pragma once

#include <QRectF>
#include <QString>
#include <QVector>

class QWidget;

/// A text as a widget painted it: labels, buttons, keys and charts alike.
struct PaintedText
{
    QString text;
    QRectF ink; // what the signs cover, on the widget
    QRectF room; // of the widget that painted it
};

/// The texts that a widget itself paints, without those of its children; nothing gets to the screen. GUI thread, not
/// while something is painted.
QVector<PaintedText> textsPaintedBy(QWidget *widget);
