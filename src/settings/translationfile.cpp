#include "settings/translationfile.h"

#include "storage/wholefile.h"

#include <QtEndian>

#include <cstring>

namespace {

constexpr qint64 kLargest = 1024 * 1024; // bytes; a language has about 30000
const unsigned char kMagic[]
    = { 0x3c, 0xb8, 0x64, 0x18, 0xca, 0xef, 0x9c, 0x95, 0xcd, 0x21, 0x1c, 0xbf, 0x60, 0xa1, 0xbd, 0xdd };

enum Section { Hashes = 0x42, Messages = 0x69, NumerusRules = 0x88, Language = 0xa7 };
/// Parts of a message. All but End carry a length.
enum Part { End = 1, Translation = 3, SourceText = 6, Context = 7, Comment = 8 };

/// Reads numbers and pieces off the front of some bytes, and knows when there are not enough.
class Reader
{
public:
    Reader(const char *data, qint64 size) : m_data(data), m_left(size) { }
    bool atEnd() const { return m_left == 0; }
    bool takeByte(int *value)
    {
        if (!take(1))
            return false;
        *value = uchar(m_data[-1]);
        return true;
    }
    bool takeNumber(qint64 *value)
    {
        if (!take(4))
            return false;
        *value = qFromBigEndian<quint32>(m_data - 4);
        return true;
    }
    bool take(qint64 size)
    {
        if (size > m_left)
            return false;
        m_data += size;
        m_left -= size;
        return true;
    }
    const char *place() const { return m_data; }

private:
    const char *m_data;
    qint64 m_left;
};

bool isSoundMessage(Reader message)
{
    for (;;) {
        int part = 0;
        qint64 length = 0;
        if (!message.takeByte(&part))
            return false;
        if (part == End)
            return true;
        if (part != Translation && part != SourceText && part != Context && part != Comment)
            return false;
        if (!message.takeNumber(&length) || !message.take(length))
            return false;
    }
}

/// The table of hashes: for each its number and where its message begins.
bool areSoundHashes(const QByteArray &hashes, const QByteArray &messages)
{
    Reader table(hashes.constData(), hashes.size());
    while (!table.atEnd()) {
        qint64 hash = 0, begin = 0;
        if (!table.takeNumber(&hash) || !table.takeNumber(&begin) || begin >= messages.size()
            || !isSoundMessage(Reader(messages.constData() + begin, messages.size() - begin)))
            return false;
    }
    return true;
}

} // namespace

bool TranslationFile::isSound(const QByteArray &content)
{
    if (content.size() < int(sizeof kMagic) || std::memcmp(content.constData(), kMagic, sizeof kMagic) != 0)
        return false;
    Reader file(content.constData() + sizeof kMagic, content.size() - qint64(sizeof kMagic));
    QByteArray hashes, messages;
    for (int section = 0; file.takeByte(&section);) {
        qint64 length = 0;
        if (!file.takeNumber(&length) || !file.take(length))
            return false;
        const QByteArray bytes = QByteArray::fromRawData(file.place() - length, int(length));
        if (section == Hashes)
            hashes = bytes;
        else if (section == Messages)
            messages = bytes;
        else if (section != NumerusRules && section != Language)
            return false;
    }
    return areSoundHashes(hashes, messages);
}

QByteArray TranslationFile::read(const QString &path)
{
    QByteArray content;
    if (WholeFile::read(path, kLargest, &content) != WholeFile::Read || !isSound(content))
        return {};
    return content;
}
