// Packages as they may come over the node: any flags, kinds and lengths. Whatever a stream holds, only whole datagrams
// of a known kind and its length are emitted, at most one a package, and the next good datagram always is.
//
// Input: records of 44 bytes. The first 40 are the head of a package; byte 40 and 41 its length (0 and what is beyond a
// package: a whole one), byte 42 the payload's filling, bit 0 of byte 43 puts the pattern of good flags in.
#include "device/datagramkinds.h"
#include "device/devicedsp.h"
#include "fuzz/fuzztarget.h"
#include "unit/device/processorpeer.h"

#include <QCoreApplication>

#include <cstdio>

using FuzzTarget::fail;

namespace {

constexpr size_t kRecord = 44;

/// The link with a far end that this target plays, on one thread.
struct FuzzedLink
{
    FuzzedLink()
    {
        if (!std::freopen("/dev/null", "w", stdout)) // a damaged stream prints a line a package
            fail("no /dev/null");
        constexpr void (DeviceDSP::*kSignals[])(__datagramtype, const QByteArray &)
            = { &DeviceDSP::datagramAggregation, &DeviceDSP::datagramRMS_1_2, &DeviceDSP::datagramTransient,
                &DeviceDSP::datagramWave,        &DeviceDSP::datagramFlicker, &DeviceDSP::datagramFirmwareInfo,
                &DeviceDSP::datagramUpdate };
        for (int i = 0; i < kDatagramKindCount; ++i) {
            QObject::connect(&dsp, kSignals[i], &dsp, [this, i](__datagramtype type, const QByteArray &datagram) {
                ++emitted;
                if (type != i || !kDatagramKinds[i].emitted || datagram.size() != emittedBytes(kDatagramKinds[i]))
                    fail("a datagram of another kind or length");
            });
        }
        dsp.openDSP();
        if (!peer.accept() || !peer.accept())
            fail("the link did not open");
    }
    int take(const QByteArray &package)
    {
        emitted = 0;
        if (!peer.send(package))
            fail("the package was not sent");
        dsp.dspNotifier();
        return emitted;
    }

    ProcessorPeer peer;
    DeviceDSP dsp;
    int emitted = 0;
};

FuzzedLink &fuzzedLink()
{
    static int argc = 1;
    static char name[] = "fuzz_package";
    static char *argv[] = { name, nullptr };
    static QCoreApplication application(argc, argv);
    static FuzzedLink instance;
    return instance;
}

QByteArray packageOf(const uint8_t *record)
{
    QByteArray package(Link::kPackageBytes, char(record[42]));
    memcpy(package.data(), record, 40);
    if (record[43] & 1) {
        package[1] = char(0xFF);
        package[2] = char(uint8_t(package[2]) | 0xA5);
    }
    const int length = record[40] | record[41] << 8;
    if (length > 0 && length < package.size())
        package.truncate(length);
    return package;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzedLink &link = fuzzedLink();
    for (; size >= kRecord; data += kRecord, size -= kRecord) {
        if (link.take(packageOf(data)) > 1)
            fail("two datagrams from one package");
    }
    HeadValues good;
    good.type = DatagramUpdate;
    if (link.take(makePackage(good)) != 1)
        fail("the next good datagram was not emitted");
    return 0;
}
