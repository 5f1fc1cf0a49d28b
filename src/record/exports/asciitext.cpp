#include "record/exports/asciitext.h"

QByteArray AsciiText::of(const QString &text, int most)
{
    QByteArray ascii;
    // More is never shown, and a text of megabytes is not taken apart for it.
    const QString letters = text.left(16 * most).normalized(QString::NormalizationForm_KD);
    for (const QChar letter : letters) {
        if (letter.category() == QChar::Mark_NonSpacing || letter.isHighSurrogate())
            continue;
        const ushort code = letter.unicode();
        if (code < ' ' || code == 0x7F)
            ascii += ' ';
        else
            ascii += code < 0x7F ? char(code) : '?';
    }
    return ascii.trimmed().left(most).trimmed();
}

QByteArray AsciiText::of(const QByteArray &text, int most)
{
    return of(QString::fromUtf8(text), most);
}
