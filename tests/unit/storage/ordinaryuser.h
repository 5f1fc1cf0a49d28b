#pragma once

#include <QByteArray>
#include <QFile>

#include "platform/target.h"
#include "withoutroot.h"

#include <sys/stat.h>

/// While it lives, this process is held to the permissions of files, also when the tests run as root. The test's root
/// is opened to everybody.
class OrdinaryUser
{
public:
    OrdinaryUser()
    {
        const QString root = Target::path(QStringLiteral("/"));
        m_rights.takeBack();
        for (const char *folder : { "", "mnt", "mnt/userfs", "mnt/userfs/config", "mnt/userfs/sys" })
            ::chmod(QFile::encodeName(root + QLatin1String(folder)).constData(), 0777);
        m_rights.giveUp();
    }
    ~OrdinaryUser()
    {
        m_rights.takeBack();
        if (!m_folder.isEmpty())
            ::chmod(m_folder.constData(), 0777);
    }

    /// Changes the rights of a folder until the end.
    void setFolderMode(const QByteArray &folder, mode_t mode)
    {
        m_folder = folder;
        m_rights.takeBack();
        ::chmod(folder.constData(), mode);
        m_rights.giveUp();
    }

private:
    WithoutRoot m_rights;
    QByteArray m_folder;
};
