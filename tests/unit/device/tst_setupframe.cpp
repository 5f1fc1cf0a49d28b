#include <QTest>

#include "device/controlframe.h"
#include "device/setupframe.h"
#include "settings/derived.h"
#include "settings/settingvalues.h"

#include <cstring>

namespace {

/// A set-up that stands in no file: a user's own calibration, a flexible clamp, 400 Hz between lines.
Derived ownSetUp()
{
    Derived derived;
    derived.joinMode = 4;
    derived.channels = channelSet(4);
    derived.nominalFrequency = 400.0;
    derived.clamp.flexible = true;
    derived.voltIndex = 3;
    derived.currentIndex = 1;
    derived.currentNIndex = 2;
    for (int k = 0; k < 4; ++k) {
        derived.voltGain[k] = 50.0f * float(k + 1);
        derived.zeroVolt[k] = 0.5f + float(k);
        derived.zeroCurrent[k] = -0.25f * float(k);
    }
    return derived;
}

} // namespace

/// The set-up frame as it is made from a record, without the settings in use.
class TstSetUpFrame : public QObject
{
    Q_OBJECT

private slots:
    void theWordsFollowTheRecordThatIsGiven()
    {
        SettingValues values {};
        values.transThreshold = 40;
        values.flickerWeightingCurve = 120;
        monitor_limit limits {};
        limits.frequency1.value = 1375.0f;
        limits.frequency2.value = 285.0f;
        const SetUpWords words = SetUpFrame::words(ownSetUp(), values, limits);
        QCOMPARE(words.configuration >> 16, 400u);
        QCOMPARE(words.configuration >> 15 & 1, 1u);
        QCOMPARE(words.configuration & 0x7fff, quint32(channelSet(4)->processorCode()));
        for (int k = 0; k < 4; ++k) {
            QCOMPARE(words.zeroVolt[k], 0.5f + float(k));
            QCOMPARE(words.zeroCurrent[k], -0.25f * float(k));
            QCOMPARE(words.gainVolt[k], float(k + 1)); // against L1
            QCOMPARE(words.gainCurrent[k], 1.0f);
        }
        QCOMPARE(words.transientThreshold, 0.8f); // 40 over the gain of L1
        QCOMPARE(words.flickerLamp, 120u);
        QCOMPARE(words.signalFrequency1, 1375.0f);
        QCOMPARE(words.signalFrequency2, 285.0f);
    }

    void aWiringOutsideTheTableHasNoCode()
    {
        const SetUpWords words = SetUpFrame::words(Derived(), SettingValues(), monitor_limit());
        QCOMPARE(words.configuration, 50u << 16);
    }

    void theNeutralFrameIsOneOfTwentyFourWords()
    {
        QByteArray frame("x");
        SetUpFrame::append(frame, SetUpWords());
        QCOMPARE(frame.size(), 1 + 4 * 24);
        quint32 words[24];
        memcpy(words, frame.constData() + 1, sizeof(words));
        QCOMPARE(words[0], 122u);
        QCOMPARE(words[1], 198u);
        QCOMPARE(words[2], 0x00320002u);
        QCOMPARE(words[11], 0x3f800000u); // the first gain: 1.0
        QCOMPARE(words[20], 230u);
        QCOMPARE(words[23], 123u);
    }

    void theSelectorsFollowTheRows()
    {
        const AnalogSelectors selectors = SetUpFrame::selectors(ownSetUp());
        QCOMPARE(selectors.volt, 3);
        QCOMPARE(selectors.current, 2); // rows 1 and 2 of the current change places
        QCOMPARE(selectors.currentN, 1);
    }
};

QTEST_GUILESS_MAIN(TstSetUpFrame)
#include "tst_setupframe.moc"
