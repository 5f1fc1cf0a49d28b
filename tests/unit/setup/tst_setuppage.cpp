#include "setupcase.h"
#include "unit/documentpage.h"
#include "unit/views/framespy.h"

#include <QSignalSpy>

using namespace PageTest;
using SetupCase::Keys;

/// The container of the set-up pages: which page opens which, and what happens when Setup is left.
class TstSetupPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SetupCase::makeDevice(); }
    void init() { SetupCase::restoreSettings(); }
    void setupOpensWithItsFirstPageWhicheverWasLeftLast();
    void keysLeadFromPageToPage_data();
    void keysLeadFromPageToPage();
    void softKeysAreThoseOfTheDocument();
    void leavingSetsTheProcessorUpAnewBeforeTheNextPageComes_data();
    void leavingSetsTheProcessorUpAnewBeforeTheNextPageComes();
    void theSetupKeyOnItsOwnPagesSendsNothing();
    void theSetUpThatIsSentIsTheOneThatWasChosen();
    void summaryShowsWhatIsInForce();
    void longNamesAreCutInTheSummary();
    void freqKeyGoesRoundTheThreeFrequencies();
    void saveStoresAPictureOfSetup();
};

void TstSetupPage::setupOpensWithItsFirstPageWhicheverWasLeftLast()
{
    SetupPage setup(liveData());
    setup.enter();
    SetupCase::press(setup, SetupCase::toFunction(SetupCase::Inrush));
    QCOMPARE(SetupCase::onTop(setup), QStringLiteral("SetupInrush"));
    setup.enter();
    QCOMPARE(SetupCase::onTop(setup), QStringLiteral("SetupMain"));
}

void TstSetupPage::keysLeadFromPageToPage_data()
{
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<QString>("page");
    const auto add = [](const char *name, const Keys &keys, const char *page) {
        QTest::newRow(name) << keys << QString::fromLatin1(page);
    };
    add("page down", { F5 }, "SetupMainPage2");
    add("page up", { F5, F5 }, "SetupMain");
    add("wirings", { F1 }, "SetupConfigPage");
    add("wirings and back", { F1, F5 }, "SetupMain");
    add("one wiring", { F1, Enter }, "SetupConfigEnterPage");
    add("one wiring not taken", { F1, Enter, F5 }, "SetupConfigPage");
    add("one wiring not taken and back", { F1, Enter, F5, F5 }, "SetupMain");
    add("one wiring taken", { F1, Enter, F4 }, "SetupMain");
    add("the wiring in use", { Enter }, "SetupConfigEnterPage");
    add("the wiring in use and back", { Enter, F5 }, "SetupMain");
    add("nominal voltage", { F2 }, "SetupVnomPage");
    add("nominal voltage taken", { F2, F4 }, "SetupMain");
    add("nominal voltage not taken", { F2, F5 }, "SetupMain");
    add("functions", { F5, F2 }, "SetupFunctions");
    add("functions and back", { F5, F2, F5 }, "SetupMainPage2");
    const char *const functions[]
        = { "SetupKFactor", "SetupFlicker", "SetupTransient", "SetupInrush", "SetupMainsSig" };
    for (int line = 0; line < 5; ++line) {
        const Keys keys = SetupCase::toFunction(line);
        add(functions[line], keys, functions[line]);
        for (const FrontKey end : { F4, F5 }) {
            Keys there = keys;
            there.push_back(end);
            if (line != SetupCase::KFactor || end == F5) // that one has Back alone
                QTest::addRow("%s left by F%d", functions[line], end == F4 ? 4 : 5)
                    << there << QStringLiteral("SetupFunctions");
        }
    }
}

void TstSetupPage::keysLeadFromPageToPage()
{
    QFETCH(Keys, keys);
    SetupPage setup(liveData());
    setup.enter();
    SetupCase::press(setup, keys);
    QTEST(SetupCase::onTop(setup), "page");
}

void TstSetupPage::softKeysAreThoseOfTheDocument()
{
    const auto rows = DocumentPage(QStringLiteral("setup-pages.md")).table(QStringLiteral("## Pages"));
    SetupPage setup(liveData());
    openAll(setup);
    for (const QStringList &row : rows) {
        const auto *page = setup.findChild<LivePage *>(row.value(0));
        QVERIFY2(page, qPrintable(row.value(0)));
        QStringList keys;
        for (int key = 1; key <= 5; ++key)
            keys << PageTest::text(page, QStringLiteral("btn_f%1").arg(key));
        keys.removeAll(QString());
        QCOMPARE(keys.join(QStringLiteral(", ")), row.value(2));
    }
    QCOMPARE(rows.size(), 11);
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
    SetupPage setup(liveData());
    setup.enter();
    QSignalSpy settings(&setup, &SetupPage::settingsLeft);
    FrameSpy frames;
    int framesBefore = -1;
    int asked = -1;
    connect(&setup, &Page::leave, this, [&](_quvera_ui_type type) {
        framesBefore = frames.count();
        asked = type;
    });
    SetupCase::press(setup, { F1 }); // from any of its pages
    QTest::keyClick(setup.currentPage(), Qt::Key(letter));
    QCOMPARE(asked, target);
    QCOMPARE(settings.count(), 1);
    // Set-up, firmware question, stream on: words 198, 199 and 193 behind the start marker.
    QCOMPARE(framesBefore, 3);
    QCOMPARE(frames.word(0, 1), 198u);
    QCOMPARE(frames.word(2, 1), 193u);
    QCOMPARE(frames.word(2, 2), 1u);
}

