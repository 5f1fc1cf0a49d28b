#include "widgets/dialogs/filecopingprogressbar.h"

#include "ui_filecopingprogressbar.h"

#include <QFileInfo>

static const char *const kStyle = "QProgressBar { background-color: rgb(5, 8, 15); color: rgb(255, 255, 255);"
                                  " border: 1px solid rgb(60, 90, 134); border-radius: 3px; }"
                                  "QProgressBar::chunk { background-color: rgb(31, 111, 208); }";

QString FileCopingProgressBar::err = QStringLiteral("NoErr");

static constexpr int kRefreshMs = 100;

bool FileCopingProgressBar::copyFile(const QString &source, const QString &target)
{
    int copied = 0;
    return copyFiles({ { source, target } }, &copied) == CopyBatch::Copied;
}

CopyBatch::Result FileCopingProgressBar::copyFiles(const QVector<CopyBatch::Job> &jobs, int *copied)
{
    FileCopingProgressBar bar(jobs);
    bar.exec();
    *copied = bar.m_batch.copied();
    return bar.m_result;
}

FileCopingProgressBar::FileCopingProgressBar(const QVector<CopyBatch::Job> &jobs, QWidget *parent)
    : SoftKeyDialog(parent), m_ui(new Ui::FileCopingProgressBar), m_batch(jobs)
{
    static const FrontKeys::KeyRow<FileCopingProgressBar> keys[] = {
        { Qt::Key_F5, QT_TRANSLATE_NOOP("FileCopingProgressBar", "Cancel"), &FileCopingProgressBar::reject },
    };
    m_ui->setupUi(this);
    m_ui->progress->setStyleSheet(QString::fromLatin1(kStyle));
    finishForm();
    setKeys(keys);
    err = QStringLiteral("NoErr");
    showProgress();
    connect(&m_turn, &QTimer::timeout, this, &FileCopingProgressBar::showProgress);
    m_turn.start(kRefreshMs);
    m_work.run([this] { m_result = m_batch.run(); }, [this] { finish(); });
}

FileCopingProgressBar::~FileCopingProgressBar()
{
    m_batch.cancel(); // the thread is waited for
}

void FileCopingProgressBar::showProgress()
{
    m_ui->progress->setValue(int(m_batch.progress() * m_ui->progress->maximum()));
    if (m_shown == m_batch.current() || m_batch.jobs().isEmpty())
        return;
    m_shown = m_batch.current();
    fitText(m_ui->file_name, QFileInfo(m_batch.jobs().at(m_shown).source).fileName(), 18);
}

void FileCopingProgressBar::finish()
{
    m_turn.stop();
    if (m_result == CopyBatch::Cancelled)
        err = tr("Canceled");
    else if (m_result != CopyBatch::Copied)
        err = m_batch.error();
    done(m_result == CopyBatch::Copied ? Accepted : Rejected);
}

/// The dialog closes when what is under way has been taken back.
void FileCopingProgressBar::reject()
{
    m_batch.cancel();
}
