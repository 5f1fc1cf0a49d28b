#include "scenario/jsonkeys.h"

#include <QJsonDocument>
#include <QStringList>

#include <cmath>

namespace scenario {

namespace {

QString found(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Undefined:
        return QStringLiteral("nothing");
    case QJsonValue::Null:
        return QStringLiteral("null");
    case QJsonValue::Bool:
        return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    case QJsonValue::Double:
        return QString::number(value.toDouble());
    case QJsonValue::String:
        return QLatin1Char('"') + value.toString().left(40) + QLatin1Char('"');
    case QJsonValue::Array:
        return QStringLiteral("a list");
    case QJsonValue::Object:
        return QStringLiteral("an object");
    }
    return {};
}

} // namespace

void JsonErrors::add(const QString &key, const QString &what)
{
    if (m_text.isEmpty())
        m_text = key.isEmpty() ? m_file + QLatin1String(": ") + what
                               : QStringList { m_file, key, what }.join(QLatin1String(": "));
}

JsonKeys::JsonKeys(JsonErrors *errors, const QString &path, const QJsonValue &value)
    : m_errors(errors), m_path(path), m_object(value.toObject())
{
    if (!value.isObject())
        m_errors->add(m_path, QStringLiteral("expected an object, found %1").arg(found(value)));
}

QString JsonKeys::path(const QString &key) const
{
    return m_path.isEmpty() ? key : m_path + QLatin1Char('.') + key;
}

QJsonValue JsonKeys::take(const QString &key)
{
    m_asked.insert(key);
    return m_object.value(key);
}

void JsonKeys::wrong(const QString &key, const QString &expected)
{
    m_errors->add(path(key), QStringLiteral("expected %1, found %2").arg(expected, found(m_object.value(key))));
}

double JsonKeys::number(const QString &key, double fallback, double least, double most)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return fallback;
    const double number = value.toDouble(std::nan(""));
    if (number >= least && number <= most)
        return number;
    wrong(key, QStringLiteral("a number from %1 to %2").arg(least).arg(most));
    return fallback;
}

int JsonKeys::integer(const QString &key, int fallback, int least, int most)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return fallback;
    const double number = value.toDouble(std::nan(""));
    if (number >= least && number <= most && number == std::floor(number))
        return int(number);
    wrong(key, QStringLiteral("a whole number from %1 to %2").arg(least).arg(most));
    return fallback;
}

bool JsonKeys::flag(const QString &key, bool fallback)
{
    const QJsonValue value = take(key);
    if (!value.isUndefined() && !value.isBool())
        wrong(key, QStringLiteral("true or false"));
    return value.toBool(fallback);
}

QString JsonKeys::text(const QString &key, const QString &fallback)
{
    const QJsonValue value = take(key);
    if (!value.isUndefined() && !value.isString())
        wrong(key, QStringLiteral("a text"));
    return value.toString(fallback);
}

QJsonValue JsonKeys::any(const QString &key)
{
    return take(key);
}

void JsonKeys::list(const QString &key, const std::function<void(const QString &, const QJsonValue &)> &each)
{
    const QJsonValue value = take(key);
    if (value.isUndefined())
        return;
    if (!value.isArray())
        return wrong(key, QStringLiteral("a list"));
    const QJsonArray elements = value.toArray();
    for (int i = 0; i < elements.size() && m_errors->none(); ++i)
        each(QStringLiteral("%1[%2]").arg(path(key)).arg(i), elements.at(i));
}

void JsonKeys::require(const QString &key, const QString &expected)
{
    if (!has(key))
        wrong(key, expected);
}

void JsonKeys::finish()
{
    for (const QString &key : m_object.keys()) {
        if (m_asked.contains(key))
            continue;
        QStringList known = m_asked.values();
        known.sort();
        m_errors->add(path(key),
                      QStringLiteral("unknown key, expected one of %1").arg(known.join(QLatin1String(", "))));
    }
}

} // namespace scenario
