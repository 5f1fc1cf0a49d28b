#include "platform/cable.h"

#include "platform/ordinaryfile.h"
#include "platform/target.h"

bool Cable::isIn(const QString &name, bool kernelSaysRunning)
{
    if (Target::root().isEmpty() || name.contains(QLatin1Char('/')))
        return kernelSaysRunning;
    const QByteArray carrier
        = OrdinaryFile::start(Target::path(QStringLiteral("/sys/class/net/%1/carrier").arg(name)), 1);
    return carrier == "0" || carrier == "1" ? carrier == "1" : kernelSaysRunning;
}
