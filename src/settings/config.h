#pragma once

#include <QByteArray>
#include <QPair>
#include <QString>
#include <QVector>

/// The settings files: text lines of key=value, read key by key and rewritten as a whole at each change.
/// Paths are the board's. GUI thread only, no lock. No failure reaches the user: a lost write keeps the old file.
/// The rules, the odd ones too, are in docs/settings.md, "Files".
class Config
{
public:
    /// The value of `key`, or an empty text when the file or the key is missing.
    static QString readConfigFile(const QString &path, const QString &key);
    /// Stores one key. The file holds the old or the new text at every moment, never a part; then "sync" is run. When
    /// the read of the old text ends in an error, nothing is written and the debug log says so: the keys that could not
    /// be read would be lost.
    static void writeConfigFile(const QString &path, const QString &key, const QString &value);
    /// Keys with their values.
    using Entries = QVector<QPair<QString, QString>>;
    /// Stores several keys in one step, as storing one after the other would leave the file.
    static void writeConfigFile(const QString &path, const Entries &entries);

    /// The bytes of a settings file; empty when it is missing, unreadable or larger than a settings file can be.
    static QByteArray readWhole(const QString &path);
    /// The value of `key` in a file's bytes: Latin-1 up to the first zero byte; the last line that holds the key wins.
    static QString valueIn(const QByteArray &file, const QString &key);
    /// The text that stands in a file after `key` was stored in one that held `text`.
    static QString textWith(const QString &text, const QString &key, const QString &value);
};
