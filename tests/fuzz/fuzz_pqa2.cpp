// Recorded files of any content: read to the end with every damage skipped. Blocks come in the order of the file and
// lie inside it, payloads have the length that their head names, and the state goes with the fault.
#include "fuzz/fuzztarget.h"
#include "record/pqa2reader.h"

#include <QBuffer>

using FuzzTarget::expect;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArray file = FuzzTarget::bytes(data, size);
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    Pqa2Reader reader(&buffer);
    qint64 behind = sizeof(Pqa2FileHeader); // where the next block may begin
    qint64 skips = 0;
    do {
        for (Pqa2Block block; reader.next(&block);) {
            expect(block.offset % 4 == 0 && block.offset >= behind);
            behind = block.offset + qint64(sizeof(Pqa2BlockHead));
            expect(behind + block.size <= file.size());
            expect(reader.payload(block) == file.mid(int(behind), int(block.size)));
        }
        expect(++skips <= file.size() / qint64(sizeof(Pqa2BlockHead)) + 1);
    } while (reader.skipDamage());
    Pqa2Block none;
    expect(!reader.next(&none));
    expect((reader.state() == Pqa2Reader::Whole) == (reader.faultOffset() < 0));
    expect((reader.state() == Pqa2Reader::Whole) == (*reader.reason() == '\0'));
    expect(reader.faultOffset() <= file.size());
    return 0;
}
