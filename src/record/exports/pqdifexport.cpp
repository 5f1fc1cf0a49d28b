#include "record/exports/pqdifexport.h"

#include "model/channelset.h"
#include "platform/clock.h"
#include "record/exports/asciitext.h"
#include "record/exports/outputfile.h"
#include "record/exports/waveformcheck.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr int kMostText = 200; // characters
constexpr qint64 kMicroseconds = 1000; // of a ms
constexpr qint64 kDay = 86400 * 1000; // ms

constexpr char kNotes[]
    = "Values of intervals (observations \"Trend ...\") are stamped with the end of their interval. "
      "All times are UTC. Values are primary ones. The duration of \"events that went on\" when the "
      "recording ended is that up to its end.";

/// How the instrument is connected, as far as the format knows it; 0: not at all.
quint32 connectionOf(int joinMode)
{
    const ChannelSet *wiring = channelSet(joinMode);
    constexpr quint32 kSinglePhase = 1, kTwoElements = 2, kStar = 4, kDelta = 5, kSplitPhase = 6;
    constexpr int kCodeOfTwoAndAHalf = 3, kCodeOfTwo = 4;
    if (!wiring || wiring->processorCode() == kCodeOfTwoAndAHalf)
        return 0;
    if (wiring->processorCode() == kCodeOfTwo)
        return kTwoElements;
    if (wiring->taskPhases < 3)
        return wiring->taskPhases == 2 ? kSplitPhase : kSinglePhase;
    return wiring->star() ? kStar : kDelta;
}

PqdifTime startOf(const RecordFacts &facts)
{
    return PqdifTime::ofMicroseconds(isCalendarTime(double(facts.start)) ? facts.start * kMicroseconds : 0);
}

} // namespace

PqdifExport::PqdifExport(const OutputPlace &place, bool compressed) : PqdifExport(place, compressed, Limits()) { }

PqdifExport::PqdifExport(const OutputPlace &place, bool compressed, const Limits &limits)
    : m_place(place), m_compressed(compressed), m_limits(limits),
      m_trends(&m_channels, [this](const QByteArray &body, qint64 time) { return keep(body, time); }),
      m_happenings(&m_channels, [this](const QByteArray &body, qint64 time) { return keep(body, time); })
{ }

bool PqdifExport::fail(const QString &error)
{
    if (m_error.isEmpty())
        m_error = error;
    return false;
}

bool PqdifExport::begin(const RecordFacts &facts)
{
    m_facts = facts;
    m_happenings.begin(facts);
    return beginFile();
}

bool PqdifExport::table(int number, const RecordTable &table)
{
    m_trends.table(number, table, m_facts);
    return true;
}

bool PqdifExport::row(const RecordRow &row)
{
    if (!isCalendarTime(double(row.time)))
        return true;
    // The interval that ends at midnight belongs to the day before.
    const qint64 day = (row.time - 1) / kDay;
    qint64 &latest = m_trends.has(row.table) ? m_day : m_happeningsDay;
    if (day > latest) {
        if (!flush())
            return false;
        if (m_spool->size() > m_limits.atDay && !(endFile() && beginFile()))
            return false;
        latest = day;
    }
    return m_trends.row(row);
}

bool PqdifExport::flush()
{
    return m_trends.flush() && m_happenings.flush();
}

bool PqdifExport::keep(const QByteArray &body, qint64 time)
{
    const bool isFull = m_spool->size() + body.size() > m_limits.most || m_spool->count() >= m_limits.observations;
    if (isFull && m_spool->count() > 0 && !(endFile() && beginFile()))
        return false;
    return m_spool->add(body, time) || fail(targetOf(int(m_files.size())) + QStringLiteral(": ") + m_spool->error());
}

bool PqdifExport::end(const RecordFacts &facts)
{
    m_facts.end = facts.end;
    // What a call before could not keep would be missing.
    if (!m_error.isEmpty() || !flush())
        return false;
    // A recording without anything for such a file makes one without any, as it makes an empty folder of CSV.
    if (m_spool->count() == 0 && m_files.size() > 1)
        m_files.pop_back();
    else if (!endFile())
        return false;
    // The first one last: where it is, all are.
    for (auto file = m_files.rbegin(); file != m_files.rend(); ++file) {
        if (!(*file)->finish())
            return fail((*file)->error());
    }
    return true;
}

/// "week.pqd", "week_2.pqd"
QString PqdifExport::targetOf(int number) const
{
    if (number == 1)
        return m_place.target;
    const QFileInfo target(m_place.target);
    const QString suffix = target.suffix().isEmpty() ? QString() : QLatin1Char('.') + target.suffix();
    return QStringLiteral("%1/%2_%3%4").arg(target.path(), target.completeBaseName()).arg(number).arg(suffix);
}

