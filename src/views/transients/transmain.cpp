#include "views/transients/transmain.h"

#include "settings/config_data.h"

#include <utility>

namespace {
constexpr int kLeast = 1; // percent
constexpr int kMost = 6000; // percent
constexpr int kDefault = 50; // percent
constexpr int kTicksPerStep = 5; // a long range: later, but larger steps
constexpr int kTop = 100; // pixels
}

TransMain::TransMain(QWidget *parent)
    : EditorPage(UI_TRANSIENTS, { QT_TRANSLATE_NOOP("TransMain", "Transients"), kTop },
                 { kTicksPerStep, { 1, 5, 10, 20, 50, 100 } }, parent)
{
    static const KeyRow<TransMain> keys[] = {
        { Qt::Key_F1, nullptr, &TransMain::selectNext },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("TransMain", "Defaults"), &TransMain::restoreDefaults },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("TransMain", "Start"), &TransMain::goTranStart },
    };
    const Number threshold { [] { return double(m_settingConfig_g.getTransThreshold()); },
                             [this](double percent) { setThreshold(int(percent)); }, kLeast, kMost };
    setRows({ numberRow("threshold", QT_TRANSLATE_NOOP("TransMain", "Threshold"), threshold, "%1 %") });
    setKeys(keys);
}

bool TransMain::takeChanged()
{
    return std::exchange(m_changed, false);
}

void TransMain::restoreDefaults()
{
    stopRepeat();
    if (m_settingConfig_g.getTransThreshold() != kDefault)
        setThreshold(kDefault);
    showRows();
}

void TransMain::setThreshold(int percent)
{
    m_settingConfig_g.setTransThreshold(percent);
    m_changed = true;
}
