#include "unit/documentpage.h"
#include "unit/task/calibrationcase.h"
#include "unit/widgets/dialogdriver.h"

#include "board/backlight.h"
#include "setup/calibrationdialog.h"
#include "setup/setupmain.h"

#include <QApplication>

// Letters of the front panel.
namespace Letter {
constexpr char F1 = 'W', F2 = 'Y', F3 = 'P', F4 = 'F', F5 = 'L', Up = 'Q', Down = 'T', Enter = 'K', Left = 'O',
               Right = 'D', Menu = 'A';
}

/// The dialog of the calibration: its items and keys, and how it ends.
class TstCalibrationDialog : public CalibrationCase
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(skin); }
    void itStandsAtTheScreensBottomWithVersionAndCaptions();
    void theSelectedItemIsPaintedAndTheSelectionWraps();
    void theChannelGoesRound();
    void eachItemStartsItsRunAndTellsIt_data();
    void eachItemStartsItsRunAndTellsIt();
    void theDocumentTellsWhatEachRunDoes();
    void theChannelOfTheKeyIsTheOneThatIsStored();
    void duringARunOnlyCancelDoesSomething();
    void startDuringARunDoesNotBeginItAnew();
    void enterIsSwallowed();
    void aKeyThatWokeTheScreenDoesNothingElse();
    void saveStoresTheRuns();
    void cancelWhileIdleStoresNothing();
    void cancelDuringARunAsksAndLeavesOnConfirmationAlone();
    void theKeyboardComesBackToThePageBehindTheQuestion();
    void aRunThatEndsUnderTheQuestionIsStillLeft();
    void aDialogClosedByOtherMeansDuringARunStoresNothing();
    void aProcessorThatFallsSilentIsLeftByCancel();
    void theSetupPageOpensItBySequenceAlone();

private:
    static void press(QDialog &dialog, std::initializer_list<char> letters)
    {
        for (const char letter : letters)
            QTest::keyClick(&dialog, letter);
    }
    static DialogDriver::Step keys(std::initializer_list<char> letters)
    {
        return DialogDriver::press(QByteArray(letters.begin(), int(letters.size())));
    }
    static QString info(const QDialog &dialog) { return labelText(&dialog, "info"); }
    static QByteArray file() { return RootFiles::read(kCalibrationFile); }
};

namespace {

struct ItemRow
{
    const char *name;
    const char *text;
    const char *message;
};
const ItemRow kRows[] = {
    { "calib_0", nullptr, "Zero calibrating ..." },
    { "calib_v0", "120V", "Volt 120V calibrating ..." },
    { "calib_v1", "220V", "Volt 220V calibrating ..." },
    { "calib_v2", "400V", "Volt 400V calibrating ..." },
    { "calib_v3", "600V", "Volt 600V calibrating ..." },
    { "calib_i_1", "1mV/A", "Current 1mV/1A calibrating ..." },
    { "calib_i_10", "10mV/A", "Current 10mV/1A calibrating ..." },
    { "calib_i_65", "65mV/kA", "Current 65mV/kA calibrating ..." },
};
constexpr int kRowCount = int(std::size(kRows));

/// Names of the items that are painted as selected; all others have to be painted as the others.
QStringList selected(const QDialog &dialog)
{
    QStringList names;
    for (const ItemRow &row : kRows) {
        const QString sheet = dialog.findChild<QLabel *>(QLatin1String(row.name))->styleSheet();
        if (sheet == QLatin1String("color: rgb(255, 255, 255);background-color: rgb(64, 64, 64);"))
            names << QLatin1String(row.name);
        else if (sheet != QLatin1String("color: rgb(64, 64, 64);"))
            names << sheet;
    }
    return names;
}

} // namespace

void TstCalibrationDialog::itStandsAtTheScreensBottomWithVersionAndCaptions()
{
    m_idevice->datagramFirmwareInfoSlot(DatagramFirmwareInfo, QByteArray("CPU:ADSP-21479;Silicon:0.2;Firmware:1.2.3;"));
    CalibrationDialog dialog;
    dialog.show();
    QCOMPARE(dialog.geometry().bottom(), 478);
    QCOMPARE(dialog.width(), 640);
    QCOMPARE(labelText(&dialog, "firmware_version"), QStringLiteral("CPU:ADSP-21479;Silicon:0.2;Firmware:1.2.3;"));
    QCOMPARE(keyTexts(&dialog), (QStringList { "Tab", "L1  L2  L3  N", "Start", "Save", "Cancel" }));
    QCOMPARE(info(dialog), QString());
    QStringList texts;
    for (const ItemRow &row : kRows) {
        if (row.text)
            QCOMPARE(labelText(&dialog, row.name), QLatin1String(row.text));
    }
    for (const QLabel *label : dialog.findChildren<QLabel *>())
        texts << label->text();
    QVERIFY(texts.contains(QStringLiteral("Zero:")));
    QVERIFY(!dialog.isRunning());
}

