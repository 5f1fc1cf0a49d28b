#include "widgets/controls/mcheckbox.h"

#include <QKeyEvent>

void MCheckBox::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
}
