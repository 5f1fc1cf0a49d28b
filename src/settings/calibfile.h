#pragma once

#include <QtGlobal>

#include <cstddef>

/// Constants that turn raw values of the processor into volts and amperes, as they stand in calibration.dat.
/// Row: analog range 0 to 3. Column: channel L1, L2, L3, N. Little-endian floats (docs/formats/calibration.md).
struct __calib_data
{
    float zeroVolt[4][4]; // offset per voltage range, converter units
    float zeroCurrent[4][4]; // offset per current range, converter units
    float volt[4][4]; // gain per voltage range: 120, 220, 400, 600 V
    float current[4][4]; // gain per current range
    float factors[6]; // stored and carried along
};
static_assert(sizeof(__calib_data) == 280, "size of calibration.dat");
static_assert(offsetof(__calib_data, zeroCurrent) == 64 && offsetof(__calib_data, volt) == 128
                  && offsetof(__calib_data, current) == 192 && offsetof(__calib_data, factors) == 256,
              "layout of calibration.dat");

/// The calibration file and its image in memory. The global m_calib_data_g serves the measurement; the calibration
/// procedure works on one of its own. GUI thread; the values are not checked.
class CalibFile
{
public:
    /// Makes the folder, takes the factory defaults and then what the file holds.
    CalibFile();

    /// The block as 70 floats.
    float *calibData() { return reinterpret_cast<float *>(&m_data); }
    const float *calibData() const { return reinterpret_cast<const float *>(&m_data); }
    const __calib_data &data() const { return m_data; }
    __calib_data &data() { return m_data; }

    /// Fills the block with the factory defaults.
    void initCalibData();
    /// Reads the file over the block. A short file leaves the tail as it is, an unreadable one everything; a missing
    /// one is written.
    void load();
    /// Writes the block. Refused as long as the last load ended in a read error: the calibration would be lost.
    void save();

private:
    __calib_data m_data {};
    bool m_unread = false;
};
