#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QMap>
#include <QString>
#include <QWidget>

/// What a person can read on a widget and everything in it, by object name: a test says "btn_f4 reads Trend" without
/// reading a picture. Labels and buttons only, and of them those that are shown and hold a text.
inline QMap<QString, QString> visibleTexts(const QWidget *top)
{
    QMap<QString, QString> texts;
    const auto widgets = top->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (widget->objectName().isEmpty() || !widget->isVisible())
            continue;
        QString text;
        if (const auto *label = qobject_cast<const QLabel *>(widget))
            text = label->text();
        else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            text = button->text();
        if (!text.isEmpty())
            texts.insert(widget->objectName(), text);
    }
    return texts;
}
