#include "setup/setupinrush.h"

#include "pages/inrushtexts.h"
#include "settings/inrushinfo.h"

#include <algorithm>

namespace {
constexpr char kDuration[] = "INRUSH_INDEX";
constexpr char kAmps[] = "INRUSH_NOMAMPS";
constexpr char kThreshold[] = "INRUSH_THRESHOLD";
constexpr char kHysteresis[] = "INRUSH_HYSTERESIS";
}

SetupInrush::SetupInrush(QWidget *parent)
    : SetupEditor(DefaultOkCancel, { QT_TRANSLATE_NOOP("SetupInrush", "Inrush") },
                  { kDuration, kAmps, kThreshold, kHysteresis }, paceOf(kThreshold), parent)
{
    const auto percent = [](double value) { return InrushTexts::percent(qRound(value)); };
    Row duration = draft().row("duration", QT_TRANSLATE_NOOP("SetupInrush", "DURATION"), kDuration,
                               [](double index) { return InrushTexts::duration(qRound(index)); });
    // Seven rows of a table: no larger steps.
    duration.step = [this](int steps) { draft().move(kDuration, std::clamp(steps, -1, 1)); };
    setRows({
        duration,
        draft().row("nom_amps", QT_TRANSLATE_NOOP("SetupInrush", "Nominal Amps"), kAmps, InrushTexts::nomAmps),
        draft().row("threshold", QT_TRANSLATE_NOOP("SetupInrush", "Threshold"), kThreshold, percent),
        draft().row("hysteresis", QT_TRANSLATE_NOOP("SetupInrush", "Hysteresis"), kHysteresis, percent),
    });
    setNoKeys();
}

void SetupInrush::load()
{
    SetupEditor::load();
    draft().setValue(kDuration, InrushInfo::m_duration_index); // the length in force
}

void SetupInrush::store()
{
    SetupEditor::store();
    InrushInfo::m_duration_index = draft().whole(kDuration);
}
