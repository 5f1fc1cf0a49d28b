#include "testpaths.h"

#include <QTest>

#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QPixmap>
#include <QSet>

namespace {

/// One row of assets/pictures.txt.
struct Picture
{
    QString alias;
    QSize size; // pixels
    QString style; // "-": the drawing as it is
};

QVector<Picture> readTable()
{
    QVector<Picture> table;
    QFile file(QStringLiteral(QUVERA_SOURCE_DIR "/assets/pictures.txt"));
    if (!file.open(QIODevice::ReadOnly))
        return table;
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QStringList cells = line.simplified().split(' ');
        if (line.startsWith('#') || cells.size() != 5)
            continue;
        table.append({ cells[0], QSize(cells[1].toInt(), cells[2].toInt()), cells[4] });
    }
    return table;
}

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(' ', Qt::SkipEmptyParts);
}

const QStringList kWirings = words("1p_neutral 1p_it_noneutral 1p_split 3p_wye 3p_delta 3p_it 3p_openleg 3p_highleg "
                                   "2-element 2_5p-element");
const QStringList kTiles = words("vif scope dips_swells harmonics power flicker unbalance transients inrush "
                                 "mainssignaling logger wave user setup");
const QStringList kBackgrounds = words("blue_bg blue_bg_180 blue_bg_400 blue_bg_400_black black_bg base_title "
                                       "bg_with_clock message_bg energy_bg power_bg vif_bg unbalance_bg logger_bg0 "
                                       "eventwidget_bg eventwidget_bar");
const QStringList kPlain = words("file info watch driver");
const QStringList kStatus = words("battery_1 battery_2 battery_3 battery_f battery_charging battery_charged USB bds "
                                  "wirelessConnected netWireConnected inRecording clamp");
const QStringList kControls = words("checked unchecked radio_checked radio_unchecked button group_list keyboard_input "
                                    "key1_sel key1_nom key2_sel key2_nom MosStatPage_btn2 MosStatPage_btn3 "
                                    "MosStatPage_btn4 MosStatPage_btn5 scrollbar scrollbar_handle scrollbar_add-line "
                                    "scrollbar_sub-line cursor15_L cursor15_R");
const QStringList kSigns = words("error warning question star percent delta rising_edge falling_edge capacitance "
                                 "incuctor limitval_1 limitval_2 folder bmp");
const QStringList kUsbStates = words("res/u.png res/ubad.png res/urec.png");

/// Every alias a page may ask for, family by family.
QStringList allAliases()
{
    QStringList all = words("splash splash_ru");
    for (const QString &wiring : kWirings)
        all << wiring << wiring + "_detail";
    for (const QString &tile : kTiles)
        all << tile << tile + "_hl";
    return all + kPlain + kBackgrounds + kStatus + kControls + kSigns + kUsbStates;
}

/// Everything below ":/", the toolkit's own files too.
QSet<QString> everyEntry(QDir::Filters what)
{
    QSet<QString> entries;
    QDirIterator it(":/", what | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext())
        entries << it.next().mid(2);
    return entries;
}

QImage load(const QString &alias)
{
    return QPixmap(":/" + alias).toImage().convertToFormat(QImage::Format_ARGB32);
}

int countColours(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    }
    return colours.size();
}

/// Share of pixels, 0 to 1, in which two pictures of one size differ by more than 40 of 255 in some colour.
double differingShare(const QImage &a, const QImage &b)
{
    int differing = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            const int most = qMax(qMax(qAbs(qRed(p) - qRed(q)), qAbs(qGreen(p) - qGreen(q))),
                                  qMax(qAbs(qBlue(p) - qBlue(q)), qAbs(qAlpha(p) - qAlpha(q))));
            differing += most > 40;
        }
    }
    return double(differing) / (a.width() * a.height());
}

/// Weighted brightness of a colour, 0 to 255.
int brightness(QRgb c)
{
    return qGray(c);
}

} // namespace

/// What the pictures add to the resource tree, by path below ":/" and sorted: the tree with them less the tree without.
/// (The resource macros must stand outside a namespace.)
static QStringList addedByThePictures(QDir::Filters what)
{
    Q_CLEANUP_RESOURCE(skin);
    const QSet<QString> without = everyEntry(what);
    Q_INIT_RESOURCE(skin);
    QStringList added = (everyEntry(what) - without).values();
    added.sort();
    return added;
}

