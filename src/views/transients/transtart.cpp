#include "views/transients/transtart.h"
#include "ui_transtart.h"

#include "settings/config_data.h"
#include "model/transparam.h"
#include "widgets/controls/labellook.h"

TranStart::TranStart(const LiveData &data, QWidget *parent)
    : TransScopePage(parent), m_data(data), m_ui(new Ui::TranStart)
{
    static const KeyRow<TranStart> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("TranStart", "Events"), &TranStart::goTransView },
        { Qt::Key_F2, QT_TRANSLATE_NOOP("TranStart", "Default"), &TranStart::defaultZoom },
        { Qt::Key_F3, nullptr, &TranStart::toggleCursor },
        { Qt::Key_F4, nullptr, &TranStart::toggleZoom },
        { Qt::Key_Left, nullptr, &TranStart::pressLeft },
        { Qt::Key_Right, nullptr, &TranStart::pressRight },
        { Qt::Key_Up, nullptr, &TranStart::pressUp },
        { Qt::Key_Down, nullptr, &TranStart::pressDown },
    };
    m_ui->setupUi(this);
    LabelLook::dress(this);
    setUp(m_ui->scope, m_ui->btn_f3, m_ui->btn_f4, m_ui->zoom_scale);
    setKeys(keys);
}

TranStart::~TranStart() = default;

void TranStart::init_parameter()
{
    TransScopePage::init_parameter();
    showCount();
}

void TranStart::retranslateUi()
{
    TransScopePage::retranslateUi();
    setText(m_ui->trigger_t, tr("TRIGGER ON:"));
    showCount();
}

void TranStart::updateDisplay(void *)
{
    showRecord(&m_data.shown().transient);
    showCount();
}

void TranStart::showCount()
{
    setText(m_ui->trigger, QStringLiteral("%1 %").arg(m_settingConfig_g.getTransThreshold()));
    setText(m_ui->trans_count, QStringLiteral("#%1").arg(m_data.transients().shownSize()));
}
