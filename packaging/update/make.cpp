// make-update: makes update packages, and the keys that they are signed with.
#include "compose.h"
#include "crypto.h"
#include "files.h"

#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>

using namespace update;

namespace {

constexpr char kUsage[] = "Usage: make-update software KEY VERSION MINIMUM FOLDER PACKAGE\n"
                          "       make-update firmware KEY VERSION MINIMUM IMAGE PACKAGE\n"
                          "       make-update keys PRIVATE PUBLIC\n"
                          "VERSION grows with each release. Once the package is installed, what is older than MINIMUM\n"
                          "is refused; 0 leaves that as it is. See docs/updates.md.\n";

int fail(const std::string &text)
{
    std::fprintf(stderr, "make-update: %s\n", text.c_str());
    return 1;
}

bool readNumber(const char *text, std::uint32_t *number)
{
    char *end = nullptr;
    errno = 0;
    const unsigned long value = std::strtoul(text, &end, 10);
    *number = std::uint32_t(value);
    return errno == 0 && end != text && *end == '\0' && *text != '-' && value <= 0xFFFFFFFFul;
}

bool writeNew(const char *path, const std::string &content, unsigned mode)
{
    const File file = createFile(AT_FDCWD, path, mode);
    return file && writeAll(file.descriptor(), content.data(), content.size());
}

int writeKeys(const char *privatePath, const char *publicPath)
{
    std::string privateKey, publicKey;
    if (!makeKeys(&privateKey, &publicKey))
        return fail("no keys could be made");
    for (const auto &[path, key, mode] :
         { std::tuple(privatePath, &privateKey, 0600u), std::tuple(publicPath, &publicKey, 0644u) }) {
        if (!writeNew(path, *key, mode))
            return fail(std::string(path) + " cannot be written: " + std::strerror(errno));
    }
    return 0;
}

int writePackage(Kind kind, char **arguments)
{
    constexpr std::size_t kMostKeyBytes = 4096;
    Order order;
    order.kind = kind;
    if (!readSmall(arguments[0], kMostKeyBytes, &order.privateKey))
        return fail(std::string(arguments[0]) + " cannot be read");
    if (!readNumber(arguments[1], &order.version) || !readNumber(arguments[2], &order.minimum))
        return fail("versions are whole numbers up to 4294967295");
    order.source = arguments[3];
    order.package = arguments[4];
    const Outcome outcome = composePackage(order);
    return outcome.good() ? 0 : fail(outcome.text);
}

} // namespace

int main(int argc, char **argv)
{
    std::setlocale(LC_NUMERIC, "C");
    const std::string what = argc > 1 ? argv[1] : "";
    if (what == "keys" && argc == 4)
        return writeKeys(argv[2], argv[3]);
    for (const Kind kind : { Kind::Software, Kind::Firmware }) {
        if (what == kindName(kind) && argc == 7)
            return writePackage(kind, argv + 2);
    }
    const bool isAsked = what == "--help" && argc == 2;
    const bool isWritten = std::fputs(kUsage, isAsked ? stdout : stderr) >= 0 && std::fflush(stdout) == 0;
    return isAsked && isWritten ? 0 : 2;
}
