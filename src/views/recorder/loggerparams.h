#pragma once

#include <QtGlobal>

#include <array>

struct ChannelSet;

/// Titles of the groups that the logger of text files can write, by the wiring: a group that a wiring does not have has
/// none.
class LoggerParams
{
public:
    static constexpr int kGroups = 29;
    /// Title of each bit of the choice, as it stands in the file; null: no such group.
    using Titles = std::array<const char *, kGroups>;

    /// Takes the titles of a wiring; null: those that need none.
    void initCurTitle(const ChannelSet *wiring);
    /// Title of a bit, 0 to 28, in the wirings that have it.
    static const char *name(int bit);
    const Titles &titles() const { return m_titles; }

private:
    Titles m_titles {};
};
