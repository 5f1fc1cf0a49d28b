#include "frontend/calibrationset.h"

#include <cmath>
#include <cstring>
#include <fstream>

namespace processor {

namespace {

constexpr std::size_t FileBytes = 280;
constexpr std::size_t TableFloats = 16;

void copyTable(CalibrationSet::Table &table, const float *from)
{
    for (std::size_t r = 0; r < 4; ++r)
        std::memcpy(table[r].data(), from + 4 * r, 4 * sizeof(float));
}

bool allFinite(const float *values, std::size_t n, bool positive)
{
    for (std::size_t i = 0; i < n; ++i) {
        if (!std::isfinite(values[i]) || (positive && !(values[i] > 0.0f)))
            return false;
    }
    return true;
}

} // namespace

bool CalibrationSet::load(const std::string &path, std::string &error)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        error = path + ": cannot be read";
        return false;
    }
    char bytes[FileBytes + 1];
    file.read(bytes, sizeof(bytes));
    if (file.gcount() != static_cast<std::streamsize>(FileBytes)) {
        error = path + ": 280 bytes expected";
        return false;
    }
    float values[4 * TableFloats];
    std::memcpy(values, bytes, sizeof(values));
    if (!allFinite(values, 2 * TableFloats, false)) {
        error = path + ": a zero offset is not a number";
        return false;
    }
    if (!allFinite(values + 2 * TableFloats, 2 * TableFloats, true)) {
        error = path + ": a gain is not a positive number";
        return false;
    }
    copyTable(zeroVolt, values);
    copyTable(zeroCurrent, values + TableFloats);
    copyTable(volt, values + 2 * TableFloats);
    copyTable(current, values + 3 * TableFloats);
    return true;
}

} // namespace processor
