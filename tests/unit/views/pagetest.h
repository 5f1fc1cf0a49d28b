#pragma once

#include "settings/config_data.h"
#include "pages/viewcontainer.h"
#include "unit/measureddata.h"
#include "widgets/controls/keyrepeat.h"
#include "widgets/controls/readingmarks.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QWidget>

#include <clocale>
#include <memory>

// What the tests of pages have in common: reading labels by name, and the letters that the front panel sends.

namespace PageTest {

using namespace MeasuredData;

/// A QTEST_MAIN for pages: with the pictures and the decimal point that the program has.
#define PAGE_TEST_MAIN(TestClass)                                                                                      \
    int main(int argc, char **argv)                                                                                    \
    {                                                                                                                  \
        QApplication app(argc, argv);                                                                                  \
        setlocale(LC_NUMERIC, "C");                                                                                    \
        Q_INIT_RESOURCE(skin);                                                                                         \
        TestClass test;                                                                                                \
        return QTest::qExec(&test, argc, argv);                                                                        \
    }

enum FrontKey {
    F1 = Qt::Key_W,
    F2 = Qt::Key_Y,
    F3 = Qt::Key_P,
    F4 = Qt::Key_F,
    F5 = Qt::Key_L,
    F6 = Qt::Key_E,
    F11 = Qt::Key_I,
    Enter = Qt::Key_K,
    Left = Qt::Key_O,
    Up = Qt::Key_Q,
    Right = Qt::Key_D,
    Down = Qt::Key_T,
};

inline QString text(const QWidget *page, const QString &name)
{
    const auto *label = page->findChild<QLabel *>(name);
    return label ? label->text() : QStringLiteral("no label ") + name;
}

/// Texts on what is marked for those who hear the page, in the order in which the page was built.
inline QString heard(const QWidget *page)
{
    QStringList texts;
    const auto labels = page->findChildren<QLabel *>();
    for (const QLabel *bar : labels) {
        const QRect place = ReadingMarks::selection(bar).place;
        const QRect marked(bar->mapTo(page, place.topLeft()), place.size());
        for (const QLabel *label : labels) {
            if (bar->isVisibleTo(page) && label->isVisibleTo(page) && !label->text().isEmpty()
                && marked.contains(label->mapTo(page, label->rect().center())))
                texts << label->text();
        }
    }
    return texts.join(QLatin1Char(' '));
}

inline QString sheet(const QWidget *page, const char *name)
{
    const auto *label = page->findChild<QLabel *>(QString::fromLatin1(name));
    return label ? label->styleSheet() : QString();
}

/// A widget of a class that the toolkit's own search cannot tell from others, by its object name.
template <typename Widget> Widget *named(const QWidget *page, const char *name)
{
    return dynamic_cast<Widget *>(page->findChild<QWidget *>(QString::fromLatin1(name)));
}

/// Whether a label has room for \a text and \a spare pixels, in the wider of the instrument's fonts: a digit takes 0.6
/// of the font's pixels, points, colons, blanks and signs half of that; no letter of a channel's name takes more.
inline bool holds(const QWidget *page, const QString &name, const QString &text, double spare = 0)
{
    auto *label = page->findChild<QLabel *>(name);
    if (!label)
        return false;
    label->ensurePolished();
    double needed = spare;
    for (const QChar &sign : text)
        needed += (QStringLiteral(".: -").contains(sign) ? 0.3 : 0.6) * label->font().pixelSize();
    return needed <= label->width() + 1e-6;
}

/// Wiring (1 to 10) and nominal frequency (1: 50, 2: 60, 3: 400 Hz); a setting that stands is not written again.
inline void setUpMeasurement(int joinMode, int frequency = 1)
{
    if (m_settingConfig_g.getJoinMode() != joinMode)
        m_settingConfig_g.setJoinMode(joinMode);
    if (m_settingConfig_g.getNomFreqSelect() != frequency)
        m_settingConfig_g.setNomFreq(frequency);
}

/// Data rows "wiring 1" to "wiring 10": column "joinMode" and one of this name.
inline void addWirings(const char *column, const int (&values)[10])
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<int>(column);
    for (int mode = 1; mode <= 10; ++mode)
        QTest::addRow("wiring %d", mode) << mode << values[mode - 1];
}

/// Data rows of all wirings: column "joinMode" and "shown", which of the columns L1, L2, L3, N a table then has.
inline void addShownColumns()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<QList<bool>>("shown");
    for (int mode : { 1, 7, 9 })
        QTest::addRow("star %d", mode) << mode << QList<bool> { true, true, true, true };
    for (int mode : { 2, 4, 8, 10 })
        QTest::addRow("delta %d", mode) << mode << QList<bool> { true, true, true, false };
    QTest::newRow("1P") << 3 << QList<bool> { true, false, false, true };
    QTest::newRow("1P SPLIT") << 5 << QList<bool> { true, true, false, true };
    QTest::newRow("1P IT") << 6 << QList<bool> { true, false, false, false };
}

/// A run begins, as the start of a task does it: the records are emptied, then the page forgets what it showed.
inline void beginRun(FunctionPage &page)
{
    renewLive();
    page.init_parameter();
}

/// What the task's pause does to a page and to what it shows.
inline void holdRun(FunctionPage &page)
{
    liveData().hold();
    page.setPause();
}

inline void continueRun(FunctionPage &page)
{
    liveData().run();
    page.setContinue();
}

/// Opens a page and makes all its sub pages and theirs, as one who has looked at each and come back.
inline void openAll(QWidget &page)
{
    auto *container = qobject_cast<ViewContainer *>(&page);
    if (!container)
        return;
    container->enter();
    for (int row = 0; row < container->pageCount(); ++row)
        openAll(*container->page(row));
}

/// A page of a run that has just begun, all its sub pages made, in wiring 1 at 50 Hz.
template <typename Opened> std::unique_ptr<Opened> openedPage()
{
    setUpMeasurement(1);
    auto page = std::make_unique<Opened>(liveData());
    openAll(*page);
    beginRun(*page);
    return page;
}

/// Press and release.
inline void press(QWidget *page, FrontKey key, int times = 1)
{
    for (int i = 0; i < times; ++i)
        QTest::keyClick(page, Qt::Key(key));
}

/// Press and hold for \a ticks periods of the repeat; the key stays down.
inline void hold(QWidget *page, FrontKey key, int ticks)
{
    QTest::keyPress(page, Qt::Key(key));
    auto *repeat = page->findChild<KeyRepeat *>();
    QVERIFY(repeat);
    for (int i = 0; i < ticks; ++i)
        repeat->tick();
}

inline void release(QWidget *page, FrontKey key)
{
    QTest::keyRelease(page, Qt::Key(key));
}

} // namespace PageTest
