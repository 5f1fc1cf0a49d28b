#include "widgets/controls/llistwidget.h"

#include <QKeyEvent>

void LListWidget::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
}
