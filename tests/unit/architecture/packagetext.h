#pragma once

#include "unit/architecture/sourcetext.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// The packages' description as text, for the tests that compare it with the program. Included by one source of each
/// test.
namespace PackageText {

using SourceText::kTop;
using SourceText::read;

inline const QString kDebian = QStringLiteral("packaging/debian/debian/");
inline const QString kUnit = kDebian + QStringLiteral("quvera.service");

/// A file of the repository; a test that finds none fails by its content.
inline QString text(const QString &path)
{
    return read(kTop + QLatin1Char('/') + path);
}

/// Everything in a text that a pattern's bracket catches.
inline QStringList caught(const QString &all, const QString &pattern)
{
    QStringList found;
    auto matches = QRegularExpression(
                       pattern, QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption)
                       .globalMatch(all);
    while (matches.hasNext())
        found << matches.next().captured(1);
    return found;
}

/// Lines of a list, without its comments, as words.
inline QVector<QStringList> rows(const QString &path)
{
    QVector<QStringList> found;
    const QStringList lines = text(path).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QString bare = line.section(QLatin1Char('#'), 0, 0).simplified();
        if (!bare.isEmpty())
            found << bare.split(QLatin1Char(' '));
    }
    return found;
}

/// Values of a setting of the service unit.
inline QStringList unit(const QString &key)
{
    return caught(text(kUnit), QStringLiteral("^%1=([^\n]*)$").arg(key));
}

/// A root for a script of the board, with stand-ins of the system's commands; those that mount or change rights are
/// noted.
class BoardCommands
{
public:
    explicit BoardCommands(const QString &script) : m_script(kTop + QLatin1Char('/') + script) { }
    void answer(const char *name, const QByteArray &does = "exit 0")
    {
        QFile file(m_root.filePath(QLatin1String(name)));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        QByteArray note;
        if (QByteArray(name).endsWith("mount") || QByteArray(name) == "setpriv")
            note = QByteArray("echo ") + name + " \"$@\" >>" + m_root.filePath("noted").toLocal8Bit() + "\n";
        file.write("#!/bin/sh\n" + note + does + "\n");
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    int run(const QStringList &words) { return start(m_script, words); }
    /// Calls a function of a script that is made to be read by others.
    int call(const QStringList &words)
    {
        return start(QStringLiteral("/bin/sh"),
                     QStringList { QStringLiteral("-euc"), QStringLiteral(". \"$0\"; \"$@\""), m_script } + words);
    }
    QString root() const { return m_root.path(); }
    QString noted() const { return read(m_root.filePath(QStringLiteral("noted"))); }

private:
    int start(const QString &program, const QStringList &words)
    {
        QProcess script;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QUVERA_ROOT"), root());
        environment.insert(QStringLiteral("PATH"), root() + QStringLiteral(":/usr/bin:/bin"));
        script.setProcessEnvironment(environment);
        script.setProcessChannelMode(QProcess::ForwardedChannels);
        script.start(program, words);
        return script.waitForFinished(-1) ? script.exitCode() : -1;
    }

    const QString m_script;
    QTemporaryDir m_root;
};

} // namespace PackageText
