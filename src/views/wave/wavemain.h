#pragma once

#include "model/livedata.h"
#include "pages/labelgrid.h"
#include "pages/livepage.h"

#include <memory>
#include <vector>

class WaveProgressBar;

namespace Ui {
class WaveMain;
}

/// A waveform capture under way: whether it waits, runs or has ended, and how far it has come.
class WaveMain : public LivePage
{
    Q_OBJECT

public:
    explicit WaveMain(const LiveData &data, QWidget *parent = nullptr);
    ~WaveMain() override;

    /// A capture was asked for and waits for its start.
    void beginCapture() { showState(); }
    /// The run has ended, by itself or because it was asked to.
    void taskStoped() { showState(); }

public slots:
    void updateDisplay(void *) override { showState(); }
    void retranslateUi() override;

signals:
    void stopTaskWithSave(bool keep);
    void exitTask();
    void goWaveSetup();

private:
    enum State { Waiting, Running, Ended, Refused, Unbegun };

    void stopOrBack();
    State state() const;
    void showState();
    void showProgress();

    const LiveData &m_data;
    std::unique_ptr<Ui::WaveMain> m_ui;
    std::vector<LabelGrid::Row> m_rows;
    WaveProgressBar *m_bar;
};
