#pragma once

#include "device/idevice.h"
#include "settings/inrushinfo.h"
#include "setup/setuppage.h"
#include "unit/storage/rootfiles.h"
#include "unit/views/pagetest.h"

#include <vector>

// What the tests of the set-up pages share.

namespace SetupCase {

using Keys = std::vector<PageTest::FrontKey>;

/// The device that Setup sends to when it is left; nothing listens at its other end.
inline void makeDevice()
{
    if (!m_idevice)
        m_idevice = new IDevice;
}

/// Everything as after a first start.
inline void restoreSettings()
{
    RootFiles::clean();
    m_settingConfig_g.loadSettingConfig();
    InrushInfo::m_duration_index = 0;
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
inline void press(SetupPage &setup, const Keys &keys)
{
    for (const PageTest::FrontKey key : keys)
        QTest::keyClick(topPage(setup), Qt::Key(key));
}

/// Keeps a key of the page on top down for so many periods of the repeat.
inline void hold(SetupPage &setup, PageTest::FrontKey key, int ticks)
{
    PageTest::hold(topPage(setup), key, ticks);
    PageTest::release(topPage(setup), key);
}

/// Class of the page on top.
inline QString onTop(const SetupPage &setup)
{
    return QString::fromLatin1(topPage(setup)->metaObject()->className());
}

/// A label's text of the page on top.
inline QString text(const SetupPage &setup, const char *name)
{
    return PageTest::text(topPage(setup), QString::fromLatin1(name));
}

/// All texts of the page on top, by their names.
inline QMap<QString, QString> texts(const SetupPage &setup)
{
    QMap<QString, QString> result;
    for (const QLabel *label : topPage(setup)->findChildren<QLabel *>())
        result.insert(label->objectName(), label->text());
    return result;
}

inline QByteArray settingFile()
{
    return RootFiles::read(SettingConfig::filePath());
}

/// From the first page to the editor in this line of the functions, wherever their cursor stands.
inline Keys toFunction(int line)
{
    Keys keys { PageTest::F5, PageTest::F2, PageTest::Up, PageTest::Up, PageTest::Up, PageTest::Up };
    keys.insert(keys.end(), std::size_t(line), PageTest::Down);
    keys.push_back(PageTest::Enter);
    return keys;
}
enum { KFactor, Flicker, Transients, Inrush, MainsSig };

} // namespace SetupCase

Q_DECLARE_METATYPE(SetupCase::Keys)