void TstCalibrationDialog::theSelectedItemIsPaintedAndTheSelectionWraps()
{
    CalibrationDialog dialog;
    for (const char next : { Letter::Down, Letter::F1 }) {
        for (int i = 0; i < kRowCount; ++i) {
            QCOMPARE(selected(dialog), QStringList { QLatin1String(kRows[i].name) });
            press(dialog, { next });
        }
        QCOMPARE(selected(dialog), QStringList { QStringLiteral("calib_0") });
    }
    for (int i = kRowCount - 1; i >= 0; --i) {
        press(dialog, { Letter::Up });
        QCOMPARE(selected(dialog), QStringList { QLatin1String(kRows[i].name) });
    }
}

void TstCalibrationDialog::theChannelGoesRound()
{
    CalibrationDialog dialog;
    for (const char *label : { "L1  L2  L3  N", "L1", "L2", "L3", "N", "L1  L2  L3  N" }) {
        QCOMPARE(labelText(&dialog, "btn_f2"), QLatin1String(label));
        press(dialog, { Letter::F2 });
    }
}

void TstCalibrationDialog::eachItemStartsItsRunAndTellsIt_data()
{
    QTest::addColumn<int>("item");
    QTest::addColumn<int>("datagrams");
    QTest::addColumn<int>("firstFloat"); // of the row in the block that the run fills
    QTest::addColumn<float>("value"); // of 2 units
    const int firstFloats[kRowCount] = { 0, 32, 36, 40, 44, 56, 52, 60 };
    const float values[kRowCount] = { 2, 60, 110, 200, 300, 50, 50, 32.5f };
    for (int i = 0; i < kRowCount; ++i)
        QTest::newRow(kRows[i].name) << i << (i == 0 ? 53 : 100) << firstFloats[i] << values[i];
}

void TstCalibrationDialog::eachItemStartsItsRunAndTellsIt()
{
    QFETCH(int, item);
    QFETCH(int, datagrams);
    QFETCH(int, firstFloat);
    QFETCH(float, value);
    CalibrationDialog dialog;
    for (int i = 0; i < item; ++i)
        press(dialog, { Letter::Down });
    press(dialog, { Letter::F3 });
    QVERIFY(dialog.isRunning());
    QCOMPARE(info(dialog), QLatin1String(kRows[item].message));
    Measured measured;
    measured.volts = measured.amps = measured.voltOffsets = measured.ampOffsets = { 2, 2, 2, 2 };
    measured.send(datagrams - 1);
    QVERIFY(dialog.isRunning());
    measured.send();
    QVERIFY(!dialog.isRunning());
    QCOMPARE(info(dialog), QStringLiteral("Ok!"));
    for (int k = 0; k < 4; ++k)
        QCOMPARE(dialog.task().file().calibData()[firstFloat + k], value);
}

// Runs of 2 units each, as the table says how long they are and which row of the block they fill.
void TstCalibrationDialog::theDocumentTellsWhatEachRunDoes()
{
    const auto rows = DocumentPage(QStringLiteral("calibration.md")).table(QStringLiteral("## Runs"));
    QCOMPARE(rows.size(), kRowCount);
    CalibrationDialog dialog;
    for (int i = 0; i < kRowCount; ++i, press(dialog, { Letter::Down })) {
        const QStringList &row = rows.at(i);
        QCOMPARE(row.value(0), labelText(&dialog, kRows[i].name));
        const CalibFile before = dialog.task().file();
        press(dialog, { Letter::F3 });
        Measured measured;
        measured.volts = measured.amps = measured.voltOffsets = measured.ampOffsets = { 2, 2, 2, 2 };
        measured.send(row.value(2).toInt() - 1);
        QVERIFY(dialog.isRunning());
        measured.send();
        QVERIFY(!dialog.isRunning());
        QStringList filled;
        for (int r = 0; r < 16; ++r) {
            const float *now = dialog.task().file().calibData() + 4 * r;
            if (memcmp(now, before.calibData() + 4 * r, 16) == 0)
                continue;
            static const char *const kTables[] = { "zeroVolt", "zeroCurrent", "volt", "current" };
            filled << QStringLiteral("%1 row %2").arg(QLatin1String(kTables[r / 4])).arg(r % 4);
            if (i > 0)
                QVERIFY(std::fabs(now[0] - row.value(1).section(' ', 0, 0).toFloat() / 2) < 1e-4f);
        }
        if (i == 0)
            QCOMPARE(filled.size(), 8); // all rows of both
        else
            QCOMPARE(filled, QStringList { row.value(3) });
        const Switches now = switches();
        if (i > 0)
            QCOMPARE(row.value(5),
                     i < 5 ? QStringLiteral("voltage %1").arg(now.phaseVolt)
                           : QStringLiteral("current %1").arg(now.phaseCurrent));
    }
}

