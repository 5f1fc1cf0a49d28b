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

/// The page on top: a group of pages has one of its own.
inline LivePage *topPage(const SetupPage &setup)
{
    LivePage *page = setup.currentPage();
    while (const auto *group = qobject_cast<const ViewContainer *>(page))
        page = group->currentPage();
    return page;
}

/// Presses keys on whichever page is on top, one after the other.
inline void press(SetupPage &setup, std::initializer_list<FrontKey> keys)
{
    for (const FrontKey key : keys)
        QTest::keyClick(topPage(setup), Qt::Key(key));
}

/// Class of the page on top.
inline QString onTop(const SetupPage &setup)
{
    return QString::fromLatin1(topPage(setup)->metaObject()->className());
}

} // namespace SetupCase
