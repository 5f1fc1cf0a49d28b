#include <QDirIterator>
#include <QRegularExpression>
#include <QTest>
#include <QTextCodec>

#include "settings/limitsmanager.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/rootfiles.h"

namespace {

const QString kFolder = QStringLiteral("/mnt/userfs/sys//limits/");
const QString kConf = QStringLiteral("/mnt/userfs/sys/limits.xml");

QByteArray conf(const QByteArray &active)
{
    return "<?xml version = \"1.0\" encoding=\"utf-8\"?>\n<LimitsConfig verison=\"1.0\">\n    <Active>" + active
        + "</Active>\n</LimitsConfig>\n";
}

QByteArray set(const QByteArray &name, const QByteArray &dips = "85")
{
    return "<limits verison='1.0' name='" + name + "'><Dips><tolerance threshold='" + dips + "'/></Dips></limits>";
}

monitor_limit withDips(float threshold)
{
    monitor_limit limit = MonitorLimits2().limit();
    limit.dips.threshold = threshold;
    return limit;
}

} // namespace

/// The catalogue of limit sets and the active one.
class TstLimitsManager : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }

    void withoutTheNameFileEn50160IsActive()
    {
        const LimitsManager manager;
        QCOMPARE(manager.activeLimitsName(), QString("EN50160"));
        QCOMPARE(manager.allLimitsList(), QStringList({ "EN50160", "GOST32144" }));
        QCOMPARE(manager.getLimitsInUsed()->dips.threshold, 90.0f);
        QVERIFY(!RootFiles::exists(kConf));
    }

    void theFolderIsMade()
    {
        QDir(Target::path("/mnt/userfs/sys")).removeRecursively();
        const LimitsManager manager;
        QVERIFY(RootFiles::exists("/mnt/userfs/sys/limits"));
        QCOMPARE(LimitsManager::folder(), kFolder);
    }

    void theFilesFollowTheBuiltInSets()
    {
        RootFiles::write(kFolder + "b.xml", set("Bravo"));
        RootFiles::write(kFolder + "a.xml", set("Alpha"));
        RootFiles::write(kFolder + "noname.xml", "<limits verison='1.0'/>");
        RootFiles::write(kFolder + "broken.xml", "<limits name='Broken'>");
        RootFiles::write(kFolder + "other.txt", set("Text"));
        RootFiles::write(kFolder + ".hidden.xml", set("Hidden"));
        RootFiles::write(kFolder + "left.xml.bak", set("Left"));
        QVERIFY(QDir().mkpath(Target::path(kFolder + "dir.xml")));
        const LimitsManager manager;
        QCOMPARE(manager.allLimitsList(), QStringList({ "EN50160", "GOST32144", "Alpha", "Bravo" }));
    }

    void theStoredNameIsActive()
    {
        RootFiles::write(kFolder + "x.xml", set("Mine", "77"));
        RootFiles::write(kConf, conf("Mine"));
        const LimitsManager manager;
        QCOMPARE(manager.activeLimitsName(), QString("Mine"));
        QCOMPARE(manager.getLimitsInUsed()->dips.threshold, 77.0f);
    }

    void anUnknownStoredNameLeavesEn50160AndTheFile()
    {
        RootFiles::write(kConf, conf("Gone"));
        const LimitsManager manager;
        QCOMPARE(manager.activeLimitsName(), QString("EN50160"));
        QCOMPARE(RootFiles::read(kConf), conf("Gone"));
    }

    void aNameFileThatIsNoneOfOursGivesEn50160_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("cut off") << conf("GOST32144").left(60);
        QTest::newRow("another root") << QByteArray("<Limits><Active>GOST32144</Active></Limits>");
        QTest::newRow("no child") << QByteArray("<LimitsConfig version='1.0'/>");
        QTest::newRow("binary") << QByteArray::fromHex("fffe0000") + conf("GOST32144");
        QTest::newRow("nested deeply") << QByteArray("<LimitsConfig>" + QByteArray("<a>").repeated(20000)
                                                     + QByteArray("</a>").repeated(20000)
                                                     + "<Active>GOST32144</Active></LimitsConfig>");
    }
    void aNameFileThatIsNoneOfOursGivesEn50160()
    {
        QFETCH(QByteArray, content);
        RootFiles::write(kConf, content);
        QCOMPARE(LimitsManager().activeLimitsName(), QString("EN50160"));
    }

    void theVersionOfTheNameFileDoesNotMatter()
    {
        RootFiles::write(kConf, "<LimitsConfig><Active>GOST32144</Active></LimitsConfig>");
        QCOMPARE(LimitsManager().activeLimitsName(), QString("GOST32144"));
    }

    void changingTheActiveSetStoresItsName()
    {
        LimitsManager manager;
        const monitor_limit *address = manager.getLimitsInUsed();
        manager.changeActiveLimits("GOST32144");
        QCOMPARE(manager.activeLimitsName(), QString("GOST32144"));
        QCOMPARE(manager.getLimitsInUsed()->interruptions.threshold, 5.0f);
        QVERIFY(manager.getLimitsInUsed() == address);
        QCOMPARE(RootFiles::read(kConf), conf("GOST32144"));
        QCOMPARE(LimitsManager().activeLimitsName(), QString("GOST32144"));
    }

    void changingToAnUnknownNameStoresTheNameThatStays()
    {
        LimitsManager manager;
        manager.changeActiveLimits("nothing");
        QCOMPARE(manager.activeLimitsName(), QString("EN50160"));
        QCOMPARE(RootFiles::read(kConf), conf("EN50160"));
    }

    void anAddedSetIsStoredAndListed()
    {
        LimitsManager manager;
        manager.add("Plant 7", withDips(80));
        QCOMPARE(manager.allLimitsList().last(), QString("Plant 7"));
        QVERIFY(RootFiles::exists("/mnt/userfs/sys/limits/Plant 7.xml"));
        LimitsManager next;
        next.changeActiveLimits("Plant 7");
        QCOMPARE(next.getLimitsInUsed()->dips.threshold, 80.0f);
    }

    void addingTheSameNameOverwritesTheEntryAndTheActiveCopy()
    {
        LimitsManager manager;
        manager.add("Mine", withDips(80));
        manager.changeActiveLimits("Mine");
        manager.add("Mine", withDips(70));
        QCOMPARE(manager.allLimitsList().count("Mine"), 1);
        QCOMPARE(manager.getLimitsInUsed()->dips.threshold, 70.0f);
        manager.add("Other", withDips(60));
        QCOMPARE(manager.getLimitsInUsed()->dips.threshold, 70.0f); // another name: untouched
    }

    void integersOfTheEditorAreTakenAndGiven()
    {
        LimitsManager manager;
        monitor_limit_int shown {};
        manager.getLimits(&shown, "GOST32144");
        QCOMPARE(shown.pst.partial, 138);
        shown.pst.partial = 150;
        manager.add("Edited", shown);
        monitor_limit limit {};
        QVERIFY(manager.getLimits(&limit, "Edited"));
        QCOMPARE(limit.pst.partial, 1.5f);
        QCOMPARE(limit.pst.whole, 100.1f);
    }

    void anUnknownNameLeavesTheTargetAlone()
    {
        const LimitsManager manager;
        monitor_limit_int target {};
        target.voltage.nep = 4711;
        manager.getLimits(&target, "nothing");
        QCOMPARE(target.voltage.nep, 4711);
        monitor_limit real {};
        QVERIFY(!manager.getLimits(&real, "nothing"));
    }

    void aSetNamedLikeABuiltInHidesItUntilTheNextStart()
    {
        LimitsManager manager;
        manager.add("EN50160", withDips(55));
        QCOMPARE(manager.allLimitsList(), QStringList({ "EN50160", "GOST32144" }));
        QCOMPARE(manager.getLimitsInUsed()->dips.threshold, 55.0f);
        LimitsManager next;
        QCOMPARE(next.allLimitsList(), QStringList({ "EN50160", "GOST32144", "EN50160" }));
        QCOMPARE(next.getLimitsInUsed()->dips.threshold, 90.0f); // the first of the name is the built-in
    }

    void removingTheActiveSetFallsBackToEn50160AndStoresIt()
    {
        LimitsManager manager;
        manager.add("Mine", withDips(80));
        manager.changeActiveLimits("Mine");
        manager.remove("Mine");
        QCOMPARE(manager.activeLimitsName(), QString("EN50160"));
        QCOMPARE(manager.getLimitsInUsed()->dips.threshold, 90.0f);
        QCOMPARE(RootFiles::read(kConf), conf("EN50160"));
        QVERIFY(!RootFiles::exists(kFolder + "Mine.xml"));
        QCOMPARE(manager.allLimitsList(), QStringList({ "EN50160", "GOST32144" }));
    }

    void removingAnotherSetKeepsTheActiveOne()
    {
        LimitsManager manager;
        manager.add("Mine", withDips(80));
        manager.add("Other", withDips(70));
        manager.changeActiveLimits("Mine");
        manager.remove("Other");
        manager.remove("nothing");
        QCOMPARE(manager.activeLimitsName(), QString("Mine"));
        QVERIFY(RootFiles::exists(kFolder + "Mine.xml"));
        QVERIFY(!RootFiles::exists(kFolder + "Other.xml"));
    }

    void aFileOfAnotherNameIsListedUnderItsAttributeAndRemovedWithIt()
    {
        RootFiles::write(kFolder + "file.xml", set("Attribute"));
        LimitsManager manager;
        QVERIFY(manager.allLimitsList().contains("Attribute"));
        manager.remove("Attribute");
        QVERIFY(!RootFiles::exists(kFolder + "file.xml"));
    }

    void namesThatWouldLeaveTheFolderGetNoFile_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("parent") << "../x";
        QTest::newRow("sub-folder") << "a/b";
        QTest::newRow("absolute") << "/etc/passwd";
        QTest::newRow("empty") << "";
        QTest::newRow("hidden") << ".x";
        QTest::newRow("5000 characters") << QString(5000, 'x');
        QTest::newRow("line feed") << "a\nb";
        QTest::newRow("zero") << QString("a") + QChar(0) + "b";
        QTest::newRow("half a pair") << QString(QChar(0xd800));
        QTest::newRow("no sign: FFFE") << QString("a") + QChar(0xfffe);
        QTest::newRow("no sign: FFFF") << QString("a") + QChar(0xffff);
    }
    void namesThatWouldLeaveTheFolderGetNoFile()
    {
        QFETCH(QString, name);
        const QStringList before = tree();
        LimitsManager manager;
        manager.add(name, withDips(80));
        QCOMPARE(manager.allLimitsList().last(), name); // until the program ends
        QCOMPARE(tree(), before);
        manager.changeActiveLimits(name);
        manager.remove(name);
        QCOMPARE(manager.activeLimitsName(), QString("EN50160"));
        QCOMPARE(QDir(Target::path(kFolder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList());
    }

    void aNameInAFileNeverBecomesAPath()
    {
        RootFiles::write(kFolder + "evil.xml", set("../setting"));
        RootFiles::write("/mnt/userfs/sys/setting.xml", "keep");
        LimitsManager manager;
        manager.remove("../setting");
        QCOMPARE(RootFiles::read("/mnt/userfs/sys/setting.xml"), QByteArray("keep"));
        QVERIFY(!RootFiles::exists(kFolder + "evil.xml"));
    }

    void aLostSaveKeepsTheSetInMemory()
    {
        LimitsManager manager;
        {
            FileLimit full(10);
            manager.add("Mine", withDips(80));
            manager.changeActiveLimits("Mine");
        }
        QCOMPARE(manager.activeLimitsName(), QString("Mine"));
        QVERIFY(!RootFiles::exists(kConf));
        QCOMPARE(LimitsManager().activeLimitsName(), QString("EN50160"));
    }

    void aSetWhoseLastSaveWasLostIsRemovedWithItsFile()
    {
        LimitsManager manager;
        manager.add("Mine", withDips(80));
        {
            FileLimit full(10);
            manager.add("Mine", withDips(70));
        }
        QVERIFY(RootFiles::exists(kFolder + "Mine.xml"));
        manager.remove("Mine");
        QVERIFY(!RootFiles::exists(kFolder + "Mine.xml"));
        QVERIFY(!LimitsManager().allLimitsList().contains("Mine"));
    }

    void aSetThatWasNeverStoredIsRemovedToo()
    {
        LimitsManager manager;
        {
            FileLimit full(10);
            QVERIFY(!manager.add("Mine", withDips(70)));
        }
        QVERIFY(manager.allLimitsList().contains("Mine"));
        manager.remove("Mine");
        QVERIFY(!manager.allLimitsList().contains("Mine"));
    }

    void noSetIsNotAdded()
    {
        LimitsManager manager;
        const QStringList before = manager.allLimitsList();
        QVERIFY(!manager.add(nullptr));
        QCOMPARE(manager.allLimitsList(), before);
    }

    void namesThatTheSystemCannotSpellGetNoFile()
    {
        QTextCodec *usual = QTextCodec::codecForLocale();
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
        const bool plain = LimitsManager::isPlainName(QString::fromUtf8("Usine é"));
        const bool foreign = LimitsManager::isPlainName(QString::fromUtf8("工厂"));
        QTextCodec::setCodecForLocale(usual);
        QVERIFY(plain && !foreign);
        QVERIFY(LimitsManager::isPlainName(QString::fromUtf8("工厂")));
    }

    void removingASetWithoutAFileLeavesTheFileOfAnother()
    {
        RootFiles::write(kFolder + "Mine.xml", set("Other"));
        LimitsManager manager;
        {
            FileLimit full(10);
            manager.add("Mine", withDips(70));
        }
        manager.remove("Mine");
        QVERIFY(RootFiles::exists(kFolder + "Mine.xml"));
        QVERIFY(LimitsManager().allLimitsList().contains("Other"));
    }

    void anEditedSetLeavesNoFileOfAnotherNameBehind()
    {
        // At the next start the older file would come first.
        RootFiles::write(kFolder + "a.xml", set("Mine", "77"));
        LimitsManager manager;
        QVERIFY(manager.add("Mine", withDips(60)));
        QVERIFY(!RootFiles::exists(kFolder + "a.xml"));
        monitor_limit limit {};
        QVERIFY(LimitsManager().getLimits(&limit, "Mine"));
        QCOMPARE(limit.dips.threshold, 60.0f);
    }

    void aSetWhoseFileHasTheNewSetsNameMovesToItsOwn()
    {
        RootFiles::write(kFolder + "Mine.xml", set("Other", "77"));
        LimitsManager manager;
        QVERIFY(manager.add("Mine", withDips(60)));
        LimitsManager next;
        monitor_limit limit {};
        QVERIFY(next.getLimits(&limit, "Other"));
        QCOMPARE(limit.dips.threshold, 77.0f);
        QVERIFY(next.getLimits(&limit, "Mine"));
        QCOMPARE(limit.dips.threshold, 60.0f);
    }

    void aSetThatGivesWayGoesNeitherOverAnotherFileNorOutOfTheFolder()
    {
        RootFiles::write(kFolder + "Mine.xml", set("Other", "77"));
        RootFiles::write(kFolder + "Other.xml", set("Third", "66"));
        RootFiles::write(kFolder + "Yours.xml", set("../setting", "55"));
        LimitsManager manager;
        QVERIFY(manager.add("Mine", withDips(60)));
        QVERIFY(manager.add("Yours", withDips(50)));
        QVERIFY(!RootFiles::exists("/mnt/userfs/sys/setting.xml"));
        const LimitsManager next;
        QCOMPARE(next.allLimitsList().mid(2), QStringList({ "Mine", "Third", "Yours" }));
        monitor_limit limit {};
        QVERIFY(next.getLimits(&limit, "Third"));
        QCOMPARE(limit.dips.threshold, 66.0f);
    }

    void aRenamedSetStaysTheActiveOne()
    {
        LimitsManager manager;
        manager.add("Mine", withDips(80));
        manager.changeActiveLimits("Mine");
        QVERIFY(manager.rename("Mine", "Yours"));
        QCOMPARE(manager.activeLimitsName(), QString("Yours"));
        QCOMPARE(RootFiles::read(kConf), conf("Yours"));
        QCOMPARE(manager.allLimitsList(), QStringList({ "EN50160", "GOST32144", "Yours" }));
        QVERIFY(!RootFiles::exists(kFolder + "Mine.xml"));
        LimitsManager next;
        QCOMPARE(next.activeLimitsName(), QString("Yours"));
        QCOMPARE(next.getLimitsInUsed()->dips.threshold, 80.0f);
    }

    void aRenameThatCannotBeWrittenChangesNothing()
    {
        LimitsManager manager;
        manager.add("Mine", withDips(80));
        manager.add("Yours", withDips(70));
        manager.changeActiveLimits("Mine");
        {
            FileLimit full(10);
            QVERIFY(!manager.rename("Mine", "Yours"));
        }
        QVERIFY(!manager.rename("Mine", "a/b"));
        QVERIFY(!manager.rename("Mine", "Mine"));
        QVERIFY(!manager.rename("nothing", "Else"));
        QCOMPARE(manager.activeLimitsName(), QString("Mine"));
        const LimitsManager next;
        for (const LimitsManager *looked : { &qAsConst(manager), &next }) {
            QCOMPARE(looked->allLimitsList().mid(2), QStringList({ "Mine", "Yours" }));
            monitor_limit limit {};
            QVERIFY(looked->getLimits(&limit, "Yours"));
            QCOMPARE(limit.dips.threshold, 70.0f);
        }
    }

    void renamingOntoAnotherSetReplacesIt()
    {
        LimitsManager manager;
        manager.add("Mine", withDips(80));
        manager.add("Yours", withDips(70));
        manager.changeActiveLimits("Yours");
        QVERIFY(manager.rename("Mine", "Yours"));
        QCOMPARE(manager.allLimitsList().mid(2), QStringList { "Yours" });
        QCOMPARE(manager.getLimitsInUsed()->dips.threshold, 80.0f);
    }

    void ofAFolderFullOfFilesOnlySoManyAreRead()
    {
        for (int n = 0; n < 201; ++n) {
            const QByteArray name = QByteArray::number(n + 1000);
            RootFiles::write(kFolder + name + ".xml", "<limits name='set" + name + "'/>");
        }
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("201 files, only 200 are read"));
        const QStringList sets = LimitsManager().allLimitsList();
        QCOMPARE(sets.size(), 2 + 200); // the built-in ones, then the first of the folder
        QCOMPARE(sets.last(), QString("set1199"));
    }

    void namesInAllLettersSurvive()
    {
        LimitsManager manager;
        const QString name = QString::fromUtf8("Zakład 工厂 <&> 1.xml");
        manager.add(name, withDips(80));
        manager.changeActiveLimits(name);
        LimitsManager next;
        QCOMPARE(next.activeLimitsName(), name);
        QCOMPARE(next.getLimitsInUsed()->dips.threshold, 80.0f);
    }

private:
    static QStringList tree()
    {
        QStringList files;
        QDirIterator it(Target::root(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext())
            files << it.next();
        files.sort();
        return files;
    }
};

QTEST_GUILESS_MAIN(TstLimitsManager)
#include "tst_limitsmanager.moc"
