#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QMap>
#include <QTranslator>

/// A language in which every text begins with a sign of its own, as long as it is spoken.
class MarkedLanguage : public QTranslator
{
public:
    explicit MarkedLanguage(bool isSpoken = true) : spoken(isSpoken) { }

    QString translate(const char *, const char *source, const char *, int) const override
    {
        return spoken ? QLatin1Char('~') + QString::fromUtf8(source) : QString();
    }
    bool isEmpty() const override { return false; }

    bool spoken;
};

/// Texts of all labels and buttons, by the classes and names on the way down to each.
inline QMap<QString, QString> texts(const QWidget *page)
{
    QMap<QString, QString> result;
    for (const QWidget *widget : page->findChildren<QWidget *>()) {
        QString path = widget->objectName();
        for (const QWidget *above = widget->parentWidget(); above != page; above = above->parentWidget())
            path.prepend(QString::fromLatin1(above->metaObject()->className()) + QLatin1Char('/'));
        if (const auto *label = qobject_cast<const QLabel *>(widget))
            result.insert(path, label->text());
        else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            result.insert(path, button->text());
    }
    return result;
}

/// The same without the free room: others on this machine use its disk meanwhile.
inline QMap<QString, QString> lastingTexts(const QWidget *page)
{
    QMap<QString, QString> result = texts(page);
    for (const QString &path : result.keys()) {
        if (path.endsWith(QLatin1String("memory")))
            result.remove(path);
    }
    return result;
}
