#pragma once

#include <QtGlobal>

#include <cstddef>
#include <type_traits>

/// One transient: 600 samples of each voltage channel around the spot.
struct __trans_data
{
    qint32 number = 0; // running, from 1
    float frequency = 0; // Hz, of the moment
    double time = 0; // ms since 1970 of the first sample
    quint32 position = 0; // low 24 bits: place inside the record; high 8 bits: channel code 1 to 3
    float rms[4] = {}; // V of the moment
    qint16 samples[4][600] = {};
};
static_assert(offsetof(__trans_data, time) == 8 && offsetof(__trans_data, position) == 16
                  && offsetof(__trans_data, rms) == 20 && offsetof(__trans_data, samples) == 36,
              "order of a transient");
static_assert(std::is_trivially_copyable_v<__trans_data>, "saved byte for byte");

/// What the capture of transients keeps to. Its threshold is a setting.
class TransParam
{
public:
    static constexpr int kMaxEvents = 1000; // kept in a TransientList
};
