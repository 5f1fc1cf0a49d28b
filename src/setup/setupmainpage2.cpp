#include "setup/setupmainpage2.h"

SetupMainPage2::SetupMainPage2(QWidget *parent)
    : SetupSummary(QT_TRANSLATE_NOOP("SetupMainPage2", "Measurement"), parent)
{
    static const KeyRow<SetupMainPage2> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("SetupMainPage2", "Limits"), &SetupMainPage2::goSetupLimits },
        { Qt::Key_F2, QT_TRANSLATE_NOOP("SetupMainPage2", "Functions"), &SetupMainPage2::goSetupFunctions },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("SetupMainPage2", "Page Up"), &SetupMainPage2::goSetupPrev },
    };
    setKeys(keys);
}
