#include "settings/calibfile.h"
#include "settings/config_data.h"
#include "settings/limitsmanager.h"
#include "settings/loggerinfo.h"
#include "settings/netconfig.h"
#include "settings/recordinfo.h"
#include "settings/settingconfig.h"
#include "settings/translationfile.h"
#include "settings/userconfig.h"
#include "storage/fileinfo.h"
#include "unit/filestandin.h"

#include <QApplication>
#include <QDateTime>

/// Something else in the place of every file that is read: nobody waits for it, and the defaults stand in for it.
class TstNoFiles : public QObject
{
    Q_OBJECT

private slots:
    void everyReaderTakesItForMissing_data() { addFileStandIns(); }
    void everyReaderTakesItForMissing()
    {
        QFETCH(FileStandIn, kind);
        for (const QString &path : paths())
            QVERIFY2(putStandIn(path, kind), qPrintable(path));
        ::alarm(20); // whoever waits for the other end of a pipe, or reads to the end of a device, never returns
        SettingConfig settings;
        QCOMPARE(settings.getJoinMode(), 1);
        QVERIFY(settings.curClamp()); // one of the built-in ones
        QCOMPARE(UserConfig().getLang(), 1);
        QCOMPARE(NetConfig().getIPAddr(), QStringLiteral("192.168.2.100"));
        QCOMPARE(LimitsManager().activeLimitsName(), QStringLiteral("EN50160"));
        QCOMPARE(CalibFile().data().volt[0][0], factoryGain());
        LoggerInfo::readSelectedParam();
        RecordInfo::readSelectedParam();
        QVERIFY(FileInfo().readInfo().isEmpty());
        QVERIFY(!FileInfo().saveInfo(QStringLiteral("Scope1.png"), QDateTime()));
        QVERIFY(TranslationFile::read(paths().last()).isEmpty());
        settings.setJoinMode(3);
        QCOMPARE(settings.getJoinMode(), 3);
        ::alarm(0);
    }

    void aLanguageIsTakenWithoutAScreenToo()
    {
        QVERIFY(!qobject_cast<QApplication *>(QCoreApplication::instance()));
        QFile file(Target::path(paths().last()));
        QVERIFY(QDir().mkpath(QFileInfo(file).path()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QVERIFY(languageTranslator.initLangTranslation(UserConfig::GE)); // and no font is asked for
    }

    void cleanup()
    {
        for (const QString &path : paths())
            removeStandIn(path);
    }

private:
    static float factoryGain()
    {
        CalibFile file;
        file.initCalibData();
        return file.data().volt[0][0];
    }

    static QStringList paths()
    {
        return { SettingConfig::filePath(),
                 QStringLiteral("/mnt/userfs/config/user.conf"),
                 QStringLiteral("/mnt/userfs/config/logger.conf"),
                 QStringLiteral("/mnt/userfs/config/record.conf"),
                 QStringLiteral("/mnt/userfs/sys/sn"),
                 QStringLiteral("/mnt/userfs/sys/clamps.xcl"),
                 QStringLiteral("/mnt/userfs/sys/clampsN.xcl"),
                 QStringLiteral("/mnt/userfs/sys/limits/plant.xml"),
                 QStringLiteral("/mnt/calibration/calibration.dat"),
                 NetConfig::filePath(),
                 LimitsManager::confPath(),
                 FileInfo::indexPath(),
                 QStringLiteral("/mnt/userfs/language/lang_ge.qm") };
    }
};

QTEST_GUILESS_MAIN(TstNoFiles)
#include "tst_nofiles.moc"
