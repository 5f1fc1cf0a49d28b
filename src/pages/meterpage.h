#pragma once

#include "model/displayunits.h"
#include "pages/channellabels.h"
#include "pages/livepage.h"

#include <vector>

/// Start of a line in a meter page's table: the labels it stands in and what its caption says.
struct MeterLine
{
    const char *name; // labels <name>_t, <name>_L1 ... <name>_N
    const char *caption; // to be translated; "%1" stands for the unit
    QString DisplayUnits::*unit; // null: a caption without one
};

/// A page that shows a table of live values, a line per quantity and a column per channel of the wiring. A page's own
/// file holds the table of its lines and where each finds its values.
class MeterPage : public LivePage
{
    Q_OBJECT

public:
    using LivePage::LivePage;

public slots:
    void updateDisplay(void *) override { showCurParams(); }
    void init_parameter() override;
    void retranslateUi() override;

protected:
    /// To be called once, between setupUi and setKeys. The rows derive from MeterLine and live as long as the page.
    template <typename Row, std::size_t N> void setRows(const Row (&rows)[N])
    {
        m_headers = ChannelLabels::numberedRow(this, "header_%1");
        for (const Row &row : rows) {
            m_lines.push_back(&row);
            m_rows.push_back(ChannelLabels::namedRow(this, row.name));
        }
    }

    /// Everything that follows the wiring, the units and the language.
    virtual void showTitle();
    virtual void showHeaders() { ChannelLabels::showHeaders(m_headers); }
    /// The latest record, if there is one.
    virtual void showCurParams() = 0;
    void showCaptions();

    ChannelLabels::LabelRow m_headers;
    std::vector<ChannelLabels::LabelRow> m_rows; // in the order of the page's table

private:
    std::vector<const MeterLine *> m_lines;
};
