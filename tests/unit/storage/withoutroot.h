#pragma once

#include <QtGlobal>

#include <unistd.h>

/// While it lives, this process is held to the permissions of files, also when the tests run as root.
class WithoutRoot
{
public:
    WithoutRoot() { giveUp(); }
    ~WithoutRoot() { takeBack(); }
    WithoutRoot(const WithoutRoot &) = delete;
    WithoutRoot &operator=(const WithoutRoot &) = delete;

    void giveUp()
    {
        constexpr uid_t kNobody = 65534;
        if (m_isRoot && ::seteuid(kNobody) != 0)
            qFatal("cannot give the rights of root up");
    }
    void takeBack()
    {
        if (m_isRoot && ::seteuid(0) != 0)
            qFatal("cannot take the rights of root back");
    }

private:
    const bool m_isRoot = ::geteuid() == 0;
};
