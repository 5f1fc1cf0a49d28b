#include "widgets/controls/mpushbutton.h"

#include <QKeyEvent>

void MPushButton::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
}
