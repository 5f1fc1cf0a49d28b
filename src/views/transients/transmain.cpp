#include "views/transients/transmain.h"

#include "settings/config_data.h"

#include <utility>

namespace {
constexpr char kKey[] = "TRANS_THRESHOLD";
constexpr int kTop = 100; // pixels
}

TransMain::TransMain(QWidget *parent)
    : EditorPage(UI_TRANSIENTS, { QT_TRANSLATE_NOOP("TransMain", "Transients"), kTop }, paceOf(kKey), parent)
{
    static const KeyRow<TransMain> keys[] = {
        { Qt::Key_F1, nullptr, &TransMain::selectNext },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("TransMain", "Defaults"), &TransMain::restoreDefaults },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("TransMain", "Start"), &TransMain::goTranStart },
    };
    setRows({ settingRow(
        "threshold", QT_TRANSLATE_NOOP("TransMain", "Threshold"), kKey,
        [] { return QStringLiteral("%1 %").arg(m_settingConfig_g.getTransThreshold()); },
        [this] { m_changed = true; }) });
    setKeys(keys);
}

bool TransMain::takeChanged()
{
    return std::exchange(m_changed, false);
}

void TransMain::restoreDefaults()
{
    stopRepeat();
    if (m_settingConfig_g.setDefault(*SettingConfig::row(kKey)))
        m_changed = true;
    showRows();
}
