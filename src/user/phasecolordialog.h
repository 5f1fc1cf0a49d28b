#pragma once

#include "widgets/dialogs/softkeydialog.h"

#include <array>
#include <memory>

namespace Ui {
class PhaseColorDialog;
}
class PhaseColorPalette;

/// Chooses the colours of the phases, the neutral conductor and earth, one row each. They count, and are stored, with
/// "Ok". Keys: docs/user-pages.md.
class PhaseColorDialog : public SoftKeyDialog
{
    Q_OBJECT

public:
    static constexpr int kRows = 5; // L1, L2, L3, N, earth

    explicit PhaseColorDialog(QWidget *parent = nullptr);
    ~PhaseColorDialog() override;

    /// Runs the dialog; true when colours were stored.
    static bool choose();
    /// The five digits as they stand in the dialog.
    QString digits() const;

private:
    void nextItem() { selectRow(1); }
    void prevItem() { selectRow(-1); }
    void change2next() { stepColor(1); }
    void change2prev() { stepColor(-1); }
    void selectRow(int direction);
    void stepColor(int direction);
    void setDefault();
    void take(const QString &digits);
    void showRows();
    void accept() override;

    std::unique_ptr<Ui::PhaseColorDialog> m_ui;
    std::array<PhaseColorPalette *, kRows> m_palettes {};
    std::array<int, kRows> m_colors {}; // 0 to 5
    int m_row = 0;
};
