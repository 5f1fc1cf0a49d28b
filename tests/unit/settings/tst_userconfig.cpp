#include <QTest>

#include "settings/config.h"
#include "settings/phasecolor.h"
#include "settings/userconfig.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/rootfiles.h"

namespace {
const QString kUser = QStringLiteral("/mnt/userfs/config/user.conf");
const QString kType = QStringLiteral("/mnt/userfs/config/quvera_type.conf");
const QString kSerial = QStringLiteral("/mnt/userfs/sys/sn");
}

/// Name, language, back-light time-out, phase colours, time zone, model and serial number.
class TstUserConfig : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }

    void aFreshInstrumentHasTheDefaults_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("no file") << QByteArray("none");
        QTest::newRow("empty values") << QByteArray("USER_NAME=\nLANG=\nSLEEP=\nPHASECOLOR=\nTZ=\nTYPE=\nSN=\n");
        QTest::newRow("empty file") << QByteArray();
    }
    void aFreshInstrumentHasTheDefaults()
    {
        QFETCH(QByteArray, file);
        if (file != "none") {
            for (const QString &path : { kUser, kType, kSerial })
                RootFiles::write(path, file);
        }
        const UserConfig config;
        QCOMPARE(config.getUserName(), QString("root"));
        QCOMPARE(config.getLang(), int(UserConfig::EN));
        QCOMPARE(config.getLanguage(), QString("English"));
        QCOMPARE(config.getSleep(), QString("OFF"));
        QCOMPARE(config.sleepDelay(), 0);
        QCOMPARE(config.getPhaseColors(), QString("01231"));
        QCOMPARE(config.getTimeZone(), QString("UTC"));
        QCOMPARE(config.getInstrumentModel(), 2);
        QCOMPARE(config.getInstrumentModelName(), QString("QUVERA"));
        QCOMPARE(config.getInstrumentSN(), QString("1AA000000"));
    }

    void filesThatAreNoneOfOursGiveTheDefaults_data()
    {
        QTest::addColumn<QByteArray>("file");
        const QByteArray keys = "USER_NAME=a\nLANG=ZH\nSLEEP=5\nPHASECOLOR=55555\nTZ=Asia/Tokyo\nTYPE=QUVERAE\nSN=1\n";
        QTest::newRow("binary") << QByteArray::fromHex("ff00fe0180c0dead3d0a0a3d3d3d").repeated(1000);
        QTest::newRow("a zero byte in front") << '\0' + keys;
        QTest::newRow("huge") << keys.repeated(30000);
        QTest::newRow("a folder") << QByteArray("folder");
    }
    void filesThatAreNoneOfOursGiveTheDefaults()
    {
        QFETCH(QByteArray, file);
        for (const QString &path : { kUser, kType, kSerial }) {
            if (file == "folder")
                QVERIFY(QDir().mkpath(Target::path(path)));
            else
                RootFiles::write(path, file);
        }
        const UserConfig config;
        QCOMPARE(config.getUserName(), QString("root"));
        QCOMPARE(config.getLang(), int(UserConfig::EN));
        QCOMPARE(config.sleepDelay(), 0);
        QCOMPARE(config.getPhaseColors(), QString("01231"));
        QCOMPARE(config.getTimeZone(), QString("UTC"));
        QCOMPARE(config.getInstrumentModel(), 2);
        QCOMPARE(config.getInstrumentSN(), QString("1AA000000"));
    }

    void theFoldersOfTheInstrumentAreMade()
    {
        QDir(Target::path("/mnt/userfs")).removeRecursively();
        QDir(Target::path("/mnt/storage")).removeRecursively();
        QDir(Target::path("/tmp/screenshots")).removeRecursively();
        const UserConfig config;
        for (const char *folder : { "/mnt/userfs/config", "/mnt/userfs/skin", "/mnt/userfs/language", "/mnt/storage",
                                    "/tmp/screenshots", "/mnt/userfs/sys" })
            QVERIFY2(RootFiles::exists(folder), folder);
    }

    void everyLanguage_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("name");
        const char *const rows[][2]
            = { { "EN", "English" },    { "ZH", "Chinese" }, { "PO", "Polski" },     { "PT_ZOLC", "Portuguese" },
                { "KO", "Korean" },     { "TU", "Turkish" }, { "FR", "French" },     { "SP", "Spanish" },
                { "PT", "Portuguese" }, { "GE", "German" },  { "SP_LA", "Spanish" }, { "RU", "Russian" },
                { "JP", "Japanese" },   { "IT", "Italian" } };
        for (int i = 0; i < 14; ++i)
            QTest::newRow(rows[i][0]) << i + 1 << rows[i][0] << rows[i][1];
    }
    void everyLanguage()
    {
        QFETCH(int, number);
        QFETCH(QString, key);
        QFETCH(QString, name);
        UserConfig config;
        config.setLanguage(number);
        QCOMPARE(Config::readConfigFile(kUser, "LANG"), key);
        QCOMPARE(config.getLang(), 1); // the caller steps it
        const UserConfig next;
        QCOMPARE(next.getLang(), number);
        QCOMPARE(next.getLanguage(), name);
    }

    void anUnknownLanguageIsEnglish_data()
    {
        QTest::addColumn<QByteArray>("word");
        for (const char *word : { "XX", "en", "EN ", "2", "PT_", "ZHH" })
            QTest::newRow(word) << QByteArray(word);
    }
    void anUnknownLanguageIsEnglish()
    {
        QFETCH(QByteArray, word);
        RootFiles::write(kUser, "LANG=" + word + "\n");
        QCOMPARE(UserConfig().getLang(), int(UserConfig::EN));
    }

    void aNumberOutsideTheLanguagesStoresEnglish()
    {
        UserConfig config;
        for (int number : { 0, 15, -1 }) {
            config.setLanguage(number);
            QCOMPARE(Config::readConfigFile(kUser, "LANG"), QString("EN"));
            QCOMPARE(UserConfig::getLanguage(number), QString());
        }
    }

    void steppingTheLanguageStopsAtTheEndsAndStoresNothing()
    {
        UserConfig config;
        config.changeLangPrev();
        QCOMPARE(config.getLang(), 1);
        for (int i = 2; i <= 14; ++i) {
            config.changeLangNext();
            QCOMPARE(config.getLang(), i);
        }
        config.changeLangNext();
        QCOMPARE(config.getLang(), 14);
        config.changeLangPrev();
        QCOMPARE(config.getLang(), 13);
        QVERIFY(!RootFiles::exists(kUser));
    }

    void everySleepTime_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("seconds");
        QTest::newRow("off") << 1 << "OFF"
                             << "OFF" << 0;
        QTest::newRow("5") << 2 << "5"
                           << "5 s" << 5;
        QTest::newRow("15") << 3 << "15"
                            << "15 s" << 15;
        QTest::newRow("30") << 4 << "30"
                            << "30 s" << 30;
        QTest::newRow("60") << 5 << "60"
                            << "60 s" << 60;
    }
    void everySleepTime()
    {
        QFETCH(int, number);
        QFETCH(QString, key);
        QFETCH(QString, text);
        QFETCH(int, seconds);
        UserConfig config;
        config.setSleep(number);
        QCOMPARE(Config::readConfigFile(kUser, "SLEEP"), key);
        for (const UserConfig &each : { config, UserConfig() }) {
            QCOMPARE(each.getSleepNumber(), number);
            QCOMPARE(each.getSleep(), text);
            QCOMPARE(each.sleepDelay(), seconds);
        }
    }

    void anUnknownSleepWordIsOff_data()
    {
        QTest::addColumn<QByteArray>("word");
        for (const char *word : { "4", "5 s", "off", "61", "-5" })
            QTest::newRow(word) << QByteArray(word);
    }
    void anUnknownSleepWordIsOff()
    {
        QFETCH(QByteArray, word);
        RootFiles::write(kUser, "SLEEP=" + word + "\n");
        QCOMPARE(UserConfig().sleepDelay(), 0);
    }

    void steppingTheSleepTimeStopsAtTheEnds()
    {
        UserConfig config;
        config.changeSleepPrev();
        QCOMPARE(config.getSleepNumber(), 1);
        for (int i = 0; i < 9; ++i)
            config.changeSleepNext();
        QCOMPARE(config.getSleepNumber(), 5);
        QCOMPARE(UserConfig().sleepDelay(), 60);
        config.changeSleepPrev();
        QCOMPARE(config.getSleepNumber(), 4);
    }

    void numbersOutsideTheSleepTimesAreOff()
    {
        UserConfig config;
        for (int number : { 0, 6, -1 }) {
            config.setSleep(number);
            QCOMPARE(config.getSleep(), QString("OFF"));
        }
    }

    void textsAreStoredAndReadBack()
    {
        UserConfig config;
        config.setUserName("plant 7");
        config.setTimeZone("Europe/Warsaw");
        config.setInstrumentSN("2BB123456");
        config.setPhaseColors("54321");
        QCOMPARE(RootFiles::read(kSerial), QByteArray("\nSN=2BB123456"));
        const UserConfig next;
        QCOMPARE(next.getUserName(), QString("plant 7"));
        QCOMPARE(next.getTimeZone(), QString("Europe/Warsaw"));
        QCOMPARE(next.getInstrumentSN(), QString("2BB123456"));
        QCOMPARE(next.getPhaseColors(), QString("54321"));
    }

    void aUserNamedLangleyIsTakenForTheLanguage()
    {
        RootFiles::write(kUser, "LANG=ZH\nUSER_NAME=LANGLEY\n");
        QCOMPARE(UserConfig().getLang(), int(UserConfig::EN)); // "LANGLEY" is no language
        RootFiles::write(kUser, "USER_NAME=LANGLEY\nLANG=ZH\n");
        QCOMPARE(UserConfig().getLang(), int(UserConfig::ZH));
    }

    void lettersOutsideLatin1AreStoredReplaced()
    {
        UserConfig config;
        config.setUserName(QString::fromUtf8("工厂 A"));
        QCOMPARE(config.getUserName(), QString::fromUtf8("工厂 A")); // until the next start
        QCOMPARE(UserConfig().getUserName(), QString("?? A"));
    }

    void theModelComesFromItsWord_data()
    {
        QTest::addColumn<QByteArray>("word");
        QTest::addColumn<int>("model");
        QTest::addColumn<QString>("name");
        QTest::newRow("QUVERAE") << QByteArray("QUVERAE") << 1 << "QUVERAE";
        QTest::newRow("QUVERA") << QByteArray("QUVERA") << 2 << "QUVERA";
        QTest::newRow("other") << QByteArray("quverae") << 2 << "QUVERA";
        QTest::newRow("more behind the word") << QByteArray("QUVERAE2") << 2 << "QUVERA";
    }
    void theModelComesFromItsWord()
    {
        QFETCH(QByteArray, word);
        RootFiles::write(kType, "TYPE=" + word + "\n");
        const UserConfig config;
        QTEST(config.getInstrumentModel(), "model");
        QTEST(config.getInstrumentModelName(), "name");
    }

    void settingTheModelWritesItsLabel_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("written");
        QTest::newRow("1") << 1 << "QUVERAE";
        QTest::newRow("2") << 2 << "QUVERA";
        QTest::newRow("0") << 0 << "QUVERA";
        QTest::newRow("-1") << -1 << "QUVERA";
        QTest::newRow("3 is ignored") << 3 << "";
    }
    void settingTheModelWritesItsLabel()
    {
        QFETCH(int, number);
        QFETCH(QString, written);
        UserConfig config;
        config.setInstrumentModel(number);
        QCOMPARE(Config::readConfigFile(kType, "TYPE"), written);
        QCOMPARE(config.getInstrumentModel(), written.isEmpty() ? 2 : number);
    }

    void aModelSetByNameStoresTheOtherLabel()
    {
        UserConfig config;
        config.setInstrumentModelByName("QUVERAE"); // place 0
        QCOMPARE(Config::readConfigFile(kType, "TYPE"), QString("QUVERA"));
        config.setInstrumentModelByName("QUVERA"); // place 1
        QCOMPARE(Config::readConfigFile(kType, "TYPE"), QString("QUVERAE"));
        config.setInstrumentModelByName("nothing"); // -1
        QCOMPARE(Config::readConfigFile(kType, "TYPE"), QString("QUVERA"));
        QCOMPARE(config.getInstrumentModelName(), QString("QUVERA"));
    }

    void thePhaseColoursFollowTheSettings()
    {
        RootFiles::write(kUser, "PHASECOLOR=20134\n");
        UserConfig config;
        QCOMPARE(PhaseColor::digits(), QString("20134"));
        config.setPhaseColors("123");
        QCOMPARE(PhaseColor::digits(), QString("01231"));
    }

    void aFullDiskKeepsTheOldName()
    {
        UserConfig config;
        config.setUserName("first");
        {
            FileLimit full(0);
            config.setUserName("second");
        }
        QCOMPARE(config.getUserName(), QString("second"));
        QCOMPARE(UserConfig().getUserName(), QString("first"));
    }
};

QTEST_GUILESS_MAIN(TstUserConfig)
#include "tst_userconfig.moc"
