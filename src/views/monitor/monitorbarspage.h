#pragma once

#include "pages/labelgrid.h"
#include "pages/livepage.h"
#include "views/monitor/monitorreadout.h"

#include <array>
#include <memory>

class LiveData;
namespace Ui {
class MonitorForm;
}

/// A page of a compliance histogram with a cursor, and below it the numbers behind the bar at the cursor. Labels:
/// "type" the limit set, "quantity", "verdict", and six fields: "A1_Caption" to "A3_Value" above "B1_Caption" to
/// "B3_Value".
class MonitorBarsPage : public LivePage
{
    Q_OBJECT

public:
    ~MonitorBarsPage() override;

    int cursor() const { return m_cursor; }

public slots:
    void updateDisplay(void *) override;
    void init_parameter() override;
    void retranslateUi() override;

protected:
    MonitorBarsPage(const LiveData &data, QWidget *parent);

    /// To be called once, before setKeys, behind all captions. \a chart gets its place.
    void setUpBars(QWidget *chart, int left, int width);
    /// A word below the bar whose middle stands at \a centre, pixels of the page.
    QLabel *addCaption(const QString &name, int centre, int width, int textSize);
    /// By one bar, 1 to the right and -1 to the left, past those that are not shown; it stops at the ends.
    void moveCursor(int step);
    void moveCursorL(int) { moveCursor(-1); }
    void moveCursorR(int) { moveCursor(1); }
    void setCursor(int bar);

    virtual int barCount() const = 0;
    virtual bool isShown(int) const { return true; }
    /// Bars and cursor as they stand now.
    virtual void showBars(const MonitorView &view) = 0;
    virtual MonitorReadout readout(const MonitorView &view) const = 0;
    virtual MonitorEventCounts events() const { return {}; }

private:
    MonitorView view() const;
    void showReadout(const MonitorReadout &readout);

    const LiveData &m_data;
    std::unique_ptr<Ui::MonitorForm> m_ui;
    QLabel *m_quantity = nullptr;
    QLabel *m_verdict = nullptr;
    std::array<LabelGrid::Row, MonitorReadout::kFields> m_fields;
    int m_cursor = 0;
};
