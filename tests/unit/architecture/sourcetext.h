#pragma once

#include "testpaths.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QVector>

/// The sources as text, for the tests that hold them to the house rules. Included by one source of each test.
namespace SourceText {

inline const QString kTop = QStringLiteral(QUVERA_SOURCE_DIR);

/// The content of a file, empty when it cannot be read.
inline QString read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Paths of the sources and headers below a folder of the repository, seen from its top.
inline QStringList sources(const QString &folder)
{
    QStringList paths;
    QDirIterator files(kTop + QLatin1Char('/') + folder, { QStringLiteral("*.cpp"), QStringLiteral("*.h") },
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths << files.next().mid(kTop.size() + 1);
    paths.sort();
    return paths;
}

/// All sources and headers of the repository that people write.
inline QStringList allSources()
{
    return sources(QStringLiteral("src")) + sources(QStringLiteral("processor")) + sources(QStringLiteral("tools"))
        + sources(QStringLiteral("tests")) + sources(QStringLiteral("assets")) + sources(QStringLiteral("packaging"));
}

/// A text with its comments taken out, line by line; "//" inside a literal stays.
inline QString withoutComments(QString text)
{
    static const QRegularExpression comment(QStringLiteral("(\"(?:[^\"\\\\\n]|\\\\.)*\")|//[^\n]*|/\\*.*?\\*/"),
                                            QRegularExpression::DotMatchesEverythingOption);
    return text.replace(comment, QStringLiteral("\\1"));
}

/// The code of a source of the repository.
inline QString code(const QString &path)
{
    return withoutComments(read(kTop + QLatin1Char('/') + path));
}

/// A function and its place, for a list of those that are too long.
struct Function
{
    QString head; // its first line
    int line; // of the head, from 1
    int lines; // from the head to the closing brace, both counted
};

/// The functions of a source that is formatted: the braces of a body stand alone, at the indentation of its head.
/// Lambdas count into the function around them.
inline QVector<Function> functions(const QString &text)
{
    static const QRegularExpression opening(QStringLiteral("^( *)\\{$"));
    static const QRegularExpression otherKind(QStringLiteral("^\\s*(class|struct|union|enum|namespace)\\b[^(]*$"));
    static const QRegularExpression startOfHead(QStringLiteral("^(|.*[;{}]|.*:|\\s*//.*|#.*|\\s*template <.*>)$"));
    const QStringList lines = text.split(QLatin1Char('\n'));
    QVector<Function> found;
    for (int i = 1; i < lines.size(); ++i) {
        const auto match = opening.match(lines.at(i));
        int head = i - 1;
        while (head > 0 && !startOfHead.match(lines.at(head - 1)).hasMatch())
            --head;
        if (!match.hasMatch() || otherKind.match(lines.at(head)).hasMatch()
            || !lines.mid(head, i - head).join(QChar()).contains(QLatin1Char('(')))
            continue;
        const int end = lines.indexOf(match.captured(1) + QLatin1Char('}'), i);
        found.append({ lines.at(head).trimmed(), head + 1, (end < 0 ? int(lines.size()) : end + 1) - head });
    }
    return found;
}

/// A line of code with its number, from 1.
struct CodeLine
{
    int number;
    QString text;
};

/// The lines that say something: without comments, braces, includes, labels, bare jumps and declarations of functions
/// that take and return nothing, which many classes have in common.
inline QVector<CodeLine> tellingLines(const QString &text)
{
    static const QRegularExpression dull(
        QStringLiteral("^\\W*$|^#|^(public|private|protected|signals|default|using|namespace|Q_OBJECT|QFETCH|Q_UNUSED)"
                       "\\b|^(return|break|continue|else);?$|^(static )?void \\w+\\(\\)( override)?;$"));
    QVector<CodeLine> found;
    int number = 0;
    // A comment of several lines is seldom used here, and only shifts the numbers.
    const QStringList lines = withoutComments(text).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        ++number;
        const QString bare = line.simplified();
        if (!dull.match(bare).hasMatch())
            found.append({ number, bare });
    }
    return found;
}

/// Finds runs of telling lines that stand in two places.
class EqualRuns
{
public:
    explicit EqualRuns(int length) : m_length(length) { }

    /// Adds a source; the runs that it shares with itself or an earlier one come as "file:line and file:line: text".
    QStringList add(const QString &path, const QString &text)
    {
        QStringList found;
        const QVector<CodeLine> lines = tellingLines(text);
        int quietUntil = 0; // a longer run is named once
        for (int i = 0; i + m_length <= lines.size(); ++i) {
            QString run;
            for (int k = i; k < i + m_length; ++k)
                run += lines.at(k).text + QLatin1Char('\n');
            const QString place = path + QLatin1Char(':') + QString::number(lines.at(i).number);
            const auto known = m_runs.constFind(run);
            if (known == m_runs.constEnd()) {
                m_runs.insert(run, place);
            } else if (i >= quietUntil) {
                found << known.value() + QStringLiteral(" and ") + place + QStringLiteral(": ") + lines.at(i).text;
                quietUntil = i + m_length;
            }
        }
        return found;
    }

private:
    int m_length;
    QHash<QString, QString> m_runs; // a run and where it was seen first
};

} // namespace SourceText
