#pragma once

#include "wholegraph.h"

#include "shell/basedialog.h"
#include "settings/recordinfo.h"
#include "shell/menupage.h"
#include "shell/taskmanage.h"

#include <QStackedWidget>

// What the tests of the shell share: the whole graph, the panel's letters, and the state each test begins in.

// Letters that the front panel sends.
constexpr auto kEnter = Qt::Key_K, kLeft = Qt::Key_O, kUp = Qt::Key_Q, kRight = Qt::Key_D, kDown = Qt::Key_T;
constexpr auto kF1 = Qt::Key_W, kF4 = Qt::Key_F, kF5 = Qt::Key_L, kF6 = Qt::Key_E, kF7 = Qt::Key_A, kF8 = Qt::Key_U;
constexpr auto kF3 = Qt::Key_P, kF10 = Qt::Key_R, kF12 = Qt::Key_X, kPower = Qt::Key_B;

inline QString title()
{
    return m_basedialog->findChild<QLabel *>("name")->text();
}

inline QWidget *top()
{
    return m_basedialog->findChild<QStackedWidget *>("base_stackedWidget")->currentWidget();
}

inline QString current()
{
    return m_basedialog->menu()->currentItem()->objectName();
}

inline void moveToTile(const QString &name)
{
    for (int row = 0; row < 3; ++row, QTest::keyClick(m_basedialog->menu(), kDown)) {
        for (int column = 0; column < 4; ++column, QTest::keyClick(m_basedialog->menu(), kRight)) {
            if (current() == name)
                return;
        }
    }
    QFAIL("no such tile");
}

/// A test of the shell: the whole graph once, each case from the menu.
class ShellCase : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { buildWholeGraph(); }
    void init()
    {
        m_settingConfig_g.setNomFreq(1);
        RecordInfo::m_in_recording = 0;
        m_basedialog->menu()->initMenuMatrix();
    }
    void cleanup()
    {
        RecordInfo::m_in_recording = 0;
        m_taskmanage->exitTask();
        m_basedialog->navigator().go(UI_VIF, UI_MENU);
    }

protected:
    void enterVif()
    {
        moveToTile("vif");
        QTest::keyClick(m_basedialog->menu(), kEnter);
    }
};
