#pragma once

#include <QtGlobal>

#include <array>

/// One of the 128-bit identifiers that name everything in a PQDIF file, as its bytes stand there.
struct PqdifId
{
    std::array<quint8, 16> bytes {};

    constexpr bool operator==(const PqdifId &other) const
    {
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            if (bytes[i] != other.bytes[i])
                return false;
        }
        return true;
    }
};

/// From the usual text, whose first three groups stand in the file the other way round.
constexpr PqdifId pqdifId(const char (&text)[37])
{
    constexpr std::size_t kPlace[16] = { 3, 2, 1, 0, 5, 4, 7, 6, 8, 9, 10, 11, 12, 13, 14, 15 };
    PqdifId id;
    std::size_t digit = 0;
    for (const char letter : text) {
        if (letter == '-' || letter == '\0')
            continue;
        const int value = letter <= '9' ? letter - '0' : letter - 'a' + 10;
        quint8 &byte = id.bytes[kPlace[digit / 2]];
        byte = quint8(byte << 4 | value);
        ++digit;
    }
    return id;
}
