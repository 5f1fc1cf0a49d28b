#include "shell/pagetable.h"

#include "settings/recordinfo.h"
#include "shell/tasklinks.h"
#include "task/unitask.h"
#include "views/dips/dswell.h"
#include "views/flicker/flicker.h"
#include "views/harmonics/harm.h"
#include "views/inrush/inrushpage.h"
#include "views/mainssignaling/mainssignaling.h"
#include "views/power/powen.h"
#include "views/powerinverter/powerinverter.h"
#include "views/scope/scopepage.h"
#include "views/transients/trans.h"
#include "views/unbalance/unbalan.h"
#include "views/vif/vifpage.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

// A page's maker also ties what this page alone has to say to the task, or to hear of it.

template <typename P> FunctionPage *make(TaskLinks &)
{
    return new P;
}

template <typename P> FunctionPage *makeWithEvents(TaskLinks &links)
{
    auto *page = new P;
    QObject::connect(&links, &TaskLinks::eventListChanged, page, &P::refreshEventList);
    return page;
}

FunctionPage *makeHarmonics(TaskLinks &links)
{
    auto *page = new harm;
    QObject::connect(page, &harm::changeFlag, &links,
                     [page, &links](int flag) { links.ask(page, [flag](UniTask &task) { task.changeFlag(flag); }); });
    return page;
}

FunctionPage *makePower(TaskLinks &links)
{
    auto *page = new powen;
    QObject::connect(page, &powen::resetEnergy, &links,
                     [page, &links] { links.ask(page, [](UniTask &task) { task.resetEnergy(); }); });
    return page;
}

FunctionPage *makeTransients(TaskLinks &links)
{
    auto *page = new trans;
    QObject::connect(&links, &TaskLinks::transientsChanged, page, &trans::hasTransEvents);
    return page;
}

FunctionPage *makeInverter(TaskLinks &links)
{
    auto *page = new PowerInverter;
    QObject::connect(page, &PowerInverter::startPowerInverterTask, &links,
                     [&links] { emit links.startWanted(AbstractTask::UniPowerInverter, UI_POWER_INVERTER); });
    return page;
}

bool notRecording()
{
    return !RecordInfo::m_in_recording;
}

constexpr auto kBasic = AbstractTask::UniBasic;
constexpr MenuTile kNoTile {};
constexpr bool kNot400Hz = false;

} // namespace

#define TITLE(text) QT_TRANSLATE_NOOP("BaseDialog", text)
#define TILE(place, name, caption)                                                                                     \
    MenuTile                                                                                                           \
    {                                                                                                                  \
        place, name, QT_TRANSLATE_NOOP("MenuPage", caption)                                                            \
    }

