#include "platform/deskroot.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryFile>

#include "platform/target.h"

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace {

/// Folders of the board's image that the program, its scripts and the processor's stand-in expect.
const char *const kFolders[] = {
    "/bin",
    "/dev",
    "/etc/init.d",
    "/mnt/calibration",
    "/mnt/storage",
    "/mnt/userfs/config",
    "/mnt/userfs/language",
    "/mnt/userfs/skin",
    "/mnt/userfs/sys/limits",
    "/run/media",
    "/sys/bus/iio/devices/iio:device0",
    "/sys/class/backlight/backlight",
    "/sys/class/gpio",
    "/tmp/screenshots",
    "/usr/lib/fonts",
    "/var/log",
    "/var/run/wpa_supplicant",
};

/// One file in place of a kernel attribute.
struct PlainFile
{
    const char *path;
    const char *content;
};
const PlainFile kFiles[] = {
    { "/sys/class/gpio/export", "" },
    { "/sys/class/gpio/unexport", "" },
    { "/sys/class/backlight/backlight/brightness", "7\n" },
    { "/sys/bus/iio/devices/iio:device0/in_voltage0_raw", "2400\n" }, // 8.1 V: a full battery
};

/// Lines that the instrument drives (47 supply latch, 48 to 59 ranges) or reads (105 charging, 117 charged).
const int kGpioLines[] = { 47, 48, 49, 50, 51, 52, 53, 54, 55, 56, 57, 58, 59, 105, 117 };

/// Commands that on a desk only leave a line in var/log/commands.
const char *const kStandIns[] = {
    "/bin/date",
    "/bin/sync",
    "/bin/ps",
    "/bin/kill",
    "/bin/networking.sh",
    "/bin/udhcpc",
    "/bin/wlan0_del_route.sh",
    "/bin/update-unpack",
    "/etc/init.d/networking",
};

/// Faces that stand for those of the board: one with the metrics of Arial, and the WenQuanYi face itself.
struct FontLink
{
    const char *link;
    const char *font;
};
const FontLink kFonts[] = {
    { "/usr/lib/fonts/arial.ttf", "/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf" },
    { "/usr/lib/fonts/WenQuanYiZenHei.ttf", "/usr/share/fonts/truetype/wqy/wqy-zenhei.ttc" },
};

/// Writes aside and links, so that a second process that prepares the same root never meets a half-written file.
bool makeFile(const QString &path, const QByteArray &content, bool executable)
{
    if (QFileInfo::exists(path))
        return true;
    QTemporaryFile staging(path + QStringLiteral(".XXXXXX"));
    if (!staging.open() || staging.write(content) != content.size() || !staging.flush())
        return false;
    auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
    if (executable)
        permissions |= QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
    if (!staging.setPermissions(permissions))
        return false;
    staging.close();
    const int result = ::link(QFile::encodeName(staging.fileName()).constData(), QFile::encodeName(path).constData());
    return result == 0 || errno == EEXIST;
}

QByteArray standInScript(const QString &boardPath)
{
    const QByteArray folder = boardPath.left(boardPath.lastIndexOf('/')).toLatin1();
    return "#!/bin/sh\n"
           "# Stands for the board's command: notes what the instrument asked for and does nothing.\n"
           "printf '%s\\n' \"${0##*/}${*:+ $*}\" >> \"${0%"
        + folder + "/*}/var/log/commands\"\n";
}

QString failure(const QString &path)
{
    return QStringLiteral("The desk root cannot be written: %1 (%2)")
        .arg(path, QString::fromLocal8Bit(strerror(errno)));
}

} // namespace

bool DeskRoot::prepare(QString *error)
{
    const QString fault = Target::rootError();
    if (error)
        *error = fault;
    return fault.isEmpty();
}

QString DeskRoot::build(const QString &root)
{
    // The root is put into shell commands in front of every path, quoted or not.
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9_./+@%,-]+\\z"));
    if (!plain.match(root).hasMatch())
        return QStringLiteral("The desk root cannot be used: %1 holds characters that a shell would split or expand")
            .arg(root.simplified());

    QDir dir;
    for (const char *folder : kFolders) {
        const QString path = root + QLatin1String(folder);
        errno = 0;
        if (!dir.mkpath(path))
            return failure(path);
    }
    if (::access(QFile::encodeName(root).constData(), W_OK) != 0)
        return failure(root);

    for (const PlainFile &file : kFiles) {
        if (!makeFile(root + QLatin1String(file.path), file.content, false))
            return failure(root + QLatin1String(file.path));
    }
    for (int line : kGpioLines) {
        const QString folder = root + QStringLiteral("/sys/class/gpio/gpio%1").arg(line);
        if (!dir.mkpath(folder) || !makeFile(folder + "/value", "0\n", false)
            || !makeFile(folder + "/direction", "in\n", false))
            return failure(folder);
    }
    for (const char *standIn : kStandIns) {
        const QString boardPath = QLatin1String(standIn);
        if (!makeFile(root + boardPath, standInScript(boardPath), true))
            return failure(root + boardPath);
    }
    for (const FontLink &font : kFonts) {
        // A machine without these packages still runs, with the toolkit's default face.
        const QString link = root + QLatin1String(font.link);
        if (!QFileInfo::exists(link) && QFileInfo::exists(QLatin1String(font.font)))
            QFile::link(QLatin1String(font.font), link);
    }
    return {};
}