void TstCalibrationDialog::theChannelOfTheKeyIsTheOneThatIsStored()
{
    CalibrationDialog dialog;
    press(dialog, { Letter::Down, Letter::F2, Letter::F2, Letter::F2, Letter::F3 }); // 120 V on L3
    Measured measured;
    measured.volts = { 2, 2, 2, 2 };
    measured.send(100);
    QCOMPARE(rowOf(dialog.task().file().data().volt[0]), (Row { 39.8f, 39.8f, 60, 39.8f }));
}

void TstCalibrationDialog::duringARunOnlyCancelDoesSomething()
{
    CalibrationDialog dialog;
    dialog.show();
    press(dialog, { Letter::F3 });
    press(dialog, { Letter::Up, Letter::Down, Letter::F1, Letter::F2, Letter::F4, Letter::Enter, Letter::Left });
    QCOMPARE(selected(dialog), QStringList { QStringLiteral("calib_0") });
    QCOMPARE(labelText(&dialog, "btn_f2"), QStringLiteral("L1  L2  L3  N"));
    QVERIFY(dialog.isVisible());
    Measured().send(53);
    press(dialog, { Letter::Down });
    QCOMPARE(selected(dialog), QStringList { QStringLiteral("calib_v0") });
}

void TstCalibrationDialog::startDuringARunDoesNotBeginItAnew()
{
    CalibrationDialog dialog;
    press(dialog, { Letter::Down, Letter::F3 });
    Measured().send(80);
    FrameSpy spy;
    press(dialog, { Letter::F3 });
    QCOMPARE(spy.count(), 0);
    Measured().send(20);
    QVERIFY(!dialog.isRunning());
    press(dialog, { Letter::F3 }); // now it does
    QVERIFY(dialog.isRunning());
    QCOMPARE(info(dialog), QStringLiteral("Volt 120V calibrating ..."));
}

void TstCalibrationDialog::enterIsSwallowed()
{
    QWidget page;
    CalibrationDialog dialog(&page);
    dialog.show();
    FrameSpy spy;
    for (const int key : { Qt::Key_Return, Qt::Key_Enter, Qt::Key_K, Qt::Key_A }) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&dialog, &event);
        QVERIFY(event.isAccepted());
    }
    QVERIFY(dialog.isVisible());
    QCOMPARE(spy.count(), 0);
    QCOMPARE(selected(dialog), QStringList { QStringLiteral("calib_0") });
}

void TstCalibrationDialog::saveStoresTheRuns()
{
    DialogDriver driver({ keys({ Letter::F1, Letter::F1, Letter::F3 }),
                          [](QDialog *) {
                              Measured measured;
                              measured.volts = { 2, 2, 2, 2 };
                              measured.send(100);
                          },
                          keys({ Letter::F4 }) });
    CalibrationDialog::calibration();
    QVERIFY(driver.isDone());
    QCOMPARE(file().mid(144, 4), QByteArray::fromHex("0000dc42")); // 110
    QCOMPARE(m_settingConfig_g.derived().scales.voltage[3], 110.0f);
}

void TstCalibrationDialog::cancelWhileIdleStoresNothing()
{
    const QByteArray before = file();
    FrameSpy spy;
    DialogDriver driver(
        { keys({ Letter::Down, Letter::F3 }), [](QDialog *) { Measured().send(100); }, keys({ Letter::F5 }) });
    CalibrationDialog::calibration();
    QVERIFY(driver.isDone());
    QCOMPARE(file(), before);
    QCOMPARE(m_settingConfig_g.derived().scales.voltage[0], 79.25f);
    // The stored set-up, version, stream; then, with the dialog gone, the stream stands still.
    const auto frames = takeFrames(spy);
    QCOMPARE(frames.mid(frames.size() - 3),
             (QVector<QVector<quint32>> { { 122, 194, 0, 123 }, kStreamOn, kStreamOff }));
    QCOMPARE(frames.at(frames.size() - 4).value(2), 0x00320000u); // 50 Hz, star
}

