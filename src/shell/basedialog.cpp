#include "shell/basedialog.h"
#include "ui_basedialog.h"

#include "model/nominalfrequency.h"
#include "settings/recordinfo.h"
#include "settings/settingconfig.h"
#include "board/backlight.h"
#include "board/softpower.h"
#include "shell/menupage.h"
#include "platform/target.h"
#include "shell/quveraglobal.h"
#include "shell/taskmanage.h"
#include "pages/functionpage.h"
#include "pages/viewcontainer.h"
#include "widgets/text/keymap.h"
#include "widgets/controls/labellook.h"
#include "widgets/text/localtime.h"
#include "widgets/dialogs/message.h"

#include <QDateTime>
#include <QKeyEvent>
#include <QTimer>

namespace {

const QString kTimeFormat = QStringLiteral("yyyy-MM-dd hh:mm:ss");

/// How a page is entered.
enum class Plan {
    Menu, // the measurement goes on unless its function has an end of its own
    Live, // starts the basic function where none runs
    Commanded, // its function starts by the user's command
    Settings, // ends the measurement
    Overlay, // over the current page, which stays current
};

/// What the shell knows of each page.
struct PageRow
{
    const char *title;
    Plan plan;
    AbstractTask::UniFunction function; // that it demands of the task
};
const PageRow kPages[kUiTypes] = {
    { QT_TRANSLATE_NOOP("BaseDialog", "Menu"), Plan::Menu, AbstractTask::UniBasic },
    { QT_TRANSLATE_NOOP("BaseDialog", "Scope"), Plan::Live, AbstractTask::UniBasic },
    { QT_TRANSLATE_NOOP("BaseDialog", "Volts/Amps/Hertz"), Plan::Live, AbstractTask::UniBasic },
    { QT_TRANSLATE_NOOP("BaseDialog", "Dips&Swells"), Plan::Live, AbstractTask::UniBasic },
    { QT_TRANSLATE_NOOP("BaseDialog", "Harmonics"), Plan::Live, AbstractTask::UniBasic },
    { QT_TRANSLATE_NOOP("BaseDialog", "Power&Energy"), Plan::Live, AbstractTask::UniBasic },
    { QT_TRANSLATE_NOOP("BaseDialog", "Flicker"), Plan::Live, AbstractTask::UniBasic },
    { QT_TRANSLATE_NOOP("BaseDialog", "Unbalance"), Plan::Live, AbstractTask::UniBasic },
    { QT_TRANSLATE_NOOP("BaseDialog", "Transients"), Plan::Live, AbstractTask::UniBasic },
    { QT_TRANSLATE_NOOP("BaseDialog", "Inrush"), Plan::Live, AbstractTask::UniBasic },
    { QT_TRANSLATE_NOOP("BaseDialog", "Wave"), Plan::Commanded, AbstractTask::UniWave },
    // Recording runs inside the normal function.
    { QT_TRANSLATE_NOOP("BaseDialog", "Logger"), Plan::Commanded, AbstractTask::UniBasic },
    { QT_TRANSLATE_NOOP("BaseDialog", "Monitor"), Plan::Commanded, AbstractTask::UniMonitor },
    { QT_TRANSLATE_NOOP("BaseDialog", "User"), Plan::Settings, AbstractTask::UniBasic },
    { QT_TRANSLATE_NOOP("BaseDialog", "Setup"), Plan::Settings, AbstractTask::UniBasic },
    { QT_TRANSLATE_NOOP("BaseDialog", "Memory"), Plan::Overlay, AbstractTask::UniBasic },
    { QT_TRANSLATE_NOOP("BaseDialog", "Mains Signaling"), Plan::Live, AbstractTask::UniBasic },
    { QT_TRANSLATE_NOOP("BaseDialog", "Power Inverter"), Plan::Commanded, AbstractTask::UniPowerInverter },
};

/// The order of the stack; the menu is first of all.
constexpr _quvera_ui_type kStackOrder[]
    = { UI_VIF,        UI_DIPS_SWELLS, UI_HARMONICS, UI_POWER,          UI_FLICKER, UI_UNBALANCE,
        UI_TRANSIENTS, UI_USER,        UI_INRUSH,    UI_MONITOR,        UI_SCOPE,   UI_SETUP,
        UI_MEMORY,     UI_WAVE,        UI_MAINS_SIG, UI_POWER_INVERTER, UI_LOGGER };

QString title(_quvera_ui_type type)
{
    return BaseDialog::tr(kPages[type].title);
}

bool is400Hz()
{
    return isNominal(m_settingConfig_g.getNomFreq(), 400.0);
}

QPixmap iconPixmap(const QString &name)
{
    return name.isEmpty() ? QPixmap() : QPixmap(QLatin1String(":/") + name);
}

} // namespace

