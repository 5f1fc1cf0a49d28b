#include "check.h"
#include "metrology/setup.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

using namespace processor;

namespace {

std::uint32_t wordOf(float value)
{
    std::uint32_t word;
    std::memcpy(&word, &value, sizeof(word));
    return word;
}

std::vector<std::uint32_t> frame(std::uint32_t configuration)
{
    std::vector<std::uint32_t> words(21, 0);
    words[0] = configuration;
    for (std::size_t k = 0; k < 4; ++k) {
        words[1 + k] = wordOf(0.01f * float(k + 1));
        words[5 + k] = wordOf(-0.02f * float(k + 1));
        words[9 + k] = wordOf(1.0f + 0.1f * float(k));
        words[13 + k] = wordOf(1.0f);
    }
    words[17] = wordOf(0.63f);
    words[18] = 230;
    words[19] = wordOf(1375.0f);
    words[20] = wordOf(285.0f);
    return words;
}

} // namespace

TEST(frameIsDecodedWordByWord)
{
    ProcessorSetup setup;
    const auto words = frame(0x003C8001); // 60 Hz, flexible clamp, delta
    CHECK(decodeSetup(words.data(), words.size(), setup));
    CHECK(setup.nominalFrequency == 60);
    CHECK(setup.flexibleClamp);
    CHECK(setup.wiring == Wiring::Delta);
    CHECK(setup.isDelta());
    for (std::size_t k = 0; k < 4; ++k) {
        CHECK(setup.voltageZero[k] == 0.01f * float(k + 1));
        CHECK(setup.currentZero[k] == -0.02f * float(k + 1));
        CHECK(setup.voltageGain[k] == 1.0f + 0.1f * float(k));
        CHECK(setup.currentGain[k] == 1.0f);
    }
    CHECK(setup.transientThreshold == 0.63f);
    CHECK(setup.flickerCurve == 230);
    CHECK(setup.signallingFrequency[0] == 1375.0f);
    CHECK(setup.signallingFrequency[1] == 285.0f);
}

TEST(configurationsOfAllWiringsAndFrequenciesAreKnown)
{
    const std::uint32_t frequencies[] = { 0x320000, 0x3C0000, 0x1900000 };
    const int hertz[] = { 50, 60, 400 };
    const bool delta[] = { false, true, false, false, true };
    for (int f = 0; f < 3; ++f) {
        for (std::uint32_t code = 0; code < 5; ++code) {
            ProcessorSetup setup;
            const auto words = frame(frequencies[f] | code);
            CHECK(decodeSetup(words.data(), words.size(), setup));
            CHECK(setup.nominalFrequency == hertz[f]);
            CHECK(setup.wiring == static_cast<Wiring>(code));
            CHECK(setup.isDelta() == delta[code]);
            CHECK(!setup.flexibleClamp);
        }
    }
}

TEST(framesOfAnotherShapeLeaveTheSetupAlone)
{
    ProcessorSetup setup;
    setup.transientThreshold = 5.0f;
    std::vector<std::uint32_t> words = frame(0x320000);
    words.push_back(0);
    CHECK(!decodeSetup(words.data(), 22, setup));
    CHECK(!decodeSetup(words.data(), 20, setup));
    CHECK(!decodeSetup(nullptr, 0, setup));
    for (std::uint32_t configuration : { 0x330000u, 0u, 0xffff0000u, 0x320005u, 0x327fffu }) {
        words = frame(configuration);
        CHECK(!decodeSetup(words.data(), 21, setup));
    }
    CHECK(setup.transientThreshold == 5.0f);
}

TEST(numbersThatAreNoneTakeTheirDefaults)
{
    ProcessorSetup setup;
    std::vector<std::uint32_t> words = frame(0x320000);
    for (std::size_t i = 1; i < 21; ++i)
        words[i] = wordOf(i % 2 != 0 ? std::nanf("") : std::numeric_limits<float>::infinity());
    CHECK(decodeSetup(words.data(), 21, setup));
    const ProcessorSetup defaults;
    CHECK(setup.voltageZero == defaults.voltageZero);
    CHECK(setup.currentZero == defaults.currentZero);
    CHECK(setup.voltageGain == defaults.voltageGain);
    CHECK(setup.currentGain == defaults.currentGain);
    CHECK(setup.transientThreshold == defaults.transientThreshold);
    CHECK(setup.signallingFrequency == defaults.signallingFrequency);
    CHECK(setup.flickerCurve == 120); // any word but 230
    words = frame(0x320000);
    words[9] = 0;
    CHECK(decodeSetup(words.data(), 21, setup));
    CHECK(setup.voltageGain[0] == 1.0f);
}

TEST_MAIN()
