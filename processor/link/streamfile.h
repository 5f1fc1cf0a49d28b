#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QtGlobal>

#include <optional>

namespace wire {

/// One message of a recorded stream.
struct StreamMessage
{
    quint64 microseconds = 0; // simulated time since the start of the run
    QByteArray bytes;
};

/// Writes a package stream into a file: the text "QVSTREAM1\n", then for each message 8 bytes of time in microseconds,
/// 4 bytes of length (both little-endian), and the bytes as they went out.
class StreamWriter
{
public:
    static constexpr char kMagic[] = "QVSTREAM1\n";

    bool open(const QString &path, QString *error);
    bool isOpen() const { return m_file.isOpen(); }
    /// False when the disk refused; the file is closed then, so that it ends in the last whole message.
    bool write(const StreamMessage &message);
    void close();

private:
    QFile m_file;
};

/// Reads such a file, message by message.
class StreamReader
{
public:
    static constexpr quint32 kMaxMessage = 1u << 20; // bytes; a longer one means a damaged file

    bool open(const QString &path, QString *error);
    bool isOpen() const { return m_file.isOpen(); }
    /// The next message; nothing at the end, and at the first damage.
    std::optional<StreamMessage> next();
    bool damaged() const { return m_damaged; }

private:
    QFile m_file;
    bool m_damaged = false;
};

} // namespace wire
