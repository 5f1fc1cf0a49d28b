#pragma once

#include "setup/setupsummary.h"

/// The second page of Setup: the set-up in use, and the ways to the limits and to the set-up of single functions.
class SetupMainPage2 : public SetupSummary
{
    Q_OBJECT

public:
    explicit SetupMainPage2(QWidget *parent = nullptr);

signals:
    void goSetupLimits();
    void goSetupFunctions();
    void goSetupPrev();
};
