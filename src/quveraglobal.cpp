#include "quveraglobal.h"

#include "basedialog.h"
#include "config/langtranslation.h"
#include "config/udiskstorage.h"
#include "config/userconfig.h"
#include "device/backlight.h"
#include "device/deviceinit.h"
#include "device/screenshot.h"
#include "menupage.h"
#include "modbuspublisher.h"
#include "services/iremote.h"
#include "taskmanage.h"
#include "views/vif/vifpage.h"
#include "widgets/systemtray.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QSplashScreen>

TaskManage *m_taskmanage = nullptr;
MenuPage *m_menupage = nullptr;
VifPage *m_vifpage = nullptr;
BaseDialog *m_basedialog = nullptr;
IRemote *m_remote_ctrl = nullptr;
SystemTray *systemTray = nullptr;
uDiskStorage *udisk = nullptr;
UniTask *g_unitask = nullptr;
QSplashScreen *splash = nullptr;

FunctionPage *functionPage(_quvera_ui_type type)
{
    switch (type) {
    case UI_VIF:
        return m_vifpage;
    default:
        return nullptr;
    }
}

void showSplash()
{
    constexpr int kRussian = 12;

    QPixmap picture(QStringLiteral(":/splash"));
    if (m_userConfig_g.getLang() == kRussian)
        picture.load(QStringLiteral(":/splash_ru"));
    // Never closed: the main window covers it.
    splash = new QSplashScreen(QPixmap());
    splash->setPixmap(picture);
    splash->show();
    QCoreApplication::processEvents();
}

void appInit()
{
    qRegisterMetaType<_quvera_ui_type>("QuveraUiType");

    m_taskmanage = new TaskManage;
    m_idevice = new IDevice;
    ModbusPublisher::publishSettings();
    // Before any page exists: the processor sets itself up while the pages are built.
    DeviceInit::initAnalogDevice2();

    m_menupage = new MenuPage;
    m_vifpage = new VifPage;
    m_basedialog = new BaseDialog;
    m_basedialog->show();

    initUiParameter();
    ScreenShot::initScreenShot();
    BackLight::setBackLight(3);
    BackLight::setBackLightDeley(m_userConfig_g.sleepDelay());

    m_remote_ctrl = new IRemote(nullptr);
    systemTray = new SystemTray;
    udisk = new uDiskStorage;
}

void appConnection()
{
    const struct
    {
        void (MenuPage::*signal)(_quvera_ui_type, _quvera_ui_type);
        void (BaseDialog::*slot)(_quvera_ui_type, _quvera_ui_type);
    } navigation[] = {
        { &MenuPage::goScope, &BaseDialog::showScope },
        { &MenuPage::goVif, &BaseDialog::showVif },
        { &MenuPage::goDipsSwells, &BaseDialog::showDipsSwells },
        { &MenuPage::goHarmonics, &BaseDialog::showHarmonics },
        { &MenuPage::goPower, &BaseDialog::showPower },
        { &MenuPage::goFlicker, &BaseDialog::showFlicker },
        { &MenuPage::goUnbalance, &BaseDialog::showUnbalance },
        { &MenuPage::goTransients, &BaseDialog::showTransients },
        { &MenuPage::goInrush, &BaseDialog::showInrush },
        { &MenuPage::goLogger, &BaseDialog::showLogger },
        { &MenuPage::goUser, &BaseDialog::showUser },
        { &MenuPage::goMonitor, &BaseDialog::showMonitor },
        { &MenuPage::goSetup, &BaseDialog::showSetup },
        { &MenuPage::goMemory, &BaseDialog::showMemory },
        { &MenuPage::goWave, &BaseDialog::showWave },
        { &MenuPage::goMainsSig, &BaseDialog::showMainsSig },
        { &MenuPage::goPowerInverter, &BaseDialog::showPowerInverter },
    };
    QObject::connect(m_menupage, &MenuPage::restartTask, m_basedialog, &BaseDialog::restartTask);
    for (const auto &row : navigation)
        QObject::connect(m_menupage, row.signal, m_basedialog, row.slot);
    QObject::connect(systemTray, &SystemTray::refreshSystemInfo, m_basedialog, &BaseDialog::showSysInfo);
    QObject::connect(systemTray, &SystemTray::refreshSystemIcon, m_basedialog, &BaseDialog::showSysIcon);
    QObject::connect(m_idevice, SIGNAL(dspTimeStamp(quint32)), m_basedialog, SLOT(showDSPTimeStamp(quint32)));
    QObject::connect(m_idevice, SIGNAL(usingBDS(quint32)), systemTray, SLOT(usingBDS(quint32)));
}

void disConnection() { }

void langConnection()
{
    const auto changed = &LangTranslation::languageChanged;
    QObject::connect(&languageTranslator, changed, m_basedialog, &BaseDialog::retranslateUi);
    QObject::connect(&languageTranslator, changed, m_menupage, &MenuPage::retranslateUi);
    QObject::connect(&languageTranslator, changed, m_vifpage, &VifPage::retranslateUi);
}

void initUiParameter()
{
    g_events_list.clear();
    m_vifpage->init_parameter();
}