static QStringList filesInTree()
{
    return addedByThePictures(QDir::Files);
}

/// The embedded pictures: that all are there under their names, load, have their size and can be distinguished.
class TstAssets : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void treeHasExactlyTheListedFiles();
    void onlyResIsASubdirectory();
    void tableListsTheFilesOfTheTree();
    void pictureLoadsByAliasInItsSize_data();
    void pictureLoadsByAliasInItsSize();
    void sizesThatPagesCountOn_data();
    void sizesThatPagesCountOn();
    void tileUnderTheCursorStandsOut_data();
    void tileUnderTheCursorStandsOut();
    void wiringHasADetailPicture_data();
    void wiringHasADetailPicture();
    void noPictureStandsUnderTwoNames();
    void statesOfAControlDiffer();
    void russianSplashDiffersOnlyInItsLineOfText();
    void namesWithoutAPictureGiveANullPixmap();
    void softKeyIsLightEnoughForBlackText();
    void titleAndEventTableAreDarkEnoughForWhiteText();
};

void TstAssets::initTestCase()
{
    Q_INIT_RESOURCE(skin);
}

void TstAssets::treeHasExactlyTheListedFiles()
{
    QStringList listed = allAliases();
    QCOMPARE(listed.size(), 119); // 2 + 20 + 28 + 4 + 15 + 12 + 21 + 14 + 3
    listed.sort();
    QCOMPARE(filesInTree(), listed);
}

void TstAssets::onlyResIsASubdirectory()
{
    QCOMPARE(addedByThePictures(QDir::Dirs), QStringList { "res" });
}

void TstAssets::tableListsTheFilesOfTheTree()
{
    QStringList listed;
    for (const Picture &picture : readTable())
        listed << picture.alias;
    listed.sort();
    QCOMPARE(listed, filesInTree());
}

void TstAssets::pictureLoadsByAliasInItsSize_data()
{
    QTest::addColumn<QString>("alias");
    QTest::addColumn<QSize>("size");
    for (const Picture &picture : readTable())
        QTest::newRow(qPrintable(picture.alias)) << picture.alias << picture.size;
}

void TstAssets::pictureLoadsByAliasInItsSize()
{
    QFETCH(QString, alias);
    QFETCH(QSize, size);
    const QPixmap pixmap(":/" + alias);
    QVERIFY(!pixmap.isNull());
    QCOMPARE(pixmap.size(), size);
    if (!kBackgrounds.contains(alias))
        QVERIFY2(countColours(load(alias)) > 2, "a drawing has more than a flat colour");
}

void TstAssets::sizesThatPagesCountOn_data()
{
    QTest::addColumn<QStringList>("aliases");
    QTest::addColumn<QSize>("size");
    QStringList tiles, details;
    for (const QString &tile : kTiles)
        tiles << tile << tile + "_hl";
    for (const QString &wiring : kWirings)
        details << wiring + "_detail";
    QTest::newRow("splash fills the screen") << words("splash splash_ru") << QSize(640, 480);
    QTest::newRow("title bar") << words("base_title") << QSize(640, 32);
    QTest::newRow("page below the title bar")
        << words("blue_bg black_bg vif_bg power_bg unbalance_bg logger_bg0") << QSize(640, 448);
    QTest::newRow("tile lies in the 100 x 100 item") << tiles << QSize(96, 96);
    QTest::newRow("status icon fills its field") << kStatus + kUsbStates << QSize(32, 32);
    QTest::newRow("style sheet of the check boxes") << words("checked unchecked") << QSize(24, 24);
    QTest::newRow("radio button like check box") << words("radio_checked radio_unchecked") << QSize(24, 24);
    QTest::newRow("icon of a message") << words("info question warning error") << QSize(48, 48);
    QTest::newRow("one of five soft keys") << words("button MosStatPage_btn2 MosStatPage_btn3 MosStatPage_btn4 "
                                                    "MosStatPage_btn5")
                                           << QSize(124, 34);
    QTest::newRow("wiring with leads") << details << QSize(560, 330);
    QTest::newRow("wiring in the list") << kWirings << QSize(160, 110);
}

void TstAssets::sizesThatPagesCountOn()
{
    QFETCH(QStringList, aliases);
    QFETCH(QSize, size);
    for (const QString &alias : aliases)
        QVERIFY2(load(alias).size() == size, qPrintable(alias));
}

