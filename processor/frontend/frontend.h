#pragma once

#include "frontend/calibrationset.h"
#include "signal/noise.h"

#include <array>
#include <cstdint>

namespace processor {

/// The analog input stage: range switches, gains, clamps, noise and the 16-bit converter.
///
/// A voltage channel k in the row r of the calibration set gives volts / volt[r][k] converter units, a current channel
/// amperes * ratio / 1000 / current[r][k], where the ratio is the clamp's in microvolts per ampere. The converter's
/// full scale is 10 units: its sample is units * 32768 / 10, rounded, and clips at -32768 and 32767.
///
/// Not thread safe; one owner.
class FrontEnd
{
public:
    /// The four two-bit range selectors.
    enum Selector { PhaseVoltage, NeutralVoltage, PhaseCurrent, NeutralCurrent, SelectorCount };

    explicit FrontEnd(std::uint64_t seed = 1);

    /// Sets a selector to 0..3, only the two low bits count. A voltage selector is the row of the calibration set; a
    /// current selector 0, 1, 2, 3 is its row 0, 2, 1, 3.
    void setSelector(Selector selector, int value);
    int selector(Selector selector) const;
    /// Row of the calibration set that a selector chooses.
    static int rowOf(Selector selector, int value);

    /// The gains and zero offsets of the hardware: what a calibration would have to find.
    void setCalibration(const CalibrationSet &calibration);
    const CalibrationSet &calibration() const;

    /// Clamp of the phases and of the neutral, microvolts per ampere. Ratios of 0 or less are ignored.
    void setClampRatio(double phaseMicrovoltsPerAmpere, double neutralMicrovoltsPerAmpere);
    double phaseClampRatio() const;
    double neutralClampRatio() const;
    /// The phase clamps are Rogowski coils: the converter sees the rate of change of the current, scaled so that the
    /// nominal frequency keeps the clamp's ratio. Let it follow ProcessorSetup::flexibleClamp (the user plugs in what
    /// the instrument is set to) unless a scenario wants the wrong clamp.
    void setRogowski(bool on, double nominalFrequencyHz);

    /// Moves the gains and the zero offsets of all channels and ranges away from the calibration set as time passes, by
    /// so many percent of the gain and so many converter units in an hour of samples. Starts at none.
    void setDrift(double gainPercentPerHour, double offsetUnitsPerHour);

    /// White noise of the converter, r.m.s. in steps of the converter. Starts at kNoise.
    static constexpr double kNoise = 0.4;
    void setNoise(double steps);

    /// Converts n samples of each input, volts and amperes in the order U1, U2, U3, UN, I1, I2, I3, IN.
    void convert(const double *const in[8], std::int16_t *const out[8], int n);

    /// Whether any sample has reached the converter's limit since the last call.
    bool takeClipped();

private:
    void updateFactors();
    void convertChannel(const double *in, std::int16_t *out, int n, int channel);
    void differentiate(const double *in, double *slope, int n, int channel);

    std::array<int, SelectorCount> m_selector { { 0, 0, 0, 0 } };
    CalibrationSet m_calibration;
    double m_phaseRatio = 1000.0; // microvolts per ampere
    double m_neutralRatio = 1000.0;
    bool m_rogowski = false;
    double m_nominalFrequency = 50.0;
    double m_noise = kNoise; // steps, r.m.s.
    double m_gainDrift = 0.0; // per hour
    double m_offsetDrift = 0.0; // steps per hour
    std::uint64_t m_seed;
    std::uint64_t m_position = 0;
    bool m_clipped = false;
    std::array<double, 8> m_factor {}; // steps per volt or ampere
    std::array<double, 8> m_offset {}; // steps
    std::array<double, 8> m_last {}; // last input of a Rogowski channel
    std::array<NoiseBlock, 8> m_noiseBlock;
};

} // namespace processor
