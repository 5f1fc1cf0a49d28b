#include "dialogdriver.h"

#include "settings/config_data.h"
#include "settings/recordinfo.h"
#include "model/transparam.h"
#include "widgets/dialogs/runinfo.h"

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
    g_events_list.clear();
    g_trans_events.clear();
    RecordInfo::m_in_recording = 0;
}

static void addEvents(int type, int count)
{
    PQAEventItem item;
    item.type = type;
    for (int i = 0; i < count; ++i)
        g_events_list.append(item);
}

void TstRunInfo::countsTheEventsByKind()
{
    addEvents(EventDip, 3);
    addEvents(EventSwell, 2);
    addEvents(EventInterruption, 1);
    addEvents(EventInrush, 4);
    addEvents(EventRvc, 5);
    QCOMPARE(RunInfo::statusText(),
             QStringLiteral("System Status:\n\nLogger: Stoped\nTotal Events: 15\nDips: 3;   Swell: 2;   "
                            "Interruption: 1;   Transients: 0;   Inrush: 4"));
}

void TstRunInfo::eventsOfAMeasurementThatIsOverAreNotCounted()
{
    addEvents(EventDip, 3);
    g_events_list.finish();
    QVERIFY(RunInfo::statusText().contains(QStringLiteral("Total Events: 0\nDips: 0;")));
    QCOMPARE(g_events_list.size(), 3);
    g_events_list.clear();
    addEvents(EventDip, 1);
    QVERIFY(RunInfo::statusText().contains(QStringLiteral("Total Events: 1\nDips: 1;")));
}

void TstRunInfo::totalIsBothListsTogether()
{
    addEvents(EventDip, 3);
    g_trans_events = { nullptr, nullptr };
    QVERIFY(RunInfo::statusText().contains(QStringLiteral("Total Events: 5\n")));
    QVERIFY(RunInfo::statusText().contains(QStringLiteral("Transients: 2;")));
}

void TstRunInfo::tellsWhetherTheRecorderRuns()
{
    RecordInfo::m_in_recording = 1;
    QVERIFY(RunInfo::statusText().contains(QStringLiteral("Logger: Running\n")));
    RunInfo info;
    QCOMPARE(labelText(&info, "system_status"), RunInfo::statusText());
    QCOMPARE(keyTexts(&info), QStringList({ "Restart", "", "", "", "Cancel" }));
}

void TstRunInfo::restartAnswersZeroAndCancelOne()
{
    DialogDriver first({ DialogDriver::press("W") });
    QCOMPARE(RunInfo::showSystemStatus(), 0);
    DialogDriver second({ DialogDriver::press("L") });
    QCOMPARE(RunInfo::showSystemStatus(), 1);
}

void TstRunInfo::restartWhileRecordingDoesNothing()
{
    RecordInfo::m_in_recording = 1;
    RunInfo info;
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
    QVERIFY(style(RunInfo()).isEmpty());
    RecordInfo::m_in_recording = 1;
    QCOMPARE(style(RunInfo()),
             QStringLiteral(
                 "QLabel {background-color: transparent;background-image: url(:/button);color: rgb(128, 128, 128);}"));
}

void TstRunInfo::closedByOtherMeansItDoesNotRestart()
{
    DialogDriver driver({ [](QDialog *dialog) { dialog->close(); } });
    QCOMPARE(RunInfo::showSystemStatus(), 1);
}

QTEST_MAIN(TstRunInfo)
#include "tst_runinfo.moc"
