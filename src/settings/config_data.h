#pragma once

#include <QList>

#include "settings/calibfile.h"
#include "settings/langtranslation.h"
#include "settings/limitsmanager.h"
#include "settings/settingconfig.h"
#include "settings/userconfig.h"

// The long-lived objects of this folder, built before main in the order of config_data.cpp, on which they depend.
extern CalibFile m_calib_data_g;
extern SettingConfig m_settingConfig_g;
extern UserConfig m_userConfig_g;
extern LimitsManager m_limits_g;
extern LangTranslation languageTranslator;
