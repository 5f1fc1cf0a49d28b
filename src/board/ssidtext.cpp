#include "board/ssidtext.h"

#include <QVector>

#include <algorithm>

namespace {

/// The escapes of one letter, in both directions.
struct Escape
{
    char byte;
    char letter;
};
constexpr Escape kEscapes[] = {
    { '\\', '\\' }, { '"', '"' }, { '\x1b', 'e' }, { '\n', 'n' }, { '\r', 'r' }, { '\t', 't' },
};

/// Value of a hexadecimal digit, -1 for anything else.
int digit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// Takes the escape at `at`, which points to its backslash, and answers its length; 0 when it is none.
int takeEscape(const QByteArray &text, int at, char *byte)
{
    if (at + 1 >= text.size())
        return 0;
    const char letter = text.at(at + 1);
    if (letter == 'x' && at + 3 < text.size() && digit(text.at(at + 2)) >= 0 && digit(text.at(at + 3)) >= 0) {
        *byte = static_cast<char>(digit(text.at(at + 2)) * 16 + digit(text.at(at + 3)));
        return 4;
    }
    for (const Escape &escape : kEscapes) {
        if (escape.letter == letter) {
            *byte = escape.byte;
            return 2;
        }
    }
    return 0;
}

} // namespace

QByteArray SsidText::unescaped(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    QByteArray ssid;
    for (int at = 0; at < bytes.size();) {
        char byte = bytes.at(at);
        const int length = byte == '\\' ? takeEscape(bytes, at, &byte) : 0;
        ssid += byte;
        at += qMax(length, 1);
    }
    return ssid;
}

QString SsidText::escaped(const QByteArray &ssid)
{
    QString text;
    for (const char byte : ssid) {
        const auto escape = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                         [byte](const Escape &one) { return one.byte == byte; });
        if (escape != std::end(kEscapes))
            text += QLatin1Char('\\') + QString(QLatin1Char(escape->letter));
        else if (byte >= 0x20 && byte < 0x7f)
            text += QLatin1Char(byte);
        else
            text += QStringLiteral("\\x%1").arg(static_cast<uchar>(byte), 2, 16, QLatin1Char('0'));
    }
    return text;
}

QString SsidText::shown(const QByteArray &ssid)
{
    QVector<uint> characters = QString::fromUtf8(ssid.constData(), ssid.size()).toUcs4();
    for (uint &character : characters) {
        if (!QChar::isPrint(character))
            character = QChar::ReplacementCharacter;
    }
    return QString::fromUcs4(characters.constData(), characters.size());
}

bool SsidText::isHidden(const QByteArray &ssid)
{
    return std::all_of(ssid.begin(), ssid.end(), [](char byte) { return byte == '\0'; });
}
