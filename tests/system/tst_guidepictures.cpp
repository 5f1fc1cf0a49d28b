// The pictures of the guide, taken by the gallery from the present program and compared.
#include "testpaths.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegion>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <functional>

namespace {

const QString kPictures = QStringLiteral(QUVERA_SOURCE_DIR "/docs/pictures/");
constexpr char kVariant[] = "-3P_WYE_50_Hz";
constexpr QRect kBelowTitleBar(0, 32, 640, 448); // the bar has the clock, and signs that take turns
constexpr QRect kTitle(0, 0, 200, 32);
constexpr QRect kSoftKeys(0, 440, 640, 40);
// What another version of the font renderer may shade differently.
constexpr int kShade = 48;

/// What of a picture is another every day.
const struct
{
    const char *picture;
    QRect place;
} kChanging[] = {
    { "user-list", QRect(320, 270, 320, 40) }, // date
    { "user-date", QRect(320, 90, 260, 250) }, // and time
};

/// A line of docs/pictures/take: pages, and for those that move the scenario of their supply.
struct Line
{
    QString pages;
    QString scenario;
};

/// The lines of "still" or of "live" pages, without those that need faster time.
QVector<Line> linesOfTake(const char *kind)
{
    QFile take(kPictures + QStringLiteral("take"));
    if (!take.open(QIODevice::ReadOnly))
        return {};
    QVector<Line> lines;
    auto found = QRegularExpression(QStringLiteral("^%1 (\\S+)(?: (\\S+)(?!.*--speed).*)?$").arg(QLatin1String(kind)),
                                    QRegularExpression::MultilineOption)
                     .globalMatch(QString::fromUtf8(take.readAll()));
    while (found.hasNext()) {
        const auto line = found.next();
        lines.append({ line.captured(1), line.captured(2) });
    }
    return lines;
}

QString scenarioFile(const QString &name)
{
    const QString own = kPictures + name + QStringLiteral(".json");
    return QFile::exists(own) ? own : QStringLiteral(QUVERA_SOURCE_DIR "/processor/scenarios/%1.json").arg(name);
}

bool isAlike(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) <= kShade && qAbs(qGreen(a) - qGreen(b)) <= kShade
        && qAbs(qBlue(a) - qBlue(b)) <= kShade;
}

/// Where two pictures differ inside a region; null where they do not.
QRect difference(const QImage &taken, const QImage &shown, const QRegion &region)
{
    QRect differing;
    for (const QRect &part : region) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                if (!isAlike(taken.pixel(x, y), shown.pixel(x, y)))
                    differing |= QRect(x, y, 1, 1);
            }
        }
    }
    return differing;
}

QRect changingPlace(const QString &picture)
{
    for (const auto &row : kChanging) {
        if (picture == QLatin1String(row.picture))
            return row.place;
    }
    return {};
}

} // namespace

class TstGuidePictures : public QObject
{
    Q_OBJECT

private slots:
    void picturesOfPagesThatStandStillAreThoseOfThisProgram_data() { addLines("still"); }
    void picturesOfPagesThatStandStillAreThoseOfThisProgram();
    void livePicturesHaveTheTitleAndTheKeysOfThisProgram_data() { addLines("live"); }
    void livePicturesHaveTheTitleAndTheKeysOfThisProgram();
    void allButThoseOfFasterTimeAreCompared();
    void livePicturesShowSomething();
    void anotherPictureIsSeen();

private:
    static void addLines(const char *kind);
    /// Takes the pages of the row anew, and compares those that the guide shows.
    void compare(const std::function<QRegion(const QString &picture)> &region);

    QSet<QString> m_compared;
};

void TstGuidePictures::addLines(const char *kind)
{
    QTest::addColumn<QString>("pages");
    QTest::addColumn<QString>("scenario");
    const QVector<Line> lines = linesOfTake(kind);
    for (const Line &line : lines)
        QTest::newRow(qPrintable(line.pages)) << line.pages << line.scenario;
}

