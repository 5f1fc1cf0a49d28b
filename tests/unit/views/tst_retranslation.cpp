#include "settings/phasecolor.h"
#include "device/idevice.h"
#include "platform/clock.h"
#include "allpages.h"
#include "unit/markedlanguage.h"

#include <QScopeGuard>

#include <memory>

namespace {

/// Style sheets of all labels, in the order of the page's widgets.
QStringList sheets(const QWidget *page)
{
    QStringList result;
    for (const QLabel *label : page->findChildren<QLabel *>())
        result.append(label->objectName() + QLatin1Char(' ') + label->styleSheet());
    return result;
}

} // namespace

/// Every measuring function after the user chose another language or other phase colours.
class TstRetranslation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void languageChangeReachesEveryText_data();
    void languageChangeReachesEveryText();
    void heldPageSaysRunInTheNewLanguage();
    void newPhaseColoursReachTheLabelsWhenThePageIsShown_data() { addColouredPages(); }
    void newPhaseColoursReachTheLabelsWhenThePageIsShown();
};

void TstRetranslation::initTestCase()
{
    PageTest::setUpMeasurement(1);
    if (!m_idevice)
        m_idevice = new IDevice;
}

void TstRetranslation::languageChangeReachesEveryText_data()
{
    addAllPages();
}

void TstRetranslation::languageChangeReachesEveryText()
{
    QFETCH(MakePage, make);
    Clock::setForTest(1700000000000); // both pages show the same moment
    const auto running = qScopeGuard([] { Clock::useSystem(); });
    std::unique_ptr<FunctionPage> page(make());
    PageTest::openAll(*page);
    page->init_parameter();
    page->updateDisplay(nullptr);
    const QMap<QString, QString> english = lastingTexts(page.get());

    MarkedLanguage language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    page->retranslateUi();
    // What a page shows that never knew another language.
    std::unique_ptr<FunctionPage> fresh(make());
    PageTest::openAll(*fresh);
    fresh->init_parameter();
    fresh->updateDisplay(nullptr);
    const QMap<QString, QString> expected = lastingTexts(fresh.get());
    QVERIFY(expected != english);
    const QMap<QString, QString> shown = lastingTexts(page.get());
    QCOMPARE(shown.keys(), expected.keys());
    for (const QString &name : expected.keys())
        QVERIFY2(shown[name] == expected[name], qPrintable(name + ": " + shown[name] + " for " + expected[name]));

    QCoreApplication::removeTranslator(&language);
    page->retranslateUi();
    QCOMPARE(lastingTexts(page.get()), english);
}

void TstRetranslation::heldPageSaysRunInTheNewLanguage()
{
    harm page(PageTest::liveData());
    PageTest::openAll(page);
    page.init_parameter();
    page.setPause();
    MarkedLanguage language;
    QCoreApplication::installTranslator(&language);
    page.retranslateUi();
    QCOMPARE(PageTest::text(page.currentPage(), "btn_f5"), QStringLiteral("~Run"));
    QCoreApplication::removeTranslator(&language);
}

void TstRetranslation::newPhaseColoursReachTheLabelsWhenThePageIsShown()
{
    QFETCH(MakePage, make);
    PhaseColor::setPhaseColors(QStringLiteral("01231"));
    std::unique_ptr<FunctionPage> page(make());
    PageTest::openAll(*page);
    page->init_parameter();
    page->updateDisplay(nullptr);
    page->show();
    const QStringList before = sheets(page.get());
    page->hide();
    PhaseColor::setPhaseColors(QStringLiteral("23015"));
    page->show();
    const QStringList shown = sheets(page.get());

    // What a page shows that never knew other colours.
    std::unique_ptr<FunctionPage> fresh(make());
    PageTest::openAll(*fresh);
    fresh->init_parameter();
    fresh->updateDisplay(nullptr);
    PhaseColor::setPhaseColors(QStringLiteral("01231"));
    QCOMPARE(shown, sheets(fresh.get()));
    QVERIFY(shown != before);
}

PAGE_TEST_MAIN(TstRetranslation)
#include "tst_retranslation.moc"
