#pragma once

#include "settings/config_data.h"
#include "device/idevice.h"

class BaseDialog;
class IRemote;
class QSplashScreen;
class SystemTray;
class TaskManage;
class UniTask;
class uDiskStorage;

// The flat object graph: long-lived objects, made once by appInit in one fixed order and never deleted. What a lower
// folder uses is defined there and only gathered here.

extern TaskManage *m_taskmanage;
extern BaseDialog *m_basedialog;
extern IRemote *m_remote_ctrl;
extern SystemTray *systemTray;
extern uDiskStorage *udisk;

extern UniTask *g_unitask; // the one task; made and replaced by TaskManage
extern QSplashScreen *splash;

/// Shows the start picture at once; everything else happens under it. Needs the application and m_userConfig_g.
void showSplash();
/// Creates the object graph.
void appInit();
/// Wires title bar and processor to each other.
void appConnection();
/// Wires the language change to the pages.
void langConnection();
/// Empties the event list and the measured data, and lets the pages begin anew. Runs before a task.
void initUiParameter();
