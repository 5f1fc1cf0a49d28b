#include "shell/pagetable.h"

#include "device/deviceinit.h"
#include "memory/memorypage.h"
#include "services/modbuspublisher.h"
#include "settings/recordinfo.h"
#include "setup/setuppage.h"
#include "shell/basedialog.h"
#include "shell/navigator.h"
#include "shell/quveraglobal.h"
#include "shell/tasklinks.h"
#include "shell/taskmanage.h"
#include "storage/udiskstorage.h"
#include "task/unitask.h"
#include "user/userpage.h"
#include "views/dips/dswell.h"
#include "views/flicker/flicker.h"
#include "views/harmonics/harm.h"
#include "views/inrush/inrushpage.h"
#include "views/mainssignaling/mainssignaling.h"
#include "views/monitor/monitorpage.h"
#include "views/power/powen.h"
#include "views/powerinverter/powerinverter.h"
#include "views/recorder/recordpqa2page.h"
#include "views/scope/scopepage.h"
#include "views/transients/trans.h"
#include "views/unbalance/unbalan.h"
#include "views/vif/vifpage.h"
#include "views/wave/wave.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace {

// A page's maker also ties what this page alone has to say to the task, or to hear of it.

template <typename P> FunctionPage *make(TaskLinks &, const LiveData &data)
{
    return new P(data);
}

FunctionPage *makeHarmonics(TaskLinks &links, const LiveData &data)
{
    auto *page = new harm(data);
    QObject::connect(page, &harm::changeFlag, &links,
                     [page, &links](int flag) { links.ask(page, [flag](UniTask &task) { task.changeFlag(flag); }); });
    return page;
}

FunctionPage *makePower(TaskLinks &links, const LiveData &data)
{
    auto *page = new powen(data);
    QObject::connect(page, &powen::resetEnergy, &links,
                     [page, &links] { links.ask(page, [](UniTask &task) { task.resetEnergy(); }); });
    return page;
}

FunctionPage *makeTransients(TaskLinks &links, const LiveData &data)
{
    auto *page = new trans(data);
    QObject::connect(&links, &TaskLinks::transientsChanged, page, &trans::hasTransEvents);
    return page;
}

FunctionPage *makeInverter(TaskLinks &links, const LiveData &data)
{
    auto *page = new PowerInverter(data);
    QObject::connect(page, &PowerInverter::startPowerInverterTask, &links,
                     [&links] { emit links.startWanted(AbstractTask::UniPowerInverter, UI_POWER_INVERTER); });
    return page;
}

FunctionPage *makeMonitor(TaskLinks &links, const LiveData &data)
{
    auto *page = new MonitorPage(data);
    QObject::connect(page, &MonitorPage::startMonitorTask, &links,
                     [&links] { emit links.startWanted(AbstractTask::UniMonitor, UI_MONITOR); });
    QObject::connect(&links, &TaskLinks::ended, page, &MonitorPage::runEnded);
    // The set says at which frequencies the processor looks for mains signals.
    QObject::connect(page, &MonitorPage::limitsChanged, &links, &DeviceInit::initAnalogDevice2);
    QObject::connect(page, &MonitorPage::limitsChanged, &links, &ModbusPublisher::publishSettings);
    return page;
}

FunctionPage *makeRecorder(TaskLinks &links, const LiveData &data)
{
    auto *page = new RecordPqa2Page(data);
    QObject::connect(page, &RecordPqa2Page::startRecordTask, &links, &TaskLinks::recordWanted);
    QObject::connect(page, &RecordPqa2Page::stopRecordWithSave, &links, &TaskLinks::recordEndWanted);
    QObject::connect(&links, &TaskLinks::recordPlanned, page, &RecordPqa2Page::showPlan);
    QObject::connect(&links, &TaskLinks::recordEnded, page, &RecordPqa2Page::recordingStoped);
    return page;
}

