#pragma once

#include <QByteArray>
#include <QDir>
#include <QLoggingCategory>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// What fuzz targets share. Included by one source of each.
namespace FuzzTarget {

/// Ends the target, and with it the run: something that must hold for any input does not.
[[noreturn]] inline void fail(const char *what)
{
    std::fprintf(stderr, "%s\n", what);
    std::abort();
}

inline void expect(bool holds, const char *what = "what must hold for any input does not")
{
    if (!holds)
        fail(what);
}

inline QByteArray bytes(const uint8_t *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), int(size));
}

/// Where a target keeps folders: in the root of its run, which goes however the run ends.
inline QString folderTemplate()
{
    return qEnvironmentVariable("QUVERA_ROOT", QDir::tempPath()) + QStringLiteral("/quvera-fuzz-XXXXXX");
}

/// A refused file leaves a line in the debug log, which at thousands of inputs a second is all that one would see.
inline void silenceDebugLog()
{
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
}

} // namespace FuzzTarget
