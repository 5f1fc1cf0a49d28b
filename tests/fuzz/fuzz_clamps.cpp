// Clamp files of any content: loaded, changed, saved, loaded again.
#include "settings/clampif.h"
#include "fuzz/fuzztarget.h"
#include "unit/storage/rootfiles.h"

using FuzzTarget::expect;

namespace {

const QString kFile = QStringLiteral("/mnt/userfs/sys/fuzz.xcl");
const QString kCopy = QStringLiteral("/mnt/userfs/sys/copy.xcl");

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    FuzzTarget::silenceDebugLog();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    RootFiles::write(kFile, FuzzTarget::bytes(data, size));
    ClampIF clamps(kFile);
    expect(clamps.count() >= 9 && clamps.getCurClamp());
    expect(clamps.getCurClamp()->name() == clamps.inUsed());
    const int before = clamps.count();
    if (before > 9) { // some clamp was taken
        expect(clamps.save(kCopy));
        // A catalogue that passed the size check may grow beyond it by its indentation; then only the built-ins return.
        const ClampIF again(kCopy);
        expect(again.count() == before || again.count() == 9);
    }
    while (clamps.count() > 0)
        clamps.removeClamp(clamps.getCurClamp());
    return 0;
}
