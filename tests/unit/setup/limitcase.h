#pragma once

#include "setupcase.h"
#include "typing.h"

#include "setup/limitharmpage.h"
#include "setup/limititemspage.h"
#include "setup/limitvaluepage.h"
#include "setup/setuplimitmenu.h"
#include "setup/setuplimits.h"

#include <memory>

// What the tests of the limit pages share.

namespace LimitCase {

using namespace PageTest;
using namespace Typing;

const QString kFolder = QStringLiteral("/mnt/userfs/sys/limits/");
const QString kConf = QStringLiteral("/mnt/userfs/sys/limits.xml");

enum Item { Voltage, Harmonics, Flicker, Dips, Swells, Interruptions, Rvc, Unbalance, Frequency, MainsSignal };

/// A set that mentions little: the rest is as in EN50160.
inline QByteArray set(const QByteArray &name)
{
    return "<limits verison='1.0' name='" + name
        + "'><Dips><tolerance threshold='85.125'/></Dips><Swells><tolerance threshold='112.125'/></Swells></limits>";
}

inline QByteArray files()
{
    QByteArray all = RootFiles::read(kConf);
    QDir dir(Target::path(kFolder));
    for (const QString &file : dir.entryList(QDir::Files | QDir::Hidden, QDir::Name))
        all += file.toUtf8() + RootFiles::read(kFolder + file);
    return all;
}

inline monitor_limit limitOf(const QString &name)
{
    monitor_limit limit {};
    m_limits_g.getLimits(&limit, name);
    return limit;
}

/// The limit pages over empty files, and what a user does on them.
class Pages : public QObject
{
protected:
    /// The sets as after a start with these files.
    void renew()
    {
        for (const QString &name : m_limits_g.allLimitsList().mid(2))
            m_limits_g.remove(name);
        m_limits_g.initActiveLimits(LimitsManager::builtin_en50160);
    }

    void openPage()
    {
        renew();
        RootFiles::clean();
        m_settingConfig_g.loadSettingConfig();
        m_page = std::make_unique<SetupLimits>(liveData());
        m_page->enter();
    }

    /// Texts of the lines: their names, or a column from 1 on.
    QStringList lines(int column = 0)
    {
        QStringList texts;
        for (int i = 1; i <= LineList::kLines; ++i) {
            const QString line = QStringLiteral("line%1").arg(i);
            texts << shown(column == 0 ? line + QLatin1String("_t") : QStringLiteral("%1_%2").arg(line).arg(column));
        }
        while (!texts.isEmpty() && texts.last().isEmpty())
            texts.removeLast();
        return texts;
    }

    void choose(const QString &name)
    {
        press(menu(), Up, 30);
        for (int i = 0; i < 30 && menu()->selectedName() != name; ++i)
            press(menu(), Down);
        QCOMPARE(menu()->selectedName(), name);
    }

    /// From the list of items.
    void openItem(Item item)
    {
        QVERIFY(qobject_cast<LimitItemsPage *>(top()));
        press(top(), Up, 10);
        press(top(), Down, item);
        press(top(), Enter);
        QCOMPARE(m_page->currentIndex(), SetupLimits::FirstItem + item);
    }

    void addSet(const QString &name)
    {
        DialogDriver driver({ typed(name) });
        press(menu(), F1);
        QVERIFY(driver.isDone());
        QCOMPARE(menu()->selectedName(), name);
    }

    QWidget *top() { return m_page->currentPage(); }
    QString shown(const QString &label) { return text(top(), label); }
    QStringList allTexts()
    {
        QStringList texts;
        for (const QLabel *label : top()->findChildren<QLabel *>())
            texts << label->text();
        return texts;
    }
    SetupLimitMenu *menu() { return m_page->findChild<SetupLimitMenu *>(); }

    std::unique_ptr<SetupLimits> m_page;
};

} // namespace LimitCase