FunctionPage *makeLogger(TaskLinks &links, const LiveData &data)
{
    auto *page = new LoggerPage(data);
    QObject::connect(page, &LoggerPage::startRecordTask, &links, [page, &links] {
        // A run that has ended cannot be started again.
        if (const AbstractTask *task = m_taskmanage->currentTask(); task && task->isTaskStoped())
            m_taskmanage->exitTask();
        emit links.startWanted(AbstractTask::UniLogger, UI_LOGGER);
        if (g_unitask)
            page->showPlan(qint64(g_unitask->startTime()) * 1000, qint64(g_unitask->endTime()) * 1000);
    });
    QObject::connect(page, &LoggerPage::stopRecordWithSave, &links, &TaskLinks::endWanted);
    QObject::connect(&links, &TaskLinks::ended, page, &LoggerPage::recordingStoped);
    return page;
}

FunctionPage *makeWave(TaskLinks &links, const LiveData &data)
{
    auto *page = new Wave(data);
    QObject::connect(page, &Wave::startWaveTask, &links,
                     [&links] { emit links.startWanted(AbstractTask::UniWave, UI_WAVE); });
    QObject::connect(page, &Wave::stopTaskWithSave, &links, &TaskLinks::endWanted);
    QObject::connect(page, &Wave::exitTask, m_taskmanage, &TaskManage::exitTask);
    QObject::connect(&links, &TaskLinks::ended, page, &Wave::taskStoped);
    return page;
}

FunctionPage *makeSetup(TaskLinks &links, const LiveData &data)
{
    auto *page = new SetupPage(data);
    QObject::connect(page, &SetupPage::settingsLeft, &links, &ModbusPublisher::publishSettings);
    return page;
}

FunctionPage *makeUser(TaskLinks &, const LiveData &data)
{
    auto *page = new UserPage(data);
    QObject::connect(page, &UserPage::refreshDTime, m_basedialog, &BaseDialog::refleshtime);
    return page;
}

FunctionPage *makeMemory(TaskLinks &, const LiveData &)
{
    auto *page = new MemoryPage;
    page->setMedias(udisk->Storages());
    QObject::connect(udisk, &uDiskStorage::uDiskStorageChanged, page, &MemoryPage::massStorageMedias);
    QObject::connect(page, &MemoryPage::goBack, &m_basedialog->navigator(), &Navigator::showLast);
    return page;
}

bool notRecording()
{
    return !RecordInfo::m_in_recording;
}

constexpr auto kBasic = AbstractTask::UniBasic;
constexpr MenuTile kNoTile {};
constexpr bool kNot400Hz = false;

