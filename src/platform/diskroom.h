#pragma once

#include <QString>

struct statfs;

/// The room on the disk under a path. On the board the kernel knows; on a desk a USB disk is a plain folder, whose size
/// stands in a file, and the host's disk says nothing about it. Any thread.
class DiskRoom
{
public:
    /// What statfs(2) answers for a path of the board; false when the path is not there. On a desk a folder in
    /// "/run/media/" that holds the file ".capacity" with a number of bytes has that many, less what its files take.
    static bool ask(const QString &boardPath, struct statfs *info);
};