BaseDialog::BaseDialog(QWidget *parent)
    : QDialog(parent), m_ui(new Ui::BaseDialog), m_clockTimer(new QTimer(this)), m_powerTimer(new QTimer(this))
{
    m_ui->setupUi(this);
    LabelLook::dress(this);
    setFixedSize(640, 480);
    m_ui->base_stackedWidget->addWidget(m_menupage);
    for (_quvera_ui_type type : kStackOrder) {
        if (FunctionPage *page = functionPage(type))
            m_ui->base_stackedWidget->addWidget(page);
    }
    connect(m_powerTimer, &QTimer::timeout, this, &BaseDialog::powerBtnPushed);
    connect(m_clockTimer, &QTimer::timeout, this, &BaseDialog::refleshtime);
    m_clockTimer->start(500);
    refleshtime();
    highLightMenu();
}

BaseDialog::~BaseDialog() = default;

void BaseDialog::keyPressEvent(QKeyEvent *event)
{
    if (keyMap::recoverBackLight() || keyMap::isDroppedRepeat(*event)) {
        event->accept();
        return;
    }
    switch (keyMap::keyPressMap(event->key())) {
    case Qt::Key_F12:
        BackLight::switchBackLight();
        event->accept();
        break;
    case Qt::Key_PowerOff:
        armPowerTimer();
        event->accept();
        break;
    default:
        event->ignore();
    }
}

void BaseDialog::keyReleaseEvent(QKeyEvent *event)
{
    keyMap::keyReleaseMap(event->key());
    event->ignore();
}

void BaseDialog::focusInEvent(QFocusEvent *)
{
    m_ui->base_stackedWidget->currentWidget()->setFocus();
}

void BaseDialog::armPowerTimer()
{
    m_powerTimer->start(100);
    m_powerTicks = 0;
    m_powerArmed = true;
}

void BaseDialog::powerBtnPushed()
{
    if (!m_powerArmed || ++m_powerTicks < 1)
        return;
    m_powerTimer->stop();
    m_powerArmed = false;
    m_powerTicks = 0;
    Target::shell(QStringLiteral("sync"));
    if (Message::showMessage(2, tr("Power off?")) != Message::Ok)
        return;
    if (m_taskmanage->currentTask())
        m_taskmanage->exitTaskWithSave(true);
    SoftPower::powerOff();
}

void BaseDialog::refleshtime()
{
    const QString text = LocalTime::currentDateTime().toString(kTimeFormat);
    if (m_ui->datetime->text() != text)
        m_ui->datetime->setText(text);
}

void BaseDialog::showSysInfo(const QString &text)
{
    // The set-up line is too long for the place in one row: it breaks behind the frequency.
    QString rows = text;
    const int cut = rows.indexOf(QLatin1Char('\\'));
    if (cut >= 0)
        rows.insert(cut + 1, QLatin1Char('\n'));
    if (m_ui->sys_info->text() != rows)
        m_ui->sys_info->setText(rows);
}

void BaseDialog::showSysIcon(const QString &first, const QString &second)
{
    m_ui->sys_icon_1->setPixmap(iconPixmap(first));
    m_ui->sys_icon_2->setPixmap(iconPixmap(second));
}

void BaseDialog::showDSPTimeStamp(quint32 seconds)
{
    if (seconds == 0)
        return;
    const QString text = QDateTime::fromTime_t(seconds).toString(kTimeFormat);
    m_ui->datetime->setText(text);
    Target::shell(QStringLiteral("date -s '%1'").arg(text));
}

void BaseDialog::displayTaskName(const QString &text)
{
    m_ui->name->setText(text);
}

