#pragma once

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
