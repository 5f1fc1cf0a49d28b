#pragma once

#include <QMetaType>
#include <QtGlobal>
#include <cstddef>

/// Kinds of datagram that the measurement processor sends. The value travels in the first package.
enum __datagramtype {
    DatagramAggregation = 0,
    DatagramRMS_1_2 = 1,
    DatagramTransient = 2,
    DatagramWave = 3,
    DatagramFlicker = 4,
    DatagramFirmwareInfo = 5,
    DatagramUpdate = 6,
};
typedef __datagramtype DataGramType;
Q_DECLARE_METATYPE(__datagramtype)

/// Fixed sizes of the link. The driver and the processor's firmware depend on them.
namespace Link {
constexpr int kPackageBytes = 8192;
constexpr int kFirstHeadBytes = 40;
constexpr int kNextHeadBytes = 16;
constexpr int kFirstPayloadWords = (kPackageBytes - kFirstHeadBytes) / 4; // 2038
constexpr int kNextPayloadWords = (kPackageBytes - kNextHeadBytes) / 4; // 2044
constexpr int kTimeWords = 2; // placed in front of each payload by the link

// Words of each kind, with the two time words.
constexpr int kAggregationWords = 3250;
constexpr int kRmsWords = 545;
constexpr int kTransientWords = 4005;
constexpr int kWaveWords = 16387;
constexpr int kFlickerWords = 1503;
constexpr int kFirmwareInfoWords = 1026;
constexpr int kUpdateWords = 6;
} // namespace Link
