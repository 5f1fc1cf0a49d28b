#pragma once

#include "platform/target.h"
#include "unit/letgo.h"

#include <QFile>
#include <QTest>

/// What a stand-in's script may begin with: it goes on when the test makes the file kLetGo, or after a minute.
const QByteArray kUntilLetGo
    = "for i in $(seq 600); do [ -e \"${0%/bin/*}/var/log/let-go\" ] && break; /bin/sleep 0.1; done\n";

/// Puts a script in the place of one of the desk's commands.
inline void setStandIn(const QString &name, const QByteArray &script)
{
    QFile file(Target::path(QStringLiteral("/bin/") + name));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QVERIFY(file.write("#!/bin/sh\n" + script) > 0);
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}
