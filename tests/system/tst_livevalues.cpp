// The instrument's own object graph in this process, with the real processor stand-in at its node, so that the texts on
// the pages can be read.
#include "instrument.h"
#include "visibletexts.h"

#include "basedialog.h"
#include "quveraglobal.h"

#include <QApplication>
#include <QKeyEvent>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>

using namespace SystemTest;

/// Values of the simulated supply as they stand on the pages.
class TstLiveValues : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void voltsAmpsHertzShowTheSupplyWithinATenthOfAPercent();
    void changedSupplyShowsOnThePage();
    void softKeysOfThePageReadAsTold();

private:
    static QString text(const char *name) { return visibleTexts(m_basedialog).value(QString::fromLatin1(name)); }
    /// The number at the beginning of a label's text; NaN without one.
    static double number(const char *name)
    {
        QString digits;
        for (QChar c : text(name)) {
            if (!c.isDigit() && c != QLatin1Char('.') && c != QLatin1Char('-'))
                break;
            digits += c;
        }
        bool isNumber = false;
        const double value = digits.toDouble(&isNumber);
        return isNumber ? value : std::nan("");
    }
    static bool isNear(const char *name, double expected, double tolerance)
    {
        return std::fabs(number(name) - expected) <= tolerance;
    }
    void tell(const QString &command);

    DeskInstrument *m_desk = nullptr;
};

void TstLiveValues::initTestCase()
{
    m_desk = new DeskInstrument(QStringLiteral(QUVERA_BIN_DIR), qEnvironmentVariable("QUVERA_ROOT"));
    QVERIFY2(m_desk->startProcessor(), qPrintable(m_desk->error()));
    appInit();
    appConnection();
    langConnection();
    QTRY_VERIFY(QGuiApplication::focusObject());
    // Enter: "vif" is the current item at the start.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_K);
    QTRY_COMPARE(text("name"), QStringLiteral("Volts/Amps/Hertz"));
}

void TstLiveValues::cleanupTestCase()
{
    delete m_desk;
}

void TstLiveValues::tell(const QString &command)
{
    QProcess process;
    process.start(QStringLiteral(QUVERA_BIN_DIR "/quvera-processor"), { QStringLiteral("--tell"), command });
    QVERIFY(process.waitForFinished(30000));
    QVERIFY2(process.exitCode() == 0, process.readAll() + process.readAllStandardError());
}

void TstLiveValues::voltsAmpsHertzShowTheSupplyWithinATenthOfAPercent()
{
    for (const char *label : { "Urms_L1", "Urms_L2", "Urms_L3" })
        QTRY_VERIFY2_WITH_TIMEOUT(isNear(label, 230.0, 0.23), qPrintable(label + QLatin1Char(' ') + text(label)),
                                  60000);
    // 10 A on the clamp's range: the last shown digit may be coarser than the tenth of a percent.
    for (const char *label : { "Irms_L1", "Irms_L2", "Irms_L3" })
        QTRY_VERIFY2_WITH_TIMEOUT(isNear(label, 10.0, 0.1), qPrintable(label + QLatin1Char(' ') + text(label)), 60000);
    // Peak of a sine: 230 * sqrt(2) = 325.27 V; crest factor sqrt(2) = 1.414.
    QTRY_VERIFY2_WITH_TIMEOUT(isNear("Upk_L1", 325.27, 3.3), qPrintable(text("Upk_L1")), 60000);
    QTRY_VERIFY2_WITH_TIMEOUT(isNear("Ucf_L1", 1.414, 0.015), qPrintable(text("Ucf_L1")), 60000);
    QTRY_VERIFY2_WITH_TIMEOUT(isNear("freq", 50.0, 0.05), qPrintable(text("freq")), 60000);
}

void TstLiveValues::changedSupplyShowsOnThePage()
{
    tell(QStringLiteral("set u2 207"));
    QTRY_VERIFY2_WITH_TIMEOUT(isNear("Urms_L2", 207.0, 0.207), qPrintable(text("Urms_L2")), 60000);
    QVERIFY2(isNear("Urms_L1", 230.0, 0.23), qPrintable(text("Urms_L1")));
    tell(QStringLiteral("set f 50.2"));
    QTRY_VERIFY2_WITH_TIMEOUT(isNear("freq", 50.2, 0.05), qPrintable(text("freq")), 60000);
}

void TstLiveValues::softKeysOfThePageReadAsTold()
{
    QCOMPARE(text("btn_f4"), QStringLiteral("Trend"));
    QCOMPARE(text("btn_f5"), QStringLiteral("Hold"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_L);
    QTRY_COMPARE(text("btn_f5"), QStringLiteral("Run"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_L);
    QTRY_COMPARE(text("btn_f5"), QStringLiteral("Hold"));
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    int result = 0;
    {
        TstLiveValues test;
        result = QTest::qExec(&test, argc, argv);
    }
    // As the instrument ends: nothing is torn down.
    std::fflush(stdout);
    std::_Exit(result);
}

#include "tst_livevalues.moc"
