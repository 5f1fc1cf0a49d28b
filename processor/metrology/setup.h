#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace processor {

/// Wiring code of the set-up frame, bits 14 to 0 of its first word.
enum class Wiring : int {
    Star = 0, ///< channels 0 to 2 are the inputs as they stand
    Delta = 1, ///< channels 0 to 2 are U12, U23, U31
    Calibration = 2, ///< like Star; the instrument measures its own constants
    TwoAndHalfElement = 3, ///< star; U2 is not connected and is taken as -(U1 + U3)
    TwoElement = 4 ///< delta; the current I2 is not connected and is taken as -(I1 + I3)
};

/// The processor's set-up: the 21 payload words of command 198, decoded. The defaults are those of a processor that has
/// not been set up yet.
struct ProcessorSetup
{
    int nominalFrequency = 50; ///< 50, 60 or 400 Hz
    bool flexibleClamp = false; ///< the phase clamps are Rogowski coils: integrate their samples
    Wiring wiring = Wiring::Star;
    std::array<float, 4> voltageZero {}; ///< zero offsets, in converter units (full scale 10), taken off each sample
    std::array<float, 4> currentZero {};
    /// Gains of the voltage channels relative to channel 0. They bring channels to one scale where samples of several
    /// channels are combined, and nowhere else: the absolute gain of a channel stays with the instrument.
    std::array<float, 4> voltageGain { { 1.0f, 1.0f, 1.0f, 1.0f } };
    std::array<float, 4> currentGain { { 1.0f, 1.0f, 1.0f, 1.0f } }; ///< the same for combined currents
    float transientThreshold = 10.0f; ///< deviation from the expected waveform, converter units; 0 or less: off
    int flickerCurve = 230; ///< 230 or 120 volt lamp
    std::array<float, 2> signallingFrequency { { 1375.0f, 285.0f } }; ///< mains signalling, Hz; 0: not measured

    bool isDelta() const { return wiring == Wiring::Delta || wiring == Wiring::TwoElement; }
};

constexpr std::size_t SetupWords = 21;

/// Decodes the payload of a set-up frame, already unescaped. False, and `setup` untouched, when there are not exactly
/// 21 words, or the nominal frequency or the wiring code is none that is known. A zero offset, gain, threshold or
/// frequency that is not a finite number takes its default; a gain of 0 as well; any flicker word but 230 means the 120
/// V lamp.
bool decodeSetup(const std::uint32_t *words, std::size_t n, ProcessorSetup &setup);

} // namespace processor
