// The pictures of the guide, taken by the gallery from the present program and compared.
#include "testpaths.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString kPictures = QStringLiteral(QUVERA_SOURCE_DIR "/docs/pictures/");
constexpr char kVariant[] = "-3P_WYE_50_Hz";
constexpr int kTitleBar = 32; // with the clock, and signs that take turns
// What another version of the font renderer may shade differently.
constexpr int kShade = 48;

/// What of a picture is another every day.
const struct
{
    const char *picture;
    QRect place;
} kChanging[] = {
    { "user-list", QRect(320, 270, 320, 40) }, // date
};

/// The lists of pages that docs/pictures/take calls still.
QStringList stillPages()
{
    QFile take(kPictures + QStringLiteral("take"));
    if (!take.open(QIODevice::ReadOnly))
        return {};
    QStringList lists;
    auto lines = QRegularExpression(QStringLiteral("^still (\\S+)$"), QRegularExpression::MultilineOption)
                     .globalMatch(QString::fromUtf8(take.readAll()));
    while (lines.hasNext())
        lists << lines.next().captured(1);
    return lists;
}

bool isAlike(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) <= kShade && qAbs(qGreen(a) - qGreen(b)) <= kShade
        && qAbs(qBlue(a) - qBlue(b)) <= kShade;
}

/// Where two pictures differ below the title bar; null where they do not.
QRect difference(const QImage &taken, const QImage &shown, const QRect &changing)
{
    QRect differing;
    for (int y = kTitleBar; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            if (!changing.contains(x, y) && !isAlike(taken.pixel(x, y), shown.pixel(x, y)))
                differing |= QRect(x, y, 1, 1);
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
    void picturesOfPagesThatStandStillAreThoseOfThisProgram_data();
    void picturesOfPagesThatStandStillAreThoseOfThisProgram();
    void mostOfTheGuideIsCompared();
    void livePicturesShowSomething();
    void anotherPictureIsSeen();

private:
    int m_compared = 0;
};

void TstGuidePictures::picturesOfPagesThatStandStillAreThoseOfThisProgram_data()
{
    QTest::addColumn<QString>("pages");
    const QStringList lists = stillPages();
    for (const QString &pages : lists)
        QTest::newRow(qPrintable(pages)) << pages;
}

void TstGuidePictures::picturesOfPagesThatStandStillAreThoseOfThisProgram()
{
    QFETCH(QString, pages);
    QTemporaryDir folder;
    QProcess gallery;
    gallery.start(QStringLiteral(QUVERA_BIN_DIR "/quvera-gallery"),
                  { "--warm-up", "0", "--settle", "600", "--pages", pages, "--out", folder.path() });
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
        ++m_compared;
        const QRect place = difference(taken, shown, changingPlace(picture));
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

void TstGuidePictures::mostOfTheGuideIsCompared()
{
    QVERIFY2(m_compared >= 25, qPrintable(QString::number(m_compared)));
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
        for (int y = kTitleBar; y < picture.height() - 60; ++y) {
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
    QCOMPARE(difference(other, shown, {}), QRect(300, 200, 1, 1));
    QVERIFY(difference(other, shown, QRect(300, 200, 1, 1)).isNull());
    QVERIFY(difference(shown, shown, {}).isNull());
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
