#include "views/monitor/monitoreventpage.h"

#include "views/monitor/keybutton.h"
#include "widgets/controls/labellook.h"
#include "widgets/controls/softkeybuttons.h"

namespace {

constexpr QRect kNamePlace(304, 4, 200, 28);

} // namespace

MonitorEventPage::MonitorEventPage(const Family &family, QWidget *parent)
    : EventsPage(UI_MONITOR, parent), m_family(family), m_name(new QLabel(this)), m_filterKey(new BtnSelAll)
{
    static const KeyRow<MonitorEventPage> keys[] = {
        { Qt::Key_F3, nullptr, &MonitorEventPage::goTrend },
        { Qt::Key_F4, nullptr, &MonitorEventPage::changeFilter },
        { Qt::Key_F5, nullptr, &MonitorEventPage::goBack },
    };
    m_name->setObjectName(QStringLiteral("family"));
    m_name->setGeometry(kNamePlace);
    KeyButton::place(this, 4, m_filterKey);
    LabelLook::dress(this);
    setKeys(keys);
}

void MonitorEventPage::init_parameter()
{
    EventsPage::init_parameter();
    setFilter(m_family.filter);
}

void MonitorEventPage::retranslateUi()
{
    EventsPage::retranslateUi();
    setText(m_name, table().eventType() == EventsAll ? tr("All events") : tr(m_family.name));
    // The caption belongs to all pages of the kind, whose own classes have no words.
    setKeyCaption(3, tr("Trend"));
    m_filterKey->update(); // its words
}

void MonitorEventPage::changeFilter()
{
    setFilter(table().eventType() == EventsAll ? m_family.filter : EventsAll);
}

void MonitorEventPage::setFilter(int filter)
{
    table().changeEventType(filter);
    m_filterKey->setBtn1Flag(filter);
    showList();
    retranslateUi();
}

MonitStarVrmPage::MonitStarVrmPage(QWidget *parent)
    : MonitorEventPage({ EventsRms, QT_TRANSLATE_NOOP("MonitorEventPage", "Vrms") }, parent)
{ }

MonitHarmEvenPage::MonitHarmEvenPage(QWidget *parent)
    : MonitorEventPage({ EventsHarmonics, QT_TRANSLATE_NOOP("MonitorEventPage", "Harmonics") }, parent)
{ }

MonitFlickPage::MonitFlickPage(QWidget *parent)
    : MonitorEventPage({ EventsFlicker, QT_TRANSLATE_NOOP("MonitorEventPage", "Flicker") }, parent)
{ }

MonitDirsPage::MonitDirsPage(QWidget *parent)
    : MonitorEventPage({ EventsDips, QT_TRANSLATE_NOOP("MonitorEventPage", "DIRS") }, parent)
{ }

MonitUnbalPage::MonitUnbalPage(QWidget *parent)
    : MonitorEventPage({ EventsUnbalanceFrequency, QT_TRANSLATE_NOOP("MonitorEventPage", "Unbal., Hz") }, parent)
{ }
