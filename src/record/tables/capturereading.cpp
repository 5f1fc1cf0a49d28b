#include "record/tables/capturereading.h"

#include "model/channelset.h"
#include "record/tables/blockcolumns.h"
#include "record/tables/inputfile.h"
#include "record/wavefile.h"

#include <QFile>

#include <cstring>
#include <vector>

namespace {

constexpr int kInputs = kWaveInputs / 2; // voltages, and as many currents
constexpr quint32 kHighestRate = 1000000; // frames per second, far above the instrument's

/// Inputs of a frame that the wiring has.
std::vector<int> inputsOf(int joinMode)
{
    const ChannelSet *wiring = channelSet(joinMode);
    std::vector<int> inputs;
    for (int input = 0; input < kWaveInputs; ++input) {
        if (!wiring || wiring->has(input % kInputs))
            inputs.push_back(input);
    }
    return inputs;
}

} // namespace

bool CaptureReading::scan(const RecordProgress &progress)
{
    RecordFileReport &report = m_files[0];
    QFile file;
    const QString reason = openInput(&file, report.path);
    WaveFileReader reader(&file);
    report.size = file.size();
    const WaveFileHeader &header = reader.header();
    m_facts.joinMode = channelSet(header.joinMode) ? header.joinMode : 0;
    m_facts.nominalVolt = header.nominalVolt;
    m_facts.nominalFrequency = header.nominalFrequency;
    m_facts.start = qint64(header.begin) * 1000;
    for (WaveChunk chunk; reader.next(&chunk);) {
        m_frames += chunk.frames;
        if (progress && !progress(chunk.offset, report.size))
            return false;
    }
    if (reader.state() != WaveFileReader::Whole)
        report.fault(RecordState(reader.state()), reader.faultOffset(),
                     reason.isEmpty() ? QString::fromLatin1(reader.reason()) : reason);
    m_rate = header.sampleRate;
    m_hasRate = header.sampleRate > 0 && header.sampleRate <= kHighestRate;
    if (!m_hasRate && reader.state() != WaveFileReader::Unreadable)
        report.fault(RecordState::Broken, offsetof(WaveFileHeader, sampleRate),
                     QStringLiteral("the sample rate is none"));
    m_facts.end = m_facts.start + (m_hasRate ? m_frames * 1000 / header.sampleRate : 0);
    report.start = m_facts.start;
    report.end = m_facts.end;
    return true;
}

QVector<std::pair<QString, QString>> CaptureReading::details() const
{
    return { { QStringLiteral("samples"),
               QStringLiteral("%1 of each of %2 inputs, %3 a second")
                   .arg(m_frames)
                   .arg(inputsOf(m_facts.joinMode).size())
                   .arg(m_rate) } };
}

bool CaptureReading::read(RecordSink &sink, const RecordProgress &progress)
{
    QFile file;
    openInput(&file, m_files.at(0).path);
    const WaveFileHeader header = WaveFileReader(&file).header();
    RecordedWaveform waveform;
    waveform.origin = RecordedWaveform::Capture;
    waveform.number = 1;
    waveform.start = double(m_facts.start);
    waveform.sampleRate = header.sampleRate;
    waveform.samples = m_frames;
    for (const int input : inputsOf(m_facts.joinMode)) {
        const bool isVoltage = input < kInputs;
        const int channel = input % kInputs;
        const QByteArray name = inputName(m_facts.joinMode, channel, isVoltage);
        waveform.channels.append(
            { (isVoltage ? "U_" : "I_") + name, name, isVoltage ? "V" : "A",
              RecordedWaveform::factorOf(isVoltage ? header.voltFactor[channel] : header.ampereFactor[channel]) });
    }
    if (!sink.begin(m_facts))
        return false;
    if (m_hasRate && m_frames > 0 && header.sampleRate > 0 && !readFrames(sink, waveform, progress))
        return false;
    return sink.end(m_facts);
}

bool CaptureReading::readFrames(RecordSink &sink, const RecordedWaveform &waveform, const RecordProgress &progress)
{
    QFile file;
    openInput(&file, m_files.at(0).path);
    WaveFileReader reader(&file);
    const std::vector<int> inputs = inputsOf(m_facts.joinMode);
    std::vector<qint16> samples;
    if (!sink.waveformBegin(waveform))
        return false;
    qint64 left = m_frames; // what came since the file was looked through is left out
    for (WaveChunk chunk; left > 0 && reader.next(&chunk);) {
        for (qint64 at = 0; at < chunk.frames;) {
            const QByteArray bytes = reader.frames(chunk, at, qMin(left, WaveFileReader::kMostFrames));
            const int frames = bytes.size() / kWaveFrameBytes;
            if (frames == 0)
                break; // the file has become shorter, or nothing is left of what was seen
            samples.resize(std::size_t(frames) * inputs.size());
            auto *to = samples.data();
            for (int frame = 0; frame < frames; ++frame) {
                for (const int input : inputs)
                    std::memcpy(to++, bytes.constData() + frame * kWaveFrameBytes + input * 2, 2);
            }
            if (!sink.waveformSamples(samples.data(), frames))
                return false;
            at += frames;
            left -= frames;
        }
        if (progress && !progress(chunk.offset, m_files.at(0).size))
            return false;
    }
    return sink.waveformEnd();
}
