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

enum class Value { None, Behind, BehindOrEqual };

/// What the toolkit takes for itself, with one dash or two.
struct ToolkitOption
{
    const char *name;
    Value value; // as the next argument, of some also after "="
};
constexpr ToolkitOption kToolkitOptions[] = {
    { "display", Value::Behind },
    { "dograb", Value::None },
    { "geometry", Value::Behind },
    { "icon", Value::Behind },
    { "name", Value::Behind },
    { "nograb", Value::None },
    { "platform", Value::Behind },
    { "platformpluginpath", Value::Behind },
    { "platformtheme", Value::Behind },
    { "plugin", Value::Behind },
    { "qmljsdebugger", Value::BehindOrEqual },
    { "qwindowgeometry", Value::Behind },
    { "qwindowicon", Value::Behind },
    { "qwindowtitle", Value::Behind },
    { "reverse", Value::None },
    { "session", Value::Behind },
    { "style", Value::BehindOrEqual },
    { "stylesheet", Value::BehindOrEqual },
    { "sync", Value::None },
    { "title", Value::Behind },
    { "visual", Value::Behind },
    { "widgetcount", Value::None },
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
        const bool hasEqual = equals != std::string::npos;
        // The toolkit would pass over what it does not know in silence.
        if (!option || (hasEqual && option->value != Value::BehindOrEqual))
            misused("unknown argument ", argument, "");
        if (option->value != Value::None && !hasEqual && ++i == argc)
            misused("", argument, " needs a value");
    }
}
