#include "recordercase.h"

#include "unit/documentpage.h"

#include <QSignalSpy>

using namespace RecorderCase;

namespace {

/// A box of the recorder's page, the text that it has and the bit of record.conf that it stands for.
struct BoxRow
{
    const char *name;
    const char *text;
    quint32 bit;
};

/// In the order of the cursor: two in a line.
const BoxRow kBoxes[] = {
    { "rms", "Urms Irms CF THD", 4 },
    { "frequency", "Frequence", 2 },
    { "power", "P S Q PF cosφ tanφ", 8 },
    { "energy", "E(Wh) E(VAh) E(varh)", 16 },
    { "flicker", "Pst Plt", 32 },
    { "unbalance", "Unbalance", 64 },
    { "u_harmonics", "(rms angle) 1-50", 128 },
    { "u_harmonics_high", "(rms angle) 51-100", 0x800 },
    { "i_harmonics", "(rms angle) 1-50", 0x100 },
    { "i_harmonics_high", "(rms angle) 51-100", 0x1000 },
    { "u_interharmonics", "(rms) 0-49", 0x200 },
    { "u_interharmonics_high", "(rms) 50-51", 0x2000 },
    { "i_interharmonics", "(rms) 0-49", 0x400 },
    { "i_interharmonics_high", "(rms) 50-51", 0x4000 },
    { "mains_signaling", "Mains Signaling", 0x8000 },
};
constexpr quint32 kHarmonics = 0x7f80;

QAbstractButton *box(const QWidget *page, const char *name)
{
    return page->findChild<QAbstractButton *>(QString::fromUtf8(name));
}

/// Names of the boxes that are on.
QStringList chosenIn(const QWidget *page)
{
    QStringList on;
    for (const BoxRow &row : kBoxes) {
        if (box(page, row.name)->isChecked())
            on << row.name;
    }
    return on;
}

} // namespace

/// Choice of what recorder and logger write.
class TstRecorderParams : public QObject
{
    Q_OBJECT

private slots:
    void init() { nothingChosen(); }

    void eachBoxIsOneItem_data();
    void eachBoxIsOneItem();
    void storedItemsAreShown();
    void aNewInstrumentRecordsTheCommonQuantities();
    void f1ChoosesAllAndF2Inverts();
    void harmonicsBringTheRmsGroup();
    void f4StoresAndF5Drops_data() { addFamilies(); }
    void f4StoresAndF5Drops();
    void tenSecondFrequencyIsAlwaysStored();
    void at400HzHighOrdersAndFlickerAreGreyAndStayAsTheyWere();
    void harmonicsThatStayGreyBringTheRmsGroup();
    void cursorWalksThroughLinesAndColumns();
    void cursorBeginsAtTheTop();
    void captionsOfTheLines();
    void documentTellsTheBoxes();
    void otherKeysDoNothing_data() { addFamilies(); }
    void otherKeysDoNothing();
    void choiceChangesTheRoomThatTheSetupTells();
    void loggersTitlesFollowTheWiring_data();
    void loggersTitlesFollowTheWiring();
    void loggersBoxesAreTheBitsOfItsFile();
    void loggersTitlesAreThoseOfTheFileInEveryLanguage();
};

void TstRecorderParams::eachBoxIsOneItem_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(kBoxes)); ++i)
        QTest::newRow(kBoxes[i].name) << i;
}

void TstRecorderParams::eachBoxIsOneItem()
{
    QFETCH(int, index);
    const BoxRow &row = kBoxes[index];
    auto page = openFamily(false);
    press(setupOf(*page), F2);
    QCOMPARE(box(paramOf(*page), row.name)->text(), QString::fromUtf8(row.text));
    QVERIFY(!box(paramOf(*page), row.name)->isChecked());
    press(paramOf(*page), Down, index / 2);
    press(paramOf(*page), Right, index % 2);
    press(paramOf(*page), Enter);
    press(paramOf(*page), F4);
    const quint32 expected = 1 | row.bit | (row.bit & kHarmonics ? 4 : 0);
    QCOMPARE(RecordInfo::m_recordItems, expected);
    QVERIFY(RootFiles::read(kRecordFile).contains("PARAMS=" + QByteArray::number(expected)));
    QCOMPARE(page->currentPage(), static_cast<LivePage *>(setupOf(*page)));
}

