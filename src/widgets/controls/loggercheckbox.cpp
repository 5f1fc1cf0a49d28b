#include "widgets/controls/loggercheckbox.h"

#include <QKeyEvent>

void LoggerCheckBox::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
}
