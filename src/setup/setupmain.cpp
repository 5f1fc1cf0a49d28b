#include "setup/setupmain.h"

#include "settings/config_data.h"

SetupMain::SetupMain(QWidget *parent) : SetupSummary(parent)
{
    static const KeyRow<SetupMain> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("SetupMain", "Config"), &SetupMain::goSetupConfig },
        { Qt::Key_F2, QT_TRANSLATE_NOOP("SetupMain", "Vnom"), &SetupMain::goSetupVnom },
        { Qt::Key_F3, QT_TRANSLATE_NOOP("SetupMain", "Freq"), &SetupMain::changeFrequency },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("SetupMain", "Clamp"), &SetupMain::goSetupClamp },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("SetupMain", "Page Down"), &SetupMain::goSetupNext },
    };
    setKeys(keys);
}

void SetupMain::changeFrequency()
{
    constexpr int kLast = 3; // 400 Hz
    // The one key goes round: behind the last frequency comes the first.
    if (m_settingConfig_g.getNomFreqSelect() < kLast)
        m_settingConfig_g.changeFreqNext();
    else
        m_settingConfig_g.setNomFreq(1);
    showSettings();
}
