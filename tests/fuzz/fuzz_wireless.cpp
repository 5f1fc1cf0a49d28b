// Messages of the wireless daemon: whatever it or the air says, a name that is read goes out as one field again.
#include "board/joinsettings.h"
#include "board/ssidtext.h"
#include "board/wpaanswers.h"

#include <QByteArray>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

void require(bool condition)
{
    if (!condition)
        abort();
}

bool isOneLine(const QByteArray &command)
{
    return std::all_of(command.begin(), command.end(), [](char c) { return c >= 0x20 && c < 0x7f; });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), static_cast<int>(std::min<size_t>(size, 4096)));
    const WifiInfo info = WpaAnswers::network(text);
    const QByteArray name = info.ssidBytes();
    require(SsidText::unescaped(SsidText::escaped(name)) == name);
    require(isOneLine(SsidText::escaped(name).toLatin1()));
    for (const NetworkSetting &setting : JoinSettings::withoutAuth(info))
        require(isOneLine(JoinSettings::command(0, setting)));
    require(info.shownName().indexOf(QLatin1Char('\n')) < 0);

    const __wifi_status status = WpaAnswers::status(text);
    require(status.ssid.indexOf(QLatin1Char('\n')) < 0);
    require(WpaAnswers::networkId(text, name) >= -1);
    require(WpaAnswers::networkNumber(text) >= -1);
    require(text.endsWith(WpaAnswers::eventText(text)));
    require(!WpaAnswers::isOk(text) || !WpaAnswers::endsList(text));
    return 0;
}
