#include "views/inrush/inrushmain.h"
#include "ui_inrushmain.h"

#include "settings/config_data.h"
#include "settings/inrushinfo.h"
#include "pages/keyrepeat.h"
#include "widgets/controls/labellook.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace {

constexpr int kTicksPerStep = 3;
constexpr int kLastDuration = 6;
constexpr double kMostThreshold = 1000; // percent
constexpr double kMostHysteresis = 100; // percent
constexpr double kRounding = 1e-6; // of a step: what stands on the grid in floating point

/// Keeps \a value; false if it stood there already: a key held at a bound must not write the settings file over and
/// over.
template <typename T> bool store(T &place, T value)
{
    return std::exchange(place, value) != value;
}

/// One ampere at the clamp in the shown unit.
double shownPerAmp()
{
    return double(m_settingConfig_g.ratioI()) * InrushInfo::unit_ki;
}

QString nomAmpsText(const InrushMain &)
{
    return QStringLiteral("%1 %2").arg(
        QString::number(InrushInfo::m_nom_amps * shownPerAmp(), 'f', InrushInfo::inrush_amps_prec),
        *InrushInfo::inrush_unit);
}

QString percentText(double percent)
{
    return QString::number(percent, 'f', 0) + QStringLiteral(" %");
}

QString durationText(const InrushMain &)
{
    const int seconds = InrushInfo::m_dura_time[std::clamp(InrushInfo::m_duration_index, 0, kLastDuration)].seconds;
    return seconds % 60 == 0 ? QString::number(seconds / 60) + QStringLiteral(" m")
                             : QString::number(seconds) + QStringLiteral(" s");
}

} // namespace

const InrushMain::Field InrushMain::kFields[] = {
    { "nom_amps", QT_TRANSLATE_NOOP("InrushMain", "Nominal Amps"), &InrushMain::changeNomAmps, nomAmpsText },
    { "threshold", QT_TRANSLATE_NOOP("InrushMain", "Threshold"), &InrushMain::changeThreshold,
      [](const InrushMain &) { return percentText(InrushInfo::m_threshold); } },
    { "hysteresis", QT_TRANSLATE_NOOP("InrushMain", "Hysteresis"), &InrushMain::changeHysteresis,
      [](const InrushMain &) { return percentText(InrushInfo::m_hysteresis); } },
    { "duration", QT_TRANSLATE_NOOP("InrushMain", "DURATION"), &InrushMain::changeDuration, durationText },
    { "arming", QT_TRANSLATE_NOOP("InrushMain", "Switch"), &InrushMain::changeSwitch,
      [](const InrushMain &page) { return page.switchOn() ? InrushMain::tr("On") : InrushMain::tr("Off"); } },
};

InrushMain::InrushMain(QWidget *parent)
    : LivePage(UI_INRUSH, parent), m_ui(new Ui::InrushMain), m_repeat(new KeyRepeat(this, kTicksPerStep))
{
    static const KeyRow<InrushMain> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("InrushMain", "Defaults"), &InrushMain::initInrushMain },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("InrushMain", "Start"), &InrushMain::goInrushStart },
        { Qt::Key_Up, nullptr, &InrushMain::changeToPrev },
        { Qt::Key_Down, nullptr, &InrushMain::changeToNext },
        { Qt::Key_Left, nullptr, &InrushMain::handleKeyLeft },
        { Qt::Key_Right, nullptr, &InrushMain::handleKeyRight },
    };
    m_ui->setupUi(this);
    LabelLook::dress(this);
    connect(m_repeat, &KeyRepeat::repeated, this, &InrushMain::changeField);
    setKeys(keys);
    showSelection();
}

InrushMain::~InrushMain() = default;

void InrushMain::init_parameter()
{
    LivePage::init_parameter();
    showFields(); // clamp, ratio or frequency may be others now
}

void InrushMain::retranslateUi()
{
    LivePage::retranslateUi();
    setText(m_ui->title, tr("Inrush"));
    for (const Field &field : kFields)
        setText(findChild<QLabel *>(QString::fromLatin1(field.name) + QLatin1String("_t")), tr(field.caption));
    showFields();
}

void InrushMain::initInrushMain()
{
    m_repeat->stop();
    InrushInfo::initInfoTimes();
    m_switchOn = true;
    if (store(InrushInfo::m_duration_index, 0))
        m_settingConfig_g.setInrushIndex(0);
    showFields();
}

void InrushMain::changeToPrev()
{
    m_repeat->stop();
    m_field = std::max(m_field - 1, 0);
    showSelection();
}

void InrushMain::changeToNext()
{
    m_repeat->stop();
    m_field = std::min(m_field + 1, int(std::size(kFields)) - 1);
    showSelection();
}

void InrushMain::handleKeyLeft()
{
    m_repeat->start(-1);
}

void InrushMain::handleKeyRight()
{
    m_repeat->start(1);
}

void InrushMain::releaseKey(int key)
{
    if (key == Qt::Key_Left || key == Qt::Key_Right)
        m_repeat->stop();
}

void InrushMain::changeField(int step)
{
    (this->*kFields[m_field].change)(step);
    showFields();
}

void InrushMain::changeNomAmps(int step)
{
    const double scale = shownPerAmp();
    const double grid = InrushInfo::inrush_step;
    if (!(scale > 0) || !(grid > 0))
        return;
    // A value between two steps, such as a quarter of the clamp's range, moves onto the grid first.
    const double places = InrushInfo::m_nom_amps * scale / grid;
    const double moved = (step < 0 ? std::ceil(places - kRounding) : std::floor(places + kRounding)) + step;
    const double shown = std::clamp(moved * grid, grid, std::max(grid, InrushInfo::inrush_range));
    if (store(InrushInfo::m_nom_amps, shown / scale))
        m_settingConfig_g.setInrushNomAmps(InrushInfo::m_nom_amps);
}

void InrushMain::changeThreshold(int step)
{
    if (store(InrushInfo::m_threshold, std::clamp(InrushInfo::m_threshold + step, 1.0, kMostThreshold)))
        m_settingConfig_g.setInrushThreshold(int(InrushInfo::m_threshold));
}

void InrushMain::changeHysteresis(int step)
{
    if (store(InrushInfo::m_hysteresis, std::clamp(InrushInfo::m_hysteresis + step, 1.0, kMostHysteresis)))
        m_settingConfig_g.setInrushHysteresis(int(InrushInfo::m_hysteresis));
}

void InrushMain::changeDuration(int step)
{
    const int moved = InrushInfo::m_duration_index + (step < 0 ? -1 : 1); // seven rows: no larger steps
    if (store(InrushInfo::m_duration_index, std::clamp(moved, 0, kLastDuration)))
        m_settingConfig_g.setInrushIndex(InrushInfo::m_duration_index);
}

void InrushMain::changeSwitch(int step)
{
    m_switchOn = step > 0;
}

void InrushMain::showFields()
{
    for (const Field &field : kFields)
        setText(findChild<QLabel *>(QString::fromLatin1(field.name)), field.text(*this));
}

void InrushMain::showSelection()
{
    const auto *row = findChild<QLabel *>(QString::fromLatin1(kFields[m_field].name));
    m_ui->field_bar->move(m_ui->field_bar->x(), row->y());
}
