#include "shell/navigator.h"

#include "model/livedata.h"
#include "model/nominalfrequency.h"
#include "model/pqaeventitem.h"
#include "pages/functionpage.h"
#include "settings/config_data.h"
#include "settings/dipswellinfo.h"
#include "settings/harmdata.h"
#include "settings/langtranslation.h"
#include "settings/recordinfo.h"
#include "shell/basedialog.h"
#include "shell/menupage.h"
#include "shell/pagetable.h"
#include "shell/tasklinks.h"
#include "shell/taskmanage.h"
#include "widgets/dialogs/message.h"

#include <QStackedWidget>

#include <algorithm>

namespace {

bool is400Hz()
{
    return isNominal(m_settingConfig_g.getNomFreq(), 400.0);
}

} // namespace

Navigator::Navigator(TaskManage *tasks, MenuPage *menu, QStackedWidget *stack, QObject *parent)
    : QObject(parent), m_tasks(tasks), m_menu(menu), m_stack(stack), m_pages(PageTable::rows().size(), nullptr),
      m_currentPage(menu)
{
    m_stack->addWidget(m_menu);
    connect(m_menu, &MenuPage::leave, this, [this](_quvera_ui_type target) { go(UI_MENU, target); });
    connect(m_menu, &MenuPage::restartTask, this, &Navigator::restartTask);
    connect(&m_tasks->links(), &TaskLinks::startWanted, this, &Navigator::startFunction);
    connect(&m_tasks->links(), &TaskLinks::recordWanted, this, &Navigator::startRecordTask);
}

std::size_t Navigator::place(const PageRow &row)
{
    return std::size_t(&row - PageTable::rows().data());
}

FunctionPage *Navigator::makePage(const PageRow &row)
{
    FunctionPage *page = row.make(m_tasks->links(), m_tasks->data());
    m_pages[place(row)] = page;
    const auto behind = m_pages.begin() + std::ptrdiff_t(place(row));
    const auto before = std::count_if(m_pages.begin(), behind, [](const FunctionPage *made) { return made; });
    m_stack->insertWidget(1 + int(before), page);
    m_tasks->links().take(page, row);
    connect(page, &Page::leave, this, [this, page](_quvera_ui_type target) {
        if (page == m_currentPage)
            go(page->uiType(), target);
    });
    // It stands where it would, had it been there since the run began.
    page->init_parameter();
    const AbstractTask *task = m_tasks->currentTask();
    if (task && (task->isTaskRunning() || task->isTaskPaused()) && row.hears & Hears::Refresh)
        page->updateDisplay(nullptr);
    if (task && task->isTaskPaused() && row.hears & Hears::Hold)
        page->setPause();
    return page;
}

FunctionPage *Navigator::page(_quvera_ui_type type)
{
    const PageRow *row = PageTable::row(type);
    if (!row || !row->make)
        return nullptr;
    FunctionPage *made = m_pages[place(*row)];
    return made ? made : makePage(*row);
}

_quvera_ui_type Navigator::currentType() const
{
    const auto *page = qobject_cast<const FunctionPage *>(m_currentPage);
    return page ? page->uiType() : UI_MENU;
}

void Navigator::retranslatePages()
{
    m_menu->retranslateUi();
    for (const PageRow *row : PageTable::inTurn(&PageRow::languageTurn)) {
        if (FunctionPage *made = m_pages[place(*row)])
            made->retranslateUi();
    }
}

void Navigator::beginPages()
{
    // The task asks for these before their pages exist.
    DipSwellInfo::initInfoTimes(m_settingConfig_g.getNomFreq());
    HarmData::initHarmMaxNumb(m_settingConfig_g.getNomFreq());
    m_tasks->data().empty(float(m_settingConfig_g.getNomFreq()));
    for (const PageRow *row : PageTable::inTurn(&PageRow::beginTurn)) {
        if (FunctionPage *made = m_pages[place(*row)])
            made->init_parameter();
    }
}

Navigator::Answer Navigator::changeTaskOrNot(AbstractTask::UniFunction function, _quvera_ui_type current)
{
    if (m_tasks->curTaskType() == 0)
        return NoTask;
    if (m_tasks->getUniFunction() == function)
        return KeepTask;
    return endTaskAsAsked(current) ? NoTask : StayOnPage;
}

bool Navigator::exitCurTaskIfOrNot(_quvera_ui_type current)
{
    return m_tasks->curTaskType() == 0 || endTaskAsAsked(current);
}

/// Ends the task if it does not run, or if the user wants it; false: the user stays.
bool Navigator::endTaskAsAsked(_quvera_ui_type current)
{
    const AbstractTask *task = m_tasks->currentTask();
    if (!task || (!task->isTaskRunning() && !task->isTaskPaused())) {
        m_tasks->disconnectDisplay(current);
        m_tasks->exitTask();
        return true;
    }
    return RecordInfo::m_in_recording ? endRecordingAsAsked(current) : quitTaskAsAsked(current);
}

bool Navigator::endRecordingAsAsked(_quvera_ui_type current)
{
    const QString question = BaseDialog::tr("Logger is running!\n") + BaseDialog::tr("Save: save the data.\n")
        + BaseDialog::tr("Exit: delete the data and exit.\n")
        + BaseDialog::tr("Restart: delete the data and restart logger.");
    switch (Message::showMessage(7, question)) {
    case Message::Save:
        m_tasks->disconnectDisplay(current);
        m_tasks->exitTaskWithSave(true);
        return true;
    case Message::Discard:
        m_tasks->disconnectDisplay(current);
        m_tasks->stopRecordWithSave(false);
        m_tasks->exitTask();
        return true;
    case Message::Restart:
        m_tasks->stopRecordWithSave(false);
        m_tasks->exitTask();
        startRecordTask();
        m_tasks->connectDisplay(current); // the user stays there
        return false;
    default:
        return false;
    }
}