void BaseDialog::retranslateUi()
{
    // Runs when the language is changed on the user page, which is then on top.
    displayTaskName(title(UI_USER));
}

void BaseDialog::highLightMenu()
{
    m_currentPage = m_menupage;
    m_menupage->initMenuMatrix();
    m_ui->base_stackedWidget->setCurrentWidget(m_menupage);
    m_menupage->setCurrentItem();
    displayTaskName(title(UI_MENU));
}

BaseDialog::Answer BaseDialog::changeTaskOrNot(AbstractTask::UniFunction function, _quvera_ui_type current)
{
    if (m_taskmanage->curTaskType() == 0)
        return NoTask;
    if (m_taskmanage->getUniFunction() == function)
        return KeepTask;
    return endTaskAsAsked(current) ? NoTask : StayOnPage;
}

bool BaseDialog::exitCurTaskIfOrNot(_quvera_ui_type current)
{
    return m_taskmanage->curTaskType() == 0 || endTaskAsAsked(current);
}

/// Ends the task if it does not run, or if the user wants it; false: the user stays.
bool BaseDialog::endTaskAsAsked(_quvera_ui_type current)
{
    const AbstractTask *task = m_taskmanage->currentTask();
    if (!task || (!task->isTaskRunning() && !task->isTaskPaused())) {
        m_taskmanage->disconnectDisplay(current);
        m_taskmanage->exitTask();
        return true;
    }
    return RecordInfo::m_in_recording ? endRecordingAsAsked(current) : quitTaskAsAsked(current);
}

bool BaseDialog::endRecordingAsAsked(_quvera_ui_type current)
{
    const QString question = tr("Logger is running!\n") + tr("Save: save the data.\n")
        + tr("Exit: delete the data and exit.\n") + tr("Restart: delete the data and restart logger.");
    switch (Message::showMessage(7, question)) {
    case Message::Save:
        m_taskmanage->disconnectDisplay(current);
        m_taskmanage->exitTaskWithSave(true);
        return true;
    case Message::Discard:
        m_taskmanage->disconnectDisplay(current);
        m_taskmanage->exitTaskWithSave(false);
        return true;
    case Message::Restart:
        m_taskmanage->exitTaskWithSave(false);
        startRecordTask();
        return false;
    default:
        return false;
    }
}

bool BaseDialog::quitTaskAsAsked(_quvera_ui_type current)
{
    const QString question
        = tr("The task \"") + m_taskmanage->curTaskName() + tr("\" is running.\ndo you want to quit?");
    switch (Message::showMessage(1, question)) {
    case Message::Cancel:
        return false;
    case Message::Quit:
        m_taskmanage->disconnectDisplay(current);
        m_taskmanage->exitTaskWithSave(false);
        return true;
    default:
        // Closed without a choice.
        m_taskmanage->disconnectDisplay(current);
        m_taskmanage->exitTask();
        return true;
    }
}

/// The page of a function, or null after telling the user that this software has none.
FunctionPage *BaseDialog::builtPage(_quvera_ui_type target)
{
    FunctionPage *page = functionPage(target);
    if (!page)
        Message::showMessage(0, tr("%1 is not available\nin this software version.").arg(title(target)));
    return page;
}

void BaseDialog::bringToFront(QWidget *page, const QString &pageTitle)
{
    displayTaskName(pageTitle);
    m_currentPage = page;
    m_ui->base_stackedWidget->setCurrentWidget(page);
    page->setFocus();
}

void BaseDialog::go(_quvera_ui_type current, _quvera_ui_type target)
{
    if (target < 0 || target >= kUiTypes || current == target)
        return;
    switch (kPages[target].plan) {
    case Plan::Menu:
        return showMenu(current);
    case Plan::Live:
        return showLive(current, target);
    case Plan::Commanded:
        return showCommanded(current, target);
    case Plan::Settings:
        return showSettings(current, target);
    case Plan::Overlay:
        return showMemory();
    }
}

