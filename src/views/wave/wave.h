#pragma once

#include "pages/viewcontainer.h"

/// Waveform capture: its set-up, and how far it has come. The capture itself is a function of the task.
class Wave : public ViewContainer
{
    Q_OBJECT

public:
    enum Row { Setup, Main };

    explicit Wave(const LiveData &data, QWidget *parent = nullptr);

    void enter() override;
    /// The run has ended, by itself or because it was asked to.
    void taskStoped();

signals:
    void startWaveTask();
    void stopTaskWithSave(bool keep);
    void exitTask();

protected:
    void aboutToShow(int row) override;

private:
    void start();
};
