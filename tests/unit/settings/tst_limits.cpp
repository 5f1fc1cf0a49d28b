#include <QTest>

#include <QDomDocument>

#include "settings/limits.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/rootfiles.h"
#include "unit/threadtime.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace {

const QString kPath = QStringLiteral("/mnt/userfs/sys//limits/set.xml");

/// The numbers of a built-in set, written down again by hand: word of the record and value.
struct Documented
{
    int word;
    const char *what;
    float en50160, gost32144;
};
const Documented kDocumented[] = {
    { 0, "Voltage nep", 95, 100 },
    { 1, "Voltage partial upper", 10, 10 },
    { 2, "Voltage whole upper", 10, 100.1f },
    { 3, "Voltage partial lower", 10, 10 },
    { 4, "Voltage whole lower", 15, 100.1f },
    { 156, "plt nep", 95, 100 },
    { 157, "plt partial", 1, 1 },
    { 158, "plt whole", 100.1f, 100.1f },
    { 159, "plt max", 20, 20 },
    { 160, "pst nep", 95, 100 },
    { 161, "pst partial", 20, 1.38f },
    { 162, "pst whole", 100.1f, 100.1f },
    { 163, "pst max", 20, 20 },
    { 164, "Dips threshold", 90, 90 },
    { 165, "Dips hysteresis", 2, 2 },
    { 167, "Swells threshold", 110, 110 },
    { 168, "Swells hysteresis", 2, 2 },
    { 170, "Interruptions threshold", 1, 5 },
    { 171, "Interruptions hysteresis", 2, 2 },
    { 173, "RVC threshold", 0.2f, 0.2f },
    { 174, "RVC steadytime", 1, 1 },
    { 175, "RVC minstep", 5, 5 },
    { 176, "RVC minrate", 1, 1 },
    { 178, "neg nep", 95, 95 },
    { 179, "neg partial", 2, 2 },
    { 180, "neg whole", 100.1f, 4 },
    { 181, "zero nep", 95, 95 },
    { 182, "zero partial", 100, 2 },
    { 183, "zero whole", 100.1f, 4 },
    { 184, "Frequency nep", 95, 95 },
    { 185, "Frequency partial upper", 1, 0.4f },
    { 186, "Frequency whole upper", 4, 0.4f },
    { 187, "Frequency partial lower", 1, 0.8f },
    { 188, "Frequency whole lower", 6, 0.8f },
    { 190, "frequency1 value", 1375, 1375 },
    { 191, "frequency1 nep", 99, 99 },
    { 192, "frequency1 partial", 5, 5 },
    { 193, "frequency1 whole", 100.1f, 100.1f },
    { 194, "frequency2 value", 285, 285 },
    { 195, "frequency2 nep", 99, 99 },
    { 196, "frequency2 partial", 9, 9 },
    { 197, "frequency2 whole", 100.1f, 100.1f },
};
struct DocumentedInteger
{
    int word;
    const char *what;
    int value; // of both sets
};
const DocumentedInteger kDocumentedIntegers[]
    = { { 5, "Harmonic count", 25 },      { 166, "Dips maxAllowed", 20 },
        { 169, "Swells maxAllowed", 20 }, { 172, "Interruptions maxAllowed", 2 },
        { 177, "RVC maxAllowed", 70 },    { 189, "reserved", 0 } };

// Rows 1 to 25: EN50160 partial, GOST32144 partial, GOST32144 whole; EN50160 whole is 8 in row 1 and 100.1 below.
const float kRows[25][3] = {
    { 8, 8, 12 },          { 2, 2, 3 },          { 5, 5, 7.5f },        { 1, 1, 1.5f },        { 6, 6, 9 },
    { 0.5f, 0.5f, 0.75f }, { 5, 5, 7.5f },       { 0.5f, 0.5f, 0.75f }, { 1.5f, 1.5f, 2.25f }, { 0.5f, 0.5f, 0.75f },
    { 3.5f, 3.5f, 5.25f }, { 0.5f, 0.2f, 0.3f }, { 3, 3, 4.5f },        { 0.5f, 0.2f, 0.3f },  { 0.5f, 0.3f, 0.45f },
    { 0.5f, 0.2f, 0.3f },  { 2, 2, 3 },          { 0.5f, 0.2f, 0.3f },  { 1.5f, 1.5f, 2.25f }, { 0.5f, 0.2f, 0.3f },
    { 0.5f, 0.2f, 0.3f },  { 0.5f, 0.2f, 0.3f }, { 1.5f, 1.5f, 2.25f }, { 0.5f, 0.2f, 0.3f },  { 1.5f, 1.5f, 2.25f },
};

