#include "setupcase.h"

#include "setup/calibrationdialog.h"
#include "setup/instrumentinfo.h"
#include "unit/documentpage.h"
#include "unit/widgets/dialogdriver.h"

#include <QRegularExpression>

using namespace PageTest;
using SetupCase::Keys;

namespace {

/// The arrows that open a dialog, as the document has them.
QByteArray documented(const char *dialog)
{
    for (const QStringList &row :
         DocumentPage(QStringLiteral("setup-pages.md")).table(QStringLiteral("## For the service"))) {
        if (row.value(1) == QLatin1String(dialog))
            return row.value(0).remove(QLatin1Char(' ')).toLatin1();
    }
    return "not documented";
}

const QByteArray kCalibration = documented("CalibrationDialog");
const QByteArray kInstrument = documented("InstrumentInfo");

QStringList logLines;

void keepLog(QtMsgType, const QMessageLogContext &, const QString &text)
{
    logLines << text;
}

} // namespace

/// What the sequences of arrows open, and the dialog of serial number and model.
class TstSetupService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SetupCase::makeDevice(); }
    void init();
    void sequencesOpenTheirDialogs_data();
    void sequencesOpenTheirDialogs();
    void nearMissesOpenNothing_data();
    void nearMissesOpenNothing();
    void eachSequenceOpensItsDialogAgain();
    void theWayToTheCalibrationIsLogged();
    void otherPagesOfSetupKnowNoSequence();
    void labelsAreShownAndCancelStoresNothing();
    void serialNumberIsTypedAndStored();
    void serialNumberIsNeverEmpty();
    void enterOnTheModelOpensNoKeyboard();
    void modelStepsStopAtTheEndsOfTheList();
    void modelIsStoredByItsName();
    void okWithoutAChangeStoresNothing();

private:
    static void type(SetupPage &setup, const QByteArray &sequence)
    {
        for (const char arrow : sequence)
            SetupCase::press(setup, { arrow == 'L' ? Left : arrow == 'R' ? Right : Down });
    }
    /// Class of the dialog that a sequence opens; it is closed again. Empty: none.
    static QString opens(SetupPage &setup, const QByteArray &sequence)
    {
        QString name;
        DialogDriver driver({ [&name](QDialog *dialog) {
            name = QString::fromLatin1(dialog->metaObject()->className());
            QTest::keyClick(dialog, Qt::Key(F5));
        } });
        type(setup, sequence);
        QTest::qWait(20);
        return name;
    }
    /// Opens the dialog of the instrument's labels and does \a step with it.
    static void edit(const QList<DialogDriver::Step> &steps)
    {
        DialogDriver driver(steps);
        InstrumentInfo::editInstrumentInfo();
        QVERIFY(driver.isDone());
    }
    static DialogDriver::Step keys(std::initializer_list<FrontKey> keys)
    {
        QByteArray letters;
        for (const FrontKey key : keys)
            letters += char(key);
        return DialogDriver::press(letters);
    }
};

void TstSetupService::init()
{
    SetupCase::restoreSettings();
    m_userConfig_g = UserConfig();
}

void TstSetupService::sequencesOpenTheirDialogs_data()
{
    QTest::addColumn<QByteArray>("sequence");
    QTest::addColumn<QString>("dialog");
    QTest::newRow("calibration") << kCalibration << QStringLiteral("CalibrationDialog");
    QTest::newRow("instrument") << kInstrument << QStringLiteral("InstrumentInfo");
    // The last eight arrows count.
    QTest::newRow("calibration behind other arrows")
        << QByteArray("RRR") + kCalibration << QStringLiteral("CalibrationDialog");
    QTest::newRow("instrument behind other arrows")
        << QByteArray("LLLLL") + kInstrument << QStringLiteral("InstrumentInfo");
    QTest::newRow("another key before") << QByteArray("RD") + kInstrument << QStringLiteral("InstrumentInfo");
}

