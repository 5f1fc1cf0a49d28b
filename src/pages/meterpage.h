#pragma once

#include "model/displayunits.h"
#include "model/livedata.h"
#include "pages/labelgrid.h"
#include "pages/livepage.h"

#include <vector>

/// Start of a line in a meter page's table: the labels it stands in, where, and what its caption says.
struct MeterLine
{
    const char *name; // labels <name>_t, <name>_L1 ... <name>_N
    int top; // pixels of the page
    const char *caption; // to be translated; "%1" stands for the unit
    QString DisplayUnits::*unit; // null: a caption without one
};

/// Where a meter page's table stands.
struct MeterGrid
{
    LabelGrid rows;
    int headerTop;
    int headerHeight;
    int headerSize;
};

/// A page that shows a table of live values, a line per quantity and a column per channel of the wiring. A page's own
/// file holds the table of its lines and where each finds its values.
class MeterPage : public LivePage
{
    Q_OBJECT

public:
    MeterPage(_quvera_ui_type type, const LiveData &data, QWidget *parent) : LivePage(type, parent), m_data(data) { }

public slots:
    void updateDisplay(void *) override { showCurParams(); }
    void init_parameter() override;
    void retranslateUi() override;

protected:
    /// Places the table, dresses the form. To be called once, between setupUi and setKeys. The rows derive from
    /// MeterLine and live as long as the page. \a fourth ends the names of the fourth column's labels.
    template <typename Row, std::size_t N>
    void setRows(const MeterGrid &grid, const Row (&rows)[N], const char *fourth = "N")
    {
        for (const Row &row : rows)
            addLine(grid, row, fourth);
        finishRows(grid);
    }

    /// Everything that follows the wiring, the units and the language.
    virtual void showTitle();
    virtual void showHeaders() { ChannelLabels::showHeaders(m_headers); }
    /// The values of the records that are shown.
    virtual void showCurParams() = 0;
    const DisplayRecords &shown() const { return m_data.shown(); }
    void showCaptions();

    ChannelLabels::LabelRow m_headers;
    std::vector<ChannelLabels::LabelRow> m_rows; // in the order of the page's table

private:
    void addLine(const MeterGrid &grid, const MeterLine &line, const char *fourth);
    void finishRows(const MeterGrid &grid);

    const LiveData &m_data;
    std::vector<const MeterLine *> m_lines;
    std::vector<QLabel *> m_captions; // in the same order
};
