#include "settings/langtranslation.h"

#include <QApplication>
#include <QFileInfo>
#include <QFont>
#include <QTranslator>

#include "settings/facefile.h"
#include "settings/translationfile.h"
#include "settings/userconfig.h"
#include "platform/target.h"

namespace {

// Faces of the board: one with Chinese and Japanese characters, the common one for all other languages.
const char kEastAsianFont[] = "/usr/lib/fonts/WenQuanYiZenHei.ttf";
const char kCommonFont[] = "/usr/lib/fonts/arial.ttf";

/// First family of a font file; empty when it cannot be loaded. Each file is loaded once.
QString familyOf(const char *path)
{
    return familyOfFaceFile(Target::path(QLatin1String(path)));
}

QString eastAsianFamily()
{
    static const QString family = familyOf(kEastAsianFont);
    return family;
}

QString familyFor(int language)
{
    if (language == UserConfig::ZH || language == UserConfig::JP)
        return eastAsianFamily();
    static const QString common = familyOf(kCommonFont);
    // The common face has no Korean signs; a board without a font configuration would find none in its place.
    if (language == UserConfig::KO && QFont::substitutes(common).isEmpty())
        QFont::insertSubstitution(common, eastAsianFamily());
    return common;
}

} // namespace

QString LangTranslation::langName(int language)
{
    const auto &languages = UserConfig::languages();
    if (language < 1 || language > languages.size())
        return {};
    return QLatin1String(languages.at(language - 1).fileWord);
}

QString LangTranslation::filePath(int language)
{
    const QString word = langName(language);
    return word.isEmpty() ? QString() : QStringLiteral("/mnt/userfs/language/lang_%1.qm").arg(word);
}

bool LangTranslation::initLangTranslation(int language)
{
    if (m_translator) {
        QCoreApplication::removeTranslator(m_translator);
        delete m_translator;
        m_translator = nullptr;
        m_content.clear();
    }
    if (language == UserConfig::EN)
        return true;
    const QString path = filePath(language);
    if (path.isEmpty() || !QFileInfo(Target::path(path)).isFile())
        return true;
    m_translator = new QTranslator(this);
    m_content = TranslationFile::read(path);
    if (m_translator->load(reinterpret_cast<const uchar *>(m_content.constData()), m_content.size()))
        QCoreApplication::installTranslator(m_translator);
    if (qobject_cast<QApplication *>(QCoreApplication::instance())) {
        const QString family = familyFor(language);
        if (!family.isEmpty())
            QApplication::setFont(QFont(family), "QWidget");
    }
    return true;
}

void LangTranslation::reloadLangTranslation(int language)
{
    initLangTranslation(language);
    emit languageChanged();
}
