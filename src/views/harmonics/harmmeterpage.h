#pragma once

#include "model/livedata.h"
#include "pages/labelgrid.h"
#include "pages/listpage.h"

#include <array>
#include <memory>

namespace Ui {
class HarmMeterPage;
}

/// Table of all orders of voltage and current in percent, seven lines at a time.
class HarmMeterPage : public ListPage
{
    Q_OBJECT

public:
    static constexpr int kLines = 7;

    explicit HarmMeterPage(const LiveData &data, QWidget *parent = nullptr);
    ~HarmMeterPage() override;

    int scrollPosition() const { return m_list.first(); } // first line shown, a multiple of 7

public slots:
    void updateDisplay(void *) override;
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goHarmMain();
    /// The reference in force, 1 percent of r.m.s. or 2 percent of the fundamental, is to change.
    void changeFlag(int flag);

protected:
    ScrollModel &list() override { return m_list; }
    void showList() override;

private:
    void changeReference();
    void initTitle();
    void showNames();
    void showReference();
    void showCurValue();

    const harm_data &shown() const { return m_data.shown().harmonics; }

    const LiveData &m_data;
    std::unique_ptr<Ui::HarmMeterPage> m_ui;
    ChannelLabels::LabelRow m_headers;
    std::array<QLabel *, kLines> m_names {};
    std::array<ChannelLabels::LabelRow, kLines> m_cells {};
    ScrollModel m_list { kLines };
};
