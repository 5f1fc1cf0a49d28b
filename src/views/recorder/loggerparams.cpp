#include "views/recorder/loggerparams.h"

#include "model/channelset.h"

#include <cstddef>

namespace {

/// Lists of titles, as bits of Title::lists.
enum List : unsigned {
    logger_title_1 = 1, // four wires
    logger_title_2 = 2, // three wires: no zero sequence
    logger_title_3 = 4, // one phase and neutral
    logger_title_4 = 8, // two phases and neutral
    logger_title_5 = 16, // one phase without neutral
    logger_title_6 = 32, // no known wiring
    ThreePhases = logger_title_1 | logger_title_2,
    Wired = ThreePhases | logger_title_3 | logger_title_4 | logger_title_5,
    All = Wired | logger_title_6,
};

struct Title
{
    const char *text;
    unsigned lists; // that have it
};

/// In the order of the bits.
const Title kTitles[LoggerParams::kGroups] = {
    { "VRMS", Wired },
    { "VCF", Wired },
    { "VTHD", Wired },
    { "VNEG", ThreePhases },
    { "VZERO", logger_title_1 },
    { "VDC", Wired },
    { "IRMS", Wired },
    { "ICF", Wired },
    { "ITHD", Wired },
    { "INEG", ThreePhases },
    { "IZERO", logger_title_1 },
    { "IDC", Wired },
    { "P", Wired },
    { "S", Wired },
    { "Q", Wired },
    { "PF", Wired },
    { "cosΦ", Wired },
    { "tanΦ", Wired },
    { "EnergyP", Wired },
    { "EnergyS", Wired },
    { "EnergyQ", Wired },
    { "FREQ", All },
    { "VHarmonic", Wired },
    { "IHarmonic", Wired },
    { "VInterHarmonic", Wired },
    { "IInterHarmonic", Wired },
    { "VHarmΦ", Wired },
    { "IHarmΦ", Wired },
    { "Pst Plt", Wired },
};

/// By the family of writers that a wiring has, from 1.
constexpr List kLists[] = { logger_title_1, logger_title_2, logger_title_3, logger_title_4, logger_title_5 };

} // namespace

void LoggerParams::initCurTitle(const ChannelSet *wiring)
{
    const List list = wiring ? kLists[wiring->writer - 1] : logger_title_6;
    for (std::size_t bit = 0; bit < m_titles.size(); ++bit)
        m_titles[bit] = kTitles[bit].lists & list ? kTitles[bit].text : nullptr;
}

const char *LoggerParams::name(int bit)
{
    return kTitles[bit].text;
}
