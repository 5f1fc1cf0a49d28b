#include "board/wpaanswers.h"

#include "board/ssidtext.h"

#include <QList>

bool WpaAnswers::isOk(const QByteArray &answer)
{
    return answer.trimmed() == "OK";
}

int WpaAnswers::networkNumber(const QByteArray &answer)
{
    bool ok = false;
    const int number = answer.trimmed().toInt(&ok);
    return ok && number >= 0 ? number : -1;
}

QString WpaAnswers::value(const QByteArray &answer, const char *name)
{
    const QByteArray beginning = QByteArray(name) + '=';
    // Beginnings are compared at the line's start, so that "bssid=" is not taken for "ssid=".
    for (const QByteArray &line : answer.split('\n')) {
        if (line.startsWith(beginning))
            return QString::fromLatin1(line.mid(beginning.size()));
    }
    return {};
}

__wifi_status WpaAnswers::status(const QByteArray &answer)
{
    return { value(answer, "wpa_state"), value(answer, "ssid"), value(answer, "ip_address"), value(answer, "bssid"),
             value(answer, "key_mgmt") };
}

bool WpaAnswers::endsList(const QByteArray &answer)
{
    return answer.isEmpty() || answer.startsWith("FAIL");
}

WifiInfo WpaAnswers::network(const QByteArray &answer)
{
    const auto given = [&answer](const char *name, const QString &otherwise) {
        const QString text = value(answer, name);
        return text.isEmpty() ? otherwise : text;
    };
    WifiInfo info;
    info.setSsid(value(answer, "ssid"));
    info.setBssid(given("bssid", info.bssid()));
    info.setFreq(given("freq", info.freq()));
    info.setFlags(given("flags", info.flags()));
    info.setLevel(value(answer, "level").toInt());
    return info;
}

int WpaAnswers::networkId(const QByteArray &list, const QByteArray &ssid)
{
    // Number, name, address and flags stand between tabs, which escapes keep out of the name. A line with fewer is the
    // heading's, or was cut off at the buffer's end.
    for (const QByteArray &line : list.split('\n')) {
        const QList<QByteArray> fields = line.split('\t');
        if (fields.size() < 4 || SsidText::unescaped(QString::fromLatin1(fields.at(1))) != ssid)
            continue;
        const int number = networkNumber(fields.at(0));
        if (number >= 0)
            return number;
    }
    return -1;
}

QByteArray WpaAnswers::eventText(const QByteArray &line)
{
    const int end = line.startsWith('<') ? line.indexOf('>') : -1;
    bool isNumber = false;
    line.mid(1, end - 1).toInt(&isNumber);
    return end > 1 && isNumber ? line.mid(end + 1) : line;
}
