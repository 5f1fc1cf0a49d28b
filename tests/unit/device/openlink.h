#pragma once

#include "device/devicedsp.h"
#include "processorpeer.h"

#include <QVector>

/// A link whose far end the test plays. Everything runs on the test's thread: pump() is one firing of the notifier.
struct OpenLink
{
    /// A datagram as a signal brought it.
    struct Datagram
    {
        int signal; // row of kDatagramKinds
        int type;
        QByteArray bytes;
    };

    ProcessorPeer peer;
    DeviceDSP dsp;
    QVector<Datagram> datagrams;
    QVector<quint32> timeStamps;
    QVector<quint32> bdsWords;
    QVector<QByteArray> startFrames; // what was written on both connections of the start-up

    /// Opens the link; false when the far end did not see the two connections.
    bool open()
    {
        constexpr void (DeviceDSP::*kSignals[])(__datagramtype, const QByteArray &)
            = { &DeviceDSP::datagramAggregation, &DeviceDSP::datagramRMS_1_2, &DeviceDSP::datagramTransient,
                &DeviceDSP::datagramWave,        &DeviceDSP::datagramFlicker, &DeviceDSP::datagramFirmwareInfo,
                &DeviceDSP::datagramUpdate };
        for (int i = 0; i < kDatagramKindCount; ++i) {
            QObject::connect(&dsp, kSignals[i], &dsp, [this, i](__datagramtype type, const QByteArray &bytes) {
                datagrams.append({ i, type, bytes });
            });
        }
        QObject::connect(&dsp, &DeviceDSP::dspTimeStamp, &dsp, [this](quint32 s) { timeStamps.append(s); });
        QObject::connect(&dsp, &DeviceDSP::usingBDS, &dsp, [this](quint32 word) { bdsWords.append(word); });
        dsp.openDSP();
        for (int connection = 0; connection < 2; ++connection) {
            if (!peer.accept())
                return false;
            for (QByteArray frame; !(frame = peer.receive()).isEmpty();)
                startFrames.append(frame);
        }
        return true;
    }
    void pump() { dsp.dspNotifier(); }
    void take(const QByteArray &package)
    {
        peer.send(package);
        pump();
    }
    void take(const QVector<QByteArray> &packages)
    {
        for (const QByteArray &package : packages)
            take(package);
    }
    /// One half-cycle datagram with this head; the clock rule runs on each.
    void takeRms(quint32 id, quint32 seconds, quint32 milliseconds = 0, quint32 bds = 0)
    {
        HeadValues head;
        head.id = id;
        head.type = DatagramRMS_1_2;
        head.bds = bds;
        head.seconds = seconds;
        head.milliseconds = milliseconds;
        take(makePackage(head));
    }
};
