#include "record/tables/pagereading.h"

#include "model/channelset.h"
#include "record/pqafile.h"
#include "record/tables/inputfile.h"

#include <QFile>

namespace {

const QByteArray kPngStart = QByteArrayLiteral("\x89PNG\r\n\x1A\n");
const QByteArray kTrailer = QByteArrayLiteral("\xAA\x55");

QByteArray bytesAt(QFile *file, qint64 at, int count)
{
    return file->seek(at) ? file->read(count) : QByteArray();
}

} // namespace

PageReading::PageReading(const QString &path)
{
    m_facts.kind = RecordKind::Page;
    m_files.append(RecordFileReport());
    m_files[0].path = path;
}

bool PageReading::scan(const RecordProgress &)
{
    RecordFileReport &report = m_files[0];
    QFile file;
    const QString reason = openInput(&file, report.path);
    report.size = file.size();
    __pqa_file_header header {};
    if (file.read(reinterpret_cast<char *>(&header), sizeof header) != qint64(sizeof header)
        || header.magic != PqaFile::kMagic) {
        report.fault(RecordState::Unreadable, 0, reason.isEmpty() ? QStringLiteral("no head of a saved page") : reason);
        return true;
    }
    m_facts.joinMode = channelSet(header.joinMode) ? header.joinMode : 0;
    m_facts.nominalVolt = header.nominalVolt;
    m_facts.nominalFrequency = header.nominalFrequency;
    m_facts.start = m_facts.end = report.start = report.end = qint64(header.time) * 1000;
    m_facts.softwareVersion = QStringLiteral("%1.%2.%3")
                                  .arg(header.version >> 24)
                                  .arg(header.version >> 16 & 0xFF)
                                  .arg(header.version & 0xFFFF);
    const qint64 image = sizeof header;
    const qint64 trailer = image + header.imageSize + header.dataSize;
    if (header.imageSize > 0 && bytesAt(&file, image, kPngStart.size()) != kPngStart)
        report.fault(report.size < image + kPngStart.size() ? RecordState::Cut : RecordState::Broken, image,
                     QStringLiteral("the picture is none"));
    if (report.size < trailer + kTrailer.size())
        report.fault(RecordState::Cut, report.size, QStringLiteral("the file ends inside its pieces"));
    else if (bytesAt(&file, trailer, kTrailer.size()) != kTrailer)
        report.fault(RecordState::Broken, trailer, QStringLiteral("the mark behind the pieces is missing"));
    else if (report.size > trailer + kTrailer.size())
        report.fault(RecordState::Broken, trailer + kTrailer.size(), QStringLiteral("bytes stand behind the end"));
    return true;
}

bool PageReading::read(RecordSink &sink, const RecordProgress &)
{
    return sink.begin(m_facts) && sink.end(m_facts);
}
