#include "dialogdriver.h"
#include "unit/measureddata.h"

#include "settings/config_data.h"
#include "settings/recordinfo.h"
#include "widgets/dialogs/runinfo.h"

using namespace MeasuredData;

class TstRunInfo : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(skin); }
    void cleanup();
    void countsTheEventsByKind();
    void eventsOfAMeasurementThatIsOverAreNotCounted();
    void totalIsBothListsTogether();
    void tellsWhetherTheRecorderRuns();
    void restartAnswersZeroAndCancelOne();
    void restartWhileRecordingDoesNothing();
    void restartIsGreyWhileRecording();
    void closedByOtherMeansItDoesNotRestart();
};

void TstRunInfo::cleanup()
{
    liveData().events().clear();
    liveData().transients().clear();
    RecordInfo::m_in_recording = 0;
}

static void addEvents(int type, int count)
{
    PQAEventItem item;
    item.type = type;
    for (int i = 0; i < count; ++i)
        liveData().events().append(item);
}

void TstRunInfo::countsTheEventsByKind()
{
    addEvents(EventDip, 3);
    addEvents(EventSwell, 2);
    addEvents(EventInterruption, 1);
    addEvents(EventInrush, 4);
    addEvents(EventRvc, 5);
    QCOMPARE(RunInfo::statusText(liveData()),
             QStringLiteral("System Status:\n\nLogger: Stoped\nTotal Events: 15\nDips: 3;   Swell: 2;   "
                            "Interruption: 1;   Transients: 0;   Inrush: 4"));
}

void TstRunInfo::eventsOfAMeasurementThatIsOverAreNotCounted()
{
    addEvents(EventDip, 3);
    liveData().events().finish();
    QVERIFY(RunInfo::statusText(liveData()).contains(QStringLiteral("Total Events: 0\nDips: 0;")));
    QCOMPARE(liveData().events().size(), 3);
    liveData().events().clear();
    addEvents(EventDip, 1);
    QVERIFY(RunInfo::statusText(liveData()).contains(QStringLiteral("Total Events: 1\nDips: 1;")));
}

void TstRunInfo::totalIsBothListsTogether()
{
    addEvents(EventDip, 3);
    liveData().transients().append({});
    liveData().transients().append({});
    QVERIFY(RunInfo::statusText(liveData()).contains(QStringLiteral("Total Events: 5\n")));
    QVERIFY(RunInfo::statusText(liveData()).contains(QStringLiteral("Transients: 2;")));
}

void TstRunInfo::tellsWhetherTheRecorderRuns()
{
    RecordInfo::m_in_recording = 1;
    QVERIFY(RunInfo::statusText(liveData()).contains(QStringLiteral("Logger: Running\n")));
    RunInfo info(liveData());
    QCOMPARE(labelText(&info, "system_status"), RunInfo::statusText(liveData()));
    QCOMPARE(keyTexts(&info), QStringList({ "Restart", "", "", "", "Cancel" }));
}

void TstRunInfo::restartAnswersZeroAndCancelOne()
{
    DialogDriver first({ DialogDriver::press("W") });
    QCOMPARE(RunInfo::showSystemStatus(liveData()), 0);
    DialogDriver second({ DialogDriver::press("L") });
    QCOMPARE(RunInfo::showSystemStatus(liveData()), 1);
}

void TstRunInfo::restartWhileRecordingDoesNothing()
{
    RecordInfo::m_in_recording = 1;
    RunInfo info(liveData());
    info.show();
    QTest::keyClick(&info, 'W');
    QVERIFY(info.isVisible());
    QTest::keyClick(&info, 'L');
    QVERIFY(!info.isVisible());
    QCOMPARE(info.result(), 1);
}

void TstRunInfo::restartIsGreyWhileRecording()
{
    const auto style
        = [](const RunInfo &info) { return info.findChild<QLabel *>(QStringLiteral("btn_f1"))->styleSheet(); };
    QVERIFY(style(RunInfo(liveData())).isEmpty());
    RecordInfo::m_in_recording = 1;
    QCOMPARE(style(RunInfo(liveData())),
             QStringLiteral(
                 "QLabel {background-color: transparent;background-image: url(:/button);color: rgb(128, 128, 128);}"));
}

void TstRunInfo::closedByOtherMeansItDoesNotRestart()
{
    DialogDriver driver({ [](QDialog *dialog) { dialog->close(); } });
    QCOMPARE(RunInfo::showSystemStatus(liveData()), 1);
}

QTEST_MAIN(TstRunInfo)
#include "tst_runinfo.moc"
