#include "views/transients/transscopepage.h"

#include <cstring>

TransScopePage::TransScopePage(QWidget *parent) : ScopeFormPage(UI_TRANSIENTS, {}, parent) { }

void TransScopePage::init_parameter()
{
    ScopeFormPage::init_parameter();
    showRecord(nullptr);
}

void TransScopePage::retranslateUi()
{
    ScopeFormPage::retranslateUi();
    setText(headLabel("trigger_t"), tr("TRIGGER ON:"));
}

void TransScopePage::showRecord(const __trans_data *record)
{
    __scope_data_ui &drawn = drawnData(); // its currents stay 0
    if (record) {
        drawn.frequency = record->frequency;
        std::memcpy(drawn.voltage, record->rms, sizeof drawn.voltage);
        std::memcpy(drawn.voltageSamples, record->samples, sizeof drawn.voltageSamples);
        static_assert(sizeof drawn.voltageSamples == sizeof record->samples);
    } else {
        drawn = __scope_data_ui();
    }
    showPicture();
}