void TstSetupService::sequencesOpenTheirDialogs()
{
    QFETCH(QByteArray, sequence);
    SetupPage setup(liveData());
    setup.enter();
    QTEST(opens(setup, sequence), "dialog");
    QCOMPARE(SetupCase::onTop(setup), QStringLiteral("SetupMain"));
}

void TstSetupService::nearMissesOpenNothing_data()
{
    QTest::addColumn<QByteArray>("sequence");
    for (const QByteArray &sequence : { kCalibration, kInstrument }) {
        for (int i = 0; i < sequence.size(); ++i) {
            QByteArray wrong = sequence;
            wrong[i] = wrong[i] == 'L' ? 'R' : 'L';
            QTest::addRow("%s, arrow %d wrong", sequence.constData(), i + 1) << wrong;
            QByteArray broken = sequence;
            if (i > 0)
                QTest::addRow("%s, another key before arrow %d", sequence.constData(), i + 1) << broken.insert(i, 'D');
        }
        QTest::addRow("%s, one short", sequence.constData()) << sequence.left(7);
        QTest::addRow("%s, first missing", sequence.constData()) << sequence.mid(1);
    }
}

void TstSetupService::nearMissesOpenNothing()
{
    QFETCH(QByteArray, sequence);
    SetupPage setup(liveData());
    setup.enter();
    QCOMPARE(opens(setup, sequence), QString());
}

void TstSetupService::eachSequenceOpensItsDialogAgain()
{
    SetupPage setup(liveData());
    setup.enter();
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(opens(setup, kInstrument), QStringLiteral("InstrumentInfo"));
        QCOMPARE(opens(setup, kCalibration), QStringLiteral("CalibrationDialog"));
    }
}

void TstSetupService::theWayToTheCalibrationIsLogged()
{
    SetupPage setup(liveData());
    setup.enter();
    logLines.clear();
    const QtMessageHandler before = qInstallMessageHandler(keepLog);
    const QString opened = opens(setup, kCalibration);
    qInstallMessageHandler(before);
    QCOMPARE(opened, QStringLiteral("CalibrationDialog"));
    const QRegularExpression source(QStringLiteral("^F: setup/setupmain L: \\d+ > "));
    QStringList texts;
    for (const QString &line : logLines) {
        if (source.match(line).hasMatch())
            texts << QString(line).remove(source);
    }
    QCOMPARE(texts,
             (QStringList { QStringLiteral("Enter the calibration function."), QStringLiteral("calibration!!!") }));
}

void TstSetupService::otherPagesOfSetupKnowNoSequence()
{
    SetupPage setup(liveData());
    setup.enter();
    SetupCase::press(setup, { F5 });
    QCOMPARE(opens(setup, kInstrument), QString());
    // Nor does the first page go on where it was left.
    SetupCase::press(setup, { F5 });
    type(setup, "RRLL");
    SetupCase::press(setup, { F5, F5 });
    QCOMPARE(opens(setup, "RLRL"), QString());
}

void TstSetupService::labelsAreShownAndCancelStoresNothing()
{
    const QByteArray files
        = RootFiles::read("/mnt/userfs/sys/sn") + RootFiles::read("/mnt/userfs/config/quvera_type.conf");
    edit({ [](QDialog *dialog) {
        QCOMPARE(labelText(dialog, "sn_t"), QStringLiteral("S/N"));
        QCOMPARE(labelText(dialog, "sn"), QStringLiteral("1AA000000"));
        QCOMPARE(labelText(dialog, "model_t"), QStringLiteral("Model"));
        QCOMPARE(labelText(dialog, "model"), QStringLiteral("QUVERA"));
        QCOMPARE(labelText(dialog, "btn_f4"), QStringLiteral("Ok"));
        QCOMPARE(labelText(dialog, "btn_f5"), QStringLiteral("Cancel"));
        keys({ Down, Left })(dialog);
        QCOMPARE(labelText(dialog, "model"), QStringLiteral("QUVERAE"));
        keys({ F5 })(dialog);
    } });
    QCOMPARE(RootFiles::read("/mnt/userfs/sys/sn") + RootFiles::read("/mnt/userfs/config/quvera_type.conf"), files);
}