/// In the order of the stack.
// clang-format off
const PageRow kRows[] = {
    { UI_MENU, QT_TRANSLATE_NOOP("BaseDialog", "Menu"), kNoTile, Plan::Menu, kBasic, 0, 0, 0, nullptr },
    { UI_VIF, QT_TRANSLATE_NOOP("BaseDialog", "Volts/Amps/Hertz"),
      { 2, "vif", QT_TRANSLATE_NOOP("MenuPage", "Volts/Amps/Hertz\n") },
      Plan::Live, kBasic, Hears::kLive, 2, 1, make<VifPage> },
    { UI_DIPS_SWELLS, QT_TRANSLATE_NOOP("BaseDialog", "Dips&Swells"),
      { 6, "dips_swells", QT_TRANSLATE_NOOP("MenuPage", "Dips&Swells\n") },
      Plan::Live, kBasic, Hears::kLive, 3, 2, make<dswell> },
    { UI_HARMONICS, QT_TRANSLATE_NOOP("BaseDialog", "Harmonics"),
      { 3, "harmonics", QT_TRANSLATE_NOOP("MenuPage", "Harmonics\n") },
      Plan::Live, kBasic, Hears::kLive, 5, 3, makeHarmonics },
    { UI_POWER, QT_TRANSLATE_NOOP("BaseDialog", "Power&Energy"),
      { 1, "power", QT_TRANSLATE_NOOP("MenuPage", "Power&Energy\n") },
      Plan::Live, kBasic, Hears::kLive, 6, 4, makePower },
    { UI_FLICKER, QT_TRANSLATE_NOOP("BaseDialog", "Flicker"),
      { 5, "flicker", QT_TRANSLATE_NOOP("MenuPage", "Flicker\n") },
      Plan::Live, kBasic, Hears::kLive, 4, 5, make<flicker>, kNot400Hz },
    { UI_UNBALANCE, QT_TRANSLATE_NOOP("BaseDialog", "Unbalance"),
      { 4, "unbalance", QT_TRANSLATE_NOOP("MenuPage", "Unbalance\n") },
      Plan::Live, kBasic, Hears::kLive, 8, 6, make<unbalan> },
    { UI_TRANSIENTS, QT_TRANSLATE_NOOP("BaseDialog", "Transients"),
      { 8, "transients", QT_TRANSLATE_NOOP("MenuPage", "Transients\n") },
      Plan::Live, kBasic, Hears::kLive, 7, 8, makeTransients },
    { UI_USER, QT_TRANSLATE_NOOP("BaseDialog", "User"),
      { 12, "user", QT_TRANSLATE_NOOP("MenuPage", "User\n") }, Plan::Settings, kBasic, 0, 1, 0, makeUser },
    { UI_INRUSH, QT_TRANSLATE_NOOP("BaseDialog", "Inrush"),
      { 7, "inrush", QT_TRANSLATE_NOOP("MenuPage", "Inrush\n") },
      Plan::Live, kBasic, Hears::kLive, 9, 9, make<InrushPage> },
    // The logger of text files: its pages exist, no key of this release shows them.
    { UI_LOGGER, QT_TRANSLATE_NOOP("BaseDialog", "Logger"), kNoTile, Plan::Unreached, kBasic, 0, 0, 11, makeLogger },
    { UI_MONITOR, QT_TRANSLATE_NOOP("BaseDialog", "Monitor"), kNoTile,
      Plan::Commanded, AbstractTask::UniMonitor, Hears::kFront, 11, 0, makeMonitor, kNot400Hz },
    { UI_SCOPE, QT_TRANSLATE_NOOP("BaseDialog", "Scope"), kNoTile,
      Plan::Live, kBasic, Hears::kLive, 12, 7, make<ScopePage> },
    { UI_SETUP, QT_TRANSLATE_NOOP("BaseDialog", "Setup"), kNoTile, Plan::Settings, kBasic, 0, 14, 0, makeSetup },
    { UI_MEMORY, QT_TRANSLATE_NOOP("BaseDialog", "Memory"), kNoTile, Plan::Overlay, kBasic, 0, 15, 0, makeMemory },
    { UI_WAVE, QT_TRANSLATE_NOOP("BaseDialog", "Wave"),
      { 10, "wave", QT_TRANSLATE_NOOP("MenuPage", "Wave\n") },
      Plan::Commanded, AbstractTask::UniWave, Hears::kFront, 13, 10, makeWave },
    { UI_MAINS_SIG, QT_TRANSLATE_NOOP("BaseDialog", "Mains Signaling"),
      { 9, "mainssignaling", QT_TRANSLATE_NOOP("MenuPage", "Mains\nSignaling") },
      Plan::Live, kBasic, Hears::kLive, 16, 12, make<MainsSignaling> },
    { UI_POWER_INVERTER, QT_TRANSLATE_NOOP("BaseDialog", "Power Inverter"), kNoTile,
      Plan::Commanded, AbstractTask::UniPowerInverter, Hears::kLive, 17, 13, makeInverter },
    // The recorder. Recording runs inside the basic function.
    { UI_LOGGER, QT_TRANSLATE_NOOP("BaseDialog", "Logger"),
      { 11, "logger", QT_TRANSLATE_NOOP("MenuPage", "Logger\n") },
      Plan::Commanded, kBasic, Hears::Refresh | Hears::RecordTime, 10, 0, makeRecorder, true, notRecording },
};
// clang-format on

} // namespace

const std::vector<PageRow> &PageTable::rows()
{
    static const std::vector<PageRow> all(std::begin(kRows), std::end(kRows));
    return all;
}

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
