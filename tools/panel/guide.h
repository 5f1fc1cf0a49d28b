#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <string>

namespace panel {

/// The user guide as pages for a browser, from the folder that the build made of the documents. The files are listed
/// once: a path asked for is one of the list or nothing.
class Guide
{
public:
    Guide() = default;
    explicit Guide(const QString &folder);

    /// The file behind "/guide/..." and its type; null when there is none.
    QByteArray read(const std::string &path, std::string *type) const;

private:
    QHash<QString, QString> m_files; // by the path of the address
};

} // namespace panel
