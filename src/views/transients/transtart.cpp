#include "views/transients/transtart.h"

#include "settings/config_data.h"

TranStart::TranStart(const LiveData &data, QWidget *parent) : TransScopePage(parent), m_data(data)
{
    static const HeadLabel head[] = {
        { "trigger_t", 20, 134 },
        { "trigger", 156, 110 },
        { "trans_count", 400, 110, 1, true },
    };
    setUp(head);
}

void TranStart::setPageKeys()
{
    static const KeyRow<TranStart> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("TranStart", "Events"), &TranStart::goTransView },
        { Qt::Key_F2, QT_TRANSLATE_NOOP("TranStart", "Default"), &TranStart::defaultZoom },
    };
    setKeys(keys);
}

void TranStart::init_parameter()
{
    TransScopePage::init_parameter();
    showCount();
}

void TranStart::retranslateUi()
{
    TransScopePage::retranslateUi();
    showCount();
}

void TranStart::updateDisplay(void *)
{
    showRecord(&m_data.shown().transient);
    showCount();
}

void TranStart::showCount()
{
    setText(headLabel("trigger"), QStringLiteral("%1 %").arg(m_settingConfig_g.getTransThreshold()));
    setText(headLabel("trans_count"), QStringLiteral("#%1").arg(m_data.transients().shownSize()));
}
