// quvera-gallery: pictures of every page of the instrument, with an index page and a contact sheet.
#include "gallery/gallery.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <clocale>
#include <cstdio>

namespace {

int fail(int code, const QString &text)
{
    std::fprintf(stderr, "quvera-gallery: %s\n", qPrintable(text));
    return code;
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

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // it only paints into pictures
    QGuiApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    QCoreApplication::setApplicationName(QStringLiteral("quvera-gallery"));

    QStringList names;
    for (const Page &page : galleryPages())
        names << page.name;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Drives an instrument of its own through its pages and writes their "
                       "pictures with an index.html.\nPages: %1")
            .arg(names.join(QLatin1Char(' '))));
    parser.addHelpOption();
    const auto option = [&parser](const char *name, const char *text, const char *value, const char *usual) {
        const QCommandLineOption result(QString::fromLatin1(name), QString::fromLatin1(text),
                                        QString::fromLatin1(value), QString::fromLatin1(usual));
        parser.addOption(result);
        return result;
    };
    const auto out = option("out", "Folder of the pictures (default: gallery).", "folder", "gallery");
    const auto wirings = option("wirings", "JOINMODE numbers, such as 1,4-6, or all (default: 1).", "list", "1");
    const auto frequencies = option("frequencies", "50, 60, 400 or all (default: 50).", "list", "50");
    const auto languages = option("languages", "Words such as EN,ZH,RU, or all (default: EN).", "list", "EN");
    const auto pages = option("pages", "Names with commas (default: all).", "list", "");
    const auto scenario = option("scenario", "Scenario file of the processor stand-in.", "file", "");
    const auto settle = option("settle", "Wait before each picture (default: 1200).", "ms", "1200");
    const auto warmUp
        = option("warm-up", "Live values before the first picture (default: 8000); 0: none.", "ms", "8000");
    const QCommandLineOption sheet(QStringLiteral("sheet"), QStringLiteral("Also write a contact sheet, sheet.png."));
    parser.addOption(sheet);
    parser.process(application);

    GalleryOptions options;
    options.binDir = QCoreApplication::applicationDirPath();
    options.folder = parser.value(out);
    options.scenario = parser.value(scenario);
    options.pages = parser.value(pages).split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &page : qAsConst(options.pages)) {
        if (!names.contains(page))
            return fail(2,
                        QStringLiteral("no page is called \"%1\" (pages: %2)").arg(page, names.join(QLatin1Char(' '))));
    }
    options.wirings = parseList(parser.value(wirings), upTo(10));
    options.frequencies = parseList(parser.value(frequencies), { 50, 60, 400 });
    options.languages = parser.value(languages) == QLatin1String("all")
        ? languageWords()
        : parser.value(languages).split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString &language : qAsConst(options.languages)) {
        if (!languageWords().contains(language))
            return fail(2,
                        QStringLiteral("no language has the word \"%1\" (words: %2)")
                            .arg(language, languageWords().join(QLatin1Char(' '))));
    }
    if (options.wirings.isEmpty() || options.frequencies.isEmpty() || options.languages.isEmpty())
        return fail(2, QStringLiteral("a list holds numbers that do not exist (quvera-gallery --help)"));
    bool isNumber = false;
    options.settleMs = parser.value(settle).toInt(&isNumber);
    bool isWarmUp = false;
    options.warmUpMs = parser.value(warmUp).toInt(&isWarmUp);
    if (!isNumber || !isWarmUp || options.settleMs < 0 || options.warmUpMs < 0)
        return fail(2, QStringLiteral("--settle and --warm-up take ms"));
    options.sheet = parser.isSet(sheet);

    Gallery gallery(options);
    if (!gallery.run())
        return fail(1, gallery.error());
    std::printf("%d pictures: %s/index.html\n", gallery.pictureCount(), qPrintable(options.folder));
    return 0;
}
