#pragma once

#include "platform/diskworker.h"
#include "platform/target.h"
#include "shell/quveraglobal.h"
#include "shell/taskmanage.h"
#include "testpaths.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QVector>

#include <limits>
#include <memory>

namespace SystemTest {

/// The tables that `quvera-files export --csv` makes of a recording.
class ExportedTables
{
public:
    struct Cell
    {
        qint64 time; // ms since 1970
        double value; // NaN where there is none
    };

    /// Those of the only recording of that name in the memory; null, with what is wrong, when it cannot be exported.
    static std::unique_ptr<ExportedTables> ofRecording(const QString &name, QString *problem)
    {
        const QDir storage(Target::path(QStringLiteral("/mnt/storage")));
        const QStringList folders = storage.entryList({ QStringLiteral("* ") + name }, QDir::Dirs);
        const QString tables = qEnvironmentVariable("QUVERA_ROOT") + QStringLiteral("/tables");
        QProcess tool;
        tool.setProcessChannelMode(QProcess::MergedChannels);
        tool.start(QStringLiteral(QUVERA_BIN_DIR "/quvera-files"),
                   { "export", storage.filePath(folders.value(0)), "--csv", tables });
        const bool ended = tool.waitForFinished(-1) && tool.exitStatus() == QProcess::NormalExit;
        *problem = QStringLiteral("%1 recordings, the tool: ").arg(folders.size()) + QString::fromUtf8(tool.readAll());
        if (!ended || tool.exitCode() != 0 || folders.size() != 1)
            return nullptr;
        return std::make_unique<ExportedTables>(tables);
    }

    /// Those of the recording that runs: ends and keeps it first.
    static std::unique_ptr<ExportedTables> ofRunningRecording(const QString &name, QString *problem)
    {
        m_taskmanage->stopRecordWithSave(true);
        DiskWorker::slow().wait();
        return ofRecording(name, problem);
    }

    explicit ExportedTables(const QString &folder) : m_folder(folder) { }

    /// A column of a table; nothing where it is missing.
    QVector<Cell> column(const QString &table, const QString &name)
    {
        const QList<QByteArrayList> &lines = rows(table);
        QVector<Cell> cells;
        const int place = lines.isEmpty() ? -1 : lines.first().indexOf(name.toUtf8());
        for (int i = 1; i < lines.size() && place > 0; ++i) {
            bool isNumber = false;
            const double value = lines[i].value(place).toDouble(&isNumber);
            const QDateTime time = QDateTime::fromString(QString::fromUtf8(lines[i].first()), Qt::ISODateWithMs);
            cells.append({ time.toMSecsSinceEpoch(), isNumber ? value : std::numeric_limits<double>::quiet_NaN() });
        }
        return cells;
    }

private:
    const QList<QByteArrayList> &rows(const QString &table)
    {
        if (!m_tables.contains(table)) {
            QFile file(m_folder + QLatin1Char('/') + table + QStringLiteral(".csv"));
            QList<QByteArrayList> &lines = m_tables[table];
            while (file.isOpen() || file.open(QIODevice::ReadOnly)) {
                const QByteArray line = file.readLine();
                if (line.isEmpty())
                    break;
                lines.append(line.trimmed().split(','));
            }
        }
        return m_tables[table];
    }

    const QString m_folder;
    QHash<QString, QList<QByteArrayList>> m_tables;
};

} // namespace SystemTest