void TstRecorderParams::storedItemsAreShown()
{
    RootFiles::write(kRecordFile, "PARAMS=33048\n"); // 0x8118: mains signalling, I harmonics, energy, power
    auto page = openFamily(false);
    press(setupOf(*page), F2);
    QCOMPARE(chosenIn(paramOf(*page)), QStringList({ "rms", "power", "energy", "i_harmonics", "mains_signaling" }));
}

void TstRecorderParams::aNewInstrumentRecordsTheCommonQuantities()
{
    QVERIFY(QFile::remove(Target::path(kRecordFile)));
    auto page = openFamily(false);
    press(setupOf(*page), F2);
    QCOMPARE(chosenIn(paramOf(*page)), QStringList({ "rms", "frequency", "power", "energy", "flicker", "unbalance" }));
}

void TstRecorderParams::f1ChoosesAllAndF2Inverts()
{
    auto page = openFamily(false);
    press(setupOf(*page), F2);
    press(paramOf(*page), Enter); // the r.m.s. group
    press(paramOf(*page), F2);
    QVERIFY(box(paramOf(*page), "rms")->isChecked()); // the harmonics bring it back
    QVERIFY(box(paramOf(*page), "mains_signaling")->isChecked());
    press(paramOf(*page), F1);
    press(paramOf(*page), F4);
    QCOMPARE(RecordInfo::m_recordItems, 0xffffu);
    press(setupOf(*page), F2);
    press(paramOf(*page), F2);
    press(paramOf(*page), F4);
    QCOMPARE(RecordInfo::m_recordItems, 1u);
}

void TstRecorderParams::harmonicsBringTheRmsGroup()
{
    auto page = openFamily(false);
    press(setupOf(*page), F2);
    press(paramOf(*page), Down, 3);
    press(paramOf(*page), Enter);
    QVERIFY(box(paramOf(*page), "rms")->isChecked());
    press(paramOf(*page), Up, 3);
    press(paramOf(*page), Enter); // cannot be left out
    QVERIFY(box(paramOf(*page), "rms")->isChecked());
    press(paramOf(*page), Down, 3);
    press(paramOf(*page), Enter);
    press(paramOf(*page), Up, 3);
    press(paramOf(*page), Enter); // now it can
    QVERIFY(!box(paramOf(*page), "rms")->isChecked());
}

void TstRecorderParams::f4StoresAndF5Drops()
{
    QFETCH(bool, logger);
    auto page = openFamily(logger);
    const quint32 before = *kindOf(logger).choices;
    const QString file = QLatin1String(logger ? kLoggerFile : kRecordFile);
    const QByteArray stored = RootFiles::read(file);
    press(setupOf(*page), F2);
    QCOMPARE(text(paramOf(*page), "btn_f1"), QStringLiteral("All"));
    QCOMPARE(text(paramOf(*page), "btn_f2"), QStringLiteral("Invert"));
    QCOMPARE(text(paramOf(*page), "btn_f4"), QStringLiteral("Ok"));
    QCOMPARE(text(paramOf(*page), "btn_f5"), QStringLiteral("Cancel"));
    press(paramOf(*page), F1);
    press(paramOf(*page), F5);
    QCOMPARE(page->currentPage(), static_cast<LivePage *>(setupOf(*page)));
    QCOMPARE(*kindOf(logger).choices, before);
    QCOMPARE(RootFiles::read(file), stored);
    press(setupOf(*page), F2);
    press(paramOf(*page), F4); // nothing of what was dropped
    QCOMPARE(*kindOf(logger).choices, before);
    press(setupOf(*page), F2);
    press(paramOf(*page), F1);
    press(paramOf(*page), F4);
    QCOMPARE(*kindOf(logger).choices, logger ? 0x1fffffffu : 0xffffu);
    QVERIFY(RootFiles::read(file) != stored);
}

void TstRecorderParams::tenSecondFrequencyIsAlwaysStored()
{
    RootFiles::write(kRecordFile, "PARAMS=6\n");
    auto page = openFamily(false);
    press(setupOf(*page), F2);
    press(paramOf(*page), F4);
    QCOMPARE(RecordInfo::m_recordItems, 7u);
}