void TstAssets::tileUnderTheCursorStandsOut_data()
{
    QTest::addColumn<QString>("tile");
    for (const QString &tile : kTiles)
        QTest::newRow(qPrintable(tile)) << tile;
}

void TstAssets::tileUnderTheCursorStandsOut()
{
    QFETCH(QString, tile);
    const QImage plain = load(tile), lit = load(tile + "_hl");
    QCOMPARE(lit.size(), plain.size());
    QVERIFY2(differingShare(plain, lit) > 0.5, "frame and body both change");
    // The frame runs through (48, 5): dark in the plain form, near white in the other.
    QVERIFY(brightness(plain.pixel(48, 5)) < 80);
    QVERIFY(brightness(lit.pixel(48, 5)) > 230);
}

void TstAssets::wiringHasADetailPicture_data()
{
    QTest::addColumn<QString>("wiring");
    for (const QString &wiring : kWirings)
        QTest::newRow(qPrintable(wiring)) << wiring;
}

void TstAssets::wiringHasADetailPicture()
{
    QFETCH(QString, wiring);
    const QImage small = load(wiring), detail = load(wiring + "_detail");
    QVERIFY(!small.isNull());
    QVERIFY(!detail.isNull());
    QVERIFY(detail.width() > 3 * small.width());
}

void TstAssets::noPictureStandsUnderTwoNames()
{
    // A wiring must not show the leads of another one.
    const QStringList aliases = filesInTree();
    QVector<QImage> images;
    for (const QString &alias : aliases)
        images << load(alias);
    for (int i = 0; i < images.size(); ++i) {
        for (int k = i + 1; k < images.size(); ++k)
            QVERIFY2(images[k] != images[i], qPrintable(aliases[i] + " and " + aliases[k]));
    }
}

void TstAssets::statesOfAControlDiffer()
{
    QVERIFY(differingShare(load("checked"), load("unchecked")) > 0.2);
    QVERIFY(differingShare(load("radio_checked"), load("radio_unchecked")) > 0.2);
    QVERIFY(differingShare(load("key1_sel"), load("key1_nom")) > 0.5);
    QVERIFY(differingShare(load("key2_sel"), load("key2_nom")) > 0.5);
    QVERIFY(differingShare(load("res/u.png"), load("res/ubad.png")) > 0.1);
    QVERIFY(differingShare(load("res/u.png"), load("res/urec.png")) > 0.1);
    // The arrows of the cursor are mirror images.
    QCOMPARE(differingShare(load("cursor15_L").mirrored(true, false), load("cursor15_R")), 0.0);
}

void TstAssets::russianSplashDiffersOnlyInItsLineOfText()
{
    const QImage english = load("splash"), russian = load("splash_ru");
    const QRect line(0, 395, 640, 40);
    QVERIFY(english.copy(line) != russian.copy(line));
    const QRect above(0, 0, 640, line.top()), below(0, line.bottom() + 1, 640, 480 - line.bottom() - 1);
    QCOMPARE(english.copy(above), russian.copy(above));
    QCOMPARE(english.copy(below), russian.copy(below));
}

void TstAssets::namesWithoutAPictureGiveANullPixmap()
{
    // The status line knows these names; its icon field then stays empty.
    QVERIFY(QPixmap(":/battery_0").isNull());
    QVERIFY(QPixmap(":/netWireBroken").isNull());
}

void TstAssets::softKeyIsLightEnoughForBlackText()
{
    const QImage key = load("button");
    for (int y = 4; y < 30; ++y)
        QVERIFY(brightness(key.pixel(62, y)) > 180);
    QCOMPARE(qAlpha(key.pixel(0, 0)) < 128, true); // round corners show the page
}

void TstAssets::titleAndEventTableAreDarkEnoughForWhiteText()
{
    const QImage title = load("base_title"), table = load("eventwidget_bg"), bar = load("eventwidget_bar");
    for (int y = 4; y < 29; ++y)
        QVERIFY(brightness(title.pixel(320, y)) < 110);
    for (int y = 2; y < 23; ++y)
        QVERIFY(brightness(table.pixel(320, y)) < 110);
    for (int y = 30; y < 316; ++y)
        QVERIFY(brightness(table.pixel(320, y)) < 60);
    for (int y = 3; y < 19; ++y)
        QVERIFY(brightness(bar.pixel(300, y)) < 140);
}

QTEST_MAIN(TstAssets)
#include "tst_assets.moc"
