#pragma once

#include <QString>
#include <QtGlobal>

#include <cstddef>

/// Band around a nominal value, all numbers positive and in percent of it. T: float, or hundredths as integers.
template <typename T> struct LimitBand
{
    T nep; // percent of the time in which the partial band must hold
    T partialUpper, wholeUpper, partialLower, wholeLower;
};

/// Upper limit with the share of time in which it must hold; 100.1 as `whole` means: not applied.
template <typename T> struct LimitTolerance
{
    T nep; // percent of time
    T partial; // percent, for nep of the time
    T whole; // percent, always
};

template <typename T> struct LimitFlicker
{
    T nep, partial, whole;
    T max; // top of the shown scale
};

template <typename T> struct LimitEvent
{
    T threshold, hysteresis; // percent of nominal
    qint32 maxAllowed; // per period
};

template <typename T> struct LimitRvc
{
    T threshold; // percent
    T steadytime; // s
    T minstep; // percent
    T minrate; // percent per second
    qint32 maxAllowed;
};

template <typename T> struct LimitSignal
{
    T value; // Hz
    T nep, partial, whole; // percent
};

/// One limit set: 198 words of 4 bytes, in the order in which Modbus and the set-up frame read them.
template <typename T> struct LimitRecord
{
    static constexpr int kRows = 50; // room for harmonic rows

    LimitBand<T> voltage;
    qint32 harmonicCount; // rows in use
    T harmonicNep[kRows]; // row 1 (index 0): distortion; row k: order k
    T harmonicPartial[kRows]; // percent of the fundamental
    T harmonicWhole[kRows];
    LimitFlicker<T> plt, pst;
    LimitEvent<T> dips, swells, interruptions;
    LimitRvc<T> rvc;
    LimitTolerance<T> neg, zero; // unbalance, percent
    LimitBand<T> frequency;
    qint32 reserved; // word 189; always 0
    LimitSignal<T> frequency1, frequency2;
};

using monitor_limit = LimitRecord<float>;
/// The same record for the editor: every float field in hundredths.
using monitor_limit_int = LimitRecord<qint32>;

static_assert(sizeof(monitor_limit) == 198 * 4 && sizeof(monitor_limit_int) == 198 * 4, "words of a limit set");
static_assert(offsetof(monitor_limit, harmonicCount) == 5 * 4 && offsetof(monitor_limit, plt) == 156 * 4
                  && offsetof(monitor_limit, dips) == 164 * 4 && offsetof(monitor_limit, rvc) == 173 * 4
                  && offsetof(monitor_limit, neg) == 178 * 4 && offsetof(monitor_limit, frequency) == 184 * 4,
              "order of a limit set");
static_assert(offsetof(monitor_limit, reserved) == 189 * 4 && offsetof(monitor_limit, frequency1) == 190 * 4
                  && offsetof(monitor_limit, frequency2) == 194 * 4,
              "the set-up frame takes the signal frequencies from words 190 and 194");

/// A whole limit above this is not applied (sets store 100.1).
constexpr float kLimitNotApplied = 100.01f;

/// Hundredths of every float field; numbers outside 32 bits are held at their bounds.
void limit_float2int(const monitor_limit &from, monitor_limit_int *to);
void limit_int2float(const monitor_limit_int &from, monitor_limit *to);

/// One named limit set with its file. Format: docs/formats/limit-sets.md. GUI thread.
class MonitorLimits2
{
public:
    MonitorLimits2() { init(); }
    MonitorLimits2(const QString &name, const monitor_limit &limit);

    QString name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    const monitor_limit &limit() const { return m_limit; }
    monitor_limit &limit() { return m_limit; }
    /// The board's path that the set was loaded from or saved to; empty when it has no file.
    QString file() const { return m_file; }

    void init(); // EN50160 values under the name "EN50160_000"
    void initEN50160();
    void initGOST32144();

    /// Reads a file over the set. What the file does not mention stays. False: not a limit set; the object is of no
    /// further use.
    bool loadFile(const QString &path);
    /// Writes the set; false when nothing was stored.
    bool saveFile(const QString &path);

private:
    QString m_name;
    QString m_file;
    monitor_limit m_limit {};
};
