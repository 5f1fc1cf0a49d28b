#pragma once

#include "model/livedata.h"
#include "model/trendzoom.h"
#include "pages/labelgrid.h"
#include "pages/livepage.h"
#include "pages/rmstrend.h"

#include <QVector>

#include <memory>

namespace Ui {
class RmsTrendForm;
}

class CursorTrendChart;
struct __trend_chart_data;

/// Scrolling trend of the half-cycle r.m.s. values of all channels, voltages or currents, with a cursor and zoom steps:
/// what the pages of dips and swells and of inrush have in common. Exactly one of cursor and zoom is on; the arrows
/// left and right act on that one. A derived page gives the records, the zoom steps and the chart.
class RmsTrendPage : public LivePage
{
    Q_OBJECT

public:
    enum Quantity { Voltage = 1, Current = 2 };

    ~RmsTrendPage() override;

    int quantity() const { return m_quantity; }
    bool cursorOn() const { return m_cursorOn; }
    bool zoomOn() const { return m_zoomOn; }
    int cursorPosition() const { return m_position; } // 1 to 600 from the right edge, 1 the newest point
    int seconds() const { return m_seconds; } // across the chart
    const RmsTrend::Window &window() const { return m_window; }

public slots:
    void updateDisplay(void *) override { showTrend(); }
    void init_parameter() override;
    void retranslateUi() override;
    /// Prints the number of events beside "EVENTS :".
    void showEventsCounts(int count);

protected:
    RmsTrendPage(_quvera_ui_type type, const LiveData &data, QWidget *parent);

    /// Puts \a chart into its place in the form and takes it over; the keys F1 to F4, left and right get their actions.
    /// To be called once.
    void setUp(CursorTrendChart *chart);

    /// The lists that the page shows.
    virtual const __rms_trend_data &record(const DisplayRecords &shown) const = 0;
    virtual int valuesPerSecond() const = 0;
    virtual QVector<TrendZoom> zoomSteps() const = 0; // longest first
    virtual int zoomIndex() const = 0;
    virtual void zoomIndexChanged(int index) = 0;
    virtual int axisLabelCount() const = 0;
    virtual Quantity firstQuantity() const { return Voltage; }
    virtual void showSeries(const __trend_chart_data &data) = 0;
    virtual void showChartCursor(int position) = 0;
    virtual void openEvents() = 0;

    /// The view as at the start of a run: newest values, first zoom step, zoom on, cursor off.
    void resetView();
    void showTrend();
    std::vector<FrontKeys::Row> commonKeys() override;

private:
    void changeType();
    void toggleCursor();
    void toggleZoom();
    void chooseArrows();
    void changeScaleL() { changeScale(-1); }
    void changeScaleR() { changeScale(1); }
    void changeScale(int direction);
    void changeCursorPos(int step);
    void moveCursorL();
    void moveCursorR();
    void showType();
    void showCursor();
    void showZoom();
    void showCurVal();
    void showScaleList();
    using Lists = QList<float>[kChannels];
    const Lists &shownLists() const;

    const LiveData &m_data;
    std::unique_ptr<Ui::RmsTrendForm> m_ui;
    CursorTrendChart *m_chart = nullptr;
    ValueStrip::Labels m_labels;

    int m_quantity = 0; // 0 only before the first run
    bool m_cursorOn = true;
    bool m_zoomOn = false;
    int m_position = 1;
    int m_seconds = 60;
    RmsTrend::Window m_window;
    TrendScaler::Picture m_picture; // kept alive for the chart
};
