#pragma once

#include "widgets/text/textrecorder.h"

#include <QWidget>

/// Whether what \a widget paints at a point of \a top is hidden by something opaque that lies over it.
inline bool isCovered(const QWidget &widget, const QWidget &top, QPoint at)
{
    const QWidget *over = top.childAt(at);
    for (; over && over != &widget && !over->isAncestorOf(&widget); over = over->parentWidget()) {
        if (over->autoFillBackground())
            return true;
    }
    return false;
}

/// The texts that can be seen of a widget and of everything that is shown in it.
inline QVector<PaintedText> paintedTexts(QWidget &top)
{
    QVector<PaintedText> found;
    QList<QWidget *> widgets = top.findChildren<QWidget *>();
    widgets.prepend(&top);
    for (QWidget *widget : widgets) {
        if (widget != &top && !widget->isVisibleTo(&top))
            continue;
        const QPoint place = widget->mapTo(&top, QPoint());
        for (PaintedText text : textsPaintedBy(widget)) {
            text.ink.translate(place);
            text.room.translate(place);
            if (!isCovered(*widget, top, text.ink.center().toPoint()))
                found.append(text);
        }
    }
    return found;
}
