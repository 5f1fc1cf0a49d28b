#pragma once

#include "model/livedata.h"
#include "pages/trendchartpage.h"

#include <algorithm>
#include <array>
#include <vector>

/// Ten-minute trend of one quantity at a time, with its latest values below the chart: what every trend page does. A
/// page adds its table of quantities and the key back. Labels: "type", "D1_Caption" to "D4_Caption", "D1_Value" to
/// "D4_Value".
class TrendPage : public TrendChartPage
{
    Q_OBJECT

public:
    using Values = std::array<float, kChannels>;
    /// Values out of an array of a record, which may have fewer places than there are channels.
    template <std::size_t N> static Values valuesOf(const float (&array)[N])
    {
        static_assert(N <= kChannels, "a place for each channel");
        Values values = {};
        std::copy(std::begin(array), std::end(array), values.begin());
        return values;
    }

    /// One quantity that the page can show.
    struct Quantity
    {
        int type; // selector value
        QString (*caption)(); // with its unit
        const __trend_data &(*record)(const DisplayRecords &);
        double (*factor)(); // display scale of the limit labels
        int (*flags)(); // curves of the chart
        Values (*values)(const DisplayRecords &); // latest ones of the four channels
        QString (*format)(float);
        bool single = false; // one value without a channel: the frequency, with its grey rule
        const char *fourthCaption = nullptr; // in place of the neutral's, such as "T :"
        bool plain = false; // single: a value with its own sign, without the grey rule
    };

    int type() const { return quantity().type; }

public slots:
    void updateDisplay(void *) override { showTrend(); }
    void init_parameter() override;
    void retranslateUi() override;

protected:
    /// \a cycle in the order of F1; it outlives the page.
    TrendPage(_quvera_ui_type type, const LiveData &data, const std::vector<Quantity> &cycle, QWidget *parent);

    /// To be called once, before setKeys. \a strip: where the values stand; \a chart: object name of the chart;
    /// \a captionEnd follows the channel in the captions of the values.
    void initTrend(const ValueStrip &strip, const char *chart = "trend", const char *captionEnd = ":");
    /// F1: the next quantity.
    void nextType();
    virtual void showTrend();

    static double unscaled() { return 1.0; }
    static int wiringFlags() { return ChannelLabels::channels().trendFlags(); }

private:
    const Quantity &quantity() const { return m_cycle[m_index]; }
    void initTrendFlags();
    void showType();
    void showValue();
    /// \a row without the phases that have no curve.
    ChannelLabels::LabelRow drawn(ChannelLabels::LabelRow row) const;

    const LiveData &m_data;
    const std::vector<Quantity> &m_cycle;
    std::size_t m_index = 0;
    QString m_captionEnd;
};
