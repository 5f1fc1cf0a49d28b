#include "link/streamfile.h"

#include <QtEndian>

namespace wire {

namespace {

constexpr int kMagicBytes = int(sizeof StreamWriter::kMagic) - 1;
constexpr int kHeadBytes = 12;

} // namespace

bool StreamWriter::open(const QString &path, QString *error)
{
    m_file.setFileName(path);
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Truncate) && m_file.write(kMagic, kMagicBytes) == kMagicBytes)
        return true;
    *error = QStringLiteral("cannot write %1: %2").arg(path, m_file.errorString());
    return false;
}

bool StreamWriter::write(const StreamMessage &message)
{
    char head[kHeadBytes];
    qToLittleEndian<quint64>(message.microseconds, head);
    qToLittleEndian<quint32>(quint32(message.bytes.size()), head + 8);
    const qint64 start = m_file.pos();
    if (m_file.write(head, kHeadBytes) == kHeadBytes && m_file.write(message.bytes) == message.bytes.size())
        return true;
    m_file.resize(start);
    m_file.close();
    return false;
}

void StreamWriter::close()
{
    m_file.close();
}

bool StreamReader::open(const QString &path, QString *error)
{
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read %1: %2").arg(path, m_file.errorString());
        return false;
    }
    if (m_file.read(kMagicBytes) != QByteArray(StreamWriter::kMagic)) {
        *error = QStringLiteral("%1 is no recorded stream").arg(path);
        m_file.close();
        return false;
    }
    return true;
}

std::optional<StreamMessage> StreamReader::next()
{
    char head[kHeadBytes];
    const qint64 got = m_file.read(head, kHeadBytes);
    if (got != kHeadBytes) {
        m_damaged = got != 0;
        return std::nullopt;
    }
    StreamMessage message;
    message.microseconds = qFromLittleEndian<quint64>(head);
    const quint32 length = qFromLittleEndian<quint32>(head + 8);
    if (length <= kMaxMessage)
        message.bytes = m_file.read(length);
    if (length == 0 || message.bytes.size() != int(length)) {
        m_damaged = true;
        return std::nullopt;
    }
    return message;
}

} // namespace wire
