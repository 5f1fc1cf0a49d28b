// Reads what is written for people and follows its links.
#include "gallery/pages.h"
#include "unit/architecture/sourcetext.h"
#include "unit/documentpage.h"

#include <QImageReader>
#include <QSet>
#include <QTest>

#include <algorithm>

namespace {

using SourceText::kTop;
using SourceText::read;

const QString kPictures = QStringLiteral("docs/pictures/");

/// Paths of all documents and readme files, seen from the top.
QStringList documents()
{
    QStringList paths { QStringLiteral("README.md"), QStringLiteral("CONTRIBUTING.md") };
    for (const char *folder : { "assets", "docs", "packaging", "processor", "src", "tests", "tools", "translations" }) {
        QDirIterator files(kTop + QLatin1Char('/') + QLatin1String(folder), { QStringLiteral("*.md") }, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
            paths << files.next().mid(kTop.size() + 1);
    }
    return paths;
}

/// Everything in a text that a pattern's bracket catches.
QStringList caught(const QString &text, const char *pattern)
{
    QStringList found;
    auto matches = QRegularExpression(QString::fromLatin1(pattern)).globalMatch(text);
    while (matches.hasNext())
        found << matches.next().captured(1);
    return found;
}

/// Where the links of a document lead to, without those to the world.
QStringList links(const QString &document)
{
    QStringList targets = caught(read(kTop + QLatin1Char('/') + document), "\\]\\(([^)\\s]+)\\)");
    targets.erase(std::remove_if(targets.begin(), targets.end(),
                                 [](const QString &target) { return target.contains(QLatin1String("://")); }),
                  targets.end());
    return targets;
}

/// A link of a document as a path from the top.
QString resolved(const QString &document, const QString &link)
{
    return QDir::cleanPath(QFileInfo(document).path() + QLatin1Char('/') + link);
}

/// The names by which links know the headings of a document.
QStringList anchors(const QString &document)
{
    QStringList names;
    for (QString heading : caught(read(kTop + QLatin1Char('/') + document), "\n#+ ([^\n]+)"))
        names << heading.toLower()
                     .remove(QRegularExpression(QStringLiteral("[^a-z0-9 -]")))
                     .replace(QLatin1Char(' '), QLatin1Char('-'));
    return names;
}

} // namespace

class TstDocuments : public QObject
{
    Q_OBJECT

private slots:
    void everyLinkLeadsSomewhere();
    void everyDocumentThatIsNamedIsThere();
    void everyPictureIsShown();
    void picturesOfTheGuideAreTakenByTheGallery();
    void picturesAreWholeScreens();
    void everyPageHasItsSectionInTheGuide();
    void everyPageOfAKeyHasAPictureInItsSection();
    void everyToolHasItsSectionInTheGuide();
    void everyToolIsBuiltByTheFirstStart();
    void whatTheExamplesWriteIsIgnored();
};

void TstDocuments::everyLinkLeadsSomewhere()
{
    int followed = 0;
    const QStringList all = documents();
    for (const QString &document : all) {
        const QStringList targets = links(document);
        for (const QString &target : targets) {
            const QString file = target.section(QLatin1Char('#'), 0, 0), anchor = target.section(QLatin1Char('#'), 1);
            const QString path = file.isEmpty() ? document : resolved(document, file);
            QVERIFY2(QFile::exists(kTop + QLatin1Char('/') + path),
                     qPrintable(document + QStringLiteral(": ") + target));
            QVERIFY2(anchor.isEmpty() || anchors(path).contains(anchor),
                     qPrintable(document + QStringLiteral(": ") + target));
            // The guide is made of that folder alone.
            QVERIFY2(!document.startsWith(QLatin1String("docs/")) || path.startsWith(QLatin1String("docs/")),
                     qPrintable(document + QStringLiteral(" leaves the guide: ") + target));
            ++followed;
        }
    }
    QVERIFY2(followed > 40, qPrintable(QString::number(followed)));
}

void TstDocuments::everyDocumentThatIsNamedIsThere()
{
    int found = 0;
    const QStringList all = documents() + SourceText::allSources();
    for (const QString &path : all) {
        const QStringList names = caught(read(kTop + QLatin1Char('/') + path), "\\b(docs/[a-z0-9/-]+\\.md)\\b");
        for (const QString &name : names)
            QVERIFY2(QFile::exists(kTop + QLatin1Char('/') + name), qPrintable(path + QStringLiteral(": ") + name));
        found += names.size();
    }
    QVERIFY2(found > 60, qPrintable(QString::number(found)));
}

void TstDocuments::everyPictureIsShown()
{
    QSet<QString> shown;
    const QStringList all = documents();
    for (const QString &document : all) {
        const QStringList targets = links(document);
        for (const QString &target : targets)
            shown << resolved(document, target);
    }
    const QStringList pictures = QDir(kTop + QLatin1Char('/') + kPictures).entryList({ QStringLiteral("*.png") });
    QVERIFY(!pictures.isEmpty());
    for (const QString &picture : pictures)
        QVERIFY2(shown.contains(kPictures + picture), qPrintable(picture));
}

void TstDocuments::picturesOfTheGuideAreTakenByTheGallery()
{
    // The command that takes them anew names the pages that it goes through.
    QSet<QString> asked;
    for (const QString &names :
         caught(read(kTop + QLatin1Char('/') + kPictures + QStringLiteral("take")), "\n(?:still|live) ([a-z,-]+)")) {
        for (const QString &name : names.split(QLatin1Char(',')))
            asked << name;
    }
    QSet<QString> taken;
    for (const Page &page : galleryPages()) {
        if (!asked.contains(page.name))
            continue;
        for (const Shot &shot : page.shots)
            taken << page.name + QLatin1Char('-') + shot.name + QStringLiteral(".png");
    }
    QStringList pictures = QDir(kTop + QLatin1Char('/') + kPictures).entryList({ QStringLiteral("*.png") });
    QVERIFY(pictures.removeOne(QStringLiteral("panel.png"))); // of a browser, by hand
    QVERIFY(pictures.size() >= 30);
    for (const QString &picture : qAsConst(pictures))
        QVERIFY2(taken.contains(picture), qPrintable(picture));
}

void TstDocuments::picturesAreWholeScreens()
{
    const QDir folder(kTop + QLatin1Char('/') + kPictures);
    QStringList pictures = folder.entryList({ QStringLiteral("*.png") });
    QVERIFY(pictures.removeOne(QStringLiteral("panel.png"))); // of a browser
    for (const QString &picture : qAsConst(pictures))
        QVERIFY2(QImageReader(folder.filePath(picture)).size() == QSize(640, 480), qPrintable(picture));
}

void TstDocuments::everyPageHasItsSectionInTheGuide()
{
    const QString guide = QStringLiteral("docs/guide/pages.md");
    const QStringList sections = caught(read(kTop + QLatin1Char('/') + guide), "\n## ([^\n]+)");
    const QStringList titles
        = caught(read(kTop + QStringLiteral("/src/shell/pagetable.cpp")), "NOOP\\(\"BaseDialog\", \"([^\"]+)\"\\)");
    QVERIFY2(titles.size() >= 18, qPrintable(QString::number(titles.size())));
    for (const QString &title : titles)
        QVERIFY2(sections.contains(title), qPrintable(title));
    // And no page that is not there.
    for (const QString &section : sections)
        QVERIFY2(titles.contains(section), qPrintable(section));
}

void TstDocuments::everyPageOfAKeyHasAPictureInItsSection()
{
    const QString guide = read(kTop + QStringLiteral("/docs/guide/pages.md"));
    QStringList without;
    for (const QString &section : guide.split(QStringLiteral("\n## ")).mid(1)) {
        if (!section.contains(QLatin1String("](../pictures/")))
            without << section.section(QLatin1Char('\n'), 0, 0);
    }
    QCOMPARE(without, QStringList { QStringLiteral("Power Inverter") }); // no key leads to it, so nobody sees it
}

void TstDocuments::everyToolHasItsSectionInTheGuide()
{
    const QStringList sections = caught(read(kTop + QStringLiteral("/docs/guide/tools.md")), "\n## ([^\n]+)");
    QSet<QString> tools;
    for (const QFileInfo &manual : QDir(kTop + QStringLiteral("/docs/man")).entryInfoList(QDir::Files))
        tools << manual.completeBaseName();
    for (const char *folder : { "tools", "processor", "packaging/update" }) {
        const QString path = kTop + QLatin1Char('/') + QLatin1String(folder) + QStringLiteral("/CMakeLists.txt");
        for (const QString &names : caught(read(path), "install\\(TARGETS ([a-z -]+[a-z]) RUNTIME")) {
            for (const QString &name : names.split(QLatin1Char(' ')))
                tools << name;
        }
    }
    QVERIFY2(tools.size() >= 7, qPrintable(QString::number(tools.size())));
    for (const QString &tool : qAsConst(tools))
        QVERIFY2(sections.contains(tool), qPrintable(tool));
}

void TstDocuments::everyToolIsBuiltByTheFirstStart()
{
    const QString script = read(kTop + QStringLiteral("/run.sh"));
    const QString targets = caught(script, "\nconfigure_and_build release ((?:[^\n]*\\\\\n)*[^\n]*)").join(QString());
    const QStringList tools = caught(read(kTop + QStringLiteral("/docs/guide/tools.md")), "\n## ([a-z-]+)");
    QVERIFY(tools.size() >= 8);
    for (const QString &tool : tools)
        QVERIFY2(QRegularExpression(QStringLiteral("\\s%1(\\s|$)").arg(tool)).match(targets).hasMatch(),
                 qPrintable(tool));
}

/// Who tries the examples where they stand shall not find their files among the sources.
void TstDocuments::whatTheExamplesWriteIsIgnored()
{
    const QStringList ignored = read(kTop + QStringLiteral("/.gitignore")).split(QLatin1Char('\n'));
    const QStringList written = caught(read(kTop + QStringLiteral("/README.md")),
                                       "\n    build/bin/[^\n#]* (?:--pdf|--csv|--out|screen) ([a-z.]+)");
    QVERIFY(written.size() >= 5);
    for (const QString &name : written)
        QVERIFY2(ignored.contains(QLatin1Char('/') + name) || ignored.contains(QStringLiteral("/%1/").arg(name)),
                 qPrintable(name));
}

QTEST_GUILESS_MAIN(TstDocuments)
#include "tst_documents.moc"