void TstSetupPage::theSetupKeyOnItsOwnPagesSendsNothing()
{
    SetupPage setup(liveData());
    setup.enter();
    SetupCase::press(setup, { F1 });
    FrameSpy frames;
    QSignalSpy settings(&setup, &SetupPage::settingsLeft);
    QTest::keyClick(setup.currentPage(), Qt::Key_S);
    QCOMPARE(frames.count(), 0);
    QCOMPARE(settings.count(), 0);
    QCOMPARE(SetupCase::onTop(setup), QStringLiteral("SetupConfigPage"));
}

void TstSetupPage::theSetUpThatIsSentIsTheOneThatWasChosen()
{
    // Delta: wiring code 1, star: 0, in the lowest bits of the configuration word behind the command.
    SetupPage setup(liveData());
    setup.enter();
    quint32 codes[2];
    for (quint32 &code : codes) {
        FrameSpy frames;
        QTest::keyClick(setup.currentPage(), Qt::Key_A);
        code = frames.word(0, 2) & 0xF;
        setup.enter();
        SetupCase::press(setup, { F1, Right, Enter, F4 }); // 3P WYE to 3P IT
    }
    QCOMPARE(codes[0], 0u);
    QCOMPARE(codes[1], 1u);
}

void TstSetupPage::summaryShowsWhatIsInForce()
{
    m_settingConfig_g.setRatioIFenzi(200);
    m_settingConfig_g.setRatioIFenmu(5);
    m_settingConfig_g.setRatioVNFenzi(10);
    SetupPage setup(liveData());
    setup.enter();
    QMap<QString, QString> expected {
        { "config_t", "Config:" }, { "config", "3P WYE" },    { "vnom_t", "Vnom:" },      { "vnom", "230 V" },
        { "freq_t", "Freq:" },     { "freq", "50 Hz" },       { "limits_t", "Limits:" },  { "limits", "EN50160" },
        { "clamp_t", "Clamp" },    { "clamp", "TARN-41A" },   { "clamp_n", "TARN-41A" },  { "i_ratio_t", "I Ratio" },
        { "i_ratio", "200:5" },    { "i_ratio_n", "1:1" },    { "v_ratio_t", "V Ratio" }, { "v_ratio", "1:1" },
        { "v_ratio_n", "10:1" },   { "i_range_t", "Irange" }, { "i_range", "5 A" },       { "i_range_n", "5 A" },
        { "btn_f1", "Config" },    { "btn_f2", "Vnom" },      { "btn_f3", "Freq" },       { "btn_f4", "Clamp" },
        { "btn_f5", "Page Down" },
    };
    for (int page = 0; page < 2; ++page) {
        for (auto it = expected.cbegin(); it != expected.cend(); ++it)
            QCOMPARE(PageTest::text(setup.currentPage(), it.key()), it.value());
        const auto *icon = setup.currentPage()->findChild<QLabel *>("join_icon");
        QVERIFY(icon && icon->pixmap(Qt::ReturnByValue).size() == QSize(160, 110));
        SetupCase::press(setup, { F5 });
        expected["btn_f1"] = QStringLiteral("Limits");
        expected["btn_f2"] = QStringLiteral("Functions");
        expected["btn_f3"] = expected["btn_f4"] = QString();
        expected["btn_f5"] = QStringLiteral("Page Up");
    }
}

void TstSetupPage::longNamesAreCutInTheSummary()
{
    const QString name(60, QLatin1Char('W'));
    m_settingConfig_g.clamps()->addClamp(new Clamp(name, 10, 1000, false, true, QString()));
    m_settingConfig_g.clamps()->setCurClamp(name);
    m_settingConfig_g.followSettings();
    m_limits_g.add(name, *m_limits_g.getLimitsInUsed());
    m_limits_g.changeActiveLimits(name);
    SetupPage setup(liveData());
    setup.enter();
    for (const char *shown : { "clamp", "limits" }) {
        const auto *label = setup.currentPage()->findChild<QLabel *>(shown);
        QVERIFY(label->text().startsWith(QStringLiteral("WWWW")) && label->text().endsWith(QChar(0x2026)));
        QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
    }
    m_limits_g.remove(name);
}

void TstSetupPage::freqKeyGoesRoundTheThreeFrequencies()
{
    SetupPage setup(liveData());
    setup.enter();
    const struct
    {
        const char *text;
        double hertz;
        QByteArray line;
    } steps[] = { { "60 Hz", 60.0, "NOM_FREQ=2" }, { "400 Hz", 400.0, "NOM_FREQ=3" }, { "50 Hz", 50.0, "NOM_FREQ=1" } };
    for (const auto &step : steps) {
        SetupCase::press(setup, { F3 });
        QCOMPARE(SetupCase::text(setup, "freq"), QString::fromLatin1(step.text));
        QCOMPARE(m_settingConfig_g.getNomFreq(), step.hertz);
        QVERIFY(SetupCase::settingFile().contains(step.line));
    }
}

void TstSetupPage::saveStoresAPictureOfSetup()
{
    SetupPage setup(liveData());
    setup.enter();
    QCOMPARE(setup.saveIdentity().windowId, 30);
    QCOMPARE(setup.currentPage()->saveIdentity().windowId, 0); // the container is asked
    SetupCase::press(setup, SetupCase::toFunction(SetupCase::Inrush));
    QCOMPARE(setup.currentPage()->saveIdentity().windowId, 7);
}

PAGE_TEST_MAIN(TstSetupPage)
#include "tst_setuppage.moc"
