#pragma once

#include "device/idevice.h"
#include "setup/setuppage.h"
#include "unit/views/pagetest.h"

// What the tests of the set-up pages share.

namespace SetupCase {

using namespace PageTest;

/// The device that Setup sends to when it is left; nothing listens at its other end.
inline void makeDevice()
{
    if (!m_idevice)
        m_idevice = new IDevice;
}

/// Presses keys on whichever page is on top, one after the other.
inline void press(SetupPage &setup, std::initializer_list<FrontKey> keys)
{
    for (const FrontKey key : keys)
        QTest::keyClick(setup.currentPage(), Qt::Key(key));
}

/// Class of the page on top.
inline QString onTop(const SetupPage &setup)
{
    return QString::fromLatin1(setup.currentPage()->metaObject()->className());
}

} // namespace SetupCase
