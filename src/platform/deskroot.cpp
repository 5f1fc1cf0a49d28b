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

const char kLanguages[] = "/mnt/userfs/language";

/// Folders of the board's image that the program, its scripts and the processor's stand-in expect.
const char *const kFolders[] = {
    "/bin",
    "/dev",
    "/etc/init.d",
    "/etc/quvera",
    "/mnt/calibration",
    "/mnt/storage",
    "/mnt/userfs/config",
    kLanguages,
    "/mnt/userfs/skin",
    "/mnt/userfs/sys/limits",
    "/opt/quvera",
    "/run/media",
    "/sys/bus/iio/devices/iio:device0",
    "/sys/class/backlight/backlight",
    "/sys/class/gpio",
    "/tmp/screenshots",
    "/usr/lib/fonts",
    "/var/lib/quvera",
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

/// What unpacks updates. It only writes below the root, so where the program stands beside this one the stand-in hands
/// over to it.
const char *const kUnpacker = "/bin/update-unpack";

/// Commands that on a desk only leave a line in var/log/commands.
const char *const kStandIns[] = {
    "/bin/date",
    "/bin/sync",
    "/bin/ps",
    "/bin/kill",
    "/bin/networking.sh",
    "/bin/udhcpc",
    "/bin/wlan0_del_route.sh",
    kUnpacker,
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

/// Links to a file of the host. A link that leads nowhere, to a build that was deleted, is made anew.
void linkTo(const QString &file, const QString &link)
{
    if (QFileInfo::exists(link) || !QFileInfo::exists(file))
        return;
    QFile::remove(link);
    QFile::link(file, link);
}

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

/// What a root or a program's path may hold: scripts and shell commands name it, quoted or not.
bool isPlain(const QString &path)
{
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9_./+@%,-]+\\z"));
    return plain.match(path).hasMatch();
}

/// Lines that hand over to the program of a stand-in's name beside this one, if there is one.
QByteArray handOver(const QString &name)
{
    const QString self = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    const QString program
        = self.left(self.lastIndexOf(QLatin1Char('/'))) + name.mid(name.lastIndexOf(QLatin1Char('/')));
    if (!isPlain(program) || !QFileInfo(program).isExecutable())
        return {};
    return "[ -x '" + program.toLatin1() + "' ] || exit 0\nexec '" + program.toLatin1() + "' \"$@\"\n";
}

QByteArray standInScript(const QString &boardPath)
{
    const QByteArray folder = boardPath.left(boardPath.lastIndexOf('/')).toLatin1();
    return "#!/bin/sh\n"
           "# Stands for the board's command: notes what the instrument asked for and does nothing.\n"
           "printf '%s\\n' \"${0##*/}${*:+ $*}\" >> \"${0%"
        + folder + "/*}/var/log/commands\"\n"
        + (boardPath == QLatin1String(kUnpacker) ? handOver(boardPath) : QByteArray());
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

/// The build puts the languages beside the program. There is no application object yet that would know its folder.
QString DeskRoot::builtLanguages()
{
    return QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath() + QStringLiteral("/language");
}

QString DeskRoot::build(const QString &root, const QString &languages)
{
    if (!isPlain(root))
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
        linkTo(QLatin1String(font.font), root + QLatin1String(font.link));
    }
    const QDir built(languages);
    for (const QString &name : built.entryList({ QStringLiteral("lang_*.qm") }, QDir::Files))
        linkTo(built.absoluteFilePath(name), root + QLatin1String(kLanguages) + QLatin1Char('/') + name);
    return {};
}
