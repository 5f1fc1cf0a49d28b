#include "panel/picturenotes.h"

#include <QtEndian>
#include <zlib.h>

namespace panel {

namespace {

constexpr uLongf kLongest = 64 * 1024; // bytes of one note, however small it was packed
constexpr int kMostNotes = 32;

QByteArray unpacked(const QByteArray &packed)
{
    QByteArray text(int(kLongest), '\0');
    uLongf size = kLongest;
    if (uncompress(reinterpret_cast<Bytef *>(text.data()), &size, reinterpret_cast<const Bytef *>(packed.constData()),
                   uLong(packed.size()))
        != Z_OK)
        return {};
    text.truncate(int(size));
    return text;
}

/// What stands behind the next zero byte, of which there is one for each field that is left out.
QByteArray behindFields(const QByteArray &bytes, int fields)
{
    int at = 0;
    for (; fields > 0 && at > -1; --fields)
        at = bytes.indexOf('\0', at) + 1;
    return bytes.mid(at);
}

/// The toolkit's own reader would make one line of each text.
void addNote(const QByteArray &kind, const QByteArray &chunk, QJsonObject *notes)
{
    const int end = chunk.indexOf('\0');
    if (end < 1 || end + 2 > chunk.size())
        return;
    const QString key = QString::fromLatin1(chunk.left(end));
    if (kind == "tEXt")
        notes->insert(key, QString::fromLatin1(chunk.mid(end + 1)));
    if (kind == "zTXt")
        notes->insert(key, QString::fromLatin1(unpacked(chunk.mid(end + 2))));
    if (kind == "iTXt") {
        const QByteArray text = behindFields(chunk.mid(end + 3), 2);
        notes->insert(key, QString::fromUtf8(chunk.at(end + 1) ? unpacked(text) : text));
    }
}

} // namespace

QJsonObject notesOf(const QByteArray &png)
{
    QJsonObject notes;
    constexpr int kHead = 8; // of the file, and of a chunk: its length and its kind
    int at = kHead;
    while (at + kHead <= png.size() && notes.size() < kMostNotes) {
        const qint64 length = qFromBigEndian<quint32>(png.constData() + at);
        const QByteArray kind = png.mid(at + 4, 4);
        if (length > png.size() - at - kHead || kind == "IEND")
            break;
        if (length <= qint64(kLongest)) // pictures are longer
            addNote(kind, png.mid(at + kHead, int(length)), &notes);
        at += kHead + int(length) + 4;
    }
    return notes;
}

} // namespace panel
