#include "shell/quveraglobal.h"

#include "shell/basedialog.h"
#include "settings/langtranslation.h"
#include "settings/localtime.h"
#include "model/livedata.h"
#include "storage/filework.h"
#include "storage/storeditems.h"
#include "storage/udiskstorage.h"
#include "settings/userconfig.h"
#include "board/backlight.h"
#include "task/recordopening.h"
#include "device/deviceinit.h"
#include "board/screenshot.h"
#include "board/wifi.h"
#include "shell/interruptednote.h"
#include "shell/navigator.h"
#include "services/modbuspublisher.h"
#include "services/iremote.h"
#include "shell/plainpicture.h"
#include "shell/taskmanage.h"
#include "shell/systemtray.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QSplashScreen>

TaskManage *m_taskmanage = nullptr;
BaseDialog *m_basedialog = nullptr;
IRemote *m_remote_ctrl = nullptr;
SystemTray *systemTray = nullptr;
uDiskStorage *udisk = nullptr;
UniTask *g_unitask = nullptr;
QSplashScreen *splash = nullptr;

void showSplash()
{
    const bool russian = m_userConfig_g.getLang() == UserConfig::RU;
    // Never closed: the main window covers it, or appInit hides it.
    splash = new QSplashScreen(QPixmap());
    splash->setPixmap(plainPicture(russian ? QStringLiteral(":/splash_ru") : QStringLiteral(":/splash")));
    splash->show();
    QCoreApplication::processEvents();
}

/// What a lost supply left between card and index is mended behind the first pages, and the user hears what it cut.
static void mendStorage()
{
    auto *work = new FileWork(m_basedialog);
    work->run([zone = LocalTime::localTimeZone()] { StoredItems::mendIndex(zone); });
    InterruptedNote::tell(work);
}

void appInit()
{
    qRegisterMetaType<_quvera_ui_type>("QuveraUiType");

    wifi = new Wifi;
    Pqa2FF::setOpening(recordOpening); // before anything can be recorded
    auto *data = new LiveData; // like all of this graph never deleted
    m_taskmanage = new TaskManage(*data);
    m_idevice = new IDevice;
    ModbusPublisher::publishSettings();
    // Before the window exists: the processor sets itself up while it is built.
    DeviceInit::initAnalogDevice2();

    m_basedialog = new BaseDialog(m_taskmanage); // with the menu; other pages are made when they are entered
    m_basedialog->show();
    m_basedialog->activateWindow(); // not the splash; on a desk a window manager may be missing
    // On a larger screen than the board's it would stand beside the window, or in front of it, for good.
    if (splash && !m_basedialog->geometry().contains(splash->geometry()))
        splash->hide();

    initUiParameter();
    ScreenShot::initScreenShot();
    BackLight::setBackLight(3);
    BackLight::setBackLightDeley(m_userConfig_g.sleepDelay());

    m_remote_ctrl = new IRemote(nullptr);
    systemTray = new SystemTray;
    systemTray->setWirelessQuery(&Wifi::isWifiConnected);
    systemTray->setStorageQuery([data] { return data->storageRefuses(); });
    udisk = new uDiskStorage;
    mendStorage();
}

void appConnection()
{
    QObject::connect(systemTray, &SystemTray::refreshSystemInfo, m_basedialog, &BaseDialog::showSysInfo);
    QObject::connect(systemTray, &SystemTray::refreshSystemIcon, m_basedialog, &BaseDialog::showSysIcon);
    QObject::connect(m_idevice, &IDevice::dspTimeStamp, m_basedialog, &BaseDialog::showDSPTimeStamp);
    QObject::connect(m_idevice, &IDevice::usingBDS, systemTray, &SystemTray::usingBDS);
}

void langConnection()
{
    const auto changed = &LangTranslation::languageChanged;
    QObject::connect(&languageTranslator, changed, m_basedialog, &BaseDialog::retranslateUi);
    QObject::connect(&languageTranslator, changed, &m_basedialog->navigator(), &Navigator::retranslatePages);
}

void initUiParameter()
{
    m_basedialog->navigator().beginPages();
}
