#pragma once

#include <QByteArray>

/// How something large goes from "/mnt/storage/": its name at once, by one renaming, so that the next file may have it;
/// the room behind, by whoever has the time. What a lost supply leaves of it is hidden and goes with the next start.
/// Any thread.
namespace Leaving {

/// Takes a file or folder, by its name byte by byte, out of sight. The answer is for free(); empty where nothing is
/// left to be freed.
QByteArray take(const QByteArray &name);
/// Removes what was taken; takes as long as the card needs.
void free(const QByteArray &taken);
/// Removes all that is still there of what was taken, in this run of the program or before.
void freeAll();

} // namespace Leaving
