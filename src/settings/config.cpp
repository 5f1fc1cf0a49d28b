#include "settings/config.h"

#include <QStringList>

#include "platform/debuglog.h"
#include "platform/target.h"
#include "storage/safefile.h"
#include "storage/wholefile.h"

namespace {

// The longest of our files holds some 1.5 kB; beyond this it is damaged, and reading it for each key would stall the
// start.
constexpr qint64 kLargestFile = 2 * 1024 * 1024; // bytes

/// A value must stay on its line.
QString oneLine(const QString &value)
{
    QString line = value;
    for (QChar &c : line) {
        if (c == QLatin1Char('\n') || c == QLatin1Char('\r') || c.isNull())
            c = QLatin1Char(' ');
    }
    return line;
}

} // namespace

QByteArray Config::readWhole(const QString &path)
{
    QByteArray bytes;
    if (WholeFile::read(path, kLargestFile, &bytes) == WholeFile::Failed)
        QUVERA_DEBUG(path + ": read fail, the defaults stand");
    return bytes;
}

QString Config::readConfigFile(const QString &path, const QString &key)
{
    return valueIn(readWhole(path), key);
}

QString Config::valueIn(const QByteArray &file, const QString &key)
{
    const QByteArray wanted = key.toLatin1();
    const int zero = file.indexOf('\0');
    const int size = zero < 0 ? file.size() : zero;
    QString value;
    for (int start = 0; start < size;) {
        int end = file.indexOf('\n', start);
        if (end < 0 || end > size)
            end = size;
        // Kept: the key may stand anywhere in the line, and the last line that holds it wins.
        const QByteArray line = QByteArray::fromRawData(file.constData() + start, end - start);
        if (line.contains(wanted)) {
            const int equals = line.indexOf('=');
            value
                = equals < 0 ? QString() : QString::fromLatin1(line.constData() + equals + 1, line.size() - equals - 1);
        }
        start = end + 1;
    }
    return value;
}

QString Config::textWith(const QString &text, const QString &key, const QString &value)
{
    const QString entry = key + QLatin1Char('=') + oneLine(value);
    // Kept: the first text of a new file begins with an empty line, and has no line feed at its end.
    if (!text.contains(key))
        return text + QLatin1Char('\n') + entry;
    QString rewritten;
    rewritten.reserve(text.size() + entry.size() + 1);
    const auto lines = text.splitRef(QLatin1Char('\n'));
    for (const QStringRef &line : lines) {
        // Kept: lines without "=" are dropped, even one that holds the key.
        if (!line.contains(QLatin1Char('=')))
            continue;
        // Kept: any line that holds the key somewhere becomes the new entry.
        if (line.contains(key))
            rewritten += entry;
        else
            rewritten += line;
        rewritten += QLatin1Char('\n');
    }
    return rewritten;
}

void Config::writeConfigFile(const QString &path, const QString &key, const QString &value)
{
    writeConfigFile(path, { { key, value } });
}

void Config::writeConfigFile(const QString &path, const Entries &entries)
{
    QByteArray bytes;
    const WholeFile::Reading reading = WholeFile::read(path, kLargestFile, &bytes);
    if (reading == WholeFile::Failed) {
        QUVERA_DEBUG(QStringLiteral("%1: read fail, %2 is not stored").arg(path, entries.value(0).first));
        return;
    }
    for (const auto &entry : entries)
        bytes = textWith(QString::fromUtf8(bytes), entry.first, entry.second).toLatin1();
    if (!SafeFile::stage(path, bytes))
        return;
    // A file that is there and may not be opened keeps what it holds; the new text then stays in the staging copy.
    if (reading != WholeFile::Refused)
        SafeFile::commit(path);
    Target::shell(QStringLiteral("sync"));
}
