#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

/// What the program ends with, as scripts know it.
enum ExitStatus {
    ExitWhole = 0,
    ExitCut = 1,
    ExitBroken = 2,
    ExitUnreadable = 3,
    ExitMisuse = 64,
    ExitNoOutput = 73, // the system took no output, or the user ended the work
};

/// An option of a command.
struct CommandOption
{
    QString name; // with its two dashes
    QString value; // what follows it, as the help names it; empty: nothing
    QString help;
};

/// The words of one call, sorted.
class CommandLine
{
public:
    /// Sorts the \a words behind a command's name. False: wrong use, with the reason in error().
    bool parse(const QStringList &words, const std::vector<CommandOption> &options);

    QStringList paths; // what is no option
    bool has(const QString &option) const { return m_values.contains(option); }
    QString value(const QString &option) const { return m_values.value(option); }
    QString error() const { return m_error; }

private:
    bool fail(const QString &reason);

    QHash<QString, QString> m_values;
    QString m_error;
};

/// A command of the program.
struct Command
{
    QString name;
    QString synopsis; // behind the name
    QString help; // one line
    int leastPaths, mostPaths;
    std::vector<CommandOption> options;
    int (*run)(const CommandLine &line);
};
const std::vector<Command> &commands();
