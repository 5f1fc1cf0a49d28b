#pragma once

#include "pages/pagestack.h"

/// Set-up of the measurement: the stack of its pages, by the table in setuppage.cpp. However it is left, the processor
/// is set up anew and the Modbus master reads the new settings.
class SetupPage : public PageStack
{
    Q_OBJECT

public:
    /// The pages, in the order of the table.
    enum Row {
        Main,
        Main2,
        Config,
        ConfigEnter,
        Vnom,
        Functions,
        KFactor,
        Flicker,
        Transients,
        Inrush,
        MainsSig,
        Clamps,
        Limits
    };

    explicit SetupPage(const LiveData &data, QWidget *parent = nullptr);

signals:
    /// Setup is left, with the settings in force from now on.
    void settingsLeft();

private:
    static std::vector<SubPage> table();
    void exitSetup(_quvera_ui_type target);
    void showSetupConfigEnter(int joinMode);
    void showJoinInUse();
    /// Back from a wiring at large, to where it was opened.
    void backSetupConfig();
};
