#include "setup/setupmain.h"

#include "device/trace.h"
#include "settings/config_data.h"
#include "setup/calibrationdialog.h"
#include "setup/instrumentinfo.h"

SetupMain::SetupMain(QWidget *parent) : SetupSummary(QT_TRANSLATE_NOOP("SetupMain", "Measurement"), parent)
{
    static const KeyRow<SetupMain> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("SetupMain", "Config"), &SetupMain::goSetupConfig },
        { Qt::Key_F2, QT_TRANSLATE_NOOP("SetupMain", "Vnom"), &SetupMain::goSetupVnom },
        { Qt::Key_F3, QT_TRANSLATE_NOOP("SetupMain", "Freq"), &SetupMain::changeFrequency },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("SetupMain", "Clamp"), &SetupMain::goSetupClamp },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("SetupMain", "Page Down"), &SetupMain::goSetupNext },
        { Qt::Key_Enter, nullptr, &SetupMain::goSetupConfigEnter },
    };
    setKeys(keys);
}

void SetupMain::init_parameter()
{
    m_pressed.clear();
    SetupSummary::init_parameter();
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

bool SetupMain::pressKey(int key)
{
    m_pressed.press(key);
    if (key != Qt::Key_Left && key != Qt::Key_Right)
        return SetupSummary::pressKey(key);
    checkPW();
    return true;
}

void SetupMain::checkPW()
{
    const ServiceKeys pressed = m_pressed;
    if (pressed.were({ 'L', 'L', 'R', 'R', 'L', 'R', 'L', 'R' })) {
        m_pressed.clear();
        QV_TRACE("setup/setupmain") << "Enter the calibration function.";
        QV_TRACE("setup/setupmain") << "calibration!!!";
        CalibrationDialog::calibration();
    } else if (pressed.were({ 'R', 'R', 'L', 'L', 'R', 'L', 'R', 'L' })) {
        m_pressed.clear();
        InstrumentInfo::editInstrumentInfo();
    }
}
