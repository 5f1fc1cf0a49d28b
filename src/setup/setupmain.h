#pragma once

#include "setup/setupsummary.h"

/// The first page of Setup: the set-up in use, and the ways to wiring, nominal voltage, frequency and clamps.
class SetupMain : public SetupSummary
{
    Q_OBJECT

public:
    explicit SetupMain(QWidget *parent = nullptr);

signals:
    void goSetupConfig();
    void goSetupVnom();
    void goSetupClamp();
    void goSetupNext();

private:
    void changeFrequency();
};
