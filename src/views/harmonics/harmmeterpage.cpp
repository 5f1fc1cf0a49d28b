#include "views/harmonics/harmmeterpage.h"
#include "ui_harmmeterpage.h"

#include "settings/harmdata.h"
#include "views/harmonics/harmvalues.h"
#include "widgets/text/f_to_str.h"
#include "widgets/controls/labellook.h"

using namespace HarmValues;

namespace {

constexpr LabelGrid kGrid = { 150, 114, 106, 24, 40, 16, 134, 20 };

/// Name of a line; "%1" stands for the order.
const char *name(const Line &line)
{
    static const char *const names[][2] = {
        { QT_TRANSLATE_NOOP("HarmMeterPage", "Uthd"), QT_TRANSLATE_NOOP("HarmMeterPage", "Ithd") },
        { QT_TRANSLATE_NOOP("HarmMeterPage", "Udc"), QT_TRANSLATE_NOOP("HarmMeterPage", "Idc") },
        { QT_TRANSLATE_NOOP("HarmMeterPage", "Uharm %1"), QT_TRANSLATE_NOOP("HarmMeterPage", "Iharm %1") },
        { QT_TRANSLATE_NOOP("HarmMeterPage", "Uinharm %1"), QT_TRANSLATE_NOOP("HarmMeterPage", "Iinharm %1") },
    };
    return names[line.item.kind][line.quantity == Voltage ? 0 : 1];
}

bool hasOrder(const Line &line)
{
    return line.item.kind == Harmonic || line.item.kind == Interharmonic;
}

int tableLines()
{
    return lineCount(HarmData::m_harm_max_numb, HarmData::m_bewith_inharm);
}

} // namespace

HarmMeterPage::HarmMeterPage(const LiveData &data, QWidget *parent)
    : ListPage(UI_HARMONICS, Pages, KeyRepeat::Pace(), parent), m_data(data), m_ui(new Ui::HarmMeterPage)
{
    static const KeyRow<HarmMeterPage> keys[] = {
        { Qt::Key_F3, nullptr, &HarmMeterPage::changeReference },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("HarmMeterPage", "Harmonic"), &HarmMeterPage::goHarmMain },
    };
    m_ui->setupUi(this);
    m_ui->verticalScrollBar->setPageStep(kLines);
    setScrollBar(m_ui->verticalScrollBar);
    m_headers = kGrid.addHeaders(this, 34, 30, 22);
    for (int i = 0; i < kLines; ++i) {
        const LabelGrid::Row row = kGrid.addChannels(this, QStringLiteral("row%1").arg(i + 1), 66 + i * 48);
        m_names[i] = row.caption;
        m_cells[i] = row.values;
    }
    LabelLook::dress(this);
    setKeys(keys);
}

HarmMeterPage::~HarmMeterPage() = default;

void HarmMeterPage::init_parameter()
{
    ListPage::init_parameter();
    m_list.reset();
    m_list.setCount(tableLines()); // 404 with 100 orders, 28 at 400 Hz
    initTitle();
    refreshList();
    showReference();
}

void HarmMeterPage::retranslateUi()
{
    ListPage::retranslateUi();
    ChannelLabels::showColors(m_headers);
    showNames();
}

void HarmMeterPage::updateDisplay(void *)
{
    showReference();
    showCurValue();
}

void HarmMeterPage::initTitle()
{
    ChannelLabels::showPairHeaders(m_headers);
    for (const ChannelLabels::LabelRow &cells : m_cells)
        ChannelLabels::clear(cells);
}

void HarmMeterPage::changeReference()
{
    emit changeFlag(shown().reference);
}

void HarmMeterPage::showReference()
{
    m_ui->btn_f3->setBtnFlag(shown().reference);
}

void HarmMeterPage::showList()
{
    showNames();
    showCurValue();
}

void HarmMeterPage::showNames()
{
    for (int i = 0; i < kLines; ++i) {
        if (m_list.first() + i >= tableLines()) {
            setText(m_names[i], QString());
            continue;
        }
        const Line shown = line(m_list.first() + i, HarmData::m_harm_max_numb);
        const QString text = tr(name(shown));
        setText(m_names[i], hasOrder(shown) ? text.arg(shown.item.order) : text);
    }
}

void HarmMeterPage::showCurValue()
{
    for (int i = 0; i < kLines; ++i) {
        if (m_list.first() + i >= tableLines()) {
            ChannelLabels::clear(m_cells[i]); // behind the last order
            continue;
        }
        const Line entry = line(m_list.first() + i, HarmData::m_harm_max_numb);
        float values[kChannels];
        for (int c = 0; c < kChannels; ++c)
            values[c] = percent(shown(), entry.quantity, c, entry.item);
        ChannelLabels::showValues(m_cells[i], values, F_to_Str::number_3);
    }
}
