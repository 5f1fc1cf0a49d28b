#include "paintedtexts.h"

#include "memory/fileslist.h"
#include "widgets/controls/readingmarks.h"

#include <QApplication>
#include <QTest>

namespace {

QVector<StoredItem> items(int count)
{
    QVector<StoredItem> made;
    for (int i = 0; i < count; ++i) {
        const QByteArray name = "f" + QByteArray::number(i);
        made << StoredItem { name, QString::fromLatin1(name), false, QStringLiteral("2024-01-01 00:00:00") };
    }
    return made;
}

StoredItem named(const char *name, bool isFolder = false)
{
    return { name, QString::fromUtf8(name), isFolder, QStringLiteral("2024-01-01 00:00:00") };
}

QStringList shownTexts(FilesList &list)
{
    QStringList found;
    for (const PaintedText &text : paintedTexts(list))
        found << text.text;
    return found;
}

} // namespace

/// Rows, marks and selection of the list, and what is drawn of it.
class TstFilesList : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(skin); }
    void init()
    {
        list.reset(new FilesList);
        list->resize(600, 318);
    }
    void columnsStandOverTheRows();
    void anEmptyListSaysSo();
    void onlyRowsThatAreSeenAreDrawn();
    void aRecordingIsDescribedByItsName_data();
    void aRecordingIsDescribedByItsName();
    void picturesAreKnownByTheirSuffix();
    void longNamesEndInTheirColumn();
    void boxesAreDrawnOnlyWhileFilesAreChosen();
    void selectionStaysInsideAShorterList();
    void marksOfWhatIsGoneAreForgotten();
    void editingBeginsAndEndsWithoutMarks();
    void whatIsInUseHasNoMark();
    void selectedRowIsMarkedForThoseWhoHearIt();

private:
    std::unique_ptr<FilesList> list;
};

void TstFilesList::columnsStandOverTheRows()
{
    list->setItems({ named("a.png") }, {});
    QCOMPARE(shownTexts(*list), QStringList({ "TYPE", "TIME", "DESCRIPTION", "2024-01-01 00:00:00", "a.png" }));
}

void TstFilesList::anEmptyListSaysSo()
{
    QVERIFY(shownTexts(*list).contains("no files"));
    QVERIFY(!list->current());
    list->move(1);
    list->move(-1);
    QVERIFY(list->toggleCurrent());
    list->checkAll(true);
    QVERIFY(list->checkedFiles().isEmpty());
}

void TstFilesList::onlyRowsThatAreSeenAreDrawn()
{
    list->setItems(items(10000), {});
    QCOMPARE(shownTexts(*list).size(), 3 + 2 * FilesList::kRows);
    list->move(9999);
    QCOMPARE(shownTexts(*list).size(), 3 + 2 * FilesList::kRows);
    QVERIFY(shownTexts(*list).contains("f9999"));
    QVERIFY(!shownTexts(*list).contains("f0"));
}

void TstFilesList::aRecordingIsDescribedByItsName_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("isFolder");
    QTest::addColumn<QString>("text");
    QTest::newRow("recording") << QByteArray("231114_221320 Logger_1") << true << "Logger_1";
    QTest::newRow("blanks in the name") << QByteArray("231114_221320 Hall 3 west") << true << "Hall 3 west";
    QTest::newRow("no name") << QByteArray("231114_221320 ") << true << "231114_221320";
    QTest::newRow("folder of another kind") << QByteArray("photos") << true << "photos";
    QTest::newRow("file") << QByteArray("231114_221320 x.wav") << false << "231114_221320 x.wav";
    QTest::newRow("line feed") << QByteArray("one\ntwo.png") << false << "one two.png";
}

void TstFilesList::aRecordingIsDescribedByItsName()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, isFolder);
    QTEST((FileListItem { named(name.constData(), isFolder), false }.description()), "text");
}

void TstFilesList::picturesAreKnownByTheirSuffix()
{
    const auto icon = [](const char *name, bool isFolder) {
        return FileListItem { named(name, isFolder), false }.icon();
    };
    QCOMPARE(icon("a.png", false), ":/bmp");
    QCOMPARE(icon("A.PNG", false), ":/bmp");
    QCOMPARE(icon("a.png", true), ":/folder");
    QCOMPARE(icon("a.png.part", false), ":/file");
    QCOMPARE(icon("png", false), ":/file");
}

