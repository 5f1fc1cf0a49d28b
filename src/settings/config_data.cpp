#include "settings/config_data.h"

#include "settings/limitbuiltins.h"

// The order below is a requirement: each object may use those above it while it is built, and none an application
// object, for all of this happens before main.
QString LimitsManager::builtin_en50160 = QLatin1String(LimitBuiltins::kEn50160Name);
QString LimitsManager::builtin_gost32144 = QLatin1String(LimitBuiltins::kGost32144Name);
CalibFile m_calib_data_g;
SettingConfig m_settingConfig_g;
UserConfig m_userConfig_g;
LimitsManager m_limits_g;
LangTranslation languageTranslator;
