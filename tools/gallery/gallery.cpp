#include "gallery/gallery.h"

#include "desk/wirelessstandin.h"

#include <QDir>
#include <QElapsedTimer>
#include <QThread>
#include <algorithm>
#include <cstdio>

namespace {

constexpr char kSettingFile[] = "/mnt/userfs/sys/setting.conf";
constexpr char kUserFile[] = "/mnt/userfs/config/user.conf";
// The item that is current when the instrument starts.
constexpr char kFirstItem[] = "vif";

QString variantName(int wiring, int frequency, const QString &language)
{
    QString name = QStringLiteral("%1, %2 Hz").arg(wiringName(wiring)).arg(frequency);
    return language == QLatin1String("EN") ? name : name + QStringLiteral(", ") + language;
}

// NOM_FREQ: 1 is 50 Hz, 2 is 60 Hz, 3 is 400 Hz.
int frequencyCode(int frequency)
{
    return frequency == 400 ? 3 : frequency == 60 ? 2 : 1;
}

} // namespace

Gallery::Gallery(const GalleryOptions &options) : m_options(options) { }

bool Gallery::run()
{
    if (!QDir().mkpath(m_options.folder)) {
        m_error = m_options.folder + QStringLiteral(": cannot be made");
        return false;
    }
    for (const QString &language : qAsConst(m_options.languages)) {
        bool isFirst = true;
        for (int frequency : qAsConst(m_options.frequencies)) {
            for (int wiring : qAsConst(m_options.wirings)) {
                if (!runVariant(wiring, frequency, language, isFirst))
                    return false;
                isFirst = false;
            }
        }
    }
    if (!writeIndex(m_options.folder, m_pictures)
        || (m_options.sheet
            && !writeContactSheet(m_options.folder, m_pictures, m_options.folder + QStringLiteral("/sheet.png")))) {
        m_error = m_options.folder + QStringLiteral(": cannot be written");
        return false;
    }
    return true;
}

// One start of both programs. Pages that look the same in every wiring come with the first of a language only.
bool Gallery::runVariant(int wiring, int frequency, const QString &language, bool isFirst)
{
    const QString variant = variantName(wiring, frequency, language);
    std::printf("%s\n", qPrintable(variant));
    std::fflush(stdout);
    DeskInstrument desk(m_options.binDir);
    desk.setSetting(QLatin1String(kSettingFile), QStringLiteral("JOINMODE"), QString::number(wiring));
    desk.setSetting(QLatin1String(kSettingFile), QStringLiteral("NOM_FREQ"), QString::number(frequencyCode(frequency)));
    desk.setSetting(QLatin1String(kUserFile), QStringLiteral("LANG"), language);
    const WirelessStandIn wireless(desk.root()); // without one the page of networks would be empty
    QStringList arguments;
    // Without a wish the supply has the nominal frequency, or every page would show a frequency that is lost.
    const QString nominal = frequency == 50 ? QStringLiteral("nominal") : QStringLiteral("nominal-%1").arg(frequency);
    arguments << QStringLiteral("--scenario") << (m_options.scenario.isEmpty() ? nominal : m_options.scenario);
    if ((m_options.speed != 1 && !desk.setSpeed(m_options.speed)) || !desk.start(arguments)) {
        m_error = desk.error();
        return false;
    }
    if (m_options.warmUpMs > 0 && !warmUp(desk)) {
        m_error = variant + QStringLiteral(": ") + desk.error();
        return false;
    }
    QString item = QLatin1String(kFirstItem);
    for (const Page &page : galleryPages()) {
        const bool wanted = m_options.pages.isEmpty() ? !page.onRequest : m_options.pages.contains(page.name);
        if (!wanted || (!page.everyWiring && !isFirst) || (!page.at400Hz && frequency == 400))
            continue;
        if (!showPage(desk, page, variant, frequency == 400, &item)) {
            m_error = QStringLiteral("%1 (%2): %3").arg(page.name, variant, desk.error());
            return false;
        }
    }
    if (!desk.isInstrumentRunning()) {
        m_error = QStringLiteral("the instrument ended: ") + QString::fromUtf8(desk.instrumentOutput().right(1000));
        return false;
    }
    return true;
}

// A measurement counts down before it runs, and goes on when its page is left. Its first values change the table of the
// first item, which stands between header and soft keys.
bool Gallery::warmUp(DeskInstrument &desk)
{
    const auto table = [](const QImage &screen) { return screen.copy(0, 110, 640, 320); };
    if (!desk.press({ QStringLiteral("Enter") }))
        return false;
    const QImage empty = desk.screen();
    const auto hasValues = [&](const QImage &now) { return m_options.isStopped() || table(now) != table(empty); };
    if (desk.waitForScreen(hasValues, 60000).isNull())
        return false;
    return wait(m_options.warmUpMs) && desk.press({ QStringLiteral("Menu") });
}

// From the menu to the page, through its pictures, and back to the menu.
bool Gallery::showPage(DeskInstrument &desk, const Page &page, const QString &variant, bool at400Hz, QString *item)
{
    // Setup ends the measurement. F4 agrees where it asks, else it opens the clamps; F7 leads to the menu from either.
    if (page.endsMeasurement && !desk.press({ QStringLiteral("F9"), QStringLiteral("F4"), QStringLiteral("F7") }))
        return false;
    QStringList way;
    if (!page.menuItem.isEmpty()) {
        way = menuPath(*item, page.menuItem, at400Hz);
        way << QStringLiteral("Enter");
        *item = page.menuItem;
    } else if (!page.key.isEmpty()) {
        way << page.key;
    }
    if (!desk.press(way))
        return false;
    for (const Shot &shot : page.shots) {
        if (!press(desk, shot.keys) || !take(desk, page, shot.name, variant))
            return false;
    }
    return desk.press(page.leave) && desk.press({ QStringLiteral("F7") });
}

bool Gallery::press(DeskInstrument &desk, const QStringList &keys) const
{
    static const QString waiting = QStringLiteral("Wait");
    for (const QString &key : keys) {
        const bool good = key.startsWith(waiting) ? wait(key.midRef(waiting.size()).toInt() * 1000 / m_options.speed)
                                                  : desk.press({ key });
        if (!good || m_options.isStopped())
            return false;
    }
    return true;
}

/// False when it was cut short.
bool Gallery::wait(int ms) const
{
    constexpr int kLookMs = 50;
    QElapsedTimer timer;
    timer.start();
    while (!m_options.isStopped() && timer.elapsed() < ms)
        QThread::msleep(ulong(std::clamp<qint64>(ms - timer.elapsed(), 0, kLookMs)));
    return !m_options.isStopped();
}

bool Gallery::take(DeskInstrument &desk, const Page &page, const QString &shot, const QString &variant)
{
    if (!wait(m_options.settleMs))
        return false;
    const QImage image = desk.screen();
    QString file = QStringLiteral("%1-%2-%3.png").arg(page.name, shot, variant);
    file.replace(QLatin1Char(' '), QLatin1Char('_')).remove(QLatin1Char(','));
    if (image.isNull() || !image.save(m_options.folder + QLatin1Char('/') + file, "PNG"))
        return false;
    m_pictures.append({ file, page.name, shot, variant });
    return true;
}
