#include <QTest>

#include "model/channelset.h"
#include "settings/settingconfig.h"

Q_DECLARE_METATYPE(QVector<int>)

/// What each wiring decides, row by row.
class TstChannelSet : public QObject
{
    Q_OBJECT

private slots:
    void theChannelsOfEachWiring_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("trendFlags");
        QTest::addColumn<QVector<int>>("scopeFlags"); // of the modes U, I, N, L1, L2, L3
        QTest::addColumn<QVector<int>>("scopeCycle");
        QTest::addColumn<QVector<int>>("harmonicCycle");
        const QVector<int> all = { 15, 240, 136, 17, 34, 68 };
        const QVector<int> three = { 7, 112, 0, 17, 34, 68 };
        for (int mode : { 1, 7, 9 })
            QTest::addRow("mode %d", mode)
                << mode << 15 << all << QVector<int> { 0, 1, 2, 3, 4, 5, 0 } << QVector<int> { 1, 2, 3, 4, 5, 1 };
        for (int mode : { 2, 4, 8, 10 })
            QTest::addRow("mode %d", mode)
                << mode << 7 << three << QVector<int> { 0, 1, 3, 4, 5, 0 } << QVector<int> { 1, 2, 3, 5, 1 };
        QTest::newRow("mode 3") << 3 << 9 << QVector<int> { 9, 144, 136, 17, 0, 0 } << QVector<int> { 0, 1, 2, 3, 0 }
                                << QVector<int> { 1, 4, 1 };
        QTest::newRow("mode 5") << 5 << 11 << QVector<int> { 11, 176, 136, 17, 34, 0 }
                                << QVector<int> { 0, 1, 2, 3, 4, 0 } << QVector<int> { 1, 2, 4, 5, 1 };
        QTest::newRow("mode 6") << 6 << 1 << QVector<int> { 1, 16, 0, 17, 0, 0 } << QVector<int> { 0, 1, 3, 0 }
                                << QVector<int> { 1, 1 };
    }
    void theChannelsOfEachWiring()
    {
        QFETCH(int, mode);
        QFETCH(int, trendFlags);
        QFETCH(QVector<int>, scopeFlags);
        QFETCH(QVector<int>, scopeCycle);
        QFETCH(QVector<int>, harmonicCycle);
        const ChannelSet *set = channelSet(mode);
        QVERIFY(set);
        QCOMPARE(set->joinMode, mode);
        QCOMPARE(set->trendFlags(), trendFlags);
        for (int channel = 0; channel < 4; ++channel)
            QCOMPARE(set->has(channel), bool(trendFlags >> channel & 1));
        QVERIFY(!set->has(4) && !set->has(-1));
        QCOMPARE(set->hasNeutral(), trendFlags >= 8);
        for (int i = 0; i < 6; ++i)
            QCOMPARE(set->scopeFlags(i), scopeFlags.at(i));
        QCOMPARE(set->scopeFlags(6), 0);
        QCOMPARE(set->scopeFlags(-1), 0);
        for (int i = 0; i + 1 < scopeCycle.size(); ++i)
            QCOMPARE(set->nextScopeMode(scopeCycle.at(i)), scopeCycle.at(i + 1));
        for (int i = 0; i + 1 < harmonicCycle.size(); ++i)
            QCOMPARE(set->nextHarmonicChannel(harmonicCycle.at(i)), harmonicCycle.at(i + 1));
    }

    void aModeLeftBehindByAnotherWiringMovesOn()
    {
        QCOMPARE(channelSet(6)->nextScopeMode(2), 3); // N is gone
        QCOMPARE(channelSet(3)->nextScopeMode(5), 0);
        QCOMPARE(channelSet(4)->nextHarmonicChannel(4), 5);
        QCOMPARE(channelSet(1)->nextScopeMode(99), 0);
        QCOMPARE(channelSet(1)->nextHarmonicChannel(-7), 2);
    }

    void thePhasesOfTaskAndDetectorDifferInMode6()
    {
        const int task[] = { 3, 3, 1, 3, 2, 1, 3, 3, 3, 3 };
        const int events[] = { 3, 3, 1, 3, 2, 2, 3, 3, 3, 3 };
        const int inrush[] = { 7, 7, 1, 7, 3, 3, 7, 7, 5, 7 }; // bits I1, I2, I3
        const int curves[] = { 7, 7, 1, 7, 3, 1, 7, 7, 7, 7 }; // phases of the kept lists
        for (int mode = 1; mode <= 10; ++mode) {
            const ChannelSet *set = channelSet(mode);
            QCOMPARE(int(set->taskPhases), task[mode - 1]);
            QCOMPARE(int(set->eventPhases), events[mode - 1]);
            QCOMPARE(int(set->inrushMask), inrush[mode - 1]);
            QCOMPARE(int(set->curveMask), curves[mode - 1]);
        }
    }

    void theWritersAndTheirChannels()
    {
        const int writers[] = { 1, 2, 3, 2, 4, 5, 1, 2, 1, 2 };
        const int record[] = { 15, 15, 9, 15, 11, 1, 15, 15, 15, 15 };
        for (int mode = 1; mode <= 10; ++mode) {
            QCOMPARE(int(channelSet(mode)->writer), writers[mode - 1]);
            QCOMPARE(int(channelSet(mode)->recordMask), record[mode - 1]);
        }
    }

    void theTransientCodesThatCount()
    {
        const int highest[] = { 3, 3, 1, 3, 2, 1, 3, 3, 3, 3 };
        for (int mode = 1; mode <= 10; ++mode) {
            for (int code = -1; code <= 5; ++code)
                QCOMPARE(transientCodeCounts(mode, code), code >= 1 && code <= highest[mode - 1]);
        }
        for (int mode : { 0, 11, -5 }) // an unset mode
            QVERIFY(transientCodeCounts(mode, 3) && !transientCodeCounts(mode, 4) && !transientCodeCounts(mode, 0));
    }

    void theSmallerAnswers()
    {
        const int vectors[] = { 5, 5, 3, 5, 4, 3, 5, 5, 5, 5 };
        const int codes[] = { 0, 1, 0, 1, 0, 1, 0, 1, 3, 4 };
        const int dips[] = { 15, 7, 1, 7, 11, 1, 15, 7, 15, 7 };
        for (int mode = 1; mode <= 10; ++mode) {
            QCOMPARE(channelSet(mode)->vectorSelectors(), vectors[mode - 1]);
            QCOMPARE(channelSet(mode)->processorCode(), codes[mode - 1]);
            QCOMPARE(channelSet(mode)->dipTrendFlags(), dips[mode - 1]);
        }
    }

    void theCaptionsOfStarAndDelta()
    {
        for (int mode = 1; mode <= 10; ++mode) {
            const QStringList expected
                = mode % 2 ? QStringList { "L1", "L2", "L3", "N" } : QStringList { "L12", "L23", "L31", "" };
            for (int channel = 0; channel < 4; ++channel)
                QCOMPARE(channelSet(mode)->caption(channel), expected.at(channel));
            QCOMPARE(channelSet(mode)->caption(4), QString());
            QCOMPARE(channelSet(mode)->caption(-1), QString());
            QCOMPARE(channelSet(mode)->star(), SettingConfig::isStarJoinMode(mode));
        }
    }

    void numbersThatAreNoWiringHaveNoRow()
    {
        for (int mode : { 0, 11, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min() })
            QVERIFY(!channelSet(mode));
    }
};

QTEST_GUILESS_MAIN(TstChannelSet)
#include "tst_channelset.moc"