// clang-format off
const std::vector<PageRow> &PageTable::rows()
{
    static const std::vector<PageRow> rows {
        { UI_MENU, TITLE("Menu"), kNoTile, 0, Plan::Menu, kBasic, 0, 0, 0, nullptr },
        { UI_VIF, TITLE("Volts/Amps/Hertz"), TILE(2, "vif", "Volts/Amps/Hertz\n"), 0,
          Plan::Live, kBasic, Hears::kLive, 2, 1, make<VifPage> },
        { UI_DIPS_SWELLS, TITLE("Dips&Swells"), TILE(6, "dips_swells", "Dips&Swells\n"), 0,
          Plan::Live, kBasic, Hears::kLive, 3, 2, makeWithEvents<dswell> },
        { UI_HARMONICS, TITLE("Harmonics"), TILE(3, "harmonics", "Harmonics\n"), 0,
          Plan::Live, kBasic, Hears::kLive, 5, 3, makeHarmonics },
        { UI_POWER, TITLE("Power&Energy"), TILE(1, "power", "Power&Energy\n"), 0,
          Plan::Live, kBasic, Hears::kLive, 6, 4, makePower },
        { UI_FLICKER, TITLE("Flicker"), TILE(5, "flicker", "Flicker\n"), 0,
          Plan::Live, kBasic, Hears::kLive, 4, 5, make<flicker>, kNot400Hz },
        { UI_UNBALANCE, TITLE("Unbalance"), TILE(4, "unbalance", "Unbalance\n"), 0,
          Plan::Live, kBasic, Hears::kLive, 8, 6, make<unbalan> },
        { UI_TRANSIENTS, TITLE("Transients"), TILE(8, "transients", "Transients\n"), 0,
          Plan::Live, kBasic, Hears::kLive, 7, 8, makeTransients },
        { UI_USER, TITLE("User"), TILE(12, "user", "User\n"), 0, Plan::Settings, kBasic, 0, 1, 0, nullptr },
        { UI_INRUSH, TITLE("Inrush"), TILE(7, "inrush", "Inrush\n"), 0,
          Plan::Live, kBasic, Hears::kLive, 9, 9, makeWithEvents<InrushPage> },
        // The logger of text files: its pages exist, no key of this release shows them.
        { UI_LOGGER, TITLE("Logger"), kNoTile, 0, Plan::Unreached, kBasic, 0, 0, 0, nullptr },
        { UI_MONITOR, TITLE("Monitor"), kNoTile, Qt::Key_F8,
          Plan::Commanded, AbstractTask::UniMonitor, Hears::kFront, 11, 0, nullptr, kNot400Hz },
        { UI_SCOPE, TITLE("Scope"), kNoTile, Qt::Key_F6,
          Plan::Live, kBasic, Hears::kLive, 12, 7, make<ScopePage> },
        { UI_SETUP, TITLE("Setup"), kNoTile, Qt::Key_F9, Plan::Settings, kBasic, Hears::kFront, 14, 0, nullptr },
        { UI_MEMORY, TITLE("Memory"), kNoTile, Qt::Key_F10, Plan::Overlay, kBasic, 0, 15, 0, nullptr },
        { UI_WAVE, TITLE("Wave"), TILE(10, "wave", "Wave\n"), 0,
          Plan::Commanded, AbstractTask::UniWave, Hears::kFront, 13, 10, nullptr },
        { UI_MAINS_SIG, TITLE("Mains Signaling"), TILE(9, "mainssignaling", "Mains\nSignaling"), 0,
          Plan::Live, kBasic, Hears::kLive, 16, 11, make<MainsSignaling> },
        { UI_POWER_INVERTER, TITLE("Power Inverter"), kNoTile, 0,
          Plan::Commanded, AbstractTask::UniPowerInverter, Hears::kFront | Hears::Begin, 17, 12, makeInverter },
        // The recorder. Recording runs inside the basic function.
        { UI_LOGGER, TITLE("Logger"), TILE(11, "logger", "Logger\n"), 0,
          Plan::Commanded, kBasic, Hears::Refresh | Hears::RecordTime, 10, 0, nullptr, true, notRecording },
    };
    return rows;
}
// clang-format on

const PageRow *PageTable::row(_quvera_ui_type type)
{
    const std::vector<PageRow> &all = rows();
    const auto found = std::find_if(
        all.begin(), all.end(), [type](const PageRow &row) { return row.type == type && row.plan != Plan::Unreached; });
    return found == all.end() ? nullptr : &*found;
}

std::vector<const PageRow *> PageTable::inTurn(int PageRow::*turn)
{
    std::vector<const PageRow *> turns;
    for (const PageRow &row : rows()) {
        if (row.*turn > 0)
            turns.push_back(&row);
    }
    std::sort(turns.begin(), turns.end(), [turn](const PageRow *a, const PageRow *b) { return a->*turn < b->*turn; });
    return turns;
}

QString PageTable::title(_quvera_ui_type type)
{
    const PageRow *found = row(type);
    return found ? QCoreApplication::translate("BaseDialog", found->title) : QString();
}