bool PqdifExport::beginFile()
{
    OutputPlace place = m_place;
    place.target = targetOf(int(m_files.size()) + 1);
    m_files.push_back(std::make_unique<Output>(Output::File, place));
    m_spool = std::make_unique<PqdifSpool>(QFileInfo(place.target).path(), m_compressed);
    return m_files.back()->begin() || fail(m_files.back()->error());
}

bool PqdifExport::endFile()
{
    const QString target = targetOf(int(m_files.size()));
    QVector<PqdifSpool::Record> first { { PqdifTag::kContainerRecord, container() } };
    const bool isEmpty = m_channels.count() == 0; // the format knows no source without channels
    if (!isEmpty)
        first.append({ PqdifTag::kDataSourceRecord, dataSource() });
    if (!isEmpty && m_facts.nominalFrequency > 0)
        first.append({ PqdifTag::kSettingsRecord, settings() });
    OutputFile file;
    if (!file.open(m_files.back()->path()))
        return fail(target + QStringLiteral(": ") + file.reason());
    if (!m_spool->writeTo(&file, first))
        return fail(target + QStringLiteral(": ") + m_spool->error());
    m_spool.reset();
    return file.close() || fail(target + QStringLiteral(": ") + file.reason());
}

QByteArray PqdifExport::container() const
{
    PqdifCollection root;
    root.addVector(PqdifTag::kVersionInfo, QVector<quint32> { 1, 5, 1, 5 });
    root.addText(PqdifTag::kFileName, AsciiText::of(QFileInfo(targetOf(int(m_files.size()))).fileName(), kMostText));
    root.addTime(PqdifTag::kCreation, PqdifTime::ofMicroseconds(Clock::msecs() * kMicroseconds));
    // 2 and 1: each record by itself is a stream of zlib.
    root.addNumber(PqdifTag::kCompressionStyleID, m_compressed ? 2 : 0);
    root.addNumber(PqdifTag::kCompressionAlgorithmID, m_compressed ? 1 : 0);
    root.addText(PqdifTag::kApplication, "quvera-files");
    root.addText(PqdifTag::kNotes, kNotes);
    return root.body();
}

QByteArray PqdifExport::dataSource() const
{
    const QString input = m_place.inputName();
    PqdifCollection root;
    root.addId(PqdifTag::kDataSourceTypeID, PqdifValue::kDataSourceMeasure);
    root.addId(PqdifTag::kVendorID, PqdifValue::kVendorNone);
    root.addText(PqdifTag::kSerialNumberDS, AsciiText::of(m_facts.serialNumber, kMostText));
    root.addText(PqdifTag::kVersionDS, AsciiText::of(m_facts.softwareVersion, kMostText));
    root.addText(PqdifTag::kNameDS, AsciiText::of(input.isEmpty() ? m_facts.model : input, kMostText));
    root.addText(PqdifTag::kOwnerDS, {});
    root.addText(PqdifTag::kLocationDS, {});
    root.addText(PqdifTag::kTimeZoneDS, "UTC");
    root.addTime(PqdifTag::kEffective, startOf(m_facts));
    PqdifCollection &instrument = root.addCollection(PqdifTag::kCustomSourceInfo);
    instrument.addId(PqdifTag::kInstrumentTypeID, PqdifValue::kPowerQualityMeter);
    instrument.addText(PqdifTag::kInstrumentModelName, AsciiText::of(m_facts.model, kMostText));
    m_channels.writeTo(&root);
    return root.body();
}

QByteArray PqdifExport::settings() const
{
    PqdifCollection root;
    root.addTime(PqdifTag::kEffective, startOf(m_facts));
    root.addTime(PqdifTag::kTimeInstalled, startOf(m_facts));
    // Values are those of the primary side already.
    root.addSwitch(PqdifTag::kUseCalibration, false);
    root.addSwitch(PqdifTag::kUseTransducer, false);
    root.addReal(PqdifTag::kNominalFrequency, m_facts.nominalFrequency);
    if (const quint32 connection = connectionOf(m_facts.joinMode))
        root.addNumber(PqdifTag::kSettingPhysicalConnection, connection);
    PqdifCollection &channels = root.addCollection(PqdifTag::kChannelSettingsArray);
    for (int i = 0; i < m_channels.count(); ++i)
        channels.addCollection(PqdifTag::kOneChannelSetting).addNumber(PqdifTag::kChannelDefnIdx, quint32(i));
    return root.body();
}
