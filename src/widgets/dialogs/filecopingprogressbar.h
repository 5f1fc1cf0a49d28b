#pragma once

#include "storage/filecopy.h"
#include "widgets/dialogs/softkeydialog.h"

#include <QTimer>

#include <memory>

namespace Ui {
class FileCopingProgressBar;
}

/// Copies one file while it shows the progress. It copies a piece at a time between the events of the loop, so that
/// measuring goes on; "Cancel", a pulled disk or a full one end it, and nothing half-written stays behind: an old
/// target is then as it was.
class FileCopingProgressBar : public SoftKeyDialog
{
    Q_OBJECT

public:
    /// "NoErr", or why the last copy failed.
    static QString err;

    /// Copies `source` over `target` (the board's paths); false with `err` set when it did not succeed.
    static bool copyFile(const QString &source, const QString &target);

    FileCopingProgressBar(const QString &source, const QString &target, QWidget *parent = nullptr);
    ~FileCopingProgressBar() override;

private:
    void copyPiece();
    void finish();
    void reject() override;

    std::unique_ptr<Ui::FileCopingProgressBar> m_ui;
    FileCopy m_copy;
    QTimer m_turn;
};
