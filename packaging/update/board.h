#pragma once

#include <string>

/// Where an update leaves what on the instrument. `root` stands for "/" on a desk and is empty on the board.
namespace update {

constexpr char kKeyFile[] = "/etc/quvera/update.pub"; // PEM, Ed25519
constexpr char kStateFolder[] = "/var/lib/quvera"; // the program's own; the key's folder is the maker's
constexpr char kMinimumFile[] = "update.minimum"; // in it: a line "software N" and one "firmware N"
constexpr char kSoftwareFolder[] = "/opt/quvera";
constexpr char kVersionsFolder[] = "versions"; // in the software's folder: one folder for each installed version
constexpr char kCurrentLink[] = "current"; // to the version that is started
constexpr char kPreviousLink[] = "previous"; // to the one before
constexpr char kTemporaryFolder[] = "/tmp";
constexpr char kFirmwareFile[] = ".firmwareupd.tmp"; // where the instrument looks for the plain image

/// The folder that stands for "/", from QUVERA_ROOT.
std::string rootFolder();

} // namespace update
