#pragma once

#include "widgets/dialogs/softkeydialog.h"

#include <memory>

class LiveData;
namespace Ui {
class RunInfo;
}

/// What the instrument is doing: the recorder's state and the events so far, with a key to start the task anew.
class RunInfo : public SoftKeyDialog
{
    Q_OBJECT

public:
    enum { RestartTask = 0, Stay = 1 };

    /// Shows the state; answers 0 for "Restart" and 1 for "Cancel" or anything else that closed the dialog.
    static int showSystemStatus(const LiveData &data);

    explicit RunInfo(const LiveData &data, QWidget *parent = nullptr);
    ~RunInfo() override;

    /// The text of the live event lists and the recorder's state.
    static QString statusText(const LiveData &data);

public slots:
    void reject() override { done(Stay); }

private:
    void restart();

    std::unique_ptr<Ui::RunInfo> m_ui;
};
