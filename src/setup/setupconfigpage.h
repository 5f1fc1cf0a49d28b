#pragma once

#include "setup/setuppane.h"

#include <array>

class JoinItem;
class QLabel;

/// Choice of the wiring, over three pages: the arrows walk through all ten, Enter shows the selected one at large. It
/// opens with the wiring in use.
class SetupConfigPage : public SetupPane
{
    Q_OBJECT

public:
    explicit SetupConfigPage(QWidget *parent = nullptr);

    /// A join mode of 1 to 10; any other number changes nothing.
    void select(int joinMode);

signals:
    void goConfigDetail(int joinMode);
    void goSetupMain();

public slots:
    void init_parameter() override;

protected:
    void showSettings() override;

private:
    static constexpr int kColumns = 2, kPerPage = 4, kPages = 3;

    void showPage1() { select(1); }
    void showPage2() { select(1 + kPerPage); }
    void showPage3() { select(1 + 2 * kPerPage); }
    void moveColumn(int step) { select(m_selected + step); }
    void moveRow(int step) { select(m_selected + step * kColumns); }
    void showDetail() { emit goConfigDetail(m_selected); }

    std::array<JoinItem *, kPerPage> m_items;
    QLabel *m_page; // which of the three
    int m_selected = 1;
};
