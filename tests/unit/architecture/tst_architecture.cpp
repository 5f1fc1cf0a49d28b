// Reads the sources and holds them to the rules of docs/architecture.md.
#include "unit/architecture/sourcetext.h"
#include "unit/documentpage.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>
#include <algorithm>

namespace {

using SourceText::code;
using SourceText::kTop;
using SourceText::read;
using SourceText::sources;

const QString kTopLevel = QStringLiteral("top"); // the sources that stand in src/ itself

/// "src/settings/config.h" stands in "config", "src/main.cpp" in "top".
QString folderOf(const QString &path)
{
    const QStringList parts = path.split(QLatin1Char('/'));
    return parts.size() > 2 ? parts.at(1) : kTopLevel;
}

QStringList includesOf(const QString &path)
{
    static const QRegularExpression line(QStringLiteral("^[ \\t]*#[ \\t]*include[ \\t]+\"([^\"]+)\""),
                                         QRegularExpression::MultilineOption);
    QStringList includes;
    auto found = line.globalMatch(read(kTop + QLatin1Char('/') + path));
    while (found.hasNext())
        includes << found.next().captured(1);
    return includes;
}

/// Rows of the table behind a heading of docs/architecture.md, without its head.
QVector<QStringList> documentTable(const QString &heading)
{
    return DocumentPage(QStringLiteral("architecture.md")).table(QStringLiteral("## ") + heading);
}

/// Folder and rank of the document's table; an include may point to a lower rank only.
QHash<QString, int> folderRanks()
{
    QHash<QString, int> ranks;
    const auto rows = documentTable(QStringLiteral("Folders"));
    for (const QStringList &row : rows)
        ranks.insert(row.value(0), row.value(1).toInt());
    return ranks;
}

/// Lines of code outside the platform folder that match, as "file: text".
QStringList offenders(const QRegularExpression &pattern, const QString &exceptFolder)
{
    QStringList found;
    const auto paths = sources(QStringLiteral("src"));
    for (const QString &path : paths) {
        if (folderOf(path) == exceptFolder)
            continue;
        const QStringList lines = code(path).split(QLatin1Char('\n'));
        for (const QString &line : lines) {
            if (pattern.match(line).hasMatch())
                found << path + QStringLiteral(": ") + line.trimmed();
        }
    }
    return found;
}

QByteArray list(const QStringList &lines)
{
    return lines.join(QLatin1Char('\n')).toUtf8();
}

} // namespace

/// The house rules that a compiler does not check.
class TstArchitecture : public QObject
{
    Q_OBJECT
private slots:
    void documentNamesEveryFolder();
    void buildHasTheFolderOrderOfTheDocument();
    void includesPointDownTheFolderList();
    void everyExceptionIsStillNeeded();
    void onlyTheListedEdgesReadTheSettingsInUse();
    void everyFolderHasAShortReadme();
    void everyGlobalIsInTheTable();
    void noConnectionIsMadeByText();
    void processorIncludesNothingOfTheInstrument();
    void toolsIncludeNothingOfTheInstrument();
    void onlyThePlatformFolderKnowsBoardFromDesk();
    void unitsThatOpenBoardFilesGoThroughTarget();
    void shellCommandsGoThroughTarget();
    void timeOfDayComesFromTheClock();
    void printingNeverWaitsForItsReader();
    void executablesKeepTheNumbersOfC();
    void documentIndexNamesEveryDocument();
    void keptBehaviourIsListed();
    void noTestIsSwitchedOff();
    void packagesOfTheBuildAreInTheList();
};

