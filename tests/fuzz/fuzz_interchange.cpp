// Recordings of any content, exported as COMTRADE and PQDIF: rows, events and waveforms in any order with any bits in
// their numbers and names. Whatever comes out is a file that strict readers take. A byte says what comes next, the
// bytes behind it are its content.
#include "fuzz/fuzztarget.h"
#include "record/exports/comtradeexport.h"
#include "record/exports/pqdifexport.h"
#include "unit/record/comtradereading.h"
#include "unit/record/pqdifreading.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstring>

using FuzzTarget::expect;

namespace {

/// The bytes of the input, zeros behind their end.
class Bytes
{
public:
    Bytes(const uint8_t *data, size_t size) : m_data(data), m_left(size) { }

    bool isEmpty() const { return m_left == 0; }
    template <typename T> T take()
    {
        T value {};
        const size_t size = qMin(m_left, sizeof value);
        if (size > 0)
            std::memcpy(&value, m_data, size);
        m_data += size;
        m_left -= size;
        return value;
    }
    /// Up to \a most bytes.
    QByteArray text(int most)
    {
        const int wanted = int(take<quint8>()) % (most + 1); // first, for it takes a byte of what is left
        const int size = qMin(wanted, int(m_left));
        const QByteArray text(reinterpret_cast<const char *>(m_data), size);
        m_data += size;
        m_left -= size_t(size);
        return text;
    }

private:
    const uint8_t *m_data;
    size_t m_left;
};

RecordFacts factsOf(Bytes *bytes)
{
    RecordFacts facts;
    facts.joinMode = bytes->take<qint8>();
    facts.nominalVolt = bytes->take<double>();
    facts.nominalFrequency = bytes->take<double>();
    facts.start = bytes->take<qint64>();
    facts.model = QString::fromUtf8(bytes->text(20));
    facts.serialNumber = QString::fromLatin1(bytes->text(20));
    facts.ratio = QString::fromLatin1(bytes->text(20));
    return facts;
}

/// What the sinks are told; both hear the same.
class Telling
{
public:
    Telling(Bytes *bytes, std::initializer_list<RecordSink *> sinks) : m_bytes(bytes), m_sinks(sinks) { }

    void next()
    {
        switch (m_bytes->take<quint8>() % 4) {
        case 0:
            return table();
        case 1:
            return row();
        case 2:
            return event();
        default:
            return waveform();
        }
    }

private:
    template <typename Call> void each(const Call &call)
    {
        for (RecordSink *sink : m_sinks)
            expect(call(sink), "a call was refused");
    }

    void table()
    {
        if (m_columns.size() == 32)
            return; // a recording has some two dozen tables
        static constexpr const char *kQuantities[] = { "U_rms", "f", "Uh", "EP", "U_offset" };
        RecordTable table;
        table.name = m_bytes->text(8);
        const int columns = m_bytes->take<quint8>() % 12;
        for (int i = 0; i < columns; ++i) {
            RecordColumn column;
            const int quantity = m_bytes->take<quint8>() % 8;
            column.quantity = quantity < 5 ? QByteArray(kQuantities[quantity]) : m_bytes->text(8);
            column.statistic = Statistic(m_bytes->take<quint8>() % 4);
            column.channel = m_bytes->text(4);
            column.unit = m_bytes->text(4);
            column.type = CellType(m_bytes->take<quint8>() % 4);
            column.order = m_bytes->take<qint16>();
            table.columns.append(column);
        }
        m_columns.append(columns);
        each([&](RecordSink *sink) { return sink->table(m_columns.size() - 1, table); });
    }

    void row()
    {
        if (m_columns.isEmpty())
            return;
        RecordRow row;
        row.table = m_bytes->take<quint8>() % m_columns.size();
        row.time = m_bytes->take<qint64>();
        QVector<double> numbers;
        QVector<QByteArray> texts;
        for (int i = 0; i < m_columns[row.table]; ++i) {
            numbers << m_bytes->take<double>();
            texts << QByteArray("text");
        }
        row.numbers = numbers.constData();
        row.texts = texts.constData();
        each([&](RecordSink *sink) { return sink->row(row); });
    }

