#include "files/bytenames.h"

#include <QTextCodec>

namespace {

constexpr ushort kBytes = 0xDC00; // where bytes that are no text stand

class BytesOfNames : public QTextCodec
{
public:
    QByteArray name() const override { return QByteArrayLiteral("quvera-names"); }
    int mibEnum() const override { return -3527; } // of no other codec

protected:
    QString convertToUnicode(const char *bytes, int length, ConverterState *) const override;
    QByteArray convertFromUnicode(const QChar *text, int length, ConverterState *) const override;
};

QString BytesOfNames::convertToUnicode(const char *bytes, int length, ConverterState *) const
{
    constexpr int kLongest = 4; // bytes of a character
    QString text;
    for (int at = 0; at < length;) {
        QString character;
        int taken = 0;
        for (int size = 1; taken == 0 && size <= qMin(kLongest, length - at); ++size) {
            const QByteArray piece(bytes + at, size);
            character = QString::fromUtf8(piece);
            taken = character.toUtf8() == piece ? size : 0;
        }
        text += taken > 0 ? character : QString(QChar(ushort(kBytes + quint8(bytes[at]))));
        at += qMax(taken, 1);
    }
    return text;
}

QByteArray BytesOfNames::convertFromUnicode(const QChar *text, int length, ConverterState *) const
{
    QByteArray bytes;
    for (int at = 0; at < length;) {
        const bool isByte = text[at].unicode() >= kBytes + 0x80 && text[at].unicode() <= kBytes + 0xFF;
        const int size = text[at].isHighSurrogate() && at + 1 < length ? 2 : 1;
        bytes += isByte ? QByteArray(1, char(text[at].unicode() - kBytes)) : QString(text + at, size).toUtf8();
        at += size;
    }
    return bytes;
}

} // namespace

void keepNamesOfFiles()
{
    QTextCodec::setCodecForLocale(new BytesOfNames); // is the toolkit's from now on
}
