#pragma once

#include "settings/limits.h"

struct Derived;
struct SettingValues;

constexpr int kEventPhases = 3; // phases with states of their own
constexpr int kEventInputs = 8; // four voltages, then four currents
constexpr int kHarmonicLimits = 25; // THD and orders 2 to 25

/// Parameters of the rapid-voltage-change detector as init_rvc_fifo takes them: percent values not yet divided.
struct RvcSettings
{
    int frequency; // Hz, integer part
    int seconds; // s, integer part of the steady time
    float band; // percent
    float settleFactor; // percent
    float minStep; // percent
    float minRate; // percent per second
};

/// What event detection takes from the settings and the active limit set; latched for the life of a detector.
struct EventSettings
{
    float nominalVolt; // V
    float nominalFrequency; // Hz
    float swellLevel; // V
    float swellHysteresis; // V
    float dipLevel; // V
    float dipHysteresis; // V
    float interruptionLevel; // V
    float interruptionHysteresis; // V
    double inrushLevel; // A
    double inrushHysteresis; // A
    float frequencyUpper; // Hz
    float frequencyLower; // Hz
    float voltageUpper; // V
    float voltageLower; // V, above the nominal voltage: see eventSettings
    float unbalanceLimit; // percent
    float flickerLimit; // Plt
    float harmonicLimit[kHarmonicLimits]; // percent of the fundamental; [0] THD, [k] order k + 1
    RvcSettings rvc;
};

/// Nominal values and inrush settings beside the limit set.
struct EventNominals
{
    float volt; // V, with the transformer ratio
    float frequency; // Hz
    double inrushAmps; // A
    int inrushThreshold; // percent of inrushAmps
    int inrushHysteresis; // percent of inrushAmps
    int currentRatioNumerator;
    int currentRatioDenominator;
};

/// The nominals of a set-up; no globals.
EventNominals eventNominals(const SettingValues &values, const Derived &derived);

/// Thresholds of a limit set; no globals. Values without sense give thresholds that nothing crosses.
EventSettings eventSettings(const monitor_limit &limits, const EventNominals &nominals);

/// Thresholds of the active limit set and the present settings. Main thread.
EventSettings currentEventSettings();

/// Wiring that is set at present, 1 to 10. Main thread.
int currentJoinMode();