/// Pages that only read live data: going from one to another never interrupts the measurement.
void BaseDialog::showLive(_quvera_ui_type current, _quvera_ui_type target)
{
    FunctionPage *page = builtPage(target);
    if (!page)
        return;
    switch (changeTaskOrNot(AbstractTask::UniBasic, current)) {
    case NoTask:
        initUiParameter();
        startFunction(AbstractTask::UniBasic, target);
        break;
    case KeepTask:
        m_taskmanage->disconnectDisplay(current);
        m_taskmanage->connectDisplay(target);
        break;
    case StayOnPage:
        return;
    }
    if (auto *container = qobject_cast<ViewContainer *>(page))
        container->enterFirstPage();
    bringToFront(page, title(target));
}

/// Pages whose function starts by the user's own command: no task starts here.
void BaseDialog::showCommanded(_quvera_ui_type current, _quvera_ui_type target)
{
    if (target == UI_MONITOR && is400Hz())
        return;
    FunctionPage *page = builtPage(target);
    if (!page)
        return;
    auto *container = qobject_cast<ViewContainer *>(page);
    switch (changeTaskOrNot(kPages[target].function, current)) {
    case NoTask:
        initUiParameter();
        if (container)
            container->enterFirstPage();
        break;
    case KeepTask:
        m_taskmanage->disconnectDisplay(current);
        m_taskmanage->connectDisplay(target);
        if (target == UI_LOGGER && !RecordInfo::m_in_recording && container)
            container->enterFirstPage();
        break;
    case StayOnPage:
        return;
    }
    bringToFront(page, title(target));
}

/// Setup and User always end the measurement.
void BaseDialog::showSettings(_quvera_ui_type current, _quvera_ui_type target)
{
    FunctionPage *page = builtPage(target);
    if (!page || !exitCurTaskIfOrNot(current))
        return;
    if (target == UI_SETUP)
        m_taskmanage->connectDisplay(target);
    bringToFront(page, title(target));
    if (auto *container = qobject_cast<ViewContainer *>(page))
        container->enterFirstPage();
}

void BaseDialog::showMenu(_quvera_ui_type current)
{
    if (m_taskmanage->getUniFunction() > AbstractTask::UniBasic && !exitCurTaskIfOrNot(current))
        return;
    highLightMenu();
}

void BaseDialog::showMemory()
{
    FunctionPage *page = builtPage(UI_MEMORY);
    if (!page)
        return;
    // The current page stays current: the measurement goes on behind this one.
    displayTaskName(title(UI_MEMORY));
    m_ui->base_stackedWidget->setCurrentWidget(page);
    page->setFocus();
}

void BaseDialog::showLast()
{
    _quvera_ui_type type = UI_MENU;
    if (m_currentPage != m_menupage) {
        auto *page = qobject_cast<FunctionPage *>(m_currentPage);
        if (!page)
            return;
        type = page->uiType();
    }
    bringToFront(m_currentPage, title(type));
    if (type == UI_MENU)
        m_menupage->setCurrentItem();
}

void BaseDialog::startFunction(AbstractTask::UniFunction function, _quvera_ui_type display)
{
    AbstractTask *task = m_taskmanage->initTask(TaskManage::Universal);
    m_taskmanage->changeUniFunction(function);
    m_taskmanage->startTask(task);
    m_taskmanage->connectDisplay(display);
}

void BaseDialog::restartTask()
{
    m_taskmanage->exitTaskWithSave(false);
    initUiParameter();
    AbstractTask *task = m_taskmanage->initTask(TaskManage::Universal);
    m_taskmanage->changeUniFunction(AbstractTask::UniBasic);
    m_taskmanage->startTask(task);
}

void BaseDialog::startLoggerTask()
{
    startFunction(AbstractTask::UniLogger, UI_LOGGER);
}

void BaseDialog::startMonitorTask()
{
    startFunction(AbstractTask::UniMonitor, UI_MONITOR);
}

void BaseDialog::startWaveTask()
{
    startFunction(AbstractTask::UniWave, UI_WAVE);
}

void BaseDialog::startPowerInverterTask()
{
    startFunction(AbstractTask::UniPowerInverter, UI_POWER_INVERTER);
}

void BaseDialog::startRecordTask()
{
    if (m_taskmanage->curTaskType() != TaskManage::Universal)
        startFunction(AbstractTask::UniBasic, UI_LOGGER);
    m_taskmanage->enableRecord();
}
