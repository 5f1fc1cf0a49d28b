#pragma once

#include <QDebug>
#include <QString>

/// Source path for the debug log: "src/task/unitask.cpp" gives "task/unitask".
inline QString debugSource(const char *file)
{
    QString path = QString::fromUtf8(file);
    const int at = path.lastIndexOf(QStringLiteral("/src/"));
    if (at >= 0)
        path = path.mid(at + 5);
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    return dot > 0 ? path.left(dot) : path;
}

/// One line of the debug log: F: task/unitask L: 12 > text
#define QUVERA_DEBUG(text) (qDebug().noquote() << "F:" << debugSource(__FILE__) << "L:" << __LINE__ << ">" << (text))
