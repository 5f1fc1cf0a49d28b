#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

class QTranslator;

/// Installs the translation of the chosen language and its font. One global, built before the application object, so
/// the constructor does nothing. GUI thread.
class LangTranslation : public QObject
{
    Q_OBJECT

public:
    /// Takes the present translation away and, for any language but 1, loads the language's file. Always true.
    bool initLangTranslation(int language);
    /// The same, and then tells every page to translate itself anew.
    void reloadLangTranslation(int language);

    /// Word of a language's file name ("zh" of "lang_zh.qm"); empty for language 1 and unknown numbers.
    static QString langName(int language);
    /// The board's path of a language's file; empty for language 1 and unknown numbers.
    static QString filePath(int language);

signals:
    void languageChanged();

private:
    QTranslator *m_translator = nullptr;
    QByteArray m_content; // that the translator reads: a file could change under it
};