void TstSetupService::serialNumberIsTypedAndStored()
{
    // The keyboard opens with the number; Enter appends the sign under its cursor.
    edit({ keys({ Enter }),
           [](QDialog *keyboard) {
               QCOMPARE(labelText(keyboard, "title"), QStringLiteral("S/N"));
               keys({ Enter, F4 })(keyboard);
           },
           keys({ F4 }) });
    const QString stored = UserConfig().getInstrumentSN();
    QCOMPARE(stored, m_userConfig_g.getInstrumentSN());
    QCOMPARE(stored.size(), 10);
    QVERIFY(stored.startsWith(QStringLiteral("1AA000000")));
}

void TstSetupService::serialNumberIsNeverEmpty()
{
    m_userConfig_g.setInstrumentSN(QStringLiteral("7"));
    edit({ keys({ Enter }),
           [](QDialog *keyboard) {
               keys({ F2, F4 })(keyboard); // Clear, Ok
               QVERIFY(keyboard->isVisible());
               QCOMPARE(labelText(keyboard, "hint"), QStringLiteral("Invalid input!"));
               keys({ F5 })(keyboard);
           },
           keys({ F4 }) });
    QCOMPARE(m_userConfig_g.getInstrumentSN(), QStringLiteral("7"));
}

void TstSetupService::enterOnTheModelOpensNoKeyboard()
{
    edit({ [](QDialog *dialog) {
        keys({ Down, Enter, F5 })(dialog); // a keyboard would take F5 and leave the dialog open
        QVERIFY(!dialog->isVisible());
    } });
}

void TstSetupService::modelStepsStopAtTheEndsOfTheList()
{
    edit({ [](QDialog *dialog) {
        keys({ Left })(dialog); // the serial number is selected
        QCOMPARE(labelText(dialog, "model"), QStringLiteral("QUVERA"));
        keys({ Down, Right })(dialog);
        QCOMPARE(labelText(dialog, "model"), QStringLiteral("QUVERA"));
        keys({ Left, Left, Left })(dialog);
        QCOMPARE(labelText(dialog, "model"), QStringLiteral("QUVERAE"));
        keys({ F5 })(dialog);
    } });
}

void TstSetupService::modelIsStoredByItsName()
{
    // Kept behaviour of the store: the place in the list counts from 0 and the number from 1.
    edit({ keys({ Down, Left, F4 }) }); // "QUVERAE", place 0
    QVERIFY(RootFiles::read("/mnt/userfs/config/quvera_type.conf").contains("TYPE=QUVERA"));
    QVERIFY(!RootFiles::read("/mnt/userfs/config/quvera_type.conf").contains("QUVERAE"));
    m_userConfig_g.setInstrumentModel(UserConfig::QuveraE);
    edit({ keys({ Down, Right, F4 }) }); // "QUVERA", place 1
    QVERIFY(RootFiles::read("/mnt/userfs/config/quvera_type.conf").contains("TYPE=QUVERAE"));
}

void TstSetupService::okWithoutAChangeStoresNothing()
{
    m_userConfig_g.setInstrumentModel(UserConfig::QuveraE);
    const QByteArray file = RootFiles::read("/mnt/userfs/config/quvera_type.conf");
    const int writes = RootFiles::commands().count("sync");
    edit({ keys({ Down, Right, Left, F4 }) });
    QCOMPARE(RootFiles::read("/mnt/userfs/config/quvera_type.conf"), file);
    QCOMPARE(RootFiles::commands().count("sync"), writes);
}

PAGE_TEST_MAIN(TstSetupService)
#include "tst_setupservice.moc"
