#pragma once

#include <string>

namespace update {

/// Exit statuses of update-unpack. The instrument tells 0, 1 and all others apart (docs/updates.md).
enum Status : int {
    Done = 0,
    Refused = 1, // the package: unsigned, changed, cut, too old, too large, names that are not allowed
    WrongCall = 2,
    Unreadable = 3, // the package cannot be read: no ordinary file, an error of the disk, a disk that was pulled
    NotInstalled = 4, // the instrument cannot take it: no key, an unreadable minimum, no room, a failed write
    Busy = 5, // another update is under way
};

/// How something went, with one line for whoever reads the journal.
struct Outcome
{
    Status status = Done;
    std::string text;

    bool good() const { return status == Done; }
};

} // namespace update