void TstFilesList::longNamesEndInTheirColumn()
{
    const QByteArray name(240, 'W');
    list->setItems({ named(name.constData()), named("<b>x</b>&amp; %1") }, {});
    for (const PaintedText &text : paintedTexts(*list))
        QVERIFY2(text.ink.right() <= 600 && text.room.contains(text.ink.center()), qPrintable(text.text));
    QVERIFY(shownTexts(*list).contains("<b>x</b>&amp; %1"));
}

void TstFilesList::boxesAreDrawnOnlyWhileFilesAreChosen()
{
    list->setItems({ named("free"), named("busy") }, { "busy" });
    const auto box = [this](int row) { return list->grab().toImage().copy(14, 26 + 24 * row, 24, 24); };
    list->move(1);
    const QImage none = box(0);
    list->setEditing(true);
    const QImage open = box(0);
    QVERIFY(open != none);
    list->checkAll(true);
    QVERIFY(box(0) != open && box(0) != none);
    list->setEditing(false);
    QCOMPARE(box(0), none);
    list->move(-1);
    const QImage busy = box(1);
    list->setEditing(true);
    QCOMPARE(box(1), busy);
}

void TstFilesList::selectionStaysInsideAShorterList()
{
    list->setItems(items(100), {});
    list->move(99);
    list->setItems(items(3), {});
    QVERIFY(list->current());
    QCOMPARE(list->count(), 3);
    list->setItems({}, {});
    QVERIFY(!list->current());
}

void TstFilesList::marksOfWhatIsGoneAreForgotten()
{
    list->setItems({ named("a"), named("b"), named("c") }, {});
    list->setEditing(true);
    list->checkAll(true);
    list->setItems({ named("new"), named("c"), named("a") }, {});
    QCOMPARE(list->checkedFiles(), QList<QByteArray>({ "c", "a" }));
    list->uncheck({ "c", "never there" });
    QCOMPARE(list->checkedFiles(), QList<QByteArray> { "a" });
}

void TstFilesList::editingBeginsAndEndsWithoutMarks()
{
    list->setItems(items(3), {});
    list->setEditing(true);
    list->checkAll(true);
    list->setEditing(false);
    QVERIFY(list->checkedFiles().isEmpty());
    list->setEditing(true);
    QVERIFY(list->checkedFiles().isEmpty());
}

void TstFilesList::whatIsInUseHasNoMark()
{
    list->setItems({ named("a"), named("b") }, {});
    list->setEditing(true);
    list->checkAll(true);
    list->setItems({ named("a"), named("b") }, { "a" }); // it was opened since
    QCOMPARE(list->checkedFiles(), QList<QByteArray> { "b" });
    QVERIFY(!list->toggleCurrent());
    QCOMPARE(list->checkedFiles(), QList<QByteArray> { "b" });
    list->move(1);
    QVERIFY(list->toggleCurrent());
    QVERIFY(list->checkedFiles().isEmpty());
    list->checkAll(true);
    list->setInUse({ "b" }); // the one was closed, the other opened
    QVERIFY(list->checkedFiles().isEmpty());
    list->checkAll(true);
    QCOMPARE(list->checkedFiles(), QList<QByteArray> { "a" });
}

void TstFilesList::selectedRowIsMarkedForThoseWhoHearIt()
{
    using ReadingMarks::Check;
    const auto heard = [this] {
        QStringList texts;
        const ReadingMarks::Selection selection = (list->grab(), ReadingMarks::selection(list.get()));
        for (const PaintedText &text : paintedTexts(*list)) {
            if (selection.place.contains(text.ink.center().toPoint()))
                texts << text.text;
        }
        return qMakePair(texts.join(QLatin1Char(' ')), selection.check);
    };
    const auto row = [](int number) { return QStringLiteral("2024-01-01 00:00:00 f%1").arg(number); };
    QCOMPARE(heard(), qMakePair(QString(), Check::None));
    list->setItems(items(30), { "f1" });
    QCOMPARE(heard(), qMakePair(row(0), Check::None));
    list->move(20);
    QCOMPARE(heard(), qMakePair(row(20), Check::None));
    list->setEditing(true);
    QCOMPARE(heard(), qMakePair(row(20), Check::Off));
    QVERIFY(list->toggleCurrent());
    QCOMPARE(heard(), qMakePair(row(20), Check::On));
    list->toTop();
    list->move(1); // in use: it has no box
    QCOMPARE(heard(), qMakePair(row(1), Check::None));
}

QTEST_MAIN(TstFilesList)
#include "tst_fileslist.moc"
