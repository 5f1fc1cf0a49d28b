#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <optional>

namespace scenario {

/// What the command line asks for.
struct Options
{
    QString root;
    QString scenario = QStringLiteral("nominal");
    double speed = 1.0;
    std::optional<quint64> seed;
    std::optional<qint64> clockStart; // ms since 1970
    QString record;
    QString replay;
    QString frameLog;
    double forSeconds = 0.0; // simulated; 0: without end
    bool stream = false; // on from the start
    QString tell; // empty: run

    /// Reads \a arguments, the program's name first. On failure nothing, and one line in \a error. With --help or
    /// --list-scenarios nothing either, and the text to print in \a text.
    static std::optional<Options> read(const QStringList &arguments, QString *error, QString *text);
};

} // namespace scenario
