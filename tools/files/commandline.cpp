#include "files/commandline.h"

#include <algorithm>

bool CommandLine::parse(const QStringList &words, const std::vector<CommandOption> &options)
{
    bool onlyPaths = false;
    for (int i = 0; i < words.size(); ++i) {
        const QString &word = words.at(i);
        if (onlyPaths || word.size() < 2 || !word.startsWith(QLatin1Char('-'))) {
            paths.append(word);
            continue;
        }
        if (word == QLatin1String("--")) {
            onlyPaths = true;
            continue;
        }
        const QString name = word.section(QLatin1Char('='), 0, 0);
        const auto option = std::find_if(options.begin(), options.end(),
                                         [&name](const CommandOption &row) { return row.name == name; });
        if (option == options.end())
            return fail(QStringLiteral("there is no option %1 here").arg(name));
        if (m_values.contains(name))
            return fail(QStringLiteral("%1 stands twice").arg(name));
        const bool hasValue = word.size() > name.size();
        if (option->value.isEmpty() && hasValue)
            return fail(QStringLiteral("%1 takes no value").arg(name));
        QString value = word.mid(name.size() + 1);
        if (!option->value.isEmpty() && !hasValue) {
            if (i + 1 == words.size())
                return fail(QStringLiteral("%1 needs a %2").arg(name, option->value));
            value = words.at(++i);
        }
        if (!option->value.isEmpty() && value.isEmpty())
            return fail(QStringLiteral("%1 needs a %2").arg(name, option->value));
        m_values.insert(name, value);
    }
    return true;
}

bool CommandLine::fail(const QString &reason)
{
    m_error = reason;
    return false;
}
