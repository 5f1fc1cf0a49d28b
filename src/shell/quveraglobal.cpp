#include "shell/quveraglobal.h"

#include "shell/basedialog.h"
#include "settings/langtranslation.h"
#include "storage/udiskstorage.h"
#include "settings/userconfig.h"
#include "board/backlight.h"
#include "device/deviceinit.h"
#include "board/screenshot.h"
#include "shell/menupage.h"
#include "services/modbuspublisher.h"
#include "services/iremote.h"
#include "shell/taskmanage.h"
#include "pages/functionpage.h"
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
#include "shell/systemtray.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QSplashScreen>

TaskManage *m_taskmanage = nullptr;
MenuPage *m_menupage = nullptr;
VifPage *m_vifpage = nullptr;
dswell *m_dswellpage = nullptr;
flicker *m_flickerpage = nullptr;
harm *m_harmpage = nullptr;
powen *m_powerpage = nullptr;
trans *m_transpage = nullptr;
unbalan *m_unbalpage = nullptr;
InrushPage *m_inrushpage = nullptr;
ScopePage *m_scopepage = nullptr;
MainsSignaling *m_msignaling = nullptr;
PowerInverter *m_powerinverter = nullptr;
BaseDialog *m_basedialog = nullptr;
IRemote *m_remote_ctrl = nullptr;
SystemTray *systemTray = nullptr;
uDiskStorage *udisk = nullptr;
UniTask *g_unitask = nullptr;
QSplashScreen *splash = nullptr;

namespace {

/// The pages built into this software, by their type.
FunctionPage *s_pages[kUiTypes] = {};

template <typename Page> void makePage(Page *&global)
{
    global = new Page;
    s_pages[global->uiType()] = global;
}

/// In this order; each may read settings, none the main window or a display record.
void makePages()
{
    m_menupage = new MenuPage;
    makePage(m_vifpage);
    makePage(m_dswellpage);
    makePage(m_flickerpage);
    makePage(m_harmpage);
    makePage(m_powerpage);
    makePage(m_transpage);
    makePage(m_unbalpage);
    makePage(m_inrushpage);
    makePage(m_scopepage);
    makePage(m_msignaling);
    makePage(m_powerinverter);
}

constexpr _quvera_ui_type kInitOrder[]
    = { UI_VIF,   UI_DIPS_SWELLS, UI_HARMONICS, UI_POWER, UI_FLICKER,   UI_UNBALANCE,
        UI_SCOPE, UI_TRANSIENTS,  UI_INRUSH,    UI_WAVE,  UI_MAINS_SIG, UI_POWER_INVERTER };

constexpr _quvera_ui_type kLanguageOrder[]
    = { UI_USER,       UI_VIF,       UI_DIPS_SWELLS, UI_FLICKER,   UI_HARMONICS,     UI_POWER,
        UI_TRANSIENTS, UI_UNBALANCE, UI_INRUSH,      UI_LOGGER,    UI_MONITOR,       UI_SCOPE,
        UI_WAVE,       UI_SETUP,     UI_MEMORY,      UI_MAINS_SIG, UI_POWER_INVERTER };

} // namespace

FunctionPage *functionPage(_quvera_ui_type type)
{
    return type >= 0 && type < kUiTypes ? s_pages[type] : nullptr;
}

void showSplash()
{
    QPixmap picture(QStringLiteral(":/splash"));
    if (m_userConfig_g.getLang() == UserConfig::RU)
        picture.load(QStringLiteral(":/splash_ru"));
    // Never closed: the main window covers it, or appInit hides it.
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

    makePages();
    m_basedialog = new BaseDialog;
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
    udisk = new uDiskStorage;
}

void appConnection()
{
    QObject::connect(m_menupage, &MenuPage::leave, m_basedialog,
                     [](_quvera_ui_type target) { m_basedialog->go(UI_MENU, target); });
    for (FunctionPage *page : s_pages) {
        if (page)
            QObject::connect(page, &Page::leave, m_basedialog, [page](_quvera_ui_type target) {
                if (m_basedialog->currentPage() == page)
                    m_basedialog->go(page->uiType(), target);
            });
    }
    QObject::connect(m_menupage, &MenuPage::restartTask, m_basedialog, &BaseDialog::restartTask);
    QObject::connect(m_transpage, &trans::startTransTask, m_basedialog, &BaseDialog::startTransTask);
    QObject::connect(m_inrushpage, &InrushPage::startInrushTask, m_basedialog, &BaseDialog::startInrushTask);
    QObject::connect(m_powerinverter, &PowerInverter::startPowerInverterTask, m_basedialog,
                     &BaseDialog::startPowerInverterTask);
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
    for (_quvera_ui_type type : kLanguageOrder) {
        if (FunctionPage *page = functionPage(type))
            QObject::connect(&languageTranslator, changed, page, &FunctionPage::retranslateUi);
    }
}

void initUiParameter()
{
    g_events_list.clear();
    for (_quvera_ui_type type : kInitOrder) {
        if (FunctionPage *page = functionPage(type))
            page->init_parameter();
    }
}
