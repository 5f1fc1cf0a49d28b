#include "shell/pagetable.h"

#include "testpaths.h"

#include <QApplication>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

/// The one table of pages: its orders, its tiles, and what it answers for a type.
class TstPageTable : public QObject
{
    Q_OBJECT

private slots:
    void everyTypeHasOnePageThatCanBeReached();
    void twoPagesMayShareAType();
    void stackOrder();
    void languageOrder();
    void beginOrder();
    void tilesFillTheMenu();
    void galleryKnowsTheTiles();
    void plans();
    void functions();
};

namespace {

using Types = QList<int>;

Types types(const std::vector<const PageRow *> &rows)
{
    Types found;
    for (const PageRow *row : rows)
        found.append(row->type);
    return found;
}

} // namespace

void TstPageTable::everyTypeHasOnePageThatCanBeReached()
{
    for (int type = 0; type < kUiTypes; ++type) {
        const PageRow *row = PageTable::row(_quvera_ui_type(type));
        QVERIFY(row);
        QCOMPARE(int(row->type), type);
        QVERIFY(row->plan != Plan::Unreached);
        QVERIFY(!PageTable::title(row->type).isEmpty());
        int reached = 0;
        for (const PageRow &other : PageTable::rows())
            reached += other.type == row->type && other.plan != Plan::Unreached;
        QCOMPARE(reached, 1);
    }
    QVERIFY(!PageTable::row(_quvera_ui_type(kUiTypes)));
    QVERIFY(!PageTable::row(_quvera_ui_type(-1)));
    QCOMPARE(PageTable::title(_quvera_ui_type(99)), QString());
}

void TstPageTable::twoPagesMayShareAType()
{
    std::vector<const PageRow *> loggers;
    for (const PageRow &row : PageTable::rows()) {
        if (row.type == UI_LOGGER)
            loggers.push_back(&row);
    }
    QCOMPARE(loggers.size(), std::size_t(2));
    QVERIFY(loggers[0]->plan == Plan::Unreached);
    QCOMPARE(loggers[0]->languageTurn, 0); // the logger of text files keeps the language of the start
    QCOMPARE(PageTable::row(UI_LOGGER), loggers[1]);
    QCOMPARE(loggers[1]->tile.place, 11);
}

void TstPageTable::stackOrder()
{
    Types found;
    for (const PageRow &row : PageTable::rows())
        found.append(row.type);
    const Types expected { UI_MENU,    UI_VIF,       UI_DIPS_SWELLS,    UI_HARMONICS, UI_POWER,
                           UI_FLICKER, UI_UNBALANCE, UI_TRANSIENTS,     UI_USER,      UI_INRUSH,
                           UI_LOGGER,  UI_MONITOR,   UI_SCOPE,          UI_SETUP,     UI_MEMORY,
                           UI_WAVE,    UI_MAINS_SIG, UI_POWER_INVERTER, UI_LOGGER };
    QCOMPARE(found, expected);
}

void TstPageTable::languageOrder()
{
    const Types expected { UI_USER,       UI_VIF,       UI_DIPS_SWELLS, UI_FLICKER,   UI_HARMONICS,     UI_POWER,
                           UI_TRANSIENTS, UI_UNBALANCE, UI_INRUSH,      UI_LOGGER,    UI_MONITOR,       UI_SCOPE,
                           UI_WAVE,       UI_SETUP,     UI_MEMORY,      UI_MAINS_SIG, UI_POWER_INVERTER };
    QCOMPARE(types(PageTable::inTurn(&PageRow::languageTurn)), expected);
}

void TstPageTable::beginOrder()
{
    const Types expected { UI_VIF,       UI_DIPS_SWELLS, UI_HARMONICS,     UI_POWER,  UI_FLICKER,
                           UI_UNBALANCE, UI_SCOPE,       UI_TRANSIENTS,    UI_INRUSH, UI_WAVE,
                           UI_LOGGER,    UI_MAINS_SIG,   UI_POWER_INVERTER };
    const std::vector<const PageRow *> turns = PageTable::inTurn(&PageRow::beginTurn);
    QCOMPARE(types(turns), expected);
    QVERIFY(turns[10]->plan == Plan::Unreached); // the logger of text files; the recorder takes no part
}

void TstPageTable::tilesFillTheMenu()
{
    QMap<int, QString> names;
    for (const PageRow &row : PageTable::rows()) {
        if (row.tile.place == 0)
            continue;
        QVERIFY(row.tile.place >= 1 && row.tile.place <= 12);
        QVERIFY(row.plan != Plan::Unreached);
        QVERIFY(!names.contains(row.tile.place));
        names[row.tile.place] = QString::fromLatin1(row.tile.name);
    }
    const QStringList expected { "power",  "vif",        "harmonics",      "unbalance", "flicker", "dips_swells",
                                 "inrush", "transients", "mainssignaling", "wave",      "logger",  "user" };
    QCOMPARE(QStringList(names.values()), expected);
}

/// The gallery drives the instrument from outside and has the menu's tiles in a table of its own.
void TstPageTable::galleryKnowsTheTiles()
{
    QFile source(QStringLiteral(QUVERA_SOURCE_DIR "/tools/gallery/pages.cpp"));
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(source.readAll());
    const int begin = text.indexOf(QLatin1String("kMenu[kRows][kColumns]"));
    QVERIFY(begin >= 0);
    QStringList names;
    const QRegularExpression quoted(QStringLiteral("\"([a-z_]+)\""));
    for (auto found = quoted.globalMatch(text.mid(begin, text.indexOf(QLatin1String("};"), begin) - begin));
         found.hasNext();)
        names << found.next().captured(1);
    QMap<int, QString> tiles;
    for (const PageRow &row : PageTable::rows()) {
        if (row.tile.place != 0)
            tiles[row.tile.place] = QString::fromLatin1(row.tile.name);
    }
    QCOMPARE(names, QStringList(tiles.values()));
}

void TstPageTable::plans()
{
    const auto plan = [](_quvera_ui_type type) { return PageTable::row(type)->plan; };
    for (auto type : { UI_SCOPE, UI_VIF, UI_DIPS_SWELLS, UI_HARMONICS, UI_POWER, UI_FLICKER, UI_UNBALANCE,
                       UI_TRANSIENTS, UI_INRUSH, UI_MAINS_SIG })
        QVERIFY(plan(type) == Plan::Live);
    for (auto type : { UI_WAVE, UI_LOGGER, UI_MONITOR, UI_POWER_INVERTER })
        QVERIFY(plan(type) == Plan::Commanded);
    QVERIFY(plan(UI_SETUP) == Plan::Settings && plan(UI_USER) == Plan::Settings);
    QVERIFY(plan(UI_MEMORY) == Plan::Overlay);
    QVERIFY(plan(UI_MENU) == Plan::Menu);
    // A function that is missing at 400 Hz has no tile to reach it by, or a key that then does nothing.
    for (const PageRow &row : PageTable::rows())
        QCOMPARE(row.at400Hz, row.type != UI_FLICKER && row.type != UI_MONITOR);
}

void TstPageTable::functions()
{
    const QMap<int, int> special { { UI_WAVE, 2 }, { UI_MONITOR, 4 }, { UI_POWER_INVERTER, 5 } };
    for (const PageRow &row : PageTable::rows())
        QCOMPARE(int(row.function), special.value(row.type, 1));
}

QTEST_GUILESS_MAIN(TstPageTable)
#include "tst_pagetable.moc"
