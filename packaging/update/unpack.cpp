// update-unpack PACKAGE: checks an update package and installs it. Called by the instrument's update page.
#include "board.h"
#include "install.h"
#include "minimum.h"

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/stat.h>

using namespace update;

namespace {

constexpr char kUsage[]
    = "Usage: update-unpack PACKAGE\n"
      "Checks a package and installs it under QUVERA_ROOT, or on this machine. QUVERA_UPDATE_KIND,\n"
      "\"software\" or \"firmware\": the other kind is refused. See docs/updates.md.\n";

/// The kind that the user chose; without the variable, as by hand, any.
std::optional<Kind> wantedKind()
{
    const char *wanted = std::getenv("QUVERA_UPDATE_KIND");
    for (const Kind kind : { Kind::Software, Kind::Firmware }) {
        if (wanted && std::string(wanted) == kindName(kind))
            return kind;
    }
    return {};
}

Outcome unpack(const std::string &path)
{
    constexpr std::size_t kMostKeyBytes = 4096;
    const std::string root = rootFolder();
    std::string publicKey;
    if (!readSmall(root + kKeyFile, kMostKeyBytes, &publicKey))
        return { NotInstalled, "the instrument has no key that packages are checked with" };
    Package package;
    Outcome outcome = package.open(path, publicKey, wantedKind());
    if (!outcome.good())
        return outcome;
    const Head &head = package.head();
    const Minimum minimum(root);
    const std::optional<std::uint32_t> oldest = minimum.of(head.kind);
    if (!oldest)
        return { NotInstalled, "the oldest version that is allowed cannot be read" };
    if (head.version < *oldest)
        return { Refused, "the package is refused: it is older than allowed" };
    outcome = head.kind == Kind::Software ? installSoftware(package, root) : leaveFirmware(package, root);
    if (outcome.good() && !minimum.raise(head.kind, head.minimum))
        return { NotInstalled, "the new version is there, but the oldest one allowed cannot be stored" };
    return outcome;
}

} // namespace

int main(int argc, char **argv)
{
    std::setlocale(LC_NUMERIC, "C");
    ::umask(022);
    if (argc == 2 && std::strcmp(argv[1], "--help") == 0)
        return std::fputs(kUsage, stdout) >= 0 && std::fflush(stdout) == 0 ? 0 : WrongCall;
    if (argc != 2) {
        std::fputs(kUsage, stderr);
        return WrongCall;
    }
    const Outcome outcome = unpack(argv[1]);
    if (!outcome.good())
        std::fprintf(stderr, "update-unpack: %s\n", outcome.text.c_str());
    return outcome.status;
}
