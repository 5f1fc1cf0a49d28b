#include "widgets/controls/labellook.h"

#include <QLabel>
#include <QPixmap>
#include <QVariant>

namespace LabelLook {

namespace {

constexpr int kTextSize = 18; // pixels

void dressWidget(QWidget *widget)
{
    auto *label = qobject_cast<QLabel *>(widget);
    const bool isLabel = label;
    if (isLabel)
        label->setTextFormat(Qt::PlainText); // names that a person or a file gave may look like markup
    const QVariant size = widget->property("textSize");
    if (isLabel || size.isValid()) {
        QFont font = widget->font();
        font.setPixelSize(size.isValid() ? size.toInt() : kTextSize);
        widget->setFont(font);
    }
    const QVariant color = widget->property("textColor");
    if (isLabel || color.isValid()) {
        QPalette palette = widget->palette();
        palette.setColor(QPalette::WindowText, color.isValid() ? QColor(color.toString()) : QColor(Qt::white));
        widget->setPalette(palette);
    }
    const QVariant background = widget->property("background");
    if (background.isValid())
        setBackground(widget, background.toString());
}

} // namespace

void dress(QWidget *form)
{
    setBackground(form, QStringLiteral("black"));
    const QList<QWidget *> widgets = form->findChildren<QWidget *>();
    for (QWidget *widget : widgets)
        dressWidget(widget);
}

void setBackground(QWidget *widget, const QString &background)
{
    QPalette palette = widget->palette();
    if (background.startsWith(QLatin1Char(':')))
        palette.setBrush(QPalette::Window, QPixmap(background));
    else
        palette.setColor(QPalette::Window, QColor(background));
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
}

void setColor(QLabel *label, const QColor &color)
{
    // A sheet, set only when it differs: it costs a new polish.
    const QString sheet = QStringLiteral("color: %1;").arg(color.name());
    if (label && label->styleSheet() != sheet)
        label->setStyleSheet(sheet);
}

} // namespace LabelLook
