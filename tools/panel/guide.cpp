#include "panel/guide.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace panel {

namespace {

struct FileType
{
    const char *suffix;
    const char *type;
};

constexpr FileType kTypes[] = {
    { ".html", "text/html; charset=utf-8" },
    { ".css", "text/css; charset=utf-8" },
    { ".png", "image/png" },
    { ".svg", "image/svg+xml" },
    { ".sql", "text/plain; charset=utf-8" },
    { ".py", "text/plain; charset=utf-8" },
    { ".sh", "text/plain; charset=utf-8" },
    { ".conf", "text/plain; charset=utf-8" },
    { ".json", "text/plain; charset=utf-8" },
    { ".yaml", "text/plain; charset=utf-8" },
    { ".yml", "text/plain; charset=utf-8" },
};

} // namespace

Guide::Guide(const QString &folder)
{
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (!folder.isEmpty() && files.hasNext()) {
        const QString file = files.next();
        m_files.insert(QStringLiteral("/guide/") + QDir(folder).relativeFilePath(file), file);
    }
}

QByteArray Guide::read(const std::string &path, std::string *type) const
{
    const QString name = QString::fromStdString(path);
    QFile file(m_files.value(name));
    for (const FileType &row : kTypes) {
        if (!name.endsWith(QLatin1String(row.suffix)) || file.fileName().isEmpty())
            continue;
        *type = row.type;
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    return {};
}

} // namespace panel
