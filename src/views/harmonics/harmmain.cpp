#include "views/harmonics/harmmain.h"
#include "ui_harmmain.h"

#include "settings/config_data.h"
#include "settings/harmdata.h"
#include "widgets/text/f_to_str.h"
#include "widgets/controls/labellook.h"

#include <algorithm>
#include <cstdlib>

using namespace HarmValues;

namespace {

constexpr int kTicksPerStep = 8;
constexpr int kHeadGroups = 2; // THD and DC
constexpr double kDegrees = 180.0 / 3.141592653589793; // per radian

} // namespace

HarmMain::HarmMain(const LiveData &data, QWidget *parent)
    : LivePage(UI_HARMONICS, parent), m_data(data), m_ui(new Ui::HarmMain)
{
    static const KeyRow<HarmMain> keys[] = {
        { Qt::Key_F1, nullptr, &HarmMain::swapQuantity },
        { Qt::Key_F2, nullptr, &HarmMain::nextChannel },
        { Qt::Key_F3, nullptr, &HarmMain::toggleInterharmonics },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("HarmMain", "Meter"), &HarmMain::goHarmMeter },
        { Qt::Key_Left, nullptr, &HarmMain::changeCursorPos, -1, { kTicksPerStep } },
        { Qt::Key_Right, nullptr, &HarmMain::changeCursorPos, 1, { kTicksPerStep } },
    };
    m_ui->setupUi(this);
    LabelLook::dress(this);
    m_captions = ChannelLabels::numberedRow(this, "D%1");
    m_values = ChannelLabels::numberedRow(this, "D%1_val");
    setKeys(keys);
}

HarmMain::~HarmMain() = default;

void HarmMain::init_parameter()
{
    LivePage::init_parameter();
    m_quantity = Voltage;
    m_channel = GraphL1;
    m_inter = false;
    HarmData::initHarmMaxNumb(m_settingConfig_g.getNomFreq());
    restartView();
}

void HarmMain::retranslateUi()
{
    LivePage::retranslateUi();
    ChannelLabels::showColors(m_captions);
    ChannelLabels::showColors(m_values);
    for (QWidget *button : { static_cast<QWidget *>(m_ui->btn_f2), static_cast<QWidget *>(m_ui->btn_f3) })
        button->update(); // their words
}

void HarmMain::swapQuantity()
{
    m_quantity = m_quantity == Voltage ? Current : Voltage;
    restartView();
}

void HarmMain::nextChannel()
{
    changeHarmFlag();
    restartView();
}

void HarmMain::toggleInterharmonics()
{
    if (!HarmData::m_bewith_inharm)
        return;
    m_inter = !m_inter;
    restartView();
}

void HarmMain::restartView()
{
    m_cursor = 0;
    initHarmIndex();
    // Colours and captions change with the wiring and the palette, not with a value.
    ChannelLabels::showPairHeaders(m_captions);
    ChannelLabels::showColors(m_values);
    for (int c = 0; c < kChannels; ++c) {
        if (!allChannels() && m_channel != c + GraphL1)
            setText(m_captions[c], QString());
    }
    ChannelLabels::clear(m_values);
    changeHarmGraph();
}

void HarmMain::changeHarmFlag()
{
    m_channel = ChannelLabels::channels().nextHarmonicChannel(m_channel);
}

int HarmMain::barsPerOrder() const
{
    if (!allChannels())
        return 1;
    return ChannelLabels::channels().has(2) ? 3 : 2;
}

int HarmMain::pageLength() const
{
    if (allChannels())
        return m_inter ? 13 : 25;
    return m_inter ? 25 : 50;
}

void HarmMain::initHarmIndex()
{
    m_first = 1;
    m_last = std::min(pageLength(), HarmData::m_harm_max_numb);
}

void HarmMain::initHarmFlag()
{
    m_ui->btn_f1->setBtnFlag(m_quantity);
    m_ui->btn_f2->setBtnFlag(m_channel);
}

void HarmMain::initHarmType()
{
    m_ui->graph->setgraphType(m_channel);
    m_ui->graph->setgraphTypeEx(barsPerOrder() == 2 ? GraphTwoPhases : GraphThreePhases);
}

void HarmMain::initHarmInHarm()
{
    m_ui->btn_f3->setBtnFlag(m_inter ? 1 : 0);
    m_ui->graph->setinharmEnabled(m_inter);
}

void HarmMain::initHarmCursorPos()
{
    m_ui->graph->setCursorPosition(m_cursor);
}

