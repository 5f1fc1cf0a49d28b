#include "widgets/controls/softkeybuttons.h"

using Choices = SoftKeyButton::Choices;

// Channel names and signs stand in every language; the words are marked for translation.
// clang-format off
static const Choices kScopeCurves   { nullptr, { { "U", 0 }, { "I", 1 }, { "N", 2 },
                                                 { "L1", 3 }, { "L2", 4 }, { "L3", 5 } }, 0 };
static const Choices kCursor        { QT_TRANSLATE_NOOP("SoftKeyButton", "Cursor"),
                                      { { QT_TRANSLATE_NOOP("SoftKeyButton", "On"), 1 },
                                        { QT_TRANSLATE_NOOP("SoftKeyButton", "Off"), 0 } }, 0 };
static const Choices kZoom          { QT_TRANSLATE_NOOP("SoftKeyButton", "Zoom"), kCursor.list, 0 };
static const Choices kQuantity      { nullptr, { { "U", 1 }, { "I", 2 } }, 1 };
static const Choices kChannel       { nullptr, { { "L1", 1 }, { "L2", 2 }, { "L3", 3 }, { "N", 4 },
                                                 { QT_TRANSLATE_NOOP("SoftKeyButton", "ALL"), 5 } }, 1 };
static const Choices kInterharmonics{ QT_TRANSLATE_NOOP("SoftKeyButton", "I-HARM."), kCursor.list, 0 };
static const Choices kReference     { nullptr, { { "%r", 1 }, { "%f", 2 } }, 2 };
static const Choices kEnergy        { nullptr, { { QT_TRANSLATE_NOOP("SoftKeyButton", "Energy"), 1 },
                                                 { QT_TRANSLATE_NOOP("SoftKeyButton", "Close"), 0 } }, 0 };
static const Choices kPhaseOrWire   { nullptr, { { QT_TRANSLATE_NOOP("SoftKeyButton", "Phase"), 1 },
                                                 { QT_TRANSLATE_NOOP("SoftKeyButton", "Wire"), 2 } }, 1 };
static const Choices kPhasors       { nullptr, { { "U", 1 }, { "I", 2 }, { "L1", 3 }, { "L2", 4 }, { "L3", 5 } }, 1 };
static const Choices kSelection     { nullptr, { { QT_TRANSLATE_NOOP("SoftKeyButton", "All"), 0 },
                                                 { QT_TRANSLATE_NOOP("SoftKeyButton", "Selected"), 1 } }, 0 };
static const Choices kHarmonicPhase { nullptr, { { "L1", 0 }, { "L2", 1 }, { "L3", 2 } }, 0 };

Btn1::Btn1(QWidget *parent) : SoftKeyButton(kScopeCurves, parent) { }
Btn2::Btn2(QWidget *parent) : SoftKeyButton(kCursor, parent) { }
Btn3::Btn3(QWidget *parent) : SoftKeyButton(kZoom, parent) { }
HarmBtn1::HarmBtn1(QWidget *parent) : SoftKeyButton(kQuantity, parent) { }
HarmBtn2::HarmBtn2(QWidget *parent) : SoftKeyButton(kChannel, parent) { }
HarmBtn3::HarmBtn3(QWidget *parent) : SoftKeyButton(kInterharmonics, parent) { }
HarmBtn4::HarmBtn4(QWidget *parent) : SoftKeyButton(kReference, parent) { }
EnergyBtn::EnergyBtn(QWidget *parent) : SoftKeyButton(kEnergy, parent) { }
VifBtn1::VifBtn1(QWidget *parent) : SoftKeyButton(kPhaseOrWire, parent) { }
UnbalBtn1::UnbalBtn1(QWidget *parent) : SoftKeyButton(kPhasors, parent) { }
BtnSelAll::BtnSelAll(QWidget *parent) : SoftKeyButton(kSelection, parent) { }
MonitorHarmBtn1::MonitorHarmBtn1(QWidget *parent) : SoftKeyButton(kHarmonicPhase, parent) { }
// clang-format on
