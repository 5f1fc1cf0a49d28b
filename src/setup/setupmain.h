#pragma once

#include "pages/servicekeys.h"
#include "setup/setupsummary.h"

/// The first page of Setup: the set-up in use, and the ways to wiring, nominal voltage, frequency and clamps. Two
/// sequences of Left and Right open what is for the service only.
class SetupMain : public SetupSummary
{
    Q_OBJECT

public:
    explicit SetupMain(QWidget *parent = nullptr);

public slots:
    void init_parameter() override;

signals:
    void goSetupConfig();
    void goSetupConfigEnter(); // the wiring in use at large
    void goSetupVnom();
    void goSetupClamp();
    void goSetupNext();

protected:
    bool pressKey(int key) override;

private:
    void changeFrequency();
    void checkPW();

    ServiceKeys m_pressed;
};