void TstGuidePictures::compare(const std::function<QRegion(const QString &picture)> &region)
{
    QFETCH(QString, pages);
    QFETCH(QString, scenario);
    QTemporaryDir folder;
    QStringList arguments { "--warm-up", "0", "--settle", "600", "--pages", pages, "--out", folder.path() };
    if (!scenario.isEmpty())
        arguments << QStringLiteral("--scenario") << scenarioFile(scenario);
    QProcess gallery;
    gallery.start(QStringLiteral(QUVERA_BIN_DIR "/quvera-gallery"), arguments);
    QVERIFY(gallery.waitForFinished(600000));
    QVERIFY2(gallery.exitStatus() == QProcess::NormalExit && gallery.exitCode() == 0, gallery.readAllStandardError());
    QStringList stale;
    for (const QString &file : QDir(folder.path()).entryList({ QStringLiteral("*.png") })) {
        const QString picture = QString(file).remove(QLatin1String(kVariant)).chopped(4);
        const QImage shown(kPictures + picture + QStringLiteral(".png"));
        if (shown.isNull())
            continue; // the guide does not show all of them
        const QImage taken(folder.filePath(file));
        QCOMPARE(taken.size(), shown.size());
        m_compared.insert(picture);
        const QRect place = difference(taken, shown, region(picture));
        if (!place.isNull())
            stale << QStringLiteral("%1 (at %2,%3, %4 x %5)")
                         .arg(picture)
                         .arg(place.x())
                         .arg(place.y())
                         .arg(place.width())
                         .arg(place.height());
    }
    QVERIFY2(stale.isEmpty(),
             qPrintable(QStringLiteral("not what the program shows: ") + stale.join(QStringLiteral(", "))
                        + QStringLiteral("; docs/pictures/take renews them")));
}

void TstGuidePictures::picturesOfPagesThatStandStillAreThoseOfThisProgram()
{
    compare([](const QString &picture) { return QRegion(kBelowTitleBar) - changingPlace(picture); });
}

void TstGuidePictures::livePicturesHaveTheTitleAndTheKeysOfThisProgram()
{
    compare([](const QString &) { return QRegion(kTitle) + kSoftKeys; });
}

/// Of what the tests before have compared; it fails where it runs alone.
void TstGuidePictures::allButThoseOfFasterTimeAreCompared()
{
    QStringList left;
    for (const QString &file : QDir(kPictures).entryList({ QStringLiteral("*.png") })) {
        if (!m_compared.contains(file.chopped(4)) && !file.startsWith(QLatin1String("site-monitor-"))
            && !file.startsWith(QLatin1String("site-flicker-")) && file != QLatin1String("panel.png"))
            left << file;
    }
    QVERIFY2(left.isEmpty(), qPrintable(left.join(QStringLiteral(", "))));
}

void TstGuidePictures::livePicturesShowSomething()
{
    const QStringList files = QDir(kPictures).entryList({ QStringLiteral("*.png") });
    QVERIFY(!files.isEmpty());
    for (const QString &file : files) {
        const QImage picture(kPictures + file);
        QVERIFY2(!picture.isNull(), qPrintable(file));
        // Lit pixels between title bar and soft keys: a page without its values has fewer than any number needs.
        int lit = 0;
        for (int y = kBelowTitleBar.top(); y < picture.height() - 60; ++y) {
            for (int x = 0; x < picture.width(); ++x)
                lit += qGray(picture.pixel(x, y)) > 128;
        }
        QVERIFY2(lit > 1000, qPrintable(QStringLiteral("%1: %2 lit pixels").arg(file).arg(lit)));
    }
}

void TstGuidePictures::anotherPictureIsSeen()
{
    const QImage shown(kPictures + QStringLiteral("setup-first.png"));
    QVERIFY(!shown.isNull());
    QImage other = shown.copy();
    other.setPixel(300, 200, qGray(shown.pixel(300, 200)) > 128 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    QCOMPARE(difference(other, shown, kBelowTitleBar), QRect(300, 200, 1, 1));
    QVERIFY(difference(other, shown, QRegion(kBelowTitleBar) - QRect(300, 200, 1, 1)).isNull());
    QVERIFY(difference(shown, shown, kBelowTitleBar).isNull());
}

// What a busy machine takes for a list of pages has no bound but that of the whole test.
int main(int argc, char **argv)
{
    qputenv("QTEST_FUNCTION_TIMEOUT", "850000");
    QCoreApplication application(argc, argv);
    TstGuidePictures test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_guidepictures.moc"
