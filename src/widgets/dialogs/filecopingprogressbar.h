#pragma once

#include "storage/copybatch.h"
#include "storage/filework.h"
#include "widgets/dialogs/softkeydialog.h"

#include <QTimer>

#include <memory>

namespace Ui {
class FileCopingProgressBar;
}

/// Copies files and folders while it shows the progress. They are copied by a thread of their own, so that measuring
/// and the screen go on however slow a disk is; "Cancel", a pulled disk or a full one end it, and nothing half-written
/// stays behind: an old target is then as it was.
class FileCopingProgressBar : public SoftKeyDialog
{
    Q_OBJECT

public:
    /// "NoErr", or why the last copy failed.
    static QString err;

    /// Copies `source` over `target` (the board's paths); false with `err` set when it did not succeed.
    static bool copyFile(const QString &source, const QString &target);
    /// Copies these one after the other, as far as it goes; `*copied` is how many that were.
    static CopyBatch::Result copyFiles(const QVector<CopyBatch::Job> &jobs, int *copied);

    explicit FileCopingProgressBar(const QVector<CopyBatch::Job> &jobs, QWidget *parent = nullptr);
    ~FileCopingProgressBar() override;

private:
    void showProgress();
    void finish();
    void reject() override;

    std::unique_ptr<Ui::FileCopingProgressBar> m_ui;
    CopyBatch m_batch;
    CopyBatch::Result m_result = CopyBatch::Cancelled;
    QTimer m_turn;
    int m_shown = -1; // job whose name stands on it
    FileWork m_work; // ends before what it works on
};
