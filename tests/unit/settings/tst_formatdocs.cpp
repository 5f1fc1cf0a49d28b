#include <QTest>

#include "settings/calibfile.h"
#include "settings/clampif.h"
#include "settings/config_data.h"
#include "storage/fileinfo.h"
#include "settings/limitsmanager.h"
#include "platform/clock.h"
#include "unit/storage/rootfiles.h"
#include "unit/documentpage.h"

namespace {

QString page(const char *name)
{
    return DocumentPage(QLatin1String("formats/") + QLatin1String(name)).text();
}

/// The n-th example of a page.
QByteArray example(const char *name, int n = 0)
{
    return page(name).section("```\n", 2 * n + 1, 2 * n + 1).toUtf8();
}

} // namespace

/// The pages of docs/formats say what the code writes, byte for byte.
class TstFormatDocs : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }

    void theClampsExample()
    {
        ClampIF clamps("/mnt/userfs/sys/clamps.xcl");
        clamps.addClamp(new Clamp("Coil 12", 1200, 85, true, true, "Coil 12, flexible, Editable"));
        clamps.setCurClamp("Coil 12");
        QVERIFY(clamps.save("/mnt/userfs/sys/clamps.xcl"));
        QCOMPARE(RootFiles::read("/mnt/userfs/sys/clamps.xcl"), example("clamps.md"));
    }

    void theClampsTable()
    {
        const ClampIF clamps("/mnt/userfs/sys/clamps.xcl");
        for (const Clamp *clamp = clamps.first(); clamp; clamp = clamp->nextNode) {
            const QString row = QStringLiteral("| %1 | %2 | %3 | %4 |\n")
                                    .arg(clamp->name())
                                    .arg(clamp->range())
                                    .arg(clamp->ratio())
                                    .arg(clamp->flexible() ? "yes" : "no");
            QVERIFY2(page("clamps.md").contains(row), qPrintable(row));
        }
    }

    void theLimitSetExample()
    {
        MonitorLimits2 set;
        set.setName("Plant 7");
        set.limit().harmonicCount = 2;
        set.limit().dips.threshold = 85.5f;
        LimitsManager manager;
        manager.add(&set);
        manager.changeActiveLimits("Plant 7");
        QCOMPARE(RootFiles::read("/mnt/userfs/sys/limits/Plant 7.xml"), example("limit-sets.md", 0));
        QCOMPARE(RootFiles::read("/mnt/userfs/sys/limits.xml"), example("limit-sets.md", 1));
    }

    void theWordsOfALimitSet()
    {
        const monitor_limit limit {};
        const auto word = [&](const void *field) {
            return int((static_cast<const char *>(field) - reinterpret_cast<const char *>(&limit)) / 4);
        };
        const struct
        {
            int word;
            const char *text;
        } rows[] = {
            { word(&limit.voltage.nep), "Voltage nep" },
            { word(&limit.voltage.partialUpper), "Voltage partial upper" },
            { word(&limit.harmonicCount), "Harmonic count" },
            { word(&limit.harmonicNep), "Harmonic nep" },
            { word(&limit.harmonicPartial), "Harmonic partial" },
            { word(&limit.harmonicWhole), "Harmonic whole" },
            { word(&limit.plt), "Flicker plt" },
            { word(&limit.pst), "Flicker pst" },
            { word(&limit.dips), "Dips threshold" },
            { word(&limit.swells), "Swells threshold" },
            { word(&limit.interruptions), "Interruptions threshold" },
            { word(&limit.rvc), "RVC threshold" },
            { word(&limit.neg), "Unbalance neg" },
            { word(&limit.zero), "Unbalance zero" },
            { word(&limit.frequency), "Frequency nep" },
            { word(&limit.reserved), "reserved" },
            { word(&limit.frequency1), "MainsSignal frequency1" },
            { word(&limit.frequency2), "MainsSignal frequency2" },
        };
        const QString text = page("limit-sets.md");
        for (const auto &row : rows) {
            const QRegularExpression line(
                QStringLiteral("\\n\\| %1 \\| \\d+ \\| [^|]+ \\| %2").arg(row.word).arg(row.text));
            QVERIFY2(line.match(text).hasMatch(), row.text);
        }
    }

    void theIndexExample()
    {
        const QDate day(2023, 11, 14);
        QVERIFY(FileInfo().saveInfo("Vif_1.png", QDateTime(day, QTime(22, 13, 20))));
        QVERIFY(FileInfo().saveInfo("Logger_1_00.csv", QDateTime(day, QTime(23, 0))));
        QCOMPARE(RootFiles::read("/mnt/storage/.infomation"), example("storage-index.md"));
    }

    void theCalibrationTableAndExample()
    {
        const CalibFile file;
        const QString text = page("calibration.md");
        const char *const base = reinterpret_cast<const char *>(&file.data());
        const struct
        {
            const void *field;
            int size;
            const char *name;
        } rows[] = { { file.data().zeroVolt, 64, "zeroVolt" },
                     { file.data().zeroCurrent, 64, "zeroCurrent" },
                     { file.data().volt, 64, "volt" },
                     { file.data().current, 64, "current" },
                     { file.data().factors, 24, "factors" } };
        for (const auto &row : rows) {
            const QRegularExpression line(QStringLiteral("\\n\\| %1 \\| %2 \\| float[^|]+ \\| %3 \\|")
                                              .arg(static_cast<const char *>(row.field) - base)
                                              .arg(row.size)
                                              .arg(row.name));
            QVERIFY2(line.match(text).hasMatch(), row.name);
        }
        QCOMPARE(RootFiles::read("/mnt/calibration/calibration.dat").mid(128, 16).toHex(' '),
                 example("calibration.md").trimmed());
    }
};

QTEST_GUILESS_MAIN(TstFormatDocs)
#include "tst_formatdocs.moc"