bool Navigator::quitTaskAsAsked(_quvera_ui_type current)
{
    const QString question = BaseDialog::tr("The task \"") + m_tasks->curTaskName()
        + BaseDialog::tr("\" is running.\ndo you want to quit?");
    switch (Message::showMessage(1, question)) {
    case Message::Cancel:
        return false;
    case Message::Quit:
        m_tasks->disconnectDisplay(current);
        m_tasks->exitTaskWithSave(false);
        return true;
    default:
        // Closed without a choice.
        m_tasks->disconnectDisplay(current);
        m_tasks->exitTask();
        return true;
    }
}

void Navigator::leaveCurrent()
{
    if (auto *page = qobject_cast<FunctionPage *>(m_currentPage))
        page->left();
}

void Navigator::bringToFront(QWidget *page, const QString &title)
{
    emit titleChanged(title);
    m_currentPage = page;
    m_stack->setCurrentWidget(page);
    page->setFocus();
}

void Navigator::go(_quvera_ui_type current, _quvera_ui_type target)
{
    const PageRow *row = PageTable::row(target);
    if (!row || current == target)
        return;
    switch (row->plan) {
    case Plan::Menu:
        return showMenu(current);
    case Plan::Live:
        return showLive(current, target);
    case Plan::Commanded:
        return showCommanded(current, target);
    case Plan::Settings:
        return showSettings(current, target);
    case Plan::Overlay:
        return showOverlay(target);
    case Plan::Unreached:
        return;
    }
}

/// The page follows another one in front of a run. What it showed when it was left is of another moment, and on hold no
/// refresh would come to change that.
void Navigator::takeFront(_quvera_ui_type current, FunctionPage *page)
{
    m_tasks->disconnectDisplay(current);
    m_tasks->connectDisplay(page->uiType());
    page->updateDisplay(nullptr);
}

/// Pages that only read live data: going from one to another never interrupts the measurement.
void Navigator::showLive(_quvera_ui_type current, _quvera_ui_type target)
{
    FunctionPage *page = this->page(target);
    if (!page)
        return;
    switch (changeTaskOrNot(AbstractTask::UniBasic, current)) {
    case NoTask:
        leaveCurrent();
        beginPages();
        startFunction(AbstractTask::UniBasic, target);
        break;
    case KeepTask:
        leaveCurrent();
        takeFront(current, page);
        break;
    case StayOnPage:
        return;
    }
    page->enter();
    bringToFront(page, PageTable::title(target));
}

/// Pages whose function starts by the user's own command: no task starts here.
void Navigator::showCommanded(_quvera_ui_type current, _quvera_ui_type target)
{
    const PageRow &row = *PageTable::row(target);
    if (!row.at400Hz && is400Hz())
        return;
    FunctionPage *page = this->page(target);
    if (!page)
        return;
    bool enters = true;
    switch (changeTaskOrNot(row.function, current)) {
    case NoTask:
        leaveCurrent();
        beginPages();
        break;
    case KeepTask:
        leaveCurrent();
        takeFront(current, page);
        enters = row.entersAgain && row.entersAgain();
        break;
    case StayOnPage:
        return;
    }
    bringToFront(page, PageTable::title(target));
    if (enters)
        page->enter();
}

/// Setup and User always end the measurement.
void Navigator::showSettings(_quvera_ui_type current, _quvera_ui_type target)
{
    FunctionPage *page = this->page(target);
    if (!page || !exitCurTaskIfOrNot(current))
        return;
    leaveCurrent();
    bringToFront(page, PageTable::title(target));
    page->enter();
}

void Navigator::showMenu(_quvera_ui_type current)
{
    if (m_tasks->getUniFunction() > AbstractTask::UniBasic && !exitCurTaskIfOrNot(current))
        return;
    leaveCurrent();
    showMenuPage();
}

void Navigator::showMenuPage()
{
    m_menu->initMenuMatrix();
    bringToFront(m_menu, PageTable::title(UI_MENU));
    m_menu->setCurrentItem();
}

/// The current page stays current: the measurement goes on behind this one.
void Navigator::showOverlay(_quvera_ui_type target)
{
    FunctionPage *page = this->page(target);
    if (!page)
        return;
    emit titleChanged(PageTable::title(target));
    page->enter();
    m_stack->setCurrentWidget(page);
    page->setFocus();
}

void Navigator::showLast()
{
    bringToFront(m_currentPage, PageTable::title(currentType()));
    if (m_currentPage == m_menu)
        m_menu->setCurrentItem();
}

void Navigator::startFunction(AbstractTask::UniFunction function, _quvera_ui_type display)
{
    AbstractTask *task = m_tasks->initTask(TaskManage::Universal);
    m_tasks->changeUniFunction(function);
    m_tasks->startTask(task);
    m_tasks->connectDisplay(display);
}

void Navigator::restartTask()
{
    m_tasks->exitTaskWithSave(false);
    beginPages();
    AbstractTask *task = m_tasks->initTask(TaskManage::Universal);
    m_tasks->changeUniFunction(AbstractTask::UniBasic);
    m_tasks->startTask(task);
}

void Navigator::startRecordTask()
{
    if (m_tasks->curTaskType() != TaskManage::Universal)
        startFunction(AbstractTask::UniBasic, UI_LOGGER);
    m_tasks->enableRecord();
}
