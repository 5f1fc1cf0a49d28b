#pragma once

#include <QDebug>

/// One line of the debug log in the instrument's form; `unit` is the source path without its suffix.
#define QV_TRACE(unit) qDebug().noquote() << "F:" << unit << "L:" << __LINE__ << ">"