void TstRecorderParams::at400HzHighOrdersAndFlickerAreGreyAndStayAsTheyWere()
{
    RootFiles::write(kRecordFile, "PARAMS=2087\n"); // 0x827: U harmonics from 51 on, flicker, r.m.s., both frequencies
    setUpMeasurement(1, 3);
    auto page = openFamily(false);
    press(setupOf(*page), F2);
    for (const BoxRow &row : kBoxes) {
        const bool missing = row.bit & (0x7800 | 32);
        QCOMPARE(box(paramOf(*page), row.name)->isEnabled(), !missing);
        if (missing)
            QVERIFY(!box(paramOf(*page), row.name)->isChecked());
    }
    press(paramOf(*page), Down, 2);
    press(paramOf(*page), Enter); // on the grey flicker
    press(paramOf(*page),
          F2); // of the others: no r.m.s. and no frequency any more; the rest on, which brings the r.m.s.
    press(paramOf(*page), F4);
    QCOMPARE(RecordInfo::m_recordItems, 0xffffu & ~(0x7000u | 2));
    setUpMeasurement(1);
    press(setupOf(*page), F2);
    QVERIFY(box(paramOf(*page), "u_harmonics_high")->isChecked());
    QVERIFY(box(paramOf(*page), "flicker")->isEnabled());
}

void TstRecorderParams::harmonicsThatStayGreyBringTheRmsGroup()
{
    RootFiles::write(kRecordFile, "PARAMS=2053\n"); // 0x805: U harmonics from 51 on, r.m.s., frequency of 10 s
    setUpMeasurement(1, 3);
    auto page = openFamily(false);
    press(setupOf(*page), F2);
    press(paramOf(*page), Enter);
    QVERIFY(!box(paramOf(*page), "rms")->isChecked());
    press(paramOf(*page), F4);
    QCOMPARE(RecordInfo::m_recordItems, 0x805u);
}

void TstRecorderParams::cursorWalksThroughLinesAndColumns()
{
    auto page = openFamily(false);
    RecordingParam *params = paramOf(*page);
    press(setupOf(*page), F2);
    press(params, Left);
    QCOMPARE(params->cursor(), 0);
    press(params, Right, 3);
    QCOMPARE(params->cursor(), 1); // stays in its line
    press(params, Down, 20);
    QCOMPARE(params->cursor(), 13); // the last line has one box only
    press(params, Left);
    press(params, Down);
    QCOMPARE(params->cursor(), 14);
    press(params, Right);
    QCOMPARE(params->cursor(), 14);
    const QRect bar = params->findChild<QWidget *>("field_bar")->geometry();
    QVERIFY(bar.contains(box(params, "mains_signaling")->geometry()));
    press(params, Up, 20);
    QCOMPARE(params->cursor(), 0);
}

void TstRecorderParams::cursorBeginsAtTheTop()
{
    auto page = openFamily(false);
    press(setupOf(*page), F2);
    press(paramOf(*page), Down, 3);
    press(paramOf(*page), F5);
    press(setupOf(*page), F2);
    press(paramOf(*page), Enter);
    QVERIFY(box(paramOf(*page), "rms")->isChecked());
}

void TstRecorderParams::captionsOfTheLines()
{
    auto page = openFamily(false);
    QStringList lines;
    for (int line = 1; line <= 8; ++line)
        lines << text(paramOf(*page), QStringLiteral("line_%1").arg(line));
    QCOMPARE(lines,
             QStringList({ "Values", "Power", "Quality", "U Harmonics", "I Harmonics", "U Interharm.", "I Interharm.",
                           "Signaling" }));
    QCOMPARE(text(paramOf(*page), "title"), QStringLiteral("Params"));
}

void TstRecorderParams::documentTellsTheBoxes()
{
    auto page = openFamily(false);
    const QVector<QStringList> table
        = DocumentPage(QStringLiteral("recorder-pages.md")).table(QStringLiteral("## What the boxes stand for"));
    QCOMPARE(table.size(), 8);
    for (int line = 0; line < table.size(); ++line) {
        QStringList shown { text(paramOf(*page), QStringLiteral("line_%1").arg(line + 1)) };
        for (int at = 2 * line; at < 2 * line + 2; ++at)
            shown << (at < int(std::size(kBoxes)) ? box(paramOf(*page), kBoxes[at].name)->text() : QString());
        QCOMPARE(table[line], shown);
    }
}

