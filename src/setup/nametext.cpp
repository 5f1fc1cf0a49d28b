#include "setup/nametext.h"

#include "settings/limitsmanager.h"
#include "settings/xmltext.h"

#include <algorithm>

QString NameText::trimmed(const QString &typed)
{
    return typed.trimmed();
}

bool NameText::isPlain(const QString &name)
{
    const auto isControl = [](QChar sign) { return sign.category() == QChar::Other_Control; };
    return name.isValidUtf16() && XmlText::plain(name) == name && std::none_of(name.begin(), name.end(), isControl);
}

bool NameText::isFileName(const QString &name)
{
    const auto isReserved = [](QChar sign) { return QStringLiteral("\\/:*?\"<>|").contains(sign); };
    return isPlain(name) && LimitsManager::isPlainName(name) && !name.endsWith(QLatin1Char('.'))
        && std::none_of(name.begin(), name.end(), isReserved);
}
