#include "views/powerinverter/powerinvertersetup.h"
#include "ui_powerinvertersetup.h"

#include "task/inverterfeed.h"
#include "widgets/controls/labellook.h"

PowerInverterSetup::PowerInverterSetup(QWidget *parent)
    : LivePage(UI_POWER_INVERTER, parent), m_ui(new Ui::PowerInverterSetup)
{
    static const KeyRow<PowerInverterSetup> keys[] = {
        { Qt::Key_Up, nullptr, &PowerInverterSetup::chooseSingle },
        { Qt::Key_Down, nullptr, &PowerInverterSetup::chooseThree },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("PowerInverterSetup", "Start"), &PowerInverterSetup::start },
    };
    m_ui->setupUi(this);
    LabelLook::dress(this);
    for (QWidget *button : { m_ui->phase1, m_ui->phase3 })
        button->setFocusPolicy(Qt::NoFocus);
    m_ui->phase3->setChecked(true);
    setKeys(keys);
}

PowerInverterSetup::~PowerInverterSetup() = default;

void PowerInverterSetup::init_parameter()
{
    LivePage::init_parameter();
    (singleOrThree ? m_ui->phase1 : m_ui->phase3)->setChecked(true);
}

void PowerInverterSetup::retranslateUi()
{
    LivePage::retranslateUi();
    setText(m_ui->title, tr("Power Inverter"));
    m_ui->phase1->setText(tr("1-Phase"));
    m_ui->phase3->setText(tr("3-Phase"));
}

void PowerInverterSetup::chooseSingle()
{
    m_ui->phase1->setChecked(true);
}

void PowerInverterSetup::chooseThree()
{
    m_ui->phase3->setChecked(true);
}

void PowerInverterSetup::start()
{
    initInverter();
    startPowerInverter();
    emit goPowerInverterMain();
}

void PowerInverterSetup::initInverter()
{
    singleOrThree = m_ui->phase1->isChecked() ? 1 : 0;
}

void PowerInverterSetup::startPowerInverter()
{
    emit startPowerInverterTask();
}
