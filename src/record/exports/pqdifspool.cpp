#include "record/exports/pqdifspool.h"

#include "record/exports/outputfile.h"
#include "record/exports/pqdiftags.h"

#include <algorithm>
#include <cerrno>
#include <zlib.h>

namespace {

#pragma pack(push, 1)
struct RecordHead
{
    PqdifId signature, type;
    qint32 headSize;
    qint32 bodySize;
    qint32 next; // file offset of the next record, 0: none
    quint32 checkSum;
    char reserved[16];
};
#pragma pack(pop)
static_assert(sizeof(RecordHead) == 64, "head of a record");

quint32 checkSumOf(const QByteArray &bytes)
{
    return quint32(
        ::adler32(::adler32(0, nullptr, 0), reinterpret_cast<const Bytef *>(bytes.constData()), uInt(bytes.size())));
}

/// Puts heads in front of bodies, and knows where the next one stands.
class Chain
{
public:
    explicit Chain(OutputFile *file) : m_file(file) { }

    void write(const PqdifId &type, const QByteArray &body, quint32 checkSum, bool last)
    {
        m_offset += qint64(sizeof(RecordHead)) + body.size();
        const RecordHead head { PqdifTag::kSignature,
                                type,
                                qint32(sizeof(RecordHead)),
                                body.size(),
                                last ? 0 : qint32(m_offset),
                                checkSum,
                                {} };
        m_file->write(reinterpret_cast<const char *>(&head), sizeof head);
        m_file->write(body);
    }

private:
    OutputFile *m_file;
    qint64 m_offset = 0;
};

} // namespace

PqdifSpool::PqdifSpool(const QString &folder, bool compressed)
    : m_compressed(compressed), m_file(folder + QStringLiteral("/.quvera-spool-XXXXXX"))
{ }

/// The toolkit has no words for a disk that takes a part.
bool PqdifSpool::failBySystem()
{
    m_error = errno != 0 ? qt_error_string(errno) : QStringLiteral("the disk did not take all of it");
    return false;
}

/// As the body stands in the file.
QByteArray PqdifSpool::stored(const QByteArray &body) const
{
    if (!m_compressed)
        return body;
    // The toolkit puts the length in front of the stream.
    return qCompress(body).mid(4);
}

bool PqdifSpool::add(const QByteArray &body, qint64 time)
{
    errno = 0;
    if (!m_file.isOpen() && !m_file.open())
        return failBySystem();
    const QByteArray bytes = stored(body);
    if (bytes.isEmpty() || m_file.write(bytes) != bytes.size())
        return failBySystem();
    m_observations.append(
        { time, m_size - qint64(sizeof(RecordHead)) * m_observations.size(), bytes.size(), checkSumOf(bytes) });
    m_size += qint64(sizeof(RecordHead)) + bytes.size();
    return true;
}

bool PqdifSpool::writeTo(OutputFile *file, const QVector<Record> &first)
{
    errno = 0;
    if (m_file.isOpen() && !m_file.flush())
        return failBySystem();
    std::stable_sort(m_observations.begin(), m_observations.end(),
                     [](const Observation &a, const Observation &b) { return a.time < b.time; });
    Chain chain(file);
    for (int i = 0; i < first.size(); ++i) {
        const QByteArray bytes = i == 0 ? first[i].body : stored(first[i].body);
        chain.write(first[i].type, bytes, checkSumOf(bytes), m_observations.isEmpty() && i == first.size() - 1);
    }
    for (int i = 0; i < m_observations.size(); ++i) {
        const Observation &observation = m_observations[i];
        if (!m_file.seek(observation.offset))
            return failBySystem();
        const QByteArray bytes = m_file.read(observation.size);
        if (bytes.size() != observation.size)
            return failBySystem();
        chain.write(PqdifTag::kObservationRecord, bytes, observation.checkSum, i == m_observations.size() - 1);
    }
    return true;
}
