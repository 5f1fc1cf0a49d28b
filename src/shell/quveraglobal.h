#pragma once

#include "settings/config_data.h"
#include "model/displayrecords.h"
#include "device/idevice.h"
#include "pages/uitype.h"

class BaseDialog;
class FunctionPage;
class IRemote;
class MainsSignaling;
class MenuPage;
class PowerInverter;
class QSplashScreen;
class SystemTray;
class TaskManage;
class UniTask;
class InrushPage;
class ScopePage;
class VifPage;
class dswell;
class flicker;
class harm;
class powen;
class trans;
class unbalan;
class uDiskStorage;

// The flat object graph: long-lived objects, made once by appInit in one fixed order and never deleted. What a lower
// folder uses is defined there and only gathered here.

extern TaskManage *m_taskmanage;
extern MenuPage *m_menupage;
extern VifPage *m_vifpage;
extern dswell *m_dswellpage;
extern flicker *m_flickerpage;
extern harm *m_harmpage;
extern powen *m_powerpage;
extern trans *m_transpage;
extern unbalan *m_unbalpage;
extern InrushPage *m_inrushpage;
extern ScopePage *m_scopepage;
extern MainsSignaling *m_msignaling;
extern PowerInverter *m_powerinverter;
extern BaseDialog *m_basedialog;
extern IRemote *m_remote_ctrl;
extern SystemTray *systemTray;
extern uDiskStorage *udisk;

extern UniTask *g_unitask; // the one task; made and replaced by TaskManage
extern QSplashScreen *splash;

/// The page of a measuring function; null when \a type has none or it is not built into this software.
FunctionPage *functionPage(_quvera_ui_type type);

/// Shows the start picture at once; everything else happens under it. Needs the application and m_userConfig_g.
void showSplash();
/// Creates the object graph.
void appInit();
/// Wires navigation and status signals.
void appConnection();
/// Counterpart of appConnection; nothing calls it, since nothing is torn down.
void disConnection();
/// Wires the language change to the pages.
void langConnection();
/// Empties the event list and prepares the display records. Runs before a task, which writes them.
void initUiParameter();
