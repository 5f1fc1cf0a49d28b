#pragma once

#include "pages/labelgrid.h"
#include "pages/livepage.h"
#include "settings/monitorinfo.h"

#include <memory>
#include <vector>

class LiveData;
class MonitorTrendChart;
struct __monitor_trend;
namespace Ui {
class MonitorForm;
}

/// Trend of the 10-minute values behind one list of events, with the latest ones below it. F1 steps through the
/// quantities of a page that has several, F4 and the arrows up and down through the zooms, F5 goes back. Labels:
/// "type", "D1_Caption" to "D3_Value".
class MonitorTrendPage : public LivePage
{
    Q_OBJECT

public:
    /// One quantity that a page can show.
    struct Quantity
    {
        QString (*caption)(); // with its unit
        int row; // of the trend; L2 and L3 follow
        int flag; // of the chart for a single value; 0: one curve for each phase
        double grid; // the scale ends at multiples of it
        int decimals; // of the scale
        double (*factor)(); // of the scale
        float (*reference)(); // the value farthest from it stands for those that share a point
        QString (*text)(float); // of a value, with its unit
        const char *placeholder; // in place of a value that is not there yet
        int intervals = 1; // of ten minutes that a value stands for
        bool threePhasesOnly = false;
    };

    ~MonitorTrendPage() override;

    int quantity() const { return m_quantity; }

public slots:
    void updateDisplay(void *) override { showTrend(); }
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goBack();

protected:
    /// \a quantities in the order of F1; they outlive the page.
    MonitorTrendPage(const LiveData &data, const std::vector<Quantity> &quantities, QWidget *parent);

private:
    int next() const; // quantity that F1 leads to: the same where there is no other
    void nextType();
    void nextZoom();
    void zoomIn();
    void zoomOut();
    void setZoom(int index);
    void showType();
    void showTrend();
    bool has(int quantity) const;

    const LiveData &m_data;
    const std::vector<Quantity> &m_quantities;
    std::unique_ptr<Ui::MonitorForm> m_ui;
    MonitorTrendChart *m_chart;
    ValueStrip::Labels m_labels;
    int m_quantity = 0;
};

/// 10-minute voltages.
class MonitStarVrmTrendPage : public MonitorTrendPage
{
    Q_OBJECT
public:
    explicit MonitStarVrmTrendPage(const LiveData &data, QWidget *parent = nullptr);
};

/// Distortion of the voltages.
class MonitHarmEvenTrePage : public MonitorTrendPage
{
    Q_OBJECT
public:
    explicit MonitHarmEvenTrePage(const LiveData &data, QWidget *parent = nullptr);
};

/// Long-term flicker.
class MonitFlickTrePage : public MonitorTrendPage
{
    Q_OBJECT
public:
    explicit MonitFlickTrePage(const LiveData &data, QWidget *parent = nullptr);
};

/// The voltages between dips, interruptions and swells.
class MonitDirsTrePage : public MonitorTrendPage
{
    Q_OBJECT
public:
    explicit MonitDirsTrePage(const LiveData &data, QWidget *parent = nullptr);
};

/// Unbalance, or the frequency.
class MonitUnbalTrePage : public MonitorTrendPage
{
    Q_OBJECT
public:
    explicit MonitUnbalTrePage(const LiveData &data, QWidget *parent = nullptr);
};
