#pragma once

#include "settings/settingconfig.h"
#include "setup/settingdraft.h"
#include "setup/setuppane.h"

#include <array>

class QLabel;

/// Choice of the nominal voltage: a table of phase voltages and one of line voltages, of which the wiring makes one
/// active. Left and right walk through it; on its last field, the custom value, up and down change that.
class SetupVnomPage : public SetupPane
{
    Q_OBJECT

public:
    explicit SetupVnomPage(QWidget *parent = nullptr);

public slots:
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void stored(); // after Ok
    void goBack();

protected:
    void showSettings() override;

private:
    static constexpr int kFields = 9; // the last is the custom value

    /// One of the two tables.
    struct Table
    {
        const char *select; // keys of its settings
        const char *custom;
        int (SettingConfig::*volts)(int row) const;
        QLabel *head = nullptr;
        std::array<QLabel *, kFields> fields {};
    };

    void addTable(Table &table, const char *name, int top);
    Table &active();
    void showTable(Table &table, bool isActive);
    void changeVolt(int step);
    void changeCustom(int step);
    void changeVnom();

    SettingDraft m_draft;
    Table m_star;
    Table m_delta;
    QLabel *m_hint;
};
