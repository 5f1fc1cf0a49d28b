#include "shell/basedialog.h"
#include "ui_basedialog.h"

#include "board/backlight.h"
#include "board/softpower.h"
#include "shell/menupage.h"
#include "platform/diskworker.h"
#include "platform/target.h"
#include "shell/navigator.h"
#include "shell/pagetable.h"
#include "shell/quveraglobal.h"
#include "shell/taskmanage.h"
#include "widgets/controls/labellook.h"
#include "settings/localtime.h"
#include "widgets/dialogs/message.h"

#include <QDateTime>
#include <QKeyEvent>
#include <QTimer>

namespace {

const QString kTimeFormat = QStringLiteral("yyyy-MM-dd hh:mm:ss");

QPixmap iconPixmap(const QString &name)
{
    return name.isEmpty() ? QPixmap() : QPixmap(QLatin1String(":/") + name);
}

} // namespace

BaseDialog::BaseDialog(TaskManage *tasks, QWidget *parent)
    : QDialog(parent), m_ui(new Ui::BaseDialog), m_clockTimer(new QTimer(this)), m_powerTimer(new QTimer(this)),
      m_keys(this)
{
    m_ui->setupUi(this);
    LabelLook::dress(this);
    setFixedSize(640, 480);
    m_menu = new MenuPage(tasks->data());
    m_navigator = new Navigator(tasks, m_menu, m_ui->base_stackedWidget, this);
    m_keys.setRows({ { Qt::Key_F12, nullptr, &BackLight::switchBackLight, nullptr, 0, {} },
                     { Qt::Key_PowerOff, nullptr, [this] { armPowerTimer(); }, nullptr, 0, {} } });
    connect(m_navigator, &Navigator::titleChanged, this, &BaseDialog::displayTaskName);
    connect(m_powerTimer, &QTimer::timeout, this, &BaseDialog::powerBtnPushed);
    connect(m_clockTimer, &QTimer::timeout, this, &BaseDialog::refleshtime);
    m_clockTimer->start(500);
    refleshtime();
    m_navigator->showMenuPage();
}

BaseDialog::~BaseDialog() = default;

void BaseDialog::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(FrontKeys::press(*event, [this](int key) { return m_keys.act(key); }));
}

void BaseDialog::keyReleaseEvent(QKeyEvent *event)
{
    m_keys.release(*event);
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
    // The supply goes at once: what is still on its way to the card has to be there.
    DiskWorker::slow().wait();
    DiskWorker::instance().wait();
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
    // Comes every second, mostly with what stands there: a picture set anew lays out and paints the title bar.
    if (m_icons[0] != first)
        m_ui->sys_icon_1->setPixmap(iconPixmap(first));
    if (m_icons[1] != second)
        m_ui->sys_icon_2->setPixmap(iconPixmap(second));
    m_icons[0] = first;
    m_icons[1] = second;
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
    displayTaskName(PageTable::title(UI_USER));
}
