#include "setupcase.h"
#include "unit/views/framespy.h"

#include <QSignalSpy>

/// The container of the set-up pages: which page opens which, and what happens when Setup is left.
class TstSetupPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void setupOpensWithItsFirstPageWhicheverWasLeftLast();
    void pageDownAndPageUpLeadToAndFro();
    void leavingSetsTheProcessorUpAnewBeforeTheNextPageComes_data();
    void leavingSetsTheProcessorUpAnewBeforeTheNextPageComes();
    void freqKeyGoesRoundTheThreeFrequencies();
};

void TstSetupPage::initTestCase()
{
    SetupCase::makeDevice();
}

void TstSetupPage::setupOpensWithItsFirstPageWhicheverWasLeftLast()
{
    SetupPage setup(PageTest::liveData());
    setup.enter();
    SetupCase::press(setup, { PageTest::F5 });
    QCOMPARE(SetupCase::onTop(setup), QStringLiteral("SetupMainPage2"));
    setup.enter();
    QCOMPARE(SetupCase::onTop(setup), QStringLiteral("SetupMain"));
}

void TstSetupPage::pageDownAndPageUpLeadToAndFro()
{
    SetupPage setup(PageTest::liveData());
    setup.enter();
    QCOMPARE(PageTest::text(setup.currentPage(), "btn_f5"), QStringLiteral("Page Down"));
    SetupCase::press(setup, { PageTest::F5 });
    QCOMPARE(PageTest::text(setup.currentPage(), "btn_f5"), QStringLiteral("Page Up"));
    SetupCase::press(setup, { PageTest::F5 });
    QCOMPARE(SetupCase::onTop(setup), QStringLiteral("SetupMain"));
}

void TstSetupPage::leavingSetsTheProcessorUpAnewBeforeTheNextPageComes_data()
{
    QTest::addColumn<int>("letter");
    QTest::addColumn<int>("target");
    QTest::newRow("Scope") << int(Qt::Key_E) << int(UI_SCOPE);
    QTest::newRow("Menu") << int(Qt::Key_A) << int(UI_MENU);
    QTest::newRow("Monitor") << int(Qt::Key_U) << int(UI_MONITOR);
    QTest::newRow("Memory") << int(Qt::Key_R) << int(UI_MEMORY);
}

void TstSetupPage::leavingSetsTheProcessorUpAnewBeforeTheNextPageComes()
{
    QFETCH(int, letter);
    QFETCH(int, target);
    SetupPage setup(PageTest::liveData());
    setup.enter();
    QSignalSpy settings(&setup, &SetupPage::settingsLeft);
    FrameSpy frames;
    int framesBefore = -1;
    int asked = -1;
    connect(&setup, &Page::leave, this, [&](_quvera_ui_type type) {
        framesBefore = frames.count();
        asked = type;
    });
    QTest::keyClick(setup.currentPage(), Qt::Key(letter));
    QCOMPARE(asked, target);
    QCOMPARE(settings.count(), 1);
    // Set-up, firmware question, stream on: words 198, 199 and 193 behind the start marker.
    QCOMPARE(framesBefore, 3);
    QCOMPARE(frames.word(0, 1), 198u);
    QCOMPARE(frames.word(2, 1), 193u);
    QCOMPARE(frames.word(2, 2), 1u);
}

void TstSetupPage::freqKeyGoesRoundTheThreeFrequencies()
{
    PageTest::setUpMeasurement(1, 1);
    SetupPage setup(PageTest::liveData());
    setup.enter();
    for (const char *text : { "60 Hz", "400 Hz", "50 Hz" }) {
        SetupCase::press(setup, { PageTest::F3 });
        QCOMPARE(PageTest::text(setup.currentPage(), "freq"), QString::fromLatin1(text));
    }
    QCOMPARE(m_settingConfig_g.getNomFreq(), 50.0);
}

PAGE_TEST_MAIN(TstSetupPage)
#include "tst_setuppage.moc"
