#include <QRegularExpression>
#include <QTest>

#include "settings/clampif.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/rootfiles.h"
#include "unit/storage/wornfile.h"

namespace {

const QString kPath = QStringLiteral("/mnt/userfs/sys/clamps.xcl");
const QString kPathN = QStringLiteral("/mnt/userfs/sys/clampsN.xcl");
const QStringList kBuiltIns
    = { "TARN-41A", "TARN-42B", "TARN-43", "TARN-44", "TARN-45", "TARN-46", "TARN-F1", "TARN-F2", "TARN-F3" };

Clamp *userClamp(const QString &name, int range = 20, int ratio = 500)
{
    return new Clamp(name, range, ratio, false, true, name + ", Not flexible, Editable");
}

QByteArray file(const QByteArray &attributes, const QByteArray &children)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<PQA " + attributes + ">" + children + "</PQA>\n";
}

} // namespace

/// The clamp catalogue: built-in rows, list, file.
class TstClamps : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }

    void theBuiltInClamps_data()
    {
        QTest::addColumn<int>("range");
        QTest::addColumn<int>("ratio");
        QTest::addColumn<bool>("flexible");
        QTest::addColumn<QString>("description");
        QTest::newRow("TARN-41A") << 5 << 10000 << false << "TARN-41A, Not flexible, Uneditable";
        QTest::newRow("TARN-42B") << 5 << 10000 << false << "TARN-42B-5A, Not flexible, Uneditable";
        QTest::newRow("TARN-43") << 50 << 10000 << false << "TARN-43, Not flexible, Uneditable";
        QTest::newRow("TARN-44") << 100 << 1000 << false << "TARN-44, Not flexible, Uneditable";
        QTest::newRow("TARN-45") << 1000 << 1000 << false << "TARN-45, Not flexible, Uneditable";
        QTest::newRow("TARN-46") << 1000 << 1000 << false << "TARN-46, Not flexible, Uneditable";
        QTest::newRow("TARN-F1") << 1500 << 100 << true << "TARN-F1, flexible, Uneditable";
        QTest::newRow("TARN-F2") << 6000 << 65 << true << "TARN-F2, flexible, Uneditable";
        QTest::newRow("TARN-F3") << 3000 << 65 << true << "TARN-F3, flexible, Uneditable";
    }
    void theBuiltInClamps()
    {
        ClampIF clamps(kPath);
        QCOMPARE(clamps.names(), kBuiltIns);
        QCOMPARE(clamps.inUsed(), QString("TARN-41A"));
        const Clamp *clamp = clamps.findClamp(QTest::currentDataTag());
        QVERIFY(clamp);
        QTEST(clamp->range(), "range");
        QTEST(clamp->ratio(), "ratio");
        QTEST(clamp->flexible(), "flexible");
        QTEST(clamp->description(), "description");
        QVERIFY(!clamp->editable());
    }

    void aDefaultClampHasItsValues()
    {
        const Clamp clamp;
        QCOMPARE(clamp.range(), 10);
        QCOMPARE(clamp.ratio(), 1000);
        QCOMPARE(clamp.name(), QString());
        QVERIFY(!clamp.flexible() && !clamp.editable());
        QCOMPARE(clamp.description(), QString("default"));
    }

    void userClampsAndTheOneInUseSurvive()
    {
        ClampIF clamps(kPath);
        Clamp *coil = new Clamp("my coil <&\"'>", 1200, 85, true, true, "a & b < c");
        clamps.addClamp(coil);
        clamps.addClamp(userClamp("second"));
        clamps.setCurClamp("my coil <&\"'>");
        QVERIFY(clamps.save(kPath));
        QVERIFY(RootFiles::commands().endsWith("sync\n"));

        ClampIF loaded(kPath);
        QCOMPARE(loaded.names(), kBuiltIns + QStringList({ "my coil <&\"'>", "second" }));
        const Clamp *back = loaded.getCurClamp();
        QCOMPARE(back->name(), QString("my coil <&\"'>"));
        QCOMPARE(back->range(), 1200);
        QCOMPARE(back->ratio(), 85);
        QVERIFY(back->flexible() && back->editable());
        QCOMPARE(back->description(), QString("a & b < c"));
        QVERIFY(!loaded.findClamp("second")->flexible());
    }

    void theFileIsWrittenInItsForm()
    {
        ClampIF clamps(kPath);
        clamps.addClamp(new Clamp("C1", 20, 500, false, true, "C1, Not flexible, Editable"));
        clamps.addClamp(new Clamp("C2", 30, 65, true, true, "C2, flexible, Editable"));
        clamps.setCurClamp("C2");
        QVERIFY(clamps.save(kPath));
        QCOMPARE(RootFiles::read(kPath),
                 QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
                            "<PQA version=\"1.0\" inUsed=\"C2\">\n"
                            "    <clamp name=\"C1\" range=\"20\" ratio=\"500\" editable=\"true\">C1, Not flexible, "
                            "Editable</clamp>\n"
                            "    <clamp name=\"C2\" range=\"30\" ratio=\"65\" editable=\"true\" flexible=\"true\">C2, "
                            "flexible, Editable</clamp>\n"
                            "</PQA>\n"));
    }

    void builtInClampsAreNeverWritten()
    {
        ClampIF clamps(kPath);
        QVERIFY(clamps.save(kPath));
        QVERIFY(!RootFiles::read(kPath).contains("<clamp"));
    }

    void elementsThatAreNoClampAreSkipped_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<bool>("taken");
        QTest::newRow("good") << QByteArray("<clamp name='X' range='1' ratio='2' editable='true'/>") << true;
        QTest::newRow("any case of true")
            << QByteArray("<clamp name='X' range='1' ratio='2' editable='TrUe'/>") << true;
        QTest::newRow("without editable") << QByteArray("<clamp name='X' range='1' ratio='2'/>") << false;
        QTest::newRow("editable false") << QByteArray("<clamp name='X' range='1' ratio='2' editable='false'/>")
                                        << false;
        QTest::newRow("range no number") << QByteArray("<clamp name='X' range='1.5' ratio='2' editable='true'/>")
                                         << false;
        QTest::newRow("ratio missing") << QByteArray("<clamp name='X' range='1' editable='true'/>") << false;
        QTest::newRow("range beyond 32 bits")
            << QByteArray("<clamp name='X' range='2147483648' ratio='2' editable='true'/>") << false;
        QTest::newRow("another tag") << QByteArray("<Clamp name='X' range='1' ratio='2' editable='true'/>") << false;
        QTest::newRow("nested too low") << QByteArray("<g><clamp name='X' range='1' ratio='2' editable='true'/></g>")
                                        << false;
    }
    void elementsThatAreNoClampAreSkipped()
    {
        QFETCH(QByteArray, element);
        QFETCH(bool, taken);
        RootFiles::write(kPath, file("version='1.0' inUsed='X'", element));
        ClampIF clamps(kPath);
        QCOMPARE(clamps.count(), taken ? 10 : 9);
        QCOMPARE(clamps.getCurClamp()->name(), QString(taken ? "X" : "TARN-41A"));
    }

    void aFileThatIsNoneOfOursLeavesTheBuiltIns_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QByteArray clamp = "<clamp name='X' range='1' ratio='2' editable='true'/>";
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("another root") << QByteArray("<PQB version='1.0' inUsed='X'>" + clamp + "</PQB>");
        QTest::newRow("another version") << QByteArray("<PQA version='1.1' inUsed='X'>" + clamp + "</PQA>");
        QTest::newRow("no version") << QByteArray("<PQA inUsed='X'>" + clamp + "</PQA>");
        QTest::newRow("cut off") << QByteArray("<PQA version='1.0' inUsed='X'>" + clamp);
        QTest::newRow("binary") << QByteArray::fromHex("00ff00ff3c505141").repeated(50);
        QTest::newRow("nested deeply") << QByteArray("<PQA version='1.0' inUsed='X'>"
                                                     + QByteArray("<a>").repeated(20000)
                                                     + QByteArray("</a>").repeated(20000) + clamp + "</PQA>");
        QTest::newRow("document type") << QByteArray("<!DOCTYPE PQA [<!ENTITY a 'x'>]><PQA version='1.0' inUsed='X'>"
                                                     + clamp + "</PQA>");
        QTest::newRow("too large behind its end")
            << QByteArray("<PQA version='1.0' inUsed='X'>" + clamp + "</PQA>" + QByteArray(300000, ' '));
        QTest::newRow("too large") << QByteArray("<PQA version='1.0' inUsed='X'>" + clamp + QByteArray(300000, ' ')
                                                 + "</PQA>");
    }
    void aFileThatIsNoneOfOursLeavesTheBuiltIns()
    {
        QFETCH(QByteArray, content);
        RootFiles::write(kPath, content);
        ClampIF clamps(kPath);
        QCOMPARE(clamps.names(), kBuiltIns);
        QCOMPARE(clamps.getCurClamp()->name(), QString("TARN-41A"));
    }

    void anUnknownNameInUseSelectsTheFirstClamp()
    {
        RootFiles::write(kPath,
                         file("version='1.0' inUsed='gone'", "<clamp name='X' range='1' ratio='2' editable='true'/>"));
        ClampIF clamps(kPath);
        QCOMPARE(clamps.getCurClamp()->name(), QString("TARN-41A"));
        QCOMPARE(clamps.inUsed(), QString("TARN-41A"));
    }

    void anEmptyNameInUseTakesTheFirstUserClamp()
    {
        const QByteArray two = "<clamp name='X' range='1' ratio='2' editable='true'/><clamp name='Y' range='1' "
                               "ratio='2' editable='true'/>";
        RootFiles::write(kPath, file("version='1.0' inUsed=''", two));
        QCOMPARE(ClampIF(kPath).getCurClamp()->name(), QString("X"));
        RootFiles::write(kPath, file("version='1.0' inUsed=''", ""));
        QCOMPARE(ClampIF(kPath).getCurClamp()->name(), QString("TARN-41A"));
    }

    void aCopyOfTheCatalogueLivesOnItsOwn()
    {
        ClampIF clamps(kPath);
        clamps.addClamp(userClamp("A"));
        clamps.addClamp(userClamp("B"));
        clamps.setCurClamp("A");
        ClampIF copy;
        copy.copyFrom(clamps);
        QCOMPARE(copy.names(), clamps.names());
        QCOMPARE(copy.inUsed(), QString("A"));
        QVERIFY(copy.getCurClamp() == copy.findClamp("A"));
        QVERIFY(copy.getCurClamp() != clamps.getCurClamp());
        QVERIFY(copy.findClamp("A")->nextNode == copy.last() && copy.last()->prevNode == copy.findClamp("A"));
        copy.removeClamp(copy.findClamp("A"));
        copy.last()->setRange(4711);
        QCOMPARE(clamps.count(), 11);
        QCOMPARE(clamps.last()->range(), 20);
        copy.copyFrom(copy);
        QCOMPARE(copy.count(), 10);
    }

    void aCopyOfACatalogueThatCouldNotBeReadIsNotWrittenEither()
    {
        QVERIFY(makeWornFile(kPath));
        ClampIF copy;
        copy.copyFrom(ClampIF(kPath));
        QVERIFY(!copy.save(kPath));
        QVERIFY(isWornFile(kPath));
    }

    void removingTheOnlyUserClampInUseFallsBackToTheTail()
    {
        ClampIF clamps(kPath);
        Clamp *mine = userClamp("mine");
        clamps.addClamp(mine);
        clamps.setCurClamp("mine");
        clamps.removeClamp(mine);
        QCOMPARE(clamps.getCurClamp()->name(), QString("TARN-F3"));
        QCOMPARE(clamps.inUsed(), QString("TARN-F3"));
        QCOMPARE(clamps.names(), kBuiltIns);
    }

    void removingTheClampInUseHandsOverToANeighbour()
    {
        ClampIF clamps(kPath);
        clamps.addClamp(userClamp("A"));
        clamps.addClamp(userClamp("B"));
        clamps.addClamp(userClamp("C"));
        clamps.setCurClamp("B");
        clamps.removeClamp(clamps.findClamp("B")); // from the middle: the one before
        QCOMPARE(clamps.inUsed(), QString("A"));
        clamps.setCurClamp("TARN-41A");
        clamps.removeClamp(clamps.first()); // from the head: the new head
        QCOMPARE(clamps.inUsed(), QString("TARN-42B"));
        clamps.removeClamp(clamps.findClamp("C")); // not in use: nothing changes
        QCOMPARE(clamps.inUsed(), QString("TARN-42B"));
    }

    void theLinksHoldInBothDirectionsUntilTheListIsEmpty()
    {
        ClampIF clamps(kPath);
        while (clamps.count() > 0) {
            int n = 0;
            for (const Clamp *clamp = clamps.last(); clamp; clamp = clamp->prevNode)
                ++n;
            QCOMPARE(n, clamps.count());
            clamps.removeClamp(n % 2 ? clamps.first() : clamps.last());
        }
        QVERIFY(!clamps.getCurClamp());
        QVERIFY(!clamps.first() && !clamps.last());
        clamps.setCurClamp("TARN-43");
        QVERIFY(!clamps.getCurClamp());
        clamps.addClamp(userClamp("again"));
        QCOMPARE(clamps.getCurClamp()->name(), QString("again"));
        QCOMPARE(clamps.inUsed(), QString("again"));
    }

    void aClampOfAnotherListIsNotRemoved()
    {
        ClampIF clamps(kPath);
        ClampIF others(kPathN);
        clamps.removeClamp(others.first());
        clamps.removeClamp(nullptr);
        QCOMPARE(clamps.count(), 9);
        QCOMPARE(others.count(), 9);
    }

    void theFirstOfTwoEqualNamesIsFound()
    {
        ClampIF clamps(kPath);
        clamps.addClamp(userClamp("twin", 1));
        clamps.addClamp(userClamp("twin", 2));
        QCOMPARE(clamps.findClamp("twin")->range(), 1);
        QVERIFY(!clamps.findClamp("Twin"));
    }

    void editingCopiesAllButTheLinks()
    {
        ClampIF clamps(kPath);
        Clamp *mine = userClamp("mine");
        clamps.addClamp(mine);
        const Clamp *before = mine->prevNode;
        mine->editClamp(Clamp("new", 7, 8, true, false, "text"));
        QCOMPARE(mine->name(), QString("new"));
        QCOMPARE(mine->range(), 7);
        QCOMPARE(mine->ratio(), 8);
        QVERIFY(mine->flexible());
        QVERIFY(mine->editable()); // stays a user's clamp
        QCOMPARE(mine->description(), QString("text"));
        QVERIFY(mine->prevNode == before);
        const Clamp *nothing = nullptr;
        mine->editClamp(nothing);
        QCOMPARE(mine->name(), QString("new"));
        const Clamp other("other", 9, 10, false, true, "its text");
        mine->editClamp(&other);
        QCOMPARE(mine->name(), QString("other"));
        QCOMPARE(mine->ratio(), 10);
        QVERIFY(mine->prevNode == before);
    }

    void theTwoCataloguesAreIndependent()
    {
        ClampIF phase(kPath);
        ClampIF neutral(kPathN);
        phase.setCurClamp("TARN-43");
        neutral.setCurClamp("TARN-43");
        QVERIFY(phase.save(kPath));
        QVERIFY(neutral.save(kPathN));
        QCOMPARE(ClampIF(kPath).inUsed(), QString("TARN-43"));
        QCOMPARE(ClampIF(kPathN).inUsed(), QString("TARN-43"));
        neutral.setCurClamp("TARN-F1");
        QVERIFY(neutral.save(kPathN));
        QCOMPARE(ClampIF(kPath).inUsed(), QString("TARN-43"));
    }

    void loadingAgainStartsAnew()
    {
        ClampIF clamps(kPath);
        clamps.addClamp(userClamp("mine"));
        clamps.load(kPath);
        QCOMPARE(clamps.names(), kBuiltIns);
    }

    void aFullDiskKeepsTheOldCatalogue()
    {
        ClampIF clamps(kPath);
        clamps.setCurClamp("TARN-44");
        QVERIFY(clamps.save(kPath));
        clamps.setCurClamp("TARN-45");
        {
            FileLimit full(10);
            QVERIFY(!clamps.save(kPath));
        }
        QCOMPARE(clamps.inUsed(), QString("TARN-45")); // in memory
        QCOMPARE(ClampIF(kPath).inUsed(), QString("TARN-44"));
    }

    void aCatalogueThatCouldNotBeReadIsNotWrittenOver()
    {
        QVERIFY(makeWornFile(kPath));
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("clamps.xcl: read fail"));
        ClampIF clamps(kPath);
        QCOMPARE(clamps.names(), kBuiltIns);
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("clamps.xcl: could not be read, is not written over"));
        QVERIFY(!clamps.save(kPath));
        QVERIFY(isWornFile(kPath));
        QVERIFY(QFile::remove(Target::path(kPath)));
        clamps.load(kPath); // the card answers again
        QVERIFY(clamps.save(kPath));
    }

    void aNameWithControlCharactersLeavesAReadableFile()
    {
        ClampIF clamps(kPath);
        clamps.addClamp(userClamp(QString("a\x01"
                                          "b\x1b")));
        QVERIFY(clamps.save(kPath));
        QCOMPARE(ClampIF(kPath).names().last(), QString("a b "));
    }

    void aSignThatNoFileMayHoldBecomesABlank()
    {
        ClampIF clamps(kPath);
        clamps.addClamp(userClamp(QString("a") + QChar(0xfffe) + "b" + QChar(0xffff) + QChar(0xfffd)));
        QVERIFY(clamps.save(kPath));
        QCOMPARE(ClampIF(kPath).names().last(), QString("a b ") + QChar(0xfffd));
    }

    void noClampIsNotAppended()
    {
        ClampIF clamps(kPath);
        clamps.addClamp(nullptr);
        QCOMPARE(clamps.names(), kBuiltIns);
        QVERIFY(!clamps.last()->nextNode);
    }

    void aSignOfTwoHalvesStaysAndALoneHalfBecomesABlank()
    {
        const QString plug = QString::fromUtf8("\xF0\x9F\x94\x8C");
        QCOMPARE(plug.size(), 2);
        ClampIF clamps(kPath);
        clamps.addClamp(userClamp("a" + plug + "b"));
        clamps.addClamp(userClamp("c" + plug.left(1) + "d" + plug.mid(1)));
        QVERIFY(clamps.save(kPath));
        const QStringList names = ClampIF(kPath).names();
        QCOMPARE(names.mid(names.size() - 2), QStringList({ "a" + plug + "b", "c d " }));
    }
};

QTEST_GUILESS_MAIN(TstClamps)
#include "tst_clamps.moc"
