#include "widgets/dialogs/filecopingprogressbar.h"

#include "platform/target.h"
#include "ui_filecopingprogressbar.h"

#include <QFileInfo>

constexpr qint64 kPiece = 256 * 1024; // bytes between two turns of the event loop

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
    : SoftKeyDialog(parent), m_ui(new Ui::FileCopingProgressBar), m_target(Target::path(target)),
      m_in(Target::path(source)), m_out(m_target + QStringLiteral(".part"))
{
    m_ui->setupUi(this);
    m_ui->progress->setStyleSheet(QString::fromLatin1(kStyle));
    fitText(m_ui->file_name, QFileInfo(source).fileName(), 18);
    finishForm();
    err = QStringLiteral("NoErr");
    connect(&m_turn, &QTimer::timeout, this, &FileCopingProgressBar::copyPiece);
    m_turn.start(0);
}

FileCopingProgressBar::~FileCopingProgressBar()
{
    if (m_out.isOpen())
        m_out.remove();
}

void FileCopingProgressBar::copyPiece()
{
    if (!m_in.isOpen() && !m_in.open(QIODevice::ReadOnly))
        return fail(m_in.errorString());
    if (!m_out.isOpen() && !m_out.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        return fail(m_out.errorString());
    const QByteArray piece = m_in.read(kPiece);
    if (piece.isEmpty()) {
        if (m_in.error() != QFileDevice::NoError)
            return fail(m_in.errorString());
        return finish();
    }
    if (m_out.write(piece) != piece.size())
        return fail(m_out.errorString());
    const double done = m_in.size() > 0 ? double(m_in.pos()) / double(m_in.size()) : 1.0;
    m_ui->progress->setValue(int(done * m_ui->progress->maximum()));
}

void FileCopingProgressBar::finish()
{
    m_turn.stop();
    m_out.close();
    QFile::remove(m_target);
    if (!m_out.rename(m_target))
        return fail(m_out.errorString());
    Target::shell(QStringLiteral("sync"));
    accept();
}

void FileCopingProgressBar::fail(const QString &reason)
{
    err = reason;
    m_turn.stop();
    m_out.close();
    m_out.remove();
    done(Rejected);
}

void FileCopingProgressBar::reject()
{
    fail(tr("Canceled"));
}

void FileCopingProgressBar::pressKey(int key)
{
    if (key == Qt::Key_F5)
        reject();
}
