#include "record/tables/pagereading.h"

#include "model/channelset.h"
#include "record/pqafile.h"
#include "record/tables/inputfile.h"

#include <QFile>

#include <algorithm>
#include <iterator>

namespace {

const QByteArray kPngStart = QByteArrayLiteral("\x89PNG\r\n\x1A\n");
const QByteArray kTrailer = QByteArrayLiteral("\xAA\x55");

QByteArray bytesAt(QFile *file, qint64 at, int count)
{
    return file->seek(at) ? file->read(count) : QByteArray();
}

/// Functions whose pages can be saved as data.
struct PageName
{
    qint32 page;
    const char *name;
};
constexpr PageName kPages[] = {
    { 2, "Volts/Amps/Hertz" }, { 3, "Dips and swells" },   { 4, "Harmonics" },
    { 5, "Transients" },       { 6, "Power and energy" },  { 7, "Inrush" },
    { 8, "Unbalance" },        { 9, "Flicker" },           { 10, "Wave" },
    { 11, "Scope" },           { 12, "Mains signalling" }, { 20, "Monitor" },
    { 26, "Logger" },          { 30, "Set-up" },
};

} // namespace

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
    m_page = header.page;
    m_image = header.imageSize;
    m_data = header.dataSize;
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

QVector<std::pair<QString, QString>> PageReading::details() const
{
    const auto row = std::find_if(std::begin(kPages), std::end(kPages),
                                  [this](const PageName &page) { return page.page == m_page; });
    return {
        { QStringLiteral("page"), row == std::end(kPages) ? QString::number(m_page) : QString::fromLatin1(row->name) },
        { QStringLiteral("content"), QStringLiteral("picture of %1 bytes, record of %2").arg(m_image).arg(m_data) }
    };
}

bool PageReading::read(RecordSink &sink, const RecordProgress &)
{
    return sink.begin(m_facts) && sink.end(m_facts);
}
