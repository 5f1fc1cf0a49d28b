#pragma once

#include <QByteArray>
#include <QFile>

#include "platform/target.h"

#include <sys/stat.h>
#include <unistd.h>

/// While it lives, this process is held to the permissions of files, also when the tests run as root. The test's root
/// is opened to everybody.
class OrdinaryUser
{
public:
    OrdinaryUser()
    {
        const QString root = Target::path(QStringLiteral("/"));
        for (const char *folder : { "", "mnt", "mnt/userfs", "mnt/userfs/config", "mnt/userfs/sys" })
            ::chmod(QFile::encodeName(root + QLatin1String(folder)).constData(), 0777);
        if (m_isRoot && ::seteuid(kNobody) != 0)
            qFatal("cannot give the rights of root up");
    }
    ~OrdinaryUser()
    {
        if (m_isRoot && ::seteuid(0) != 0)
            qFatal("cannot take the rights of root back");
        if (!m_folder.isEmpty())
            ::chmod(m_folder.constData(), 0777);
    }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

    /// Changes the rights of a folder until the end.
    void setFolderMode(const QByteArray &folder, mode_t mode)
    {
        m_folder = folder;
        if (m_isRoot && ::seteuid(0) != 0)
            qFatal("cannot take the rights of root back");
        ::chmod(folder.constData(), mode);
        if (m_isRoot && ::seteuid(kNobody) != 0)
            qFatal("cannot give the rights of root up");
    }

private:
    static constexpr uid_t kNobody = 65534;
    const bool m_isRoot = ::geteuid() == 0;
    QByteArray m_folder;
};
