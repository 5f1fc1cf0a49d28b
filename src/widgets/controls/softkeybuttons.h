#pragma once

#include "widgets/controls/softkeybutton.h"

/// Scope, F1: what is drawn; flags 0 to 5.
class Btn1 : public SoftKeyButton
{
    Q_OBJECT
public:
    explicit Btn1(QWidget *parent = nullptr);
};

/// Cursor on (1) or off (0).
class Btn2 : public SoftKeyButton
{
    Q_OBJECT
public:
    explicit Btn2(QWidget *parent = nullptr);
};

/// Zoom on (1) or off (0).
class Btn3 : public SoftKeyButton
{
    Q_OBJECT
public:
    explicit Btn3(QWidget *parent = nullptr);
};

/// Harmonics, F1: voltage (1) or current (2).
class HarmBtn1 : public SoftKeyButton
{
    Q_OBJECT
public:
    explicit HarmBtn1(QWidget *parent = nullptr);
};

/// Harmonics, F2: channel; flags 1 to 5 as `__graphtype`.
class HarmBtn2 : public SoftKeyButton
{
    Q_OBJECT
public:
    explicit HarmBtn2(QWidget *parent = nullptr);
};

/// Harmonics, F3: interharmonics on (1) or off (0).
class HarmBtn3 : public SoftKeyButton
{
    Q_OBJECT
public:
    explicit HarmBtn3(QWidget *parent = nullptr);
};

/// Harmonics table, F3: percent of r.m.s. (1) or of the fundamental (2), as word 0 of `harm_data`.
class HarmBtn4 : public SoftKeyButton
{
    Q_OBJECT
public:
    explicit HarmBtn4(QWidget *parent = nullptr);
};

/// Power, F3: energy panel shown (1) or closed (0).
class EnergyBtn : public SoftKeyButton
{
    Q_OBJECT
public:
    explicit EnergyBtn(QWidget *parent = nullptr);
};

/// Phase (1) or wire (2) values; on no key in this release.
class VifBtn1 : public SoftKeyButton
{
    Q_OBJECT
public:
    explicit VifBtn1(QWidget *parent = nullptr);
};

/// Phasors, F1: voltages (1), currents (2), or voltage and current of one phase (3 to 5).
class UnbalBtn1 : public SoftKeyButton
{
    Q_OBJECT
public:
    explicit UnbalBtn1(QWidget *parent = nullptr);
};

/// Monitor events, F4: all (0) or only the selected kind (1).
class BtnSelAll : public SoftKeyButton
{
    Q_OBJECT
public:
    explicit BtnSelAll(QWidget *parent = nullptr);
    /// Takes a filter of the event table: 0 is all, any other is a selection.
    void setBtn1Flag(int filter) { setBtnFlag(filter ? 1 : 0); }
};

/// Monitor harmonics, F1: phase; flags 0 to 2.
class MonitorHarmBtn1 : public SoftKeyButton
{
    Q_OBJECT
public:
    explicit MonitorHarmBtn1(QWidget *parent = nullptr);
};
