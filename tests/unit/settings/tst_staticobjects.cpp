#include <QTest>

#include <QProcess>
#include <QTemporaryDir>

#include "settings/config_data.h"
#include "settings/inrushinfo.h"
#include "settings/phasecolor.h"
#include "unit/storage/rootfiles.h"

#include <cstdio>

/// The objects that are built before main: from prepared files, without an application object, in their order.
class TstStaticObjects : public QObject
{
    Q_OBJECT

private slots:
    void theyReadThePreparedFilesBeforeMain()
    {
        QTemporaryDir root;
        write(root, "/mnt/userfs/sys/setting.conf", "JOINMODE=4\nNOM_VOLT_LINE_SELECT=6\nNOM_FREQ=2\n");
        write(root, "/mnt/userfs/config/user.conf", "LANG=RU\nPHASECOLOR=20134\n");
        write(root, "/mnt/userfs/sys/limits.xml", "<LimitsConfig><Active>GOST32144</Active></LimitsConfig>");
        const float gain = 100.0f;
        const QByteArray gains = QByteArray(reinterpret_cast<const char *>(&gain), sizeof(gain)).repeated(32);
        const QByteArray calibration = QByteArray(128, '\0') + gains + QByteArray(24, '\0');
        write(root, "/mnt/calibration/calibration.dat", calibration);
        // 480 V line to line: voltage row 2 of 100; the scale table holds the prepared gain.
        QCOMPARE(shownBy(root),
                 QByteArray("application=0\nmode=4\nvolt=480\nfreq=60\nindex=2\nscale=100\nlang=12\ncolours=20134\n"
                            "limits=GOST32144\nunit=A\nrate=120\n"));
    }

    void theyStartFromAnEmptyRoot()
    {
        QTemporaryDir root;
        QCOMPARE(shownBy(root),
                 QByteArray("application=0\nmode=1\nvolt=230\nfreq=50\nindex=1\nscale=79.25\nlang=1\ncolours=01231\n"
                            "limits=EN50160\nunit=A\nrate=100\n"));
        QVERIFY(QFileInfo::exists(root.path() + "/mnt/calibration/calibration.dat"));
        QVERIFY(QFileInfo::exists(root.path() + "/mnt/userfs/sys/limits"));
    }

    void theyStartFromGarbage()
    {
        QTemporaryDir root;
        for (const char *file :
             { "/mnt/userfs/sys/setting.conf", "/mnt/userfs/config/user.conf", "/mnt/userfs/config/quvera_type.conf",
               "/mnt/userfs/sys/sn", "/mnt/userfs/sys/clamps.xcl", "/mnt/userfs/sys/clampsN.xcl",
               "/mnt/userfs/sys/limits.xml", "/mnt/userfs/sys/limits/a.xml" })
            write(root, file, QByteArray::fromHex("00ff3c3f786d6c0a3d4a4f494e4d4f44453d").repeated(500));
        QVERIFY(shownBy(root).startsWith("application=0\nmode=1\nvolt=230\n"));
    }

private:
    static void write(const QTemporaryDir &root, const char *boardPath, const QByteArray &content)
    {
        const QString path = root.path() + boardPath;
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(path));
    }

    /// A process of its own, since its objects are built before anything of it can run.
    static QByteArray shownBy(const QTemporaryDir &root)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QUVERA_ROOT", root.path());
        environment.insert("TST_STATIC_SHOW", "1");
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), QStringList());
        process.waitForFinished(60000);
        return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0
            ? process.readAllStandardOutput()
            : "failed: " + process.readAllStandardError();
    }
};

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet("TST_STATIC_SHOW")) {
        printf("application=%d\nmode=%d\nvolt=%d\nfreq=%g\nindex=%d\nscale=%g\nlang=%d\ncolours=%s\nlimits=%"
               "s\nunit=%s\nrate=%d\n",
               QCoreApplication::instance() != nullptr, m_settingConfig_g.getJoinMode(), m_settingConfig_g.getNomVolt(),
               m_settingConfig_g.getNomFreq(), m_settingConfig_g.getVoltIndex(), double(m_settingConfig_g.wvi()[4]),
               m_userConfig_g.getLang(), qPrintable(PhaseColor::digits()), qPrintable(m_limits_g.activeLimitsName()),
               qPrintable(m_settingConfig_g.derived().inrush.unit), InrushInfo::m_rms_numb_per_sec);
        return 0;
    }
    QCoreApplication application(argc, argv);
    TstStaticObjects test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_staticobjects.moc"
