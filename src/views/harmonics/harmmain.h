#pragma once

#include "model/livedata.h"
#include "pages/channellabels.h"
#include "pages/livepage.h"
#include "views/harmonics/harmvalues.h"

#include <QList>

#include <memory>

namespace Ui {
class HarmMain;
}

/// Bar graph of the spectrum of one channel or of all phases, with a cursor and its values. The orders are shown in
/// windows; the cursor leads from one to the next.
class HarmMain : public LivePage
{
    Q_OBJECT

public:
    explicit HarmMain(const LiveData &data, QWidget *parent = nullptr);
    ~HarmMain() override;

    int quantity() const { return m_quantity; }
    int channelFlag() const { return m_channel; } // __graphtype
    bool interharmonics() const { return m_inter; }
    int firstOrder() const { return m_first; }
    int lastOrder() const { return m_last; }
    int cursorIndex() const { return m_cursor; }
    const QList<__graphdata> &bars() const { return m_bars; }

public slots:
    void updateDisplay(void *) override { changeHarmGraph(); }
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goHarmMeter();

protected:
private:
    void swapQuantity();
    void nextChannel();
    void toggleInterharmonics();

    void initHarmIndex();
    void initHarmFlag();
    void initHarmType();
    void initHarmInHarm();
    void initHarmCursorPos();
    void changeHarmFlag();
    void changeGraphCursorPosL();
    void changeGraphCursorPosR();
    void changeCursorPos(int step);
    void changeHarmGraph();
    void showBars();
    void showCurVal();
    void restartView();

    bool allChannels() const { return m_channel == GraphAll; }
    int barsPerOrder() const; // side by side
    int pageLength() const; // orders in a window
    HarmValues::Item itemAtCursor() const;
    QString valueText(int channel, HarmValues::Item item) const;
    QString orderText(HarmValues::Item item) const;

    const harm_data &shown() const { return m_data.shown().harmonics; }

    const LiveData &m_data;
    std::unique_ptr<Ui::HarmMain> m_ui;
    ChannelLabels::LabelRow m_captions;
    ChannelLabels::LabelRow m_values;

    int m_quantity = HarmValues::Voltage;
    int m_channel = GraphL1;
    bool m_inter = false;
    int m_first = 1;
    int m_last = 50;
    int m_cursor = 0; // bar under the cursor
    QList<__graphdata> m_bars;
};
