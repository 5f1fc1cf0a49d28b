#include "views/transients/transmain.h"
#include "ui_transmain.h"

#include "settings/config_data.h"
#include "pages/keyrepeat.h"
#include "widgets/controls/labellook.h"

#include <algorithm>
#include <utility>

namespace {
constexpr int kLeast = 1; // percent
constexpr int kMost = 6000; // percent
constexpr int kDefault = 50; // percent
constexpr int kTicksPerStep = 5; // a long range: later, but larger steps
}

TransMain::TransMain(QWidget *parent)
    : LivePage(UI_TRANSIENTS, parent), m_ui(new Ui::TransMain),
      m_repeat(new KeyRepeat(this, kTicksPerStep, { 1, 5, 10, 20, 50, 100 }))
{
    static const KeyRow<TransMain> keys[] = {
        { Qt::Key_F1, nullptr, &TransMain::changeToNext },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("TransMain", "Defaults"), &TransMain::restoreDefaults },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("TransMain", "Start"), &TransMain::goTranStart },
        { Qt::Key_Left, nullptr, &TransMain::pressLeft },
        { Qt::Key_Right, nullptr, &TransMain::pressRight },
    };
    m_ui->setupUi(this);
    LabelLook::dress(this);
    connect(m_repeat, &KeyRepeat::repeated, this, &TransMain::changeThreshold);
    setKeys(keys);
}

TransMain::~TransMain() = default;

bool TransMain::takeChanged()
{
    return std::exchange(m_changed, false);
}

void TransMain::init_parameter()
{
    LivePage::init_parameter();
    showTransThreshold();
}

void TransMain::retranslateUi()
{
    LivePage::retranslateUi();
    setText(m_ui->title, tr("Transients"));
    setText(m_ui->threshold_t, tr("Threshold"));
    showTransThreshold();
}

void TransMain::changeToNext()
{
    // The threshold is the only field: what follows it is itself.
    m_ui->field_bar->move(m_ui->field_bar->x(), m_ui->threshold->y());
}

void TransMain::pressLeft()
{
    m_repeat->start(-1);
}

void TransMain::pressRight()
{
    m_repeat->start(1);
}

void TransMain::releaseKey(int key)
{
    if (key == Qt::Key_Left || key == Qt::Key_Right)
        m_repeat->stop();
}

void TransMain::restoreDefaults()
{
    m_repeat->stop();
    setThreshold(kDefault);
}

void TransMain::changeThreshold(int step)
{
    setThreshold(std::clamp(m_settingConfig_g.getTransThreshold() + step, kLeast, kMost));
}

void TransMain::setThreshold(int percent)
{
    if (percent != m_settingConfig_g.getTransThreshold()) {
        m_settingConfig_g.setTransThreshold(percent);
        m_changed = true;
    }
    showTransThreshold();
}

void TransMain::showTransThreshold()
{
    setText(m_ui->threshold, QStringLiteral("%1 %").arg(m_settingConfig_g.getTransThreshold()));
}
