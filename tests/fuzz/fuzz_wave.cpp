// Waveform captures of any content: read to the end. Chunks come in the order of the file and lie inside it, their
// frames are those of the file, and the state goes with the fault.
#include "fuzz/fuzztarget.h"
#include "record/wavefile.h"

#include <QBuffer>

using FuzzTarget::expect;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArray file = FuzzTarget::bytes(data, size);
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    WaveFileReader reader(&buffer);
    qint64 behind = sizeof(WaveFileHeader) + sizeof(quint32); // where the next chunk's frames may begin
    for (WaveChunk chunk; reader.next(&chunk);) {
        expect(chunk.offset >= behind && chunk.frames > 0);
        behind = chunk.offset + chunk.frames * kWaveFrameBytes;
        expect(behind <= file.size());
        const qint64 most = qMin(chunk.frames, WaveFileReader::kMostFrames) * kWaveFrameBytes;
        expect(reader.frames(chunk) == file.mid(int(chunk.offset), int(most)));
    }
    WaveChunk none;
    expect(!reader.next(&none));
    expect((reader.state() == WaveFileReader::Whole) == (reader.faultOffset() < 0));
    expect((reader.state() == WaveFileReader::Whole) == (*reader.reason() == '\0'));
    expect(reader.faultOffset() <= file.size());
    return 0;
}
