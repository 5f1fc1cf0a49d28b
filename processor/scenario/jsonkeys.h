#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QSet>
#include <QString>

#include <functional>

namespace scenario {

/// Keeps the first error of a file, as "FILE: KEY: WHAT".
class JsonErrors
{
public:
    explicit JsonErrors(const QString &file) : m_file(file) { }

    void add(const QString &key, const QString &what);
    bool none() const { return m_text.isEmpty(); }
    QString text() const { return m_text; }

private:
    QString m_file;
    QString m_text;
};

/// Reads one JSON object strictly: each key is asked for by its kind and bounds, and finish() refuses all that were not
/// asked for. An absent key gives the fallback. Errors name the whole path, as "signal.harmonics[2].order".
class JsonKeys
{
public:
    JsonKeys(JsonErrors *errors, const QString &path, const QJsonValue &value);

    bool has(const QString &key) const { return m_object.contains(key); }
    double number(const QString &key, double fallback, double least, double most);
    int integer(const QString &key, int fallback, int least, int most);
    bool flag(const QString &key, bool fallback);
    QString text(const QString &key, const QString &fallback = QString());
    QJsonValue any(const QString &key);
    /// Calls \a each for every element of the list at \a key; \a each gets the element's path.
    void list(const QString &key, const std::function<void(const QString &path, const QJsonValue &value)> &each);
    /// Says that \a key must be there.
    void require(const QString &key, const QString &expected);
    void wrong(const QString &key, const QString &expected);
    QString path(const QString &key) const;

    void finish();

private:
    QJsonValue take(const QString &key);

    JsonErrors *m_errors;
    QString m_path;
    QJsonObject m_object;
    QSet<QString> m_asked;
};

} // namespace scenario
