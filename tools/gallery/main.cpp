// quvera-gallery: pictures of every page of the instrument, with an index page and a contact sheet.
#include "gallery/gallery.h"
#include "remote/toolcall.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <clocale>
#include <csignal>
#include <cstdio>

namespace {

volatile std::sig_atomic_t stopSignal = 0;

// The instrument that it started, and the folder of that, go before it ends. A second signal ends it at once.
void catchSignals()
{
    struct sigaction action
    {
    };
    action.sa_handler = [](int signal) { stopSignal = signal; };
    action.sa_flags = SA_RESETHAND;
    for (const int signal : { SIGINT, SIGTERM, SIGHUP })
        ::sigaction(signal, &action, nullptr);
}

// "1,3,5-7" or "all" into numbers of the allowed ones; empty when one is not allowed.
QVector<int> parseList(const QString &text, const QVector<int> &allowed)
{
    if (text == QLatin1String("all"))
        return allowed;
    QVector<int> numbers;
    const auto parts = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const QStringList ends = part.split(QLatin1Char('-'));
        bool isFirst = false, isLast = false;
        const int first = ends.first().toInt(&isFirst);
        const int last = ends.last().toInt(&isLast);
        if (!isFirst || !isLast || ends.size() > 2 || last - first > 1000)
            return {};
        for (int number = first; number <= last; ++number) {
            if (!allowed.contains(number))
                return {};
            numbers << number;
        }
    }
    return numbers;
}

QVector<int> upTo(int last)
{
    QVector<int> numbers;
    for (int number = 1; number <= last; ++number)
        numbers << number;
    return numbers;
}

void addOptions(QCommandLineParser &parser)
{
    static const struct
    {
        const char *name, *text, *value, *usual;
    } kOptions[] = {
        { "out", "Folder of the pictures (default: gallery).", "folder", "gallery" },
        { "wirings", "JOINMODE numbers, such as 1,4-6, or all (default: 1).", "list", "1" },
        { "frequencies", "50, 60, 400 or all (default: 50).", "list", "50" },
        { "languages", "Words such as EN,ZH,RU, or all (default: EN).", "list", "EN" },
        { "pages", "Names with commas (default: all).", "list", "" },
        { "scenario", "Scenario file of the processor stand-in.", "file", "" },
        { "settle", "Wait before each picture (default: 1200).", "ms", "1200" },
        { "warm-up", "Live values before the first picture (default: 8000); 0: none.", "ms", "8000" },
        { "speed",
          "Let time run so many times faster, with faketime (default: 1); what a busy machine loses is missing.",
          "times", "1" },
    };
    for (const auto &option : kOptions)
        parser.addOption({ QString::fromLatin1(option.name), QString::fromLatin1(option.text),
                           QString::fromLatin1(option.value), QString::fromLatin1(option.usual) });
    parser.addOption({ QStringLiteral("language"), QStringLiteral("This language alone, with its contact sheet."),
                       QStringLiteral("word") });
    parser.addOption({ QStringLiteral("sheet"), QStringLiteral("Also write a contact sheet, sheet.png.") });
}

QStringList words(const QString &list)
{
    return list.split(QLatin1Char(','), Qt::SkipEmptyParts);
}

// The first of the words that is none of the known ones; null when there is none.
QString unknownWord(const QStringList &words, const QStringList &known)
{
    for (const QString &word : words) {
        if (!known.contains(word))
            return word;
    }
    return {};
}

// What is wrong with the options; empty when they are good.
QString readOptions(const QCommandLineParser &parser, const QStringList &pageNames, GalleryOptions *options)
{
    options->folder = parser.value(QStringLiteral("out"));
    options->scenario = parser.value(QStringLiteral("scenario"));
    options->sheet = parser.isSet(QStringLiteral("sheet")) || parser.isSet(QStringLiteral("language"));
    options->pages = words(parser.value(QStringLiteral("pages")));
    const QString page = unknownWord(options->pages, pageNames);
    if (!page.isNull())
        return QStringLiteral("no page is called \"%1\" (pages: %2)").arg(page, pageNames.join(QLatin1Char(' ')));

    const QString one = parser.value(QStringLiteral("language"));
    const QString languages = one.isEmpty() ? parser.value(QStringLiteral("languages")) : one;
    options->languages = languages == QLatin1String("all") ? languageWords() : words(languages);
    const QString language = unknownWord(options->languages, languageWords());
    if (!language.isNull())
        return QStringLiteral("no language has the word \"%1\" (words: %2)")
            .arg(language, languageWords().join(QLatin1Char(' ')));

    options->wirings = parseList(parser.value(QStringLiteral("wirings")), upTo(10));
    options->frequencies = parseList(parser.value(QStringLiteral("frequencies")), { 50, 60, 400 });
    if (options->wirings.isEmpty() || options->frequencies.isEmpty() || options->languages.isEmpty())
        return QStringLiteral("a list holds numbers that do not exist (quvera-gallery --help)");

    bool isSettle = false, isWarmUp = false;
    options->settleMs = parser.value(QStringLiteral("settle")).toInt(&isSettle);
    options->warmUpMs = parser.value(QStringLiteral("warm-up")).toInt(&isWarmUp);
    if (!isSettle || !isWarmUp || options->settleMs < 0 || options->warmUpMs < 0)
        return QStringLiteral("--settle and --warm-up take ms");
    options->speed = parser.value(QStringLiteral("speed")).toInt();
    if (options->speed < 1)
        return QStringLiteral("--speed is a whole number");
    return {};
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // it only paints into pictures
    QGuiApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QCoreApplication::setApplicationName(QStringLiteral("quvera-gallery"));

    QStringList pageNames;
    for (const Page &page : galleryPages())
        pageNames << page.name;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Drives an instrument of its own through its pages and writes their "
                       "pictures with an index.html.\nPages: %1")
            .arg(pageNames.join(QLatin1Char(' '))));
    parser.addHelpOption();
    addOptions(parser);
    if (!readCall(parser, false))
        return Misused;

    GalleryOptions options;
    options.binDir = QCoreApplication::applicationDirPath();
    const QString misuse = readOptions(parser, pageNames, &options);
    if (!misuse.isEmpty())
        return fail(Misused, misuse);
    catchSignals();
    options.isStopped = [] { return stopSignal != 0; };
    Gallery gallery(options);
    if (!gallery.run())
        return stopSignal ? fail(128 + stopSignal, QStringLiteral("stopped")) : fail(Failed, gallery.error());
    std::printf("%d pictures: %s/index.html\n", gallery.pictureCount(), qPrintable(options.folder));
    return Done;
}
