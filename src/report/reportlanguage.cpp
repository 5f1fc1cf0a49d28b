#include "report/reportlanguage.h"

#include "settings/translationfile.h"
#include "settings/userconfig.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>

bool ReportLanguage::choose(const QString &key, const QString &folder)
{
    constexpr qint64 kLargest = 1024 * 1024; // bytes; a language has a tenth
    const auto &languages = UserConfig::languages();
    const auto at = std::find_if(languages.begin(), languages.end(), [&key](const UserConfig::Language &language) {
        return key.compare(QLatin1String(language.key), Qt::CaseInsensitive) == 0;
    });
    if (at == languages.end())
        return false;
    m_word = QLatin1String(at->fileWord);
    m_isThere = m_word.isEmpty();
    QFile file(folder + QStringLiteral("/lang_%1.qm").arg(m_word));
    if (m_isThere || !file.open(QIODevice::ReadOnly))
        return true;
    m_content = file.read(kLargest);
    m_isThere = TranslationFile::isSound(m_content)
        && m_translator.load(reinterpret_cast<const uchar *>(m_content.constData()), m_content.size())
        && QCoreApplication::installTranslator(&m_translator);
    return true;
}

QString ReportLanguage::keys()
{
    QStringList keys;
    for (const UserConfig::Language &language : UserConfig::languages())
        keys << QLatin1String(language.key);
    return keys.join(QLatin1Char(' '));
}
