#pragma once

#include <QByteArray>
#include <QString>
#include <QTranslator>

/// The language of a report that is made outside the instrument. One at a time; it lasts as long as the object.
class ReportLanguage
{
public:
    /// Installs the language \a key, as the instrument names it ("GE"), out of a folder with "lang_<word>.qm" in it.
    /// False: there is no such language.
    bool choose(const QString &key, const QString &folder);
    /// Its file was found; without it the report is in English.
    bool isThere() const { return m_isThere; }
    QString word() const { return m_isThere ? m_word : QString(); }
    /// All keys, with blanks between them.
    static QString keys();

private:
    QString m_word;
    QByteArray m_content; // that the translator reads
    QTranslator m_translator;
    bool m_isThere = true; // English always is
};
