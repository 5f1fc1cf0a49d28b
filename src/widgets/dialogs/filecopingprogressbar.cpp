#include "widgets/dialogs/filecopingprogressbar.h"

#include "ui_filecopingprogressbar.h"

#include <QFileInfo>

static const char *const kStyle = "QProgressBar { background-color: rgb(5, 8, 15); color: rgb(255, 255, 255);"
                                  " border: 1px solid rgb(60, 90, 134); border-radius: 3px; }"
                                  "QProgressBar::chunk { background-color: rgb(31, 111, 208); }";

QString FileCopingProgressBar::err = QStringLiteral("NoErr");

bool FileCopingProgressBar::copyFile(const QString &source, const QString &target)
{
    FileCopingProgressBar bar(source, target);
    return bar.exec() == QDialog::Accepted;
}

FileCopingProgressBar::FileCopingProgressBar(const QString &source, const QString &target, QWidget *parent)
    : SoftKeyDialog(parent), m_ui(new Ui::FileCopingProgressBar), m_copy(source, target)
{
    static const FrontKeys::KeyRow<FileCopingProgressBar> keys[] = {
        { Qt::Key_F5, QT_TRANSLATE_NOOP("FileCopingProgressBar", "Cancel"), &FileCopingProgressBar::reject },
    };
    m_ui->setupUi(this);
    m_ui->progress->setStyleSheet(QString::fromLatin1(kStyle));
    fitText(m_ui->file_name, QFileInfo(source).fileName(), 18);
    finishForm();
    setKeys(keys);
    err = QStringLiteral("NoErr");
    connect(&m_turn, &QTimer::timeout, this, &FileCopingProgressBar::copyPiece);
    m_turn.start(0);
}

FileCopingProgressBar::~FileCopingProgressBar() = default;

void FileCopingProgressBar::copyPiece()
{
    if (m_copy.copyPiece() != FileCopy::Running)
        return finish();
    m_ui->progress->setValue(int(m_copy.progress() * m_ui->progress->maximum()));
}

void FileCopingProgressBar::finish()
{
    m_turn.stop();
    if (!m_copy.error().isEmpty())
        err = m_copy.error();
    done(m_copy.error().isEmpty() ? Accepted : Rejected);
}

void FileCopingProgressBar::reject()
{
    m_copy.cancel(tr("Canceled"));
    finish();
}