    void event()
    {
        RecordedEvent event;
        event.number = ++m_events;
        static_cast<__event_item &>(event.item) = m_bytes->take<__event_item>();
        const int curve = m_bytes->take<quint8>() % 8;
        for (RmsCurve *samples : { &event.item.startRms[curve], &event.item.endRms[curve] }) {
            for (int i = m_bytes->take<quint8>() % 4; i > 0; --i)
                samples->append(m_bytes->take<_value_with_time>());
        }
        each([&](RecordSink *sink) { return sink->event(event); });
    }

    void waveform()
    {
        RecordedWaveform waveform;
        waveform.origin = RecordedWaveform::Origin(m_bytes->take<quint8>() % 3);
        waveform.number = ++m_waveforms;
        waveform.event = m_bytes->take<quint8>();
        waveform.start = m_bytes->take<double>();
        waveform.sampleRate = m_bytes->take<double>();
        waveform.trigger = m_bytes->take<qint64>();
        for (int i = m_bytes->take<quint8>() % 9; i > 0; --i) {
            RecordedWaveform::Channel channel;
            channel.name = m_bytes->text(10);
            channel.channel = m_bytes->text(4);
            channel.unit = m_bytes->text(4);
            channel.factor = m_bytes->take<float>();
            waveform.channels.append(channel);
        }
        each([&](RecordSink *sink) { return sink->waveformBegin(waveform); });
        const int frames = m_bytes->take<quint8>();
        QVector<qint16> samples(frames * waveform.channels.size());
        for (int i = 0; i < qMin(16, samples.size()); ++i)
            samples[i] = m_bytes->take<qint16>();
        each([&](RecordSink *sink) { return sink->waveformSamples(samples.constData(), frames); });
        each([&](RecordSink *sink) { return sink->waveformEnd(); });
    }

    Bytes *m_bytes;
    QVector<RecordSink *> m_sinks;
    QVector<int> m_columns; // of the tables
    int m_events = 0, m_waveforms = 0;
};

void checkPairs(const QString &folder)
{
    const QStringList names = QDir(folder).entryList({ QStringLiteral("*.cfg") }, QDir::Files);
    for (const QString &name : names) {
        expect(ComtradeExport::writes(name), "a name that no export has");
        const ComtradeReading::Pair pair = ComtradeReading::readFiles(folder + '/' + name.chopped(4));
        expect(pair.fault.isEmpty(), qPrintable(name + ": " + pair.fault));
    }
}

void checkFile(const QString &path)
{
    QFile written(path);
    expect(written.open(QIODevice::ReadOnly), "no file");
    const PqdifReading::File file = PqdifReading::read(written.readAll());
    expect(file.fault.isEmpty(), qPrintable(file.fault));
    QString fault;
    for (const PqdifReading::Element *observation : file.observations())
        PqdifReading::channels(file, *observation, &fault);
    expect(fault.isEmpty(), qPrintable(fault));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir folder(FuzzTarget::folderTemplate());
    const QString pairs = folder.filePath(QStringLiteral("pairs")), file = folder.filePath(QStringLiteral("file.pqd"));
    QDir(pairs).removeRecursively();
    Bytes bytes(data, size);
    const bool isCompressed = bytes.take<quint8>() & 1;
    const RecordFacts facts = factsOf(&bytes);
    ComtradeExport comtrade({ pairs, {}, true });
    PqdifExport pqdif({ file, {}, true }, isCompressed);
    expect(comtrade.begin(facts) && pqdif.begin(facts), "not begun");
    Telling telling(&bytes, { &comtrade, &pqdif });
    constexpr int kMost = 500; // more of the same shows nothing new
    for (int i = 0; i < kMost && !bytes.isEmpty(); ++i)
        telling.next();
    expect(comtrade.end(facts), "pairs not finished");
    checkPairs(pairs);
    if (pqdif.end(facts))
        checkFile(file);
    return 0;
}