void HarmMain::changeCursorPos(int step)
{
    for (int i = 0; i < std::abs(step); ++i) {
        if (step < 0)
            changeGraphCursorPosL();
        else
            changeGraphCursorPosR();
        initHarmCursorPos();
    }
    changeHarmGraph();
}

void HarmMain::changeGraphCursorPosL()
{
    const int firstPlace = kHeadGroups * barsPerOrder();
    if (m_first > 1 && m_cursor <= firstPlace) {
        m_last = m_first - 1;
        m_first = std::max(1, m_first - pageLength());
        // The last bar of a full window: 51, or for all channels 83 or 80, with two phases 55 or 53.
        m_cursor = barsPerOrder() * (pageLength() * (m_inter ? 2 : 1) + kHeadGroups) - 1;
        showBars();
    } else if (m_cursor > 0) {
        --m_cursor;
    }
}

void HarmMain::changeGraphCursorPosR()
{
    if (!m_ui->graph->isCursorMaxed()) {
        ++m_cursor;
    } else if (m_last < HarmData::m_harm_max_numb) {
        m_last = std::min(m_first + 2 * pageLength() - 1, HarmData::m_harm_max_numb);
        m_first += pageLength();
        m_cursor = kHeadGroups * barsPerOrder();
        showBars();
    }
}

void HarmMain::changeHarmGraph()
{
    initHarmFlag();
    initHarmType();
    initHarmInHarm();
    initHarmCursorPos();
    showBars();
    showCurVal();
}

void HarmMain::showBars()
{
    m_bars.clear();
    m_bars = HarmValues::bars(shown(), m_quantity, m_first, m_last, m_inter);
    m_ui->graph->showGraph(&m_bars, m_first, m_last);
}

Item HarmMain::itemAtCursor() const
{
    const int group = m_cursor / barsPerOrder();
    if (group < kHeadGroups)
        return { group == 0 ? Distortion : Offset, 1 };
    const int place = group - kHeadGroups;
    if (!m_inter)
        return { Harmonic, m_first + place };
    return { place % 2 == 0 ? Harmonic : Interharmonic, m_first + place / 2 };
}

void HarmMain::showCurVal()
{
    const DisplayUnits &units = m_settingConfig_g.units();
    const QString reference = shown().reference == 2 ? QStringLiteral("%f") : QStringLiteral("%r");
    setText(m_ui->type,
            m_quantity == Voltage ? QStringLiteral("U(%1) %2").arg(units.volt, reference)
                                  : QStringLiteral("I(%1) %2").arg(units.ampere, reference));
    const Item item = itemAtCursor();
    setText(m_ui->order, orderText(item));
    const ChannelSet &set = ChannelLabels::channels();
    for (int c = 0; c < kChannels; ++c) {
        if (set.has(c) && (allChannels() || m_channel == c + GraphL1))
            setText(m_values[c], valueText(c, item));
    }
}

QString HarmMain::orderText(Item item) const
{
    switch (item.kind) {
    case Distortion:
        return QStringLiteral("THD");
    case Offset:
        return QStringLiteral("DC");
    default:
        break;
    }
    const int index = std::clamp(item.order, 1, kHarmonicOrders) - 1;
    const HarmChannel &from = block(shown(), m_quantity, allChannels() ? 0 : m_channel - GraphL1);
    const bool inter = item.kind == Interharmonic;
    const float frequency = inter ? from.inter[index].frequency : from.harmonic[index].frequency;
    return QStringLiteral("%1%2  %3Hz")
        .arg(inter ? QStringLiteral("IH") : QStringLiteral("H"))
        .arg(item.order)
        .arg(F_to_Str::number_F(frequency));
}

/// Values of one channel under the cursor, in two lines.
QString HarmMain::valueText(int channel, Item item) const
{
    const HarmChannel &from = block(shown(), m_quantity, channel);
    if (!(from.rms > 0)) // nothing measured yet
        return QStringLiteral("_.__");
    const float value = magnitude(from, item);
    const QString number = m_quantity == Voltage ? F_to_Str::number_V(value) : F_to_Str::number_A(value);
    const QString percent
        = F_to_Str::number_2(HarmValues::percent(shown(), m_quantity, channel, item)) + QLatin1Char('%');
    switch (item.kind) {
    case Distortion:
        return percent;
    case Offset:
        return number + QStringLiteral(" DC");
    case Interharmonic:
        return number + QLatin1Char('\n') + percent;
    case Harmonic:
        break;
    }
    const float phase = from.harmonic[std::clamp(item.order, 1, kHarmonicOrders) - 1].phase;
    return QStringLiteral("%1\n%2  %3\u00b0").arg(number, percent, F_to_Str::number_Ang(float(phase * kDegrees)));
}