void TstCalibrationDialog::cancelDuringARunAsksAndLeavesOnConfirmationAlone()
{
    const QByteArray before = file();
    QString question;
    bool stayed = false;
    DialogDriver driver({ keys({ Letter::F3, Letter::F5 }), // runs until the question is answered
                          [&question](QDialog *message) {
                              question = labelText(message, "message");
                              QTest::keyClick(message, Letter::F5); // No
                          },
                          [&stayed](QDialog *dialog) {
                              stayed = qobject_cast<CalibrationDialog *>(dialog)->isRunning();
                              QTest::keyClick(dialog, Letter::F5);
                          },
                          keys({ Letter::F4 }) }); // Yes
    CalibrationDialog::calibration();
    QVERIFY(driver.isDone());
    QCOMPARE(question, QStringLiteral("The calibration task is running, \nDo you want to exit?"));
    QVERIFY(stayed);
    QCOMPARE(file(), before);
}

void TstCalibrationDialog::theKeyboardComesBackToThePageBehindTheQuestion()
{
    QDialog page;
    page.setFocusPolicy(Qt::StrongFocus);
    page.show();
    page.activateWindow();
    page.setFocus();
    QTRY_COMPARE(QApplication::focusWidget(), &page);
    DialogDriver driver({ keys({ Letter::Down, Letter::F3, Letter::F5 }), keys({ Letter::F4 }) });
    CalibrationDialog::calibration();
    QVERIFY(driver.isDone());
    QTRY_COMPARE(QApplication::focusWidget(), &page);
}

void TstCalibrationDialog::aRunThatEndsUnderTheQuestionIsStillLeft()
{
    const QByteArray before = file();
    DialogDriver driver({ keys({ Letter::Down, Letter::F3, Letter::F5 }), [](QDialog *message) {
                             Measured().send(100);
                             QTest::keyClick(message, Letter::F4);
                         } });
    CalibrationDialog::calibration();
    QVERIFY(driver.isDone());
    QCOMPARE(file(), before);
}

void TstCalibrationDialog::aDialogClosedByOtherMeansDuringARunStoresNothing()
{
    const QByteArray before = file();
    FrameSpy spy;
    DialogDriver driver({ keys({ Letter::Down, Letter::F3 }), [](QDialog *dialog) { dialog->close(); } });
    CalibrationDialog::calibration();
    QVERIFY(driver.isDone());
    QCOMPARE(file(), before);
    takeFrames(spy);
    Measured().send(200); // to nobody: the run is gone
    QVERIFY(takeFrames(spy).isEmpty());
}

void TstCalibrationDialog::aProcessorThatFallsSilentIsLeftByCancel()
{
    const QByteArray before = file();
    QString told;
    DialogDriver driver({ keys({ Letter::Down, Letter::F3 }), [](QDialog *) { QTest::qWait(1000); },
                          [&told](QDialog *dialog) {
                              told = labelText(dialog, "info");
                              QTest::keyClick(dialog, Letter::F5);
                          },
                          keys({ Letter::F4 }) });
    CalibrationDialog::calibration();
    QVERIFY(driver.isDone());
    QCOMPARE(told, QStringLiteral("Volt 120V calibrating ..."));
    QCOMPARE(file(), before);
}

void TstCalibrationDialog::aKeyThatWokeTheScreenDoesNothingElse()
{
    CalibrationDialog dialog;
    BackLight::shutDownBL();
    press(dialog, { Letter::F3 });
    QVERIFY(!dialog.isRunning());
    BackLight::shutDownBL();
    press(dialog, { Letter::Down });
    QCOMPARE(selected(dialog), QStringList { QStringLiteral("calib_0") });
    press(dialog, { Letter::Down });
    QCOMPARE(selected(dialog), QStringList { QStringLiteral("calib_v0") });
}

void TstCalibrationDialog::theSetupPageOpensItBySequenceAlone()
{
    SetupMain page;
    page.init_parameter();
    bool opened = false;
    DialogDriver driver({ [&opened](QDialog *dialog) {
        opened = qobject_cast<CalibrationDialog *>(dialog) != nullptr;
        QTest::keyClick(dialog, Letter::F5);
    } });
    const auto arrows = [&page](const char *text) {
        for (; *text; ++text)
            QTest::keyClick(&page, *text == 'L' ? Letter::Left : Letter::Right);
    };
    arrows("RLLRRLRR"); // nearly
    QTest::qWait(50);
    QVERIFY(!driver.isDone());
    arrows("LLRRLRLR");
    QVERIFY(driver.isDone());
    QVERIFY(opened);
}

QTEST_MAIN(TstCalibrationDialog)
#include "tst_calibrationdialog.moc"
