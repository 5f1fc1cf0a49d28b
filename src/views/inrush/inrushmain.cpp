#include "views/inrush/inrushmain.h"

#include "settings/config_data.h"
#include "settings/inrushinfo.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr char kPercent[] = "%1 %";
constexpr int kLastDuration = 6;
constexpr double kLeast = 1; // percent
constexpr double kMostThreshold = 1000; // percent
constexpr double kMostHysteresis = 100; // percent
constexpr double kRounding = 1e-6; // of a step: what stands on the grid in floating point

/// Keeps \a value; false if it stood there already: a key held at a bound must not write the settings file over and
/// over.
template <typename T> bool keep(T &place, T value)
{
    return std::exchange(place, value) != value;
}

/// One ampere at the clamp in the shown unit.
double shownPerAmp()
{
    return double(m_settingConfig_g.ratioI()) * InrushInfo::unit_ki;
}

QString nomAmpsText()
{
    return QStringLiteral("%1 %2").arg(
        QString::number(InrushInfo::m_nom_amps * shownPerAmp(), 'f', InrushInfo::inrush_amps_prec),
        *InrushInfo::inrush_unit);
}

QString durationText()
{
    const int seconds = InrushInfo::m_dura_time[std::clamp(InrushInfo::m_duration_index, 0, kLastDuration)].seconds;
    return seconds % 60 == 0 ? QString::number(seconds / 60) + QStringLiteral(" m")
                             : QString::number(seconds) + QStringLiteral(" s");
}

void changeNomAmps(int step)
{
    const double scale = shownPerAmp();
    const double grid = InrushInfo::inrush_step;
    if (!(scale > 0) || !(grid > 0))
        return;
    // A value between two steps, such as a quarter of the clamp's range, moves onto the grid first.
    const double places = InrushInfo::m_nom_amps * scale / grid;
    const double moved = (step < 0 ? std::ceil(places - kRounding) : std::floor(places + kRounding)) + step;
    const double shown = std::clamp(moved * grid, grid, std::max(grid, InrushInfo::inrush_range));
    if (keep(InrushInfo::m_nom_amps, shown / scale))
        m_settingConfig_g.setInrushNomAmps(InrushInfo::m_nom_amps);
}

void changeDuration(int step)
{
    const int moved = InrushInfo::m_duration_index + (step < 0 ? -1 : 1); // seven rows: no larger steps
    if (keep(InrushInfo::m_duration_index, std::clamp(moved, 0, kLastDuration)))
        m_settingConfig_g.setInrushIndex(InrushInfo::m_duration_index);
}

EditorPage::Number thresholdNumber()
{
    return { [] { return InrushInfo::m_threshold; },
             [](double percent) {
                 InrushInfo::m_threshold = percent;
                 m_settingConfig_g.setInrushThreshold(int(percent));
             },
             kLeast, kMostThreshold };
}

EditorPage::Number hysteresisNumber()
{
    return { [] { return InrushInfo::m_hysteresis; },
             [](double percent) {
                 InrushInfo::m_hysteresis = percent;
                 m_settingConfig_g.setInrushHysteresis(int(percent));
             },
             kLeast, kMostHysteresis };
}

} // namespace

InrushMain::InrushMain(QWidget *parent)
    : EditorPage(UI_INRUSH, { QT_TRANSLATE_NOOP("InrushMain", "Inrush") }, { 3, { 1, 5, 10, 20 } }, parent)
{
    static const KeyRow<InrushMain> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("InrushMain", "Defaults"), &InrushMain::initInrushMain },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("InrushMain", "Start"), &InrushMain::goInrushStart },
    };
    setRows({
        { "nom_amps", QT_TRANSLATE_NOOP("InrushMain", "Nominal Amps"), nomAmpsText, changeNomAmps, {}, {} },
        numberRow("threshold", QT_TRANSLATE_NOOP("InrushMain", "Threshold"), thresholdNumber(), kPercent),
        numberRow("hysteresis", QT_TRANSLATE_NOOP("InrushMain", "Hysteresis"), hysteresisNumber(), kPercent),
        { "duration", QT_TRANSLATE_NOOP("InrushMain", "DURATION"), durationText, changeDuration, {}, {} },
        { "arming",
          QT_TRANSLATE_NOOP("InrushMain", "Switch"),
          [this] { return m_switchOn ? tr("On") : tr("Off"); },
          [this](int step) { m_switchOn = step > 0; },
          {},
          {} },
    });
    setKeys(keys);
}

void InrushMain::initInrushMain()
{
    stopRepeat();
    InrushInfo::initInfoTimes();
    m_switchOn = true;
    if (keep(InrushInfo::m_duration_index, 0))
        m_settingConfig_g.setInrushIndex(0);
    showRows();
}
