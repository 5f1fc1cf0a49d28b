#pragma once

#include "task/calibration.h"
#include "widgets/dialogs/softkeydialog.h"

#include <memory>

namespace Ui {
class CalibrationDialog;
}

/// The service's dialog of the calibration (docs/calibration.md): one of eight runs is selected and started, for all
/// channels or for one. The processor is in calibration mode while it is open. During a run Cancel alone does
/// something: it asks.
class CalibrationDialog : public SoftKeyDialog
{
    Q_OBJECT

public:
    /// Opens the dialog and returns when it is closed: with Save the new values are stored, otherwise the instrument
    /// goes on with the stored ones.
    static void calibration();

    explicit CalibrationDialog(QWidget *parent = nullptr);
    ~CalibrationDialog() override;

    bool isRunning() const { return m_running; }
    Calibration &task() { return m_calibration; }

protected:
    void pressKey(int key) override;

private:
    void changeItemPrev();
    void changeItemNext();
    void changeChannle();
    void startCalibSession();
    void cancel();
    void completed();
    void select(int item);
    void showChannel();

    std::unique_ptr<Ui::CalibrationDialog> m_ui;
    Calibration m_calibration;
    int m_item = 0;
    int m_channel = Calibration::AllChannels;
    bool m_running = false;
};
