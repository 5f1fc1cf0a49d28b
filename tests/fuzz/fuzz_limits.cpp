// Limit-set files and the file of the active name, of any content: loaded, saved, loaded again.
#include "settings/limitsmanager.h"
#include "fuzz/fuzztarget.h"
#include "unit/storage/rootfiles.h"

#include <cmath>

using FuzzTarget::expect;

namespace {

const QString kSet = QStringLiteral("/mnt/userfs/sys//limits/fuzz.xml");
const QString kCopy = QStringLiteral("/mnt/userfs/sys/copy.xml");

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    FuzzTarget::silenceDebugLog();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray file = FuzzTarget::bytes(data, size);
    RootFiles::write(kSet, file);
    RootFiles::write(LimitsManager::confPath(), file);

    const LimitsManager manager;
    expect(manager.allLimitsList().size() <= 3);
    expect(!manager.activeLimitsName().isEmpty() || manager.allLimitsList().contains(QString()));

    MonitorLimits2 set;
    if (set.loadFile(kSet)) {
        expect(set.limit().harmonicCount >= 0 && set.limit().harmonicCount <= monitor_limit::kRows);
        expect(std::isfinite(set.limit().voltage.nep) && std::isfinite(set.limit().frequency2.whole));
        expect(set.limit().reserved == 0);
        expect(set.saveFile(kCopy));
        MonitorLimits2 again;
        expect(again.loadFile(kCopy)); // what we write we can read
        expect(again.limit().harmonicCount == set.limit().harmonicCount);
        monitor_limit_int hundredths {};
        limit_float2int(set.limit(), &hundredths);
    }
    return 0;
}
