#include <QSet>
#include <QTest>

#include "settings/config.h"
#include "settings/config_data.h"
#include "settings/dipswellinfo.h"
#include "settings/harmdata.h"
#include "settings/inrushinfo.h"
#include "settings/loggerinfo.h"
#include "settings/monitorinfo.h"
#include "settings/recordgroups.h"
#include "settings/recordinfo.h"
#include "storage/massstorage.h"
#include "model/channelset.h"
#include "model/transparam.h"
#include "settings/waveinfo.h"
#include "unit/storage/rootfiles.h"

#include <limits>

/// The static choices of each function.
class TstInfos : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        RootFiles::clean();
        m_settingConfig_g.loadSettingConfig(); // factory settings: 50 Hz, TARN-41A
    }

    void theMonitorStartsWithItsDefaults()
    {
        QCOMPARE(*MonitorInfo::m_monitor_file, QString());
        QCOMPARE(MonitorInfo::m_begain_time, 0u);
        QCOMPARE(MonitorInfo::m_duration, 2);
        QCOMPARE(MonitorInfo::_10min_data_counter, 2);
        QCOMPARE(MonitorInfo::m_zoom_index, 2);
        const int hours[] = { 168, 84, 42, 21 };
        const float steps[] = { 2.0f, 1.0f, 0.5f, 0.25f };
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(MonitorInfo::m_zoom_time[i].hours, hours[i]);
            QCOMPARE(MonitorInfo::m_zoom_time[i].step, steps[i]);
        }
    }

    void theMonitorsDefaultNameTakesTheFirstFreeNumber()
    {
        QVERIFY(QDir().mkpath(Target::path("/mnt/storage/231115_221320 Monitor-EN501601")));
        QCOMPARE(MonitorInfo::getDefName("Monitor", "EN50160"), QString("Monitor-EN501602"));
    }

    void theRecorderStartsWithItsDefaults()
    {
        QCOMPARE(RecordInfo::m_in_recording, 0);
        QCOMPARE(*RecordInfo::m_record_file, QString());
        QCOMPARE(RecordInfo::m_duration, 2);
        QCOMPARE(RecordInfo::m_max_duration, 2);
        QCOMPARE(RecordInfo::m_interval_index, 3);
        const int seconds[] = { 1, 3, 5, 10, 30, 60, 120, 300 };
        for (int i = 0; i < 8; ++i)
            QCOMPARE(RecordInfo::m_record_interval[i], seconds[i]);
        QCOMPARE(RecordInfo::m_harm_max_numb, 100);
    }

    void theRecordItemsAreCompletedWhenRead_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<uint>("items");
        QTest::newRow("no file: what a new instrument records") << QByteArray() << 0x7Fu;
        QTest::newRow("no key") << QByteArray("OTHER=8\n") << 0x7Fu;
        QTest::newRow("no value") << QByteArray("PARAMS=\n") << 0x7Fu;
        QTest::newRow("nothing chosen") << QByteArray("PARAMS=0\n") << 1u;
        QTest::newRow("power only") << QByteArray("PARAMS=8\n") << 9u;
        QTest::newRow("only voltage harmonics: the rms group comes along") << QByteArray("PARAMS=128\n") << 133u;
        QTest::newRow("only the last harmonic item") << QByteArray("PARAMS=16384\n") << 16389u;
        QTest::newRow("mains signaling is no harmonic item") << QByteArray("PARAMS=32768\n") << 32769u;
        QTest::newRow("all") << QByteArray("PARAMS=65535\n") << 65535u;
        QTest::newRow("no number") << QByteArray("PARAMS=all\n") << 1u;
        QTest::newRow("negative") << QByteArray("PARAMS=-1\n") << 1u;
        QTest::newRow("beyond 32 bits") << QByteArray("PARAMS=4294967296\n") << 1u;
    }
    void theRecordItemsAreCompletedWhenRead()
    {
        QFETCH(QByteArray, file);
        if (!file.isEmpty())
            RootFiles::write("/mnt/userfs/config/record.conf", file);
        RecordInfo::readSelectedParam();
        QTEST(RecordInfo::m_recordItems, "items");
    }

    void theRecordItemsAreKept()
    {
        RecordInfo::m_recordItems = 0x807F;
        RecordInfo::writeSelectedParam();
        QCOMPARE(Config::readConfigFile("/mnt/userfs/config/record.conf", "PARAMS"), QString("32895"));
        RecordInfo::m_recordItems = 0;
        RecordInfo::readSelectedParam();
        QCOMPARE(RecordInfo::m_recordItems, 0x807Fu);
    }

    void everyGroupOfTheRecorderHasTheFileOfItsItem()
    {
        QSet<QByteArray> names;
        for (const RecordFileRow &file : recordFiles())
            names << file.name;
        QCOMPARE(names.size(), int(kRecordFiles));
        QCOMPARE(recordFiles()[CommonFile].item, 0u); // always there
        for (const RecordGroup &group : recordGroups()) {
            if (group.file != CommonFile)
                QCOMPARE(recordFiles()[size_t(group.file)].item, group.item);
        }
    }

    void anHourOfARecordingIsCountedBlockByBlock_data()
    {
        QTest::addColumn<uint>("items");
        QTest::addColumn<int>("interval");
        QTest::addColumn<int>("joinMode");
        QTest::addColumn<double>("bytes");
        // A block: 12 of its head, 8 of its time, the values.
        QTest::newRow("10-second frequency") << 1u << 1 << 1 << 360.0 * 3 * (12 + 8 + 4);
        QTest::newRow("frequency") << 2u << 1 << 1 << 3600.0 * 3 * (12 + 8 + 4);
        QTest::newRow("rms and angles") << 4u << 10 << 1 << 360.0 * (3 * (20 + 4 * 52) + 6 * (20 + 16));
        QTest::newRow("rms, three phases in triangle") << 4u << 10 << 2 << 360.0 * (3 * (20 + 4 * 52) + 6 * (20 + 16));
        QTest::newRow("rms, phase and neutral") << 4u << 10 << 3 << 360.0 * (3 * (20 + 2 * 52) + 6 * (20 + 8));
        QTest::newRow("rms, split phase") << 4u << 10 << 5 << 360.0 * (3 * (20 + 3 * 52) + 6 * (20 + 12));
        QTest::newRow("rms, one phase") << 4u << 10 << 6 << 360.0 * (3 * (20 + 52) + 6 * (20 + 4));
        QTest::newRow("power") << 8u << 60 << 1 << 60.0 * 3 * (20 + 96);
        QTest::newRow("energy") << 16u << 60 << 1 << 60.0 * (20 + 96);
        QTest::newRow("flicker") << 32u << 60 << 1 << 6.0 * (20 + 12) + 0.5 * (20 + 12);
        QTest::newRow("unbalance") << 64u << 60 << 6 << 60.0 * 3 * (20 + 40);
        QTest::newRow("mains signaling") << 0x8000u << 60 << 1 << 60.0 * 3 * (20 + 96);
        for (uint item = 128; item <= 0x4000; item <<= 1)
            QTest::addRow("spectrum %x", item) << item << 300 << 1 << 12.0 * 3 * (20 + 4 * (2 + 50) * 4);
        QTest::newRow("a spectrum of one phase") << 128u << 300 << 6 << 12.0 * 3 * (20 + (2 + 50) * 4);
        QTest::newRow("items add up") << 3u << 1 << 1 << (360.0 + 3600.0) * 72;
    }
    void anHourOfARecordingIsCountedBlockByBlock()
    {
        QFETCH(uint, items);
        QFETCH(int, interval);
        QFETCH(int, joinMode);
        QFETCH(double, bytes);
        const double counted = recordBytesPerHour(items, interval, *channelSet(joinMode));
        QVERIFY2(std::abs(counted - bytes) < 1e-6 * bytes, qPrintable(QString::number(counted)));
    }

    void theRoomAllowsSoManyHoursAsTheItemsNeed()
    {
        // 324000 bytes an hour; 5 MB stay free
        const ChannelSet &wiring = *channelSet(1);
        QCOMPARE(RecordInfo::hoursInRoom(50, 4, 10, wiring), 145);
        QCOMPARE(RecordInfo::hoursInRoom(1024, 4, 10, wiring), int(1019.0 * 1024 * 1024 / 324000));
        QCOMPARE(RecordInfo::hoursInRoom(1024, 4, 30, wiring), 3 * 3297 + 2);
        QCOMPARE(RecordInfo::hoursInRoom(49.9, 4, 10, wiring), 0); // no file can be begun
        QCOMPARE(RecordInfo::hoursInRoom(1e9, 1, 300, wiring), 24000);
    }

    void aRecordingThatHasBegunGoesOnBelowTheRoomThatOneBeginsWith()
    {
        const ChannelSet &wiring = *channelSet(1); // 324000 bytes an hour; nothing is stored below 5 MB
        QCOMPARE(RecordInfo::hoursLeft(49.9, 4, 10, wiring), 145);
        QCOMPARE(RecordInfo::hoursLeft(6, 4, 10, wiring), 3);
        QCOMPARE(RecordInfo::hoursLeft(5, 4, 10, wiring), 0);
        QCOMPARE(RecordInfo::hoursLeft(0, 4, 10, wiring), 0);
        QCOMPARE(RecordInfo::hoursLeft(1e9, 1, 300, wiring), 24000);
    }

    void theDurationIsLoweredToWhatTheRoomAllows()
    {
        RecordInfo::m_recordItems = 0xFFFF;
        RecordInfo::m_interval_index = 0;
        const auto isRoomNow = [&] {
            RecordInfo::m_duration = 1 << 30;
            RecordInfo::checkMaxDuration(*channelSet(1));
            return RecordInfo::m_storage_room == int(MassStorage::storageFreeSize("/mnt/storage/"));
        };
        QTRY_VERIFY_WITH_TIMEOUT(isRoomNow(), 30000); // others on this machine use its disk meanwhile
        QVERIFY(std::abs(RecordInfo::m_max_duration
                         - RecordInfo::hoursInRoom(RecordInfo::m_storage_room, 0xFFFF, 1, *channelSet(1)))
                <= 1);
        QCOMPARE(RecordInfo::m_duration, std::max(RecordInfo::m_max_duration, 1));
        RecordInfo::m_interval_index = 3;
        RecordInfo::m_duration = 2;
    }

    void theLoggerStartsWithItsDefaults()
    {
        QCOMPARE(LoggerInfo::m_in_logging, 0);
        QCOMPARE(*LoggerInfo::m_logger_file, QString());
        QCOMPARE(LoggerInfo::m_interval_index, 0);
        const int seconds[] = { 1, 2, 5, 10, 30, 60, 120, 300, 600, 900, 1800, 3600 };
        for (int i = 0; i < 12; ++i)
            QCOMPARE(LoggerInfo::m_logger_interval[i], seconds[i]);
    }

    void theLoggersGroupsAreKept()
    {
        LoggerInfo::m_paramselected = 0x1FFFFFFF;
        LoggerInfo::writeSelectedParam();
        LoggerInfo::m_paramselected = 0;
        LoggerInfo::readSelectedParam();
        QCOMPARE(LoggerInfo::m_paramselected, 0x1FFFFFFFu);
    }

    void theLoggersColumnsAreCounted_data()
    {
        QTest::addColumn<uint>("bits");
        QTest::addColumn<double>("frequency");
        QTest::addColumn<int>("count");
        QTest::newRow("none") << 0u << 50.0 << 0;
        for (int bit : { 0, 1, 2, 5, 6, 7, 8, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21 })
            QTest::addRow("bit %d", bit) << (1u << bit) << 50.0 << 1;
        for (int bit : { 3, 4, 9, 10 })
            QTest::addRow("bit %d", bit) << (1u << bit) << 50.0 << 1;
        QTest::newRow("the four sequence bits count once") << 0x618u << 50.0 << 1;
        for (int bit : { 22, 23, 24, 25, 26, 27 }) {
            QTest::addRow("bit %d", bit) << (1u << bit) << 60.0 << 100;
            QTest::addRow("bit %d at 400 Hz", bit) << (1u << bit) << 400.0 << 13;
        }
        QTest::newRow("flicker") << (1u << 28) << 50.0 << 3;
        QTest::newRow("bits beyond") << 0xE0000000u << 50.0 << 0;
        QTest::newRow("all") << 0xFFFFFFFFu << 50.0 << 18 + 1 + 600 + 3;
    }
    void theLoggersColumnsAreCounted()
    {
        QFETCH(uint, bits);
        QFETCH(double, frequency);
        QTEST(LoggerInfo::countParamNumb(bits, frequency), "count");
    }

    void theLoggersLongestDurationFollowsTheRoom_data()
    {
        QTest::addColumn<float>("room");
        QTest::addColumn<int>("columns");
        QTest::addColumn<int>("seconds");
        QTest::addColumn<int>("hours");
        QTest::newRow("100, 8 columns, 1 s") << 100.0f << 8 << 1 << 50; // 200 / 8 x 2
        QTest::newRow("cut off") << 10.0f << 7 << 1 << 5; // 5.71
        QTest::newRow("no column") << 10.0f << 0 << 1 << 40;
        QTest::newRow("no room") << 0.0f << 8 << 1 << 0;
        QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN() << 8 << 1 << 0;
        QTest::newRow("a room beyond all bounds") << 1e30f << 1 << 3600 << std::numeric_limits<int>::max();
    }
    void theLoggersLongestDurationFollowsTheRoom()
    {
        QFETCH(float, room);
        QFETCH(int, columns);
        QFETCH(int, seconds);
        QTEST(LoggerInfo::maxDuration(room, columns, seconds), "hours");
    }

    void theLoggersDurationIsLoweredToTheRoom()
    {
        LoggerInfo::m_param_numb = 622;
        LoggerInfo::m_interval_index = 99; // held to the table
        LoggerInfo::m_duration = std::numeric_limits<int>::max();
        LoggerInfo::checkMaxDuration();
        QVERIFY(LoggerInfo::m_storage_room > 0);
        QCOMPARE(LoggerInfo::m_max_duration, LoggerInfo::maxDuration(LoggerInfo::m_storage_room, 622, 3600));
        QCOMPARE(LoggerInfo::m_duration, LoggerInfo::m_max_duration);
        LoggerInfo::m_interval_index = 0;
    }

    void theOrdersFollowTheNominalFrequency()
    {
        const int logger[] = { 100, 100, 13 };
        const int others[] = { 100, 100, 12 };
        for (int select = 1; select <= 3; ++select) {
            m_settingConfig_g.setNomFreq(select);
            const double hertz = m_settingConfig_g.getNomFreq();
            LoggerInfo::initHarmMaxNumb(hertz);
            RecordInfo::initHarmMaxNumb(hertz);
            HarmData::initHarmMaxNumb(hertz);
            QCOMPARE(LoggerInfo::m_harm_max_numb, logger[select - 1]);
            QCOMPARE(RecordInfo::m_harm_max_numb, others[select - 1]);
            QCOMPARE(HarmData::m_harm_max_numb, others[select - 1]);
            QCOMPARE(HarmData::m_bewith_inharm, select < 3);
        }
        HarmData::initHarmMaxNumb(70.0); // another frequency leaves it
        QCOMPARE(HarmData::m_harm_max_numb, 12);
        HarmData::initHarmMaxNumb(59.1);
        QCOMPARE(HarmData::m_harm_max_numb, 100);
        HarmData::initHarmMaxNumb(399.0); // 1.0 away is no longer within
        QCOMPARE(HarmData::m_harm_max_numb, 100);
        HarmData::initHarmMaxNumb(std::numeric_limits<double>::quiet_NaN());
        QCOMPARE(HarmData::m_harm_max_numb, 100);
    }

    void theWaveCapturesPointsFollowRateAndDuration()
    {
        QCOMPARE(WaveInfo::m_min_duration, 10);
        QCOMPARE(WaveInfo::m_max_duration, 600);
        const int rates[] = { 20480, 10240, 5120 };
        const int steps[] = { 1, 2, 4 };
        WaveInfo::m_duration = 30;
        for (int i = 0; i < 3; ++i) {
            WaveInfo::m_sample_index = i;
            WaveInfo::initPointsNumbs(50.0);
            QCOMPARE(WaveInfo::m_sample_times[i], rates[i]);
            QCOMPARE(WaveInfo::m_step, steps[i]);
            QCOMPARE(WaveInfo::m_points_numb, 30 * rates[i]);
        }
        for (const double other : { 60.0, 400.0 }) {
            WaveInfo::m_points_numb = 0;
            WaveInfo::initPointsNumbs(other);
            QCOMPARE(WaveInfo::m_points_numb, 30 * 5120);
        }
        WaveInfo::m_duration = 20;
        WaveInfo::initPointsNumbs(55.0); // no nominal frequency: the number stays
        QCOMPARE(WaveInfo::m_points_numb, 30 * 5120);
        WaveInfo::m_sample_index = -3;
        WaveInfo::initPointsNumbs(50.0);
        QCOMPARE(WaveInfo::m_step, 1);
        WaveInfo::m_sample_index = 0;
        WaveInfo::m_duration = 10;
    }

    void theWaveCapturesLongestDurationFollowsTheRoom_data()
    {
        // A second takes 16 bytes for each sample and 20 for its five chunks; 5 MB stay free.
        QTest::addColumn<int>("room"); // MB
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("seconds");
        QTest::newRow("no card") << 0 << 20480 << 0;
        QTest::newRow("what stays free") << 5 << 20480 << 0;
        QTest::newRow("9.6 s are too short") << 8 << 20480 << 0;
        QTest::newRow("4194304 bytes at 327700") << 9 << 20480 << 12;
        QTest::newRow("99614720 bytes at 327700") << 100 << 20480 << 303;
        QTest::newRow("1048576 bytes at 81940") << 6 << 5120 << 12;
        QTest::newRow("ten minutes are the longest") << 1000 << 20480 << 600;
        QTest::newRow("a large card") << 2000000000 << 5120 << 600;
    }

    void theWaveCapturesLongestDurationFollowsTheRoom()
    {
        QFETCH(int, room);
        QFETCH(int, rate);
        QTEST(WaveInfo::maxDuration(room, rate), "seconds");
    }

    void theWaveCapturesDurationIsHeldToItsBounds()
    {
        for (const int wanted : { 3, 10, 60, 600, 900 }) {
            WaveInfo::m_duration = wanted;
            WaveInfo::checkMaxDuration();
            QVERIFY2(WaveInfo::m_storage_room > 200, "this test needs room for ten minutes");
            QCOMPARE(WaveInfo::m_max_duration, 600);
            QCOMPARE(WaveInfo::m_duration, qBound(10, wanted, 600));
        }
        WaveInfo::m_duration = 10;
    }

    void theDipTrendFollowsTheNominalFrequency_data()
    {
        QTest::addColumn<double>("frequency");
        QTest::addColumn<int>("rate");
        QTest::addColumn<QVector<int>>("rows"); // seconds, values per pixel
        QTest::newRow("50") << 50.0 << 100 << QVector<int> { 60, 10, 48, 8, 24, 4, 12, 2 };
        QTest::newRow("60") << 60.0 << 120 << QVector<int> { 60, 12, 40, 8, 20, 4, 10, 2 };
        QTest::newRow("400") << 400.0 << 100 << QVector<int> { 60, 12, 48, 8, 24, 4, 12, 2 };
        QTest::newRow("another leaves those of 400") << 16.7 << 100 << QVector<int> { 60, 12, 48, 8, 24, 4, 12, 2 };
    }
    void theDipTrendFollowsTheNominalFrequency()
    {
        QFETCH(double, frequency);
        QFETCH(QVector<int>, rows);
        DipSwellInfo::initInfoTimes(frequency);
        QTEST(DipSwellInfo::m_rms_numb_per_sec, "rate");
        for (int i = 0; i < 4; ++i) {
            QCOMPARE(DipSwellInfo::m_zoom_time[i].seconds, rows.at(2 * i));
            QCOMPARE(DipSwellInfo::m_zoom_time[i].valuesPerPixel, rows.at(2 * i + 1));
        }
        QCOMPARE(DipSwellInfo::m_zoom_index, 0);
    }

    void theInrushDurationsAt50Hz()
    {
        const int rows[][2] = { { 6, 1 }, { 60, 1 }, { 120, 2 }, { 240, 2 }, { 480, 5 }, { 960, 10 }, { 1920, 10 } };
        QVERIFY(InrushInfo::m_dura_time == InrushInfo::m_dura_time_50);
        for (int i = 0; i < 7; ++i) {
            QCOMPARE(InrushInfo::m_dura_time[i].seconds, rows[i][0]);
            QCOMPARE(InrushInfo::m_dura_time[i].step, rows[i][1]);
        }
        InrushInfo::changeInfoCuzFreq(60.0);
        QVERIFY(InrushInfo::m_dura_time == InrushInfo::m_dura_time_60
                && InrushInfo::m_zoom_time == InrushInfo::m_zoom_time_60);
        QCOMPARE(InrushInfo::m_rms_numb_per_sec, 120);
        InrushInfo::changeInfoCuzFreq(400.0);
        QVERIFY(InrushInfo::m_dura_time == InrushInfo::m_dura_time_400
                && InrushInfo::m_zoom_time == InrushInfo::m_zoom_time_400);
        InrushInfo::changeInfoCuzFreq(55.0); // no nominal frequency: the tables stay
        QVERIFY(InrushInfo::m_dura_time == InrushInfo::m_dura_time_400
                && InrushInfo::m_zoom_time == InrushInfo::m_zoom_time_400);
    }

    void theInrushLevelsFollowTheClamp_data()
    {
        QTest::addColumn<int>("range");
        QTest::addColumn<int>("ratio"); // of the current transformer
        QTest::addColumn<QString>("unit");
        QTest::addColumn<double>("shownRange");
        QTest::addColumn<double>("step");
        QTest::addColumn<int>("decimals");
        QTest::newRow("5 A") << 5 << 1 << "A" << 5.0 << 0.001 << 3;
        QTest::newRow("6 A") << 6 << 1 << "A" << 6.0 << 0.01 << 2;
        QTest::newRow("20 A") << 20 << 1 << "A" << 20.0 << 0.01 << 2;
        QTest::newRow("21 A") << 21 << 1 << "A" << 21.0 << 0.1 << 1;
        QTest::newRow("99 A") << 99 << 1 << "A" << 99.0 << 0.1 << 1;
        QTest::newRow("100 A") << 100 << 1 << "A" << 100.0 << 1.0 << 0;
        QTest::newRow("1000 A") << 1000 << 1 << "A" << 1000.0 << 10.0 << 0;
        QTest::newRow("5 A x 100") << 5 << 100 << "A" << 500.0 << 0.1 << 1;
        QTest::newRow("1000 A x 10: kA") << 1000 << 10 << "kA" << 10.0 << 0.1 << 1;
        QTest::newRow("9999 A") << 9999 << 1 << "A" << 9999.0 << 10.0 << 0;
        QTest::newRow("nothing: mA") << 0 << 1 << "mA" << 0.0 << 1.0 << 0;
    }
    void theInrushLevelsFollowTheClamp()
    {
        QFETCH(int, range);
        QFETCH(int, ratio);
        SettingConfig &settings = m_settingConfig_g;
        settings.clamps()->addClamp(new Clamp("c", range, 1000, false, true, ""));
        settings.clamps()->setCurClamp("c");
        settings.setRatioIFenzi(ratio);
        settings.initInrushLevels();
        const InrushEditing &shown = settings.derived().inrush;
        QTEST(shown.unit, "unit");
        QTEST(shown.range, "shownRange");
        QTEST(shown.step, "step");
        QTEST(shown.decimals, "decimals");
        QCOMPARE(settings.getInrushNomAmps(), range * 0.25);
        QCOMPARE(settings.getInrushThreshold(), 200);
        QCOMPARE(settings.getInrushHysteresis(), 2);
    }

    void theInrushTablesAndLevelsFollowTheSetUp()
    {
        m_settingConfig_g.setNomFreq(2);
        QVERIFY(InrushInfo::m_dura_time == InrushInfo::m_dura_time_60);
        m_settingConfig_g.clamps()->setCurClamp("TARN-45"); // 1000 A
        m_settingConfig_g.saveClampConfig();
        QCOMPARE(m_settingConfig_g.getInrushNomAmps(), 250.0);
        QCOMPARE(Config::readConfigFile(SettingConfig::filePath(), "INRUSH_NOMAMPS"), QString("250"));
    }

    void theInrushLevelsAreStoredOnlyWhenTheyChange()
    {
        QFile::remove(Target::path("/var/log/commands"));
        m_settingConfig_g.initInrushLevels();
        QCOMPARE(RootFiles::commands(), QByteArray());
        m_settingConfig_g.setInrushThreshold(150);
        m_settingConfig_g.initInrushLevels();
        QCOMPARE(Config::readConfigFile(SettingConfig::filePath(), "INRUSH_THRESHOLD"), QString("200"));
    }

    void theTransientThresholdIsStoredAndLoaded()
    {
        QCOMPARE(m_settingConfig_g.getTransThreshold(), 50);
        m_settingConfig_g.setTransThreshold(120);
        QCOMPARE(Config::readConfigFile(SettingConfig::filePath(), "TRANS_THRESHOLD"), QString("120"));
        Config::writeConfigFile(SettingConfig::filePath(), "TRANS_THRESHOLD", "75");
        m_settingConfig_g.loadSettingConfig();
        QCOMPARE(m_settingConfig_g.getTransThreshold(), 75);
        m_settingConfig_g.setTransThreshold(50);
    }

    void aTransientHolds600SamplesOfFourChannels()
    {
        QCOMPARE(TransParam::kMaxEvents, 1000);
        QCOMPARE(sizeof(__trans_data::samples), size_t(4800));
    }
};

QTEST_GUILESS_MAIN(TstInfos)
#include "tst_infos.moc"
