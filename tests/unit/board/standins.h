#pragma once

#include "platform/target.h"

#include <QFile>
#include <QTest>

/// Puts a script in the place of one of the desk's commands.
inline void setStandIn(const QString &name, const QByteArray &script)
{
    QFile file(Target::path(QStringLiteral("/bin/") + name));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QVERIFY(file.write("#!/bin/sh\n" + script) > 0);
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}
