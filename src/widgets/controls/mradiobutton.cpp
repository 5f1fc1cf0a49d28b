#include "widgets/controls/mradiobutton.h"

#include <QKeyEvent>

void MRadioButton::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
}