float realWord(const monitor_limit &limit, int word)
{
    float value;
    memcpy(&value, reinterpret_cast<const char *>(&limit) + word * 4, sizeof(value));
    return value;
}

int integerWord(const monitor_limit &limit, int word)
{
    int value;
    memcpy(&value, reinterpret_cast<const char *>(&limit) + word * 4, sizeof(value));
    return value;
}

/// As many different attributes of an element.
QByteArray attributes(int count)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += " a" + QByteArray::number(i) + "=''";
    return text;
}

QByteArray limitsFile(const QByteArray &children, const QByteArray &attributes = "verison='1.0' name='mine'")
{
    return "<?xml version = \"1.0\" encoding=\"utf-8\"?>\n<limits " + attributes + ">" + children + "</limits>";
}

bool sameRecord(const monitor_limit &a, const monitor_limit &b)
{
    return memcmp(&a, &b, sizeof(a)) == 0;
}

} // namespace

/// One limit set: built-in values, layout, file.
class TstLimits : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }

    void theBuiltInSets()
    {
        MonitorLimits2 en;
        en.initEN50160();
        QCOMPARE(en.name(), QString("EN50160"));
        MonitorLimits2 gost;
        gost.initGOST32144();
        QCOMPARE(gost.name(), QString("GOST32144"));
        for (const Documented &row : kDocumented) {
            QVERIFY2(realWord(en.limit(), row.word) == row.en50160, row.what);
            QVERIFY2(realWord(gost.limit(), row.word) == row.gost32144, row.what);
        }
        for (const DocumentedInteger &row : kDocumentedIntegers) {
            QVERIFY2(integerWord(en.limit(), row.word) == row.value, row.what);
            QVERIFY2(integerWord(gost.limit(), row.word) == row.value, row.what);
        }
        for (int i = 0; i < 25; ++i) {
            QCOMPARE(realWord(en.limit(), 6 + i), 95.0f);
            QCOMPARE(realWord(gost.limit(), 6 + i), 95.0f);
            QCOMPARE(realWord(en.limit(), 56 + i), kRows[i][0]);
            QCOMPARE(realWord(gost.limit(), 56 + i), kRows[i][1]);
            QCOMPARE(realWord(en.limit(), 106 + i), i == 0 ? 8.0f : 100.1f);
            QCOMPARE(realWord(gost.limit(), 106 + i), kRows[i][2]);
        }
    }

    void aNewSetHasTheValuesOfEn50160()
    {
        const MonitorLimits2 set;
        QCOMPARE(set.name(), QString("EN50160_000"));
        MonitorLimits2 en;
        en.initEN50160();
        QVERIFY(sameRecord(set.limit(), en.limit()));
    }

    void notAppliedMeansAboveTheBound()
    {
        const MonitorLimits2 set;
        QVERIFY(set.limit().plt.whole > kLimitNotApplied);
        QVERIFY(set.limit().zero.partial < kLimitNotApplied);
    }

    void aSavedSetIsReadBackWordForWord()
    {
        MonitorLimits2 set;
        set.setName("plant <7> & \"co\"");
        for (int i = 0; i < 50; ++i) {
            set.limit().harmonicNep[i] = 50.0f + i;
            set.limit().harmonicPartial[i] = 0.1f * i;
            set.limit().harmonicWhole[i] = 0.37f * i;
        }
        set.limit().harmonicCount = 50;
        set.limit().voltage = { 99.5f, 7.25f, 8.5f, 3.125f, 0.1f };
        set.limit().rvc = { 0.3f, 2.5f, 4.0f, 0.01f, 12 };
        set.limit().frequency2 = { 1234.5f, 88.0f, 1e-5f, 100.1f };
        QVERIFY(set.saveFile(kPath));
        QCOMPARE(set.file(), kPath);
        MonitorLimits2 back;
        QVERIFY(back.loadFile(kPath));
        QCOMPARE(back.name(), set.name());
        for (const Documented &row : kDocumented) // eight digits are written
            QVERIFY2(qFuzzyCompare(realWord(back.limit(), row.word), realWord(set.limit(), row.word)), row.what);
        for (const DocumentedInteger &row : kDocumentedIntegers)
            QVERIFY2(integerWord(back.limit(), row.word) == integerWord(set.limit(), row.word), row.what);
        for (int word = 6; word < 156; ++word)
            QVERIFY(qAbs(realWord(back.limit(), word) - realWord(set.limit(), word)) < 1e-5f);
    }

    void theFileHasItsElementsInTheirOrder()
    {
        MonitorLimits2 set;
        QVERIFY(set.saveFile(kPath));
        const QByteArray text = RootFiles::read(kPath);
        QVERIFY(text.startsWith(
            "<?xml version = \"1.0\" encoding=\"utf-8\"?>\n<limits verison=\"1.0\" name=\"EN50160_000\">\n"));
        QDomDocument document;
        QVERIFY(document.setContent(text));
        QStringList groups;
        for (QDomElement e = document.documentElement().firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
            groups << e.tagName();
        QCOMPARE(groups,
                 QStringList({ "Voltage", "Harmonic", "Flicker", "Dips", "Swells", "Interruptions", "RVC", "Unbalance",
                               "Frequency", "MainsSignal" }));
        const QByteArray voltage
            = "    <Voltage>\n        <nep value=\"95\"/>\n        <partial lower=\"10\" upper=\"10\"/>\n"
              "        <whole lower=\"15\" upper=\"10\"/>\n    </Voltage>\n"
              "    <Harmonic count=\"25\">\n        <tolerance index=\"1\" nep=\"95\" partial=\"8\" whole=\"8\"/>\n";
        QVERIFY(text.contains(voltage));
        QCOMPARE(text.count("<tolerance index="), 25);
        QVERIFY(text.contains("<plt nep=\"95\" partial=\"1\" whole=\"100.1\" max=\"20\"/>"));
        QVERIFY(text.contains("<RVC>\n        <tolerance threshold=\"0.2\" steadytime=\"1\" minstep=\"5\" "
                              "minrate=\"1\" maxAllowed=\"70\"/>"));
        QVERIFY(text.contains("<frequency2 value=\"285\" nep=\"99\" partial=\"9\" whole=\"100.1\"/>"));
    }

    void floatsAreWrittenInTheToolkitsForm()
    {
        MonitorLimits2 set;
        set.limit().voltage.nep = 1.38f;
        set.limit().frequency1.value = 1234567.0f;
        set.limit().neg.partial = 0.1f;
        QVERIFY(set.saveFile(kPath));
        const QByteArray text = RootFiles::read(kPath);
        QDomDocument document;
        for (float value : { 1.38f, 1234567.0f, 0.1f }) {
            QDomElement element = document.createElement("e");
            element.setAttribute("a", value);
            QVERIFY(text.contains("\"" + element.attribute("a").toLatin1() + "\""));
        }
    }

    void theTopOfTheFlickerScaleIsAlwaysWrittenAs20()
    {
        MonitorLimits2 set;
        set.limit().plt.max = 5;
        set.limit().pst.max = 7;
        QVERIFY(set.saveFile(kPath));
        QCOMPARE(RootFiles::read(kPath).count("max=\"20\""), 2);
        MonitorLimits2 back;
        QVERIFY(back.loadFile(kPath));
        QCOMPARE(back.limit().plt.max, 20.0f);
    }

    void whatAPartialFileDoesNotMentionStaysAsInEn50160()
    {
        RootFiles::write(
            kPath,
            limitsFile(
                "<Dips><tolerance threshold='80'/></Dips><Harmonic><tolerance index='3' whole='9'/></Harmonic>"));
        MonitorLimits2 set;
        QVERIFY(set.loadFile(kPath));
        MonitorLimits2 expected;
        expected.limit().dips.threshold = 80;
        expected.limit().harmonicWhole[2] = 9;
        QVERIFY(sameRecord(set.limit(), expected.limit()));
        QCOMPARE(set.name(), QString("mine"));
    }

    void theHighestFlickerScaleOfAFileIsRead()
    {
        RootFiles::write(kPath, limitsFile("<Flicker><plt max='12'/></Flicker>"));
        MonitorLimits2 set;
        QVERIFY(set.loadFile(kPath));
        QCOMPARE(set.limit().plt.max, 12.0f);
    }

    void onlyTheFirstGroupOfANameCountsAndTheLastChild()
    {
        RootFiles::write(kPath,
                         limitsFile("<Dips><tolerance threshold='80'/><tolerance threshold='70'/></Dips>"
                                    "<Dips><tolerance threshold='60'/></Dips>"));
        MonitorLimits2 set;
        QVERIFY(set.loadFile(kPath));
        QCOMPARE(set.limit().dips.threshold, 70.0f);
    }

    void wildNumbersStayInsideTheRecord_data()
    {
        QTest::addColumn<QByteArray>("attribute");
        QTest::newRow("index 0") << QByteArray("index='0'");
        QTest::newRow("index 51") << QByteArray("index='51'");
        QTest::newRow("index -1") << QByteArray("index='-1'");
        QTest::newRow("index 2^31") << QByteArray("index='2147483648'");
        QTest::newRow("index -2^31") << QByteArray("index='-2147483648'");
        QTest::newRow("index in hexadecimal") << QByteArray("index='0x3'");
        QTest::newRow("index empty") << QByteArray("index=''");
        QTest::newRow("no index") << QByteArray("");
    }
    void wildNumbersStayInsideTheRecord()
    {
        QFETCH(QByteArray, attribute);
        RootFiles::write(
            kPath,
            limitsFile("<Harmonic count='25'><tolerance " + attribute + " nep='1' partial='2' whole='3'/></Harmonic>"));
        MonitorLimits2 set;
        QVERIFY(set.loadFile(kPath));
        QVERIFY(sameRecord(set.limit(), MonitorLimits2().limit()));
    }

    void theHarmonicCountIsHeldToTheArrays_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("count");
        QTest::newRow("a million") << QByteArray("1000000") << 50;
        QTest::newRow("51") << QByteArray("51") << 50;
        QTest::newRow("50") << QByteArray("50") << 50;
        QTest::newRow("0") << QByteArray("0") << 0;
        QTest::newRow("-1") << QByteArray("-1") << 0;
        QTest::newRow("word") << QByteArray("many") << 0;
    }
    void theHarmonicCountIsHeldToTheArrays()
    {
        QFETCH(QByteArray, text);
        RootFiles::write(kPath, limitsFile("<Harmonic count='" + text + "'/>"));
        MonitorLimits2 set;
        QVERIFY(set.loadFile(kPath));
        QTEST(int(set.limit().harmonicCount), "count");
    }

    void numbersThatAreNoneReadAsZero_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<float>("value");
        for (const char *text : { "nan", "inf", "-inf", "1e999", "abc", "", "1,5" })
            QTest::newRow(text) << QByteArray(text) << 0.0f;
        QTest::newRow("exponent") << QByteArray("1.5e1") << 15.0f;
        QTest::newRow("negative") << QByteArray("-3") << -3.0f;
    }
    void numbersThatAreNoneReadAsZero()
    {
        QFETCH(QByteArray, text);
        RootFiles::write(kPath, limitsFile("<Dips><tolerance threshold='" + text + "'/></Dips>"));
        MonitorLimits2 set;
        QVERIFY(set.loadFile(kPath));
        QTEST(set.limit().dips.threshold, "value");
    }

    void countsBeyond32BitsReadAsZero()
    {
        RootFiles::write(
            kPath,
            limitsFile("<RVC><tolerance maxAllowed='2147483648'/></RVC><Dips><tolerance maxAllowed='1.5'/></Dips>"));
        MonitorLimits2 set;
        QVERIFY(set.loadFile(kPath));
        QCOMPARE(set.limit().rvc.maxAllowed, 0);
        QCOMPARE(set.limit().dips.maxAllowed, 0);
    }

    void filesThatAreNoLimitSetAreRefused_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QByteArray good = limitsFile("");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no name") << limitsFile("", "verison='1.0'");
        QTest::newRow("another root") << QByteArray("<limit name='x'/>");
        QTest::newRow("cut off") << good.left(good.size() - 3);
        QTest::newRow("trailing text") << good + "<more/>";
        QTest::newRow("zero bytes") << QByteArray(100, '\0');
        QTest::newRow("17 deep") << limitsFile(QByteArray("<a>").repeated(16) + QByteArray("</a>").repeated(16));
        QTest::newRow("20000 deep") << limitsFile(QByteArray("<a>").repeated(20000)
                                                  + QByteArray("</a>").repeated(20000));
        QTest::newRow("entities that grow")
            << QByteArray("<!DOCTYPE l [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;'>]><limits name='&b;'/>");
        QTest::newRow("65 attributes") << limitsFile("<a" + attributes(65) + "/>");
        QTest::newRow("65 attributes behind a bracket in a value") << limitsFile("<a x='>'" + attributes(64) + "/>");
        QTest::newRow("4097 elements") << limitsFile(QByteArray("<a/>").repeated(4096));
        QTest::newRow("Latin letters") << QByteArray(
            "<?xml version='1.0' encoding='iso-8859-1'?><limits name='\xfc'/>");
        QTest::newRow("a byte over 256 kB") << limitsFile(QByteArray(256 * 1024 + 1 - limitsFile("").size(), ' '));
    }
    void filesThatAreNoLimitSetAreRefused()
    {
        QFETCH(QByteArray, content);
        RootFiles::write(kPath, content);
        MonitorLimits2 set;
        QVERIFY(!set.loadFile(kPath));
    }

    void aMissingFileIsRefused()
    {
        MonitorLimits2 set;
        QVERIFY(!set.loadFile(kPath));
        QVERIFY(QDir().mkpath(Target::path(kPath)));
        QVERIFY(!set.loadFile(kPath));
    }

    void anElementFullOfAttributesIsRefusedAtOnce()
    {
        RootFiles::write(kPath, limitsFile("<a" + attributes(25000) + "/>")); // seconds for who compares each with all
        MonitorLimits2 set;
        const ThreadTime time;
        QVERIFY(!set.loadFile(kPath));
        QVERIFY2(time.ms() < 500, qPrintable(QString::number(time.ms())));
    }

    void sixtyFourAttributesAndWhatOnlyLooksLikeMoreAreStillRead()
    {
        const QByteArray more = attributes(100);
        RootFiles::write(kPath,
                         limitsFile("<a" + attributes(64) + "/><!-- <a" + more + " --><![CDATA[<a" + more + "]]><?pi <a"
                                    + more + "?><a x='" + QByteArray("=").repeated(100) + "'>"
                                    + QByteArray("=").repeated(100) + "</a>"));
        MonitorLimits2 set;
        QVERIFY(set.loadFile(kPath));
    }

    void fourThousandElementsAreStillRead()
    {
        RootFiles::write(kPath, limitsFile(QByteArray("<a/>").repeated(4095)));
        MonitorLimits2 set;
        QVERIFY(set.loadFile(kPath));
    }

    void exactly256KilobytesAreStillRead()
    {
        const QByteArray file = limitsFile(QByteArray(256 * 1024 - limitsFile("").size(), ' '));
        QCOMPARE(file.size(), 262144);
        RootFiles::write(kPath, file);
        MonitorLimits2 set;
        QVERIFY(set.loadFile(kPath));
    }

    void sixteenDeepIsStillRead()
    {
        RootFiles::write(kPath, limitsFile(QByteArray("<a>").repeated(15) + QByteArray("</a>").repeated(15)));
        MonitorLimits2 set;
        QVERIFY(set.loadFile(kPath));
    }

    void theCorrectlySpelledVersionIsNotNeeded()
    {
        for (const char *attributes : { "name='a'", "name='a' version='9'", "name='a' verison='1.0'" }) {
            RootFiles::write(kPath, limitsFile("", attributes));
            MonitorLimits2 set;
            QVERIFY(set.loadFile(kPath));
        }
    }

    void aFullDiskAtAnyByteKeepsTheOldFile()
    {
        MonitorLimits2 set;
        set.setName("old");
        QVERIFY(set.saveFile(kPath));
        const QByteArray old = RootFiles::read(kPath);
        set.setName("new");
        for (int n = 0; n < old.size(); n += 97) {
            FileLimit full(static_cast<rlim_t>(n));
            QVERIFY(!set.saveFile(kPath));
        }
        QCOMPARE(RootFiles::read(kPath), old);
    }

    void everyCutOfAFileIsRefusedOrReadWhole()
    {
        MonitorLimits2 set;
        QVERIFY(set.saveFile(kPath));
        const QByteArray whole = RootFiles::read(kPath);
        const int closed = whole.lastIndexOf('>') + 1;
        for (int n = 0; n < whole.size(); n += (n < closed - 40 ? 53 : 1)) {
            RootFiles::write(kPath, whole.left(n));
            MonitorLimits2 back;
            QCOMPARE(back.loadFile(kPath), n >= closed);
        }
    }

    void hundredthsKeepWhatTheEditorShows()
    {
        MonitorLimits2 set;
        set.initGOST32144();
        monitor_limit_int hundredths {};
        limit_float2int(set.limit(), &hundredths);
        QCOMPARE(hundredths.voltage.nep, 10000);
        QCOMPARE(hundredths.voltage.wholeUpper, 10010);
        QCOMPARE(hundredths.pst.partial, 138);
        QCOMPARE(hundredths.harmonicCount, 25);
        QCOMPARE(hundredths.harmonicWhole[14], 45);
        QCOMPARE(hundredths.rvc.threshold, 20);
        QCOMPARE(hundredths.rvc.maxAllowed, 70);
        QCOMPARE(hundredths.dips.maxAllowed, 20);
        QCOMPARE(hundredths.frequency1.value, 137500);
        monitor_limit back {};
        limit_int2float(hundredths, &back);
        QVERIFY(sameRecord(back, set.limit()));
    }

    void hundredthsOfWildNumbersAreHeldAtTheirBounds()
    {
        monitor_limit limit {};
        limit.plt = { std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                      std::numeric_limits<float>::quiet_NaN(), 1e30f };
        monitor_limit_int hundredths {};
        limit_float2int(limit, &hundredths);
        QCOMPARE(hundredths.plt.nep, std::numeric_limits<qint32>::max());
        QCOMPARE(hundredths.plt.partial, std::numeric_limits<qint32>::min());
        QCOMPARE(hundredths.plt.whole, 0);
        QCOMPARE(hundredths.plt.max, std::numeric_limits<qint32>::max());
    }

    void aSetOfWildNumbersIsSavedReadably()
    {
        MonitorLimits2 set;
        set.limit().harmonicCount = 1000000;
        set.limit().dips.threshold = std::numeric_limits<float>::quiet_NaN();
        set.limit().swells.threshold = 1e38f;
        set.limit().rvc.maxAllowed = std::numeric_limits<qint32>::min();
        QVERIFY(set.saveFile(kPath));
        MonitorLimits2 back;
        QVERIFY(back.loadFile(kPath));
        QCOMPARE(back.limit().harmonicCount, 50);
        QCOMPARE(back.limit().dips.threshold, 0.0f);
        QVERIFY(std::isfinite(back.limit().swells.threshold));
        QCOMPARE(back.limit().rvc.maxAllowed, std::numeric_limits<qint32>::min());
    }
};

QTEST_GUILESS_MAIN(TstLimits)
#include "tst_limits.moc"