void TstArchitecture::documentNamesEveryFolder()
{
    const auto ranks = folderRanks();
    const auto folders = QDir(kTop + QStringLiteral("/src")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(!folders.isEmpty());
    for (const QString &folder : folders)
        QVERIFY2(ranks.contains(folder), qPrintable(folder));
    QVERIFY(ranks.contains(kTopLevel));
}

void TstArchitecture::buildHasTheFolderOrderOfTheDocument()
{
    const QRegularExpression line(QStringLiteral("set\\(QUVERA_FOLDER_ORDER ([^)]*)\\)"));
    const QStringList built = line.match(read(kTop + QStringLiteral("/cmake/QuveraFolder.cmake")))
                                  .captured(1)
                                  .simplified()
                                  .split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QVERIFY(!built.isEmpty());
    const auto ranks = folderRanks();
    for (int i = 1; i < built.size(); ++i)
        QVERIFY2(ranks.value(built.at(i - 1), -1) <= ranks.value(built.at(i), -1), qPrintable(built.at(i)));
}

void TstArchitecture::includesPointDownTheFolderList()
{
    const auto ranks = folderRanks();
    QSet<QString> allowed;
    const auto exceptions = documentTable(QStringLiteral("Exceptions"));
    for (const QStringList &row : exceptions)
        allowed.insert(row.value(0) + QLatin1Char(' ') + row.value(1));
    QStringList upward;
    int checked = 0;
    const auto paths = sources(QStringLiteral("src"));
    for (const QString &path : paths) {
        const QString folder = folderOf(path);
        const auto includes = includesOf(path);
        for (const QString &include : includes) {
            QString target;
            if (QFile::exists(kTop + QStringLiteral("/src/") + include))
                target = folderOf(QStringLiteral("src/") + include);
            else
                continue; // a header beside it, or one that the build generates from a form
            ++checked;
            const bool isBelow = target == folder || ranks.value(target, 1000) < ranks.value(folder, -1);
            if (!isBelow && !allowed.contains(path.mid(4) + QLatin1Char(' ') + include))
                upward << path + QStringLiteral(" includes ") + include;
        }
    }
    QVERIFY(checked > 100);
    QVERIFY2(upward.isEmpty(), list(upward));
}

void TstArchitecture::everyExceptionIsStillNeeded()
{
    const auto exceptions = documentTable(QStringLiteral("Exceptions"));
    for (const QStringList &row : exceptions) {
        if (row.value(0) == QLatin1String("none"))
            continue;
        QVERIFY2(includesOf(QStringLiteral("src/") + row.value(0)).contains(row.value(1)), list(row));
        QVERIFY2(!row.value(2).isEmpty(), "an exception has its reason");
    }
}

// Pages, services and the shell ask the settings in use; what computes below them takes them as an argument.
void TstArchitecture::onlyTheListedEdgesReadTheSettingsInUse()
{
    const QRegularExpression globals(QStringLiteral("\\bm_(settingConfig|calib_data|limits|userConfig)_g\\b"));
    QSet<QString> listed;
    const auto rows = documentTable(QStringLiteral("Settings in use"));
    for (const QStringList &row : rows) {
        listed.insert(row.value(0));
        QVERIFY2(!row.value(1).isEmpty(), "an edge has its reason");
    }
    QSet<QString> found;
    const auto ranks = folderRanks();
    const auto paths = sources(QStringLiteral("src"));
    for (const QString &path : paths) {
        const bool owner = path.startsWith(QStringLiteral("src/settings/config_data."));
        if (!owner && ranks.value(folderOf(path)) < ranks.value(QStringLiteral("pages"))
            && globals.match(code(path)).hasMatch())
            found.insert(path.mid(4));
    }
    const QStringList unlisted = (found - listed).values();
    const QStringList unneeded = (listed - found).values();
    QVERIFY2(unlisted.isEmpty(), list(unlisted));
    QVERIFY2(unneeded.isEmpty(), list(unneeded));
}

void TstArchitecture::everyFolderHasAShortReadme()
{
    QStringList folders { QStringLiteral("processor"), QStringLiteral("tools"), QStringLiteral("tests") };
    const auto rooms = QDir(kTop + QStringLiteral("/src")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &room : rooms)
        folders << QStringLiteral("src/") + room;
    for (const QString &folder : qAsConst(folders)) {
        const QString text = read(kTop + QStringLiteral("/%1/README.md").arg(folder));
        const int lines = text.trimmed().count(QLatin1Char('\n')) + 1;
        QVERIFY2(text.startsWith(QStringLiteral("# %1/").arg(folder.section(QLatin1Char('/'), -1))),
                 qPrintable(folder));
        QVERIFY2(lines >= 3 && lines <= 15, qPrintable(QStringLiteral("%1: %2 lines").arg(folder).arg(lines)));
    }
}

// Variables that other files may reach; the table says why each is one.
void TstArchitecture::everyGlobalIsInTheTable()
{
    static const QRegularExpression declaration(QStringLiteral("^extern\\s[^(;]*?(\\w+)(\\[\\w*\\])*;"),
                                                QRegularExpression::MultilineOption);
    QSet<QString> declared;
    const auto paths = sources(QStringLiteral("src"));
    for (const QString &path : paths) {
        auto found = declaration.globalMatch(code(path));
        while (found.hasNext())
            declared << path.mid(4) + QLatin1Char(' ') + found.next().captured(1);
    }
    QVERIFY(declared.size() > 10);
    QSet<QString> listed;
    const auto rows = documentTable(QStringLiteral("Globals"));
    for (const QStringList &row : rows) {
        QVERIFY2(!row.value(2).isEmpty(), "a global has its reason");
        const auto names = row.value(0).split(QStringLiteral(", "));
        for (const QString &name : names)
            listed << row.value(1) + QLatin1Char(' ') + name;
    }
    const auto unlisted = (QSet<QString>(declared) - listed).values();
    const auto gone = (QSet<QString>(listed) - declared).values();
    QVERIFY2(unlisted.isEmpty(), list(unlisted));
    QVERIFY2(gone.isEmpty(), list(gone));
}

// A connection by the text of a signal is checked by nobody before it fails on the instrument.
void TstArchitecture::noConnectionIsMadeByText()
{
    const auto found = offenders(QRegularExpression(QStringLiteral("\\b(SIGNAL|SLOT)\\s*\\(")), QString());
    QVERIFY2(found.isEmpty(), list(found));
}

void TstArchitecture::processorIncludesNothingOfTheInstrument()
{
    QStringList found;
    const auto paths = sources(QStringLiteral("processor"));
    QVERIFY(!paths.isEmpty());
    for (const QString &path : paths) {
        const auto includes = includesOf(path);
        for (const QString &include : includes) {
            const bool isItsOwn = QFile::exists(kTop + QStringLiteral("/processor/") + include)
                || QFile::exists(QFileInfo(kTop + QLatin1Char('/') + path).path() + QLatin1Char('/') + include);
            if (!isItsOwn
                && (include.contains(QStringLiteral("src/"))
                    || QFile::exists(kTop + QStringLiteral("/src/") + include)))
                found << path + QStringLiteral(" includes ") + include;
        }
    }
    QVERIFY2(found.isEmpty(), list(found));
}

void TstArchitecture::toolsIncludeNothingOfTheInstrument()
{
    static const QRegularExpression reading(QStringLiteral("^(model|record|report)/")); // for the reader of its files
    QStringList found;
    const auto paths = sources(QStringLiteral("tools")) + sources(QStringLiteral("packaging"));
    QVERIFY(!paths.isEmpty());
    for (const QString &path : paths) {
        const bool isReader = path.startsWith(QStringLiteral("tools/files/"));
        const auto includes = includesOf(path);
        for (const QString &include : includes) {
            if (QFile::exists(kTop + QStringLiteral("/src/") + include)
                && !(isReader && reading.match(include).hasMatch()))
                found << path + QStringLiteral(" includes ") + include;
        }
    }
    QVERIFY2(found.isEmpty(), list(found));
}

void TstArchitecture::onlyThePlatformFolderKnowsBoardFromDesk()
{
    const QRegularExpression pattern(
        QStringLiteral("QUVERA_(ROOT|REMOTE_PORT|MODBUS_PORT)|\\bgetenv\\b|\\bqgetenv\\b|qEnvironmentVariable|"
                       "Target::root\\(|#\\s*if.*(__arm__|__x86_64__|_DESK)"));
    const QStringList found = offenders(pattern, QStringLiteral("platform"));
    QVERIFY2(found.isEmpty(), list(found));
}

void TstArchitecture::unitsThatOpenBoardFilesGoThroughTarget()
{
    const QRegularExpression boardPath(QStringLiteral("\"/(mnt|sys|tmp|run|var|etc|usr|dev|proc)/"));
    const QRegularExpression opener(QStringLiteral(
        "\\b(QFile|QDir|QFileInfo|QSaveFile|QTemporaryFile|QFileSystemWatcher|QDirIterator|QStorageInfo|fopen|ofstream|"
        "ifstream|fstream|statfs|statvfs|open|mkdir|rename|unlink|opendir|QTranslator|addApplicationFont)\\b"));
    QStringList found;
    int checked = 0;
    const auto paths = sources(QStringLiteral("src"));
    for (const QString &path : paths) {
        const QString text = code(path);
        if (folderOf(path) == QLatin1String("platform") || !boardPath.match(text).hasMatch())
            continue;
        ++checked;
        if (opener.match(text).hasMatch() && !text.contains(QStringLiteral("Target::")))
            found << path;
        // On one line there is no doubt: a literal goes into an opener as it is.
        const QStringList lines = text.split(QLatin1Char('\n'));
        for (const QString &line : lines) {
            const QRegularExpression bare(opener.pattern()
                                          + QStringLiteral("[^;]*[({]\\s*(QStringLiteral\\(|QLatin1String\\()?")
                                          + boardPath.pattern());
            if (bare.match(line).hasMatch() && !line.contains(QStringLiteral("Target::")))
                found << path + QStringLiteral(": ") + line.trimmed();
        }
    }
    QVERIFY(checked > 3);
    QVERIFY2(found.isEmpty(), list(found));
}

void TstArchitecture::shellCommandsGoThroughTarget()
{
    const QRegularExpression pattern(
        QStringLiteral("\\b(system|popen|execl?v?p?e?|posix_spawn\\w*)\\s*\\(|\\bQProcess\\b"));
    QStringList found = offenders(pattern, QStringLiteral("platform"));
    // Dialogs of the toolkit have a function of that name too.
    found = found.filter(QRegularExpression(QStringLiteral("^(?!.*(\\.|->|::|int )exec\\s*\\()")));
    QVERIFY2(found.isEmpty(), list(found));
}

void TstArchitecture::printingNeverWaitsForItsReader()
{
    // LineOutput drops what an output does not take at once; qDebug and its like go through it too.
    const QRegularExpression printing(
        QStringLiteral("\\b(?:v?printf|puts|putchar|fputs|v?fprintf)\\s*\\(|\\bstd::(?:cout|cerr|clog)\\b"));
    QStringList found = offenders(printing, QStringLiteral("platform"));
    // Before there is a program to hold up: a desk root that cannot be used.
    found.erase(std::remove_if(found.begin(), found.end(),
                               [](const QString &line) {
                                   return line.startsWith(
                                       QStringLiteral("src/main.cpp: std::fprintf(stderr, \"quvera"));
                               }),
                found.end());
    QVERIFY2(found.isEmpty(), list(found));
}

void TstArchitecture::timeOfDayComesFromTheClock()
{
    const QRegularExpression pattern(QStringLiteral(
        "(QDateTime|QDate|QTime)::current|\\bgettimeofday\\s*\\(|\\btime\\s*\\(\\s*(nullptr|NULL|0)\\s*\\)|"
        "CLOCK_REALTIME|system_clock"));
    const QStringList found = offenders(pattern, QStringLiteral("platform"));
    QVERIFY2(found.isEmpty(), list(found));
}

// The toolkit's application object takes over the environment's locale, and "%.3f" would print commas.
void TstArchitecture::executablesKeepTheNumbersOfC()
{
    const QRegularExpression application(QStringLiteral("\\bQ(Core|Gui)?Application\\s+\\w+\\s*\\("));
    int checked = 0;
    const auto paths
        = sources(QStringLiteral("src")) + sources(QStringLiteral("tools")) + sources(QStringLiteral("processor"));
    for (const QString &path : paths) {
        const QString text = code(path);
        if (!path.endsWith(QStringLiteral("main.cpp")) || !application.match(text).hasMatch())
            continue;
        ++checked;
        QVERIFY2(QRegularExpression(QStringLiteral("setlocale\\(LC_NUMERIC, \"C\"\\)")).match(text).hasMatch(),
                 qPrintable(path));
    }
    QVERIFY(checked >= 3);
}

void TstArchitecture::documentIndexNamesEveryDocument()
{
    const QString index = read(kTop + QStringLiteral("/docs/README.md"));
    QDirIterator files(kTop + QStringLiteral("/docs"), { QStringLiteral("*.md") }, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = files.next().mid(kTop.size() + 6);
        if (name != QLatin1String("README.md"))
            QVERIFY2(index.contains(QStringLiteral("(%1)").arg(name)), qPrintable(name));
    }
    // And no name that is not there.
    auto links = QRegularExpression(QStringLiteral("\\]\\(([^)#:]+\\.md)\\)")).globalMatch(index);
    while (links.hasNext()) {
        const QString name = links.next().captured(1);
        QVERIFY2(QFile::exists(kTop + QStringLiteral("/docs/") + name), qPrintable(name));
    }
}

void TstArchitecture::keptBehaviourIsListed()
{
    QHash<QString, int> listed;
    const auto rows = DocumentPage(QStringLiteral("kept.md")).table(QStringLiteral("## Places"));
    for (const QStringList &row : rows) {
        ++listed[QStringLiteral("src/") + row.value(0)];
        QVERIFY2(!row.value(1).isEmpty() && !row.value(2).isEmpty(), qPrintable(row.value(0)));
    }
    QHash<QString, int> marked;
    const auto paths = sources(QStringLiteral("src"));
    for (const QString &path : paths) {
        const int marks = read(kTop + QLatin1Char('/') + path).count(QStringLiteral("Kept:"));
        if (marks > 0)
            marked.insert(path, marks);
    }
    QVERIFY(marked.size() > 10);
    for (auto it = marked.cbegin(); it != marked.cend(); ++it)
        QVERIFY2(listed.value(it.key()) == it.value(), qPrintable(it.key()));
    QCOMPARE(listed.size(), marked.size());
}

void TstArchitecture::noTestIsSwitchedOff()
{
    // Put together here, so that this file does not find itself.
    const QString skip = QStringLiteral("QSK") + QStringLiteral("IP");
    const QString emptyCheck = QStringLiteral("QVERIFY(") + QStringLiteral("true)");
    QStringList found;
    const auto paths = sources(QStringLiteral("tests")) + sources(QStringLiteral("processor/tests"));
    for (const QString &path : paths) {
        const QString text = read(kTop + QLatin1Char('/') + path);
        if (text.contains(skip) || text.contains(emptyCheck))
            found << path;
    }
    QVERIFY2(found.isEmpty(), list(found));
}

// What CMake asks for must come with the packages that run.sh and test.sh install.
void TstArchitecture::packagesOfTheBuildAreInTheList()
{
    const struct
    {
        const char *wanted;
        const char *package;
    } rows[] = {
        { "Qt5", "qtbase5-dev" },
        { "LinguistTools", "qttools5-dev" },
        { "libmodbus", "libmodbus-dev" },
        { "fftw3", "libfftw3-dev" },
        { "ZLIB", "zlib1g-dev" },
        { "benchmark", "libbenchmark-dev" },
        { "rsvg-convert", "librsvg2-bin" },
        { "sqlite3", "libsqlite3-dev" },
        { "cmark-gfm", "cmark-gfm" },
        { "OpenSSL", "libssl-dev" },
        { "cpp-httplib", "libcpp-httplib-dev" },
    };
    const QStringList packages = read(kTop + QStringLiteral("/packaging/debian-packages.txt")).split(QLatin1Char('\n'));
    QString build;
    QDirIterator files(kTop, { QStringLiteral("CMakeLists.txt"), QStringLiteral("*.cmake") }, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (!path.startsWith(kTop + QStringLiteral("/build")))
            build += read(path);
    }
    int used = 0;
    for (const auto &row : rows) {
        if (!build.contains(QLatin1String(row.wanted), Qt::CaseInsensitive))
            continue;
        ++used;
        QVERIFY2(packages.contains(QLatin1String(row.package)), row.package);
    }
    QVERIFY(used >= 5);
}

QTEST_GUILESS_MAIN(TstArchitecture)

#include "tst_architecture.moc"
