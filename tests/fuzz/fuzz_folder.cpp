// A record folder: of each file a byte for its name, two for its length, then its bytes.
#include "fuzz/recordinput.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

const char *const kNames[] = { "Common.pqa2",
                               "Common_2.pqa2",
                               "Common_3.pqa2",
                               "U Harmonic(1-50).pqa2",
                               "U Harmonic(51-100).pqa2",
                               "U Harmonic(1-50)_2.pqa2",
                               "I inHarmonic(0-49).pqa2",
                               "Monitor.pqa2",
                               "other.pqa2" };

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QTemporaryDir folder(FuzzTarget::folderTemplate());
    for (size_t at = 0; at + 3 <= size;) {
        const char *name = kNames[data[at] % std::size(kNames)];
        const size_t length = std::min<size_t>(data[at + 1] | data[at + 2] << 8, size - at - 3);
        QFile file(folder.filePath(QString::fromLatin1(name)));
        FuzzTarget::expect(file.open(QIODevice::WriteOnly)
                           && file.write(reinterpret_cast<const char *>(data) + at + 3, qint64(length))
                               == qint64(length));
        at += 3 + length;
    }
    readRecord(folder.path());
    return 0;
}
