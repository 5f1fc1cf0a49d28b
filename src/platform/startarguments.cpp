#include "platform/startarguments.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr char kUsage[]
    = "Usage: quvera [-platform NAME] [other options of the toolkit]\n"
      "The program of the instrument. Without QUVERA_ROOT it takes this machine for the board; on a desk ./run.sh\n"
      "starts it, with a processor stand-in and a root of its own.\n"
      "  -platform NAME   what the toolkit draws into, such as xcb, linuxfb or offscreen (without it QT_QPA_PLATFORM)\n"
      "  -h, --help       print this text, and end\n"
      "  --version        print the version, and end\n"
      "Environment: QUVERA_ROOT, folder that stands for \"/\"; QUVERA_MODBUS_PORT (502); QUVERA_REMOTE_PORT (3527).\n";

/// What the toolkit takes for itself, with one dash or two.
struct ToolkitOption
{
    const char *name;
    bool hasValue; // behind it, or behind "="
};
constexpr ToolkitOption kToolkitOptions[] = {
    { "display", true },       { "dograb", false },      { "geometry", true },      { "icon", true },
    { "name", true },          { "nograb", false },      { "platform", true },      { "platformpluginpath", true },
    { "platformtheme", true }, { "plugin", true },       { "qmljsdebugger", true }, { "qwindowgeometry", true },
    { "qwindowicon", true },   { "qwindowtitle", true }, { "reverse", false },      { "session", true },
    { "style", true },         { "stylesheet", true },   { "sync", false },         { "title", true },
    { "visual", true },        { "widgetcount", false },
};

const ToolkitOption *toolkitOption(const std::string &name)
{
    for (const ToolkitOption &option : kToolkitOptions) {
        if (name == option.name)
            return &option;
    }
    return nullptr;
}

[[noreturn]] void misused(const char *before, std::string argument, const char *behind)
{
    constexpr std::size_t kMost = 200;
    for (char &sign : argument) {
        if (static_cast<unsigned char>(sign) < ' ')
            sign = '?';
    }
    std::fprintf(stderr, "quvera: %s\"%s\"%s (quvera --help lists what it takes)\n", before,
                 argument.substr(0, kMost).c_str(), behind);
    std::_Exit(2);
}

[[noreturn]] void finish(const char *format, const char *text)
{
    const bool isWritten = std::printf(format, text) >= 0 && std::fflush(stdout) == 0;
    std::_Exit(isWritten ? 0 : 1);
}

} // namespace

void StartArguments::settle(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        if (argument == "-h" || argument == "-help" || argument == "--help")
            finish("%s", kUsage);
        if (argument == "--version")
            finish("quvera %s\n", QUVERA_VERSION);
        const std::size_t dashes = argument.compare(0, 2, "--") == 0 ? 2 : 1;
        const std::size_t equals = argument.find('=');
        const ToolkitOption *option
            = argument[0] == '-' ? toolkitOption(argument.substr(dashes, equals - dashes)) : nullptr;
        if (!option)
            misused("unknown argument ", argument, "");
        if (option->hasValue && equals == std::string::npos && ++i == argc)
            misused("", argument, " needs a value");
    }
}