void TstRecorderParams::otherKeysDoNothing()
{
    QFETCH(bool, logger);
    auto page = openFamily(logger);
    press(setupOf(*page), F2);
    press(paramOf(*page), F3, 3);
    QCOMPARE(paramOf(*page)->chosen(), -1);
    QCOMPARE(paramOf(*page)->cursor(), 0);
    QCOMPARE(page->currentPage(), static_cast<LivePage *>(paramOf(*page)));
}

void TstRecorderParams::choiceChangesTheRoomThatTheSetupTells()
{
    RecordInfo::m_interval_index = 0;
    auto page = openFamily(false);
    const QString before = text(setupOf(*page), "memory");
    const int hours = RecordInfo::m_max_duration;
    press(setupOf(*page), F2);
    press(paramOf(*page), F1);
    press(paramOf(*page), F4);
    QVERIFY(RecordInfo::m_max_duration < hours);
    QVERIFY(text(setupOf(*page), "memory") != before);
}

void TstRecorderParams::loggersTitlesFollowTheWiring_data()
{
    // Negative and zero sequence need three phases, a zero sequence four wires.
    addWirings("sequences", { 4, 2, 0, 2, 0, 0, 4, 2, 4, 2 });
}

void TstRecorderParams::loggersTitlesFollowTheWiring()
{
    QFETCH(int, joinMode);
    QFETCH(int, sequences);
    setUpMeasurement(joinMode);
    auto page = openFamily(true);
    press(setupOf(*page), F2);
    int offered = 0;
    for (const char *name : { "VNEG", "VZERO", "INEG", "IZERO" })
        offered += box(paramOf(*page), name)->isEnabled();
    QCOMPARE(offered, sequences);
    QCOMPARE(box(paramOf(*page), "VZERO")->isEnabled(), sequences == 4);
    QVERIFY(box(paramOf(*page), "VRMS")->isEnabled() && box(paramOf(*page), "tanΦ")->isEnabled());
    LoggerParams none;
    none.initCurTitle(nullptr);
    for (int bit = 0; bit < LoggerParams::kGroups; ++bit)
        QCOMPARE(none.titles()[std::size_t(bit)] != nullptr, bit == 21); // the frequency needs no wiring
}

void TstRecorderParams::loggersBoxesAreTheBitsOfItsFile()
{
    const char *const names[] = { "VRMS",
                                  "VCF",
                                  "VTHD",
                                  "VNEG",
                                  "VZERO",
                                  "VDC",
                                  "IRMS",
                                  "ICF",
                                  "ITHD",
                                  "INEG",
                                  "IZERO",
                                  "IDC",
                                  "P",
                                  "S",
                                  "Q",
                                  "PF",
                                  "cosΦ",
                                  "tanΦ",
                                  "EnergyP",
                                  "EnergyS",
                                  "EnergyQ",
                                  "FREQ",
                                  "VHarmonic",
                                  "IHarmonic",
                                  "VInterHarmonic",
                                  "IInterHarmonic",
                                  "VHarmΦ",
                                  "IHarmΦ",
                                  "Pst Plt" };
    auto page = openFamily(true);
    for (int bit = 0; bit < 29; ++bit) {
        RootFiles::write(kLoggerFile, "PARAMS=" + QByteArray::number(1u << bit) + "\n");
        press(setupOf(*page), F2);
        for (int other = 0; other < 29; ++other)
            QCOMPARE(box(paramOf(*page), names[other])->isChecked(), other == bit);
        press(paramOf(*page), F5);
    }
}

void TstRecorderParams::loggersTitlesAreThoseOfTheFileInEveryLanguage()
{
    auto page = openFamily(true);
    page->retranslateUi();
    QCOMPARE(box(paramOf(*page), "VInterHarmonic")->text(), QStringLiteral("VInterHarmonic"));
}

PAGE_TEST_MAIN(TstRecorderParams)
#include "tst_recorderparams.moc"
