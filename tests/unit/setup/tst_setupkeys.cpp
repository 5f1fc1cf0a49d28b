#include "setupcase.h"

#include <QTimer>
#include <random>

using namespace PageTest;

/// Whatever keys are pressed, the files stay readable and all values within what an editor may set.
class TstSetupKeys : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SetupCase::makeDevice(); }
    void randomKeysLeaveValidFilesAndValuesWithinTheirBounds();

private:
    static void valuesStandWithinTheirBounds();
    static void fileHoldsEachKeyOnce();
};

void TstSetupKeys::randomKeysLeaveValidFilesAndValuesWithinTheirBounds()
{
    constexpr int kKeys = 20000;
    constexpr unsigned kSeed = 71;
    SetupCase::restoreSettings();
    SetupPage setup(liveData());
    setup.show(); // a group of pages opens when it is seen
    setup.enter();
    // A dialog that a key opens is given some keys, then closed.
    int dialogs = 0;
    std::mt19937 random(kSeed);
    // Arrows come more often than what stores: each write waits for the disk.
    const FrontKey keys[] = { F1,   F2,    F3,    F4,    F5,    F1,    F2, F5,   F5,   Enter, Enter, Enter,
                              Left, Left,  Left,  Left,  Right, Right, Up, Up,   Down, Down,  Down,  Left,
                              Left, Right, Right, Right, Right, Up,    Up, Down, Left, Right, Down,  Up };
    const auto key = [&] { return Qt::Key(keys[random() % std::size(keys)]); };
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [&] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        ++dialogs;
        for (int i = 0; i < 5 && dialog->isVisible(); ++i)
            QTest::keyClick(dialog, key());
        if (dialog->isVisible() && QApplication::activeModalWidget() == dialog)
            dialog->reject();
    });
    closer.start(0);
    QSet<QString> visited;
    for (int i = 0; i < kKeys; ++i) {
        const unsigned what = random() % 1000;
        if (what == 0) {
            QTest::keyClick(SetupCase::topPage(setup), Qt::Key_A); // Menu, and back
            setup.enter();
        } else if (what < 20) {
            LivePage *page = SetupCase::topPage(setup);
            const Qt::Key held = key();
            QTest::keyPress(page, held);
            for (auto *repeat : page->findChildren<KeyRepeat *>()) {
                for (unsigned ticks = random() % 30; ticks > 0 && repeat->isActive(); --ticks)
                    repeat->tick();
            }
            QTest::keyRelease(page, held);
        } else {
            QTest::keyClick(SetupCase::topPage(setup), key());
        }
        visited << SetupCase::onTop(setup);
        if (i % 1000 == 0)
            QCoreApplication::processEvents();
    }
    closer.stop();
    QVERIFY(visited.size() >= setup.pageCount());
    valuesStandWithinTheirBounds();
    fileHoldsEachKeyOnce();
}

void TstSetupKeys::valuesStandWithinTheirBounds()
{
    const SettingConfig reader;
    for (const auto &row : SettingConfig::rows()) {
        const double value = m_settingConfig_g.value(row);
        // No editor sets the values of missing keys to their own bounds.
        if (m_settingConfig_g.editRange(row).any() && value != QString::fromLatin1(row.defaultText).toDouble())
            QVERIFY2(m_settingConfig_g.editRange(row).held(value) == value, row.key);
        if (!QByteArray(row.key).startsWith("INRUSH_")) // the next start begins with the levels of the clamp
            QVERIFY2(qFuzzyCompare(1 + reader.value(row), 1 + value), row.key);
    }
}

void TstSetupKeys::fileHoldsEachKeyOnce()
{
    // Each line is a key that there is, once, with a number.
    QSet<QByteArray> found;
    for (const QByteArray &line : SetupCase::settingFile().split('\n')) {
        if (line.isEmpty())
            continue;
        const QByteArray name = line.left(line.indexOf('='));
        QVERIFY2(SettingConfig::row(name.constData()), line);
        QVERIFY2(!found.contains(name), line);
        bool isNumber = false;
        line.mid(name.size() + 1).toDouble(&isNumber);
        QVERIFY2(isNumber, line);
        found << name;
    }
    QVERIFY(found.size() > 10);
}

PAGE_TEST_MAIN(TstSetupKeys)
#include "tst_setupkeys.moc"
