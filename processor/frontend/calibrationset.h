#pragma once

#include <array>
#include <string>

namespace processor {

/// Gains and zero offsets of the input stage, rows by range, columns by channel (L1, L2, L3, N).
/// The file form is 70 little-endian floats, 280 bytes: zeroVolt, zeroCurrent, volt, current, six factors of no meaning
/// here; a calibration file of the instrument can be given as it is.
struct CalibrationSet
{
    using Table = std::array<std::array<float, 4>, 4>;
    Table zeroVolt {}; ///< converter units that an open voltage input shows
    Table zeroCurrent {};
    Table volt { { row(39.8f), row(79.25f), row(153.6f), row(667.0f) } }; ///< volts per converter unit
    Table current { { row(99.4f), row(214.45f), row(285.72f), row(71.45f) } }; ///< millivolts of clamp per unit

    /// Reads a file. False, with a reason in `error`, when it cannot be read, is not 280 bytes long, or holds a gain
    /// that is not a positive number; the set is then unchanged.
    bool load(const std::string &path, std::string &error);

private:
    static constexpr std::array<float, 4> row(float gain) { return { { gain, gain, gain, gain } }; }
};

} // namespace processor
