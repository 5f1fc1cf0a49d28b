#include "platform/cable.h"

#include "platform/target.h"

#include <QFile>

bool Cable::isIn(const QString &name, bool kernelSaysRunning)
{
    if (Target::root().isEmpty() || name.contains(QLatin1Char('/')))
        return kernelSaysRunning;
    QFile file(Target::path(QStringLiteral("/sys/class/net/%1/carrier").arg(name)));
    char carrier = 0;
    if (!file.open(QIODevice::ReadOnly) || !file.getChar(&carrier) || (carrier != '0' && carrier != '1'))
        return kernelSaysRunning;
    return carrier == '1';
}
