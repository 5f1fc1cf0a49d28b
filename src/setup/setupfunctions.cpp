#include "setup/setupfunctions.h"

SetupFunctions::SetupFunctions(QWidget *parent)
    : EditorPage(UI_SETUP, { QT_TRANSLATE_NOOP("SetupFunctions", "Functions"), 60, 56, 400 }, {}, parent)
{
    static const KeyRow<SetupFunctions> keys[] = {
        { Qt::Key_F5, QT_TRANSLATE_NOOP("SetupFunctions", "Back"), &SetupFunctions::goBack },
    };
    setRows({
        entry("harmonics", QT_TRANSLATE_NOOP("SetupFunctions", " Harmonics"), &SetupFunctions::goSetupKFactor),
        entry("flicker", QT_TRANSLATE_NOOP("SetupFunctions", " Flicker"), &SetupFunctions::goSetupFlicker),
        entry("transients", QT_TRANSLATE_NOOP("SetupFunctions", " Transients"), &SetupFunctions::goSetupTransients),
        entry("inrush", QT_TRANSLATE_NOOP("SetupFunctions", " Inrush"), &SetupFunctions::goSetupInrush),
        entry("mains_sig", QT_TRANSLATE_NOOP("SetupFunctions", " Mains Signaling"), &SetupFunctions::goSetupMainsSig),
    });
    setKeys(keys);
}

EditorPage::Row SetupFunctions::entry(const QString &name, const char *caption, void (SetupFunctions::*open)())
{
    Row row { name, caption, {}, {}, {}, {} };
    row.enter = [this, open] { emit(this->*open)(); };
    return row;
}
