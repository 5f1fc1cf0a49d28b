#include "views/recorder/loggerparams.h"

#include "model/channelset.h"
#include "record/loggercolumns.h"

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

constexpr int kFlicker = 28; // bit

/// Lists that have a group.
unsigned listsOf(const LoggerColumns::Group &group)
{
    switch (group.bit) {
    case 0x8: // negative sequences
    case 0x200:
        return ThreePhases;
    case 0x10: // zero sequences
    case 0x400:
        return logger_title_1;
    case 0x200000: // frequency
        return All;
    default:
        return Wired;
    }
}

/// By the family of writers that a wiring has, from 1.
constexpr List kLists[] = { logger_title_1, logger_title_2, logger_title_3, logger_title_4, logger_title_5 };

} // namespace

void LoggerParams::initCurTitle(const ChannelSet *wiring)
{
    const List list = wiring ? kLists[wiring->writer - 1] : logger_title_6;
    for (std::size_t bit = 0; bit < m_titles.size(); ++bit)
        m_titles[bit] = listsOf(LoggerColumns::groups()[bit]) & list ? name(int(bit)) : nullptr;
}

const char *LoggerParams::name(int bit)
{
    return bit == kFlicker ? "Pst Plt" : LoggerColumns::groups()[std::size_t(bit)].name;
}
