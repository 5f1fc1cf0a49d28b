#include "gallery/pages.h"

#include <iterator>

namespace {

constexpr int kRows = 3;
constexpr int kColumns = 4;
const char *const kMenu[kRows][kColumns] = {
    { "power", "vif", "harmonics", "unbalance" },
    { "flicker", "dips_swells", "inrush", "transients" },
    { "mainssignaling", "wave", "logger", "user" },
};

const char *const kWirings[] = { "3P WYE",           "3P IT",       "1P +NEUTRAL", "3P DELTA",    "1P SPLIT PHASE",
                                 "1P IT NO NEUTRAL", "3P HIGH LEG", "3P OPEN LEG", "2.5-ELEMENT", "2-ELEMENT" };

QStringList keys(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// A function of the menu. Its shots: "name" as it opens, then "keys: name" for each further picture.
Page fromMenu(const char *name, const char *item, const QStringList &shots, const char *leave = "", bool at400Hz = true,
              bool everyWiring = true)
{
    Page page {
        QString::fromLatin1(name), QString::fromLatin1(item), QString(), {}, keys(leave), at400Hz, everyWiring
    };
    for (const QString &shot : shots) {
        const int colon = shot.indexOf(QLatin1Char(':'));
        page.shots.append({ keys(colon < 0 ? "" : qPrintable(shot.left(colon))), shot.mid(colon + 1).trimmed() });
    }
    return page;
}

Page byKey(const char *name, const char *key, const QStringList &shots, const char *leave = "", bool at400Hz = true,
           bool everyWiring = true)
{
    Page page = fromMenu(name, "", shots, leave, at400Hz, everyWiring);
    page.key = QString::fromLatin1(key);
    return page;
}

/// The same page of a function that ends the measurement and asks before it does.
Page endingMeasurement(Page page)
{
    page.endsMeasurement = true;
    return page;
}

/// Flicker when its first values of ten minutes have come.
Page flickerOfASite()
{
    Page page = fromMenu("site-flicker", "flicker", { "Wait1500: table", "F4: trend" }, "", false, false);
    page.onRequest = true;
    return page;
}

/// Two hours of a monitor, as docs/user-guide.md does it.
Page monitorOfASite()
{
    Page page = byKey("site-monitor", "F8",
                      { "setup", "F5 Left Left Left Wait7260: overview", "F2 Right Right Right Right: harmonics",
                        "F5 F4: dips", "F3: trend", "F10 F4: recorded" },
                      "", false, false);
    page.onRequest = true;
    return page;
}

/// A site set up from the factory's settings, as docs/user-guide.md does it.
QVector<Page> setUpOfASite()
{
    return {
        endingMeasurement(byKey("site", "F9",
                                { "factory", "F1: wirings", "Enter: wiring", "F4 F2: nominal-voltage",
                                  "F4 F4 Down Right Right Right Right Right Right: clamp",
                                  "Up Right Down Right Right Right Right: neutral", "F4: ready" },
                                "", true, false)),
        fromMenu("site-values", "vif", { "measuring" }, "", true, false),
        endingMeasurement(monitorOfASite()),
        endingMeasurement(flickerOfASite()),
    };
}

/// Where leads and clamps belong, for each wiring in the order of the choice, as docs/guide/connecting.md shows it.
Page connections()
{
    Page page
        = byKey("wiring", "F9",
                { "F1 Enter: 3p-wye", "F5 Right Enter: 3p-it", "F5 Right Enter: 1p-neutral", "F5 Right Enter: 3p-delta",
                  "F5 Right Enter: 1p-split", "F5 Right Enter: 1p-it", "F5 Right Enter: 3p-high-leg",
                  "F5 Right Enter: 3p-open-leg", "F5 Right Enter: 2-5-element", "F5 Right Enter: 2-element" },
                "F5 F5", true, false);
    return endingMeasurement(page);
}

/// A week is recorded, as docs/user-guide.md does it.
QVector<Page> recordingOfASite()
{
    constexpr int kHours = 7 * 24 - 2; // two are offered at first
    const QString week = QStringLiteral("Down") + QStringLiteral(" Right").repeated(kHours) + QStringLiteral(": week");
    return {
        fromMenu("site-recording", "logger",
                 { week, "Down Right Right: interval",
                   "F2 F1 Down Down Down Right Enter Down Enter Down Enter Left Enter Down Enter Right Enter: params",
                   "F4 F5: running", "F5: question" },
                 "F1", true, false),
    };
}

/// A starting motor is caught and its waveform captured, as docs/user-guide.md does it.
QVector<Page> motorOfASite()
{
    return {
        endingMeasurement(
            byKey("site-inrush-levels", "F9", { "F5 F2 Down Down Down Enter: setup" }, "F5 F5", true, false)),
        fromMenu("site-inrush", "inrush", { "F5 Wait24 F5: trend", "F2: events" }, "", true, false),
        endingMeasurement(fromMenu("site-wave", "wave",
                                   { "Down Down Down Right: setup", "Left F5 Wait13: running", "Wait12: ended" }, "F5",
                                   true, false)),
    };
}

/// The editors of clamps and limits; they know neither wiring nor frequency.
QVector<Page> setupEditors()
{
    return {
        endingMeasurement(
            byKey("setup-clamps", "F9",
                  { "F4: choice", "Down Right Right Right Right Right Right: flexible",
                    "Down Right Right Right Right Right: custom", "Enter: ratio-keys", "F5 F2: uneditable",
                    "F5 F1: editor", "Enter: name-keys", "Enter Right Enter F4 Down Down Enter F2 Up Enter F4: edited",
                    "F4: added", "F1 F4: empty", "F5 F5 F3: delete" },
                  "F5 F5", true, false)),
        endingMeasurement(byKey("setup-limits", "F9",
                                { "F5 F1: sets",
                                  "Enter: built-in",
                                  "Enter: voltage-built-in",
                                  "F5 F5 F1 Enter Right Enter F4: added",
                                  "F1 F2 Enter Right Enter F4: exists",
                                  "F5 F1 F4: empty",
                                  "F5 Down Down Enter: items",
                                  "Enter: voltage",
                                  "Down Right Right: voltage-edited",
                                  "Down Right Right: not-applied",
                                  "F4 Down Enter: harmonics",
                                  "F1 Right Down: harmonics-edited",
                                  "F4 Down Enter: flicker",
                                  "F5 Down Enter: dips",
                                  "F5 Down Enter: swells",
                                  "F5 Down Enter: interruptions",
                                  "F5 Down Enter: rvc",
                                  "F5 Down Enter: unbalance",
                                  "F5 Down Enter: frequency",
                                  "F5 Down Enter: mains-signaling",
                                  "F5 F4 F4: in-use",
                                  "F1 F2: delete" },
                                "F5 F5", true, false)),
    };
}

/// The pages about the instrument itself.
Page userPages()
{
    return endingMeasurement(fromMenu("user", "user",
                                      { "list",
                                        "Down Down Down Enter: colors",
                                        "Down Right: colors-changed",
                                        "F5 Down Enter: name",
                                        "F5 F1: date",
                                        "Right: date-year",
                                        "Down Down Down Down Down Right: date-zone",
                                        "F5 F2: lan",
                                        "Down Right: lan-static",
                                        "Down Enter: lan-keyboard",
                                        "F5 F5 F3: wlan",
                                        "F1: wlan-open",
                                        "Enter: wlan-password",
                                        "Enter: wlan-keyboard",
                                        "F5 F4: wlan-refused",
                                        "F5 Down Down Down Enter: wlan-hidden",
                                        "F5 Up Enter: wlan-joined",
                                        "F1 F5 F4: update",
                                        "Right: update-firmware",
                                        "F1: update-no-disk" },
                                      "", true, false));
}

/// What is stored: nothing after the formatting, then two pictures of the menu.
QVector<Page> memory()
{
    return { byKey("memory", "F10",
                   { "F1 F4: empty", "F5 F11 F4 F11 F4 F10: list", "F2: to-usb", "F1: to-usb-all", "F4: no-disk",
                     "F5 F5 F3 Enter: delete", "F4: delete-question", "F5 F5 F1: format-question", "F5 F4: picture" },
                   "F5 F5", true, false) };
}

} // namespace

const QVector<Page> &galleryPages()
{
    constexpr bool kNotAt400Hz = false;
    constexpr bool kOneWiring = false;
    static const QVector<Page> pages = QVector<Page> {
        // F5 closes the status.
        byKey("menu", "", { "menu", "F1: status" }, "F5", true, kOneWiring),
        fromMenu("power", "power", { "table", "F3: energy", "F3 F4: trend" }),
        fromMenu("vif", "vif", { "table", "F5: held", "F5 F4: trend", "F1 F1: trend-u-dc", "F1 F1: trend-i-rms" }),
        fromMenu("harmonics", "harmonics",
                 { "voltage", "Right Right: cursor", "F2: second-channel", "F1: current", "F3: interharmonics",
                   "F4: meter", "Down: meter-down", "F3: meter-r" }),
        fromMenu("unbalance", "unbalance", { "table", "F4: vector", "F1: vector-next" }),
        fromMenu("flicker", "flicker", { "table", "F4: trend" }, "", kNotAt400Hz),
        fromMenu("dips-swells", "dips_swells", { "trend", "F1: current", "F3: cursor", "F4: zoom", "F2: events" }),
        fromMenu("inrush", "inrush", { "setup", "F5: trend", "F2: events" }),
        fromMenu("transients", "transients", { "setup", "F5: live", "F1: captured" }),
        fromMenu("mains-signaling", "mainssignaling", { "table", "F4: trend", "F1: trend-next" }),
        endingMeasurement(fromMenu("wave", "wave",
              { "setup", "Down Left: rate", "Down Down Right: timed", "Left F5: waiting", "F5: question", "F4: ended" },
              "F5", true, kOneWiring)),
        fromMenu("logger", "logger",
                 { "setup", "Down Down Down Enter: timed", "Left F2: params", "Down Down Down Enter Right: params-chosen",
                   "F5 F5: waiting" },
                 "F5 F1", true, kOneWiring),
        userPages(),
        byKey("scope", "F6",
              { "voltage", "F1: next", "F1: next-2", "F1: next-3", "F1: next-4", "F3: cursor", "F3 Up: zoom" }),
        endingMeasurement(byKey("monitor", "F8",
                 { "setup", "Enter Down Down Down Down Down Right: timed", "Up Up Up Up Up Enter F5: overview",
                   "Left Left Left: cursor", "F1: vrms", "F3: vrms-trend", "F5 F4: all", "F5 F2: harmonics",
                   "Right Right Right Right: harmonics-cursor", "F4: harmonics-events", "F3: harmonics-trend",
                   "F5 F5 F5 F3: flicker", "F3: flicker-trend", "F5 F5 F4: dirs", "F3: dirs-trend",
                   "F5 F5 F5: unbalance", "F3: unbalance-trend", "F1: frequency-trend", "F4: zoom" },
                 "F7 F4", kNotAt400Hz)),
        endingMeasurement(byKey("setup", "F9",
              { "first", "F1: wirings", "Right: wirings-next", "F3: wirings-last", "Enter: wiring-detail",
                "F5 F5 F2: nominal-voltage", "Right Right Right Right Right Right Right Right Up Up: custom",
                "F5 F5: second", "F2: functions", "Down Down: functions-third", "Enter: transients",
                "F5 Up Enter: flicker", "F5 Up Up Enter: k-factor", "Right Down Down: k-factor-us",
                "F3 F5 Down Down Down Enter: inrush", "Down Right: inrush-edited",
                "F5 Down Down Down Down Enter: mains-signaling", "Down Down Left: mains-signaling-edited" },
              "F5 F5", true, true)),
        endingMeasurement(byKey("setup-service", "F9",
              { "first", "Right Right Left Left Right Left Right Left: instrument-info", "Down: instrument-info-model",
                "F5 Left Left Right Right Left Right Left Right: calibration", "F1 F2: calibration-l1",
                "F3: calibration-runs", "F5: calibration-question", "F4: left" },
              "", true, kOneWiring)),
    } + memory() + QVector<Page> { connections() } + setupEditors() + setUpOfASite() + recordingOfASite() + motorOfASite();
    return pages;
}

QString wiringName(int joinMode)
{
    return joinMode >= 1 && joinMode <= int(std::size(kWirings)) ? QString::fromLatin1(kWirings[joinMode - 1])
                                                                 : QString();
}

const QStringList &languageWords()
{
    static const QStringList words = keys("EN ZH PO PT_ZOLC KO TU FR SP PT GE SP_LA RU JP IT");
    return words;
}

QStringList menuPath(const QString &from, const QString &to, bool at400Hz)
{
    auto place = [](const QString &item, int *row, int *column) {
        for (*row = 0; *row < kRows; ++*row) {
            for (*column = 0; *column < kColumns; ++*column) {
                if (item == QLatin1String(kMenu[*row][*column]))
                    return;
            }
        }
        *row = *column = 0;
    };
    int row = 0, column = 0, toRow = 0, toColumn = 0;
    place(from, &row, &column);
    place(to, &toRow, &toColumn);
    QStringList path;
    // Along the row first, but never in the row of the flicker item when that is missing: its neighbours lead past it.
    if (at400Hz && row == 1) {
        path << QStringLiteral("Up");
        row = 0;
    }
    for (; column < toColumn; ++column)
        path << QStringLiteral("Right");
    for (; column > toColumn; --column)
        path << QStringLiteral("Left");
    for (; row < toRow; ++row) {
        path << QStringLiteral("Down");
        if (at400Hz && column == 0)
            ++row; // from the first row straight to the third
    }
    for (; row > toRow; --row) {
        path << QStringLiteral("Up");
        if (at400Hz && column == 0)
            --row;
    }
    return path;
}
